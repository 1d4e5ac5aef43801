<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>QObject</name>
    <message>
        <source>Mirror the page</source>
        <translation>Refléter la page</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigurationWindow</name>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
</context>
<context>
    <name>ConfigurationWindow</name>
    <message>
        <source>Quorvi Configuration</source>
        <translation>Réglages de l’hôte</translation>
    </message>
</context>
</TS>
