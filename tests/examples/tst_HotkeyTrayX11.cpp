#include "HotkeyTray.h"
#include "support/TestMain.h"
#include "support/XClient.h"

/// The example "hotkey-tray" on an X server.
class tst_HotkeyTrayX11 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (QGuiApplication::platformName() != "xcb")
            QSKIP("needs an X server");
    }
    void theHotkeyShowsTheWindow();
    void aTakenHotkeyIsReported();
};

namespace {

constexpr xcb_keysym_t sControl = 0xffe3;
constexpr xcb_keysym_t sAlt = 0xffe9;
constexpr xcb_keysym_t sH = 'h';

} // namespace

void tst_HotkeyTrayX11::theHotkeyShowsTheWindow()
{
    XClient client;
    HotkeyTray tray(QProcessEnvironment::systemEnvironment());
    QVERIFY(tray.prints("Press Ctrl+Alt+H to show the notepad."));
    for (int i = 0; i < 2; ++i) {
        client.type({sControl, sAlt, sH});
        QVERIFY(tray.prints("shown, token "));
        tray.hideWindow();
        QVERIFY(tray.prints("hidden"));
    }
}

void tst_HotkeyTrayX11::aTakenHotkeyIsReported()
{
    XClient client;
    const xcb_keycode_t key = client.keyOf(sH);
    constexpr quint16 modifiers = XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1;
    QVERIFY(client.grab(key, modifiers));
    {
        HotkeyTray tray(QProcessEnvironment::systemEnvironment());
        QVERIFY(tray.prints("Another program uses Ctrl+Alt+H."));
    }
    client.ungrab(key, modifiers);
}

int main(int argc, char **argv)
{
    return runTest<tst_HotkeyTrayX11>(argc, argv);
}

#include "tst_HotkeyTrayX11.moc"
