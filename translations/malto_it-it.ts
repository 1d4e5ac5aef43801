<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>ColorSelectButton</name>
    <message>
        <source>None</source>
        <translation>Nessuno</translation>
    </message>
</context>
<context>
    <name>ConfigurationWindow</name>
    <message>
        <source>Quorvi Configuration</source>
        <translation>Impostazioni di Quorvi</translation>
    </message>
    <message>
        <source>Restore All Default</source>
        <translation>Ripristina tutto</translation>
    </message>
    <message>
        <source>Restore Default</source>
        <translation>Ripristina valori predefiniti</translation>
    </message>
</context>
<context>
    <name>KeySequenceEdit</name>
    <message>
        <source>Press shortcut key</source>
        <translation>Premi una scorciatoia</translation>
    </message>
    <message>
        <source>Clear shortcut key</source>
        <translation>Cancella la scorciatoia da tastiera</translation>
    </message>
    <message>
        <source>Shortkey [%1] is too simple.
To avoid conflicts with other functions and prevent accidental activations, please set a more complex hotkey combination.

If you need to set simple shortcuts, go to the [System] Settings page and check [Allow simple global hotkeys].</source>
        <translation>La scorciatoia da tastiera [%1] è troppo semplice.
Per evitare conflitti con altre funzioni e attivazioni accidentali, imposta una combinazione di tasti più complessa.

Se ti servono scorciatoie semplici, vai alla pagina delle impostazioni [Sistema] e seleziona [Consenti scorciatoie globali semplici].</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfDefWidgetQKeySequence</name>
    <message>
        <source>Not set</source>
        <translation>Non impostata</translation>
    </message>
    <message>
        <source>Setup failed, the hotkey may be occupied. Click to try setup again.</source>
        <translation>Impostazione non riuscita: la scorciatoia potrebbe essere già in uso. Fai clic per riprovare.</translation>
    </message>
    <message>
        <source>Setup success.</source>
        <translation>Impostazione riuscita.</translation>
    </message>
    <message>
        <source>Disabled.</source>
        <translation>Disattivata.</translation>
    </message>
    <message>
        <source>Another program may use this hotkey.</source>
        <translation>Un altro programma potrebbe usare questa scorciatoia.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>The desktop has not answered yet.</source>
        <translation>L’ambiente desktop non ha ancora risposto.</translation>
    </message>
    <message>
        <source>The hotkey has not been set up yet.</source>
        <translation>La scorciatoia non è ancora stata impostata.</translation>
    </message>
    <message>
        <source>A global hotkey is one key, alone or with modifiers.</source>
        <translation>Una scorciatoia globale è un solo tasto, con o senza modificatori.</translation>
    </message>
    <message>
        <source>This keyboard does not have the key.</source>
        <translation>Questa tastiera non ha quel tasto.</translation>
    </message>
    <message>
        <source>Another program uses this hotkey.</source>
        <translation>Un altro programma usa questa scorciatoia.</translation>
    </message>
    <message>
        <source>The hotkey was refused by you or by the desktop.</source>
        <translation>La scorciatoia è stata rifiutata da te o dall’ambiente desktop.</translation>
    </message>
    <message>
        <source>Global hotkeys are not available on this system.</source>
        <translation>Le scorciatoie globali non sono disponibili su questo sistema.</translation>
    </message>
    <message>
        <source>Click to try again.</source>
        <translation>Fai clic per riprovare.</translation>
    </message>
    <message>
        <source>Assigned by the desktop: %1</source>
        <translation>Assegnata dall’ambiente desktop: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetDateTime</name>
    <message>
        <source>Not set</source>
        <translation>Non impostata</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <source>Enter a date and time from %1 to %2</source>
        <translation>Inserisci data e ora da %1 a %2</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetLanguage</name>
    <message>
        <source>Follow the system</source>
        <translation>Segui il sistema</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetMouseAction</name>
    <message>
        <source>None</source>
        <translation>Nessuna</translation>
    </message>
    <message>
        <source>Left Click</source>
        <translation>Clic sinistro</translation>
    </message>
    <message>
        <source>Left Double Click</source>
        <translation>Doppio clic sinistro</translation>
    </message>
    <message>
        <source>Right Click</source>
        <translation>Clic destro</translation>
    </message>
    <message>
        <source>Right Double Click</source>
        <translation>Doppio clic destro</translation>
    </message>
    <message>
        <source>Middle Click</source>
        <translation>Clic centrale</translation>
    </message>
    <message>
        <source>Middle Double Click</source>
        <translation>Doppio clic centrale</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Rotellina</translation>
    </message>
    <message>
        <source>Left Drag</source>
        <translation>Trascina (sinistro)</translation>
    </message>
    <message>
        <source>Right Drag</source>
        <translation>Trascina (destro)</translation>
    </message>
    <message>
        <source>Middle Drag</source>
        <translation>Trascina (centrale)</translation>
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
        <translation>Mostra</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetPath</name>
    <message>
        <source>Browse...</source>
        <translation>Sfoglia…</translation>
    </message>
    <message>
        <source>This folder does not exist.</source>
        <translation>Questa cartella non esiste.</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>Questo è un file, non una cartella.</translation>
    </message>
    <message>
        <source>This is a folder, not a file.</source>
        <translation>Questa è una cartella, non un file.</translation>
    </message>
    <message>
        <source>The folder of this file does not exist.</source>
        <translation>La cartella di questo file non esiste.</translation>
    </message>
    <message>
        <source>This file does not exist.</source>
        <translation>Questo file non esiste.</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetStringList</name>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Sposta su</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Sposta giù</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigItemWidget</name>
    <message>
        <source>From %1 to %2</source>
        <translation>Da %1 a %2</translation>
    </message>
    <message>
        <source>Enter a number from %1 to %2</source>
        <translation>Inserisci un numero da %1 a %2</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigurationWindow</name>
    <message>
        <source>Confirm</source>
        <translation>Conferma</translation>
    </message>
    <message>
        <source>Are you sure to restore current page default?</source>
        <translation>Vuoi davvero ripristinare i valori predefiniti della pagina attuale?</translation>
    </message>
    <message>
        <source>Are you sure to restore all default?</source>
        <translation>Vuoi davvero ripristinare tutti i valori predefiniti?</translation>
    </message>
</context>
<context>
    <name>MtConf::DependencyNote</name>
    <message>
        <source>Needs “%1”</source>
        <translation>Richiede “%1”</translation>
    </message>
    <message>
        <source>Not with “%1”</source>
        <translation>Non disponibile con “%1”</translation>
    </message>
    <message>
        <source>Needs “%1”: %2</source>
        <translation>Richiede “%1”: %2</translation>
    </message>
</context>
<context>
    <name>MtConf::HistoryFeature</name>
    <message>
        <source>Removed 1 entry.</source>
        <translation>1 voce rimossa.</translation>
    </message>
    <message numerus="yes">
        <source>Removed %n entries.</source>
        <translation>
            <numerusform>%n voce rimossa.</numerusform>
            <numerusform>%n voci rimosse.</numerusform>
        </translation>
    </message>
    <message>
        <source>Imported 1 setting.</source>
        <translation>1 impostazione importata.</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n settings.</source>
        <translation>
            <numerusform>%n impostazione importata.</numerusform>
            <numerusform>%n impostazioni importate.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Restored %n settings.</source>
        <translation>
            <numerusform>%n impostazione ripristinata.</numerusform>
            <numerusform>%n impostazioni ripristinate.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MtConf::ImportDialog</name>
    <message>
        <source>Import settings</source>
        <translation>Importa impostazioni</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; changes these settings. Those that are checked are imported.</source>
        <translation>Il file “%1” modifica queste impostazioni. Vengono importate quelle selezionate.</translation>
    </message>
    <message>
        <source>Settings in the file</source>
        <translation>Impostazioni nel file</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Impostazione</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Qui</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>Nel file</translation>
    </message>
    <message>
        <source>%1, here: %2, in the file: %3</source>
        <translation>%1, qui: %2, nel file: %3</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Seleziona tutto</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Deseleziona tutto</translation>
    </message>
    <message>
        <source>Import (%1)</source>
        <translation>Importa (%1)</translation>
    </message>
    <message>
        <source>Other settings</source>
        <translation>Altre impostazioni</translation>
    </message>
    <message>
        <source>%1 (default)</source>
        <translation>%1 (predefinito)</translation>
    </message>
    <message>
        <source>Does not exist</source>
        <translation>Non esiste</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Rimosso</translation>
    </message>
    <message>
        <source>Entries of other versions, which are left out: %1</source>
        <translation>Voci di altre versioni, non importate: %1</translation>
    </message>
    <message>
        <source>Entries that cannot be read, which are left out: %1</source>
        <translation>Voci illeggibili, non importate: %1</translation>
    </message>
    <message>
        <source>Settings that stay on each computer, which are left out: %1</source>
        <translation>Impostazioni proprie di ogni computer, non importate: %1</translation>
    </message>
    <message>
        <source>Locked settings, which are left out: %1</source>
        <translation>Impostazioni bloccate, non importate: %1</translation>
    </message>
    <message>
        <source>Settings whose value is not accepted here: %1</source>
        <translation>Impostazioni il cui valore qui non è accettato: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::ImportExport</name>
    <message>
        <source>Import…</source>
        <translation>Importa…</translation>
    </message>
    <message>
        <source>Import settings from a file</source>
        <translation>Importa le impostazioni da un file</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Esporta…</translation>
    </message>
    <message>
        <source>Export the settings to a file</source>
        <translation>Esporta le impostazioni in un file</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>Impostazioni (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tutti i file (*)</translation>
    </message>
    <message>
        <source>Export settings</source>
        <translation>Esporta impostazioni</translation>
    </message>
    <message>
        <source>Import settings</source>
        <translation>Importa impostazioni</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; changes nothing here.</source>
        <translation>Il file “%1” non modifica nulla qui.</translation>
    </message>
    <message>
        <source>Settings that could not be imported: %1</source>
        <translation>Impostazioni che non è stato possibile importare: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::InputConflicts</name>
    <message>
        <source>%1 is used by: %2</source>
        <translation>%1 è utilizzata da: %2</translation>
    </message>
    <message>
        <source>Also used by: %1</source>
        <translation>Utilizzata anche da: %1</translation>
    </message>
    <message>
        <source>%1 is needed for typing and editing.</source>
        <translation>%1 serve per scrivere e modificare il testo.</translation>
    </message>
</context>
<context>
    <name>MtConf::InputOffer</name>
    <message>
        <source>Replace</source>
        <translation>Sostituisci</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Scambia</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>Mantieni entrambe</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>MtConf::InputRegistry</name>
    <message>
        <source>another shortcut of this program</source>
        <translation>un’altra scorciatoia di questo programma</translation>
    </message>
</context>
<context>
    <name>MtConf::LivePages</name>
    <message>
        <source>Changed elsewhere meanwhile. What you type replaces it.</source>
        <translation>Nel frattempo modificata altrove. Ciò che digiti la sostituisce.</translation>
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
        <translation>Nessun modificatore</translation>
    </message>
</context>
<context>
    <name>MtConf::ModernWindow</name>
    <message>
        <source>Reset this page…</source>
        <translation>Ripristina pagina…</translation>
    </message>
    <message>
        <source>Reset all settings…</source>
        <translation>Ripristina tutto…</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Altro</translation>
    </message>
</context>
<context>
    <name>MtConf::ResetQuestion</name>
    <message>
        <source>Reset this page?</source>
        <translation>Ripristinare questa pagina?</translation>
    </message>
    <message>
        <source>Reset all settings?</source>
        <translation>Ripristinare tutte le impostazioni?</translation>
    </message>
    <message>
        <source>Reset 1 setting on this page?</source>
        <translation>Ripristinare 1 impostazione di questa pagina?</translation>
    </message>
    <message>
        <source>Reset 1 setting on all pages?</source>
        <translation>Ripristinare 1 impostazione di tutte le pagine?</translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings on this page?</source>
        <translation>
            <numerusform>Ripristinare %n impostazione di questa pagina?</numerusform>
            <numerusform>Ripristinare %n impostazioni di questa pagina?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings on all pages?</source>
        <translation>
            <numerusform>Ripristinare %n impostazione di tutte le pagine?</numerusform>
            <numerusform>Ripristinare %n impostazioni di tutte le pagine?</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>MtConf::RowReset</name>
    <message>
        <source>Show changed</source>
        <translation>Mostra modificate</translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n modificata</numerusform>
            <numerusform>%n modificate</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>Ripristina %1</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Copy key</source>
        <translation>Copia chiave</translation>
    </message>
    <message>
        <source>Copy value</source>
        <translation>Copia valore</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Modificata</translation>
    </message>
    <message>
        <source>Changed settings</source>
        <translation>Impostazioni modificate</translation>
    </message>
</context>
<context>
    <name>MtConf::RowWords</name>
    <message>
        <source>Default: %1</source>
        <translation>Predefinito: %1</translation>
    </message>
    <message>
        <source>Not changed</source>
        <translation>Non modificata</translation>
    </message>
    <message>
        <source>Changed on %1</source>
        <translation>Modificata il %1</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Modificata</translation>
    </message>
    <message>
        <source>From the file %1</source>
        <translation>Dal file %1</translation>
    </message>
    <message>
        <source>Changed by another program or computer on %1</source>
        <translation>Modificata da un altro programma o computer il %1</translation>
    </message>
    <message>
        <source>Changed by another program or computer</source>
        <translation>Modificata da un altro programma o computer</translation>
    </message>
    <message>
        <source>Locked by the administrator</source>
        <translation>Bloccata dall’amministratore</translation>
    </message>
</context>
<context>
    <name>MtConf::SettingsFile</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>“%1” non è un file.</translation>
    </message>
    <message>
        <source>The settings could not be saved in &quot;%1&quot;.</source>
        <translation>Impossibile salvare le impostazioni in “%1”.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not exist.</source>
        <translation>Il file “%1” non esiste.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is larger than %2.</source>
        <translation>Il file “%1” supera %2.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; could not be read.</source>
        <translation>Impossibile leggere il file “%1”.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is empty.</source>
        <translation>Il file “%1” è vuoto.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged: its content is nested too deeply.</source>
        <translation>Il file “%1” è danneggiato: il contenuto ha troppi livelli di annidamento.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged or not complete.</source>
        <translation>Il file “%1” è danneggiato o incompleto.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not contain settings.</source>
        <translation>Il file “%1” non contiene impostazioni.</translation>
    </message>
    <message>
        <source>%1 settings</source>
        <comment>name of a file</comment>
        <translation>Impostazioni di %1</translation>
    </message>
</context>
<context>
    <name>MtConf::SettingsFind</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>Cerca impostazioni</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Cancella la ricerca</translation>
    </message>
    <message>
        <source>Show more (%1)</source>
        <translation>Mostra altro (%1)</translation>
    </message>
    <message>
        <source>No setting matches “%1”</source>
        <translation>Nessuna impostazione corrisponde a “%1”</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Risultati</translation>
    </message>
    <message>
        <source>Enter opens the page</source>
        <translation>Invio apre la pagina</translation>
    </message>
</context>
<context>
    <name>MtConf::UndoBar</name>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>MtConf::ValueInWords</name>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Non impostata</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Vuoto</translation>
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
        <translation>grassetto</translation>
    </message>
    <message>
        <source>italic</source>
        <translation>corsivo</translation>
    </message>
    <message>
        <source>underlined</source>
        <translation>sottolineato</translation>
    </message>
</context>
<context>
    <name>MtConf::WindowIdentity</name>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Settings — %1</source>
        <translation>Impostazioni – %1</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Cannot set left-click separately</source>
        <translation>Il clic sinistro non può essere impostato da solo</translation>
    </message>
    <message>
        <source>No set</source>
        <translation>Non impostata</translation>
    </message>
    <message>
        <source>Conflict with %1</source>
        <translation>Conflitto con “%1”</translation>
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
        <translation> g</translation>
    </message>
</context>
</TS>
