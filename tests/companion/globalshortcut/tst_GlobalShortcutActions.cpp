#include <QxtGlobalShortcut>

#include "GlobalShortcutBackend_p.h"
#include "support/TestMain.h"

#include <QPointer>

#include <memory>
#include <utility>
#include <vector>

using Failure = QxtGlobalShortcut::Failure;
using Signal = void (QxtGlobalShortcut::*)();
Q_DECLARE_METATYPE(Signal)

namespace {

/// A desktop that registers actions and answers when the test says so.
class FakeDesktop : public GlobalShortcutBackend
{
public:
    static FakeDesktop *sInstance;

    explicit FakeDesktop(Listener &receiver) : listener(receiver) { sInstance = this; }
    ~FakeDesktop() override { sInstance = nullptr; }
    Q_DISABLE_COPY(FakeDesktop)

    bool isSupported() const override { return true; }
    void add(const Action &action) override { log("add", action); }
    void change(const Action &action) override { log("change", action); }
    void remove(const QString &id) override { calls.append(QStringLiteral("remove ") + id); }
    void suspend(bool) override {}

    QStringList takeCalls() { return std::exchange(calls, {}); }

    Listener &listener;
    QStringList calls;

private:
    void log(const char *call, const Action &action)
    {
        const QString keys = QKeySequence(action.chord).toString(QKeySequence::PortableText);
        calls.append(
            QStringList{QLatin1String(call), action.id, action.description, keys}.join(' '));
    }
};

FakeDesktop *FakeDesktop::sInstance = nullptr;

} // namespace

std::unique_ptr<GlobalShortcutBackend> GlobalShortcutBackend::create(Listener &listener)
{
    return std::make_unique<FakeDesktop>(listener);
}

/// Hotkeys of a desktop that knows actions, asks the user and answers later.
class tst_GlobalShortcutActions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { mKeepsTheDesktop = std::make_unique<QxtGlobalShortcut>(mF8); }
    void cleanup();
    void resultIsPendingUntilTheDesktopAnswers();
    void refusalIsAnswered();
    void otherTriggerIsToldAndTheKeysAreKept();
    void desktopMayTakeTheHotkeyBack();
    void actionHasTheIdAndTheDescription();
    void generatedIdsDiffer();
    void changedIdRegistersTheNewActionFirst();
    void sameIdGetsANumber();
    void sameKeysAreTwoActions();
    void otherKeysArePendingAgain();
    void sameKeysAreTriedAgainOnlyByTheirSetter();
    void activationBringsItsToken();
    void activationOfOldKeysIsDropped_data();
    void activationOfOldKeysIsDropped();
    void answerForADestroyedHotkeyIsIgnored();
    void receiverMayDestroyTheHotkey_data();
    void receiverMayDestroyTheHotkey();
    void receiverThatSetsOtherKeysIsToldOnce();
    void receiverOfAnActivationMayRegisterHotkeys();
    void propertiesTellTheState();

private:
    FakeDesktop &desktop() { return *FakeDesktop::sInstance; }
    void answer(const QString &id, Failure failure, const QString &trigger = QString())
    {
        desktop().listener.resultChanged(id, {failure, trigger});
    }

    std::unique_ptr<QxtGlobalShortcut> mKeepsTheDesktop;
    const QKeySequence mF8{Qt::Key_F8};
    const QKeySequence mF9{Qt::Key_F9};
};

void tst_GlobalShortcutActions::cleanup()
{
    mKeepsTheDesktop.reset();
    QVERIFY(!FakeDesktop::sInstance);
}

void tst_GlobalShortcutActions::resultIsPendingUntilTheDesktopAnswers()
{
    QxtGlobalShortcut hotkey;
    hotkey.setId(QStringLiteral("capture"));
    QSignalSpy changes(&hotkey, &QxtGlobalShortcut::enabledChanged);
    QSignalSpy failures(&hotkey, &QxtGlobalShortcut::failureChanged);
    QVERIFY(!hotkey.setShortcut(mF9));
    QVERIFY(!hotkey.isValid());
    QCOMPARE(hotkey.failure(), Failure::Pending);
    QCOMPARE(failures.count(), 1);
    QCOMPARE(changes.count(), 0);
    answer(QStringLiteral("capture"), Failure::NoFailure);
    QCOMPARE(failures.count(), 1); // never inside the call of the desktop
    QTRY_COMPARE(failures.count(), 2);
    QCOMPARE(changes.count(), 1);
    QVERIFY(hotkey.isValid());
}

void tst_GlobalShortcutActions::refusalIsAnswered()
{
    QxtGlobalShortcut hotkey;
    hotkey.setId(QStringLiteral("capture"));
    hotkey.setShortcut(mF9);
    QSignalSpy changes(&hotkey, &QxtGlobalShortcut::enabledChanged);
    QSignalSpy failures(&hotkey, &QxtGlobalShortcut::failureChanged);
    answer(QStringLiteral("capture"), Failure::Refused);
    QTRY_COMPARE(failures.count(), 1);
    QCOMPARE(changes.count(), 0);
    QCOMPARE(hotkey.failure(), Failure::Refused);
    QVERIFY(!hotkey.isValid());
}

void tst_GlobalShortcutActions::otherTriggerIsToldAndTheKeysAreKept()
{
    QxtGlobalShortcut hotkey;
    hotkey.setId(QStringLiteral("capture"));
    QSignalSpy triggers(&hotkey, &QxtGlobalShortcut::triggerChanged);
    hotkey.setShortcut(mF9);
    QCOMPARE(triggers.count(), 1);
    QCOMPARE(hotkey.trigger(), QStringLiteral("F9"));
    answer(QStringLiteral("capture"), Failure::NoFailure, QStringLiteral("Ctrl+Alt+P"));
    QTRY_COMPARE(triggers.count(), 2);
    QCOMPARE(hotkey.trigger(), QStringLiteral("Ctrl+Alt+P"));
    QCOMPARE(hotkey.shortcut(), mF9);
    answer(QStringLiteral("capture"), Failure::NoFailure);
    QTRY_COMPARE(triggers.count(), 3);
    QCOMPARE(hotkey.trigger(), QStringLiteral("F9"));
}

void tst_GlobalShortcutActions::desktopMayTakeTheHotkeyBack()
{
    QxtGlobalShortcut hotkey;
    hotkey.setId(QStringLiteral("capture"));
    hotkey.setShortcut(mF9);
    answer(QStringLiteral("capture"), Failure::NoFailure);
    QSignalSpy changes(&hotkey, &QxtGlobalShortcut::enabledChanged);
    QTRY_COMPARE(changes.count(), 1);
    answer(QStringLiteral("capture"), Failure::NoBackend);
    QTRY_COMPARE(changes.count(), 2);
    QVERIFY(!hotkey.isValid());
}

void tst_GlobalShortcutActions::actionHasTheIdAndTheDescription()
{
    QxtGlobalShortcut hotkey;
    desktop().takeCalls();
    hotkey.setId(QStringLiteral("capture"));
    hotkey.setDescription(QStringLiteral("Capture"));
    QCOMPARE(desktop().takeCalls(), QStringList());
    hotkey.setShortcut(mF9);
    QCOMPARE(desktop().takeCalls(), QStringList{QStringLiteral("add capture Capture F9")});
    hotkey.setDescription(QStringLiteral("Take"));
    QCOMPARE(desktop().takeCalls(), QStringList{QStringLiteral("change capture Take F9")});
    hotkey.setDisabled();
    QCOMPARE(desktop().takeCalls(), QStringList{QStringLiteral("remove capture")});
}

void tst_GlobalShortcutActions::generatedIdsDiffer()
{
    QxtGlobalShortcut first;
    QxtGlobalShortcut second;
    QVERIFY(!first.id().isEmpty());
    QVERIFY(first.id() != second.id());
    const QString generated = first.id();
    first.setId(QStringLiteral("capture"));
    first.setId(QString());
    QCOMPARE(first.id(), generated);
}

void tst_GlobalShortcutActions::changedIdRegistersTheNewActionFirst()
{
    QxtGlobalShortcut hotkey;
    hotkey.setId(QStringLiteral("capture"));
    hotkey.setShortcut(mF9);
    answer(QStringLiteral("capture"), Failure::NoFailure);
    desktop().takeCalls();
    hotkey.setId(QStringLiteral("take"));
    QCOMPARE(desktop().takeCalls(),
             (QStringList{QStringLiteral("add take  F9"), QStringLiteral("remove capture")}));
    QCOMPARE(hotkey.failure(), Failure::Pending);
}

void tst_GlobalShortcutActions::sameIdGetsANumber()
{
    QxtGlobalShortcut first;
    QxtGlobalShortcut second;
    first.setId(QStringLiteral("capture"));
    second.setId(QStringLiteral("capture"));
    first.setShortcut(mF9);
    desktop().takeCalls();
    second.setShortcut(mF9);
    QCOMPARE(desktop().takeCalls(), QStringList{QStringLiteral("add capture-1  F9")});
    QCOMPARE(second.id(), QStringLiteral("capture"));
    answer(QStringLiteral("capture-1"), Failure::NoFailure);
    QVERIFY(second.isValid());
    QVERIFY(!first.isValid());
}

void tst_GlobalShortcutActions::sameKeysAreTwoActions()
{
    QxtGlobalShortcut first;
    QxtGlobalShortcut second;
    first.setId(QStringLiteral("a"));
    second.setId(QStringLiteral("b"));
    desktop().takeCalls();
    first.setShortcut(mF9);
    second.setShortcut(mF9);
    QCOMPARE(desktop().takeCalls(),
             (QStringList{QStringLiteral("add a  F9"), QStringLiteral("add b  F9")}));
}

void tst_GlobalShortcutActions::otherKeysArePendingAgain()
{
    QxtGlobalShortcut hotkey;
    hotkey.setId(QStringLiteral("capture"));
    hotkey.setShortcut(mF9);
    answer(QStringLiteral("capture"), Failure::NoFailure);
    QVERIFY(hotkey.isValid());
    QVERIFY(!hotkey.setShortcut(QKeySequence(Qt::Key_F7)));
    QCOMPARE(hotkey.failure(), Failure::Pending);
}

void tst_GlobalShortcutActions::sameKeysAreTriedAgainOnlyByTheirSetter()
{
    QxtGlobalShortcut hotkey;
    hotkey.setId(QStringLiteral("capture"));
    hotkey.setShortcut(mF9);
    answer(QStringLiteral("capture"), Failure::Refused);
    desktop().takeCalls();
    hotkey.setDescription(QStringLiteral("Capture"));
    QCOMPARE(desktop().takeCalls(), QStringList());
    hotkey.setShortcut(mF9);
    QCOMPARE(desktop().takeCalls(), QStringList{QStringLiteral("change capture Capture F9")});
    QCOMPARE(hotkey.failure(), Failure::Refused);
}

void tst_GlobalShortcutActions::activationBringsItsToken()
{
    QxtGlobalShortcut hotkey;
    hotkey.setId(QStringLiteral("capture"));
    hotkey.setShortcut(mF9);
    answer(QStringLiteral("capture"), Failure::NoFailure);
    QSignalSpy activations(&hotkey, &QxtGlobalShortcut::activated);
    desktop().listener.activated(QStringLiteral("capture"), QStringLiteral("token-1"));
    QCOMPARE(activations.count(), 0);
    QTRY_COMPARE(activations.count(), 1);
    QCOMPARE(hotkey.activationToken(), QStringLiteral("token-1"));
}

void tst_GlobalShortcutActions::activationOfOldKeysIsDropped_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("other keys") << "change";
    QTest::newRow("no keys") << "clear";
    QTest::newRow("disabled") << "disable";
    QTest::newRow("taken back") << "fail";
    QTest::newRow("destroyed") << "destroy";
}

void tst_GlobalShortcutActions::activationOfOldKeysIsDropped()
{
    QFETCH(QString, way);
    auto hotkey = std::make_unique<QxtGlobalShortcut>();
    hotkey->setId(QStringLiteral("capture"));
    hotkey->setShortcut(mF9);
    answer(QStringLiteral("capture"), Failure::NoFailure);
    int activations = 0;
    connect(hotkey.get(), &QxtGlobalShortcut::activated, this, [&activations] { ++activations; });
    desktop().listener.activated(QStringLiteral("capture"), QString());
    if (way == QLatin1String("change")) {
        hotkey->setShortcut(QKeySequence(Qt::Key_F7));
        answer(QStringLiteral("capture"), Failure::NoFailure);
    } else if (way == QLatin1String("clear")) {
        hotkey->setShortcut(QKeySequence());
    } else if (way == QLatin1String("disable")) {
        hotkey->setDisabled();
    } else if (way == QLatin1String("fail")) {
        answer(QStringLiteral("capture"), Failure::NoBackend);
    } else {
        hotkey.reset();
    }
    QCoreApplication::processEvents();
    QCOMPARE(activations, 0);
}

void tst_GlobalShortcutActions::answerForADestroyedHotkeyIsIgnored()
{
    {
        QxtGlobalShortcut hotkey;
        hotkey.setId(QStringLiteral("capture"));
        hotkey.setShortcut(mF9);
    }
    answer(QStringLiteral("capture"), Failure::NoFailure);
    desktop().listener.activated(QStringLiteral("capture"), QString());
    answer(QString(), Failure::Refused);
    QCoreApplication::processEvents();
}

void tst_GlobalShortcutActions::receiverMayDestroyTheHotkey_data()
{
    QTest::addColumn<Signal>("signal");
    QTest::newRow("enabledChanged") << Signal(&QxtGlobalShortcut::enabledChanged);
    QTest::newRow("failureChanged") << Signal(&QxtGlobalShortcut::failureChanged);
    QTest::newRow("triggerChanged") << Signal(&QxtGlobalShortcut::triggerChanged);
    QTest::newRow("activated") << Signal(&QxtGlobalShortcut::activated);
}

void tst_GlobalShortcutActions::receiverMayDestroyTheHotkey()
{
    QFETCH(Signal, signal);
    QPointer<QxtGlobalShortcut> hotkey = new QxtGlobalShortcut;
    hotkey->setId(QStringLiteral("capture"));
    hotkey->setShortcut(mF9);
    connect(hotkey, signal, this, [hotkey] { delete hotkey; });
    answer(QStringLiteral("capture"), Failure::NoFailure, QStringLiteral("Ctrl+P"));
    desktop().listener.activated(QStringLiteral("capture"), QString());
    QTRY_VERIFY(!hotkey);
}

void tst_GlobalShortcutActions::receiverThatSetsOtherKeysIsToldOnce()
{
    QxtGlobalShortcut hotkey;
    hotkey.setId(QStringLiteral("capture"));
    hotkey.setShortcut(mF9);
    answer(QStringLiteral("capture"), Failure::NoFailure);
    QTRY_VERIFY(hotkey.property("valid").toBool());
    QCoreApplication::processEvents();
    QStringList told;
    connect(&hotkey, &QxtGlobalShortcut::enabledChanged, this, [&] {
        told.append(hotkey.isValid() ? QStringLiteral("valid") : QStringLiteral("not valid"));
        if (!hotkey.isValid())
            hotkey.setDisabled();
    });
    connect(&hotkey, &QxtGlobalShortcut::failureChanged, this,
            [&] { told.append(QVariant::fromValue(hotkey.failure()).toString()); });
    answer(QStringLiteral("capture"), Failure::Refused);
    QTRY_VERIFY(!hotkey.isEnabled());
    // The failure is the same again before it could be told.
    QCOMPARE(told, (QStringList{QStringLiteral("not valid"), QStringLiteral("not valid")}));
}

void tst_GlobalShortcutActions::receiverOfAnActivationMayRegisterHotkeys()
{
    QxtGlobalShortcut hotkey;
    hotkey.setId(QStringLiteral("capture"));
    hotkey.setShortcut(mF9);
    answer(QStringLiteral("capture"), Failure::NoFailure);
    std::vector<std::unique_ptr<QxtGlobalShortcut>> others;
    connect(&hotkey, &QxtGlobalShortcut::activated, this, [this, &hotkey, &others] {
        for (int i = 0; i < 100; ++i)
            others.push_back(std::make_unique<QxtGlobalShortcut>(mF9));
        others.erase(others.begin(), others.begin() + 50);
        hotkey.setShortcut(mF8);
        mKeepsTheDesktop->setDisabled();
    });
    desktop().listener.activated(QStringLiteral("capture"), QString());
    QTRY_COMPARE(others.size(), size_t(50));
    QCOMPARE(hotkey.failure(), Failure::Pending);
    answer(QStringLiteral("capture"), Failure::NoFailure);
    QVERIFY(hotkey.isValid());
}

void tst_GlobalShortcutActions::propertiesTellTheState()
{
    QxtGlobalShortcut hotkey;
    QCOMPARE(hotkey.property("failure").toString(), QStringLiteral("Empty"));
    QVERIFY(hotkey.setProperty("id", QStringLiteral("capture")));
    QVERIFY(hotkey.setProperty("description", QStringLiteral("Capture")));
    hotkey.setShortcut(mF9);
    QCOMPARE(hotkey.property("failure").toString(), QStringLiteral("Pending"));
    answer(QStringLiteral("capture"), Failure::NoFailure, QStringLiteral("Ctrl+P"));
    QCOMPARE(hotkey.property("failure").toString(), QStringLiteral("NoFailure"));
    QCOMPARE(hotkey.property("trigger").toString(), QStringLiteral("Ctrl+P"));
    QCOMPARE(hotkey.property("id").toString(), QStringLiteral("capture"));
    QCOMPARE(hotkey.property("description").toString(), QStringLiteral("Capture"));
    QCOMPARE(hotkey.property("activationToken").toString(), QString());
}

int main(int argc, char **argv)
{
    return runTest<tst_GlobalShortcutActions>(argc, argv);
}

#include "tst_GlobalShortcutActions.moc"
