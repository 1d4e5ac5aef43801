#include <QxtGlobalShortcut>

#include "support/TestMain.h"
#include "support/XClient.h"
#include "support/XPointer.h"

#include <QElapsedTimer>
#include <QPushButton>
#include <QScopeGuard>

#include <memory>
#include <thread>

using Symbols = QVector<xcb_keysym_t>;

namespace {

// X11 keysyms of the keys that the tests type.
constexpr xcb_keysym_t sShiftL = 0xffe1;
constexpr xcb_keysym_t sControlL = 0xffe3;
constexpr xcb_keysym_t sAltL = 0xffe9;
constexpr xcb_keysym_t sSuperL = 0xffeb;
constexpr xcb_keysym_t sF8 = 0xffc5;
constexpr xcb_keysym_t sF9 = 0xffc6;

} // namespace

/// Global shortcuts with the keyboard of a real X server.
class tst_QxtGlobalShortcutX11 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void pressingTheKeysActivates_data();
    void pressingTheKeysActivates();
    void otherModifiersDoNotActivate();
    void heldKeyActivatesOnce();
    void heldKeyDoesNotFreezeThePointer();
    void shortcutOfAKeyGrabbedByAnotherClientIsEnabledButNotValid();
    void partlyOccupiedKeyIsReleasedCompletely();
    void changingDisablingAndDestroyingReleasesTheKey_data();
    void changingDisablingAndDestroyingReleasesTheKey();
    void sameKeysActivateEveryShortcut();
    void retryOfOneShortcutRegistersAll();
    void equivalentChordsShareTheKeys();
    void handlerMayDeleteShortcuts();
    void handlerMayDisableAnotherShortcut();
    void handlerMayChangeAnotherShortcut();
    void anotherThreadRegistersNothing();
    void impossibleShortcutsAreNotValid_data();
    void impossibleShortcutsAreNotValid();

private:
    bool canGrabF9();
    void typeSentinel();

    std::unique_ptr<XClient> mClient;
    std::unique_ptr<QxtGlobalShortcut> mSentinel;
    const QKeySequence mKeys{QStringLiteral("F9")};
};

void tst_QxtGlobalShortcutX11::initTestCase()
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        QSKIP("needs the xcb platform");
    QVERIFY(QxtGlobalShortcut::isSupported());
}

void tst_QxtGlobalShortcutX11::init()
{
    mClient = std::make_unique<XClient>();
    mSentinel = std::make_unique<QxtGlobalShortcut>(QKeySequence(QStringLiteral("F8")));
    QVERIFY(mSentinel->isValid());
}

void tst_QxtGlobalShortcutX11::cleanup()
{
    if (mClient) {
        mClient->setLock(XClient::sCapsLock, XCB_MOD_MASK_LOCK, false);
        mClient->setLock(XClient::sNumLock, XCB_MOD_MASK_2, false);
    }
    mSentinel.reset();
    mClient.reset();
}

// Waits until everything that was typed before has been processed.
void tst_QxtGlobalShortcutX11::typeSentinel()
{
    QSignalSpy activations(mSentinel.get(), &QxtGlobalShortcut::activated);
    mClient->type({sF8});
    QTRY_COMPARE(activations.count(), 1);
}

// Returns whether no other client has grabbed F9 with any combination of the lock keys.
bool tst_QxtGlobalShortcutX11::canGrabF9()
{
    const xcb_keycode_t key = mClient->keyOf(sF9);
    return mClient->canGrab(key, 0x00) && mClient->canGrab(key, 0x02) && mClient->canGrab(key, 0x10)
           && mClient->canGrab(key, 0x12);
}

void tst_QxtGlobalShortcutX11::pressingTheKeysActivates_data()
{
    QTest::addColumn<int>("chord");
    QTest::addColumn<Symbols>("typed");
    QTest::addColumn<bool>("capsLock");
    QTest::addColumn<bool>("numLock");

    const struct
    {
        const char *name;
        int chord;
        Symbols typed;
    } keys[] = {
        {"functionKey", Qt::Key_F9, {sF9}},
        {"letter", int(Qt::CTRL) + int(Qt::ALT) + Qt::Key_K, {sControlL, sAltL, 'k'}},
        {"allModifiers",
         int(Qt::CTRL) + int(Qt::SHIFT) + int(Qt::ALT) + int(Qt::META) + Qt::Key_K,
         {sControlL, sShiftL, sAltL, sSuperL, 'k'}},
        {"shiftedDigit", int(Qt::CTRL) + int(Qt::SHIFT) + Qt::Key_1, {sControlL, sShiftL, '1'}},
        {"shiftedSymbol",
         int(Qt::CTRL) + int(Qt::SHIFT) + Qt::Key_Exclam,
         {sControlL, sShiftL, '1'}},
        {"symbolWithoutShift", int(Qt::CTRL) + Qt::Key_Exclam, {sControlL, sShiftL, '1'}},
        {"symbolOfTwoKeys",
         int(Qt::CTRL) + int(Qt::SHIFT) + Qt::Key_Less,
         {sControlL, sShiftL, ','}},
        {"backtab", int(Qt::CTRL) + int(Qt::SHIFT) + Qt::Key_Backtab, {sControlL, sShiftL, 0xff09}},
        {"space", int(Qt::META) + Qt::Key_Space, {sSuperL, ' '}},
        {"arrow", int(Qt::ALT) + Qt::Key_Left, {sAltL, 0xff51}},
        {"print", Qt::Key_Print, {0xff61}},
        {"altPrint", int(Qt::ALT) + Qt::Key_SysReq, {sAltL, 0xff61}},
        {"mediaKey", Qt::Key_MediaPlay, {0x1008ff14}},
        {"keypadDigit", int(Qt::KeypadModifier) + Qt::Key_5, {0xffb5}},
        {"keypadPlus", int(Qt::CTRL) + int(Qt::KeypadModifier) + Qt::Key_Plus, {sControlL, 0xffab}},
        {"keypadEnter", int(Qt::CTRL) + Qt::Key_Enter, {sControlL, 0xff8d}},
    };
    for (const auto &key : keys) {
        QTest::addRow("%s", key.name) << key.chord << key.typed << false << false;
        QTest::addRow("%sWithCapsLock", key.name) << key.chord << key.typed << true << false;
        QTest::addRow("%sWithNumLock", key.name) << key.chord << key.typed << false << true;
        QTest::addRow("%sWithBothLocks", key.name) << key.chord << key.typed << true << true;
    }
}

void tst_QxtGlobalShortcutX11::pressingTheKeysActivates()
{
    QFETCH(int, chord);
    QFETCH(Symbols, typed);
    QFETCH(bool, capsLock);
    QFETCH(bool, numLock);

    QxtGlobalShortcut shortcut;
    QSignalSpy changes(&shortcut, &QxtGlobalShortcut::enabledChanged);
    QSignalSpy activations(&shortcut, &QxtGlobalShortcut::activated);
    QVERIFY(shortcut.setShortcut(QKeySequence(chord)));
    QVERIFY(shortcut.isValid());
    QCOMPARE(changes.count(), 1);

    mClient->setLock(XClient::sCapsLock, XCB_MOD_MASK_LOCK, capsLock);
    mClient->setLock(XClient::sNumLock, XCB_MOD_MASK_2, numLock);
    QCOMPARE(mClient->modifiers(), quint16((capsLock ? 0x02 : 0) | (numLock ? 0x10 : 0)));
    mClient->type(typed);
    QTRY_COMPARE(activations.count(), 1);
    typeSentinel();
    QCOMPARE(activations.count(), 1);
}

void tst_QxtGlobalShortcutX11::otherModifiersDoNotActivate()
{
    QxtGlobalShortcut shortcut(QKeySequence(int(Qt::CTRL) + Qt::Key_F9));
    QSignalSpy activations(&shortcut, &QxtGlobalShortcut::activated);
    mClient->type({sF9});
    mClient->type({sAltL, sF9});
    mClient->type({sControlL, sShiftL, sF9});
    typeSentinel();
    QCOMPARE(activations.count(), 0);
}

void tst_QxtGlobalShortcutX11::heldKeyActivatesOnce()
{
    QxtGlobalShortcut shortcut(mKeys);
    QSignalSpy activations(&shortcut, &QxtGlobalShortcut::activated);
    const xcb_keycode_t key = mClient->keyOf(sF9);
    QElapsedTimer held;
    held.start();
    mClient->send(key, true);
    // The server repeats only a key that is really held, here after at most 0.7 seconds.
    QTRY_VERIFY(held.hasExpired(1000));
    mClient->send(key, false);
    typeSentinel();
    QCOMPARE(activations.count(), 1);
    mClient->type({sF9});
    QTRY_COMPARE(activations.count(), 2);
}

void tst_QxtGlobalShortcutX11::heldKeyDoesNotFreezeThePointer()
{
    QPushButton button;
    button.setGeometry(100, 100, 200, 100);
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    QSignalSpy clicks(&button, &QPushButton::clicked);
    QxtGlobalShortcut shortcut(mKeys);
    QSignalSpy activations(&shortcut, &QxtGlobalShortcut::activated);
    const xcb_keycode_t key = mClient->keyOf(sF9);
    const auto release = qScopeGuard([this, key] { mClient->send(key, false); });
    mClient->send(key, true);
    QTRY_COMPARE(activations.count(), 1);
    XPointer().click(button.mapToGlobal(button.rect().center()));
    QTRY_COMPARE(clicks.count(), 1);
}

void tst_QxtGlobalShortcutX11::shortcutOfAKeyGrabbedByAnotherClientIsEnabledButNotValid()
{
    const xcb_keycode_t key = mClient->keyOf(sF9);
    QVERIFY(mClient->grab(key, 0));
    QxtGlobalShortcut shortcut;
    QSignalSpy changes(&shortcut, &QxtGlobalShortcut::enabledChanged);
    QVERIFY(!shortcut.setShortcut(mKeys));
    QVERIFY(shortcut.isEnabled());
    QVERIFY(!shortcut.isValid());
    QCOMPARE(changes.count(), 0);

    mClient->ungrab(key, 0);
    QVERIFY(!shortcut.isValid());
    QVERIFY(shortcut.setShortcut(mKeys));
    QVERIFY(shortcut.isValid());
    QCOMPARE(changes.count(), 1);
    QSignalSpy activations(&shortcut, &QxtGlobalShortcut::activated);
    mClient->type({sF9});
    QTRY_COMPARE(activations.count(), 1);
}

void tst_QxtGlobalShortcutX11::partlyOccupiedKeyIsReleasedCompletely()
{
    const xcb_keycode_t key = mClient->keyOf(sF9);
    QVERIFY(mClient->grab(key, XCB_MOD_MASK_2));
    QxtGlobalShortcut shortcut(mKeys);
    QVERIFY(!shortcut.isValid());
    QCOMPARE(shortcut.failure(), QxtGlobalShortcut::Taken);
    QVERIFY(canGrabF9());
}

void tst_QxtGlobalShortcutX11::changingDisablingAndDestroyingReleasesTheKey_data()
{
    QTest::addColumn<QString>("action");
    QTest::newRow("change") << QStringLiteral("change");
    QTest::newRow("clear") << QStringLiteral("clear");
    QTest::newRow("disable") << QStringLiteral("disable");
    QTest::newRow("destroy") << QStringLiteral("destroy");
}

void tst_QxtGlobalShortcutX11::changingDisablingAndDestroyingReleasesTheKey()
{
    QFETCH(QString, action);
    auto shortcut = std::make_unique<QxtGlobalShortcut>(mKeys);
    QVERIFY(shortcut->isValid());
    QVERIFY(!canGrabF9());
    if (action == QLatin1String("change"))
        QVERIFY(shortcut->setShortcut(QKeySequence(QStringLiteral("F7"))));
    else if (action == QLatin1String("clear"))
        QVERIFY(!shortcut->setShortcut(QKeySequence()));
    else if (action == QLatin1String("disable"))
        shortcut->setDisabled();
    else
        shortcut.reset();
    QVERIFY(canGrabF9());
}

void tst_QxtGlobalShortcutX11::sameKeysActivateEveryShortcut()
{
    QxtGlobalShortcut first(mKeys);
    QxtGlobalShortcut second(mKeys);
    QVERIFY(first.isValid());
    QVERIFY(second.isValid());
    QSignalSpy firstActivations(&first, &QxtGlobalShortcut::activated);
    QSignalSpy secondActivations(&second, &QxtGlobalShortcut::activated);
    mClient->type({sF9});
    QTRY_COMPARE(secondActivations.count(), 1);
    QCOMPARE(firstActivations.count(), 1);

    first.setDisabled();
    QVERIFY(second.isValid());
    mClient->type({sF9});
    QTRY_COMPARE(secondActivations.count(), 2);
    QCOMPARE(firstActivations.count(), 1);
    second.setDisabled();
    QVERIFY(canGrabF9());
}

void tst_QxtGlobalShortcutX11::retryOfOneShortcutRegistersAll()
{
    const xcb_keycode_t key = mClient->keyOf(sF9);
    QVERIFY(mClient->grab(key, 0));
    QxtGlobalShortcut first(mKeys);
    QxtGlobalShortcut second(mKeys);
    mClient->ungrab(key, 0);
    QSignalSpy firstChanges(&first, &QxtGlobalShortcut::enabledChanged);
    QSignalSpy secondChanges(&second, &QxtGlobalShortcut::enabledChanged);
    QVERIFY(second.setShortcut(mKeys));
    QVERIFY(first.isValid());
    QTRY_COMPARE(firstChanges.count(), 1);
    QCOMPARE(secondChanges.count(), 1);
}

void tst_QxtGlobalShortcutX11::equivalentChordsShareTheKeys()
{
    auto symbol = std::make_unique<QxtGlobalShortcut>(QKeySequence(int(Qt::CTRL) + Qt::Key_Exclam));
    QxtGlobalShortcut digit(QKeySequence(int(Qt::CTRL) + int(Qt::SHIFT) + Qt::Key_1));
    QVERIFY(symbol->isValid());
    QVERIFY(digit.isValid());
    symbol.reset();
    QSignalSpy activations(&digit, &QxtGlobalShortcut::activated);
    mClient->type({sControlL, sShiftL, '1'});
    QTRY_COMPARE(activations.count(), 1);
}

void tst_QxtGlobalShortcutX11::handlerMayDeleteShortcuts()
{
    mSentinel.reset(); // so that the handler deletes the last shortcut of the program
    QPointer<QxtGlobalShortcut> first = new QxtGlobalShortcut(mKeys);
    QPointer<QxtGlobalShortcut> second = new QxtGlobalShortcut(mKeys);
    int calls = 0;
    const auto deleteBoth = [&calls, first, second] {
        ++calls;
        delete first;
        delete second;
    };
    connect(first, &QxtGlobalShortcut::activated, this, deleteBoth);
    connect(second, &QxtGlobalShortcut::activated, this, deleteBoth);
    mClient->type({sF9});
    QTRY_VERIFY(!first && !second);
    QVERIFY(canGrabF9());
    QCOMPARE(calls, 1);
}

void tst_QxtGlobalShortcutX11::handlerMayDisableAnotherShortcut()
{
    QxtGlobalShortcut first(mKeys);
    QxtGlobalShortcut second(mKeys);
    connect(&first, &QxtGlobalShortcut::activated, &second, [&second] { second.setDisabled(); });
    QSignalSpy activations(&second, &QxtGlobalShortcut::activated);
    mClient->type({sF9});
    typeSentinel();
    QVERIFY(!second.isEnabled());
    QCOMPARE(activations.count(), 0);
}

void tst_QxtGlobalShortcutX11::handlerMayChangeAnotherShortcut()
{
    QxtGlobalShortcut first(mKeys);
    QxtGlobalShortcut second(mKeys);
    connect(&first, &QxtGlobalShortcut::activated, &second,
            [&second] { second.setShortcut(QKeySequence(QStringLiteral("F7"))); });
    QSignalSpy activations(&second, &QxtGlobalShortcut::activated);
    mClient->type({sF9});
    typeSentinel();
    QVERIFY(second.isValid());
    QCOMPARE(activations.count(), 0);
}

void tst_QxtGlobalShortcutX11::anotherThreadRegistersNothing()
{
    bool supported = true;
    bool valid = true;
    std::thread thread([this, &supported, &valid] {
        supported = QxtGlobalShortcut::isSupported();
        QxtGlobalShortcut shortcut(mKeys);
        valid = shortcut.isValid();
    });
    thread.join();
    QVERIFY(!supported);
    QVERIFY(!valid);
}

void tst_QxtGlobalShortcutX11::impossibleShortcutsAreNotValid_data()
{
    using Failure = QxtGlobalShortcut::Failure;
    QTest::addColumn<QKeySequence>("keys");
    QTest::addColumn<Failure>("failure");
    QTest::newRow("empty") << QKeySequence() << Failure::Empty;
    QTest::newRow("zeroKey") << QKeySequence(int(Qt::CTRL)) << Failure::NotAChord;
    QTest::newRow("unknownKey") << QKeySequence(Qt::Key_unknown) << Failure::NotAChord;
    QTest::newRow("twoChords") << QKeySequence(int(Qt::CTRL) + Qt::Key_F9,
                                               int(Qt::CTRL) + Qt::Key_F7)
                               << Failure::NotAChord;
    QTest::newRow("modifierAlone")
        << QKeySequence(int(Qt::SHIFT) + Qt::Key_Shift) << Failure::NotAChord;
    QTest::newRow("modifierWithoutState") << QKeySequence(Qt::Key_Shift) << Failure::NotAChord;
    QTest::newRow("groupSwitch") << QKeySequence(int(Qt::GroupSwitchModifier) + Qt::Key_F9)
                                 << Failure::NotOnKeyboard;
    QTest::newRow("keyMissingOnThisKeyboard") << QKeySequence(0x0424) << Failure::NotOnKeyboard;
    QTest::newRow("keyMissingOnTheKeypad")
        << QKeySequence(int(Qt::KeypadModifier) + Qt::Key_A) << Failure::NotOnKeyboard;
    QTest::newRow("allBits") << QKeySequence(-1) << Failure::NotAChord;
}

void tst_QxtGlobalShortcutX11::impossibleShortcutsAreNotValid()
{
    QFETCH(QKeySequence, keys);
    QxtGlobalShortcut shortcut(mKeys);
    QVERIFY(shortcut.isValid());
    QSignalSpy changes(&shortcut, &QxtGlobalShortcut::enabledChanged);
    QVERIFY(!shortcut.setShortcut(keys));
    QVERIFY(!shortcut.isValid());
    QVERIFY(shortcut.isEnabled());
    QCOMPARE(changes.count(), 1);
    QTEST(shortcut.failure(), "failure");
}

int main(int argc, char **argv)
{
    return runTest<tst_QxtGlobalShortcutX11>(argc, argv);
}

#include "tst_QxtGlobalShortcutX11.moc"
