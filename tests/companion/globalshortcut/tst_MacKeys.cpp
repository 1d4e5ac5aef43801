#include "MacKeys_p.h"

#include "MacLayouts.h"
#include "support/TestMain.h"

#include <tuple>

Q_DECLARE_METATYPE(MacLayout)

namespace {

QVector<KeyCombination> ansiCombinations(int chord, MacModifierNames names)
{
    return macKeyCombinations(chord, names, macAnsiLayout());
}

constexpr quint32 sShift = 0x200;
constexpr quint32 sOption = 0x800;
constexpr quint32 sCommand = 0x100;
constexpr quint32 sCommandShift = sCommand | sShift;
constexpr quint32 sCommandOption = sCommand | sOption;

} // namespace

class tst_MacKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void chordBecomesKeyCodeAndModifiers_data();
    void chordBecomesKeyCodeAndModifiers();
    void unknownKeyHasNoCode_data();
    void unknownKeyHasNoCode();
    void chordOfALayoutBecomesKeyCodeAndModifiers_data();
    void chordOfALayoutBecomesKeyCodeAndModifiers();
    void symbolThatALayoutLacksHasNoCode_data();
    void symbolThatALayoutLacksHasNoCode();
    void everyKeyWithTheSymbolIsUsed();
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
    for (const auto &[name, key, code] :
         {std::tuple("left", Qt::Key_Left, 0x7bU), std::tuple("right", Qt::Key_Right, 0x7cU),
          std::tuple("down", Qt::Key_Down, 0x7dU), std::tuple("up", Qt::Key_Up, 0x7eU)}) {
        QTest::addRow("%sArrowIsNotAKeypadKey", name)
            << int(Qt::KeypadModifier) + int(Qt::META) + key << code << 0x1000U;
    }
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
    const auto combinations = ansiCombinations(chord, MacModifierNames::Swapped);
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
    QTest::newRow("mediaKey") << int(Qt::Key_VolumeUp);
    QTest::newRow("letterOnTheKeypad") << int(Qt::KeypadModifier) + Qt::Key_A;
    QTest::newRow("escapeOnTheKeypad") << int(Qt::KeypadModifier) + Qt::Key_Escape;
    QTest::newRow("groupSwitch") << int(Qt::GroupSwitchModifier) + Qt::Key_A;
    QTest::newRow("allBits") << -1;
}

void tst_MacKeys::unknownKeyHasNoCode()
{
    QFETCH(int, chord);
    QVERIFY(ansiCombinations(chord, MacModifierNames::Swapped).isEmpty());
}

void tst_MacKeys::chordOfALayoutBecomesKeyCodeAndModifiers_data()
{
    QTest::addColumn<MacLayout>("layout");
    QTest::addColumn<int>("chord");
    QTest::addColumn<quint32>("code");
    QTest::addColumn<quint32>("modifiers");

    const auto row = [](const char *name, const MacLayout &layout, int chord, quint32 code,
                        quint32 modifiers) {
        QTest::newRow(name) << layout << chord << code << modifiers;
    };
    constexpr int command = int(Qt::CTRL);
    constexpr int commandShift = int(Qt::CTRL) + int(Qt::SHIFT);
    row("azertyA", azertyLayout(), command + Qt::Key_A, 0x0c, sCommand);
    row("azertyM", azertyLayout(), command + Qt::Key_M, 0x29, sCommand);
    row("azertyDigitNeedsShift", azertyLayout(), command + Qt::Key_1, 0x12, sCommandShift);
    row("azertyRecordedDigit", azertyLayout(), commandShift + Qt::Key_1, 0x12, sCommandShift);
    row("azertyAmpersand", azertyLayout(), command + Qt::Key_Ampersand, 0x12, sCommand);
    row("azertyAccent", azertyLayout(), command + 0xc9, 0x13, sCommand);
    row("azertyBraceNeedsOption", azertyLayout(), command + Qt::Key_BraceLeft, 0x17,
        sCommandOption);
    row("azertyKeyOfEuropeanKeyboards", azertyLayout(), command + Qt::Key_At, 0x0a, sCommand);
    row("azertyReturn", azertyLayout(), command + Qt::Key_Return, 0x24, sCommand);
    row("azertyKeypadDigit", azertyLayout(), command + int(Qt::KeypadModifier) + Qt::Key_1, 0x53,
        sCommand);
    row("qwertzZ", qwertzLayout(), command + Qt::Key_Z, 0x10, sCommand);
    row("qwertzY", qwertzLayout(), command + Qt::Key_Y, 0x06, sCommand);
    row("qwertzUmlaut", qwertzLayout(), command + Qt::Key_Udiaeresis, 0x21, sCommand);
    row("qwertzSharpS", qwertzLayout(), command + Qt::Key_ssharp, 0x1b, sCommand);
    row("qwertzAtNeedsOption", qwertzLayout(), command + Qt::Key_At, 0x25, sCommandOption);
    row("qwertzBackslashNeedsShiftAndOption", qwertzLayout(), command + Qt::Key_Backslash, 0x1a,
        sCommandOption | sShift);
    row("qwertzPlusNeedsNoShift", qwertzLayout(), Qt::Key_Plus, 0x1e, 0);
    row("qwertzCapitalWithoutSmallLetter", qwertzLayout(), command + 0x03a9, 0x10, sCommandOption);
    row("dvorakK", dvorakLayout(), command + Qt::Key_K, 0x09, sCommand);
    row("dvorakPeriod", dvorakLayout(), command + Qt::Key_Period, 0x0e, sCommand);
    row("dvorakWithoutCommand", dvorakQwertyLayout(), int(Qt::META) + Qt::Key_K, 0x09, 0x1000);
    row("qwertyWithCommand", dvorakQwertyLayout(), command + Qt::Key_K, 0x28, sCommand);
    row("cyrillicLetter", russianLayout(), command + 0x0424, 0x00, sCommand);
    row("cyrillicLetterWithShift", russianLayout(), int(Qt::SHIFT) + 0x0424, 0x00, sShift);
    row("cyrillicNumeroNeedsShift", russianLayout(), int(Qt::ALT) + 0x2116, 0x14, sOption | sShift);
    row("latinLetterWithCommand", russianLayout(), command + Qt::Key_K, 0x28, sCommand);
    row("latinLetterWithoutCommand", russianLayout(), int(Qt::META) + Qt::Key_K, 0x28, 0x1000);
    row("latinLetterOfALayoutWithoutThem", russianOnlyLayout(), command + Qt::Key_Z, 0x06,
        sCommand);
    row("bracketOfALayoutWithoutLatinLetters", russianOnlyLayout(), command + Qt::Key_BraceLeft,
        0x21, sCommandShift);
    row("periodOfALayoutWithoutLatinLetters", russianOnlyLayout(), command + Qt::Key_Period, 0x1a,
        sCommandShift);
}

void tst_MacKeys::chordOfALayoutBecomesKeyCodeAndModifiers()
{
    QFETCH(MacLayout, layout);
    QFETCH(int, chord);
    const auto combinations = macKeyCombinations(chord, MacModifierNames::Swapped, layout);
    QCOMPARE(combinations.size(), 1);
    QTEST(combinations.first().key, "code");
    QTEST(combinations.first().modifiers, "modifiers");
}

void tst_MacKeys::symbolThatALayoutLacksHasNoCode_data()
{
    QTest::addColumn<MacLayout>("layout");
    QTest::addColumn<int>("chord");
    QTest::newRow("accentOnAnAmericanKeyboard") << macAnsiLayout() << 0xc9;
    QTest::newRow("bracketOnThisAzertyKeyboard") << azertyLayout() << int(Qt::Key_BracketLeft);
    QTest::newRow("cyrillicLetterOnAGermanKeyboard") << qwertzLayout() << 0x0424;
    QTest::newRow("greekLetterOnACyrillicKeyboard") << russianLayout() << 0x0391;
}

void tst_MacKeys::symbolThatALayoutLacksHasNoCode()
{
    QFETCH(MacLayout, layout);
    QFETCH(int, chord);
    QVERIFY(macKeyCombinations(chord, MacModifierNames::Swapped, layout).isEmpty());
}

void tst_MacKeys::everyKeyWithTheSymbolIsUsed()
{
    MacLayout layout = macAnsiLayout();
    layout.keys[0x0a][0] = '\\';
    layout.keys[0x5d][MacLayout::sShift] = '\\';
    const auto combinations = macKeyCombinations(Qt::Key_Backslash, MacModifierNames::Swapped,
                                                 layout);
    const QVector<KeyCombination> expected{{0x0a, 0, 0}, {0x2a, 0, 0}};
    QCOMPARE(combinations, expected);
}

void tst_MacKeys::everyLetterAndDigitHasAUniqueCode()
{
    QSet<quint32> codes;
    for (int key = Qt::Key_A; key <= Qt::Key_Z; ++key)
        codes.insert(ansiCombinations(key, MacModifierNames::Swapped).value(0).key);
    for (int key = Qt::Key_0; key <= Qt::Key_9; ++key)
        codes.insert(ansiCombinations(key, MacModifierNames::Swapped).value(0).key);
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
    const auto combinations = ansiCombinations(chord, MacModifierNames::AsOnKeys);
    QCOMPARE(combinations.size(), 1);
    QTEST(combinations.first().modifiers, "modifiers");
}

int main(int argc, char **argv)
{
    return runTest<tst_MacKeys>(argc, argv);
}

#include "tst_MacKeys.moc"
