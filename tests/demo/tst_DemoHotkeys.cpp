#include "DemoFixture.h"
#include "demo/DemoArguments.h"
#include "demo/KeyHolder.h"
#include "demo/MainWindow.h"
#include "demo/MessageLog.h"
#include "support/TestMain.h"
#include "support/XClient.h"

#include <MaltoConfiguration/widgets/KeySequenceEdit.h>

#include <QxtGlobalShortcut>

#include <QSignalSpy>
#include <QStatusBar>
#include <QTableView>

namespace {

constexpr xcb_keysym_t sControl = 0xffe3;
constexpr xcb_keysym_t sAlt = 0xffe9;
constexpr xcb_keysym_t sF7 = 0xffc4;
constexpr xcb_keysym_t sK = 'k';
constexpr xcb_keysym_t sW = 'w';

} // namespace

/// Hotkeys from end to end: recorded in the settings window, and pressed in another program.
class tst_DemoHotkeys : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        if (!QxtGlobalShortcut::isSupported())
            QSKIP("needs an X server");
    }
    void recordedHotkeyWorksInOtherProgramsAndAfterARestart();
    void hotkeyOfAnotherProgramIsShownAsFailedUntilItEnds();
    void destroyingTheKeyHolderReleasesTheKey();

private:
    static QxtGlobalShortcut *shortcut(const DemoFixture &demo, const char *group, const char *name)
    {
        return demo.session->manager()
            .getItemByName("Hotkeys", group, name)
            ->properties.value("Shortcut")
            .value<QxtGlobalShortcut *>();
    }
    static QPushButton *stateButton(const DemoFixture &demo, const char *group, const char *name)
    {
        return demo.control<QPushButton>(demo.editor("Hotkeys", group, name));
    }
};

void tst_DemoHotkeys::recordedHotkeyWorksInOtherProgramsAndAfterARestart()
{
    const MessageLog log;
    DemoFixture demo;
    demo.start();
    {
        MainWindow window(*demo.session, log);
        window.show();
        QVERIFY(demo.open("Hotkeys"));
        QCOMPARE(stateButton(demo, "Tools", "PickColor")->toolTip(), QStringLiteral("Not set"));
        auto *field = demo.control<KeySequenceEdit>(demo.editor("Hotkeys", "Tools", "PickColor"));
        demo.window()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(demo.window()));
        QTest::mouseClick(field, Qt::LeftButton);
        XClient other;
        other.type({sControl, sAlt, sK});
        QTRY_COMPARE(demo.settings().pickColor, QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_K));
        QCOMPARE(stateButton(demo, "Tools", "PickColor")->toolTip(),
                 QStringLiteral("Setup success."));

        QSignalSpy activated(shortcut(demo, "Tools", "PickColor"), &QxtGlobalShortcut::activated);
        other.takeFocus();
        QTRY_VERIFY(!QApplication::activeWindow());
        other.type({sControl, sAlt, sK});
        QTRY_COMPARE(activated.count(), 1);
        QCOMPARE(window.statusBar()->currentMessage(),
                 QStringLiteral("Hotkey pressed: Pick a color (Ctrl+Alt+K)"));
        const auto *table = window.findChild<QTableView *>("boundValues");
        QCOMPARE(table->selectionModel()->selectedRows().value(0).data().toString(),
                 QStringLiteral("Hotkeys.Tools.PickColor"));
        QVERIFY(demo.close());
    }

    demo.start();
    MainWindow window(*demo.session, log);
    window.show();
    QCOMPARE(demo.settings().pickColor, QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_K));
    QVERIFY(shortcut(demo, "Tools", "PickColor")->isValid());
    QSignalSpy activated(shortcut(demo, "Tools", "PickColor"), &QxtGlobalShortcut::activated);
    XClient other;
    other.takeFocus();
    other.type({sControl, sAlt, sK});
    QTRY_COMPARE(activated.count(), 1);
}

void tst_DemoHotkeys::hotkeyOfAnotherProgramIsShownAsFailedUntilItEnds()
{
    auto holder = std::make_unique<KeyHolder>(DEMO_PROGRAM, DemoArguments::occupiedKey());
    QVERIFY(holder->holds());
    DemoFixture demo;
    demo.start();
    QVERIFY(demo.open("Hotkeys"));
    QPushButton *failed = stateButton(demo, "Capture", "Window");
    QCOMPARE(failed->toolTip(),
             QStringLiteral("Setup failed, the hotkey may be occupied. Click to try setup again."));
    QVERIFY(failed->isEnabled());
    QCOMPARE(stateButton(demo, "Capture", "Area")->toolTip(), QStringLiteral("Setup success."));
    QVERIFY(!stateButton(demo, "Capture", "Area")->isEnabled());

    holder.reset();
    auto *field = demo.control<KeySequenceEdit>(demo.editor("Hotkeys", "Capture", "Window"));
    field->setFocus();
    QTest::keyClick(field, Qt::Key_F7);
    QTest::keyClick(field, Qt::Key_W, Qt::ControlModifier | Qt::AltModifier);
    QCOMPARE(failed->toolTip(), QStringLiteral("Setup success."));
    QSignalSpy activated(shortcut(demo, "Capture", "Window"), &QxtGlobalShortcut::activated);
    XClient other;
    other.takeFocus();
    QTRY_VERIFY(!QApplication::activeWindow());
    other.type({sF7});
    other.type({sControl, sAlt, sW});
    QTRY_COMPARE(activated.count(), 1);
}

void tst_DemoHotkeys::destroyingTheKeyHolderReleasesTheKey()
{
    XClient other;
    const xcb_keycode_t key = other.keyOf(sF7);
    {
        const KeyHolder holder(DEMO_PROGRAM, QKeySequence(Qt::Key_F7));
        QVERIFY(holder.holds());
        QVERIFY(!other.canGrab(key, 0));
        const KeyHolder second(DEMO_PROGRAM, QKeySequence(Qt::Key_F7));
        QVERIFY(!second.holds());
    }
    QVERIFY(other.canGrab(key, 0));
    const KeyHolder missing(QStringLiteral("/no/such/program"), QKeySequence(Qt::Key_F7));
    QVERIFY(!missing.holds());
}

int main(int argc, char **argv)
{
    return runTest<tst_DemoHotkeys>(argc, argv);
}
#include "tst_DemoHotkeys.moc"
