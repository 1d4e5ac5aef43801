<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
<context>
    <name>ColorSelectButton</name>
    <message>
        <source>None</source>
        <translation>無</translation>
    </message>
</context>
<context>
    <name>ConfigurationWindow</name>
    <message>
        <source>Quorvi Configuration</source>
        <translation>Quorvi 設定</translation>
    </message>
    <message>
        <source>Restore All Default</source>
        <translation>全部還原為預設值</translation>
    </message>
    <message>
        <source>Restore Default</source>
        <translation>還原為預設值</translation>
    </message>
</context>
<context>
    <name>KeySequenceEdit</name>
    <message>
        <source>Press shortcut key</source>
        <translation>請按下快速鍵</translation>
    </message>
    <message>
        <source>Clear shortcut key</source>
        <translation>清除快速鍵</translation>
    </message>
    <message>
        <source>Shortkey [%1] is too simple.
To avoid conflicts with other functions and prevent accidental activations, please set a more complex hotkey combination.

If you need to set simple shortcuts, go to the [System] Settings page and check [Allow simple global hotkeys].</source>
        <translation>快速鍵 [%1] 過於簡單。
為避免與其他功能衝突或意外觸發，請設定較複雜的組合鍵。

如需設定簡單的快速鍵，請前往 [系統] 設定頁面，勾選 [允許簡單的全域快速鍵]。</translation>
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
        <translation>設定失敗，此快速鍵可能已被佔用。按一下即可重試。</translation>
    </message>
    <message>
        <source>Setup success.</source>
        <translation>設定成功。</translation>
    </message>
    <message>
        <source>Disabled.</source>
        <translation>已停用。</translation>
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
        <translation>清除</translation>
    </message>
    <message>
        <source>Enter a date and time from %1 to %2</source>
        <translation>請輸入從 %1 到 %2 的日期和時間</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetLanguage</name>
    <message>
        <source>Follow the system</source>
        <translation>跟隨系統</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetMouseAction</name>
    <message>
        <source>None</source>
        <translation>無</translation>
    </message>
    <message>
        <source>Left Click</source>
        <translation>按一下左鍵</translation>
    </message>
    <message>
        <source>Left Double Click</source>
        <translation>按兩下左鍵</translation>
    </message>
    <message>
        <source>Right Click</source>
        <translation>按一下右鍵</translation>
    </message>
    <message>
        <source>Right Double Click</source>
        <translation>按兩下右鍵</translation>
    </message>
    <message>
        <source>Middle Click</source>
        <translation>按一下中鍵</translation>
    </message>
    <message>
        <source>Middle Double Click</source>
        <translation>按兩下中鍵</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>滾輪</translation>
    </message>
    <message>
        <source>Left Drag</source>
        <translation>左鍵拖曳</translation>
    </message>
    <message>
        <source>Right Drag</source>
        <translation>右鍵拖曳</translation>
    </message>
    <message>
        <source>Middle Drag</source>
        <translation>中鍵拖曳</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetPassword</name>
    <message>
        <source>Show</source>
        <translation>顯示</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetPath</name>
    <message>
        <source>Browse...</source>
        <translation>瀏覽…</translation>
    </message>
    <message>
        <source>This folder does not exist.</source>
        <translation>此資料夾不存在。</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>這是檔案，不是資料夾。</translation>
    </message>
    <message>
        <source>This is a folder, not a file.</source>
        <translation>這是資料夾，不是檔案。</translation>
    </message>
    <message>
        <source>The folder of this file does not exist.</source>
        <translation>此檔案的資料夾不存在。</translation>
    </message>
    <message>
        <source>This file does not exist.</source>
        <translation>此檔案不存在。</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetStringList</name>
    <message>
        <source>Add</source>
        <translation>新增</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下移</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigItemWidget</name>
    <message>
        <source>From %1 to %2</source>
        <translation>從 %1 到 %2</translation>
    </message>
    <message>
        <source>Enter a number from %1 to %2</source>
        <translation>請輸入從 %1 到 %2 的數字</translation>
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
        <translation>確定要將目前頁面還原為預設值嗎？</translation>
    </message>
    <message>
        <source>Are you sure to restore all default?</source>
        <translation>確定要將所有設定還原為預設值嗎？</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Cannot set left-click separately</source>
        <translation>無法單獨設定「按一下左鍵」</translation>
    </message>
    <message>
        <source>No set</source>
        <translation>未設定</translation>
    </message>
    <message>
        <source>Conflict with %1</source>
        <translation>與「%1」衝突</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> 毫秒</translation>
    </message>
    <message>
        <source> s</source>
        <translation> 秒</translation>
    </message>
    <message>
        <source> min</source>
        <translation> 分鐘</translation>
    </message>
    <message>
        <source> h</source>
        <translation> 小時</translation>
    </message>
    <message>
        <source> d</source>
        <translation> 天</translation>
    </message>
</context>
</TS>
