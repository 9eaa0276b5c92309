<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Bundle</name>
    <message>
        <source>MediaPanelName</source>
        <translation>Medium</translation>
    </message>
    <message>
        <source>ColorPanelName</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>SharpenPanelName</source>
        <translation>Schärfe</translation>
    </message>
</context>
<context>
    <name>ColorPDE</name>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Color mode&lt;/b&gt; takes effect at once.&lt;/p&gt;&lt;p&gt;The sliders adjust the image, and their numbers can be typed. A mark shows where the image stays as it is; a double click goes there. They take effect when you leave the tab or print.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Der &lt;b&gt;Farbmodus&lt;/b&gt; gilt sofort.&lt;/p&gt;&lt;p&gt;Die Regler passen das Bild an; ihre Zahlen lassen sich auch eintippen. Eine Marke zeigt, wo das Bild bleibt, wie es ist; ein Doppelklick geht dorthin. Sie gelten, wenn Sie die Karte verlassen oder drucken.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Color &amp;mode:</source>
        <translation>Farb&amp;modus:</translation>
    </message>
    <message>
        <source>What the printer makes of the colors</source>
        <translation>Was der Drucker aus den Farben macht</translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation>Farbmodus</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>&amp;Helligkeit:</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Brightness as a number</source>
        <translation>Helligkeit als Zahl</translation>
    </message>
    <message>
        <source>&amp;Contrast:</source>
        <translation>&amp;Kontrast:</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Contrast as a number</source>
        <translation>Kontrast als Zahl</translation>
    </message>
    <message>
        <source>Sa&amp;turation:</source>
        <translation>Sä&amp;ttigung:</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Saturation as a number</source>
        <translation>Sättigung als Zahl</translation>
    </message>
    <message>
        <source>G&amp;amma:</source>
        <translation>G&amp;amma:</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Gamma as a number</source>
        <translation>Gamma als Zahl</translation>
    </message>
    <message>
        <source>Re&amp;d:</source>
        <translation>&amp;Rot:</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Red as a number</source>
        <translation>Rot als Zahl</translation>
    </message>
    <message>
        <source>&amp;Green:</source>
        <translation>&amp;Grün:</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Green as a number</source>
        <translation>Grün als Zahl</translation>
    </message>
    <message>
        <source>B&amp;lue:</source>
        <translation>&amp;Blau:</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Blue as a number</source>
        <translation>Blau als Zahl</translation>
    </message>
</context>
<context>
    <name>Media7032PDE</name>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Print quality&lt;/b&gt; and &lt;b&gt;print finish&lt;/b&gt; choose how the printer lays down color and what the surface looks like.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Matte level&lt;/b&gt; and &lt;b&gt;dust removal&lt;/b&gt; are features of this printer model.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Rotate&lt;/b&gt; and &lt;b&gt;mirror&lt;/b&gt; turn and flip the image. &lt;b&gt;Page scale&lt;/b&gt; is the size of the printed page in percent; 100 % is its true size.&lt;/p&gt;&lt;p&gt;Menus take effect at once; the page scale when you leave the tab or print.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Druckqualität&lt;/b&gt; und &lt;b&gt;Oberfläche&lt;/b&gt; bestimmen, wie der Drucker die Farbe aufträgt und wie die Oberfläche aussieht.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Mattgrad&lt;/b&gt; und &lt;b&gt;Entstaubung&lt;/b&gt; gibt es nur bei diesem Druckermodell.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Drehen&lt;/b&gt; und &lt;b&gt;Spiegeln&lt;/b&gt; wenden das Bild. Die &lt;b&gt;Skalierung&lt;/b&gt; ist die Größe der gedruckten Seite in Prozent; 100 % ist die wahre Größe.&lt;/p&gt;&lt;p&gt;Menüs gelten sofort; die Skalierung, wenn Sie die Karte verlassen oder drucken.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Print &amp;quality:</source>
        <translation>Druck&amp;qualität:</translation>
    </message>
    <message>
        <source>How fine the printer prints; finer takes longer</source>
        <translation>Wie fein der Drucker druckt; feiner dauert länger</translation>
    </message>
    <message>
        <source>Print quality</source>
        <translation>Druckqualität</translation>
    </message>
    <message>
        <source>Print f&amp;inish:</source>
        <translation>Ober&amp;fläche:</translation>
    </message>
    <message>
        <source>Surface of the finished print</source>
        <translation>Oberfläche des fertigen Drucks</translation>
    </message>
    <message>
        <source>Print finish</source>
        <translation>Oberfläche</translation>
    </message>
    <message>
        <source>M&amp;atte level:</source>
        <translation>M&amp;attgrad:</translation>
    </message>
    <message>
        <source>How matte a matte finish is</source>
        <translation>Wie matt eine matte Oberfläche ist</translation>
    </message>
    <message>
        <source>Matte level</source>
        <translation>Mattgrad</translation>
    </message>
    <message>
        <source>&amp;Dust removal:</source>
        <translation>En&amp;tstaubung:</translation>
    </message>
    <message>
        <source>Cleaning of the paper before printing</source>
        <translation>Reinigung des Papiers vor dem Druck</translation>
    </message>
    <message>
        <source>Dust removal</source>
        <translation>Entstaubung</translation>
    </message>
    <message>
        <source>Ro&amp;tate image:</source>
        <translation>Bild dre&amp;hen:</translation>
    </message>
    <message>
        <source>Turns the image on the page</source>
        <translation>Dreht das Bild auf der Seite</translation>
    </message>
    <message>
        <source>Rotate image</source>
        <translation>Bild drehen</translation>
    </message>
    <message>
        <source>&amp;Mirror image:</source>
        <translation>Bild s&amp;piegeln:</translation>
    </message>
    <message>
        <source>Flips the image</source>
        <translation>Spiegelt das Bild</translation>
    </message>
    <message>
        <source>Mirror image</source>
        <translation>Bild spiegeln</translation>
    </message>
    <message>
        <source>Pa&amp;ge scale:</source>
        <translation>S&amp;kalierung:</translation>
    </message>
    <message>
        <source>Size of the printed page</source>
        <translation>Größe der gedruckten Seite</translation>
    </message>
    <message>
        <source>Page scale</source>
        <translation>Skalierung</translation>
    </message>
</context>
<context>
    <name>MediaPDE</name>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Print quality&lt;/b&gt; and &lt;b&gt;print finish&lt;/b&gt; choose how the printer lays down color and what the surface looks like.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Rotate&lt;/b&gt; and &lt;b&gt;mirror&lt;/b&gt; turn and flip the image. &lt;b&gt;Page scale&lt;/b&gt; is the size of the printed page in percent; 100 % is its true size.&lt;/p&gt;&lt;p&gt;Menus take effect at once; the page scale when you leave the tab or print.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Druckqualität&lt;/b&gt; und &lt;b&gt;Oberfläche&lt;/b&gt; bestimmen, wie der Drucker die Farbe aufträgt und wie die Oberfläche aussieht.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Drehen&lt;/b&gt; und &lt;b&gt;Spiegeln&lt;/b&gt; wenden das Bild. Die &lt;b&gt;Skalierung&lt;/b&gt; ist die Größe der gedruckten Seite in Prozent; 100 % ist die wahre Größe.&lt;/p&gt;&lt;p&gt;Menüs gelten sofort; die Skalierung, wenn Sie die Karte verlassen oder drucken.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Print &amp;quality:</source>
        <translation>Druck&amp;qualität:</translation>
    </message>
    <message>
        <source>How fine the printer prints; finer takes longer</source>
        <translation>Wie fein der Drucker druckt; feiner dauert länger</translation>
    </message>
    <message>
        <source>Print quality</source>
        <translation>Druckqualität</translation>
    </message>
    <message>
        <source>Print f&amp;inish:</source>
        <translation>Ober&amp;fläche:</translation>
    </message>
    <message>
        <source>Surface of the finished print</source>
        <translation>Oberfläche des fertigen Drucks</translation>
    </message>
    <message>
        <source>Print finish</source>
        <translation>Oberfläche</translation>
    </message>
    <message>
        <source>Ro&amp;tate image:</source>
        <translation>Bild dre&amp;hen:</translation>
    </message>
    <message>
        <source>Turns the image on the page</source>
        <translation>Dreht das Bild auf der Seite</translation>
    </message>
    <message>
        <source>Rotate image</source>
        <translation>Bild drehen</translation>
    </message>
    <message>
        <source>&amp;Mirror image:</source>
        <translation>Bild s&amp;piegeln:</translation>
    </message>
    <message>
        <source>Flips the image</source>
        <translation>Spiegelt das Bild</translation>
    </message>
    <message>
        <source>Mirror image</source>
        <translation>Bild spiegeln</translation>
    </message>
    <message>
        <source>Pa&amp;ge scale:</source>
        <translation>S&amp;kalierung:</translation>
    </message>
    <message>
        <source>Size of the printed page</source>
        <translation>Größe der gedruckten Seite</translation>
    </message>
    <message>
        <source>Page scale</source>
        <translation>Skalierung</translation>
    </message>
</context>
<context>
    <name>SharpenPDE</name>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Sharpen filter&lt;/b&gt; switches sharpening on or off, at once.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Amount&lt;/b&gt; is how strongly edges are sharpened, &lt;b&gt;radius&lt;/b&gt; how wide an edge is taken to be, and &lt;b&gt;threshold&lt;/b&gt; how much contrast counts as an edge. They take effect when you leave the tab or print.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Der &lt;b&gt;Scharfzeichnungsfilter&lt;/b&gt; wird sofort ein- oder ausgeschaltet.&lt;/p&gt;&lt;p&gt;Die &lt;b&gt;Stärke&lt;/b&gt; sagt, wie kräftig Kanten geschärft werden, der &lt;b&gt;Radius&lt;/b&gt;, wie breit eine Kante ist, und der &lt;b&gt;Schwellwert&lt;/b&gt;, wie viel Kontrast als Kante gilt. Sie gelten, wenn Sie die Karte verlassen oder drucken.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Sharpen f&amp;ilter:</source>
        <translation>Scharfzeichnungs&amp;filter:</translation>
    </message>
    <message>
        <source>Whether the printer sharpens the image</source>
        <translation>Ob der Drucker das Bild scharfzeichnet</translation>
    </message>
    <message>
        <source>Sharpen filter</source>
        <translation>Scharfzeichnungsfilter</translation>
    </message>
    <message>
        <source>&amp;Amount:</source>
        <translation>Stär&amp;ke:</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Stärke</translation>
    </message>
    <message>
        <source>Amount as a number</source>
        <translation>Stärke als Zahl</translation>
    </message>
    <message>
        <source>Ra&amp;dius:</source>
        <translation>&amp;Radius:</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radius</translation>
    </message>
    <message>
        <source>Radius as a number</source>
        <translation>Radius als Zahl</translation>
    </message>
    <message>
        <source>&amp;Threshold (levels):</source>
        <translation>Sch&amp;wellwert (Stufen):</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Schwellwert</translation>
    </message>
    <message>
        <source>Threshold as a number</source>
        <translation>Schwellwert als Zahl</translation>
    </message>
</context>
</TS>
