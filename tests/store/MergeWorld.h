#pragma once

#include "MergeCopy.h"

#include <memory>
#include <ostream>
#include <vector>

/// One step of a history.
struct MergeStep
{
    enum Kind { Set, Restore, Create, Remove, RestoreClass, Restart, Export, Import };

    Kind kind = Set;
    int copy = 0;  ///< index of the copy, modulo the number of copies
    int key = 0;   ///< index into `sMergeKeys`
    int value = 0; ///< value to set; for an import, the index of an earlier export
    int clock = 0; ///< the copy's clock; it may jump forwards and backwards
};

inline std::ostream &operator<<(std::ostream &out, const MergeStep &step)
{
    static const char *const sNames[] = {"set",           "restore", "create", "remove",
                                         "restore class", "restart", "export", "import"};
    return out << sNames[step.kind] << " copy " << step.copy << ' '
               << sMergeKeys[size_t(step.key)].name << " value " << step.value << " clock "
               << step.clock;
}

/// How the clock of a step becomes a timestamp.
enum class MergeTimes {
    Unique, ///< no two changes have the same timestamp
    Tied    ///< all changes share three timestamps
};

inline std::ostream &operator<<(std::ostream &out, MergeTimes times)
{
    return out << (times == MergeTimes::Unique ? "unique times" : "tied times");
}

/// Several copies that are changed and merged, each with the model whose state it must match.
class MergeWorld
{
public:
    explicit MergeWorld(const std::vector<MergeSystem> &systems, MergeTimes times,
                        MergeTies ties = MergeTies::Stored)
        : mTimes(times)
    {
        for (const MergeSystem system : systems)
            mCopies.push_back(std::make_unique<MergeCopy>(system, ties));
        mModels.resize(systems.size(), MergeModel(ties));
    }

    size_t count() const { return mCopies.size(); }
    MergeCopy &copy(size_t index) { return *mCopies[index]; }
    const MergeModel &model(size_t index) const { return mModels[index]; }

    /// Applies `step`, unless it is not possible in the current state.
    void apply(const MergeStep &step)
    {
        const qint64 now = mTimes == MergeTimes::Unique ? 10000 * (step.clock + 1) + ++mSteps
                                                        : step.clock % 3 + 1;
        const size_t index = size_t(step.copy) % count();
        const size_t key = size_t(step.key);
        MergeCopy &copy = *mCopies[index];
        MergeModel &model = mModels[index];
        const bool present = model.state()[key].present;
        const bool dynamic = sMergeKeys[key].dynamic;
        switch (step.kind) {
        case MergeStep::Set:
            if (present)
                both(copy, model, [&](auto &it) { it.set(key, step.value, now); });
            break;
        case MergeStep::Restore:
            if (sMergeKeys[key].defaultValue)
                both(copy, model, [&](auto &it) { it.restore(key, now); });
            break;
        case MergeStep::Create:
            if (dynamic && !present)
                both(copy, model, [&](auto &it) { it.create(key, step.value, now); });
            break;
        case MergeStep::Remove:
            if (dynamic && present)
                both(copy, model, [&](auto &it) { it.remove(key, now); });
            break;
        case MergeStep::RestoreClass:
            if (dynamic)
                both(copy, model, [&](auto &it) { it.restoreClass(key, now); });
            break;
        case MergeStep::Restart: both(copy, model, [](auto &it) { it.restart(); }); break;
        case MergeStep::Export: mExports.push_back({copy.dump(), model, copy.system()}); break;
        case MergeStep::Import:
            if (!mExports.empty())
                load(index, mExports[size_t(step.value) % mExports.size()]);
            break;
        }
    }
    void apply(const std::vector<MergeStep> &steps)
    {
        for (const MergeStep &step : steps)
            apply(step);
    }

    /// Merges the current state of copy `from` into copy `to`.
    void exchange(size_t from, size_t to)
    {
        load(to, {mCopies[from]->dump(), mModels[from], mCopies[from]->system()});
    }
    /// Merges every copy into every other one once.
    void exchangeAll()
    {
        for (size_t from = 0; from < count(); ++from) {
            for (size_t to = 0; to < count(); ++to) {
                if (from != to)
                    exchange(from, to);
            }
        }
    }

private:
    struct Exported
    {
        QJsonObject dump;
        MergeModel model;
        MergeSystem system;
    };

    template<class Action> static void both(MergeCopy &copy, MergeModel &model, Action action)
    {
        action(copy);
        action(model);
    }
    void load(size_t to, const Exported &exported)
    {
        mCopies[to]->load(exported.dump);
        mModels[to].merge(exported.model, exported.system == mCopies[to]->system());
    }

    const MergeTimes mTimes;
    qint64 mSteps = 0;
    std::vector<std::unique_ptr<MergeCopy>> mCopies;
    std::vector<MergeModel> mModels;
    std::vector<Exported> mExports;
};
