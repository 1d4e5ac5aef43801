#include <QxtGlobalShortcut>

#include <OrvUtils/GetKeySequence.h>

#include "support/TestMain.h"
#include "support/XClient.h"

#include <QKeyEvent>
#include <QProcess>
#include <QScopeGuard>
#include <QWidget>

#include <memory>

using Symbols = QVector<xcb_keysym_t>;

namespace {

// X11 keysyms of the US keyboard.
constexpr xcb_keysym_t sShift = 0xffe1;
constexpr xcb_keysym_t sControl = 0xffe3;
constexpr xcb_keysym_t sAlt = 0xffe9;
constexpr xcb_keysym_t sAltGr = 0xffea; // there the right Alt key
constexpr xcb_keysym_t sMenu = 0xff67;
constexpr xcb_keysym_t sF8 = 0xffc5;

constexpr int sNotCompared = 0;
constexpr int sCtrl = int(Qt::CTRL);
constexpr int sCtrlShift = int(Qt::CTRL) + int(Qt::SHIFT);

/// Remembers the last chord that a user typed into it.
class Recorder : public QWidget
{
public:
    QKeySequence recorded;

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        const QKeySequence keys = GetKeySequence(event);
        const int key = event->key();
        if (key < Qt::Key_Shift || key > Qt::Key_Alt)
            recorded = keys;
    }
};

} // namespace

/// Hotkeys on keyboards of several countries, typed on an X server.
class tst_QxtGlobalShortcutX11Layouts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void cleanup();
    void chordOfALayoutIsTyped_data();
    void chordOfALayoutIsTyped();
    void symbolThatNoLayoutHasIsNotValid_data();
    void symbolThatNoLayoutHasIsNotValid();
    void symbolThatNeedsNoAltGrUsesNone();
    void symbolMovesBehindAltGr();
    void altGrIsFoundOnAnotherModifier();
    void mediaKeyIsRecordedAndActivates_data();
    void mediaKeyIsRecordedAndActivates();

private:
    static void setLayout(const QString &layout);
    void type(const Symbols &keysOfTheUsLayout);
    QKeySequence record(const Symbols &keys);
    bool activates(const QKeySequence &keys, const Symbols &typed);

    std::unique_ptr<XClient> mClient;
    std::unique_ptr<Recorder> mRecorder;
    QHash<xcb_keysym_t, xcb_keycode_t> mKeys; // by symbol of the US keyboard
    QVector<xcb_keycode_t> mModifiers;
    xcb_keycode_t mEmptyKey = 0;
};

void tst_QxtGlobalShortcutX11Layouts::initTestCase()
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        QSKIP("needs the xcb platform");
    if (QProcess::execute(QStringLiteral("setxkbmap"), {QStringLiteral("us")}) != 0)
        QSKIP("needs setxkbmap");
    mClient = std::make_unique<XClient>();
    for (const xcb_keysym_t special : {sShift, sControl, sAlt, sAltGr, sMenu, sF8})
        mKeys.insert(special, mClient->keyOf(special));
    for (xcb_keysym_t symbol = 0x21; symbol < 0x7f; ++symbol)
        mKeys.insert(symbol, mClient->keyOf(symbol));
    mEmptyKey = mClient->emptyKey();
    mModifiers = mClient->modifierMap();
    QVERIFY(mEmptyKey != 0);
    mRecorder = std::make_unique<Recorder>();
    mRecorder->show();
    mRecorder->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(mRecorder.get()));
}

void tst_QxtGlobalShortcutX11Layouts::cleanupTestCase()
{
    mRecorder.reset();
    mClient.reset();
}

void tst_QxtGlobalShortcutX11Layouts::cleanup()
{
    if (!mClient)
        return;
    QVERIFY(mClient->setModifierMap(mModifiers));
    setLayout(QStringLiteral("us"));
}

void tst_QxtGlobalShortcutX11Layouts::setLayout(const QString &layout)
{
    // The Menu key switches between the layouts.
    QCOMPARE(QProcess::execute(QStringLiteral("setxkbmap"),
                               {QStringLiteral("-option"), QString(), QStringLiteral("-option"),
                                QStringLiteral("grp:menu_toggle"), layout}),
             0);
}

void tst_QxtGlobalShortcutX11Layouts::type(const Symbols &keysOfTheUsLayout)
{
    for (const xcb_keysym_t key : keysOfTheUsLayout)
        mClient->send(mKeys.value(key), true);
    for (auto key = keysOfTheUsLayout.crbegin(); key != keysOfTheUsLayout.crend(); ++key)
        mClient->send(mKeys.value(*key), false);
}

// Types the keys into the window and returns the chord that it sees.
QKeySequence tst_QxtGlobalShortcutX11Layouts::record(const Symbols &keys)
{
    mRecorder->recorded = QKeySequence();
    type(keys);
    if (!QTest::qWaitFor([this] { return !mRecorder->recorded.isEmpty(); }))
        return {};
    return mRecorder->recorded;
}

// Registers `keys` and returns whether typing activates them exactly once.
bool tst_QxtGlobalShortcutX11Layouts::activates(const QKeySequence &keys, const Symbols &typed)
{
    QxtGlobalShortcut sentinel(QKeySequence(QStringLiteral("F8")));
    QSignalSpy ends(&sentinel, &QxtGlobalShortcut::activated);
    QxtGlobalShortcut shortcut(keys);
    QSignalSpy activations(&shortcut, &QxtGlobalShortcut::activated);
    if (!shortcut.isValid())
        return false;
    type(typed);
    type({sF8});
    return QTest::qWaitFor([&ends] { return ends.count() == 1; }) && activations.count() == 1;
}

void tst_QxtGlobalShortcutX11Layouts::chordOfALayoutIsTyped_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<bool>("second"); // whether the user has switched to the second layout
    QTest::addColumn<Symbols>("typed");
    QTest::addColumn<int>("chord");
    QTest::addColumn<int>("recorded");

    const auto row = [](const char *name, const char *layout, bool second, const Symbols &typed,
                        int chord, int recorded) {
        QTest::newRow(name) << QString::fromLatin1(layout) << second << typed << chord << recorded;
    };
    row("atOnAUsKeyboardIsAboveTheTwo", "us", false, {sControl, sShift, '2'}, sCtrl + Qt::Key_At,
        sCtrlShift + Qt::Key_At);
    row("atOnAGermanKeyboardIsBehindAltGr", "de", false, {sControl, sAltGr, 'q'},
        sCtrl + Qt::Key_At, sCtrl + Qt::Key_At);
    row("braceOnAGermanKeyboardIsBehindAltGr", "de", false, {sControl, sAltGr, '7'},
        sCtrl + Qt::Key_BraceLeft, sCtrl + Qt::Key_BraceLeft);
    row("euroWithAlt", "de", false, {sAlt, sAltGr, 'e'}, int(Qt::ALT) + 0x20ac,
        int(Qt::ALT) + 0x20ac);
    row("capitalBehindAltGrAndShift", "de", false, {sControl, sShift, sAltGr, 'q'}, sCtrl + 0x3a9,
        sCtrlShift + 0x3a9);
    row("germanLetter", "de", false, {sControl, '-'}, sCtrl + Qt::Key_ssharp,
        sCtrl + Qt::Key_ssharp);
    row("letterThatMoved", "de", false, {sControl, 'y'}, sCtrl + Qt::Key_Z, sCtrl + Qt::Key_Z);
    row("digitOnAFrenchKeyboardNeedsShift", "fr", false, {sControl, sShift, '1'}, sCtrl + Qt::Key_1,
        sCtrlShift + Qt::Key_1);
    row("signOnAFrenchKeyboardNeedsNoShift", "fr", false, {sControl, '1'},
        sCtrl + Qt::Key_Ampersand, sCtrl + Qt::Key_Ampersand);
    row("numberSignOnAFrenchKeyboardIsBehindAltGr", "fr", false, {sControl, sAltGr, '3'},
        sCtrl + Qt::Key_NumberSign, sCtrl + Qt::Key_NumberSign);
    row("latinLetterOfTheFirstLayout", "us,ru", false, {sControl, 'k'}, sCtrl + Qt::Key_K,
        sCtrl + Qt::Key_K);
    // Qt reports the Latin letter of another layout for Ctrl with a letter of other alphabets.
    row("cyrillicLetterOfTheSecondLayout", "us,ru", true, {sControl, 'a'}, sCtrl + 0x424,
        sCtrl + Qt::Key_A);
    row("cyrillicLetterOfTheOnlyLayout", "ru", false, {sControl, 'a'}, sCtrl + 0x424,
        sCtrl + 0x424);
    row("latinLetterOfTheSecondLayout", "ru,us", true, {sControl, 'k'}, sCtrl + Qt::Key_K,
        sCtrl + Qt::Key_K);
    // There AltGr is also the right Alt key of the first layout.
    row("symbolBehindAltGrOfTheSecondLayout", "us,de", true, {sControl, sAltGr, 'e'},
        sCtrl + 0x20ac, sNotCompared);
    row("letterOfTheThirdLayout", "us,ru,de", false, {sControl, '-'}, sCtrl + Qt::Key_ssharp,
        sCtrl + Qt::Key_Minus);
}

void tst_QxtGlobalShortcutX11Layouts::chordOfALayoutIsTyped()
{
    QFETCH(QString, layout);
    QFETCH(bool, second);
    QFETCH(Symbols, typed);
    QFETCH(int, chord);
    QFETCH(int, recorded);
    setLayout(layout);
    if (second)
        type({sMenu});
    const auto toFirst = qScopeGuard([this, second] {
        if (second)
            type({sMenu});
    });

    QVERIFY(activates(QKeySequence(chord), typed));
    if (recorded != sNotCompared) {
        QTRY_COMPARE(record(typed), QKeySequence(recorded));
        QVERIFY(activates(QKeySequence(recorded), typed));
    }
}

void tst_QxtGlobalShortcutX11Layouts::symbolThatNoLayoutHasIsNotValid_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<int>("chord");
    QTest::newRow("cyrillicOnAGermanKeyboard") << QStringLiteral("de") << sCtrl + 0x424;
    QTest::newRow("latinLetterOnACyrillicKeyboard") << QStringLiteral("ru") << sCtrl + Qt::Key_K;
    QTest::newRow("euroOnAUsKeyboard") << QStringLiteral("us") << sCtrl + 0x20ac;
}

void tst_QxtGlobalShortcutX11Layouts::symbolThatNoLayoutHasIsNotValid()
{
    QFETCH(QString, layout);
    QFETCH(int, chord);
    setLayout(layout);
    QxtGlobalShortcut shortcut;
    QVERIFY(!shortcut.setShortcut(QKeySequence(chord)));
}

void tst_QxtGlobalShortcutX11Layouts::symbolThatNeedsNoAltGrUsesNone()
{
    // The key beside the left Shift key of European keyboards has the same sign behind AltGr.
    const xcb_keycode_t less = mClient->keyOf(0xa6);
    QVERIFY(mClient->symbolsOf(less).contains(xcb_keysym_t('|')));
    QVERIFY(less != mKeys.value('\\'));
    const QxtGlobalShortcut shortcut(QKeySequence(sCtrl + Qt::Key_Bar));
    QVERIFY(!mClient->canGrab(mKeys.value('\\'), XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_SHIFT));
    QVERIFY(mClient->canGrab(less, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_5));
}

void tst_QxtGlobalShortcutX11Layouts::symbolMovesBehindAltGr()
{
    const xcb_keycode_t two = mKeys.value('2');
    const xcb_keycode_t q = mKeys.value('q');
    QxtGlobalShortcut shortcut(QKeySequence(sCtrl + Qt::Key_At));
    QVERIFY(!mClient->canGrab(two, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_SHIFT));
    setLayout(QStringLiteral("de"));
    QTRY_VERIFY(!mClient->canGrab(q, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_5));
    QVERIFY(mClient->canGrab(two, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_SHIFT));
    QVERIFY(mClient->canGrab(q, XCB_MOD_MASK_CONTROL));
    QVERIFY(shortcut.isValid());
}

void tst_QxtGlobalShortcutX11Layouts::altGrIsFoundOnAnotherModifier()
{
    setLayout(QStringLiteral("de"));
    QxtGlobalShortcut shortcut(QKeySequence(sCtrl + Qt::Key_At));
    const xcb_keycode_t q = mKeys.value('q');
    QTRY_VERIFY(!mClient->canGrab(q, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_5));
    // From the eighth row of the map, Mod5, to the sixth, Mod3, which has no keys.
    QVector<xcb_keycode_t> moved = mClient->modifierMap();
    const auto keysPerModifier = static_cast<int>(moved.size() / 8);
    for (int i = 0; i < keysPerModifier; ++i)
        qSwap(moved[7 * keysPerModifier + i], moved[5 * keysPerModifier + i]);
    QVERIFY(mClient->setModifierMap(moved));
    QTRY_VERIFY(!mClient->canGrab(q, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_3));
    QTRY_VERIFY(mClient->canGrab(q, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_5));
}

void tst_QxtGlobalShortcutX11Layouts::mediaKeyIsRecordedAndActivates_data()
{
    QTest::addColumn<quint32>("symbol");
    QTest::addColumn<int>("chord");
    QTest::newRow("volumeDown") << 0x1008ff11U << int(Qt::Key_VolumeDown);
    QTest::newRow("mute") << 0x1008ff12U << int(Qt::Key_VolumeMute);
    QTest::newRow("volumeUp") << 0x1008ff13U << int(Qt::Key_VolumeUp);
    QTest::newRow("play") << 0x1008ff14U << int(Qt::Key_MediaPlay);
    QTest::newRow("stop") << 0x1008ff15U << int(Qt::Key_MediaStop);
    QTest::newRow("previous") << 0x1008ff16U << int(Qt::Key_MediaPrevious);
    QTest::newRow("next") << 0x1008ff17U << int(Qt::Key_MediaNext);
    QTest::newRow("record") << 0x1008ff1cU << int(Qt::Key_MediaRecord);
    QTest::newRow("pause") << 0x1008ff31U << int(Qt::Key_MediaPause);
    QTest::newRow("media") << 0x1008ff32U << int(Qt::Key_LaunchMedia);
    QTest::newRow("rewind") << 0x1008ff3eU << int(Qt::Key_AudioRewind);
    QTest::newRow("forward") << 0x1008ff97U << int(Qt::Key_AudioForward);
    QTest::newRow("repeat") << 0x1008ff98U << int(Qt::Key_AudioRepeat);
    QTest::newRow("randomPlay") << 0x1008ff99U << int(Qt::Key_AudioRandomPlay);
    QTest::newRow("subtitle") << 0x1008ff9aU << int(Qt::Key_Subtitle);
    QTest::newRow("cycleTrack") << 0x1008ff9bU << int(Qt::Key_AudioCycleTrack);
    QTest::newRow("microphone") << 0x1008ffb2U << int(Qt::Key_MicMute);
}

void tst_QxtGlobalShortcutX11Layouts::mediaKeyIsRecordedAndActivates()
{
    QFETCH(quint32, symbol);
    QFETCH(int, chord);
    mKeys.insert(symbol, mEmptyKey);
    mClient->setSymbols(mEmptyKey, {symbol});
    QTRY_COMPARE(record({symbol}), QKeySequence(chord));
    QVERIFY(activates(QKeySequence(chord), {symbol}));
    QCOMPARE(QKeySequence(QKeySequence(chord).toString()), QKeySequence(chord));
}

int main(int argc, char **argv)
{
    return runTest<tst_QxtGlobalShortcutX11Layouts>(argc, argv);
}

#include "tst_QxtGlobalShortcutX11Layouts.moc"
