<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
<context>
    <name>BoundValueModel</name>
    <message>
        <source>changed</source>
        <translation>已變更</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>設定項目</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>State</source>
        <translation>狀態</translation>
    </message>
    <message>
        <source>%1, %2 px</source>
        <translation>%1，%2 像素</translation>
    </message>
</context>
<context>
    <name>LogPane</name>
    <message>
        <source>What the library logs appears here.</source>
        <translation>程式庫的記錄會顯示在這裡。</translation>
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
        <translation>記錄</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>儲存</translation>
    </message>
    <message>
        <source>Restore all</source>
        <translation>全部還原</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>檔案(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>設定(&amp;S)…</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>儲存(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Restore all…</source>
        <translation>全部還原(&amp;R)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>結束(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>佈景主題(&amp;T)</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>淺色</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>Variables — %1 of %2 changed</source>
        <translation>變數 — 已變更 %1/%2</translation>
    </message>
    <message>
        <source>Hotkey pressed: %1 (%2)</source>
        <translation>已按下快速鍵：%1（%2）</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <translation>已儲存至 %1</translation>
    </message>
    <message>
        <source>Could not write %1</source>
        <translation>無法寫入 %1</translation>
    </message>
    <message>
        <source>Restore the defaults of all settings and the presets of the profiles?</source>
        <translation>要將所有設定還原為預設值，並還原內建設定檔嗎？</translation>
    </message>
    <message>
        <source>Follow the system</source>
        <translation>跟隨系統</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigurationWindow</name>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外觀</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>擷取</translation>
    </message>
    <message>
        <source>Hotkeys</source>
        <translation>快速鍵</translation>
    </message>
    <message>
        <source>Mouse</source>
        <translation>滑鼠</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>輸出</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>設定檔</translation>
    </message>
    <message>
        <source>System</source>
        <translation>系統</translation>
    </message>
    <message>
        <source>Stored data</source>
        <translation>儲存的資料</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>選取範圍</translation>
    </message>
    <message>
        <source>Magnifier</source>
        <translation>放大鏡</translation>
    </message>
    <message>
        <source>Size label</source>
        <translation>尺寸標籤</translation>
    </message>
    <message>
        <source>Snapping</source>
        <translation>貼齊</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Pinned pictures</source>
        <translation>釘選的圖片</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>影像</translation>
    </message>
    <message>
        <source>After a capture</source>
        <translation>擷取後</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>數字</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>選項</translation>
    </message>
    <message>
        <source>In this program</source>
        <translation>在此應用程式中</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>網路</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>Screen</source>
        <translation>螢幕</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>視窗</translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation>縮圖</translation>
    </message>
    <message>
        <source>A profile needs a name.</source>
        <translation>設定檔需要名稱。</translation>
    </message>
    <message>
        <source>A name can have at most %1 characters.</source>
        <translation>名稱最多 %1 個字元。</translation>
    </message>
    <message>
        <source>Another profile has this name.</source>
        <translation>已有同名的設定檔。</translation>
    </message>
    <message>
        <source>New profile</source>
        <translation>新設定檔</translation>
    </message>
    <message>
        <source>New profile %1</source>
        <translation>新設定檔 %1</translation>
    </message>
</context>
<context>
    <name>ProfilesPage</name>
    <message>
        <source>Profiles</source>
        <translation>設定檔</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>新增</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
    <message>
        <source>Restore presets</source>
        <translation>還原內建設定檔</translation>
    </message>
    <message>
        <source>There is no profile.
Add one, or restore the presets.</source>
        <translation>沒有設定檔。
請新增一個，或還原內建設定檔。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重新命名</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>寬度</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>邊框</translation>
    </message>
    <message>
        <source>Include the mouse pointer</source>
        <translation>包含滑鼠指標</translation>
    </message>
    <message>
        <source>A preset, unchanged.</source>
        <translation>內建設定檔，未變更。</translation>
    </message>
    <message>
        <source>Yours, or a changed preset.</source>
        <translation>自訂的設定檔，或已變更的內建設定檔。</translation>
    </message>
    <message>
        <source>“%1” keeps its name. %2</source>
        <translation>「%1」保留原名稱。%2</translation>
    </message>
    <message>
        <source>Delete the profile “%1”?</source>
        <translation>要刪除設定檔「%1」嗎？</translation>
    </message>
    <message>
        <source>Restore the presets? This deletes your own profiles and undoes your changes of the presets.</source>
        <translation>要還原內建設定檔嗎？這會刪除您自訂的設定檔，並復原您對內建設定檔的變更。</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Language</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>登入時啟動</translation>
    </message>
    <message>
        <source>Show icon in the menu bar</source>
        <translation>在選單列顯示圖示</translation>
    </message>
    <message>
        <source>Play a sound after a capture</source>
        <translation>擷取後播放音效</translation>
    </message>
    <message>
        <source>Show tips</source>
        <translation>顯示提示</translation>
    </message>
    <message>
        <source>Recent captures in the menu</source>
        <translation>選單中的最近擷取數</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>檢查更新</translation>
    </message>
    <message>
        <source>Check interval (days)</source>
        <translation>檢查間隔（天）</translation>
    </message>
    <message>
        <source>Offer beta versions</source>
        <translation>提供測試版</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>佈景主題</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>淺色</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>邊框</translation>
    </message>
    <message>
        <source>Width of the frame</source>
        <translation>邊框寬度</translation>
    </message>
    <message>
        <source>Shade outside</source>
        <translation>選取範圍外的遮罩</translation>
    </message>
    <message>
        <source>Show magnifier</source>
        <translation>顯示放大鏡</translation>
    </message>
    <message>
        <source>Magnification</source>
        <translation>放大倍率</translation>
    </message>
    <message>
        <source>Show size beside the selection</source>
        <translation>在選取範圍旁顯示尺寸</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>字型</translation>
    </message>
    <message>
        <source>Delay before a capture</source>
        <translation>擷取前延遲</translation>
    </message>
    <message>
        <source>Count down on the screen</source>
        <translation>在螢幕上倒數</translation>
    </message>
    <message>
        <source>Include the mouse pointer</source>
        <translation>包含滑鼠指標</translation>
    </message>
    <message>
        <source>Include the shadow of windows</source>
        <translation>包含視窗陰影</translation>
    </message>
    <message>
        <source>Freeze the screen while selecting</source>
        <translation>選取時凍結螢幕</translation>
    </message>
    <message>
        <source>Frames per second of videos</source>
        <translation>影片每秒影格數</translation>
    </message>
    <message>
        <source>Snap to</source>
        <translation>貼齊至</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>視窗</translation>
    </message>
    <message>
        <source>Screen edges</source>
        <translation>螢幕邊緣</translation>
    </message>
    <message>
        <source>Guides</source>
        <translation>參考線</translation>
    </message>
    <message>
        <source>Last selection</source>
        <translation>上次的選取範圍</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>距離</translation>
    </message>
    <message>
        <source>Hotkeys in full-screen applications</source>
        <translation>全螢幕應用程式中的快速鍵</translation>
    </message>
    <message>
        <source>Repeat delay</source>
        <translation>重複延遲</translation>
    </message>
    <message>
        <source>Capture an area</source>
        <translation>擷取區域</translation>
    </message>
    <message>
        <source>Capture a window</source>
        <translation>擷取視窗</translation>
    </message>
    <message>
        <source>Capture the screen</source>
        <translation>擷取螢幕</translation>
    </message>
    <message>
        <source>Pin the clipboard</source>
        <translation>釘選剪貼簿</translation>
    </message>
    <message>
        <source>Double-click to finish</source>
        <translation>按兩下完成</translation>
    </message>
    <message>
        <source>Invert the wheel</source>
        <translation>反轉滾輪方向</translation>
    </message>
    <message>
        <source>Movement that begins a drag</source>
        <translation>開始拖曳的移動距離</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>縮放</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Show the menu</source>
        <translation>顯示選單</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>隱藏</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>移動</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>繪製</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>品質</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>浮水印</translation>
    </message>
    <message>
        <source>Copy it</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Save it</source>
        <translation>儲存</translation>
    </message>
    <message>
        <source>Open it in the editor</source>
        <translation>在編輯器中開啟</translation>
    </message>
    <message>
        <source>Allow simple global hotkeys</source>
        <translation>允許簡單的全域快速鍵</translation>
    </message>
    <message>
        <source>Show expert settings</source>
        <translation>顯示進階設定</translation>
    </message>
    <message>
        <source>Steps that can be undone</source>
        <translation>可復原的步驟數</translation>
    </message>
    <message>
        <source>Bring pinned pictures back at start</source>
        <translation>啟動時還原釘選的圖片</translation>
    </message>
    <message>
        <source>Cache (MB)</source>
        <translation>快取（MB）</translation>
    </message>
    <message>
        <source>Threads that compress</source>
        <translation>壓縮執行緒數</translation>
    </message>
    <message>
        <source>Draw with the graphics card</source>
        <translation>使用顯示卡繪製</translation>
    </message>
    <message>
        <source>Show times of drawing</source>
        <translation>顯示繪製時間</translation>
    </message>
    <message>
        <source>Write a log file</source>
        <translation>寫入記錄檔</translation>
    </message>
    <message>
        <source>Open the settings</source>
        <translation>開啟設定</translation>
    </message>
    <message>
        <source>Save now</source>
        <translation>立即儲存</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>作者</translation>
    </message>
    <message>
        <source>Your name</source>
        <translation>您的姓名</translation>
    </message>
    <message>
        <source>Pictures contain it if the details include the author.</source>
        <translation>若檔案內的資訊包含作者，圖片便會記錄此姓名。</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>備註</translation>
    </message>
    <message>
        <source>Token for uploads</source>
        <translation>上傳權杖</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>標籤</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>標誌</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg)</source>
        <translation>圖片 (*.png *.svg)</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>記錄檔</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>邊距</translation>
    </message>
    <message>
        <source>Save every</source>
        <translation>儲存間隔</translation>
    </message>
    <message>
        <source>Remind me</source>
        <translation>提醒我</translation>
    </message>
    <message>
        <source>Name of the file</source>
        <translation>檔案名稱</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>日期和時間</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>編號</translation>
    </message>
    <message>
        <source>Title of the window</source>
        <translation>視窗標題</translation>
    </message>
    <message>
        <source>Details in the file</source>
        <translation>檔案內的資訊</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>使用代理伺服器</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>主機</translation>
    </message>
    <message>
        <source>A host has no blanks.</source>
        <translation>主機名稱不能包含空格。</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>連接埠</translation>
    </message>
    <message>
        <source> px</source>
        <translation> 像素</translation>
    </message>
    <message>
        <source> s</source>
        <translation> 秒</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> 毫秒</translation>
    </message>
    <message>
        <source>Follow the system</source>
        <translation>跟隨系統</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>顏色</translation>
    </message>
    <message>
        <source>Pick a color</source>
        <translation>擷取顏色</translation>
    </message>
</context>
<context>
    <name>StoredDataPage</name>
    <message>
        <source>Stored data</source>
        <translation>儲存的資料</translation>
    </message>
    <message>
        <source>Nothing has been changed yet.</source>
        <translation>尚未變更任何項目。</translation>
    </message>
</context>
<context>
    <name>WatermarkEditor</name>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>None if empty</source>
        <translation>留空則無</translation>
    </message>
</context>
<context>
    <name>takePictures</name>
    <message>
        <source>Cannot write %1</source>
        <translation>無法寫入 %1</translation>
    </message>
</context>
</TS>
