<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- Machine-made: nobody who speaks the language has read these yet. -->
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>kwopde::app</name>
    <message>
        <source>Choose What to Print</source>
        <translation>印刷するファイルを選択</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::Notices</name>
    <message>
        <source>The job would print %1.</source>
        <translation>ジョブは %1 で印刷されます。</translation>
    </message>
    <message>
        <source>Changed %1 from %2 to %3, to go with %4: %5.</source>
        <translation>「%4: %5」に合わせて、%1 を %2 から %3 に変更しました。</translation>
    </message>
    <message>
        <source>%1 cannot be %2 together with %3.</source>
        <translation>「%1: %2」は「%3」と同時に使用できません。</translation>
    </message>
    <message>
        <source>%1 cannot be %2: this printer takes %3 to %4.</source>
        <translation>%1 を %2 にはできません。このプリンタの範囲は %3～%4 です。</translation>
    </message>
    <message>
        <source>%1 cannot be %2: this printer has no such choice.</source>
        <translation>%1 を %2 にはできません。このプリンタにその選択肢はありません。</translation>
    </message>
    <message>
        <source>This printer cannot do these together: %1.</source>
        <translation>このプリンタでは次の組み合わせは使用できません: %1。</translation>
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
        <translation>利用不可</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1～%2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1; %2 changes nothing</source>
        <translation>%1、%2 では変化なし</translation>
    </message>
    <message>
        <source>%1; %2 is the printer's default</source>
        <translation>%1、プリンタのデフォルトは %2</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::Page</name>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Reset Page</source>
        <translation>タブをリセット</translation>
    </message>
    <message>
        <source>One setting differs from the printer's defaults.</source>
        <translation>1 個の設定がプリンタのデフォルトと異なります。</translation>
    </message>
    <message>
        <source>%1 settings differ from the printer's defaults.</source>
        <translation>%1 個の設定がプリンタのデフォルトと異なります。</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::PanelDialog</name>
    <message>
        <source>This printer has no settings for these panels.</source>
        <translation>このプリンタには、これらのタブの設定がありません。</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::PanelPage</name>
    <message>
        <source>This printer does not adjust: %1.</source>
        <translation>このプリンタでは調整できません: %1。</translation>
    </message>
    <message>
        <source>The numbers have no effect while the filter is off.</source>
        <translation>フィルタがオフの間、数値は反映されません。</translation>
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
        <translation>プリンタの設定</translation>
    </message>
    <message>
        <source>Printer Settings for %1</source>
        <translation>%1 のプリンタ設定</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>プリンタ:</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>文書:</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::PresetRow</name>
    <message>
        <source>Preset:</source>
        <translation>プリセット:</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>Keep these settings, or go back to the printer's</source>
        <translation>この設定を保存するか、プリンタの設定に戻します</translation>
    </message>
    <message>
        <source>Preset menu</source>
        <translation>プリセットメニュー</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (変更あり)</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>名前を付けて保存…</translation>
    </message>
    <message>
        <source>Save “%1”</source>
        <translation>「%1」を保存</translation>
    </message>
    <message>
        <source>Save as My Settings</source>
        <translation>自分の設定として保存</translation>
    </message>
    <message>
        <source>Reset to the Printer's Defaults</source>
        <translation>プリンタのデフォルトに戻す</translation>
    </message>
    <message>
        <source>Delete “%1”…</source>
        <translation>「%1」を削除…</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>プリセットの保存</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名前:</translation>
    </message>
    <message>
        <source>A preset's name has letters, digits and marks other than / and #.</source>
        <translation>プリセットの名前に使用できるのは、文字、数字、および / と # 以外の記号です。</translation>
    </message>
    <message>
        <source>Replace the preset “%1”?</source>
        <translation>プリセット「%1」を置き換えますか?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>置き換え</translation>
    </message>
    <message>
        <source>Delete the preset “%1”?</source>
        <translation>プリセット「%1」を削除しますか?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>My settings</source>
        <translation>自分の設定</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::Printer</name>
    <message>
        <source>Asking the printer…</source>
        <translation>プリンターに問い合わせています…</translation>
    </message>
    <message>
        <source>The printer %1 has got another PPD on its server since this dialog read it.</source>
        <translation>このダイアログが読み込んだ後に、プリンタ %1 の PPD がサーバ上で変更されました。</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::QueueDialog</name>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>%1 の印刷</translation>
    </message>
    <message>
        <source>Print %1 Documents</source>
        <translation>%1 個の文書の印刷</translation>
    </message>
    <message>
        <source>&amp;Print Anyway</source>
        <translation>このまま印刷(&amp;P)</translation>
    </message>
    <message>
        <source>Sending to the printer…</source>
        <translation>プリンタに送信中…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Printing failed</source>
        <translation>印刷に失敗しました</translation>
    </message>
    <message>
        <source>Its settings are shown anew: look at them, and print again.</source>
        <translation>設定を表示し直しました。確認してから、もう一度印刷してください。</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::SettingsDialog</name>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Printer Settings</source>
        <translation>プリンタの設定</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>プリンタ:</translation>
    </message>
    <message>
        <source>Its settings are shown anew: look at them, and save again.</source>
        <translation>設定を表示し直しました。確認してから、もう一度保存してください。</translation>
    </message>
</context>
<context>
    <name>kwopde::dialog::SummaryPage</name>
    <message>
        <source>Summary</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>Other than the printer's defaults</source>
        <translation>プリンタのデフォルトと異なる設定</translation>
    </message>
    <message>
        <source>%1 (the job would print %2)</source>
        <translation>%1 (ジョブは %2 で印刷)</translation>
    </message>
    <message>
        <source>&lt;p&gt;All that is set on the other tabs. What is other than the printer's defaults comes first.&lt;/p&gt;</source>
        <translation>&lt;p&gt;ほかのタブのすべての設定です。プリンタのデフォルトと異なるものが先に表示されます。&lt;/p&gt;</translation>
    </message>
</context>
</TS>
