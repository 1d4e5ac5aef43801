#include <QxtGlobalShortcut>

#include "support/TestMain.h"
#include "support/XClient.h"

#include <limits>
#include <memory>
#include <vector>

/// Key grabs on the X server: a grab that is not released disables the key for all programs.
class tst_QxtGlobalShortcutX11Grabs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { mClient = std::make_unique<XClient>(); }
    void cleanup() { mClient.reset(); }
    void registeredKeyIsDetected();
    void aThousandCyclesLeaveNoGrab();
    void allKeysOfManyShortcutsAreReleased();
    void eachOfManyShortcutsIsActivatedByItsKey();
    void textThatIsNotAKeyGrabsNothing_data();
    void textThatIsNotAKeyGrabsNothing();
    void numberThatIsNotAKeyGrabsNothing_data();
    void numberThatIsNotAKeyGrabsNothing();
    void keyWithoutANameIsNotGrabbed();

private:
    /// Returns whether no other client has grabbed any key with any modifiers.
    bool everyKeyIsFree() { return mClient->canGrab(XCB_GRAB_ANY, XCB_MOD_MASK_ANY); }
    static QVector<QKeySequence> manyKeys();

    std::unique_ptr<XClient> mClient;
};

void tst_QxtGlobalShortcutX11Grabs::initTestCase()
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        QSKIP("needs the xcb platform");
}

QVector<QKeySequence> tst_QxtGlobalShortcutX11Grabs::manyKeys()
{
    QVector<QKeySequence> keys;
    for (int i = 0; i < 12; ++i) {
        keys << QKeySequence(Qt::Key_F1 + i) << QKeySequence(int(Qt::CTRL) + Qt::Key_F1 + i);
        keys << QKeySequence(int(Qt::CTRL) + int(Qt::ALT) + Qt::Key_A + i);
    }
    for (int i = 0; i < 10; ++i)
        keys << QKeySequence(int(Qt::KeypadModifier) + Qt::Key_0 + i);
    return keys;
}

// The other tests rely on everyKeyIsFree() detecting a grab.
void tst_QxtGlobalShortcutX11Grabs::registeredKeyIsDetected()
{
    QVERIFY(everyKeyIsFree());
    QxtGlobalShortcut shortcut(QKeySequence(QStringLiteral("Ctrl+Alt+Shift+F9")));
    QVERIFY(shortcut.isValid());
    QVERIFY(!everyKeyIsFree());
}

void tst_QxtGlobalShortcutX11Grabs::aThousandCyclesLeaveNoGrab()
{
    const QVector<QKeySequence> keys = manyKeys();
    QxtGlobalShortcut lasting;
    for (int cycle = 0; cycle < 1000; ++cycle) {
        const QKeySequence &chosen = keys.at(cycle % keys.size());
        switch (cycle % 4) {
        case 0: {
            const QxtGlobalShortcut passing(chosen);
            QVERIFY(passing.isValid());
            break;
        }
        case 1:
            QVERIFY(lasting.setShortcut(chosen));
            lasting.setDisabled();
            lasting.setEnabled();
            QVERIFY(lasting.isValid());
            break;
        case 2: QVERIFY(lasting.setShortcut(chosen)); break;
        default: QVERIFY(!lasting.setShortcut(QKeySequence()));
        }
    }
    for (int key = 8; key <= 255; ++key)
        QVERIFY2(mClient->canGrab(static_cast<xcb_keycode_t>(key), XCB_MOD_MASK_ANY),
                 qPrintable(QString::number(key)));
    QVERIFY(everyKeyIsFree());
}

void tst_QxtGlobalShortcutX11Grabs::allKeysOfManyShortcutsAreReleased()
{
    std::vector<std::unique_ptr<QxtGlobalShortcut>> shortcuts;
    for (const QKeySequence &keys : manyKeys()) {
        shortcuts.push_back(std::make_unique<QxtGlobalShortcut>(keys));
        shortcuts.push_back(std::make_unique<QxtGlobalShortcut>(keys));
        QVERIFY(shortcuts.back()->isValid());
    }
    // Release the keys neither in the order of registration nor in reverse.
    for (size_t i = 0; i < shortcuts.size(); i += 2)
        shortcuts[i]->setDisabled();
    QVERIFY(!everyKeyIsFree());
    shortcuts.clear();
    QVERIFY(everyKeyIsFree());
}

void tst_QxtGlobalShortcutX11Grabs::eachOfManyShortcutsIsActivatedByItsKey()
{
    constexpr int count = 12;
    constexpr xcb_keysym_t f1 = 0xffbe;
    constexpr xcb_keysym_t controlL = 0xffe3;
    std::vector<std::unique_ptr<QxtGlobalShortcut>> shortcuts;
    QVector<int> order;
    for (int i = 0; i < count; ++i) {
        shortcuts.push_back(
            std::make_unique<QxtGlobalShortcut>(QKeySequence(int(Qt::CTRL) + Qt::Key_F1 + i)));
        QVERIFY(shortcuts.back()->isValid());
        connect(shortcuts.back().get(), &QxtGlobalShortcut::activated, this,
                [&order, i] { order.append(i); });
    }
    QVector<int> expected;
    for (int i = count - 1; i >= 0; --i) {
        mClient->type({controlL, f1 + static_cast<xcb_keysym_t>(i)});
        expected.append(i);
    }
    QTRY_COMPARE(order.size(), count);
    QCOMPARE(order, expected);
}

void tst_QxtGlobalShortcutX11Grabs::textThatIsNotAKeyGrabsNothing_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("word") << "Nonsense";
    QTest::newRow("word with a modifier") << "Ctrl+Nonsense";
    QTest::newRow("modifiers") << "Ctrl+Alt";
    QTest::newRow("modifier without a key") << "Ctrl+";
    QTest::newRow("keypad without a key") << "Num+";
    QTest::newRow("blanks") << "   ";
    QTest::newRow("several") << "Foo, Bar";
    QTest::newRow("function key that does not exist") << "F99";
    QTest::newRow("control character") << QString(QChar(1));
}

void tst_QxtGlobalShortcutX11Grabs::textThatIsNotAKeyGrabsNothing()
{
    QFETCH(QString, text);
    const QKeySequence keys = QKeySequence::fromString(text, QKeySequence::PortableText);
    QVERIFY(!keys.isEmpty());
    QxtGlobalShortcut shortcut;
    QVERIFY(!shortcut.setShortcut(keys));
    QVERIFY(shortcut.isEnabled());
    QVERIFY(!shortcut.isValid());
    QVERIFY(everyKeyIsFree());
}

void tst_QxtGlobalShortcutX11Grabs::numberThatIsNotAKeyGrabsNothing_data()
{
    QTest::addColumn<int>("chord");
    QTest::newRow("none") << 0;
    for (const int modifier : {Qt::SHIFT, Qt::CTRL, Qt::ALT, Qt::META}) {
        QTest::addRow("none with %08x", modifier) << modifier;
        QTest::addRow("unknown with %08x", modifier) << (modifier | int(Qt::Key_unknown));
    }
    QTest::newRow("unknown") << int(Qt::Key_unknown);
    QTest::newRow("keypad alone") << int(Qt::KeypadModifier);
    QTest::newRow("number without a name") << 0x01000018;
    QTest::newRow("all bits") << -1;
    QTest::newRow("the sign bit alone") << std::numeric_limits<int>::min();
}

void tst_QxtGlobalShortcutX11Grabs::numberThatIsNotAKeyGrabsNothing()
{
    QFETCH(int, chord);
    QxtGlobalShortcut shortcut;
    QVERIFY(!shortcut.setShortcut(QKeySequence(chord)));
    QVERIFY(everyKeyIsFree());
}

void tst_QxtGlobalShortcutX11Grabs::keyWithoutANameIsNotGrabbed()
{
    // A dead accent, as on many European keyboards: QKeySequence cannot parse its own text for it,
    // so it could not be loaded from a file.
    const xcb_keycode_t key = mClient->emptyKey();
    mClient->setSymbols(key, {0xfe51, 0xfe51});
    {
        QxtGlobalShortcut shortcut;
        QxtGlobalShortcut neighbour(QKeySequence(QStringLiteral("Ctrl+F9")));
        QVERIFY(!shortcut.setShortcut(QKeySequence(int(Qt::CTRL) + Qt::Key_Dead_Acute)));
        QVERIFY(mClient->canGrab(key, XCB_MOD_MASK_ANY));
    }
    mClient->setSymbols(key, {XCB_NO_SYMBOL});
}

int main(int argc, char **argv)
{
    return runTest<tst_QxtGlobalShortcutX11Grabs>(argc, argv);
}

#include "tst_QxtGlobalShortcutX11Grabs.moc"
