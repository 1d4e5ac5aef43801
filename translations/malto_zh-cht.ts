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
    <message>
        <source>Another program may use this hotkey.</source>
        <translation>其他程式可能正在使用此快速鍵。</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重試</translation>
    </message>
    <message>
        <source>The desktop has not answered yet.</source>
        <translation>桌面環境尚未回應。</translation>
    </message>
    <message>
        <source>The hotkey has not been set up yet.</source>
        <translation>此快速鍵尚未設定。</translation>
    </message>
    <message>
        <source>A global hotkey is one key, alone or with modifiers.</source>
        <translation>全域快速鍵只能是一個按鍵，可單獨使用或搭配修飾鍵。</translation>
    </message>
    <message>
        <source>This keyboard does not have the key.</source>
        <translation>此鍵盤沒有該按鍵。</translation>
    </message>
    <message>
        <source>Another program uses this hotkey.</source>
        <translation>其他程式正在使用此快速鍵。</translation>
    </message>
    <message>
        <source>The hotkey was refused by you or by the desktop.</source>
        <translation>您或桌面環境拒絕了此快速鍵。</translation>
    </message>
    <message>
        <source>Global hotkeys are not available on this system.</source>
        <translation>全域快速鍵在此系統上無法使用。</translation>
    </message>
    <message>
        <source>Click to try again.</source>
        <translation>按一下即可重試。</translation>
    </message>
    <message>
        <source>Assigned by the desktop: %1</source>
        <translation>桌面環境指派的快速鍵：%1</translation>
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
    <name>MtConf::DependencyNote</name>
    <message>
        <source>Needs “%1”</source>
        <translation>需要「%1」</translation>
    </message>
    <message>
        <source>Not with “%1”</source>
        <translation>不能與「%1」同時使用</translation>
    </message>
    <message>
        <source>Needs “%1”: %2</source>
        <translation>需要「%1」：%2</translation>
    </message>
</context>
<context>
    <name>MtConf::HistoryFeature</name>
    <message>
        <source>Removed 1 entry.</source>
        <translation>已移除 1 個項目。</translation>
    </message>
    <message numerus="yes">
        <source>Removed %n entries.</source>
        <translation>
            <numerusform>已移除 %n 個項目。</numerusform>
        </translation>
    </message>
    <message>
        <source>Imported 1 setting.</source>
        <translation>已匯入 1 項設定。</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n settings.</source>
        <translation>
            <numerusform>已匯入 %n 項設定。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Restored %n settings.</source>
        <translation>
            <numerusform>已將 %n 項設定還原為預設值。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MtConf::ImportDialog</name>
    <message>
        <source>Import settings</source>
        <translation>匯入設定</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; changes these settings. Those that are checked are imported.</source>
        <translation>檔案「%1」會變更以下設定。將匯入已勾選的設定。</translation>
    </message>
    <message>
        <source>Settings in the file</source>
        <translation>檔案中的設定</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>設定項目</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>目前</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>檔案中</translation>
    </message>
    <message>
        <source>%1, here: %2, in the file: %3</source>
        <translation>%1，目前：%2，檔案中：%3</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>全選</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>全不選</translation>
    </message>
    <message>
        <source>Import (%1)</source>
        <translation>匯入 (%1)</translation>
    </message>
    <message>
        <source>Other settings</source>
        <translation>其他設定</translation>
    </message>
    <message>
        <source>%1 (default)</source>
        <translation>%1（預設）</translation>
    </message>
    <message>
        <source>Does not exist</source>
        <translation>不存在</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>已移除</translation>
    </message>
    <message>
        <source>Entries of other versions, which are left out: %1</source>
        <translation>已略過的其他版本的項目：%1</translation>
    </message>
    <message>
        <source>Entries that cannot be read, which are left out: %1</source>
        <translation>已略過的無法讀取的項目：%1</translation>
    </message>
    <message>
        <source>Settings that stay on each computer, which are left out: %1</source>
        <translation>已略過的僅限本機的設定：%1</translation>
    </message>
    <message>
        <source>Locked settings, which are left out: %1</source>
        <translation>已略過的鎖定設定：%1</translation>
    </message>
    <message>
        <source>Settings whose value is not accepted here: %1</source>
        <translation>值在此處不被接受的設定：%1</translation>
    </message>
</context>
<context>
    <name>MtConf::ImportExport</name>
    <message>
        <source>Import…</source>
        <translation>匯入…</translation>
    </message>
    <message>
        <source>Import settings from a file</source>
        <translation>從檔案匯入設定</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>匯出…</translation>
    </message>
    <message>
        <source>Export the settings to a file</source>
        <translation>將設定匯出至檔案</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>設定 (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有檔案 (*)</translation>
    </message>
    <message>
        <source>Export settings</source>
        <translation>匯出設定</translation>
    </message>
    <message>
        <source>Import settings</source>
        <translation>匯入設定</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; changes nothing here.</source>
        <translation>檔案「%1」不會變更此處的任何設定。</translation>
    </message>
    <message>
        <source>Settings that could not be imported: %1</source>
        <translation>無法匯入的設定：%1</translation>
    </message>
</context>
<context>
    <name>MtConf::InputConflicts</name>
    <message>
        <source>%1 is used by: %2</source>
        <translation>%1 已用於：%2</translation>
    </message>
    <message>
        <source>Also used by: %1</source>
        <translation>也用於：%1</translation>
    </message>
    <message>
        <source>%1 is needed for typing and editing.</source>
        <translation>輸入與編輯時需要使用 %1。</translation>
    </message>
</context>
<context>
    <name>MtConf::InputOffer</name>
    <message>
        <source>Replace</source>
        <translation>取代</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>交換</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>兩者皆保留</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>MtConf::InputRegistry</name>
    <message>
        <source>another shortcut of this program</source>
        <translation>此程式的其他快速鍵</translation>
    </message>
</context>
<context>
    <name>MtConf::LivePages</name>
    <message>
        <source>Changed elsewhere meanwhile. What you type replaces it.</source>
        <translation>期間已在別處變更。您輸入的內容將取代新值。</translation>
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
        <translation>無修飾鍵</translation>
    </message>
</context>
<context>
    <name>MtConf::ModernWindow</name>
    <message>
        <source>Reset this page…</source>
        <translation>將此頁還原為預設值…</translation>
    </message>
    <message>
        <source>Reset all settings…</source>
        <translation>全部還原為預設值…</translation>
    </message>
    <message>
        <source>More</source>
        <translation>更多</translation>
    </message>
</context>
<context>
    <name>MtConf::ResetQuestion</name>
    <message>
        <source>Reset this page?</source>
        <translation>要將此頁還原為預設值嗎？</translation>
    </message>
    <message>
        <source>Reset all settings?</source>
        <translation>要將所有設定還原為預設值嗎？</translation>
    </message>
    <message>
        <source>Reset 1 setting on this page?</source>
        <translation>要將此頁的 1 項設定還原為預設值嗎？</translation>
    </message>
    <message>
        <source>Reset 1 setting on all pages?</source>
        <translation>要將所有頁面的 1 項設定還原為預設值嗎？</translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings on this page?</source>
        <translation>
            <numerusform>要將此頁的 %n 項設定還原為預設值嗎？</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings on all pages?</source>
        <translation>
            <numerusform>要將所有頁面的 %n 項設定還原為預設值嗎？</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>還原為預設值</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>MtConf::RowReset</name>
    <message>
        <source>Show changed</source>
        <translation>顯示已變更</translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>已變更 %n 項</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>將「%1」還原為預設值</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>還原為預設值</translation>
    </message>
    <message>
        <source>Copy key</source>
        <translation>複製鍵名</translation>
    </message>
    <message>
        <source>Copy value</source>
        <translation>複製值</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>已變更</translation>
    </message>
    <message>
        <source>Changed settings</source>
        <translation>已變更的設定</translation>
    </message>
</context>
<context>
    <name>MtConf::RowWords</name>
    <message>
        <source>Default: %1</source>
        <translation>預設：%1</translation>
    </message>
    <message>
        <source>Not changed</source>
        <translation>未變更</translation>
    </message>
    <message>
        <source>Changed on %1</source>
        <translation>變更於 %1</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>已變更</translation>
    </message>
    <message>
        <source>From the file %1</source>
        <translation>來自檔案 %1</translation>
    </message>
    <message>
        <source>Changed by another program or computer on %1</source>
        <translation>由其他程式或電腦變更於 %1</translation>
    </message>
    <message>
        <source>Changed by another program or computer</source>
        <translation>由其他程式或電腦變更</translation>
    </message>
    <message>
        <source>Locked by the administrator</source>
        <translation>已由系統管理員鎖定</translation>
    </message>
</context>
<context>
    <name>MtConf::SettingsFile</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>「%1」不是檔案。</translation>
    </message>
    <message>
        <source>The settings could not be saved in &quot;%1&quot;.</source>
        <translation>無法將設定儲存至「%1」。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not exist.</source>
        <translation>檔案「%1」不存在。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is larger than %2.</source>
        <translation>檔案「%1」大於 %2。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; could not be read.</source>
        <translation>無法讀取檔案「%1」。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is empty.</source>
        <translation>檔案「%1」是空的。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged: its content is nested too deeply.</source>
        <translation>檔案「%1」已損毀：內容的巢狀層數過深。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged or not complete.</source>
        <translation>檔案「%1」已損毀或不完整。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not contain settings.</source>
        <translation>檔案「%1」不含設定。</translation>
    </message>
    <message>
        <source>%1 settings</source>
        <comment>name of a file</comment>
        <translation>%1 設定</translation>
    </message>
</context>
<context>
    <name>MtConf::SettingsFind</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>搜尋設定</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>清除搜尋</translation>
    </message>
    <message>
        <source>Show more (%1)</source>
        <translation>顯示更多 (%1)</translation>
    </message>
    <message>
        <source>No setting matches “%1”</source>
        <translation>沒有符合「%1」的設定</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>Enter opens the page</source>
        <translation>按 Enter 鍵開啟頁面</translation>
    </message>
</context>
<context>
    <name>MtConf::UndoBar</name>
    <message>
        <source>Undo</source>
        <translation>復原</translation>
    </message>
</context>
<context>
    <name>MtConf::ValueInWords</name>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>None</source>
        <translation>無</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>未設定</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>空白</translation>
    </message>
    <message>
        <source>%1 px</source>
        <translation>%1 像素</translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation>%1 點</translation>
    </message>
    <message>
        <source>bold</source>
        <translation>粗體</translation>
    </message>
    <message>
        <source>italic</source>
        <translation>斜體</translation>
    </message>
    <message>
        <source>underlined</source>
        <translation>底線</translation>
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
