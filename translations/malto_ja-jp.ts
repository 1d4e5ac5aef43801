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
