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
