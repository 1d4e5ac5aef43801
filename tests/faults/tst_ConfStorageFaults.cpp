#include "OneFault.h"
#include "SavedSettings.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Faults;

namespace {

const QString sSaved = "ConfStorage::saveToLocalConfFile() save to file:  \"box/local.json\"";
const QString sOpenFailed =
    "ConfStorage::saveToLocalConfFile() open file failed:  \"box/local.json\"";
const QString sJournalFailed = "ConfStorage::saveToLocalConfFile() write journal failed:  "
                               "\"box/local.json.save-journal\"";
const QString sFileFailed =
    "ConfStorage::saveToLocalConfFile() write file failed:  \"box/local.json\"";
const QString sRecovered =
    "ConfStorage::loadLocalConfFile() recovered from journal:  \"box/local.json\"";
const QString sRecoveredInMemory = "ConfStorage::loadLocalConfFile() recovered from journal, write "
                                   "file failed:  \"box/local.json\"";

/// A fault of the file functions that lasts.
OneFault failing(Kind kind, const char *suffix, int nth, int error)
{
    return {kind, suffix, nth, fail(error), true};
}

/// A call that a signal interrupts once.
OneFault interrupted(Kind kind, const char *suffix, int nth = 0)
{
    return {kind, suffix, nth, fail(EINTR), false};
}

/// What loads from the local file in the next run of the host: the number that the settings hold.
int nextRun()
{
    const LogCapture log;
    SavedSettings settings(false);
    settings.store.loadLocalConfFile();
    return settings.number();
}

/// Leaves a file with content 1, and a journal that says that 2 was to come. Returns whether the
/// journal is there.
bool interruptSave()
{
    SavedSettings settings(true);
    settings.change(2);
    const LogCapture log;
    const Scope faults(SavedSettings::folder(), failing(Kind::Truncate, ".json", 0, EIO).hook());
    settings.store.saveToLocalConfFile();
    return QFile::exists(SavedSettings::journalPath());
}

} // namespace

/// Saves and loads of the local file while the system fails.
class tst_ConfStorageFaults : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        SavedSettings::makeFolder();
        QVERIFY(SavedSettings::write(SavedSettings::fileText(1)));
    }

    void callsOfASave_data();
    void callsOfASave();
    void saveReportsOnlyWhatOpeningShows_data();
    void saveReportsOnlyWhatOpeningShows();
    void fullDiskCutsTheFileAtEveryByte();
    void safeSaveReportsEveryFault_data();
    void safeSaveReportsEveryFault();
    void fullDiskLosesNothingOfASafeSave();
    void journalIsAsReadableAsTheFile_data();
    void journalIsAsReadableAsTheFile();
    void fileSizeLimit_data();
    void fileSizeLimit();
    void failedLoadIsAnEmptyConfiguration_data();
    void failedLoadIsAnEmptyConfiguration();
    void failedRecoveryKeepsTheJournal_data();
    void failedRecoveryKeepsTheJournal();
    void specialFiles_data();
    void specialFiles();
    void danglingLinkIsSavedThrough_data();
    void danglingLinkIsSavedThrough();
};

void tst_ConfStorageFaults::callsOfASave_data()
{
    QTest::addColumn<bool>("safe");
    QTest::addColumn<QStringList>("calls");
    QTest::newRow("plain") << false << QStringList{"open json", "write json", "close json"};
    QTest::newRow("safe") << true
                          << QStringList{"open json", "read json", "open new", "write new",
                                         "sync new", "close new", "rename new", "open box",
                                         "sync box", "close box", "truncate json", "sync json",
                                         "write json", "sync json", "unlink save-journal",
                                         "close json"};
}

void tst_ConfStorageFaults::callsOfASave()
{
    QFETCH(bool, safe);
    QFETCH(QStringList, calls);
    const QMap<Kind, QString> names{{Kind::Open, "open"}, {Kind::Read, "read"},
                                    {Kind::Write, "write"}, {Kind::Truncate, "truncate"},
                                    {Kind::Sync, "sync"}, {Kind::Rename, "rename"},
                                    {Kind::Unlink, "unlink"}, {Kind::Close, "close"}};
    SavedSettings settings(safe);
    settings.change(2);
    QStringList made;
    {
        const LogCapture log;
        const Scope faults(SavedSettings::folder(), [&](const Call &call) {
            const QString name = QString::fromUtf8(call.path);
            const QString made1 = names.value(call.kind) + " "
                                  + name.mid(qMax(name.lastIndexOf('.'), name.lastIndexOf('/')) + 1);
            // An earlier journal that was never finished is looked for, and reading goes on to the
            // end, in as many calls as Qt likes.
            if (made1 != "unlink new" && (made.isEmpty() || made.last() != made1))
                made.append(made1);
            return proceed();
        });
        settings.store.saveToLocalConfFile();
    }
    QCOMPARE(made, calls);
    QCOMPARE(SavedSettings::content(), SavedSettings::fileText(2));
}

void tst_ConfStorageFaults::saveReportsOnlyWhatOpeningShows_data()
{
    QTest::addColumn<OneFault>("fault");
    QTest::addColumn<QString>("message");
    QTest::addColumn<bool>("pending");
    QTest::addColumn<QByteArray>("content");
    const QByteArray before = SavedSettings::fileText(1);
    const QByteArray after = SavedSettings::fileText(2);
    QTest::newRow("no permission")
        << failing(Kind::Open, ".json", 0, EACCES) << sOpenFailed << true << before;
    QTest::newRow("read-only file system")
        << failing(Kind::Open, ".json", 0, EROFS) << sOpenFailed << true << before;
    QTest::newRow("no descriptor left")
        << failing(Kind::Open, ".json", 0, EMFILE) << sOpenFailed << true << before;
    QTest::newRow("disk error at opening")
        << failing(Kind::Open, ".json", 0, EIO) << sOpenFailed << true << before;
    QTest::newRow("interrupted opening")
        << interrupted(Kind::Open, ".json") << sSaved << false << after;
    QTest::newRow("disk error at writing")
        << failing(Kind::Write, ".json", 0, EIO) << sSaved << false << QByteArray();
    QTest::newRow("interrupted writing")
        << interrupted(Kind::Write, ".json") << sSaved << false << after;
    QTest::newRow("one byte at a time")
        << OneFault{Kind::Write, ".json", 0, partly(1)} << sSaved << false << after;
    QTest::newRow("disk error at closing")
        << failing(Kind::Close, ".json", 0, EIO) << sSaved << false << after;
}

void tst_ConfStorageFaults::saveReportsOnlyWhatOpeningShows()
{
    QFETCH(OneFault, fault);
    QFETCH(QString, message);
    QFETCH(bool, pending);
    SavedSettings settings(false);
    settings.change(2);
    const LogCapture log;
    {
        const Scope faults(SavedSettings::folder(), fault.hook());
        settings.store.saveToLocalConfFile();
    }
    QCOMPARE(log.messages(),
             (QList<LoggedMessage>{{pending ? QtCriticalMsg : QtDebugMsg, message}}));
    QCOMPARE(settings.store.mChanged, pending);
    QCOMPARE(settings.number(), 2);
    QTEST(SavedSettings::content(), "content");
    // The next change saves everything again.
    settings.change(3);
    settings.store.saveToLocalConfFile();
    QCOMPARE(SavedSettings::content(), SavedSettings::fileText(3));
}

void tst_ConfStorageFaults::fullDiskCutsTheFileAtEveryByte()
{
    const QByteArray whole = SavedSettings::fileText(2);
    for (int space = 0; space <= whole.size(); ++space) {
        SavedSettings settings(false);
        settings.change(2);
        const LogCapture log;
        {
            const Scope faults(SavedSettings::folder(), fullDisk(space));
            settings.store.saveToLocalConfFile();
        }
        QCOMPARE(log.messages(), (QList<LoggedMessage>{{QtDebugMsg, sSaved}}));
        QVERIFY(!settings.store.mChanged);
        QCOMPARE(settings.number(), 2);
        QCOMPARE(SavedSettings::content(), whole.left(space));

        SavedSettings next(false);
        LogCapture::messages().clear();
        next.store.loadLocalConfFile();
        QCOMPARE(next.number(), space == whole.size() ? 2 : 0);
        QVERIFY(log.messages().isEmpty());
    }
}

void tst_ConfStorageFaults::safeSaveReportsEveryFault_data()
{
    QTest::addColumn<OneFault>("fault");
    QTest::addColumn<QString>("message");
    QTest::addColumn<int>("loaded"); // what a run that follows the failure finds
    const auto row = [](const char *name, const OneFault &fault, const QString &message, int loaded) {
        QTest::newRow(name) << fault << message << loaded;
    };
    row("no permission", failing(Kind::Open, ".json", 0, EACCES), sOpenFailed, 1);
    row("interrupted opening", interrupted(Kind::Open, ".json"), sSaved, 2);
    row("disk error at reading", failing(Kind::Read, ".json", 0, EIO), sSaved, 2);
    row("read-only folder", failing(Kind::Open, ".new", 0, EACCES), sJournalFailed, 1);
    row("interrupted opening of the journal", interrupted(Kind::Open, ".new"), sSaved, 2);
    row("disk error at the journal", failing(Kind::Write, ".new", 0, EIO), sJournalFailed, 1);
    row("interrupted writing of the journal", interrupted(Kind::Write, ".new"), sSaved, 2);
    row("journal one byte at a time", {Kind::Write, ".new", 0, partly(1)}, sSaved, 2);
    row("journal does not reach the disk", failing(Kind::Sync, ".new", 0, EIO), sJournalFailed, 1);
    row("interrupted sync of the journal", interrupted(Kind::Sync, ".new"), sSaved, 2);
    row("disk error at closing the journal", failing(Kind::Close, ".new", 0, EIO), sSaved, 2);
    row("journal cannot be put in place", failing(Kind::Rename, ".new", 0, EACCES), sJournalFailed,
        1);
    row("folder cannot be opened", failing(Kind::Open, "/box", 0, EACCES), sJournalFailed, 2);
    row("interrupted opening of the folder", interrupted(Kind::Open, "/box"), sSaved, 2);
    row("folder does not reach the disk", failing(Kind::Sync, "/box", 0, EIO), sJournalFailed, 2);
    row("folders cannot be synced", failing(Kind::Sync, "/box", 0, EINVAL), sSaved, 2);
    row("file cannot be cut", failing(Kind::Truncate, ".json", 0, EIO), sFileFailed, 2);
    row("cut does not reach the disk", failing(Kind::Sync, ".json", 0, EIO), sFileFailed, 2);
    row("disk error at writing", failing(Kind::Write, ".json", 0, EIO), sFileFailed, 2);
    row("interrupted writing", interrupted(Kind::Write, ".json"), sSaved, 2);
    row("one byte at a time", {Kind::Write, ".json", 0, partly(1)}, sSaved, 2);
    row("text does not reach the disk", failing(Kind::Sync, ".json", 1, EIO), sFileFailed, 2);
    row("interrupted sync", interrupted(Kind::Sync, ".json", 1), sSaved, 2);
    row("journal cannot be removed", failing(Kind::Unlink, ".save-journal", 0, EACCES), sSaved, 2);
    row("disk error at closing", failing(Kind::Close, ".json", 0, EIO), sSaved, 2);
}

void tst_ConfStorageFaults::safeSaveReportsEveryFault()
{
    QFETCH(OneFault, fault);
    QFETCH(QString, message);
    const bool pending = message != sSaved;
    SavedSettings settings(true);
    settings.change(2);
    const LogCapture log;
    {
        const Scope faults(SavedSettings::folder(), fault.hook());
        settings.store.saveToLocalConfFile();
    }
    QCOMPARE(log.messages(),
             (QList<LoggedMessage>{{pending ? QtCriticalMsg : QtDebugMsg, message}}));
    QCOMPARE(settings.store.mChanged, pending);
    QCOMPARE(settings.number(), 2);
    QVERIFY(!QFile::exists(SavedSettings::journalPath() + ".new"));
    if (message == sOpenFailed || message == sJournalFailed)
        QCOMPARE(SavedSettings::content(), SavedSettings::fileText(1));
    QTEST(nextRun(), "loaded");

    settings.change(3);
    settings.store.saveToLocalConfFile();
    QVERIFY(!settings.store.mChanged);
    QVERIFY(!QFile::exists(SavedSettings::journalPath()));
    QCOMPARE(SavedSettings::content(), SavedSettings::fileText(3));
}

void tst_ConfStorageFaults::fullDiskLosesNothingOfASafeSave()
{
    const int fileSize = 54;
    const int journalSize = 21 + 65 + 3 + 65 + 65 + fileSize;
    QCOMPARE(SavedSettings::fileText(2).size(), fileSize);
    for (int space = 0; space <= journalSize + fileSize; ++space) {
        init();
        SavedSettings settings(true);
        settings.change(2);
        const LogCapture log;
        {
            const Scope faults(SavedSettings::folder(), fullDisk(space));
            settings.store.saveToLocalConfFile();
            const bool journalled = space >= journalSize;
            const bool whole = space == journalSize + fileSize;
            const QString text = whole ? sSaved : journalled ? sFileFailed : sJournalFailed;
            QCOMPARE(log.messages(),
                     (QList<LoggedMessage>{{whole ? QtDebugMsg : QtCriticalMsg, text}}));
            QCOMPARE(settings.store.mChanged, !whole);
            if (!journalled)
                QCOMPARE(SavedSettings::content(), SavedSettings::fileText(1));
            // Another try on the full disk does no harm.
            settings.store.saveToLocalConfFile();
            // Nor does a run that finds the disk still full.
            QCOMPARE(nextRun(), journalled ? 2 : 1);
        }
        QCOMPARE(settings.number(), 2);
        const Scope healthy(SavedSettings::folder(), withoutWaiting);
        QCOMPARE(nextRun(), space >= journalSize ? 2 : 1);
        settings.change(3);
        settings.store.saveToLocalConfFile();
        QCOMPARE(SavedSettings::content(), SavedSettings::fileText(3));
        QCOMPARE(QDir("box").entryList(QDir::Files), QStringList("local.json"));
    }
}

void tst_ConfStorageFaults::journalIsAsReadableAsTheFile_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("private") << 0600;
    QTest::newRow("shared with a group") << 0660;
    QTest::newRow("read by all") << 0644;
}

void tst_ConfStorageFaults::journalIsAsReadableAsTheFile()
{
    QFETCH(int, mode);
    QCOMPARE(::chmod(qPrintable(SavedSettings::path()), mode_t(mode)), 0);
    QVERIFY(interruptSave());
    struct stat status = {};
    QCOMPARE(::stat(qPrintable(SavedSettings::journalPath()), &status), 0);
    QCOMPARE(int(status.st_mode & 07777), mode);
}

void tst_ConfStorageFaults::fileSizeLimit_data()
{
    QTest::addColumn<bool>("safe");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("plain") << false << sSaved << SavedSettings::fileText(2).left(40);
    QTest::newRow("safe") << true << sJournalFailed << SavedSettings::fileText(1);
}

void tst_ConfStorageFaults::fileSizeLimit()
{
    QFETCH(bool, safe);
    QFETCH(QString, message);
    SavedSettings settings(safe);
    settings.change(2);
    const LogCapture log;
    rlimit before = {};
    QCOMPARE(::getrlimit(RLIMIT_FSIZE, &before), 0);
    rlimit limit = before;
    limit.rlim_cur = 40;
    const auto previous = std::signal(SIGXFSZ, SIG_IGN);
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &limit), 0);
    settings.store.saveToLocalConfFile();
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &before), 0);
    std::signal(SIGXFSZ, previous);
    QCOMPARE(log.messages(), (QList<LoggedMessage>{{safe ? QtCriticalMsg : QtDebugMsg, message}}));
    QTEST(SavedSettings::content(), "content");
}

void tst_ConfStorageFaults::failedLoadIsAnEmptyConfiguration_data()
{
    QTest::addColumn<OneFault>("fault");
    QTest::addColumn<int>("loaded");
    const auto row = [](const char *name, const OneFault &fault, int loaded) {
        QTest::newRow(name) << fault << loaded;
    };
    row("no permission", failing(Kind::Open, ".json", 0, EACCES), 0);
    row("vanished before opening", failing(Kind::Open, ".json", 0, ENOENT), 0);
    row("interrupted opening", interrupted(Kind::Open, ".json"), 1);
    row("disk error", failing(Kind::Read, ".json", 0, EIO), 0);
    row("disk error halfway", {Kind::Read, ".json", 0, partly(30), false}, 1);
    row("interrupted reading", interrupted(Kind::Read, ".json"), 1);
    row("one byte at a time", {Kind::Read, ".json", 0, partly(1)}, 1);
    row("disk error at closing", failing(Kind::Close, ".json", 0, EIO), 1);
}

void tst_ConfStorageFaults::failedLoadIsAnEmptyConfiguration()
{
    QFETCH(OneFault, fault);
    for (const bool safe : {false, true}) {
        SavedSettings settings(safe);
        const LogCapture log;
        {
            const Scope faults(SavedSettings::folder(), fault.hook());
            settings.store.loadLocalConfFile();
        }
        QTEST(settings.number(), "loaded");
        QVERIFY(log.messages().isEmpty());
        QVERIFY(settings.store.mLocalLoaded);
        QVERIFY(!settings.store.mChanged);
        QCOMPARE(SavedSettings::content(), SavedSettings::fileText(1));
    }
    // A file that vanishes once it is open is read all the same.
    SavedSettings settings(false);
    const Scope faults(SavedSettings::folder(), [](const Call &call) {
        if (call.kind == Kind::Read)
            QFile::remove(SavedSettings::path());
        return proceed();
    });
    settings.store.loadLocalConfFile();
    QCOMPARE(settings.number(), 1);
    QVERIFY(!QFile::exists(SavedSettings::path()));
}

void tst_ConfStorageFaults::failedRecoveryKeepsTheJournal_data()
{
    QTest::addColumn<OneFault>("fault");
    QTest::addColumn<int>("loaded");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *name, const OneFault &fault, int loaded, const QString &message) {
        QTest::newRow(name) << fault << loaded << message;
    };
    row("journal cannot be opened", failing(Kind::Open, "-journal", 0, EACCES), 1, QString());
    row("journal cannot be read", failing(Kind::Read, "-journal", 0, EIO), 1, QString());
    row("file cannot be opened", failing(Kind::Open, ".json", 0, EACCES), 2, sRecoveredInMemory);
    row("file cannot be opened again", failing(Kind::Open, ".json", 1, EACCES), 2,
        sRecoveredInMemory);
    row("file cannot be cut", failing(Kind::Truncate, ".json", 0, EIO), 2, sRecoveredInMemory);
    row("disk error at writing", failing(Kind::Write, ".json", 0, EIO), 2, sRecoveredInMemory);
    row("text does not reach the disk", failing(Kind::Sync, ".json", 1, EIO), 2,
        sRecoveredInMemory);
    row("folder does not reach the disk", failing(Kind::Sync, "/box", 0, EIO), 2,
        sRecoveredInMemory);
}

void tst_ConfStorageFaults::failedRecoveryKeepsTheJournal()
{
    QFETCH(OneFault, fault);
    QFETCH(QString, message);
    QVERIFY(interruptSave());
    SavedSettings settings(true);
    const LogCapture log;
    {
        const Scope faults(SavedSettings::folder(), fault.hook());
        settings.store.loadLocalConfFile();
    }
    QTEST(settings.number(), "loaded");
    QCOMPARE(log.texts(QtCriticalMsg), message.isEmpty() ? QStringList() : QStringList(message));
    QVERIFY(settings.store.mLocalLoaded);
    QVERIFY(!settings.store.mChanged);
    QVERIFY(QFile::exists(SavedSettings::journalPath()));
    QCOMPARE(nextRun(), 2);
    QVERIFY(!QFile::exists(SavedSettings::journalPath()));
    QCOMPARE(SavedSettings::content(), SavedSettings::fileText(2));
}

void tst_ConfStorageFaults::specialFiles_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<bool>("safe");
    QTest::addColumn<bool>("saved");
    QTest::newRow("pipe") << "pipe" << false << false;
    QTest::newRow("pipe, safe") << "pipe" << true << false;
    QTest::newRow("endless device") << "/dev/zero" << false << true;
    QTest::newRow("endless device, safe") << "/dev/zero" << true << false;
    // What is written to a device is not checked either.
    QTest::newRow("full device") << "/dev/full" << false << true;
    QTest::newRow("full device, safe") << "/dev/full" << true << false;
    QTest::newRow("folder") << "." << false << false;
    QTest::newRow("folder, safe") << "." << true << false;
    QTest::newRow("circle of links") << "local.json" << false << false;
    QTest::newRow("circle of links, safe") << "local.json" << true << false;
}

void tst_ConfStorageFaults::specialFiles()
{
    QFETCH(QString, target);
    QFETCH(bool, safe);
    QFETCH(bool, saved);
    QVERIFY(QFile::remove(SavedSettings::path()));
    QCOMPARE(::mkfifo("box/pipe", 0600), 0);
    QCOMPARE(::symlink(qPrintable(target), qPrintable(SavedSettings::path())), 0);
    SavedSettings settings(safe);
    const LogCapture log;
    settings.store.loadLocalConfFile();
    QVERIFY(log.messages().isEmpty());
    QVERIFY(settings.store.mLocalLoaded);
    QCOMPARE(settings.number(), 0);

    settings.change(2);
    settings.store.saveToLocalConfFile();
    QCOMPARE(log.messages(), (QList<LoggedMessage>{{saved ? QtDebugMsg : QtCriticalMsg,
                                                    saved ? sSaved : sOpenFailed}}));
    QCOMPARE(settings.store.mChanged, !saved);
    QCOMPARE(settings.number(), 2);
    QVERIFY(QFileInfo(SavedSettings::path()).isSymLink());
}

void tst_ConfStorageFaults::danglingLinkIsSavedThrough_data()
{
    QTest::addColumn<bool>("safe");
    QTest::newRow("plain") << false;
    QTest::newRow("safe") << true;
}

void tst_ConfStorageFaults::danglingLinkIsSavedThrough()
{
    QFETCH(bool, safe);
    QVERIFY(QFile::remove(SavedSettings::path()));
    QVERIFY(QDir("box").mkdir("far"));
    QCOMPARE(::symlink("far/target.json", qPrintable(SavedSettings::path())), 0);
    SavedSettings settings(safe);
    const LogCapture log;
    settings.store.loadLocalConfFile();
    settings.change(2);
    settings.store.saveToLocalConfFile();
    QCOMPARE(log.messages(), (QList<LoggedMessage>{{QtDebugMsg, sSaved}}));
    QVERIFY(QFileInfo(SavedSettings::path()).isSymLink());
    QCOMPARE(SavedSettings::content("box/far/target.json"), SavedSettings::fileText(2));
    QCOMPARE(QDir("box/far").entryList(QDir::Files), QStringList("target.json"));
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfStorageFaults>(argc, argv);
}

#include "tst_ConfStorageFaults.moc"
