#pragma once

#include <MaltoConfiguration/store/JsonForm.h>

#include <QColor>
#include <QDateTime>
#include <QDir>
#include <QFont>
#include <QKeySequence>
#include <QObject>
#include <QString>
#include <QStringList>
#include <Qt>

#include <chrono>

/// The types of settings that are chosen by name.
namespace Choice {
Q_NAMESPACE

/// How a saved picture is named.
enum class FileName { Time, Number, Window };
Q_ENUM_NS(FileName)

/// What a picture contains beside its pixels.
enum Detail { Author = 0x1, Time = 0x2, Position = 0x4 };
Q_DECLARE_FLAGS(Details, Detail)
Q_FLAG_NS(Details)
Q_DECLARE_OPERATORS_FOR_FLAGS(Details)

} // namespace Choice

template<> struct MtConf::JsonForm<Choice::FileName> : MtConf::JsonByName<Choice::FileName>
{
};
template<> struct MtConf::JsonForm<Choice::Details> : MtConf::JsonByName<Choice::Details>
{
};

/// The settings of the program: one plain variable for each, initialised with its default.
///
/// The rest of the program just reads these variables. `declareSettings` binds them to the library,
/// which writes them when a file is loaded, or when the user changes or restores a setting. So the
/// object must keep its address, and outlive its keys in the store.
struct Settings
{
    // General
    QString language = QStringLiteral("auto"); ///< the code of the interface language
    bool startAtLogin = false;
    bool showTrayIcon = true;
    bool playSound = true;
    bool showTips = true;
    int recentCaptures = 20; ///< the number of captures in the menu
    bool checkUpdates = true;
    int updateInterval = 7; ///< days
    bool betaUpdates = false;

    // Appearance
    int theme = 0; ///< a `QThemeCtrl::Theme`: system, light, dark
    QColor frameColor{0x2a, 0x67, 0xd8};
    int frameWidth = 2;               ///< pixels
    QColor shadeColor{0, 0, 0, 0x73}; ///< covers the area that is not selected
    bool showMagnifier = true;
    int magnifierZoom = 4; ///< times
    bool showSize = true;
    QFont labelFont = pixelFont(14);
    QColor labelColor{Qt::white};

    // Capture
    int delay = 0; ///< seconds
    bool countdown = true;
    bool includePointer = false;
    bool includeShadow = true;
    bool freezeScreen = true;
    int frameRate = 30;          ///< frames per second
    int snapTargets = 0x1 | 0x2; ///< bits: window edges, screen edges, guides, last area
    int snapDistance = 8;        ///< pixels

    // Hotkeys
    QKeySequence captureArea{Qt::CTRL | Qt::ALT | Qt::Key_A};
    QKeySequence captureWindow{Qt::CTRL | Qt::ALT | Qt::Key_W};
    QKeySequence captureScreen{Qt::CTRL | Qt::ALT | Qt::Key_S};
    QKeySequence pinClipboard{Qt::CTRL | Qt::ALT | Qt::Key_V};
    QKeySequence pickColor;
    bool hotkeysInFullScreen = false;
    int repeatDelay = 400; ///< milliseconds

    QKeySequence showSettings{Qt::CTRL | Qt::Key_Comma};
    QKeySequence saveNow{Qt::CTRL | Qt::Key_S};
    QKeySequence quit{Qt::CTRL | Qt::Key_Q};

    // Mouse: an action bit and `Qt::KeyboardModifier` bits
    int zoomAction = 0x04000000 | 64;    ///< the wheel with Ctrl (Command on macOS)
    int opacityAction = 0x02000000 | 64; ///< the wheel with Shift
    int menuAction = 4;                  ///< a right click
    int closeAction = 8;                 ///< a right double click, which conflicts with the menu
    int copyAction = 16;                 ///< a middle click
    int hideAction = 0;                  ///< none
    int moveAction = 128;                ///< dragging
    int drawAction = 256;                ///< dragging with the right button
    bool doubleClickFinishes = true;
    bool invertWheel = false;
    int dragThreshold = 4; ///< pixels

    // Output
    QString format = QStringLiteral("PNG");
    int quality = 90;          ///< percent
    int scale = 100;           ///< percent
    QString watermark;         ///< empty for none
    int watermarkOpacity = 40; ///< percent
    bool copyAfterCapture = true;
    bool saveAfterCapture = false;
    bool openAfterCapture = false;

    // Texts
    QString author;
    QString note;
    QString uploadToken;
    QStringList tags{QStringLiteral("screen")};
    QString folder = QDir::homePath();
    QString logo;
    QString logFile;

    // Numbers
    double brightness = 1; ///< times
    int margin = 8;        ///< pixels
    std::chrono::seconds autosave{30};
    QDateTime reminder;

    // Choices
    Choice::FileName fileName = Choice::FileName::Time;
    Choice::Details details = Choice::Author | Choice::Time;
    bool useProxy = false;
    QString proxyHost;
    int proxyPort = 8080;

    // System
    bool simpleHotkeys = false; ///< whether a letter alone may be a hotkey
    bool showExpert = false;    ///< whether the expert settings are shown
    int undoSteps = 50;
    bool restorePins = true;
    bool logToFile = false;
    int cacheSize = 256; ///< megabytes
    int workerThreads = 2;
    bool hardwareDrawing = true;
    bool debugOverlay = false;

private:
    static QFont pixelFont(int size)
    {
        QFont font(QStringLiteral("Helvetica"));
        font.setPixelSize(size);
        return font;
    }
};
