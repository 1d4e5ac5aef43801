<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="en_US">
<context>
    <name>BoundValueModel</name>
    <message>
        <source>changed</source>
        <translation>gewijzigd</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Instelling</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Waarde</translation>
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
        <translation>Hier verschijnt wat de bibliotheek registreert.</translation>
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
        <translation>Logboek</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Instellingen…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Opslaan</translation>
    </message>
    <message>
        <source>Restore all</source>
        <translation>Alles herstellen</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Bestand</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>&amp;Instellingen…</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>O&amp;pslaan</translation>
    </message>
    <message>
        <source>&amp;Restore all…</source>
        <translation>Alles &amp;herstellen…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Afsluiten</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Thema</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Licht</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Donker</translation>
    </message>
    <message>
        <source>Variables — %1 of %2 changed</source>
        <translation>Variabelen – %1 van %2 gewijzigd</translation>
    </message>
    <message>
        <source>Hotkey pressed: %1 (%2)</source>
        <translation>Sneltoets ingedrukt: %1 (%2)</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <translation>Opgeslagen in %1</translation>
    </message>
    <message>
        <source>Could not write %1</source>
        <translation>Kan %1 niet schrijven</translation>
    </message>
    <message>
        <source>Restore the defaults of all settings and the presets of the profiles?</source>
        <translation>De meegeleverde profielen en de standaardwaarden van alle instellingen herstellen?</translation>
    </message>
    <message>
        <source>Follow the system</source>
        <translation>Systeem volgen</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigurationWindow</name>
    <message>
        <source>General</source>
        <translation>Algemeen</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Weergave</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Opname</translation>
    </message>
    <message>
        <source>Hotkeys</source>
        <translation>Sneltoetsen</translation>
    </message>
    <message>
        <source>Mouse</source>
        <translation>Muis</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Uitvoer</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profielen</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Systeem</translation>
    </message>
    <message>
        <source>Stored data</source>
        <translation>Gegevens</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Updates</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Selectie</translation>
    </message>
    <message>
        <source>Magnifier</source>
        <translation>Vergrootglas</translation>
    </message>
    <message>
        <source>Size label</source>
        <translation>Grootte-aanduiding</translation>
    </message>
    <message>
        <source>Snapping</source>
        <translation>Uitlijnen</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Gereedschappen</translation>
    </message>
    <message>
        <source>Pinned pictures</source>
        <translation>Vastgezette afbeeldingen</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Afbeelding</translation>
    </message>
    <message>
        <source>After a capture</source>
        <translation>Na een opname</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Teksten</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>Getallen</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>Keuzes</translation>
    </message>
    <message>
        <source>In this program</source>
        <translation>In deze app</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netwerk</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>Screen</source>
        <translation>Scherm</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Venster</translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation>Miniatuur</translation>
    </message>
    <message>
        <source>A profile needs a name.</source>
        <translation>Een profiel heeft een naam nodig.</translation>
    </message>
    <message>
        <source>A name can have at most %1 characters.</source>
        <translation>Een naam kan hoogstens %1 tekens hebben.</translation>
    </message>
    <message>
        <source>Another profile has this name.</source>
        <translation>Een ander profiel heeft deze naam al.</translation>
    </message>
    <message>
        <source>New profile</source>
        <translation>Nieuw profiel</translation>
    </message>
    <message>
        <source>New profile %1</source>
        <translation>Nieuw profiel %1</translation>
    </message>
</context>
<context>
    <name>ProfilesPage</name>
    <message>
        <source>Profiles</source>
        <translation>Profielen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Toevoegen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Restore presets</source>
        <translation>Meegeleverde herstellen</translation>
    </message>
    <message>
        <source>There is no profile.
Add one, or restore the presets.</source>
        <translation>Er zijn geen profielen.
Voeg er een toe of herstel de meegeleverde profielen.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Hernoemen</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breedte</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hoogte</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Kader</translation>
    </message>
    <message>
        <source>Include the mouse pointer</source>
        <translation>Muisaanwijzer opnemen</translation>
    </message>
    <message>
        <source>A preset, unchanged.</source>
        <translation>Meegeleverd, ongewijzigd.</translation>
    </message>
    <message>
        <source>Yours, or a changed preset.</source>
        <translation>Eigen of gewijzigd meegeleverd profiel.</translation>
    </message>
    <message>
        <source>“%1” keeps its name. %2</source>
        <translation>‘%1’ behoudt zijn naam. %2</translation>
    </message>
    <message>
        <source>Delete the profile “%1”?</source>
        <translation>Profiel ‘%1’ verwijderen?</translation>
    </message>
    <message>
        <source>Restore the presets? This deletes your own profiles and undoes your changes of the presets.</source>
        <translation>Meegeleverde profielen herstellen? Uw eigen profielen worden verwijderd en uw wijzigingen in de meegeleverde ongedaan gemaakt.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Language</source>
        <translation>Taal</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Openen bij inloggen</translation>
    </message>
    <message>
        <source>Show icon in the menu bar</source>
        <translation>Symbool in de menubalk tonen</translation>
    </message>
    <message>
        <source>Play a sound after a capture</source>
        <translation>Geluid na een opname</translation>
    </message>
    <message>
        <source>Show tips</source>
        <translation>Tips tonen</translation>
    </message>
    <message>
        <source>Recent captures in the menu</source>
        <translation>Recente opnamen in het menu</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Naar updates zoeken</translation>
    </message>
    <message>
        <source>Check interval (days)</source>
        <translation>Zoekinterval (dagen)</translation>
    </message>
    <message>
        <source>Offer beta versions</source>
        <translation>Bètaversies aanbieden</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Thema</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Licht</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Donker</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Kader</translation>
    </message>
    <message>
        <source>Width of the frame</source>
        <translation>Kaderdikte</translation>
    </message>
    <message>
        <source>Shade outside</source>
        <translation>Verdonkering erbuiten</translation>
    </message>
    <message>
        <source>Show magnifier</source>
        <translation>Vergrootglas tonen</translation>
    </message>
    <message>
        <source>Magnification</source>
        <translation>Vergroting</translation>
    </message>
    <message>
        <source>Show size beside the selection</source>
        <translation>Grootte naast de selectie tonen</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Lettertype</translation>
    </message>
    <message>
        <source>Delay before a capture</source>
        <translation>Wachttijd voor een opname</translation>
    </message>
    <message>
        <source>Count down on the screen</source>
        <translation>Aftellen op het scherm</translation>
    </message>
    <message>
        <source>Include the mouse pointer</source>
        <translation>Muisaanwijzer opnemen</translation>
    </message>
    <message>
        <source>Include the shadow of windows</source>
        <translation>Vensterschaduw opnemen</translation>
    </message>
    <message>
        <source>Freeze the screen while selecting</source>
        <translation>Scherm bevriezen tijdens selecteren</translation>
    </message>
    <message>
        <source>Frames per second of videos</source>
        <translation>Beelden per seconde van video’s</translation>
    </message>
    <message>
        <source>Snap to</source>
        <translation>Uitlijnen op</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Vensters</translation>
    </message>
    <message>
        <source>Screen edges</source>
        <translation>Schermranden</translation>
    </message>
    <message>
        <source>Guides</source>
        <translation>Hulplijnen</translation>
    </message>
    <message>
        <source>Last selection</source>
        <translation>Laatste selectie</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Afstand</translation>
    </message>
    <message>
        <source>Hotkeys in full-screen applications</source>
        <translation>Sneltoetsen in schermvullende apps</translation>
    </message>
    <message>
        <source>Repeat delay</source>
        <translation>Herhalingsvertraging</translation>
    </message>
    <message>
        <source>Capture an area</source>
        <translation>Gebied vastleggen</translation>
    </message>
    <message>
        <source>Capture a window</source>
        <translation>Venster vastleggen</translation>
    </message>
    <message>
        <source>Capture the screen</source>
        <translation>Scherm vastleggen</translation>
    </message>
    <message>
        <source>Pin the clipboard</source>
        <translation>Klembord vastzetten</translation>
    </message>
    <message>
        <source>Double-click to finish</source>
        <translation>Afronden met dubbelklik</translation>
    </message>
    <message>
        <source>Invert the wheel</source>
        <translation>Richting muiswiel omkeren</translation>
    </message>
    <message>
        <source>Movement that begins a drag</source>
        <translation>Beweging tot slepen begint</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoomen</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Dekking</translation>
    </message>
    <message>
        <source>Show the menu</source>
        <translation>Menu tonen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiëren</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Verbergen</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verplaatsen</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>Tekenen</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formaat</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Kwaliteit</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Watermerk</translation>
    </message>
    <message>
        <source>Copy it</source>
        <translation>Kopiëren</translation>
    </message>
    <message>
        <source>Save it</source>
        <translation>Opslaan</translation>
    </message>
    <message>
        <source>Open it in the editor</source>
        <translation>Openen in de editor</translation>
    </message>
    <message>
        <source>Allow simple global hotkeys</source>
        <translation>Eenvoudige globale sneltoetsen toestaan</translation>
    </message>
    <message>
        <source>Show expert settings</source>
        <translation>Geavanceerde instellingen tonen</translation>
    </message>
    <message>
        <source>Steps that can be undone</source>
        <translation>Ongedaan te maken stappen</translation>
    </message>
    <message>
        <source>Bring pinned pictures back at start</source>
        <translation>Vastgezette afbeeldingen bij start herstellen</translation>
    </message>
    <message>
        <source>Cache (MB)</source>
        <translation>Cache (MB)</translation>
    </message>
    <message>
        <source>Threads that compress</source>
        <translation>Compressiethreads</translation>
    </message>
    <message>
        <source>Draw with the graphics card</source>
        <translation>Met de grafische kaart tekenen</translation>
    </message>
    <message>
        <source>Show times of drawing</source>
        <translation>Tekentijden tonen</translation>
    </message>
    <message>
        <source>Write a log file</source>
        <translation>Logbestand schrijven</translation>
    </message>
    <message>
        <source>Open the settings</source>
        <translation>Instellingen openen</translation>
    </message>
    <message>
        <source>Save now</source>
        <translation>Nu opslaan</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Afsluiten</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Auteur</translation>
    </message>
    <message>
        <source>Your name</source>
        <translation>Uw naam</translation>
    </message>
    <message>
        <source>Pictures contain it if the details include the author.</source>
        <translation>Staat in de afbeeldingen als de details de auteur bevatten.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notitie</translation>
    </message>
    <message>
        <source>Token for uploads</source>
        <translation>Token voor uploads</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Trefwoorden</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Map</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logo</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg)</source>
        <translation>Afbeeldingen (*.png *.svg)</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>Logbestand</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helderheid</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Marge</translation>
    </message>
    <message>
        <source>Save every</source>
        <translation>Opslaan om de</translation>
    </message>
    <message>
        <source>Remind me</source>
        <translation>Herinneren op</translation>
    </message>
    <message>
        <source>Name of the file</source>
        <translation>Bestandsnaam</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum en tijd</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Title of the window</source>
        <translation>Venstertitel</translation>
    </message>
    <message>
        <source>Details in the file</source>
        <translation>Details in het bestand</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Positie</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>Proxy gebruiken</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Host</translation>
    </message>
    <message>
        <source>A host has no blanks.</source>
        <translation>Een hostnaam bevat geen spaties.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Poort</translation>
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
        <translation>Systeem volgen</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Kleur</translation>
    </message>
    <message>
        <source>Pick a color</source>
        <translation>Schermkleur kiezen</translation>
    </message>
</context>
<context>
    <name>StoredDataPage</name>
    <message>
        <source>Stored data</source>
        <translation>Gegevens</translation>
    </message>
    <message>
        <source>Nothing has been changed yet.</source>
        <translation>Er is nog niets gewijzigd.</translation>
    </message>
</context>
<context>
    <name>WatermarkEditor</name>
    <message>
        <source>Opacity</source>
        <translation>Dekking</translation>
    </message>
    <message>
        <source>None if empty</source>
        <translation>Leeg: geen</translation>
    </message>
</context>
<context>
    <name>takePictures</name>
    <message>
        <source>Cannot write %1</source>
        <translation>Kan %1 niet schrijven</translation>
    </message>
</context>
</TS>
