<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>QObject</name>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetLanguage</name>
    <message>
        <source>Follow the system</source>
        <translation>Wie das System</translation>
    </message>
</context>
</TS>
