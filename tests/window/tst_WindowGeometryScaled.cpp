#include "support/TestMain.h"
#include "support/WindowFixture.h"

#include <QScreen>
#include <QSettings>

using MtConf::ConfigurationWindow;

/// The geometry file at 144 dots per inch. It has pixels of the screen with either Qt: Qt 5 counts
/// these, Qt 6 counts units of 1.5 pixels. The windows are not shown: the tests are about the
/// geometry that the constructor sets, which a window system might change.
class tst_WindowGeometryScaled : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        mFixture = std::make_unique<WindowFixture>();
        mFixture->manager->addConfBool("Flag", &mFlag, "General", "Flag");
    }
    void cleanup() { mFixture.reset(); }

    void savedGeometryHasPixelsOfTheScreen_data();
    void savedGeometryHasPixelsOfTheScreen();
    void geometryIsSavedInPixelsOfTheScreen();
    void geometryStaysTheSameAfterManyStarts_data();
    void geometryStaysTheSameAfterManyStarts();
    void geometryThatTouchesAnEdgeOfTheScreenIsNotUsed_data();
    void geometryThatTouchesAnEdgeOfTheScreenIsNotUsed();

private:
    static QRect savedGeometry()
    {
        const QSettings settings(WindowFixture::geometryFile(), QSettings::IniFormat);
        return settings.value("Geometry").toRect();
    }
    static void save(const QRect &geometry)
    {
        QSettings(WindowFixture::geometryFile(), QSettings::IniFormat)
            .setValue("Geometry", geometry);
    }
    static qreal ratio() { return QGuiApplication::primaryScreen()->devicePixelRatio(); }
    /// Returns the geometry in pixels of the screen, whose upper left corner is (0, 0).
    static QRect pixels(const QRect &geometry)
    {
        return {geometry.topLeft() * ratio(), geometry.size() * ratio()};
    }

    std::unique_ptr<WindowFixture> mFixture;
    bool mFlag = true;
};

void tst_WindowGeometryScaled::savedGeometryHasPixelsOfTheScreen_data()
{
    QTest::addColumn<QRect>("saved");
    QTest::newRow("whole units") << QRect(30, 60, 450, 300);
    QTest::newRow("fractions of units") << QRect(31, 62, 451, 302);
    QTest::newRow("nearly the screen")
        << pixels(QGuiApplication::primaryScreen()->geometry()).adjusted(3, 3, -3, -3);
}

void tst_WindowGeometryScaled::savedGeometryHasPixelsOfTheScreen()
{
    QFETCH(QRect, saved);
    save(saved);
    const ConfigurationWindow window(mFixture->manager.get());
    const QRect shown = pixels(window.geometry());
    QVERIFY((shown.topLeft() - saved.topLeft()).manhattanLength() <= 2);
    QVERIFY(qAbs(shown.width() - saved.width()) <= 1);
    QVERIFY(qAbs(shown.height() - saved.height()) <= 1);
}

void tst_WindowGeometryScaled::geometryIsSavedInPixelsOfTheScreen()
{
    QRect geometry;
    {
        ConfigurationWindow window(mFixture->manager.get());
        window.setGeometry(20, 40, 301, 207);
        geometry = window.geometry();
    }
    QCOMPARE(savedGeometry(), pixels(geometry));
}

void tst_WindowGeometryScaled::geometryStaysTheSameAfterManyStarts_data()
{
    savedGeometryHasPixelsOfTheScreen_data();
}

void tst_WindowGeometryScaled::geometryStaysTheSameAfterManyStarts()
{
    QFETCH(QRect, saved);
    save(saved);
    ConfigurationWindow(mFixture->manager.get());
    const QRect first = savedGeometry();
    for (int start = 0; start < 10; ++start)
        ConfigurationWindow(mFixture->manager.get());
    QCOMPARE(savedGeometry(), first);
}

void tst_WindowGeometryScaled::geometryThatTouchesAnEdgeOfTheScreenIsNotUsed_data()
{
    QTest::addColumn<QRect>("saved");
    const QRect screen = pixels(QGuiApplication::primaryScreen()->geometry());
    QTest::newRow("left") << screen.adjusted(0, 9, -9, -9);
    QTest::newRow("top") << screen.adjusted(9, 0, -9, -9);
    QTest::newRow("right") << screen.adjusted(9, 9, 0, -9);
    QTest::newRow("bottom") << screen.adjusted(9, 9, -9, 0);
}

void tst_WindowGeometryScaled::geometryThatTouchesAnEdgeOfTheScreenIsNotUsed()
{
    QFETCH(QRect, saved);
    save(saved);
    const ConfigurationWindow window(mFixture->manager.get());
    QCOMPARE(window.size(), QSize(1089, 598)); // the form's
}

int main(int argc, char **argv)
{
    qputenv("QT_FONT_DPI", "144");
    return runTest<tst_WindowGeometryScaled>(argc, argv);
}

#include "tst_WindowGeometryScaled.moc"
