<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- Machine-made: nobody who speaks the language has read these yet. -->
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>kwopde::app</name>
    <message>
        <source>Choose What to Print</source>
        <translation>اختر ما تريد طباعته</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::Notices</name>
    <message>
        <source>The job would print %1.</source>
        <translation>ستُطبع المهمة بالقيمة %1.</translation>
    </message>
    <message>
        <source>Changed %1 from %2 to %3, to go with %4: %5.</source>
        <translation>جرى تغيير %1 من %2 إلى %3 ليتوافق مع %4: %5.</translation>
    </message>
    <message>
        <source>%1 cannot be %2 together with %3.</source>
        <translation>لا يمكن ضبط %1 على %2 مع %3.</translation>
    </message>
    <message>
        <source>%1 cannot be %2: this printer takes %3 to %4.</source>
        <translation>لا يمكن ضبط %1 على %2: تقبل هذه الطابعة من %3 إلى %4.</translation>
    </message>
    <message>
        <source>%1 cannot be %2: this printer has no such choice.</source>
        <translation>لا يمكن ضبط %1 على %2: ليس لهذه الطابعة هذا الخيار.</translation>
    </message>
    <message>
        <source>This printer cannot do these together: %1.</source>
        <translation>لا يمكن لهذه الطابعة الجمع بين ما يلي: %1.</translation>
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
        <translation>غير متوفّر</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>من %1 إلى %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1; %2 changes nothing</source>
        <translation>%1؛ القيمة %2 لا تغيّر شيئًا</translation>
    </message>
    <message>
        <source>%1; %2 is the printer's default</source>
        <translation>%1؛ القيمة الافتراضية للطابعة %2</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::Page</name>
    <message>
        <source>Undo</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>Reset Page</source>
        <translation>أعد ضبط اللسان</translation>
    </message>
    <message>
        <source>One setting differs from the printer's defaults.</source>
        <translation>يختلف إعداد واحد عن افتراضيات الطابعة.</translation>
    </message>
    <message>
        <source>%1 settings differ from the printer's defaults.</source>
        <translation>عدد الإعدادات المختلفة عن افتراضيات الطابعة: %1.</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::PanelDialog</name>
    <message>
        <source>This printer has no settings for these panels.</source>
        <translation>ليس لهذه الطابعة إعدادات في هذه الألسنة.</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::PanelPage</name>
    <message>
        <source>This printer does not adjust: %1.</source>
        <translation>لا تضبط هذه الطابعة: %1.</translation>
    </message>
    <message>
        <source>The numbers have no effect while the filter is off.</source>
        <translation>لا أثر للأرقام ما دام المرشّح معطّلًا.</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::PpdDialog</name>
    <message>
        <source>OK</source>
        <translation>حسنًا</translation>
    </message>
    <message>
        <source>Printer Settings</source>
        <translation>إعدادات الطابعة</translation>
    </message>
    <message>
        <source>Printer Settings for %1</source>
        <translation>إعدادات الطابعة للمستند %1</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>الطابعة:</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>المستند:</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::PresetRow</name>
    <message>
        <source>Preset:</source>
        <translation>الإعداد المسبق:</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>الإعداد المسبق</translation>
    </message>
    <message>
        <source>Keep these settings, or go back to the printer's</source>
        <translation>احفظ هذه الإعدادات أو عُد إلى إعدادات الطابعة</translation>
    </message>
    <message>
        <source>Preset menu</source>
        <translation>قائمة الإعدادات المسبقة</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (معدّل)</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>احفظ باسم…</translation>
    </message>
    <message>
        <source>Save “%1”</source>
        <translation>احفظ «%1»</translation>
    </message>
    <message>
        <source>Save as My Settings</source>
        <translation>احفظ كإعداداتي</translation>
    </message>
    <message>
        <source>Reset to the Printer's Defaults</source>
        <translation>استعد افتراضيات الطابعة</translation>
    </message>
    <message>
        <source>Delete “%1”…</source>
        <translation>احذف «%1»…</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>حفظ الإعداد المسبق</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>الاسم:</translation>
    </message>
    <message>
        <source>A preset's name has letters, digits and marks other than / and #.</source>
        <translation>يتكوّن اسم الإعداد المسبق من حروف وأرقام ورموز ما عدا / و #.</translation>
    </message>
    <message>
        <source>Replace the preset “%1”?</source>
        <translation>أتريد استبدال الإعداد المسبق «%1»؟</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>استبدل</translation>
    </message>
    <message>
        <source>Delete the preset “%1”?</source>
        <translation>أتريد حذف الإعداد المسبق «%1»؟</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>احذف</translation>
    </message>
    <message>
        <source>My settings</source>
        <translation>إعداداتي</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::Printer</name>
    <message>
        <source>Asking the printer…</source>
        <translation>جارٍ سؤال الطابعة…</translation>
    </message>
    <message>
        <source>The printer %1 has got another PPD on its server since this dialog read it.</source>
        <translation>تغيّر ملف PPD للطابعة %1 على خادومها منذ أن قرأه مربّع الحوار هذا.</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::QueueDialog</name>
    <message>
        <source>Print</source>
        <translation>طباعة</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>طباعة %1</translation>
    </message>
    <message>
        <source>Print %1 Documents</source>
        <translation>طباعة المستندات (%1)</translation>
    </message>
    <message>
        <source>&amp;Print Anyway</source>
        <translation>اطبع على أيّ حال</translation>
    </message>
    <message>
        <source>Sending to the printer…</source>
        <translation>يجري الإرسال إلى الطابعة…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ألغِ</translation>
    </message>
    <message>
        <source>Printing failed</source>
        <translation>فشلت الطباعة</translation>
    </message>
    <message>
        <source>Its settings are shown anew: look at them, and print again.</source>
        <translation>أُعيد عرض إعداداتها: راجعها ثم اطبع مجدّدًا.</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::SettingsDialog</name>
    <message>
        <source>&amp;Save</source>
        <translation>احفظ</translation>
    </message>
    <message>
        <source>Printer Settings</source>
        <translation>إعدادات الطابعة</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>الطابعة:</translation>
    </message>
    <message>
        <source>Its settings are shown anew: look at them, and save again.</source>
        <translation>أُعيد عرض إعداداتها: راجعها ثم احفظ مجدّدًا.</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::SummaryPage</name>
    <message>
        <source>Summary</source>
        <translation>الملخّص</translation>
    </message>
    <message>
        <source>Other than the printer's defaults</source>
        <translation>المختلف عن افتراضيات الطابعة</translation>
    </message>
    <message>
        <source>%1 (the job would print %2)</source>
        <translation>%1 (ستُطبع المهمة بالقيمة %2)</translation>
    </message>
    <message>
        <source>&lt;p&gt;All that is set on the other tabs. What is other than the printer's defaults comes first.&lt;/p&gt;</source>
        <translation>&lt;p&gt;كلّ ما ضُبط في الألسنة الأخرى، ويأتي أولًا ما يختلف عن افتراضيات الطابعة.&lt;/p&gt;</translation>
    </message>
</context>
</TS>
