<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- Machine-made: nobody who speaks the language has read these yet. -->
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>kwopde::app</name>
    <message>
        <source>Choose What to Print</source>
        <translation>Choisir ce qu'il faut imprimer</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::Notices</name>
    <message>
        <source>The job would print %1.</source>
        <translation>La tâche serait imprimée avec %1.</translation>
    </message>
    <message>
        <source>Changed %1 from %2 to %3, to go with %4: %5.</source>
        <translation>%1 passe de %2 à %3, pour s'accorder avec %4 : %5.</translation>
    </message>
    <message>
        <source>%1 cannot be %2 together with %3.</source>
        <translation>%1 ne peut pas être %2 avec %3.</translation>
    </message>
    <message>
        <source>%1 cannot be %2: this printer takes %3 to %4.</source>
        <translation>%1 ne peut pas être %2 : cette imprimante accepte de %3 à %4.</translation>
    </message>
    <message>
        <source>%1 cannot be %2: this printer has no such choice.</source>
        <translation>%1 ne peut pas être %2 : cette imprimante n'offre pas ce choix.</translation>
    </message>
    <message>
        <source>This printer cannot do these together: %1.</source>
        <translation>Cette imprimante ne peut pas combiner : %1.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::OptionRow</name>
    <message>
        <source>Not available</source>
        <translation>Non disponible</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>de %1 à %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>%1; %2 changes nothing</source>
        <translation>%1 ; %2 ne change rien</translation>
    </message>
    <message>
        <source>%1; %2 is the printer's default</source>
        <translation>%1 ; %2 est la valeur par défaut de l'imprimante</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::Page</name>
    <message>
        <source>Undo</source>
        <translation>Annuler la modification</translation>
    </message>
    <message>
        <source>Reset Page</source>
        <translation>Réinitialiser l'onglet</translation>
    </message>
    <message>
        <source>One setting differs from the printer's defaults.</source>
        <translation>Un paramètre diffère des valeurs par défaut de l'imprimante.</translation>
    </message>
    <message>
        <source>%1 settings differ from the printer's defaults.</source>
        <translation>%1 paramètres diffèrent des valeurs par défaut de l'imprimante.</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::PanelDialog</name>
    <message>
        <source>This printer has no settings for these panels.</source>
        <translation>Cette imprimante n'a aucun paramètre pour ces panneaux.</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::PanelPage</name>
    <message>
        <source>This printer does not adjust: %1.</source>
        <translation>Cette imprimante ne permet pas de régler : %1.</translation>
    </message>
    <message>
        <source>The numbers have no effect while the filter is off.</source>
        <translation>Les nombres sont sans effet tant que le filtre est désactivé.</translation>
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
        <translation>Paramètres de l'imprimante</translation>
    </message>
    <message>
        <source>Printer Settings for %1</source>
        <translation>Paramètres de l'imprimante pour %1</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Imprimante :</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>Document :</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::PresetRow</name>
    <message>
        <source>Preset:</source>
        <translation>Préréglage :</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Préréglage</translation>
    </message>
    <message>
        <source>Keep these settings, or go back to the printer's</source>
        <translation>Conserver ces paramètres ou revenir à ceux de l'imprimante</translation>
    </message>
    <message>
        <source>Preset menu</source>
        <translation>Menu des préréglages</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (modifié)</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Enregistrer sous…</translation>
    </message>
    <message>
        <source>Save “%1”</source>
        <translation>Enregistrer « %1 »</translation>
    </message>
    <message>
        <source>Save as My Settings</source>
        <translation>Enregistrer comme mes paramètres</translation>
    </message>
    <message>
        <source>Reset to the Printer's Defaults</source>
        <translation>Rétablir les valeurs par défaut de l'imprimante</translation>
    </message>
    <message>
        <source>Delete “%1”…</source>
        <translation>Supprimer « %1 »…</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Enregistrer le préréglage</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nom :</translation>
    </message>
    <message>
        <source>A preset's name has letters, digits and marks other than / and #.</source>
        <translation>Le nom d'un préréglage se compose de lettres, de chiffres et de signes autres que / et #.</translation>
    </message>
    <message>
        <source>Replace the preset “%1”?</source>
        <translation>Remplacer le préréglage « %1 » ?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Delete the preset “%1”?</source>
        <translation>Supprimer le préréglage « %1 » ?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>My settings</source>
        <translation>Mes paramètres</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::Printer</name>
    <message>
        <source>Asking the printer…</source>
        <translation>Interrogation de l'imprimante…</translation>
    </message>
    <message>
        <source>The printer %1 has got another PPD on its server since this dialog read it.</source>
        <translation>Le PPD de l'imprimante %1 a changé sur son serveur depuis que ce dialogue l'a lu.</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::QueueDialog</name>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>Imprimer %1</translation>
    </message>
    <message>
        <source>Print %1 Documents</source>
        <translation>Imprimer %1 documents</translation>
    </message>
    <message>
        <source>&amp;Print Anyway</source>
        <translation>&amp;Imprimer quand même</translation>
    </message>
    <message>
        <source>Sending to the printer…</source>
        <translation>Envoi à l'imprimante…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Printing failed</source>
        <translation>Échec de l'impression</translation>
    </message>
    <message>
        <source>Its settings are shown anew: look at them, and print again.</source>
        <translation>Ses paramètres sont affichés de nouveau : vérifiez-les et relancez l'impression.</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::SettingsDialog</name>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Printer Settings</source>
        <translation>Paramètres de l'imprimante</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Imprimante :</translation>
    </message>
    <message>
        <source>Its settings are shown anew: look at them, and save again.</source>
        <translation>Ses paramètres sont affichés de nouveau : vérifiez-les et enregistrez à nouveau.</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::SummaryPage</name>
    <message>
        <source>Summary</source>
        <translation>Récapitulatif</translation>
    </message>
    <message>
        <source>Other than the printer's defaults</source>
        <translation>Autres que les valeurs par défaut de l'imprimante</translation>
    </message>
    <message>
        <source>%1 (the job would print %2)</source>
        <translation>%1 (la tâche serait imprimée avec %2)</translation>
    </message>
    <message>
        <source>&lt;p&gt;All that is set on the other tabs. What is other than the printer's defaults comes first.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Tout ce qui est réglé dans les autres onglets. Ce qui diffère des valeurs par défaut de l'imprimante vient en premier.&lt;/p&gt;</translation>
    </message>
</context>
</TS>
