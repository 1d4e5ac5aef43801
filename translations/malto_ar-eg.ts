<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar_EG" sourcelanguage="en_US">
<context>
    <name>ColorSelectButton</name>
    <message>
        <source>None</source>
        <translation>بلا</translation>
    </message>
</context>
<context>
    <name>ConfigurationWindow</name>
    <message>
        <source>Quorvi Configuration</source>
        <translation>إعدادات Quorvi</translation>
    </message>
    <message>
        <source>Restore All Default</source>
        <translation>استعادة كل الإعدادات الافتراضية</translation>
    </message>
    <message>
        <source>Restore Default</source>
        <translation>استعادة الإعدادات الافتراضية</translation>
    </message>
</context>
<context>
    <name>KeySequenceEdit</name>
    <message>
        <source>Press shortcut key</source>
        <translation>اضغط على مفاتيح الاختصار</translation>
    </message>
    <message>
        <source>Clear shortcut key</source>
        <translation>مسح مفاتيح الاختصار</translation>
    </message>
    <message>
        <source>Shortkey [%1] is too simple.
To avoid conflicts with other functions and prevent accidental activations, please set a more complex hotkey combination.

If you need to set simple shortcuts, go to the [System] Settings page and check [Allow simple global hotkeys].</source>
        <translation>الاختصار [%1] بسيط للغاية.
لتجنب التعارض مع الوظائف الأخرى ومنع التشغيل غير المقصود، يُرجى تعيين مجموعة مفاتيح أكثر تعقيدًا.

إذا كنت بحاجة إلى اختصارات بسيطة، فانتقل إلى صفحة إعدادات [النظام] وحدّد [السماح بالاختصارات العامة البسيطة].</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfDefWidgetQKeySequence</name>
    <message>
        <source>Not set</source>
        <translation>غير معيّن</translation>
    </message>
    <message>
        <source>Setup failed, the hotkey may be occupied. Click to try setup again.</source>
        <translation>تعذّر التعيين، فقد يكون الاختصار مستخدمًا بالفعل. انقر لإعادة المحاولة.</translation>
    </message>
    <message>
        <source>Setup success.</source>
        <translation>تم التعيين بنجاح.</translation>
    </message>
    <message>
        <source>Disabled.</source>
        <translation>معطّل.</translation>
    </message>
    <message>
        <source>Another program may use this hotkey.</source>
        <translation>قد يكون هذا الاختصار مستخدمًا في برنامج آخر.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>إعادة المحاولة</translation>
    </message>
    <message>
        <source>The desktop has not answered yet.</source>
        <translation>لم تستجب بيئة سطح المكتب بعد.</translation>
    </message>
    <message>
        <source>The hotkey has not been set up yet.</source>
        <translation>لم يتم تعيين الاختصار بعد.</translation>
    </message>
    <message>
        <source>A global hotkey is one key, alone or with modifiers.</source>
        <translation>الاختصار العام مفتاح واحد، بمفرده أو مع مفاتيح التعديل.</translation>
    </message>
    <message>
        <source>This keyboard does not have the key.</source>
        <translation>لا يوجد هذا المفتاح على لوحة المفاتيح هذه.</translation>
    </message>
    <message>
        <source>Another program uses this hotkey.</source>
        <translation>هذا الاختصار مستخدم في برنامج آخر.</translation>
    </message>
    <message>
        <source>The hotkey was refused by you or by the desktop.</source>
        <translation>تم رفض الاختصار من قِبلك أو من قِبل بيئة سطح المكتب.</translation>
    </message>
    <message>
        <source>Global hotkeys are not available on this system.</source>
        <translation>الاختصارات العامة غير متاحة على هذا النظام.</translation>
    </message>
    <message>
        <source>Click to try again.</source>
        <translation>انقر لإعادة المحاولة.</translation>
    </message>
    <message>
        <source>Assigned by the desktop: %1</source>
        <translation>عيّنت بيئة سطح المكتب: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetDateTime</name>
    <message>
        <source>Not set</source>
        <translation>غير معيّن</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>مسح</translation>
    </message>
    <message>
        <source>Enter a date and time from %1 to %2</source>
        <translation>أدخل تاريخًا ووقتًا من %1 إلى %2</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetLanguage</name>
    <message>
        <source>Follow the system</source>
        <translation>حسب النظام</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetMouseAction</name>
    <message>
        <source>None</source>
        <translation>بلا</translation>
    </message>
    <message>
        <source>Left Click</source>
        <translation>نقرة بالزر الأيسر</translation>
    </message>
    <message>
        <source>Left Double Click</source>
        <translation>نقرة مزدوجة بالزر الأيسر</translation>
    </message>
    <message>
        <source>Right Click</source>
        <translation>نقرة بالزر الأيمن</translation>
    </message>
    <message>
        <source>Right Double Click</source>
        <translation>نقرة مزدوجة بالزر الأيمن</translation>
    </message>
    <message>
        <source>Middle Click</source>
        <translation>نقرة بالزر الأوسط</translation>
    </message>
    <message>
        <source>Middle Double Click</source>
        <translation>نقرة مزدوجة بالزر الأوسط</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>عجلة التمرير</translation>
    </message>
    <message>
        <source>Left Drag</source>
        <translation>سحب بالزر الأيسر</translation>
    </message>
    <message>
        <source>Right Drag</source>
        <translation>سحب بالزر الأيمن</translation>
    </message>
    <message>
        <source>Middle Drag</source>
        <translation>سحب بالزر الأوسط</translation>
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
        <translation>إظهار</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetPath</name>
    <message>
        <source>Browse...</source>
        <translation>استعراض…</translation>
    </message>
    <message>
        <source>This folder does not exist.</source>
        <translation>هذا المجلّد غير موجود.</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>هذا ملف وليس مجلّدًا.</translation>
    </message>
    <message>
        <source>This is a folder, not a file.</source>
        <translation>هذا مجلّد وليس ملفًا.</translation>
    </message>
    <message>
        <source>The folder of this file does not exist.</source>
        <translation>مجلّد هذا الملف غير موجود.</translation>
    </message>
    <message>
        <source>This file does not exist.</source>
        <translation>هذا الملف غير موجود.</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetStringList</name>
    <message>
        <source>Add</source>
        <translation>إضافة</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>نقل لأعلى</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>نقل لأسفل</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigItemWidget</name>
    <message>
        <source>From %1 to %2</source>
        <translation>من %1 إلى %2</translation>
    </message>
    <message>
        <source>Enter a number from %1 to %2</source>
        <translation>أدخل رقمًا من %1 إلى %2</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigurationWindow</name>
    <message>
        <source>Confirm</source>
        <translation>تأكيد</translation>
    </message>
    <message>
        <source>Are you sure to restore current page default?</source>
        <translation>هل تريد بالتأكيد استعادة الإعدادات الافتراضية للصفحة الحالية؟</translation>
    </message>
    <message>
        <source>Are you sure to restore all default?</source>
        <translation>هل تريد بالتأكيد استعادة كل الإعدادات الافتراضية؟</translation>
    </message>
</context>
<context>
    <name>MtConf::DependencyNote</name>
    <message>
        <source>Needs “%1”</source>
        <translation>يتطلّب «%1»</translation>
    </message>
    <message>
        <source>Not with “%1”</source>
        <translation>غير متاح مع «%1»</translation>
    </message>
    <message>
        <source>Needs “%1”: %2</source>
        <translation>يتطلّب «%1»: %2</translation>
    </message>
</context>
<context>
    <name>MtConf::HistoryFeature</name>
    <message>
        <source>Removed 1 entry.</source>
        <translation>تمت إزالة إدخال واحد.</translation>
    </message>
    <message numerus="yes">
        <source>Removed %n entries.</source>
        <translation>
            <numerusform>لم تتم إزالة أي إدخال.</numerusform>
            <numerusform>تمت إزالة إدخال واحد.</numerusform>
            <numerusform>تمت إزالة إدخالين.</numerusform>
            <numerusform>تمت إزالة %n إدخالات.</numerusform>
            <numerusform>تمت إزالة %n إدخالًا.</numerusform>
            <numerusform>تمت إزالة %n إدخال.</numerusform>
        </translation>
    </message>
    <message>
        <source>Imported 1 setting.</source>
        <translation>تم استيراد إعداد واحد.</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n settings.</source>
        <translation>
            <numerusform>لم يتم استيراد أي إعداد.</numerusform>
            <numerusform>تم استيراد إعداد واحد.</numerusform>
            <numerusform>تم استيراد إعدادين.</numerusform>
            <numerusform>تم استيراد %n إعدادات.</numerusform>
            <numerusform>تم استيراد %n إعدادًا.</numerusform>
            <numerusform>تم استيراد %n إعداد.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Restored %n settings.</source>
        <translation>
            <numerusform>لم تتم استعادة أي إعداد.</numerusform>
            <numerusform>تمت استعادة إعداد واحد.</numerusform>
            <numerusform>تمت استعادة إعدادين.</numerusform>
            <numerusform>تمت استعادة %n إعدادات.</numerusform>
            <numerusform>تمت استعادة %n إعدادًا.</numerusform>
            <numerusform>تمت استعادة %n إعداد.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MtConf::ImportDialog</name>
    <message>
        <source>Import settings</source>
        <translation>استيراد الإعدادات</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; changes these settings. Those that are checked are imported.</source>
        <translation>يغيّر الملف «%1» هذه الإعدادات. يتم استيراد الإعدادات المحدّدة.</translation>
    </message>
    <message>
        <source>Settings in the file</source>
        <translation>الإعدادات في الملف</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>الإعداد</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>هنا</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>في الملف</translation>
    </message>
    <message>
        <source>%1, here: %2, in the file: %3</source>
        <translation>%1، هنا: %2، في الملف: %3</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>تحديد الكل</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>إلغاء تحديد الكل</translation>
    </message>
    <message>
        <source>Import (%1)</source>
        <translation>استيراد (%1)</translation>
    </message>
    <message>
        <source>Other settings</source>
        <translation>إعدادات أخرى</translation>
    </message>
    <message>
        <source>%1 (default)</source>
        <translation>%1 (افتراضي)</translation>
    </message>
    <message>
        <source>Does not exist</source>
        <translation>غير موجود</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>تمت إزالته</translation>
    </message>
    <message>
        <source>Entries of other versions, which are left out: %1</source>
        <translation>إدخالات من إصدارات أخرى تم تجاوزها: %1</translation>
    </message>
    <message>
        <source>Entries that cannot be read, which are left out: %1</source>
        <translation>إدخالات غير قابلة للقراءة تم تجاوزها: %1</translation>
    </message>
    <message>
        <source>Settings that stay on each computer, which are left out: %1</source>
        <translation>إعدادات خاصة بكل حاسوب تم تجاوزها: %1</translation>
    </message>
    <message>
        <source>Locked settings, which are left out: %1</source>
        <translation>إعدادات مقفلة تم تجاوزها: %1</translation>
    </message>
    <message>
        <source>Settings whose value is not accepted here: %1</source>
        <translation>إعدادات قيمتها غير مقبولة هنا: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::ImportExport</name>
    <message>
        <source>Import…</source>
        <translation>استيراد…</translation>
    </message>
    <message>
        <source>Import settings from a file</source>
        <translation>استيراد الإعدادات من ملف</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>تصدير…</translation>
    </message>
    <message>
        <source>Export the settings to a file</source>
        <translation>تصدير الإعدادات إلى ملف</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>الإعدادات (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>كل الملفات (*)</translation>
    </message>
    <message>
        <source>Export settings</source>
        <translation>تصدير الإعدادات</translation>
    </message>
    <message>
        <source>Import settings</source>
        <translation>استيراد الإعدادات</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; changes nothing here.</source>
        <translation>لا يغيّر الملف «%1» أي شيء هنا.</translation>
    </message>
    <message>
        <source>Settings that could not be imported: %1</source>
        <translation>إعدادات تعذّر استيرادها: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::InputConflicts</name>
    <message>
        <source>%1 is used by: %2</source>
        <translation>يُستخدم %1 في: %2</translation>
    </message>
    <message>
        <source>Also used by: %1</source>
        <translation>مستخدم أيضًا في: %1</translation>
    </message>
    <message>
        <source>%1 is needed for typing and editing.</source>
        <translation>المفاتيح %1 ضرورية للكتابة والتحرير.</translation>
    </message>
</context>
<context>
    <name>MtConf::InputOffer</name>
    <message>
        <source>Replace</source>
        <translation>استبدال</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>تبديل</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>الاحتفاظ بكليهما</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>MtConf::InputRegistry</name>
    <message>
        <source>another shortcut of this program</source>
        <translation>اختصار آخر في هذا البرنامج</translation>
    </message>
</context>
<context>
    <name>MtConf::LivePages</name>
    <message>
        <source>Changed elsewhere meanwhile. What you type replaces it.</source>
        <translation>تم تغييره في مكان آخر في هذه الأثناء. ما تكتبه يحل محل القيمة الجديدة.</translation>
    </message>
</context>
<context>
    <name>MtConf::ModernPageBuilder</name>
    <message>
        <source>, </source>
        <comment>between the chosen entries</comment>
        <translation>، </translation>
    </message>
    <message>
        <source>No modifier key</source>
        <translation>بلا مفتاح تعديل</translation>
    </message>
</context>
<context>
    <name>MtConf::ModernWindow</name>
    <message>
        <source>Reset this page…</source>
        <translation>استعادة هذه الصفحة…</translation>
    </message>
    <message>
        <source>Reset all settings…</source>
        <translation>استعادة كل الإعدادات…</translation>
    </message>
    <message>
        <source>More</source>
        <translation>المزيد</translation>
    </message>
</context>
<context>
    <name>MtConf::ResetQuestion</name>
    <message>
        <source>Reset this page?</source>
        <translation>هل تريد استعادة الإعدادات الافتراضية لهذه الصفحة؟</translation>
    </message>
    <message>
        <source>Reset all settings?</source>
        <translation>هل تريد استعادة كل الإعدادات الافتراضية؟</translation>
    </message>
    <message>
        <source>Reset 1 setting on this page?</source>
        <translation>هل تريد استعادة إعداد واحد في هذه الصفحة؟</translation>
    </message>
    <message>
        <source>Reset 1 setting on all pages?</source>
        <translation>هل تريد استعادة إعداد واحد في كل الصفحات؟</translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings on this page?</source>
        <translation>
            <numerusform>لا يوجد ما يُستعاد في هذه الصفحة.</numerusform>
            <numerusform>هل تريد استعادة إعداد واحد في هذه الصفحة؟</numerusform>
            <numerusform>هل تريد استعادة إعدادين في هذه الصفحة؟</numerusform>
            <numerusform>هل تريد استعادة %n إعدادات في هذه الصفحة؟</numerusform>
            <numerusform>هل تريد استعادة %n إعدادًا في هذه الصفحة؟</numerusform>
            <numerusform>هل تريد استعادة %n إعداد في هذه الصفحة؟</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings on all pages?</source>
        <translation>
            <numerusform>لا يوجد ما يُستعاد في أي صفحة.</numerusform>
            <numerusform>هل تريد استعادة إعداد واحد في كل الصفحات؟</numerusform>
            <numerusform>هل تريد استعادة إعدادين في كل الصفحات؟</numerusform>
            <numerusform>هل تريد استعادة %n إعدادات في كل الصفحات؟</numerusform>
            <numerusform>هل تريد استعادة %n إعدادًا في كل الصفحات؟</numerusform>
            <numerusform>هل تريد استعادة %n إعداد في كل الصفحات؟</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>استعادة</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>MtConf::RowReset</name>
    <message>
        <source>Show changed</source>
        <translation>عرض ما تم تغييره</translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>لا تغييرات</numerusform>
            <numerusform>تغيير واحد</numerusform>
            <numerusform>تغييران</numerusform>
            <numerusform>%n تغييرات</numerusform>
            <numerusform>%n تغييرًا</numerusform>
            <numerusform>%n تغيير</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>استعادة %1</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>استعادة</translation>
    </message>
    <message>
        <source>Copy key</source>
        <translation>نسخ المفتاح</translation>
    </message>
    <message>
        <source>Copy value</source>
        <translation>نسخ القيمة</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>تم تغييرها</translation>
    </message>
    <message>
        <source>Changed settings</source>
        <translation>الإعدادات التي تم تغييرها</translation>
    </message>
</context>
<context>
    <name>MtConf::RowWords</name>
    <message>
        <source>Default: %1</source>
        <translation>الافتراضي: %1</translation>
    </message>
    <message>
        <source>Not changed</source>
        <translation>لم يتغيّر</translation>
    </message>
    <message>
        <source>Changed on %1</source>
        <translation>تم تغييره في %1</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>تم تغييره</translation>
    </message>
    <message>
        <source>From the file %1</source>
        <translation>من الملف %1</translation>
    </message>
    <message>
        <source>Changed by another program or computer on %1</source>
        <translation>غيّره برنامج أو حاسوب آخر في %1</translation>
    </message>
    <message>
        <source>Changed by another program or computer</source>
        <translation>غيّره برنامج أو حاسوب آخر</translation>
    </message>
    <message>
        <source>Locked by the administrator</source>
        <translation>مقفل من قِبل المسؤول</translation>
    </message>
</context>
<context>
    <name>MtConf::SettingsFile</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>«%1» ليس ملفًا.</translation>
    </message>
    <message>
        <source>The settings could not be saved in &quot;%1&quot;.</source>
        <translation>تعذّر حفظ الإعدادات في «%1».</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not exist.</source>
        <translation>الملف «%1» غير موجود.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is larger than %2.</source>
        <translation>الملف «%1» أكبر من %2.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; could not be read.</source>
        <translation>تعذّرت قراءة الملف «%1».</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is empty.</source>
        <translation>الملف «%1» فارغ.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged: its content is nested too deeply.</source>
        <translation>الملف «%1» تالف: مستويات محتواه متداخلة بعمق زائد.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged or not complete.</source>
        <translation>الملف «%1» تالف أو غير مكتمل.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not contain settings.</source>
        <translation>لا يحتوي الملف «%1» على إعدادات.</translation>
    </message>
    <message>
        <source>%1 settings</source>
        <comment>name of a file</comment>
        <translation>إعدادات %1</translation>
    </message>
</context>
<context>
    <name>MtConf::SettingsFind</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 من %2</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>البحث في الإعدادات</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>مسح البحث</translation>
    </message>
    <message>
        <source>Show more (%1)</source>
        <translation>عرض المزيد (%1)</translation>
    </message>
    <message>
        <source>No setting matches “%1”</source>
        <translation>لا يوجد إعداد يطابق «%1»</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>النتائج</translation>
    </message>
    <message>
        <source>Enter opens the page</source>
        <translation>يفتح Enter الصفحة</translation>
    </message>
</context>
<context>
    <name>MtConf::UndoBar</name>
    <message>
        <source>Undo</source>
        <translation>تراجع</translation>
    </message>
</context>
<context>
    <name>MtConf::ValueInWords</name>
    <message>
        <source>Yes</source>
        <translation>نعم</translation>
    </message>
    <message>
        <source>No</source>
        <translation>لا</translation>
    </message>
    <message>
        <source>None</source>
        <translation>بلا</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>غير معيّن</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>فارغ</translation>
    </message>
    <message>
        <source>%1 px</source>
        <translation>%1 بكسل</translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation>%1 نقطة</translation>
    </message>
    <message>
        <source>bold</source>
        <translation>عريض</translation>
    </message>
    <message>
        <source>italic</source>
        <translation>مائل</translation>
    </message>
    <message>
        <source>underlined</source>
        <translation>مسطّر</translation>
    </message>
</context>
<context>
    <name>MtConf::WindowIdentity</name>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Settings — %1</source>
        <translation>الإعدادات – %1</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Cannot set left-click separately</source>
        <translation>لا يمكن تعيين النقرة بالزر الأيسر وحدها</translation>
    </message>
    <message>
        <source>No set</source>
        <translation>غير معيّن</translation>
    </message>
    <message>
        <source>Conflict with %1</source>
        <translation>تعارض مع «%1»</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> مللي ثانية</translation>
    </message>
    <message>
        <source> s</source>
        <translation> ثانية</translation>
    </message>
    <message>
        <source> min</source>
        <translation> دقيقة</translation>
    </message>
    <message>
        <source> h</source>
        <translation> ساعة</translation>
    </message>
    <message>
        <source> d</source>
        <translation> يوم</translation>
    </message>
</context>
</TS>
