#include "support/TestMain.h"
#include "support/WindowFixture.h"

#include <OrvUtils/OrvScreenManager.h>
#include <OrvUtils/QThemeCtrl.h>

#include <QScreen>
#include <QSettings>
#include <QStandardItemModel>
#include <QTranslator>

using MtConf::ConfigurationWindow;
using MtConf::ConfItem;

namespace {

/// Translates every text of the window's contexts by putting it in brackets.
class BracketTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        const QByteArrayList contexts{"ConfigurationWindow", "MtConf::ConfigurationWindow",
                                      "QObject"};
        return contexts.contains(context) ? QString("[%1]").arg(QString::fromUtf8(source))
                                          : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

/// Geometry, themes, icons and the language of the window.
class tst_ConfigurationWindowAppearance : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        mFixture = std::make_unique<WindowFixture>();
        mFlag = true;
        mItem = mFixture->manager->addConfBool("Flag", &mFlag, "General", "Flag");
        mFixture->manager->addConfBool("Sub", &mFlag, "General", "Group", "Sub");
        QThemeCtrl::instance()->setTheme(QThemeCtrl::Theme::Light);
    }
    void cleanup() { mFixture.reset(); }

    void firstWindowIsCentredOnTheScreen();
    void geometryIsRemembered();
    void savedGeometry_data();
    void savedGeometry();
    void invalidGeometryFileIsIgnored_data();
    void invalidGeometryFileIsIgnored();
    void geometryOfOnePixelLeavesAUsableWindow();
    void closingTheWindowSavesItsGeometry();
    void changedCaptionIsBold();
    void themeChangeUpdatesTheOpenWindow();
    void themeChangeUpdatesTheIcons();
    void iconsHaveTheColourThatAMacroNames();
    void classWithoutGlyphHasNoIcon();
    void languageChangeUpdatesEveryText();
    void classNamesOfAnyScriptAreShown();

private:
    static void writeGeometry(const QVariant &value)
    {
        QSettings settings(WindowFixture::geometryFile(), QSettings::IniFormat);
        settings.setValue("Geometry", value);
    }
    static void writeGeometryFile(const QByteArray &content)
    {
        QFile file(WindowFixture::geometryFile());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    static QStandardItem *row(int index)
    {
        return qobject_cast<QStandardItemModel *>(WindowFixture::classList()->model())->item(index);
    }
    /// Returns the first opaque colour that the icon paints.
    static QColor inkOf(const QIcon &icon, QIcon::Mode mode)
    {
        const QImage image =
            icon.pixmap(QSize(32, 32), mode).toImage().convertToFormat(QImage::Format_ARGB32);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y).alpha() == 255)
                    return image.pixelColor(x, y);
            }
        }
        return QColor();
    }

    std::unique_ptr<WindowFixture> mFixture;
    ConfItem *mItem = nullptr;
    bool mFlag = true;
    int mNumber = 0;
};

void tst_ConfigurationWindowAppearance::firstWindowIsCentredOnTheScreen()
{
    // The window is not shown: the test is about the geometry that the constructor sets, which a
    // window system might change.
    const ConfigurationWindow window(mFixture->manager.get());
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    // 768 by 500 units at 96 dots per inch.
    QCOMPARE(window.size(), QSize(1024, 667));
    QVERIFY(qAbs(window.geometry().center().x() - screen.center().x()) <= 1);
    QVERIFY(qAbs(window.geometry().center().y() - screen.center().y()) <= 1);
}

void tst_ConfigurationWindowAppearance::geometryIsRemembered()
{
    const QRect geometry(40, 50, 700, 500);
    mFixture->open()->setGeometry(geometry);
    QTRY_COMPARE(mFixture->window()->geometry(), geometry);
    QVERIFY(mFixture->close());
    mFixture->open();
    QTRY_COMPARE(mFixture->window()->geometry(), geometry);
}

void tst_ConfigurationWindowAppearance::savedGeometry_data()
{
    QTest::addColumn<QRect>("saved"); // on a screen whose top left corner is (0, 0)
    QTest::addColumn<bool>("applied");
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    QTest::newRow("well inside") << QRect(10, 10, 640, 480) << true;
    QTest::newRow("touches the left edge") << QRect(0, 10, 640, 480) << false;
    QTest::newRow("touches the top edge") << QRect(10, 0, 640, 480) << false;
    QTest::newRow("one pixel from the edges") << QRect(1, 1, 640, 480) << true;
    QTest::newRow("touches the right edge") << QRect(screen.right() - 639, 10, 640, 480) << false;
    QTest::newRow("touches the bottom edge") << QRect(10, screen.bottom() - 479, 640, 480) << false;
    QTest::newRow("outside all screens") << QRect(100000, 100000, 640, 480) << false;
    QTest::newRow("largest integers")
        << QRect(QPoint(1, 1), QPoint(2147483647, 2147483647)) << false;
    QTest::newRow("empty") << QRect() << false;
    QTest::newRow("negative size") << QRect(QPoint(500, 500), QPoint(100, 100)) << false;
}

void tst_ConfigurationWindowAppearance::savedGeometry()
{
    QFETCH(QRect, saved);
    QFETCH(bool, applied);
    writeGeometry(saved);
    // The window is not shown: the test is about the geometry that the constructor sets, which a
    // window system might change.
    const ConfigurationWindow window(mFixture->manager.get());
    if (applied)
        QCOMPARE(window.geometry(), saved);
    else
        QCOMPARE(window.size(), QSize(1089, 598));
}

void tst_ConfigurationWindowAppearance::invalidGeometryFileIsIgnored_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QSize>("size");
    const QSize formSize(1089, 598);
    QTest::newRow("invalid lines") << QByteArray("\x00[[[=\xff\n", 7) << QSize(1024, 667);
    QTest::newRow("invalid lines around the key")
        << QByteArray("\x00[[[=\xff\nGeometry=@Rect(x)\n", 25) << formSize;
    QTest::newRow("a word") << QByteArray("[General]\nGeometry=wide\n") << formSize;
    QTest::newRow("three numbers")
        << QByteArray("[General]\nGeometry=@Rect(9 9 500)\n") << formSize;
    QTest::newRow("zeros") << QByteArray("[General]\nGeometry=@Rect(0 0 0 0)\n") << formSize;
    QTest::newRow("the largest numbers")
        << QByteArray("[General]\nGeometry=@Rect(2147483647 2147483647 2147483647 2147483647)\n")
        << formSize;
    QTest::newRow("the smallest numbers")
        << QByteArray("[General]\nGeometry=@Rect(-2147483648 -2147483648 -2147483648 -9)\n")
        << formSize;
    QTest::newRow("numbers beyond integers")
        << QByteArray("[General]\nGeometry=@Rect(10 10 99999999999999999999 500)\n") << formSize;
    QTest::newRow("a list that exceeds the memory")
        << QByteArray("[General]\nGeometry=@Variant(\\0\\0\\0\\v\\x7f\\xff\\xff\\xff)\n")
        << formSize;
    QTest::newRow("such a list under another key")
        << QByteArray("[Other]\nx=@Variant(\\0\\0\\0\\v\\x7f\\xff\\xff\\xff)\n")
        << QSize(1024, 667);
}

void tst_ConfigurationWindowAppearance::invalidGeometryFileIsIgnored()
{
    QFETCH(QByteArray, content);
    QFETCH(QSize, size);
    writeGeometryFile(content);
    {
        const ConfigurationWindow window(mFixture->manager.get());
        QCOMPARE(window.size(), size);
        // Closing the window replaces the invalid geometry in the file.
    }
    QFile file(WindowFixture::geometryFile());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString end = QString(" %1 %2)\n").arg(size.width()).arg(size.height());
    QVERIFY(file.readAll().contains(end.toUtf8()));
}

void tst_ConfigurationWindowAppearance::geometryOfOnePixelLeavesAUsableWindow()
{
    writeGeometry(QRect(50, 50, 1, 1));
    mFixture->open();
    QTRY_VERIFY(mFixture->window()->width() >= mFixture->window()->minimumSizeHint().width());
    QVERIFY(mFixture->window()->height() >= mFixture->window()->minimumSizeHint().height());
}

void tst_ConfigurationWindowAppearance::closingTheWindowSavesItsGeometry()
{
    mFixture->open();
    const QRect geometry = mFixture->window()->geometry();
    QVERIFY(!QFile::exists(WindowFixture::geometryFile()));
    QVERIFY(mFixture->close());
    const QSettings settings(WindowFixture::geometryFile(), QSettings::IniFormat);
    QCOMPARE(settings.allKeys(), QStringList("Geometry"));
    QCOMPARE(settings.value("Geometry").toRect(), geometry);
}

void tst_ConfigurationWindowAppearance::changedCaptionIsBold()
{
    mNumber = 1;
    ConfItem *number = mFixture->manager->addConfInt32("Number", &mNumber, "General", "Number");
    mFixture->open();
    QVERIFY(!number->editor->label()->font().bold());
    QVERIFY(!mFixture->checkBox(mItem)->font().bold());
    mFixture->store()->set<int>("General.Number", 2);
    number->editor->refreshLabelState();
    mFixture->clickBox(mFixture->checkBox(mItem));
    QVERIFY(number->editor->label()->font().bold());
    QVERIFY(mFixture->checkBox(mItem)->font().bold());
    QCOMPARE(number->editor->label()->font().pointSize(), 16);
    QCOMPARE(mFixture->checkBox(mItem)->font().pointSize(), 16);
    mFixture->clickBox(mFixture->checkBox(mItem));
    QVERIFY(!mFixture->checkBox(mItem)->font().bold());
}

void tst_ConfigurationWindowAppearance::themeChangeUpdatesTheOpenWindow()
{
    const ConfigurationWindow *window = mFixture->open();
    const QString light = window->styleSheet();
    QThemeCtrl::instance()->setTheme(QThemeCtrl::Theme::Dark);
    QVERIFY(window->styleSheet() != light);
    QVERIFY(window->styleSheet().contains(QThemeCtrl::instance()->value("ColorBg1")));
    const QColor ground = mFixture->window()->grab().toImage().pixelColor(2, 2);
    QCOMPARE(ground, QColor(QThemeCtrl::instance()->value("ColorBg0")));
}

void tst_ConfigurationWindowAppearance::themeChangeUpdatesTheIcons()
{
    QMap<QString, QChar> icons{{"General", QChar(0xe800)}};
    mFixture->manager->setIconMap(icons);
    QCOMPARE(ConfigurationWindow::mIconMap, icons);
    mFixture->open();
    QCOMPARE(inkOf(row(0)->icon(), QIcon::Normal),
             QColor(QThemeCtrl::instance()->value("ColorFg0")));
    QCOMPARE(inkOf(row(0)->icon(), QIcon::Selected), QColor(Qt::white));
    QThemeCtrl::instance()->setTheme(QThemeCtrl::Theme::Dark);
    QCOMPARE(inkOf(row(0)->icon(), QIcon::Normal),
             QColor(QThemeCtrl::instance()->value("ColorFg0")));
    QCOMPARE(inkOf(row(0)->icon(), QIcon::Selected), QColor(Qt::white));
}

void tst_ConfigurationWindowAppearance::iconsHaveTheColourThatAMacroNames()
{
    QThemeCtrl *themes = QThemeCtrl::instance();
    const QString before = themes->value("ColorFg0");
    themes->setValue(QThemeCtrl::Theme::Light, "ColorFg0", "var(ColorSuccess)");
    QMap<QString, QChar> icons{{"General", QChar(0xe800)}};
    mFixture->manager->setIconMap(icons);
    mFixture->open();
    const QColor ink = inkOf(row(0)->icon(), QIcon::Normal);
    themes->setValue(QThemeCtrl::Theme::Light, "ColorFg0", before);
    QCOMPARE(ink, QColor(0x2e, 0x8b, 0x45));
}

void tst_ConfigurationWindowAppearance::classWithoutGlyphHasNoIcon()
{
    QMap<QString, QChar> icons{{"Elsewhere", QChar(0xe800)}};
    mFixture->manager->setIconMap(icons);
    mFixture->open();
    QVERIFY(row(0)->icon().isNull());
}

void tst_ConfigurationWindowAppearance::languageChangeUpdatesEveryText()
{
    const ConfigurationWindow *window = mFixture->open();
    BracketTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    Q_EMIT mFixture->manager->sigLanguageChange();
    QCOMPARE(window->windowTitle(), QString("[Quorvi Configuration]"));
    QCOMPARE(mFixture->restoreAllButton()->text(), QString("[Restore All Default]"));
    QCOMPARE(mFixture->restorePageButton()->text(), QString("[Restore Default]"));
    QCOMPARE(row(0)->text(), QString("[General]"));
    QCOMPARE(window->currentClass(), QString("General"));
    QCOMPARE(mFixture->captions(), (QStringList{"[General]", "[Group]"}));
    QCOMPARE(mFixture->checkBox(mItem)->text(), QString("[Flag]"));
    mFixture->window()->switchToView("General");
    QCOMPARE(mFixture->captions(), (QStringList{"[General]", "[Group]"}));
    QCoreApplication::removeTranslator(&translator);
    Q_EMIT mFixture->manager->sigLanguageChange();
    QCOMPARE(mFixture->captions(), (QStringList{"General", "Group"}));
}

void tst_ConfigurationWindowAppearance::classNamesOfAnyScriptAreShown()
{
    const QString name = QString::fromUtf8("设置 – Einstellungen – إعدادات");
    mFixture->manager->addConfBool("Flag", &mFlag, name, "Flag");
    mFixture->open()->switchToView(name);
    QCOMPARE(row(1)->text(), name);
    QCOMPARE(mFixture->captions(), QStringList(name));
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfigurationWindowAppearance>(argc, argv);
}

#include "tst_ConfigurationWindowAppearance.moc"
