<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- Machine-made: nobody who speaks the language has read these yet. -->
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Bundle</name>
    <message>
        <source>MediaPanelName</source>
        <translation>Support</translation>
    </message>
    <message>
        <source>ColorPanelName</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>SharpenPanelName</source>
        <translation>Netteté</translation>
    </message>
</context>
<context>
    <name>ColorPDE</name>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Color mode&lt;/b&gt; takes effect at once.&lt;/p&gt;&lt;p&gt;The sliders adjust the image, and their numbers can be typed. A mark shows where the image stays as it is; a double click goes there. They take effect when you leave the tab or print.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Le &lt;b&gt;mode de couleur&lt;/b&gt; prend effet aussitôt.&lt;/p&gt;&lt;p&gt;Les curseurs règlent l'image ; leurs nombres peuvent aussi être saisis. Un repère montre où l'image reste telle quelle ; un double-clic y ramène le curseur. Les curseurs prennent effet quand vous quittez l'onglet ou imprimez.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Color &amp;mode:</source>
        <translation>&amp;Mode de couleur :</translation>
    </message>
    <message>
        <source>What the printer makes of the colors</source>
        <translation>Ce que l'imprimante fait des couleurs</translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation>Mode de couleur</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>&amp;Luminosité :</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Brightness as a number</source>
        <translation>Luminosité en chiffres</translation>
    </message>
    <message>
        <source>&amp;Contrast:</source>
        <translation>&amp;Contraste :</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Contrast as a number</source>
        <translation>Contraste en chiffres</translation>
    </message>
    <message>
        <source>Sa&amp;turation:</source>
        <translation>&amp;Saturation :</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Saturation as a number</source>
        <translation>Saturation en chiffres</translation>
    </message>
    <message>
        <source>G&amp;amma:</source>
        <translation>&amp;Gamma :</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Gamma as a number</source>
        <translation>Gamma en chiffres</translation>
    </message>
    <message>
        <source>Re&amp;d:</source>
        <translation>Ro&amp;uge :</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Red as a number</source>
        <translation>Rouge en chiffres</translation>
    </message>
    <message>
        <source>&amp;Green:</source>
        <translation>&amp;Vert :</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Green as a number</source>
        <translation>Vert en chiffres</translation>
    </message>
    <message>
        <source>B&amp;lue:</source>
        <translation>&amp;Bleu :</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Blue as a number</source>
        <translation>Bleu en chiffres</translation>
    </message>
</context>
<context>
    <name>Media7032PDE</name>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Print quality&lt;/b&gt; and &lt;b&gt;print finish&lt;/b&gt; choose how the printer lays down color and what the surface looks like.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Matte level&lt;/b&gt; and &lt;b&gt;dust removal&lt;/b&gt; are features of this printer model.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Rotate&lt;/b&gt; and &lt;b&gt;mirror&lt;/b&gt; turn and flip the image. &lt;b&gt;Page scale&lt;/b&gt; is the size of the printed page in percent; 100 % is its true size.&lt;/p&gt;&lt;p&gt;Menus take effect at once; the page scale when you leave the tab or print.&lt;/p&gt;</source>
        <translation>&lt;p&gt;La &lt;b&gt;qualité d'impression&lt;/b&gt; et la &lt;b&gt;finition&lt;/b&gt; déterminent comment l'imprimante dépose la couleur et l'aspect de la surface.&lt;/p&gt;&lt;p&gt;Le &lt;b&gt;niveau de matité&lt;/b&gt; et le &lt;b&gt;dépoussiérage&lt;/b&gt; sont propres à ce modèle d'imprimante.&lt;/p&gt;&lt;p&gt;La &lt;b&gt;rotation&lt;/b&gt; et l'&lt;b&gt;effet miroir&lt;/b&gt; tournent et inversent l'image. L'&lt;b&gt;échelle de page&lt;/b&gt; est la taille de la page imprimée en pour cent ; 100 % est sa taille réelle.&lt;/p&gt;&lt;p&gt;Les menus prennent effet aussitôt ; l'échelle, quand vous quittez l'onglet ou imprimez.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Print &amp;quality:</source>
        <translation>&amp;Qualité d'impression :</translation>
    </message>
    <message>
        <source>How fine the printer prints; finer takes longer</source>
        <translation>Finesse de l'impression ; plus fin prend plus de temps</translation>
    </message>
    <message>
        <source>Print quality</source>
        <translation>Qualité d'impression</translation>
    </message>
    <message>
        <source>Print f&amp;inish:</source>
        <translation>F&amp;inition :</translation>
    </message>
    <message>
        <source>Surface of the finished print</source>
        <translation>Surface de l'impression terminée</translation>
    </message>
    <message>
        <source>Print finish</source>
        <translation>Finition</translation>
    </message>
    <message>
        <source>M&amp;atte level:</source>
        <translation>Nive&amp;au de matité :</translation>
    </message>
    <message>
        <source>How matte a matte finish is</source>
        <translation>Degré de matité d'une finition mate</translation>
    </message>
    <message>
        <source>Matte level</source>
        <translation>Niveau de matité</translation>
    </message>
    <message>
        <source>&amp;Dust removal:</source>
        <translation>&amp;Dépoussiérage :</translation>
    </message>
    <message>
        <source>Cleaning of the paper before printing</source>
        <translation>Nettoyage du papier avant l'impression</translation>
    </message>
    <message>
        <source>Dust removal</source>
        <translation>Dépoussiérage</translation>
    </message>
    <message>
        <source>Ro&amp;tate image:</source>
        <translation>Ro&amp;tation de l'image :</translation>
    </message>
    <message>
        <source>Turns the image on the page</source>
        <translation>Tourne l'image sur la page</translation>
    </message>
    <message>
        <source>Rotate image</source>
        <translation>Rotation de l'image</translation>
    </message>
    <message>
        <source>&amp;Mirror image:</source>
        <translation>Effet &amp;miroir :</translation>
    </message>
    <message>
        <source>Flips the image</source>
        <translation>Inverse l'image</translation>
    </message>
    <message>
        <source>Mirror image</source>
        <translation>Effet miroir</translation>
    </message>
    <message>
        <source>Pa&amp;ge scale:</source>
        <translation>É&amp;chelle de page :</translation>
    </message>
    <message>
        <source>Size of the printed page</source>
        <translation>Taille de la page imprimée</translation>
    </message>
    <message>
        <source>Page scale</source>
        <translation>Échelle de page</translation>
    </message>
</context>
<context>
    <name>MediaPDE</name>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Print quality&lt;/b&gt; and &lt;b&gt;print finish&lt;/b&gt; choose how the printer lays down color and what the surface looks like.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Rotate&lt;/b&gt; and &lt;b&gt;mirror&lt;/b&gt; turn and flip the image. &lt;b&gt;Page scale&lt;/b&gt; is the size of the printed page in percent; 100 % is its true size.&lt;/p&gt;&lt;p&gt;Menus take effect at once; the page scale when you leave the tab or print.&lt;/p&gt;</source>
        <translation>&lt;p&gt;La &lt;b&gt;qualité d'impression&lt;/b&gt; et la &lt;b&gt;finition&lt;/b&gt; déterminent comment l'imprimante dépose la couleur et l'aspect de la surface.&lt;/p&gt;&lt;p&gt;La &lt;b&gt;rotation&lt;/b&gt; et l'&lt;b&gt;effet miroir&lt;/b&gt; tournent et inversent l'image. L'&lt;b&gt;échelle de page&lt;/b&gt; est la taille de la page imprimée en pour cent ; 100 % est sa taille réelle.&lt;/p&gt;&lt;p&gt;Les menus prennent effet aussitôt ; l'échelle, quand vous quittez l'onglet ou imprimez.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Print &amp;quality:</source>
        <translation>&amp;Qualité d'impression :</translation>
    </message>
    <message>
        <source>How fine the printer prints; finer takes longer</source>
        <translation>Finesse de l'impression ; plus fin prend plus de temps</translation>
    </message>
    <message>
        <source>Print quality</source>
        <translation>Qualité d'impression</translation>
    </message>
    <message>
        <source>Print f&amp;inish:</source>
        <translation>F&amp;inition :</translation>
    </message>
    <message>
        <source>Surface of the finished print</source>
        <translation>Surface de l'impression terminée</translation>
    </message>
    <message>
        <source>Print finish</source>
        <translation>Finition</translation>
    </message>
    <message>
        <source>Ro&amp;tate image:</source>
        <translation>Ro&amp;tation de l'image :</translation>
    </message>
    <message>
        <source>Turns the image on the page</source>
        <translation>Tourne l'image sur la page</translation>
    </message>
    <message>
        <source>Rotate image</source>
        <translation>Rotation de l'image</translation>
    </message>
    <message>
        <source>&amp;Mirror image:</source>
        <translation>Effet &amp;miroir :</translation>
    </message>
    <message>
        <source>Flips the image</source>
        <translation>Inverse l'image</translation>
    </message>
    <message>
        <source>Mirror image</source>
        <translation>Effet miroir</translation>
    </message>
    <message>
        <source>Pa&amp;ge scale:</source>
        <translation>É&amp;chelle de page :</translation>
    </message>
    <message>
        <source>Size of the printed page</source>
        <translation>Taille de la page imprimée</translation>
    </message>
    <message>
        <source>Page scale</source>
        <translation>Échelle de page</translation>
    </message>
</context>
<context>
    <name>SharpenPDE</name>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Sharpen filter&lt;/b&gt; switches sharpening on or off, at once.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Amount&lt;/b&gt; is how strongly edges are sharpened, &lt;b&gt;radius&lt;/b&gt; how wide an edge is taken to be, and &lt;b&gt;threshold&lt;/b&gt; how much contrast counts as an edge. They take effect when you leave the tab or print.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Le &lt;b&gt;filtre de netteté&lt;/b&gt; active ou désactive l'accentuation, aussitôt.&lt;/p&gt;&lt;p&gt;L'&lt;b&gt;intensité&lt;/b&gt; indique à quel point les contours sont accentués, le &lt;b&gt;rayon&lt;/b&gt;, quelle largeur est attribuée à un contour, et le &lt;b&gt;seuil&lt;/b&gt;, quel contraste compte comme contour. Ils prennent effet quand vous quittez l'onglet ou imprimez.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Sharpen f&amp;ilter:</source>
        <translation>F&amp;iltre de netteté :</translation>
    </message>
    <message>
        <source>Whether the printer sharpens the image</source>
        <translation>Si l'imprimante accentue la netteté de l'image</translation>
    </message>
    <message>
        <source>Sharpen filter</source>
        <translation>Filtre de netteté</translation>
    </message>
    <message>
        <source>&amp;Amount:</source>
        <translation>In&amp;tensité :</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Intensité</translation>
    </message>
    <message>
        <source>Amount as a number</source>
        <translation>Intensité en chiffres</translation>
    </message>
    <message>
        <source>Ra&amp;dius:</source>
        <translation>R&amp;ayon :</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Rayon</translation>
    </message>
    <message>
        <source>Radius as a number</source>
        <translation>Rayon en chiffres</translation>
    </message>
    <message>
        <source>&amp;Threshold (levels):</source>
        <translation>&amp;Seuil (niveaux) :</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Seuil</translation>
    </message>
    <message>
        <source>Threshold as a number</source>
        <translation>Seuil en chiffres</translation>
    </message>
</context>
</TS>
