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
    <message>
        <source>Another program may use this hotkey.</source>
        <translation>Ett annat program kanske använder kortkommandot.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Försök igen</translation>
    </message>
    <message>
        <source>The desktop has not answered yet.</source>
        <translation>Skrivbordsmiljön har inte svarat ännu.</translation>
    </message>
    <message>
        <source>The hotkey has not been set up yet.</source>
        <translation>Kortkommandot har inte ställts in ännu.</translation>
    </message>
    <message>
        <source>A global hotkey is one key, alone or with modifiers.</source>
        <translation>Ett globalt kortkommando är en enda tangent, med eller utan modifierare.</translation>
    </message>
    <message>
        <source>This keyboard does not have the key.</source>
        <translation>Det här tangentbordet har inte den tangenten.</translation>
    </message>
    <message>
        <source>Another program uses this hotkey.</source>
        <translation>Ett annat program använder kortkommandot.</translation>
    </message>
    <message>
        <source>The hotkey was refused by you or by the desktop.</source>
        <translation>Kortkommandot avvisades av dig eller av skrivbordsmiljön.</translation>
    </message>
    <message>
        <source>Global hotkeys are not available on this system.</source>
        <translation>Globala kortkommandon är inte tillgängliga på det här systemet.</translation>
    </message>
    <message>
        <source>Click to try again.</source>
        <translation>Klicka för att försöka igen.</translation>
    </message>
    <message>
        <source>Assigned by the desktop: %1</source>
        <translation>Tilldelat av skrivbordsmiljön: %1</translation>
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
    <name>MtConf::DependencyNote</name>
    <message>
        <source>Needs “%1”</source>
        <translation>Kräver ”%1”</translation>
    </message>
    <message>
        <source>Not with “%1”</source>
        <translation>Inte med ”%1”</translation>
    </message>
    <message>
        <source>Needs “%1”: %2</source>
        <translation>Kräver ”%1”: %2</translation>
    </message>
</context>
<context>
    <name>MtConf::HistoryFeature</name>
    <message>
        <source>Removed 1 entry.</source>
        <translation>1 post har tagits bort.</translation>
    </message>
    <message numerus="yes">
        <source>Removed %n entries.</source>
        <translation>
            <numerusform>%n post har tagits bort.</numerusform>
            <numerusform>%n poster har tagits bort.</numerusform>
        </translation>
    </message>
    <message>
        <source>Imported 1 setting.</source>
        <translation>1 inställning har importerats.</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n settings.</source>
        <translation>
            <numerusform>%n inställning har importerats.</numerusform>
            <numerusform>%n inställningar har importerats.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Restored %n settings.</source>
        <translation>
            <numerusform>%n inställning har återställts.</numerusform>
            <numerusform>%n inställningar har återställts.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MtConf::ImportDialog</name>
    <message>
        <source>Import settings</source>
        <translation>Importera inställningar</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; changes these settings. Those that are checked are imported.</source>
        <translation>Filen ”%1” ändrar de här inställningarna. De markerade importeras.</translation>
    </message>
    <message>
        <source>Settings in the file</source>
        <translation>Inställningar i filen</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Inställning</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Här</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>I filen</translation>
    </message>
    <message>
        <source>%1, here: %2, in the file: %3</source>
        <translation>%1, här: %2, i filen: %3</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Markera alla</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Avmarkera alla</translation>
    </message>
    <message>
        <source>Import (%1)</source>
        <translation>Importera (%1)</translation>
    </message>
    <message>
        <source>Other settings</source>
        <translation>Andra inställningar</translation>
    </message>
    <message>
        <source>%1 (default)</source>
        <translation>%1 (standard)</translation>
    </message>
    <message>
        <source>Does not exist</source>
        <translation>Finns inte</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Borttagen</translation>
    </message>
    <message>
        <source>Entries of other versions, which are left out: %1</source>
        <translation>Poster från andra versioner som utelämnas: %1</translation>
    </message>
    <message>
        <source>Entries that cannot be read, which are left out: %1</source>
        <translation>Oläsbara poster som utelämnas: %1</translation>
    </message>
    <message>
        <source>Settings that stay on each computer, which are left out: %1</source>
        <translation>Inställningar som är egna för varje dator och utelämnas: %1</translation>
    </message>
    <message>
        <source>Locked settings, which are left out: %1</source>
        <translation>Låsta inställningar som utelämnas: %1</translation>
    </message>
    <message>
        <source>Settings whose value is not accepted here: %1</source>
        <translation>Inställningar vars värde inte godtas här: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::ImportExport</name>
    <message>
        <source>Import…</source>
        <translation>Importera…</translation>
    </message>
    <message>
        <source>Import settings from a file</source>
        <translation>Importera inställningar från en fil</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportera…</translation>
    </message>
    <message>
        <source>Export the settings to a file</source>
        <translation>Exportera inställningarna till en fil</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>Inställningar (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alla filer (*)</translation>
    </message>
    <message>
        <source>Export settings</source>
        <translation>Exportera inställningar</translation>
    </message>
    <message>
        <source>Import settings</source>
        <translation>Importera inställningar</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; changes nothing here.</source>
        <translation>Filen ”%1” ändrar inget här.</translation>
    </message>
    <message>
        <source>Settings that could not be imported: %1</source>
        <translation>Inställningar som inte kunde importeras: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::InputConflicts</name>
    <message>
        <source>%1 is used by: %2</source>
        <translation>%1 används av: %2</translation>
    </message>
    <message>
        <source>Also used by: %1</source>
        <translation>Används även av: %1</translation>
    </message>
    <message>
        <source>%1 is needed for typing and editing.</source>
        <translation>%1 behövs för att skriva och redigera.</translation>
    </message>
</context>
<context>
    <name>MtConf::InputOffer</name>
    <message>
        <source>Replace</source>
        <translation>Ersätt</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Byt plats</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>Behåll båda</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
</context>
<context>
    <name>MtConf::InputRegistry</name>
    <message>
        <source>another shortcut of this program</source>
        <translation>ett annat kortkommando i det här programmet</translation>
    </message>
</context>
<context>
    <name>MtConf::LivePages</name>
    <message>
        <source>Changed elsewhere meanwhile. What you type replaces it.</source>
        <translation>Har under tiden ändrats på annat håll. Det du skriver ersätter det nya värdet.</translation>
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
        <translation>Ingen modifierare</translation>
    </message>
</context>
<context>
    <name>MtConf::ModernWindow</name>
    <message>
        <source>Reset this page…</source>
        <translation>Återställ sidan…</translation>
    </message>
    <message>
        <source>Reset all settings…</source>
        <translation>Återställ allt…</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mer</translation>
    </message>
</context>
<context>
    <name>MtConf::ResetQuestion</name>
    <message>
        <source>Reset this page?</source>
        <translation>Vill du återställa sidan?</translation>
    </message>
    <message>
        <source>Reset all settings?</source>
        <translation>Vill du återställa alla inställningar?</translation>
    </message>
    <message>
        <source>Reset 1 setting on this page?</source>
        <translation>Vill du återställa 1 inställning på sidan?</translation>
    </message>
    <message>
        <source>Reset 1 setting on all pages?</source>
        <translation>Vill du återställa 1 inställning på alla sidor?</translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings on this page?</source>
        <translation>
            <numerusform>Vill du återställa %n inställning på sidan?</numerusform>
            <numerusform>Vill du återställa %n inställningar på sidan?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings on all pages?</source>
        <translation>
            <numerusform>Vill du återställa %n inställning på alla sidor?</numerusform>
            <numerusform>Vill du återställa %n inställningar på alla sidor?</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Återställ</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
</context>
<context>
    <name>MtConf::RowReset</name>
    <message>
        <source>Show changed</source>
        <translation>Visa ändrade</translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n ändrad</numerusform>
            <numerusform>%n ändrade</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>Återställ %1</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Återställ</translation>
    </message>
    <message>
        <source>Copy key</source>
        <translation>Kopiera nyckel</translation>
    </message>
    <message>
        <source>Copy value</source>
        <translation>Kopiera värde</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Ändrad</translation>
    </message>
    <message>
        <source>Changed settings</source>
        <translation>Ändrade inställningar</translation>
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
        <translation>Inte ändrad</translation>
    </message>
    <message>
        <source>Changed on %1</source>
        <translation>Ändrad %1</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Ändrad</translation>
    </message>
    <message>
        <source>From the file %1</source>
        <translation>Från filen %1</translation>
    </message>
    <message>
        <source>Changed by another program or computer on %1</source>
        <translation>Ändrad av ett annat program eller en annan dator %1</translation>
    </message>
    <message>
        <source>Changed by another program or computer</source>
        <translation>Ändrad av ett annat program eller en annan dator</translation>
    </message>
    <message>
        <source>Locked by the administrator</source>
        <translation>Låst av administratören</translation>
    </message>
</context>
<context>
    <name>MtConf::SettingsFile</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>”%1” är inte en fil.</translation>
    </message>
    <message>
        <source>The settings could not be saved in &quot;%1&quot;.</source>
        <translation>Det gick inte att spara inställningarna i ”%1”.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not exist.</source>
        <translation>Filen ”%1” finns inte.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is larger than %2.</source>
        <translation>Filen ”%1” är större än %2.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; could not be read.</source>
        <translation>Det gick inte att läsa filen ”%1”.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is empty.</source>
        <translation>Filen ”%1” är tom.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged: its content is nested too deeply.</source>
        <translation>Filen ”%1” är skadad: innehållet har för många nivåer.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged or not complete.</source>
        <translation>Filen ”%1” är skadad eller ofullständig.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not contain settings.</source>
        <translation>Filen ”%1” innehåller inga inställningar.</translation>
    </message>
    <message>
        <source>%1 settings</source>
        <comment>name of a file</comment>
        <translation>Inställningar för %1</translation>
    </message>
</context>
<context>
    <name>MtConf::SettingsFind</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 av %2</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>Sök inställningar</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Rensa sökningen</translation>
    </message>
    <message>
        <source>Show more (%1)</source>
        <translation>Visa fler (%1)</translation>
    </message>
    <message>
        <source>No setting matches “%1”</source>
        <translation>Ingen inställning matchar ”%1”</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultat</translation>
    </message>
    <message>
        <source>Enter opens the page</source>
        <translation>Retur öppnar sidan</translation>
    </message>
</context>
<context>
    <name>MtConf::UndoBar</name>
    <message>
        <source>Undo</source>
        <translation>Ångra</translation>
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
        <translation>Nej</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ingen</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Inte angivet</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Tomt</translation>
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
        <translation>fet</translation>
    </message>
    <message>
        <source>italic</source>
        <translation>kursiv</translation>
    </message>
    <message>
        <source>underlined</source>
        <translation>understruken</translation>
    </message>
</context>
<context>
    <name>MtConf::WindowIdentity</name>
    <message>
        <source>Settings</source>
        <translation>Inställningar</translation>
    </message>
    <message>
        <source>Settings — %1</source>
        <translation>Inställningar – %1</translation>
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
