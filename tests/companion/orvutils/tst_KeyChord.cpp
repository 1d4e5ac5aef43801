#include "KeyChord_p.h"

#include "support/TestMain.h"

/// Key events of all platforms' keyboards, tested on every platform.
class tst_KeyChord : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pressedKeyIsConvertedToAChord_data();
    void pressedKeyIsConvertedToAChord();
};

void tst_KeyChord::pressedKeyIsConvertedToAChord_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<int>("onPc");
    QTest::addColumn<int>("onMac");

    const auto row = [](const char *name, int key, int modifiers, int onPc, int onMac) {
        QTest::newRow(name) << key << modifiers << onPc << onMac;
    };
    const auto same = [row](const char *name, int key, int modifiers, int chord) {
        row(name, key, modifiers, chord, chord);
    };
    const int keypad = Qt::KeypadModifier;
    const int control = Qt::ControlModifier;
    // macOS reports its arrow keys like this. On a PC this event comes from the keypad.
    row("left", Qt::Key_Left, keypad, 0x21000012, 0x01000012);
    row("up", Qt::Key_Up, keypad, 0x21000013, 0x01000013);
    row("right", Qt::Key_Right, keypad, 0x21000014, 0x01000014);
    row("down", Qt::Key_Down, keypad, 0x21000015, 0x01000015);
    row("command and left", Qt::Key_Left, keypad | control, 0x25000012, 0x05000012);
    row("all modifiers and down", Qt::Key_Down, 0x3e000000, 0x3f000015, 0x1f000015);
    same("left without the keypad", Qt::Key_Left, control, 0x05000012);
    same("home of the keypad", Qt::Key_Home, keypad, 0x21000010);
    same("page down of the keypad", Qt::Key_PageDown, keypad, 0x21000017);
    same("digit of the keypad", Qt::Key_5, keypad | control, 0x24000035);
    same("enter of the keypad", Qt::Key_Enter, keypad, 0x21000005);
    same("clear of the keypad", Qt::Key_Clear, keypad, 0x2100000b);
    same("letter", Qt::Key_K, control | int(Qt::ShiftModifier), 0x0600004b);
    same("shift and backtab", Qt::Key_Backtab, Qt::ShiftModifier, 0x03000001);
    same("modifier key", Qt::Key_Control, control, 0x01000021);
    same("group switch", Qt::Key_A, Qt::GroupSwitchModifier, 0x41);
    same("no key", 0, control, 0);
    same("negative key", -1, keypad, 0);
    same("unknown key", Qt::Key_unknown, keypad, 0);
}

void tst_KeyChord::pressedKeyIsConvertedToAChord()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QTEST(keyChord(key, Qt::KeyboardModifiers(modifiers), KeyboardKind::Pc), "onPc");
    QTEST(keyChord(key, Qt::KeyboardModifiers(modifiers), KeyboardKind::Mac), "onMac");
}

int main(int argc, char **argv)
{
    return runTest<tst_KeyChord>(argc, argv);
}

#include "tst_KeyChord.moc"
