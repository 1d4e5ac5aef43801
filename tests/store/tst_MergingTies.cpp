#include "MergeWorld.h"

#include "support/TestMain.h"

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

int main(int argc, char **argv)
{
    return runTest<tst_MergingTies>(argc, argv);
}

#include "tst_MergingTies.moc"
