<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB" sourcelanguage="en_US">
<context>
    <name>BoundValueModel</name>
    <message>
        <source>changed</source>
        <translation>changed</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Setting</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>State</source>
        <translation>State</translation>
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
        <translation>What the library logs appears here.</translation>
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
        <translation>Log</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Settings…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Restore all</source>
        <translation>Restore All</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>&amp;Settings…</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>Sa&amp;ve</translation>
    </message>
    <message>
        <source>&amp;Restore all…</source>
        <translation>&amp;Restore All…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quit</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Theme</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dark</translation>
    </message>
    <message>
        <source>Variables — %1 of %2 changed</source>
        <translation>Variables – %1 of %2 changed</translation>
    </message>
    <message>
        <source>Hotkey pressed: %1 (%2)</source>
        <translation>Hotkey pressed: %1 (%2)</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <translation>Saved to %1</translation>
    </message>
    <message>
        <source>Could not write %1</source>
        <translation>Could not write %1</translation>
    </message>
    <message>
        <source>Restore the defaults of all settings and the presets of the profiles?</source>
        <translation>Restore the defaults of all settings and the presets of the profiles?</translation>
    </message>
    <message>
        <source>Follow the system</source>
        <translation>Follow the system</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigurationWindow</name>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Appearance</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Capture</translation>
    </message>
    <message>
        <source>Hotkeys</source>
        <translation>Hotkeys</translation>
    </message>
    <message>
        <source>Mouse</source>
        <translation>Mouse</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Output</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profiles</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Stored data</source>
        <translation>Stored data</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Updates</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Selection</translation>
    </message>
    <message>
        <source>Magnifier</source>
        <translation>Magnifier</translation>
    </message>
    <message>
        <source>Size label</source>
        <translation>Size label</translation>
    </message>
    <message>
        <source>Snapping</source>
        <translation>Snapping</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Tools</translation>
    </message>
    <message>
        <source>Pinned pictures</source>
        <translation>Pinned pictures</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>After a capture</source>
        <translation>After a capture</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>Numbers</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>Choices</translation>
    </message>
    <message>
        <source>In this program</source>
        <translation>In this application</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Network</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>Screen</source>
        <translation>Screen</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Window</translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation>Thumbnail</translation>
    </message>
    <message>
        <source>A profile needs a name.</source>
        <translation>A profile needs a name.</translation>
    </message>
    <message>
        <source>A name can have at most %1 characters.</source>
        <translation>A name can have at most %1 characters.</translation>
    </message>
    <message>
        <source>Another profile has this name.</source>
        <translation>Another profile already has this name.</translation>
    </message>
    <message>
        <source>New profile</source>
        <translation>New profile</translation>
    </message>
    <message>
        <source>New profile %1</source>
        <translation>New profile %1</translation>
    </message>
</context>
<context>
    <name>ProfilesPage</name>
    <message>
        <source>Profiles</source>
        <translation>Profiles</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Restore presets</source>
        <translation>Restore Presets</translation>
    </message>
    <message>
        <source>There is no profile.
Add one, or restore the presets.</source>
        <translation>There are no profiles.
Add one, or restore the presets.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rename</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Width</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Height</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Frame</translation>
    </message>
    <message>
        <source>Include the mouse pointer</source>
        <translation>Include the mouse pointer</translation>
    </message>
    <message>
        <source>A preset, unchanged.</source>
        <translation>A preset, unchanged.</translation>
    </message>
    <message>
        <source>Yours, or a changed preset.</source>
        <translation>Yours, or a changed preset.</translation>
    </message>
    <message>
        <source>“%1” keeps its name. %2</source>
        <translation>“%1” keeps its name. %2</translation>
    </message>
    <message>
        <source>Delete the profile “%1”?</source>
        <translation>Delete the profile “%1”?</translation>
    </message>
    <message>
        <source>Restore the presets? This deletes your own profiles and undoes your changes of the presets.</source>
        <translation>Restore the presets? This deletes your own profiles and undoes your changes of the presets.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Start at login</translation>
    </message>
    <message>
        <source>Show icon in the menu bar</source>
        <translation>Show icon in the menu bar</translation>
    </message>
    <message>
        <source>Play a sound after a capture</source>
        <translation>Play a sound after a capture</translation>
    </message>
    <message>
        <source>Show tips</source>
        <translation>Show tips</translation>
    </message>
    <message>
        <source>Recent captures in the menu</source>
        <translation>Recent captures in the menu</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Check for updates</translation>
    </message>
    <message>
        <source>Check interval (days)</source>
        <translation>Check interval (days)</translation>
    </message>
    <message>
        <source>Offer beta versions</source>
        <translation>Offer beta versions</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Theme</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dark</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Frame</translation>
    </message>
    <message>
        <source>Width of the frame</source>
        <translation>Frame width</translation>
    </message>
    <message>
        <source>Shade outside</source>
        <translation>Shade outside</translation>
    </message>
    <message>
        <source>Show magnifier</source>
        <translation>Show magnifier</translation>
    </message>
    <message>
        <source>Magnification</source>
        <translation>Magnification</translation>
    </message>
    <message>
        <source>Show size beside the selection</source>
        <translation>Show size beside the selection</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Font</translation>
    </message>
    <message>
        <source>Delay before a capture</source>
        <translation>Delay before a capture</translation>
    </message>
    <message>
        <source>Count down on the screen</source>
        <translation>Count down on the screen</translation>
    </message>
    <message>
        <source>Include the mouse pointer</source>
        <translation>Include the mouse pointer</translation>
    </message>
    <message>
        <source>Include the shadow of windows</source>
        <translation>Include window shadows</translation>
    </message>
    <message>
        <source>Freeze the screen while selecting</source>
        <translation>Freeze the screen while selecting</translation>
    </message>
    <message>
        <source>Frames per second of videos</source>
        <translation>Video frames per second</translation>
    </message>
    <message>
        <source>Snap to</source>
        <translation>Snap to</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Windows</translation>
    </message>
    <message>
        <source>Screen edges</source>
        <translation>Screen edges</translation>
    </message>
    <message>
        <source>Guides</source>
        <translation>Guides</translation>
    </message>
    <message>
        <source>Last selection</source>
        <translation>Last selection</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distance</translation>
    </message>
    <message>
        <source>Hotkeys in full-screen applications</source>
        <translation>Hotkeys in full-screen applications</translation>
    </message>
    <message>
        <source>Repeat delay</source>
        <translation>Repeat delay</translation>
    </message>
    <message>
        <source>Capture an area</source>
        <translation>Capture an area</translation>
    </message>
    <message>
        <source>Capture a window</source>
        <translation>Capture a window</translation>
    </message>
    <message>
        <source>Capture the screen</source>
        <translation>Capture the screen</translation>
    </message>
    <message>
        <source>Pin the clipboard</source>
        <translation>Pin the clipboard</translation>
    </message>
    <message>
        <source>Double-click to finish</source>
        <translation>Double-click to finish</translation>
    </message>
    <message>
        <source>Invert the wheel</source>
        <translation>Invert the wheel</translation>
    </message>
    <message>
        <source>Movement that begins a drag</source>
        <translation>Movement that begins a drag</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacity</translation>
    </message>
    <message>
        <source>Show the menu</source>
        <translation>Show the menu</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Hide</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Move</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>Draw</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Quality</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Watermark</translation>
    </message>
    <message>
        <source>Copy it</source>
        <translation>Copy it</translation>
    </message>
    <message>
        <source>Save it</source>
        <translation>Save it</translation>
    </message>
    <message>
        <source>Open it in the editor</source>
        <translation>Open it in the editor</translation>
    </message>
    <message>
        <source>Allow simple global hotkeys</source>
        <translation>Allow simple global hotkeys</translation>
    </message>
    <message>
        <source>Show expert settings</source>
        <translation>Show expert settings</translation>
    </message>
    <message>
        <source>Steps that can be undone</source>
        <translation>Undo steps</translation>
    </message>
    <message>
        <source>Bring pinned pictures back at start</source>
        <translation>Bring back pinned pictures at startup</translation>
    </message>
    <message>
        <source>Cache (MB)</source>
        <translation>Cache (MB)</translation>
    </message>
    <message>
        <source>Threads that compress</source>
        <translation>Compression threads</translation>
    </message>
    <message>
        <source>Draw with the graphics card</source>
        <translation>Draw with the graphics card</translation>
    </message>
    <message>
        <source>Show times of drawing</source>
        <translation>Show drawing times</translation>
    </message>
    <message>
        <source>Write a log file</source>
        <translation>Write a log file</translation>
    </message>
    <message>
        <source>Open the settings</source>
        <translation>Open the settings</translation>
    </message>
    <message>
        <source>Save now</source>
        <translation>Save now</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quit</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Author</translation>
    </message>
    <message>
        <source>Your name</source>
        <translation>Your name</translation>
    </message>
    <message>
        <source>Pictures contain it if the details include the author.</source>
        <translation>Included in pictures if the details contain the author.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Token for uploads</source>
        <translation>Upload token</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Tags</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logo</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg)</source>
        <translation>Pictures (*.png *.svg)</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>Log file</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brightness</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Margin</translation>
    </message>
    <message>
        <source>Save every</source>
        <translation>Save every</translation>
    </message>
    <message>
        <source>Remind me</source>
        <translation>Remind me</translation>
    </message>
    <message>
        <source>Name of the file</source>
        <translation>File name</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Date and time</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>Title of the window</source>
        <translation>Window title</translation>
    </message>
    <message>
        <source>Details in the file</source>
        <translation>Details in the file</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>Use a proxy</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Host</translation>
    </message>
    <message>
        <source>A host has no blanks.</source>
        <translation>A host name cannot contain spaces.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Follow the system</source>
        <translation>Follow the system</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Colour</translation>
    </message>
    <message>
        <source>Pick a color</source>
        <translation>Pick a colour</translation>
    </message>
</context>
<context>
    <name>StoredDataPage</name>
    <message>
        <source>Stored data</source>
        <translation>Stored data</translation>
    </message>
    <message>
        <source>Nothing has been changed yet.</source>
        <translation>Nothing has been changed yet.</translation>
    </message>
</context>
<context>
    <name>WatermarkEditor</name>
    <message>
        <source>Opacity</source>
        <translation>Opacity</translation>
    </message>
    <message>
        <source>None if empty</source>
        <translation>None if empty</translation>
    </message>
</context>
<context>
    <name>takePictures</name>
    <message>
        <source>Cannot write %1</source>
        <translation>Cannot write %1</translation>
    </message>
</context>
</TS>
