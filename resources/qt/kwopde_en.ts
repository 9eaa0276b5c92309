<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Bundle</name>
    <message>
        <source>MediaPanelName</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>ColorPanelName</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>SharpenPanelName</source>
        <translation>Sharpen</translation>
    </message>
</context>
</TS>
