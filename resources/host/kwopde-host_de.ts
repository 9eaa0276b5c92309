<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>kwopde::host::PpdDialog</name>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Drucker:</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>Dokument:</translation>
    </message>
    <message>
        <source>This printer has no settings for these panels.</source>
        <translation>Dieser Drucker hat keine Einstellungen für diese Karten.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
</context>
<context>
    <name>kwopde::host::SummaryPage</name>
    <message>
        <source>Summary</source>
        <translation>Übersicht</translation>
    </message>
</context>
</TS>
