#include "MergeWorld.h"

#include "support/TestMain.h"

#include <rapidcheck.h>

#include <algorithm>
#include <random>
#include <utility>

// Each test runs a thousand random histories. A failure prints the shortest failing history found
// and a value of the environment variable RC_PARAMS that reproduces it.

namespace {

using Pairs = std::vector<std::pair<size_t, size_t>>;

rc::Gen<MergeStep> anyStep()
{
    const auto kind = rc::gen::weightedElement<MergeStep::Kind>({{6, MergeStep::Set},
                                                                 {3, MergeStep::Restore},
                                                                 {4, MergeStep::Create},
                                                                 {4, MergeStep::Remove},
                                                                 {1, MergeStep::RestoreClass},
                                                                 {1, MergeStep::Restart},
                                                                 {5, MergeStep::Export},
                                                                 {5, MergeStep::Import}});
    return rc::gen::build<MergeStep>(
        rc::gen::set(&MergeStep::kind, kind),
        rc::gen::set(&MergeStep::copy, rc::gen::inRange(0, 5)),
        rc::gen::set(&MergeStep::key, rc::gen::inRange(0, int(sMergeKeys.size()))),
        rc::gen::set(&MergeStep::value, rc::gen::inRange(0, 6)),
        rc::gen::set(&MergeStep::clock, rc::gen::inRange(0, 30)));
}

rc::Gen<std::vector<MergeStep>> anySteps()
{
    return rc::gen::container<std::vector<MergeStep>>(anyStep());
}

std::vector<MergeSystem> anySystems(size_t count)
{
    return *rc::gen::container<std::vector<MergeSystem>>(
        count, rc::gen::element(MergeSystem::Own, MergeSystem::Own, MergeSystem::Foreign));
}

std::vector<MergeSystem> twoToFiveSystems()
{
    return anySystems(*rc::gen::inRange<size_t>(2, 6));
}

MergeTies anyTies()
{
    return *rc::gen::element(MergeTies::Stored, MergeTies::Greater);
}

/// Merges every copy into every other one once, in random order.
void exchangeInAnyOrder(MergeWorld &world)
{
    Pairs pairs;
    for (size_t from = 0; from < world.count(); ++from) {
        for (size_t to = 0; to < world.count(); ++to) {
            if (from != to)
                pairs.emplace_back(from, to);
        }
    }
    std::shuffle(pairs.begin(), pairs.end(), std::mt19937(*rc::gen::arbitrary<unsigned>()));
    for (const auto &pair : pairs)
        world.exchange(pair.first, pair.second);
}

/// Returns whether two copies share `key`, so that merging must make them agree.
bool isShared(const MergeKey &key, MergeCopy &first, MergeCopy &second)
{
    return !key.local && (!key.system || first.system() == second.system());
}

/// Returns the newest cell of `key` among the copies that share it with copy `index`.
MergeCell newestCell(MergeWorld &world, size_t index, size_t key)
{
    MergeCell newest = world.copy(index).state()[key];
    for (size_t other = 0; other < world.count(); ++other) {
        const MergeCell cell = world.copy(other).state()[key];
        if (isShared(sMergeKeys[key], world.copy(index), world.copy(other))
            && cell.time.value_or(0) > newest.time.value_or(0))
            newest = cell;
    }
    return newest;
}

} // namespace

/// Copies of a configuration that are changed and merged at random.
class tst_Merging : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void storeMatchesTheModel();
    void copiesAgreeIfNoTwoChangesShareATimestamp();
    void newestChangeWinsWhetherItSetsOrRemoves();
    void timestampsAgreeEvenWithTies();
    void keysOfAnotherSystemAreNeverTouched();
    void localOnlyValuesAreNeverShared();
    void loadingTwiceEqualsLoadingOnce();
    void mergingIsAssociative();
    void orderOfTwoCopiesMattersOnlyWithTies();
    void threeCopiesAgreeIfTiesAreResolved();
    void orderOfTwoCopiesNeverMattersIfTiesAreResolved();
};

void tst_Merging::storeMatchesTheModel()
{
    QVERIFY(rc::check([] {
        const auto times = *rc::gen::element(MergeTimes::Unique, MergeTimes::Tied);
        MergeWorld world(twoToFiveSystems(), times, anyTies());
        for (const MergeStep &step : *anySteps()) {
            world.apply(step);
            const size_t index = size_t(step.copy) % world.count();
            RC_ASSERT(world.copy(index).state() == world.model(index).state());
            const QDateTime newest = world.copy(index).store().calcLastConfTime();
            RC_ASSERT(newest.isValid() == world.model(index).newest().has_value());
            RC_ASSERT(!newest.isValid()
                      || newest.toSecsSinceEpoch() == *world.model(index).newest());
        }
    }));
}

void tst_Merging::copiesAgreeIfNoTwoChangesShareATimestamp()
{
    QVERIFY(rc::check([] {
        MergeWorld world(twoToFiveSystems(), MergeTimes::Unique);
        world.apply(*anySteps());
        exchangeInAnyOrder(world);
        const MergeState first = world.copy(0).state();
        for (size_t index = 1; index < world.count(); ++index) {
            const MergeState state = world.copy(index).state();
            for (size_t key = 0; key < sMergeKeys.size(); ++key)
                RC_ASSERT(state[key] == first[key]
                          || !isShared(sMergeKeys[key], world.copy(0), world.copy(index)));
        }
    }));
}

void tst_Merging::newestChangeWinsWhetherItSetsOrRemoves()
{
    QVERIFY(rc::check([] {
        MergeWorld world(twoToFiveSystems(), MergeTimes::Unique);
        world.apply(*anySteps());
        std::vector<MergeState> expected(world.count());
        for (size_t index = 0; index < world.count(); ++index) {
            for (size_t key = 0; key < sMergeKeys.size(); ++key)
                expected[index][key] = newestCell(world, index, key);
        }
        exchangeInAnyOrder(world);
        for (size_t index = 0; index < world.count(); ++index)
            RC_ASSERT(world.copy(index).state() == expected[index]);
    }));
}

void tst_Merging::timestampsAgreeEvenWithTies()
{
    QVERIFY(rc::check([] {
        MergeWorld world(twoToFiveSystems(), MergeTimes::Tied);
        world.apply(*anySteps());
        exchangeInAnyOrder(world);
        for (size_t index = 0; index < world.count(); ++index) {
            for (size_t key = 0; key < sMergeKeys.size(); ++key)
                RC_ASSERT(world.copy(index).state()[key].time
                          == newestCell(world, index, key).time);
        }
    }));
}

void tst_Merging::keysOfAnotherSystemAreNeverTouched()
{
    QVERIFY(rc::check([] {
        MergeWorld world({MergeSystem::Own, MergeSystem::Foreign}, MergeTimes::Unique);
        world.apply(*anySteps());
        const MergeState before = world.copy(0).state();
        world.exchange(1, 0);
        for (size_t key = 0; key < sMergeKeys.size(); ++key)
            RC_ASSERT(!sMergeKeys[key].system || world.copy(0).state()[key] == before[key]);
        // Entries of another system are not passed on either: a copy does not keep them.
        const QStringList members = world.copy(0).dump().keys();
        RC_ASSERT(members.filter("#s.win").isEmpty());
    }));
}

void tst_Merging::localOnlyValuesAreNeverShared()
{
    QVERIFY(rc::check([] {
        MergeWorld world({MergeSystem::Own, MergeSystem::Own}, MergeTimes::Unique);
        world.apply(*anySteps());
        const QJsonObject dump = world.copy(0).dump();
        RC_ASSERT(!dump.contains("Local.a"));
        // The tombstone of a local-only entry is shared; its value is not.
        const QJsonObject local = dump.value("LocalEntry.a").toObject();
        RC_ASSERT(local.isEmpty() || local.keys() == QStringList("d"));
        const MergeState before = world.copy(1).state();
        world.exchange(0, 1);
        for (size_t key = 0; key < sMergeKeys.size(); ++key)
            RC_ASSERT(!sMergeKeys[key].local || world.copy(1).state()[key] == before[key]);
    }));
}

void tst_Merging::loadingTwiceEqualsLoadingOnce()
{
    QVERIFY(rc::check([] {
        const auto times = *rc::gen::element(MergeTimes::Unique, MergeTimes::Tied);
        MergeWorld world(anySystems(2), times, anyTies());
        world.apply(*anySteps());
        const QJsonObject dump = world.copy(1).dump();
        world.copy(0).load(dump);
        const MergeState once = world.copy(0).state();
        const QJsonObject dumpOfOnce = world.copy(0).dump();
        world.copy(0).load(dump);
        RC_ASSERT(world.copy(0).state() == once);
        RC_ASSERT(world.copy(0).dump() == dumpOfOnce);
        world.copy(0).load(dumpOfOnce);
        RC_ASSERT(world.copy(0).state() == once);
    }));
}

void tst_Merging::mergingIsAssociative()
{
    QVERIFY(rc::check([] {
        const auto times = *rc::gen::element(MergeTimes::Unique, MergeTimes::Tied);
        // Copies of different systems would not do: each drops the entries of the others.
        const std::vector<MergeSystem> systems(3, MergeSystem::Own);
        const std::vector<MergeStep> steps = *anySteps();
        const MergeTies ties = anyTies();
        MergeWorld firstTwo(systems, times, ties), lastTwo(systems, times, ties);
        firstTwo.apply(steps);
        lastTwo.apply(steps);
        firstTwo.exchange(1, 0);
        firstTwo.exchange(2, 0);
        lastTwo.exchange(2, 1);
        lastTwo.exchange(1, 0);
        RC_ASSERT(firstTwo.copy(0).state() == lastTwo.copy(0).state());
    }));
}

void tst_Merging::orderOfTwoCopiesMattersOnlyWithTies()
{
    QVERIFY(rc::check([] {
        const auto times = *rc::gen::element(MergeTimes::Unique, MergeTimes::Tied);
        const std::vector<MergeSystem> systems(2, MergeSystem::Own);
        const std::vector<MergeStep> steps = *anySteps();
        MergeWorld oneWay(systems, times), otherWay(systems, times);
        oneWay.apply(steps);
        otherWay.apply(steps);
        const MergeState first = oneWay.copy(0).state();
        const MergeState second = oneWay.copy(1).state();
        oneWay.exchange(1, 0);
        otherWay.exchange(0, 1);
        for (size_t key = 0; key < sMergeKeys.size(); ++key) {
            const bool tied = first[key].time && first[key].time == second[key].time;
            RC_ASSERT(sMergeKeys[key].local || tied
                      || oneWay.copy(0).state()[key] == otherWay.copy(1).state()[key]);
            // At a tie each copy keeps its own value.
            RC_ASSERT(!tied
                      || (oneWay.copy(0).state()[key] == first[key]
                          && otherWay.copy(1).state()[key] == second[key]));
        }
    }));
}

void tst_Merging::threeCopiesAgreeIfTiesAreResolved()
{
    QVERIFY(rc::check([] {
        MergeWorld world(anySystems(3), MergeTimes::Tied, MergeTies::Greater);
        world.apply(*anySteps());
        exchangeInAnyOrder(world);
        for (size_t index = 1; index < world.count(); ++index) {
            const MergeState first = world.copy(0).state(), other = world.copy(index).state();
            for (size_t key = 0; key < sMergeKeys.size(); ++key)
                RC_ASSERT(other[key] == first[key]
                          || !isShared(sMergeKeys[key], world.copy(0), world.copy(index)));
        }
        // The bytes agree as well, except for local-only keys and those of other systems.
        if (world.copy(0).system() == world.copy(1).system()) {
            QJsonObject first = world.copy(0).dump(), second = world.copy(1).dump();
            first.remove("LocalEntry.a");
            second.remove("LocalEntry.a");
            RC_ASSERT(first == second);
        }
    }));
}

void tst_Merging::orderOfTwoCopiesNeverMattersIfTiesAreResolved()
{
    QVERIFY(rc::check([] {
        const std::vector<MergeSystem> systems(2, MergeSystem::Own);
        const std::vector<MergeStep> steps = *anySteps();
        MergeWorld oneWay(systems, MergeTimes::Tied, MergeTies::Greater);
        MergeWorld otherWay(systems, MergeTimes::Tied, MergeTies::Greater);
        oneWay.apply(steps);
        otherWay.apply(steps);
        oneWay.exchange(1, 0);
        otherWay.exchange(0, 1);
        for (size_t key = 0; key < sMergeKeys.size(); ++key)
            RC_ASSERT(sMergeKeys[key].local
                      || oneWay.copy(0).state()[key] == otherWay.copy(1).state()[key]);
    }));
}

int main(int argc, char **argv)
{
    const QByteArray parameters = qgetenv("RC_PARAMS");
    if (!parameters.contains("max_success"))
        qputenv("RC_PARAMS", "max_success=1000 " + parameters);
    return runTest<tst_Merging>(argc, argv);
}

#include "tst_Merging.moc"
