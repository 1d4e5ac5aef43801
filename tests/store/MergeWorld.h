#pragma once

#include "MergeCopy.h"

#include <memory>
#include <ostream>
#include <vector>

/// One thing that happens in a history.
struct MergeStep
{
    enum Kind { Set, Restore, Create, Remove, RestoreClass, Restart, Export, Import };

    Kind kind = Set;
    int copy = 0;  ///< where it happens; counted modulo the number of copies
    int key = 0;   ///< position in `mergeKeys`
    int value = 0; ///< to set; for an import, which of the dumps exported so far
    int clock = 0; ///< what the copy's clock shows; clocks may go wrong and back
};

inline std::ostream &operator<<(std::ostream &out, const MergeStep &step)
{
    static const char *const sNames[] = {"set",           "restore", "create", "remove",
                                         "restore class", "restart", "export", "import"};
    return out << sNames[step.kind] << " copy " << step.copy << ' '
               << mergeKeys[size_t(step.key)].name << " value " << step.value << " clock "
               << step.clock;
}

/// How steps get their seconds from their clocks.
enum class MergeTimes {
    Unique, ///< no two changes bear the same second
    Tied    ///< three seconds for everything
};

inline std::ostream &operator<<(std::ostream &out, MergeTimes times)
{
    return out << (times == MergeTimes::Unique ? "unique times" : "tied times");
}

/// Some copies and what happens to them; each with the model that it has to follow.
class MergeWorld
{
public:
    explicit MergeWorld(const std::vector<MergeSystem> &systems, MergeTimes times) : mTimes(times)
    {
        for (const MergeSystem system : systems)
            mCopies.push_back(std::make_unique<MergeCopy>(system));
        mModels.resize(systems.size());
    }

    size_t count() const { return mCopies.size(); }
    MergeCopy &copy(size_t index) { return *mCopies[index]; }
    const MergeModel &model(size_t index) const { return mModels[index]; }

    /// Lets `step` happen, unless it makes no sense at this moment.
    void apply(const MergeStep &step)
    {
        const qint64 now = mTimes == MergeTimes::Unique ? 10000 * (step.clock + 1) + ++mSteps
                                                        : step.clock % 3 + 1;
        const size_t index = size_t(step.copy) % count();
        const size_t key = size_t(step.key);
        MergeCopy &copy = *mCopies[index];
        MergeModel &model = mModels[index];
        const bool present = model.state()[key].present;
        const bool dynamic = mergeKeys[key].dynamic;
        switch (step.kind) {
        case MergeStep::Set:
            if (present)
                both(copy, model, [&](auto &it) { it.set(key, step.value, now); });
            break;
        case MergeStep::Restore:
            if (mergeKeys[key].defaultValue)
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

    /// Copy `to` loads what copy `from` holds now.
    void exchange(size_t from, size_t to)
    {
        load(to, {mCopies[from]->dump(), mModels[from], mCopies[from]->system()});
    }
    /// Every copy loads every other one once.
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
