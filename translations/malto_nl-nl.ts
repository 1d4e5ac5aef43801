<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="en_US">
<context>
    <name>ColorSelectButton</name>
    <message>
        <source>None</source>
        <translation>Geen</translation>
    </message>
</context>
<context>
    <name>ConfigurationWindow</name>
    <message>
        <source>Quorvi Configuration</source>
        <translation>Quorvi-instellingen</translation>
    </message>
    <message>
        <source>Restore All Default</source>
        <translation>Alles herstellen</translation>
    </message>
    <message>
        <source>Restore Default</source>
        <translation>Standaardwaarden herstellen</translation>
    </message>
</context>
<context>
    <name>KeySequenceEdit</name>
    <message>
        <source>Press shortcut key</source>
        <translation>Druk op een sneltoets</translation>
    </message>
    <message>
        <source>Clear shortcut key</source>
        <translation>Sneltoets wissen</translation>
    </message>
    <message>
        <source>Shortkey [%1] is too simple.
To avoid conflicts with other functions and prevent accidental activations, please set a more complex hotkey combination.

If you need to set simple shortcuts, go to the [System] Settings page and check [Allow simple global hotkeys].</source>
        <translation>De sneltoets [%1] is te eenvoudig.
Stel een complexere toetsencombinatie in om conflicten met andere functies en onbedoeld activeren te voorkomen.

Als u eenvoudige sneltoetsen nodig hebt, gaat u naar de instellingenpagina [Systeem] en vinkt u [Eenvoudige globale sneltoetsen toestaan] aan.</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfDefWidgetQKeySequence</name>
    <message>
        <source>Not set</source>
        <translation>Niet ingesteld</translation>
    </message>
    <message>
        <source>Setup failed, the hotkey may be occupied. Click to try setup again.</source>
        <translation>Instellen mislukt: de sneltoets is mogelijk al in gebruik. Klik om het opnieuw te proberen.</translation>
    </message>
    <message>
        <source>Setup success.</source>
        <translation>Instellen gelukt.</translation>
    </message>
    <message>
        <source>Disabled.</source>
        <translation>Uitgeschakeld.</translation>
    </message>
    <message>
        <source>Another program may use this hotkey.</source>
        <translation>Mogelijk gebruikt een ander programma deze sneltoets.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Opnieuw proberen</translation>
    </message>
    <message>
        <source>The desktop has not answered yet.</source>
        <translation>De bureaubladomgeving heeft nog niet geantwoord.</translation>
    </message>
    <message>
        <source>The hotkey has not been set up yet.</source>
        <translation>De sneltoets is nog niet ingesteld.</translation>
    </message>
    <message>
        <source>A global hotkey is one key, alone or with modifiers.</source>
        <translation>Een globale sneltoets is één toets, met of zonder modificatietoetsen.</translation>
    </message>
    <message>
        <source>This keyboard does not have the key.</source>
        <translation>Dit toetsenbord heeft die toets niet.</translation>
    </message>
    <message>
        <source>Another program uses this hotkey.</source>
        <translation>Een ander programma gebruikt deze sneltoets.</translation>
    </message>
    <message>
        <source>The hotkey was refused by you or by the desktop.</source>
        <translation>De sneltoets is door u of door de bureaubladomgeving geweigerd.</translation>
    </message>
    <message>
        <source>Global hotkeys are not available on this system.</source>
        <translation>Globale sneltoetsen zijn op dit systeem niet beschikbaar.</translation>
    </message>
    <message>
        <source>Click to try again.</source>
        <translation>Klik om het opnieuw te proberen.</translation>
    </message>
    <message>
        <source>Assigned by the desktop: %1</source>
        <translation>Toegewezen door de bureaubladomgeving: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetDateTime</name>
    <message>
        <source>Not set</source>
        <translation>Niet ingesteld</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wissen</translation>
    </message>
    <message>
        <source>Enter a date and time from %1 to %2</source>
        <translation>Voer een datum en tijd in van %1 tot %2</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetLanguage</name>
    <message>
        <source>Follow the system</source>
        <translation>Systeem volgen</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetMouseAction</name>
    <message>
        <source>None</source>
        <translation>Geen</translation>
    </message>
    <message>
        <source>Left Click</source>
        <translation>Linksklik</translation>
    </message>
    <message>
        <source>Left Double Click</source>
        <translation>Dubbelklik links</translation>
    </message>
    <message>
        <source>Right Click</source>
        <translation>Rechtsklik</translation>
    </message>
    <message>
        <source>Right Double Click</source>
        <translation>Dubbelklik rechts</translation>
    </message>
    <message>
        <source>Middle Click</source>
        <translation>Middelklik</translation>
    </message>
    <message>
        <source>Middle Double Click</source>
        <translation>Dubbelklik midden</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Muiswiel</translation>
    </message>
    <message>
        <source>Left Drag</source>
        <translation>Slepen links</translation>
    </message>
    <message>
        <source>Right Drag</source>
        <translation>Slepen rechts</translation>
    </message>
    <message>
        <source>Middle Drag</source>
        <translation>Slepen midden</translation>
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
        <translation>Tonen</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetPath</name>
    <message>
        <source>Browse...</source>
        <translation>Bladeren…</translation>
    </message>
    <message>
        <source>This folder does not exist.</source>
        <translation>Deze map bestaat niet.</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>Dit is een bestand, geen map.</translation>
    </message>
    <message>
        <source>This is a folder, not a file.</source>
        <translation>Dit is een map, geen bestand.</translation>
    </message>
    <message>
        <source>The folder of this file does not exist.</source>
        <translation>De map van dit bestand bestaat niet.</translation>
    </message>
    <message>
        <source>This file does not exist.</source>
        <translation>Dit bestand bestaat niet.</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetStringList</name>
    <message>
        <source>Add</source>
        <translation>Toevoegen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Omhoog</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Omlaag</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigItemWidget</name>
    <message>
        <source>From %1 to %2</source>
        <translation>Van %1 tot %2</translation>
    </message>
    <message>
        <source>Enter a number from %1 to %2</source>
        <translation>Voer een getal in van %1 tot %2</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigurationWindow</name>
    <message>
        <source>Confirm</source>
        <translation>Bevestigen</translation>
    </message>
    <message>
        <source>Are you sure to restore current page default?</source>
        <translation>Weet u zeker dat u de standaardwaarden van de huidige pagina wilt herstellen?</translation>
    </message>
    <message>
        <source>Are you sure to restore all default?</source>
        <translation>Weet u zeker dat u alle standaardwaarden wilt herstellen?</translation>
    </message>
</context>
<context>
    <name>MtConf::DependencyNote</name>
    <message>
        <source>Needs “%1”</source>
        <translation>Vereist ‘%1’</translation>
    </message>
    <message>
        <source>Not with “%1”</source>
        <translation>Niet samen met ‘%1’</translation>
    </message>
    <message>
        <source>Needs “%1”: %2</source>
        <translation>Vereist ‘%1’: %2</translation>
    </message>
</context>
<context>
    <name>MtConf::HistoryFeature</name>
    <message>
        <source>Removed 1 entry.</source>
        <translation>1 item verwijderd.</translation>
    </message>
    <message numerus="yes">
        <source>Removed %n entries.</source>
        <translation>
            <numerusform>%n item verwijderd.</numerusform>
            <numerusform>%n items verwijderd.</numerusform>
        </translation>
    </message>
    <message>
        <source>Imported 1 setting.</source>
        <translation>1 instelling geïmporteerd.</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n settings.</source>
        <translation>
            <numerusform>%n instelling geïmporteerd.</numerusform>
            <numerusform>%n instellingen geïmporteerd.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Restored %n settings.</source>
        <translation>
            <numerusform>%n instelling hersteld.</numerusform>
            <numerusform>%n instellingen hersteld.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MtConf::ImportDialog</name>
    <message>
        <source>Import settings</source>
        <translation>Instellingen importeren</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; changes these settings. Those that are checked are imported.</source>
        <translation>Het bestand ‘%1’ wijzigt deze instellingen. De aangevinkte worden geïmporteerd.</translation>
    </message>
    <message>
        <source>Settings in the file</source>
        <translation>Instellingen in het bestand</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Instelling</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Hier</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>In het bestand</translation>
    </message>
    <message>
        <source>%1, here: %2, in the file: %3</source>
        <translation>%1, hier: %2, in het bestand: %3</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alles selecteren</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Niets selecteren</translation>
    </message>
    <message>
        <source>Import (%1)</source>
        <translation>Importeren (%1)</translation>
    </message>
    <message>
        <source>Other settings</source>
        <translation>Andere instellingen</translation>
    </message>
    <message>
        <source>%1 (default)</source>
        <translation>%1 (standaard)</translation>
    </message>
    <message>
        <source>Does not exist</source>
        <translation>Bestaat niet</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Verwijderd</translation>
    </message>
    <message>
        <source>Entries of other versions, which are left out: %1</source>
        <translation>Overgeslagen items van andere versies: %1</translation>
    </message>
    <message>
        <source>Entries that cannot be read, which are left out: %1</source>
        <translation>Overgeslagen onleesbare items: %1</translation>
    </message>
    <message>
        <source>Settings that stay on each computer, which are left out: %1</source>
        <translation>Overgeslagen instellingen die per computer gelden: %1</translation>
    </message>
    <message>
        <source>Locked settings, which are left out: %1</source>
        <translation>Overgeslagen vergrendelde instellingen: %1</translation>
    </message>
    <message>
        <source>Settings whose value is not accepted here: %1</source>
        <translation>Instellingen waarvan de waarde hier niet is toegestaan: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::ImportExport</name>
    <message>
        <source>Import…</source>
        <translation>Importeren…</translation>
    </message>
    <message>
        <source>Import settings from a file</source>
        <translation>Instellingen uit een bestand importeren</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporteren…</translation>
    </message>
    <message>
        <source>Export the settings to a file</source>
        <translation>De instellingen naar een bestand exporteren</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>Instellingen (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle bestanden (*)</translation>
    </message>
    <message>
        <source>Export settings</source>
        <translation>Instellingen exporteren</translation>
    </message>
    <message>
        <source>Import settings</source>
        <translation>Instellingen importeren</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; changes nothing here.</source>
        <translation>Het bestand ‘%1’ wijzigt hier niets.</translation>
    </message>
    <message>
        <source>Settings that could not be imported: %1</source>
        <translation>Instellingen die niet konden worden geïmporteerd: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::InputConflicts</name>
    <message>
        <source>%1 is used by: %2</source>
        <translation>%1 wordt gebruikt door: %2</translation>
    </message>
    <message>
        <source>Also used by: %1</source>
        <translation>Ook gebruikt door: %1</translation>
    </message>
    <message>
        <source>%1 is needed for typing and editing.</source>
        <translation>%1 is nodig om te typen en te bewerken.</translation>
    </message>
</context>
<context>
    <name>MtConf::InputOffer</name>
    <message>
        <source>Replace</source>
        <translation>Vervangen</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Omwisselen</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>Beide behouden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
</context>
<context>
    <name>MtConf::InputRegistry</name>
    <message>
        <source>another shortcut of this program</source>
        <translation>een andere sneltoets van dit programma</translation>
    </message>
</context>
<context>
    <name>MtConf::LivePages</name>
    <message>
        <source>Changed elsewhere meanwhile. What you type replaces it.</source>
        <translation>Intussen elders gewijzigd. Wat u typt, vervangt de nieuwe waarde.</translation>
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
        <translation>Geen modificatietoets</translation>
    </message>
</context>
<context>
    <name>MtConf::ModernWindow</name>
    <message>
        <source>Reset this page…</source>
        <translation>Pagina herstellen…</translation>
    </message>
    <message>
        <source>Reset all settings…</source>
        <translation>Alles herstellen…</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Meer</translation>
    </message>
</context>
<context>
    <name>MtConf::ResetQuestion</name>
    <message>
        <source>Reset this page?</source>
        <translation>Deze pagina herstellen?</translation>
    </message>
    <message>
        <source>Reset all settings?</source>
        <translation>Alle instellingen herstellen?</translation>
    </message>
    <message>
        <source>Reset 1 setting on this page?</source>
        <translation>1 instelling op deze pagina herstellen?</translation>
    </message>
    <message>
        <source>Reset 1 setting on all pages?</source>
        <translation>1 instelling op alle pagina’s herstellen?</translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings on this page?</source>
        <translation>
            <numerusform>%n instelling op deze pagina herstellen?</numerusform>
            <numerusform>%n instellingen op deze pagina herstellen?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings on all pages?</source>
        <translation>
            <numerusform>%n instelling op alle pagina’s herstellen?</numerusform>
            <numerusform>%n instellingen op alle pagina’s herstellen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Herstellen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
</context>
<context>
    <name>MtConf::RowReset</name>
    <message>
        <source>Show changed</source>
        <translation>Gewijzigde tonen</translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n gewijzigd</numerusform>
            <numerusform>%n gewijzigd</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>%1 herstellen</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Herstellen</translation>
    </message>
    <message>
        <source>Copy key</source>
        <translation>Sleutel kopiëren</translation>
    </message>
    <message>
        <source>Copy value</source>
        <translation>Waarde kopiëren</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Gewijzigd</translation>
    </message>
    <message>
        <source>Changed settings</source>
        <translation>Gewijzigde instellingen</translation>
    </message>
</context>
<context>
    <name>MtConf::RowWords</name>
    <message>
        <source>Default: %1</source>
        <translation>Standaard: %1</translation>
    </message>
    <message>
        <source>Not changed</source>
        <translation>Niet gewijzigd</translation>
    </message>
    <message>
        <source>Changed on %1</source>
        <translation>Gewijzigd op %1</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Gewijzigd</translation>
    </message>
    <message>
        <source>From the file %1</source>
        <translation>Uit het bestand %1</translation>
    </message>
    <message>
        <source>Changed by another program or computer on %1</source>
        <translation>Gewijzigd door een ander programma of andere computer op %1</translation>
    </message>
    <message>
        <source>Changed by another program or computer</source>
        <translation>Gewijzigd door een ander programma of andere computer</translation>
    </message>
    <message>
        <source>Locked by the administrator</source>
        <translation>Vergrendeld door de beheerder</translation>
    </message>
</context>
<context>
    <name>MtConf::SettingsFile</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>‘%1’ is geen bestand.</translation>
    </message>
    <message>
        <source>The settings could not be saved in &quot;%1&quot;.</source>
        <translation>De instellingen konden niet worden opgeslagen in ‘%1’.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not exist.</source>
        <translation>Het bestand ‘%1’ bestaat niet.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is larger than %2.</source>
        <translation>Het bestand ‘%1’ is groter dan %2.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; could not be read.</source>
        <translation>Het bestand ‘%1’ kon niet worden gelezen.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is empty.</source>
        <translation>Het bestand ‘%1’ is leeg.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged: its content is nested too deeply.</source>
        <translation>Het bestand ‘%1’ is beschadigd: de inhoud is te diep genest.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged or not complete.</source>
        <translation>Het bestand ‘%1’ is beschadigd of onvolledig.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not contain settings.</source>
        <translation>Het bestand ‘%1’ bevat geen instellingen.</translation>
    </message>
    <message>
        <source>%1 settings</source>
        <comment>name of a file</comment>
        <translation>Instellingen van %1</translation>
    </message>
</context>
<context>
    <name>MtConf::SettingsFind</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 van %2</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>Instelling zoeken</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Zoekopdracht wissen</translation>
    </message>
    <message>
        <source>Show more (%1)</source>
        <translation>Meer tonen (%1)</translation>
    </message>
    <message>
        <source>No setting matches “%1”</source>
        <translation>Geen instelling komt overeen met ‘%1’</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultaten</translation>
    </message>
    <message>
        <source>Enter opens the page</source>
        <translation>Enter opent de pagina</translation>
    </message>
</context>
<context>
    <name>MtConf::UndoBar</name>
    <message>
        <source>Undo</source>
        <translation>Ongedaan maken</translation>
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
        <translation>Nee</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Geen</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Niet ingesteld</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Leeg</translation>
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
        <translation>vet</translation>
    </message>
    <message>
        <source>italic</source>
        <translation>cursief</translation>
    </message>
    <message>
        <source>underlined</source>
        <translation>onderstreept</translation>
    </message>
</context>
<context>
    <name>MtConf::WindowIdentity</name>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>Settings — %1</source>
        <translation>Instellingen – %1</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Cannot set left-click separately</source>
        <translation>Een linksklik kan niet op zichzelf worden ingesteld</translation>
    </message>
    <message>
        <source>No set</source>
        <translation>Niet ingesteld</translation>
    </message>
    <message>
        <source>Conflict with %1</source>
        <translation>Conflict met ‘%1’</translation>
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
        <translation> u</translation>
    </message>
    <message>
        <source> d</source>
        <translation> d</translation>
    </message>
</context>
</TS>
