<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- Machine-made: nobody who speaks the language has read these yet. -->
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Bundle</name>
    <message>
        <source>MediaPanelName</source>
        <translation>Soporte</translation>
    </message>
    <message>
        <source>ColorPanelName</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>SharpenPanelName</source>
        <translation>Nitidez</translation>
    </message>
</context>
<context>
    <name>ColorPDE</name>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Color mode&lt;/b&gt; takes effect at once.&lt;/p&gt;&lt;p&gt;The sliders adjust the image, and their numbers can be typed. A mark shows where the image stays as it is; a double click goes there. They take effect when you leave the tab or print.&lt;/p&gt;</source>
        <translation>&lt;p&gt;El &lt;b&gt;modo de color&lt;/b&gt; se aplica de inmediato.&lt;/p&gt;&lt;p&gt;Los deslizadores ajustan la imagen; sus números también se pueden escribir. Una marca indica dónde la imagen queda como está; un doble clic lleva allí. Se aplican al salir de la pestaña o al imprimir.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Color &amp;mode:</source>
        <translation>&amp;Modo de color:</translation>
    </message>
    <message>
        <source>What the printer makes of the colors</source>
        <translation>Qué hace la impresora con los colores</translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation>Modo de color</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>&amp;Brillo:</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>Brightness as a number</source>
        <translation>Brillo en cifras</translation>
    </message>
    <message>
        <source>&amp;Contrast:</source>
        <translation>&amp;Contraste:</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Contrast as a number</source>
        <translation>Contraste en cifras</translation>
    </message>
    <message>
        <source>Sa&amp;turation:</source>
        <translation>&amp;Saturación:</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>Saturation as a number</source>
        <translation>Saturación en cifras</translation>
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
        <translation>Gamma en cifras</translation>
    </message>
    <message>
        <source>Re&amp;d:</source>
        <translation>Ro&amp;jo:</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Red as a number</source>
        <translation>Rojo en cifras</translation>
    </message>
    <message>
        <source>&amp;Green:</source>
        <translation>&amp;Verde:</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Green as a number</source>
        <translation>Verde en cifras</translation>
    </message>
    <message>
        <source>B&amp;lue:</source>
        <translation>A&amp;zul:</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Blue as a number</source>
        <translation>Azul en cifras</translation>
    </message>
</context>
<context>
    <name>Media7032PDE</name>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Print quality&lt;/b&gt; and &lt;b&gt;print finish&lt;/b&gt; choose how the printer lays down color and what the surface looks like.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Matte level&lt;/b&gt; and &lt;b&gt;dust removal&lt;/b&gt; are features of this printer model.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Rotate&lt;/b&gt; and &lt;b&gt;mirror&lt;/b&gt; turn and flip the image. &lt;b&gt;Page scale&lt;/b&gt; is the size of the printed page in percent; 100 % is its true size.&lt;/p&gt;&lt;p&gt;Menus take effect at once; the page scale when you leave the tab or print.&lt;/p&gt;</source>
        <translation>&lt;p&gt;La &lt;b&gt;calidad de impresión&lt;/b&gt; y el &lt;b&gt;acabado&lt;/b&gt; determinan cómo aplica el color la impresora y qué aspecto tiene la superficie.&lt;/p&gt;&lt;p&gt;El &lt;b&gt;nivel de mate&lt;/b&gt; y la &lt;b&gt;eliminación de polvo&lt;/b&gt; son propios de este modelo de impresora.&lt;/p&gt;&lt;p&gt;Con &lt;b&gt;girar&lt;/b&gt; y &lt;b&gt;reflejar&lt;/b&gt; se rota y se voltea la imagen. La &lt;b&gt;escala de página&lt;/b&gt; es el tamaño de la página impresa en tanto por ciento; 100 % es su tamaño real.&lt;/p&gt;&lt;p&gt;Los menús se aplican de inmediato; la escala, al salir de la pestaña o al imprimir.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Print &amp;quality:</source>
        <translation>&amp;Calidad de impresión:</translation>
    </message>
    <message>
        <source>How fine the printer prints; finer takes longer</source>
        <translation>Finura de la impresión; cuanto más fina, más tarda</translation>
    </message>
    <message>
        <source>Print quality</source>
        <translation>Calidad de impresión</translation>
    </message>
    <message>
        <source>Print f&amp;inish:</source>
        <translation>&amp;Acabado:</translation>
    </message>
    <message>
        <source>Surface of the finished print</source>
        <translation>Superficie de la impresión terminada</translation>
    </message>
    <message>
        <source>Print finish</source>
        <translation>Acabado</translation>
    </message>
    <message>
        <source>M&amp;atte level:</source>
        <translation>Nive&amp;l de mate:</translation>
    </message>
    <message>
        <source>How matte a matte finish is</source>
        <translation>Grado de mate de un acabado mate</translation>
    </message>
    <message>
        <source>Matte level</source>
        <translation>Nivel de mate</translation>
    </message>
    <message>
        <source>&amp;Dust removal:</source>
        <translation>&amp;Eliminación de polvo:</translation>
    </message>
    <message>
        <source>Cleaning of the paper before printing</source>
        <translation>Limpieza del papel antes de imprimir</translation>
    </message>
    <message>
        <source>Dust removal</source>
        <translation>Eliminación de polvo</translation>
    </message>
    <message>
        <source>Ro&amp;tate image:</source>
        <translation>G&amp;irar imagen:</translation>
    </message>
    <message>
        <source>Turns the image on the page</source>
        <translation>Gira la imagen en la página</translation>
    </message>
    <message>
        <source>Rotate image</source>
        <translation>Girar imagen</translation>
    </message>
    <message>
        <source>&amp;Mirror image:</source>
        <translation>Refle&amp;jar imagen:</translation>
    </message>
    <message>
        <source>Flips the image</source>
        <translation>Voltea la imagen</translation>
    </message>
    <message>
        <source>Mirror image</source>
        <translation>Reflejar imagen</translation>
    </message>
    <message>
        <source>Pa&amp;ge scale:</source>
        <translation>E&amp;scala de página:</translation>
    </message>
    <message>
        <source>Size of the printed page</source>
        <translation>Tamaño de la página impresa</translation>
    </message>
    <message>
        <source>Page scale</source>
        <translation>Escala de página</translation>
    </message>
</context>
<context>
    <name>MediaPDE</name>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Print quality&lt;/b&gt; and &lt;b&gt;print finish&lt;/b&gt; choose how the printer lays down color and what the surface looks like.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Rotate&lt;/b&gt; and &lt;b&gt;mirror&lt;/b&gt; turn and flip the image. &lt;b&gt;Page scale&lt;/b&gt; is the size of the printed page in percent; 100 % is its true size.&lt;/p&gt;&lt;p&gt;Menus take effect at once; the page scale when you leave the tab or print.&lt;/p&gt;</source>
        <translation>&lt;p&gt;La &lt;b&gt;calidad de impresión&lt;/b&gt; y el &lt;b&gt;acabado&lt;/b&gt; determinan cómo aplica el color la impresora y qué aspecto tiene la superficie.&lt;/p&gt;&lt;p&gt;Con &lt;b&gt;girar&lt;/b&gt; y &lt;b&gt;reflejar&lt;/b&gt; se rota y se voltea la imagen. La &lt;b&gt;escala de página&lt;/b&gt; es el tamaño de la página impresa en tanto por ciento; 100 % es su tamaño real.&lt;/p&gt;&lt;p&gt;Los menús se aplican de inmediato; la escala, al salir de la pestaña o al imprimir.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Print &amp;quality:</source>
        <translation>&amp;Calidad de impresión:</translation>
    </message>
    <message>
        <source>How fine the printer prints; finer takes longer</source>
        <translation>Finura de la impresión; cuanto más fina, más tarda</translation>
    </message>
    <message>
        <source>Print quality</source>
        <translation>Calidad de impresión</translation>
    </message>
    <message>
        <source>Print f&amp;inish:</source>
        <translation>&amp;Acabado:</translation>
    </message>
    <message>
        <source>Surface of the finished print</source>
        <translation>Superficie de la impresión terminada</translation>
    </message>
    <message>
        <source>Print finish</source>
        <translation>Acabado</translation>
    </message>
    <message>
        <source>Ro&amp;tate image:</source>
        <translation>G&amp;irar imagen:</translation>
    </message>
    <message>
        <source>Turns the image on the page</source>
        <translation>Gira la imagen en la página</translation>
    </message>
    <message>
        <source>Rotate image</source>
        <translation>Girar imagen</translation>
    </message>
    <message>
        <source>&amp;Mirror image:</source>
        <translation>Refle&amp;jar imagen:</translation>
    </message>
    <message>
        <source>Flips the image</source>
        <translation>Voltea la imagen</translation>
    </message>
    <message>
        <source>Mirror image</source>
        <translation>Reflejar imagen</translation>
    </message>
    <message>
        <source>Pa&amp;ge scale:</source>
        <translation>E&amp;scala de página:</translation>
    </message>
    <message>
        <source>Size of the printed page</source>
        <translation>Tamaño de la página impresa</translation>
    </message>
    <message>
        <source>Page scale</source>
        <translation>Escala de página</translation>
    </message>
</context>
<context>
    <name>SharpenPDE</name>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Sharpen filter&lt;/b&gt; switches sharpening on or off, at once.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Amount&lt;/b&gt; is how strongly edges are sharpened, &lt;b&gt;radius&lt;/b&gt; how wide an edge is taken to be, and &lt;b&gt;threshold&lt;/b&gt; how much contrast counts as an edge. They take effect when you leave the tab or print.&lt;/p&gt;</source>
        <translation>&lt;p&gt;El &lt;b&gt;filtro de nitidez&lt;/b&gt; se activa o desactiva de inmediato.&lt;/p&gt;&lt;p&gt;La &lt;b&gt;intensidad&lt;/b&gt; indica con qué fuerza se realzan los bordes; el &lt;b&gt;radio&lt;/b&gt;, qué anchura se atribuye a un borde, y el &lt;b&gt;umbral&lt;/b&gt;, cuánto contraste cuenta como borde. Se aplican al salir de la pestaña o al imprimir.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Sharpen f&amp;ilter:</source>
        <translation>F&amp;iltro de nitidez:</translation>
    </message>
    <message>
        <source>Whether the printer sharpens the image</source>
        <translation>Si la impresora aumenta la nitidez de la imagen</translation>
    </message>
    <message>
        <source>Sharpen filter</source>
        <translation>Filtro de nitidez</translation>
    </message>
    <message>
        <source>&amp;Amount:</source>
        <translation>In&amp;tensidad:</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Intensidad</translation>
    </message>
    <message>
        <source>Amount as a number</source>
        <translation>Intensidad en cifras</translation>
    </message>
    <message>
        <source>Ra&amp;dius:</source>
        <translation>R&amp;adio:</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radio</translation>
    </message>
    <message>
        <source>Radius as a number</source>
        <translation>Radio en cifras</translation>
    </message>
    <message>
        <source>&amp;Threshold (levels):</source>
        <translation>&amp;Umbral (niveles):</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Umbral</translation>
    </message>
    <message>
        <source>Threshold as a number</source>
        <translation>Umbral en cifras</translation>
    </message>
</context>
</TS>
