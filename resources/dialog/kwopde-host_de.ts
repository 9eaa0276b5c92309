<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>kwopde::app</name>
    <message>
        <source>Choose What to Print</source>
        <translation>Auswählen, was gedruckt wird</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::Notices</name>
    <message>
        <source>The job would print %1.</source>
        <translation>Der Auftrag würde %1 drucken.</translation>
    </message>
    <message>
        <source>Changed %1 from %2 to %3, to go with %4: %5.</source>
        <translation>%1 wurde von %2 zu %3 geändert, passend zu %4: %5.</translation>
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
        <source>This printer cannot do these together: %1.</source>
        <translation>Zusammen kann dieser Drucker das nicht: %1.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::OptionRow</name>
    <message>
        <source>Not available</source>
        <translation>Nicht verfügbar</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1; %2 changes nothing</source>
        <translation>%1; %2 ändert nichts</translation>
    </message>
    <message>
        <source>%1; %2 is the printer's default</source>
        <translation>%1; %2 ist die Voreinstellung des Druckers</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::Page</name>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Reset Page</source>
        <translation>Karte zurücksetzen</translation>
    </message>
    <message>
        <source>One setting differs from the printer's defaults.</source>
        <translation>Eine Einstellung weicht von den Voreinstellungen des Druckers ab.</translation>
    </message>
    <message>
        <source>%1 settings differ from the printer's defaults.</source>
        <translation>%1 Einstellungen weichen von den Voreinstellungen des Druckers ab.</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::PanelDialog</name>
    <message>
        <source>This printer has no settings for these panels.</source>
        <translation>Dieser Drucker hat keine Einstellungen für diese Karten.</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::PanelPage</name>
    <message>
        <source>This printer does not adjust: %1.</source>
        <translation>Dieser Drucker stellt nicht ein: %1.</translation>
    </message>
    <message>
        <source>The numbers have no effect while the filter is off.</source>
        <translation>Die Zahlen wirken nicht, solange der Filter aus ist.</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::PpdDialog</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Printer Settings</source>
        <translation>Druckereinstellungen</translation>
    </message>
    <message>
        <source>Printer Settings for %1</source>
        <translation>Druckereinstellungen für %1</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Drucker:</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>Dokument:</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::PresetRow</name>
    <message>
        <source>Preset:</source>
        <translation>Vorgabe:</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Vorgabe</translation>
    </message>
    <message>
        <source>Keep these settings, or go back to the printer's</source>
        <translation>Diese Einstellungen behalten oder zu denen des Druckers zurückkehren</translation>
    </message>
    <message>
        <source>Preset menu</source>
        <translation>Menü der Vorgaben</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (geändert)</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Speichern unter …</translation>
    </message>
    <message>
        <source>Save “%1”</source>
        <translation>„%1“ speichern</translation>
    </message>
    <message>
        <source>Save as My Settings</source>
        <translation>Als meine Einstellungen speichern</translation>
    </message>
    <message>
        <source>Reset to the Printer's Defaults</source>
        <translation>Auf die Voreinstellungen des Druckers zurücksetzen</translation>
    </message>
    <message>
        <source>Delete “%1”…</source>
        <translation>„%1“ löschen …</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Vorgabe speichern</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>A preset's name has letters, digits and marks other than / and #.</source>
        <translation>Der Name einer Vorgabe besteht aus Buchstaben, Ziffern und Zeichen außer / und #.</translation>
    </message>
    <message>
        <source>Replace the preset “%1”?</source>
        <translation>Die Vorgabe „%1“ ersetzen?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Delete the preset “%1”?</source>
        <translation>Die Vorgabe „%1“ löschen?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>My settings</source>
        <translation>Meine Einstellungen</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::Printer</name>
    <message>
        <source>Asking the printer…</source>
        <translation>Der Drucker wird gefragt…</translation>
    </message>
    <message>
        <source>The printer %1 has got another PPD on its server since this dialog read it.</source>
        <translation>Der Drucker %1 hat auf seinem Server eine andere PPD bekommen, seit dieser Dialog sie gelesen hat.</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::QueueDialog</name>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>%1 drucken</translation>
    </message>
    <message>
        <source>Print %1 Documents</source>
        <translation>%1 Dokumente drucken</translation>
    </message>
    <message>
        <source>&amp;Print Anyway</source>
        <translation>&amp;Trotzdem drucken</translation>
    </message>
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
    <message>
        <source>Its settings are shown anew: look at them, and print again.</source>
        <translation>Seine Einstellungen werden neu gezeigt: Sehen Sie sie an und drucken Sie erneut.</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::SettingsDialog</name>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Printer Settings</source>
        <translation>Druckereinstellungen</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Drucker:</translation>
    </message>
    <message>
        <source>Its settings are shown anew: look at them, and save again.</source>
        <translation>Seine Einstellungen werden neu gezeigt: Sehen Sie sie an und speichern Sie erneut.</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::SummaryPage</name>
    <message>
        <source>Summary</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Other than the printer's defaults</source>
        <translation>Anders als die Voreinstellungen des Druckers</translation>
    </message>
    <message>
        <source>%1 (the job would print %2)</source>
        <translation>%1 (der Auftrag würde %2 drucken)</translation>
    </message>
    <message>
        <source>&lt;p&gt;All that is set on the other tabs. What is other than the printer's defaults comes first.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Alles, was auf den anderen Karten eingestellt ist. Zuerst steht, was von den Voreinstellungen des Druckers abweicht.&lt;/p&gt;</translation>
    </message>
</context>
</TS>
