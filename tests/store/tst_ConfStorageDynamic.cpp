#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QJsonObject>

#include <map>

namespace {

QDateTime at(qint64 seconds)
{
    return QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
}

/// A store with one class of dynamic keys, "P.", and the host's variables for it.
class Copy
{
public:
    Copy()
    {
        cls.prefix = "P.";
        cls.creator = [this](QString key, const QJsonValue *value) {
            ++created;
            variables[key] = value->toObject();
            store.reserveConf(key, &variables[key]);
        };
        cls.remover = [this](QString key) {
            ++removed;
            variables.erase(key);
        };
        store.mDynamicConfClasses = {&cls};
    }
    void create(const QString &key, int value, qint64 seconds)
    {
        store.createDynamicConf(key, QJsonObject{{"x", value}}, nullptr);
        store.mConfMetas[key].lastChangeTime = at(seconds);
    }
    bool has(const QString &key) const { return store.mConfValues.contains(key); }
    int valueOf(const QString &key) const { return variables.at(key).value("x").toInt(); }
    QJsonObject dump() const { return store.dumpConf(ConfStorage::DumpLocal); }

    ConfStorage store;
    ConfStorage::DynamicConfClass cls;
    std::map<QString, QJsonObject> variables;
    int created = 0;
    int removed = 0;
};

} // namespace

/// Keys that are created and removed at run time.
class tst_ConfStorageDynamic : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { mCopy = std::make_unique<Copy>(); }

    void firstMatchingClassIsFound();
    void creatingStampsTheTimeAndMarksTheStore();
    void creatingWithoutAClassIsLogged();
    void creatingAnExistingKeyIsLogged();
    void creatorThatReservesNothingLeavesARecord();
    void missingCreatorAndRemoverAreSkipped();
    void removingLeavesATombstone();
    void removingWithoutAClassIsLogged();
    void removingAnUnknownKeyIsLogged();
    void creatingAgainDropsTheTombstone();
    void presetsAreCreatedWithoutATimestamp();
    void presetIsTheDefaultEvenIfItsCreatorChangesIt();
    void removedPresetStaysRemoved();
    void restoreRecreatesPresetsAndRemovesOtherKeys();
    void restoringOneClassRecreatesThePresetsOfAllClasses();
    void merging_data();
    void merging();
    void removalOfAnAbsentKeyLeavesATombstone_data();
    void removalOfAnAbsentKeyLeavesATombstone();
    void mergingANewKeyCreatesIt();
    void entryWithoutATimestampCountsAsNew();
    void mergingARestoredPreset();
    void mergingADefaultWithoutATimestampKeepsThatOfTheDefault();
    void mergingIntoALocalOnlyClass();
    void entryThatIsNotAnObjectCreatesNoDynamicKey();
    void removalIsMergedAndLosesToANewerChange();

private:
    std::unique_ptr<Copy> mCopy;
};

void tst_ConfStorageDynamic::firstMatchingClassIsFound()
{
    ConfStorage store;
    ConfStorage::DynamicConfClass general, special;
    general.prefix = "P.";
    special.prefix = "P.Special.";
    store.mDynamicConfClasses = {nullptr, &general, &special};
    QCOMPARE(store.findDynamicConfClass("P.Special.a"), &general);
    store.mDynamicConfClasses = {&special, &general};
    QCOMPARE(store.findDynamicConfClass("P.Special.a"), &special);
    QCOMPARE(store.findDynamicConfClass("P.a"), &general);
    QVERIFY(!store.findDynamicConfClass("p.a"));
    QVERIFY(!store.findDynamicConfClass(""));
}

void tst_ConfStorageDynamic::creatingStampsTheTimeAndMarksTheStore()
{
    mCopy->cls.flags = ConfStorage::FlagSystemIndependent | ConfStorage::FlagLocalOnly;
    mCopy->store.createDynamicConf("P.a", QJsonObject{{"x", 5}}, nullptr);
    QCOMPARE(mCopy->created, 1);
    QCOMPARE(mCopy->valueOf("P.a"), 5);
    const ConfStorage::ConfMeta meta = mCopy->store.mConfMetas.value("P.a");
    QCOMPARE(meta.flags, 6u);
    QVERIFY(!meta.lastChangeTime.isNull());
    QVERIFY(mCopy->store.mChanged);
}

void tst_ConfStorageDynamic::creatingWithoutAClassIsLogged()
{
    const LogCapture log;
    mCopy->store.createDynamicConf("Q.a", 1, nullptr);
    QCOMPARE(log.texts(QtCriticalMsg),
             QStringList("ConfStorage::createDynamicConf() dynamicConfClass not found:  \"Q.a\""));
    QVERIFY(!mCopy->store.mChanged);
    // A class passed by the caller is used even if its prefix does not match the key.
    mCopy->store.createDynamicConf("Q.a", 1, &mCopy->cls);
    QCOMPARE(mCopy->created, 1);
}

void tst_ConfStorageDynamic::creatingAnExistingKeyIsLogged()
{
    mCopy->create("P.a", 1, 100);
    const LogCapture log;
    mCopy->store.createDynamicConf("P.a", 2, nullptr);
    QCOMPARE(log.texts(QtCriticalMsg),
             QStringList("ConfStorage::createDynamicConf() key already exists:  \"P.a\""));
    QCOMPARE(mCopy->created, 1);
    QCOMPARE(mCopy->valueOf("P.a"), 1);
}

void tst_ConfStorageDynamic::creatorThatReservesNothingLeavesARecord()
{
    mCopy->cls.creator = [](QString, const QJsonValue *) {};
    mCopy->store.createDynamicConf("P.a", 1, nullptr);
    QVERIFY(!mCopy->has("P.a"));
    QVERIFY(mCopy->store.mConfMetas.contains("P.a"));
    QVERIFY(mCopy->dump().isEmpty());
}

void tst_ConfStorageDynamic::missingCreatorAndRemoverAreSkipped()
{
    mCopy->create("P.a", 1, 100);
    mCopy->cls.creator = nullptr;
    mCopy->cls.remover = nullptr;
    mCopy->store.createDynamicConf("P.b", 1, nullptr);
    mCopy->store.removeDynamicConf("P.a");
    QVERIFY(!mCopy->has("P.a"));
    QVERIFY(!mCopy->has("P.b"));
}

void tst_ConfStorageDynamic::removingLeavesATombstone()
{
    mCopy->create("P.p1", 1, 100);
    mCopy->store.mChanged = false;
    const QDateTime before = QDateTime::currentDateTimeUtc();
    mCopy->store.removeDynamicConf("P.p1");
    QCOMPARE(mCopy->removed, 1);
    QVERIFY(!mCopy->has("P.p1"));
    QVERIFY(!mCopy->store.mConfMetas.contains("P.p1"));
    QVERIFY(mCopy->store.mRemovedDynamicConfs.value("P.p1") >= before);
    QVERIFY(mCopy->store.mChanged);
    const QJsonObject entry = mCopy->dump().value("P.p1").toObject();
    QCOMPARE(entry.keys(), QStringList("d"));
    QVERIFY(entry.value("d").toDouble() >= double(before.toSecsSinceEpoch()));
}

void tst_ConfStorageDynamic::removingWithoutAClassIsLogged()
{
    int number = 0;
    mCopy->store.reserveConf("Q.a", &number);
    const LogCapture log;
    mCopy->store.removeDynamicConf("Q.a");
    QCOMPARE(log.texts(QtCriticalMsg),
             QStringList("ConfStorage::createDynamicConf() dynamicConfClass not found:  \"Q.a\""));
    QVERIFY(mCopy->has("Q.a"));
}

void tst_ConfStorageDynamic::removingAnUnknownKeyIsLogged()
{
    const LogCapture log;
    mCopy->store.removeDynamicConf("P.a");
    QCOMPARE(log.texts(QtCriticalMsg),
             QStringList("ConfStorage::removeDynamicConf() key not found:  \"P.a\""));
    QCOMPARE(mCopy->removed, 0);
    QVERIFY(mCopy->store.mRemovedDynamicConfs.isEmpty());
}

void tst_ConfStorageDynamic::creatingAgainDropsTheTombstone()
{
    mCopy->create("P.a", 1, 100);
    mCopy->store.removeDynamicConf("P.a");
    mCopy->create("P.a", 2, 200);
    QVERIFY(mCopy->store.mRemovedDynamicConfs.isEmpty());
}

void tst_ConfStorageDynamic::presetsAreCreatedWithoutATimestamp()
{
    mCopy->store.mPresetDynamicConfs["P.a"] = QJsonObject{{"x", 1}};
    mCopy->create("P.b", 7, 100);
    mCopy->store.mPresetDynamicConfs["P.b"] = QJsonObject{{"x", 2}};
    mCopy->store.loadPresetDynamicConf();
    QCOMPARE(mCopy->valueOf("P.a"), 1);
    QCOMPARE(mCopy->valueOf("P.b"), 7);
    QVERIFY(mCopy->store.mConfMetas.value("P.a").lastChangeTime.isNull());
    QCOMPARE(mCopy->store.mConfMetas.value("P.a").flags, 1u);
    QVERIFY(mCopy->store.isEqualToDefault("P.a"));
    QCOMPARE(mCopy->dump().keys(), QStringList("P.b"));
    QCOMPARE(mCopy->store.calcLastConfTime(), at(100));
}

void tst_ConfStorageDynamic::presetIsTheDefaultEvenIfItsCreatorChangesIt()
{
    mCopy->cls.creator = [this](QString key, const QJsonValue *value) {
        mCopy->variables[key] = value->toObject();
        mCopy->variables[key]["id"] = 7; // like a host that numbers its entries
        mCopy->store.reserveConf(key, &mCopy->variables[key]);
    };
    mCopy->store.mPresetDynamicConfs["P.a"] = QJsonObject{{"x", 1}};
    mCopy->store.setToDefault("P.a", true);
    QVERIFY(mCopy->store.isEqualToDefault("P.a"));
    QCOMPARE(mCopy->dump().value("P.a").toObject().keys(), QStringList("t"));
}

void tst_ConfStorageDynamic::removedPresetStaysRemoved()
{
    mCopy->store.mPresetDynamicConfs["P.a"] = QJsonObject{{"x", 1}};
    mCopy->store.loadPresetDynamicConf();
    mCopy->store.removeDynamicConf("P.a");
    mCopy->store.loadPresetDynamicConf();
    QVERIFY(!mCopy->has("P.a"));
    mCopy->store.restoreDynamicConf("Elsewhere.");
    QVERIFY(mCopy->has("P.a"));
}

void tst_ConfStorageDynamic::restoreRecreatesPresetsAndRemovesOtherKeys()
{
    mCopy->store.mPresetDynamicConfs["P.a"] = QJsonObject{{"x", 1}};
    mCopy->store.loadPresetDynamicConf();
    mCopy->store.loadValueFromJson("P.a", QJsonObject{{"x", 9}});
    mCopy->create("P.own", 5, 100);
    mCopy->store.mChanged = false;
    mCopy->store.restoreDynamicConf("P.");
    QCOMPARE(mCopy->valueOf("P.a"), 1);
    QVERIFY(mCopy->store.isEqualToDefault("P.a"));
    QVERIFY(!mCopy->store.mConfMetas.value("P.a").lastChangeTime.isNull());
    QVERIFY(!mCopy->has("P.own"));
    QVERIFY(mCopy->store.mRemovedDynamicConfs.contains("P.own"));
    QVERIFY(mCopy->store.mChanged);
}

void tst_ConfStorageDynamic::restoringOneClassRecreatesThePresetsOfAllClasses()
{
    ConfStorage::DynamicConfClass other = mCopy->cls;
    other.prefix = "Q.";
    mCopy->store.mDynamicConfClasses.append(&other);
    mCopy->store.mPresetDynamicConfs["P.a"] = QJsonObject{{"x", 1}};
    mCopy->store.mPresetDynamicConfs["Q.a"] = QJsonObject{{"x", 2}};
    mCopy->store.loadPresetDynamicConf();
    mCopy->store.removeDynamicConf("Q.a");
    mCopy->store.restoreDynamicConf("P.");
    QVERIFY(mCopy->has("Q.a"));
}

void tst_ConfStorageDynamic::merging_data()
{
    QTest::addColumn<bool>("present"); // changed at second 100; otherwise removed at second 100
    QTest::addColumn<QJsonObject>("entry");
    QTest::addColumn<int>("value"); // after merging; 0: removed
    QTest::addColumn<qint64>("time");
    const auto change = [](int time) {
        return QJsonObject{{"t", time}, {"v", QJsonObject{{"x", 2}}}};
    };
    const auto removal = [](int time) { return QJsonObject{{"d", time}}; };
    QTest::newRow("newer change") << true << change(101) << 2 << qint64(101);
    QTest::newRow("equal time keeps the value") << true << change(100) << 1 << qint64(100);
    QTest::newRow("older change") << true << change(99) << 1 << qint64(100);
    QTest::newRow("newer removal") << true << removal(101) << 0 << qint64(101);
    QTest::newRow("equal removal keeps the value") << true << removal(100) << 1 << qint64(100);
    QTest::newRow("older removal") << true << removal(99) << 1 << qint64(100);
    QTest::newRow("removed key, newer change") << false << change(101) << 2 << qint64(101);
    QTest::newRow("removed key, equal change stays removed")
        << false << change(100) << 0 << qint64(100);
    QTest::newRow("removed key, older change stays removed")
        << false << change(99) << 0 << qint64(100);
    QTest::newRow("removed key, newer removal") << false << removal(101) << 0 << qint64(101);
    QTest::newRow("removed key, older removal") << false << removal(99) << 0 << qint64(100);
    QTest::newRow("removal takes precedence over the other members")
        << true << QJsonObject{{"d", 101}, {"t", 1}, {"v", 5}} << 0 << qint64(101);
}

void tst_ConfStorageDynamic::merging()
{
    QFETCH(bool, present);
    QFETCH(QJsonObject, entry);
    QFETCH(int, value);
    QFETCH(qint64, time);
    mCopy->create("P.a", 1, 100);
    if (!present) {
        mCopy->store.removeDynamicConf("P.a");
        mCopy->store.mRemovedDynamicConfs["P.a"] = at(100);
    }
    mCopy->store.loadSingleConf("P.a", entry, ConfStorage::LoadShared);
    QCOMPARE(mCopy->has("P.a"), value != 0);
    QCOMPARE(mCopy->store.mRemovedDynamicConfs.contains("P.a"), value == 0);
    if (value) {
        QCOMPARE(mCopy->valueOf("P.a"), value);
        QCOMPARE(mCopy->store.mConfMetas["P.a"].lastChangeTime, at(time));
    } else {
        QCOMPARE(mCopy->store.mRemovedDynamicConfs["P.a"], at(time));
    }
}

void tst_ConfStorageDynamic::removalOfAnAbsentKeyLeavesATombstone_data()
{
    QTest::addColumn<QJsonValue>("removed");
    QTest::addColumn<qint64>("time");
    QTest::newRow("now") << QJsonValue(1700000400) << qint64(1700000400);
    QTest::newRow("at the beginning of 1970") << QJsonValue(0) << qint64(0);
    QTest::newRow("before 1970") << QJsonValue(-7) << qint64(-7);
    QTest::newRow("beyond 32 bits") << QJsonValue(2147483648.0) << qint64(0);
}

void tst_ConfStorageDynamic::removalOfAnAbsentKeyLeavesATombstone()
{
    QFETCH(QJsonValue, removed);
    QFETCH(qint64, time);
    mCopy->store.loadSingleConf("P.a", QJsonObject{{"d", removed}}, ConfStorage::LoadShared);
    QCOMPARE(mCopy->store.mRemovedDynamicConfs.value("P.a"), at(time));
    QCOMPARE(mCopy->store.mRemovedDynamicConfs.size(), 1);
}

void tst_ConfStorageDynamic::mergingANewKeyCreatesIt()
{
    mCopy->store.loadSingleConf("P.new", QJsonObject{{"t", 50}, {"v", QJsonObject{{"x", 3}}}},
                                ConfStorage::LoadShared);
    QCOMPARE(mCopy->valueOf("P.new"), 3);
    QCOMPARE(mCopy->store.mConfMetas["P.new"].lastChangeTime, at(50));
}

void tst_ConfStorageDynamic::entryWithoutATimestampCountsAsNew()
{
    mCopy->create("P.a", 1, 100);
    mCopy->store.loadSingleConf("P.a", QJsonObject{{"v", QJsonObject{{"x", 3}}}},
                                ConfStorage::LoadShared);
    QCOMPARE(mCopy->valueOf("P.a"), 3);
    QVERIFY(mCopy->store.mConfMetas["P.a"].lastChangeTime > at(100));
}

void tst_ConfStorageDynamic::mergingARestoredPreset()
{
    mCopy->store.mPresetDynamicConfs["P.a"] = QJsonObject{{"x", 1}};
    mCopy->store.loadSingleConf("P.a", QJsonObject{{"t", 50}}, ConfStorage::LoadShared);
    QCOMPARE(mCopy->valueOf("P.a"), 1);
    QCOMPARE(mCopy->store.mConfMetas["P.a"].lastChangeTime, at(50));
    QCOMPARE(mCopy->store.mConfMetas["P.a"].flags, 1u);
    const LogCapture log;
    mCopy->store.loadSingleConf("P.nopreset", QJsonObject{{"t", 50}}, ConfStorage::LoadShared);
    QCOMPARE(log.texts(QtCriticalMsg),
             QStringList("ConfStorage::set key not found:  \"P.nopreset\""));
}

void tst_ConfStorageDynamic::mergingADefaultWithoutATimestampKeepsThatOfTheDefault()
{
    mCopy->create("P.a", 1, 100);
    mCopy->store.mConfMetas["P.a"].flags |= ConfStorage::FlagIsDefault;
    mCopy->store.loadConf({{"P.a", QJsonObject()}}, ConfStorage::LoadShared);
    QCOMPARE(mCopy->store.mConfMetas["P.a"].lastChangeTime, at(100));
}

void tst_ConfStorageDynamic::mergingIntoALocalOnlyClass()
{
    mCopy->cls.flags = ConfStorage::FlagLocalOnly;
    const QJsonObject entry{{"t", 50}, {"v", QJsonObject{{"x", 3}}}};
    mCopy->store.loadSingleConf("P.a", entry, ConfStorage::LoadShared);
    QVERIFY(!mCopy->has("P.a"));
    mCopy->store.loadSingleConf("P.a", entry, ConfStorage::LoadLocal);
    QVERIFY(mCopy->has("P.a"));
    // An ordinary key of the host with the prefix of the class is not merged either.
    int size = 7;
    mCopy->store.reserveConf("P.size", &size);
    mCopy->store.loadSingleConf("P.size", QJsonObject{{"t", 50}, {"v", 9}},
                                ConfStorage::LoadShared);
    QCOMPARE(size, 7);
}

void tst_ConfStorageDynamic::entryThatIsNotAnObjectCreatesNoDynamicKey()
{
    mCopy->store.loadSingleConf("P.new", 5, ConfStorage::LoadShared);
    QVERIFY(!mCopy->has("P.new"));
    QCOMPARE(mCopy->created, 0);
}

void tst_ConfStorageDynamic::removalIsMergedAndLosesToANewerChange()
{
    Copy other;
    mCopy->create("P.a", 1, 100);
    other.store.loadConf(mCopy->dump(), ConfStorage::LoadShared);
    QCOMPARE(other.valueOf("P.a"), 1);
    mCopy->store.removeDynamicConf("P.a");
    mCopy->store.mRemovedDynamicConfs["P.a"] = at(200);
    other.store.loadConf(mCopy->dump(), ConfStorage::LoadShared);
    QVERIFY(!other.has("P.a"));
    QCOMPARE(other.dump(), mCopy->dump());
    other.create("P.a", 3, 300);
    mCopy->store.loadConf(other.dump(), ConfStorage::LoadShared);
    QCOMPARE(mCopy->valueOf("P.a"), 3);
    QCOMPARE(other.dump(), mCopy->dump());
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfStorageDynamic>(argc, argv);
}

#include "tst_ConfStorageDynamic.moc"
