#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/store/ConfLoadReport.h>
#include <MaltoConfiguration/store/ConfStorage.h>

#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr quint32 sKeep = ConfStorage::KeepDamagedFiles;

const QByteArray sText5 = "{\"size\":{\"t\":500,\"v\":5}}";
const QByteArray sText6 = "{\"size\":{\"t\":600,\"v\":6}}";
const QByteArray sDamaged = "{\"size\":{\"t\":600,";

QByteArray contentOf(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool write(const QString &name, const QByteArray &text)
{
    QFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

int modeOf(const QString &name)
{
    struct stat status = {};
    return ::stat(qPrintable(name), &status) == 0 ? int(status.st_mode & 07777) : -1;
}

/// Returns the names of the copies of the damaged file in `folder`, the oldest first.
QStringList copiesIn(const QString &folder)
{
    return QDir(folder).entryList(QStringList("*.damaged-*"), QDir::Files, QDir::Name);
}

} // namespace

/// A local file that cannot be parsed: its copies, the backup, and who can read them.
class tst_DamagedFiles : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QVERIFY(QDir().mkdir("box")); }
    void cleanup() { QVERIFY(QDir("box").removeRecursively()); }

    void optionIsOffByDefault();
    void damagedFileIsCopiedAndReported_data();
    void damagedFileIsCopiedAndReported();
    void goodFileIsNotCopied_data();
    void goodFileIsNotCopied();
    void emptyFileCountsAsMissingWithoutABackup();
    void emptyFileIsLoadedFromTheBackup();
    void backupHoldsTheContentBeforeTheLastSave();
    void contentComesBackFromTheBackup_data();
    void contentComesBackFromTheBackup();
    void damagedBackupIsIgnored_data();
    void damagedBackupIsIgnored();
    void missingFileIsNotLoadedFromTheBackup();
    void nextSaveRepairsTheFile();
    void sameDamageIsCopiedOnce();
    void newestThreeCopiesAreKept();
    void copiesOfOneSecondAreNumbered();
    void hundredCopiesOfOneSecondAreMade();
    void newCopyIsKeptIfTheClockWentBack();
    void otherFilesAreNotRemoved();
    void copyIsBesideTheTargetOfALink();
    void fileThatWasDamagedAfterTheLoadIsCopiedBeforeASave();
    void damageOfASharedFileLosesNothing_data();
    void damageOfASharedFileLosesNothing();
    void newerBackupOfASharedFileIsLoaded();
    void newestEntriesOfASharedFileAreKept_data();
    void newestEntriesOfASharedFileAreKept();
    void newFilesHaveTheirPermissions_data();
    void newFilesHaveTheirPermissions();
    void existingFileKeepsItsPermissions();

private:
    static QString path() { return "box/settings.json"; }
    static QString backupPath() { return "box/settings.json.backup"; }
    static QString copied(const QString &copy)
    {
        return "ConfStorage::loadLocalConfFile() damaged file copied:  \"box/settings.json\" \"box/"
               + copy + '"';
    }
    static QString loadedFromBackup()
    {
        return "ConfStorage::loadLocalConfFile() loaded from backup:  "
               "\"box/settings.json.backup\"";
    }

    /// A host with one setting, which is 7 by default.
    struct Host
    {
        explicit Host(quint32 options)
        {
            store.mFileOptions = options;
            store.mLocalSaveFile = path();
            store.reserveConf("size", &size);
        }
        void set(int value)
        {
            store.set("size", value);
            store.mConfMetas["size"].lastChangeTime = QDateTime::fromSecsSinceEpoch(value * 100,
                                                                                    Qt::UTC);
        }
        void save(int value)
        {
            set(value);
            store.saveToLocalConfFile();
        }

        int size = 7;
        ConfStorage store;
    };

    /// Loads the file and returns the value.
    static int load(quint32 options = sKeep)
    {
        Host host(options);
        host.store.loadLocalConfFile();
        return host.size;
    }
};

void tst_DamagedFiles::optionIsOffByDefault()
{
    QVERIFY(write(path(), sDamaged));
    const LogCapture log;
    Host host(0);
    host.store.loadLocalConfFile();
    QVERIFY(log.messages().isEmpty());
    QVERIFY(!host.store.mChanged);
    host.save(5);
    host.save(6);
    QCOMPARE(QDir("box").entryList(QDir::Files), QStringList("settings.json"));
}

void tst_DamagedFiles::damagedFileIsCopiedAndReported_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("cut") << sDamaged;
    QTest::newRow("comment") << QByteArray("// mine\n{\"size\":{\"t\":500,\"v\":5}}");
    QTest::newRow("extra comma") << QByteArray("{\"size\":{\"t\":500,\"v\":5},}");
    QTest::newRow("HTML") << QByteArray("<html><body>404</body></html>");
    QTest::newRow("array") << QByteArray("[1]");
    QTest::newRow("blank") << QByteArray(" \n");
    QTest::newRow("null bytes") << QByteArray(4096, '\0');
    QTest::newRow("two objects") << QByteArray("{}{}");
    QTest::newRow("invalid UTF-8") << QByteArray("{\"size\":{\"t\":1,\"v\":\"\xff\"}}");
}

void tst_DamagedFiles::damagedFileIsCopiedAndReported()
{
    QFETCH(QByteArray, text);
    QVERIFY(write(path(), text));
    const QString before = QDateTime::currentDateTimeUtc().toString("yyyyMMdd'T'hhmmss'Z'");
    const LogCapture log;
    QCOMPARE(load(), 7);
    const QString after = QDateTime::currentDateTimeUtc().toString("yyyyMMdd'T'hhmmss'Z'");
    const QStringList copies = copiesIn("box");
    QCOMPARE(copies.size(), 1);
    const QString copy = copies.first();
    QVERIFY2(copy >= "settings.json.damaged-" + before && copy <= "settings.json.damaged-" + after,
             qPrintable(copy));
    QCOMPARE(log.messages(), (QList<LoggedMessage>{{QtCriticalMsg, copied(copy)}}));
    QCOMPARE(contentOf("box/" + copy), text);
    QCOMPARE(contentOf(path()), text);
}

void tst_DamagedFiles::goodFileIsNotCopied_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("written by the library") << sText5;
    QTest::newRow("written by hand") << QByteArray("{ \"size\" : { \"v\": 5, \"t\": 500 } }\n");
    QTest::newRow("byte order mark") << QByteArray("\xef\xbb\xbf{\"size\":{\"t\":500,\"v\":5}}");
}

void tst_DamagedFiles::goodFileIsNotCopied()
{
    QFETCH(QByteArray, text);
    QVERIFY(write(path(), text));
    const LogCapture log;
    QCOMPARE(load(), 5);
    QVERIFY(log.messages().isEmpty());
    QCOMPARE(QDir("box").entryList(QDir::Files), QStringList("settings.json"));
}

void tst_DamagedFiles::emptyFileCountsAsMissingWithoutABackup()
{
    QVERIFY(write(path(), ""));
    const LogCapture log;
    QCOMPARE(load(), 7);
    QVERIFY(log.messages().isEmpty());
    QCOMPARE(QDir("box").entryList(QDir::Files), QStringList("settings.json"));
}

void tst_DamagedFiles::emptyFileIsLoadedFromTheBackup()
{
    QVERIFY(write(path(), ""));
    QVERIFY(write(backupPath(), sText5));
    const LogCapture log;
    QCOMPARE(load(), 5);
    QCOMPARE(log.messages(), (QList<LoggedMessage>{{QtWarningMsg, loadedFromBackup()}}));
    QVERIFY(copiesIn("box").isEmpty());
}

void tst_DamagedFiles::backupHoldsTheContentBeforeTheLastSave()
{
    const LogCapture log;
    Host host(sKeep);
    host.save(5);
    QVERIFY(!QFile::exists(backupPath()));
    host.save(6);
    QCOMPARE(contentOf(backupPath()), sText5);
    host.save(8);
    QCOMPARE(contentOf(backupPath()), sText6);
    QCOMPARE(QDir("box").entryList(QDir::Files, QDir::Name),
             (QStringList{"settings.json", "settings.json.backup"}));
    QVERIFY(log.texts(QtWarningMsg).isEmpty() && log.texts(QtCriticalMsg).isEmpty());
}

void tst_DamagedFiles::contentComesBackFromTheBackup_data()
{
    QTest::addColumn<uint>("options");
    QTest::newRow("plain saves") << uint(sKeep);
    QTest::newRow("safe saves") << uint(sKeep | ConfStorage::SafeSave);
}

void tst_DamagedFiles::contentComesBackFromTheBackup()
{
    QFETCH(uint, options);
    const LogCapture log;
    {
        Host host(options);
        host.save(5);
        host.save(6);
    }
    QVERIFY(write(path(), sDamaged));
    log.messages().clear();
    QCOMPARE(load(options), 5);
    QCOMPARE(log.messages(),
             (QList<LoggedMessage>{{QtCriticalMsg, copied(copiesIn("box").value(0))},
                                   {QtWarningMsg, loadedFromBackup()}}));
}

void tst_DamagedFiles::damagedBackupIsIgnored_data()
{
    QTest::addColumn<QByteArray>("backup");
    QTest::newRow("cut") << sText5.left(10);
    QTest::newRow("null bytes") << QByteArray(24, '\0');
    QTest::newRow("empty") << QByteArray();
}

void tst_DamagedFiles::damagedBackupIsIgnored()
{
    QFETCH(QByteArray, backup);
    QVERIFY(write(path(), sDamaged));
    QVERIFY(write(backupPath(), backup));
    const LogCapture log;
    QCOMPARE(load(), 7);
    QCOMPARE(log.messages(),
             (QList<LoggedMessage>{{QtCriticalMsg, copied(copiesIn("box").value(0))}}));
    QCOMPARE(contentOf(backupPath()), backup);
}

void tst_DamagedFiles::missingFileIsNotLoadedFromTheBackup()
{
    QVERIFY(write(backupPath(), sText5));
    const LogCapture log;
    QCOMPARE(load(), 7);
    QVERIFY(log.messages().isEmpty());
}

void tst_DamagedFiles::nextSaveRepairsTheFile()
{
    QVERIFY(write(path(), sDamaged));
    QVERIFY(write(backupPath(), sText5));
    const LogCapture log;
    Host host(sKeep);
    host.store.loadLocalConfFile();
    QVERIFY(host.store.lastLoad().isDamaged);
    QCOMPARE(host.store.lastLoad().damagedCopy, "box/" + copiesIn("box").value(0));
    QCOMPARE(host.store.lastLoad().taken, 1);
    QVERIFY(host.store.mChanged);
    host.store.saveToLocalConfFile();
    QVERIFY(!host.store.mChanged);
    QCOMPARE(contentOf(path()), sText5);
    QCOMPARE(contentOf(backupPath()), sText5); // damaged content does not replace it
    QCOMPARE(copiesIn("box").size(), 1);
}

void tst_DamagedFiles::sameDamageIsCopiedOnce()
{
    QVERIFY(write(path(), sDamaged));
    const LogCapture log;
    load();
    const QString copy = copiesIn("box").value(0);
    load();
    QCOMPARE(copiesIn("box"), QStringList(copy));
    QCOMPARE(log.texts(QtCriticalMsg), (QStringList{copied(copy), copied(copy)}));
}

void tst_DamagedFiles::newestThreeCopiesAreKept()
{
    const QString name = "settings.json.damaged-";
    for (const char *time :
         {"20250101T000000Z", "20250101T000000Z-2", "20250101T000000Z-10", "20250101T000001Z"})
        QVERIFY(write("box/" + name + time, time));
    QVERIFY(write(path(), sDamaged));
    const LogCapture log;
    load();
    QCOMPARE(copiesIn("box").mid(0, 2),
             (QStringList{name + "20250101T000000Z-10", name + "20250101T000001Z"}));
    QCOMPARE(copiesIn("box").size(), 3);
}

void tst_DamagedFiles::copiesOfOneSecondAreNumbered()
{
    const LogCapture log;
    // All of them in one second, unless a new one begins in between; then once more.
    QStringList copies;
    for (int second = 0; copies.size() != 3 || !copies.last().endsWith("Z-3"); ++second) {
        QVERIFY(second < 20);
        for (const QString &copy : std::as_const(copies))
            QVERIFY(QFile::remove("box/" + copy));
        for (int i = 0; i < 3; ++i) {
            QVERIFY(write(path(), sDamaged + QByteArray::number(i)));
            load();
        }
        copies = copiesIn("box");
    }
    QCOMPARE(copies.at(1), copies.at(0) + "-2");
    QCOMPARE(contentOf("box/" + copies.at(0)), sDamaged + "0");
    QCOMPARE(contentOf("box/" + copies.at(1)), sDamaged + "1");
    QCOMPARE(contentOf("box/" + copies.at(2)), sDamaged + "2");
}

void tst_DamagedFiles::hundredCopiesOfOneSecondAreMade()
{
    // Whatever the second of the next copy is, 99 names are used already.
    const QDateTime now = QDateTime::currentDateTimeUtc();
    for (int second = 0; second < 30; ++second) {
        const QString name = path() + ".damaged-"
                             + now.addSecs(second).toString("yyyyMMdd'T'hhmmss'Z'");
        QVERIFY(write(name, "x"));
        for (int number = 2; number <= 99; ++number)
            QVERIFY(write(name + '-' + QString::number(number), "x"));
    }
    QVERIFY(write(path(), sDamaged));
    const LogCapture log;
    load();
    const QStringList copies = copiesIn("box").filter("Z-100");
    QCOMPARE(copies.size(), 1);
    QCOMPARE(contentOf("box/" + copies.first()), sDamaged);
}

void tst_DamagedFiles::newCopyIsKeptIfTheClockWentBack()
{
    const QString name = "box/settings.json.damaged-";
    for (const char *time : {"29990101T000000Z", "29990102T000000Z", "29990103T000000Z"})
        QVERIFY(write(name + time, time));
    QVERIFY(write(path(), sDamaged));
    const LogCapture log;
    load();
    const QStringList copies = copiesIn("box");
    QCOMPARE(copies.size(), 3);
    QCOMPARE(contentOf("box/" + copies.first()), sDamaged);
    QCOMPARE(copies.last(), QString("settings.json.damaged-29990103T000000Z"));
}

void tst_DamagedFiles::otherFilesAreNotRemoved()
{
    const QStringList others{
        "other.json.damaged-20250101T000000Z", "settings.json.damaged-20250101",
        "settings.json.damaged-20250101T000000Z.txt", "settings.json.damaged-20250101T000000Z-",
        "settingsxjson.damaged-20250101T000000Z"};
    for (const QString &name : others)
        QVERIFY(write("box/" + name, "mine"));
    QVERIFY(QDir("box").mkdir("settings.json.damaged-20240101T000000Z"));
    const LogCapture log;
    for (int i = 0; i < 5; ++i) {
        QVERIFY(write(path(), sDamaged + QByteArray::number(i)));
        load();
    }
    QCOMPARE(copiesIn("box").size(), others.size() + 3);
    for (const QString &name : others)
        QVERIFY2(QFile::exists("box/" + name), qPrintable(name));
    QVERIFY(QDir("box/settings.json.damaged-20240101T000000Z").exists());
}

void tst_DamagedFiles::copyIsBesideTheTargetOfALink()
{
    QVERIFY(QDir("box").mkdir("far"));
    QVERIFY(write("box/far/target.json", sDamaged));
    QVERIFY(write("box/far/target.json.backup", sText5));
    QCOMPARE(::symlink("far/target.json", qPrintable(path())), 0);
    const LogCapture log;
    Host host(sKeep);
    host.store.loadLocalConfFile();
    QCOMPARE(host.size, 5);
    QVERIFY(copiesIn("box").isEmpty());
    QCOMPARE(copiesIn("box/far").size(), 1);
    QVERIFY(copiesIn("box/far").first().startsWith("target.json.damaged-"));
    host.save(6);
    host.save(8);
    QVERIFY(QFileInfo(path()).isSymLink());
    QCOMPARE(contentOf("box/far/target.json.backup"), sText6);
}

void tst_DamagedFiles::fileThatWasDamagedAfterTheLoadIsCopiedBeforeASave()
{
    const LogCapture log;
    Host host(sKeep);
    host.save(5);
    host.save(6);
    QVERIFY(write(path(), sDamaged));
    log.messages().clear();
    host.save(8);
    QVERIFY(!host.store.mChanged);
    const QString copy = copiesIn("box").value(0);
    QCOMPARE(log.texts(QtCriticalMsg), QStringList(copied(copy)));
    QCOMPARE(contentOf("box/" + copy), sDamaged);
    QCOMPARE(contentOf(backupPath()), sText5);
    QCOMPARE(load(), 8);
}

void tst_DamagedFiles::damageOfASharedFileLosesNothing_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("isLoaded");
    QTest::addColumn<bool>("hasBackup");
    QTest::newRow("load") << sDamaged << true << true;
    QTest::newRow("save") << sDamaged << false << true;
    QTest::newRow("load of an empty file") << QByteArray() << true << true;
    QTest::newRow("save of an empty file") << QByteArray() << false << true;
    QTest::newRow("load without a backup") << sDamaged << true << false;
    QTest::newRow("save without a backup") << sDamaged << false << false;
}

void tst_DamagedFiles::damageOfASharedFileLosesNothing()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, isLoaded);
    QFETCH(bool, hasBackup);
    QVERIFY(write(path(), "{\"size\":{\"t\":500,\"v\":5},\"z\":{\"t\":1,\"v\":0}}"));
    const LogCapture log;
    Host host(sKeep | ConfStorage::SharedFile);
    host.store.loadLocalConfFile();
    host.save(6);
    QVERIFY(hasBackup || QFile::remove(backupPath()));
    QVERIFY(write(path(), text));
    if (isLoaded)
        host.store.loadLocalConfFile();
    QCOMPARE(host.size, 6);
    host.store.mChanged = true;
    host.store.saveToLocalConfFile();
    QVERIFY(!host.store.mChanged);
    QCOMPARE(host.size, 6);
    QCOMPARE(contentOf(path()), sText6.chopped(1) + ",\"z\":{\"t\":1,\"v\":0}}");
    QCOMPARE(copiesIn("box").size(), text.isEmpty() ? 0 : 1);
    const int messages = isLoaded ? 2 : 1; // one for each call
    QCOMPARE(log.texts(QtCriticalMsg).size(), text.isEmpty() ? 0 : messages);
}

void tst_DamagedFiles::newerBackupOfASharedFileIsLoaded()
{
    const LogCapture log;
    Host host(sKeep | ConfStorage::SharedFile);
    host.save(5);
    Host other(sKeep | ConfStorage::SharedFile);
    other.save(6);
    other.save(7);
    QVERIFY(write(path(), sDamaged));
    host.store.loadLocalConfFile();
    QCOMPARE(host.size, 6);
    host.store.saveToLocalConfFile();
    QCOMPARE(contentOf(path()), sText6);
}

void tst_DamagedFiles::newestEntriesOfASharedFileAreKept_data()
{
    QTest::addColumn<QByteArray>("backup");
    QTest::addColumn<QByteArray>("saved");
    const QByteArray a = "{\"a\":{\"t\":1,\"v\":0},";
    const QByteArray z = ",\"z\":{\"t\":1,\"v\":0}}";
    const QByteArray older = sText5.mid(1).chopped(1);
    const QByteArray newer = "{\"size\":{\"t\":601,\"v\":8}}";
    QTest::newRow("older") << sText5 << sText6;
    QTest::newRow("same second") << QByteArray("{\"size\":{\"t\":600,\"v\":8}}") << sText6;
    QTest::newRow("newer") << newer << newer;
    QTest::newRow("other entries") << a + older + z << a + sText6.mid(1).chopped(1) + z;
    QTest::newRow("other entry before") << a + sText5.mid(1) << a + sText6.mid(1);
    QTest::newRow("only other entries") << a.chopped(1) + z << a + sText6.mid(1).chopped(1) + z;
}

void tst_DamagedFiles::newestEntriesOfASharedFileAreKept()
{
    QFETCH(QByteArray, backup);
    QFETCH(QByteArray, saved);
    const LogCapture log;
    Host host(sKeep | ConfStorage::SharedFile);
    host.save(6);
    QVERIFY(write(backupPath(), backup));
    QVERIFY(write(path(), sDamaged));
    host.store.loadLocalConfFile();
    host.store.saveToLocalConfFile();
    QCOMPARE(contentOf(path()), saved);
}

void tst_DamagedFiles::newFilesHaveTheirPermissions_data()
{
    QTest::addColumn<uint>("options");
    QTest::addColumn<int>("mode");
    const uint keep = sKeep;
    QTest::newRow("as usual") << keep << 0644;
    QTest::newRow("as usual, safe saves") << (keep | ConfStorage::SafeSave) << 0644;
    QTest::newRow("owner only") << (keep | ConfStorage::OwnerOnlyFiles) << 0600;
    QTest::newRow("owner only, safe saves")
        << (keep | ConfStorage::OwnerOnlyFiles | ConfStorage::SafeSave) << 0600;
}

void tst_DamagedFiles::newFilesHaveTheirPermissions()
{
    QFETCH(uint, options);
    const mode_t mask = ::umask(022);
    const LogCapture log;
    Host host(options);
    host.save(5);
    host.save(6);
    QVERIFY(write(path(), sDamaged));
    load(options);
    ::umask(mask);
    QTEST(modeOf(path()), "mode");
    QTEST(modeOf(backupPath()), "mode");
    QTEST(modeOf("box/" + copiesIn("box").value(0)), "mode");
}

void tst_DamagedFiles::existingFileKeepsItsPermissions()
{
    QVERIFY(write(path(), sText5));
    QCOMPARE(::chmod(qPrintable(path()), 0640), 0);
    const LogCapture log;
    Host host(sKeep | ConfStorage::OwnerOnlyFiles | ConfStorage::SafeSave);
    host.save(6);
    QCOMPARE(modeOf(path()), 0640);
    QCOMPARE(modeOf(backupPath()), 0600);
    Host other(sKeep);
    other.save(8);
    QCOMPARE(modeOf(path()), 0640);
    QCOMPARE(modeOf(backupPath()), 0640); // not the 0644 of a new file
}

int main(int argc, char **argv)
{
    return runTest<tst_DamagedFiles>(argc, argv);
}

#include "tst_DamagedFiles.moc"
