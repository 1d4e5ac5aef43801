<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>ColorSelectButton</name>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
</context>
<context>
    <name>ConfigurationWindow</name>
    <message>
        <source>Quorvi Configuration</source>
        <translation>Quorvi 设置</translation>
    </message>
    <message>
        <source>Restore All Default</source>
        <translation>全部恢复默认</translation>
    </message>
    <message>
        <source>Restore Default</source>
        <translation>恢复默认</translation>
    </message>
</context>
<context>
    <name>KeySequenceEdit</name>
    <message>
        <source>Press shortcut key</source>
        <translation>请按下快捷键</translation>
    </message>
    <message>
        <source>Clear shortcut key</source>
        <translation>清除快捷键</translation>
    </message>
    <message>
        <source>Shortkey [%1] is too simple.
To avoid conflicts with other functions and prevent accidental activations, please set a more complex hotkey combination.

If you need to set simple shortcuts, go to the [System] Settings page and check [Allow simple global hotkeys].</source>
        <translation>快捷键 [%1] 过于简单。
为避免与其他功能冲突或被意外触发，请设置更复杂的组合键。

如需设置简单的快捷键，请前往 [系统] 设置页面，勾选 [允许简单的全局快捷键]。</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfDefWidgetQKeySequence</name>
    <message>
        <source>Not set</source>
        <translation>未设置</translation>
    </message>
    <message>
        <source>Setup failed, the hotkey may be occupied. Click to try setup again.</source>
        <translation>设置失败，该快捷键可能已被占用。点击可重试。</translation>
    </message>
    <message>
        <source>Setup success.</source>
        <translation>设置成功。</translation>
    </message>
    <message>
        <source>Disabled.</source>
        <translation>已禁用。</translation>
    </message>
    <message>
        <source>Another program may use this hotkey.</source>
        <translation>其他程序可能正在使用此快捷键。</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>The desktop has not answered yet.</source>
        <translation>桌面环境尚未回应。</translation>
    </message>
    <message>
        <source>The hotkey has not been set up yet.</source>
        <translation>该快捷键尚未设置。</translation>
    </message>
    <message>
        <source>A global hotkey is one key, alone or with modifiers.</source>
        <translation>全局快捷键只能是一个键，可单独使用或搭配修饰键。</translation>
    </message>
    <message>
        <source>This keyboard does not have the key.</source>
        <translation>此键盘没有该键。</translation>
    </message>
    <message>
        <source>Another program uses this hotkey.</source>
        <translation>其他程序正在使用此快捷键。</translation>
    </message>
    <message>
        <source>The hotkey was refused by you or by the desktop.</source>
        <translation>您或桌面环境拒绝了此快捷键。</translation>
    </message>
    <message>
        <source>Global hotkeys are not available on this system.</source>
        <translation>全局快捷键在此系统上不可用。</translation>
    </message>
    <message>
        <source>Click to try again.</source>
        <translation>点击可重试。</translation>
    </message>
    <message>
        <source>Assigned by the desktop: %1</source>
        <translation>桌面环境分配的快捷键：%1</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetDateTime</name>
    <message>
        <source>Not set</source>
        <translation>未设置</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Enter a date and time from %1 to %2</source>
        <translation>请输入从 %1 到 %2 的日期和时间</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetLanguage</name>
    <message>
        <source>Follow the system</source>
        <translation>跟随系统</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetMouseAction</name>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Left Click</source>
        <translation>左键单击</translation>
    </message>
    <message>
        <source>Left Double Click</source>
        <translation>左键双击</translation>
    </message>
    <message>
        <source>Right Click</source>
        <translation>右键单击</translation>
    </message>
    <message>
        <source>Right Double Click</source>
        <translation>右键双击</translation>
    </message>
    <message>
        <source>Middle Click</source>
        <translation>中键单击</translation>
    </message>
    <message>
        <source>Middle Double Click</source>
        <translation>中键双击</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>滚轮</translation>
    </message>
    <message>
        <source>Left Drag</source>
        <translation>左键拖动</translation>
    </message>
    <message>
        <source>Right Drag</source>
        <translation>右键拖动</translation>
    </message>
    <message>
        <source>Middle Drag</source>
        <translation>中键拖动</translation>
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
        <translation>显示</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetPath</name>
    <message>
        <source>Browse...</source>
        <translation>浏览…</translation>
    </message>
    <message>
        <source>This folder does not exist.</source>
        <translation>此文件夹不存在。</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>这是文件，不是文件夹。</translation>
    </message>
    <message>
        <source>This is a folder, not a file.</source>
        <translation>这是文件夹，不是文件。</translation>
    </message>
    <message>
        <source>The folder of this file does not exist.</source>
        <translation>此文件的文件夹不存在。</translation>
    </message>
    <message>
        <source>This file does not exist.</source>
        <translation>此文件不存在。</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetStringList</name>
    <message>
        <source>Add</source>
        <translation>添加</translation>
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
        <translation>从 %1 到 %2</translation>
    </message>
    <message>
        <source>Enter a number from %1 to %2</source>
        <translation>请输入从 %1 到 %2 的数字</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigurationWindow</name>
    <message>
        <source>Confirm</source>
        <translation>确认</translation>
    </message>
    <message>
        <source>Are you sure to restore current page default?</source>
        <translation>确定要将当前页面恢复为默认设置吗？</translation>
    </message>
    <message>
        <source>Are you sure to restore all default?</source>
        <translation>确定要将所有设置恢复为默认值吗？</translation>
    </message>
</context>
<context>
    <name>MtConf::DependencyNote</name>
    <message>
        <source>Needs “%1”</source>
        <translation>需要“%1”</translation>
    </message>
    <message>
        <source>Not with “%1”</source>
        <translation>不能与“%1”同时使用</translation>
    </message>
    <message>
        <source>Needs “%1”: %2</source>
        <translation>需要“%1”：%2</translation>
    </message>
</context>
<context>
    <name>MtConf::HistoryFeature</name>
    <message>
        <source>Removed 1 entry.</source>
        <translation>已移除 1 个条目。</translation>
    </message>
    <message numerus="yes">
        <source>Removed %n entries.</source>
        <translation>
            <numerusform>已移除 %n 个条目。</numerusform>
        </translation>
    </message>
    <message>
        <source>Imported 1 setting.</source>
        <translation>已导入 1 项设置。</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n settings.</source>
        <translation>
            <numerusform>已导入 %n 项设置。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Restored %n settings.</source>
        <translation>
            <numerusform>已将 %n 项设置恢复默认。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MtConf::ImportDialog</name>
    <message>
        <source>Import settings</source>
        <translation>导入设置</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; changes these settings. Those that are checked are imported.</source>
        <translation>文件“%1”会更改以下设置。将导入已勾选的设置。</translation>
    </message>
    <message>
        <source>Settings in the file</source>
        <translation>文件中的设置</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>设置项</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>当前</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>文件中</translation>
    </message>
    <message>
        <source>%1, here: %2, in the file: %3</source>
        <translation>%1，当前：%2，文件中：%3</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>全不选</translation>
    </message>
    <message>
        <source>Import (%1)</source>
        <translation>导入 (%1)</translation>
    </message>
    <message>
        <source>Other settings</source>
        <translation>其他设置</translation>
    </message>
    <message>
        <source>%1 (default)</source>
        <translation>%1（默认）</translation>
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
        <translation>已略过的其他版本的条目：%1</translation>
    </message>
    <message>
        <source>Entries that cannot be read, which are left out: %1</source>
        <translation>已略过的无法读取的条目：%1</translation>
    </message>
    <message>
        <source>Settings that stay on each computer, which are left out: %1</source>
        <translation>已略过的仅限本机的设置：%1</translation>
    </message>
    <message>
        <source>Locked settings, which are left out: %1</source>
        <translation>已略过的锁定设置：%1</translation>
    </message>
    <message>
        <source>Settings whose value is not accepted here: %1</source>
        <translation>值在此处不被接受的设置：%1</translation>
    </message>
</context>
<context>
    <name>MtConf::ImportExport</name>
    <message>
        <source>Import…</source>
        <translation>导入…</translation>
    </message>
    <message>
        <source>Import settings from a file</source>
        <translation>从文件导入设置</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>导出…</translation>
    </message>
    <message>
        <source>Export the settings to a file</source>
        <translation>将设置导出到文件</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>设置 (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>Export settings</source>
        <translation>导出设置</translation>
    </message>
    <message>
        <source>Import settings</source>
        <translation>导入设置</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; changes nothing here.</source>
        <translation>文件“%1”不会更改此处的任何设置。</translation>
    </message>
    <message>
        <source>Settings that could not be imported: %1</source>
        <translation>未能导入的设置：%1</translation>
    </message>
</context>
<context>
    <name>MtConf::InputConflicts</name>
    <message>
        <source>%1 is used by: %2</source>
        <translation>%1 已用于：%2</translation>
    </message>
    <message>
        <source>Also used by: %1</source>
        <translation>也用于：%1</translation>
    </message>
    <message>
        <source>%1 is needed for typing and editing.</source>
        <translation>输入和编辑时需要使用 %1。</translation>
    </message>
</context>
<context>
    <name>MtConf::InputOffer</name>
    <message>
        <source>Replace</source>
        <translation>替换</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>交换</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>都保留</translation>
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
        <translation>本程序的其他快捷键</translation>
    </message>
</context>
<context>
    <name>MtConf::LivePages</name>
    <message>
        <source>Changed elsewhere meanwhile. What you type replaces it.</source>
        <translation>期间已在别处更改。您输入的内容将替换新值。</translation>
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
        <translation>无修饰键</translation>
    </message>
</context>
<context>
    <name>MtConf::ModernWindow</name>
    <message>
        <source>Reset this page…</source>
        <translation>将此页恢复默认…</translation>
    </message>
    <message>
        <source>Reset all settings…</source>
        <translation>全部恢复默认…</translation>
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
        <translation>要将此页恢复默认吗？</translation>
    </message>
    <message>
        <source>Reset all settings?</source>
        <translation>要将所有设置恢复默认吗？</translation>
    </message>
    <message>
        <source>Reset 1 setting on this page?</source>
        <translation>要将此页的 1 项设置恢复默认吗？</translation>
    </message>
    <message>
        <source>Reset 1 setting on all pages?</source>
        <translation>要将所有页面的 1 项设置恢复默认吗？</translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings on this page?</source>
        <translation>
            <numerusform>要将此页的 %n 项设置恢复默认吗？</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings on all pages?</source>
        <translation>
            <numerusform>要将所有页面的 %n 项设置恢复默认吗？</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>恢复默认</translation>
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
        <translation>显示已更改</translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>已更改 %n 项</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>将“%1”恢复默认</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>恢复默认</translation>
    </message>
    <message>
        <source>Copy key</source>
        <translation>复制键名</translation>
    </message>
    <message>
        <source>Copy value</source>
        <translation>复制值</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>已更改</translation>
    </message>
    <message>
        <source>Changed settings</source>
        <translation>已更改的设置</translation>
    </message>
</context>
<context>
    <name>MtConf::RowWords</name>
    <message>
        <source>Default: %1</source>
        <translation>默认：%1</translation>
    </message>
    <message>
        <source>Not changed</source>
        <translation>未更改</translation>
    </message>
    <message>
        <source>Changed on %1</source>
        <translation>更改于 %1</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>已更改</translation>
    </message>
    <message>
        <source>From the file %1</source>
        <translation>来自文件 %1</translation>
    </message>
    <message>
        <source>Changed by another program or computer on %1</source>
        <translation>由其他程序或计算机更改于 %1</translation>
    </message>
    <message>
        <source>Changed by another program or computer</source>
        <translation>由其他程序或计算机更改</translation>
    </message>
    <message>
        <source>Locked by the administrator</source>
        <translation>已被管理员锁定</translation>
    </message>
</context>
<context>
    <name>MtConf::SettingsFile</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>“%1”不是文件。</translation>
    </message>
    <message>
        <source>The settings could not be saved in &quot;%1&quot;.</source>
        <translation>无法将设置保存到“%1”。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not exist.</source>
        <translation>文件“%1”不存在。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is larger than %2.</source>
        <translation>文件“%1”大于 %2。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; could not be read.</source>
        <translation>无法读取文件“%1”。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is empty.</source>
        <translation>文件“%1”为空。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged: its content is nested too deeply.</source>
        <translation>文件“%1”已损坏：内容嵌套过深。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged or not complete.</source>
        <translation>文件“%1”已损坏或不完整。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not contain settings.</source>
        <translation>文件“%1”不包含设置。</translation>
    </message>
    <message>
        <source>%1 settings</source>
        <comment>name of a file</comment>
        <translation>%1 设置</translation>
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
        <translation>搜索设置</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>清除搜索</translation>
    </message>
    <message>
        <source>Show more (%1)</source>
        <translation>显示更多 (%1)</translation>
    </message>
    <message>
        <source>No setting matches “%1”</source>
        <translation>没有与“%1”匹配的设置</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Enter opens the page</source>
        <translation>按 Enter 键打开页面</translation>
    </message>
</context>
<context>
    <name>MtConf::UndoBar</name>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
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
        <translation>无</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>未设置</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>空</translation>
    </message>
    <message>
        <source>%1 px</source>
        <translation>%1 像素</translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation>%1 磅</translation>
    </message>
    <message>
        <source>bold</source>
        <translation>粗体</translation>
    </message>
    <message>
        <source>italic</source>
        <translation>斜体</translation>
    </message>
    <message>
        <source>underlined</source>
        <translation>下划线</translation>
    </message>
</context>
<context>
    <name>MtConf::WindowIdentity</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Settings — %1</source>
        <translation>设置 — %1</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Cannot set left-click separately</source>
        <translation>不能单独设置左键单击</translation>
    </message>
    <message>
        <source>No set</source>
        <translation>未设置</translation>
    </message>
    <message>
        <source>Conflict with %1</source>
        <translation>与“%1”冲突</translation>
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
        <translation> 分钟</translation>
    </message>
    <message>
        <source> h</source>
        <translation> 小时</translation>
    </message>
    <message>
        <source> d</source>
        <translation> 天</translation>
    </message>
</context>
</TS>
