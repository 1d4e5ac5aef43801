#include <QxtGlobalShortcut>

#include <QGuiApplication>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

/// Global shortcuts before the application exists, after it is destroyed, and with the next one.
class tst_QxtGlobalShortcutLifetime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void withoutApplicationNothingIsRegistered();
    void shortcutOlderThanTheApplicationRegistersWhenSetAgain();
    void destroyingTheApplicationUnregisters();
    void nextApplicationRegistersAgain();
    void nextApplicationRegistersAllWithTheFirst();
    void applicationMayBeDestroyedWhileAFieldRecords();

private:
    static std::unique_ptr<QGuiApplication> makeApplication();

    const QKeySequence mKeys{QStringLiteral("Ctrl+Alt+F9")};
};

namespace {

/// Returns whether hotkeys can be registered: on X11, but not on the offscreen platform.
bool isWorkingPlatform()
{
    return QGuiApplication::platformName() == QLatin1String("xcb");
}

} // namespace

std::unique_ptr<QGuiApplication> tst_QxtGlobalShortcutLifetime::makeApplication()
{
    static int sCount = 1;
    static char sName[] = "tst_QxtGlobalShortcutLifetime";
    static char *sArguments[] = {sName, nullptr};
    return std::make_unique<QGuiApplication>(sCount, sArguments);
}

void tst_QxtGlobalShortcutLifetime::initTestCase()
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

void tst_QxtGlobalShortcutLifetime::withoutApplicationNothingIsRegistered()
{
    QVERIFY(!QxtGlobalShortcut::isSupported());
    QxtGlobalShortcut shortcut(mKeys);
    QVERIFY(shortcut.isEnabled());
    QVERIFY(!shortcut.isValid());
    QCOMPARE(shortcut.failure(), QxtGlobalShortcut::NoBackend);
    shortcut.setDisabled();
    shortcut.setEnabled();
    QVERIFY(!shortcut.isValid());
}

void tst_QxtGlobalShortcutLifetime::shortcutOlderThanTheApplicationRegistersWhenSetAgain()
{
    QxtGlobalShortcut shortcut(mKeys);
    const auto application = makeApplication();
    QCOMPARE(QxtGlobalShortcut::isSupported(), isWorkingPlatform());
    QCOMPARE(shortcut.setShortcut(mKeys), isWorkingPlatform());
}

void tst_QxtGlobalShortcutLifetime::destroyingTheApplicationUnregisters()
{
    auto application = makeApplication();
    auto shortcut = std::make_unique<QxtGlobalShortcut>(mKeys);
    QxtGlobalShortcut other(mKeys);
    QCOMPARE(shortcut->isValid(), isWorkingPlatform());
    QSignalSpy changes(&other, &QxtGlobalShortcut::enabledChanged);
    application.reset();
    QCOMPARE(other.failure(), QxtGlobalShortcut::NoBackend);
    QVERIFY(!shortcut->isValid());
    QVERIFY(!other.isValid());
    QCOMPARE(changes.count(), 0);
    QVERIFY(!other.setShortcut(QKeySequence(QStringLiteral("F8"))));
    shortcut.reset();
    other.setDisabled();
}

void tst_QxtGlobalShortcutLifetime::nextApplicationRegistersAgain()
{
    auto application = makeApplication();
    QxtGlobalShortcut shortcut(mKeys);
    application.reset();
    application = makeApplication();
    QCOMPARE(shortcut.setShortcut(mKeys), isWorkingPlatform());
    QCOMPARE(shortcut.isValid(), isWorkingPlatform());
}

void tst_QxtGlobalShortcutLifetime::nextApplicationRegistersAllWithTheFirst()
{
    auto application = makeApplication();
    QxtGlobalShortcut older(mKeys);
    application.reset();
    application = makeApplication();
    QVERIFY(!older.isValid());
    QSignalSpy changes(&older, &QxtGlobalShortcut::enabledChanged);
    QxtGlobalShortcut newer(QKeySequence(QStringLiteral("Ctrl+Alt+F8")));
    QCOMPARE(newer.isValid(), isWorkingPlatform());
    QCOMPARE(older.isValid(), isWorkingPlatform());
    QCoreApplication::processEvents();
    QCOMPARE(changes.count(), 0); // the end of the first application was not announced
}

void tst_QxtGlobalShortcutLifetime::applicationMayBeDestroyedWhileAFieldRecords()
{
    QObject field;
    field.setProperty("recordsHotkeys", true);
    auto application = makeApplication();
    QxtGlobalShortcut shortcut(mKeys);
    Q_EMIT application->focusObjectChanged(&field);
    QCOMPARE(shortcut.isValid(), isWorkingPlatform());
    application.reset();
    QVERIFY(!shortcut.isValid());
    application = makeApplication();
    QCOMPARE(shortcut.setShortcut(mKeys), isWorkingPlatform());
}

int main(int argc, char **argv)
{
    tst_QxtGlobalShortcutLifetime test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_QxtGlobalShortcutLifetime.moc"
