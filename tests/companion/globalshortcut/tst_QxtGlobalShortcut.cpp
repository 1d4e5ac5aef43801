#include <QxtGlobalShortcut>

#include "support/LogCapture.h"
#include "support/TestMain.h"

/// Global shortcuts on a platform where no key can be registered.
class tst_QxtGlobalShortcut : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void isSupportedIsFalse();
    void newShortcutIsEnabledAndEmpty();
    void shortcutThatCannotBeRegisteredIsKept();
    void disablingAndEnablingEmitOnce();
    void unusualShortcutsAreKeptAndNotValid_data();
    void unusualShortcutsAreKeptAndNotValid();
    void receiverOfEnabledChangedMayDeleteTheShortcut();
    void propertiesAreReadAndWritten();
    void pointerIsStoredInAVariant();
};

void tst_QxtGlobalShortcut::initTestCase()
{
    if (QGuiApplication::platformName() != QLatin1String("offscreen"))
        QSKIP("only for platforms without hotkeys");
}

void tst_QxtGlobalShortcut::isSupportedIsFalse()
{
    LogCapture log;
    QVERIFY(!QxtGlobalShortcut::isSupported());
    QCOMPARE(log.messages().size(), 0);
}

void tst_QxtGlobalShortcut::newShortcutIsEnabledAndEmpty()
{
    QObject parent;
    const auto *shortcut = new QxtGlobalShortcut(&parent);
    QCOMPARE(shortcut->parent(), &parent);
    QVERIFY(shortcut->isEnabled());
    QVERIFY(!shortcut->isValid());
    QCOMPARE(shortcut->shortcut(), QKeySequence());
}

void tst_QxtGlobalShortcut::shortcutThatCannotBeRegisteredIsKept()
{
    LogCapture log;
    const QKeySequence keys(QStringLiteral("Ctrl+Alt+K"));
    QxtGlobalShortcut shortcut(keys);
    QCOMPARE(shortcut.shortcut(), keys);
    QVERIFY(!shortcut.isValid());

    QSignalSpy changes(&shortcut, &QxtGlobalShortcut::enabledChanged);
    const QKeySequence others(QStringLiteral("F9"));
    QVERIFY(!shortcut.setShortcut(others));
    QCOMPARE(shortcut.shortcut(), others);
    QVERIFY(shortcut.isEnabled());
    QCOMPARE(changes.count(), 0);
    QCOMPARE(log.messages().size(), 0);
}

void tst_QxtGlobalShortcut::disablingAndEnablingEmitOnce()
{
    QxtGlobalShortcut shortcut(QKeySequence(QStringLiteral("F9")));
    QSignalSpy changes(&shortcut, SIGNAL(enabledChanged()));
    shortcut.setEnabled();
    QCOMPARE(changes.count(), 0);
    shortcut.setDisabled();
    QVERIFY(!shortcut.isEnabled());
    QCOMPARE(changes.count(), 1);
    shortcut.setEnabled(false);
    QCOMPARE(changes.count(), 1);
    shortcut.setDisabled(false);
    QVERIFY(shortcut.isEnabled());
    QCOMPARE(changes.count(), 2);
}

void tst_QxtGlobalShortcut::unusualShortcutsAreKeptAndNotValid_data()
{
    using Failure = QxtGlobalShortcut::Failure;
    QTest::addColumn<QKeySequence>("keys");
    QTest::addColumn<Failure>("failure");
    QTest::newRow("empty") << QKeySequence() << Failure::Empty;
    QTest::newRow("unknownKey") << QKeySequence(Qt::Key_unknown) << Failure::NotAChord;
    QTest::newRow("twoChords") << QKeySequence(int(Qt::CTRL) + Qt::Key_K, int(Qt::CTRL) + Qt::Key_L)
                               << Failure::NotAChord;
    QTest::newRow("fourChords") << QKeySequence(1, 2, 3, 4) << Failure::NotAChord;
    QTest::newRow("allBits") << QKeySequence(-1) << Failure::NotAChord;
    QTest::newRow("oneKey") << QKeySequence(Qt::Key_F9) << Failure::NoBackend;
}

void tst_QxtGlobalShortcut::unusualShortcutsAreKeptAndNotValid()
{
    QFETCH(QKeySequence, keys);
    QxtGlobalShortcut shortcut;
    QVERIFY(!shortcut.setShortcut(keys));
    QCOMPARE(shortcut.shortcut(), keys);
    QVERIFY(!shortcut.isValid());
    QTEST(shortcut.failure(), "failure");
}

void tst_QxtGlobalShortcut::receiverOfEnabledChangedMayDeleteTheShortcut()
{
    QPointer<QxtGlobalShortcut> shortcut = new QxtGlobalShortcut;
    connect(shortcut, &QxtGlobalShortcut::enabledChanged, this, [shortcut] { delete shortcut; });
    shortcut->setDisabled();
    QVERIFY(!shortcut);
}

void tst_QxtGlobalShortcut::propertiesAreReadAndWritten()
{
    QxtGlobalShortcut shortcut;
    const QKeySequence keys(QStringLiteral("F9"));
    QVERIFY(shortcut.setProperty("shortcut", keys));
    QVERIFY(shortcut.setProperty("enabled", false));
    QCOMPARE(shortcut.shortcut(), keys);
    QVERIFY(!shortcut.isEnabled());
    QCOMPARE(shortcut.property("valid"), QVariant(false));
}

void tst_QxtGlobalShortcut::pointerIsStoredInAVariant()
{
    QxtGlobalShortcut shortcut;
    const QVariant variant = QVariant::fromValue(&shortcut);
    QCOMPARE(variant.value<QxtGlobalShortcut *>(), &shortcut);
}

int main(int argc, char **argv)
{
    return runTest<tst_QxtGlobalShortcut>(argc, argv);
}

#include "tst_QxtGlobalShortcut.moc"
