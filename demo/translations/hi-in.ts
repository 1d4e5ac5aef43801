<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hi_IN" sourcelanguage="en_US">
<context>
    <name>BoundValueModel</name>
    <message>
        <source>changed</source>
        <translation>बदला गया</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>सेटिंग</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>मान</translation>
    </message>
    <message>
        <source>State</source>
        <translation>स्थिति</translation>
    </message>
    <message>
        <source>%1, %2 px</source>
        <translation>%1, %2 px</translation>
    </message>
</context>
<context>
    <name>LogPane</name>
    <message>
        <source>What the library logs appears here.</source>
        <translation>लाइब्रेरी का लॉग यहाँ दिखता है।</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Quorvi Capture</source>
        <translation>Quorvi Capture</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>लॉग</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>सेटिंग…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>सहेजें</translation>
    </message>
    <message>
        <source>Restore all</source>
        <translation>सभी पुनर्स्थापित करें</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>फ़ाइल (&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>सेटिंग (&amp;S)…</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>सहेजें (&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Restore all…</source>
        <translation>सभी पुनर्स्थापित करें (&amp;R)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>बाहर निकलें (&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>थीम (&amp;T)</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>हल्की</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>गहरी</translation>
    </message>
    <message>
        <source>Variables — %1 of %2 changed</source>
        <translation>वेरिएबल – %2 में से %1 बदले गए</translation>
    </message>
    <message>
        <source>Hotkey pressed: %1 (%2)</source>
        <translation>दबाई गई शॉर्टकट कुंजी: %1 (%2)</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <translation>%1 में सहेजा गया</translation>
    </message>
    <message>
        <source>Could not write %1</source>
        <translation>%1 नहीं लिखा जा सका</translation>
    </message>
    <message>
        <source>Restore the defaults of all settings and the presets of the profiles?</source>
        <translation>क्या आप सभी सेटिंग के डिफ़ॉल्ट और प्रीसेट प्रोफ़ाइल पुनर्स्थापित करना चाहते हैं?</translation>
    </message>
    <message>
        <source>Follow the system</source>
        <translation>सिस्टम के अनुसार</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigurationWindow</name>
    <message>
        <source>General</source>
        <translation>सामान्य</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>दिखावट</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>कैप्चर</translation>
    </message>
    <message>
        <source>Hotkeys</source>
        <translation>शॉर्टकट कुंजियाँ</translation>
    </message>
    <message>
        <source>Mouse</source>
        <translation>माउस</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>आउटपुट</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>प्रोफ़ाइल</translation>
    </message>
    <message>
        <source>System</source>
        <translation>सिस्टम</translation>
    </message>
    <message>
        <source>Stored data</source>
        <translation>सहेजा गया डेटा</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>अपडेट</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>चयन</translation>
    </message>
    <message>
        <source>Magnifier</source>
        <translation>आवर्धक</translation>
    </message>
    <message>
        <source>Size label</source>
        <translation>आकार का लेबल</translation>
    </message>
    <message>
        <source>Snapping</source>
        <translation>स्नैप करना</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>टूल</translation>
    </message>
    <message>
        <source>Pinned pictures</source>
        <translation>पिन किए गए चित्र</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>छवि</translation>
    </message>
    <message>
        <source>After a capture</source>
        <translation>कैप्चर के बाद</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>टेक्स्ट</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>संख्याएँ</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>विकल्प</translation>
    </message>
    <message>
        <source>In this program</source>
        <translation>इस ऐप में</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>फ़ाइलें</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>नेटवर्क</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>Screen</source>
        <translation>स्क्रीन</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>विंडो</translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation>थंबनेल</translation>
    </message>
    <message>
        <source>A profile needs a name.</source>
        <translation>प्रोफ़ाइल का एक नाम होना चाहिए।</translation>
    </message>
    <message>
        <source>A name can have at most %1 characters.</source>
        <translation>नाम में अधिकतम %1 वर्ण हो सकते हैं।</translation>
    </message>
    <message>
        <source>Another profile has this name.</source>
        <translation>यह किसी दूसरी प्रोफ़ाइल का नाम है।</translation>
    </message>
    <message>
        <source>New profile</source>
        <translation>नई प्रोफ़ाइल</translation>
    </message>
    <message>
        <source>New profile %1</source>
        <translation>नई प्रोफ़ाइल %1</translation>
    </message>
</context>
<context>
    <name>ProfilesPage</name>
    <message>
        <source>Profiles</source>
        <translation>प्रोफ़ाइल</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>जोड़ें</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>हटाएँ</translation>
    </message>
    <message>
        <source>Restore presets</source>
        <translation>प्रीसेट पुनर्स्थापित करें</translation>
    </message>
    <message>
        <source>There is no profile.
Add one, or restore the presets.</source>
        <translation>कोई प्रोफ़ाइल नहीं है।
एक जोड़ें या प्रीसेट पुनर्स्थापित करें।</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>नाम</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>नाम बदलें</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>चौड़ाई</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>ऊँचाई</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>फ़्रेम</translation>
    </message>
    <message>
        <source>Include the mouse pointer</source>
        <translation>माउस पॉइंटर शामिल करें</translation>
    </message>
    <message>
        <source>A preset, unchanged.</source>
        <translation>प्रीसेट, बदला नहीं गया।</translation>
    </message>
    <message>
        <source>Yours, or a changed preset.</source>
        <translation>आपकी अपनी प्रोफ़ाइल या बदला गया प्रीसेट।</translation>
    </message>
    <message>
        <source>“%1” keeps its name. %2</source>
        <translation>“%1” का नाम वही रहेगा। %2</translation>
    </message>
    <message>
        <source>Delete the profile “%1”?</source>
        <translation>क्या प्रोफ़ाइल “%1” हटाएँ?</translation>
    </message>
    <message>
        <source>Restore the presets? This deletes your own profiles and undoes your changes of the presets.</source>
        <translation>क्या प्रीसेट पुनर्स्थापित करें? इससे आपकी अपनी प्रोफ़ाइलें हट जाएँगी और प्रीसेट में आपके बदलाव रद्द हो जाएँगे।</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Language</source>
        <translation>भाषा</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>लॉगिन पर प्रारंभ करें</translation>
    </message>
    <message>
        <source>Show icon in the menu bar</source>
        <translation>मेनू बार में आइकन दिखाएँ</translation>
    </message>
    <message>
        <source>Play a sound after a capture</source>
        <translation>कैप्चर के बाद ध्वनि चलाएँ</translation>
    </message>
    <message>
        <source>Show tips</source>
        <translation>सुझाव दिखाएँ</translation>
    </message>
    <message>
        <source>Recent captures in the menu</source>
        <translation>मेनू में हाल के कैप्चर</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>अपडेट जाँचें</translation>
    </message>
    <message>
        <source>Check interval (days)</source>
        <translation>जाँच का अंतराल (दिन)</translation>
    </message>
    <message>
        <source>Offer beta versions</source>
        <translation>बीटा संस्करण दिखाएँ</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>थीम</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>हल्की</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>गहरी</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>फ़्रेम</translation>
    </message>
    <message>
        <source>Width of the frame</source>
        <translation>फ़्रेम की मोटाई</translation>
    </message>
    <message>
        <source>Shade outside</source>
        <translation>चयन के बाहर का शेड</translation>
    </message>
    <message>
        <source>Show magnifier</source>
        <translation>आवर्धक दिखाएँ</translation>
    </message>
    <message>
        <source>Magnification</source>
        <translation>आवर्धन</translation>
    </message>
    <message>
        <source>Show size beside the selection</source>
        <translation>चयन के पास आकार दिखाएँ</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>फ़ॉन्ट</translation>
    </message>
    <message>
        <source>Delay before a capture</source>
        <translation>कैप्चर से पहले विलंब</translation>
    </message>
    <message>
        <source>Count down on the screen</source>
        <translation>स्क्रीन पर उलटी गिनती</translation>
    </message>
    <message>
        <source>Include the mouse pointer</source>
        <translation>माउस पॉइंटर शामिल करें</translation>
    </message>
    <message>
        <source>Include the shadow of windows</source>
        <translation>विंडो की छाया शामिल करें</translation>
    </message>
    <message>
        <source>Freeze the screen while selecting</source>
        <translation>चयन के समय स्क्रीन स्थिर रखें</translation>
    </message>
    <message>
        <source>Frames per second of videos</source>
        <translation>वीडियो के फ़्रेम प्रति सेकंड</translation>
    </message>
    <message>
        <source>Snap to</source>
        <translation>इन पर स्नैप करें</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>विंडो</translation>
    </message>
    <message>
        <source>Screen edges</source>
        <translation>स्क्रीन के किनारे</translation>
    </message>
    <message>
        <source>Guides</source>
        <translation>गाइड रेखाएँ</translation>
    </message>
    <message>
        <source>Last selection</source>
        <translation>पिछला चयन</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>दूरी</translation>
    </message>
    <message>
        <source>Hotkeys in full-screen applications</source>
        <translation>पूर्ण-स्क्रीन ऐप में शॉर्टकट कुंजियाँ</translation>
    </message>
    <message>
        <source>Repeat delay</source>
        <translation>दोहराव में विलंब</translation>
    </message>
    <message>
        <source>Capture an area</source>
        <translation>क्षेत्र कैप्चर करें</translation>
    </message>
    <message>
        <source>Capture a window</source>
        <translation>विंडो कैप्चर करें</translation>
    </message>
    <message>
        <source>Capture the screen</source>
        <translation>स्क्रीन कैप्चर करें</translation>
    </message>
    <message>
        <source>Pin the clipboard</source>
        <translation>क्लिपबोर्ड पिन करें</translation>
    </message>
    <message>
        <source>Double-click to finish</source>
        <translation>डबल क्लिक से समाप्त करें</translation>
    </message>
    <message>
        <source>Invert the wheel</source>
        <translation>व्हील की दिशा उलटें</translation>
    </message>
    <message>
        <source>Movement that begins a drag</source>
        <translation>खींचना शुरू होने की दूरी</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>ज़ूम</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>अपारदर्शिता</translation>
    </message>
    <message>
        <source>Show the menu</source>
        <translation>मेनू दिखाएँ</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>बंद करें</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>कॉपी करें</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>छिपाएँ</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>स्थानांतरित करें</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>ड्रॉ करें</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>फ़ॉर्मेट</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>गुणवत्ता</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>आकार</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>वॉटरमार्क</translation>
    </message>
    <message>
        <source>Copy it</source>
        <translation>कॉपी करें</translation>
    </message>
    <message>
        <source>Save it</source>
        <translation>सहेजें</translation>
    </message>
    <message>
        <source>Open it in the editor</source>
        <translation>संपादक में खोलें</translation>
    </message>
    <message>
        <source>Allow simple global hotkeys</source>
        <translation>सरल वैश्विक शॉर्टकट कुंजियों की अनुमति दें</translation>
    </message>
    <message>
        <source>Show expert settings</source>
        <translation>उन्नत सेटिंग दिखाएँ</translation>
    </message>
    <message>
        <source>Steps that can be undone</source>
        <translation>पूर्ववत किए जा सकने वाले चरण</translation>
    </message>
    <message>
        <source>Bring pinned pictures back at start</source>
        <translation>पिन किए गए चित्र प्रारंभ होने पर वापस लाएँ</translation>
    </message>
    <message>
        <source>Cache (MB)</source>
        <translation>कैश (MB)</translation>
    </message>
    <message>
        <source>Threads that compress</source>
        <translation>संपीड़न के थ्रेड</translation>
    </message>
    <message>
        <source>Draw with the graphics card</source>
        <translation>ग्राफ़िक्स कार्ड से ड्रॉ करें</translation>
    </message>
    <message>
        <source>Show times of drawing</source>
        <translation>ड्रॉइंग में लगा समय दिखाएँ</translation>
    </message>
    <message>
        <source>Write a log file</source>
        <translation>लॉग फ़ाइल लिखें</translation>
    </message>
    <message>
        <source>Open the settings</source>
        <translation>सेटिंग खोलें</translation>
    </message>
    <message>
        <source>Save now</source>
        <translation>अभी सहेजें</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>बाहर निकलें</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>लेखक</translation>
    </message>
    <message>
        <source>Your name</source>
        <translation>आपका नाम</translation>
    </message>
    <message>
        <source>Pictures contain it if the details include the author.</source>
        <translation>विवरण में लेखक चुना हो तो यह चित्रों में शामिल होता है।</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>टिप्पणी</translation>
    </message>
    <message>
        <source>Token for uploads</source>
        <translation>अपलोड टोकन</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>टैग</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>फ़ोल्डर</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>लोगो</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg)</source>
        <translation>चित्र (*.png *.svg)</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>लॉग फ़ाइल</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>चमक</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>हाशिया</translation>
    </message>
    <message>
        <source>Save every</source>
        <translation>सहेजने का अंतराल</translation>
    </message>
    <message>
        <source>Remind me</source>
        <translation>मुझे याद दिलाएँ</translation>
    </message>
    <message>
        <source>Name of the file</source>
        <translation>फ़ाइल का नाम</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>दिनांक और समय</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>क्रमांक</translation>
    </message>
    <message>
        <source>Title of the window</source>
        <translation>विंडो का शीर्षक</translation>
    </message>
    <message>
        <source>Details in the file</source>
        <translation>फ़ाइल में विवरण</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>स्थान</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>प्रॉक्सी का उपयोग करें</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>होस्ट</translation>
    </message>
    <message>
        <source>A host has no blanks.</source>
        <translation>होस्ट के नाम में रिक्त स्थान नहीं हो सकते।</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>पोर्ट</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source> s</source>
        <translation> से.</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Follow the system</source>
        <translation>सिस्टम के अनुसार</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>रंग</translation>
    </message>
    <message>
        <source>Pick a color</source>
        <translation>स्क्रीन से रंग चुनें</translation>
    </message>
</context>
<context>
    <name>StoredDataPage</name>
    <message>
        <source>Stored data</source>
        <translation>सहेजा गया डेटा</translation>
    </message>
    <message>
        <source>Nothing has been changed yet.</source>
        <translation>अभी तक कुछ नहीं बदला गया है।</translation>
    </message>
</context>
<context>
    <name>WatermarkEditor</name>
    <message>
        <source>Opacity</source>
        <translation>अपारदर्शिता</translation>
    </message>
    <message>
        <source>None if empty</source>
        <translation>खाली: कोई नहीं</translation>
    </message>
</context>
<context>
    <name>takePictures</name>
    <message>
        <source>Cannot write %1</source>
        <translation>%1 नहीं लिखा जा सकता</translation>
    </message>
</context>
</TS>
