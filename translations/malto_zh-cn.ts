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
