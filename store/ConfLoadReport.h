#pragma once

/// @file

#include <QString>
#include <QVector>

/// What one load of a file or a dump did. Entries of other systems, and in a shared load those of
/// local-only keys, are skipped without being counted.
///
/// @see ConfStorage::lastLoad
/// @since 0.1
struct ConfLoadReport
{
    /// Why an entry was refused.
    enum class Reason {
        WrongType,     ///< the value has another JSON type than the setting; see `StrictTypes`
        NotSavable,    ///< no local file could hold the value
        FutureTime,    ///< the timestamp is too far ahead; see `RefuseFutureTimes`
        LimitExceeded, ///< a key that is too long, or one key too many
        OutOfRange     ///< a constraint refuses the value; see `ConfStorage::setConfConstraint`
    };

    /// An entry that was not merged.
    struct Refusal
    {
        QString key;   ///< without a system mark
        Reason reason; ///< why it was not merged
    };

    QString file;             ///< the path of the file; empty for a dump
    int taken = 0;            ///< entries that were merged
    int newerHere = 0;        ///< entries that are not newer than the change in the store
    int unknown = 0;          ///< entries of keys that are not declared, or were not created
    QVector<Refusal> refused; ///< at most 20, the first ones
    int refusedCount = 0;     ///< of all refused entries
    bool isDamaged = false;   ///< whether the file, or the text of the dump, could not be parsed
    QString damagedCopy;      ///< where a copy of the damaged file is; empty if there is none
};
