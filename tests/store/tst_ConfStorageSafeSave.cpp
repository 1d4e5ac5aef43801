#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonObject>

#include <unistd.h>

namespace {

const QByteArray sOld = "{\"size\":{\"t\":100,\"v\":8}}";
const QByteArray sNew = "{\"size\":{\"t\":200,\"v\":9}}";

/// The journal of a save from `sOld` to `sNew`; the hashes were computed with sha256sum.
const QByteArray sJournal = "malto save journal 1\n"
                            "61c6cafd088dc3c8fecd114f6c37d65044daa8527241d1ecf14f87aadf30df42\n"
                            "24\n"
                            "d7cf89c8c25ec749882ab96c326c67ec032ca61b93007c4a7312cdaef248a7e6\n"
                            "62bfa2bd920b273ce71623cf41b9a8dc174aaf806065031e0af7cba76e854e41\n"
                            "{\"size\":{\"t\":200,\"v\":9}}";

QByteArray journalOf(const QByteArray &body)
{
    const QByteArray checksum = QCryptographicHash::hash(body, QCryptographicHash::Sha256).toHex();
    return "malto save journal 1\n" + checksum + '\n' + body;
}

const QString sWarning = "ConfStorage::loadLocalConfFile() ";

} // namespace

/// The local file with `SafeSave`, and the journal beside it. Crashes and write errors are tested
/// in tests/faults.
class tst_ConfStorageSafeSave : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        QVERIFY(QDir().mkdir("box"));
        mSize = 7;
        mStore = makeStore();
    }
    void cleanup() { QVERIFY(QDir("box").removeRecursively()); }

    void switchIsOffByDefault();
    void safeSaveWritesTheSameBytesAsAPlainSave();
    void shorterContentTruncatesTheFile();
    void linksAndPermissionsArePreserved();
    void fileWithSeveralNamesIsNotSaved();
    void unreadableContentIsNotSaved();
    void journalGetsAnotherNameIfItsNameIsTaken();
    void recoveryDependsOnTheContentOfTheFile_data();
    void recoveryDependsOnTheContentOfTheFile();
    void journalIsBesideTheTargetOfALink();
    void damagedJournalIsDropped_data();
    void damagedJournalIsDropped();
    void hugeJournalIsKept();
    void filesThatAreNotJournalsAreLeftAlone_data();
    void filesThatAreNotJournalsAreLeftAlone();
    void journalOfAnotherUserIsLeftAlone();
    void plainSaveLeavesAJournalAlone();

private:
    static QString path() { return "box/local.json"; }
    static QString journalPath() { return "box/local.json.save-journal"; }
    std::unique_ptr<ConfStorage> makeStore()
    {
        auto store = std::make_unique<ConfStorage>();
        store->mFileOptions = ConfStorage::SafeSave;
        store->mLocalSaveFile = path();
        store->reserveConf("size", &mSize);
        return store;
    }
    static QByteArray content(const QString &name)
    {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
    }
    static void write(const QString &name, const QByteArray &text)
    {
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(text), qint64(text.size()));
    }
    void change(int value, qint64 seconds)
    {
        mStore->set<int>("size", value);
        mStore->mConfMetas["size"].lastChangeTime = QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
    }
    static QStringList filesIn(const QString &folder)
    {
        return QDir(folder).entryList(QDir::Files, QDir::Name);
    }

    std::unique_ptr<ConfStorage> mStore;
    int mSize = 0;
};

void tst_ConfStorageSafeSave::switchIsOffByDefault()
{
    QCOMPARE(ConfStorage().mFileOptions, 0U);
}

void tst_ConfStorageSafeSave::safeSaveWritesTheSameBytesAsAPlainSave()
{
    change(8, 100);
    const LogCapture log;
    mStore->saveToLocalConfFile();
    QCOMPARE(content(path()), sOld);
    change(9, 200);
    mStore->saveToLocalConfFile();
    QCOMPARE(content(path()), sNew);
    const QString saved = "ConfStorage::saveToLocalConfFile() save to file:  \"box/local.json\"";
    QCOMPARE(log.messages(), (QList<LoggedMessage>{{QtDebugMsg, saved}, {QtDebugMsg, saved}}));
    QCOMPARE(filesIn("box"), QStringList("local.json"));
    QVERIFY(!mStore->mChanged);
}

void tst_ConfStorageSafeSave::shorterContentTruncatesTheFile()
{
    write(path(), QByteArray(100000, ' '));
    change(8, 100);
    mStore->saveToLocalConfFile();
    QCOMPARE(content(path()), sOld);
}

void tst_ConfStorageSafeSave::linksAndPermissionsArePreserved()
{
    QVERIFY(QDir("box").mkdir("far"));
    write("box/far/target.json", sOld);
    const QFile::Permissions permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther;
    QVERIFY(QFile::setPermissions("box/far/target.json", permissions));
    QCOMPARE(::symlink("far/target.json", qPrintable(path())), 0);
    change(9, 200);
    mStore->saveToLocalConfFile();
    QVERIFY(QFileInfo(path()).isSymLink());
    QCOMPARE(content("box/far/target.json"), sNew);
    const QFile::Permissions checked = permissions | QFile::ReadGroup | QFile::WriteGroup
                                       | QFile::WriteOther | QFile::ExeOwner;
    QCOMPARE(QFile::permissions("box/far/target.json") & checked, permissions);
    QCOMPARE(filesIn("box/far"), QStringList("target.json"));
}

void tst_ConfStorageSafeSave::fileWithSeveralNamesIsNotSaved()
{
    // A program that opens the file by its other name would not find the journal.
    write(path(), sOld);
    QVERIFY(QDir("box").mkdir("far"));
    QCOMPARE(::link(qPrintable(path()), "box/far/hard.json"), 0);
    change(9, 200);
    const LogCapture log;
    mStore->saveToLocalConfFile();
    QCOMPARE(log.messages(),
             (QList<LoggedMessage>{{QtCriticalMsg,
                                    "ConfStorage::saveToLocalConfFile() file has several names:  "
                                    "\"box/local.json\""}}));
    QVERIFY(mStore->mChanged);
    QCOMPARE(content(path()), sOld);
    QVERIFY(QFile::remove("box/far/hard.json"));
    mStore->saveToLocalConfFile();
    QCOMPARE(content(path()), sNew);
}

void tst_ConfStorageSafeSave::unreadableContentIsNotSaved()
{
    write(path(), sOld);
    QJsonArray nested;
    for (int i = 0; i < 1100; ++i)
        nested = QJsonArray{nested};
    mStore->reserveConf("nested", &nested);
    mStore->set<QJsonArray>("nested", nested);
    const LogCapture log;
    mStore->saveToLocalConfFile();
    QCOMPARE(log.messages(),
             (QList<LoggedMessage>{{QtCriticalMsg,
                                    "ConfStorage::saveToLocalConfFile() content could not be read "
                                    "back:  \"box/local.json\""}}));
    QVERIFY(mStore->mChanged);
    QCOMPARE(content(path()), sOld);
    QCOMPARE(filesIn("box"), QStringList("local.json"));
}

void tst_ConfStorageSafeSave::journalGetsAnotherNameIfItsNameIsTaken()
{
    write(path(), sOld);
    QVERIFY(QDir().mkdir(journalPath()));
    QVERIFY(QDir().mkdir(journalPath() + ".new"));
    change(9, 200);
    mStore->saveToLocalConfFile();
    QVERIFY(!mStore->mChanged);
    QCOMPARE(content(path()), sNew);
    QCOMPARE(filesIn("box"), QStringList("local.json"));

    write(path(), sNew.left(5));
    write(journalPath() + "-0abcdef", sJournal);
    mStore->loadLocalConfFile();
    QCOMPARE(content(path()), sNew);
    QCOMPARE(filesIn("box"), QStringList("local.json"));
}

void tst_ConfStorageSafeSave::recoveryDependsOnTheContentOfTheFile_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<int>("size");
    QTest::addColumn<QString>("warning");
    QTest::addColumn<QStringList>("files");
    const QString recovered = "recovered from journal:  \"box/local.json\"";
    const QStringList alone("local.json");
    QTest::newRow("old content is replaced") << sOld << sNew << 9 << recovered << alone;
    QTest::newRow("cut content is replaced") << sNew.left(10) << sNew << 9 << recovered << alone;
    QTest::newRow("empty file is filled") << QByteArray() << sNew << 9 << recovered << alone;
    QTest::newRow("zeros are replaced") << QByteArray(24, '\0') << sNew << 9 << recovered << alone;
    QTest::newRow("array is replaced") << QByteArray("[]") << sNew << 9 << recovered << alone;
    QTest::newRow("new content stays") << sNew << sNew << 9 << QString() << alone;
    const QByteArray other = "{\"size\":{\"t\":300,\"v\":5}}";
    QTest::newRow("other content wins")
        << other << other << 5
        << QString("journal of another content kept aside:  \"box/local.json.save-journal\"")
        << QStringList{"local.json", "local.json.save-journal.kept"};
}

void tst_ConfStorageSafeSave::recoveryDependsOnTheContentOfTheFile()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, warning);
    for (const bool safe : {true, false}) {
        write(path(), file);
        write(journalPath(), sJournal);
        mSize = 7;
        mStore = makeStore();
        mStore->mFileOptions = safe ? ConfStorage::SafeSave : 0U;
        const LogCapture log;
        mStore->loadLocalConfFile();
        QTEST(mSize, "size");
        QTEST(content(path()), "after");
        QCOMPARE(log.texts(QtWarningMsg),
                 warning.isEmpty() ? QStringList() : QStringList(sWarning + warning));
        QCOMPARE(log.messages().size(), warning.isEmpty() ? 0 : 1);
        QTEST(filesIn("box"), "files");
        QVERIFY(!mStore->mChanged);
        QVERIFY(mStore->mLocalLoaded);
    }
    if (QFile::exists(journalPath() + ".kept"))
        QCOMPARE(content(journalPath() + ".kept"), sJournal);
}

void tst_ConfStorageSafeSave::journalIsBesideTheTargetOfALink()
{
    QVERIFY(QDir("box").mkdir("far"));
    QCOMPARE(::symlink("far/target.json", qPrintable(path())), 0);
    write("box/far/target.json", QByteArray());
    write("box/far/target.json.save-journal", sJournal);
    write(journalPath(), "not looked at");
    const LogCapture log;
    mStore->loadLocalConfFile();
    QCOMPARE(mSize, 9);
    QCOMPARE(content("box/far/target.json"), sNew);
    QCOMPARE(content(journalPath()), QByteArray("not looked at"));
    QCOMPARE(log.messages().size(), 1);
}

void tst_ConfStorageSafeSave::damagedJournalIsDropped_data()
{
    QTest::addColumn<QByteArray>("journal");
    QTest::newRow("magic alone") << QByteArray("malto save journal 1\n");
    QTest::newRow("cut") << sJournal.left(sJournal.size() - 1);
    QTest::newRow("longer") << sJournal + " ";
    QByteArray changed = sJournal;
    changed.replace("\"v\":9", "\"v\":6");
    QTest::newRow("changed text") << changed;
    changed = sJournal;
    changed.replace("\n24\n", "\n25\n");
    QTest::newRow("changed length") << changed;
    changed = sJournal;
    changed[25] = changed.at(25) == '0' ? '1' : '0';
    QTest::newRow("changed checksum") << changed;
    QTest::newRow("zeros after the magic") << "malto save journal 1\n" + QByteArray(200, '\0');
    QTest::newRow("line breaks") << "malto save journal 1\n" + QByteArray(200, '\n');
    // Journals with a valid checksum but invalid content.
    const QByteArray hashes = sJournal.mid(sJournal.indexOf("\n24\n") + 3, 2 * 65 + 1);
    QTest::newRow("no hashes") << journalOf("24\n");
    QTest::newRow("another length") << journalOf("23" + hashes + sNew);
    QTest::newRow("another text") << journalOf("24" + hashes + sOld);
}

void tst_ConfStorageSafeSave::damagedJournalIsDropped()
{
    QFETCH(QByteArray, journal);
    write(path(), sOld);
    write(journalPath(), journal);
    const LogCapture log;
    mStore->loadLocalConfFile();
    QCOMPARE(mSize, 8);
    QCOMPARE(log.messages(),
             (QList<LoggedMessage>{{QtWarningMsg, sWarning
                                                      + "damaged journal dropped:  "
                                                        "\"box/local.json.save-journal\""}}));
    QCOMPARE(filesIn("box"), QStringList("local.json"));
    QCOMPARE(content(path()), sOld);
}

void tst_ConfStorageSafeSave::hugeJournalIsKept()
{
    write(path(), sOld);
    write(journalPath(), sJournal);
    QVERIFY(QFile::resize(journalPath(), qint64(1) << 36)); // a sparse file takes no disk space
    const LogCapture log;
    mStore->loadLocalConfFile();
    QCOMPARE(mSize, 8);
    QCOMPARE(log.texts(QtCriticalMsg),
             QStringList("ConfStorage::loadLocalConfFile() journal could not be read:  "
                         "\"box/local.json.save-journal\""));
    QVERIFY(QFile::exists(journalPath()));
}

void tst_ConfStorageSafeSave::filesThatAreNotJournalsAreLeftAlone_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("a note") << QByteArray("remember the milk");
    QTest::newRow("another version") << QByteArray("malto save journal 2\nabc");
}

void tst_ConfStorageSafeSave::filesThatAreNotJournalsAreLeftAlone()
{
    QFETCH(QByteArray, text);
    write(path(), sOld);
    write(journalPath(), text);
    const LogCapture log;
    mStore->loadLocalConfFile();
    QCOMPARE(mSize, 8);
    QVERIFY(log.messages().isEmpty());
    QCOMPARE(content(journalPath()), text);
}

void tst_ConfStorageSafeSave::journalOfAnotherUserIsLeftAlone()
{
    if (::geteuid() != 0)
        QSKIP("only root can create files owned by another user");
    write(path(), sOld);
    write(journalPath(), sJournal);
    QCOMPARE(::chown(qPrintable(journalPath()), 65534, 65534), 0);
    mStore->loadLocalConfFile();
    QCOMPARE(mSize, 8);
    QCOMPARE(content(journalPath()), sJournal);
    // The journal is used when the file belongs to the same user.
    QCOMPARE(::chown(qPrintable(path()), 65534, 65534), 0);
    const LogCapture log;
    mStore->loadLocalConfFile();
    QCOMPARE(mSize, 9);
}

void tst_ConfStorageSafeSave::plainSaveLeavesAJournalAlone()
{
    write(path(), sOld);
    write(journalPath(), sJournal);
    mStore->mFileOptions = 0;
    change(5, 300);
    const LogCapture log;
    mStore->saveToLocalConfFile();
    QCOMPARE(content(journalPath()), sJournal);
    // Content saved after the journal was written wins over it.
    mStore->loadLocalConfFile();
    QCOMPARE(mSize, 5);
    QCOMPARE(content(path()), QByteArray("{\"size\":{\"t\":300,\"v\":5}}"));
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfStorageSafeSave>(argc, argv);
}

#include "tst_ConfStorageSafeSave.moc"
