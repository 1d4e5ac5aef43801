#include <OrvUtils/QThemeCtrl.h>

#include "support/Contrast.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <QPalette>
#include <QSignalSpy>

Q_DECLARE_METATYPE(QThemeCtrl::Theme)

namespace {

using Theme = QThemeCtrl::Theme;

QPalette systemPalette(bool dark)
{
    return QPalette(dark ? QColor(50, 50, 50) : QColor(230, 230, 230));
}

} // namespace

/// The themes: selecting them and following the system, their names, values and palettes.
class tst_QThemeCtrl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void everyNameIsInBothThemes();
    void colorsAreReadable_data();
    void colorsAreReadable();
    void themesDiffer();
    void selectedThemeIsApplied();
    void signalIsEmittedOnlyIfTheLookChanges();
    void systemIsFollowed();
    void systemIsNotFollowedWhileAThemeIsSelected();
    void applyingTheOwnPaletteIsNotASystemChange_data();
    void applyingTheOwnPaletteIsNotASystemChange();
    void applyingAnAdjustedOwnPaletteIsNotASystemChange();
    void slotMaySetThePaletteWhileTheSystemIsFollowed();
    void slotMaySelectAnotherTheme();
    void paletteIsBuiltFromTheNames();
    void valueCanBeSetForOneThemeOrBoth();
    void unknownNameHasNoValue();
    void colorExpandsMacros_data();
    void colorExpandsMacros();

private:
    QThemeCtrl *mTheme = nullptr;
};

void tst_QThemeCtrl::init()
{
    mTheme = QThemeCtrl::instance();
    mTheme->setTheme(Theme::System);
    QApplication::setPalette(systemPalette(false));
}

void tst_QThemeCtrl::everyNameIsInBothThemes()
{
    const QStringList colors{QStringLiteral("ColorBg0"),       QStringLiteral("ColorBg1"),
                             QStringLiteral("ColorBg1Border"), QStringLiteral("ColorBg2"),
                             QStringLiteral("ColorBg3"),       QStringLiteral("ColorBg3Border"),
                             QStringLiteral("ColorFg0"),       QStringLiteral("ColorMain"),
                             QStringLiteral("ColorSuccess"),   QStringLiteral("ColorWarning"),
                             QStringLiteral("ColorFailed"),    QStringLiteral("ColorDisable")};
    for (const Theme theme : {Theme::Light, Theme::Dark}) {
        mTheme->setTheme(theme);
        for (const QString &name : colors)
            QVERIFY2(mTheme->color(name).isValid(), qPrintable(name));
        QVERIFY(mTheme->value(QStringLiteral("FontMain")).contains(QStringLiteral("Helvetica")));
    }
}

void tst_QThemeCtrl::colorsAreReadable_data()
{
    QTest::addColumn<Theme>("theme");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("ground");
    QTest::addColumn<double>("least");
    for (const Theme theme : {Theme::Light, Theme::Dark}) {
        const auto row = [theme](const char *text, const char *ground, double least) {
            const char *const name = theme == Theme::Dark ? "dark" : "light";
            QTest::addRow("%s: %s on %s", name, text, ground)
                << theme << QString::fromLatin1(text) << QString::fromLatin1(ground) << least;
        };
        row("ColorFg0", "ColorBg0", 7);
        row("ColorFg0", "ColorBg1", 7);
        row("ColorFg0", "ColorBg2", 7);
        row("ColorFg0", "ColorBg3", 7);
        row("", "ColorMain", 4.5);
        row("ColorSuccess", "ColorBg1", 3);
        row("ColorWarning", "ColorBg1", 3);
        row("ColorFailed", "ColorBg1", 3);
        row("ColorDisable", "ColorBg1", 3);
    }
}

void tst_QThemeCtrl::colorsAreReadable()
{
    QFETCH(Theme, theme);
    QFETCH(QString, text);
    QFETCH(QString, ground);
    QFETCH(double, least);
    mTheme->setTheme(theme);
    const QColor textColor = text.isEmpty() ? QColor(Qt::white) : mTheme->color(text);
    const double reached = contrast(textColor, mTheme->color(ground));
    QVERIFY2(reached >= least, qPrintable(QString::number(reached)));
}

void tst_QThemeCtrl::themesDiffer()
{
    mTheme->setTheme(Theme::Light);
    QVERIFY(luminance(mTheme->color(QStringLiteral("ColorBg0"))) > 0.8);
    mTheme->setTheme(Theme::Dark);
    QVERIFY(luminance(mTheme->color(QStringLiteral("ColorBg0"))) < 0.05);
}

void tst_QThemeCtrl::selectedThemeIsApplied()
{
    QCOMPARE(mTheme->theme(), Theme::System);
    QVERIFY(!mTheme->isDark());
    mTheme->setTheme(Theme::Dark);
    QCOMPARE(mTheme->theme(), Theme::Dark);
    QVERIFY(mTheme->isDark());
    mTheme->setTheme(Theme::Light);
    QCOMPARE(mTheme->theme(), Theme::Light);
    QVERIFY(!mTheme->isDark());
}

void tst_QThemeCtrl::signalIsEmittedOnlyIfTheLookChanges()
{
    QSignalSpy spy(mTheme, &QThemeCtrl::sigThemeChanged);
    mTheme->setTheme(Theme::Light);
    QCOMPARE(spy.count(), 0);
    mTheme->setTheme(Theme::Dark);
    QCOMPARE(spy.count(), 1);
    mTheme->setTheme(Theme::Dark);
    QCOMPARE(spy.count(), 1);
    mTheme->setTheme(Theme::System);
    QCOMPARE(spy.count(), 2);
}

void tst_QThemeCtrl::systemIsFollowed()
{
    QSignalSpy spy(mTheme, &QThemeCtrl::sigThemeChanged);
    QApplication::setPalette(systemPalette(true));
    QVERIFY(mTheme->isDark());
    QCOMPARE(spy.count(), 1);
    QPalette anotherDark = systemPalette(true);
    anotherDark.setColor(QPalette::Highlight, Qt::green);
    QApplication::setPalette(anotherDark);
    QCOMPARE(spy.count(), 1);
    QApplication::setPalette(systemPalette(false));
    QVERIFY(!mTheme->isDark());
    QCOMPARE(spy.count(), 2);
}

void tst_QThemeCtrl::systemIsNotFollowedWhileAThemeIsSelected()
{
    mTheme->setTheme(Theme::Light);
    QSignalSpy spy(mTheme, &QThemeCtrl::sigThemeChanged);
    QApplication::setPalette(systemPalette(true));
    QVERIFY(!mTheme->isDark());
    QCOMPARE(spy.count(), 0);
    mTheme->setTheme(Theme::System);
    QVERIFY(mTheme->isDark());
    QCOMPARE(spy.count(), 1);
}

void tst_QThemeCtrl::applyingTheOwnPaletteIsNotASystemChange_data()
{
    QTest::addColumn<bool>("systemIsDark");
    QTest::addColumn<Theme>("chosen");
    QTest::newRow("darkOnALightSystem") << false << Theme::Dark;
    QTest::newRow("lightOnADarkSystem") << true << Theme::Light;
}

void tst_QThemeCtrl::applyingTheOwnPaletteIsNotASystemChange()
{
    QFETCH(bool, systemIsDark);
    QFETCH(Theme, chosen);
    QApplication::setPalette(systemPalette(systemIsDark));
    mTheme->setTheme(chosen);
    QApplication::setPalette(mTheme->palette());
    mTheme->setTheme(Theme::System);
    QCOMPARE(mTheme->isDark(), systemIsDark);
}

void tst_QThemeCtrl::applyingAnAdjustedOwnPaletteIsNotASystemChange()
{
    mTheme->setTheme(Theme::Dark);
    QPalette adjusted = mTheme->palette();
    adjusted.setColor(QPalette::Highlight, Qt::magenta);
    QApplication::setPalette(adjusted);
    mTheme->setTheme(Theme::System);
    QVERIFY(!mTheme->isDark());
}

void tst_QThemeCtrl::slotMaySetThePaletteWhileTheSystemIsFollowed()
{
    QObject host;
    connect(mTheme, &QThemeCtrl::sigThemeChanged, &host,
            [this] { QApplication::setPalette(mTheme->palette()); });
    QSignalSpy spy(mTheme, &QThemeCtrl::sigThemeChanged);
    QApplication::setPalette(systemPalette(true));
    QVERIFY(mTheme->isDark());
    QCOMPARE(spy.count(), 1);
    QApplication::setPalette(systemPalette(false));
    QVERIFY(!mTheme->isDark());
    QCOMPARE(spy.count(), 2);
}

void tst_QThemeCtrl::slotMaySelectAnotherTheme()
{
    QObject host;
    connect(mTheme, &QThemeCtrl::sigThemeChanged, &host,
            [this] { mTheme->setTheme(Theme::Light); });
    QSignalSpy spy(mTheme, &QThemeCtrl::sigThemeChanged);
    mTheme->setTheme(Theme::Dark);
    QVERIFY(!mTheme->isDark());
    QCOMPARE(spy.count(), 2);
}

void tst_QThemeCtrl::paletteIsBuiltFromTheNames()
{
    const QColor white(Qt::white);
    for (const Theme theme : {Theme::Light, Theme::Dark}) {
        mTheme->setTheme(theme);
        const QPalette palette = mTheme->palette();
        QCOMPARE(palette.color(QPalette::Window), mTheme->color(QStringLiteral("ColorBg0")));
        QCOMPARE(palette.color(QPalette::Button), mTheme->color(QStringLiteral("ColorBg1")));
        QCOMPARE(palette.color(QPalette::Base), mTheme->color(QStringLiteral("ColorBg3")));
        QCOMPARE(palette.color(QPalette::WindowText), mTheme->color(QStringLiteral("ColorFg0")));
        QCOMPARE(palette.color(QPalette::Text), mTheme->color(QStringLiteral("ColorFg0")));
        QCOMPARE(palette.color(QPalette::ButtonText), mTheme->color(QStringLiteral("ColorFg0")));
        QCOMPARE(palette.color(QPalette::Highlight), mTheme->color(QStringLiteral("ColorMain")));
        QCOMPARE(palette.color(QPalette::HighlightedText), white);
        QCOMPARE(palette.color(QPalette::Disabled, QPalette::Text),
                 mTheme->color(QStringLiteral("ColorDisable")));
        QVERIFY(contrast(palette.color(QPalette::Link), palette.color(QPalette::Window)) >= 4.5);
        QVERIFY(contrast(palette.color(QPalette::ToolTipText), palette.color(QPalette::ToolTipBase))
                >= 7);
    }
}

void tst_QThemeCtrl::valueCanBeSetForOneThemeOrBoth()
{
    mTheme->setValue(Theme::Light, QStringLiteral("Own"), QStringLiteral("#010203"));
    mTheme->setValue(Theme::Dark, QStringLiteral("Own"), QStringLiteral("#040506"));
    mTheme->setValue(Theme::System, QStringLiteral("Both"), QStringLiteral("#070809"));
    mTheme->setTheme(Theme::Light);
    QCOMPARE(mTheme->value(QStringLiteral("Own")), QStringLiteral("#010203"));
    QCOMPARE(mTheme->value(QStringLiteral("Both")), QStringLiteral("#070809"));
    mTheme->setTheme(Theme::Dark);
    QCOMPARE(mTheme->value(QStringLiteral("Own")), QStringLiteral("#040506"));
    QCOMPARE(mTheme->value(QStringLiteral("Both")), QStringLiteral("#070809"));
}

void tst_QThemeCtrl::unknownNameHasNoValue()
{
    LogCapture log;
    QCOMPARE(mTheme->value(QStringLiteral("Nothing")), QString());
    QVERIFY(!mTheme->color(QStringLiteral("Nothing")).isValid());
    QVERIFY(!mTheme->color(QString()).isValid());
    QVERIFY(LogCapture::messages().isEmpty());
}

void tst_QThemeCtrl::colorExpandsMacros_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QColor>("expected");
    QTest::newRow("hexadecimal") << QStringLiteral("#102030") << QColor(16, 32, 48);
    QTest::newRow("translucent") << QStringLiteral("#40102030") << QColor(16, 32, 48, 64);
    QTest::newRow("svgName") << QStringLiteral("blue") << QColor(0, 0, 255);
    QTest::newRow("macro") << QStringLiteral(" var(Target) ") << QColor(1, 1, 1);
    QTest::newRow("notAColor") << QStringLiteral("12px solid") << QColor();
}

void tst_QThemeCtrl::colorExpandsMacros()
{
    QFETCH(QString, value);
    QFETCH(QColor, expected);
    LogCapture log;
    mTheme->setValue(Theme::System, QStringLiteral("Target"), QStringLiteral("#010101"));
    mTheme->setValue(Theme::System, QStringLiteral("Asked"), value);
    QCOMPARE(mTheme->color(QStringLiteral("Asked")), expected);
    QVERIFY(LogCapture::messages().isEmpty());
}

int main(int argc, char **argv)
{
    return runTest<tst_QThemeCtrl>(argc, argv);
}

#include "tst_QThemeCtrl.moc"
