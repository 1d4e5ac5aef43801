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
