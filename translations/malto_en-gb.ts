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
    <message>
        <source>Another program may use this hotkey.</source>
        <translation>Another program may use this hotkey.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Try again</translation>
    </message>
    <message>
        <source>The desktop has not answered yet.</source>
        <translation>The desktop has not answered yet.</translation>
    </message>
    <message>
        <source>The hotkey has not been set up yet.</source>
        <translation>The hotkey has not been set up yet.</translation>
    </message>
    <message>
        <source>A global hotkey is one key, alone or with modifiers.</source>
        <translation>A global hotkey is one key, alone or with modifiers.</translation>
    </message>
    <message>
        <source>This keyboard does not have the key.</source>
        <translation>This keyboard does not have the key.</translation>
    </message>
    <message>
        <source>Another program uses this hotkey.</source>
        <translation>Another program uses this hotkey.</translation>
    </message>
    <message>
        <source>The hotkey was refused by you or by the desktop.</source>
        <translation>The hotkey was refused by you or by the desktop.</translation>
    </message>
    <message>
        <source>Global hotkeys are not available on this system.</source>
        <translation>Global hotkeys are not available on this system.</translation>
    </message>
    <message>
        <source>Click to try again.</source>
        <translation>Click to try again.</translation>
    </message>
    <message>
        <source>Assigned by the desktop: %1</source>
        <translation>Assigned by the desktop: %1</translation>
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
    <name>MtConf::DependencyNote</name>
    <message>
        <source>Needs “%1”</source>
        <translation>Needs ‘%1’</translation>
    </message>
    <message>
        <source>Not with “%1”</source>
        <translation>Not with ‘%1’</translation>
    </message>
    <message>
        <source>Needs “%1”: %2</source>
        <translation>Needs ‘%1’: %2</translation>
    </message>
</context>
<context>
    <name>MtConf::HistoryFeature</name>
    <message>
        <source>Removed 1 entry.</source>
        <translation>Removed 1 entry.</translation>
    </message>
    <message numerus="yes">
        <source>Removed %n entries.</source>
        <translation>
            <numerusform>Removed %n entry.</numerusform>
            <numerusform>Removed %n entries.</numerusform>
        </translation>
    </message>
    <message>
        <source>Imported 1 setting.</source>
        <translation>Imported 1 setting.</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n settings.</source>
        <translation>
            <numerusform>Imported %n setting.</numerusform>
            <numerusform>Imported %n settings.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Restored %n settings.</source>
        <translation>
            <numerusform>Restored %n setting.</numerusform>
            <numerusform>Restored %n settings.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MtConf::ImportDialog</name>
    <message>
        <source>Import settings</source>
        <translation>Import settings</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; changes these settings. Those that are checked are imported.</source>
        <translation>The file ‘%1’ changes these settings. Those that are checked are imported.</translation>
    </message>
    <message>
        <source>Settings in the file</source>
        <translation>Settings in the file</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Setting</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Here</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>In the file</translation>
    </message>
    <message>
        <source>%1, here: %2, in the file: %3</source>
        <translation>%1, here: %2, in the file: %3</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Select all</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Select none</translation>
    </message>
    <message>
        <source>Import (%1)</source>
        <translation>Import (%1)</translation>
    </message>
    <message>
        <source>Other settings</source>
        <translation>Other settings</translation>
    </message>
    <message>
        <source>%1 (default)</source>
        <translation>%1 (default)</translation>
    </message>
    <message>
        <source>Does not exist</source>
        <translation>Does not exist</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Removed</translation>
    </message>
    <message>
        <source>Entries of other versions, which are left out: %1</source>
        <translation>Entries of other versions, which are left out: %1</translation>
    </message>
    <message>
        <source>Entries that cannot be read, which are left out: %1</source>
        <translation>Entries that cannot be read, which are left out: %1</translation>
    </message>
    <message>
        <source>Settings that stay on each computer, which are left out: %1</source>
        <translation>Settings that stay on each computer, which are left out: %1</translation>
    </message>
    <message>
        <source>Locked settings, which are left out: %1</source>
        <translation>Locked settings, which are left out: %1</translation>
    </message>
    <message>
        <source>Settings whose value is not accepted here: %1</source>
        <translation>Settings whose value is not accepted here: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::ImportExport</name>
    <message>
        <source>Import…</source>
        <translation>Import…</translation>
    </message>
    <message>
        <source>Import settings from a file</source>
        <translation>Import settings from a file</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Export…</translation>
    </message>
    <message>
        <source>Export the settings to a file</source>
        <translation>Export the settings to a file</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>Settings (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>All files (*)</translation>
    </message>
    <message>
        <source>Export settings</source>
        <translation>Export settings</translation>
    </message>
    <message>
        <source>Import settings</source>
        <translation>Import settings</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; changes nothing here.</source>
        <translation>The file ‘%1’ changes nothing here.</translation>
    </message>
    <message>
        <source>Settings that could not be imported: %1</source>
        <translation>Settings that could not be imported: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::InputConflicts</name>
    <message>
        <source>%1 is used by: %2</source>
        <translation>%1 is used by: %2</translation>
    </message>
    <message>
        <source>Also used by: %1</source>
        <translation>Also used by: %1</translation>
    </message>
    <message>
        <source>%1 is needed for typing and editing.</source>
        <translation>%1 is needed for typing and editing.</translation>
    </message>
</context>
<context>
    <name>MtConf::InputOffer</name>
    <message>
        <source>Replace</source>
        <translation>Replace</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Swap</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>Keep both</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>MtConf::InputRegistry</name>
    <message>
        <source>another shortcut of this program</source>
        <translation>another shortcut of this program</translation>
    </message>
</context>
<context>
    <name>MtConf::LivePages</name>
    <message>
        <source>Changed elsewhere meanwhile. What you type replaces it.</source>
        <translation>Changed elsewhere meanwhile. What you type replaces it.</translation>
    </message>
</context>
<context>
    <name>MtConf::ModernPageBuilder</name>
    <message>
        <source>, </source>
        <comment>between the chosen entries</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>No modifier key</source>
        <translation>No modifier key</translation>
    </message>
</context>
<context>
    <name>MtConf::ModernWindow</name>
    <message>
        <source>Reset this page…</source>
        <translation>Reset this page…</translation>
    </message>
    <message>
        <source>Reset all settings…</source>
        <translation>Reset all settings…</translation>
    </message>
    <message>
        <source>More</source>
        <translation>More</translation>
    </message>
</context>
<context>
    <name>MtConf::ResetQuestion</name>
    <message>
        <source>Reset this page?</source>
        <translation>Reset this page?</translation>
    </message>
    <message>
        <source>Reset all settings?</source>
        <translation>Reset all settings?</translation>
    </message>
    <message>
        <source>Reset 1 setting on this page?</source>
        <translation>Reset 1 setting on this page?</translation>
    </message>
    <message>
        <source>Reset 1 setting on all pages?</source>
        <translation>Reset 1 setting on all pages?</translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings on this page?</source>
        <translation>
            <numerusform>Reset %n setting on this page?</numerusform>
            <numerusform>Reset %n settings on this page?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings on all pages?</source>
        <translation>
            <numerusform>Reset %n setting on all pages?</numerusform>
            <numerusform>Reset %n settings on all pages?</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>MtConf::RowReset</name>
    <message>
        <source>Show changed</source>
        <translation>Show changed</translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n changed</numerusform>
            <numerusform>%n changed</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>Reset %1</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>Copy key</source>
        <translation>Copy key</translation>
    </message>
    <message>
        <source>Copy value</source>
        <translation>Copy value</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Changed</translation>
    </message>
    <message>
        <source>Changed settings</source>
        <translation>Changed settings</translation>
    </message>
</context>
<context>
    <name>MtConf::RowWords</name>
    <message>
        <source>Default: %1</source>
        <translation>Default: %1</translation>
    </message>
    <message>
        <source>Not changed</source>
        <translation>Not changed</translation>
    </message>
    <message>
        <source>Changed on %1</source>
        <translation>Changed on %1</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Changed</translation>
    </message>
    <message>
        <source>From the file %1</source>
        <translation>From the file %1</translation>
    </message>
    <message>
        <source>Changed by another program or computer on %1</source>
        <translation>Changed by another program or computer on %1</translation>
    </message>
    <message>
        <source>Changed by another program or computer</source>
        <translation>Changed by another program or computer</translation>
    </message>
    <message>
        <source>Locked by the administrator</source>
        <translation>Locked by the administrator</translation>
    </message>
</context>
<context>
    <name>MtConf::SettingsFile</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>‘%1’ is not a file.</translation>
    </message>
    <message>
        <source>The settings could not be saved in &quot;%1&quot;.</source>
        <translation>The settings could not be saved in ‘%1’.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not exist.</source>
        <translation>The file ‘%1’ does not exist.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is larger than %2.</source>
        <translation>The file ‘%1’ is larger than %2.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; could not be read.</source>
        <translation>The file ‘%1’ could not be read.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is empty.</source>
        <translation>The file ‘%1’ is empty.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged: its content is nested too deeply.</source>
        <translation>The file ‘%1’ is damaged: its content is nested too deeply.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged or not complete.</source>
        <translation>The file ‘%1’ is damaged or not complete.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not contain settings.</source>
        <translation>The file ‘%1’ does not contain settings.</translation>
    </message>
    <message>
        <source>%1 settings</source>
        <comment>name of a file</comment>
        <translation>%1 settings</translation>
    </message>
</context>
<context>
    <name>MtConf::SettingsFind</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 of %2</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>Search settings</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Clear the search</translation>
    </message>
    <message>
        <source>Show more (%1)</source>
        <translation>Show more (%1)</translation>
    </message>
    <message>
        <source>No setting matches “%1”</source>
        <translation>No setting matches ‘%1’</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Results</translation>
    </message>
    <message>
        <source>Enter opens the page</source>
        <translation>Enter opens the page</translation>
    </message>
</context>
<context>
    <name>MtConf::UndoBar</name>
    <message>
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
</context>
<context>
    <name>MtConf::ValueInWords</name>
    <message>
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Not set</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Empty</translation>
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
        <translation>bold</translation>
    </message>
    <message>
        <source>italic</source>
        <translation>italic</translation>
    </message>
    <message>
        <source>underlined</source>
        <translation>underlined</translation>
    </message>
</context>
<context>
    <name>MtConf::WindowIdentity</name>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Settings — %1</source>
        <translation>Settings — %1</translation>
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
