#pragma once

#include <QtGlobal>

#include <algorithm>
#include <array>
#include <optional>
#include <ostream>

/// One key of the simulated programs.
struct SharingKey
{
    const char *name;
    bool dynamic;                    ///< created and removed at run time
    bool system;                     ///< stored per operating system, with a system mark
    std::optional<int> defaultValue; ///< default value; for a dynamic key its preset, if any
};

constexpr std::array<SharingKey, 7> sSharingKeys{{
    {"Plain.a", false, false, 1},
    {"Plain.b", false, false, 1},
    {"System.a", false, true, 1},
    {"Entry.a", true, false, {}},
    {"Entry.preset", true, false, 2},
    {"SystemEntry.a", true, true, {}},
    {"SystemEntry.preset", true, true, 2},
}};

/// Seconds from here on are in the future.
constexpr qint64 sSharingFuture = 4000000000;

/// The entry of a key in a file or a dump.
struct SharingEntry
{
    enum Kind { Value, Default, Removal };

    Kind kind = Value;
    int value = 0; ///< 0 unless the kind is `Value`
    qint64 time = 0;

    bool operator==(const SharingEntry &other) const
    {
        return kind == other.kind && value == other.value && time == other.time;
    }
};

inline std::ostream &operator<<(std::ostream &out, const std::optional<SharingEntry> &entry)
{
    if (!entry)
        return out << "no entry";
    switch (entry->kind) {
    case SharingEntry::Value: out << entry->value; break;
    case SharingEntry::Default: out << "default"; break;
    case SharingEntry::Removal: out << "removed"; break;
    }
    return out << " at " << entry->time;
}

/// A file or a dump.
using SharingEntries = std::array<std::optional<SharingEntry>, sSharingKeys.size()>;

/// The visible state of one key in one program.
struct SharingCell
{
    bool present = false;
    int value = 0;              ///< 0 when not present
    std::optional<qint64> time; ///< of the last change or removal in seconds, if any

    bool operator==(const SharingCell &other) const
    {
        return present == other.present && value == other.value && time == other.time;
    }
};

inline std::ostream &operator<<(std::ostream &out, const SharingCell &cell)
{
    cell.present ? out << cell.value : out << "absent";
    cell.time ? out << " at " << *cell.time : out << " untouched";
    return out;
}

using SharingState = std::array<SharingCell, sSharingKeys.size()>;

/// A second implementation of the rule by which a program shares its file, on plain cells instead
/// of maps, flags and text. Keys are indexes into `sSharingKeys`.
///
/// Operations touch entries; assigning the variable does not. A save does not change what it finds
/// in the file for an entry that is not touched. A touched entry yields to that of the file if
/// others have changed it since this program last read or wrote the file, and its second is later
/// and not in the future. Otherwise the touched entry is written; its second becomes the next one
/// after that of the file if it is not later.
class SharingModel
{
public:
    SharingModel()
    {
        for (size_t key = 0; key < sSharingKeys.size(); ++key) {
            if (!sSharingKeys[key].dynamic)
                mCells[key] = {{true, *sSharingKeys[key].defaultValue, {}}, true};
        }
    }

    SharingState state() const
    {
        SharingState state;
        std::copy(mCells.begin(), mCells.end(), state.begin());
        return state;
    }
    bool isPresent(size_t key) const { return mCells[key].present; }
    /// Returns whether the host assigned the variable after the last operation that changed it.
    bool isAssigned(size_t key) const { return mCells[key].isAssigned; }
    bool hasChanges() const { return mHasChanges; }

    void set(size_t key, int value, qint64 now) { change(key, {SharingEntry::Value, value, now}); }
    void remove(size_t key, qint64 now) { change(key, {SharingEntry::Removal, 0, now}); }
    void restore(size_t key, qint64 now)
    {
        if (!mCells[key].isDefault)
            change(key, {SharingEntry::Default, 0, now});
    }
    void assign(size_t key, int value)
    {
        mCells[key].value = value;
        mCells[key].isAssigned = true;
    }
    void loadPresets()
    {
        for (size_t key = 0; key < sSharingKeys.size(); ++key) {
            const SharingKey &info = sSharingKeys[key];
            if (info.dynamic && info.defaultValue && !mCells[key].present && !mCells[key].time) {
                mCells[key] = {{true, *info.defaultValue, {}}, true};
                mHasChanges = true;
            }
        }
    }
    /// Merges a dump: the newer change wins, and a tie keeps that of this program.
    void import(const SharingEntries &dump)
    {
        for (size_t key = 0; key < sSharingKeys.size(); ++key) {
            if (dump[key] && (!mCells[key].time || *mCells[key].time < dump[key]->time))
                change(key, *dump[key]);
        }
    }

    /// Returns the dump of this program.
    SharingEntries entries() const
    {
        SharingEntries entries;
        for (size_t key = 0; key < sSharingKeys.size(); ++key)
            entries[key] = entryOf(mCells[key]);
        return entries;
    }

    void load(const SharingEntries &file)
    {
        for (size_t key = 0; key < sSharingKeys.size(); ++key) {
            if (isChangedByOthers(key, file) && (!mTouched[key] || yields(key, *file[key])))
                take(key, *file[key]);
        }
        mSeen = file;
        loadPresets();
        mHasChanges = std::count(mTouched.begin(), mTouched.end(), true) > 0;
    }

    void save(SharingEntries *file)
    {
        if (!mHasChanges)
            return;
        for (size_t key = 0; key < sSharingKeys.size(); ++key) {
            std::optional<SharingEntry> &theirs = (*file)[key];
            const bool isChanged = isChangedByOthers(key, *file);
            if (theirs && isChanged && (!mTouched[key] || yields(key, *theirs))) {
                take(key, *theirs);
            } else if (mTouched[key] || !theirs) {
                if (theirs && !(entryOf(mCells[key]) == theirs))
                    mCells[key].time = std::max(*mCells[key].time, theirs->time + 1);
                theirs = entryOf(mCells[key]);
            }
        }
        mSeen = *file;
        mTouched.fill(false);
        mHasChanges = false;
    }

private:
    struct Cell : SharingCell
    {
        bool isDefault = false; // known to have the default value, which is dumped without a value
        bool isAssigned = false;
    };

    static std::optional<SharingEntry> entryOf(const Cell &cell)
    {
        if (!cell.time)
            return std::nullopt;
        if (!cell.present)
            return SharingEntry{SharingEntry::Removal, 0, *cell.time};
        if (cell.isDefault)
            return SharingEntry{SharingEntry::Default, 0, *cell.time};
        return SharingEntry{SharingEntry::Value, cell.value, *cell.time};
    }

    bool isChangedByOthers(size_t key, const SharingEntries &file) const
    {
        return file[key] && !(file[key] == mSeen[key]);
    }

    bool yields(size_t key, const SharingEntry &theirs) const
    {
        return theirs.time > *mCells[key].time && theirs.time < sSharingFuture;
    }

    void change(size_t key, const SharingEntry &entry)
    {
        put(key, entry);
        mTouched[key] = true;
        mHasChanges = true;
    }

    void take(size_t key, const SharingEntry &entry)
    {
        put(key, entry);
        mTouched[key] = false;
    }

    void put(size_t key, const SharingEntry &entry)
    {
        Cell &cell = mCells[key];
        const SharingKey &info = sSharingKeys[key];
        const bool isCreated = !cell.present;
        cell.time = entry.time;
        switch (entry.kind) {
        case SharingEntry::Removal: cell = {{false, 0, entry.time}}; break;
        case SharingEntry::Default:
            // Restoring what is restored already does not change the variable.
            if (!cell.isDefault)
                cell = {{true, *info.defaultValue, entry.time}, true};
            break;
        case SharingEntry::Value:
            // An entry that is created with the value of its preset counts as restored.
            cell = {{true, entry.value, entry.time}, isCreated && info.defaultValue == entry.value};
            break;
        }
    }

    std::array<Cell, sSharingKeys.size()> mCells{};
    SharingEntries mSeen{}; // the file when it was last read or written
    std::array<bool, sSharingKeys.size()> mTouched{};
    bool mHasChanges = false;
};
