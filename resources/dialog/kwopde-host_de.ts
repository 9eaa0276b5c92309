<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>kwopde::dialog::Notices</name>
    <message>
        <source>Changed %1, to go with %2: %3.</source>
        <translation>Geändert: %1, passend zu %2: %3.</translation>
    </message>
    <message>
        <source>%1 cannot be %2 together with %3.</source>
        <translation>%1 kann nicht %2 sein zusammen mit %3.</translation>
    </message>
    <message>
        <source>%1 cannot be %2: this printer takes %3 to %4.</source>
        <translation>%1 kann nicht %2 sein: dieser Drucker nimmt %3 bis %4.</translation>
    </message>
    <message>
        <source>%1 cannot be %2: this printer has no such choice.</source>
        <translation>%1 kann nicht %2 sein: dieser Drucker kennt diese Wahl nicht.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::PpdDialog</name>
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
    <name>kwopde::dialog::QueueDialog</name>
    <message>
        <source>Sending to the printer…</source>
        <translation>Wird an den Drucker gesendet…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Printing failed</source>
        <translation>Drucken fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::SummaryPage</name>
    <message>
        <source>Summary</source>
        <translation>Übersicht</translation>
    </message>
</context>
</TS>
