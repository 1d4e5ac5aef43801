<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>BoundValueModel</name>
    <message>
        <source>changed</source>
        <translation>已更改</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>设置项</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
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
        <translation>库的日志会显示在这里。</translation>
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
        <translation>日志</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>设置…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Restore all</source>
        <translation>全部恢复</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>设置(&amp;S)…</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>保存(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Restore all…</source>
        <translation>全部恢复(&amp;R)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>主题(&amp;T)</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>Variables — %1 of %2 changed</source>
        <translation>变量 — 已更改 %1/%2</translation>
    </message>
    <message>
        <source>Hotkey pressed: %1 (%2)</source>
        <translation>已按下快捷键：%1（%2）</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <translation>已保存到 %1</translation>
    </message>
    <message>
        <source>Could not write %1</source>
        <translation>无法写入 %1</translation>
    </message>
    <message>
        <source>Restore the defaults of all settings and the presets of the profiles?</source>
        <translation>要将所有设置恢复为默认值，并恢复预设配置吗？</translation>
    </message>
    <message>
        <source>Follow the system</source>
        <translation>跟随系统</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigurationWindow</name>
    <message>
        <source>General</source>
        <translation>通用</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>截图</translation>
    </message>
    <message>
        <source>Hotkeys</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>Mouse</source>
        <translation>鼠标</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>输出</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>System</source>
        <translation>系统</translation>
    </message>
    <message>
        <source>Stored data</source>
        <translation>存储的数据</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>选区</translation>
    </message>
    <message>
        <source>Magnifier</source>
        <translation>放大镜</translation>
    </message>
    <message>
        <source>Size label</source>
        <translation>尺寸标签</translation>
    </message>
    <message>
        <source>Snapping</source>
        <translation>吸附</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Pinned pictures</source>
        <translation>贴图</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>After a capture</source>
        <translation>截图后</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>In this program</source>
        <translation>在此应用中</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>网络</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>Screen</source>
        <translation>屏幕</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>窗口</translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation>缩略图</translation>
    </message>
    <message>
        <source>A profile needs a name.</source>
        <translation>配置需要一个名称。</translation>
    </message>
    <message>
        <source>A name can have at most %1 characters.</source>
        <translation>名称最多 %1 个字符。</translation>
    </message>
    <message>
        <source>Another profile has this name.</source>
        <translation>已有同名的配置。</translation>
    </message>
    <message>
        <source>New profile</source>
        <translation>新配置</translation>
    </message>
    <message>
        <source>New profile %1</source>
        <translation>新配置 %1</translation>
    </message>
</context>
<context>
    <name>ProfilesPage</name>
    <message>
        <source>Profiles</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Restore presets</source>
        <translation>恢复预设</translation>
    </message>
    <message>
        <source>There is no profile.
Add one, or restore the presets.</source>
        <translation>没有配置。
请添加一个，或恢复预设。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>宽度</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>边框</translation>
    </message>
    <message>
        <source>Include the mouse pointer</source>
        <translation>包含鼠标指针</translation>
    </message>
    <message>
        <source>A preset, unchanged.</source>
        <translation>预设，未更改。</translation>
    </message>
    <message>
        <source>Yours, or a changed preset.</source>
        <translation>自定义配置，或已更改的预设。</translation>
    </message>
    <message>
        <source>“%1” keeps its name. %2</source>
        <translation>“%1”保留原名称。%2</translation>
    </message>
    <message>
        <source>Delete the profile “%1”?</source>
        <translation>要删除配置“%1”吗？</translation>
    </message>
    <message>
        <source>Restore the presets? This deletes your own profiles and undoes your changes of the presets.</source>
        <translation>要恢复预设吗？这会删除您的自定义配置，并撤消您对预设的更改。</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>登录时启动</translation>
    </message>
    <message>
        <source>Show icon in the menu bar</source>
        <translation>在菜单栏显示图标</translation>
    </message>
    <message>
        <source>Play a sound after a capture</source>
        <translation>截图后播放声音</translation>
    </message>
    <message>
        <source>Show tips</source>
        <translation>显示提示</translation>
    </message>
    <message>
        <source>Recent captures in the menu</source>
        <translation>菜单中的最近截图数</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>检查更新</translation>
    </message>
    <message>
        <source>Check interval (days)</source>
        <translation>检查间隔（天）</translation>
    </message>
    <message>
        <source>Offer beta versions</source>
        <translation>提供测试版</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>主题</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>边框</translation>
    </message>
    <message>
        <source>Width of the frame</source>
        <translation>边框宽度</translation>
    </message>
    <message>
        <source>Shade outside</source>
        <translation>选区外遮罩</translation>
    </message>
    <message>
        <source>Show magnifier</source>
        <translation>显示放大镜</translation>
    </message>
    <message>
        <source>Magnification</source>
        <translation>放大倍数</translation>
    </message>
    <message>
        <source>Show size beside the selection</source>
        <translation>在选区旁显示尺寸</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>字体</translation>
    </message>
    <message>
        <source>Delay before a capture</source>
        <translation>截图前延迟</translation>
    </message>
    <message>
        <source>Count down on the screen</source>
        <translation>在屏幕上倒计时</translation>
    </message>
    <message>
        <source>Include the mouse pointer</source>
        <translation>包含鼠标指针</translation>
    </message>
    <message>
        <source>Include the shadow of windows</source>
        <translation>包含窗口阴影</translation>
    </message>
    <message>
        <source>Freeze the screen while selecting</source>
        <translation>选择时冻结屏幕</translation>
    </message>
    <message>
        <source>Frames per second of videos</source>
        <translation>视频帧率（帧/秒）</translation>
    </message>
    <message>
        <source>Snap to</source>
        <translation>吸附到</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>窗口</translation>
    </message>
    <message>
        <source>Screen edges</source>
        <translation>屏幕边缘</translation>
    </message>
    <message>
        <source>Guides</source>
        <translation>参考线</translation>
    </message>
    <message>
        <source>Last selection</source>
        <translation>上次选区</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>距离</translation>
    </message>
    <message>
        <source>Hotkeys in full-screen applications</source>
        <translation>在全屏应用中启用快捷键</translation>
    </message>
    <message>
        <source>Repeat delay</source>
        <translation>重复延迟</translation>
    </message>
    <message>
        <source>Capture an area</source>
        <translation>截取区域</translation>
    </message>
    <message>
        <source>Capture a window</source>
        <translation>截取窗口</translation>
    </message>
    <message>
        <source>Capture the screen</source>
        <translation>截取屏幕</translation>
    </message>
    <message>
        <source>Pin the clipboard</source>
        <translation>剪贴板贴图</translation>
    </message>
    <message>
        <source>Double-click to finish</source>
        <translation>双击完成</translation>
    </message>
    <message>
        <source>Invert the wheel</source>
        <translation>反转滚轮方向</translation>
    </message>
    <message>
        <source>Movement that begins a drag</source>
        <translation>开始拖动的移动距离</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Show the menu</source>
        <translation>显示菜单</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>隐藏</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>移动</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>绘制</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>质量</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>水印</translation>
    </message>
    <message>
        <source>Copy it</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Save it</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Open it in the editor</source>
        <translation>在编辑器中打开</translation>
    </message>
    <message>
        <source>Allow simple global hotkeys</source>
        <translation>允许简单的全局快捷键</translation>
    </message>
    <message>
        <source>Show expert settings</source>
        <translation>显示高级设置</translation>
    </message>
    <message>
        <source>Steps that can be undone</source>
        <translation>可撤销步数</translation>
    </message>
    <message>
        <source>Bring pinned pictures back at start</source>
        <translation>启动时恢复贴图</translation>
    </message>
    <message>
        <source>Cache (MB)</source>
        <translation>缓存（MB）</translation>
    </message>
    <message>
        <source>Threads that compress</source>
        <translation>压缩线程数</translation>
    </message>
    <message>
        <source>Draw with the graphics card</source>
        <translation>使用显卡绘制</translation>
    </message>
    <message>
        <source>Show times of drawing</source>
        <translation>显示绘制耗时</translation>
    </message>
    <message>
        <source>Write a log file</source>
        <translation>写入日志文件</translation>
    </message>
    <message>
        <source>Open the settings</source>
        <translation>打开设置</translation>
    </message>
    <message>
        <source>Save now</source>
        <translation>立即保存</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
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
        <translation>如果文件中的信息包含作者，图片就会记录此姓名。</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>Token for uploads</source>
        <translation>上传令牌</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>标签</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>徽标</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg)</source>
        <translation>图片 (*.png *.svg)</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>日志文件</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>边距</translation>
    </message>
    <message>
        <source>Save every</source>
        <translation>保存间隔</translation>
    </message>
    <message>
        <source>Remind me</source>
        <translation>提醒我</translation>
    </message>
    <message>
        <source>Name of the file</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>日期和时间</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>Title of the window</source>
        <translation>窗口标题</translation>
    </message>
    <message>
        <source>Details in the file</source>
        <translation>文件中的信息</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>使用代理</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>主机</translation>
    </message>
    <message>
        <source>A host has no blanks.</source>
        <translation>主机名不能包含空格。</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>端口</translation>
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
        <translation>跟随系统</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Pick a color</source>
        <translation>取色</translation>
    </message>
</context>
<context>
    <name>StoredDataPage</name>
    <message>
        <source>Stored data</source>
        <translation>存储的数据</translation>
    </message>
    <message>
        <source>Nothing has been changed yet.</source>
        <translation>尚未更改任何内容。</translation>
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
        <translation>留空则无</translation>
    </message>
</context>
<context>
    <name>takePictures</name>
    <message>
        <source>Cannot write %1</source>
        <translation>无法写入 %1</translation>
    </message>
</context>
</TS>
