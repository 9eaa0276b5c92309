<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- Machine-made: nobody who speaks the language has read these yet. -->
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Bundle</name>
    <message>
        <source>MediaPanelName</source>
        <translation>メディア</translation>
    </message>
    <message>
        <source>ColorPanelName</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>SharpenPanelName</source>
        <translation>シャープ</translation>
    </message>
</context>
<context>
    <name>ColorPDE</name>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Color mode&lt;/b&gt; takes effect at once.&lt;/p&gt;&lt;p&gt;The sliders adjust the image, and their numbers can be typed. A mark shows where the image stays as it is; a double click goes there. They take effect when you leave the tab or print.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;カラーモード&lt;/b&gt;はすぐに反映されます。&lt;/p&gt;&lt;p&gt;スライダで画像を調整します。数値を入力することもできます。印は画像が変化しない位置を示し、ダブルクリックするとそこに移動します。これらは、タブを離れるか印刷すると反映されます。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Color &amp;mode:</source>
        <translation>カラーモード(&amp;M):</translation>
    </message>
    <message>
        <source>What the printer makes of the colors</source>
        <translation>プリンタでの色の扱い</translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation>カラーモード</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>明るさ(&amp;B):</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>明るさ</translation>
    </message>
    <message>
        <source>Brightness as a number</source>
        <translation>明るさの数値</translation>
    </message>
    <message>
        <source>&amp;Contrast:</source>
        <translation>コントラスト(&amp;C):</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>コントラスト</translation>
    </message>
    <message>
        <source>Contrast as a number</source>
        <translation>コントラストの数値</translation>
    </message>
    <message>
        <source>Sa&amp;turation:</source>
        <translation>彩度(&amp;T):</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>彩度</translation>
    </message>
    <message>
        <source>Saturation as a number</source>
        <translation>彩度の数値</translation>
    </message>
    <message>
        <source>G&amp;amma:</source>
        <translation>ガンマ(&amp;A):</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>ガンマ</translation>
    </message>
    <message>
        <source>Gamma as a number</source>
        <translation>ガンマの数値</translation>
    </message>
    <message>
        <source>Re&amp;d:</source>
        <translation>赤(&amp;D):</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>赤</translation>
    </message>
    <message>
        <source>Red as a number</source>
        <translation>赤の数値</translation>
    </message>
    <message>
        <source>&amp;Green:</source>
        <translation>緑(&amp;G):</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>緑</translation>
    </message>
    <message>
        <source>Green as a number</source>
        <translation>緑の数値</translation>
    </message>
    <message>
        <source>B&amp;lue:</source>
        <translation>青(&amp;L):</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>青</translation>
    </message>
    <message>
        <source>Blue as a number</source>
        <translation>青の数値</translation>
    </message>
</context>
<context>
    <name>Media7032PDE</name>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Print quality&lt;/b&gt; and &lt;b&gt;print finish&lt;/b&gt; choose how the printer lays down color and what the surface looks like.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Matte level&lt;/b&gt; and &lt;b&gt;dust removal&lt;/b&gt; are features of this printer model.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Rotate&lt;/b&gt; and &lt;b&gt;mirror&lt;/b&gt; turn and flip the image. &lt;b&gt;Page scale&lt;/b&gt; is the size of the printed page in percent; 100 % is its true size.&lt;/p&gt;&lt;p&gt;Menus take effect at once; the page scale when you leave the tab or print.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;印刷品質&lt;/b&gt;と&lt;b&gt;表面仕上げ&lt;/b&gt;で、色の載せ方と表面の質感を選択します。&lt;/p&gt;&lt;p&gt;&lt;b&gt;マットレベル&lt;/b&gt;と&lt;b&gt;ほこり除去&lt;/b&gt;は、このプリンタ機種の機能です。&lt;/p&gt;&lt;p&gt;&lt;b&gt;回転&lt;/b&gt;と&lt;b&gt;反転&lt;/b&gt;は、画像の向きを変えます。&lt;b&gt;ページの倍率&lt;/b&gt;は、印刷されるページの大きさをパーセントで表したもので、100% が実際の大きさです。&lt;/p&gt;&lt;p&gt;メニューはすぐに反映されます。ページの倍率は、タブを離れるか印刷すると反映されます。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Print &amp;quality:</source>
        <translation>印刷品質(&amp;Q):</translation>
    </message>
    <message>
        <source>How fine the printer prints; finer takes longer</source>
        <translation>印刷の細かさ (細かいほど時間がかかります)</translation>
    </message>
    <message>
        <source>Print quality</source>
        <translation>印刷品質</translation>
    </message>
    <message>
        <source>Print f&amp;inish:</source>
        <translation>表面仕上げ(&amp;I):</translation>
    </message>
    <message>
        <source>Surface of the finished print</source>
        <translation>印刷物の表面の質感</translation>
    </message>
    <message>
        <source>Print finish</source>
        <translation>表面仕上げ</translation>
    </message>
    <message>
        <source>M&amp;atte level:</source>
        <translation>マットレベル(&amp;A):</translation>
    </message>
    <message>
        <source>How matte a matte finish is</source>
        <translation>マット仕上げのつや消しの度合い</translation>
    </message>
    <message>
        <source>Matte level</source>
        <translation>マットレベル</translation>
    </message>
    <message>
        <source>&amp;Dust removal:</source>
        <translation>ほこり除去(&amp;D):</translation>
    </message>
    <message>
        <source>Cleaning of the paper before printing</source>
        <translation>印刷前の用紙のクリーニング</translation>
    </message>
    <message>
        <source>Dust removal</source>
        <translation>ほこり除去</translation>
    </message>
    <message>
        <source>Ro&amp;tate image:</source>
        <translation>画像の回転(&amp;T):</translation>
    </message>
    <message>
        <source>Turns the image on the page</source>
        <translation>ページ上の画像を回転します</translation>
    </message>
    <message>
        <source>Rotate image</source>
        <translation>画像の回転</translation>
    </message>
    <message>
        <source>&amp;Mirror image:</source>
        <translation>画像の反転(&amp;M):</translation>
    </message>
    <message>
        <source>Flips the image</source>
        <translation>画像を反転します</translation>
    </message>
    <message>
        <source>Mirror image</source>
        <translation>画像の反転</translation>
    </message>
    <message>
        <source>Pa&amp;ge scale:</source>
        <translation>ページの倍率(&amp;G):</translation>
    </message>
    <message>
        <source>Size of the printed page</source>
        <translation>印刷されるページの大きさ</translation>
    </message>
    <message>
        <source>Page scale</source>
        <translation>ページの倍率</translation>
    </message>
</context>
<context>
    <name>MediaPDE</name>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Print quality&lt;/b&gt; and &lt;b&gt;print finish&lt;/b&gt; choose how the printer lays down color and what the surface looks like.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Rotate&lt;/b&gt; and &lt;b&gt;mirror&lt;/b&gt; turn and flip the image. &lt;b&gt;Page scale&lt;/b&gt; is the size of the printed page in percent; 100 % is its true size.&lt;/p&gt;&lt;p&gt;Menus take effect at once; the page scale when you leave the tab or print.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;印刷品質&lt;/b&gt;と&lt;b&gt;表面仕上げ&lt;/b&gt;で、色の載せ方と表面の質感を選択します。&lt;/p&gt;&lt;p&gt;&lt;b&gt;回転&lt;/b&gt;と&lt;b&gt;反転&lt;/b&gt;は、画像の向きを変えます。&lt;b&gt;ページの倍率&lt;/b&gt;は、印刷されるページの大きさをパーセントで表したもので、100% が実際の大きさです。&lt;/p&gt;&lt;p&gt;メニューはすぐに反映されます。ページの倍率は、タブを離れるか印刷すると反映されます。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Print &amp;quality:</source>
        <translation>印刷品質(&amp;Q):</translation>
    </message>
    <message>
        <source>How fine the printer prints; finer takes longer</source>
        <translation>印刷の細かさ (細かいほど時間がかかります)</translation>
    </message>
    <message>
        <source>Print quality</source>
        <translation>印刷品質</translation>
    </message>
    <message>
        <source>Print f&amp;inish:</source>
        <translation>表面仕上げ(&amp;I):</translation>
    </message>
    <message>
        <source>Surface of the finished print</source>
        <translation>印刷物の表面の質感</translation>
    </message>
    <message>
        <source>Print finish</source>
        <translation>表面仕上げ</translation>
    </message>
    <message>
        <source>Ro&amp;tate image:</source>
        <translation>画像の回転(&amp;T):</translation>
    </message>
    <message>
        <source>Turns the image on the page</source>
        <translation>ページ上の画像を回転します</translation>
    </message>
    <message>
        <source>Rotate image</source>
        <translation>画像の回転</translation>
    </message>
    <message>
        <source>&amp;Mirror image:</source>
        <translation>画像の反転(&amp;M):</translation>
    </message>
    <message>
        <source>Flips the image</source>
        <translation>画像を反転します</translation>
    </message>
    <message>
        <source>Mirror image</source>
        <translation>画像の反転</translation>
    </message>
    <message>
        <source>Pa&amp;ge scale:</source>
        <translation>ページの倍率(&amp;G):</translation>
    </message>
    <message>
        <source>Size of the printed page</source>
        <translation>印刷されるページの大きさ</translation>
    </message>
    <message>
        <source>Page scale</source>
        <translation>ページの倍率</translation>
    </message>
</context>
<context>
    <name>SharpenPDE</name>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Sharpen filter&lt;/b&gt; switches sharpening on or off, at once.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Amount&lt;/b&gt; is how strongly edges are sharpened, &lt;b&gt;radius&lt;/b&gt; how wide an edge is taken to be, and &lt;b&gt;threshold&lt;/b&gt; how much contrast counts as an edge. They take effect when you leave the tab or print.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;シャープフィルタ&lt;/b&gt;は、シャープ処理のオンとオフをすぐに切り替えます。&lt;/p&gt;&lt;p&gt;&lt;b&gt;量&lt;/b&gt;は輪郭を強調する強さ、&lt;b&gt;半径&lt;/b&gt;は輪郭とみなす幅、&lt;b&gt;しきい値&lt;/b&gt;は輪郭とみなすコントラストの大きさです。これらは、タブを離れるか印刷すると反映されます。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Sharpen f&amp;ilter:</source>
        <translation>シャープフィルタ(&amp;I):</translation>
    </message>
    <message>
        <source>Whether the printer sharpens the image</source>
        <translation>プリンタで画像をシャープにするかどうか</translation>
    </message>
    <message>
        <source>Sharpen filter</source>
        <translation>シャープフィルタ</translation>
    </message>
    <message>
        <source>&amp;Amount:</source>
        <translation>量(&amp;A):</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>量</translation>
    </message>
    <message>
        <source>Amount as a number</source>
        <translation>量の数値</translation>
    </message>
    <message>
        <source>Ra&amp;dius:</source>
        <translation>半径(&amp;D):</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>半径</translation>
    </message>
    <message>
        <source>Radius as a number</source>
        <translation>半径の数値</translation>
    </message>
    <message>
        <source>&amp;Threshold (levels):</source>
        <translation>しきい値 (階調)(&amp;T):</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>しきい値</translation>
    </message>
    <message>
        <source>Threshold as a number</source>
        <translation>しきい値の数値</translation>
    </message>
</context>
</TS>
