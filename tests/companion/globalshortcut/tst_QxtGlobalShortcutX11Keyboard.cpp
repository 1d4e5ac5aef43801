#include <QxtGlobalShortcut>

#include "support/TestMain.h"
#include "support/XClient.h"

#include <QProcess>

#include <memory>

namespace {

constexpr xcb_keysym_t sF9 = 0xffc6;

} // namespace

/// Changes of the X server's keyboard while hotkeys are registered.
class tst_QxtGlobalShortcutX11Keyboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void keyThatMovesIsGrabbedAgain();
    void missingAndReturningKeyIsAnnounced();
    void keyIsGrabbedAgainAfterALayoutChange();
    void letterOfTheSecondLayoutIsFound();
    void numLockOnAnotherModifierIsFound();
    void keyWithoutModifiersWorksAfterNumLockMoves();
    void shortcutIsNotValidAfterTheServerEnds();

private:
    static int setLayout(const char *layout);

    std::unique_ptr<XClient> mClient;
    xcb_keycode_t mKey = 0;
    xcb_keycode_t mEmptyKey = 0;
    QVector<xcb_keysym_t> mSymbols;
    QVector<xcb_keycode_t> mModifiers;
    const QVector<xcb_keysym_t> mNoSymbols{XCB_NO_SYMBOL};
    const QKeySequence mKeys{QStringLiteral("F9")};
};

void tst_QxtGlobalShortcutX11Keyboard::initTestCase()
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        QSKIP("needs the xcb platform");
}

void tst_QxtGlobalShortcutX11Keyboard::init()
{
    mClient = std::make_unique<XClient>();
    mKey = mClient->keyOf(sF9);
    mEmptyKey = mClient->emptyKey();
    QVERIFY(mKey != 0 && mEmptyKey != 0);
    mSymbols = mClient->symbolsOf(mKey);
    mModifiers = mClient->modifierMap();
}

void tst_QxtGlobalShortcutX11Keyboard::cleanup()
{
    if (!mClient)
        return;
    mClient->setSymbols(mKey, mSymbols);
    mClient->setSymbols(mEmptyKey, mNoSymbols);
    QVERIFY(mClient->setModifierMap(mModifiers));
    mClient.reset();
}

void tst_QxtGlobalShortcutX11Keyboard::keyThatMovesIsGrabbedAgain()
{
    QxtGlobalShortcut shortcut(mKeys);
    QSignalSpy activations(&shortcut, &QxtGlobalShortcut::activated);
    mClient->setSymbols(mEmptyKey, {sF9, sF9});
    mClient->setSymbols(mKey, mNoSymbols);
    QTRY_VERIFY(!mClient->canGrab(mEmptyKey, 0));
    QTRY_VERIFY(mClient->canGrab(mKey, 0));
    QVERIFY(shortcut.isValid());
    mClient->send(mEmptyKey, true);
    mClient->send(mEmptyKey, false);
    QTRY_COMPARE(activations.count(), 1);
}

void tst_QxtGlobalShortcutX11Keyboard::missingAndReturningKeyIsAnnounced()
{
    QxtGlobalShortcut shortcut(mKeys);
    QSignalSpy changes(&shortcut, &QxtGlobalShortcut::enabledChanged);
    mClient->setSymbols(mKey, mNoSymbols);
    QTRY_COMPARE(changes.count(), 1);
    QVERIFY(!shortcut.isValid());
    QVERIFY(shortcut.isEnabled());
    mClient->setSymbols(mKey, mSymbols);
    QTRY_COMPARE(changes.count(), 2);
    QVERIFY(shortcut.isValid());
}

int tst_QxtGlobalShortcutX11Keyboard::setLayout(const char *layout)
{
    return QProcess::execute(QStringLiteral("setxkbmap"), {QLatin1String(layout)});
}

void tst_QxtGlobalShortcutX11Keyboard::keyIsGrabbedAgainAfterALayoutChange()
{
    if (setLayout("us") != 0)
        QSKIP("needs setxkbmap");
    const xcb_keycode_t z = mClient->keyOf('z');
    const xcb_keycode_t y = mClient->keyOf('y');
    QxtGlobalShortcut shortcut(QKeySequence(int(Qt::CTRL) + Qt::Key_Z));
    QVERIFY(!mClient->canGrab(z, XCB_MOD_MASK_CONTROL));
    QVERIFY(mClient->canGrab(y, XCB_MOD_MASK_CONTROL));
    QCOMPARE(setLayout("de"), 0); // swaps Y and Z
    QTRY_VERIFY(!mClient->canGrab(y, XCB_MOD_MASK_CONTROL));
    QVERIFY(mClient->canGrab(z, XCB_MOD_MASK_CONTROL));
    QVERIFY(shortcut.isValid());
    QCOMPARE(setLayout("us"), 0);
    QTRY_VERIFY(!mClient->canGrab(z, XCB_MOD_MASK_CONTROL));
}

void tst_QxtGlobalShortcutX11Keyboard::letterOfTheSecondLayoutIsFound()
{
    // The second layout has the letter U+0424, in lower case first, with the legacy keysyms that
    // keyboard layouts use.
    mClient->setSymbols(mEmptyKey, {'\\', '|', 0x6c6, 0x6e6});
    QxtGlobalShortcut shortcut;
    QTRY_VERIFY(shortcut.setShortcut(QKeySequence(int(Qt::CTRL) + 0x0424)));
    QSignalSpy activations(&shortcut, &QxtGlobalShortcut::activated);
    const xcb_keycode_t control = mClient->keyOf(0xffe3);
    mClient->send(control, true);
    mClient->send(mEmptyKey, true);
    mClient->send(mEmptyKey, false);
    mClient->send(control, false);
    QTRY_COMPARE(activations.count(), 1);
}

void tst_QxtGlobalShortcutX11Keyboard::numLockOnAnotherModifierIsFound()
{
    // Move Num Lock from the fifth row of the map, Mod2, to the sixth, Mod3, which has no keys.
    const auto keysPerModifier = static_cast<int>(mModifiers.size() / 8);
    QVector<xcb_keycode_t> moved = mModifiers;
    for (int i = 0; i < keysPerModifier; ++i)
        qSwap(moved[4 * keysPerModifier + i], moved[5 * keysPerModifier + i]);
    QVERIFY(mClient->setModifierMap(moved));

    QxtGlobalShortcut shortcut;
    QVERIFY(shortcut.setShortcut(mKeys));
    // The key is grabbed with Num Lock's new modifier, and free with the old one.
    QTRY_VERIFY(!mClient->canGrab(mKey, XCB_MOD_MASK_3));
    QTRY_VERIFY(mClient->canGrab(mKey, XCB_MOD_MASK_2));
}

void tst_QxtGlobalShortcutX11Keyboard::keyWithoutModifiersWorksAfterNumLockMoves()
{
    QxtGlobalShortcut shortcut(mKeys);
    QSignalSpy changes(&shortcut, &QxtGlobalShortcut::enabledChanged);
    QSignalSpy activations(&shortcut, &QxtGlobalShortcut::activated);
    const auto keysPerModifier = static_cast<int>(mModifiers.size() / 8);
    QVector<xcb_keycode_t> moved = mModifiers;
    for (int i = 0; i < keysPerModifier; ++i)
        moved[4 * keysPerModifier + i] = 0;
    QVERIFY(mClient->setModifierMap(moved));
    QTRY_VERIFY(mClient->canGrab(mKey, XCB_MOD_MASK_2));
    mClient->type({sF9});
    QTRY_COMPARE(activations.count(), 1);
    QCOMPARE(changes.count(), 0);
}

void tst_QxtGlobalShortcutX11Keyboard::shortcutIsNotValidAfterTheServerEnds()
{
    // A separate server: the test client could not survive the end of its own.
    QProcess server;
    server.start(QStringLiteral("Xvfb"), {QStringLiteral("-displayfd"), QStringLiteral("1")});
    if (!server.waitForStarted())
        QSKIP("needs Xvfb");
    QVERIFY(server.waitForReadyRead());
    const QByteArray display = qgetenv("DISPLAY");
    qputenv("DISPLAY", ':' + server.readLine().trimmed());
    QxtGlobalShortcut shortcut(mKeys);
    qputenv("DISPLAY", display);
    QVERIFY(shortcut.isValid());
    QSignalSpy changes(&shortcut, &QxtGlobalShortcut::enabledChanged);
    QVERIFY(mClient->canGrab(mKey, 0));

    server.kill();
    QVERIFY(server.waitForFinished());
    QTRY_COMPARE(changes.count(), 1);
    QVERIFY(!shortcut.isValid());
    QVERIFY(!shortcut.setShortcut(mKeys));
    QVERIFY(!QxtGlobalShortcut::isSupported());
}

int main(int argc, char **argv)
{
    return runTest<tst_QxtGlobalShortcutX11Keyboard>(argc, argv);
}

#include "tst_QxtGlobalShortcutX11Keyboard.moc"
