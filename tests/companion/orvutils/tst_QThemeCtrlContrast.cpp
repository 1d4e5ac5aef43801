#include <OrvUtils/QThemeCtrl.h>

#include "support/Contrast.h"
#include "support/TestMain.h"

#include <QPalette>
#include <QSignalSpy>

namespace {

using Contrast = QThemeCtrl::Contrast;
using Theme = QThemeCtrl::Theme;

/// Returns a palette with these colours in windows and fields.
QPalette paletteOf(const QColor &ground, const QColor &text, const QColor &highlight)
{
    QPalette palette(text, ground, text, text, text, text, text, ground, ground);
    palette.setColor(QPalette::Highlight, highlight);
    palette.setColor(QPalette::HighlightedText, ground);
    return palette;
}

} // namespace

/// The colours of the modern look while the palette of the system has a high contrast.
class tst_QThemeCtrlContrast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanupTestCase();
    void ordinaryPaletteHasTheColoursOfTheTheme_data();
    void ordinaryPaletteHasTheColoursOfTheTheme();
    void paletteOfHighContrastGivesTheColours();
    void otherPaletteOfHighContrastIsAnnounced();
    void classicColoursStayTheSame();
    void highlightThatIsHardToSeeIsNotUsed();
    void contrastCanBeSet();
    void normalContrastIsNotThatOfTheSystem();
    void selectedThemeKeepsItsBrightness();

private:
    QThemeCtrl *mTheme = nullptr;
};

void tst_QThemeCtrlContrast::init()
{
    mTheme = QThemeCtrl::instance();
    mTheme->setTheme(Theme::System);
    mTheme->setContrast(Contrast::System);
    QApplication::setPalette(QPalette(QColor(230, 230, 230)));
}

void tst_QThemeCtrlContrast::cleanupTestCase()
{
    init();
}

void tst_QThemeCtrlContrast::ordinaryPaletteHasTheColoursOfTheTheme_data()
{
    QTest::addColumn<QPalette>("palette");
    QTest::addColumn<QString>("ground");
    QTest::newRow("black on light grey") // as Qt's own style has it
        << paletteOf(QColor(0xef, 0xef, 0xef), Qt::black, Qt::blue) << "#f3f4f6";
    QTest::newRow("white on dark grey")
        << paletteOf(QColor(50, 50, 50), Qt::white, Qt::blue) << "#1c1d20";
    QPalette fields = paletteOf(Qt::white, Qt::black, Qt::blue);
    fields.setColor(QPalette::Base, QColor(230, 230, 230));
    QTest::newRow("only windows have a high contrast") << fields << "#f3f4f6";
}

void tst_QThemeCtrlContrast::ordinaryPaletteHasTheColoursOfTheTheme()
{
    QFETCH(const QPalette, palette);
    QFETCH(const QString, ground);
    QApplication::setPalette(palette);
    QVERIFY(!mTheme->isHighContrast());
    QCOMPARE(mTheme->value("ModernGround"), ground);
}

void tst_QThemeCtrlContrast::paletteOfHighContrastGivesTheColours()
{
    QSignalSpy spy(mTheme, &QThemeCtrl::sigThemeChanged);
    QApplication::setPalette(paletteOf(Qt::black, Qt::white, Qt::cyan));
    QVERIFY(mTheme->isHighContrast());
    QCOMPARE(spy.size(), 1);
    QCOMPARE(mTheme->value("ModernGround"), QString("#000000"));
    QCOMPARE(mTheme->value("ModernPanel"), QString("#000000"));
    QCOMPARE(mTheme->value("ModernText"), QString("#ffffff"));
    QCOMPARE(mTheme->value("ModernFieldLine"), QString("#ffffff"));
    QCOMPARE(mTheme->value("ModernAccent"), QString("#00ffff"));
    QCOMPARE(mTheme->value("ModernOnAccent"), QString("#000000"));
    QCOMPARE(mTheme->expandMacros("var(ModernText)", 1), QString("#ffffff"));
}

void tst_QThemeCtrlContrast::otherPaletteOfHighContrastIsAnnounced()
{
    QApplication::setPalette(paletteOf(Qt::black, Qt::white, Qt::cyan));
    QSignalSpy spy(mTheme, &QThemeCtrl::sigThemeChanged);
    QApplication::setPalette(paletteOf(Qt::black, Qt::white, Qt::yellow));
    QCOMPARE(spy.size(), 1);
    QCOMPARE(mTheme->value("ModernAccent"), QString("#ffff00"));
}

void tst_QThemeCtrlContrast::classicColoursStayTheSame()
{
    const QString before = mTheme->value("ColorBg0");
    QApplication::setPalette(paletteOf(Qt::white, Qt::black, Qt::darkBlue));
    QVERIFY(mTheme->isHighContrast());
    QCOMPARE(mTheme->value("ColorBg0"), before);
}

void tst_QThemeCtrlContrast::highlightThatIsHardToSeeIsNotUsed()
{
    QApplication::setPalette(paletteOf(Qt::white, Qt::black, QColor("#9ad0ff")));
    QCOMPARE(mTheme->value("ModernAccent"), QString("#000000"));
    QCOMPARE(mTheme->value("ModernOnAccent"), QString("#ffffff"));
}

void tst_QThemeCtrlContrast::contrastCanBeSet()
{
    QSignalSpy spy(mTheme, &QThemeCtrl::sigThemeChanged);
    mTheme->setContrast(Contrast::High);
    QCOMPARE(mTheme->contrast(), Contrast::High);
    QVERIFY(mTheme->isHighContrast());
    QCOMPARE(spy.size(), 1);
    QCOMPARE(mTheme->value("ModernGround"), QString("#ffffff"));
    mTheme->setTheme(Theme::Dark);
    QCOMPARE(mTheme->value("ModernGround"), QString("#000000"));
    mTheme->setContrast(Contrast::Normal);
    QVERIFY(!mTheme->isHighContrast());
    QCOMPARE(mTheme->value("ModernGround"), QString("#1c1d20"));
}

void tst_QThemeCtrlContrast::normalContrastIsNotThatOfTheSystem()
{
    mTheme->setContrast(Contrast::Normal);
    QApplication::setPalette(paletteOf(Qt::black, Qt::white, Qt::cyan));
    QVERIFY(!mTheme->isHighContrast());
    QCOMPARE(mTheme->value("ModernGround"), QString("#1c1d20"));
}

void tst_QThemeCtrlContrast::selectedThemeKeepsItsBrightness()
{
    QApplication::setPalette(paletteOf(Qt::black, Qt::white, Qt::cyan));
    mTheme->setTheme(Theme::Light);
    QVERIFY(mTheme->isHighContrast());
    QCOMPARE(mTheme->value("ModernGround"), QString("#ffffff"));
    QCOMPARE(mTheme->value("ModernText"), QString("#000000"));
}

int main(int argc, char **argv)
{
    return runTest<tst_QThemeCtrlContrast>(argc, argv);
}

#include "tst_QThemeCtrlContrast.moc"
