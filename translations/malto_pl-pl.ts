<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en_US">
<context>
    <name>ColorSelectButton</name>
    <message>
        <source>None</source>
        <translation>Brak</translation>
    </message>
</context>
<context>
    <name>ConfigurationWindow</name>
    <message>
        <source>Quorvi Configuration</source>
        <translation>Ustawienia Quorvi</translation>
    </message>
    <message>
        <source>Restore All Default</source>
        <translation>Przywróć wszystko</translation>
    </message>
    <message>
        <source>Restore Default</source>
        <translation>Przywróć domyślne</translation>
    </message>
</context>
<context>
    <name>KeySequenceEdit</name>
    <message>
        <source>Press shortcut key</source>
        <translation>Naciśnij skrót klawiszowy</translation>
    </message>
    <message>
        <source>Clear shortcut key</source>
        <translation>Wyczyść skrót klawiszowy</translation>
    </message>
    <message>
        <source>Shortkey [%1] is too simple.
To avoid conflicts with other functions and prevent accidental activations, please set a more complex hotkey combination.

If you need to set simple shortcuts, go to the [System] Settings page and check [Allow simple global hotkeys].</source>
        <translation>Skrót klawiszowy [%1] jest zbyt prosty.
Aby uniknąć konfliktów z innymi funkcjami i przypadkowego uruchomienia, ustaw bardziej złożoną kombinację klawiszy.

Jeśli potrzebujesz prostych skrótów, przejdź na stronę ustawień [System] i zaznacz opcję [Zezwalaj na proste skróty globalne].</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfDefWidgetQKeySequence</name>
    <message>
        <source>Not set</source>
        <translation>Nie ustawiono</translation>
    </message>
    <message>
        <source>Setup failed, the hotkey may be occupied. Click to try setup again.</source>
        <translation>Nie udało się ustawić skrótu: może być już zajęty. Kliknij, aby spróbować ponownie.</translation>
    </message>
    <message>
        <source>Setup success.</source>
        <translation>Ustawiono pomyślnie.</translation>
    </message>
    <message>
        <source>Disabled.</source>
        <translation>Wyłączono.</translation>
    </message>
    <message>
        <source>Another program may use this hotkey.</source>
        <translation>Tego skrótu może używać inny program.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Spróbuj ponownie</translation>
    </message>
    <message>
        <source>The desktop has not answered yet.</source>
        <translation>Środowisko pulpitu jeszcze nie odpowiedziało.</translation>
    </message>
    <message>
        <source>The hotkey has not been set up yet.</source>
        <translation>Skrót nie został jeszcze ustawiony.</translation>
    </message>
    <message>
        <source>A global hotkey is one key, alone or with modifiers.</source>
        <translation>Skrót globalny to jeden klawisz, sam lub z modyfikatorami.</translation>
    </message>
    <message>
        <source>This keyboard does not have the key.</source>
        <translation>Ta klawiatura nie ma tego klawisza.</translation>
    </message>
    <message>
        <source>Another program uses this hotkey.</source>
        <translation>Tego skrótu używa inny program.</translation>
    </message>
    <message>
        <source>The hotkey was refused by you or by the desktop.</source>
        <translation>Skrót został odrzucony przez Ciebie lub przez środowisko pulpitu.</translation>
    </message>
    <message>
        <source>Global hotkeys are not available on this system.</source>
        <translation>Skróty globalne nie są dostępne w tym systemie.</translation>
    </message>
    <message>
        <source>Click to try again.</source>
        <translation>Kliknij, aby spróbować ponownie.</translation>
    </message>
    <message>
        <source>Assigned by the desktop: %1</source>
        <translation>Przypisany przez środowisko pulpitu: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetDateTime</name>
    <message>
        <source>Not set</source>
        <translation>Nie ustawiono</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>Enter a date and time from %1 to %2</source>
        <translation>Podaj datę i godzinę od %1 do %2</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetLanguage</name>
    <message>
        <source>Follow the system</source>
        <translation>Zgodnie z systemem</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetMouseAction</name>
    <message>
        <source>None</source>
        <translation>Brak</translation>
    </message>
    <message>
        <source>Left Click</source>
        <translation>Kliknięcie lewym</translation>
    </message>
    <message>
        <source>Left Double Click</source>
        <translation>Dwuklik lewym</translation>
    </message>
    <message>
        <source>Right Click</source>
        <translation>Kliknięcie prawym</translation>
    </message>
    <message>
        <source>Right Double Click</source>
        <translation>Dwuklik prawym</translation>
    </message>
    <message>
        <source>Middle Click</source>
        <translation>Kliknięcie środkowym</translation>
    </message>
    <message>
        <source>Middle Double Click</source>
        <translation>Dwuklik środkowym</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Kółko myszy</translation>
    </message>
    <message>
        <source>Left Drag</source>
        <translation>Ciągnięcie lewym</translation>
    </message>
    <message>
        <source>Right Drag</source>
        <translation>Ciągnięcie prawym</translation>
    </message>
    <message>
        <source>Middle Drag</source>
        <translation>Ciągnięcie środkowym</translation>
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
        <translation>Pokaż</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetPath</name>
    <message>
        <source>Browse...</source>
        <translation>Przeglądaj…</translation>
    </message>
    <message>
        <source>This folder does not exist.</source>
        <translation>Ten katalog nie istnieje.</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>To jest plik, a nie katalog.</translation>
    </message>
    <message>
        <source>This is a folder, not a file.</source>
        <translation>To jest katalog, a nie plik.</translation>
    </message>
    <message>
        <source>The folder of this file does not exist.</source>
        <translation>Katalog tego pliku nie istnieje.</translation>
    </message>
    <message>
        <source>This file does not exist.</source>
        <translation>Ten plik nie istnieje.</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetStringList</name>
    <message>
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>W górę</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>W dół</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigItemWidget</name>
    <message>
        <source>From %1 to %2</source>
        <translation>Od %1 do %2</translation>
    </message>
    <message>
        <source>Enter a number from %1 to %2</source>
        <translation>Podaj liczbę od %1 do %2</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigurationWindow</name>
    <message>
        <source>Confirm</source>
        <translation>Potwierdź</translation>
    </message>
    <message>
        <source>Are you sure to restore current page default?</source>
        <translation>Czy na pewno przywrócić ustawienia domyślne bieżącej strony?</translation>
    </message>
    <message>
        <source>Are you sure to restore all default?</source>
        <translation>Czy na pewno przywrócić wszystkie ustawienia domyślne?</translation>
    </message>
</context>
<context>
    <name>MtConf::DependencyNote</name>
    <message>
        <source>Needs “%1”</source>
        <translation>Wymaga opcji „%1”</translation>
    </message>
    <message>
        <source>Not with “%1”</source>
        <translation>Niedostępne z opcją „%1”</translation>
    </message>
    <message>
        <source>Needs “%1”: %2</source>
        <translation>Wymaga opcji „%1”: %2</translation>
    </message>
</context>
<context>
    <name>MtConf::HistoryFeature</name>
    <message>
        <source>Removed 1 entry.</source>
        <translation>Usunięto 1 wpis.</translation>
    </message>
    <message numerus="yes">
        <source>Removed %n entries.</source>
        <translation>
            <numerusform>Usunięto %n wpis.</numerusform>
            <numerusform>Usunięto %n wpisy.</numerusform>
            <numerusform>Usunięto %n wpisów.</numerusform>
        </translation>
    </message>
    <message>
        <source>Imported 1 setting.</source>
        <translation>Zaimportowano 1 ustawienie.</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n settings.</source>
        <translation>
            <numerusform>Zaimportowano %n ustawienie.</numerusform>
            <numerusform>Zaimportowano %n ustawienia.</numerusform>
            <numerusform>Zaimportowano %n ustawień.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Restored %n settings.</source>
        <translation>
            <numerusform>Przywrócono %n ustawienie.</numerusform>
            <numerusform>Przywrócono %n ustawienia.</numerusform>
            <numerusform>Przywrócono %n ustawień.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MtConf::ImportDialog</name>
    <message>
        <source>Import settings</source>
        <translation>Importowanie ustawień</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; changes these settings. Those that are checked are imported.</source>
        <translation>Plik „%1” zmienia te ustawienia. Zaznaczone zostaną zaimportowane.</translation>
    </message>
    <message>
        <source>Settings in the file</source>
        <translation>Ustawienia w pliku</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Ustawienie</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Tutaj</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>W pliku</translation>
    </message>
    <message>
        <source>%1, here: %2, in the file: %3</source>
        <translation>%1, tutaj: %2, w pliku: %3</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Zaznacz wszystko</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Odznacz wszystko</translation>
    </message>
    <message>
        <source>Import (%1)</source>
        <translation>Importuj (%1)</translation>
    </message>
    <message>
        <source>Other settings</source>
        <translation>Inne ustawienia</translation>
    </message>
    <message>
        <source>%1 (default)</source>
        <translation>%1 (domyślnie)</translation>
    </message>
    <message>
        <source>Does not exist</source>
        <translation>Nie istnieje</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Usunięto</translation>
    </message>
    <message>
        <source>Entries of other versions, which are left out: %1</source>
        <translation>Pominięte wpisy innych wersji: %1</translation>
    </message>
    <message>
        <source>Entries that cannot be read, which are left out: %1</source>
        <translation>Pominięte nieczytelne wpisy: %1</translation>
    </message>
    <message>
        <source>Settings that stay on each computer, which are left out: %1</source>
        <translation>Pominięte ustawienia właściwe dla danego komputera: %1</translation>
    </message>
    <message>
        <source>Locked settings, which are left out: %1</source>
        <translation>Pominięte zablokowane ustawienia: %1</translation>
    </message>
    <message>
        <source>Settings whose value is not accepted here: %1</source>
        <translation>Ustawienia, których wartość nie jest tu dozwolona: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::ImportExport</name>
    <message>
        <source>Import…</source>
        <translation>Importuj…</translation>
    </message>
    <message>
        <source>Import settings from a file</source>
        <translation>Importuj ustawienia z pliku</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Eksportuj…</translation>
    </message>
    <message>
        <source>Export the settings to a file</source>
        <translation>Eksportuj ustawienia do pliku</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>Ustawienia (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Wszystkie pliki (*)</translation>
    </message>
    <message>
        <source>Export settings</source>
        <translation>Eksportowanie ustawień</translation>
    </message>
    <message>
        <source>Import settings</source>
        <translation>Importowanie ustawień</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; changes nothing here.</source>
        <translation>Plik „%1” niczego tu nie zmienia.</translation>
    </message>
    <message>
        <source>Settings that could not be imported: %1</source>
        <translation>Ustawienia, których nie udało się zaimportować: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::InputConflicts</name>
    <message>
        <source>%1 is used by: %2</source>
        <translation>Z %1 korzysta już: %2</translation>
    </message>
    <message>
        <source>Also used by: %1</source>
        <translation>Używany także przez: %1</translation>
    </message>
    <message>
        <source>%1 is needed for typing and editing.</source>
        <translation>%1 jest potrzebne do pisania i edycji.</translation>
    </message>
</context>
<context>
    <name>MtConf::InputOffer</name>
    <message>
        <source>Replace</source>
        <translation>Zastąp</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Zamień miejscami</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>Zachowaj oba</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>MtConf::InputRegistry</name>
    <message>
        <source>another shortcut of this program</source>
        <translation>inny skrót tego programu</translation>
    </message>
</context>
<context>
    <name>MtConf::LivePages</name>
    <message>
        <source>Changed elsewhere meanwhile. What you type replaces it.</source>
        <translation>W międzyczasie zmieniono gdzie indziej. Wpisana wartość zastąpi nową.</translation>
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
        <translation>Bez modyfikatora</translation>
    </message>
</context>
<context>
    <name>MtConf::ModernWindow</name>
    <message>
        <source>Reset this page…</source>
        <translation>Przywróć tę stronę…</translation>
    </message>
    <message>
        <source>Reset all settings…</source>
        <translation>Przywróć wszystko…</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Więcej</translation>
    </message>
</context>
<context>
    <name>MtConf::ResetQuestion</name>
    <message>
        <source>Reset this page?</source>
        <translation>Przywrócić ustawienia domyślne tej strony?</translation>
    </message>
    <message>
        <source>Reset all settings?</source>
        <translation>Przywrócić wszystkie ustawienia domyślne?</translation>
    </message>
    <message>
        <source>Reset 1 setting on this page?</source>
        <translation>Przywrócić 1 ustawienie na tej stronie?</translation>
    </message>
    <message>
        <source>Reset 1 setting on all pages?</source>
        <translation>Przywrócić 1 ustawienie na wszystkich stronach?</translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings on this page?</source>
        <translation>
            <numerusform>Przywrócić %n ustawienie na tej stronie?</numerusform>
            <numerusform>Przywrócić %n ustawienia na tej stronie?</numerusform>
            <numerusform>Przywrócić %n ustawień na tej stronie?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings on all pages?</source>
        <translation>
            <numerusform>Przywrócić %n ustawienie na wszystkich stronach?</numerusform>
            <numerusform>Przywrócić %n ustawienia na wszystkich stronach?</numerusform>
            <numerusform>Przywrócić %n ustawień na wszystkich stronach?</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Przywróć</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>MtConf::RowReset</name>
    <message>
        <source>Show changed</source>
        <translation>Pokaż zmienione</translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>Zmieniono: %n</numerusform>
            <numerusform>Zmieniono: %n</numerusform>
            <numerusform>Zmieniono: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>Przywróć: %1</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Przywróć</translation>
    </message>
    <message>
        <source>Copy key</source>
        <translation>Kopiuj klucz</translation>
    </message>
    <message>
        <source>Copy value</source>
        <translation>Kopiuj wartość</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Zmieniono</translation>
    </message>
    <message>
        <source>Changed settings</source>
        <translation>Zmienione ustawienia</translation>
    </message>
</context>
<context>
    <name>MtConf::RowWords</name>
    <message>
        <source>Default: %1</source>
        <translation>Domyślnie: %1</translation>
    </message>
    <message>
        <source>Not changed</source>
        <translation>Nie zmieniono</translation>
    </message>
    <message>
        <source>Changed on %1</source>
        <translation>Zmieniono %1</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Zmieniono</translation>
    </message>
    <message>
        <source>From the file %1</source>
        <translation>Z pliku %1</translation>
    </message>
    <message>
        <source>Changed by another program or computer on %1</source>
        <translation>Zmieniono w innym programie lub na innym komputerze %1</translation>
    </message>
    <message>
        <source>Changed by another program or computer</source>
        <translation>Zmieniono w innym programie lub na innym komputerze</translation>
    </message>
    <message>
        <source>Locked by the administrator</source>
        <translation>Zablokowane przez administratora</translation>
    </message>
</context>
<context>
    <name>MtConf::SettingsFile</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>„%1” nie jest plikiem.</translation>
    </message>
    <message>
        <source>The settings could not be saved in &quot;%1&quot;.</source>
        <translation>Nie udało się zapisać ustawień w „%1”.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not exist.</source>
        <translation>Plik „%1” nie istnieje.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is larger than %2.</source>
        <translation>Plik „%1” jest większy niż %2.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; could not be read.</source>
        <translation>Nie udało się odczytać pliku „%1”.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is empty.</source>
        <translation>Plik „%1” jest pusty.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged: its content is nested too deeply.</source>
        <translation>Plik „%1” jest uszkodzony: jego zawartość jest zbyt głęboko zagnieżdżona.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged or not complete.</source>
        <translation>Plik „%1” jest uszkodzony lub niekompletny.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not contain settings.</source>
        <translation>Plik „%1” nie zawiera ustawień.</translation>
    </message>
    <message>
        <source>%1 settings</source>
        <comment>name of a file</comment>
        <translation>Ustawienia %1</translation>
    </message>
</context>
<context>
    <name>MtConf::SettingsFind</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>Szukaj ustawień</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Wyczyść wyszukiwanie</translation>
    </message>
    <message>
        <source>Show more (%1)</source>
        <translation>Pokaż więcej (%1)</translation>
    </message>
    <message>
        <source>No setting matches “%1”</source>
        <translation>Żadne ustawienie nie pasuje do „%1”</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Wyniki</translation>
    </message>
    <message>
        <source>Enter opens the page</source>
        <translation>Enter otwiera stronę</translation>
    </message>
</context>
<context>
    <name>MtConf::UndoBar</name>
    <message>
        <source>Undo</source>
        <translation>Cofnij</translation>
    </message>
</context>
<context>
    <name>MtConf::ValueInWords</name>
    <message>
        <source>Yes</source>
        <translation>Tak</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Brak</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Nie ustawiono</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Puste</translation>
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
        <translation>pogrubienie</translation>
    </message>
    <message>
        <source>italic</source>
        <translation>kursywa</translation>
    </message>
    <message>
        <source>underlined</source>
        <translation>podkreślenie</translation>
    </message>
</context>
<context>
    <name>MtConf::WindowIdentity</name>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Settings — %1</source>
        <translation>Ustawienia – %1</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Cannot set left-click separately</source>
        <translation>Nie można ustawić samego kliknięcia lewym przyciskiem</translation>
    </message>
    <message>
        <source>No set</source>
        <translation>Nie ustawiono</translation>
    </message>
    <message>
        <source>Conflict with %1</source>
        <translation>Konflikt z ustawieniem „%1”</translation>
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
