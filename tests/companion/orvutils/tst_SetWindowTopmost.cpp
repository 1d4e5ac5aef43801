#include <OrvUtils/SetWindowTopmost.h>

#include "support/TestMain.h"

#include <QProcess>
#include <QStandardPaths>
#include <QWidget>
#include <QWindow>

namespace {

/// A window that counts how often it is hidden.
class Window : public QWidget
{
public:
    int hidden = 0;

protected:
    void hideEvent(QHideEvent *) override { ++hidden; }
};

QString output(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput());
}

QString windowNumber(const QWidget &window)
{
    return QStringLiteral("0x%1").arg(window.winId(), 0, 16);
}

QString stackingOrder()
{
    const QStringList ask{QStringLiteral("-root"), QStringLiteral("_NET_CLIENT_LIST_STACKING")};
    return output(QStringLiteral("xprop"), ask).trimmed();
}

} // namespace

class tst_SetWindowTopmost : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void settingsWindowHasTypeFour();
    void nullIsIgnored();
    void hintIsSetAndCleared_data();
    void hintIsSetAndCleared();
    void hiddenWindowStaysHidden();
    void shownWindowKeepsVisibilityAndGeometry();
    void windowStateIsKept_data();
    void windowStateIsKept();
    void childSetsTheHintOfItsWindow();
    void otherHintsAreKept();
    void windowManagerKeepsTheWindowAbove();
};

void tst_SetWindowTopmost::settingsWindowHasTypeFour()
{
    QCOMPARE(int(OrvWindowTypeSettings), 4);
}

void tst_SetWindowTopmost::nullIsIgnored()
{
    SetWindowTopmost(nullptr, true, OrvWindowTypeNormal);
    SetWindowTopmost(nullptr, false, OrvWindowTypeSettings);
}

void tst_SetWindowTopmost::hintIsSetAndCleared_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("normal") << int(OrvWindowTypeNormal);
    QTest::newRow("tool") << int(OrvWindowTypeTool);
    QTest::newRow("panel") << int(OrvWindowTypePanel);
    QTest::newRow("overlay") << int(OrvWindowTypeOverlay);
    QTest::newRow("settings") << int(OrvWindowTypeSettings);
    QTest::newRow("unknownType") << 7;
}

void tst_SetWindowTopmost::hintIsSetAndCleared()
{
    QFETCH(int, type);
    for (const bool created : {false, true}) {
        QWidget window;
        if (created)
            window.winId();
        for (const bool on : {true, true, false, false, true}) {
            SetWindowTopmost(&window, on, OrvWindowType(type));
            QCOMPARE(window.windowFlags().testFlag(Qt::WindowStaysOnTopHint), on);
        }
        window.show();
        QVERIFY(window.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
    }
}

void tst_SetWindowTopmost::hiddenWindowStaysHidden()
{
    QWidget window;
    window.setGeometry(40, 50, 300, 200);
    SetWindowTopmost(&window, true, OrvWindowTypeSettings);
    QVERIFY(!window.isVisible());
    QCOMPARE(window.geometry(), QRect(40, 50, 300, 200));
    window.show();
    window.hide();
    SetWindowTopmost(&window, false, OrvWindowTypeSettings);
    QVERIFY(!window.isVisible());
    QVERIFY(!window.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
}

void tst_SetWindowTopmost::shownWindowKeepsVisibilityAndGeometry()
{
    Window window;
    window.setGeometry(140, 150, 300, 200);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QRect before = window.geometry();
    const QWindow *const handle = window.windowHandle();
    for (const bool on : {true, false}) {
        SetWindowTopmost(&window, on, OrvWindowTypeSettings);
        QVERIFY(window.isVisible());
        QCOMPARE(window.windowHandle(), handle);
        QCOMPARE(handle->flags().testFlag(Qt::WindowStaysOnTopHint), on);
        QCoreApplication::processEvents();
        QCOMPARE(window.geometry(), before);
    }
    QCOMPARE(window.hidden, 0);
}

void tst_SetWindowTopmost::windowStateIsKept_data()
{
    QTest::addColumn<int>("state");
    QTest::newRow("minimised") << int(Qt::WindowMinimized);
    QTest::newRow("maximised") << int(Qt::WindowMaximized);
    QTest::newRow("fullScreen") << int(Qt::WindowFullScreen);
}

void tst_SetWindowTopmost::windowStateIsKept()
{
    QFETCH(int, state);
    QWidget window;
    window.setWindowState(Qt::WindowState(state));
    SetWindowTopmost(&window, true, OrvWindowTypeSettings);
    QCOMPARE(int(window.windowState()), state);
    window.show();
    QCoreApplication::processEvents();
    SetWindowTopmost(&window, false, OrvWindowTypeSettings);
    QCoreApplication::processEvents();
    QCOMPARE(int(window.windowState()), state);
    QVERIFY(window.isVisible());
}

void tst_SetWindowTopmost::childSetsTheHintOfItsWindow()
{
    QWidget window;
    QWidget child(&window);
    SetWindowTopmost(&child, true, OrvWindowTypeSettings);
    QVERIFY(window.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QVERIFY(!child.isWindow());
}

void tst_SetWindowTopmost::otherHintsAreKept()
{
    QWidget window(nullptr, Qt::Tool | Qt::FramelessWindowHint);
    SetWindowTopmost(&window, true, OrvWindowTypeSettings);
    QCOMPARE(window.windowFlags(), Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
}

void tst_SetWindowTopmost::windowManagerKeepsTheWindowAbove()
{
    const QString manager = QStandardPaths::findExecutable(QStringLiteral("openbox"));
    if (QGuiApplication::platformName() != QLatin1String("xcb") || manager.isEmpty()
        || QStandardPaths::findExecutable(QStringLiteral("xprop")).isEmpty())
        QSKIP("needs an X server, openbox and xprop");
    // Windows shown before the manager has finished starting may never be mapped. That it has
    // published its name is not enough to know.
    QProcess process;
    process.start(manager,
                  {QStringLiteral("--sm-disable"), QStringLiteral("--startup"),
                   QStringLiteral("xprop -root -f MANAGER_READY 8s -set MANAGER_READY yes")});
    QVERIFY(process.waitForStarted());
    const QStringList askReady{QStringLiteral("-root"), QStringLiteral("MANAGER_READY")};
    QTRY_VERIFY(output(QStringLiteral("xprop"), askReady).contains(QStringLiteral("yes")));
    QWidget window;
    QWidget other;
    window.setGeometry(200, 200, 300, 200);
    other.setGeometry(250, 250, 300, 200);
    window.show();
    other.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window) && QTest::qWaitForWindowExposed(&other));
    other.raise();
    QTRY_VERIFY(stackingOrder().endsWith(windowNumber(other)));

    SetWindowTopmost(&window, true, OrvWindowTypeSettings);
    QTRY_VERIFY(stackingOrder().endsWith(windowNumber(window)));
    other.raise();
    const QStringList askState{QStringLiteral("-id"), windowNumber(window),
                               QStringLiteral("_NET_WM_STATE")};
    QTRY_VERIFY(
        output(QStringLiteral("xprop"), askState).contains(QStringLiteral("_NET_WM_STATE_ABOVE")));
    QVERIFY(stackingOrder().endsWith(windowNumber(window)));

    SetWindowTopmost(&window, false, OrvWindowTypeSettings);
    QTRY_VERIFY(
        !output(QStringLiteral("xprop"), askState).contains(QStringLiteral("_NET_WM_STATE_ABOVE")));
    other.raise();
    QTRY_VERIFY(stackingOrder().endsWith(windowNumber(other)));
    process.terminate();
    QVERIFY(process.waitForFinished());
}

int main(int argc, char **argv)
{
    return runTest<tst_SetWindowTopmost>(argc, argv);
}

#include "tst_SetWindowTopmost.moc"
