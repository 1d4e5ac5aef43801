#include "MacKeys_p.h"

#include "support/TestMain.h"

class tst_MacKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void chordBecomesKeyCodeAndModifiers_data();
    void chordBecomesKeyCodeAndModifiers();
    void unknownKeyHasNoCode_data();
    void unknownKeyHasNoCode();
    void everyLetterAndDigitHasAUniqueCode();
    void controlAndMetaAreNotSwappedOnRequest_data();
    void controlAndMetaAreNotSwappedOnRequest();
};

void tst_MacKeys::chordBecomesKeyCodeAndModifiers_data()
{
    QTest::addColumn<int>("chord");
    QTest::addColumn<quint32>("code");
    QTest::addColumn<quint32>("modifiers");

    const auto row = [](const char *name, int chord, quint32 code, quint32 modifiers) {
        QTest::newRow(name) << chord << code << modifiers;
    };
    row("letter", Qt::Key_A, 0x00, 0);
    row("controlIsCommand", int(Qt::CTRL) + Qt::Key_K, 0x28, 0x100);
    row("shift", int(Qt::SHIFT) + Qt::Key_Z, 0x06, 0x200);
    row("altIsOption", int(Qt::ALT) + Qt::Key_M, 0x2e, 0x800);
    row("metaIsControl", int(Qt::META) + Qt::Key_Q, 0x0c, 0x1000);
    row("allModifiers", int(Qt::CTRL) + int(Qt::SHIFT) + int(Qt::ALT) + int(Qt::META) + Qt::Key_0,
        0x1d, 0x1b00);
    row("symbolNeedsShift", int(Qt::CTRL) + Qt::Key_Exclam, 0x12, 0x300);
    row("symbolWithShiftIsTheSame", int(Qt::CTRL) + int(Qt::SHIFT) + Qt::Key_Exclam, 0x12, 0x300);
    row("braceIsAShiftedBracket", Qt::Key_BraceRight, 0x1e, 0x200);
    row("space", Qt::Key_Space, 0x31, 0);
    row("backspace", Qt::Key_Backspace, 0x33, 0);
    row("forwardDelete", Qt::Key_Delete, 0x75, 0);
    row("f1", Qt::Key_F1, 0x7a, 0);
    row("f12", Qt::Key_F12, 0x6f, 0);
    row("f20", Qt::Key_F20, 0x5a, 0);
    row("arrow", Qt::Key_Up, 0x7e, 0);
    row("arrowWithKeypadModifier", int(Qt::KeypadModifier) + Qt::Key_Left, 0x7b, 0);
    row("keypadDigit", int(Qt::KeypadModifier) + Qt::Key_5, 0x57, 0);
    row("keypadNine", int(Qt::KeypadModifier) + Qt::Key_9, 0x5c, 0);
    row("keypadPlusNeedsNoShift", int(Qt::KeypadModifier) + Qt::Key_Plus, 0x45, 0);
    row("enterIsOnTheKeypad", Qt::Key_Enter, 0x4c, 0);
    row("backtabIsShiftTab", Qt::Key_Backtab, 0x30, 0x200);
}

void tst_MacKeys::chordBecomesKeyCodeAndModifiers()
{
    QFETCH(int, chord);
    QFETCH(quint32, code);
    QFETCH(quint32, modifiers);
    const auto combinations = macKeyCombinations(chord, MacModifierNames::Swapped);
    QCOMPARE(combinations.size(), 1);
    QCOMPARE(combinations.first().key, code);
    QCOMPARE(combinations.first().modifiers, modifiers);
    QCOMPARE(combinations.first().ignored, 0U);
}

void tst_MacKeys::unknownKeyHasNoCode_data()
{
    QTest::addColumn<int>("chord");
    QTest::newRow("zero") << 0;
    QTest::newRow("unknown") << int(Qt::Key_unknown);
    QTest::newRow("modifierAlone") << int(Qt::SHIFT) + Qt::Key_Shift;
    QTest::newRow("keyMissingOnTheKeyboard") << int(Qt::Key_F21);
    QTest::newRow("letterOfAnotherAlphabet") << 0x0424;
    QTest::newRow("groupSwitch") << int(Qt::GroupSwitchModifier) + Qt::Key_A;
    QTest::newRow("allBits") << -1;
}

void tst_MacKeys::unknownKeyHasNoCode()
{
    QFETCH(int, chord);
    QVERIFY(macKeyCombinations(chord, MacModifierNames::Swapped).isEmpty());
}

void tst_MacKeys::everyLetterAndDigitHasAUniqueCode()
{
    QSet<quint32> codes;
    for (int key = Qt::Key_A; key <= Qt::Key_Z; ++key)
        codes.insert(macKeyCombinations(key, MacModifierNames::Swapped).value(0).key);
    for (int key = Qt::Key_0; key <= Qt::Key_9; ++key)
        codes.insert(macKeyCombinations(key, MacModifierNames::Swapped).value(0).key);
    QCOMPARE(codes.size(), 36);
}

void tst_MacKeys::controlAndMetaAreNotSwappedOnRequest_data()
{
    QTest::addColumn<int>("chord");
    QTest::addColumn<quint32>("modifiers");
    QTest::newRow("control") << int(Qt::CTRL) + Qt::Key_A << 0x1000U;
    QTest::newRow("metaIsCommand") << int(Qt::META) + Qt::Key_A << 0x0100U;
    QTest::newRow("shift") << int(Qt::SHIFT) + Qt::Key_A << 0x0200U;
    QTest::newRow("altIsOption") << int(Qt::ALT) + Qt::Key_A << 0x0800U;
}

void tst_MacKeys::controlAndMetaAreNotSwappedOnRequest()
{
    QFETCH(int, chord);
    const auto combinations = macKeyCombinations(chord, MacModifierNames::AsOnKeys);
    QCOMPARE(combinations.size(), 1);
    QTEST(combinations.first().modifiers, "modifiers");
}

int main(int argc, char **argv)
{
    return runTest<tst_MacKeys>(argc, argv);
}

#include "tst_MacKeys.moc"
