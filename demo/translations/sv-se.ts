<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE" sourcelanguage="en_US">
<context>
    <name>BoundValueModel</name>
    <message>
        <source>changed</source>
        <translation>ändrad</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Inställning</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Värde</translation>
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
        <translation>Här visas det som biblioteket loggar.</translation>
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
        <translation>Logg</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Inställningar…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Spara</translation>
    </message>
    <message>
        <source>Restore all</source>
        <translation>Återställ allt</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arkiv</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>&amp;Inställningar…</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>&amp;Spara</translation>
    </message>
    <message>
        <source>&amp;Restore all…</source>
        <translation>Å&amp;terställ allt…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>A&amp;vsluta</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Tema</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Ljust</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Mörkt</translation>
    </message>
    <message>
        <source>Variables — %1 of %2 changed</source>
        <translation>Variabler – %1 av %2 ändrade</translation>
    </message>
    <message>
        <source>Hotkey pressed: %1 (%2)</source>
        <translation>Kortkommando använt: %1 (%2)</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <translation>Sparat i %1</translation>
    </message>
    <message>
        <source>Could not write %1</source>
        <translation>Det gick inte att skriva %1</translation>
    </message>
    <message>
        <source>Restore the defaults of all settings and the presets of the profiles?</source>
        <translation>Vill du återställa de förinställda profilerna och standardvärdena för alla inställningar?</translation>
    </message>
    <message>
        <source>Follow the system</source>
        <translation>Följ systemet</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigurationWindow</name>
    <message>
        <source>General</source>
        <translation>Allmänt</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Utseende</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Skärmbild</translation>
    </message>
    <message>
        <source>Hotkeys</source>
        <translation>Genvägar</translation>
    </message>
    <message>
        <source>Mouse</source>
        <translation>Mus</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Utdata</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profiler</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Stored data</source>
        <translation>Sparade data</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Uppdateringar</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Markering</translation>
    </message>
    <message>
        <source>Magnifier</source>
        <translation>Förstoringsglas</translation>
    </message>
    <message>
        <source>Size label</source>
        <translation>Storleksetikett</translation>
    </message>
    <message>
        <source>Snapping</source>
        <translation>Snäppning</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Verktyg</translation>
    </message>
    <message>
        <source>Pinned pictures</source>
        <translation>Fästa bilder</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>After a capture</source>
        <translation>Efter en skärmbild</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Texter</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>Tal</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>Val</translation>
    </message>
    <message>
        <source>In this program</source>
        <translation>I den här appen</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Filer</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Nätverk</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>Screen</source>
        <translation>Skärm</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fönster</translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation>Miniatyr</translation>
    </message>
    <message>
        <source>A profile needs a name.</source>
        <translation>En profil måste ha ett namn.</translation>
    </message>
    <message>
        <source>A name can have at most %1 characters.</source>
        <translation>Ett namn får ha högst %1 tecken.</translation>
    </message>
    <message>
        <source>Another profile has this name.</source>
        <translation>En annan profil har det här namnet.</translation>
    </message>
    <message>
        <source>New profile</source>
        <translation>Ny profil</translation>
    </message>
    <message>
        <source>New profile %1</source>
        <translation>Ny profil %1</translation>
    </message>
</context>
<context>
    <name>ProfilesPage</name>
    <message>
        <source>Profiles</source>
        <translation>Profiler</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Lägg till</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Restore presets</source>
        <translation>Återställ förinställda</translation>
    </message>
    <message>
        <source>There is no profile.
Add one, or restore the presets.</source>
        <translation>Det finns ingen profil.
Lägg till en eller återställ de förinställda.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Byt namn</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Bredd</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höjd</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Ram</translation>
    </message>
    <message>
        <source>Include the mouse pointer</source>
        <translation>Ta med muspekaren</translation>
    </message>
    <message>
        <source>A preset, unchanged.</source>
        <translation>Förinställd, oförändrad.</translation>
    </message>
    <message>
        <source>Yours, or a changed preset.</source>
        <translation>Egen eller ändrad förinställd profil.</translation>
    </message>
    <message>
        <source>“%1” keeps its name. %2</source>
        <translation>”%1” behåller sitt namn. %2</translation>
    </message>
    <message>
        <source>Delete the profile “%1”?</source>
        <translation>Ta bort profilen ”%1”?</translation>
    </message>
    <message>
        <source>Restore the presets? This deletes your own profiles and undoes your changes of the presets.</source>
        <translation>Återställa de förinställda profilerna? Dina egna profiler tas bort och dina ändringar av de förinställda ångras.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Language</source>
        <translation>Språk</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Öppna vid inloggning</translation>
    </message>
    <message>
        <source>Show icon in the menu bar</source>
        <translation>Visa symbol i menyraden</translation>
    </message>
    <message>
        <source>Play a sound after a capture</source>
        <translation>Spela upp ljud efter skärmbild</translation>
    </message>
    <message>
        <source>Show tips</source>
        <translation>Visa tips</translation>
    </message>
    <message>
        <source>Recent captures in the menu</source>
        <translation>Senaste skärmbilder i menyn</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Sök efter uppdateringar</translation>
    </message>
    <message>
        <source>Check interval (days)</source>
        <translation>Sökintervall (dagar)</translation>
    </message>
    <message>
        <source>Offer beta versions</source>
        <translation>Erbjud betaversioner</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Ljust</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Mörkt</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Ram</translation>
    </message>
    <message>
        <source>Width of the frame</source>
        <translation>Ramens bredd</translation>
    </message>
    <message>
        <source>Shade outside</source>
        <translation>Nedtoning utanför</translation>
    </message>
    <message>
        <source>Show magnifier</source>
        <translation>Visa förstoringsglas</translation>
    </message>
    <message>
        <source>Magnification</source>
        <translation>Förstoring</translation>
    </message>
    <message>
        <source>Show size beside the selection</source>
        <translation>Visa storleken bredvid markeringen</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Typsnitt</translation>
    </message>
    <message>
        <source>Delay before a capture</source>
        <translation>Fördröjning före en skärmbild</translation>
    </message>
    <message>
        <source>Count down on the screen</source>
        <translation>Nedräkning på skärmen</translation>
    </message>
    <message>
        <source>Include the mouse pointer</source>
        <translation>Ta med muspekaren</translation>
    </message>
    <message>
        <source>Include the shadow of windows</source>
        <translation>Ta med fönsterskuggor</translation>
    </message>
    <message>
        <source>Freeze the screen while selecting</source>
        <translation>Frys skärmen under markering</translation>
    </message>
    <message>
        <source>Frames per second of videos</source>
        <translation>Bildrutor per sekund i videor</translation>
    </message>
    <message>
        <source>Snap to</source>
        <translation>Snäpp mot</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Fönster</translation>
    </message>
    <message>
        <source>Screen edges</source>
        <translation>Skärmkanter</translation>
    </message>
    <message>
        <source>Guides</source>
        <translation>Stödlinjer</translation>
    </message>
    <message>
        <source>Last selection</source>
        <translation>Senaste markering</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Avstånd</translation>
    </message>
    <message>
        <source>Hotkeys in full-screen applications</source>
        <translation>Kortkommandon i helskärmsappar</translation>
    </message>
    <message>
        <source>Repeat delay</source>
        <translation>Repetitionsfördröjning</translation>
    </message>
    <message>
        <source>Capture an area</source>
        <translation>Fånga ett område</translation>
    </message>
    <message>
        <source>Capture a window</source>
        <translation>Fånga ett fönster</translation>
    </message>
    <message>
        <source>Capture the screen</source>
        <translation>Fånga skärmen</translation>
    </message>
    <message>
        <source>Pin the clipboard</source>
        <translation>Fäst urklipp</translation>
    </message>
    <message>
        <source>Double-click to finish</source>
        <translation>Avsluta med dubbelklick</translation>
    </message>
    <message>
        <source>Invert the wheel</source>
        <translation>Omvänt mushjul</translation>
    </message>
    <message>
        <source>Movement that begins a drag</source>
        <translation>Rörelse innan dragning börjar</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zooma</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacitet</translation>
    </message>
    <message>
        <source>Show the menu</source>
        <translation>Visa menyn</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Stäng</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiera</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Göm</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Flytta</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>Rita</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Kvalitet</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Storlek</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Vattenstämpel</translation>
    </message>
    <message>
        <source>Copy it</source>
        <translation>Kopiera den</translation>
    </message>
    <message>
        <source>Save it</source>
        <translation>Spara den</translation>
    </message>
    <message>
        <source>Open it in the editor</source>
        <translation>Öppna den i redigeraren</translation>
    </message>
    <message>
        <source>Allow simple global hotkeys</source>
        <translation>Tillåt enkla globala kortkommandon</translation>
    </message>
    <message>
        <source>Show expert settings</source>
        <translation>Visa avancerade inställningar</translation>
    </message>
    <message>
        <source>Steps that can be undone</source>
        <translation>Steg som kan ångras</translation>
    </message>
    <message>
        <source>Bring pinned pictures back at start</source>
        <translation>Återställ fästa bilder vid start</translation>
    </message>
    <message>
        <source>Cache (MB)</source>
        <translation>Cache (MB)</translation>
    </message>
    <message>
        <source>Threads that compress</source>
        <translation>Trådar för komprimering</translation>
    </message>
    <message>
        <source>Draw with the graphics card</source>
        <translation>Rita med grafikkortet</translation>
    </message>
    <message>
        <source>Show times of drawing</source>
        <translation>Visa rittider</translation>
    </message>
    <message>
        <source>Write a log file</source>
        <translation>Skriv en loggfil</translation>
    </message>
    <message>
        <source>Open the settings</source>
        <translation>Öppna inställningarna</translation>
    </message>
    <message>
        <source>Save now</source>
        <translation>Spara nu</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Avsluta</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Upphovsman</translation>
    </message>
    <message>
        <source>Your name</source>
        <translation>Ditt namn</translation>
    </message>
    <message>
        <source>Pictures contain it if the details include the author.</source>
        <translation>Ingår i bilderna om detaljerna omfattar upphovsmannen.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Anteckning</translation>
    </message>
    <message>
        <source>Token for uploads</source>
        <translation>Token för uppladdning</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Taggar</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mapp</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logotyp</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg)</source>
        <translation>Bilder (*.png *.svg)</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>Loggfil</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Ljusstyrka</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Marginal</translation>
    </message>
    <message>
        <source>Save every</source>
        <translation>Sparintervall</translation>
    </message>
    <message>
        <source>Remind me</source>
        <translation>Påminn mig</translation>
    </message>
    <message>
        <source>Name of the file</source>
        <translation>Filnamn</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum och tid</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Title of the window</source>
        <translation>Fönstertitel</translation>
    </message>
    <message>
        <source>Details in the file</source>
        <translation>Detaljer i filen</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>Använd en proxy</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Värd</translation>
    </message>
    <message>
        <source>A host has no blanks.</source>
        <translation>Ett värdnamn kan inte innehålla blanksteg.</translation>
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
        <translation>Följ systemet</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Färg</translation>
    </message>
    <message>
        <source>Pick a color</source>
        <translation>Hämta en färg</translation>
    </message>
</context>
<context>
    <name>StoredDataPage</name>
    <message>
        <source>Stored data</source>
        <translation>Sparade data</translation>
    </message>
    <message>
        <source>Nothing has been changed yet.</source>
        <translation>Inget har ändrats ännu.</translation>
    </message>
</context>
<context>
    <name>WatermarkEditor</name>
    <message>
        <source>Opacity</source>
        <translation>Opacitet</translation>
    </message>
    <message>
        <source>None if empty</source>
        <translation>Tomt: ingen</translation>
    </message>
</context>
<context>
    <name>takePictures</name>
    <message>
        <source>Cannot write %1</source>
        <translation>Det går inte att skriva %1</translation>
    </message>
</context>
</TS>
