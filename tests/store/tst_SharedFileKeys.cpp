#include "support/Entries.h"
#include "support/LogCapture.h"
#include "support/SavedFile.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr quint32 sShared = ConfStorage::SharedFile;
constexpr quint32 sKept = ConfStorage::SharedFile | ConfStorage::KeepUnknownEntries;
constexpr qint64 sAhead = 1000; // seconds; so far in the future that no test ends later

/// A program that shares the file. Its setting "b" is declared at once, "a" later.
struct Program
{
    explicit Program(quint32 options = sKept)
    {
        store.mFileOptions = options;
        store.mLocalSaveFile = sPath;
        store.reserveConf("b", &b);
    }
    Q_DISABLE_COPY(Program)

    void declareA()
    {
        a = 1;
        store.reserveConf("a", &a);
    }
    void set(const QString &key, int value, qint64 time)
    {
        store.set(key, value);
        store.mConfMetas[key].lastChangeTime = second(time);
    }
    /// Returns whether the save was acknowledged.
    bool save()
    {
        store.saveToLocalConfFile();
        return !store.mChanged;
    }

    int a = 0;
    int b = 2;
    ConfStorage store;
};

qint64 now()
{
    return QDateTime::currentSecsSinceEpoch();
}

QJsonObject saved(const QString &key)
{
    return QJsonDocument::fromJson(savedText()).object().value(key).toObject();
}

} // namespace

/// Keys of a shared file that are declared late, released, renamed or locked.
class tst_SharedFileKeys : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QFile::remove(sPath); }

    void changeBeforeAReleaseIsSaved_data();
    void changeBeforeAReleaseIsSaved();
    void newerChangeOfOthersWinsAfterARelease();
    void keyThatIsDeclaredLaterDoesNotBringBackItsOldValue();
    void keyThatIsReservedAgainGetsWhatOthersSaved_data();
    void keyThatIsReservedAgainGetsWhatOthersSaved();
    void keptEntryFollowsTheFile();
    void importedUnknownEntryIsSaved_data();
    void importedUnknownEntryIsSaved();
    void keyThatIsDeclaredLaterIsLoaded();
    void keyThatIsReservedTwiceIsLoadedAgain();
    void olderEntryOfAFormerNameIsNotTaken();
    void pendingChangeWinsAgainstAFormerName();
    void importForALockedKeyIsSaved();
    void lockIsNoChangeOfTheUser();
    void releasedLockedKeyKeepsTheChangeOfTheUser();
};

void tst_SharedFileKeys::changeBeforeAReleaseIsSaved_data()
{
    QTest::addColumn<quint32>("options");
    QTest::addColumn<int>("theirs"); // seconds from now
    for (const auto &[name, options] : {std::pair("shared", sShared), {"kept", sKept}}) {
        QTest::addRow("%s, older", name) << options << -200;
        QTest::addRow("%s, same second", name) << options << -100;
        QTest::addRow("%s, the file is newer", name) << options << -50;
        QTest::addRow("%s, the file is in the future", name) << options << int(sAhead);
    }
}

void tst_SharedFileKeys::changeBeforeAReleaseIsSaved()
{
    QFETCH(quint32, options);
    QFETCH(int, theirs);
    const qint64 start = now();
    Program program(options);
    program.declareA();
    program.set("a", 10, start + theirs);
    QVERIFY(program.save());
    program.set("a", 11, start - 100);
    program.store.releaseConf("a");
    QVERIFY(program.save());
    const qint64 time = theirs < -100 ? start - 100 : start + theirs + 1;
    QCOMPARE(saved("a"), entry(time, 11));
    program.store.set("b", 20);
    QVERIFY(program.save());
    QCOMPARE(saved("a"), entry(time, 11));
    program.declareA();
    QCOMPARE(program.a, 11);
    QCOMPARE(program.store.mConfMetas["a"].lastChangeTime, second(time));
    QVERIFY(program.save());
    QCOMPARE(saved("a"), entry(time, 11));
}

void tst_SharedFileKeys::newerChangeOfOthersWinsAfterARelease()
{
    Program one;
    one.declareA();
    one.set("a", 10, 100);
    QVERIFY(one.save());
    one.set("a", 11, 200);
    one.store.releaseConf("a");
    write(R"({"a":{"t":300,"v":12}})");
    QVERIFY(one.save());
    QCOMPARE(saved("a"), entry(300, 12));
    one.declareA();
    QCOMPARE(one.a, 12);
}

void tst_SharedFileKeys::keyThatIsDeclaredLaterDoesNotBringBackItsOldValue()
{
    const qint64 time = now() + sAhead;
    Program one;
    one.declareA();
    one.set("a", 10, time);
    QVERIFY(one.save());
    Program two;
    two.store.loadLocalConfFile();
    one.set("a", 11, time);
    QVERIFY(one.save());
    two.declareA();
    QCOMPARE(two.a, 10);
    two.store.set("b", 20);
    QVERIFY(two.save());
    QCOMPARE(saved("a"), entry(time + 1, 11));
    QCOMPARE(two.a, 11);
}

void tst_SharedFileKeys::keyThatIsReservedAgainGetsWhatOthersSaved_data()
{
    QTest::addColumn<quint32>("options");
    QTest::addColumn<int>("time");
    QTest::newRow("shared, newer") << sShared << 101;
    QTest::newRow("shared, same second") << sShared << 100;
    QTest::newRow("shared, older") << sShared << 99;
    QTest::newRow("kept, newer") << sKept << 101;
    QTest::newRow("kept, same second") << sKept << 100;
    QTest::newRow("kept, older") << sKept << 99;
}

void tst_SharedFileKeys::keyThatIsReservedAgainGetsWhatOthersSaved()
{
    QFETCH(quint32, options);
    QFETCH(int, time);
    write(R"({"a":{"t":100,"v":10}})");
    Program program(options);
    program.declareA();
    program.store.loadLocalConfFile();
    QCOMPARE(program.a, 10);
    program.store.releaseConf("a");
    const QByteArray text = compact({{"a", entry(time, 11)}});
    write(text);
    program.store.loadLocalConfFile();
    program.declareA();
    QCOMPARE(program.a, 11);
    QCOMPARE(program.store.mConfMetas["a"].lastChangeTime, second(time));
    program.store.mChanged = true;
    QVERIFY(program.save());
    QCOMPARE(savedText(), text);
}

void tst_SharedFileKeys::keptEntryFollowsTheFile()
{
    write(R"({"a":{"t":100,"v":10}})");
    Program program;
    program.store.loadLocalConfFile();
    write(R"({"a":{"t":99,"v":11}})"); // an older copy of the file
    program.store.set("b", 20);
    QVERIFY(program.save());
    QCOMPARE(saved("a"), entry(99, 11));
    program.declareA();
    QCOMPARE(program.a, 11);
}

void tst_SharedFileKeys::importedUnknownEntryIsSaved_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("no entry") << QByteArray("{}");
    QTest::newRow("older entry") << QByteArray(R"({"a":{"t":100,"v":10}})");
}

void tst_SharedFileKeys::importedUnknownEntryIsSaved()
{
    QFETCH(QByteArray, file);
    write(file);
    Program program;
    program.store.loadLocalConfFile();
    program.store.loadConf({{"a", entry(101, 11)}}, ConfStorage::LoadShared);
    QVERIFY(program.store.mChanged);
    program.store.loadLocalConfFile();
    QVERIFY(program.store.mChanged);
    QVERIFY(program.save());
    QCOMPARE(saved("a"), entry(101, 11));
    program.declareA();
    QCOMPARE(program.a, 11);
}

void tst_SharedFileKeys::keyThatIsDeclaredLaterIsLoaded()
{
    write(R"({"a":{"t":100,"v":10}})");
    Program program(sShared);
    program.store.loadLocalConfFile();
    program.declareA();
    program.store.loadLocalConfFile();
    QCOMPARE(program.a, 10);
    QVERIFY(!program.store.mChanged);
}

void tst_SharedFileKeys::keyThatIsReservedTwiceIsLoadedAgain()
{
    write(R"({"a":{"t":100,"v":10},"b#s.mac":{"t":100,"v":20}})");
    Program program;
    program.declareA();
    program.store.loadLocalConfFile();
    program.declareA();
    program.store.reserveConf("b", &program.b);
    program.store.set("b", 21);
    program.store.loadLocalConfFile();
    QCOMPARE(program.a, 10);
    QCOMPARE(program.b, 21);
}

void tst_SharedFileKeys::olderEntryOfAFormerNameIsNotTaken()
{
    write(R"({"a":{"t":300,"v":10},"old":{"t":100,"v":8}})");
    Program program;
    program.declareA();
    program.store.addFormerName("a", "old");
    program.store.loadLocalConfFile();
    QCOMPARE(program.a, 10);
    write(R"({"a":{"t":300,"v":10},"old":{"t":200,"v":9}})");
    program.store.loadLocalConfFile();
    QCOMPARE(program.a, 10);
    write(R"({"a":{"t":300,"v":10},"old":{"t":301,"v":11}})");
    program.store.loadLocalConfFile();
    QCOMPARE(program.a, 11);
}

void tst_SharedFileKeys::pendingChangeWinsAgainstAFormerName()
{
    write(R"({"old":{"t":100,"v":8}})");
    Program program;
    program.declareA();
    program.store.addFormerName("a", "old");
    program.store.loadLocalConfFile();
    QCOMPARE(program.a, 8);
    write(R"({"old":{"t":200,"v":9}})");
    program.set("a", 10, 300);
    QVERIFY(program.save());
    QCOMPARE(program.a, 10);
    QCOMPARE(saved("a"), entry(300, 10));
}

void tst_SharedFileKeys::importForALockedKeyIsSaved()
{
    write(R"({"a":{"t":100,"v":10}})");
    Program program;
    program.declareA();
    program.store.loadLocalConfFile();
    program.store.lockConf("a", 99);
    program.store.loadConf({{"a", entry(200, 11)}}, ConfStorage::LoadShared);
    program.store.loadLocalConfFile();
    QVERIFY(program.store.mChanged);
    QVERIFY(program.save());
    QCOMPARE(saved("a"), entry(200, 11));
    QCOMPARE(program.a, 99);
}

void tst_SharedFileKeys::lockIsNoChangeOfTheUser()
{
    const qint64 time = now() + sAhead;
    write(compact({{"a", entry(time, 10)}}));
    Program program;
    program.declareA();
    program.store.loadLocalConfFile();
    program.store.lockConf("a", 99);
    write(compact({{"a", entry(time + 1, 11)}}));
    program.store.set("b", 20);
    QVERIFY(program.save());
    QCOMPARE(saved("a"), entry(time + 1, 11));
    QCOMPARE(program.a, 99);
    // A later save does not bring back the value that was hidden before.
    program.store.set("b", 21);
    QVERIFY(program.save());
    QCOMPARE(saved("a"), entry(time + 1, 11));
}

void tst_SharedFileKeys::releasedLockedKeyKeepsTheChangeOfTheUser()
{
    write(R"({"a":{"t":100,"v":10}})");
    Program program;
    program.declareA();
    program.store.loadLocalConfFile();
    program.set("a", 11, 100);
    program.store.lockConf("a", 99);
    program.store.releaseConf("a");
    QVERIFY(program.save());
    QCOMPARE(saved("a"), entry(101, 11));
    write(R"({"a":{"t":200,"v":12}})");
    program.store.loadLocalConfFile();
    program.declareA();
    QCOMPARE(program.a, 99);
    program.store.set("b", 20);
    QVERIFY(program.save());
    QCOMPARE(saved("a"), entry(200, 12));
    QCOMPARE(program.store.mConfMetas["a"].lastChangeTime, second(200));
}

int main(int argc, char **argv)
{
    return runTest<tst_SharedFileKeys>(argc, argv);
}

#include "tst_SharedFileKeys.moc"
