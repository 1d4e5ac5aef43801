#pragma once

#include <QtGlobal>

#include <algorithm>
#include <array>
#include <optional>
#include <ostream>
#include <string>

/// One key of the simulated host.
struct MergeKey
{
    const char *name;
    bool dynamic;                    ///< created and removed at run time
    bool system;                     ///< stored per operating system, with a system mark
    bool local;                      ///< local-only: never shared with other copies
    std::optional<int> defaultValue; ///< default value; for a dynamic key its preset, if any
};

constexpr std::array<MergeKey, 10> sMergeKeys{{
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

/// The visible state of one key in one copy.
struct MergeCell
{
    bool present = false;
    int value = 0;              ///< 0 when not present
    std::optional<qint64> time; ///< timestamp of the last change or removal in seconds, if any

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

using MergeState = std::array<MergeCell, sMergeKeys.size()>;

/// Which change a tie keeps.
enum class MergeTies {
    Stored, ///< each copy its own
    Greater ///< the one with the greater text in every copy, with `ConfStorage::ResolveTies`
};

inline std::ostream &operator<<(std::ostream &out, MergeTies ties)
{
    return out << (ties == MergeTies::Stored ? "stored change wins ties" : "ties are resolved");
}

/// A second implementation of the merge rules, on plain cells instead of maps, flags and JSON.
/// Keys are indexes into `sMergeKeys`.
class MergeModel
{
public:
    explicit MergeModel(MergeTies ties = MergeTies::Stored) : mTies(ties)
    {
        for (size_t key = 0; key < sMergeKeys.size(); ++key) {
            if (sMergeKeys[key].defaultValue)
                put(key, *sMergeKeys[key].defaultValue, {}, true);
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
            put(key, sMergeKeys[key].defaultValue.value(), now, true);
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
    /// Restores the presets of the class of `ofKey`; removed presets of all classes are created
    /// again.
    void restoreClass(size_t ofKey, qint64 now)
    {
        for (size_t key = 0; key < sMergeKeys.size(); ++key) {
            const MergeKey &info = sMergeKeys[key];
            if (!info.dynamic)
                continue;
            const bool inClass = info.system == sMergeKeys[ofKey].system
                                 && info.local == sMergeKeys[ofKey].local;
            if (info.defaultValue && (inClass || !mState[key].present))
                restore(key, now);
            else if (inClass)
                remove(key, now);
        }
    }
    /// Writes the local file and loads it again: the visible state does not change.
    void restart()
    {
        if (mTies == MergeTies::Greater)
            return; // the file says which values are restored ones
        for (size_t key = 0; key < sMergeKeys.size(); ++key) {
            if (sMergeKeys[key].dynamic && isDefault(key, mState[key].value))
                mKnownDefault[key] = mState[key].present;
        }
    }
    /// Takes every newer change from `other`, and of changes with equal timestamps those that win.
    void merge(const MergeModel &other, bool sameSystem)
    {
        for (size_t key = 0; key < sMergeKeys.size(); ++key) {
            const MergeKey &info = sMergeKeys[key];
            const MergeCell &theirs = other.mState[key];
            if (!theirs.time || info.local || (info.system && !sameSystem))
                continue;
            if (mState[key].time && *mState[key].time > *theirs.time)
                continue;
            if (mState[key].time == theirs.time
                && (mTies == MergeTies::Stored || weight(key) >= other.weight(key)))
                continue;
            const bool created = info.dynamic && !mState[key].present && mTies == MergeTies::Stored;
            if (!theirs.present)
                drop(key, *theirs.time);
            else
                put(key, theirs.value, theirs.time,
                    other.mKnownDefault[key] || (created && isDefault(key, theirs.value)));
        }
    }
    /// Returns the timestamp of the newest change that other copies may know, including removals
    /// of local-only keys.
    std::optional<qint64> newest() const
    {
        std::optional<qint64> time;
        for (size_t key = 0; key < sMergeKeys.size(); ++key) {
            if (mState[key].time && !(sMergeKeys[key].local && mState[key].present))
                time = std::max(time, mState[key].time);
        }
        return time;
    }

private:
    /// The order of changes with equal timestamps.
    std::string weight(size_t key) const
    {
        if (!mState[key].present)
            return "removed"; // letters are greater than digits
        return mKnownDefault[key] ? std::string() : std::to_string(mState[key].value);
    }
    static bool isDefault(size_t key, int value) { return sMergeKeys[key].defaultValue == value; }
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

    MergeTies mTies;
    MergeState mState;
    // Setting a value that equals the default is a change; restoring a value that is flagged as
    // default is not.
    std::array<bool, sMergeKeys.size()> mKnownDefault{};
};
