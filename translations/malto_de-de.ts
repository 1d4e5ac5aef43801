<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>ColorSelectButton</name>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
</context>
<context>
    <name>ConfigurationWindow</name>
    <message>
        <source>Quorvi Configuration</source>
        <translation>Quorvi-Einstellungen</translation>
    </message>
    <message>
        <source>Restore All Default</source>
        <translation>Alles zurücksetzen</translation>
    </message>
    <message>
        <source>Restore Default</source>
        <translation>Auf Standard zurücksetzen</translation>
    </message>
</context>
<context>
    <name>KeySequenceEdit</name>
    <message>
        <source>Press shortcut key</source>
        <translation>Tastenkürzel drücken</translation>
    </message>
    <message>
        <source>Clear shortcut key</source>
        <translation>Tastenkürzel löschen</translation>
    </message>
    <message>
        <source>Shortkey [%1] is too simple.
To avoid conflicts with other functions and prevent accidental activations, please set a more complex hotkey combination.

If you need to set simple shortcuts, go to the [System] Settings page and check [Allow simple global hotkeys].</source>
        <translation>Das Tastenkürzel [%1] ist zu einfach.
Um Konflikte mit anderen Funktionen und versehentliches Auslösen zu vermeiden, legen Sie bitte eine komplexere Tastenkombination fest.

Wenn Sie einfache Tastenkürzel benötigen, öffnen Sie die Einstellungsseite [System] und aktivieren Sie [Einfache globale Tastenkürzel erlauben].</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfDefWidgetQKeySequence</name>
    <message>
        <source>Not set</source>
        <translation>Nicht festgelegt</translation>
    </message>
    <message>
        <source>Setup failed, the hotkey may be occupied. Click to try setup again.</source>
        <translation>Einrichtung fehlgeschlagen: Das Tastenkürzel ist möglicherweise schon belegt. Klicken Sie, um es erneut zu versuchen.</translation>
    </message>
    <message>
        <source>Setup success.</source>
        <translation>Erfolgreich eingerichtet.</translation>
    </message>
    <message>
        <source>Disabled.</source>
        <translation>Deaktiviert.</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetDateTime</name>
    <message>
        <source>Not set</source>
        <translation>Nicht festgelegt</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Enter a date and time from %1 to %2</source>
        <translation>Geben Sie Datum und Uhrzeit von %1 bis %2 ein</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetLanguage</name>
    <message>
        <source>Follow the system</source>
        <translation>Wie das System</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetMouseAction</name>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Left Click</source>
        <translation>Linksklick</translation>
    </message>
    <message>
        <source>Left Double Click</source>
        <translation>Doppelklick links</translation>
    </message>
    <message>
        <source>Right Click</source>
        <translation>Rechtsklick</translation>
    </message>
    <message>
        <source>Right Double Click</source>
        <translation>Doppelklick rechts</translation>
    </message>
    <message>
        <source>Middle Click</source>
        <translation>Mittelklick</translation>
    </message>
    <message>
        <source>Middle Double Click</source>
        <translation>Doppelklick Mitte</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Mausrad</translation>
    </message>
    <message>
        <source>Left Drag</source>
        <translation>Ziehen links</translation>
    </message>
    <message>
        <source>Right Drag</source>
        <translation>Ziehen rechts</translation>
    </message>
    <message>
        <source>Middle Drag</source>
        <translation>Ziehen Mitte</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetPassword</name>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetPath</name>
    <message>
        <source>Browse...</source>
        <translation>Durchsuchen&#xa0;…</translation>
    </message>
    <message>
        <source>This folder does not exist.</source>
        <translation>Dieser Ordner existiert nicht.</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>Dies ist eine Datei, kein Ordner.</translation>
    </message>
    <message>
        <source>This is a folder, not a file.</source>
        <translation>Dies ist ein Ordner, keine Datei.</translation>
    </message>
    <message>
        <source>The folder of this file does not exist.</source>
        <translation>Der Ordner dieser Datei existiert nicht.</translation>
    </message>
    <message>
        <source>This file does not exist.</source>
        <translation>Diese Datei existiert nicht.</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetStringList</name>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Nach unten</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigItemWidget</name>
    <message>
        <source>From %1 to %2</source>
        <translation>Von %1 bis %2</translation>
    </message>
    <message>
        <source>Enter a number from %1 to %2</source>
        <translation>Geben Sie eine Zahl von %1 bis %2 ein</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigurationWindow</name>
    <message>
        <source>Confirm</source>
        <translation>Bestätigen</translation>
    </message>
    <message>
        <source>Are you sure to restore current page default?</source>
        <translation>Möchten Sie diese Seite wirklich auf die Standardwerte zurücksetzen?</translation>
    </message>
    <message>
        <source>Are you sure to restore all default?</source>
        <translation>Möchten Sie wirklich alle Einstellungen auf die Standardwerte zurücksetzen?</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Cannot set left-click separately</source>
        <translation>Ein Linksklick allein kann nicht festgelegt werden</translation>
    </message>
    <message>
        <source>No set</source>
        <translation>Nicht festgelegt</translation>
    </message>
    <message>
        <source>Conflict with %1</source>
        <translation>Konflikt mit „%1“</translation>
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
