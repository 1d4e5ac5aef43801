<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en_US">
<context>
    <name>BoundValueModel</name>
    <message>
        <source>changed</source>
        <translation>zmieniono</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Ustawienie</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wartość</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stan</translation>
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
        <translation>Tutaj pojawia się dziennik biblioteki.</translation>
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
        <translation>Dziennik</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ustawienia…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>Restore all</source>
        <translation>Przywróć wszystko</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Plik</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>&amp;Ustawienia…</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>&amp;Zapisz</translation>
    </message>
    <message>
        <source>&amp;Restore all…</source>
        <translation>Przywróć &amp;wszystko…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Za&amp;kończ</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Motyw</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Jasny</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Ciemny</translation>
    </message>
    <message>
        <source>Variables — %1 of %2 changed</source>
        <translation>Zmienne – zmieniono %1 z %2</translation>
    </message>
    <message>
        <source>Hotkey pressed: %1 (%2)</source>
        <translation>Użyto skrótu: %1 (%2)</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <translation>Zapisano w %1</translation>
    </message>
    <message>
        <source>Could not write %1</source>
        <translation>Nie udało się zapisać %1</translation>
    </message>
    <message>
        <source>Restore the defaults of all settings and the presets of the profiles?</source>
        <translation>Przywrócić domyślne wartości wszystkich ustawień i wbudowane profile?</translation>
    </message>
    <message>
        <source>Follow the system</source>
        <translation>Zgodnie z systemem</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigurationWindow</name>
    <message>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Wygląd</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Zrzuty</translation>
    </message>
    <message>
        <source>Hotkeys</source>
        <translation>Skróty</translation>
    </message>
    <message>
        <source>Mouse</source>
        <translation>Mysz</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Wynik</translation>
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
        <translation>Zapisane dane</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Aktualizacje</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Zaznaczenie</translation>
    </message>
    <message>
        <source>Magnifier</source>
        <translation>Lupa</translation>
    </message>
    <message>
        <source>Size label</source>
        <translation>Etykieta rozmiaru</translation>
    </message>
    <message>
        <source>Snapping</source>
        <translation>Przyciąganie</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Narzędzia</translation>
    </message>
    <message>
        <source>Pinned pictures</source>
        <translation>Przypięte obrazy</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Obraz</translation>
    </message>
    <message>
        <source>After a capture</source>
        <translation>Po wykonaniu zrzutu</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Teksty</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>Liczby</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>Opcje</translation>
    </message>
    <message>
        <source>In this program</source>
        <translation>W tej aplikacji</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Pliki</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Sieć</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>Screen</source>
        <translation>Ekran</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Okno</translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation>Miniatura</translation>
    </message>
    <message>
        <source>A profile needs a name.</source>
        <translation>Profil musi mieć nazwę.</translation>
    </message>
    <message>
        <source>A name can have at most %1 characters.</source>
        <translation>Nazwa może mieć najwyżej %1 znaków.</translation>
    </message>
    <message>
        <source>Another profile has this name.</source>
        <translation>Inny profil ma już tę nazwę.</translation>
    </message>
    <message>
        <source>New profile</source>
        <translation>Nowy profil</translation>
    </message>
    <message>
        <source>New profile %1</source>
        <translation>Nowy profil %1</translation>
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
        <translation>Dodaj</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Restore presets</source>
        <translation>Przywróć wbudowane</translation>
    </message>
    <message>
        <source>There is no profile.
Add one, or restore the presets.</source>
        <translation>Nie ma żadnego profilu.
Dodaj profil lub przywróć wbudowane.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Zmień nazwę</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Szerokość</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Wysokość</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Ramka</translation>
    </message>
    <message>
        <source>Include the mouse pointer</source>
        <translation>Uwzględniaj wskaźnik myszy</translation>
    </message>
    <message>
        <source>A preset, unchanged.</source>
        <translation>Wbudowany, niezmieniony.</translation>
    </message>
    <message>
        <source>Yours, or a changed preset.</source>
        <translation>Własny lub zmieniony wbudowany.</translation>
    </message>
    <message>
        <source>“%1” keeps its name. %2</source>
        <translation>„%1” zachowuje swoją nazwę. %2</translation>
    </message>
    <message>
        <source>Delete the profile “%1”?</source>
        <translation>Usunąć profil „%1”?</translation>
    </message>
    <message>
        <source>Restore the presets? This deletes your own profiles and undoes your changes of the presets.</source>
        <translation>Przywrócić profile wbudowane? Twoje własne profile zostaną usunięte, a zmiany w profilach wbudowanych cofnięte.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Language</source>
        <translation>Język</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Uruchamiaj przy logowaniu</translation>
    </message>
    <message>
        <source>Show icon in the menu bar</source>
        <translation>Pokazuj ikonę na pasku menu</translation>
    </message>
    <message>
        <source>Play a sound after a capture</source>
        <translation>Odtwarzaj dźwięk po zrzucie</translation>
    </message>
    <message>
        <source>Show tips</source>
        <translation>Pokazuj porady</translation>
    </message>
    <message>
        <source>Recent captures in the menu</source>
        <translation>Ostatnie zrzuty w menu</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Szukaj aktualizacji</translation>
    </message>
    <message>
        <source>Check interval (days)</source>
        <translation>Odstęp między sprawdzeniami (dni)</translation>
    </message>
    <message>
        <source>Offer beta versions</source>
        <translation>Proponuj wersje beta</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Motyw</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Jasny</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Ciemny</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Ramka</translation>
    </message>
    <message>
        <source>Width of the frame</source>
        <translation>Grubość ramki</translation>
    </message>
    <message>
        <source>Shade outside</source>
        <translation>Przyciemnienie na zewnątrz</translation>
    </message>
    <message>
        <source>Show magnifier</source>
        <translation>Pokazuj lupę</translation>
    </message>
    <message>
        <source>Magnification</source>
        <translation>Powiększenie</translation>
    </message>
    <message>
        <source>Show size beside the selection</source>
        <translation>Pokazuj rozmiar obok zaznaczenia</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Czcionka</translation>
    </message>
    <message>
        <source>Delay before a capture</source>
        <translation>Opóźnienie przed zrzutem</translation>
    </message>
    <message>
        <source>Count down on the screen</source>
        <translation>Odliczanie na ekranie</translation>
    </message>
    <message>
        <source>Include the mouse pointer</source>
        <translation>Uwzględniaj wskaźnik myszy</translation>
    </message>
    <message>
        <source>Include the shadow of windows</source>
        <translation>Uwzględniaj cień okien</translation>
    </message>
    <message>
        <source>Freeze the screen while selecting</source>
        <translation>Zamrażaj ekran podczas zaznaczania</translation>
    </message>
    <message>
        <source>Frames per second of videos</source>
        <translation>Klatki na sekundę w filmach</translation>
    </message>
    <message>
        <source>Snap to</source>
        <translation>Przyciągaj do</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Okna</translation>
    </message>
    <message>
        <source>Screen edges</source>
        <translation>Krawędzie ekranu</translation>
    </message>
    <message>
        <source>Guides</source>
        <translation>Prowadnice</translation>
    </message>
    <message>
        <source>Last selection</source>
        <translation>Ostatnie zaznaczenie</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Odległość</translation>
    </message>
    <message>
        <source>Hotkeys in full-screen applications</source>
        <translation>Skróty w aplikacjach pełnoekranowych</translation>
    </message>
    <message>
        <source>Repeat delay</source>
        <translation>Opóźnienie powtarzania</translation>
    </message>
    <message>
        <source>Capture an area</source>
        <translation>Zrzut obszaru</translation>
    </message>
    <message>
        <source>Capture a window</source>
        <translation>Zrzut okna</translation>
    </message>
    <message>
        <source>Capture the screen</source>
        <translation>Zrzut ekranu</translation>
    </message>
    <message>
        <source>Pin the clipboard</source>
        <translation>Przypnij schowek</translation>
    </message>
    <message>
        <source>Double-click to finish</source>
        <translation>Kończ dwukrotnym kliknięciem</translation>
    </message>
    <message>
        <source>Invert the wheel</source>
        <translation>Odwróć kierunek kółka myszy</translation>
    </message>
    <message>
        <source>Movement that begins a drag</source>
        <translation>Ruch rozpoczynający przeciąganie</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Powiększanie</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Krycie</translation>
    </message>
    <message>
        <source>Show the menu</source>
        <translation>Pokaż menu</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiuj</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ukryj</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Przesuń</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>Rysuj</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Jakość</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Znak wodny</translation>
    </message>
    <message>
        <source>Copy it</source>
        <translation>Kopiuj</translation>
    </message>
    <message>
        <source>Save it</source>
        <translation>Zapisuj</translation>
    </message>
    <message>
        <source>Open it in the editor</source>
        <translation>Otwieraj w edytorze</translation>
    </message>
    <message>
        <source>Allow simple global hotkeys</source>
        <translation>Zezwalaj na proste skróty globalne</translation>
    </message>
    <message>
        <source>Show expert settings</source>
        <translation>Pokazuj ustawienia zaawansowane</translation>
    </message>
    <message>
        <source>Steps that can be undone</source>
        <translation>Liczba kroków cofania</translation>
    </message>
    <message>
        <source>Bring pinned pictures back at start</source>
        <translation>Przywracaj przypięte obrazy przy starcie</translation>
    </message>
    <message>
        <source>Cache (MB)</source>
        <translation>Pamięć podręczna (MB)</translation>
    </message>
    <message>
        <source>Threads that compress</source>
        <translation>Wątki kompresji</translation>
    </message>
    <message>
        <source>Draw with the graphics card</source>
        <translation>Rysuj za pomocą karty graficznej</translation>
    </message>
    <message>
        <source>Show times of drawing</source>
        <translation>Pokazuj czasy rysowania</translation>
    </message>
    <message>
        <source>Write a log file</source>
        <translation>Zapisuj plik dziennika</translation>
    </message>
    <message>
        <source>Open the settings</source>
        <translation>Otwórz ustawienia</translation>
    </message>
    <message>
        <source>Save now</source>
        <translation>Zapisz teraz</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Your name</source>
        <translation>Imię i nazwisko</translation>
    </message>
    <message>
        <source>Pictures contain it if the details include the author.</source>
        <translation>Obrazy go zawierają, jeśli szczegóły obejmują autora.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notatka</translation>
    </message>
    <message>
        <source>Token for uploads</source>
        <translation>Token do wysyłania</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Tagi</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Katalog</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logo</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg)</source>
        <translation>Obrazy (*.png *.svg)</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>Plik dziennika</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Jasność</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Margines</translation>
    </message>
    <message>
        <source>Save every</source>
        <translation>Zapisuj co</translation>
    </message>
    <message>
        <source>Remind me</source>
        <translation>Przypomnij</translation>
    </message>
    <message>
        <source>Name of the file</source>
        <translation>Nazwa pliku</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Data i godzina</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numer</translation>
    </message>
    <message>
        <source>Title of the window</source>
        <translation>Tytuł okna</translation>
    </message>
    <message>
        <source>Details in the file</source>
        <translation>Szczegóły w pliku</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Położenie</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>Używaj serwera proxy</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Host</translation>
    </message>
    <message>
        <source>A host has no blanks.</source>
        <translation>Nazwa hosta nie może zawierać spacji.</translation>
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
        <translation>Zgodnie z systemem</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Kolor</translation>
    </message>
    <message>
        <source>Pick a color</source>
        <translation>Pobierz kolor</translation>
    </message>
</context>
<context>
    <name>StoredDataPage</name>
    <message>
        <source>Stored data</source>
        <translation>Zapisane dane</translation>
    </message>
    <message>
        <source>Nothing has been changed yet.</source>
        <translation>Niczego jeszcze nie zmieniono.</translation>
    </message>
</context>
<context>
    <name>WatermarkEditor</name>
    <message>
        <source>Opacity</source>
        <translation>Krycie</translation>
    </message>
    <message>
        <source>None if empty</source>
        <translation>Puste: bez znaku</translation>
    </message>
</context>
<context>
    <name>takePictures</name>
    <message>
        <source>Cannot write %1</source>
        <translation>Nie można zapisać %1</translation>
    </message>
</context>
</TS>
