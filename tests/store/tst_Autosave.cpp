#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QSessionManager>
#include <QTimer>

#include <functional>

namespace {

using Change = std::function<void(ConfStorage *)>;

constexpr int sShort = 10;
constexpr int sHour = 60 * 60 * 1000;

/// A host with one setting, whose file is loaded.
struct Host
{
    explicit Host(const QString &name, int quietTime = -1)
    {
        store.mLocalSaveFile = "box/" + name;
        store.reserveConf("size", &size);
        store.loadLocalConfFile();
        store.setAutosave(quietTime);
    }
    bool isSaved() const { return QFile::exists(store.mLocalSaveFile); }

    int size = 7;
    ConfStorage store;
};

/// Waits until a store that changed now is saved, so that others with the same quiet time would be.
bool waitForASave()
{
    Host clock("clock.json", sShort);
    clock.store.set("size", 1);
    const bool isSaved = QTest::qWaitFor([&] { return clock.isSaved(); });
    return QFile::remove("box/clock.json") && isSaved;
}

/// Calls a function once for the first message that contains a text.
class OnMessage
{
public:
    OnMessage(const char *text, std::function<void()> function)
    {
        sText = text;
        sFunction = std::move(function);
        mPrevious = qInstallMessageHandler(&OnMessage::handle);
    }
    ~OnMessage() { qInstallMessageHandler(mPrevious); }
    Q_DISABLE_COPY(OnMessage)

    static bool isDone() { return !sFunction; }

private:
    static void handle(QtMsgType, const QMessageLogContext &, const QString &text)
    {
        if (sFunction && text.contains(QLatin1String(sText)))
            std::exchange(sFunction, nullptr)();
    }

    static inline const char *sText = nullptr;
    static inline std::function<void()> sFunction;
    QtMessageHandler mPrevious;
};

} // namespace

Q_DECLARE_METATYPE(Change)

/// Saves after a quiet time, and at the end of the program and of the session.
class tst_Autosave : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QVERIFY(QDir().mkdir("box")); }
    void cleanup() { QVERIFY(QDir("box").removeRecursively()); }

    void isOffByDefault();
    void changeIsSavedAfterTheQuietTime();
    void changesDuringTheQuietTimePostponeTheSave();
    void changesWithoutAPauseAreSaved();
    void changeWaitsForOneQuietTimeOnly();
    void everyKindOfChangeIsSaved_data();
    void everyKindOfChangeIsSaved();
    void importIsSavedToASharedFile();
    void negativeTimeSwitchesItOff();
    void pendingChangeIsSavedWhenItIsSwitchedOn();
    void endOfTheApplicationIsSaved();
    void answersToOthersAreSavedAtTheEndOfTheApplication();
    void failedSaveAtTheEndOfTheApplicationIsNotRepeated();
    void endOfTheSessionIsSaved();
    void nothingIsSavedBeforeTheFirstLoad();
    void nothingIsSavedDuringALoad();
    void storeWithoutAPathIsSilent();
    void unchangedStoreIsNotSaved();
    void failedSaveIsTriedAgainAfterLongerTimes();
    void storeMayBeClearedDuringASave();
    void autosaveMayBeSwitchedOffDuringASave();
    void storeMayBeDestroyedDuringTheQuietTime();
};

void tst_Autosave::isOffByDefault()
{
    const LogCapture log;
    Host host("local.json");
    host.store.set("size", 8);
    QVERIFY(waitForASave());
    QVERIFY(!host.isSaved());
}

void tst_Autosave::changeIsSavedAfterTheQuietTime()
{
    const LogCapture log;
    Host host("local.json", sShort);
    host.store.set("size", 8);
    host.store.set("size", 9);
    QVERIFY(!host.isSaved());
    QTRY_VERIFY(host.isSaved());
    QVERIFY(!host.store.mChanged);
    QVERIFY(waitForASave());
    QCOMPARE(log.texts(QtDebugMsg).filter("local.json").size(), 1);
    host.store.set("size", 10);
    QTRY_VERIFY(!host.store.mChanged);
    QCOMPARE(log.texts(QtDebugMsg).filter("local.json").size(), 2);
    Host next("local.json");
    QCOMPARE(next.size, 10);
}

void tst_Autosave::changesDuringTheQuietTimePostponeTheSave()
{
    constexpr int sQuietTime = 300;
    const LogCapture log;
    // Once more if the machine stops the test for as long as the quiet time.
    for (bool wasStopped = true; wasStopped;) {
        QFile::remove("box/local.json");
        Host host("local.json", sQuietTime);
        wasStopped = false;
        QElapsedTimer total;
        total.start();
        while (!wasStopped && !total.hasExpired(2 * sQuietTime)) {
            QElapsedTimer step;
            step.start();
            host.store.set("size", 8);
            QVERIFY(!host.isSaved() || wasStopped);
            QTest::qWait(1);
            wasStopped = step.hasExpired(sQuietTime / 2);
        }
        if (!wasStopped)
            QTRY_VERIFY(host.isSaved());
    }
}

void tst_Autosave::changesWithoutAPauseAreSaved()
{
    const LogCapture log;
    Host host("local.json", 100);
    const QDeadlineTimer limit(30000);
    while (!host.isSaved() && !limit.hasExpired()) {
        host.store.set("size", 8);
        QTest::qWait(1);
    }
    QVERIFY(host.isSaved());
}

void tst_Autosave::changeWaitsForOneQuietTimeOnly()
{
    constexpr int sQuietTime = 100;
    const LogCapture log;
    Host host("local.json", sQuietTime);
    host.store.set("size", 8);
    // Earlier timers are handled first if the machine stops the test.
    QTimer clock;
    clock.setSingleShot(true);
    clock.start(5 * sQuietTime); // half of the time that changes can postpone the save
    QTRY_VERIFY(!clock.isActive());
    QVERIFY(host.isSaved());
}

void tst_Autosave::everyKindOfChangeIsSaved_data()
{
    QTest::addColumn<Change>("change");
    QTest::newRow("set") << Change([](ConfStorage *store) { store->set("size", 8); });
    QTest::newRow("set as it was") << Change([](ConfStorage *store) { store->set("size", 7); });
    QTest::newRow("from JSON") << Change(
        [](ConfStorage *store) { store->loadValueFromJson("size", 8); });
    QTest::newRow("import that the host marks as a change") << Change([](ConfStorage *store) {
        store->loadConf(QString("{\"size\":{\"t\":100,\"v\":8}}"), ConfStorage::LoadShared);
        store->mChanged = true;
    });
}

void tst_Autosave::everyKindOfChangeIsSaved()
{
    QFETCH(Change, change);
    const LogCapture log;
    Host host("local.json", sShort);
    change(&host.store);
    QTRY_VERIFY(host.isSaved());
}

void tst_Autosave::importIsSavedToASharedFile()
{
    const LogCapture log;
    Host host("local.json", sShort);
    host.store.mFileOptions = ConfStorage::SharedFile;
    host.store.loadLocalConfFile();
    host.store.loadConf(QString("{\"size\":{\"t\":100,\"v\":8}}"), ConfStorage::LoadShared);
    QTRY_VERIFY(host.isSaved());
}

void tst_Autosave::negativeTimeSwitchesItOff()
{
    const LogCapture log;
    Host host("local.json", sShort);
    host.store.set("size", 8);
    host.store.setAutosave(-1);
    QVERIFY(waitForASave());
    QVERIFY(!host.isSaved());
}

void tst_Autosave::pendingChangeIsSavedWhenItIsSwitchedOn()
{
    const LogCapture log;
    Host host("local.json");
    host.store.set("size", 8);
    host.store.setAutosave(0);
    QTRY_VERIFY(host.isSaved());
}

void tst_Autosave::endOfTheApplicationIsSaved()
{
    const LogCapture log;
    Host host("local.json", sHour);
    host.store.set("size", 8);
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    QCoreApplication::exec();
    QVERIFY(host.isSaved());
    QVERIFY(!host.store.mChanged);
}

void tst_Autosave::answersToOthersAreSavedAtTheEndOfTheApplication()
{
    const LogCapture log;
    Host host("local.json", sHour);
    host.store.mFileOptions = ConfStorage::SharedFile;
    int width = 0;
    int height = 0;
    host.store.reserveConf("width", &width);
    host.store.reserveConf("height", &height);
    host.store.setConfChangedCallback(
        "size", [&](const QString &, const ConfValue *) { host.store.set("width", host.size); });
    host.store.loadLocalConfFile();
    {
        Host other("local.json");
        other.store.set("size", 8);
        other.store.saveToLocalConfFile();
    }
    host.store.set("height", 3);
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    QCoreApplication::exec();
    QCOMPARE(width, 8);
    QVERIFY(!host.store.mChanged);
}

void tst_Autosave::failedSaveAtTheEndOfTheApplicationIsNotRepeated()
{
    Host host("missing/local.json", sHour);
    const LogCapture log;
    host.store.set("size", 8);
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    QCoreApplication::exec();
    QCOMPARE(log.texts(QtCriticalMsg).size(), 1);
}

void tst_Autosave::endOfTheSessionIsSaved()
{
    const LogCapture log;
    Host host("local.json", sHour);
    host.store.set("size", 8);
    // Only Qt can create a session manager, and no receiver uses this one.
    alignas(QSessionManager) char memory[sizeof(QSessionManager)];
    Q_EMIT qApp->commitDataRequest(reinterpret_cast<QSessionManager &>(memory));
    QVERIFY(host.isSaved());
}

void tst_Autosave::nothingIsSavedBeforeTheFirstLoad()
{
    const LogCapture log;
    {
        Host host("local.json");
        host.store.set("size", 8);
        host.store.saveToLocalConfFile();
    }
    int size = 7;
    int width = 1;
    ConfStorage store;
    store.mLocalSaveFile = "box/local.json";
    store.reserveConf("size", &size);
    store.reserveConf("width", &width);
    store.setAutosave(sShort);
    store.set("width", 2);
    QVERIFY(waitForASave());
    QVERIFY(store.mChanged);
    store.loadLocalConfFile();
    QCOMPARE(size, 8);
    store.set("width", 2);
    QTRY_VERIFY(!store.mChanged);
    QVERIFY(Host("local.json").size == 8);
}

void tst_Autosave::nothingIsSavedDuringALoad()
{
    const QByteArray text = "{\"a\":{\"t\":100,\"v\":1},\"b\":{\"t\":100,\"v\":2}}";
    QFile file("box/local.json");
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    file.close();
    const LogCapture log;
    int a = 0;
    int b = 0;
    int c = 0;
    ConfStorage store;
    store.mLocalSaveFile = "box/local.json";
    store.reserveConf("a", &a);
    store.reserveConf("b", &b);
    store.reserveConf("c", &c);
    store.setAutosave(sShort);
    store.mLocalLoaded = true; // as in a later load
    bool isUntouched = false;
    store.setConfChangedCallback("a", [&](const QString &, const ConfValue *) {
        store.set("c", 3);
        QVERIFY(waitForASave());
        isUntouched = store.mChanged && QFileInfo("box/local.json").size() == text.size();
    });
    store.loadLocalConfFile();
    QVERIFY(isUntouched);
    QCOMPARE(b, 2);
}

void tst_Autosave::storeWithoutAPathIsSilent()
{
    int size = 7;
    ConfStorage store;
    store.reserveConf("size", &size);
    store.mLocalLoaded = true;
    store.setAutosave(sShort);
    const LogCapture log;
    store.set("size", 8);
    QVERIFY(waitForASave());
    QVERIFY(log.texts(QtCriticalMsg).isEmpty());
}

void tst_Autosave::unchangedStoreIsNotSaved()
{
    const LogCapture log;
    Host host("local.json", sShort);
    host.store.set("size", 8);
    host.store.mChanged = false; // as the host may do
    QVERIFY(waitForASave());
    QVERIFY(!host.isSaved());
}

void tst_Autosave::failedSaveIsTriedAgainAfterLongerTimes()
{
    Host host("later/local.json", sShort);
    const LogCapture log;
    QElapsedTimer timer;
    timer.start();
    host.store.set("size", 8);
    QTRY_COMPARE(log.texts(QtCriticalMsg).size(), 3);
    QVERIFY(timer.elapsed() > 250); // 10, 100 and 200 milliseconds, 5 % of which a timer may skip
    host.store.set("size", 9);
    QVERIFY(QDir("box").mkdir("later"));
    QTRY_VERIFY(host.isSaved());
    // The next change does not wait any longer.
    timer.start();
    host.store.set("size", 10);
    QTRY_VERIFY(!host.store.mChanged);
    QCOMPARE(log.texts(QtDebugMsg).size(), 2);
}

void tst_Autosave::storeMayBeClearedDuringASave()
{
    Host host("local.json", sShort);
    const OnMessage clear("save to file", [&] { host.store.clear(); });
    host.store.set("size", 8);
    QTRY_VERIFY(OnMessage::isDone());
    QVERIFY(waitForASave());
    QVERIFY(host.store.mConfValues.isEmpty());
}

void tst_Autosave::autosaveMayBeSwitchedOffDuringASave()
{
    Host host("local.json", sShort);
    const OnMessage switchOff("save to file", [&] { host.store.setAutosave(-1); });
    host.store.set("size", 8);
    QTRY_VERIFY(OnMessage::isDone());
    QVERIFY(QFile::remove("box/local.json"));
    host.store.set("size", 9);
    QVERIFY(waitForASave());
    QVERIFY(!host.isSaved());
}

void tst_Autosave::storeMayBeDestroyedDuringTheQuietTime()
{
    const LogCapture log;
    {
        Host host("local.json", sShort);
        host.store.set("size", 8);
    }
    QVERIFY(waitForASave());
    QVERIFY(!QFile::exists("box/local.json"));
}

int main(int argc, char **argv)
{
    return runTest<tst_Autosave>(argc, argv);
}

#include "tst_Autosave.moc"
