<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB" sourcelanguage="en_US">
<context>
    <name>QColorDialog</name>
    <message>
        <source>&amp;Pick Screen Color</source>
        <translation>&amp;Pick Screen Colour</translation>
    </message>
    <message>
        <source>&amp;Basic colors</source>
        <translation>&amp;Basic colours</translation>
    </message>
    <message>
        <source>&amp;Custom colors</source>
        <translation>&amp;Custom colours</translation>
    </message>
    <message>
        <source>&amp;Add to Custom Colors</source>
        <translation>&amp;Add to Custom Colours</translation>
    </message>
    <message>
        <source>Select Color</source>
        <translation>Select Colour</translation>
    </message>
</context>
</TS>
