#include "declareSettings.h"

#include "ProgramActions.h"
#include "Settings.h"
#include "WatermarkEditor.h"

#include <MaltoConfiguration/manage/MtConfManage.h>
#include <MaltoConfiguration/widgets/ConfDefWidgetQKeySequence.h>
#include <MaltoConfiguration/widgets/KeySequenceEdit.h>

#include <QCoreApplication>
#include <QxtGlobalShortcut>

using MtConf::ConfItem;
using MtConf::MtConfManage;

// Each setting has a label, a variable, a page and a name. With a third name, the second one is the
// group of the setting on its page.

namespace {

// The library translates the names of pages and groups in this context. The names in the
// declarations below stay untranslated: they are the keys of the settings.
const char *const sPageNames[] = {
    QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "General"),
    QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Appearance"),
    QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Capture"),
    QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Hotkeys"),
    QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Mouse"),
    QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Output"),
    QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Texts"),
    QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Numbers"),
    QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Choices"),
    QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Profiles"),
    QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "System"),
    QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Stored data"),
};
[[maybe_unused]] const char *const sGroupNames[] = {
    QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Updates"),
    QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Selection"),
    QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Magnifier"),
    QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Size label"),
    QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Snapping"),
    QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Capture"),
    QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Tools"),
    QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "In this program"),
    QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Pinned pictures"),
    QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Image"),
    QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "After a capture"),
    QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Files"),
    QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Network"),
};

/// Declares the settings, one function per page.
///
/// The library translates labels and choices in the context "QObject". `Q_DECLARE_TR_FUNCTIONS`
/// gives this context to every `QT_TR_NOOP` in the class, so that lupdate finds the texts there.
class Declare
{
    Q_DECLARE_TR_FUNCTIONS(QObject)
public:
    static void general(MtConfManage &m, Settings &s);
    static void appearance(MtConfManage &m, Settings &s);
    static void capture(MtConfManage &m, Settings &s);
    static void hotkeys(MtConfManage &m, Settings &s, const ProgramActions &actions);
    static void mouse(MtConfManage &m, Settings &s);
    static void output(MtConfManage &m, Settings &s);
    static void texts(MtConfManage &m, Settings &s);
    static void numbers(MtConfManage &m, Settings &s);
    static void choices(MtConfManage &m, Settings &s);
    static void system(MtConfManage &m, Settings &s);
};

/// A name as a QString: `"General"_s`.
QString operator""_s(const char *name, std::size_t size)
{
    return QString::fromLatin1(name, static_cast<int>(size));
}

struct Range
{
    int minimum;
    int maximum;
};

/// Declares a number that the user can set within `range`.
ConfItem *addNumber(MtConfManage &m, const char *text, int *value, Range range, const QString &page,
                    const QString &name, const QString &subName = QString())
{
    ConfItem *item = m.addConfInt32(text, value, page, name, subName);
    item->properties.insert("MinValue"_s, range.minimum);
    item->properties.insert("MaxValue"_s, range.maximum);
    return item;
}

/// Hides `item` unless the user wants to see the expert settings.
void makeExpert(ConfItem *item)
{
    item->flags |= MtConf::ItemIsFiltered;
}

/// Makes the hotkey of `item` work in every program. `owner` owns the registration.
void makeGlobal(ConfItem *item, QObject *owner)
{
    item->properties.insert("Shortcut"_s, QVariant::fromValue(new QxtGlobalShortcut(owner)));
}

void Declare::general(MtConfManage &m, Settings &s)
{
    const QString page = "General"_s;
    m.addConfLanguage(QT_TR_NOOP("Language"), &s.language, page, "Language"_s);
    m.addConfAutoRun(QT_TR_NOOP("Start at login"), &s.startAtLogin, page, "StartAtLogin"_s);
    m.addConfBool(QT_TR_NOOP("Show icon in the menu bar"), &s.showTrayIcon, page, "TrayIcon"_s);
    m.addConfBool(QT_TR_NOOP("Play a sound after a capture"), &s.playSound, page, "Sound"_s);
    m.addConfBool(QT_TR_NOOP("Show tips"), &s.showTips, page, "Tips"_s);
    addNumber(m, QT_TR_NOOP("Recent captures in the menu"), &s.recentCaptures, {0, 50}, page,
              "Recent"_s);

    const QString updates = "Updates"_s;
    m.addConfBool(QT_TR_NOOP("Check for updates"), &s.checkUpdates, page, updates, "Check"_s);
    addNumber(m, QT_TR_NOOP("Check interval (days)"), &s.updateInterval, {1, 90}, page, updates,
              "Interval"_s);
    m.addConfBool(QT_TR_NOOP("Offer beta versions"), &s.betaUpdates, page, updates, "Beta"_s);
}

void Declare::appearance(MtConfManage &m, Settings &s)
{
    const QString page = "Appearance"_s;
    m.addConfInt32WithCombobox(
        QT_TR_NOOP("Theme"),
        {QT_TR_NOOP("Follow the system"), QT_TR_NOOP("Light"), QT_TR_NOOP("Dark")}, &s.theme, page,
        "Theme"_s);

    const QString selection = "Selection"_s;
    m.addConfQColor(QT_TR_NOOP("Frame"), &s.frameColor, page, selection, "FrameColor"_s);
    addNumber(m, QT_TR_NOOP("Width of the frame"), &s.frameWidth, {1, 20}, page, selection,
              "FrameWidth"_s)
        ->setSuffix(QT_TR_NOOP(" px"));
    m.addConfQColor(QT_TR_NOOP("Shade outside"), &s.shadeColor, page, selection, "ShadeColor"_s);

    const QString magnifier = "Magnifier"_s;
    m.addConfBool(QT_TR_NOOP("Show magnifier"), &s.showMagnifier, page, magnifier, "Show"_s);
    m.addConfInt32WithCombobox(QT_TR_NOOP("Magnification"), {"2 ×", "4 ×", "8 ×", "16 ×"},
                               {2, 4, 8, 16}, &s.magnifierZoom, page, magnifier, "Zoom"_s);

    const QString label = "Size label"_s;
    m.addConfBool(QT_TR_NOOP("Show size beside the selection"), &s.showSize, page, label, "Show"_s);
    m.addConfQFont(QT_TR_NOOP("Font"), &s.labelFont, page, label, "Font"_s);
    m.addConfQColor(QT_TR_NOOP("Color"), &s.labelColor, page, label, "Color"_s);
}

void Declare::capture(MtConfManage &m, Settings &s)
{
    const QString page = "Capture"_s;
    addNumber(m, QT_TR_NOOP("Delay before a capture"), &s.delay, {0, 60}, page, "Delay"_s)
        ->setSuffix(QT_TR_NOOP(" s"));
    m.addConfBool(QT_TR_NOOP("Count down on the screen"), &s.countdown, page, "Countdown"_s);
    m.addConfBool(QT_TR_NOOP("Include the mouse pointer"), &s.includePointer, page, "Pointer"_s);
    m.addConfBool(QT_TR_NOOP("Include the shadow of windows"), &s.includeShadow, page, "Shadow"_s);
    m.addConfBool(QT_TR_NOOP("Freeze the screen while selecting"), &s.freezeScreen, page,
                  "Freeze"_s);
    m.addConfInt32WithCombobox(QT_TR_NOOP("Frames per second of videos"), {"10", "24", "30", "60"},
                               {10, 24, 30, 60}, &s.frameRate, page, "FrameRate"_s);

    const QString snapping = "Snapping"_s;
    ConfItem *targets = m.addConfInt32WithCombobox(
        QT_TR_NOOP("Snap to"),
        {QT_TR_NOOP("Windows"), QT_TR_NOOP("Screen edges"), QT_TR_NOOP("Guides"),
         QT_TR_NOOP("Last selection")},
        {0x1, 0x2, 0x4, 0x8}, &s.snapTargets, page, snapping, "Targets"_s);
    targets->properties.insert("MultiSelect"_s, true);
    addNumber(m, QT_TR_NOOP("Distance"), &s.snapDistance, {0, 50}, page, snapping, "Distance"_s)
        ->setSuffix(QT_TR_NOOP(" px"));
}

void Declare::hotkeys(MtConfManage &m, Settings &s, const ProgramActions &actions)
{
    const QString page = "Hotkeys"_s;
    m.addConfBool(QT_TR_NOOP("Hotkeys in full-screen applications"), &s.hotkeysInFullScreen, page,
                  "FullScreen"_s);
    addNumber(m, QT_TR_NOOP("Repeat delay"), &s.repeatDelay, {0, 2000}, page, "RepeatDelay"_s)
        ->setSuffix(QT_TR_NOOP(" ms"));

    const auto add = [&m, &s, &page](const char *text, QKeySequence *value, const QString &group,
                                     const QString &name) {
        // The library's editor, except that a setting decides whether a letter alone is accepted.
        const MtConf::WidgetCreator editor = [&s](ConfItem *item, QWidget *parent) {
            auto *widget = MtConf::ConfDefWidgetQKeySequence::CreatConfWidget(item, parent);
            if (auto *field = widget->findChild<KeySequenceEdit *>())
                field->allowSimpleHotkey = s.simpleHotkeys;
            return widget;
        };
        makeGlobal(m.addConfQKeySequence(text, value, page, group, name, editor), &m);
    };
    const QString capture = "Capture"_s;
    add(QT_TR_NOOP("Capture an area"), &s.captureArea, capture, "Area"_s);
    add(QT_TR_NOOP("Capture a window"), &s.captureWindow, capture, "Window"_s);
    add(QT_TR_NOOP("Capture the screen"), &s.captureScreen, capture, "Screen"_s);

    const QString tools = "Tools"_s;
    add(QT_TR_NOOP("Pin the clipboard"), &s.pinClipboard, tools, "Pin"_s);
    add(QT_TR_NOOP("Pick a color"), &s.pickColor, tools, "PickColor"_s);

    const QString program = "In this program"_s;
    m.addConfShortcut(QT_TR_NOOP("Open the settings"), &s.showSettings, actions.showSettings, page,
                      program, "Settings"_s);
    m.addConfShortcut(QT_TR_NOOP("Save now"), &s.saveNow, actions.save, page, program, "Save"_s);
    m.addConfShortcut(QT_TR_NOOP("Quit"), &s.quit, actions.quit, page, program, "Quit"_s);
}

void Declare::mouse(MtConfManage &m, Settings &s)
{
    const QString page = "Mouse"_s;
    m.addConfBool(QT_TR_NOOP("Double-click to finish"), &s.doubleClickFinishes, page,
                  "DoubleClickFinishes"_s);
    m.addConfBool(QT_TR_NOOP("Invert the wheel"), &s.invertWheel, page, "InvertWheel"_s);
    addNumber(m, QT_TR_NOOP("Movement that begins a drag"), &s.dragThreshold, {1, 40}, page,
              "DragThreshold"_s)
        ->setSuffix(QT_TR_NOOP(" px"));

    constexpr int sWheel = 0;
    constexpr int sClicks = 1;
    constexpr int sDrags = 2;
    const QString pinned = "Pinned pictures"_s;
    m.addConfMouseAction(QT_TR_NOOP("Zoom"), &s.zoomAction, sWheel, page, pinned, "Zoom"_s);
    m.addConfMouseAction(QT_TR_NOOP("Opacity"), &s.opacityAction, sWheel, page, pinned,
                         "Opacity"_s);
    m.addConfMouseAction(QT_TR_NOOP("Show the menu"), &s.menuAction, sClicks, page, pinned,
                         "Menu"_s);
    m.addConfMouseAction(QT_TR_NOOP("Close"), &s.closeAction, sClicks, page, pinned, "Close"_s);
    m.addConfMouseAction(QT_TR_NOOP("Copy"), &s.copyAction, sClicks, page, pinned, "Copy"_s);
    m.addConfMouseAction(QT_TR_NOOP("Hide"), &s.hideAction, sClicks, page, pinned, "Hide"_s);
    m.addConfMouseAction(QT_TR_NOOP("Move"), &s.moveAction, sDrags, page, pinned, "Move"_s);
    m.addConfMouseAction(QT_TR_NOOP("Draw"), &s.drawAction, sDrags, page, pinned, "Draw"_s);
}

void Declare::output(MtConfManage &m, Settings &s)
{
    const QString page = "Output"_s;
    const QString image = "Image"_s;
    m.addConfStrWithCombobox(QT_TR_NOOP("Format"), {"PNG"_s, "JPEG"_s, "WebP"_s, "BMP"_s},
                             &s.format, page, image, "Format"_s);
    addNumber(m, QT_TR_NOOP("Quality"), &s.quality, {1, 100}, page, image, "Quality"_s)
        ->setSuffix(" %");
    addNumber(m, QT_TR_NOOP("Size"), &s.scale, {10, 400}, page, image, "Scale"_s)->setSuffix(" %");

    // An editor of the program: it also edits the sub-item.
    ConfItem *watermark = m.addConfQString(QT_TR_NOOP("Watermark"), &s.watermark, page, image,
                                           "Watermark"_s, &WatermarkEditor::create);
    watermark->subConfs.insert(WatermarkEditor::opacityName(),
                               ConfItem(&s.watermarkOpacity, page, image, "WatermarkOpacity"_s));

    const QString after = "After a capture"_s;
    m.addConfBool(QT_TR_NOOP("Copy it"), &s.copyAfterCapture, page, after, "Copy"_s);
    m.addConfBool(QT_TR_NOOP("Save it"), &s.saveAfterCapture, page, after, "Save"_s);
    m.addConfBool(QT_TR_NOOP("Open it in the editor"), &s.openAfterCapture, page, after, "Open"_s);
}

void Declare::texts(MtConfManage &m, Settings &s)
{
    const QString page = "Texts"_s;
    m.addConfText(QT_TR_NOOP("Author"), &s.author, page, "Author"_s)
        ->setPlaceholder(QT_TR_NOOP("Your name"))
        ->setHelp(QT_TR_NOOP("Pictures contain it if the details include the author."));
    m.addConfMultilineText(QT_TR_NOOP("Note"), &s.note, page, "Note"_s);
    m.addConfPassword(QT_TR_NOOP("Token for uploads"), &s.uploadToken, page, "Token"_s);
    m.addConfStringList(QT_TR_NOOP("Tags"), &s.tags, page, "Tags"_s);

    using MtConf::PathKind;
    const QString files = "Files"_s;
    m.addConfPath(QT_TR_NOOP("Folder"), &s.folder, PathKind::Folder, page, files, "Folder"_s);
    m.addConfPath(QT_TR_NOOP("Logo"), &s.logo, PathKind::ExistingFile, page, files, "Logo"_s,
                  QT_TR_NOOP("Pictures (*.png *.svg)"));
    m.addConfPath(QT_TR_NOOP("Log file"), &s.logFile, PathKind::NewFile, page, files, "LogFile"_s);
}

void Declare::numbers(MtConfManage &m, Settings &s)
{
    const QString page = "Numbers"_s;
    m.addConfDouble(QT_TR_NOOP("Brightness"), &s.brightness, page, "Brightness"_s)
        ->setRange(0.25, 4)
        ->setStep(0.25)
        ->setSuffix(" ×");
    m.addConfInt32(QT_TR_NOOP("Margin"), &s.margin, page, "Margin"_s)
        ->setRange(0, 64, MtConf::Enforced)
        ->setSuffix(QT_TR_NOOP(" px"));
    m.addConfDuration(QT_TR_NOOP("Save every"), &s.autosave, page, "Autosave"_s)
        ->setRange(std::chrono::seconds(5), std::chrono::minutes(10));
    m.addConfDateTime(QT_TR_NOOP("Remind me"), &s.reminder, page, "Reminder"_s);
}

void Declare::choices(MtConfManage &m, Settings &s)
{
    using Choice::FileName;
    const QString page = "Choices"_s;
    m.addConfEnum(QT_TR_NOOP("Name of the file"),
                  {{FileName::Time, QT_TR_NOOP("Date and time")},
                   {FileName::Number, QT_TR_NOOP("Number")},
                   {FileName::Window, QT_TR_NOOP("Title of the window")}},
                  &s.fileName, page, "FileName"_s);
    m.addConfEnum(QT_TR_NOOP("Details in the file"),
                  {{Choice::Author, QT_TR_NOOP("Author")},
                   {Choice::Time, QT_TR_NOOP("Date and time")},
                   {Choice::Position, QT_TR_NOOP("Position")}},
                  &s.details, page, "Details"_s)
        ->setMultiSelect();

    const QString network = "Network"_s;
    ConfItem *proxy = m.addConfBool(QT_TR_NOOP("Use a proxy"), &s.useProxy, page, network,
                                    "Proxy"_s);
    m.addConfText(QT_TR_NOOP("Host"), &s.proxyHost, page, network, "Host"_s)
        ->dependsOn(proxy, true)
        ->setValidator([](const QJsonValue &host) {
            return host.toString().contains(QLatin1Char(' ')) ? tr("A host has no blanks.")
                                                              : QString();
        });
    m.addConfInt32(QT_TR_NOOP("Port"), &s.proxyPort, page, network, "Port"_s)
        ->setRange(1, 65535)
        ->dependsOn(proxy, true);
}

void Declare::system(MtConfManage &m, Settings &s)
{
    const QString page = "System"_s;
    m.addConfBool(QT_TR_NOOP("Allow simple global hotkeys"), &s.simpleHotkeys, page,
                  "SimpleHotkeys"_s);
    m.addConfBool(QT_TR_NOOP("Show expert settings"), &s.showExpert, page, "ShowExpert"_s);
    addNumber(m, QT_TR_NOOP("Steps that can be undone"), &s.undoSteps, {1, 500}, page,
              "UndoSteps"_s);
    m.addConfBool(QT_TR_NOOP("Bring pinned pictures back at start"), &s.restorePins, page,
                  "RestorePins"_s);

    makeExpert(
        addNumber(m, QT_TR_NOOP("Cache (MB)"), &s.cacheSize, {16, 4096}, page, "CacheSize"_s));
    makeExpert(addNumber(m, QT_TR_NOOP("Threads that compress"), &s.workerThreads, {1, 16}, page,
                         "Threads"_s));
    makeExpert(m.addConfBool(QT_TR_NOOP("Draw with the graphics card"), &s.hardwareDrawing, page,
                             "HardwareDrawing"_s));
    makeExpert(m.addConfBool(QT_TR_NOOP("Show times of drawing"), &s.debugOverlay, page,
                             "DebugOverlay"_s));

    // The last setting must not be a hidden one: the window draws a line below every other setting.
    m.addConfBool(QT_TR_NOOP("Write a log file"), &s.logToFile, page, "LogToFile"_s);
    m.itemFilter = [&s](ConfItem &) { return s.showExpert; };
}

} // namespace

QStringList pageNames()
{
    QStringList names;
    for (const char *name : sPageNames)
        names.append(QString::fromUtf8(name));
    return names;
}

void declareSettings(MtConfManage &manager, Settings &settings, const ProgramActions &actions)
{
    MtConf::ConfigItemWidget::sFullKeyboardAccess = true;
    Declare::general(manager, settings);
    Declare::appearance(manager, settings);
    Declare::capture(manager, settings);
    Declare::hotkeys(manager, settings, actions);
    Declare::mouse(manager, settings);
    Declare::output(manager, settings);
    Declare::texts(manager, settings);
    Declare::numbers(manager, settings);
    Declare::choices(manager, settings);
    // The session sets the widgets of the pages "Profiles" and "Stored data".
    manager.setConfigClassFlag("Profiles"_s, MtConf::ClassWithoutRestoreButton);
    Declare::system(manager, settings);
    manager.setConfigClassFlag("Stored data"_s, MtConf::ClassWithoutRestoreButton);
}
