<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hi_IN" sourcelanguage="en_US">
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>सभी चुनें (&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>बढ़ाएँ (&amp;S)</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>घटाएँ (&amp;D)</translation>
    </message>
</context>
<context>
    <name>QColorDialog</name>
    <message>
        <source>Hu&amp;e:</source>
        <translation>रंगत (&amp;E):</translation>
    </message>
    <message>
        <source>&amp;Sat:</source>
        <translation>संतृप्ति (&amp;S):</translation>
    </message>
    <message>
        <source>&amp;Val:</source>
        <translation>मान (&amp;V):</translation>
    </message>
    <message>
        <source>&amp;Red:</source>
        <translation>लाल (&amp;R):</translation>
    </message>
    <message>
        <source>&amp;Green:</source>
        <translation>हरा (&amp;G):</translation>
    </message>
    <message>
        <source>Bl&amp;ue:</source>
        <translation>नीला (&amp;U):</translation>
    </message>
    <message>
        <source>A&amp;lpha channel:</source>
        <translation>अल्फ़ा चैनल (&amp;L):</translation>
    </message>
    <message>
        <source>&amp;HTML:</source>
        <translation>&amp;HTML:</translation>
    </message>
    <message>
        <source>Cursor at %1, %2
Press ESC to cancel</source>
        <translation>कर्सर %1, %2 पर
रद्द करने के लिए ESC दबाएँ</translation>
    </message>
    <message>
        <source>&amp;Pick Screen Color</source>
        <translation>स्क्रीन से रंग चुनें (&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Basic colors</source>
        <translation>मूल रंग (&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Custom colors</source>
        <translation>कस्टम रंग (&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Add to Custom Colors</source>
        <translation>कस्टम रंगों में जोड़ें (&amp;A)</translation>
    </message>
    <message>
        <source>Select Color</source>
        <translation>रंग चुनें</translation>
    </message>
</context>
<context>
    <name>QDialogButtonBox</name>
    <message>
        <source>OK</source>
        <translation>ठीक है</translation>
    </message>
</context>
<context>
    <name>QFontDialog</name>
    <message>
        <source>Select Font</source>
        <translation>फ़ॉन्ट चुनें</translation>
    </message>
    <message>
        <source>&amp;Font</source>
        <translation>फ़ॉन्ट (&amp;F)</translation>
    </message>
    <message>
        <source>Font st&amp;yle</source>
        <translation>फ़ॉन्ट शैली (&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Size</source>
        <translation>आकार (&amp;S)</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>प्रभाव</translation>
    </message>
    <message>
        <source>Stri&amp;keout</source>
        <translation>स्ट्राइकथ्रू (&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Underline</source>
        <translation>रेखांकित (&amp;U)</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>नमूना</translation>
    </message>
    <message>
        <source>Wr&amp;iting System</source>
        <translation>लेखन प्रणाली (&amp;I)</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <translation>LTR</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>पूर्ववत करें (&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>फिर से करें (&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>काटें (&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>कॉपी करें (&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>चिपकाएँ (&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>हटाएँ</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>सभी चुनें</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>ठीक है</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>सहेजें</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>सभी सहेजें</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>खोलें</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>हाँ (&amp;Y)</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>सभी के लिए हाँ (&amp;A)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>नहीं (&amp;N)</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>सभी के लिए नहीं (&amp;O)</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>निरस्त करें</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>पुनः प्रयास करें</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>अनदेखा करें</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>बंद करें</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>रद्द करें</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>छोड़ें</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>सहायता</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>लागू करें</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>रीसेट करें</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>डिफ़ॉल्ट पुनर्स्थापित करें</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Undo</source>
        <translation>पूर्ववत करें (&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>फिर से करें (&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>काटें (&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>कॉपी करें (&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>चिपकाएँ (&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>हटाएँ</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>सभी चुनें</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>लिंक का पता कॉपी करें (&amp;L)</translation>
    </message>
</context>
</TS>
