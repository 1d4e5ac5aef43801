#include "OneFault.h"
#include "SavedSettings.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Faults;

namespace {

constexpr quint32 sKeep = ConfStorage::KeepDamagedFiles;
constexpr quint32 sSafeKeep = sKeep | ConfStorage::SafeSave;

const QByteArray sDamaged = "{\"size\":{\"t\":100,\"v\":1},}";

const QString sNotCopied =
    "ConfStorage::loadLocalConfFile() damaged file could not be copied:  \"box/local.json\"";
const QString sNotLoaded =
    "ConfStorage::saveToLocalConfFile() file could not be loaded:  \"box/local.json\"";
const QString sNoBackup =
    "ConfStorage::saveToLocalConfFile() backup could not be written:  \"box/local.json.backup\"";
const QString sFromBackup =
    "ConfStorage::loadLocalConfFile() loaded from backup:  \"box/local.json.backup\"";

QString backupPath()
{
    return SavedSettings::path() + ".backup";
}

QStringList copies()
{
    return QDir("box").entryList(QStringList("*.damaged-*"), QDir::Files, QDir::Name);
}

QString copied()
{
    return "ConfStorage::loadLocalConfFile() damaged file copied:  \"box/local.json\" \"box/"
           + copies().value(0) + '"';
}

/// Returns the number of the values that a run with `options` loads.
int loadWith(quint32 options)
{
    SavedSettings settings(options);
    settings.store.loadLocalConfFile();
    return settings.number();
}

/// Leaves a journal for content 2 and an empty file.
void interruptSave()
{
    SavedSettings settings(sSafeKeep);
    settings.change(2);
    const LogCapture log;
    settings.saveUnder(failing(Kind::Write, "local.json", 0, EIO).hook());
}

/// Like `OneFault::hook` for copies, whose names end with the time.
Hook failingCopy(Kind kind, int error)
{
    return [=](const Call &call) {
        return call.kind == kind && call.path.contains(".damaged-") ? fail(error) : proceed();
    };
}

} // namespace

Q_DECLARE_METATYPE(Hook)

/// Damaged files, their copies and backups with errors of the operating system.
class tst_DamagedFileFaults : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { SavedSettings::makeFolder(); }

    void fileIsNotOverwrittenWithoutACopy_data();
    void fileIsNotOverwrittenWithoutACopy();
    void fullDiskLosesNothing();
    void copyMayFailToCloseOrRemove_data();
    void copyMayFailToCloseOrRemove();
    void fileThatCannotBeReadIsNotOverwritten_data();
    void fileThatCannotBeReadIsNotOverwritten();
    void saveWorksWithoutABackup_data();
    void saveWorksWithoutABackup();
    void unreadableBackupIsIgnored_data();
    void unreadableBackupIsIgnored();
    void damageIsCopiedBeforeTheJournalReplacesIt();
    void journalDoesNotReplaceDamageThatCannotBeCopied();
    void restOfAnInterruptedSaveIsNotCopied_data();
    void restOfAnInterruptedSaveIsNotCopied();
    void journalWinsOverTheBackup();
    void killedLoadOrSaveLosesNothing_data();
    void killedLoadOrSaveLosesNothing();
    void readOnlyFolder();
    void backupOfAStrangerIsIgnored();
    void colleagueKeepsAPrivateCopy();
};

void tst_DamagedFileFaults::fileIsNotOverwrittenWithoutACopy_data()
{
    QTest::addColumn<Hook>("fault");
    QTest::newRow("read-only folder") << failingCopy(Kind::Open, EACCES);
    QTest::newRow("full disk") << failingCopy(Kind::Write, ENOSPC);
    QTest::newRow("copy cannot be synced") << failingCopy(Kind::Sync, EIO);
    QTest::newRow("folder cannot be synced") << failing(Kind::Sync, "/box", 0, EIO).hook();
    QTest::newRow("folder cannot be opened") << failing(Kind::Open, "/box", 0, EACCES).hook();
    QTest::newRow("all names are taken") << failingCopy(Kind::Open, EEXIST);
}

void tst_DamagedFileFaults::fileIsNotOverwrittenWithoutACopy()
{
    QFETCH(Hook, fault);
    for (const quint32 options : {sKeep, sSafeKeep}) {
        init();
        QVERIFY(SavedSettings::write(sDamaged));
        QVERIFY(SavedSettings::write(SavedSettings::fileText(1), backupPath()));
        SavedSettings settings(options);
        const LogCapture log;
        {
            const Scope faults(SavedSettings::folder(), fault);
            settings.store.loadLocalConfFile();
        }
        QCOMPARE(log.messages(),
                 (QList<LoggedMessage>{{QtCriticalMsg, sNotCopied}, {QtWarningMsg, sFromBackup}}));
        QCOMPARE(settings.number(), 1);
        QVERIFY(copies().isEmpty());
        // Also later in this run, when a copy could be made.
        settings.change(2);
        LogCapture::messages().clear();
        settings.store.saveToLocalConfFile();
        QCOMPARE(log.messages(), (QList<LoggedMessage>{{QtCriticalMsg, sNotLoaded}}));
        QVERIFY(settings.store.mChanged);
        QCOMPARE(SavedSettings::content(), sDamaged);
        // A save without a load tries to copy as well.
        SavedSettings other(options);
        other.change(3);
        LogCapture::messages().clear();
        other.saveUnder(fault);
        QCOMPARE(log.messages(), (QList<LoggedMessage>{{QtCriticalMsg, sNotCopied}}));
        QVERIFY(other.store.mChanged);
        QCOMPARE(SavedSettings::content(), sDamaged);

        settings.store.loadLocalConfFile();
        settings.change(4);
        settings.store.saveToLocalConfFile();
        QCOMPARE(SavedSettings::content(), SavedSettings::fileText(4));
        QCOMPARE(SavedSettings::content("box/" + copies().value(0)), sDamaged);
    }
}

void tst_DamagedFileFaults::fullDiskLosesNothing()
{
    for (qint64 space = 0; space <= sDamaged.size(); ++space) {
        init();
        QVERIFY(SavedSettings::write(sDamaged));
        SavedSettings settings(sSafeKeep);
        const LogCapture log;
        {
            const Scope faults(SavedSettings::folder(), fullDisk(space));
            settings.store.loadLocalConfFile();
            settings.change(2);
            settings.store.saveToLocalConfFile();
        }
        QCOMPARE(SavedSettings::content(), sDamaged);
        QVERIFY(settings.store.mChanged);
        QCOMPARE(copies().size(), space == sDamaged.size() ? 1 : 0);
    }
}

void tst_DamagedFileFaults::copyMayFailToCloseOrRemove_data()
{
    QTest::addColumn<Hook>("fault");
    QTest::newRow("copy cannot be closed") << failingCopy(Kind::Close, EIO);
    QTest::newRow("older copies cannot be removed") << failingCopy(Kind::Unlink, EACCES);
    QTest::newRow("older copies cannot be read") << failingCopy(Kind::Read, EIO);
}

void tst_DamagedFileFaults::copyMayFailToCloseOrRemove()
{
    QFETCH(Hook, fault);
    for (const char *time : {"20250101T000000Z", "20250102T000000Z", "20250103T000000Z"})
        QVERIFY(SavedSettings::write(time, SavedSettings::path() + ".damaged-" + time));
    QVERIFY(SavedSettings::write(sDamaged));
    const LogCapture log;
    {
        const Scope faults(SavedSettings::folder(), fault);
        loadWith(sKeep);
    }
    QCOMPARE(log.texts(QtCriticalMsg).size(), 1);
    QCOMPARE(SavedSettings::content("box/" + copies().last()), sDamaged);
}

void tst_DamagedFileFaults::fileThatCannotBeReadIsNotOverwritten_data()
{
    QTest::addColumn<OneFault>("fault");
    const auto row = [](const char *name, const OneFault &fault) { QTest::newRow(name) << fault; };
    row("no permission", failing(Kind::Open, ".json", 0, EACCES));
    row("too many open files", failing(Kind::Open, ".json", 0, EMFILE));
    row("disk error", failing(Kind::Read, ".json", 0, EIO));
    row("disk error in the middle", failing(Kind::Read, ".json", 1, EIO));
}

void tst_DamagedFileFaults::fileThatCannotBeReadIsNotOverwritten()
{
    QFETCH(OneFault, fault);
    QVERIFY(SavedSettings::write(SavedSettings::fileText(1)));
    const LogCapture log;
    const auto check = [&](SavedSettings *settings, const Hook &hook) {
        settings->change(2);
        LogCapture::messages().clear();
        settings->saveUnder(hook);
        QCOMPARE(log.messages(), (QList<LoggedMessage>{{QtCriticalMsg, sNotLoaded}}));
        QVERIFY(settings->store.mChanged);
        QCOMPARE(SavedSettings::content(), SavedSettings::fileText(1));
        QCOMPARE(QDir("box").entryList(QDir::Files), QStringList("local.json"));
    };
    SavedSettings settings(sKeep);
    {
        const Scope faults(SavedSettings::folder(), fault.hook());
        settings.store.loadLocalConfFile();
    }
    check(&settings, [](const Call &) { return proceed(); });
    SavedSettings notLoaded(sKeep);
    check(&notLoaded, fault.hook());
}

void tst_DamagedFileFaults::saveWorksWithoutABackup_data()
{
    QTest::addColumn<OneFault>("fault");
    const auto row = [](const char *name, const OneFault &fault) { QTest::newRow(name) << fault; };
    row("backup cannot be created", failing(Kind::Open, ".backup.new", 0, EACCES));
    row("full disk", failing(Kind::Write, ".backup.new", 0, ENOSPC));
    row("backup cannot be renamed", failing(Kind::Rename, ".backup.new", 0, EACCES));
}

void tst_DamagedFileFaults::saveWorksWithoutABackup()
{
    QFETCH(OneFault, fault);
    QVERIFY(SavedSettings::write(SavedSettings::fileText(2)));
    QVERIFY(SavedSettings::write(SavedSettings::fileText(1), backupPath()));
    SavedSettings settings(sSafeKeep);
    settings.change(3);
    const LogCapture log;
    settings.saveUnder(fault.hook());
    QCOMPARE(log.messages(), (QList<LoggedMessage>{{QtWarningMsg, sNoBackup},
                                                   {QtDebugMsg, SavedSettings::saved()}}));
    QCOMPARE(SavedSettings::content(), SavedSettings::fileText(3));
    QCOMPARE(SavedSettings::content(backupPath()), SavedSettings::fileText(1));
    QCOMPARE(QDir("box").entryList(QDir::Files, QDir::Name),
             (QStringList{"local.json", "local.json.backup"}));
}

void tst_DamagedFileFaults::unreadableBackupIsIgnored_data()
{
    QTest::addColumn<OneFault>("fault");
    QTest::newRow("cannot be opened") << failing(Kind::Open, ".backup", 0, EACCES);
    QTest::newRow("cannot be read") << failing(Kind::Read, ".backup", 0, EIO);
    QTest::newRow("disk error in the middle") << failing(Kind::Read, ".backup", 1, EIO);
}

void tst_DamagedFileFaults::unreadableBackupIsIgnored()
{
    QFETCH(OneFault, fault);
    QVERIFY(SavedSettings::write(sDamaged));
    QVERIFY(SavedSettings::write(SavedSettings::fileText(1), backupPath()));
    const LogCapture log;
    const Scope faults(SavedSettings::folder(), fault.hook());
    QCOMPARE(loadWith(sKeep), 0);
    QCOMPARE(log.messages(), (QList<LoggedMessage>{{QtCriticalMsg, copied()}}));
}

void tst_DamagedFileFaults::damageIsCopiedBeforeTheJournalReplacesIt()
{
    QVERIFY(SavedSettings::write(SavedSettings::fileText(1)));
    interruptSave();
    QVERIFY(SavedSettings::write(sDamaged)); // as the user edited it
    const LogCapture log;
    QCOMPARE(loadWith(sSafeKeep), 2);
    QCOMPARE(SavedSettings::content("box/" + copies().value(0)), sDamaged);
    QCOMPARE(
        log.messages(),
        (QList<LoggedMessage>{
            {QtCriticalMsg, copied()},
            {QtWarningMsg,
             "ConfStorage::loadLocalConfFile() recovered from journal:  \"box/local.json\""}}));
    QCOMPARE(SavedSettings::content(), SavedSettings::fileText(2));
}

void tst_DamagedFileFaults::journalDoesNotReplaceDamageThatCannotBeCopied()
{
    QVERIFY(SavedSettings::write(SavedSettings::fileText(1)));
    interruptSave();
    QVERIFY(SavedSettings::write(sDamaged));
    const LogCapture log;
    SavedSettings settings(sSafeKeep);
    {
        const Scope faults(SavedSettings::folder(), failingCopy(Kind::Open, EACCES));
        settings.store.loadLocalConfFile();
    }
    QCOMPARE(settings.number(), 2);
    settings.change(3);
    settings.store.saveToLocalConfFile();
    QCOMPARE(log.texts(QtCriticalMsg),
             (QStringList{sNotCopied,
                          "ConfStorage::loadLocalConfFile() recovered from journal, write failed:  "
                          "\"box/local.json\"",
                          sNotLoaded}));
    QCOMPARE(SavedSettings::content(), sDamaged);
    QCOMPARE(loadWith(sSafeKeep), 2);
    QCOMPARE(SavedSettings::content("box/" + copies().value(0)), sDamaged);
}

void tst_DamagedFileFaults::restOfAnInterruptedSaveIsNotCopied_data()
{
    QTest::addColumn<QByteArray>("rest");
    const QByteArray text = SavedSettings::fileText(2);
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("first half") << text.left(20);
    QTest::newRow("null bytes") << QByteArray(text.size(), '\0');
    QTest::newRow("second half") << QByteArray(20, '\0') + text.mid(20);
}

void tst_DamagedFileFaults::restOfAnInterruptedSaveIsNotCopied()
{
    QFETCH(QByteArray, rest);
    for (const bool isLoaded : {true, false}) {
        init();
        QVERIFY(SavedSettings::write(SavedSettings::fileText(1)));
        interruptSave();
        QVERIFY(SavedSettings::write(rest));
        const LogCapture log;
        SavedSettings settings(sSafeKeep);
        if (isLoaded) {
            settings.store.loadLocalConfFile();
            QCOMPARE(settings.number(), 2);
        }
        settings.change(3);
        settings.store.saveToLocalConfFile();
        QVERIFY(copies().isEmpty());
        QCOMPARE(log.texts(QtCriticalMsg), QStringList());
        QCOMPARE(SavedSettings::content(), SavedSettings::fileText(3));
    }
}

void tst_DamagedFileFaults::journalWinsOverTheBackup()
{
    QVERIFY(SavedSettings::write(SavedSettings::fileText(1)));
    interruptSave();
    QVERIFY(QFile::exists(backupPath()));
    QCOMPARE(SavedSettings::content(), QByteArray());
    const LogCapture log;
    QCOMPARE(loadWith(sSafeKeep), 2);
    QCOMPARE(log.texts(QtWarningMsg).size(), 1);
}

void tst_DamagedFileFaults::killedLoadOrSaveLosesNothing_data()
{
    QTest::addColumn<bool>("loads");
    QTest::addColumn<uint>("options");
    QTest::newRow("load, then save") << true << uint(sKeep);
    QTest::newRow("load, then safe save") << true << uint(sSafeKeep);
    QTest::newRow("save") << false << uint(sKeep);
    QTest::newRow("safe save") << false << uint(sSafeKeep);
}

/// The program is killed at each call. Afterwards the damaged text is in the file or in a copy, and
/// the last good content is in the file, its journal or its backup.
void tst_DamagedFileFaults::killedLoadOrSaveLosesNothing()
{
    QFETCH(bool, loads);
    QFETCH(uint, options);
    int calls = 0;
    for (bool died = true; died; ++calls) {
        init();
        QVERIFY(SavedSettings::write(sDamaged));
        QVERIFY(SavedSettings::write(SavedSettings::fileText(1), backupPath()));
        const pid_t child = ::fork();
        if (child == 0) {
            const LogCapture log;
            int count = 0;
            const Scope faults(SavedSettings::folder(), [&](const Call &call) {
                if (count++ != calls)
                    return withoutWaiting(call);
                return call.kind == Kind::Write ? partlyThenDie(call.size / 2)
                                                : (::_exit(sDeathCode), proceed());
            });
            SavedSettings settings(options);
            if (loads)
                settings.store.loadLocalConfFile();
            settings.change(2);
            settings.store.saveToLocalConfFile();
            settings.change(3);
            settings.store.saveToLocalConfFile();
            ::_exit(0);
        }
        int status = 0;
        QCOMPARE(::waitpid(child, &status, 0), child);
        QVERIFY(WIFEXITED(status));
        died = WEXITSTATUS(status) == sDeathCode;
        QVERIFY(died || WEXITSTATUS(status) == 0);
        const LogCapture log;
        const Scope healthy(SavedSettings::folder(), withoutWaiting);
        const int found = loadWith(options);
        QVERIFY2(found >= 1 && found <= 3, qPrintable(QString("%1 at %2").arg(found).arg(calls)));
        QByteArrayList kept{SavedSettings::content()};
        const QStringList names = copies();
        for (const QString &name : names)
            kept.append(SavedSettings::content("box/" + name));
        QVERIFY2(kept.contains(sDamaged), qPrintable(QString::number(calls)));
    }
    qInfo("killed at each of %d calls", calls - 1);
    QVERIFY(calls > 20);
}

void tst_DamagedFileFaults::readOnlyFolder()
{
    if (::geteuid() != 0)
        QSKIP("only root can switch to another user and back");
    constexpr uid_t sUser = 65001;
    QCOMPARE(::chmod(".", 0755), 0);
    QVERIFY(SavedSettings::write(sDamaged));
    QCOMPARE(::chown("box/local.json", sUser, sUser), 0);
    QCOMPARE(::chmod("box", 0555), 0);
    const LogCapture log;
    SavedSettings settings(sKeep);
    QCOMPARE(::seteuid(sUser), 0);
    settings.store.loadLocalConfFile();
    settings.change(2);
    settings.store.saveToLocalConfFile();
    QCOMPARE(log.texts(QtCriticalMsg), (QStringList{sNotCopied, sNotLoaded}));
    QVERIFY(settings.store.mChanged);
    QVERIFY(SavedSettings::write(SavedSettings::fileText(1)));
    LogCapture::messages().clear();
    settings.store.loadLocalConfFile();
    settings.change(2);
    settings.store.saveToLocalConfFile();
    QCOMPARE(::seteuid(0), 0);
    QCOMPARE(log.messages(), (QList<LoggedMessage>{{QtWarningMsg, sNoBackup},
                                                   {QtDebugMsg, SavedSettings::saved()}}));
    QCOMPARE(SavedSettings::content(), SavedSettings::fileText(2));
}

void tst_DamagedFileFaults::backupOfAStrangerIsIgnored()
{
    if (::geteuid() != 0)
        QSKIP("only root can give files to others");
    QVERIFY(SavedSettings::write(sDamaged));
    QVERIFY(SavedSettings::write(SavedSettings::fileText(1), backupPath()));
    QCOMPARE(::chown(qPrintable(backupPath()), 65002, 65002), 0);
    const LogCapture log;
    QCOMPARE(loadWith(sKeep), 0);
    QCOMPARE(log.texts(QtWarningMsg), QStringList());
    // Neither is a link followed.
    QVERIFY(QFile::remove(backupPath()));
    QVERIFY(SavedSettings::write(SavedSettings::fileText(1), "box/other.json"));
    QCOMPARE(::symlink("other.json", qPrintable(backupPath())), 0);
    QCOMPARE(loadWith(sKeep), 0);
}

void tst_DamagedFileFaults::colleagueKeepsAPrivateCopy()
{
    if (::geteuid() != 0)
        QSKIP("only root can switch to another user and back");
    constexpr uid_t sOwner = 65001;
    constexpr uid_t sColleague = 65002;
    QCOMPARE(::chmod(".", 0755), 0);
    QVERIFY(SavedSettings::write(sDamaged));
    QCOMPARE(::chown("box/local.json", sOwner, sOwner), 0);
    QCOMPARE(::chmod("box/local.json", 0666), 0);
    QCOMPARE(::chmod("box", 0777), 0);
    const LogCapture log;
    SavedSettings settings(sKeep);
    QCOMPARE(::seteuid(sColleague), 0);
    settings.store.loadLocalConfFile();
    settings.change(2);
    settings.store.saveToLocalConfFile();
    QCOMPARE(::seteuid(0), 0);
    QVERIFY(!settings.store.mChanged);
    struct stat copy = {};
    QCOMPARE(::stat(qPrintable("box/" + copies().value(0)), &copy), 0);
    QCOMPARE(copy.st_uid, sColleague);
    QCOMPARE(int(copy.st_mode & 07777), 0600);
}

int main(int argc, char **argv)
{
    return runTest<tst_DamagedFileFaults>(argc, argv);
}

#include "tst_DamagedFileFaults.moc"
