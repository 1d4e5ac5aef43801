<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar_EG" sourcelanguage="en_US">
<context>
    <name>BoundValueModel</name>
    <message>
        <source>changed</source>
        <translation>تم التغيير</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>الإعداد</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>القيمة</translation>
    </message>
    <message>
        <source>State</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>%1, %2 px</source>
        <translation>%1، %2 بكسل</translation>
    </message>
</context>
<context>
    <name>LogPane</name>
    <message>
        <source>What the library logs appears here.</source>
        <translation>يظهر سجل المكتبة هنا.</translation>
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
        <translation>السجل</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>الإعدادات…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>Restore all</source>
        <translation>استعادة الكل</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;ملف</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>الإ&amp;عدادات…</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>&amp;حفظ</translation>
    </message>
    <message>
        <source>&amp;Restore all…</source>
        <translation>ا&amp;ستعادة الكل…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>إ&amp;نهاء</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>ال&amp;سمة</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>فاتح</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>داكن</translation>
    </message>
    <message>
        <source>Variables — %1 of %2 changed</source>
        <translation>المتغيرات – عُدّل %1 من %2</translation>
    </message>
    <message>
        <source>Hotkey pressed: %1 (%2)</source>
        <translation>تم الضغط على الاختصار: %1 (%2)</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <translation>تم الحفظ في %1</translation>
    </message>
    <message>
        <source>Could not write %1</source>
        <translation>تعذّرت كتابة %1</translation>
    </message>
    <message>
        <source>Restore the defaults of all settings and the presets of the profiles?</source>
        <translation>هل تريد استعادة الإعدادات الافتراضية كلها وملفات التعريف الجاهزة؟</translation>
    </message>
    <message>
        <source>Follow the system</source>
        <translation>حسب النظام</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigurationWindow</name>
    <message>
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>المظهر</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>الالتقاط</translation>
    </message>
    <message>
        <source>Hotkeys</source>
        <translation>الاختصارات</translation>
    </message>
    <message>
        <source>Mouse</source>
        <translation>الفأرة</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>الإخراج</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>ملفات التعريف</translation>
    </message>
    <message>
        <source>System</source>
        <translation>النظام</translation>
    </message>
    <message>
        <source>Stored data</source>
        <translation>البيانات المخزّنة</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>التحديثات</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>التحديد</translation>
    </message>
    <message>
        <source>Magnifier</source>
        <translation>المكبّر</translation>
    </message>
    <message>
        <source>Size label</source>
        <translation>ملصق الحجم</translation>
    </message>
    <message>
        <source>Snapping</source>
        <translation>المحاذاة</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>الأدوات</translation>
    </message>
    <message>
        <source>Pinned pictures</source>
        <translation>الصور المثبّتة</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>الصورة</translation>
    </message>
    <message>
        <source>After a capture</source>
        <translation>بعد الالتقاط</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>النصوص</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>الأرقام</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>الخيارات</translation>
    </message>
    <message>
        <source>In this program</source>
        <translation>في هذا التطبيق</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>الملفات</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>الشبكة</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>Screen</source>
        <translation>الشاشة</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>النافذة</translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation>صورة مصغّرة</translation>
    </message>
    <message>
        <source>A profile needs a name.</source>
        <translation>يحتاج ملف التعريف إلى اسم.</translation>
    </message>
    <message>
        <source>A name can have at most %1 characters.</source>
        <translation>الحد الأقصى لطول الاسم %1 حرفًا.</translation>
    </message>
    <message>
        <source>Another profile has this name.</source>
        <translation>هناك ملف تعريف آخر بهذا الاسم.</translation>
    </message>
    <message>
        <source>New profile</source>
        <translation>ملف تعريف جديد</translation>
    </message>
    <message>
        <source>New profile %1</source>
        <translation>ملف تعريف جديد %1</translation>
    </message>
</context>
<context>
    <name>ProfilesPage</name>
    <message>
        <source>Profiles</source>
        <translation>ملفات التعريف</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>إضافة</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>Restore presets</source>
        <translation>استعادة الملفات الجاهزة</translation>
    </message>
    <message>
        <source>There is no profile.
Add one, or restore the presets.</source>
        <translation>لا يوجد أي ملف تعريف.
أضف واحدًا أو استعد الملفات الجاهزة.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>إعادة تسمية</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>العرض</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>الارتفاع</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>الإطار</translation>
    </message>
    <message>
        <source>Include the mouse pointer</source>
        <translation>تضمين مؤشر الفأرة</translation>
    </message>
    <message>
        <source>A preset, unchanged.</source>
        <translation>ملف جاهز لم يُعدّل.</translation>
    </message>
    <message>
        <source>Yours, or a changed preset.</source>
        <translation>ملف خاص بك، أو ملف جاهز معدّل.</translation>
    </message>
    <message>
        <source>“%1” keeps its name. %2</source>
        <translation>يحتفظ «%1» باسمه. %2</translation>
    </message>
    <message>
        <source>Delete the profile “%1”?</source>
        <translation>هل تريد حذف ملف التعريف «%1»؟</translation>
    </message>
    <message>
        <source>Restore the presets? This deletes your own profiles and undoes your changes of the presets.</source>
        <translation>هل تريد استعادة الملفات الجاهزة؟ سيؤدي هذا إلى حذف ملفاتك الخاصة والتراجع عن تغييراتك في الملفات الجاهزة.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Language</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>بدء التشغيل عند تسجيل الدخول</translation>
    </message>
    <message>
        <source>Show icon in the menu bar</source>
        <translation>إظهار الأيقونة في شريط القوائم</translation>
    </message>
    <message>
        <source>Play a sound after a capture</source>
        <translation>تشغيل صوت بعد الالتقاط</translation>
    </message>
    <message>
        <source>Show tips</source>
        <translation>إظهار التلميحات</translation>
    </message>
    <message>
        <source>Recent captures in the menu</source>
        <translation>عدد اللقطات الأخيرة في القائمة</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>البحث عن تحديثات</translation>
    </message>
    <message>
        <source>Check interval (days)</source>
        <translation>الفاصل بين عمليات البحث (بالأيام)</translation>
    </message>
    <message>
        <source>Offer beta versions</source>
        <translation>عرض الإصدارات التجريبية (بيتا)</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>السمة</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>فاتح</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>داكن</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>الإطار</translation>
    </message>
    <message>
        <source>Width of the frame</source>
        <translation>عرض الإطار</translation>
    </message>
    <message>
        <source>Shade outside</source>
        <translation>التعتيم الخارجي</translation>
    </message>
    <message>
        <source>Show magnifier</source>
        <translation>إظهار المكبّر</translation>
    </message>
    <message>
        <source>Magnification</source>
        <translation>التكبير</translation>
    </message>
    <message>
        <source>Show size beside the selection</source>
        <translation>إظهار الحجم بجانب التحديد</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>الخط</translation>
    </message>
    <message>
        <source>Delay before a capture</source>
        <translation>المهلة قبل الالتقاط</translation>
    </message>
    <message>
        <source>Count down on the screen</source>
        <translation>العد التنازلي على الشاشة</translation>
    </message>
    <message>
        <source>Include the mouse pointer</source>
        <translation>تضمين مؤشر الفأرة</translation>
    </message>
    <message>
        <source>Include the shadow of windows</source>
        <translation>تضمين ظل النوافذ</translation>
    </message>
    <message>
        <source>Freeze the screen while selecting</source>
        <translation>تجميد الشاشة أثناء التحديد</translation>
    </message>
    <message>
        <source>Frames per second of videos</source>
        <translation>إطارات الفيديو في الثانية</translation>
    </message>
    <message>
        <source>Snap to</source>
        <translation>المحاذاة إلى</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>النوافذ</translation>
    </message>
    <message>
        <source>Screen edges</source>
        <translation>حواف الشاشة</translation>
    </message>
    <message>
        <source>Guides</source>
        <translation>خطوط الإرشاد</translation>
    </message>
    <message>
        <source>Last selection</source>
        <translation>آخر تحديد</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>المسافة</translation>
    </message>
    <message>
        <source>Hotkeys in full-screen applications</source>
        <translation>الاختصارات في تطبيقات ملء الشاشة</translation>
    </message>
    <message>
        <source>Repeat delay</source>
        <translation>مهلة التكرار</translation>
    </message>
    <message>
        <source>Capture an area</source>
        <translation>التقاط منطقة</translation>
    </message>
    <message>
        <source>Capture a window</source>
        <translation>التقاط نافذة</translation>
    </message>
    <message>
        <source>Capture the screen</source>
        <translation>التقاط الشاشة</translation>
    </message>
    <message>
        <source>Pin the clipboard</source>
        <translation>تثبيت محتوى الحافظة</translation>
    </message>
    <message>
        <source>Double-click to finish</source>
        <translation>الإنهاء بنقرة مزدوجة</translation>
    </message>
    <message>
        <source>Invert the wheel</source>
        <translation>عكس اتجاه عجلة التمرير</translation>
    </message>
    <message>
        <source>Movement that begins a drag</source>
        <translation>مسافة بدء السحب</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>التكبير والتصغير</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>العتامة</translation>
    </message>
    <message>
        <source>Show the menu</source>
        <translation>إظهار القائمة</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>إخفاء</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>تحريك</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>رسم</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>التنسيق</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>الجودة</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>العلامة المائية</translation>
    </message>
    <message>
        <source>Copy it</source>
        <translation>نسخ اللقطة</translation>
    </message>
    <message>
        <source>Save it</source>
        <translation>حفظ اللقطة</translation>
    </message>
    <message>
        <source>Open it in the editor</source>
        <translation>فتح اللقطة في المحرّر</translation>
    </message>
    <message>
        <source>Allow simple global hotkeys</source>
        <translation>السماح بالاختصارات العامة البسيطة</translation>
    </message>
    <message>
        <source>Show expert settings</source>
        <translation>إظهار الإعدادات المتقدمة</translation>
    </message>
    <message>
        <source>Steps that can be undone</source>
        <translation>عدد خطوات التراجع</translation>
    </message>
    <message>
        <source>Bring pinned pictures back at start</source>
        <translation>استعادة الصور المثبّتة عند بدء التشغيل</translation>
    </message>
    <message>
        <source>Cache (MB)</source>
        <translation>ذاكرة التخزين المؤقت (م.ب.)</translation>
    </message>
    <message>
        <source>Threads that compress</source>
        <translation>عدد خيوط الضغط</translation>
    </message>
    <message>
        <source>Draw with the graphics card</source>
        <translation>الرسم ببطاقة الرسومات</translation>
    </message>
    <message>
        <source>Show times of drawing</source>
        <translation>إظهار أزمنة الرسم</translation>
    </message>
    <message>
        <source>Write a log file</source>
        <translation>كتابة ملف سجل</translation>
    </message>
    <message>
        <source>Open the settings</source>
        <translation>فتح الإعدادات</translation>
    </message>
    <message>
        <source>Save now</source>
        <translation>الحفظ الآن</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>إنهاء</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>المؤلّف</translation>
    </message>
    <message>
        <source>Your name</source>
        <translation>اسمك</translation>
    </message>
    <message>
        <source>Pictures contain it if the details include the author.</source>
        <translation>تتضمّنه الصور إذا شملت التفاصيل المؤلّف.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>الملاحظة</translation>
    </message>
    <message>
        <source>Token for uploads</source>
        <translation>الرمز المميّز للرفع</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>الوسوم</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>المجلّد</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>الشعار</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg)</source>
        <translation>الصور (*.png *.svg)</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>ملف السجل</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>السطوع</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>الهامش</translation>
    </message>
    <message>
        <source>Save every</source>
        <translation>الحفظ كل</translation>
    </message>
    <message>
        <source>Remind me</source>
        <translation>التذكير في</translation>
    </message>
    <message>
        <source>Name of the file</source>
        <translation>اسم الملف</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>التاريخ والوقت</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>الرقم</translation>
    </message>
    <message>
        <source>Title of the window</source>
        <translation>عنوان النافذة</translation>
    </message>
    <message>
        <source>Details in the file</source>
        <translation>التفاصيل في الملف</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>الموضع</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>استخدام خادم وكيل</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>المضيف</translation>
    </message>
    <message>
        <source>A host has no blanks.</source>
        <translation>لا يمكن أن يحتوي اسم المضيف على مسافات.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>المنفذ</translation>
    </message>
    <message>
        <source> px</source>
        <translation> بكسل</translation>
    </message>
    <message>
        <source> s</source>
        <translation> ثانية</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> مللي ثانية</translation>
    </message>
    <message>
        <source>Follow the system</source>
        <translation>حسب النظام</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>اللون</translation>
    </message>
    <message>
        <source>Pick a color</source>
        <translation>التقاط لون</translation>
    </message>
</context>
<context>
    <name>StoredDataPage</name>
    <message>
        <source>Stored data</source>
        <translation>البيانات المخزّنة</translation>
    </message>
    <message>
        <source>Nothing has been changed yet.</source>
        <translation>لم يتغيّر أي شيء بعد.</translation>
    </message>
</context>
<context>
    <name>WatermarkEditor</name>
    <message>
        <source>Opacity</source>
        <translation>العتامة</translation>
    </message>
    <message>
        <source>None if empty</source>
        <translation>فارغ: بدون</translation>
    </message>
</context>
<context>
    <name>takePictures</name>
    <message>
        <source>Cannot write %1</source>
        <translation>لا يمكن كتابة %1</translation>
    </message>
</context>
</TS>
