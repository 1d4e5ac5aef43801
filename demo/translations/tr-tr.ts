<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR" sourcelanguage="en_US">
<context>
    <name>BoundValueModel</name>
    <message>
        <source>changed</source>
        <translation>değişti</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Ayar</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Değer</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Durum</translation>
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
        <translation>Kitaplığın günlüğü burada görünür.</translation>
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
        <translation>Günlük</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ayarlar…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Kaydet</translation>
    </message>
    <message>
        <source>Restore all</source>
        <translation>Tümünü Geri Yükle</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Dosya</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>&amp;Ayarlar…</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>&amp;Kaydet</translation>
    </message>
    <message>
        <source>&amp;Restore all…</source>
        <translation>Tümünü &amp;Geri Yükle…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Çık</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Tema</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Açık</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Koyu</translation>
    </message>
    <message>
        <source>Variables — %1 of %2 changed</source>
        <translation>Değişkenler – %1/%2 değişti</translation>
    </message>
    <message>
        <source>Hotkey pressed: %1 (%2)</source>
        <translation>Kısayol tuşuna basıldı: %1 (%2)</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <translation>%1 konumuna kaydedildi</translation>
    </message>
    <message>
        <source>Could not write %1</source>
        <translation>%1 yazılamadı</translation>
    </message>
    <message>
        <source>Restore the defaults of all settings and the presets of the profiles?</source>
        <translation>Tüm ayarların varsayılanları ve hazır profiller geri yüklensin mi?</translation>
    </message>
    <message>
        <source>Follow the system</source>
        <translation>Sistemi takip et</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigurationWindow</name>
    <message>
        <source>General</source>
        <translation>Genel</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Görünüm</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Yakalama</translation>
    </message>
    <message>
        <source>Hotkeys</source>
        <translation>Kısayollar</translation>
    </message>
    <message>
        <source>Mouse</source>
        <translation>Fare</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Çıktı</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profiller</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistem</translation>
    </message>
    <message>
        <source>Stored data</source>
        <translation>Kayıtlı veriler</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Güncellemeler</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Seçim</translation>
    </message>
    <message>
        <source>Magnifier</source>
        <translation>Büyüteç</translation>
    </message>
    <message>
        <source>Size label</source>
        <translation>Boyut etiketi</translation>
    </message>
    <message>
        <source>Snapping</source>
        <translation>Tutturma</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Araçlar</translation>
    </message>
    <message>
        <source>Pinned pictures</source>
        <translation>Sabitlenen resimler</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Görüntü</translation>
    </message>
    <message>
        <source>After a capture</source>
        <translation>Yakalamadan sonra</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Metinler</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>Sayılar</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>Seçenekler</translation>
    </message>
    <message>
        <source>In this program</source>
        <translation>Bu uygulamada</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dosyalar</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Ağ</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>Screen</source>
        <translation>Ekran</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Pencere</translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation>Küçük resim</translation>
    </message>
    <message>
        <source>A profile needs a name.</source>
        <translation>Profilin bir adı olmalıdır.</translation>
    </message>
    <message>
        <source>A name can have at most %1 characters.</source>
        <translation>Ad en fazla %1 karakter olabilir.</translation>
    </message>
    <message>
        <source>Another profile has this name.</source>
        <translation>Başka bir profil bu adı kullanıyor.</translation>
    </message>
    <message>
        <source>New profile</source>
        <translation>Yeni profil</translation>
    </message>
    <message>
        <source>New profile %1</source>
        <translation>Yeni profil %1</translation>
    </message>
</context>
<context>
    <name>ProfilesPage</name>
    <message>
        <source>Profiles</source>
        <translation>Profiller</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ekle</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Restore presets</source>
        <translation>Hazır Profilleri Geri Yükle</translation>
    </message>
    <message>
        <source>There is no profile.
Add one, or restore the presets.</source>
        <translation>Profil yok.
Bir profil ekleyin ya da hazır profilleri geri yükleyin.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Değiştir</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Genişlik</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Yükseklik</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Çerçeve</translation>
    </message>
    <message>
        <source>Include the mouse pointer</source>
        <translation>Fare imlecini dahil et</translation>
    </message>
    <message>
        <source>A preset, unchanged.</source>
        <translation>Hazır profil, değiştirilmemiş.</translation>
    </message>
    <message>
        <source>Yours, or a changed preset.</source>
        <translation>Sizin profiliniz ya da değiştirilmiş hazır profil.</translation>
    </message>
    <message>
        <source>“%1” keeps its name. %2</source>
        <translation>“%1” adını koruyor. %2</translation>
    </message>
    <message>
        <source>Delete the profile “%1”?</source>
        <translation>“%1” profili silinsin mi?</translation>
    </message>
    <message>
        <source>Restore the presets? This deletes your own profiles and undoes your changes of the presets.</source>
        <translation>Hazır profiller geri yüklensin mi? Kendi profilleriniz silinir, hazır profillerdeki değişiklikleriniz geri alınır.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Language</source>
        <translation>Dil</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Oturum açıldığında başlat</translation>
    </message>
    <message>
        <source>Show icon in the menu bar</source>
        <translation>Menü çubuğunda simge göster</translation>
    </message>
    <message>
        <source>Play a sound after a capture</source>
        <translation>Yakalamadan sonra ses çal</translation>
    </message>
    <message>
        <source>Show tips</source>
        <translation>İpuçlarını göster</translation>
    </message>
    <message>
        <source>Recent captures in the menu</source>
        <translation>Menüdeki son yakalamalar</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Güncellemeleri denetle</translation>
    </message>
    <message>
        <source>Check interval (days)</source>
        <translation>Denetleme aralığı (gün)</translation>
    </message>
    <message>
        <source>Offer beta versions</source>
        <translation>Beta sürümlerini öner</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Açık</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Koyu</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Çerçeve</translation>
    </message>
    <message>
        <source>Width of the frame</source>
        <translation>Çerçeve kalınlığı</translation>
    </message>
    <message>
        <source>Shade outside</source>
        <translation>Dış karartma</translation>
    </message>
    <message>
        <source>Show magnifier</source>
        <translation>Büyüteci göster</translation>
    </message>
    <message>
        <source>Magnification</source>
        <translation>Büyütme</translation>
    </message>
    <message>
        <source>Show size beside the selection</source>
        <translation>Boyutu seçimin yanında göster</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Yazı tipi</translation>
    </message>
    <message>
        <source>Delay before a capture</source>
        <translation>Yakalamadan önce bekleme</translation>
    </message>
    <message>
        <source>Count down on the screen</source>
        <translation>Ekranda geri sayım</translation>
    </message>
    <message>
        <source>Include the mouse pointer</source>
        <translation>Fare imlecini dahil et</translation>
    </message>
    <message>
        <source>Include the shadow of windows</source>
        <translation>Pencere gölgelerini dahil et</translation>
    </message>
    <message>
        <source>Freeze the screen while selecting</source>
        <translation>Seçim sırasında ekranı dondur</translation>
    </message>
    <message>
        <source>Frames per second of videos</source>
        <translation>Videolarda saniyedeki kare</translation>
    </message>
    <message>
        <source>Snap to</source>
        <translation>Tutturma hedefi</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Pencereler</translation>
    </message>
    <message>
        <source>Screen edges</source>
        <translation>Ekran kenarları</translation>
    </message>
    <message>
        <source>Guides</source>
        <translation>Kılavuzlar</translation>
    </message>
    <message>
        <source>Last selection</source>
        <translation>Son seçim</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Uzaklık</translation>
    </message>
    <message>
        <source>Hotkeys in full-screen applications</source>
        <translation>Tam ekran uygulamalarda kısayollar</translation>
    </message>
    <message>
        <source>Repeat delay</source>
        <translation>Yineleme gecikmesi</translation>
    </message>
    <message>
        <source>Capture an area</source>
        <translation>Alan yakala</translation>
    </message>
    <message>
        <source>Capture a window</source>
        <translation>Pencere yakala</translation>
    </message>
    <message>
        <source>Capture the screen</source>
        <translation>Ekranı yakala</translation>
    </message>
    <message>
        <source>Pin the clipboard</source>
        <translation>Panoyu sabitle</translation>
    </message>
    <message>
        <source>Double-click to finish</source>
        <translation>Çift tıklamayla bitir</translation>
    </message>
    <message>
        <source>Invert the wheel</source>
        <translation>Tekerlek yönünü ters çevir</translation>
    </message>
    <message>
        <source>Movement that begins a drag</source>
        <translation>Sürüklemeyi başlatan hareket</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Yakınlaştırma</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opaklık</translation>
    </message>
    <message>
        <source>Show the menu</source>
        <translation>Menüyü göster</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopyala</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Gizle</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Taşı</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>Çiz</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Biçim</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Kalite</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Boyut</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Filigran</translation>
    </message>
    <message>
        <source>Copy it</source>
        <translation>Kopyala</translation>
    </message>
    <message>
        <source>Save it</source>
        <translation>Kaydet</translation>
    </message>
    <message>
        <source>Open it in the editor</source>
        <translation>Düzenleyicide aç</translation>
    </message>
    <message>
        <source>Allow simple global hotkeys</source>
        <translation>Basit genel kısayol tuşlarına izin ver</translation>
    </message>
    <message>
        <source>Show expert settings</source>
        <translation>Gelişmiş ayarları göster</translation>
    </message>
    <message>
        <source>Steps that can be undone</source>
        <translation>Geri alınabilen adımlar</translation>
    </message>
    <message>
        <source>Bring pinned pictures back at start</source>
        <translation>Sabitlenen resimleri başlangıçta geri getir</translation>
    </message>
    <message>
        <source>Cache (MB)</source>
        <translation>Önbellek (MB)</translation>
    </message>
    <message>
        <source>Threads that compress</source>
        <translation>Sıkıştırma iş parçacıkları</translation>
    </message>
    <message>
        <source>Draw with the graphics card</source>
        <translation>Ekran kartıyla çiz</translation>
    </message>
    <message>
        <source>Show times of drawing</source>
        <translation>Çizim sürelerini göster</translation>
    </message>
    <message>
        <source>Write a log file</source>
        <translation>Günlük dosyası yaz</translation>
    </message>
    <message>
        <source>Open the settings</source>
        <translation>Ayarları aç</translation>
    </message>
    <message>
        <source>Save now</source>
        <translation>Şimdi kaydet</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Çık</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Yazar</translation>
    </message>
    <message>
        <source>Your name</source>
        <translation>Adınız</translation>
    </message>
    <message>
        <source>Pictures contain it if the details include the author.</source>
        <translation>Ayrıntılar yazarı içeriyorsa resimlere eklenir.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Not</translation>
    </message>
    <message>
        <source>Token for uploads</source>
        <translation>Karşıya yükleme jetonu</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Etiketler</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Klasör</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logo</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg)</source>
        <translation>Resimler (*.png *.svg)</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>Günlük dosyası</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Parlaklık</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Kenar boşluğu</translation>
    </message>
    <message>
        <source>Save every</source>
        <translation>Kaydetme aralığı</translation>
    </message>
    <message>
        <source>Remind me</source>
        <translation>Anımsatma zamanı</translation>
    </message>
    <message>
        <source>Name of the file</source>
        <translation>Dosya adı</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Tarih ve saat</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numara</translation>
    </message>
    <message>
        <source>Title of the window</source>
        <translation>Pencere başlığı</translation>
    </message>
    <message>
        <source>Details in the file</source>
        <translation>Dosyadaki ayrıntılar</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Konum</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>Vekil sunucu kullan</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Ana makine</translation>
    </message>
    <message>
        <source>A host has no blanks.</source>
        <translation>Ana makine adında boşluk olamaz.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Bağlantı noktası</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source> s</source>
        <translation> sn</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Follow the system</source>
        <translation>Sistemi takip et</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Renk</translation>
    </message>
    <message>
        <source>Pick a color</source>
        <translation>Ekrandan renk al</translation>
    </message>
</context>
<context>
    <name>StoredDataPage</name>
    <message>
        <source>Stored data</source>
        <translation>Kayıtlı veriler</translation>
    </message>
    <message>
        <source>Nothing has been changed yet.</source>
        <translation>Henüz hiçbir şey değiştirilmedi.</translation>
    </message>
</context>
<context>
    <name>WatermarkEditor</name>
    <message>
        <source>Opacity</source>
        <translation>Opaklık</translation>
    </message>
    <message>
        <source>None if empty</source>
        <translation>Boşsa yok</translation>
    </message>
</context>
<context>
    <name>takePictures</name>
    <message>
        <source>Cannot write %1</source>
        <translation>%1 yazılamıyor</translation>
    </message>
</context>
</TS>
