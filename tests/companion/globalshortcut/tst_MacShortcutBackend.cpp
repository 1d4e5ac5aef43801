#include <QxtGlobalShortcut>

#include "FakeCarbon.h"
#include "MacKeyboard_p.h"
#include "MacLayouts.h"
#include "support/TestMain.h"

namespace {

// Carbon's codes of the keys that the tests press.
constexpr UInt32 sCodeK = 0x28;
constexpr UInt32 sCodeOne = 0x12;
constexpr UInt32 sCommand = 0x100;
constexpr UInt32 sCommandShift = 0x300;

} // namespace

class tst_MacShortcutBackend : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void pressingTheKeysActivates();
    void controlAndMetaAreNotSwappedIfTheApplicationAsks();
    void sameKeysAreRegisteredOnce();
    void equivalentChordsAreRegisteredOnce();
    void shortcutOfAnOccupiedKeyIsEnabledButNotValid();
    void changingDisablingAndDestroyingUnregisters();
    void handlerMayDeleteShortcuts();
    void eventsOfOtherHotKeysAreNotHandled();
    void withoutAnEventHandlerNothingIsSupported();
    void keysFollowTheKeyboardLayout();
    void sameLayoutOfAnotherInputSourceChangesNothing();
    void keyThatTheLayoutLacksReturnsWithTheLayout();
    void inputMethodWithoutALayoutUsesTheOneThatTypesAscii();
    void keysOfEveryLayoutAreThoseOfAllKeyboards();

private:
    FakeCarbon &mCarbon = FakeCarbon::instance();
    const QKeySequence mKeys{QStringLiteral("Ctrl+K")};
};

void tst_MacShortcutBackend::cleanup()
{
    QVERIFY(mCarbon.hotKeys.empty());
    QVERIFY(!mCarbon.handler);
    QCOMPARE(mCarbon.handlerFunctions, 0);
    QVERIFY(!mCarbon.observer);
    QCOMPARE(mCarbon.inputSources, 0);
    mCarbon.layout = nullptr;
    mCarbon.asciiLayout = nullptr;
    mCarbon.refusesHandlers = false;
    mCarbon.occupied.clear();
}

void tst_MacShortcutBackend::pressingTheKeysActivates()
{
    QVERIFY(QxtGlobalShortcut::isSupported());
    QxtGlobalShortcut shortcut;
    QSignalSpy changes(&shortcut, &QxtGlobalShortcut::enabledChanged);
    QSignalSpy activations(&shortcut, &QxtGlobalShortcut::activated);
    QVERIFY(shortcut.setShortcut(mKeys));
    QCOMPARE(changes.count(), 1);
    QCOMPARE(mCarbon.press(sCodeK, sCommand), OSStatus(noErr));
    QTRY_COMPARE(activations.count(), 1);
}

void tst_MacShortcutBackend::controlAndMetaAreNotSwappedIfTheApplicationAsks()
{
    QCoreApplication::setAttribute(Qt::AA_MacDontSwapCtrlAndMeta);
    const QxtGlobalShortcut asOnKeys(mKeys);
    QCoreApplication::setAttribute(Qt::AA_MacDontSwapCtrlAndMeta, false);
    QVERIFY(asOnKeys.isValid());
    QCOMPARE(mCarbon.hotKeys.size(), size_t(1));
    QCOMPARE(mCarbon.hotKeys.front()->modifiers, UInt32(controlKey));
}

void tst_MacShortcutBackend::sameKeysAreRegisteredOnce()
{
    QxtGlobalShortcut first(mKeys);
    auto second = std::make_unique<QxtGlobalShortcut>(mKeys);
    QVERIFY(first.isValid());
    QVERIFY(second->isValid());
    QCOMPARE(mCarbon.hotKeys.size(), size_t(1));

    QSignalSpy firstActivations(&first, &QxtGlobalShortcut::activated);
    QSignalSpy secondActivations(second.get(), &QxtGlobalShortcut::activated);
    mCarbon.press(sCodeK, sCommand);
    QTRY_COMPARE(secondActivations.count(), 1);
    QCOMPARE(firstActivations.count(), 1);

    second.reset();
    QVERIFY(first.isValid());
    QCOMPARE(mCarbon.hotKeys.size(), size_t(1));
}

void tst_MacShortcutBackend::equivalentChordsAreRegisteredOnce()
{
    auto symbol = std::make_unique<QxtGlobalShortcut>(QKeySequence(int(Qt::CTRL) + Qt::Key_Exclam));
    QxtGlobalShortcut digit(QKeySequence(int(Qt::CTRL) + int(Qt::SHIFT) + Qt::Key_1));
    QVERIFY(symbol->isValid());
    QVERIFY(digit.isValid());
    symbol.reset();
    QCOMPARE(mCarbon.hotKeys.size(), size_t(1));
    QSignalSpy activations(&digit, &QxtGlobalShortcut::activated);
    mCarbon.press(sCodeOne, sCommandShift);
    QTRY_COMPARE(activations.count(), 1);
}

void tst_MacShortcutBackend::shortcutOfAnOccupiedKeyIsEnabledButNotValid()
{
    mCarbon.occupied.push_back({sCodeK, sCommand, {}});
    QxtGlobalShortcut shortcut(mKeys);
    QVERIFY(shortcut.isEnabled());
    QVERIFY(!shortcut.isValid());
    mCarbon.occupied.clear();
    QVERIFY(shortcut.setShortcut(mKeys));
}

void tst_MacShortcutBackend::changingDisablingAndDestroyingUnregisters()
{
    {
        QxtGlobalShortcut shortcut(mKeys);
        QVERIFY(shortcut.setShortcut(QKeySequence(int(Qt::CTRL) + int(Qt::SHIFT) + Qt::Key_1)));
        QCOMPARE(mCarbon.hotKeys.size(), size_t(1));
        QCOMPARE(mCarbon.hotKeys.front()->code, sCodeOne);
        QCOMPARE(mCarbon.hotKeys.front()->modifiers, sCommandShift);
        shortcut.setDisabled();
        QVERIFY(mCarbon.hotKeys.empty());
        shortcut.setEnabled();
        QCOMPARE(mCarbon.hotKeys.size(), size_t(1));
    }
    QVERIFY(mCarbon.hotKeys.empty());
}

void tst_MacShortcutBackend::handlerMayDeleteShortcuts()
{
    QPointer<QxtGlobalShortcut> shortcut = new QxtGlobalShortcut(mKeys);
    connect(shortcut, &QxtGlobalShortcut::activated, shortcut, [shortcut] { delete shortcut; });
    mCarbon.press(sCodeK, sCommand);
    QTRY_VERIFY(!shortcut);
}

void tst_MacShortcutBackend::eventsOfOtherHotKeysAreNotHandled()
{
    QxtGlobalShortcut shortcut(mKeys);
    QSignalSpy activations(&shortcut, &QxtGlobalShortcut::activated);
    EventHotKeyID id = mCarbon.hotKeys.front()->id;
    id.signature = 0x6f746872;
    QCOMPARE(mCarbon.press(id), OSStatus(eventNotHandledErr));
    QCoreApplication::processEvents();
    QCOMPARE(activations.count(), 0);
}

void tst_MacShortcutBackend::withoutAnEventHandlerNothingIsSupported()
{
    mCarbon.refusesHandlers = true;
    QVERIFY(!QxtGlobalShortcut::isSupported());
    QxtGlobalShortcut shortcut(mKeys);
    QVERIFY(!shortcut.isValid());
    QVERIFY(mCarbon.hotKeys.empty());
}

void tst_MacShortcutBackend::keysFollowTheKeyboardLayout()
{
    const MacLayout azerty = azertyLayout();
    const MacLayout qwertz = qwertzLayout();
    mCarbon.layout = &azerty;
    QxtGlobalShortcut shortcut(QKeySequence(int(Qt::CTRL) + Qt::Key_Z));
    QSignalSpy changes(&shortcut, &QxtGlobalShortcut::enabledChanged);
    QSignalSpy activations(&shortcut, &QxtGlobalShortcut::activated);
    QCOMPARE(mCarbon.press(0x0d, sCommand), OSStatus(noErr));
    QTRY_COMPARE(activations.count(), 1);

    mCarbon.choose(&qwertz);
    QCOMPARE(mCarbon.hotKeys.size(), size_t(1));
    QCOMPARE(mCarbon.press(0x0d, sCommand), OSStatus(eventNotHandledErr));
    QCOMPARE(mCarbon.press(0x10, sCommand), OSStatus(noErr));
    QTRY_COMPARE(activations.count(), 2);
    QCOMPARE(changes.count(), 0);
}

void tst_MacShortcutBackend::sameLayoutOfAnotherInputSourceChangesNothing()
{
    const MacLayout azerty = azertyLayout();
    const MacLayout copy = azerty;
    mCarbon.layout = &azerty;
    QxtGlobalShortcut shortcut(mKeys);
    const FakeCarbon::HotKey *hotKey = mCarbon.hotKeys.front().get();
    mCarbon.choose(&copy);
    QCOMPARE(mCarbon.hotKeys.front().get(), hotKey);
}

void tst_MacShortcutBackend::keyThatTheLayoutLacksReturnsWithTheLayout()
{
    const MacLayout qwertz = qwertzLayout();
    const MacLayout russian = russianLayout();
    mCarbon.layout = &russian;
    QxtGlobalShortcut shortcut(QKeySequence(int(Qt::META) + Qt::Key_Udiaeresis));
    QSignalSpy changes(&shortcut, &QxtGlobalShortcut::enabledChanged);
    QVERIFY(!shortcut.isValid());
    mCarbon.choose(&qwertz);
    QVERIFY(shortcut.isValid());
    QTRY_COMPARE(changes.count(), 1);
    mCarbon.choose(&russian);
    QVERIFY(!shortcut.isValid());
    QTRY_COMPARE(changes.count(), 2);
}

void tst_MacShortcutBackend::inputMethodWithoutALayoutUsesTheOneThatTypesAscii()
{
    const MacLayout dvorak = dvorakLayout();
    mCarbon.asciiLayout = &dvorak;
    QxtGlobalShortcut shortcut(mKeys);
    QCOMPARE(mCarbon.hotKeys.size(), size_t(1));
    QCOMPARE(mCarbon.hotKeys.front()->code, UInt32(0x09));
}

void tst_MacShortcutBackend::keysOfEveryLayoutAreThoseOfAllKeyboards()
{
    // The system reports characters of the keypad and of keys such as Return, too. The last one
    // here is a character beyond 16 bits.
    MacLayout layout = qwertzLayout();
    layout.keys[0x41][0] = '.';
    layout.keys[0x24][0] = 0xd;
    layout.keys[0x7b][0] = 0x1c;
    layout.keys[0x0a][0] = 0x1f600;
    mCarbon.layout = &layout;
    QxtGlobalShortcut period(QKeySequence(Qt::Key_Period));
    QCOMPARE(mCarbon.hotKeys.size(), size_t(1));
    QCOMPARE(mCarbon.hotKeys.front()->code, UInt32(0x2f));
    const MacKeyboard keyboard([] {});
    QCOMPARE(keyboard.layout().keys[0x0a][0], 0x1f600U);
}

int main(int argc, char **argv)
{
    return runTest<tst_MacShortcutBackend>(argc, argv);
}

#include "tst_MacShortcutBackend.moc"
