#include "declareSettings.h"

#include "Settings.h"
#include "WatermarkEditor.h"

#include <MaltoConfiguration/manage/MtConfManage.h>
#include <MaltoConfiguration/widgets/ConfDefWidgetQKeySequence.h>
#include <MaltoConfiguration/widgets/KeySequenceEdit.h>

#include <QxtGlobalShortcut>

using MtConf::ConfItem;
using MtConf::MtConfManage;

// Every setting of the program, page by page: its label, its variable, its page and its name. A
// third name puts a setting into the group that the second one names.
//
// The library translates labels and choices when it shows them, in the context "QObject", and the
// names of pages and groups in the context "MtConf::ConfigurationWindow": lupdate finds the marks.

namespace {

const char *const sPageNames[] = {
    QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "General"),
    QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Appearance"),
    QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Capture"),
    QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Hotkeys"),
    QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Mouse"),
    QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Output"),
    QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Profiles"),
    QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "System"),
    QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Stored data"),
};

/// Lets the number of `item` go from `minimum` to `maximum`.
ConfItem *range(ConfItem *item, int minimum, int maximum)
{
    item->properties.insert(QStringLiteral("MinValue"), minimum);
    item->properties.insert(QStringLiteral("MaxValue"), maximum);
    return item;
}

/// Shows `item` only to those who asked for the expert settings.
ConfItem *expert(ConfItem *item)
{
    item->flags |= MtConf::ItemIsFiltered;
    return item;
}

/// Makes the hotkey of `item` work while other programs have the keyboard. `owner` owns it.
void makeGlobal(ConfItem *item, QObject *owner)
{
    item->properties.insert(QStringLiteral("Shortcut"),
                            QVariant::fromValue(new QxtGlobalShortcut(owner)));
}

void declareGeneral(MtConfManage &m, Settings &s)
{
    const QString page = QStringLiteral("General");
    m.addConfLanguage(QT_TRANSLATE_NOOP("QObject", "Language"), &s.language, page,
                      QStringLiteral("Language"));
    m.addConfAutoRun(QT_TRANSLATE_NOOP("QObject", "Start at login"), &s.startAtLogin, page,
                     QStringLiteral("StartAtLogin"));
    m.addConfBool(QT_TRANSLATE_NOOP("QObject", "Show icon in the menu bar"), &s.showTrayIcon, page,
                  QStringLiteral("TrayIcon"));
    m.addConfBool(QT_TRANSLATE_NOOP("QObject", "Play a sound after a capture"), &s.playSound, page,
                  QStringLiteral("Sound"));
    m.addConfBool(QT_TRANSLATE_NOOP("QObject", "Show tips"), &s.showTips, page,
                  QStringLiteral("Tips"));
    range(m.addConfInt32(QT_TRANSLATE_NOOP("QObject", "Recent captures in the menu"),
                         &s.recentCaptures, page, QStringLiteral("Recent")),
          0, 50);

    const QString updates = QStringLiteral(
        QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Updates"));
    m.addConfBool(QT_TRANSLATE_NOOP("QObject", "Check for updates"), &s.checkUpdates, page, updates,
                  QStringLiteral("Check"));
    range(m.addConfInt32(QT_TRANSLATE_NOOP("QObject", "Check interval (days)"), &s.updateInterval,
                         page, updates, QStringLiteral("Interval")),
          1, 90);
    m.addConfBool(QT_TRANSLATE_NOOP("QObject", "Offer beta versions"), &s.betaUpdates, page,
                  updates, QStringLiteral("Beta"));
}

void declareAppearance(MtConfManage &m, Settings &s)
{
    const QString page = QStringLiteral("Appearance");
    m.addConfInt32WithCombobox(QT_TRANSLATE_NOOP("QObject", "Theme"),
                               {QT_TRANSLATE_NOOP("QObject", "Like the system"),
                                QT_TRANSLATE_NOOP("QObject", "Light"),
                                QT_TRANSLATE_NOOP("QObject", "Dark")},
                               &s.theme, page, QStringLiteral("Theme"));

    const QString selection = QStringLiteral(
        QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Selection"));
    m.addConfQColor(QT_TRANSLATE_NOOP("QObject", "Frame"), &s.frameColor, page, selection,
                    QStringLiteral("FrameColor"));
    range(m.addConfInt32(QT_TRANSLATE_NOOP("QObject", "Width of the frame (px)"), &s.frameWidth,
                         page, selection, QStringLiteral("FrameWidth")),
          1, 20);
    m.addConfQColor(QT_TRANSLATE_NOOP("QObject", "Shade outside"), &s.shadeColor, page, selection,
                    QStringLiteral("ShadeColor"));

    const QString magnifier = QStringLiteral(
        QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Magnifier"));
    m.addConfBool(QT_TRANSLATE_NOOP("QObject", "Show magnifier"), &s.showMagnifier, page, magnifier,
                  QStringLiteral("Show"));
    m.addConfInt32WithCombobox(QT_TRANSLATE_NOOP("QObject", "Magnification"),
                               {"2 ×", "4 ×", "8 ×", "16 ×"}, {2, 4, 8, 16}, &s.magnifierZoom, page,
                               magnifier, QStringLiteral("Zoom"));

    const QString label = QStringLiteral(
        QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Size label"));
    m.addConfBool(QT_TRANSLATE_NOOP("QObject", "Show size beside the selection"), &s.showSize, page,
                  label, QStringLiteral("Show"));
    m.addConfQFont(QT_TRANSLATE_NOOP("QObject", "Font"), &s.labelFont, page, label,
                   QStringLiteral("Font"));
    m.addConfQColor(QT_TRANSLATE_NOOP("QObject", "Colour"), &s.labelColor, page, label,
                    QStringLiteral("Color"));
}

void declareCapture(MtConfManage &m, Settings &s)
{
    const QString page = QStringLiteral("Capture");
    range(m.addConfInt32(QT_TRANSLATE_NOOP("QObject", "Delay before a capture (s)"), &s.delay, page,
                         QStringLiteral("Delay")),
          0, 60);
    m.addConfBool(QT_TRANSLATE_NOOP("QObject", "Count down on the screen"), &s.countdown, page,
                  QStringLiteral("Countdown"));
    m.addConfBool(QT_TRANSLATE_NOOP("QObject", "Include the mouse pointer"), &s.includePointer,
                  page, QStringLiteral("Pointer"));
    m.addConfBool(QT_TRANSLATE_NOOP("QObject", "Include the shadow of windows"), &s.includeShadow,
                  page, QStringLiteral("Shadow"));
    m.addConfBool(QT_TRANSLATE_NOOP("QObject", "Freeze the screen while selecting"),
                  &s.freezeScreen, page, QStringLiteral("Freeze"));
    m.addConfInt32WithCombobox(QT_TRANSLATE_NOOP("QObject", "Frames per second of videos"),
                               {"10", "24", "30", "60"}, {10, 24, 30, 60}, &s.frameRate, page,
                               QStringLiteral("FrameRate"));

    const QString snapping = QStringLiteral(
        QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Snapping"));
    ConfItem *targets = m.addConfInt32WithCombobox(
        QT_TRANSLATE_NOOP("QObject", "Snap to"),
        {QT_TRANSLATE_NOOP("QObject", "Windows"), QT_TRANSLATE_NOOP("QObject", "Screen edges"),
         QT_TRANSLATE_NOOP("QObject", "Guides"), QT_TRANSLATE_NOOP("QObject", "Last selection")},
        {0x1, 0x2, 0x4, 0x8}, &s.snapTargets, page, snapping, QStringLiteral("Targets"));
    targets->properties.insert(QStringLiteral("MultiSelect"), true);
    range(m.addConfInt32(QT_TRANSLATE_NOOP("QObject", "Distance (px)"), &s.snapDistance, page,
                         snapping, QStringLiteral("Distance")),
          0, 50);
}

void declareHotkeys(MtConfManage &m, Settings &s)
{
    const QString page = QStringLiteral("Hotkeys");
    m.addConfBool(QT_TRANSLATE_NOOP("QObject", "Hotkeys in full-screen applications"),
                  &s.hotkeysInFullScreen, page, QStringLiteral("FullScreen"));
    range(m.addConfInt32(QT_TRANSLATE_NOOP("QObject", "Repeat delay (ms)"), &s.repeatDelay, page,
                         QStringLiteral("RepeatDelay")),
          0, 2000);

    // The usual editor, told whether it may take a letter alone.
    const MtConf::WidgetCreator editor = [&s](ConfItem *item, QWidget *parent) {
        MtConf::ConfigItemWidget *made = MtConf::ConfDefWidgetQKeySequence::CreatConfWidget(item,
                                                                                            parent);
        if (auto *field = made->findChild<KeySequenceEdit *>())
            field->allowSimpleHotkey = s.simpleHotkeys;
        return made;
    };
    const QString capture = QStringLiteral(
        QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Capture"));
    makeGlobal(m.addConfQKeySequence(QT_TRANSLATE_NOOP("QObject", "Capture an area"),
                                     &s.captureArea, page, capture, QStringLiteral("Area"), editor),
               &m);
    makeGlobal(m.addConfQKeySequence(QT_TRANSLATE_NOOP("QObject", "Capture a window"),
                                     &s.captureWindow, page, capture, QStringLiteral("Window"),
                                     editor),
               &m);
    makeGlobal(m.addConfQKeySequence(QT_TRANSLATE_NOOP("QObject", "Capture the screen"),
                                     &s.captureScreen, page, capture, QStringLiteral("Screen"),
                                     editor),
               &m);

    const QString tools = QStringLiteral(QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Tools"));
    makeGlobal(m.addConfQKeySequence(QT_TRANSLATE_NOOP("QObject", "Pin the clipboard"),
                                     &s.pinClipboard, page, tools, QStringLiteral("Pin"), editor),
               &m);
    makeGlobal(m.addConfQKeySequence(QT_TRANSLATE_NOOP("QObject", "Pick a colour"), &s.pickColor,
                                     page, tools, QStringLiteral("PickColor"), editor),
               &m);
}

void declareMouse(MtConfManage &m, Settings &s)
{
    const QString page = QStringLiteral("Mouse");
    m.addConfBool(QT_TRANSLATE_NOOP("QObject", "Double-click to finish"), &s.doubleClickFinishes,
                  page, QStringLiteral("DoubleClickFinishes"));
    m.addConfBool(QT_TRANSLATE_NOOP("QObject", "Invert the wheel"), &s.invertWheel, page,
                  QStringLiteral("InvertWheel"));
    range(m.addConfInt32(QT_TRANSLATE_NOOP("QObject", "Movement that begins a drag (px)"),
                         &s.dragThreshold, page, QStringLiteral("DragThreshold")),
          1, 40);

    // The number says what may be chosen: 0 the wheel, 1 clicks, 2 drags.
    const QString pinned = QStringLiteral(
        QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Pinned pictures"));
    m.addConfMouseAction(QT_TRANSLATE_NOOP("QObject", "Zoom"), &s.zoomAction, 0, page, pinned,
                         QStringLiteral("Zoom"));
    m.addConfMouseAction(QT_TRANSLATE_NOOP("QObject", "Opacity"), &s.opacityAction, 0, page, pinned,
                         QStringLiteral("Opacity"));
    m.addConfMouseAction(QT_TRANSLATE_NOOP("QObject", "Show the menu"), &s.menuAction, 1, page,
                         pinned, QStringLiteral("Menu"));
    m.addConfMouseAction(QT_TRANSLATE_NOOP("QObject", "Close"), &s.closeAction, 1, page, pinned,
                         QStringLiteral("Close"));
    m.addConfMouseAction(QT_TRANSLATE_NOOP("QObject", "Copy"), &s.copyAction, 1, page, pinned,
                         QStringLiteral("Copy"));
    m.addConfMouseAction(QT_TRANSLATE_NOOP("QObject", "Hide"), &s.hideAction, 1, page, pinned,
                         QStringLiteral("Hide"));
    m.addConfMouseAction(QT_TRANSLATE_NOOP("QObject", "Move"), &s.moveAction, 2, page, pinned,
                         QStringLiteral("Move"));
    m.addConfMouseAction(QT_TRANSLATE_NOOP("QObject", "Draw"), &s.drawAction, 2, page, pinned,
                         QStringLiteral("Draw"));
}

void declareOutput(MtConfManage &m, Settings &s)
{
    const QString page = QStringLiteral("Output");
    const QString image = QStringLiteral(QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "Image"));
    m.addConfStrWithCombobox(QT_TRANSLATE_NOOP("QObject", "Format"),
                             {QStringLiteral("PNG"), QStringLiteral("JPEG"), QStringLiteral("WebP"),
                              QStringLiteral("BMP")},
                             &s.format, page, image, QStringLiteral("Format"));
    range(m.addConfInt32(QT_TRANSLATE_NOOP("QObject", "Quality (%)"), &s.quality, page, image,
                         QStringLiteral("Quality")),
          1, 100);
    range(m.addConfInt32(QT_TRANSLATE_NOOP("QObject", "Size (%)"), &s.scale, page, image,
                         QStringLiteral("Scale")),
          10, 400);

    // A text has no editor of its own, so this one brings one; its sub-item is edited beside it.
    ConfItem *watermark = m.addConfQString(QT_TRANSLATE_NOOP("QObject", "Watermark"), &s.watermark,
                                           page, image, QStringLiteral("Watermark"),
                                           &WatermarkEditor::create);
    watermark->subConfs.insert(
        WatermarkEditor::opacityName(),
        ConfItem(&s.watermarkOpacity, page, image, QStringLiteral("WatermarkOpacity")));

    const QString after = QStringLiteral(
        QT_TRANSLATE_NOOP("MtConf::ConfigurationWindow", "After a capture"));
    m.addConfBool(QT_TRANSLATE_NOOP("QObject", "Copy it"), &s.copyAfterCapture, page, after,
                  QStringLiteral("Copy"));
    m.addConfBool(QT_TRANSLATE_NOOP("QObject", "Save it"), &s.saveAfterCapture, page, after,
                  QStringLiteral("Save"));
    m.addConfBool(QT_TRANSLATE_NOOP("QObject", "Open it in the editor"), &s.openAfterCapture, page,
                  after, QStringLiteral("Open"));
}

void declareSystem(MtConfManage &m, Settings &s)
{
    const QString page = QStringLiteral("System");
    m.addConfBool(QT_TRANSLATE_NOOP("QObject", "Allow simple global hotkeys"), &s.simpleHotkeys,
                  page, QStringLiteral("SimpleHotkeys"));
    m.addConfBool(QT_TRANSLATE_NOOP("QObject", "Show expert settings"), &s.showExpert, page,
                  QStringLiteral("ShowExpert"));
    range(m.addConfInt32(QT_TRANSLATE_NOOP("QObject", "Steps that can be undone"), &s.undoSteps,
                         page, QStringLiteral("UndoSteps")),
          1, 500);
    m.addConfBool(QT_TRANSLATE_NOOP("QObject", "Bring pinned pictures back at start"),
                  &s.restorePins, page, QStringLiteral("RestorePins"));
    expert(range(m.addConfInt32(QT_TRANSLATE_NOOP("QObject", "Cache (MB)"), &s.cacheSize, page,
                                QStringLiteral("CacheSize")),
                 16, 4096));
    expert(range(m.addConfInt32(QT_TRANSLATE_NOOP("QObject", "Threads that compress"),
                                &s.workerThreads, page, QStringLiteral("Threads")),
                 1, 16));
    expert(m.addConfBool(QT_TRANSLATE_NOOP("QObject", "Draw with the graphics card"),
                         &s.hardwareDrawing, page, QStringLiteral("HardwareDrawing")));
    expert(m.addConfBool(QT_TRANSLATE_NOOP("QObject", "Show times of drawing"), &s.debugOverlay,
                         page, QStringLiteral("DebugOverlay")));
    // Last, and always there: the window rules a line under every other setting.
    m.addConfBool(QT_TRANSLATE_NOOP("QObject", "Write a log file"), &s.logToFile, page,
                  QStringLiteral("LogToFile"));
    m.setConfigClassFlag(page, MtConf::ClassWithoutGroupBoxes);
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

void declareSettings(MtConfManage &manager, Settings &settings)
{
    MtConf::ConfigItemWidget::sFullKeyboardAccess = true;
    declareGeneral(manager, settings);
    declareAppearance(manager, settings);
    declareCapture(manager, settings);
    declareHotkeys(manager, settings);
    declareMouse(manager, settings);
    declareOutput(manager, settings);
    // Pages of the program's own making: the session gives them their widgets.
    manager.setConfigClassFlag(QStringLiteral("Profiles"), MtConf::ClassWithoutRestoreButton);
    declareSystem(manager, settings);
    manager.setConfigClassFlag(QStringLiteral("Stored data"), MtConf::ClassWithoutRestoreButton);
}
