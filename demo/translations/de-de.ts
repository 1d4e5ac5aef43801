<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>BoundValueModel</name>
    <message>
        <source>changed</source>
        <translation>geändert</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>%1, %2 px</source>
        <translation>%1, %2 px</translation>
    </message>
</context>
<context>
    <name>LogPane</name>
    <message>
        <source>What the library logs appears here.</source>
        <translation>Hier erscheint, was die Bibliothek protokolliert.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Quorvi Capture</source>
        <translation>Quorvi Capture</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen&#xa0;…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Restore all</source>
        <translation>Alles zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>&amp;Einstellungen&#xa0;…</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Restore all…</source>
        <translation>Alles &amp;zurücksetzen&#xa0;…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>De&amp;sign</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Variables — %1 of %2 changed</source>
        <translation>Variablen – %1 von %2 geändert</translation>
    </message>
    <message>
        <source>Hotkey pressed: %1 (%2)</source>
        <translation>Tastenkürzel gedrückt: %1 (%2)</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <translation>Gespeichert in %1</translation>
    </message>
    <message>
        <source>Could not write %1</source>
        <translation>%1 konnte nicht geschrieben werden</translation>
    </message>
    <message>
        <source>Restore the defaults of all settings and the presets of the profiles?</source>
        <translation>Alle Einstellungen zurücksetzen und die Profilvorgaben wiederherstellen?</translation>
    </message>
    <message>
        <source>Follow the system</source>
        <translation>Wie das System</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigurationWindow</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Aufnahme</translation>
    </message>
    <message>
        <source>Hotkeys</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Mouse</source>
        <translation>Maus</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Stored data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Updates</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Magnifier</source>
        <translation>Lupe</translation>
    </message>
    <message>
        <source>Size label</source>
        <translation>Größenanzeige</translation>
    </message>
    <message>
        <source>Snapping</source>
        <translation>Einrasten</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Pinned pictures</source>
        <translation>Angeheftete Bilder</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>After a capture</source>
        <translation>Nach einer Aufnahme</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>Zahlen</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>In this program</source>
        <translation>In diesem Programm</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>Screen</source>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation>Miniatur</translation>
    </message>
    <message>
        <source>A profile needs a name.</source>
        <translation>Ein Profil braucht einen Namen.</translation>
    </message>
    <message>
        <source>A name can have at most %1 characters.</source>
        <translation>Ein Name darf höchstens %1 Zeichen haben.</translation>
    </message>
    <message>
        <source>Another profile has this name.</source>
        <translation>Ein anderes Profil heißt schon so.</translation>
    </message>
    <message>
        <source>New profile</source>
        <translation>Neues Profil</translation>
    </message>
    <message>
        <source>New profile %1</source>
        <translation>Neues Profil %1</translation>
    </message>
</context>
<context>
    <name>ProfilesPage</name>
    <message>
        <source>Profiles</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Restore presets</source>
        <translation>Vorgaben wiederherstellen</translation>
    </message>
    <message>
        <source>There is no profile.
Add one, or restore the presets.</source>
        <translation>Es gibt kein Profil.
Fügen Sie eines hinzu, oder stellen Sie die Vorgaben wieder her.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>Include the mouse pointer</source>
        <translation>Mauszeiger aufnehmen</translation>
    </message>
    <message>
        <source>A preset, unchanged.</source>
        <translation>Eine Vorgabe, unverändert.</translation>
    </message>
    <message>
        <source>Yours, or a changed preset.</source>
        <translation>Eigenes Profil oder geänderte Vorgabe.</translation>
    </message>
    <message>
        <source>“%1” keeps its name. %2</source>
        <translation>„%1“ behält seinen Namen. %2</translation>
    </message>
    <message>
        <source>Delete the profile “%1”?</source>
        <translation>Das Profil „%1“ löschen?</translation>
    </message>
    <message>
        <source>Restore the presets? This deletes your own profiles and undoes your changes of the presets.</source>
        <translation>Vorgaben wiederherstellen? Das löscht Ihre eigenen Profile und verwirft Ihre Änderungen an den Vorgaben.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>Show icon in the menu bar</source>
        <translation>Symbol in Menüleiste anzeigen</translation>
    </message>
    <message>
        <source>Play a sound after a capture</source>
        <translation>Ton nach Aufnahme abspielen</translation>
    </message>
    <message>
        <source>Show tips</source>
        <translation>Tipps anzeigen</translation>
    </message>
    <message>
        <source>Recent captures in the menu</source>
        <translation>Letzte Aufnahmen im Menü</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Nach Updates suchen</translation>
    </message>
    <message>
        <source>Check interval (days)</source>
        <translation>Suchintervall (Tage)</translation>
    </message>
    <message>
        <source>Offer beta versions</source>
        <translation>Vorabversionen anbieten</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Design</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>Width of the frame</source>
        <translation>Rahmenbreite</translation>
    </message>
    <message>
        <source>Shade outside</source>
        <translation>Abdunklung außerhalb</translation>
    </message>
    <message>
        <source>Show magnifier</source>
        <translation>Lupe anzeigen</translation>
    </message>
    <message>
        <source>Magnification</source>
        <translation>Vergrößerung</translation>
    </message>
    <message>
        <source>Show size beside the selection</source>
        <translation>Größe neben der Auswahl anzeigen</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>Delay before a capture</source>
        <translation>Verzögerung vor einer Aufnahme</translation>
    </message>
    <message>
        <source>Count down on the screen</source>
        <translation>Countdown auf dem Bildschirm</translation>
    </message>
    <message>
        <source>Include the mouse pointer</source>
        <translation>Mauszeiger aufnehmen</translation>
    </message>
    <message>
        <source>Include the shadow of windows</source>
        <translation>Fensterschatten aufnehmen</translation>
    </message>
    <message>
        <source>Freeze the screen while selecting</source>
        <translation>Bildschirm beim Auswählen einfrieren</translation>
    </message>
    <message>
        <source>Frames per second of videos</source>
        <translation>Videobilder pro Sekunde</translation>
    </message>
    <message>
        <source>Snap to</source>
        <translation>Einrasten an</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Screen edges</source>
        <translation>Bildschirmränder</translation>
    </message>
    <message>
        <source>Guides</source>
        <translation>Hilfslinien</translation>
    </message>
    <message>
        <source>Last selection</source>
        <translation>Letzte Auswahl</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>Hotkeys in full-screen applications</source>
        <translation>Tastenkürzel in Vollbildprogrammen</translation>
    </message>
    <message>
        <source>Repeat delay</source>
        <translation>Wiederholungsverzögerung</translation>
    </message>
    <message>
        <source>Capture an area</source>
        <translation>Bereich aufnehmen</translation>
    </message>
    <message>
        <source>Capture a window</source>
        <translation>Fenster aufnehmen</translation>
    </message>
    <message>
        <source>Capture the screen</source>
        <translation>Bildschirm aufnehmen</translation>
    </message>
    <message>
        <source>Pin the clipboard</source>
        <translation>Zwischenablage anheften</translation>
    </message>
    <message>
        <source>Double-click to finish</source>
        <translation>Mit Doppelklick abschließen</translation>
    </message>
    <message>
        <source>Invert the wheel</source>
        <translation>Mausrad umkehren</translation>
    </message>
    <message>
        <source>Movement that begins a drag</source>
        <translation>Bewegung, ab der gezogen wird</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Show the menu</source>
        <translation>Menü anzeigen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Bewegen</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>Zeichnen</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Wasserzeichen</translation>
    </message>
    <message>
        <source>Copy it</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Save it</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Open it in the editor</source>
        <translation>Im Editor öffnen</translation>
    </message>
    <message>
        <source>Allow simple global hotkeys</source>
        <translation>Einfache globale Tastenkürzel erlauben</translation>
    </message>
    <message>
        <source>Show expert settings</source>
        <translation>Experteneinstellungen anzeigen</translation>
    </message>
    <message>
        <source>Steps that can be undone</source>
        <translation>Rückgängig-Schritte</translation>
    </message>
    <message>
        <source>Bring pinned pictures back at start</source>
        <translation>Angeheftete Bilder beim Start wiederherstellen</translation>
    </message>
    <message>
        <source>Cache (MB)</source>
        <translation>Cache (MB)</translation>
    </message>
    <message>
        <source>Threads that compress</source>
        <translation>Threads zum Komprimieren</translation>
    </message>
    <message>
        <source>Draw with the graphics card</source>
        <translation>Mit der Grafikkarte zeichnen</translation>
    </message>
    <message>
        <source>Show times of drawing</source>
        <translation>Renderzeiten anzeigen</translation>
    </message>
    <message>
        <source>Write a log file</source>
        <translation>Protokolldatei schreiben</translation>
    </message>
    <message>
        <source>Open the settings</source>
        <translation>Einstellungen öffnen</translation>
    </message>
    <message>
        <source>Save now</source>
        <translation>Jetzt speichern</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Your name</source>
        <translation>Ihr Name</translation>
    </message>
    <message>
        <source>Pictures contain it if the details include the author.</source>
        <translation>Steht in den Bildern, wenn die Angaben den Autor enthalten.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>Token for uploads</source>
        <translation>Token für Uploads</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Stichwörter</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logo</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg)</source>
        <translation>Bilder (*.png *.svg)</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>Protokolldatei</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Rand</translation>
    </message>
    <message>
        <source>Save every</source>
        <translation>Speichern alle</translation>
    </message>
    <message>
        <source>Remind me</source>
        <translation>Erinnern am</translation>
    </message>
    <message>
        <source>Name of the file</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum und Uhrzeit</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Title of the window</source>
        <translation>Fenstertitel</translation>
    </message>
    <message>
        <source>Details in the file</source>
        <translation>Angaben in der Datei</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>Proxy verwenden</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Host</translation>
    </message>
    <message>
        <source>A host has no blanks.</source>
        <translation>Ein Hostname enthält keine Leerzeichen.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Follow the system</source>
        <translation>Wie das System</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Pick a color</source>
        <translation>Farbe aufnehmen</translation>
    </message>
</context>
<context>
    <name>StoredDataPage</name>
    <message>
        <source>Stored data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Nothing has been changed yet.</source>
        <translation>Bisher wurde nichts geändert.</translation>
    </message>
</context>
<context>
    <name>WatermarkEditor</name>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>None if empty</source>
        <translation>Leer: keines</translation>
    </message>
</context>
<context>
    <name>takePictures</name>
    <message>
        <source>Cannot write %1</source>
        <translation>%1 kann nicht geschrieben werden</translation>
    </message>
</context>
</TS>
