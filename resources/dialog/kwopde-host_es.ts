<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- Machine-made: nobody who speaks the language has read these yet. -->
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>kwopde::app</name>
    <message>
        <source>Choose What to Print</source>
        <translation>Elegir qué imprimir</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::Notices</name>
    <message>
        <source>The job would print %1.</source>
        <translation>El trabajo se imprimiría con %1.</translation>
    </message>
    <message>
        <source>Changed %1 from %2 to %3, to go with %4: %5.</source>
        <translation>%1 ha pasado de %2 a %3 para concordar con %4: %5.</translation>
    </message>
    <message>
        <source>%1 cannot be %2 together with %3.</source>
        <translation>%1 no puede ser %2 junto con %3.</translation>
    </message>
    <message>
        <source>%1 cannot be %2: this printer takes %3 to %4.</source>
        <translation>%1 no puede ser %2: esta impresora admite de %3 a %4.</translation>
    </message>
    <message>
        <source>%1 cannot be %2: this printer has no such choice.</source>
        <translation>%1 no puede ser %2: esta impresora no ofrece esa opción.</translation>
    </message>
    <message>
        <source>This printer cannot do these together: %1.</source>
        <translation>Esta impresora no puede combinar: %1.</translation>
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
        <translation>No disponible</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>de %1 a %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1; %2 changes nothing</source>
        <translation>%1; %2 no cambia nada</translation>
    </message>
    <message>
        <source>%1; %2 is the printer's default</source>
        <translation>%1; %2 es el valor predeterminado de la impresora</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::Page</name>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Reset Page</source>
        <translation>Restablecer pestaña</translation>
    </message>
    <message>
        <source>One setting differs from the printer's defaults.</source>
        <translation>Un ajuste difiere de los valores predeterminados de la impresora.</translation>
    </message>
    <message>
        <source>%1 settings differ from the printer's defaults.</source>
        <translation>%1 ajustes difieren de los valores predeterminados de la impresora.</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::PanelDialog</name>
    <message>
        <source>This printer has no settings for these panels.</source>
        <translation>Esta impresora no tiene ajustes para estos paneles.</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::PanelPage</name>
    <message>
        <source>This printer does not adjust: %1.</source>
        <translation>Esta impresora no permite ajustar: %1.</translation>
    </message>
    <message>
        <source>The numbers have no effect while the filter is off.</source>
        <translation>Los números no tienen efecto mientras el filtro está desactivado.</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::PpdDialog</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Printer Settings</source>
        <translation>Ajustes de la impresora</translation>
    </message>
    <message>
        <source>Printer Settings for %1</source>
        <translation>Ajustes de la impresora para %1</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Impresora:</translation>
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
        <translation>Preajuste:</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Preajuste</translation>
    </message>
    <message>
        <source>Keep these settings, or go back to the printer's</source>
        <translation>Conservar estos ajustes o volver a los de la impresora</translation>
    </message>
    <message>
        <source>Preset menu</source>
        <translation>Menú de preajustes</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (con cambios)</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Guardar como…</translation>
    </message>
    <message>
        <source>Save “%1”</source>
        <translation>Guardar «%1»</translation>
    </message>
    <message>
        <source>Save as My Settings</source>
        <translation>Guardar como mis ajustes</translation>
    </message>
    <message>
        <source>Reset to the Printer's Defaults</source>
        <translation>Restablecer los valores predeterminados de la impresora</translation>
    </message>
    <message>
        <source>Delete “%1”…</source>
        <translation>Eliminar «%1»…</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Guardar preajuste</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>A preset's name has letters, digits and marks other than / and #.</source>
        <translation>El nombre de un preajuste se compone de letras, cifras y signos distintos de / y #.</translation>
    </message>
    <message>
        <source>Replace the preset “%1”?</source>
        <translation>¿Reemplazar el preajuste «%1»?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>Delete the preset “%1”?</source>
        <translation>¿Eliminar el preajuste «%1»?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>My settings</source>
        <translation>Mis ajustes</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::Printer</name>
    <message>
        <source>Asking the printer…</source>
        <translation>Consultando la impresora…</translation>
    </message>
    <message>
        <source>The printer %1 has got another PPD on its server since this dialog read it.</source>
        <translation>El PPD de la impresora %1 ha cambiado en su servidor desde que este diálogo lo leyó.</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::QueueDialog</name>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>Imprimir %1</translation>
    </message>
    <message>
        <source>Print %1 Documents</source>
        <translation>Imprimir %1 documentos</translation>
    </message>
    <message>
        <source>&amp;Print Anyway</source>
        <translation>&amp;Imprimir de todos modos</translation>
    </message>
    <message>
        <source>Sending to the printer…</source>
        <translation>Enviando a la impresora…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Printing failed</source>
        <translation>Error al imprimir</translation>
    </message>
    <message>
        <source>Its settings are shown anew: look at them, and print again.</source>
        <translation>Sus ajustes se muestran de nuevo: revíselos y vuelva a imprimir.</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::SettingsDialog</name>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Printer Settings</source>
        <translation>Ajustes de la impresora</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Impresora:</translation>
    </message>
    <message>
        <source>Its settings are shown anew: look at them, and save again.</source>
        <translation>Sus ajustes se muestran de nuevo: revíselos y vuelva a guardar.</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::SummaryPage</name>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Other than the printer's defaults</source>
        <translation>Distintos de los predeterminados de la impresora</translation>
    </message>
    <message>
        <source>%1 (the job would print %2)</source>
        <translation>%1 (el trabajo se imprimiría con %2)</translation>
    </message>
    <message>
        <source>&lt;p&gt;All that is set on the other tabs. What is other than the printer's defaults comes first.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Todo lo que se ha ajustado en las otras pestañas. Primero va lo que difiere de los valores predeterminados de la impresora.&lt;/p&gt;</translation>
    </message>
</context>
</TS>
