#include "OneFault.h"
#include "SavedSettings.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <sys/stat.h>

using namespace Faults;

namespace {

const QString sSaved = SavedSettings::saved();
const QString sOpenFailed = SavedSettings::openFailed();
const QString sJournalFailed = SavedSettings::journalFailed();
const QString sFileFailed =
    "ConfStorage::saveToLocalConfFile() write file failed:  \"box/local.json\"";
const QString sJournalUnreadable = "ConfStorage::loadLocalConfFile() journal could not be read:  "
                                   "\"box/local.json.save-journal\"";
const QString sNotLoaded =
    "ConfStorage::saveToLocalConfFile() file could not be loaded:  \"box/local.json\"";
const QString sRecoveredInMemory = "ConfStorage::loadLocalConfFile() recovered from journal, write "
                                   "failed:  \"box/local.json\"";

/// Leaves a file with content 1, and a journal for content 2. Returns whether the journal exists.
bool interruptSave()
{
    SavedSettings settings(true);
    settings.change(2);
    const LogCapture log;
    settings.saveUnder(failing(Kind::Truncate, ".json", 0, EIO).hook());
    return QFile::exists(SavedSettings::journalPath());
}

} // namespace

/// Safe saves and their recovery with errors of the operating system.
class tst_SafeSaveFaults : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        SavedSettings::makeFolder();
        QVERIFY(SavedSettings::write(SavedSettings::fileText(1)));
    }

    void safeSaveReportsEveryFault_data();
    void safeSaveReportsEveryFault();
    void fullDiskLosesNothing();
    void failedRecoveryKeepsTheJournal_data();
    void failedRecoveryKeepsTheJournal();
    void nothingIsSavedUntilALoadSucceeds_data();
    void nothingIsSavedUntilALoadSucceeds();
    void journalHasThePermissionsOfTheFile_data();
    void journalHasThePermissionsOfTheFile();
};

void tst_SafeSaveFaults::safeSaveReportsEveryFault_data()
{
    QTest::addColumn<OneFault>("fault");
    QTest::addColumn<QString>("message");
    QTest::addColumn<int>("loaded"); // number of the values that the next run loads
    const auto row = [](const char *name, const OneFault &fault, const QString &message,
                        int loaded) { QTest::newRow(name) << fault << message << loaded; };
    row("no permission", failing(Kind::Open, ".json", 0, EACCES), sOpenFailed, 1);
    row("interrupted opening", interrupted(Kind::Open, ".json"), sSaved, 2);
    row("disk error at reading", failing(Kind::Read, ".json", 0, EIO), sSaved, 2);
    row("read-only folder", failing(Kind::Open, ".new", 0, EACCES), sJournalFailed, 1);
    row("interrupted opening of the journal", interrupted(Kind::Open, ".new"), sSaved, 2);
    row("disk error at the journal", failing(Kind::Write, ".new", 0, EIO), sJournalFailed, 1);
    row("interrupted writing of the journal", interrupted(Kind::Write, ".new"), sSaved, 2);
    row("journal one byte at a time", {Kind::Write, ".new", 0, partly(1)}, sSaved, 2);
    row("journal cannot be synced", failing(Kind::Sync, ".new", 0, EIO), sJournalFailed, 1);
    row("interrupted sync of the journal", interrupted(Kind::Sync, ".new"), sSaved, 2);
    row("disk error at closing the journal", failing(Kind::Close, ".new", 0, EIO), sSaved, 2);
    row("journal cannot be renamed", failing(Kind::Rename, ".new", 0, EACCES), sJournalFailed, 1);
    row("folder cannot be opened", failing(Kind::Open, "/box", 0, EACCES), sJournalFailed, 2);
    row("interrupted opening of the folder", interrupted(Kind::Open, "/box"), sSaved, 2);
    row("disk error at syncing the folder", failing(Kind::Sync, "/box", 0, EIO), sJournalFailed, 2);
    row("syncing folders is not supported", failing(Kind::Sync, "/box", 0, EINVAL), sSaved, 2);
    row("file cannot be truncated", failing(Kind::Truncate, ".json", 0, EIO), sFileFailed, 2);
    row("truncation cannot be synced", failing(Kind::Sync, ".json", 0, EIO), sFileFailed, 2);
    row("disk error at writing", failing(Kind::Write, ".json", 0, EIO), sFileFailed, 2);
    row("interrupted writing", interrupted(Kind::Write, ".json"), sSaved, 2);
    row("one byte at a time", {Kind::Write, ".json", 0, partly(1)}, sSaved, 2);
    row("text cannot be synced", failing(Kind::Sync, ".json", 1, EIO), sFileFailed, 2);
    row("interrupted sync", interrupted(Kind::Sync, ".json", 1), sSaved, 2);
    row("journal cannot be removed", failing(Kind::Unlink, ".save-journal", 0, EACCES), sSaved, 2);
    row("disk error at closing", failing(Kind::Close, ".json", 0, EIO), sSaved, 2);
}

void tst_SafeSaveFaults::safeSaveReportsEveryFault()
{
    QFETCH(OneFault, fault);
    QFETCH(QString, message);
    const bool pending = message != sSaved;
    SavedSettings settings(true);
    settings.change(2);
    const LogCapture log;
    settings.saveUnder(fault.hook());
    QCOMPARE(log.messages(),
             (QList<LoggedMessage>{{pending ? QtCriticalMsg : QtDebugMsg, message}}));
    QCOMPARE(settings.store.mChanged, pending);
    QCOMPARE(settings.number(), 2);
    QVERIFY(!QFile::exists(SavedSettings::journalPath() + ".new"));
    if (message == sOpenFailed || message == sJournalFailed)
        QCOMPARE(SavedSettings::content(), SavedSettings::fileText(1));
    QTEST(SavedSettings::nextRun(), "loaded");

    settings.change(3);
    settings.store.saveToLocalConfFile();
    QVERIFY(!settings.store.mChanged);
    QVERIFY(!QFile::exists(SavedSettings::journalPath()));
    QCOMPARE(SavedSettings::content(), SavedSettings::fileText(3));
}

void tst_SafeSaveFaults::fullDiskLosesNothing()
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
            // A second save on the full disk loses nothing either.
            settings.store.saveToLocalConfFile();
            // Neither does the next run while the disk is still full.
            QCOMPARE(SavedSettings::nextRun(), journalled ? 2 : 1);
        }
        QCOMPARE(settings.number(), 2);
        const Scope healthy(SavedSettings::folder(), withoutWaiting);
        QCOMPARE(SavedSettings::nextRun(), space >= journalSize ? 2 : 1);
        settings.change(3);
        settings.store.saveToLocalConfFile();
        QCOMPARE(SavedSettings::content(), SavedSettings::fileText(3));
        QCOMPARE(QDir("box").entryList(QDir::Files), QStringList("local.json"));
    }
    qInfo("disk space tried: 0 to %d bytes", journalSize + fileSize);
}

void tst_SafeSaveFaults::failedRecoveryKeepsTheJournal_data()
{
    QTest::addColumn<OneFault>("fault");
    QTest::addColumn<int>("loaded");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *name, const OneFault &fault, int loaded,
                        const QString &message) {
        QTest::newRow(name) << fault << loaded << message;
    };
    row("journal cannot be opened", failing(Kind::Open, "-journal", 0, EACCES), 1,
        sJournalUnreadable);
    row("journal cannot be read", failing(Kind::Read, "-journal", 0, EIO), 1, sJournalUnreadable);
    row("disk error in the middle of the journal", failing(Kind::Read, "-journal", 1, EIO), 1,
        sJournalUnreadable);
    row("file cannot be opened", failing(Kind::Open, ".json", 0, EACCES), 2, sRecoveredInMemory);
    row("file cannot be opened again", failing(Kind::Open, ".json", 1, EACCES), 2,
        sRecoveredInMemory);
    row("file cannot be truncated", failing(Kind::Truncate, ".json", 0, EIO), 2,
        sRecoveredInMemory);
    row("disk error at writing", failing(Kind::Write, ".json", 0, EIO), 2, sRecoveredInMemory);
    row("text cannot be synced", failing(Kind::Sync, ".json", 1, EIO), 2, sRecoveredInMemory);
    row("folder cannot be synced", failing(Kind::Sync, "/box", 0, EIO), 2, sRecoveredInMemory);
}

void tst_SafeSaveFaults::failedRecoveryKeepsTheJournal()
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
    QCOMPARE(SavedSettings::nextRun(), 2);
    QVERIFY(!QFile::exists(SavedSettings::journalPath()));
    QCOMPARE(SavedSettings::content(), SavedSettings::fileText(2));
}

void tst_SafeSaveFaults::nothingIsSavedUntilALoadSucceeds_data()
{
    QTest::addColumn<OneFault>("fault");
    QTest::addColumn<bool>("interrupted");
    const auto row = [](const char *name, const OneFault &fault, bool interrupted) {
        QTest::newRow(name) << fault << interrupted;
    };
    row("file cannot be opened", failing(Kind::Open, ".json", 0, EIO), false);
    row("too many open files", failing(Kind::Open, ".json", 0, EMFILE), false);
    row("no permission", failing(Kind::Open, ".json", 0, EACCES), false);
    row("file cannot be read", failing(Kind::Read, ".json", 0, EIO), false);
    row("disk error in the middle of the file", failing(Kind::Read, ".json", 1, EIO), false);
    row("journal cannot be opened", failing(Kind::Open, "-journal", 0, EMFILE), true);
    row("journal cannot be read", failing(Kind::Read, "-journal", 1, EIO), true);
}

void tst_SafeSaveFaults::nothingIsSavedUntilALoadSucceeds()
{
    QFETCH(OneFault, fault);
    QFETCH(bool, interrupted);
    if (interrupted)
        QVERIFY(interruptSave());
    SavedSettings settings(true);
    const LogCapture log;
    {
        const Scope faults(SavedSettings::folder(), fault.hook());
        settings.store.loadLocalConfFile();
    }
    settings.change(3);
    LogCapture::messages().clear();
    settings.store.saveToLocalConfFile();
    QCOMPARE(log.messages(), (QList<LoggedMessage>{{QtCriticalMsg, sNotLoaded}}));
    QVERIFY(settings.store.mChanged);
    QCOMPARE(SavedSettings::nextRun(), interrupted ? 2 : 1);

    settings.store.loadLocalConfFile();
    settings.change(3);
    settings.store.saveToLocalConfFile();
    QVERIFY(!settings.store.mChanged);
    QCOMPARE(SavedSettings::content(), SavedSettings::fileText(3));
}

void tst_SafeSaveFaults::journalHasThePermissionsOfTheFile_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("private") << 0600;
    QTest::newRow("shared with a group") << 0660;
    QTest::newRow("readable by all") << 0644;
}

void tst_SafeSaveFaults::journalHasThePermissionsOfTheFile()
{
    QFETCH(int, mode);
    QCOMPARE(::chmod(qPrintable(SavedSettings::path()), mode_t(mode)), 0);
    QVERIFY(interruptSave());
    struct stat status = {};
    QCOMPARE(::stat(qPrintable(SavedSettings::journalPath()), &status), 0);
    QCOMPARE(int(status.st_mode & 07777), mode);
}

int main(int argc, char **argv)
{
    return runTest<tst_SafeSaveFaults>(argc, argv);
}

#include "tst_SafeSaveFaults.moc"
