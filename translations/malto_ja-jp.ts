<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>ColorSelectButton</name>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
</context>
<context>
    <name>ConfigurationWindow</name>
    <message>
        <source>Quorvi Configuration</source>
        <translation>Quorvi の設定</translation>
    </message>
    <message>
        <source>Restore All Default</source>
        <translation>すべてデフォルトに戻す</translation>
    </message>
    <message>
        <source>Restore Default</source>
        <translation>デフォルトに戻す</translation>
    </message>
</context>
<context>
    <name>KeySequenceEdit</name>
    <message>
        <source>Press shortcut key</source>
        <translation>ショートカットキーを入力</translation>
    </message>
    <message>
        <source>Clear shortcut key</source>
        <translation>ショートカットキーを消去</translation>
    </message>
    <message>
        <source>Shortkey [%1] is too simple.
To avoid conflicts with other functions and prevent accidental activations, please set a more complex hotkey combination.

If you need to set simple shortcuts, go to the [System] Settings page and check [Allow simple global hotkeys].</source>
        <translation>ショートカットキー [%1] は単純すぎます。
ほかの機能との競合や誤操作を防ぐため、より複雑なキーの組み合わせを設定してください。

単純なショートカットキーを設定する必要がある場合は、[システム] 設定ページで [単純なグローバルショートカットキーを許可] にチェックを入れてください。</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfDefWidgetQKeySequence</name>
    <message>
        <source>Not set</source>
        <translation>未設定</translation>
    </message>
    <message>
        <source>Setup failed, the hotkey may be occupied. Click to try setup again.</source>
        <translation>設定できませんでした。ショートカットキーがすでに使われている可能性があります。クリックすると再試行します。</translation>
    </message>
    <message>
        <source>Setup success.</source>
        <translation>設定しました。</translation>
    </message>
    <message>
        <source>Disabled.</source>
        <translation>無効です。</translation>
    </message>
    <message>
        <source>Another program may use this hotkey.</source>
        <translation>ほかのプログラムがこのショートカットキーを使用している可能性があります。</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>The desktop has not answered yet.</source>
        <translation>デスクトップ環境からまだ応答がありません。</translation>
    </message>
    <message>
        <source>The hotkey has not been set up yet.</source>
        <translation>ショートカットキーはまだ設定されていません。</translation>
    </message>
    <message>
        <source>A global hotkey is one key, alone or with modifiers.</source>
        <translation>グローバルショートカットキーは 1 つのキーです。修飾キーと組み合わせることもできます。</translation>
    </message>
    <message>
        <source>This keyboard does not have the key.</source>
        <translation>このキーボードにそのキーはありません。</translation>
    </message>
    <message>
        <source>Another program uses this hotkey.</source>
        <translation>ほかのプログラムがこのショートカットキーを使用しています。</translation>
    </message>
    <message>
        <source>The hotkey was refused by you or by the desktop.</source>
        <translation>ショートカットキーは、ユーザーまたはデスクトップ環境によって拒否されました。</translation>
    </message>
    <message>
        <source>Global hotkeys are not available on this system.</source>
        <translation>このシステムではグローバルショートカットキーを使用できません。</translation>
    </message>
    <message>
        <source>Click to try again.</source>
        <translation>クリックすると再試行します。</translation>
    </message>
    <message>
        <source>Assigned by the desktop: %1</source>
        <translation>デスクトップ環境による割り当て: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetDateTime</name>
    <message>
        <source>Not set</source>
        <translation>未設定</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Enter a date and time from %1 to %2</source>
        <translation>%1 ～ %2 の日付と時刻を入力してください</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetLanguage</name>
    <message>
        <source>Follow the system</source>
        <translation>システムに従う</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetMouseAction</name>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Left Click</source>
        <translation>左クリック</translation>
    </message>
    <message>
        <source>Left Double Click</source>
        <translation>左ダブルクリック</translation>
    </message>
    <message>
        <source>Right Click</source>
        <translation>右クリック</translation>
    </message>
    <message>
        <source>Right Double Click</source>
        <translation>右ダブルクリック</translation>
    </message>
    <message>
        <source>Middle Click</source>
        <translation>中クリック</translation>
    </message>
    <message>
        <source>Middle Double Click</source>
        <translation>中ダブルクリック</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>ホイール</translation>
    </message>
    <message>
        <source>Left Drag</source>
        <translation>左ドラッグ</translation>
    </message>
    <message>
        <source>Right Drag</source>
        <translation>右ドラッグ</translation>
    </message>
    <message>
        <source>Middle Drag</source>
        <translation>中ドラッグ</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Super</source>
        <translation>Super</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetPassword</name>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetPath</name>
    <message>
        <source>Browse...</source>
        <translation>参照…</translation>
    </message>
    <message>
        <source>This folder does not exist.</source>
        <translation>このフォルダは存在しません。</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>これはフォルダではなくファイルです。</translation>
    </message>
    <message>
        <source>This is a folder, not a file.</source>
        <translation>これはファイルではなくフォルダです。</translation>
    </message>
    <message>
        <source>The folder of this file does not exist.</source>
        <translation>このファイルのフォルダは存在しません。</translation>
    </message>
    <message>
        <source>This file does not exist.</source>
        <translation>このファイルは存在しません。</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetStringList</name>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下へ移動</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigItemWidget</name>
    <message>
        <source>From %1 to %2</source>
        <translation>%1 ～ %2</translation>
    </message>
    <message>
        <source>Enter a number from %1 to %2</source>
        <translation>%1 ～ %2 の数値を入力してください</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigurationWindow</name>
    <message>
        <source>Confirm</source>
        <translation>確認</translation>
    </message>
    <message>
        <source>Are you sure to restore current page default?</source>
        <translation>現在のページをデフォルトに戻してもよろしいですか？</translation>
    </message>
    <message>
        <source>Are you sure to restore all default?</source>
        <translation>すべての設定をデフォルトに戻してもよろしいですか？</translation>
    </message>
</context>
<context>
    <name>MtConf::DependencyNote</name>
    <message>
        <source>Needs “%1”</source>
        <translation>「%1」が必要です</translation>
    </message>
    <message>
        <source>Not with “%1”</source>
        <translation>「%1」と同時には使えません</translation>
    </message>
    <message>
        <source>Needs “%1”: %2</source>
        <translation>「%1」が必要です: %2</translation>
    </message>
</context>
<context>
    <name>MtConf::HistoryFeature</name>
    <message>
        <source>Removed 1 entry.</source>
        <translation>1 件のエントリを削除しました。</translation>
    </message>
    <message numerus="yes">
        <source>Removed %n entries.</source>
        <translation>
            <numerusform>%n 件のエントリを削除しました。</numerusform>
        </translation>
    </message>
    <message>
        <source>Imported 1 setting.</source>
        <translation>1 件の設定をインポートしました。</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n settings.</source>
        <translation>
            <numerusform>%n 件の設定をインポートしました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Restored %n settings.</source>
        <translation>
            <numerusform>%n 件の設定をデフォルトに戻しました。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MtConf::ImportDialog</name>
    <message>
        <source>Import settings</source>
        <translation>設定のインポート</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; changes these settings. Those that are checked are imported.</source>
        <translation>ファイル「%1」は次の設定を変更します。チェックした設定がインポートされます。</translation>
    </message>
    <message>
        <source>Settings in the file</source>
        <translation>ファイル内の設定</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>現在</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>%1, here: %2, in the file: %3</source>
        <translation>%1、現在: %2、ファイル: %3</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>すべて解除</translation>
    </message>
    <message>
        <source>Import (%1)</source>
        <translation>インポート (%1)</translation>
    </message>
    <message>
        <source>Other settings</source>
        <translation>その他の設定</translation>
    </message>
    <message>
        <source>%1 (default)</source>
        <translation>%1 (デフォルト)</translation>
    </message>
    <message>
        <source>Does not exist</source>
        <translation>存在しません</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>削除済み</translation>
    </message>
    <message>
        <source>Entries of other versions, which are left out: %1</source>
        <translation>除外された、ほかのバージョンのエントリ: %1</translation>
    </message>
    <message>
        <source>Entries that cannot be read, which are left out: %1</source>
        <translation>除外された、読み取れないエントリ: %1</translation>
    </message>
    <message>
        <source>Settings that stay on each computer, which are left out: %1</source>
        <translation>除外された、各コンピューター固有の設定: %1</translation>
    </message>
    <message>
        <source>Locked settings, which are left out: %1</source>
        <translation>除外された、ロック中の設定: %1</translation>
    </message>
    <message>
        <source>Settings whose value is not accepted here: %1</source>
        <translation>ここでは値が受け付けられない設定: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::ImportExport</name>
    <message>
        <source>Import…</source>
        <translation>インポート…</translation>
    </message>
    <message>
        <source>Import settings from a file</source>
        <translation>ファイルから設定をインポート</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>エクスポート…</translation>
    </message>
    <message>
        <source>Export the settings to a file</source>
        <translation>設定をファイルにエクスポート</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>設定 (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Export settings</source>
        <translation>設定のエクスポート</translation>
    </message>
    <message>
        <source>Import settings</source>
        <translation>設定のインポート</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; changes nothing here.</source>
        <translation>ファイル「%1」で変更される設定はありません。</translation>
    </message>
    <message>
        <source>Settings that could not be imported: %1</source>
        <translation>インポートできなかった設定: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::InputConflicts</name>
    <message>
        <source>%1 is used by: %2</source>
        <translation>%1 は次で使用されています: %2</translation>
    </message>
    <message>
        <source>Also used by: %1</source>
        <translation>次でも使用されています: %1</translation>
    </message>
    <message>
        <source>%1 is needed for typing and editing.</source>
        <translation>%1 は文字の入力や編集に必要です。</translation>
    </message>
</context>
<context>
    <name>MtConf::InputOffer</name>
    <message>
        <source>Replace</source>
        <translation>置き換え</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>入れ替え</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>両方を残す</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>MtConf::InputRegistry</name>
    <message>
        <source>another shortcut of this program</source>
        <translation>このプログラムの別のショートカットキー</translation>
    </message>
</context>
<context>
    <name>MtConf::LivePages</name>
    <message>
        <source>Changed elsewhere meanwhile. What you type replaces it.</source>
        <translation>入力中にほかの場所で変更されました。入力した内容で置き換えられます。</translation>
    </message>
</context>
<context>
    <name>MtConf::ModernPageBuilder</name>
    <message>
        <source>, </source>
        <comment>between the chosen entries</comment>
        <translation>、</translation>
    </message>
    <message>
        <source>No modifier key</source>
        <translation>修飾キーなし</translation>
    </message>
</context>
<context>
    <name>MtConf::ModernWindow</name>
    <message>
        <source>Reset this page…</source>
        <translation>ページをデフォルトに戻す…</translation>
    </message>
    <message>
        <source>Reset all settings…</source>
        <translation>すべてデフォルトに戻す…</translation>
    </message>
    <message>
        <source>More</source>
        <translation>その他</translation>
    </message>
</context>
<context>
    <name>MtConf::ResetQuestion</name>
    <message>
        <source>Reset this page?</source>
        <translation>このページをデフォルトに戻しますか？</translation>
    </message>
    <message>
        <source>Reset all settings?</source>
        <translation>すべての設定をデフォルトに戻しますか？</translation>
    </message>
    <message>
        <source>Reset 1 setting on this page?</source>
        <translation>このページの 1 件の設定をデフォルトに戻しますか？</translation>
    </message>
    <message>
        <source>Reset 1 setting on all pages?</source>
        <translation>全ページの 1 件の設定をデフォルトに戻しますか？</translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings on this page?</source>
        <translation>
            <numerusform>このページの %n 件の設定をデフォルトに戻しますか？</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings on all pages?</source>
        <translation>
            <numerusform>全ページの %n 件の設定をデフォルトに戻しますか？</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>デフォルトに戻す</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>MtConf::RowReset</name>
    <message>
        <source>Show changed</source>
        <translation>変更済みを表示</translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n 件変更済み</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>%1をデフォルトに戻す</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>デフォルトに戻す</translation>
    </message>
    <message>
        <source>Copy key</source>
        <translation>キーをコピー</translation>
    </message>
    <message>
        <source>Copy value</source>
        <translation>値をコピー</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>変更済み</translation>
    </message>
    <message>
        <source>Changed settings</source>
        <translation>変更済みの設定</translation>
    </message>
</context>
<context>
    <name>MtConf::RowWords</name>
    <message>
        <source>Default: %1</source>
        <translation>デフォルト: %1</translation>
    </message>
    <message>
        <source>Not changed</source>
        <translation>変更なし</translation>
    </message>
    <message>
        <source>Changed on %1</source>
        <translation>変更日時: %1</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>変更済み</translation>
    </message>
    <message>
        <source>From the file %1</source>
        <translation>ファイル %1 の値</translation>
    </message>
    <message>
        <source>Changed by another program or computer on %1</source>
        <translation>ほかのプログラムまたはコンピューターによる変更: %1</translation>
    </message>
    <message>
        <source>Changed by another program or computer</source>
        <translation>ほかのプログラムまたはコンピューターによる変更</translation>
    </message>
    <message>
        <source>Locked by the administrator</source>
        <translation>管理者によりロックされています</translation>
    </message>
</context>
<context>
    <name>MtConf::SettingsFile</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>「%1」はファイルではありません。</translation>
    </message>
    <message>
        <source>The settings could not be saved in &quot;%1&quot;.</source>
        <translation>設定を「%1」に保存できませんでした。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not exist.</source>
        <translation>ファイル「%1」は存在しません。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is larger than %2.</source>
        <translation>ファイル「%1」は %2 を超えています。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; could not be read.</source>
        <translation>ファイル「%1」を読み取れませんでした。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is empty.</source>
        <translation>ファイル「%1」は空です。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged: its content is nested too deeply.</source>
        <translation>ファイル「%1」は壊れています。内容の階層が深すぎます。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged or not complete.</source>
        <translation>ファイル「%1」は壊れているか、不完全です。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not contain settings.</source>
        <translation>ファイル「%1」に設定は含まれていません。</translation>
    </message>
    <message>
        <source>%1 settings</source>
        <comment>name of a file</comment>
        <translation>%1 の設定</translation>
    </message>
</context>
<context>
    <name>MtConf::SettingsFind</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>設定を検索</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>検索をクリア</translation>
    </message>
    <message>
        <source>Show more (%1)</source>
        <translation>さらに表示 (%1)</translation>
    </message>
    <message>
        <source>No setting matches “%1”</source>
        <translation>「%1」に一致する設定はありません</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>検索結果</translation>
    </message>
    <message>
        <source>Enter opens the page</source>
        <translation>Enter でページを開きます</translation>
    </message>
</context>
<context>
    <name>MtConf::UndoBar</name>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
</context>
<context>
    <name>MtConf::ValueInWords</name>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>未設定</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>空</translation>
    </message>
    <message>
        <source>%1 px</source>
        <translation>%1 px</translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation>%1 pt</translation>
    </message>
    <message>
        <source>bold</source>
        <translation>太字</translation>
    </message>
    <message>
        <source>italic</source>
        <translation>斜体</translation>
    </message>
    <message>
        <source>underlined</source>
        <translation>下線</translation>
    </message>
</context>
<context>
    <name>MtConf::WindowIdentity</name>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Settings — %1</source>
        <translation>設定 — %1</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Cannot set left-click separately</source>
        <translation>左クリックだけを設定することはできません</translation>
    </message>
    <message>
        <source>No set</source>
        <translation>未設定</translation>
    </message>
    <message>
        <source>Conflict with %1</source>
        <translation>「%1」と競合しています</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source> s</source>
        <translation> 秒</translation>
    </message>
    <message>
        <source> min</source>
        <translation> 分</translation>
    </message>
    <message>
        <source> h</source>
        <translation> 時間</translation>
    </message>
    <message>
        <source> d</source>
        <translation> 日</translation>
    </message>
</context>
</TS>
