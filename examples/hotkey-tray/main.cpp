// A notepad in the system tray. A hotkey brings it to the front, on X11, macOS and Wayland.

#include <MaltoConfiguration/MaltoConfiguration.h>

#include <QxtGlobalShortcut>

#include <QtWidgets>

/// Tells the user how to call the notepad, or why that does not work.
QString describe(const QxtGlobalShortcut &hotkey)
{
    switch (hotkey.failure()) {
    case QxtGlobalShortcut::NoFailure:
        // On Wayland the user may have chosen other keys than those of the setting.
        return QString("Press %1 to show the notepad.").arg(hotkey.trigger());
    case QxtGlobalShortcut::Pending: return "Waiting for the desktop…";
    case QxtGlobalShortcut::Empty: return "There is no hotkey.";
    case QxtGlobalShortcut::Taken: return QString("Another program uses %1.").arg(hotkey.trigger());
    case QxtGlobalShortcut::Refused: return "The desktop has assigned no keys.";
    case QxtGlobalShortcut::NotAChord:
    case QxtGlobalShortcut::NotOnKeyboard: return "This keyboard lacks the keys of the hotkey.";
    case QxtGlobalShortcut::NoBackend: break;
    }
    return "This desktop has no hotkeys. Click the icon in the tray.";
}

class Notepad : public QMainWindow
{
public:
    Notepad()
    {
        setWindowTitle("Notepad");
        setCentralWidget(new QPlainTextEdit);
        QMenu *menu = menuBar()->addMenu("File");
        menu->addAction("Settings…", this, [this] { settings.ShowWindow(); });
        menu->addAction("Quit", qApp, &QApplication::quit);

        mTray.setIcon(style()->standardIcon(QStyle::SP_FileIcon));
        mTray.setContextMenu(menu);
        mTray.show();
        connect(&mTray, &QSystemTrayIcon::activated, this,
                [this](QSystemTrayIcon::ActivationReason reason) {
                    if (reason == QSystemTrayIcon::Trigger)
                        comeForward();
                });

        // On Wayland the desktop lists the hotkey with this text, and remembers it by this name.
        hotkey.setId("show");
        hotkey.setDescription("Show the notepad");
        connect(&hotkey, &QxtGlobalShortcut::activated, this, [this] {
            // Qt passes the token to the compositor with the next activation of a window.
            if (!hotkey.activationToken().isEmpty())
                qputenv("XDG_ACTIVATION_TOKEN", hotkey.activationToken().toUtf8());
            comeForward();
        });
        connect(&hotkey, &QxtGlobalShortcut::failureChanged, this, &Notepad::showState);
        connect(&hotkey, &QxtGlobalShortcut::triggerChanged, this, &Notepad::showState);
    }

    void showState()
    {
        const QString state = describe(hotkey);
        statusBar()->showMessage(state);
        mTray.setToolTip(state);
    }

    QxtGlobalShortcut hotkey;

private:
    void comeForward()
    {
        show();
        raise();
        activateWindow();
    }

    QSystemTrayIcon mTray;

public:
    MtConf::MtConfManage settings; // destroyed first: its window uses the hotkey
};

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    app.setApplicationName("malto-hotkey-tray");
    // On Wayland the desktop must know the program: install malto-hotkey-tray.desktop, for example
    // in ~/.local/share/applications.
    app.setDesktopFileName("malto-hotkey-tray");
    app.setQuitOnLastWindowClosed(false);

    QKeySequence keys("Ctrl+Alt+H");
    Notepad notepad;
    MtConf::ConfItem *item = notepad.settings.addConfQKeySequence("Show the notepad", &keys,
                                                                  "Hotkeys", "Show");
    item->properties.insert("Shortcut", QVariant::fromValue(&notepad.hotkey));
    item->setConfChangedCallback([&notepad](const QString &, const ConfValue *value) {
        notepad.hotkey.setShortcut(value->get<QKeySequence>());
    });

    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
    QDir().mkpath(folder);
    ConfStorage::instance()->useRobustFiles();
    ConfStorage::instance()->mLocalSaveFile = folder + "/settings.json";
    ConfStorage::instance()->loadLocalConfFile();
    notepad.hotkey.setShortcut(keys);
    notepad.showState();

    // Without a tray the window is the only way to the program.
    if (!QSystemTrayIcon::isSystemTrayAvailable())
        notepad.show();
    return app.exec();
}
