#include "support/TestMain.h"
#include "support/WindowFixture.h"

#include <QGuiApplication>
#include <QScreen>

using namespace MtConf;

/// The host's title and icon, and the geometry in the store.
class tst_WindowIdentity : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mFixture = std::make_unique<WindowFixture>();
        mFixture->manager->windowFeatures = HostNameFeature;
        mFixture->addBool("Sound");
    }
    void cleanup()
    {
        mFixture.reset();
        QGuiApplication::setApplicationDisplayName(QString());
        QGuiApplication::setWindowIcon(QIcon());
        QDir("res").removeRecursively();
    }

    void theTitleIsTheNameOfTheHost()
    {
        QGuiApplication::setApplicationDisplayName("Scribe");
        QVERIFY(mFixture->open());
        QCOMPARE(WindowFixture::window()->windowTitle(), QStringLiteral("Settings \u2014 Scribe"));
        QCOMPARE(WindowFixture::classList()->accessibleName(),
                 QStringLiteral("Settings \u2014 Scribe"));
        Q_EMIT mFixture->manager->sigLanguageChange();
        QCOMPARE(WindowFixture::window()->windowTitle(), QStringLiteral("Settings \u2014 Scribe"));
    }

    void withoutTheFeatureTheTitleIsTheClassicOne()
    {
        mFixture->manager->windowFeatures = 0;
        QVERIFY(mFixture->open());
        QCOMPARE(WindowFixture::window()->windowTitle(), QString("Quorvi Configuration"));
    }

    void theIconIsThatOfTheApplication()
    {
        QPixmap red(16, 16);
        red.fill(Qt::red);
        QGuiApplication::setWindowIcon(QIcon(red));
        QVERIFY(mFixture->open());
        const QImage icon = WindowFixture::window()->windowIcon().pixmap(16).toImage();
        QCOMPARE(icon.pixelColor(8, 8), QColor(Qt::red));
    }

    void theGeometryIsKeptInTheStore()
    {
        QVERIFY(mFixture->open());
        const QRect geometry(60, 50, 700, 480);
        WindowFixture::window()->setGeometry(geometry);
        QVERIFY(mFixture->close());
        QVERIFY(!QFile::exists(WindowFixture::geometryFile()));
        QVERIFY(mFixture->open());
        QCOMPARE(WindowFixture::window()->geometry(), geometry);
    }

    void theGeometryIsAmongTheLocalEntriesOnly()
    {
        QVERIFY(mFixture->open());
        QVERIFY(mFixture->close());
        const auto *store = WindowFixture::store();
        QVERIFY(!store->dumpConf(ConfStorage::DumpShared).contains("Malto.Window.Geometry"));
        QVERIFY(store->dumpConf(ConfStorage::DumpLocal).contains("Malto.Window.Geometry"));
    }

    void aGeometryOffTheScreenIsMovedInside_data()
    {
        QTest::addColumn<QRect>("saved");
        QTest::newRow("far away") << QRect(90000, 90000, 600, 400);
        QTest::newRow("far on the other side") << QRect(-90000, -90000, 600, 400);
        QTest::newRow("half outside") << QRect(-200, -100, 600, 400);
        QTest::newRow("larger than the screen") << QRect(0, 0, 20000, 20000);
        QTest::newRow("huge") << QRect(QPoint(-2147483647, 0), QPoint(2147483646, 2147483646));
        QTest::newRow("tiny") << QRect(10, 10, 1, 1);
    }

    void aGeometryOffTheScreenIsMovedInside()
    {
        QFETCH(QRect, saved);
        WindowFixture::store()->set("Malto.Window.Geometry", saved);
        QVERIFY(mFixture->open());
        const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
        const QRect geometry = WindowFixture::window()->geometry();
        QVERIFY(available.adjusted(0, 0, sFrame, sFrame).contains(geometry));
        QVERIFY(geometry.width() >= qMin(480, available.width()));
    }

    void theFirstOpeningFitsTheScreen()
    {
        QVERIFY(mFixture->open());
        const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
        QVERIFY(
            available.adjusted(0, 0, sFrame, sFrame).contains(WindowFixture::window()->geometry()));
    }

    void theFrameFitsTheScreen()
    {
        QWidget program; // its frame tells how large that of the settings window will be
        program.show();
        QVERIFY(QTest::qWaitForWindowExposed(&program));
        WindowFixture::store()->set("Malto.Window.Geometry", QRect(0, 0, 20000, 20000));
        QVERIFY(mFixture->open());
        const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
        QVERIFY(available.contains(WindowFixture::window()->frameGeometry()));
    }

    void noSheetIsReadFromTheWorkingDirectory()
    {
        QVERIFY(QDir().mkpath("res/qss"));
        QFile sheet("res/qss/CommonWindow.qss");
        QVERIFY(sheet.open(QIODevice::WriteOnly));
        sheet.write("QMainWindow { qproperty-toolTip: intruder; }");
        sheet.close();
        QVERIFY(mFixture->open());
        QVERIFY(!WindowFixture::window()->styleSheet().contains("intruder"));
        QVERIFY(mFixture->close());
        mFixture->manager->windowFeatures = 0;
        QVERIFY(mFixture->open());
        QVERIFY(WindowFixture::window()->styleSheet().contains("intruder"));
    }

    void theGeometryIsSavedWhenTheProgramQuits()
    {
        WindowFixture::store()->loadLocalConfFile();
        QVERIFY(mFixture->open());
        WindowFixture::window()->setGeometry(QRect(60, 50, 700, 480));
        QMetaObject::invokeMethod(qApp, "aboutToQuit");
        QFile file(WindowFixture::localFile());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readAll().contains("Malto.Window.Geometry"));
    }

    void aHostWithCustomPagesOnlyRemembersTheGeometry()
    {
        mFixture->manager = std::make_unique<MtConfManage>();
        clearStore();
        WindowFixture::store()->mLocalSaveFile = WindowFixture::localFile();
        mFixture->manager->windowFeatures = HostNameFeature;
        mFixture->manager->setMajorWidget(
            "Page", [](QWidget *parent) { return new QLabel("page", parent); });
        QVERIFY(WindowFixture::store()->mConfMetas.contains("Malto.Window.Geometry"));
    }

    void twoManagersShareTheMemory()
    {
        QVERIFY(mFixture->open());
        WindowFixture::window()->setGeometry(QRect(60, 50, 700, 480));
        QVERIFY(mFixture->close());
        mFixture->manager = std::make_unique<MtConfManage>();
        mFixture->manager->windowFeatures = HostNameFeature;
        mFixture->addBool("Other");
        QVERIFY(mFixture->open());
        QCOMPARE(WindowFixture::window()->geometry(), QRect(60, 50, 700, 480));
    }

private:
    static constexpr int sFrame = 30; // pixels that a window manager may add above and on the left

    std::unique_ptr<WindowFixture> mFixture;
};

int main(int argc, char **argv)
{
    return runTest<tst_WindowIdentity>(argc, argv);
}

#include "tst_WindowIdentity.moc"
