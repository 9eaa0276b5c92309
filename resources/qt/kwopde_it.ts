<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- Machine-made: nobody who speaks the language has read these yet. -->
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Bundle</name>
    <message>
        <source>MediaPanelName</source>
        <translation>Supporto</translation>
    </message>
    <message>
        <source>ColorPanelName</source>
        <translation>Colore</translation>
    </message>
    <message>
        <source>SharpenPanelName</source>
        <translation>Nitidezza</translation>
    </message>
</context>
<context>
    <name>ColorPDE</name>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Color mode&lt;/b&gt; takes effect at once.&lt;/p&gt;&lt;p&gt;The sliders adjust the image, and their numbers can be typed. A mark shows where the image stays as it is; a double click goes there. They take effect when you leave the tab or print.&lt;/p&gt;</source>
        <translation>&lt;p&gt;La &lt;b&gt;modalità colore&lt;/b&gt; ha effetto subito.&lt;/p&gt;&lt;p&gt;I cursori regolano l'immagine; i loro numeri si possono anche digitare. Un segno mostra dove l'immagine resta com'è; un doppio clic vi porta il cursore. I cursori hanno effetto quando lasci la scheda o stampi.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Color &amp;mode:</source>
        <translation>&amp;Modalità colore:</translation>
    </message>
    <message>
        <source>What the printer makes of the colors</source>
        <translation>Che cosa fa la stampante dei colori</translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation>Modalità colore</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>&amp;Luminosità:</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosità</translation>
    </message>
    <message>
        <source>Brightness as a number</source>
        <translation>Luminosità in cifre</translation>
    </message>
    <message>
        <source>&amp;Contrast:</source>
        <translation>&amp;Contrasto:</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contrasto</translation>
    </message>
    <message>
        <source>Contrast as a number</source>
        <translation>Contrasto in cifre</translation>
    </message>
    <message>
        <source>Sa&amp;turation:</source>
        <translation>Sa&amp;turazione:</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturazione</translation>
    </message>
    <message>
        <source>Saturation as a number</source>
        <translation>Saturazione in cifre</translation>
    </message>
    <message>
        <source>G&amp;amma:</source>
        <translation>&amp;Gamma:</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Gamma as a number</source>
        <translation>Gamma in cifre</translation>
    </message>
    <message>
        <source>Re&amp;d:</source>
        <translation>Ro&amp;sso:</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rosso</translation>
    </message>
    <message>
        <source>Red as a number</source>
        <translation>Rosso in cifre</translation>
    </message>
    <message>
        <source>&amp;Green:</source>
        <translation>V&amp;erde:</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Green as a number</source>
        <translation>Verde in cifre</translation>
    </message>
    <message>
        <source>B&amp;lue:</source>
        <translation>&amp;Blu:</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blu</translation>
    </message>
    <message>
        <source>Blue as a number</source>
        <translation>Blu in cifre</translation>
    </message>
</context>
<context>
    <name>Media7032PDE</name>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Print quality&lt;/b&gt; and &lt;b&gt;print finish&lt;/b&gt; choose how the printer lays down color and what the surface looks like.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Matte level&lt;/b&gt; and &lt;b&gt;dust removal&lt;/b&gt; are features of this printer model.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Rotate&lt;/b&gt; and &lt;b&gt;mirror&lt;/b&gt; turn and flip the image. &lt;b&gt;Page scale&lt;/b&gt; is the size of the printed page in percent; 100 % is its true size.&lt;/p&gt;&lt;p&gt;Menus take effect at once; the page scale when you leave the tab or print.&lt;/p&gt;</source>
        <translation>&lt;p&gt;La &lt;b&gt;qualità di stampa&lt;/b&gt; e la &lt;b&gt;finitura&lt;/b&gt; determinano come la stampante stende il colore e che aspetto ha la superficie.&lt;/p&gt;&lt;p&gt;Il &lt;b&gt;livello opaco&lt;/b&gt; e la &lt;b&gt;rimozione polvere&lt;/b&gt; sono propri di questo modello di stampante.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Ruota&lt;/b&gt; e &lt;b&gt;specchia&lt;/b&gt; girano e riflettono l'immagine. La &lt;b&gt;scala pagina&lt;/b&gt; è la dimensione della pagina stampata in percentuale; 100 % è la dimensione reale.&lt;/p&gt;&lt;p&gt;I menu hanno effetto subito; la scala, quando lasci la scheda o stampi.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Print &amp;quality:</source>
        <translation>&amp;Qualità di stampa:</translation>
    </message>
    <message>
        <source>How fine the printer prints; finer takes longer</source>
        <translation>Finezza della stampa; più è fine, più tempo richiede</translation>
    </message>
    <message>
        <source>Print quality</source>
        <translation>Qualità di stampa</translation>
    </message>
    <message>
        <source>Print f&amp;inish:</source>
        <translation>F&amp;initura:</translation>
    </message>
    <message>
        <source>Surface of the finished print</source>
        <translation>Superficie della stampa finita</translation>
    </message>
    <message>
        <source>Print finish</source>
        <translation>Finitura</translation>
    </message>
    <message>
        <source>M&amp;atte level:</source>
        <translation>&amp;Livello opaco:</translation>
    </message>
    <message>
        <source>How matte a matte finish is</source>
        <translation>Quanto è opaca una finitura opaca</translation>
    </message>
    <message>
        <source>Matte level</source>
        <translation>Livello opaco</translation>
    </message>
    <message>
        <source>&amp;Dust removal:</source>
        <translation>Ri&amp;mozione polvere:</translation>
    </message>
    <message>
        <source>Cleaning of the paper before printing</source>
        <translation>Pulizia della carta prima della stampa</translation>
    </message>
    <message>
        <source>Dust removal</source>
        <translation>Rimozione polvere</translation>
    </message>
    <message>
        <source>Ro&amp;tate image:</source>
        <translation>R&amp;uota immagine:</translation>
    </message>
    <message>
        <source>Turns the image on the page</source>
        <translation>Ruota l'immagine sulla pagina</translation>
    </message>
    <message>
        <source>Rotate image</source>
        <translation>Ruota immagine</translation>
    </message>
    <message>
        <source>&amp;Mirror image:</source>
        <translation>&amp;Specchia immagine:</translation>
    </message>
    <message>
        <source>Flips the image</source>
        <translation>Riflette l'immagine</translation>
    </message>
    <message>
        <source>Mirror image</source>
        <translation>Specchia immagine</translation>
    </message>
    <message>
        <source>Pa&amp;ge scale:</source>
        <translation>S&amp;cala pagina:</translation>
    </message>
    <message>
        <source>Size of the printed page</source>
        <translation>Dimensione della pagina stampata</translation>
    </message>
    <message>
        <source>Page scale</source>
        <translation>Scala pagina</translation>
    </message>
</context>
<context>
    <name>MediaPDE</name>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Print quality&lt;/b&gt; and &lt;b&gt;print finish&lt;/b&gt; choose how the printer lays down color and what the surface looks like.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Rotate&lt;/b&gt; and &lt;b&gt;mirror&lt;/b&gt; turn and flip the image. &lt;b&gt;Page scale&lt;/b&gt; is the size of the printed page in percent; 100 % is its true size.&lt;/p&gt;&lt;p&gt;Menus take effect at once; the page scale when you leave the tab or print.&lt;/p&gt;</source>
        <translation>&lt;p&gt;La &lt;b&gt;qualità di stampa&lt;/b&gt; e la &lt;b&gt;finitura&lt;/b&gt; determinano come la stampante stende il colore e che aspetto ha la superficie.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Ruota&lt;/b&gt; e &lt;b&gt;specchia&lt;/b&gt; girano e riflettono l'immagine. La &lt;b&gt;scala pagina&lt;/b&gt; è la dimensione della pagina stampata in percentuale; 100 % è la dimensione reale.&lt;/p&gt;&lt;p&gt;I menu hanno effetto subito; la scala, quando lasci la scheda o stampi.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Print &amp;quality:</source>
        <translation>&amp;Qualità di stampa:</translation>
    </message>
    <message>
        <source>How fine the printer prints; finer takes longer</source>
        <translation>Finezza della stampa; più è fine, più tempo richiede</translation>
    </message>
    <message>
        <source>Print quality</source>
        <translation>Qualità di stampa</translation>
    </message>
    <message>
        <source>Print f&amp;inish:</source>
        <translation>F&amp;initura:</translation>
    </message>
    <message>
        <source>Surface of the finished print</source>
        <translation>Superficie della stampa finita</translation>
    </message>
    <message>
        <source>Print finish</source>
        <translation>Finitura</translation>
    </message>
    <message>
        <source>Ro&amp;tate image:</source>
        <translation>R&amp;uota immagine:</translation>
    </message>
    <message>
        <source>Turns the image on the page</source>
        <translation>Ruota l'immagine sulla pagina</translation>
    </message>
    <message>
        <source>Rotate image</source>
        <translation>Ruota immagine</translation>
    </message>
    <message>
        <source>&amp;Mirror image:</source>
        <translation>&amp;Specchia immagine:</translation>
    </message>
    <message>
        <source>Flips the image</source>
        <translation>Riflette l'immagine</translation>
    </message>
    <message>
        <source>Mirror image</source>
        <translation>Specchia immagine</translation>
    </message>
    <message>
        <source>Pa&amp;ge scale:</source>
        <translation>S&amp;cala pagina:</translation>
    </message>
    <message>
        <source>Size of the printed page</source>
        <translation>Dimensione della pagina stampata</translation>
    </message>
    <message>
        <source>Page scale</source>
        <translation>Scala pagina</translation>
    </message>
</context>
<context>
    <name>SharpenPDE</name>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Sharpen filter&lt;/b&gt; switches sharpening on or off, at once.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Amount&lt;/b&gt; is how strongly edges are sharpened, &lt;b&gt;radius&lt;/b&gt; how wide an edge is taken to be, and &lt;b&gt;threshold&lt;/b&gt; how much contrast counts as an edge. They take effect when you leave the tab or print.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Il &lt;b&gt;filtro di nitidezza&lt;/b&gt; si attiva o disattiva subito.&lt;/p&gt;&lt;p&gt;L'&lt;b&gt;intensità&lt;/b&gt; indica con quanta forza sono accentuati i contorni, il &lt;b&gt;raggio&lt;/b&gt; quanto si considera largo un contorno e la &lt;b&gt;soglia&lt;/b&gt; quanto contrasto vale come contorno. Hanno effetto quando lasci la scheda o stampi.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Sharpen f&amp;ilter:</source>
        <translation>F&amp;iltro di nitidezza:</translation>
    </message>
    <message>
        <source>Whether the printer sharpens the image</source>
        <translation>Se la stampante aumenta la nitidezza dell'immagine</translation>
    </message>
    <message>
        <source>Sharpen filter</source>
        <translation>Filtro di nitidezza</translation>
    </message>
    <message>
        <source>&amp;Amount:</source>
        <translation>In&amp;tensità:</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Intensità</translation>
    </message>
    <message>
        <source>Amount as a number</source>
        <translation>Intensità in cifre</translation>
    </message>
    <message>
        <source>Ra&amp;dius:</source>
        <translation>R&amp;aggio:</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Raggio</translation>
    </message>
    <message>
        <source>Radius as a number</source>
        <translation>Raggio in cifre</translation>
    </message>
    <message>
        <source>&amp;Threshold (levels):</source>
        <translation>&amp;Soglia (livelli):</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Soglia</translation>
    </message>
    <message>
        <source>Threshold as a number</source>
        <translation>Soglia in cifre</translation>
    </message>
</context>
</TS>
