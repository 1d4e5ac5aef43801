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
    <message>
        <source>Another program may use this hotkey.</source>
        <translation>Möglicherweise verwendet ein anderes Programm dieses Tastenkürzel.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>The desktop has not answered yet.</source>
        <translation>Die Desktopumgebung hat noch nicht geantwortet.</translation>
    </message>
    <message>
        <source>The hotkey has not been set up yet.</source>
        <translation>Das Tastenkürzel ist noch nicht eingerichtet.</translation>
    </message>
    <message>
        <source>A global hotkey is one key, alone or with modifiers.</source>
        <translation>Ein globales Tastenkürzel besteht aus einer Taste, allein oder mit Zusatztasten.</translation>
    </message>
    <message>
        <source>This keyboard does not have the key.</source>
        <translation>Diese Tastatur hat die Taste nicht.</translation>
    </message>
    <message>
        <source>Another program uses this hotkey.</source>
        <translation>Ein anderes Programm verwendet dieses Tastenkürzel.</translation>
    </message>
    <message>
        <source>The hotkey was refused by you or by the desktop.</source>
        <translation>Das Tastenkürzel wurde von Ihnen oder von der Desktopumgebung abgelehnt.</translation>
    </message>
    <message>
        <source>Global hotkeys are not available on this system.</source>
        <translation>Globale Tastenkürzel sind auf diesem System nicht verfügbar.</translation>
    </message>
    <message>
        <source>Click to try again.</source>
        <translation>Klicken Sie, um es erneut zu versuchen.</translation>
    </message>
    <message>
        <source>Assigned by the desktop: %1</source>
        <translation>Von der Desktopumgebung zugewiesen: %1</translation>
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
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Strg</translation>
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
    <name>MtConf::DependencyNote</name>
    <message>
        <source>Needs “%1”</source>
        <translation>Benötigt „%1“</translation>
    </message>
    <message>
        <source>Not with “%1”</source>
        <translation>Nicht mit „%1“</translation>
    </message>
    <message>
        <source>Needs “%1”: %2</source>
        <translation>Benötigt „%1“: %2</translation>
    </message>
</context>
<context>
    <name>MtConf::HistoryFeature</name>
    <message>
        <source>Removed 1 entry.</source>
        <translation>1 Eintrag entfernt.</translation>
    </message>
    <message numerus="yes">
        <source>Removed %n entries.</source>
        <translation>
            <numerusform>%n Eintrag entfernt.</numerusform>
            <numerusform>%n Einträge entfernt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Imported 1 setting.</source>
        <translation>1 Einstellung importiert.</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n settings.</source>
        <translation>
            <numerusform>%n Einstellung importiert.</numerusform>
            <numerusform>%n Einstellungen importiert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Restored %n settings.</source>
        <translation>
            <numerusform>%n Einstellung zurückgesetzt.</numerusform>
            <numerusform>%n Einstellungen zurückgesetzt.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MtConf::ImportDialog</name>
    <message>
        <source>Import settings</source>
        <translation>Einstellungen importieren</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; changes these settings. Those that are checked are imported.</source>
        <translation>Die Datei „%1“ ändert diese Einstellungen. Importiert werden die ausgewählten.</translation>
    </message>
    <message>
        <source>Settings in the file</source>
        <translation>Einstellungen in der Datei</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Hier</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>In der Datei</translation>
    </message>
    <message>
        <source>%1, here: %2, in the file: %3</source>
        <translation>%1, hier: %2, in der Datei: %3</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alle auswählen</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Keine auswählen</translation>
    </message>
    <message>
        <source>Import (%1)</source>
        <translation>Importieren (%1)</translation>
    </message>
    <message>
        <source>Other settings</source>
        <translation>Weitere Einstellungen</translation>
    </message>
    <message>
        <source>%1 (default)</source>
        <translation>%1 (Standard)</translation>
    </message>
    <message>
        <source>Does not exist</source>
        <translation>Nicht vorhanden</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Entfernt</translation>
    </message>
    <message>
        <source>Entries of other versions, which are left out: %1</source>
        <translation>Ausgelassene Einträge anderer Versionen: %1</translation>
    </message>
    <message>
        <source>Entries that cannot be read, which are left out: %1</source>
        <translation>Ausgelassene Einträge, die nicht lesbar sind: %1</translation>
    </message>
    <message>
        <source>Settings that stay on each computer, which are left out: %1</source>
        <translation>Ausgelassene Einstellungen, die nur für den jeweiligen Computer gelten: %1</translation>
    </message>
    <message>
        <source>Locked settings, which are left out: %1</source>
        <translation>Ausgelassene gesperrte Einstellungen: %1</translation>
    </message>
    <message>
        <source>Settings whose value is not accepted here: %1</source>
        <translation>Einstellungen, deren Wert hier nicht zulässig ist: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::ImportExport</name>
    <message>
        <source>Import…</source>
        <translation>Importieren&#xa0;…</translation>
    </message>
    <message>
        <source>Import settings from a file</source>
        <translation>Einstellungen aus einer Datei importieren</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren&#xa0;…</translation>
    </message>
    <message>
        <source>Export the settings to a file</source>
        <translation>Einstellungen in eine Datei exportieren</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>Einstellungen (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Export settings</source>
        <translation>Einstellungen exportieren</translation>
    </message>
    <message>
        <source>Import settings</source>
        <translation>Einstellungen importieren</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; changes nothing here.</source>
        <translation>Die Datei „%1“ ändert hier nichts.</translation>
    </message>
    <message>
        <source>Settings that could not be imported: %1</source>
        <translation>Einstellungen, die nicht importiert werden konnten: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::InputConflicts</name>
    <message>
        <source>%1 is used by: %2</source>
        <translation>%1 wird verwendet von: %2</translation>
    </message>
    <message>
        <source>Also used by: %1</source>
        <translation>Auch verwendet von: %1</translation>
    </message>
    <message>
        <source>%1 is needed for typing and editing.</source>
        <translation>%1 wird zum Schreiben und Bearbeiten benötigt.</translation>
    </message>
</context>
<context>
    <name>MtConf::InputOffer</name>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Tauschen</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>Beide behalten</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>MtConf::InputRegistry</name>
    <message>
        <source>another shortcut of this program</source>
        <translation>ein anderes Tastenkürzel dieses Programms</translation>
    </message>
</context>
<context>
    <name>MtConf::LivePages</name>
    <message>
        <source>Changed elsewhere meanwhile. What you type replaces it.</source>
        <translation>Inzwischen anderswo geändert. Ihre Eingabe ersetzt den neuen Wert.</translation>
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
        <translation>Keine Zusatztaste</translation>
    </message>
</context>
<context>
    <name>MtConf::ModernWindow</name>
    <message>
        <source>Reset this page…</source>
        <translation>Seite zurücksetzen&#xa0;…</translation>
    </message>
    <message>
        <source>Reset all settings…</source>
        <translation>Alles zurücksetzen&#xa0;…</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
</context>
<context>
    <name>MtConf::ResetQuestion</name>
    <message>
        <source>Reset this page?</source>
        <translation>Diese Seite zurücksetzen?</translation>
    </message>
    <message>
        <source>Reset all settings?</source>
        <translation>Alle Einstellungen zurücksetzen?</translation>
    </message>
    <message>
        <source>Reset 1 setting on this page?</source>
        <translation>1 Einstellung auf dieser Seite zurücksetzen?</translation>
    </message>
    <message>
        <source>Reset 1 setting on all pages?</source>
        <translation>1 Einstellung auf allen Seiten zurücksetzen?</translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings on this page?</source>
        <translation>
            <numerusform>%n Einstellung auf dieser Seite zurücksetzen?</numerusform>
            <numerusform>%n Einstellungen auf dieser Seite zurücksetzen?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings on all pages?</source>
        <translation>
            <numerusform>%n Einstellung auf allen Seiten zurücksetzen?</numerusform>
            <numerusform>%n Einstellungen auf allen Seiten zurücksetzen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>MtConf::RowReset</name>
    <message>
        <source>Show changed</source>
        <translation>Geänderte anzeigen</translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n geändert</numerusform>
            <numerusform>%n geändert</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>%1 zurücksetzen</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Copy key</source>
        <translation>Schlüssel kopieren</translation>
    </message>
    <message>
        <source>Copy value</source>
        <translation>Wert kopieren</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Changed settings</source>
        <translation>Geänderte Einstellungen</translation>
    </message>
</context>
<context>
    <name>MtConf::RowWords</name>
    <message>
        <source>Default: %1</source>
        <translation>Standard: %1</translation>
    </message>
    <message>
        <source>Not changed</source>
        <translation>Nicht geändert</translation>
    </message>
    <message>
        <source>Changed on %1</source>
        <translation>Geändert am %1</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>From the file %1</source>
        <translation>Aus der Datei %1</translation>
    </message>
    <message>
        <source>Changed by another program or computer on %1</source>
        <translation>Von einem anderen Programm oder Computer geändert am %1</translation>
    </message>
    <message>
        <source>Changed by another program or computer</source>
        <translation>Von einem anderen Programm oder Computer geändert</translation>
    </message>
    <message>
        <source>Locked by the administrator</source>
        <translation>Vom Administrator gesperrt</translation>
    </message>
</context>
<context>
    <name>MtConf::SettingsFile</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>„%1“ ist keine Datei.</translation>
    </message>
    <message>
        <source>The settings could not be saved in &quot;%1&quot;.</source>
        <translation>Die Einstellungen konnten nicht in „%1“ gespeichert werden.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not exist.</source>
        <translation>Die Datei „%1“ existiert nicht.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is larger than %2.</source>
        <translation>Die Datei „%1“ ist größer als %2.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; could not be read.</source>
        <translation>Die Datei „%1“ konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is empty.</source>
        <translation>Die Datei „%1“ ist leer.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged: its content is nested too deeply.</source>
        <translation>Die Datei „%1“ ist beschädigt: Ihr Inhalt ist zu tief verschachtelt.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged or not complete.</source>
        <translation>Die Datei „%1“ ist beschädigt oder unvollständig.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not contain settings.</source>
        <translation>Die Datei „%1“ enthält keine Einstellungen.</translation>
    </message>
    <message>
        <source>%1 settings</source>
        <comment>name of a file</comment>
        <translation>Einstellungen von %1</translation>
    </message>
</context>
<context>
    <name>MtConf::SettingsFind</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>Einstellung suchen</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Suche löschen</translation>
    </message>
    <message>
        <source>Show more (%1)</source>
        <translation>Mehr anzeigen (%1)</translation>
    </message>
    <message>
        <source>No setting matches “%1”</source>
        <translation>Keine Einstellung passt zu „%1“</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>Enter opens the page</source>
        <translation>Eingabetaste öffnet die Seite</translation>
    </message>
</context>
<context>
    <name>MtConf::UndoBar</name>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
</context>
<context>
    <name>MtConf::ValueInWords</name>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Nicht festgelegt</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Leer</translation>
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
        <translation>fett</translation>
    </message>
    <message>
        <source>italic</source>
        <translation>kursiv</translation>
    </message>
    <message>
        <source>underlined</source>
        <translation>unterstrichen</translation>
    </message>
</context>
<context>
    <name>MtConf::WindowIdentity</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Settings — %1</source>
        <translation>Einstellungen – %1</translation>
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
