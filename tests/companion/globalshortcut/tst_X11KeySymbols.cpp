#include "X11KeySymbols_p.h"

#include "support/TestMain.h"

class tst_X11KeySymbols : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keyHasItsSymbol_data();
    void keyHasItsSymbol();
    void capitalHasItsSymbol_data();
    void capitalHasItsSymbol();
    void unknownKeyHasNoSymbol_data();
    void unknownKeyHasNoSymbol();
};

void tst_X11KeySymbols::keyHasItsSymbol_data()
{
    QTest::addColumn<int>("chord");
    QTest::addColumn<quint32>("symbol");

    const auto row = [](const char *name, int chord, quint32 symbol) {
        QTest::newRow(name) << chord << symbol;
    };
    constexpr int keypad = Qt::KeypadModifier;
    row("letterIsLowerCase", Qt::Key_A, 0x61);
    row("modifiersDoNotMatter", int(Qt::CTRL) + int(Qt::SHIFT) + Qt::Key_Z, 0x7a);
    row("digit", Qt::Key_7, 0x37);
    row("symbol", Qt::Key_Exclam, 0x21);
    row("space", Qt::Key_Space, 0x20);
    row("latinLetter", Qt::Key_Adiaeresis, 0xe4);
    row("latinLetterWithoutUpperCase", Qt::Key_ssharp, 0xdf);
    row("multiplicationSign", Qt::Key_multiply, 0xd7);
    row("cyrillicByUnicode", 0x0424, 0x01000444);
    row("cyrillicLegacyKeysym", 0x0424, 0x6c6);
    row("cyrillicYoLegacyKeysym", 0x0401, 0x6a3);
    row("greekLegacyKeysym", 0x0391, 0x7e1);
    row("greekSigmaLegacyKeysym", 0x03a3, 0x7f2);
    row("greekAlphaWithAccentLegacyKeysym", 0x03ac, 0x7b1);
    row("ukrainianLegacyKeysym", 0x0406, 0x6a6);
    row("arabicLegacyKeysym", 0x0628, 0x5c8);
    row("latvianLegacyKeysym", 0x0112, 0x3ba);
    row("czechLegacyKeysym", 0x011a, 0x1ec);
    row("turkishLegacyKeysym", 0x011e, 0x2bb);
    row("hebrewLegacyKeysym", 0x05d0, 0xce0);
    row("euro", 0x20ac, 0x010020ac);
    row("euroLegacyKeysym", 0x20ac, 0x20ac);
    row("quotationMarkLegacyKeysym", 0x201e, 0xafe);
    row("arrowLegacyKeysym", 0x2192, 0x8fd);
    row("ligatureLegacyKeysym", 0x0152, 0x13bd);
    row("beyondTheBasicPlane", 0x1f600, 0x0101f600);
    row("f1", Qt::Key_F1, 0xffbe);
    row("f12", Qt::Key_F12, 0xffc9);
    row("f35", Qt::Key_F35, 0xffe0);
    row("escape", Qt::Key_Escape, 0xff1b);
    row("backspace", Qt::Key_Backspace, 0xff08);
    row("backtab", Qt::Key_Backtab, 0xfe20);
    row("return", Qt::Key_Return, 0xff0d);
    row("enterIsOnTheKeypad", Qt::Key_Enter, 0xff8d);
    row("delete", Qt::Key_Delete, 0xffff);
    row("print", Qt::Key_Print, 0xff61);
    row("sysReqIsThePrintKey", Qt::Key_SysReq, 0xff61);
    row("pause", Qt::Key_Pause, 0xff13);
    row("left", Qt::Key_Left, 0xff51);
    row("pageDown", Qt::Key_PageDown, 0xff56);
    row("menu", Qt::Key_Menu, 0xff67);
    row("keypadDigit", keypad + Qt::Key_5, 0xffb5);
    row("keypadNine", keypad + Qt::Key_9, 0xffb9);
    row("keypadPlus", keypad + Qt::Key_Plus, 0xffab);
    row("keypadDecimalPoint", keypad + Qt::Key_Period, 0xffae);
    row("keypadMiddleWithoutNumLock", keypad + Qt::Key_Clear, 0xff9d);
    row("keypadLeft", keypad + Qt::Key_Left, 0xff96);
    row("keypadEnter", keypad + Qt::Key_Enter, 0xff8d);
    row("volumeUp", Qt::Key_VolumeUp, 0x1008ff13);
    row("mute", Qt::Key_VolumeMute, 0x1008ff12);
    row("mediaPlay", Qt::Key_MediaPlay, 0x1008ff14);
    row("mediaNext", Qt::Key_MediaNext, 0x1008ff17);
    row("cycleTrack", Qt::Key_AudioCycleTrack, 0x1008ff9b);
    row("mail", Qt::Key_LaunchMail, 0x1008ff19);
    row("launchKeysAreOffsetByTwo", Qt::Key_Launch4, 0x1008ff42);
    row("lastLaunchKey", Qt::Key_LaunchH, 0x1008ff4f);
    row("hangul", Qt::Key_Hangul, 0xff31);
}

void tst_X11KeySymbols::keyHasItsSymbol()
{
    QFETCH(int, chord);
    QFETCH(quint32, symbol);
    QVERIFY(x11KeySymbols(chord).contains(symbol));
}

void tst_X11KeySymbols::capitalHasItsSymbol_data()
{
    QTest::addColumn<int>("chord");
    QTest::addColumn<QVector<xcb_keysym_t>>("symbols");
    using Symbols = QVector<xcb_keysym_t>;
    QTest::newRow("latin") << int(Qt::CTRL) + Qt::Key_A << Symbols{0x41};
    QTest::newRow("greek") << 0x03a9 << Symbols{0x010003a9, 0x7d9};
    QTest::newRow("cyrillic") << 0x0424 << Symbols{0x01000424};
    QTest::newRow("letterWithoutCapital") << int(Qt::Key_ssharp) << Symbols();
    QTest::newRow("digit") << int(Qt::Key_1) << Symbols();
    QTest::newRow("functionKey") << int(Qt::Key_F1) << Symbols();
    QTest::newRow("keypad") << int(Qt::KeypadModifier) + Qt::Key_A << Symbols();
}

void tst_X11KeySymbols::capitalHasItsSymbol()
{
    QFETCH(int, chord);
    QTEST(x11CapitalSymbols(chord), "symbols");
}

void tst_X11KeySymbols::unknownKeyHasNoSymbol_data()
{
    QTest::addColumn<int>("chord");
    QTest::newRow("zero") << 0;
    QTest::newRow("modifiersWithoutKey") << int(Qt::CTRL) + int(Qt::ALT);
    QTest::newRow("unknown") << int(Qt::Key_unknown);
    QTest::newRow("controlCharacter") << 0x1b;
    QTest::newRow("afterTilde") << 0x7f;
    QTest::newRow("c1ControlCharacter") << 0x85;
    QTest::newRow("beyondUnicode") << 0x110000;
    QTest::newRow("shiftAlone") << int(Qt::Key_Shift);
    QTest::newRow("metaAlone") << int(Qt::META) + Qt::Key_Meta;
    QTest::newRow("altGrAlone") << int(Qt::Key_AltGr);
    QTest::newRow("deadAcute") << int(Qt::Key_Dead_Acute);
    QTest::newRow("phoneKey") << int(Qt::Key_Hangup);
    QTest::newRow("keyMissingOnTheKeypad") << int(Qt::KeypadModifier) + Qt::Key_A;
    QTest::newRow("allBits") << -1;
}

void tst_X11KeySymbols::unknownKeyHasNoSymbol()
{
    QFETCH(int, chord);
    QCOMPARE(x11KeySymbols(chord), QVector<xcb_keysym_t>());
}

int main(int argc, char **argv)
{
    return runTest<tst_X11KeySymbols>(argc, argv);
}

#include "tst_X11KeySymbols.moc"
