<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hi_IN" sourcelanguage="en_US">
<context>
    <name>ColorSelectButton</name>
    <message>
        <source>None</source>
        <translation>कोई नहीं</translation>
    </message>
</context>
<context>
    <name>ConfigurationWindow</name>
    <message>
        <source>Quorvi Configuration</source>
        <translation>Quorvi सेटिंग</translation>
    </message>
    <message>
        <source>Restore All Default</source>
        <translation>सभी डिफ़ॉल्ट पुनर्स्थापित करें</translation>
    </message>
    <message>
        <source>Restore Default</source>
        <translation>डिफ़ॉल्ट पुनर्स्थापित करें</translation>
    </message>
</context>
<context>
    <name>KeySequenceEdit</name>
    <message>
        <source>Press shortcut key</source>
        <translation>शॉर्टकट कुंजी दबाएँ</translation>
    </message>
    <message>
        <source>Clear shortcut key</source>
        <translation>शॉर्टकट कुंजी साफ़ करें</translation>
    </message>
    <message>
        <source>Shortkey [%1] is too simple.
To avoid conflicts with other functions and prevent accidental activations, please set a more complex hotkey combination.

If you need to set simple shortcuts, go to the [System] Settings page and check [Allow simple global hotkeys].</source>
        <translation>शॉर्टकट कुंजी [%1] बहुत सरल है।
अन्य सुविधाओं से टकराव और अनजाने में सक्रिय होने से बचने के लिए कृपया अधिक जटिल कुंजी संयोजन सेट करें।

यदि आपको सरल शॉर्टकट कुंजियाँ सेट करनी हैं, तो [सिस्टम] सेटिंग पृष्ठ पर जाएँ और [सरल वैश्विक शॉर्टकट कुंजियों की अनुमति दें] चुनें।</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfDefWidgetQKeySequence</name>
    <message>
        <source>Not set</source>
        <translation>सेट नहीं है</translation>
    </message>
    <message>
        <source>Setup failed, the hotkey may be occupied. Click to try setup again.</source>
        <translation>सेट नहीं हो सकी: संभव है कि शॉर्टकट कुंजी पहले से उपयोग में हो। फिर से प्रयास करने के लिए क्लिक करें।</translation>
    </message>
    <message>
        <source>Setup success.</source>
        <translation>सफलतापूर्वक सेट हो गई।</translation>
    </message>
    <message>
        <source>Disabled.</source>
        <translation>अक्षम है।</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetDateTime</name>
    <message>
        <source>Not set</source>
        <translation>सेट नहीं है</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>साफ़ करें</translation>
    </message>
    <message>
        <source>Enter a date and time from %1 to %2</source>
        <translation>%1 से %2 तक का दिनांक और समय दर्ज करें</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetLanguage</name>
    <message>
        <source>Follow the system</source>
        <translation>सिस्टम के अनुसार</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetMouseAction</name>
    <message>
        <source>None</source>
        <translation>कोई नहीं</translation>
    </message>
    <message>
        <source>Left Click</source>
        <translation>बायाँ क्लिक</translation>
    </message>
    <message>
        <source>Left Double Click</source>
        <translation>बायाँ डबल क्लिक</translation>
    </message>
    <message>
        <source>Right Click</source>
        <translation>दायाँ क्लिक</translation>
    </message>
    <message>
        <source>Right Double Click</source>
        <translation>दायाँ डबल क्लिक</translation>
    </message>
    <message>
        <source>Middle Click</source>
        <translation>मध्य क्लिक</translation>
    </message>
    <message>
        <source>Middle Double Click</source>
        <translation>मध्य डबल क्लिक</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>व्हील</translation>
    </message>
    <message>
        <source>Left Drag</source>
        <translation>बाएँ बटन से खींचना</translation>
    </message>
    <message>
        <source>Right Drag</source>
        <translation>दाएँ बटन से खींचना</translation>
    </message>
    <message>
        <source>Middle Drag</source>
        <translation>मध्य बटन से खींचना</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetPassword</name>
    <message>
        <source>Show</source>
        <translation>दिखाएँ</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetPath</name>
    <message>
        <source>Browse...</source>
        <translation>ब्राउज़ करें…</translation>
    </message>
    <message>
        <source>This folder does not exist.</source>
        <translation>यह फ़ोल्डर मौजूद नहीं है।</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>यह फ़ाइल है, फ़ोल्डर नहीं।</translation>
    </message>
    <message>
        <source>This is a folder, not a file.</source>
        <translation>यह फ़ोल्डर है, फ़ाइल नहीं।</translation>
    </message>
    <message>
        <source>The folder of this file does not exist.</source>
        <translation>इस फ़ाइल का फ़ोल्डर मौजूद नहीं है।</translation>
    </message>
    <message>
        <source>This file does not exist.</source>
        <translation>यह फ़ाइल मौजूद नहीं है।</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetStringList</name>
    <message>
        <source>Add</source>
        <translation>जोड़ें</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>हटाएँ</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>ऊपर ले जाएँ</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>नीचे ले जाएँ</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigItemWidget</name>
    <message>
        <source>From %1 to %2</source>
        <translation>%1 से %2 तक</translation>
    </message>
    <message>
        <source>Enter a number from %1 to %2</source>
        <translation>%1 से %2 तक की संख्या दर्ज करें</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigurationWindow</name>
    <message>
        <source>Confirm</source>
        <translation>पुष्टि करें</translation>
    </message>
    <message>
        <source>Are you sure to restore current page default?</source>
        <translation>क्या आप वाकई वर्तमान पृष्ठ के डिफ़ॉल्ट पुनर्स्थापित करना चाहते हैं?</translation>
    </message>
    <message>
        <source>Are you sure to restore all default?</source>
        <translation>क्या आप वाकई सभी डिफ़ॉल्ट पुनर्स्थापित करना चाहते हैं?</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Cannot set left-click separately</source>
        <translation>बायाँ क्लिक अकेले सेट नहीं किया जा सकता</translation>
    </message>
    <message>
        <source>No set</source>
        <translation>सेट नहीं है</translation>
    </message>
    <message>
        <source>Conflict with %1</source>
        <translation>“%1” से टकराव</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source> s</source>
        <translation> से.</translation>
    </message>
    <message>
        <source> min</source>
        <translation> मि.</translation>
    </message>
    <message>
        <source> h</source>
        <translation> घं.</translation>
    </message>
    <message>
        <source> d</source>
        <translation> दिन</translation>
    </message>
</context>
</TS>
