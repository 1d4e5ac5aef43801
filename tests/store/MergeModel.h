#pragma once

#include <QtGlobal>

#include <algorithm>
#include <array>
#include <optional>
#include <ostream>

/// One key of the simulated host.
struct MergeKey
{
    const char *name;
    bool dynamic;                    ///< comes and goes at run time
    bool system;                     ///< each operating system keeps a value of its own
    bool local;                      ///< never leaves its copy
    std::optional<int> defaultValue; ///< of an ordinary key; of a dynamic one its preset, if any
};

constexpr std::array<MergeKey, 10> mergeKeys{{
    {"Plain.a", false, false, false, 1},
    {"Plain.b", false, false, false, 1},
    {"System.a", false, true, false, 1},
    {"Local.a", false, false, true, 1},
    {"Entry.a", true, false, false, {}},
    {"Entry.b", true, false, false, {}},
    {"Entry.preset", true, false, false, 2},
    {"SystemEntry.a", true, true, false, {}},
    {"SystemEntry.preset", true, true, false, 2},
    {"LocalEntry.a", true, false, true, {}},
}};

/// What anybody can see of one key in one copy.
struct MergeCell
{
    bool present = false;
    int value = 0;              ///< 0 when not present
    std::optional<qint64> time; ///< second of the last change or removal, if there was one

    bool operator==(const MergeCell &other) const
    {
        return present == other.present && value == other.value && time == other.time;
    }
    bool operator!=(const MergeCell &other) const { return !(*this == other); }
};

inline std::ostream &operator<<(std::ostream &out, const MergeCell &cell)
{
    cell.present ? out << cell.value : out << "absent";
    cell.time ? out << " at " << *cell.time : out << " untouched";
    return out;
}

using MergeState = std::array<MergeCell, mergeKeys.size()>;

/// The rules of merging written down once more, over plain cells instead of maps, flags and JSON.
/// Keys are numbers: positions in `mergeKeys`.
class MergeModel
{
public:
    MergeModel()
    {
        for (size_t key = 0; key < mergeKeys.size(); ++key) {
            if (mergeKeys[key].defaultValue)
                put(key, *mergeKeys[key].defaultValue, {}, true);
        }
    }

    const MergeState &state() const { return mState; }

    void set(size_t key, int value, qint64 now)
    {
        if (mState[key].present)
            put(key, value, now, false);
    }
    void restore(size_t key, qint64 now)
    {
        if (!(mState[key].present && mKnownDefault[key]))
            put(key, mergeKeys[key].defaultValue.value(), now, true);
    }
    void create(size_t key, int value, qint64 now)
    {
        if (!mState[key].present)
            put(key, value, now, isDefault(key, value));
    }
    void remove(size_t key, qint64 now)
    {
        if (mState[key].present)
            drop(key, now);
    }
    /// Back to the presets for the class of `key`; removed presets of all classes come back.
    void restoreClass(size_t ofKey, qint64 now)
    {
        for (size_t key = 0; key < mergeKeys.size(); ++key) {
            const MergeKey &info = mergeKeys[key];
            if (!info.dynamic)
                continue;
            const bool inClass = info.system == mergeKeys[ofKey].system
                                 && info.local == mergeKeys[ofKey].local;
            if (info.defaultValue && (inClass || !mState[key].present))
                restore(key, now);
            else if (inClass)
                remove(key, now);
        }
    }
    /// Written to the local file and read again: nothing that can be seen changes.
    void restart()
    {
        for (size_t key = 0; key < mergeKeys.size(); ++key) {
            if (mergeKeys[key].dynamic && isDefault(key, mState[key].value))
                mKnownDefault[key] = mState[key].present;
        }
    }
    /// Takes what is newer in `other`. Equal seconds keep what is here.
    void merge(const MergeModel &other, bool sameSystem)
    {
        for (size_t key = 0; key < mergeKeys.size(); ++key) {
            const MergeKey &info = mergeKeys[key];
            const MergeCell &theirs = other.mState[key];
            if (!theirs.time || info.local || (info.system && !sameSystem))
                continue;
            if (mState[key].time && *mState[key].time >= *theirs.time)
                continue;
            const bool created = info.dynamic && !mState[key].present;
            if (!theirs.present)
                drop(key, *theirs.time);
            else
                put(key, theirs.value, theirs.time,
                    other.mKnownDefault[key] || (created && isDefault(key, theirs.value)));
        }
    }
    /// The newest change that other copies may know of, local-only removals included.
    std::optional<qint64> newest() const
    {
        std::optional<qint64> time;
        for (size_t key = 0; key < mergeKeys.size(); ++key) {
            if (mState[key].time && !(mergeKeys[key].local && mState[key].present))
                time = std::max(time, mState[key].time);
        }
        return time;
    }

private:
    static bool isDefault(size_t key, int value) { return mergeKeys[key].defaultValue == value; }
    void put(size_t key, int value, std::optional<qint64> time, bool knownDefault)
    {
        mState[key] = {true, value, time};
        mKnownDefault[key] = knownDefault;
    }
    void drop(size_t key, qint64 time)
    {
        mState[key] = {false, 0, time};
        mKnownDefault[key] = false;
    }

    MergeState mState;
    // A value set to exactly its default is a change; restoring what is known to be the default is
    // not.
    std::array<bool, mergeKeys.size()> mKnownDefault{};
};
