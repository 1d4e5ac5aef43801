#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QDateTime at(qint64 seconds)
{
    return QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
}

QJsonObject entry(int time, const QJsonValue &value)
{
    return {{"t", time}, {"v", value}};
}

} // namespace

/// Dumping a store and merging dumps.
class tst_ConfStorageJson : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        mStore = std::make_unique<ConfStorage>();
        mA = 1;
        mB = 2;
        mStore->reserveConf("a", &mA);
        mStore->reserveConf("b", &mB);
    }

    void untouchedStoreDumpsNothing();
    void dump_data();
    void dump();
    void timestampZeroIsNotDumped();
    void fractionsOfSecondsAreTruncated();
    void keyWithoutRecordIsNotDumped();
    void removalsAreDumped();
    void removalWithoutAClassIsLogged();
    void removalsIgnoreTheLocalOnlyFlag();
    void dumpIsSortedByKey();
    void lastMemberOfTheSameNameWins();
    void keysThatOnlyOneSideHasDoNotStopTheLoad();
    void loadedEntry_data();
    void loadedEntry();
    void entryWithoutATimestampIsNew();
    void bareValueRestoresTheDefault();
    void entryWithoutValueRestoresTheDefaultAndItsTime();
    void loadedValueDoesNotMarkTheStore();
    void callbackOfALoadedValueRunsBeforeTheDefaultFlagIsCleared();
    void skippedEntryDoesNotCallBack();
    void systemMark_data();
    void systemMark();
    void localOnlyKeysAreSkippedUnlessTheLoadIsLocal_data();
    void localOnlyKeysAreSkippedUnlessTheLoadIsLocal();
    void loadConfCountsItsMembers();
    void text_data();
    void text();
    void restoredDefaultIsMergedIntoAnotherStore();
    void changedOnlyIncludesAChangedValueEqualToItsDefault();
    void newestTime();
    void newestTimeIsLocalAndRecordsAreUtc();
    void largeStoreSurvivesTheRoundTrip();

private:
    QJsonObject dumped(ConfStorage::DumpConfType type = ConfStorage::DumpLocal) const
    {
        return mStore->dumpConf(type);
    }
    void change(const QString &key, int value, qint64 seconds)
    {
        mStore->set<int>(key, value);
        mStore->mConfMetas[key].lastChangeTime = at(seconds);
    }

    std::unique_ptr<ConfStorage> mStore;
    int mA = 0;
    int mB = 0;
};

void tst_ConfStorageJson::untouchedStoreDumpsNothing()
{
    for (const auto type :
         {ConfStorage::DumpLocal, ConfStorage::DumpShared, ConfStorage::DumpChangedOnly})
        QCOMPARE(dumped(type), QJsonObject());
}

void tst_ConfStorageJson::dump_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QJsonObject>("expected");
    const QJsonObject changed = entry(100, 10);
    const QJsonObject restored{{"t", 200}};
    QTest::newRow("local") << 0
                           << QJsonObject{{"a", changed},
                                          {"b", restored},
                                          {"local", entry(300, true)},
                                          {"sys#s.mac", entry(400, "x")}};
    QTest::newRow("shared") << 1
                            << QJsonObject{
                                   {"a", changed}, {"b", restored}, {"sys#s.mac", entry(400, "x")}};
    QTest::newRow("changed only") << 2
                                  << QJsonObject{{"a", QJsonObject{{"v", 10}}},
                                                 {"sys#s.mac", QJsonObject{{"v", "x"}}}};
}

void tst_ConfStorageJson::dump()
{
    bool local = false;
    QString text;
    mStore->reserveConf("local", &local);
    mStore->reserveConf("sys", &text);
    mStore->mConfMetas["local"].flags |= ConfStorage::FlagLocalOnly;
    mStore->mConfMetas["sys"].flags |= ConfStorage::FlagSystemIndependent;
    change("a", 10, 100);
    change("b", 20, 100);
    mStore->setToDefault("b", true);
    mStore->mConfMetas["b"].lastChangeTime = at(200);
    mStore->set<bool>("local", true);
    mStore->mConfMetas["local"].lastChangeTime = at(300);
    mStore->set<QString>("sys", "x");
    mStore->mConfMetas["sys"].lastChangeTime = at(400);
    QFETCH(int, type);
    QTEST(dumped(static_cast<ConfStorage::DumpConfType>(type)), "expected");
}

void tst_ConfStorageJson::timestampZeroIsNotDumped()
{
    change("a", 10, 0);
    QVERIFY(dumped().isEmpty());
    QCOMPARE(dumped(ConfStorage::DumpChangedOnly).size(), 1);
    change("a", 10, -5);
    QCOMPARE(dumped(), (QJsonObject{{"a", entry(-5, 10)}}));
}

void tst_ConfStorageJson::fractionsOfSecondsAreTruncated()
{
    mStore->set<int>("a", 10);
    mStore->mConfMetas["a"].lastChangeTime = QDateTime::fromMSecsSinceEpoch(100999, Qt::UTC);
    QCOMPARE(dumped(), (QJsonObject{{"a", entry(100, 10)}}));
}

void tst_ConfStorageJson::keyWithoutRecordIsNotDumped()
{
    change("a", 10, 100);
    mStore->mConfMetas.clear();
    QVERIFY(dumped().isEmpty());
}

void tst_ConfStorageJson::removalsAreDumped()
{
    ConfStorage::DynamicConfClass plain, system;
    plain.prefix = "P.";
    system.prefix = "S.";
    system.flags = ConfStorage::FlagSystemIndependent;
    mStore->mDynamicConfClasses = {&plain, &system};
    mStore->mRemovedDynamicConfs = {{"P.x", at(500)}, {"S.x", at(600)}};
    const QJsonObject expected{{"P.x", QJsonObject{{"d", 500}}},
                               {"S.x#s.mac", QJsonObject{{"d", 600}}}};
    QCOMPARE(dumped(ConfStorage::DumpLocal), expected);
    QCOMPARE(dumped(ConfStorage::DumpShared), expected);
    QVERIFY(dumped(ConfStorage::DumpChangedOnly).isEmpty());
}

void tst_ConfStorageJson::removalWithoutAClassIsLogged()
{
    mStore->mRemovedDynamicConfs = {{"P.x", at(500)}};
    const LogCapture log;
    QCOMPARE(dumped(), (QJsonObject{{"P.x", QJsonObject{{"d", 500}}}}));
    QCOMPARE(log.texts(QtCriticalMsg),
             QStringList("dumpConf findDynamicConfClass error :  \"P.x\""));
}

void tst_ConfStorageJson::removalsIgnoreTheLocalOnlyFlag()
{
    ConfStorage::DynamicConfClass cls;
    cls.prefix = "P.";
    cls.flags = ConfStorage::FlagLocalOnly;
    mStore->mDynamicConfClasses = {&cls};
    mStore->mRemovedDynamicConfs = {{"P.x", at(500)}};
    QCOMPARE(dumped(ConfStorage::DumpShared).size(), 1);
}

void tst_ConfStorageJson::dumpIsSortedByKey()
{
    int marked = 0, plain = 0;
    mStore->reserveConf("b!", &plain);
    mStore->mConfMetas["b"].flags |= ConfStorage::FlagSystemIndependent;
    mStore->reserveConf("b.", &marked);
    for (const char *key : {"a", "b", "b!", "b."})
        change(key, 5, 100);
    QCOMPARE(dumped().keys(), (QStringList{"a", "b!", "b#s.mac", "b."}));
}

void tst_ConfStorageJson::lastMemberOfTheSameNameWins()
{
    // "a#s.mac" is the name of key "a" with its system mark, and also a key of its own.
    int bare = 3;
    mStore->reserveConf("a#s.mac", &bare);
    mStore->reserveConf("a!", &mB);
    mStore->mConfMetas["a"].flags |= ConfStorage::FlagSystemIndependent;
    mStore->set("a", 10);
    mStore->set("a!", 20);
    mStore->set("a#s.mac", 30);
    mStore->mLocalSaveFile = "dump.json";
    mStore->saveToLocalConfFile();
    QFile file(mStore->mLocalSaveFile);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QJsonObject written = QJsonDocument::fromJson(file.readAll()).object();
    QCOMPARE(written.keys(), (QStringList{"a!", "a#s.mac"}));
    QCOMPARE(written["a!"].toObject()["v"].toInt(), 20);
    QCOMPARE(written["a#s.mac"].toObject()["v"].toInt(), 30);
    QCOMPARE(mStore->dumpConf(ConfStorage::DumpLocal), written);
}

void tst_ConfStorageJson::keysThatOnlyOneSideHasDoNotStopTheLoad()
{
    int c = 3, d = 4;
    mStore->reserveConf("c", &c);
    mStore->reserveConf("d", &d);
    mStore->mConfMetas.remove("c");
    mStore->loadConf(QJsonObject{{"a", entry(100, 10)},
                                 {"aa", entry(100, 11)},
                                 {"c", entry(100, 30)},
                                 {"d", entry(100, 40)},
                                 {"e", entry(100, 50)}},
                     ConfStorage::LoadLocal);
    QCOMPARE((QList<int>{mA, mB, c, d}), (QList<int>{10, 2, 30, 40}));
    QCOMPARE(mStore->mConfMetas.keys(), (QStringList{"a", "b", "c", "d"}));
    QCOMPARE(mStore->mConfMetas["c"].lastChangeTime, at(100));
    QCOMPARE(mStore->mConfMetas["c"].flags, 0u);
}

void tst_ConfStorageJson::loadedEntry_data()
{
    QTest::addColumn<qint64>("stored"); // timestamp of the store's last change; -1: none
    QTest::addColumn<QJsonValue>("time");
    QTest::addColumn<int>("value");
    QTest::addColumn<qint64>("kept"); // timestamp after loading
    QTest::newRow("newer wins") << qint64(99) << QJsonValue(100) << 10 << qint64(100);
    QTest::newRow("equal time keeps the store's value")
        << qint64(100) << QJsonValue(100) << 5 << qint64(100);
    QTest::newRow("older loses") << qint64(101) << QJsonValue(100) << 5 << qint64(101);
    QTest::newRow("never changed loses to any") << qint64(-1) << QJsonValue(1) << 10 << qint64(1);
    QTest::newRow("time at the epoch") << qint64(-1) << QJsonValue(0) << 10 << qint64(0);
    QTest::newRow("time that is not a number counts as the epoch")
        << qint64(-1) << QJsonValue("100") << 10 << qint64(0);
    QTest::newRow("time beyond 32 bits counts as the epoch")
        << qint64(50) << QJsonValue(5e9) << 5 << qint64(50);
    QTest::newRow("fractional time counts as the epoch")
        << qint64(50) << QJsonValue(100.5) << 5 << qint64(50);
    QTest::newRow("before the epoch") << qint64(-1) << QJsonValue(-7) << 10 << qint64(-7);
}

void tst_ConfStorageJson::loadedEntry()
{
    QFETCH(qint64, stored);
    QFETCH(QJsonValue, time);
    QFETCH(qint64, kept);
    if (stored >= 0)
        change("a", 5, stored);
    else
        mA = 5;
    mStore->loadSingleConf("a", QJsonObject{{"t", time}, {"v", 10}}, ConfStorage::LoadShared);
    QTEST(mA, "value");
    QCOMPARE(mStore->mConfMetas["a"].lastChangeTime.toSecsSinceEpoch(), kept);
}

void tst_ConfStorageJson::entryWithoutATimestampIsNew()
{
    change("a", 5, 4000000000);
    const QDateTime before = QDateTime::currentDateTimeUtc();
    mStore->loadSingleConf("a", QJsonObject{{"v", 10}}, ConfStorage::LoadShared);
    QCOMPARE(mA, 10);
    QVERIFY(mStore->mConfMetas["a"].lastChangeTime >= before);
    QVERIFY(mStore->mConfMetas["a"].lastChangeTime < at(4000000000));
}

void tst_ConfStorageJson::bareValueRestoresTheDefault()
{
    change("a", 5, 100);
    mStore->loadSingleConf("a", 42, ConfStorage::LoadShared);
    QCOMPARE(mA, 1);
    QVERIFY(mStore->mConfMetas["a"].lastChangeTime > at(100));
    QCOMPARE(mStore->mConfMetas["a"].flags, 1u);
}

void tst_ConfStorageJson::entryWithoutValueRestoresTheDefaultAndItsTime()
{
    change("a", 5, 100);
    mStore->mChanged = false;
    mStore->loadSingleConf("a", QJsonObject{{"t", 200}}, ConfStorage::LoadShared);
    QCOMPARE(mA, 1);
    QCOMPARE(mStore->mConfMetas["a"].lastChangeTime, at(200));
    QVERIFY(mStore->mChanged);
}

void tst_ConfStorageJson::loadedValueDoesNotMarkTheStore()
{
    mStore->loadSingleConf("a", entry(100, 10), ConfStorage::LoadShared);
    QVERIFY(!mStore->mChanged);
    QCOMPARE(mStore->mConfMetas["a"].flags, 0u);
}

void tst_ConfStorageJson::callbackOfALoadedValueRunsBeforeTheDefaultFlagIsCleared()
{
    quint32 flags = 0;
    int value = 0;
    mStore->setConfChangedCallback("a", [&](const QString &, const ConfValue *changed) {
        flags = mStore->mConfMetas["a"].flags;
        value = changed->get<int>();
    });
    mStore->loadSingleConf("a", entry(100, 10), ConfStorage::LoadShared);
    QCOMPARE(flags, 1u);
    QCOMPARE(value, 10);
    QCOMPARE(mStore->mConfMetas["a"].flags, 0u);
}

void tst_ConfStorageJson::skippedEntryDoesNotCallBack()
{
    change("a", 5, 100);
    int calls = 0;
    mStore->setConfChangedCallback("a", [&](const QString &, const ConfValue *) { ++calls; });
    mStore->loadSingleConf("a", entry(100, 10), ConfStorage::LoadShared);
    QCOMPARE(calls, 0);
}

void tst_ConfStorageJson::systemMark_data()
{
    QTest::addColumn<QString>("member");
    QTest::addColumn<QString>("reached");
    QTest::newRow("this system's mark") << "k#s.mac"
                                        << "k";
    QTest::newRow("another system's mark") << "k#s.win"
                                           << "";
    QTest::newRow("empty mark") << "k#"
                                << "";
    QTest::newRow("other case") << "k#S.mac"
                                << "";
    QTest::newRow("no mark") << "k"
                             << "k";
    QTest::newRow("mark starts at the last #") << "k#x#s.mac"
                                               << "k#x";
    QTest::newRow("last mark is foreign") << "k#s.mac#x"
                                          << "";
    QTest::newRow("only the mark") << "#s.mac"
                                   << "(empty)";
}

void tst_ConfStorageJson::systemMark()
{
    QCOMPARE(addSysMark("k"), QString("k#s.mac"));
    int plain = 0, withMark = 0, empty = 0;
    mStore->reserveConf("k", &plain);
    mStore->reserveConf("k#x", &withMark);
    mStore->reserveConf("", &empty);
    QFETCH(QString, member);
    const LogCapture log;
    mStore->loadSingleConf(member, entry(100, 10), ConfStorage::LoadShared);
    QTEST(QString(plain ? "k" : withMark ? "k#x" : empty ? "(empty)" : ""), "reached");
    QVERIFY(log.messages().isEmpty());
}

void tst_ConfStorageJson::localOnlyKeysAreSkippedUnlessTheLoadIsLocal_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("value");
    QTest::newRow("shared") << 0 << 1;
    QTest::newRow("local") << 1 << 10;
    QTest::newRow("any other acts as shared") << 2 << 1;
}

void tst_ConfStorageJson::localOnlyKeysAreSkippedUnlessTheLoadIsLocal()
{
    mStore->mConfMetas["a"].flags |= ConfStorage::FlagLocalOnly;
    QFETCH(int, type);
    mStore->loadSingleConf("a", entry(100, 10), static_cast<ConfStorage::LoadConfType>(type));
    QTEST(mA, "value");
}

void tst_ConfStorageJson::loadConfCountsItsMembers()
{
    QCOMPARE(mStore->loadConf(QJsonObject(), ConfStorage::LoadShared), 0);
    QCOMPARE(
        mStore->loadConf(QJsonObject{{"a", entry(1, 5)}, {"unknown", 1}}, ConfStorage::LoadShared),
        2);
    QCOMPARE(mA, 5);
    QVERIFY(!mStore->mConfMetas.contains("unknown"));
    QVERIFY(!mStore->mConfValues.contains("unknown"));
}

void tst_ConfStorageJson::text_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<bool>("loaded");
    QTest::newRow("object") << "{\"a\": {\"t\": 1, \"v\": 5}}" << true;
    QTest::newRow("empty object") << "{}" << true;
    QTest::newRow("array") << "[1]" << false;
    QTest::newRow("empty") << "" << false;
    QTest::newRow("rubbish") << "{\"a\"" << false;
    QTest::newRow("text after the object") << "{} x" << false;
    QTest::newRow("bare value") << "5" << false;
    const auto nested = [](int levels) {
        return "{\"a\":" + QString(levels - 1, '[') + QString(levels - 1, ']') + '}';
    };
    QTest::newRow("1,024 levels") << nested(1024) << true;
    QTest::newRow("1,025 levels") << nested(1025) << false;
    QTest::newRow("nested too deeply") << QString(200000, '[') << false;
}

void tst_ConfStorageJson::text()
{
    QFETCH(QString, json);
    QFETCH(bool, loaded);
    const LogCapture log;
    QCOMPARE(mStore->loadConf(json, ConfStorage::LoadShared), loaded);
    const QStringList expected = loaded
                                     ? QStringList()
                                     : QStringList("ConfStorage::importConf() parse json failed");
    QCOMPARE(log.texts(QtCriticalMsg), expected);
    if (!loaded)
        QCOMPARE(mA, 1);
}

void tst_ConfStorageJson::restoredDefaultIsMergedIntoAnotherStore()
{
    change("a", 10, 100);
    mStore->setToDefault("a", true);
    mStore->mConfMetas["a"].lastChangeTime = at(300);
    int otherA = 1;
    ConfStorage other;
    other.reserveConf("a", &otherA);
    other.set<int>("a", 50);
    other.mConfMetas["a"].lastChangeTime = at(200);
    other.loadConf(dumped(), ConfStorage::LoadShared);
    QCOMPARE(otherA, 1);
    QCOMPARE(other.mConfMetas["a"].lastChangeTime, at(300));
    QCOMPARE(other.dumpConf(ConfStorage::DumpLocal), dumped());
}

void tst_ConfStorageJson::changedOnlyIncludesAChangedValueEqualToItsDefault()
{
    mStore->set<int>("a", 1);
    QCOMPARE(dumped(ConfStorage::DumpChangedOnly), (QJsonObject{{"a", QJsonObject{{"v", 1}}}}));
}

void tst_ConfStorageJson::newestTime()
{
    QVERIFY(mStore->calcLastConfTime().isNull());
    change("a", 10, 100);
    change("b", 10, 300);
    QCOMPARE(mStore->calcLastConfTime(), at(300));
    mStore->mConfMetas["b"].flags |= ConfStorage::FlagLocalOnly;
    QCOMPARE(mStore->calcLastConfTime(), at(100));
    mStore->mRemovedDynamicConfs["x"] = at(200);
    QCOMPARE(mStore->calcLastConfTime(), at(200));
}

void tst_ConfStorageJson::newestTimeIsLocalAndRecordsAreUtc()
{
    const auto restore = qScopeGuard(
        [zone = qgetenv("TZ")] { zone.isNull() ? qunsetenv("TZ") : qputenv("TZ", zone); });
    qputenv("TZ", "EAST-5"); // five hours east
    ConfStorage::DynamicConfClass cls;
    cls.prefix = "P.";
    mStore->mDynamicConfClasses = {&cls};
    const auto specOf = [&](const QString &key) {
        return mStore->mConfMetas.value(key).lastChangeTime.timeSpec();
    };
    mStore->set<int>("a", 10);
    QCOMPARE(specOf("a"), Qt::UTC);
    mStore->setToDefault("a", true);
    QCOMPARE(specOf("a"), Qt::UTC);
    mStore->loadValueFromJson("b", 5);
    QCOMPARE(specOf("b"), Qt::UTC);
    mStore->createDynamicConf("P.a", 1, nullptr);
    QCOMPARE(specOf("P.a"), Qt::UTC);
    mStore->reserveConf("P.b", &mB);
    mStore->removeDynamicConf("P.b");
    QCOMPARE(mStore->mRemovedDynamicConfs.value("P.b").timeSpec(), Qt::UTC);

    ConfStorage loaded;
    loaded.mDynamicConfClasses = {&cls};
    loaded.reserveConf("a", &mA);
    loaded.loadSingleConf("a", entry(86400, 1), ConfStorage::LoadLocal);
    QCOMPARE(loaded.mConfMetas.value("a").lastChangeTime.timeSpec(), Qt::UTC);
    loaded.loadSingleConf("P.a", QJsonObject{{"d", 86399}}, ConfStorage::LoadLocal);
    QCOMPARE(loaded.mRemovedDynamicConfs.value("P.a").timeSpec(), Qt::UTC);
    const QDateTime newest = loaded.calcLastConfTime();
    QCOMPARE(newest.timeSpec(), Qt::LocalTime);
    QCOMPARE(newest, at(86400));
    QCOMPARE(newest.toString(Qt::ISODate), QString("1970-01-02T05:00:00"));
}

void tst_ConfStorageJson::largeStoreSurvivesTheRoundTrip()
{
    constexpr int count = 20000;
    std::vector<int> values(count), others(count);
    ConfStorage other;
    for (int i = 0; i < count; ++i) {
        const QString key = QString("Class%1.Item%2").arg(i % 50).arg(i);
        mStore->reserveConf(key, &values[size_t(i)]);
        other.reserveConf(key, &others[size_t(i)]);
        mStore->set<int>(key, i);
    }
    const QJsonObject conf = dumped();
    QCOMPARE(conf.size(), count);
    other.loadConf(QString::fromUtf8(QJsonDocument(conf).toJson()), ConfStorage::LoadLocal);
    QVERIFY(others == values);
    QCOMPARE(other.dumpConf(ConfStorage::DumpLocal), conf);
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfStorageJson>(argc, argv);
}

#include "tst_ConfStorageJson.moc"
