#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/store/ConfChange.h>
#include <MaltoConfiguration/store/ConfStorage.h>

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLockFile>
#include <QTemporaryDir>

#include <map>
#include <memory>
#include <utility>

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

qint64 now()
{
    return QDateTime::currentSecsSinceEpoch();
}

/// A program that shares the file.
struct Program
{
    explicit Program(const QString &path)
    {
        store.mFileOptions = ConfStorage::SharedFile | ConfStorage::SafeSave;
        store.mLocalSaveFile = path;
        store.reserveConf("a", &a);
        store.reserveConf("b", &b);
        store.reserveConf("text", &text);
        list.prefix = "list.";
        list.creator = [this](const QString &key, const QJsonValue *value) {
            entries[key] = std::make_unique<int>(value->toInt());
            store.reserveConf(key, entries[key].get());
        };
        list.remover = [this](const QString &key) { entries.erase(key); };
        store.mDynamicConfClasses = {&list};
        for (const char *key : {"a", "b", "text"}) {
            store.setConfChangedCallback(
                key, [this](const QString &name, const ConfValue *) { calls.append(name); });
        }
    }

    /// Returns whether the save was acknowledged.
    bool save()
    {
        store.saveToLocalConfFile();
        return !store.mChanged;
    }

    void setTime(const QString &key, qint64 seconds)
    {
        store.mConfMetas[key].lastChangeTime = QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
    }

    int a = 1;
    int b = 2;
    QString text = "none";
    std::map<QString, std::unique_ptr<int>> entries;
    ConfStorage::DynamicConfClass list;
    QStringList calls;
    ConfStorage store;
};

} // namespace

/// Several programs that share one local file: here two stores in one process.
class tst_SharedFile : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();

    void changesOfBothAreKept();
    void changesOfOthersArriveWithEachSaveAndLoad();
    void untouchedEntriesKeepTheBytesOfTheFile();
    void unknownEntryOfOthersWithoutATimeIsKept();
    void assignedVariableIsNotWrittenOverTheFile();
    void touchedEntryAndTheFile_data();
    void touchedEntryAndTheFile();
    void touchedEntryAndALoadOfTheFile_data() { touchedEntryAndTheFile_data(); }
    void touchedEntryAndALoadOfTheFile();
    void ownChangesOfOneSecondAreStampedInOrder();
    void entryOfOthersWinsATie();
    void entriesCreatedAndRemovedByOthersFollow();
    void removalWinsOverAnOlderChange();
    void presetsAreNoChanges();
    void callbacksAreCalledOnlyForRealChanges();
    void observerMayRemoveKeysWhoseTimestampsChange();
    void callbacksRunWithoutTheLock();
    void changesOfCallbacksAreSavedNext();
    void changesThatHostCodeImportsDuringALoadAreSaved_data();
    void changesThatHostCodeImportsDuringALoadAreSaved();
    void importedChangesAreSaved();
    void changesImportedBeforeTheFirstLoadAreSaved();
    void changesBeforeTheLoadAreKept();
    void loadDoesNotForgetChanges();
    void saveWithoutALoadMerges();
    void importedUnknownEntryIsSaved_data();
    void importedUnknownEntryIsSaved();
    void changeBeforeAReleaseIsSaved();
    void entryThatIsReservedLateIsNotWrittenOverTheFile_data();
    void entryThatIsReservedLateIsNotWrittenOverTheFile();
    void lockedKeyIsNotWrittenOverTheFile();
    void vanishedEntryIsWrittenAgain();
    void entryOfANewFileReplacesThatOfADeletedOne();
    void failedSaveIsNotAcknowledged();
    void anotherFileGetsEverything();
    void callbackMaySaveAgain();
    void callbackMayClearTheStore();
    void lockOfARunningProgramDelaysSavesAndLoads();
    void lockWithoutContentIsTakenOver();
    void lockOfADeadProgramIsTakenOver();
    void textThatIsNoObjectCountsAsEmpty_data();
    void textThatIsNoObjectCountsAsEmpty();
    void textThatWasNeverAnObjectIsReplaced();
    void repairedTextIsLoadedWhole();

private:
    std::unique_ptr<QTemporaryDir> mFolder;
    QString mPath;
};

void tst_SharedFile::init()
{
    mFolder = std::make_unique<QTemporaryDir>();
    mPath = mFolder->filePath("settings.json");
}

void tst_SharedFile::changesOfBothAreKept()
{
    Program one(mPath);
    Program two(mPath);
    one.store.loadLocalConfFile();
    two.store.loadLocalConfFile();
    one.store.set("a", 10);
    two.store.set("b", 20);
    QVERIFY(one.save());
    QVERIFY(two.save());
    QCOMPARE(two.a, 10);
    Program third(mPath);
    third.store.loadLocalConfFile();
    QCOMPARE(third.a, 10);
    QCOMPARE(third.b, 20);
}

void tst_SharedFile::changesOfOthersArriveWithEachSaveAndLoad()
{
    Program one(mPath);
    Program two(mPath);
    one.store.set("a", 10);
    QVERIFY(one.save());
    two.store.loadLocalConfFile();
    QCOMPARE(two.a, 10);
    one.store.set("a", 11);
    QVERIFY(one.save());
    two.store.loadLocalConfFile();
    QCOMPARE(two.a, 11);
    two.store.set("a", 12);
    two.store.set("text", QString("x"));
    QVERIFY(two.save());
    one.store.set("b", 21);
    QVERIFY(one.save());
    QCOMPARE(one.a, 12);
    QCOMPARE(one.text, QString("x"));
}

void tst_SharedFile::untouchedEntriesKeepTheBytesOfTheFile()
{
    const QByteArray other = R"("a#s.other":{"t":5,"v":9007199254740993})";
    const QByteArray spaced = R"("b":{ "t" : 6 , "v" : 3.0e0 , "x" : [ "},\"" ] })";
    const QByteArray unknown = R"("z\u00e9":{"t":7,"v":[1,{"k":null}]})";
    writeFile(mPath, "{ " + spaced + ",\n" + other + " , " + unknown + "\n}\n");
    Program program(mPath);
    program.store.loadLocalConfFile();
    QCOMPARE(program.b, 3);
    program.store.set("a", 10);
    QVERIFY(program.save());
    const QByteArray a = R"("a":{"t":)"
                         + QByteArray::number(
                             program.store.mConfMetas["a"].lastChangeTime.toSecsSinceEpoch())
                         + R"(,"v":10})";
    QCOMPARE(contentOf(mPath), '{' + a + ',' + other + ',' + spaced + ',' + "\"z\xc3\xa9\""
                                   + unknown.mid(unknown.indexOf(':')) + '}');
}

void tst_SharedFile::unknownEntryOfOthersWithoutATimeIsKept()
{
    writeFile(mPath, R"({"z":{"t":9,"v":1}})");
    Program program(mPath);
    program.store.mFileOptions |= ConfStorage::KeepUnknownEntries;
    program.store.loadLocalConfFile();
    writeFile(mPath, R"({"z":{"v":2}})"); // by hand
    program.store.set("a", 10);
    QVERIFY(program.save());
    QVERIFY(contentOf(mPath).endsWith(R"("z":{"v":2}})"));
    program.store.set("a", 11);
    QVERIFY(program.save());
    const QJsonObject saved = QJsonDocument::fromJson(contentOf(mPath)).object();
    QCOMPARE(saved.value("z").toObject().value("v").toInt(), 2);
    QVERIFY(saved.value("z").toObject().contains("t"));
}

void tst_SharedFile::assignedVariableIsNotWrittenOverTheFile()
{
    writeFile(mPath, R"({"a":{"t":5,"v":3}})");
    Program program(mPath);
    program.store.loadLocalConfFile();
    program.a = 99;
    program.store.set("b", 1);
    QVERIFY(program.save());
    QVERIFY(contentOf(mPath).startsWith(R"({"a":{"t":5,"v":3},)"));
    QCOMPARE(program.a, 99);
}

void tst_SharedFile::touchedEntryAndTheFile_data()
{
    QTest::addColumn<int>("ours");    // seconds from now
    QTest::addColumn<int>("theirs");  // seconds from now
    QTest::addColumn<int>("value");   // of both afterwards: 10 is ours, 20 theirs
    QTest::addColumn<int>("seconds"); // from now, of both afterwards

    QTest::newRow("newer here") << -100 << -200 << 10 << -100;
    QTest::newRow("same second") << -100 << -100 << 10 << -99;
    QTest::newRow("newer in the file") << -200 << -100 << 20 << -100;
    QTest::newRow("the file is in the future") << -100 << 5000 << 10 << 5001;
    QTest::newRow("both are in the future") << 6000 << 5000 << 10 << 6000;
}

void tst_SharedFile::touchedEntryAndTheFile()
{
    QFETCH(int, ours);
    QFETCH(int, theirs);
    QFETCH(int, value);
    QFETCH(int, seconds);

    const qint64 start = now();
    Program one(mPath);
    Program two(mPath);
    one.store.loadLocalConfFile();
    two.store.loadLocalConfFile();
    two.store.set("a", 20);
    two.setTime("a", start + theirs);
    QVERIFY(two.save());
    one.store.set("a", 10);
    one.setTime("a", start + ours);
    QVERIFY(one.save());
    QCOMPARE(one.a, value);
    QCOMPARE(one.store.mConfMetas["a"].lastChangeTime.toSecsSinceEpoch(), start + seconds);
    two.store.loadLocalConfFile();
    QCOMPARE(two.a, value);
    QCOMPARE(two.store.mConfMetas["a"].lastChangeTime.toSecsSinceEpoch(), start + seconds);
}

void tst_SharedFile::touchedEntryAndALoadOfTheFile()
{
    QFETCH(int, ours);
    QFETCH(int, theirs);
    QFETCH(int, value);

    const qint64 start = now();
    Program one(mPath);
    Program two(mPath);
    one.store.loadLocalConfFile();
    two.store.set("a", 20);
    two.setTime("a", start + theirs);
    QVERIFY(two.save());
    one.store.set("a", 10);
    one.setTime("a", start + ours);
    one.store.loadLocalConfFile();
    QCOMPARE(one.a, value);
    QCOMPARE(one.store.mChanged, value == 10);
}

void tst_SharedFile::ownChangesOfOneSecondAreStampedInOrder()
{
    Program one(mPath);
    Program two(mPath);
    two.store.loadLocalConfFile();
    for (int i = 0; i < 3; ++i) {
        one.store.set("a", i);
        one.setTime("a", 1000000);
        QVERIFY(one.save());
        QCOMPARE(one.store.mConfMetas["a"].lastChangeTime.toSecsSinceEpoch(), 1000000 + i);
    }
    two.store.loadLocalConfFile();
    QCOMPARE(two.a, 2);
}

void tst_SharedFile::entryOfOthersWinsATie()
{
    writeFile(mPath, R"({"a":{"t":5,"v":9},"list.x":{"t":5,"v":9},"z":{"t":5,"v":9}})");
    Program program(mPath);
    program.store.mFileOptions |= ConfStorage::ResolveTies | ConfStorage::KeepUnknownEntries;
    program.store.loadLocalConfFile();
    const QByteArray text = R"({"a":{"t":5,"v":3},"list.x":{"t":5,"v":3},"z":{"t":5,"v":3}})";
    writeFile(mPath, text); // by an editor
    program.store.loadLocalConfFile();
    QCOMPARE(program.a, 3);
    QCOMPARE(*program.entries.at("list.x"), 3);
    int z = 1;
    program.store.reserveConf("z", &z);
    QCOMPARE(z, 3);
    QVERIFY(program.save());
    QCOMPARE(contentOf(mPath), text);
}

void tst_SharedFile::entriesCreatedAndRemovedByOthersFollow()
{
    Program one(mPath);
    Program two(mPath);
    one.store.createDynamicConf("list.x", 5, nullptr);
    one.store.createDynamicConf("list.y", 6, nullptr);
    QVERIFY(one.save());
    two.store.loadLocalConfFile();
    QCOMPARE(*two.entries.at("list.x"), 5);
    two.store.removeDynamicConf("list.x");
    two.store.set("list.y", 7);
    QVERIFY(two.save());
    one.store.loadLocalConfFile();
    QVERIFY(!one.entries.count("list.x"));
    QCOMPARE(*one.entries.at("list.y"), 7);
    one.store.createDynamicConf("list.x", 8, nullptr);
    QVERIFY(one.save());
    two.store.loadLocalConfFile();
    QCOMPARE(*two.entries.at("list.x"), 8);
}

void tst_SharedFile::removalWinsOverAnOlderChange()
{
    Program one(mPath);
    Program two(mPath);
    one.store.createDynamicConf("list.x", 5, nullptr);
    one.setTime("list.x", 1000);
    QVERIFY(one.save());
    two.store.loadLocalConfFile();
    one.store.set("list.x", 6);
    one.setTime("list.x", 2000);
    two.store.removeDynamicConf("list.x");
    QVERIFY(two.save());
    QVERIFY(one.save());
    QVERIFY(!one.entries.count("list.x"));
    QCOMPARE(one.store.mRemovedDynamicConfs["list.x"].toSecsSinceEpoch(),
             two.store.mRemovedDynamicConfs["list.x"].toSecsSinceEpoch());
}

void tst_SharedFile::presetsAreNoChanges()
{
    Program one(mPath);
    Program two(mPath);
    Program late(mPath);
    one.store.mPresetDynamicConfs["list.p"] = 5;
    two.store.mPresetDynamicConfs["list.p"] = 5;
    one.store.loadLocalConfFile();
    two.store.loadLocalConfFile();
    late.store.loadLocalConfFile();
    QCOMPARE(*one.entries.at("list.p"), 5);
    QVERIFY(!one.store.mChanged);
    late.store.mPresetDynamicConfs["list.p"] = 5; // of a plug-in
    late.store.loadPresetDynamicConf();
    two.store.set("list.p", 6);
    QVERIFY(two.save());
    one.store.loadLocalConfFile();
    QCOMPARE(*one.entries.at("list.p"), 6);
    late.store.loadLocalConfFile();
    QCOMPARE(*late.entries.at("list.p"), 6);
}

void tst_SharedFile::callbacksAreCalledOnlyForRealChanges()
{
    writeFile(mPath, R"({"a":{"t":5,"v":3},"b":{"t":5,"v":3},"text":{"t":5,"v":"x"}})");
    Program program(mPath);
    program.store.loadLocalConfFile();
    program.calls.clear();
    writeFile(mPath, R"({"a":{"t":6,"v":3},"b":{"t":5,"v":4},"text":{"t":5,"v":"x"}})");
    program.store.loadLocalConfFile();
    QCOMPARE(program.calls, QStringList("b"));
    QCOMPARE(program.store.mConfMetas["a"].lastChangeTime.toSecsSinceEpoch(), 6);
}

void tst_SharedFile::observerMayRemoveKeysWhoseTimestampsChange()
{
    writeFile(mPath, R"({"a":{"t":5,"v":3},"b":{"t":5,"v":4}})");
    Program program(mPath);
    program.store.loadLocalConfFile();
    writeFile(mPath, R"({"a":{"t":6,"v":3},"b":{"t":6,"v":5}})");
    int events = 0;
    program.store.addObserver([&](const ConfChange &) {
        ++events;
        program.store.mConfValues.clear();
        program.store.mConfMetas.clear();
    });
    program.store.loadLocalConfFile();
    QCOMPARE(events, 1);
    QCOMPARE(program.b, 4);
}

void tst_SharedFile::callbacksRunWithoutTheLock()
{
    Program one(mPath);
    Program two(mPath);
    one.store.set("a", 10);
    QVERIFY(one.save());
    bool isFree = false;
    two.store.setConfChangedCallback("a", [&](const QString &, const ConfValue *) {
        QLockFile lock(mPath + ".lock");
        isFree = lock.tryLock(0);
    });
    two.store.set("b", 20);
    QVERIFY(two.save());
    QVERIFY(isFree);
}

void tst_SharedFile::changesOfCallbacksAreSavedNext()
{
    Program one(mPath);
    Program two(mPath);
    two.store.loadLocalConfFile();
    two.store.setConfChangedCallback(
        "a", [&](const QString &, const ConfValue *) { two.store.set("b", two.a + 1); });
    one.store.set("a", 10);
    QVERIFY(one.save());
    two.store.set("text", QString("x"));
    QVERIFY(!two.save());
    QCOMPARE(two.b, 11);
    QVERIFY(two.save());
    one.store.loadLocalConfFile();
    QCOMPARE(one.b, 11);
}

void tst_SharedFile::changesThatHostCodeImportsDuringALoadAreSaved_data()
{
    QTest::addColumn<QString>("caller");
    for (const char *caller : {"callback", "observer", "creator", "remover"})
        QTest::newRow(caller) << QString(caller);
}

void tst_SharedFile::changesThatHostCodeImportsDuringALoadAreSaved()
{
    QFETCH(QString, caller);
    writeFile(mPath, R"({"a":{"t":5,"v":3},"b":{"t":5,"v":4},"list.x":{"t":5,"v":5}})");
    Program program(mPath);
    program.store.loadLocalConfFile();
    writeFile(mPath, R"({"a":{"t":6,"v":4},"b":{"t":5,"v":4},"list.x":{"d":6},)"
                     R"("list.y":{"t":6,"v":5}})");
    bool isImported = false;
    const auto import = [&] {
        if (!std::exchange(isImported, true))
            program.store.loadConf({{"b", QJsonObject{{"t", 7}, {"v", 10}}}},
                                   ConfStorage::LoadShared);
    };
    if (caller == "callback")
        program.store.setConfChangedCallback("a",
                                             [&](const QString &, const ConfValue *) { import(); });
    if (caller == "observer")
        program.store.addObserver([&](const ConfChange &) { import(); });
    const auto creator = program.list.creator;
    program.list.creator = [&](const QString &key, const QJsonValue *value) {
        creator(key, value);
        if (caller == "creator")
            import();
    };
    program.list.remover = [&](const QString &) {
        if (caller == "remover")
            import();
    };
    program.store.loadLocalConfFile();
    QVERIFY(isImported);
    QVERIFY(program.store.mChanged);
    QVERIFY(program.save());
    QVERIFY(contentOf(mPath).contains(R"("b":{"t":7,"v":10})"));
}

void tst_SharedFile::importedChangesAreSaved()
{
    Program one(mPath);
    one.store.loadLocalConfFile();
    one.store.loadConf(QJsonObject{{"a", QJsonObject{{"t", now() - 5}, {"v", 10}}}},
                       ConfStorage::LoadShared);
    QVERIFY(one.save());
    Program two(mPath);
    two.store.loadLocalConfFile();
    QCOMPARE(two.a, 10);
}

void tst_SharedFile::changesImportedBeforeTheFirstLoadAreSaved()
{
    Program one(mPath);
    one.store.loadConf(QJsonObject{{"a", QJsonObject{{"t", now() - 5}, {"v", 10}}}},
                       ConfStorage::LoadShared);
    QVERIFY(one.save());
    QVERIFY(contentOf(mPath).contains(R"("v":10)"));
}

void tst_SharedFile::changesBeforeTheLoadAreKept()
{
    writeFile(mPath, R"({"a":{"t":5,"v":3},"b":{"t":5,"v":4}})");
    Program program(mPath);
    program.store.set("a", 10);
    program.store.loadLocalConfFile();
    QCOMPARE(program.a, 10);
    QCOMPARE(program.b, 4);
    QVERIFY(program.store.mChanged);
    QVERIFY(program.save());
    QVERIFY(contentOf(mPath).contains(R"("v":10)"));
}

void tst_SharedFile::loadDoesNotForgetChanges()
{
    Program program(mPath);
    program.store.loadLocalConfFile();
    QVERIFY(!program.store.mChanged);
    program.store.set("a", 10);
    program.store.loadLocalConfFile();
    QVERIFY(program.store.mChanged);
    QVERIFY(program.save());
    QVERIFY(contentOf(mPath).contains(R"("v":10)"));
}

void tst_SharedFile::saveWithoutALoadMerges()
{
    writeFile(mPath, R"({"a":{"t":5,"v":3},"b":{"t":5,"v":4}})");
    Program program(mPath);
    program.store.set("a", 10);
    QVERIFY(program.save());
    QCOMPARE(program.b, 4);
    QVERIFY(contentOf(mPath).contains(R"("b":{"t":5,"v":4})"));
}

void tst_SharedFile::importedUnknownEntryIsSaved_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<int>("seconds"); // of the import
    QTest::addColumn<int>("saved");   // seconds in the file afterwards
    QTest::newRow("new entry") << QByteArray("{}") << 100 << 100;
    QTest::newRow("newer entry") << QByteArray(R"({"z":{"t":99,"v":1}})") << 100 << 100;
    QTest::newRow("tie") << QByteArray(R"({"z":{"t":100,"v":1}})") << 100 << 101;
}

void tst_SharedFile::importedUnknownEntryIsSaved()
{
    QFETCH(QByteArray, file);
    QFETCH(int, seconds);
    QFETCH(int, saved);
    writeFile(mPath, file);
    Program program(mPath);
    program.store.mFileOptions |= ConfStorage::ResolveTies | ConfStorage::KeepUnknownEntries;
    program.store.loadLocalConfFile();
    program.store.loadConf({{"z", QJsonObject{{"t", seconds}, {"v", 2}}}}, ConfStorage::LoadShared);
    writeFile(mPath, file + ' '); // by another program
    program.store.loadLocalConfFile();
    QVERIFY(program.store.mChanged);
    QVERIFY(program.save());
    QCOMPARE(QJsonDocument::fromJson(contentOf(mPath)).object().value("z").toObject(),
             (QJsonObject{{"t", saved}, {"v", 2}}));
    int z = 1;
    program.store.reserveConf("z", &z);
    QCOMPARE(z, 2);
}

void tst_SharedFile::changeBeforeAReleaseIsSaved()
{
    Program one(mPath);
    one.store.loadLocalConfFile();
    for (const int value : {8, 9}) { // in one second
        one.store.set("a", value);
        one.setTime("a", 1000000);
        if (value == 8)
            QVERIFY(one.save());
    }
    one.store.releaseConf("a");
    QVERIFY(one.save());
    Program two(mPath);
    two.store.loadLocalConfFile();
    QCOMPARE(two.a, 9);
    one.store.reserveConf("a", &one.a);
    QCOMPARE(one.a, 9);
    QCOMPARE(one.store.mConfMetas["a"].lastChangeTime, two.store.mConfMetas["a"].lastChangeTime);
}

void tst_SharedFile::entryThatIsReservedLateIsNotWrittenOverTheFile_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("setting") << QByteArray("late");
    QTest::newRow("dynamic entry") << QByteArray("late.x");
}

void tst_SharedFile::entryThatIsReservedLateIsNotWrittenOverTheFile()
{
    QFETCH(QByteArray, name);
    writeFile(mPath, "{\"" + name + R"(":{"t":5,"v":3}})");
    Program program(mPath);
    program.store.mFileOptions |= ConfStorage::KeepUnknownEntries;
    program.store.loadLocalConfFile();
    writeFile(mPath, "{\"" + name + R"(":{"t":5,"v":4}})"); // in the same second
    int late = 1;
    ConfStorage::DynamicConfClass cls = program.list;
    if (name.contains('.')) {
        cls.prefix = "late.";
        program.store.mDynamicConfClasses.append(&cls);
        program.store.loadPresetDynamicConf();
        QCOMPARE(*program.entries.at(name), 3);
    } else {
        program.store.reserveConf(name, &late);
        QCOMPARE(late, 3);
    }
    program.store.set("b", 10);
    QVERIFY(program.save());
    QCOMPARE(program.store.get<int>(name), 4);
    QCOMPARE(QJsonDocument::fromJson(contentOf(mPath)).object().value(name).toObject(),
             (QJsonObject{{"t", 5}, {"v", 4}}));
}

void tst_SharedFile::lockedKeyIsNotWrittenOverTheFile()
{
    writeFile(mPath, R"({"a":{"t":5,"v":3}})");
    Program program(mPath);
    program.store.loadLocalConfFile();
    writeFile(mPath, R"({"a":{"t":5,"v":4}})"); // in the same second
    program.store.lockConf("a", 9);
    program.store.set("b", 10);
    QVERIFY(program.save());
    QVERIFY(contentOf(mPath).startsWith(R"({"a":{"t":5,"v":4})"));
    QCOMPARE(program.a, 9);
}

void tst_SharedFile::vanishedEntryIsWrittenAgain()
{
    Program program(mPath);
    program.store.set("a", 10);
    QVERIFY(program.save());
    QVERIFY(QFile::remove(mPath));
    program.store.set("b", 20);
    QVERIFY(program.save());
    const QJsonObject saved = QJsonDocument::fromJson(contentOf(mPath)).object();
    QCOMPARE(saved.keys(), (QStringList{"a", "b"}));
    QCOMPARE(program.a, 10);
}

void tst_SharedFile::entryOfANewFileReplacesThatOfADeletedOne()
{
    writeFile(mPath, R"({"a":{"t":5,"v":10}})");
    Program program(mPath);
    program.store.loadLocalConfFile();
    QVERIFY(QFile::remove(mPath));
    program.store.loadLocalConfFile();
    QCOMPARE(program.a, 10);
    writeFile(mPath, R"({"a":{"t":4,"v":11}})");
    program.store.loadLocalConfFile();
    QCOMPARE(program.a, 11);
}

void tst_SharedFile::failedSaveIsNotAcknowledged()
{
    Program program(mPath);
    program.store.set("a", 10);
    QVERIFY(program.save());
    QVERIFY(QFile::remove(mPath));
    program.store.mMaxFileSize = 5;
    program.store.mChanged = true;
    const LogCapture log;
    QVERIFY(!program.save());
    const QString message = "ConfStorage::saveToLocalConfFile() content could not be read back:  ";
    QCOMPARE(log.texts(QtCriticalMsg), QStringList(message + "\"" + mPath + "\""));
}

void tst_SharedFile::anotherFileGetsEverything()
{
    Program program(mPath);
    program.store.set("a", 10);
    QVERIFY(program.save());
    program.store.mLocalSaveFile = mFolder->filePath("other.json");
    program.store.mChanged = true;
    QVERIFY(program.save());
    QCOMPARE(contentOf(program.store.mLocalSaveFile), contentOf(mPath));
}

void tst_SharedFile::callbackMaySaveAgain()
{
    Program one(mPath);
    Program two(mPath);
    one.store.set("a", 10);
    one.store.set("text", QString("y"));
    QVERIFY(one.save());
    two.store.setConfChangedCallback("a", [&](const QString &, const ConfValue *) {
        two.store.set("b", 11);
        two.store.saveToLocalConfFile();
    });
    two.store.loadLocalConfFile();
    QCOMPARE(two.text, QString("y"));
    QVERIFY(!two.store.mChanged);
    one.store.loadLocalConfFile();
    QCOMPARE(one.b, 11);
}

void tst_SharedFile::callbackMayClearTheStore()
{
    Program one(mPath);
    Program two(mPath);
    one.store.set("a", 10);
    one.store.set("b", 20);
    QVERIFY(one.save());
    two.store.setConfChangedCallback(
        "a", [&](const QString &, const ConfValue *) { two.store.clear(); });
    two.store.loadLocalConfFile();
    QVERIFY(two.store.mConfValues.isEmpty());
    QCOMPARE(two.b, 2);
    const int observer = two.store.addObserver(nullptr);
    two.store.removeObserver(observer);
}

void tst_SharedFile::lockOfARunningProgramDelaysSavesAndLoads()
{
    // The lock is beside the file that a link leads to.
    QVERIFY(QDir(mFolder->path()).mkdir("target"));
    const QString target = mFolder->filePath("target/settings.json");
    QVERIFY(QFile::link(target, mPath));
    Program one(mPath);
    Program two(target);
    two.store.set("a", 10);
    QVERIFY(two.save());
    QLockFile lock(target + ".lock");
    lock.setStaleLockTime(0);
    QVERIFY(lock.tryLock(0));
    one.store.set("b", 20);
    const LogCapture log;
    QVERIFY(!one.save());
    QCOMPARE(
        log.texts(QtCriticalMsg),
        QStringList("ConfStorage::saveToLocalConfFile() file is locked:  \"" + target + ".lock\""));
    one.store.loadLocalConfFile();
    QCOMPARE(log.texts(QtCriticalMsg).last(),
             QString("ConfStorage::loadLocalConfFile() file is locked:  \"" + target + ".lock\""));
    QCOMPARE(one.a, 1);
    QVERIFY(lock.isLocked());
    lock.unlock();
    QVERIFY(one.save());
    QCOMPARE(one.a, 10);
}

void tst_SharedFile::lockWithoutContentIsTakenOver()
{
    writeFile(mPath + ".lock", QByteArray());
    Program program(mPath);
    program.store.set("a", 10);
    QVERIFY(program.save());
    QVERIFY(!QFile::exists(mPath + ".lock"));
}

void tst_SharedFile::lockOfADeadProgramIsTakenOver()
{
    const qint64 unused = 4194303; // above the largest process id that Linux assigns by default
    writeFile(mPath + ".lock",
              QByteArray::number(unused) + "\nprogram\n" + QSysInfo::machineHostName().toUtf8()
                  + '\n' + QSysInfo::machineUniqueId() + '\n' + QSysInfo::bootUniqueId() + '\n');
    Program program(mPath);
    program.store.set("a", 10);
    QVERIFY(program.save());
    QVERIFY(!QFile::exists(mPath + ".lock"));
}

void tst_SharedFile::textThatIsNoObjectCountsAsEmpty_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("cut") << QByteArray(R"({"a":{"t":5,"v":3},"b":{"t")");
    QTest::newRow("cut in a string") << QByteArray(R"({"a":{"t":5,"v":"x)");
    QTest::newRow("ends with an escape") << QByteArray(R"({"a":{"t":5,"v":"x\)");
    QTest::newRow("array") << QByteArray("[1]");
    QTest::newRow("extra comma") << QByteArray(R"({"a":{"t":5,"v":3},})");
    QTest::newRow("comment") << QByteArray("// mine\n{}");
    QTest::newRow("page") << QByteArray("<html><body>{}</body></html>");
    QTest::newRow("no value") << QByteArray(R"({"a":})");
    QTest::newRow("value that is not JSON") << QByteArray(R"({"a":{"t":5,"v":x}})");
    QTest::newRow("unknown entry that is not JSON") << QByteArray(R"({"z":{"t":5,"v":x}})");
    QTest::newRow("more text") << QByteArray(R"({"a":{"t":5,"v":3}} x)");
}

void tst_SharedFile::textThatIsNoObjectCountsAsEmpty()
{
    QFETCH(QByteArray, text);
    Program program(mPath);
    program.store.set("b", 20);
    QVERIFY(program.save());
    writeFile(mPath, text);
    program.store.loadLocalConfFile();
    QCOMPARE(program.a, 1);
    QCOMPARE(program.b, 20);
    program.store.set("a", 10);
    QVERIFY(program.save());
    const QJsonObject saved = QJsonDocument::fromJson(contentOf(mPath)).object();
    QCOMPARE(saved.keys(), (QStringList{"a", "b"}));
}

void tst_SharedFile::textThatWasNeverAnObjectIsReplaced()
{
    writeFile(mPath, R"({"b":{"t":5,"v":3},"z":x})");
    Program program(mPath);
    program.store.loadLocalConfFile();
    QCOMPARE(program.b, 2);
    program.store.set("a", 10);
    QVERIFY(program.save());
    const QJsonObject saved = QJsonDocument::fromJson(contentOf(mPath)).object();
    QCOMPARE(saved.keys(), QStringList("a"));
}

void tst_SharedFile::repairedTextIsLoadedWhole()
{
    writeFile(mPath, R"({"b":{"t":5,"v":3},"z":x})");
    Program program(mPath);
    program.store.loadLocalConfFile();
    writeFile(mPath, R"({"b":{"t":5,"v":3},"z":1})");
    program.store.loadLocalConfFile();
    QCOMPARE(program.b, 3);
}

int main(int argc, char **argv)
{
    return runTest<tst_SharedFile>(argc, argv);
}

#include "tst_SharedFile.moc"
