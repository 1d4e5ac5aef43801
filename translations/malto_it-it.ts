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
