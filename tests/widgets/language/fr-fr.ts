<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>QObject</name>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetLanguage</name>
    <message>
        <source>Follow the system</source>
        <translation>Suivre le système</translation>
    </message>
</context>
</TS>
