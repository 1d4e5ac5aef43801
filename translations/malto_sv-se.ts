<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE" sourcelanguage="en_US">
<context>
    <name>ColorSelectButton</name>
    <message>
        <source>None</source>
        <translation>Ingen</translation>
    </message>
</context>
<context>
    <name>ConfigurationWindow</name>
    <message>
        <source>Quorvi Configuration</source>
        <translation>Quorvi-inställningar</translation>
    </message>
    <message>
        <source>Restore All Default</source>
        <translation>Återställ allt</translation>
    </message>
    <message>
        <source>Restore Default</source>
        <translation>Återställ standardvärden</translation>
    </message>
</context>
<context>
    <name>KeySequenceEdit</name>
    <message>
        <source>Press shortcut key</source>
        <translation>Ange ett kortkommando</translation>
    </message>
    <message>
        <source>Clear shortcut key</source>
        <translation>Rensa kortkommandot</translation>
    </message>
    <message>
        <source>Shortkey [%1] is too simple.
To avoid conflicts with other functions and prevent accidental activations, please set a more complex hotkey combination.

If you need to set simple shortcuts, go to the [System] Settings page and check [Allow simple global hotkeys].</source>
        <translation>Kortkommandot [%1] är för enkelt.
Ange en mer komplex tangentkombination för att undvika konflikter med andra funktioner och oavsiktlig aktivering.

Om du behöver enkla kortkommandon går du till inställningssidan [System] och markerar [Tillåt enkla globala kortkommandon].</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfDefWidgetQKeySequence</name>
    <message>
        <source>Not set</source>
        <translation>Inte angivet</translation>
    </message>
    <message>
        <source>Setup failed, the hotkey may be occupied. Click to try setup again.</source>
        <translation>Det gick inte att ställa in kortkommandot: det kan redan vara upptaget. Klicka för att försöka igen.</translation>
    </message>
    <message>
        <source>Setup success.</source>
        <translation>Kortkommandot har ställts in.</translation>
    </message>
    <message>
        <source>Disabled.</source>
        <translation>Inaktiverat.</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetDateTime</name>
    <message>
        <source>Not set</source>
        <translation>Inte angiven</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Rensa</translation>
    </message>
    <message>
        <source>Enter a date and time from %1 to %2</source>
        <translation>Ange datum och tid från %1 till %2</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetLanguage</name>
    <message>
        <source>Follow the system</source>
        <translation>Följ systemet</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetMouseAction</name>
    <message>
        <source>None</source>
        <translation>Ingen</translation>
    </message>
    <message>
        <source>Left Click</source>
        <translation>Vänsterklick</translation>
    </message>
    <message>
        <source>Left Double Click</source>
        <translation>Dubbelklick vänster</translation>
    </message>
    <message>
        <source>Right Click</source>
        <translation>Högerklick</translation>
    </message>
    <message>
        <source>Right Double Click</source>
        <translation>Dubbelklick höger</translation>
    </message>
    <message>
        <source>Middle Click</source>
        <translation>Mittenklick</translation>
    </message>
    <message>
        <source>Middle Double Click</source>
        <translation>Dubbelklick mitten</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Mushjul</translation>
    </message>
    <message>
        <source>Left Drag</source>
        <translation>Vänsterdrag</translation>
    </message>
    <message>
        <source>Right Drag</source>
        <translation>Högerdrag</translation>
    </message>
    <message>
        <source>Middle Drag</source>
        <translation>Mittendrag</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetPassword</name>
    <message>
        <source>Show</source>
        <translation>Visa</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetPath</name>
    <message>
        <source>Browse...</source>
        <translation>Bläddra…</translation>
    </message>
    <message>
        <source>This folder does not exist.</source>
        <translation>Den här mappen finns inte.</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>Det här är en fil, inte en mapp.</translation>
    </message>
    <message>
        <source>This is a folder, not a file.</source>
        <translation>Det här är en mapp, inte en fil.</translation>
    </message>
    <message>
        <source>The folder of this file does not exist.</source>
        <translation>Mappen för den här filen finns inte.</translation>
    </message>
    <message>
        <source>This file does not exist.</source>
        <translation>Den här filen finns inte.</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetStringList</name>
    <message>
        <source>Add</source>
        <translation>Lägg till</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Flytta upp</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Flytta ned</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigItemWidget</name>
    <message>
        <source>From %1 to %2</source>
        <translation>Från %1 till %2</translation>
    </message>
    <message>
        <source>Enter a number from %1 to %2</source>
        <translation>Ange ett tal från %1 till %2</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigurationWindow</name>
    <message>
        <source>Confirm</source>
        <translation>Bekräfta</translation>
    </message>
    <message>
        <source>Are you sure to restore current page default?</source>
        <translation>Vill du verkligen återställa standardvärdena på den här sidan?</translation>
    </message>
    <message>
        <source>Are you sure to restore all default?</source>
        <translation>Vill du verkligen återställa alla standardvärden?</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Cannot set left-click separately</source>
        <translation>Enbart vänsterklick kan inte anges</translation>
    </message>
    <message>
        <source>No set</source>
        <translation>Inte angiven</translation>
    </message>
    <message>
        <source>Conflict with %1</source>
        <translation>Konflikt med ”%1”</translation>
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
