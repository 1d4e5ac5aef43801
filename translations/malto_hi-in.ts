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
    <message>
        <source>Another program may use this hotkey.</source>
        <translation>हो सकता है कि कोई दूसरा प्रोग्राम इस शॉर्टकट कुंजी का उपयोग कर रहा हो।</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>फिर से प्रयास करें</translation>
    </message>
    <message>
        <source>The desktop has not answered yet.</source>
        <translation>डेस्कटॉप परिवेश ने अभी तक उत्तर नहीं दिया है।</translation>
    </message>
    <message>
        <source>The hotkey has not been set up yet.</source>
        <translation>शॉर्टकट कुंजी अभी तक सेट नहीं हुई है।</translation>
    </message>
    <message>
        <source>A global hotkey is one key, alone or with modifiers.</source>
        <translation>वैश्विक शॉर्टकट कुंजी एक ही कुंजी होती है, अकेली या संशोधक कुंजियों के साथ।</translation>
    </message>
    <message>
        <source>This keyboard does not have the key.</source>
        <translation>इस कीबोर्ड पर यह कुंजी नहीं है।</translation>
    </message>
    <message>
        <source>Another program uses this hotkey.</source>
        <translation>कोई दूसरा प्रोग्राम इस शॉर्टकट कुंजी का उपयोग कर रहा है।</translation>
    </message>
    <message>
        <source>The hotkey was refused by you or by the desktop.</source>
        <translation>शॉर्टकट कुंजी को आपने या डेस्कटॉप परिवेश ने अस्वीकार कर दिया।</translation>
    </message>
    <message>
        <source>Global hotkeys are not available on this system.</source>
        <translation>इस सिस्टम पर वैश्विक शॉर्टकट कुंजियाँ उपलब्ध नहीं हैं।</translation>
    </message>
    <message>
        <source>Click to try again.</source>
        <translation>फिर से प्रयास करने के लिए क्लिक करें।</translation>
    </message>
    <message>
        <source>Assigned by the desktop: %1</source>
        <translation>डेस्कटॉप परिवेश द्वारा निर्धारित: %1</translation>
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
    <name>MtConf::DependencyNote</name>
    <message>
        <source>Needs “%1”</source>
        <translation>“%1” आवश्यक है</translation>
    </message>
    <message>
        <source>Not with “%1”</source>
        <translation>“%1” के साथ उपलब्ध नहीं</translation>
    </message>
    <message>
        <source>Needs “%1”: %2</source>
        <translation>“%1” आवश्यक है: %2</translation>
    </message>
</context>
<context>
    <name>MtConf::HistoryFeature</name>
    <message>
        <source>Removed 1 entry.</source>
        <translation>1 प्रविष्टि हटाई गई।</translation>
    </message>
    <message numerus="yes">
        <source>Removed %n entries.</source>
        <translation>
            <numerusform>%n प्रविष्टि हटाई गई।</numerusform>
            <numerusform>%n प्रविष्टियाँ हटाई गईं।</numerusform>
        </translation>
    </message>
    <message>
        <source>Imported 1 setting.</source>
        <translation>1 सेटिंग आयात की गई।</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n settings.</source>
        <translation>
            <numerusform>%n सेटिंग आयात की गई।</numerusform>
            <numerusform>%n सेटिंग आयात की गईं।</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Restored %n settings.</source>
        <translation>
            <numerusform>%n सेटिंग पुनर्स्थापित की गई।</numerusform>
            <numerusform>%n सेटिंग पुनर्स्थापित की गईं।</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MtConf::ImportDialog</name>
    <message>
        <source>Import settings</source>
        <translation>सेटिंग आयात करें</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; changes these settings. Those that are checked are imported.</source>
        <translation>फ़ाइल “%1” इन सेटिंग को बदलती है। चुनी गई सेटिंग आयात की जाती हैं।</translation>
    </message>
    <message>
        <source>Settings in the file</source>
        <translation>फ़ाइल की सेटिंग</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>सेटिंग</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>यहाँ</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>फ़ाइल में</translation>
    </message>
    <message>
        <source>%1, here: %2, in the file: %3</source>
        <translation>%1, यहाँ: %2, फ़ाइल में: %3</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>रद्द करें</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>सभी चुनें</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>सभी का चयन हटाएँ</translation>
    </message>
    <message>
        <source>Import (%1)</source>
        <translation>आयात करें (%1)</translation>
    </message>
    <message>
        <source>Other settings</source>
        <translation>अन्य सेटिंग</translation>
    </message>
    <message>
        <source>%1 (default)</source>
        <translation>%1 (डिफ़ॉल्ट)</translation>
    </message>
    <message>
        <source>Does not exist</source>
        <translation>मौजूद नहीं है</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>हटाया गया</translation>
    </message>
    <message>
        <source>Entries of other versions, which are left out: %1</source>
        <translation>छोड़ी गईं अन्य संस्करणों की प्रविष्टियाँ: %1</translation>
    </message>
    <message>
        <source>Entries that cannot be read, which are left out: %1</source>
        <translation>छोड़ी गईं अपठनीय प्रविष्टियाँ: %1</translation>
    </message>
    <message>
        <source>Settings that stay on each computer, which are left out: %1</source>
        <translation>छोड़ी गईं सेटिंग, जो हर कंप्यूटर की अपनी होती हैं: %1</translation>
    </message>
    <message>
        <source>Locked settings, which are left out: %1</source>
        <translation>छोड़ी गईं लॉक की हुई सेटिंग: %1</translation>
    </message>
    <message>
        <source>Settings whose value is not accepted here: %1</source>
        <translation>सेटिंग, जिनका मान यहाँ स्वीकार्य नहीं है: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::ImportExport</name>
    <message>
        <source>Import…</source>
        <translation>आयात करें…</translation>
    </message>
    <message>
        <source>Import settings from a file</source>
        <translation>फ़ाइल से सेटिंग आयात करें</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>निर्यात करें…</translation>
    </message>
    <message>
        <source>Export the settings to a file</source>
        <translation>सेटिंग फ़ाइल में निर्यात करें</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>सेटिंग (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>सभी फ़ाइलें (*)</translation>
    </message>
    <message>
        <source>Export settings</source>
        <translation>सेटिंग निर्यात करें</translation>
    </message>
    <message>
        <source>Import settings</source>
        <translation>सेटिंग आयात करें</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; changes nothing here.</source>
        <translation>फ़ाइल “%1” यहाँ कुछ नहीं बदलती।</translation>
    </message>
    <message>
        <source>Settings that could not be imported: %1</source>
        <translation>सेटिंग, जो आयात नहीं की जा सकीं: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::InputConflicts</name>
    <message>
        <source>%1 is used by: %2</source>
        <translation>%1 का उपयोग यहाँ हो रहा है: %2</translation>
    </message>
    <message>
        <source>Also used by: %1</source>
        <translation>इसका उपयोग यहाँ भी होता है: %1</translation>
    </message>
    <message>
        <source>%1 is needed for typing and editing.</source>
        <translation>टाइप और संपादन करने के लिए %1 आवश्यक है।</translation>
    </message>
</context>
<context>
    <name>MtConf::InputOffer</name>
    <message>
        <source>Replace</source>
        <translation>बदलें</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>अदला-बदली करें</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>दोनों रखें</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>रद्द करें</translation>
    </message>
</context>
<context>
    <name>MtConf::InputRegistry</name>
    <message>
        <source>another shortcut of this program</source>
        <translation>इस प्रोग्राम की कोई दूसरी शॉर्टकट कुंजी</translation>
    </message>
</context>
<context>
    <name>MtConf::LivePages</name>
    <message>
        <source>Changed elsewhere meanwhile. What you type replaces it.</source>
        <translation>इस बीच कहीं और बदला गया। आप जो लिखेंगे, वह नए मान की जगह लेगा।</translation>
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
        <translation>कोई संशोधक कुंजी नहीं</translation>
    </message>
</context>
<context>
    <name>MtConf::ModernWindow</name>
    <message>
        <source>Reset this page…</source>
        <translation>पृष्ठ पुनर्स्थापित करें…</translation>
    </message>
    <message>
        <source>Reset all settings…</source>
        <translation>सभी पुनर्स्थापित करें…</translation>
    </message>
    <message>
        <source>More</source>
        <translation>अधिक</translation>
    </message>
</context>
<context>
    <name>MtConf::ResetQuestion</name>
    <message>
        <source>Reset this page?</source>
        <translation>क्या यह पृष्ठ पुनर्स्थापित करें?</translation>
    </message>
    <message>
        <source>Reset all settings?</source>
        <translation>क्या सभी सेटिंग पुनर्स्थापित करें?</translation>
    </message>
    <message>
        <source>Reset 1 setting on this page?</source>
        <translation>क्या इस पृष्ठ की 1 सेटिंग पुनर्स्थापित करें?</translation>
    </message>
    <message>
        <source>Reset 1 setting on all pages?</source>
        <translation>क्या सभी पृष्ठों की 1 सेटिंग पुनर्स्थापित करें?</translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings on this page?</source>
        <translation>
            <numerusform>क्या इस पृष्ठ की %n सेटिंग पुनर्स्थापित करें?</numerusform>
            <numerusform>क्या इस पृष्ठ की %n सेटिंग पुनर्स्थापित करें?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings on all pages?</source>
        <translation>
            <numerusform>क्या सभी पृष्ठों की %n सेटिंग पुनर्स्थापित करें?</numerusform>
            <numerusform>क्या सभी पृष्ठों की %n सेटिंग पुनर्स्थापित करें?</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>पुनर्स्थापित करें</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>रद्द करें</translation>
    </message>
</context>
<context>
    <name>MtConf::RowReset</name>
    <message>
        <source>Show changed</source>
        <translation>बदली गईं दिखाएँ</translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n बदली गई</numerusform>
            <numerusform>%n बदली गईं</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>%1 पुनर्स्थापित करें</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>पुनर्स्थापित करें</translation>
    </message>
    <message>
        <source>Copy key</source>
        <translation>कुंजी कॉपी करें</translation>
    </message>
    <message>
        <source>Copy value</source>
        <translation>मान कॉपी करें</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>बदला गया</translation>
    </message>
    <message>
        <source>Changed settings</source>
        <translation>बदली गईं सेटिंग</translation>
    </message>
</context>
<context>
    <name>MtConf::RowWords</name>
    <message>
        <source>Default: %1</source>
        <translation>डिफ़ॉल्ट: %1</translation>
    </message>
    <message>
        <source>Not changed</source>
        <translation>बदला नहीं गया</translation>
    </message>
    <message>
        <source>Changed on %1</source>
        <translation>%1 को बदला गया</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>बदला गया</translation>
    </message>
    <message>
        <source>From the file %1</source>
        <translation>फ़ाइल %1 से</translation>
    </message>
    <message>
        <source>Changed by another program or computer on %1</source>
        <translation>किसी दूसरे प्रोग्राम या कंप्यूटर ने %1 को बदला</translation>
    </message>
    <message>
        <source>Changed by another program or computer</source>
        <translation>किसी दूसरे प्रोग्राम या कंप्यूटर ने बदला</translation>
    </message>
    <message>
        <source>Locked by the administrator</source>
        <translation>व्यवस्थापक द्वारा लॉक किया गया</translation>
    </message>
</context>
<context>
    <name>MtConf::SettingsFile</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>“%1” कोई फ़ाइल नहीं है।</translation>
    </message>
    <message>
        <source>The settings could not be saved in &quot;%1&quot;.</source>
        <translation>सेटिंग “%1” में सहेजी नहीं जा सकीं।</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not exist.</source>
        <translation>फ़ाइल “%1” मौजूद नहीं है।</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is larger than %2.</source>
        <translation>फ़ाइल “%1” %2 से बड़ी है।</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; could not be read.</source>
        <translation>फ़ाइल “%1” पढ़ी नहीं जा सकी।</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is empty.</source>
        <translation>फ़ाइल “%1” खाली है।</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged: its content is nested too deeply.</source>
        <translation>फ़ाइल “%1” क्षतिग्रस्त है: उसकी सामग्री में बहुत अधिक स्तर हैं।</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged or not complete.</source>
        <translation>फ़ाइल “%1” क्षतिग्रस्त या अधूरी है।</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not contain settings.</source>
        <translation>फ़ाइल “%1” में सेटिंग नहीं हैं।</translation>
    </message>
    <message>
        <source>%1 settings</source>
        <comment>name of a file</comment>
        <translation>%1 सेटिंग</translation>
    </message>
</context>
<context>
    <name>MtConf::SettingsFind</name>
    <message>
        <source>%1 of %2</source>
        <translation>%2 में से %1</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>सेटिंग खोजें</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>खोज साफ़ करें</translation>
    </message>
    <message>
        <source>Show more (%1)</source>
        <translation>और दिखाएँ (%1)</translation>
    </message>
    <message>
        <source>No setting matches “%1”</source>
        <translation>“%1” से कोई सेटिंग मेल नहीं खाती</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>परिणाम</translation>
    </message>
    <message>
        <source>Enter opens the page</source>
        <translation>Enter से पृष्ठ खुलता है</translation>
    </message>
</context>
<context>
    <name>MtConf::UndoBar</name>
    <message>
        <source>Undo</source>
        <translation>पूर्ववत करें</translation>
    </message>
</context>
<context>
    <name>MtConf::ValueInWords</name>
    <message>
        <source>Yes</source>
        <translation>हाँ</translation>
    </message>
    <message>
        <source>No</source>
        <translation>नहीं</translation>
    </message>
    <message>
        <source>None</source>
        <translation>कोई नहीं</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>सेट नहीं है</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>खाली</translation>
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
        <translation>बोल्ड</translation>
    </message>
    <message>
        <source>italic</source>
        <translation>इटैलिक</translation>
    </message>
    <message>
        <source>underlined</source>
        <translation>रेखांकित</translation>
    </message>
</context>
<context>
    <name>MtConf::WindowIdentity</name>
    <message>
        <source>Settings</source>
        <translation>सेटिंग</translation>
    </message>
    <message>
        <source>Settings — %1</source>
        <translation>सेटिंग – %1</translation>
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
