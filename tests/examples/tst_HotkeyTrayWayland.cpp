#include "FakeDesktop.h"
#include "HotkeyTray.h"
#include "support/TestMain.h"

#include <memory>

/// The example "hotkey-tray" on a Wayland compositor, with the portal of the system and a desktop
/// of the test's own behind it.
class tst_HotkeyTrayWayland : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void theHotkeyShowsTheWindow();
    void theDesktopChoosesTheKeys();
    void theUserRefuses();
    void theDesktopHasNoHotkeys();
    void thereIsNoSessionBus();
    void thePortalIsRestarted();

private:
    void start();
    void activate(const QString &token = {})
    {
        mDesktop->activate("show", {{"activation_token", token}});
    }

    std::unique_ptr<PrivateBus> mBus;
    std::unique_ptr<FakeDesktop> mDesktop;
    std::unique_ptr<HotkeyTray> mTray;
};

void tst_HotkeyTrayWayland::initTestCase()
{
    if (!QGuiApplication::platformName().startsWith("wayland"))
        QSKIP("needs a Wayland compositor");
}

void tst_HotkeyTrayWayland::init()
{
    mBus = std::make_unique<PrivateBus>();
    mDesktop = std::make_unique<FakeDesktop>(*mBus);
    mDesktop->start();
}

void tst_HotkeyTrayWayland::cleanup()
{
    mTray.reset();
    mDesktop.reset();
    mBus.reset();
}

void tst_HotkeyTrayWayland::start()
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DBUS_SESSION_BUS_ADDRESS", mBus->address());
    mTray = std::make_unique<HotkeyTray>(environment);
}

void tst_HotkeyTrayWayland::theHotkeyShowsTheWindow()
{
    start();
    QVERIFY(mTray->prints("Press Granted keys to show the notepad."));
    QCOMPARE(mDesktop->boundIds(), QStringList("show"));
    QCOMPARE(mDesktop->bound[0].properties, QVariantMap({{"description", "Show the notepad"},
                                                         {"preferred_trigger", "CTRL+ALT+h"}}));
    activate("token-1");
    QVERIFY(mTray->prints("shown, token token-1"));
}

void tst_HotkeyTrayWayland::theDesktopChoosesTheKeys()
{
    mDesktop->trigger = "Super+N";
    start();
    QVERIFY(mTray->prints("Press Super+N to show the notepad."));
    mDesktop->changeKeys("show", "Super+M");
    QVERIFY(mTray->prints("Press Super+M to show the notepad."));
    mDesktop->changeKeys("show", "");
    QVERIFY(mTray->prints("The desktop has assigned no keys."));
}

void tst_HotkeyTrayWayland::theUserRefuses()
{
    mDesktop->user = FakeDesktop::User::Refuses;
    start();
    QVERIFY(mTray->prints("The desktop has assigned no keys."));
}

void tst_HotkeyTrayWayland::theDesktopHasNoHotkeys()
{
    mDesktop->hideHotkeys();
    start();
    QVERIFY(mTray->prints("This desktop has no hotkeys. Click the icon in the tray."));
}

void tst_HotkeyTrayWayland::thereIsNoSessionBus()
{
    mTray = std::make_unique<HotkeyTray>(QProcessEnvironment::systemEnvironment());
    QVERIFY(mTray->prints("This desktop has no hotkeys. Click the icon in the tray."));
}

void tst_HotkeyTrayWayland::thePortalIsRestarted()
{
    start();
    QVERIFY(mTray->prints("Press Granted keys to show the notepad."));
    mDesktop->killPortal();
    QVERIFY(mTray->prints("Waiting for the desktop…"));
    QVERIFY(mTray->prints("Press Granted keys to show the notepad."));
    activate();
    QVERIFY(mTray->prints("shown, token "));
}

int main(int argc, char **argv)
{
    return runTest<tst_HotkeyTrayWayland>(argc, argv);
}

#include "tst_HotkeyTrayWayland.moc"
