#include "MergeWorld.h"

#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/store/ConfLoadReport.h>

#include <algorithm>
#include <array>
#include <random>

namespace {

constexpr size_t sNumber = 0; // Plain.a, default 1
constexpr size_t sEntry = 4;  // Entry.a, no preset
constexpr size_t sPreset = 6; // Entry.preset, 2 by default

/// A change of one key as a number: either the value to set or to create the key with, or one of
/// these.
enum Change { Untouched = -1, Restored = -2, Removed = -3 };

void change(MergeCopy &copy, size_t key, int change, qint64 second)
{
    if (change == Restored)
        copy.restore(key, second);
    else if (change == Removed)
        copy.remove(key, second);
    else if (change != Untouched && copy.state()[key].present)
        copy.set(key, change, second);
    else if (change != Untouched)
        copy.create(key, change, second);
}

int seen(const MergeCopy &copy, size_t key)
{
    const MergeCell cell = copy.state()[key];
    return cell.present ? cell.value : int(Removed);
}

void exchange(MergeCopy &first, MergeCopy &second)
{
    second.load(first.dump());
    first.load(second.dump());
}

/// Returns whether three copies that set the same setting to different values in these seconds
/// agree after merging.
bool agree(const std::array<qint64, 3> &seconds)
{
    std::array<MergeCopy, 3> copies;
    for (size_t i = 0; i < 3; ++i)
        copies[i].set(sNumber, 10 + int(i), seconds[i]);
    for (int round = 0; round < 3; ++round) {
        exchange(copies[0], copies[1]);
        exchange(copies[1], copies[2]);
        exchange(copies[2], copies[0]);
    }
    return seen(copies[0], sNumber) == seen(copies[1], sNumber)
           && seen(copies[1], sNumber) == seen(copies[2], sNumber);
}

void changeAtRandom(MergeWorld &world, std::mt19937 &random)
{
    static const MergeStep::Kind sKinds[] = {MergeStep::Set, MergeStep::Restore, MergeStep::Create,
                                             MergeStep::Remove};
    const auto below = [&](int limit) { return int(random() % unsigned(limit)); };
    for (int change = 0; change < 10; ++change) {
        MergeStep step;
        step.kind = sKinds[below(4)];
        step.copy = below(3);
        step.key = below(int(sMergeKeys.size()));
        step.value = below(6);
        step.clock = below(3);
        world.apply(step);
    }
}

/// Returns whether two of the three copies changed a shared key in the same second.
bool hasTie(MergeWorld &world)
{
    for (size_t key = 0; key < sMergeKeys.size(); ++key) {
        for (size_t i = 0; i < 3 && !sMergeKeys[key].local; ++i) {
            const auto mine = world.copy(i).state()[key].time;
            if (mine && mine == world.copy((i + 1) % 3).state()[key].time)
                return true;
        }
    }
    return false;
}

/// Returns whether the three copies agree on all shared keys, or with `timesOnly` on their
/// timestamps.
bool agree(MergeWorld &world, bool timesOnly)
{
    for (size_t key = 0; key < sMergeKeys.size(); ++key) {
        const MergeCell first = world.copy(0).state()[key];
        for (size_t i = 1; i < 3 && !sMergeKeys[key].local; ++i) {
            const MergeCell other = world.copy(i).state()[key];
            if (timesOnly ? other.time != first.time : other != first)
                return false;
        }
    }
    return true;
}

} // namespace

/// Changes of one key with equal timestamps: which copy keeps which value, and how often copies
/// disagree.
class tst_MergingTies : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void newerChangeWinsAndAtATieEachCopyKeepsItsOwn_data();
    void newerChangeWinsAndAtATieEachCopyKeepsItsOwn();
    void thirdCopyKeepsTheValueThatItLoadsFirst();
    void secondChangeWithinOneSecondIsNotMerged();
    void laterChangeEndsTheDisagreement();
    void threeCopiesThatNeverAgree_data();
    void threeCopiesThatNeverAgree();
    void randomHistoriesThatNeverAgree();
    void twoComputersAgreeAndTheNewerChangeUndoesARemoval();
    void restoredEntryWithoutPresetGetsTheFirstValueOfEachCopy();
    void settingARemovedEntryBlocksOlderChanges();
    void resolvedTieHasOneWinner_data();
    void resolvedTieHasOneWinner();
    void resolvedTieComparesTheTextThatIsDumped_data();
    void resolvedTieComparesTheTextThatIsDumped();
    void resolvedTieOfTheLocalFileHasTheSameWinner();
    void loadingAgainCallsNoCallbackIfTiesAreResolved();
    void equalChangeIsNotTakenAgain_data();
    void equalChangeIsNotTakenAgain();
    void numberThatJsonDoesNotHaveLosesLikeTheDefault();
    void valueThatEqualsThePresetStaysAValue();
    void unboundKeyKeepsItsTie();
    void emptyTextIsNotNull();
    void everyOrderOfOneSecondHasTheSameResult_data();
    void everyOrderOfOneSecondHasTheSameResult();
    void randomHistoriesAgreeIfTiesAreResolved();
};

void tst_MergingTies::newerChangeWinsAndAtATieEachCopyKeepsItsOwn_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("first");   // change of the first copy in second 100
    QTest::addColumn<int>("second");  // change of the second copy
    QTest::addColumn<qint64>("when"); // timestamp of the second copy's change
    QTest::addColumn<int>("firstKeeps");
    QTest::addColumn<int>("secondKeeps");

    const auto row = [](const char *name, size_t key, int first, int second, qint64 when,
                        int firstKeeps, int secondKeeps) {
        QTest::newRow(name) << int(key) << first << second << when << firstKeeps << secondKeeps;
    };
    row("two values: each copy keeps its own", sNumber, 10, 20, 100, 10, 20);
    row("the same value: copies agree", sNumber, 10, 10, 100, 10, 10);
    row("set and restored: each copy keeps its own", sNumber, 10, Restored, 100, 10, 1);
    row("both restored: copies agree", sNumber, Restored, Restored, 100, 1, 1);
    row("one second later wins", sNumber, 10, 20, 101, 20, 20);
    row("one second earlier loses", sNumber, 10, 20, 99, 10, 10);
    row("created twice: each copy keeps its own", sEntry, 10, 20, 100, 10, 20);
    row("set and removed: each copy keeps its own", sPreset, 10, Removed, 100, 10, Removed);
    row("both removed: copies agree", sPreset, Removed, Removed, 100, Removed, Removed);
    row("removal one second later wins", sPreset, 10, Removed, 101, Removed, Removed);
    row("removal one second earlier loses", sPreset, 10, Removed, 99, 10, 10);
    row("restored and removed: each copy keeps its own", sPreset, Restored, Removed, 100, 2,
        Removed);
    row("set and unchanged: set", sNumber, 10, Untouched, 100, 10, 10);
    row("removed and unchanged: removed", sPreset, Removed, Untouched, 100, Removed, Removed);
}

void tst_MergingTies::newerChangeWinsAndAtATieEachCopyKeepsItsOwn()
{
    QFETCH(int, key);
    QFETCH(int, first);
    QFETCH(int, second);
    QFETCH(qint64, when);
    for (const bool firstGivesFirst : {true, false}) {
        MergeCopy a, b;
        for (MergeCopy *copy : {&a, &b}) { // restoring needs a value that is not the default
            if (sMergeKeys[size_t(key)].defaultValue)
                copy->set(size_t(key), 5, 50);
        }
        change(a, size_t(key), first, 100);
        change(b, size_t(key), second, when);
        for (int round = 0; round < 3; ++round)
            firstGivesFirst ? exchange(a, b) : exchange(b, a);
        QTEST(seen(a, size_t(key)), "firstKeeps");
        QTEST(seen(b, size_t(key)), "secondKeeps");
        QCOMPARE(a.state()[size_t(key)].time, b.state()[size_t(key)].time);
    }
}

void tst_MergingTies::thirdCopyKeepsTheValueThatItLoadsFirst()
{
    MergeCopy a, b, fromA, fromB;
    a.set(sNumber, 10, 100);
    b.set(sNumber, 20, 100);
    fromA.load(a.dump());
    fromA.load(b.dump());
    fromB.load(b.dump());
    fromB.load(a.dump());
    QCOMPARE(seen(fromA, sNumber), 10);
    QCOMPARE(seen(fromB, sNumber), 20);
}

void tst_MergingTies::secondChangeWithinOneSecondIsNotMerged()
{
    MergeCopy a, b;
    a.set(sNumber, 10, 100);
    b.load(a.dump());
    a.set(sNumber, 11, 100);
    exchange(a, b);
    QCOMPARE(seen(a, sNumber), 11);
    QCOMPARE(seen(b, sNumber), 10);
}

void tst_MergingTies::laterChangeEndsTheDisagreement()
{
    MergeCopy a, b;
    a.set(sPreset, 10, 100);
    b.remove(sPreset, 100);
    exchange(a, b);
    QVERIFY(seen(a, sPreset) != seen(b, sPreset));
    a.set(sPreset, 10, 101); // the same value, but a newer timestamp
    exchange(a, b);
    QCOMPARE(seen(a, sPreset), 10);
    QCOMPARE(seen(b, sPreset), 10);
}

void tst_MergingTies::threeCopiesThatNeverAgree_data()
{
    // Exactly one copy has the newest timestamp in 3 * (0² + 1² + ... + (n-1)²) of n³ cases. In
    // these all copies agree.
    QTest::addColumn<int>("seconds");
    QTest::addColumn<int>("never");
    QTest::addColumn<int>("cases");
    QTest::newRow("within 1 second") << 1 << 1 << 1;
    QTest::newRow("within 2 seconds") << 2 << 5 << 8;
    QTest::newRow("within 3 seconds") << 3 << 12 << 27;
    QTest::newRow("within 10 seconds") << 10 << 145 << 1000;
}

void tst_MergingTies::threeCopiesThatNeverAgree()
{
    QFETCH(int, seconds);
    int never = 0, cases = 0;
    for (int a = 1; a <= seconds; ++a) {
        for (int b = 1; b <= seconds; ++b) {
            for (int c = 1; c <= seconds; ++c, ++cases)
                never += !agree({a, b, c});
        }
    }
    qInfo("three copies change one setting within %d s: %d of %d cases never agree (%.1f %%)",
          seconds, never, cases, 100.0 * never / cases);
    QTEST(never, "never");
    QTEST(cases, "cases");
}

void tst_MergingTies::randomHistoriesThatNeverAgree()
{
    constexpr int starts = 2000;
    std::mt19937 random(1);
    int tied = 0, never = 0;
    for (int start = 0; start < starts; ++start) {
        MergeWorld world(std::vector<MergeSystem>(3, MergeSystem::Own), MergeTimes::Tied);
        changeAtRandom(world, random);
        const bool tie = hasTie(world);
        for (int round = 0; round < 2; ++round)
            world.exchangeAll();
        const bool agreed = agree(world, false);
        QVERIFY(agreed || tie);
        QVERIFY(agree(world, true));
        tied += tie;
        never += !agreed;
    }
    qInfo("%d random starts of three copies, ten changes in three seconds: %d have a tie, "
          "%d of these never agree (%.1f %%)",
          starts, tied, never, 100.0 * never / tied);
    QVERIFY(never > 0);
    QVERIFY(never < tied);
}

void tst_MergingTies::twoComputersAgreeAndTheNewerChangeUndoesARemoval()
{
    MergeCopy desktop, laptop;
    desktop.set(sNumber, 5, 100);
    desktop.create(sEntry, 5, 100);
    laptop.set(sNumber, 8, 110);
    exchange(desktop, laptop);
    QCOMPARE(seen(desktop, sNumber), 8);
    QCOMPARE(seen(laptop, sEntry), 5);
    desktop.remove(sEntry, 130);
    desktop.restore(sNumber, 140);
    laptop.set(sEntry, 6, 140);
    exchange(desktop, laptop);
    const QJsonObject expected{{"Plain.a", QJsonObject{{"t", 140}}},
                               {"Entry.a", QJsonObject{{"t", 140}, {"v", QJsonObject{{"n", 6}}}}}};
    QCOMPARE(desktop.dump(), expected);
    QCOMPARE(laptop.dump(), expected);
}

void tst_MergingTies::restoredEntryWithoutPresetGetsTheFirstValueOfEachCopy()
{
    // The default of an entry without a preset is the value that it was created with, and a copy
    // that loads the entry later creates it with a later value.
    MergeCopy a, early, late;
    a.create(sEntry, 10, 100);
    early.load(a.dump());
    a.set(sEntry, 20, 200);
    late.load(a.dump());
    a.restore(sEntry, 300);
    early.load(a.dump());
    late.load(a.dump());
    QCOMPARE(seen(a, sEntry), 10);
    QCOMPARE(seen(early, sEntry), 10);
    QCOMPARE(seen(late, sEntry), 20);
    QCOMPARE(late.state()[sEntry].time, a.state()[sEntry].time);
}

void tst_MergingTies::settingARemovedEntryBlocksOlderChanges()
{
    MergeCopy a, b;
    b.create(sEntry, 10, 150);
    a.create(sEntry, 5, 50);
    a.remove(sEntry, 100);
    QTest::ignoreMessage(QtWarningMsg, "ConfStorage::set key not found:  \"Entry.a\"");
    a.set(sEntry, 7, 200);
    exchange(a, b);
    QCOMPARE(seen(a, sEntry), int(Removed));
    QCOMPARE(seen(b, sEntry), 10);
    b.set(sEntry, 11, 201);
    exchange(a, b);
    QCOMPARE(seen(a, sEntry), 11);
}

void tst_MergingTies::resolvedTieHasOneWinner_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("first"); // both changes are of second 100
    QTest::addColumn<int>("second");
    QTest::addColumn<int>("winner");

    const auto row = [](const char *name, size_t key, int first, int second, int winner) {
        QTest::newRow(name) << int(key) << first << second << winner;
    };
    row("two values: the greater text", sNumber, 10, 20, 20);
    row("two values: the text, not the number", sNumber, 10, 9, 9);
    row("set and restored: set", sNumber, 10, Restored, 10);
    row("both restored: restored", sNumber, Restored, Restored, 1);
    row("created twice: the greater text", sEntry, 10, 20, 20);
    row("set and removed: removed", sPreset, 10, Removed, Removed);
    row("restored and removed: removed", sPreset, Restored, Removed, Removed);
    row("both removed: removed", sPreset, Removed, Removed, Removed);
    row("set and unchanged: set", sNumber, 10, Untouched, 10);
    row("removed and unchanged: removed", sPreset, Removed, Untouched, Removed);
}

void tst_MergingTies::resolvedTieHasOneWinner()
{
    QFETCH(int, key);
    QFETCH(int, first);
    QFETCH(int, second);
    for (const bool isSwapped : {false, true}) {
        MergeCopy a(MergeSystem::Own, MergeTies::Greater), b(MergeSystem::Own, MergeTies::Greater);
        for (MergeCopy *copy : {&a, &b}) {
            if (sMergeKeys[size_t(key)].defaultValue)
                copy->set(size_t(key), 5, 50);
        }
        change(isSwapped ? b : a, size_t(key), first, 100);
        change(isSwapped ? a : b, size_t(key), second, 100);
        exchange(a, b);
        QTEST(seen(a, size_t(key)), "winner");
        QTEST(seen(b, size_t(key)), "winner");
        QCOMPARE(a.dump(), b.dump());
    }
}

void tst_MergingTies::resolvedTieComparesTheTextThatIsDumped_data()
{
    QTest::addColumn<QJsonValue>("color");
    QTest::addColumn<QString>("kept"); // by a store that has "ff00aa00"
    QTest::newRow("the same in capitals") << QJsonValue("FF00AA00") << "ff00aa00";
    QTest::newRow("smaller in capitals") << QJsonValue("FF00A900") << "ff00aa00";
    QTest::newRow("greater in capitals, which precede small letters")
        << QJsonValue("FF00AB00") << "ff00ab00";
    QTest::newRow("smaller after a zero that is not dumped") << QJsonValue("0f") << "ff00aa00";
    QTest::newRow("no colour, whose text is smaller") << QJsonValue("None") << "ff00aa00";
    QTest::newRow("fewer digits that are greater") << QJsonValue("fff") << "fff";
    QTest::newRow("another type, read as 0") << QJsonValue(true) << "ff00aa00";
}

void tst_MergingTies::resolvedTieComparesTheTextThatIsDumped()
{
    QFETCH(QJsonValue, color);
    QFETCH(QString, kept);
    QColor variable(Qt::black);
    ConfStorage store;
    store.mFileOptions = ConfStorage::ResolveTies;
    store.reserveConf("c", &variable);
    const auto load = [&](const QJsonValue &value) {
        store.loadConf({{"c", QJsonObject{{"t", 100}, {"v", value}}}}, ConfStorage::LoadShared);
    };
    load("ff00aa00");
    load(color);
    QCOMPARE(store.mConfValues["c"].toJsonValue(), QJsonValue(kept));
}

void tst_MergingTies::resolvedTieOfTheLocalFileHasTheSameWinner()
{
    int number = 1;
    ConfStorage store;
    store.mFileOptions = ConfStorage::ResolveTies;
    store.reserveConf("n", &number);
    for (const int value : {5, 3, 7})
        store.loadConf({{"n", QJsonObject{{"t", 100}, {"v", value}}}}, ConfStorage::LoadLocal);
    QCOMPARE(number, 7);
}

void tst_MergingTies::loadingAgainCallsNoCallbackIfTiesAreResolved()
{
    MergeCopy a(MergeSystem::Own, MergeTies::Greater), b(MergeSystem::Own, MergeTies::Greater);
    a.set(sNumber, 10, 100);
    a.create(sEntry, 5, 100);
    b.load(a.dump());
    int calls = 0;
    for (const size_t key : {sNumber, sEntry})
        b.store().setConfChangedCallback(MergeCopy::name(key),
                                         [&](const QString &, const ConfValue *) { ++calls; });
    b.load(a.dump());
    QCOMPARE(calls, 0);
    a.set(sNumber, 9, 100);
    b.load(a.dump());
    QCOMPARE(calls, 1);
}

void tst_MergingTies::equalChangeIsNotTakenAgain_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QJsonObject>("entry");
    const QJsonObject restored{{"t", 100}};
    QTest::newRow("value") << int(sNumber) << QJsonObject{{"t", 100}, {"v", 5}};
    QTest::newRow("default") << int(sNumber) << restored;
    QTest::newRow("default of a preset") << int(sPreset) << restored;
    QTest::newRow("removal") << int(sPreset) << QJsonObject{{"d", 100}};
}

void tst_MergingTies::equalChangeIsNotTakenAgain()
{
    QFETCH(int, key);
    QFETCH(QJsonObject, entry);
    MergeCopy copy(MergeSystem::Own, MergeTies::Greater);
    const QJsonObject dump{{MergeCopy::name(size_t(key)), entry}};
    copy.load(dump);
    QCOMPARE(copy.store().lastLoad().taken, 1);
    copy.load(dump);
    QCOMPARE(copy.store().lastLoad().taken, 0);
    QCOMPARE(copy.store().lastLoad().newerHere, 1);
}

void tst_MergingTies::numberThatJsonDoesNotHaveLosesLikeTheDefault()
{
    double infinite = 1, finite = 1;
    ConfStorage a, b;
    for (const auto &[store, variable] : {std::make_pair(&a, &infinite), {&b, &finite}}) {
        store->mFileOptions = ConfStorage::ResolveTies;
        store->reserveConf("x", variable);
        store->set<double>("x", store == &a ? qInf() : 0.5);
        store->mConfMetas["x"].lastChangeTime = QDateTime::fromSecsSinceEpoch(100, Qt::UTC);
    }
    b.loadConf(a.dumpConf(ConfStorage::DumpShared), ConfStorage::LoadShared);
    a.loadConf(b.dumpConf(ConfStorage::DumpShared), ConfStorage::LoadShared);
    QCOMPARE(infinite, 0.5);
    QCOMPARE(finite, 0.5);
}

void tst_MergingTies::valueThatEqualsThePresetStaysAValue()
{
    MergeCopy a(MergeSystem::Own, MergeTies::Greater), b(MergeSystem::Own, MergeTies::Greater);
    a.set(sPreset, 2, 100);
    b.remove(sPreset, 50);
    b.load(a.dump());
    QCOMPARE(b.dump(), a.dump());
    QVERIFY(b.store().isEqualToDefault(MergeCopy::name(sPreset)));
    b.restart();
    QCOMPARE(b.dump(), a.dump());
}

void tst_MergingTies::unboundKeyKeepsItsTie()
{
    int number = 1;
    ConfStorage store;
    store.mFileOptions = ConfStorage::ResolveTies;
    store.reserveConf("n", &number);
    const auto load = [&](const QJsonValue &value) {
        store.loadConf({{"n", QJsonObject{{"t", 100}, {"v", value}}}}, ConfStorage::LoadShared);
    };
    load(QJsonValue());
    const LogCapture log;
    load(5);
    QCOMPARE(number, 1);
    QVERIFY(log.messages().isEmpty());
}

void tst_MergingTies::emptyTextIsNotNull()
{
    QString text;
    ConfStorage store;
    store.mFileOptions = ConfStorage::ResolveTies;
    store.reserveConf("s", &text);
    int calls = 0;
    for (const char *value : {"", "", "a", ""}) {
        store.loadConf({{"s", QJsonObject{{"t", 100}, {"v", value}}}}, ConfStorage::LoadShared);
        store.setConfChangedCallback("s", [&](const QString &, const ConfValue *) { ++calls; });
    }
    QCOMPARE(text, QString("a"));
    QCOMPARE(calls, 1);
}

namespace {

/// A member of a dump.
using Change100 = std::pair<QString, QJsonValue>;

/// Merges `changes` one after the other, and declares the setting "n" with the former name "old",
/// the class "Entry." and its preset "Entry.p" after the first `declaredAfter` ones.
QJsonObject mergedDump(const std::vector<Change100> &changes, size_t declaredAfter)
{
    int number = 1;
    std::map<QString, QJsonObject> entries;
    ConfStorage store;
    store.mFileOptions = ConfStorage::ResolveTies | ConfStorage::KeepUnknownEntries
                         | ConfStorage::NullIsDefault | ConfStorage::StrictTypes;
    store.mPresetDynamicConfs["Entry.p"] = QJsonObject{{"n", 2}};
    store.addFormerName("n", "old");
    ConfStorage::DynamicConfClass cls;
    cls.prefix = "Entry.";
    cls.creator = [&](const QString &key, const QJsonValue *value) {
        QJsonObject &entry = entries[key] = value->toObject();
        store.reserveConf(key, &entry);
    };
    for (size_t i = 0; i <= changes.size(); ++i) {
        if (i == declaredAfter) {
            store.reserveConf("n", &number);
            store.mDynamicConfClasses.append(&cls);
            store.loadPresetDynamicConf();
        }
        if (i < changes.size())
            store.loadConf({{changes[i].first, changes[i].second}}, ConfStorage::LoadShared);
    }
    return store.dumpConf(ConfStorage::DumpShared);
}

} // namespace

void tst_MergingTies::everyOrderOfOneSecondHasTheSameResult_data()
{
    QTest::addColumn<QStringList>("names"); // of the entries
    QTest::addColumn<bool>("isDynamic");
    QTest::newRow("setting") << QStringList{"n"} << false;
    QTest::newRow("setting and its former name") << QStringList{"n", "old"} << false;
    QTest::newRow("dynamic entry") << QStringList{"Entry.a"} << true;
    QTest::newRow("preset") << QStringList{"Entry.p"} << true;
}

void tst_MergingTies::everyOrderOfOneSecondHasTheSameResult()
{
    QFETCH(QStringList, names);
    QFETCH(bool, isDynamic);
    std::vector<QJsonObject> kinds{{{"t", 100}, {"v", QJsonValue()}}};
    for (const int value : {2, 3, 10})
        kinds.push_back(
            {{"t", 100}, {"v", isDynamic ? QJsonValue(QJsonObject{{"n", value}}) : value}});
    if (isDynamic)
        kinds.push_back({{"d", 100}});
    if (names != QStringList("Entry.a")) // which cannot be restored without a preset
        kinds.push_back({{"t", 100}});
    else
        kinds.erase(kinds.begin());
    int orders = 0;
    for (unsigned chosen = 1; chosen < 1U << kinds.size(); ++chosen) {
        std::vector<Change100> changes;
        std::vector<int> order;
        for (size_t kind = 0; kind < kinds.size(); ++kind) {
            if (!(chosen & (1U << kind)))
                continue;
            order.push_back(int(changes.size()));
            changes.push_back({names.at(int(kind) % int(names.size())), kinds[kind]});
        }
        const QJsonObject expected = mergedDump(changes, 0);
        do {
            std::vector<Change100> ordered;
            for (const int index : order)
                ordered.push_back(changes[size_t(index)]);
            // Of entries that were kept, the current name wins ties, until dumps are exchanged.
            const size_t last = names.size() == 1 ? changes.size() : 0;
            for (size_t declared = 0; declared <= last; ++declared, ++orders)
                QCOMPARE(mergedDump(ordered, declared), expected);
        } while (std::next_permutation(order.begin(), order.end()));
    }
    QVERIFY(orders > 100);
}

void tst_MergingTies::randomHistoriesAgreeIfTiesAreResolved()
{
    std::mt19937 random(1);
    int tied = 0;
    for (int start = 0; start < 1000; ++start) {
        MergeWorld world(std::vector<MergeSystem>(3, MergeSystem::Own), MergeTimes::Tied,
                         MergeTies::Greater);
        changeAtRandom(world, random);
        tied += hasTie(world);
        world.exchangeAll();
        QVERIFY(agree(world, false));
    }
    QVERIFY(tied > 0);
}

int main(int argc, char **argv)
{
    return runTest<tst_MergingTies>(argc, argv);
}

#include "tst_MergingTies.moc"
