<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- Machine-made: nobody who speaks the language has read these yet. -->
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Bundle</name>
    <message>
        <source>MediaPanelName</source>
        <translation>الوسائط</translation>
    </message>
    <message>
        <source>ColorPanelName</source>
        <translation>اللون</translation>
    </message>
    <message>
        <source>SharpenPanelName</source>
        <translation>الحدّة</translation>
    </message>
</context>
<context>
    <name>ColorPDE</name>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Color mode&lt;/b&gt; takes effect at once.&lt;/p&gt;&lt;p&gt;The sliders adjust the image, and their numbers can be typed. A mark shows where the image stays as it is; a double click goes there. They take effect when you leave the tab or print.&lt;/p&gt;</source>
        <translation>&lt;p&gt;يسري &lt;b&gt;الوضع اللوني&lt;/b&gt; فورًا.&lt;/p&gt;&lt;p&gt;تضبط المنزلقات الصورة، ويمكن كتابة أرقامها. تُظهر علامة الموضع الذي تبقى عنده الصورة كما هي، والنقر المزدوج ينتقل إليه. تسري عند مغادرة اللسان أو الطباعة.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Color &amp;mode:</source>
        <translation>الوضع اللوني:</translation>
    </message>
    <message>
        <source>What the printer makes of the colors</source>
        <translation>كيف تتعامل الطابعة مع الألوان</translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation>الوضع اللوني</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>السطوع:</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>السطوع</translation>
    </message>
    <message>
        <source>Brightness as a number</source>
        <translation>قيمة السطوع</translation>
    </message>
    <message>
        <source>&amp;Contrast:</source>
        <translation>التباين:</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>التباين</translation>
    </message>
    <message>
        <source>Contrast as a number</source>
        <translation>قيمة التباين</translation>
    </message>
    <message>
        <source>Sa&amp;turation:</source>
        <translation>التشبّع:</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>التشبّع</translation>
    </message>
    <message>
        <source>Saturation as a number</source>
        <translation>قيمة التشبّع</translation>
    </message>
    <message>
        <source>G&amp;amma:</source>
        <translation>غاما:</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>غاما</translation>
    </message>
    <message>
        <source>Gamma as a number</source>
        <translation>قيمة غاما</translation>
    </message>
    <message>
        <source>Re&amp;d:</source>
        <translation>الأحمر:</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>الأحمر</translation>
    </message>
    <message>
        <source>Red as a number</source>
        <translation>قيمة الأحمر</translation>
    </message>
    <message>
        <source>&amp;Green:</source>
        <translation>الأخضر:</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>الأخضر</translation>
    </message>
    <message>
        <source>Green as a number</source>
        <translation>قيمة الأخضر</translation>
    </message>
    <message>
        <source>B&amp;lue:</source>
        <translation>الأزرق:</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>الأزرق</translation>
    </message>
    <message>
        <source>Blue as a number</source>
        <translation>قيمة الأزرق</translation>
    </message>
</context>
<context>
    <name>Media7032PDE</name>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Print quality&lt;/b&gt; and &lt;b&gt;print finish&lt;/b&gt; choose how the printer lays down color and what the surface looks like.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Matte level&lt;/b&gt; and &lt;b&gt;dust removal&lt;/b&gt; are features of this printer model.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Rotate&lt;/b&gt; and &lt;b&gt;mirror&lt;/b&gt; turn and flip the image. &lt;b&gt;Page scale&lt;/b&gt; is the size of the printed page in percent; 100 % is its true size.&lt;/p&gt;&lt;p&gt;Menus take effect at once; the page scale when you leave the tab or print.&lt;/p&gt;</source>
        <translation>&lt;p&gt;تحدّد &lt;b&gt;جودة الطباعة&lt;/b&gt; و&lt;b&gt;سطح الطباعة&lt;/b&gt; كيف تضع الطابعة الألوان وكيف يبدو السطح.&lt;/p&gt;&lt;p&gt;&lt;b&gt;درجة عدم اللمعان&lt;/b&gt; و&lt;b&gt;إزالة الغبار&lt;/b&gt; ميزتان في طراز الطابعة هذا.&lt;/p&gt;&lt;p&gt;يغيّر &lt;b&gt;التدوير&lt;/b&gt; و&lt;b&gt;العكس&lt;/b&gt; اتجاه الصورة. &lt;b&gt;مقياس الصفحة&lt;/b&gt; هو حجم الصفحة المطبوعة بالنسبة المئوية، و100% هو حجمها الحقيقي.&lt;/p&gt;&lt;p&gt;تسري القوائم فورًا، ويسري مقياس الصفحة عند مغادرة اللسان أو الطباعة.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Print &amp;quality:</source>
        <translation>جودة الطباعة:</translation>
    </message>
    <message>
        <source>How fine the printer prints; finer takes longer</source>
        <translation>دقّة الطباعة؛ كلّما زادت استغرقت وقتًا أطول</translation>
    </message>
    <message>
        <source>Print quality</source>
        <translation>جودة الطباعة</translation>
    </message>
    <message>
        <source>Print f&amp;inish:</source>
        <translation>سطح الطباعة:</translation>
    </message>
    <message>
        <source>Surface of the finished print</source>
        <translation>سطح المطبوعة النهائية</translation>
    </message>
    <message>
        <source>Print finish</source>
        <translation>سطح الطباعة</translation>
    </message>
    <message>
        <source>M&amp;atte level:</source>
        <translation>درجة عدم اللمعان:</translation>
    </message>
    <message>
        <source>How matte a matte finish is</source>
        <translation>مدى عدم لمعان السطح غير اللامع</translation>
    </message>
    <message>
        <source>Matte level</source>
        <translation>درجة عدم اللمعان</translation>
    </message>
    <message>
        <source>&amp;Dust removal:</source>
        <translation>إزالة الغبار:</translation>
    </message>
    <message>
        <source>Cleaning of the paper before printing</source>
        <translation>تنظيف الورق قبل الطباعة</translation>
    </message>
    <message>
        <source>Dust removal</source>
        <translation>إزالة الغبار</translation>
    </message>
    <message>
        <source>Ro&amp;tate image:</source>
        <translation>تدوير الصورة:</translation>
    </message>
    <message>
        <source>Turns the image on the page</source>
        <translation>يدوّر الصورة على الصفحة</translation>
    </message>
    <message>
        <source>Rotate image</source>
        <translation>تدوير الصورة</translation>
    </message>
    <message>
        <source>&amp;Mirror image:</source>
        <translation>عكس الصورة:</translation>
    </message>
    <message>
        <source>Flips the image</source>
        <translation>يعكس الصورة</translation>
    </message>
    <message>
        <source>Mirror image</source>
        <translation>عكس الصورة</translation>
    </message>
    <message>
        <source>Pa&amp;ge scale:</source>
        <translation>مقياس الصفحة:</translation>
    </message>
    <message>
        <source>Size of the printed page</source>
        <translation>حجم الصفحة المطبوعة</translation>
    </message>
    <message>
        <source>Page scale</source>
        <translation>مقياس الصفحة</translation>
    </message>
</context>
<context>
    <name>MediaPDE</name>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Print quality&lt;/b&gt; and &lt;b&gt;print finish&lt;/b&gt; choose how the printer lays down color and what the surface looks like.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Rotate&lt;/b&gt; and &lt;b&gt;mirror&lt;/b&gt; turn and flip the image. &lt;b&gt;Page scale&lt;/b&gt; is the size of the printed page in percent; 100 % is its true size.&lt;/p&gt;&lt;p&gt;Menus take effect at once; the page scale when you leave the tab or print.&lt;/p&gt;</source>
        <translation>&lt;p&gt;تحدّد &lt;b&gt;جودة الطباعة&lt;/b&gt; و&lt;b&gt;سطح الطباعة&lt;/b&gt; كيف تضع الطابعة الألوان وكيف يبدو السطح.&lt;/p&gt;&lt;p&gt;يغيّر &lt;b&gt;التدوير&lt;/b&gt; و&lt;b&gt;العكس&lt;/b&gt; اتجاه الصورة. &lt;b&gt;مقياس الصفحة&lt;/b&gt; هو حجم الصفحة المطبوعة بالنسبة المئوية، و100% هو حجمها الحقيقي.&lt;/p&gt;&lt;p&gt;تسري القوائم فورًا، ويسري مقياس الصفحة عند مغادرة اللسان أو الطباعة.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Print &amp;quality:</source>
        <translation>جودة الطباعة:</translation>
    </message>
    <message>
        <source>How fine the printer prints; finer takes longer</source>
        <translation>دقّة الطباعة؛ كلّما زادت استغرقت وقتًا أطول</translation>
    </message>
    <message>
        <source>Print quality</source>
        <translation>جودة الطباعة</translation>
    </message>
    <message>
        <source>Print f&amp;inish:</source>
        <translation>سطح الطباعة:</translation>
    </message>
    <message>
        <source>Surface of the finished print</source>
        <translation>سطح المطبوعة النهائية</translation>
    </message>
    <message>
        <source>Print finish</source>
        <translation>سطح الطباعة</translation>
    </message>
    <message>
        <source>Ro&amp;tate image:</source>
        <translation>تدوير الصورة:</translation>
    </message>
    <message>
        <source>Turns the image on the page</source>
        <translation>يدوّر الصورة على الصفحة</translation>
    </message>
    <message>
        <source>Rotate image</source>
        <translation>تدوير الصورة</translation>
    </message>
    <message>
        <source>&amp;Mirror image:</source>
        <translation>عكس الصورة:</translation>
    </message>
    <message>
        <source>Flips the image</source>
        <translation>يعكس الصورة</translation>
    </message>
    <message>
        <source>Mirror image</source>
        <translation>عكس الصورة</translation>
    </message>
    <message>
        <source>Pa&amp;ge scale:</source>
        <translation>مقياس الصفحة:</translation>
    </message>
    <message>
        <source>Size of the printed page</source>
        <translation>حجم الصفحة المطبوعة</translation>
    </message>
    <message>
        <source>Page scale</source>
        <translation>مقياس الصفحة</translation>
    </message>
</context>
<context>
    <name>SharpenPDE</name>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Sharpen filter&lt;/b&gt; switches sharpening on or off, at once.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Amount&lt;/b&gt; is how strongly edges are sharpened, &lt;b&gt;radius&lt;/b&gt; how wide an edge is taken to be, and &lt;b&gt;threshold&lt;/b&gt; how much contrast counts as an edge. They take effect when you leave the tab or print.&lt;/p&gt;</source>
        <translation>&lt;p&gt;يشغّل &lt;b&gt;مرشّح الحدّة&lt;/b&gt; زيادة الحدّة أو يوقفها فورًا.&lt;/p&gt;&lt;p&gt;&lt;b&gt;المقدار&lt;/b&gt; هو شدّة زيادة حدّة الحواف، و&lt;b&gt;نصف القطر&lt;/b&gt; هو العرض المفترض للحافة، و&lt;b&gt;العتبة&lt;/b&gt; هي مقدار التباين الذي يُعدّ حافة. تسري عند مغادرة اللسان أو الطباعة.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Sharpen f&amp;ilter:</source>
        <translation>مرشّح الحدّة:</translation>
    </message>
    <message>
        <source>Whether the printer sharpens the image</source>
        <translation>هل تزيد الطابعة حدّة الصورة</translation>
    </message>
    <message>
        <source>Sharpen filter</source>
        <translation>مرشّح الحدّة</translation>
    </message>
    <message>
        <source>&amp;Amount:</source>
        <translation>المقدار:</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>المقدار</translation>
    </message>
    <message>
        <source>Amount as a number</source>
        <translation>قيمة المقدار</translation>
    </message>
    <message>
        <source>Ra&amp;dius:</source>
        <translation>نصف القطر:</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>نصف القطر</translation>
    </message>
    <message>
        <source>Radius as a number</source>
        <translation>قيمة نصف القطر</translation>
    </message>
    <message>
        <source>&amp;Threshold (levels):</source>
        <translation>العتبة (مستويات):</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>العتبة</translation>
    </message>
    <message>
        <source>Threshold as a number</source>
        <translation>قيمة العتبة</translation>
    </message>
</context>
</TS>
