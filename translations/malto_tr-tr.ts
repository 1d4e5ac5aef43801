<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR" sourcelanguage="en_US">
<context>
    <name>ColorSelectButton</name>
    <message>
        <source>None</source>
        <translation>Yok</translation>
    </message>
</context>
<context>
    <name>ConfigurationWindow</name>
    <message>
        <source>Quorvi Configuration</source>
        <translation>Quorvi Ayarları</translation>
    </message>
    <message>
        <source>Restore All Default</source>
        <translation>Tümünü Geri Yükle</translation>
    </message>
    <message>
        <source>Restore Default</source>
        <translation>Varsayılanları Geri Yükle</translation>
    </message>
</context>
<context>
    <name>KeySequenceEdit</name>
    <message>
        <source>Press shortcut key</source>
        <translation>Kısayol tuşuna basın</translation>
    </message>
    <message>
        <source>Clear shortcut key</source>
        <translation>Kısayol tuşunu temizle</translation>
    </message>
    <message>
        <source>Shortkey [%1] is too simple.
To avoid conflicts with other functions and prevent accidental activations, please set a more complex hotkey combination.

If you need to set simple shortcuts, go to the [System] Settings page and check [Allow simple global hotkeys].</source>
        <translation>[%1] kısayol tuşu çok basit.
Diğer işlevlerle çakışmaları ve yanlışlıkla etkinleştirmeyi önlemek için lütfen daha karmaşık bir tuş birleşimi ayarlayın.

Basit kısayol tuşları ayarlamanız gerekiyorsa [Sistem] ayarları sayfasına gidin ve [Basit genel kısayol tuşlarına izin ver] seçeneğini işaretleyin.</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfDefWidgetQKeySequence</name>
    <message>
        <source>Not set</source>
        <translation>Ayarlanmadı</translation>
    </message>
    <message>
        <source>Setup failed, the hotkey may be occupied. Click to try setup again.</source>
        <translation>Ayarlanamadı, kısayol tuşu kullanımda olabilir. Yeniden denemek için tıklayın.</translation>
    </message>
    <message>
        <source>Setup success.</source>
        <translation>Başarıyla ayarlandı.</translation>
    </message>
    <message>
        <source>Disabled.</source>
        <translation>Devre dışı.</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetDateTime</name>
    <message>
        <source>Not set</source>
        <translation>Ayarlanmadı</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Temizle</translation>
    </message>
    <message>
        <source>Enter a date and time from %1 to %2</source>
        <translation>%1 ile %2 arasında bir tarih ve saat girin</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetLanguage</name>
    <message>
        <source>Follow the system</source>
        <translation>Sistemi takip et</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetMouseAction</name>
    <message>
        <source>None</source>
        <translation>Yok</translation>
    </message>
    <message>
        <source>Left Click</source>
        <translation>Sol tıklama</translation>
    </message>
    <message>
        <source>Left Double Click</source>
        <translation>Sol çift tıklama</translation>
    </message>
    <message>
        <source>Right Click</source>
        <translation>Sağ tıklama</translation>
    </message>
    <message>
        <source>Right Double Click</source>
        <translation>Sağ çift tıklama</translation>
    </message>
    <message>
        <source>Middle Click</source>
        <translation>Orta tıklama</translation>
    </message>
    <message>
        <source>Middle Double Click</source>
        <translation>Orta çift tıklama</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Tekerlek</translation>
    </message>
    <message>
        <source>Left Drag</source>
        <translation>Sol sürükleme</translation>
    </message>
    <message>
        <source>Right Drag</source>
        <translation>Sağ sürükleme</translation>
    </message>
    <message>
        <source>Middle Drag</source>
        <translation>Orta sürükleme</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetPassword</name>
    <message>
        <source>Show</source>
        <translation>Göster</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetPath</name>
    <message>
        <source>Browse...</source>
        <translation>Göz at…</translation>
    </message>
    <message>
        <source>This folder does not exist.</source>
        <translation>Bu klasör yok.</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>Bu bir klasör değil, dosya.</translation>
    </message>
    <message>
        <source>This is a folder, not a file.</source>
        <translation>Bu bir dosya değil, klasör.</translation>
    </message>
    <message>
        <source>The folder of this file does not exist.</source>
        <translation>Bu dosyanın klasörü yok.</translation>
    </message>
    <message>
        <source>This file does not exist.</source>
        <translation>Bu dosya yok.</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetStringList</name>
    <message>
        <source>Add</source>
        <translation>Ekle</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Kaldır</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Yukarı taşı</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Aşağı taşı</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigItemWidget</name>
    <message>
        <source>From %1 to %2</source>
        <translation>%1 ile %2 arası</translation>
    </message>
    <message>
        <source>Enter a number from %1 to %2</source>
        <translation>%1 ile %2 arasında bir sayı girin</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigurationWindow</name>
    <message>
        <source>Confirm</source>
        <translation>Onayla</translation>
    </message>
    <message>
        <source>Are you sure to restore current page default?</source>
        <translation>Geçerli sayfanın varsayılan ayarlarını geri yüklemek istediğinizden emin misiniz?</translation>
    </message>
    <message>
        <source>Are you sure to restore all default?</source>
        <translation>Tüm varsayılan ayarları geri yüklemek istediğinizden emin misiniz?</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Cannot set left-click separately</source>
        <translation>Sol tıklama tek başına ayarlanamaz</translation>
    </message>
    <message>
        <source>No set</source>
        <translation>Ayarlanmadı</translation>
    </message>
    <message>
        <source>Conflict with %1</source>
        <translation>“%1” ile çakışıyor</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source> s</source>
        <translation> sn</translation>
    </message>
    <message>
        <source> min</source>
        <translation> dk</translation>
    </message>
    <message>
        <source> h</source>
        <translation> sa</translation>
    </message>
    <message>
        <source> d</source>
        <translation> gün</translation>
    </message>
</context>
</TS>
