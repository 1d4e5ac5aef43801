#include <QxtGlobalShortcut>

#include "FakeCarbon.h"
#include "support/TestMain.h"

// Carbon's codes of the keys in use here.
static constexpr UInt32 codeK = 0x28;
static constexpr UInt32 codeOne = 0x12;
static constexpr UInt32 command = 0x100;
static constexpr UInt32 commandShift = 0x300;

class tst_MacShortcutBackend : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void aPressActivates();
    void theApplicationChoosesTheNamesOfTheModifiers();
    void theSameKeysAreRegisteredOnce();
    void chordsOfTheSameKeysAreRegisteredOnce();
    void anOccupiedKeyIsEnabledButNotValid();
    void changeDisableAndDestroyUnregister();
    void deletionInTheHandlerIsHarmless();
    void hotKeysOfOthersAreLeftToThem();
    void withoutAHandlerNothingIsSupported();

private:
    FakeCarbon &mCarbon = FakeCarbon::instance();
    const QKeySequence mKeys{QStringLiteral("Ctrl+K")};
};

void tst_MacShortcutBackend::cleanup()
{
    QVERIFY(mCarbon.hotKeys.empty());
    QVERIFY(!mCarbon.handler);
    QCOMPARE(mCarbon.handlerFunctions, 0);
    mCarbon.refusesHandlers = false;
    mCarbon.occupied.clear();
}

void tst_MacShortcutBackend::aPressActivates()
{
    QVERIFY(QxtGlobalShortcut::isSupported());
    QxtGlobalShortcut shortcut;
    QSignalSpy changes(&shortcut, &QxtGlobalShortcut::enabledChanged);
    QSignalSpy activations(&shortcut, &QxtGlobalShortcut::activated);
    QVERIFY(shortcut.setShortcut(mKeys));
    QCOMPARE(changes.count(), 1);
    QCOMPARE(mCarbon.press(codeK, command), OSStatus(noErr));
    QTRY_COMPARE(activations.count(), 1);
}

void tst_MacShortcutBackend::theApplicationChoosesTheNamesOfTheModifiers()
{
    QCoreApplication::setAttribute(Qt::AA_MacDontSwapCtrlAndMeta);
    const QxtGlobalShortcut asOnKeys(mKeys);
    QCoreApplication::setAttribute(Qt::AA_MacDontSwapCtrlAndMeta, false);
    QVERIFY(asOnKeys.isValid());
    QCOMPARE(mCarbon.hotKeys.size(), size_t(1));
    QCOMPARE(mCarbon.hotKeys.front()->modifiers, UInt32(controlKey));
}

void tst_MacShortcutBackend::theSameKeysAreRegisteredOnce()
{
    QxtGlobalShortcut first(mKeys);
    auto second = std::make_unique<QxtGlobalShortcut>(mKeys);
    QVERIFY(first.isValid());
    QVERIFY(second->isValid());
    QCOMPARE(mCarbon.hotKeys.size(), size_t(1));

    QSignalSpy firstActivations(&first, &QxtGlobalShortcut::activated);
    QSignalSpy secondActivations(second.get(), &QxtGlobalShortcut::activated);
    mCarbon.press(codeK, command);
    QTRY_COMPARE(secondActivations.count(), 1);
    QCOMPARE(firstActivations.count(), 1);

    second.reset();
    QVERIFY(first.isValid());
    QCOMPARE(mCarbon.hotKeys.size(), size_t(1));
}

void tst_MacShortcutBackend::chordsOfTheSameKeysAreRegisteredOnce()
{
    auto symbol = std::make_unique<QxtGlobalShortcut>(QKeySequence(int(Qt::CTRL) + Qt::Key_Exclam));
    QxtGlobalShortcut digit(QKeySequence(int(Qt::CTRL) + int(Qt::SHIFT) + Qt::Key_1));
    QVERIFY(symbol->isValid());
    QVERIFY(digit.isValid());
    symbol.reset();
    QCOMPARE(mCarbon.hotKeys.size(), size_t(1));
    QSignalSpy activations(&digit, &QxtGlobalShortcut::activated);
    mCarbon.press(codeOne, commandShift);
    QTRY_COMPARE(activations.count(), 1);
}

void tst_MacShortcutBackend::anOccupiedKeyIsEnabledButNotValid()
{
    mCarbon.occupied.push_back({codeK, command, {}});
    QxtGlobalShortcut shortcut(mKeys);
    QVERIFY(shortcut.isEnabled());
    QVERIFY(!shortcut.isValid());
    mCarbon.occupied.clear();
    QVERIFY(shortcut.setShortcut(mKeys));
}

void tst_MacShortcutBackend::changeDisableAndDestroyUnregister()
{
    {
        QxtGlobalShortcut shortcut(mKeys);
        QVERIFY(shortcut.setShortcut(QKeySequence(int(Qt::CTRL) + int(Qt::SHIFT) + Qt::Key_1)));
        QCOMPARE(mCarbon.hotKeys.size(), size_t(1));
        QCOMPARE(mCarbon.hotKeys.front()->code, codeOne);
        QCOMPARE(mCarbon.hotKeys.front()->modifiers, commandShift);
        shortcut.setDisabled();
        QVERIFY(mCarbon.hotKeys.empty());
        shortcut.setEnabled();
        QCOMPARE(mCarbon.hotKeys.size(), size_t(1));
    }
    QVERIFY(mCarbon.hotKeys.empty());
}

void tst_MacShortcutBackend::deletionInTheHandlerIsHarmless()
{
    QPointer<QxtGlobalShortcut> shortcut = new QxtGlobalShortcut(mKeys);
    connect(shortcut, &QxtGlobalShortcut::activated, shortcut, [shortcut] { delete shortcut; });
    mCarbon.press(codeK, command);
    QTRY_VERIFY(!shortcut);
}

void tst_MacShortcutBackend::hotKeysOfOthersAreLeftToThem()
{
    QxtGlobalShortcut shortcut(mKeys);
    QSignalSpy activations(&shortcut, &QxtGlobalShortcut::activated);
    EventHotKeyID id = mCarbon.hotKeys.front()->id;
    id.signature = 0x6f746872;
    QCOMPARE(mCarbon.press(id), OSStatus(eventNotHandledErr));
    QCoreApplication::processEvents();
    QCOMPARE(activations.count(), 0);
}

void tst_MacShortcutBackend::withoutAHandlerNothingIsSupported()
{
    mCarbon.refusesHandlers = true;
    QVERIFY(!QxtGlobalShortcut::isSupported());
    QxtGlobalShortcut shortcut(mKeys);
    QVERIFY(!shortcut.isValid());
    QVERIFY(mCarbon.hotKeys.empty());
}

int main(int argc, char **argv)
{
    return runTest<tst_MacShortcutBackend>(argc, argv);
}

#include "tst_MacShortcutBackend.moc"
