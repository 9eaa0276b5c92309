<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- Machine-made: nobody who speaks the language has read these yet. -->
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>kwopde::app</name>
    <message>
        <source>Choose What to Print</source>
        <translation>Scegli cosa stampare</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::Notices</name>
    <message>
        <source>The job would print %1.</source>
        <translation>Il processo di stampa userebbe %1.</translation>
    </message>
    <message>
        <source>Changed %1 from %2 to %3, to go with %4: %5.</source>
        <translation>%1 passa da %2 a %3, per adattarsi a %4: %5.</translation>
    </message>
    <message>
        <source>%1 cannot be %2 together with %3.</source>
        <translation>%1 non può essere %2 insieme a %3.</translation>
    </message>
    <message>
        <source>%1 cannot be %2: this printer takes %3 to %4.</source>
        <translation>%1 non può essere %2: questa stampante accetta da %3 a %4.</translation>
    </message>
    <message>
        <source>%1 cannot be %2: this printer has no such choice.</source>
        <translation>%1 non può essere %2: questa stampante non offre questa scelta.</translation>
    </message>
    <message>
        <source>This printer cannot do these together: %1.</source>
        <translation>Questa stampante non può combinare: %1.</translation>
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
        <translation>Non disponibile</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>da %1 a %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1; %2 changes nothing</source>
        <translation>%1; %2 non cambia nulla</translation>
    </message>
    <message>
        <source>%1; %2 is the printer's default</source>
        <translation>%1; %2 è il valore predefinito della stampante</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::Page</name>
    <message>
        <source>Undo</source>
        <translation>Annulla modifica</translation>
    </message>
    <message>
        <source>Reset Page</source>
        <translation>Ripristina scheda</translation>
    </message>
    <message>
        <source>One setting differs from the printer's defaults.</source>
        <translation>Un'impostazione differisce dai valori predefiniti della stampante.</translation>
    </message>
    <message>
        <source>%1 settings differ from the printer's defaults.</source>
        <translation>%1 impostazioni differiscono dai valori predefiniti della stampante.</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::PanelDialog</name>
    <message>
        <source>This printer has no settings for these panels.</source>
        <translation>Questa stampante non ha impostazioni per questi pannelli.</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::PanelPage</name>
    <message>
        <source>This printer does not adjust: %1.</source>
        <translation>Questa stampante non permette di regolare: %1.</translation>
    </message>
    <message>
        <source>The numbers have no effect while the filter is off.</source>
        <translation>I numeri non hanno effetto finché il filtro è disattivato.</translation>
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
        <translation>Impostazioni della stampante</translation>
    </message>
    <message>
        <source>Printer Settings for %1</source>
        <translation>Impostazioni della stampante per %1</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Stampante:</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>Documento:</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::PresetRow</name>
    <message>
        <source>Preset:</source>
        <translation>Preimpostazione:</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Preimpostazione</translation>
    </message>
    <message>
        <source>Keep these settings, or go back to the printer's</source>
        <translation>Conserva queste impostazioni o torna a quelle della stampante</translation>
    </message>
    <message>
        <source>Preset menu</source>
        <translation>Menu delle preimpostazioni</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (con modifiche)</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Salva come…</translation>
    </message>
    <message>
        <source>Save “%1”</source>
        <translation>Salva «%1»</translation>
    </message>
    <message>
        <source>Save as My Settings</source>
        <translation>Salva come mie impostazioni</translation>
    </message>
    <message>
        <source>Reset to the Printer's Defaults</source>
        <translation>Ripristina i valori predefiniti della stampante</translation>
    </message>
    <message>
        <source>Delete “%1”…</source>
        <translation>Elimina «%1»…</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Salva preimpostazione</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>A preset's name has letters, digits and marks other than / and #.</source>
        <translation>Il nome di una preimpostazione è fatto di lettere, cifre e segni diversi da / e #.</translation>
    </message>
    <message>
        <source>Replace the preset “%1”?</source>
        <translation>Sostituire la preimpostazione «%1»?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Sostituisci</translation>
    </message>
    <message>
        <source>Delete the preset “%1”?</source>
        <translation>Eliminare la preimpostazione «%1»?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>My settings</source>
        <translation>Le mie impostazioni</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::Printer</name>
    <message>
        <source>Asking the printer…</source>
        <translation>Richiesta alla stampante…</translation>
    </message>
    <message>
        <source>The printer %1 has got another PPD on its server since this dialog read it.</source>
        <translation>Il PPD della stampante %1 è cambiato sul suo server da quando questa finestra lo ha letto.</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::QueueDialog</name>
    <message>
        <source>Print</source>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>Stampa %1</translation>
    </message>
    <message>
        <source>Print %1 Documents</source>
        <translation>Stampa %1 documenti</translation>
    </message>
    <message>
        <source>&amp;Print Anyway</source>
        <translation>&amp;Stampa comunque</translation>
    </message>
    <message>
        <source>Sending to the printer…</source>
        <translation>Invio alla stampante…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Printing failed</source>
        <translation>Stampa non riuscita</translation>
    </message>
    <message>
        <source>Its settings are shown anew: look at them, and print again.</source>
        <translation>Le sue impostazioni sono mostrate di nuovo: controllale e ripeti la stampa.</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::SettingsDialog</name>
    <message>
        <source>&amp;Save</source>
        <translation>Sal&amp;va</translation>
    </message>
    <message>
        <source>Printer Settings</source>
        <translation>Impostazioni della stampante</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Stampante:</translation>
    </message>
    <message>
        <source>Its settings are shown anew: look at them, and save again.</source>
        <translation>Le sue impostazioni sono mostrate di nuovo: controllale e salva di nuovo.</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::SummaryPage</name>
    <message>
        <source>Summary</source>
        <translation>Riepilogo</translation>
    </message>
    <message>
        <source>Other than the printer's defaults</source>
        <translation>Diverse dai valori predefiniti della stampante</translation>
    </message>
    <message>
        <source>%1 (the job would print %2)</source>
        <translation>%1 (il processo di stampa userebbe %2)</translation>
    </message>
    <message>
        <source>&lt;p&gt;All that is set on the other tabs. What is other than the printer's defaults comes first.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Tutto ciò che è impostato nelle altre schede. Per primo viene ciò che differisce dai valori predefiniti della stampante.&lt;/p&gt;</translation>
    </message>
</context>
</TS>
