#include "support/TestMain.h"

#include <PortalTrigger_p.h>

/// The keys of a hotkey in the words of the desktop portal.
class tst_PortalTrigger : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keysHaveTheNamesOfTheKeyboard_data();
    void keysHaveTheNamesOfTheKeyboard();
};

void tst_PortalTrigger::keysHaveTheNamesOfTheKeyboard_data()
{
    QTest::addColumn<int>("chord");
    QTest::addColumn<QString>("trigger");
    const auto row = [](const char *name, int chord, const char *trigger) {
        QTest::newRow(name) << chord << QString(trigger);
    };
    const int control = static_cast<int>(Qt::ControlModifier);
    const int alt = static_cast<int>(Qt::AltModifier);
    const int shift = static_cast<int>(Qt::ShiftModifier);
    const int meta = static_cast<int>(Qt::MetaModifier);
    const int keypad = static_cast<int>(Qt::KeypadModifier);
    row("a letter is in lower case", Qt::Key_K, "k");
    row("with Shift too", shift | Qt::Key_K, "SHIFT+k");
    row("the modifiers have one order", meta | shift | alt | control | Qt::Key_K,
        "CTRL+ALT+SHIFT+LOGO+k");
    row("digit", control | Qt::Key_1, "CTRL+1");
    row("plus is a word", control | Qt::Key_Plus, "CTRL+plus");
    row("space", alt | Qt::Key_Space, "ALT+space");
    row("punctuation", Qt::Key_BracketLeft, "bracketleft");
    row("Latin letter", control | Qt::Key_Adiaeresis, "CTRL+adiaeresis");
    row("Cyrillic letter", control | 0x424, "CTRL+Cyrillic_ef");
    row("letter without a name", control | 0x905, "CTRL+U0905");
    row("function key", Qt::Key_F5, "F5");
    row("the last function key", Qt::Key_F35, "F35");
    row("Return", control | Qt::Key_Return, "CTRL+Return");
    row("Page Up", Qt::Key_PageUp, "Prior");
    row("Print", Qt::Key_Print, "Print");
    row("keypad digit", control | keypad | Qt::Key_5, "CTRL+KP_5");
    row("keypad plus", keypad | Qt::Key_Plus, "KP_Add");
    row("media key", Qt::Key_MediaPlay, "XF86AudioPlay");
    row("volume key", Qt::Key_VolumeUp, "XF86AudioRaiseVolume");
    row("modifier alone", Qt::Key_Shift, "");
    row("unknown key", Qt::Key_unknown, "");
    row("no key", 0, "");
}

void tst_PortalTrigger::keysHaveTheNamesOfTheKeyboard()
{
    QFETCH(const int, chord);
    QTEST(portalTrigger(chord), "trigger");
}

int main(int argc, char **argv)
{
    return runTest<tst_PortalTrigger>(argc, argv);
}

#include "tst_PortalTrigger.moc"
