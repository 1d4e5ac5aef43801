#include "X11Keyboard_p.h"

#include "support/TestMain.h"

#include <QProcess>

/// The keyboard as a client sees it that does not use XKB.
class tst_X11Keyboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void withoutXkbTwoLayoutsAreKnownWithoutAltGr_data();
    void withoutXkbTwoLayoutsAreKnownWithoutAltGr();
    void emptyKeyboardHasNoCombinations();

private:
    xcb_connection_t *mConnection = nullptr;
};

void tst_X11Keyboard::initTestCase()
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        QSKIP("needs the xcb platform");
    mConnection = xcb_connect(nullptr, nullptr);
    QCOMPARE(xcb_connection_has_error(mConnection), 0);
}

void tst_X11Keyboard::cleanupTestCase()
{
    if (mConnection)
        xcb_disconnect(mConnection);
}

void tst_X11Keyboard::withoutXkbTwoLayoutsAreKnownWithoutAltGr_data()
{
    QTest::addColumn<int>("chord");
    QTest::addColumn<quint32>("key");
    QTest::addColumn<quint32>("modifiers");
    // Key codes of the right places on a PC keyboard; 0: none.
    QTest::newRow("letter") << int(Qt::CTRL) + Qt::Key_Z << 29U << 0x4U;
    QTest::newRow("sign") << int(Qt::CTRL) + Qt::Key_Exclam << 10U << 0x5U;
    QTest::newRow("functionKeyWithMeta") << int(Qt::META) + Qt::Key_F1 << 67U << 0x40U;
    QTest::newRow("letterOfTheSecondLayout") << 0x424 << 38U << 0U;
    QTest::newRow("symbolBehindAltGr") << int(Qt::Key_At) << 0U << 0U;
}

void tst_X11Keyboard::withoutXkbTwoLayoutsAreKnownWithoutAltGr()
{
    QFETCH(int, chord);
    QFETCH(quint32, key);
    if (QProcess::execute(QStringLiteral("setxkbmap"), {QStringLiteral("de,ru")}) != 0)
        QSKIP("needs setxkbmap");
    X11Keyboard keyboard;
    keyboard.load(mConnection);
    const QVector<KeyCombination> found = keyboard.combinations(chord);
    QCOMPARE(found.value(0).key, key);
    QTEST(found.value(0).modifiers, "modifiers");
    QCOMPARE(found.size(), key == 0 ? 0 : 1);
}

void tst_X11Keyboard::emptyKeyboardHasNoCombinations()
{
    QVERIFY(X11Keyboard().combinations(Qt::Key_A).isEmpty());
    QVERIFY(X11Keyboard().combinations(int(Qt::CTRL) + Qt::Key_A).isEmpty());
}

int main(int argc, char **argv)
{
    return runTest<tst_X11Keyboard>(argc, argv);
}

#include "tst_X11Keyboard.moc"
