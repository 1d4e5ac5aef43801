#include "OneFault.h"
#include "SavedSettings.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <dlfcn.h>
#include <sys/inotify.h>
#include <sys/stat.h>

using namespace Faults;

namespace {

constexpr quint32 sOptions = ConfStorage::WatchFile | ConfStorage::KeepDamagedFiles;

/// Calls of one function that fail: from the `first` one on (from 0), at most `count`.
struct FailingCalls
{
    int error = 0;
    int count = 0;
    int made = 0;

    bool fails()
    {
        ++made;
        if (count == 0)
            return false;
        --count;
        errno = error;
        return true;
    }
};

FailingCalls sInit;
FailingCalls sAddWatch;
FailingCalls sStat;
constexpr int sAlways = 1000000;
constexpr int sBeforeThePoll = 3000; // milliseconds; the first poll is after five seconds

template<class Function> Function next(const char *name)
{
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

} // namespace

// The program's definitions take precedence over those of the C library.
extern "C" {

int inotify_init1(int flags) noexcept
{
    return sInit.fails() ? -1 : next<int (*)(int)>("inotify_init1")(flags);
}

int inotify_add_watch(int descriptor, const char *path, uint32_t mask) noexcept
{
    return sAddWatch.fails() ? -1
                             : next<int (*)(int, const char *, uint32_t)>("inotify_add_watch")(
                                 descriptor, path, mask);
}

int stat(const char *path, struct stat *result) noexcept
{
    if (QByteArray(path).endsWith("local.json") && sStat.fails())
        return -1;
    return next<int (*)(const char *, struct stat *)>("stat")(path, result);
}

} // extern "C"

/// The watch of the local file with errors of the operating system.
class tst_FileWatchFaults : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        sInit = sAddWatch = sStat = FailingCalls();
        SavedSettings::makeFolder();
        QVERIFY(SavedSettings::write(SavedSettings::fileText(1)));
    }

    void changeIsFoundWithoutTheSystem_data();
    void changeIsFoundWithoutTheSystem();
    void refusedFolderIsWatchedForAnotherFile();
    void storeMayBeClearedByALogHandler_data();
    void storeMayBeClearedByALogHandler();
    void statusThatCannotBeReadChangesNothing_data();
    void statusThatCannotBeReadChangesNothing();
    void fileThatCannotBeReadChangesNothing_data();
    void fileThatCannotBeReadChangesNothing();
};

void tst_FileWatchFaults::changeIsFoundWithoutTheSystem_data()
{
    QTest::addColumn<int>("initCalls");
    QTest::addColumn<int>("watchCalls");
    QTest::newRow("no more instances") << sAlways << 0;
    QTest::newRow("no instance once") << 1 << 0;
    QTest::newRow("no more watches") << 0 << sAlways;
    QTest::newRow("no watch once") << 0 << 1;
    QTest::newRow("no watch twice") << 0 << 2;
}

void tst_FileWatchFaults::changeIsFoundWithoutTheSystem()
{
    QFETCH(int, initCalls);
    QFETCH(int, watchCalls);
    sInit = {EMFILE, initCalls, 0};
    sAddWatch = {ENOSPC, watchCalls, 0};
    const LogCapture log;
    SavedSettings settings(sOptions);
    settings.store.loadLocalConfFile();
    for (int i = 2; i < 4; ++i) {
        QVERIFY(SavedSettings::write(SavedSettings::fileText(i)));
        QTRY_COMPARE_WITH_TIMEOUT(settings.number(), i, 30000);
    }
    QVERIFY(sInit.made > 0);
    QVERIFY2(log.messages().size() <= 3, qPrintable(log.texts(QtWarningMsg).join('\n')));
}

void tst_FileWatchFaults::refusedFolderIsWatchedForAnotherFile()
{
    sAddWatch = {ENOSPC, sAlways, 0};
    const LogCapture log;
    SavedSettings settings(sOptions);
    settings.store.loadLocalConfFile();
    sAddWatch = FailingCalls();
    settings.store.mLocalSaveFile = "box/later-local.json";
    settings.store.loadLocalConfFile();
    sStat = FailingCalls();
    QTRY_VERIFY(sStat.made > 0); // the first look, which does not find the file
    QVERIFY(SavedSettings::write(SavedSettings::fileText(2), "box/later-local.json"));
    QTRY_COMPARE_WITH_TIMEOUT(settings.number(), 2, sBeforeThePoll);
}

void tst_FileWatchFaults::storeMayBeClearedByALogHandler_data()
{
    QTest::addColumn<bool>("isLoaded");
    QTest::newRow("during the load") << false;
    QTest::newRow("after a change") << true;
}

void tst_FileWatchFaults::storeMayBeClearedByALogHandler()
{
    QFETCH(bool, isLoaded);
    SavedSettings settings(sOptions);
    if (isLoaded)
        settings.store.loadLocalConfFile();
    sAddWatch = {ENOSPC, sAlways, 0};
    static ConfStorage *sStore = nullptr;
    sStore = &settings.store;
    const QtMessageHandler previous = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &) {
            if (sStore)
                std::exchange(sStore, nullptr)->clear();
        });
    if (isLoaded) {
        QVERIFY(SavedSettings::write(SavedSettings::fileText(2), "box/new"));
        QVERIFY(std::rename("box/new", "box/local.json") == 0);
        QTRY_VERIFY(!sStore);
    } else {
        settings.store.loadLocalConfFile();
    }
    qInstallMessageHandler(previous);
    QVERIFY(!sStore);
    QVERIFY(settings.store.mConfValues.isEmpty());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void tst_FileWatchFaults::statusThatCannotBeReadChangesNothing_data()
{
    QTest::addColumn<int>("calls");
    QTest::newRow("once") << 1;
    QTest::newRow("always") << sAlways;
}

void tst_FileWatchFaults::statusThatCannotBeReadChangesNothing()
{
    QFETCH(int, calls);
    SavedSettings settings(sOptions);
    settings.store.loadLocalConfFile();
    sStat = {EACCES, calls, 0};
    QVERIFY(SavedSettings::write(SavedSettings::fileText(2)));
    QTRY_COMPARE(settings.number(), 2);
    QVERIFY(sStat.made > 0);
}

void tst_FileWatchFaults::fileThatCannotBeReadChangesNothing_data()
{
    QTest::addColumn<OneFault>("fault");
    const auto row = [](const char *name, const OneFault &fault) { QTest::newRow(name) << fault; };
    row("cannot be opened", failing(Kind::Open, "local.json", 0, EACCES));
    row("cannot be opened once", {Kind::Open, "local.json", 0, fail(EMFILE), false});
    row("cannot be read", failing(Kind::Read, "local.json", 0, EIO));
    row("cannot be read once", {Kind::Read, "local.json", 0, fail(EIO), false});
    row("disk error in the middle", failing(Kind::Read, "local.json", 1, EIO));
}

void tst_FileWatchFaults::fileThatCannotBeReadChangesNothing()
{
    QFETCH(OneFault, fault);
    const LogCapture log;
    SavedSettings settings(sOptions);
    settings.store.loadLocalConfFile();
    bool isHit = false;
    {
        const Hook hook = fault.hook();
        const Scope faults(SavedSettings::folder(), [&](const Call &call) {
            const Answer answer = hook(call);
            isHit |= answer.action == Answer::Fail;
            return answer;
        });
        QVERIFY(QFile::exists(SavedSettings::path()));
        QVERIFY(SavedSettings::write(SavedSettings::fileText(2), "box/new"));
        QVERIFY(std::rename("box/new", "box/local.json") == 0);
        QTRY_VERIFY(isHit);
    }
    QCOMPARE(settings.number(), 1);
    QVERIFY(!settings.store.mChanged);
    QVERIFY(SavedSettings::write(SavedSettings::fileText(3)));
    QTRY_COMPARE(settings.number(), 3);
    QVERIFY(log.messages().isEmpty());
    QCOMPARE(QDir("box").entryList(QDir::Files), QStringList("local.json"));
}

int main(int argc, char **argv)
{
    return runTest<tst_FileWatchFaults>(argc, argv);
}

#include "tst_FileWatchFaults.moc"
