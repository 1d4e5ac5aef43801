#include "support/LogCapture.h"
#include "support/SavedFile.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/store/ConfChange.h>
#include <MaltoConfiguration/store/ConfStorage.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QVector>

#include <functional>
#include <map>

Q_DECLARE_METATYPE(std::function<void(ConfStorage *)>)

namespace {

/// A store with one setting, "number", that keeps unknown entries.
class Host
{
public:
    explicit Host(quint32 options = ConfStorage::KeepUnknownEntries)
    {
        store.mFileOptions = options;
        store.mLocalSaveFile = sPath;
        store.reserveConf("number", &number);
    }
    Q_DISABLE_COPY(Host)

    QByteArray save()
    {
        store.mChanged = true;
        store.saveToLocalConfFile();
        return savedText();
    }
    bool load(const QByteArray &json, ConfStorage::LoadConfType type = ConfStorage::LoadShared)
    {
        return store.loadConf(QString::fromUtf8(json), type);
    }
    qint64 time(const QString &key) const
    {
        return store.mConfMetas.value(key).lastChangeTime.toSecsSinceEpoch();
    }

    int number = 1;
    ConfStorage store;
};

} // namespace

/// The entries of a file whose keys are not declared, with `ConfStorage::KeepUnknownEntries`.
class tst_KeptEntries : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QFile::remove(sPath); }

    void unknownEntryIsDroppedByDefault();
    void unknownEntryIsWrittenBackAsItWas_data();
    void unknownEntryIsWrittenBackAsItWas();
    void newerUnknownEntryWins_data();
    void newerUnknownEntryWins();
    void tiesOfUnknownEntriesAreResolvedWithTheOption_data();
    void tiesOfUnknownEntriesAreResolvedWithTheOption();
    void unknownEntryOfADumpIsSaved();
    void unknownEntryIsInLocalDumpsOnly();
    void valueWithoutTimestampGetsTheCurrentTime();
    void reservedKeyGetsItsEntryWithoutACallback_data();
    void reservedKeyGetsItsEntryWithoutACallback();
    void reservedKeyIsAnEventOfALoad();
    void reservedKeyIgnoresARemoval();
    void reservedKeyWithAnEntryOfAnotherTypeKeepsTheEntry_data();
    void reservedKeyWithAnEntryOfAnotherTypeKeepsTheEntry();
    void reservedKeyOfASystemIndependentSettingGetsTheNewestEntry_data();
    void reservedKeyOfASystemIndependentSettingGetsTheNewestEntry();
    void releasedKeyIsKeptAndReservedAgain_data();
    void releasedKeyIsKeptAndReservedAgain();
    void releasedKeyIsForgottenByDefault();
    void releasedKeyThatNeverChangedIsNotKept();
    void changeBeforeAReleaseWinsATie();
    void newerEntryOfADumpWinsAfterARelease();
    void changeOfAReservedKeyWinsAgainstItsKeptEntry();
    void classThatIsDeclaredLaterGetsItsEntries_data();
    void classThatIsDeclaredLaterGetsItsEntries();
    void createdKeyIsNotOverwrittenByItsKeptEntry();
    void entriesThatTheCreatorDoesNotAcceptAreKept();
    void entryThatTheCreatorDoesNotAcceptIsOfferedOnce();
    void entriesThatCreateNothingAreKept_data();
    void entriesThatCreateNothingAreKept();
    void entryThatIsNotAcceptedLaterKeepsItsName_data();
    void entryThatIsNotAcceptedLaterKeepsItsName();
    void keptDefaultIsThatOfALaterPreset();
    void futureTimestampOfAnUnknownKeyIsRefusedByASharedLoad();
    void dumpsCannotAddMoreThanHalfOfTheFile();
    void sizeOfKeptEntriesIsThatInTheFile_data();
    void sizeOfKeptEntriesIsThatInTheFile();
    void keysOfDumpsAreLimited();
    void largeUnknownEntryOfTheLocalFileIsKept();
    void debugTableShowsKeptEntries();
    void clearForgetsKeptEntries();
};

void tst_KeptEntries::unknownEntryIsDroppedByDefault()
{
    write(R"({"a":{"t":100,"v":1},"number":{"t":100,"v":2},"number#s.win":{"t":100,"v":2}})");
    Host host(0);
    host.store.loadLocalConfFile();
    QCOMPARE(host.save(), QByteArray(R"({"number":{"t":100,"v":2}})"));
}

void tst_KeptEntries::unknownEntryIsWrittenBackAsItWas_data()
{
    QTest::addColumn<QByteArray>("member");
    QTest::newRow("value") << QByteArray(R"("a":{"t":100,"v":[1,{"x":null}]})");
    QTest::newRow("default value") << QByteArray(R"("a":{"t":100})");
    QTest::newRow("null") << QByteArray(R"("a":{"t":100,"v":null})");
    QTest::newRow("removal") << QByteArray(R"("a":{"d":100})");
    QTest::newRow("sorted behind the setting") << QByteArray(R"("z":{"t":100,"v":1})");
    QTest::newRow("system mark") << QByteArray(R"("a#s.mac":{"t":100,"v":1})");
    QTest::newRow("mark of another system") << QByteArray(R"("number#s.win":{"t":100,"v":1})");
    QTest::newRow("timestamp after 2038") << QByteArray(R"("a":{"t":5000000000,"v":1})");
    QTest::newRow("timestamp of another form") << QByteArray(R"("a":{"t":"now","v":1})");
    QTest::newRow("timestamp zero") << QByteArray(R"("a":{"t":0,"v":1})");
    QTest::newRow("further members") << QByteArray(R"("a":{"by":"me","t":100,"v":1})");
    QTest::newRow("nothing") << QByteArray(R"("a":{})");
    QTest::newRow("not an entry") << QByteArray(R"("a":[5,"text"])");
    QTest::newRow("name beyond ASCII") << QByteArray("\"\xc3\xa4\":{\"t\":100,\"v\":\"\xc3\xa4\"}");
    QTest::newRow("largest exact number") << QByteArray(R"("a":{"t":100,"v":9007199254740991})");
    QTest::newRow("fraction") << QByteArray(R"("a":{"t":100,"v":0.1})");
}

void tst_KeptEntries::unknownEntryIsWrittenBackAsItWas()
{
    QFETCH(QByteArray, member);
    const QByteArray setting = R"("number":{"t":100,"v":2})";
    const bool isBefore = member < setting;
    const QByteArray text = '{' + (isBefore ? member + ',' + setting : setting + ',' + member)
                            + '}';
    write(text);
    {
        Host host;
        host.store.loadLocalConfFile();
        QVERIFY(!host.store.mChanged);
        QCOMPARE(host.save(), text);
        host.store.loadLocalConfFile();
        QCOMPARE(host.save(), text);
    }
    QFile::remove(sPath);
    Host other;
    other.load(text, ConfStorage::LoadShared);
    QVERIFY(other.store.mChanged);
    QCOMPARE(other.save(), text);
}

void tst_KeptEntries::newerUnknownEntryWins_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QByteArray>("incoming");
    QTest::addColumn<QByteArray>("result");
    const QByteArray old = R"({"a":{"t":100,"v":1}})";
    QTest::newRow("newer") << old << QByteArray(R"({"a":{"t":101,"v":2}})")
                           << QByteArray(R"({"a":{"t":101,"v":2}})");
    QTest::newRow("older") << old << QByteArray(R"({"a":{"t":99,"v":2}})") << old;
    QTest::newRow("tie") << old << QByteArray(R"({"a":{"t":100,"v":2}})") << old;
    QTest::newRow("newer removal")
        << old << QByteArray(R"({"a":{"d":101}})") << QByteArray(R"({"a":{"d":101}})");
    QTest::newRow("older than a removal")
        << QByteArray(R"({"a":{"d":101}})") << old << QByteArray(R"({"a":{"d":101}})");
    QTest::newRow("beyond 32 bits") << QByteArray(R"({"a":{"t":5000000000,"v":1}})")
                                    << QByteArray(R"({"a":{"t":5000000001,"v":2}})")
                                    << QByteArray(R"({"a":{"t":5000000001,"v":2}})");
    QTest::newRow("no entry") << old << QByteArray(R"({"a":5})") << old;
    QTest::newRow("empty entry") << old << QByteArray(R"({"a":{}})") << old;
    QTest::newRow("instead of no entry") << QByteArray(R"({"a":5})") << old << old;
}

void tst_KeptEntries::newerUnknownEntryWins()
{
    QFETCH(QByteArray, stored);
    QFETCH(QByteArray, incoming);
    QFETCH(QByteArray, result);
    write(stored);
    Host host;
    host.store.loadLocalConfFile();
    host.load(incoming);
    QCOMPARE(host.store.mChanged, result != stored);
    QCOMPARE(host.save(), result);
}

void tst_KeptEntries::tiesOfUnknownEntriesAreResolvedWithTheOption_data()
{
    QTest::addColumn<QByteArray>("loser");
    QTest::addColumn<QByteArray>("winner");
    const QByteArray value = R"({"a":{"t":100,"v":1}})";
    QTest::newRow("greater text") << value << QByteArray(R"({"a":{"t":100,"v":2}})");
    QTest::newRow("removal") << value << QByteArray(R"({"a":{"d":100}})");
    QTest::newRow("value against default") << QByteArray(R"({"a":{"t":100}})") << value;
    QTest::newRow("value against null") << QByteArray(R"({"a":{"t":100,"v":null}})") << value;
}

void tst_KeptEntries::tiesOfUnknownEntriesAreResolvedWithTheOption()
{
    QFETCH(QByteArray, loser);
    QFETCH(QByteArray, winner);
    const quint32 options = ConfStorage::KeepUnknownEntries | ConfStorage::ResolveTies;
    Host first(options);
    first.load(loser);
    first.load(winner);
    QCOMPARE(first.save(), winner);
    Host second(options);
    second.load(winner);
    second.load(loser);
    QCOMPARE(second.save(), winner);
}

void tst_KeptEntries::unknownEntryOfADumpIsSaved()
{
    Host host;
    host.store.loadSingleConf("a", QJsonObject{{"t", 100}, {"v", 5}}, ConfStorage::LoadShared);
    QVERIFY(host.store.mChanged);
    host.store.loadConf(QJsonObject{{"b", QJsonObject{{"t", 100}, {"v", 6}}}},
                        ConfStorage::LoadLocal);
    host.store.saveToLocalConfFile();
    QCOMPARE(savedText(), QByteArray(R"({"a":{"t":100,"v":5},"b":{"t":100,"v":6}})"));
}

void tst_KeptEntries::unknownEntryIsInLocalDumpsOnly()
{
    Host host;
    host.load(R"({"a":{"t":100,"v":5}})");
    QCOMPARE(compact(host.store.dumpConf(ConfStorage::DumpLocal)),
             QByteArray(R"({"a":{"t":100,"v":5}})"));
    QCOMPARE(compact(host.store.dumpConf(ConfStorage::DumpShared)), QByteArray("{}"));
    QCOMPARE(compact(host.store.dumpConf(ConfStorage::DumpChangedOnly)), QByteArray("{}"));
}

void tst_KeptEntries::valueWithoutTimestampGetsTheCurrentTime()
{
    Host host;
    const qint64 before = QDateTime::currentSecsSinceEpoch();
    host.load(R"({"a":{"v":5}})");
    const QJsonObject entry = host.store.dumpConf(ConfStorage::DumpLocal).value("a").toObject();
    QCOMPARE(entry.value("v").toInt(), 5);
    QVERIFY(entry.value("t").toDouble() >= double(before));
    QVERIFY(entry.value("t").toDouble() <= double(QDateTime::currentSecsSinceEpoch()));

    host.load(R"({"b":{"t":253370764800,"v":5}})");
    host.load(R"({"b":{"v":6}})");
    const QJsonObject later = host.store.dumpConf(ConfStorage::DumpLocal).value("b").toObject();
    QCOMPARE(later.value("v").toInt(), 6);
}

void tst_KeptEntries::reservedKeyGetsItsEntryWithoutACallback_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("isDefault");
    QTest::newRow("value") << QByteArray(R"({"t":100,"v":5})") << 5 << false;
    QTest::newRow("default value") << QByteArray(R"({"t":100})") << 7 << true;
}

void tst_KeptEntries::reservedKeyGetsItsEntryWithoutACallback()
{
    QFETCH(QByteArray, entry);
    QFETCH(int, value);
    QFETCH(bool, isDefault);
    const QByteArray text = "{\"a\":" + entry + '}';
    write(text);
    Host host;
    host.store.loadLocalConfFile();
    int variable = 7;
    host.store.reserveConf("a", &variable);
    bool isCalled = false;
    host.store.setConfChangedCallback("a",
                                      [&](const QString &, const ConfValue *) { isCalled = true; });
    QCOMPARE(variable, value);
    QCOMPARE(host.store.isEqualToDefault("a"), isDefault);
    QCOMPARE(host.time("a"), qint64(100));
    QCOMPARE(host.store.mConfMetas["a"].defaultValue.get<int>(), 7);
    QVERIFY(!isCalled);
    QVERIFY(!host.store.mChanged);
    QCOMPARE(host.save(), text);
    QCOMPARE(compact(host.store.dumpConf(ConfStorage::DumpShared)), text);
}

void tst_KeptEntries::reservedKeyIsAnEventOfALoad()
{
    Host host;
    host.load(R"({"a":{"t":100,"v":5}})");
    QVector<ConfChange> changes;
    host.store.addObserver([&](const ConfChange &change) { changes.append(change); });
    int variable = 7;
    host.store.reserveConf("a", &variable);
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes.first().key, QString("a"));
    QVERIFY(changes.first().cause == ConfChange::Cause::Loaded);
    QCOMPARE(changes.first().before.value, QJsonValue(7));
    QCOMPARE(changes.first().after.value, QJsonValue(5));
    QVERIFY(changes.first().before.isDefault);
    QVERIFY(!changes.first().after.isDefault);
    QCOMPARE(changes.first().time, QDateTime::fromSecsSinceEpoch(100, Qt::UTC));
    int other = 7;
    host.store.reserveConf("b", &other);
    QCOMPARE(changes.size(), 1);
}

void tst_KeptEntries::reservedKeyIgnoresARemoval()
{
    Host host;
    host.load(R"({"a":{"d":100}})");
    int variable = 7;
    host.store.reserveConf("a", &variable);
    QCOMPARE(variable, 7);
    QCOMPARE(host.save(), QByteArray(R"({"a":{"d":100}})"));
}

void tst_KeptEntries::reservedKeyWithAnEntryOfAnotherTypeKeepsTheEntry_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("without a mark") << QByteArray("a");
    QTest::newRow("with the system mark") << QByteArray("a#s.mac");
}

void tst_KeptEntries::reservedKeyWithAnEntryOfAnotherTypeKeepsTheEntry()
{
    QFETCH(QByteArray, name);
    const QByteArray text = "{\"" + name + R"(":{"t":100,"v":"5"}})";
    Host host(ConfStorage::KeepUnknownEntries | ConfStorage::StrictTypes);
    host.load(text);
    int variable = 7;
    host.store.reserveConf("a", &variable);
    QCOMPARE(variable, 7);
    QVERIFY(host.store.isEqualToDefault("a"));
    QCOMPARE(host.save(), text);
    QString other;
    host.store.reserveConf("a", &other);
    QCOMPARE(other, QString("5"));
    QCOMPARE(host.save(), QByteArray(R"({"a":{"t":100,"v":"5"}})"));
}

void tst_KeptEntries::reservedKeyOfASystemIndependentSettingGetsTheNewestEntry_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<int>("value");
    QTest::newRow("with the mark") << QByteArray(R"({"a#s.mac":{"t":100,"v":2}})") << 2;
    QTest::newRow("without") << QByteArray(R"({"a":{"t":100,"v":1}})") << 1;
    QTest::newRow("mark is newer")
        << QByteArray(R"({"a":{"t":100,"v":1},"a#s.mac":{"t":101,"v":2}})") << 2;
    QTest::newRow("mark is older")
        << QByteArray(R"({"a":{"t":100,"v":1},"a#s.mac":{"t":99,"v":2}})") << 1;
    QTest::newRow("another system is newer")
        << QByteArray(R"({"a":{"t":100,"v":1},"a#s.win":{"t":999,"v":2}})") << 1;
}

void tst_KeptEntries::reservedKeyOfASystemIndependentSettingGetsTheNewestEntry()
{
    QFETCH(QByteArray, file);
    QFETCH(int, value);
    write(file);
    Host host;
    host.store.loadLocalConfFile();
    int variable = 7;
    host.store.reserveConf("a", &variable);
    host.store.mConfMetas["a"].flags |= ConfStorage::FlagSystemIndependent;
    QCOMPARE(variable, value);
    host.save();
    Host next;
    int nextVariable = 7;
    next.store.reserveConf("a", &nextVariable);
    next.store.loadLocalConfFile();
    QCOMPARE(nextVariable, value);
}

void tst_KeptEntries::releasedKeyIsKeptAndReservedAgain_data()
{
    QTest::addColumn<quint32>("option");
    QTest::addColumn<quint32>("flags");
    QTest::addColumn<QByteArray>("file");
    const quint32 kept = ConfStorage::KeepUnknownEntries;
    const quint32 shared = ConfStorage::SharedFile;
    QTest::newRow("value") << kept << 0U << QByteArray(R"({"number":{"t":100,"v":5}})");
    QTest::newRow("value of a shared file")
        << shared << 0U << QByteArray(R"({"number":{"t":100,"v":5}})");
    QTest::newRow("default value")
        << kept << quint32(ConfStorage::FlagIsDefault) << QByteArray(R"({"number":{"t":100}})");
    QTest::newRow("system-independent") << kept << quint32(ConfStorage::FlagSystemIndependent)
                                        << QByteArray(R"({"number#s.mac":{"t":100,"v":5}})");
    QTest::newRow("local-only") << kept << quint32(ConfStorage::FlagLocalOnly)
                                << QByteArray(R"({"number":{"t":100,"v":5}})");
}

void tst_KeptEntries::releasedKeyIsKeptAndReservedAgain()
{
    QFETCH(quint32, option);
    QFETCH(quint32, flags);
    QFETCH(QByteArray, file);
    Host host(option);
    host.store.set("number", 5);
    ConfStorage::ConfMeta &meta = host.store.mConfMetas["number"];
    meta.lastChangeTime = QDateTime::fromSecsSinceEpoch(100, Qt::UTC);
    meta.flags |= flags;
    host.store.releaseConf("number");
    QVERIFY(!host.store.mConfValues.contains("number"));
    QVERIFY(!host.store.mConfMetas.contains("number"));
    QVERIFY(host.store.mChanged);
    QCOMPARE(compact(host.store.dumpConf(ConfStorage::DumpLocal)), file);
    QCOMPARE(compact(host.store.dumpConf(ConfStorage::DumpShared)), QByteArray("{}"));

    int again = 1;
    host.store.reserveConf("number", &again);
    const bool isDefault = flags & ConfStorage::FlagIsDefault;
    QCOMPARE(again, isDefault ? 1 : 5);
    QCOMPARE(host.store.isEqualToDefault("number"), isDefault);
    QCOMPARE(host.time("number"), qint64(100));
}

void tst_KeptEntries::releasedKeyIsForgottenByDefault()
{
    Host host(0);
    host.store.set("number", 5);
    host.store.releaseConf("number");
    QCOMPARE(host.save(), QByteArray("{}"));
}

void tst_KeptEntries::releasedKeyThatNeverChangedIsNotKept()
{
    Host host;
    host.store.releaseConf("number");
    host.store.releaseConf("no such key");
    QCOMPARE(host.save(), QByteArray("{}"));
}

void tst_KeptEntries::changeBeforeAReleaseWinsATie()
{
    Host host;
    host.load(R"({"a":{"d":200}})");
    int variable = 1;
    host.store.reserveConf("a", &variable);
    host.store.set("a", 7);
    host.store.mConfMetas["a"].lastChangeTime = QDateTime::fromSecsSinceEpoch(200, Qt::UTC);
    host.store.releaseConf("a");
    QCOMPARE(host.save(), QByteArray(R"({"a":{"t":200,"v":7}})"));
}

void tst_KeptEntries::newerEntryOfADumpWinsAfterARelease()
{
    Host host;
    host.store.set("number", 5);
    host.store.mConfMetas["number"].lastChangeTime = QDateTime::fromSecsSinceEpoch(100, Qt::UTC);
    host.store.releaseConf("number");
    host.load(R"({"number":{"t":200,"v":6}})");
    int again = 1;
    host.store.reserveConf("number", &again);
    QCOMPARE(again, 6);
}

void tst_KeptEntries::changeOfAReservedKeyWinsAgainstItsKeptEntry()
{
    Host host;
    host.load(R"({"a":{"d":100}})");
    int variable = 7;
    host.store.reserveConf("a", &variable);
    host.store.set("a", 8);
    QDateTime &time = host.store.mConfMetas["a"].lastChangeTime;
    time = QDateTime::fromSecsSinceEpoch(100, Qt::UTC);
    QCOMPARE(host.save(), QByteArray(R"({"a":{"t":100,"v":8}})"));
    time = QDateTime::fromSecsSinceEpoch(99, Qt::UTC);
    QCOMPARE(host.save(), QByteArray(R"({"a":{"d":100}})"));
    host.store.releaseConf("a");
    QCOMPARE(host.save(), QByteArray(R"({"a":{"d":100}})"));
}

namespace {

/// A class of dynamic entries.
class Entries
{
public:
    explicit Entries(ConfStorage *store)
    {
        cls.prefix = "Entry.";
        cls.creator = [this, store](const QString &key, const QJsonValue *value) {
            QJsonObject &entry = values[key] = value->toObject();
            store->reserveConf(key, &entry);
        };
        cls.remover = [this](const QString &key) { values.erase(key); };
        store->mDynamicConfClasses.append(&cls);
    }
    Q_DISABLE_COPY(Entries)

    std::map<QString, QJsonObject> values;
    ConfStorage::DynamicConfClass cls;
};

} // namespace

void tst_KeptEntries::classThatIsDeclaredLaterGetsItsEntries_data()
{
    QTest::addColumn<std::function<void(ConfStorage *)>>("load");
    const auto row = [](const char *name, std::function<void(ConfStorage *)> load) {
        QTest::newRow(name) << load;
    };
    row("presets", [](ConfStorage *store) { store->loadPresetDynamicConf(); });
    row("local file", [](ConfStorage *store) { store->loadLocalConfFile(); });
    row("dump",
        [](ConfStorage *store) { store->loadConf(QJsonObject(), ConfStorage::LoadShared); });
    row("text of a dump", [](ConfStorage *store) {
        store->loadConf(R"({"number":{"t":1}})", ConfStorage::LoadShared);
    });
}

void tst_KeptEntries::classThatIsDeclaredLaterGetsItsEntries()
{
    QFETCH(std::function<void(ConfStorage *)>, load);
    const QByteArray text = R"({"Entry.1":{"t":100,"v":{"n":1}},"Entry.2":{"d":100},)"
                            R"("Entry.3#s.mac":{"t":100,"v":{"n":3}},"Entry.4":5})";
    write(text);
    Host host;
    host.store.loadLocalConfFile();
    QCOMPARE(host.save(), text);
    Entries entries(&host.store);
    load(&host.store);
    QCOMPARE(entries.values.size(), size_t(2));
    QCOMPARE(entries.values["Entry.1"], (QJsonObject{{"n", 1}}));
    QCOMPARE(entries.values["Entry.3"], (QJsonObject{{"n", 3}}));
    QCOMPARE(host.time("Entry.1"), qint64(100));
    QCOMPARE(host.store.mRemovedDynamicConfs.keys(), QStringList("Entry.2"));
    host.store.mConfMetas.remove("number");
    QCOMPARE(host.save(), QByteArray(text).replace("#s.mac", ""));
}

void tst_KeptEntries::createdKeyIsNotOverwrittenByItsKeptEntry()
{
    Host host;
    host.load(R"({"Entry.1":{"t":100,"v":{"n":1}}})");
    Entries entries(&host.store);
    host.store.createDynamicConf("Entry.1", QJsonObject{{"n", 2}}, nullptr);
    QCOMPARE(entries.values["Entry.1"], (QJsonObject{{"n", 2}}));
    host.store.loadPresetDynamicConf();
    QCOMPARE(entries.values["Entry.1"], (QJsonObject{{"n", 2}}));
    host.save();
    Host next;
    Entries nextEntries(&next.store);
    next.store.loadLocalConfFile();
    QCOMPARE(nextEntries.values["Entry.1"], (QJsonObject{{"n", 2}}));
}

void tst_KeptEntries::entriesThatTheCreatorDoesNotAcceptAreKept()
{
    const QByteArray text = R"({"Entry.1":{"t":100,"v":{"n":1}}})";
    Host host;
    host.load(text);
    Entries entries(&host.store);
    entries.cls.creator = nullptr;
    host.store.loadPresetDynamicConf();
    QCOMPARE(host.save(), text);
    host.store.loadLocalConfFile();
    QCOMPARE(host.save(), text);
}

void tst_KeptEntries::entryThatTheCreatorDoesNotAcceptIsOfferedOnce()
{
    Host host(ConfStorage::KeepUnknownEntries | ConfStorage::ResolveTies);
    host.load(R"({"Entry.1":{"t":100,"v":{"n":1}}})");
    Entries entries(&host.store);
    int calls = 0;
    entries.cls.creator = [&](const QString &, const QJsonValue *) { ++calls; };
    host.store.loadPresetDynamicConf();
    host.store.loadPresetDynamicConf();
    QCOMPARE(calls, 1);
}

void tst_KeptEntries::entriesThatCreateNothingAreKept_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<quint32>("flags");
    QTest::newRow("not accepted by the creator")
        << QByteArray("Entry.1") << QByteArray(R"({"t":100,"v":{"kind":"new"}})") << 0U;
    QTest::newRow("not accepted, of this system")
        << QByteArray("Entry.1#s.mac") << QByteArray(R"({"t":100,"v":{"kind":"new"}})")
        << quint32(ConfStorage::FlagSystemIndependent);
    QTest::newRow("default without a preset")
        << QByteArray("Entry.1") << QByteArray(R"({"t":100})") << 0U;
}

void tst_KeptEntries::entriesThatCreateNothingAreKept()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, entry);
    QFETCH(quint32, flags);
    const QByteArray text = "{\"" + name + "\":" + entry + '}';
    write(text);
    for (int start = 0; start < 2; ++start) {
        const LogCapture log;
        Host host;
        Entries entries(&host.store);
        entries.cls.flags = flags;
        const auto creator = entries.cls.creator;
        entries.cls.creator = [&](const QString &key, const QJsonValue *value) {
            if (value->toObject().value("kind") != QLatin1String("new"))
                creator(key, value);
        };
        host.store.loadLocalConfFile();
        QVERIFY(log.texts(QtCriticalMsg).isEmpty());
        QCOMPARE(host.save(), text);
        host.store.loadLocalConfFile();
        QCOMPARE(host.save(), text);
    }
    Host host;
    Entries entries(&host.store);
    entries.cls.flags = flags;
    entries.cls.creator = nullptr;
    host.store.loadLocalConfFile();
    Entries later(&host.store);
    host.store.mDynamicConfClasses = {&later.cls};
    later.cls.flags = flags;
    const QByteArray newer = "{\"" + name + R"(":{"t":101,"v":{"n":1}}})";
    host.load(newer);
    QCOMPARE(later.values["Entry.1"], (QJsonObject{{"n", 1}}));
    QCOMPARE(host.save(), newer);
}

void tst_KeptEntries::entryThatIsNotAcceptedLaterKeepsItsName_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::newRow("value") << QByteArray(R"({"t":100,"v":{"n":1}})");
    QTest::newRow("default without a preset") << QByteArray(R"({"t":100})");
}

void tst_KeptEntries::entryThatIsNotAcceptedLaterKeepsItsName()
{
    QFETCH(QByteArray, entry);
    const QByteArray text = "{\"Entry.1\":" + entry + '}';
    Host host;
    host.load(text);
    Entries entries(&host.store);
    entries.cls.flags = ConfStorage::FlagSystemIndependent;
    entries.cls.creator = nullptr;
    host.store.loadPresetDynamicConf();
    QCOMPARE(host.save(), text);
}

void tst_KeptEntries::keptDefaultIsThatOfALaterPreset()
{
    const QByteArray text = R"({"Entry.1":{"t":100}})";
    write(text);
    Host host;
    Entries entries(&host.store);
    host.store.loadLocalConfFile();
    host.store.mPresetDynamicConfs["Entry.1"] = QJsonObject{{"n", 2}};
    host.store.loadPresetDynamicConf();
    QCOMPARE(entries.values["Entry.1"], (QJsonObject{{"n", 2}}));
    QCOMPARE(host.time("Entry.1"), qint64(100));
    QCOMPARE(host.save(), text);
}

void tst_KeptEntries::futureTimestampOfAnUnknownKeyIsRefusedByASharedLoad()
{
    const QByteArray text = R"({"a":{"t":253370764800,"v":5},"b#s.win":{"t":253370764800,"v":5}})";
    Host host(ConfStorage::KeepUnknownEntries | ConfStorage::RefuseFutureTimes
              | ConfStorage::LongTimes);
    const LogCapture log;
    host.load(text);
    const QString refused = "ConfStorage::loadConf() timestamps too far ahead refused:  2 \"a\"";
    QCOMPARE(LogCapture::texts(QtWarningMsg), QStringList(refused));
    QCOMPARE(host.save(), QByteArray("{}"));
    host.load(text, ConfStorage::LoadLocal);
    const QString loaded = "ConfStorage::loadConf() timestamps too far ahead:  2 \"a\"";
    QCOMPARE(LogCapture::texts(QtWarningMsg), QStringList({refused, loaded}));
    QCOMPARE(host.save(), text);
    int variable = 7;
    host.store.reserveConf("a", &variable);
    QCOMPARE(variable, 5);
    QCOMPARE(LogCapture::texts(QtWarningMsg), QStringList({refused, loaded}));
}

void tst_KeptEntries::dumpsCannotAddMoreThanHalfOfTheFile()
{
    Host host;
    host.store.mMaxFileSize = 1000;
    const QString value(300, 'x');
    const LogCapture log;
    for (const char *key : {"a", "b", "c"})
        host.store.loadSingleConf(key, QJsonObject{{"t", 100}, {"v", value}},
                                  ConfStorage::LoadShared);
    QCOMPARE(LogCapture::texts(QtCriticalMsg),
             QStringList({"ConfStorage::loadConf() value could not be saved:  \"b\"",
                          "ConfStorage::loadConf() value could not be saved:  \"c\""}));
    QCOMPARE(host.store.dumpConf(ConfStorage::DumpLocal).keys(), QStringList("a"));
    host.store.loadSingleConf("b", QJsonObject{{"t", 100}, {"v", 1}}, ConfStorage::LoadShared);
    QCOMPARE(host.store.dumpConf(ConfStorage::DumpLocal).keys(), QStringList({"a", "b"}));
}

void tst_KeptEntries::sizeOfKeptEntriesIsThatInTheFile_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("first");  // characters of the value
    QTest::addColumn<int>("second"); // of the value that replaces it
    QTest::addColumn<bool>("hasRoom");
    QTest::newRow("small") << "a" << 1 << 1 << true;
    QTest::newRow("replaced by a larger one") << "a" << 1 << 300 << false;
    QTest::newRow("replaced by a smaller one") << "a" << 300 << 1 << true;
    QTest::newRow("long name") << QString(300, 'a') << 1 << 1 << false;
}

void tst_KeptEntries::sizeOfKeptEntriesIsThatInTheFile()
{
    QFETCH(QString, key);
    QFETCH(int, first);
    QFETCH(int, second);
    QFETCH(bool, hasRoom);
    Host host;
    host.store.mMaxFileSize = 1000; // half of it is for kept entries
    const auto load = [&](const QString &name, qint64 time, int length) {
        host.store.loadSingleConf(name, QJsonObject{{"t", time}, {"v", QString(length, 'x')}},
                                  ConfStorage::LoadShared);
    };
    const LogCapture log;
    load(key, 100, first);
    load(key, 101, second);
    QCOMPARE(host.store.dumpConf(ConfStorage::DumpLocal).keys(), QStringList(key));
    load("b", 100, 300);
    QCOMPARE(host.store.dumpConf(ConfStorage::DumpLocal).contains("b"), hasRoom);
}

void tst_KeptEntries::keysOfDumpsAreLimited()
{
    Host host;
    const QString key(65537, 'k');
    const QJsonObject dump{{key, QJsonObject{{"t", 100}, {"v", 5}}}};
    const LogCapture log;
    host.store.loadConf(dump, ConfStorage::LoadShared);
    const QStringList messages = LogCapture::texts(QtCriticalMsg);
    QCOMPARE(messages.size(), 1);
    QVERIFY(messages.first().startsWith("ConfStorage::loadConf() key too long: "));
    QVERIFY(host.store.dumpConf(ConfStorage::DumpLocal).isEmpty());
    host.store.loadConf(dump, ConfStorage::LoadLocal);
    QCOMPARE(host.store.dumpConf(ConfStorage::DumpLocal), dump);
}

void tst_KeptEntries::largeUnknownEntryOfTheLocalFileIsKept()
{
    const QByteArray text = R"({"a":{"t":100,"v":")" + QByteArray(900, 'x') + R"("}})";
    write(text);
    Host host;
    host.store.mMaxFileSize = 1000;
    host.store.loadLocalConfFile();
    QCOMPARE(host.save(), text);
}

void tst_KeptEntries::debugTableShowsKeptEntries()
{
    Host host;
    host.load(R"({"a":{"t":100,"v":"text"},"b":{"d":100},"c":[1],"d#s.win":{"t":200}})");
    QCOMPARE(host.store.debugTable(),
             QString(
                 R"(KEY      VALUE   DEFAULT  STATE  CHANGED AT            FLAGS
number   1       1        -      -                     default
a        "text"  -        kept   1970-01-01T00:01:40Z  -
b        -       -        kept   1970-01-01T00:01:40Z  -
c        [1]     -        kept   -                     -
d#s.win  -       -        kept   1970-01-01T00:03:20Z  -
)"));
}

void tst_KeptEntries::clearForgetsKeptEntries()
{
    Host host;
    host.load(R"({"a":{"t":100,"v":5}})");
    host.store.clear();
    QVERIFY(host.store.dumpConf(ConfStorage::DumpLocal).isEmpty());
}

int main(int argc, char **argv)
{
    return runTest<tst_KeptEntries>(argc, argv);
}

#include "tst_KeptEntries.moc"
