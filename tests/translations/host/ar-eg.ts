<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar_EG">
<context>
    <name>QObject</name>
    <message>
        <source>Mirror the page</source>
        <translation>عكس الصفحة</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigurationWindow</name>
    <message>
        <source>General</source>
        <translation>عام</translation>
    </message>
</context>
</TS>
