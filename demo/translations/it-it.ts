<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>BoundValueModel</name>
    <message>
        <source>changed</source>
        <translation>modificata</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Impostazione</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stato</translation>
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
        <translation>Qui appare ciò che la libreria registra.</translation>
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
        <translation>Registro</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Impostazioni…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Restore all</source>
        <translation>Ripristina tutto</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>&amp;Impostazioni…</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>&amp;Salva</translation>
    </message>
    <message>
        <source>&amp;Restore all…</source>
        <translation>&amp;Ripristina tutto…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Tema</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Chiaro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Scuro</translation>
    </message>
    <message>
        <source>Variables — %1 of %2 changed</source>
        <translation>Variabili – %1 di %2 modificate</translation>
    </message>
    <message>
        <source>Hotkey pressed: %1 (%2)</source>
        <translation>Scorciatoia premuta: %1 (%2)</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <translation>Salvato in %1</translation>
    </message>
    <message>
        <source>Could not write %1</source>
        <translation>Impossibile scrivere %1</translation>
    </message>
    <message>
        <source>Restore the defaults of all settings and the presets of the profiles?</source>
        <translation>Ripristinare i profili predefiniti e i valori predefiniti di tutte le impostazioni?</translation>
    </message>
    <message>
        <source>Follow the system</source>
        <translation>Segui il sistema</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigurationWindow</name>
    <message>
        <source>General</source>
        <translation>Generali</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aspetto</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Cattura</translation>
    </message>
    <message>
        <source>Hotkeys</source>
        <translation>Scorciatoie</translation>
    </message>
    <message>
        <source>Mouse</source>
        <translation>Mouse</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Output</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profili</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Stored data</source>
        <translation>Dati salvati</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Aggiornamenti</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Selezione</translation>
    </message>
    <message>
        <source>Magnifier</source>
        <translation>Lente</translation>
    </message>
    <message>
        <source>Size label</source>
        <translation>Etichetta dimensioni</translation>
    </message>
    <message>
        <source>Snapping</source>
        <translation>Aggancio</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Strumenti</translation>
    </message>
    <message>
        <source>Pinned pictures</source>
        <translation>Immagini fissate</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Immagine</translation>
    </message>
    <message>
        <source>After a capture</source>
        <translation>Dopo una cattura</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Testi</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>Numeri</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>In this program</source>
        <translation>In questa app</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Rete</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>Screen</source>
        <translation>Schermo</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Finestra</translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation>Miniatura</translation>
    </message>
    <message>
        <source>A profile needs a name.</source>
        <translation>Un profilo deve avere un nome.</translation>
    </message>
    <message>
        <source>A name can have at most %1 characters.</source>
        <translation>Un nome può avere al massimo %1 caratteri.</translation>
    </message>
    <message>
        <source>Another profile has this name.</source>
        <translation>Un altro profilo ha già questo nome.</translation>
    </message>
    <message>
        <source>New profile</source>
        <translation>Nuovo profilo</translation>
    </message>
    <message>
        <source>New profile %1</source>
        <translation>Nuovo profilo %1</translation>
    </message>
</context>
<context>
    <name>ProfilesPage</name>
    <message>
        <source>Profiles</source>
        <translation>Profili</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Restore presets</source>
        <translation>Ripristina profili predefiniti</translation>
    </message>
    <message>
        <source>There is no profile.
Add one, or restore the presets.</source>
        <translation>Non ci sono profili.
Aggiungine uno o ripristina i predefiniti.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rinomina</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Larghezza</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altezza</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Cornice</translation>
    </message>
    <message>
        <source>Include the mouse pointer</source>
        <translation>Includi il puntatore del mouse</translation>
    </message>
    <message>
        <source>A preset, unchanged.</source>
        <translation>Predefinito, non modificato.</translation>
    </message>
    <message>
        <source>Yours, or a changed preset.</source>
        <translation>Personale o predefinito modificato.</translation>
    </message>
    <message>
        <source>“%1” keeps its name. %2</source>
        <translation>“%1” mantiene il suo nome. %2</translation>
    </message>
    <message>
        <source>Delete the profile “%1”?</source>
        <translation>Eliminare il profilo “%1”?</translation>
    </message>
    <message>
        <source>Restore the presets? This deletes your own profiles and undoes your changes of the presets.</source>
        <translation>Ripristinare i profili predefiniti? I tuoi profili verranno eliminati e le modifiche ai predefiniti annullate.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Apri al login</translation>
    </message>
    <message>
        <source>Show icon in the menu bar</source>
        <translation>Icona nella barra dei menu</translation>
    </message>
    <message>
        <source>Play a sound after a capture</source>
        <translation>Suono dopo una cattura</translation>
    </message>
    <message>
        <source>Show tips</source>
        <translation>Mostra suggerimenti</translation>
    </message>
    <message>
        <source>Recent captures in the menu</source>
        <translation>Catture recenti nel menu</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Cerca aggiornamenti</translation>
    </message>
    <message>
        <source>Check interval (days)</source>
        <translation>Intervallo di ricerca (giorni)</translation>
    </message>
    <message>
        <source>Offer beta versions</source>
        <translation>Proponi versioni beta</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Chiaro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Scuro</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Cornice</translation>
    </message>
    <message>
        <source>Width of the frame</source>
        <translation>Spessore della cornice</translation>
    </message>
    <message>
        <source>Shade outside</source>
        <translation>Oscuramento esterno</translation>
    </message>
    <message>
        <source>Show magnifier</source>
        <translation>Mostra la lente</translation>
    </message>
    <message>
        <source>Magnification</source>
        <translation>Ingrandimento</translation>
    </message>
    <message>
        <source>Show size beside the selection</source>
        <translation>Mostra le dimensioni accanto alla selezione</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Font</translation>
    </message>
    <message>
        <source>Delay before a capture</source>
        <translation>Attesa prima di una cattura</translation>
    </message>
    <message>
        <source>Count down on the screen</source>
        <translation>Conto alla rovescia sullo schermo</translation>
    </message>
    <message>
        <source>Include the mouse pointer</source>
        <translation>Includi il puntatore del mouse</translation>
    </message>
    <message>
        <source>Include the shadow of windows</source>
        <translation>Includi l’ombra delle finestre</translation>
    </message>
    <message>
        <source>Freeze the screen while selecting</source>
        <translation>Congela lo schermo durante la selezione</translation>
    </message>
    <message>
        <source>Frames per second of videos</source>
        <translation>Fotogrammi al secondo dei video</translation>
    </message>
    <message>
        <source>Snap to</source>
        <translation>Aggancia a</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Finestre</translation>
    </message>
    <message>
        <source>Screen edges</source>
        <translation>Bordi dello schermo</translation>
    </message>
    <message>
        <source>Guides</source>
        <translation>Guide</translation>
    </message>
    <message>
        <source>Last selection</source>
        <translation>Ultima selezione</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distanza</translation>
    </message>
    <message>
        <source>Hotkeys in full-screen applications</source>
        <translation>Scorciatoie nelle app a tutto schermo</translation>
    </message>
    <message>
        <source>Repeat delay</source>
        <translation>Ritardo di ripetizione</translation>
    </message>
    <message>
        <source>Capture an area</source>
        <translation>Cattura un’area</translation>
    </message>
    <message>
        <source>Capture a window</source>
        <translation>Cattura una finestra</translation>
    </message>
    <message>
        <source>Capture the screen</source>
        <translation>Cattura lo schermo</translation>
    </message>
    <message>
        <source>Pin the clipboard</source>
        <translation>Fissa gli appunti</translation>
    </message>
    <message>
        <source>Double-click to finish</source>
        <translation>Termina con un doppio clic</translation>
    </message>
    <message>
        <source>Invert the wheel</source>
        <translation>Inverti la rotellina</translation>
    </message>
    <message>
        <source>Movement that begins a drag</source>
        <translation>Movimento che avvia il trascinamento</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacità</translation>
    </message>
    <message>
        <source>Show the menu</source>
        <translation>Mostra il menu</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Nascondi</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Sposta</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>Disegna</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualità</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensioni</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Filigrana</translation>
    </message>
    <message>
        <source>Copy it</source>
        <translation>Copiala</translation>
    </message>
    <message>
        <source>Save it</source>
        <translation>Salvala</translation>
    </message>
    <message>
        <source>Open it in the editor</source>
        <translation>Aprila nell’editor</translation>
    </message>
    <message>
        <source>Allow simple global hotkeys</source>
        <translation>Consenti scorciatoie globali semplici</translation>
    </message>
    <message>
        <source>Show expert settings</source>
        <translation>Mostra impostazioni avanzate</translation>
    </message>
    <message>
        <source>Steps that can be undone</source>
        <translation>Passaggi annullabili</translation>
    </message>
    <message>
        <source>Bring pinned pictures back at start</source>
        <translation>Ripristina le immagini fissate all’avvio</translation>
    </message>
    <message>
        <source>Cache (MB)</source>
        <translation>Cache (MB)</translation>
    </message>
    <message>
        <source>Threads that compress</source>
        <translation>Thread di compressione</translation>
    </message>
    <message>
        <source>Draw with the graphics card</source>
        <translation>Disegna con la scheda grafica</translation>
    </message>
    <message>
        <source>Show times of drawing</source>
        <translation>Mostra i tempi di disegno</translation>
    </message>
    <message>
        <source>Write a log file</source>
        <translation>Scrivi un file di registro</translation>
    </message>
    <message>
        <source>Open the settings</source>
        <translation>Apri le impostazioni</translation>
    </message>
    <message>
        <source>Save now</source>
        <translation>Salva ora</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autore</translation>
    </message>
    <message>
        <source>Your name</source>
        <translation>Il tuo nome</translation>
    </message>
    <message>
        <source>Pictures contain it if the details include the author.</source>
        <translation>Le immagini lo contengono se i dettagli includono l’autore.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Token for uploads</source>
        <translation>Token per i caricamenti</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Parole chiave</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logo</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg)</source>
        <translation>Immagini (*.png *.svg)</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>File di registro</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosità</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Margine</translation>
    </message>
    <message>
        <source>Save every</source>
        <translation>Salva ogni</translation>
    </message>
    <message>
        <source>Remind me</source>
        <translation>Ricordamelo il</translation>
    </message>
    <message>
        <source>Name of the file</source>
        <translation>Nome del file</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Data e ora</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numero</translation>
    </message>
    <message>
        <source>Title of the window</source>
        <translation>Titolo della finestra</translation>
    </message>
    <message>
        <source>Details in the file</source>
        <translation>Dettagli nel file</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posizione</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>Usa un proxy</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Host</translation>
    </message>
    <message>
        <source>A host has no blanks.</source>
        <translation>Il nome di un host non può contenere spazi.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
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
        <translation>Segui il sistema</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Colore</translation>
    </message>
    <message>
        <source>Pick a color</source>
        <translation>Preleva un colore</translation>
    </message>
</context>
<context>
    <name>StoredDataPage</name>
    <message>
        <source>Stored data</source>
        <translation>Dati salvati</translation>
    </message>
    <message>
        <source>Nothing has been changed yet.</source>
        <translation>Non è ancora stato modificato nulla.</translation>
    </message>
</context>
<context>
    <name>WatermarkEditor</name>
    <message>
        <source>Opacity</source>
        <translation>Opacità</translation>
    </message>
    <message>
        <source>None if empty</source>
        <translation>Vuoto: nessuna</translation>
    </message>
</context>
<context>
    <name>takePictures</name>
    <message>
        <source>Cannot write %1</source>
        <translation>Impossibile scrivere %1</translation>
    </message>
</context>
</TS>
