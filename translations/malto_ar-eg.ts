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
