#include <OrvUtils/OrvScreenManager.h>

#include "support/TestMain.h"

#include <QScreen>
#include <QSignalSpy>
#include <QWidget>

class tst_OrvScreenManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void primaryScreenHasTheValuesOfQt();
    void nullWidgetIsOnThePrimaryScreen();
    void widgetIsOnTheScreenOfItsWindow();
    void windowOutsideAllScreensIsOnThePrimaryScreen();
    void changesAreAnnounced();

private:
    static void compareWithPrimary(const OrvScreen &screen)
    {
        QCOMPARE(screen.rect, QGuiApplication::primaryScreen()->geometry());
        QCOMPARE(screen.dpi, QGuiApplication::primaryScreen()->logicalDotsPerInch());
    }
};

void tst_OrvScreenManager::primaryScreenHasTheValuesOfQt()
{
    const OrvScreen screen = OrvScreenManager::instance()->primaryScreen();
    compareWithPrimary(screen);
    QVERIFY(!screen.rect.isEmpty());
    QVERIFY(screen.dpi > 0);
    const QVector<OrvScreen> screens = OrvScreenManager::instance()->screens();
    QCOMPARE(screens.size(), 1);
    compareWithPrimary(screens.first());
}

void tst_OrvScreenManager::nullWidgetIsOnThePrimaryScreen()
{
    compareWithPrimary(OrvScreenManager::instance()->widgetScreen(nullptr));
}

void tst_OrvScreenManager::widgetIsOnTheScreenOfItsWindow()
{
    QWidget window;
    QWidget child(&window);
    compareWithPrimary(OrvScreenManager::instance()->widgetScreen(&window));
    compareWithPrimary(OrvScreenManager::instance()->widgetScreen(&child));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    compareWithPrimary(OrvScreenManager::instance()->widgetScreen(&window));
    compareWithPrimary(OrvScreenManager::instance()->widgetScreen(&child));
}

void tst_OrvScreenManager::windowOutsideAllScreensIsOnThePrimaryScreen()
{
    QWidget window;
    window.setGeometry(-90000, -90000, 10, 10);
    compareWithPrimary(OrvScreenManager::instance()->widgetScreen(&window));
}

void tst_OrvScreenManager::changesAreAnnounced()
{
    QScreen *const screen = QGuiApplication::primaryScreen();
    QSignalSpy spy(OrvScreenManager::instance(), &OrvScreenManager::sigScreensChanged);
    Q_EMIT screen->geometryChanged(QRect(0, 0, 10, 10));
    QCOMPARE(spy.count(), 1);
    Q_EMIT screen->logicalDotsPerInchChanged(144);
    QCOMPARE(spy.count(), 2);
    Q_EMIT qGuiApp->screenRemoved(screen);
    QCOMPARE(spy.count(), 3);
    Q_EMIT qGuiApp->screenAdded(screen);
    QCOMPARE(spy.count(), 4);
    Q_EMIT qGuiApp->primaryScreenChanged(screen);
    QCOMPARE(spy.count(), 5);
    // The screen was added twice, but its changes are announced once.
    Q_EMIT screen->geometryChanged(QRect(0, 0, 20, 20));
    QCOMPARE(spy.count(), 6);
}

int main(int argc, char **argv)
{
    return runTest<tst_OrvScreenManager>(argc, argv);
}

#include "tst_OrvScreenManager.moc"
