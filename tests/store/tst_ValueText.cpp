#include "MaltoConfiguration/store/ValueText_p.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <QFont>

/// The texts of values in files. Every expected text is one that Qt 5.15 writes and reads.
class tst_ValueText : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void fontTextHasTheFormOfQt5_data();
    void fontTextHasTheFormOfQt5();
    void fontsAreWrittenInTheFormOfQt5_data();
    void fontsAreWrittenInTheFormOfQt5();
    void fontTextSurvivesReadingAndWriting_data();
    void fontTextSurvivesReadingAndWriting();
    void bothFormsGiveTheSameFont();
    void textThatIsNoFontIsLogged_data();
    void textThatIsNoFontIsLogged();
    void namedWeightsAreExact_data();
    void namedWeightsAreExact();
    void everyWeightOfQt5ComesBackFromQt6();
    void weightsOutOfRangeAreLimited();
    void keysAreWrittenAndReadAsInQt5_data();
    void keysAreWrittenAndReadAsInQt5();
    void modifierAloneIsReadAsUnknownKey_data();
    void modifierAloneIsReadAsUnknownKey();
    void colorsAreThoseOfQt5_data();
    void colorsAreThoseOfQt5();
};

void tst_ValueText::fontTextHasTheFormOfQt5_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("qt5Text");
    const auto same = [](const char *text) { QTest::newRow(text) << text << text; };
    const auto row = [](const char *text, const char *qt5Text) {
        QTest::newRow(text) << text << qt5Text;
    };
    same("Sans");
    same("Sans,9");
    same("Sans,9,-1,5,50,0,0,0,0,0");
    same("Sans,9,-1,5,75,1,0,0,0,0,Bold Italic");
    same("Noto Sans CJK SC,-1,21,5,50,0,0,0,0,0");
    row("Sans,12,-1,5,700,0,0,0,0,0,0,0,0,0,0,1", "Sans,12,-1,5,75,0,0,0,0,0");
    row("Sans,10.5,-1,5,400,1,1,1,1,0,0,0,0,0,0,1,Italic", "Sans,10.5,-1,5,50,1,1,1,1,0,Italic");
    row("Sans,-1,13,2,100,2,0,0,0,0,1,1,12.5,3,150,4", "Sans,-1,13,2,0,2,0,0,0,0");
    row("Sans,9,5,50,0,0,0,0,0", "Sans,9,-1,5,50,0,0,0,0,0");
    row("Sans,9,5,75,3,1,0,1,1", "Sans,9,-1,5,75,1,1,0,1,1");
    // Neither.
    row("", nullptr);
    row(" ", nullptr);
    row(",12", nullptr);
    row("Sans,9,-1", nullptr);
    row("1,2,3,4,5,6,7,8", nullptr);
    row("1,2,3,4,5,6,7,8,9,10,11,12", nullptr);
    row("1,2,3,4,5,6,7,8,9,10,11,12,13,14,15", nullptr);
    row("1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18", nullptr);
}

void tst_ValueText::fontTextHasTheFormOfQt5()
{
    QFETCH(QString, text);
    QFETCH(QString, qt5Text);
    QCOMPARE(toQt5FontText(text), qt5Text);
    QCOMPARE(toQt5FontText(text).isNull(), qt5Text.isNull());
}

void tst_ValueText::fontsAreWrittenInTheFormOfQt5_data()
{
    QTest::addColumn<QFont>("font");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *text, const std::function<void(QFont &)> &change) {
        QFont font("Sans", 12);
        change(font);
        QTest::newRow(text) << font << text;
    };
    row("Sans,12,-1,5,50,0,0,0,0,0", [](QFont &) {});
    row("Sans,12,-1,5,75,0,0,0,0,0", [](QFont &font) { font.setBold(true); });
    row("Sans,12,-1,5,25,0,0,0,0,0", [](QFont &font) { font.setWeight(QFont::Light); });
    row("Sans,12,-1,5,87,0,0,0,0,0", [](QFont &font) { font.setWeight(QFont::Black); });
    row("Sans,12,-1,5,50,1,0,0,0,0", [](QFont &font) { font.setItalic(true); });
    row("Sans,12,-1,5,50,2,0,0,0,0", [](QFont &font) { font.setStyle(QFont::StyleOblique); });
    row("Sans,12,-1,5,50,0,1,1,1,0", [](QFont &font) {
        font.setUnderline(true);
        font.setStrikeOut(true);
        font.setFixedPitch(true);
    });
    row("Sans,-1,17,5,50,0,0,0,0,0", [](QFont &font) { font.setPixelSize(17); });
    row("Sans,10.25,-1,5,50,0,0,0,0,0", [](QFont &font) { font.setPointSizeF(10.25); });
    row("Sans,12,-1,2,50,0,0,0,0,0", [](QFont &font) { font.setStyleHint(QFont::TypeWriter); });
    row("Sans,12,-1,5,50,0,0,0,0,0,Condensed", [](QFont &font) { font.setStyleName("Condensed"); });
    // Not quoted, so that readers take the parts for fields of their own.
    row("A,B,12,-1,5,50,0,0,0,0,0", [](QFont &font) { font.setFamily("A,B"); });
    row("\"A\",12,-1,5,50,0,0,0,0,0", [](QFont &font) { font.setFamily("\"A\""); });
    row(",12,-1,5,50,0,0,0,0,0", [](QFont &font) { font.setFamily(""); });
    row("Sans,12,-1,5,50,0,0,0,0,0,Wide,Bold", [](QFont &font) { font.setStyleName("Wide,Bold"); });
    // What the form has no place for.
    row("Sans,12,-1,5,50,0,0,0,0,0", [](QFont &font) {
        font.setStretch(QFont::Condensed);
        font.setCapitalization(QFont::AllUppercase);
        font.setLetterSpacing(QFont::AbsoluteSpacing, 2);
        font.setWordSpacing(3);
        font.setStyleStrategy(QFont::NoAntialias);
        font.setKerning(false);
        font.setOverline(true);
    });
}

void tst_ValueText::fontsAreWrittenInTheFormOfQt5()
{
    QFETCH(QFont, font);
    QTEST(toFontText(font), "text");
}

void tst_ValueText::fontTextSurvivesReadingAndWriting_data()
{
    QTest::addColumn<QString>("text");
    for (int weight = 0; weight <= 99; ++weight) {
        const QString text = QString("Sans,12,-1,5,%1,0,0,0,0,0").arg(weight);
        QTest::newRow(qPrintable(text)) << text;
    }
    for (const char *text :
         {"Sans,-1,21,5,50,0,0,0,0,0", "Sans,10.5,-1,5,75,1,1,1,1,0",
          "Sans,9,-1,5,50,2,0,0,0,0,Oblique", "Noto Sans,9,-1,0,50,0,0,0,0,0,Condensed Light"})
        QTest::newRow(text) << text;
}

void tst_ValueText::fontTextSurvivesReadingAndWriting()
{
    QFETCH(QString, text);
    QFont font("Serif", 33);
    QVERIFY(readFontText(text, &font));
    QCOMPARE(toFontText(font), text);
}

void tst_ValueText::bothFormsGiveTheSameFont()
{
    const LogCapture log;
    QFont font;
    QVERIFY(readFontText("Sans,12,-1,5,600,1,0,1,0,0,3,1,2,1,75,2,Demi", &font));
    QFont same;
    QVERIFY(readFontText("Sans,12,-1,5,63,1,0,1,0,0,Demi", &same));
    QCOMPARE(font, same);
    QCOMPARE(font.weight(), QFont::DemiBold);
    QCOMPARE(font.styleName(), QString("Demi"));
    QCOMPARE(font.capitalization(), QFont::MixedCase);
    QVERIFY(log.messages().isEmpty());
}

void tst_ValueText::textThatIsNoFontIsLogged_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("logged");
    QTest::newRow("empty") << ""
                           << "(empty)";
    QTest::newRow("three fields") << "Sans,9,-1"
                                  << "Sans,9,-1";
    QTest::newRow("twelve fields") << "a,1,2,3,4,5,6,7,8,9,10,11"
                                   << "a,1,2,3,4,5,6,7,8,9,10,11";
    QTest::newRow("no family") << ",9"
                               << ",9";
}

void tst_ValueText::textThatIsNoFontIsLogged()
{
    QFETCH(QString, text);
    QFETCH(QString, logged);
    const LogCapture log;
    QFont font("Serif", 33);
    QVERIFY(!readFontText(text, &font));
    QCOMPARE(font, QFont("Serif", 33));
    QCOMPARE(log.texts(QtWarningMsg),
             QStringList("QFont::fromString: Invalid description '" + logged + "'"));
}

void tst_ValueText::namedWeightsAreExact_data()
{
    QTest::addColumn<int>("qt5");
    QTest::addColumn<int>("openType");
    QTest::newRow("thin") << 0 << 100;
    QTest::newRow("extra light") << 12 << 200;
    QTest::newRow("light") << 25 << 300;
    QTest::newRow("normal") << 50 << 400;
    QTest::newRow("medium") << 57 << 500;
    QTest::newRow("demi bold") << 63 << 600;
    QTest::newRow("bold") << 75 << 700;
    QTest::newRow("extra bold") << 81 << 800;
    QTest::newRow("black") << 87 << 900;
    QTest::newRow("between two names") << 69 << 650;
}

void tst_ValueText::namedWeightsAreExact()
{
    QFETCH(int, qt5);
    QFETCH(int, openType);
    QCOMPARE(openTypeWeight(qt5), openType);
    QCOMPARE(qt5Weight(openType), qt5);
}

void tst_ValueText::everyWeightOfQt5ComesBackFromQt6()
{
    for (int weight = 0; weight <= 99; ++weight)
        QCOMPARE(qt5Weight(openTypeWeight(weight)), weight);
}

void tst_ValueText::weightsOutOfRangeAreLimited()
{
    QCOMPARE(openTypeWeight(-5), 100);
    QCOMPARE(openTypeWeight(700), 1000);
    QCOMPARE(qt5Weight(1), 0);
    QCOMPARE(qt5Weight(5000), 99);
}

void tst_ValueText::keysAreWrittenAndReadAsInQt5_data()
{
    QTest::addColumn<QKeySequence>("keys");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("readBack");
    const auto same = [](const char *text, const QKeySequence &keys) {
        QTest::newRow(text) << keys << text << text;
    };
    same("", QKeySequence());
    same("Ctrl+A, Shift+Tab, Num+Enter, Meta+Volume Up",
         QKeySequence(int(Qt::CTRL) | int(Qt::Key_A), int(Qt::SHIFT) | int(Qt::Key_Tab),
                      int(Qt::KeypadModifier) | int(Qt::Key_Enter),
                      int(Qt::META) | int(Qt::Key_VolumeUp)));
    // Qt 6 writes and reads the names of modifiers.
    const auto lost = [](const char *name, const QKeySequence &keys, const QString &text,
                         const QString &readBack) {
        QTest::newRow(name) << keys << text << readBack;
    };
    const QString shift = QString(QChar(0x17c0)) + QChar(0xdc20);
    const QString alt = QString(QChar(0x17c0)) + QChar(0xdc23);
    lost("shift", QKeySequence(int(Qt::Key_Shift)), shift, "");
    lost("alt with modifiers", QKeySequence(int(Qt::SHIFT) | int(Qt::CTRL) | int(Qt::Key_Alt)),
         "Ctrl+Shift+" + alt, "");
    lost("among other chords",
         QKeySequence(int(Qt::Key_A), int(Qt::CTRL) | int(Qt::Key_Shift), int(Qt::Key_F5)),
         "A, Ctrl+" + shift + ", F5", "A, , F5");
}

void tst_ValueText::keysAreWrittenAndReadAsInQt5()
{
    QFETCH(QKeySequence, keys);
    QFETCH(QString, text);
    QCOMPARE(toKeysText(keys), text);
    QTEST(toKeysText(readKeysText(text)), "readBack");
}

void tst_ValueText::modifierAloneIsReadAsUnknownKey_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QKeySequence>("keys");
    const int unknown = Qt::Key_unknown;
    QTest::newRow("alone") << "Shift" << QKeySequence(unknown);
    QTest::newRow("with a modifier") << "Ctrl+Alt" << QKeySequence(unknown);
    QTest::newRow("among other chords")
        << "A, Ctrl+Meta, B, Alt" << QKeySequence(Qt::Key_A, unknown, Qt::Key_B, unknown);
    QTest::newRow("a key with a modifier") << "Shift+A" << QKeySequence(Qt::SHIFT | Qt::Key_A);
}

void tst_ValueText::modifierAloneIsReadAsUnknownKey()
{
    QFETCH(QString, text);
    QTEST(readKeysText(text), "keys");
}

void tst_ValueText::colorsAreThoseOfQt5_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<uint>("rgba");
    const auto row = [](const char *name, const QColor &color, uint rgba) {
        QTest::newRow(name) << color << rgba;
    };
    row("opaque", QColor(1, 2, 3), 0xff010203);
    row("translucent", QColor(1, 2, 3, 4), 0x04010203);
    row("hue and saturation", QColor::fromHsv(1, 148, 170, 77), 0x4daa4947);
    row("grey", QColor::fromHsv(-1, 0, 170), 0xffaaaaaa);
    row("hue and lightness", QColor::fromHsl(200, 100, 60, 9), 0x09244454);
    row("black of a hue", QColor::fromHsl(200, 100, 0), 0xff000000);
    row("of printing", QColor::fromCmyk(10, 20, 30, 40, 50), 0x32cfc6be);
    row("of 16 bits", QColor::fromRgba64(0x12ff, 0x80ff, 0xffff, 0x7fff), 0x7f1380ff);
    // Qt 6 itself makes these differ by one.
    row("where Qt 6 rounds a hue up", QColor::fromHsv(1, 45, 170, 77), 0x4daa8c8c);
    row("where Qt 6 rounds a hue down", QColor::fromHsv(1, 135, 170, 77), 0x4daa5250);
    row("where Qt 6 rounds a lightness up", QColor::fromHsl(1, 45, 170, 77), 0x4db99b9b);
    row("where Qt 6 rounds a lightness down", QColor::fromHsl(1, 51, 75, 77), 0x4d5a3d3c);
}

void tst_ValueText::colorsAreThoseOfQt5()
{
    QFETCH(QColor, color);
    QFETCH(uint, rgba);
    QCOMPARE(QString::number(toRgba(color), 16), QString::number(rgba, 16));
}

int main(int argc, char **argv)
{
    return runTest<tst_ValueText>(argc, argv);
}

#include "tst_ValueText.moc"
