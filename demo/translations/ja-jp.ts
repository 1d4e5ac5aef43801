<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>BoundValueModel</name>
    <message>
        <source>changed</source>
        <translation>変更済み</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>%1, %2 px</source>
        <translation>%1、%2 px</translation>
    </message>
</context>
<context>
    <name>LogPane</name>
    <message>
        <source>What the library logs appears here.</source>
        <translation>ライブラリのログがここに表示されます。</translation>
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
        <translation>ログ</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Restore all</source>
        <translation>すべてデフォルトに戻す</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>設定(&amp;S)…</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>保存(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Restore all…</source>
        <translation>すべてデフォルトに戻す(&amp;R)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>テーマ(&amp;T)</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>ライト</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>ダーク</translation>
    </message>
    <message>
        <source>Variables — %1 of %2 changed</source>
        <translation>変数 — %2 個中 %1 個を変更</translation>
    </message>
    <message>
        <source>Hotkey pressed: %1 (%2)</source>
        <translation>押されたショートカットキー: %1 (%2)</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <translation>%1 に保存しました</translation>
    </message>
    <message>
        <source>Could not write %1</source>
        <translation>%1 に書き込めませんでした</translation>
    </message>
    <message>
        <source>Restore the defaults of all settings and the presets of the profiles?</source>
        <translation>すべての設定をデフォルトに戻し、プリセットのプロファイルを復元しますか？</translation>
    </message>
    <message>
        <source>Follow the system</source>
        <translation>システムに従う</translation>
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
        <translation>外観</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>キャプチャ</translation>
    </message>
    <message>
        <source>Hotkeys</source>
        <translation>ホットキー</translation>
    </message>
    <message>
        <source>Mouse</source>
        <translation>マウス</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>出力</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>プロファイル</translation>
    </message>
    <message>
        <source>System</source>
        <translation>システム</translation>
    </message>
    <message>
        <source>Stored data</source>
        <translation>保存データ</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>アップデート</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>選択範囲</translation>
    </message>
    <message>
        <source>Magnifier</source>
        <translation>拡大鏡</translation>
    </message>
    <message>
        <source>Size label</source>
        <translation>サイズ表示</translation>
    </message>
    <message>
        <source>Snapping</source>
        <translation>スナップ</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>ツール</translation>
    </message>
    <message>
        <source>Pinned pictures</source>
        <translation>ピン留めした画像</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>After a capture</source>
        <translation>キャプチャ後</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>数値</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>選択肢</translation>
    </message>
    <message>
        <source>In this program</source>
        <translation>このアプリ内</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>ネットワーク</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>Screen</source>
        <translation>画面</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>ウインドウ</translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation>サムネール</translation>
    </message>
    <message>
        <source>A profile needs a name.</source>
        <translation>プロファイルには名前が必要です。</translation>
    </message>
    <message>
        <source>A name can have at most %1 characters.</source>
        <translation>名前は最大 %1 文字です。</translation>
    </message>
    <message>
        <source>Another profile has this name.</source>
        <translation>同じ名前のプロファイルがあります。</translation>
    </message>
    <message>
        <source>New profile</source>
        <translation>新規プロファイル</translation>
    </message>
    <message>
        <source>New profile %1</source>
        <translation>新規プロファイル %1</translation>
    </message>
</context>
<context>
    <name>ProfilesPage</name>
    <message>
        <source>Profiles</source>
        <translation>プロファイル</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Restore presets</source>
        <translation>プリセットを復元</translation>
    </message>
    <message>
        <source>There is no profile.
Add one, or restore the presets.</source>
        <translation>プロファイルがありません。
追加するか、プリセットを復元してください。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>名前を変更</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>幅</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高さ</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>枠</translation>
    </message>
    <message>
        <source>Include the mouse pointer</source>
        <translation>マウスポインタを含める</translation>
    </message>
    <message>
        <source>A preset, unchanged.</source>
        <translation>プリセット（変更なし）。</translation>
    </message>
    <message>
        <source>Yours, or a changed preset.</source>
        <translation>自分で作成したプロファイル、または変更したプリセット。</translation>
    </message>
    <message>
        <source>“%1” keeps its name. %2</source>
        <translation>「%1」の名前はそのままです。%2</translation>
    </message>
    <message>
        <source>Delete the profile “%1”?</source>
        <translation>プロファイル「%1」を削除しますか？</translation>
    </message>
    <message>
        <source>Restore the presets? This deletes your own profiles and undoes your changes of the presets.</source>
        <translation>プリセットを復元しますか？ 自分で作成したプロファイルは削除され、プリセットへの変更は元に戻ります。</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>ログイン時に開く</translation>
    </message>
    <message>
        <source>Show icon in the menu bar</source>
        <translation>メニューバーにアイコンを表示</translation>
    </message>
    <message>
        <source>Play a sound after a capture</source>
        <translation>キャプチャ後に音を鳴らす</translation>
    </message>
    <message>
        <source>Show tips</source>
        <translation>ヒントを表示</translation>
    </message>
    <message>
        <source>Recent captures in the menu</source>
        <translation>メニューの最近のキャプチャ数</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>アップデートを確認</translation>
    </message>
    <message>
        <source>Check interval (days)</source>
        <translation>確認の間隔（日）</translation>
    </message>
    <message>
        <source>Offer beta versions</source>
        <translation>ベータ版も通知</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>テーマ</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>ライト</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>ダーク</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>枠</translation>
    </message>
    <message>
        <source>Width of the frame</source>
        <translation>枠の太さ</translation>
    </message>
    <message>
        <source>Shade outside</source>
        <translation>選択範囲外の色</translation>
    </message>
    <message>
        <source>Show magnifier</source>
        <translation>拡大鏡を表示</translation>
    </message>
    <message>
        <source>Magnification</source>
        <translation>拡大率</translation>
    </message>
    <message>
        <source>Show size beside the selection</source>
        <translation>選択範囲の横にサイズを表示</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>フォント</translation>
    </message>
    <message>
        <source>Delay before a capture</source>
        <translation>キャプチャまでの時間</translation>
    </message>
    <message>
        <source>Count down on the screen</source>
        <translation>画面でカウントダウン</translation>
    </message>
    <message>
        <source>Include the mouse pointer</source>
        <translation>マウスポインタを含める</translation>
    </message>
    <message>
        <source>Include the shadow of windows</source>
        <translation>ウインドウの影を含める</translation>
    </message>
    <message>
        <source>Freeze the screen while selecting</source>
        <translation>選択中は画面を静止</translation>
    </message>
    <message>
        <source>Frames per second of videos</source>
        <translation>動画のフレームレート</translation>
    </message>
    <message>
        <source>Snap to</source>
        <translation>スナップ先</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>ウインドウ</translation>
    </message>
    <message>
        <source>Screen edges</source>
        <translation>画面の端</translation>
    </message>
    <message>
        <source>Guides</source>
        <translation>ガイド</translation>
    </message>
    <message>
        <source>Last selection</source>
        <translation>前回の選択範囲</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>距離</translation>
    </message>
    <message>
        <source>Hotkeys in full-screen applications</source>
        <translation>フルスクリーン時もショートカットキーを使う</translation>
    </message>
    <message>
        <source>Repeat delay</source>
        <translation>リピートまでの時間</translation>
    </message>
    <message>
        <source>Capture an area</source>
        <translation>範囲をキャプチャ</translation>
    </message>
    <message>
        <source>Capture a window</source>
        <translation>ウインドウをキャプチャ</translation>
    </message>
    <message>
        <source>Capture the screen</source>
        <translation>画面をキャプチャ</translation>
    </message>
    <message>
        <source>Pin the clipboard</source>
        <translation>クリップボードをピン留め</translation>
    </message>
    <message>
        <source>Double-click to finish</source>
        <translation>ダブルクリックで完了</translation>
    </message>
    <message>
        <source>Invert the wheel</source>
        <translation>ホイールを反転</translation>
    </message>
    <message>
        <source>Movement that begins a drag</source>
        <translation>ドラッグ開始の移動量</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>拡大／縮小</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Show the menu</source>
        <translation>メニューを表示</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>隠す</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>移動</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>描画</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>フォーマット</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>品質</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>透かし</translation>
    </message>
    <message>
        <source>Copy it</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Save it</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Open it in the editor</source>
        <translation>エディタで開く</translation>
    </message>
    <message>
        <source>Allow simple global hotkeys</source>
        <translation>単純なグローバルショートカットキーを許可</translation>
    </message>
    <message>
        <source>Show expert settings</source>
        <translation>詳細設定を表示</translation>
    </message>
    <message>
        <source>Steps that can be undone</source>
        <translation>取り消せる回数</translation>
    </message>
    <message>
        <source>Bring pinned pictures back at start</source>
        <translation>ピン留めした画像を起動時に復元</translation>
    </message>
    <message>
        <source>Cache (MB)</source>
        <translation>キャッシュ (MB)</translation>
    </message>
    <message>
        <source>Threads that compress</source>
        <translation>圧縮スレッド数</translation>
    </message>
    <message>
        <source>Draw with the graphics card</source>
        <translation>グラフィックカードで描画</translation>
    </message>
    <message>
        <source>Show times of drawing</source>
        <translation>描画時間を表示</translation>
    </message>
    <message>
        <source>Write a log file</source>
        <translation>ログファイルに記録</translation>
    </message>
    <message>
        <source>Open the settings</source>
        <translation>設定を開く</translation>
    </message>
    <message>
        <source>Save now</source>
        <translation>今すぐ保存</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>作成者</translation>
    </message>
    <message>
        <source>Your name</source>
        <translation>あなたの名前</translation>
    </message>
    <message>
        <source>Pictures contain it if the details include the author.</source>
        <translation>ファイルに含める情報で作成者を選ぶと、画像に記録されます。</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>メモ</translation>
    </message>
    <message>
        <source>Token for uploads</source>
        <translation>アップロード用トークン</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>タグ</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダ</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>ロゴ</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg)</source>
        <translation>画像 (*.png *.svg)</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>ログファイル</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>明るさ</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>余白</translation>
    </message>
    <message>
        <source>Save every</source>
        <translation>保存の間隔</translation>
    </message>
    <message>
        <source>Remind me</source>
        <translation>リマインダーの日時</translation>
    </message>
    <message>
        <source>Name of the file</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>日付と時刻</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>連番</translation>
    </message>
    <message>
        <source>Title of the window</source>
        <translation>ウインドウのタイトル</translation>
    </message>
    <message>
        <source>Details in the file</source>
        <translation>ファイルに含める情報</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>プロキシを使用</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>ホスト</translation>
    </message>
    <message>
        <source>A host has no blanks.</source>
        <translation>ホスト名に空白は使えません。</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source> s</source>
        <translation> 秒</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Follow the system</source>
        <translation>システムに従う</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>Pick a color</source>
        <translation>色を取得</translation>
    </message>
</context>
<context>
    <name>StoredDataPage</name>
    <message>
        <source>Stored data</source>
        <translation>保存データ</translation>
    </message>
    <message>
        <source>Nothing has been changed yet.</source>
        <translation>まだ何も変更されていません。</translation>
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
        <translation>空欄でなし</translation>
    </message>
</context>
<context>
    <name>takePictures</name>
    <message>
        <source>Cannot write %1</source>
        <translation>%1 に書き込めません</translation>
    </message>
</context>
</TS>
