<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB" sourcelanguage="en_US">
<context>
    <name>ColorSelectButton</name>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
</context>
<context>
    <name>ConfigurationWindow</name>
    <message>
        <source>Quorvi Configuration</source>
        <translation>Quorvi Configuration</translation>
    </message>
    <message>
        <source>Restore All Default</source>
        <translation>Restore All Defaults</translation>
    </message>
    <message>
        <source>Restore Default</source>
        <translation>Restore Defaults</translation>
    </message>
</context>
<context>
    <name>KeySequenceEdit</name>
    <message>
        <source>Press shortcut key</source>
        <translation>Press a shortcut</translation>
    </message>
    <message>
        <source>Clear shortcut key</source>
        <translation>Clear shortcut</translation>
    </message>
    <message>
        <source>Shortkey [%1] is too simple.
To avoid conflicts with other functions and prevent accidental activations, please set a more complex hotkey combination.

If you need to set simple shortcuts, go to the [System] Settings page and check [Allow simple global hotkeys].</source>
        <translation>The shortcut [%1] is too simple.
To avoid conflicts with other functions and accidental activation, please set a more complex key combination.

If you need simple shortcuts, go to the [System] settings page and tick [Allow simple global hotkeys].</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfDefWidgetQKeySequence</name>
    <message>
        <source>Not set</source>
        <translation>Not set</translation>
    </message>
    <message>
        <source>Setup failed, the hotkey may be occupied. Click to try setup again.</source>
        <translation>Setup failed; the hotkey may already be in use. Click to try again.</translation>
    </message>
    <message>
        <source>Setup success.</source>
        <translation>Setup successful.</translation>
    </message>
    <message>
        <source>Disabled.</source>
        <translation>Disabled.</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetDateTime</name>
    <message>
        <source>Not set</source>
        <translation>Not set</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>Enter a date and time from %1 to %2</source>
        <translation>Enter a date and time from %1 to %2</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetLanguage</name>
    <message>
        <source>Follow the system</source>
        <translation>Follow the system</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetMouseAction</name>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Left Click</source>
        <translation>Left click</translation>
    </message>
    <message>
        <source>Left Double Click</source>
        <translation>Left double-click</translation>
    </message>
    <message>
        <source>Right Click</source>
        <translation>Right click</translation>
    </message>
    <message>
        <source>Right Double Click</source>
        <translation>Right double-click</translation>
    </message>
    <message>
        <source>Middle Click</source>
        <translation>Middle click</translation>
    </message>
    <message>
        <source>Middle Double Click</source>
        <translation>Middle double-click</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Wheel</translation>
    </message>
    <message>
        <source>Left Drag</source>
        <translation>Left drag</translation>
    </message>
    <message>
        <source>Right Drag</source>
        <translation>Right drag</translation>
    </message>
    <message>
        <source>Middle Drag</source>
        <translation>Middle drag</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetPassword</name>
    <message>
        <source>Show</source>
        <translation>Show</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetPath</name>
    <message>
        <source>Browse...</source>
        <translation>Browse…</translation>
    </message>
    <message>
        <source>This folder does not exist.</source>
        <translation>This folder does not exist.</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>This is a file, not a folder.</translation>
    </message>
    <message>
        <source>This is a folder, not a file.</source>
        <translation>This is a folder, not a file.</translation>
    </message>
    <message>
        <source>The folder of this file does not exist.</source>
        <translation>The folder of this file does not exist.</translation>
    </message>
    <message>
        <source>This file does not exist.</source>
        <translation>This file does not exist.</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetStringList</name>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Move up</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Move down</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigItemWidget</name>
    <message>
        <source>From %1 to %2</source>
        <translation>From %1 to %2</translation>
    </message>
    <message>
        <source>Enter a number from %1 to %2</source>
        <translation>Enter a number from %1 to %2</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigurationWindow</name>
    <message>
        <source>Confirm</source>
        <translation>Confirm</translation>
    </message>
    <message>
        <source>Are you sure to restore current page default?</source>
        <translation>Are you sure you want to restore the defaults of the current page?</translation>
    </message>
    <message>
        <source>Are you sure to restore all default?</source>
        <translation>Are you sure you want to restore all defaults?</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Cannot set left-click separately</source>
        <translation>Left click cannot be set on its own</translation>
    </message>
    <message>
        <source>No set</source>
        <translation>Not set</translation>
    </message>
    <message>
        <source>Conflict with %1</source>
        <translation>Conflict with ‘%1’</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source> h</source>
        <translation> h</translation>
    </message>
    <message>
        <source> d</source>
        <translation> d</translation>
    </message>
</context>
</TS>
