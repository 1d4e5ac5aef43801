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
    <message>
        <source>Another program may use this hotkey.</source>
        <translation>Bu kısayol tuşunu başka bir program kullanıyor olabilir.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Yeniden dene</translation>
    </message>
    <message>
        <source>The desktop has not answered yet.</source>
        <translation>Masaüstü ortamı henüz yanıt vermedi.</translation>
    </message>
    <message>
        <source>The hotkey has not been set up yet.</source>
        <translation>Kısayol tuşu henüz ayarlanmadı.</translation>
    </message>
    <message>
        <source>A global hotkey is one key, alone or with modifiers.</source>
        <translation>Genel kısayol tuşu, tek başına veya değiştirici tuşlarla birlikte tek bir tuştur.</translation>
    </message>
    <message>
        <source>This keyboard does not have the key.</source>
        <translation>Bu klavyede bu tuş yok.</translation>
    </message>
    <message>
        <source>Another program uses this hotkey.</source>
        <translation>Bu kısayol tuşunu başka bir program kullanıyor.</translation>
    </message>
    <message>
        <source>The hotkey was refused by you or by the desktop.</source>
        <translation>Kısayol tuşu sizin veya masaüstü ortamının tarafından reddedildi.</translation>
    </message>
    <message>
        <source>Global hotkeys are not available on this system.</source>
        <translation>Genel kısayol tuşları bu sistemde kullanılamıyor.</translation>
    </message>
    <message>
        <source>Click to try again.</source>
        <translation>Yeniden denemek için tıklayın.</translation>
    </message>
    <message>
        <source>Assigned by the desktop: %1</source>
        <translation>Masaüstü ortamının atadığı: %1</translation>
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
    <name>MtConf::DependencyNote</name>
    <message>
        <source>Needs “%1”</source>
        <translation>“%1” gerekir</translation>
    </message>
    <message>
        <source>Not with “%1”</source>
        <translation>“%1” ile kullanılamaz</translation>
    </message>
    <message>
        <source>Needs “%1”: %2</source>
        <translation>“%1” gerekir: %2</translation>
    </message>
</context>
<context>
    <name>MtConf::HistoryFeature</name>
    <message>
        <source>Removed 1 entry.</source>
        <translation>1 giriş kaldırıldı.</translation>
    </message>
    <message numerus="yes">
        <source>Removed %n entries.</source>
        <translation>
            <numerusform>%n giriş kaldırıldı.</numerusform>
        </translation>
    </message>
    <message>
        <source>Imported 1 setting.</source>
        <translation>1 ayar içe aktarıldı.</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n settings.</source>
        <translation>
            <numerusform>%n ayar içe aktarıldı.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Restored %n settings.</source>
        <translation>
            <numerusform>%n ayar sıfırlandı.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MtConf::ImportDialog</name>
    <message>
        <source>Import settings</source>
        <translation>Ayarları içe aktar</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; changes these settings. Those that are checked are imported.</source>
        <translation>“%1” dosyası bu ayarları değiştirir. İşaretli olanlar içe aktarılır.</translation>
    </message>
    <message>
        <source>Settings in the file</source>
        <translation>Dosyadaki ayarlar</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Ayar</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Burada</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>Dosyada</translation>
    </message>
    <message>
        <source>%1, here: %2, in the file: %3</source>
        <translation>%1, burada: %2, dosyada: %3</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Tümünü seç</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Hiçbirini seçme</translation>
    </message>
    <message>
        <source>Import (%1)</source>
        <translation>İçe aktar (%1)</translation>
    </message>
    <message>
        <source>Other settings</source>
        <translation>Diğer ayarlar</translation>
    </message>
    <message>
        <source>%1 (default)</source>
        <translation>%1 (varsayılan)</translation>
    </message>
    <message>
        <source>Does not exist</source>
        <translation>Yok</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Kaldırıldı</translation>
    </message>
    <message>
        <source>Entries of other versions, which are left out: %1</source>
        <translation>Atlanan başka sürüm girişleri: %1</translation>
    </message>
    <message>
        <source>Entries that cannot be read, which are left out: %1</source>
        <translation>Atlanan okunamayan girişler: %1</translation>
    </message>
    <message>
        <source>Settings that stay on each computer, which are left out: %1</source>
        <translation>Atlanan, her bilgisayara özgü ayarlar: %1</translation>
    </message>
    <message>
        <source>Locked settings, which are left out: %1</source>
        <translation>Atlanan kilitli ayarlar: %1</translation>
    </message>
    <message>
        <source>Settings whose value is not accepted here: %1</source>
        <translation>Değeri burada kabul edilmeyen ayarlar: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::ImportExport</name>
    <message>
        <source>Import…</source>
        <translation>İçe aktar…</translation>
    </message>
    <message>
        <source>Import settings from a file</source>
        <translation>Ayarları bir dosyadan içe aktar</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Dışa aktar…</translation>
    </message>
    <message>
        <source>Export the settings to a file</source>
        <translation>Ayarları bir dosyaya aktar</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>Ayarlar (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tüm dosyalar (*)</translation>
    </message>
    <message>
        <source>Export settings</source>
        <translation>Ayarları dışa aktar</translation>
    </message>
    <message>
        <source>Import settings</source>
        <translation>Ayarları içe aktar</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; changes nothing here.</source>
        <translation>“%1” dosyası burada hiçbir şeyi değiştirmiyor.</translation>
    </message>
    <message>
        <source>Settings that could not be imported: %1</source>
        <translation>İçe aktarılamayan ayarlar: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::InputConflicts</name>
    <message>
        <source>%1 is used by: %2</source>
        <translation>%1 şurada kullanılıyor: %2</translation>
    </message>
    <message>
        <source>Also used by: %1</source>
        <translation>Şurada da kullanılıyor: %1</translation>
    </message>
    <message>
        <source>%1 is needed for typing and editing.</source>
        <translation>%1, yazmak ve düzenlemek için gereklidir.</translation>
    </message>
</context>
<context>
    <name>MtConf::InputOffer</name>
    <message>
        <source>Replace</source>
        <translation>Değiştir</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Takas et</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>İkisini de koru</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>MtConf::InputRegistry</name>
    <message>
        <source>another shortcut of this program</source>
        <translation>bu programın başka bir kısayol tuşu</translation>
    </message>
</context>
<context>
    <name>MtConf::LivePages</name>
    <message>
        <source>Changed elsewhere meanwhile. What you type replaces it.</source>
        <translation>Bu arada başka bir yerde değiştirildi. Yazdığınız, yeni değerin yerini alır.</translation>
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
        <translation>Değiştirici tuş yok</translation>
    </message>
</context>
<context>
    <name>MtConf::ModernWindow</name>
    <message>
        <source>Reset this page…</source>
        <translation>Bu sayfayı sıfırla…</translation>
    </message>
    <message>
        <source>Reset all settings…</source>
        <translation>Tüm ayarları sıfırla…</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Daha fazla</translation>
    </message>
</context>
<context>
    <name>MtConf::ResetQuestion</name>
    <message>
        <source>Reset this page?</source>
        <translation>Bu sayfa sıfırlansın mı?</translation>
    </message>
    <message>
        <source>Reset all settings?</source>
        <translation>Tüm ayarlar sıfırlansın mı?</translation>
    </message>
    <message>
        <source>Reset 1 setting on this page?</source>
        <translation>Bu sayfadaki 1 ayar sıfırlansın mı?</translation>
    </message>
    <message>
        <source>Reset 1 setting on all pages?</source>
        <translation>Tüm sayfalardaki 1 ayar sıfırlansın mı?</translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings on this page?</source>
        <translation>
            <numerusform>Bu sayfadaki %n ayar sıfırlansın mı?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings on all pages?</source>
        <translation>
            <numerusform>Tüm sayfalardaki %n ayar sıfırlansın mı?</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Sıfırla</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>MtConf::RowReset</name>
    <message>
        <source>Show changed</source>
        <translation>Değişenleri göster</translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n değişti</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>Sıfırla: %1</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Sıfırla</translation>
    </message>
    <message>
        <source>Copy key</source>
        <translation>Anahtarı kopyala</translation>
    </message>
    <message>
        <source>Copy value</source>
        <translation>Değeri kopyala</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Değişti</translation>
    </message>
    <message>
        <source>Changed settings</source>
        <translation>Değiştirilen ayarlar</translation>
    </message>
</context>
<context>
    <name>MtConf::RowWords</name>
    <message>
        <source>Default: %1</source>
        <translation>Varsayılan: %1</translation>
    </message>
    <message>
        <source>Not changed</source>
        <translation>Değişmedi</translation>
    </message>
    <message>
        <source>Changed on %1</source>
        <translation>Değiştirilme: %1</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Değişti</translation>
    </message>
    <message>
        <source>From the file %1</source>
        <translation>%1 dosyasından</translation>
    </message>
    <message>
        <source>Changed by another program or computer on %1</source>
        <translation>Başka bir program veya bilgisayar değiştirdi: %1</translation>
    </message>
    <message>
        <source>Changed by another program or computer</source>
        <translation>Başka bir program veya bilgisayar değiştirdi</translation>
    </message>
    <message>
        <source>Locked by the administrator</source>
        <translation>Yönetici tarafından kilitlendi</translation>
    </message>
</context>
<context>
    <name>MtConf::SettingsFile</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>“%1” bir dosya değil.</translation>
    </message>
    <message>
        <source>The settings could not be saved in &quot;%1&quot;.</source>
        <translation>Ayarlar “%1” konumuna kaydedilemedi.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not exist.</source>
        <translation>“%1” dosyası yok.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is larger than %2.</source>
        <translation>“%1” dosyası %2 sınırından büyük.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; could not be read.</source>
        <translation>“%1” dosyası okunamadı.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is empty.</source>
        <translation>“%1” dosyası boş.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged: its content is nested too deeply.</source>
        <translation>“%1” dosyası bozuk: içeriği fazla derin iç içe geçmiş.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged or not complete.</source>
        <translation>“%1” dosyası bozuk veya eksik.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not contain settings.</source>
        <translation>“%1” dosyası ayar içermiyor.</translation>
    </message>
    <message>
        <source>%1 settings</source>
        <comment>name of a file</comment>
        <translation>%1 ayarları</translation>
    </message>
</context>
<context>
    <name>MtConf::SettingsFind</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>Ayarlarda ara</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Aramayı temizle</translation>
    </message>
    <message>
        <source>Show more (%1)</source>
        <translation>Daha fazla göster (%1)</translation>
    </message>
    <message>
        <source>No setting matches “%1”</source>
        <translation>“%1” ile eşleşen ayar yok</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Sonuçlar</translation>
    </message>
    <message>
        <source>Enter opens the page</source>
        <translation>Enter sayfayı açar</translation>
    </message>
</context>
<context>
    <name>MtConf::UndoBar</name>
    <message>
        <source>Undo</source>
        <translation>Geri al</translation>
    </message>
</context>
<context>
    <name>MtConf::ValueInWords</name>
    <message>
        <source>Yes</source>
        <translation>Evet</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Hayır</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Yok</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Ayarlanmadı</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Boş</translation>
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
        <translation>kalın</translation>
    </message>
    <message>
        <source>italic</source>
        <translation>italik</translation>
    </message>
    <message>
        <source>underlined</source>
        <translation>altı çizili</translation>
    </message>
</context>
<context>
    <name>MtConf::WindowIdentity</name>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>Settings — %1</source>
        <translation>Ayarlar – %1</translation>
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
