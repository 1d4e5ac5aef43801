#pragma once

/// @file

#include <QDateTime>
#include <QJsonValue>
#include <QString>

#include <functional>

/// One operation of the store on one key, as an observer hears it.
///
/// @see ConfStorage::addObserver, ConfStorage::previewLoad
/// @since 0.1
struct ConfChange
{
    /// Why the store changed the key.
    enum class Cause {
        Set,      ///< the program set the value
        Edited,   ///< the user changed the value in an editor
        Restored, ///< the default value was restored
        Loaded,   ///< the change was merged from a file or a dump
        Created,  ///< a dynamic key was created
        Removed   ///< a dynamic key was removed
    };

    /// A key before or after the operation.
    struct State
    {
        bool isPresent = false;                  ///< whether the key has a value
        bool isDefault = false;                  ///< whether the key is flagged default
        QJsonValue value{QJsonValue::Undefined}; ///< see `ConfValue::toJsonValue`; or undefined
    };

    QString key;              ///< the key that changed, without a system mark
    Cause cause = Cause::Set; ///< why it changed
    State before;             ///< read from the variable just before the operation
    State after;              ///< read when the operation on the key is complete
    QDateTime time;           ///< the timestamp that the change has in the store, in UTC
    quint64 operation = 0;    ///< equal for all changes of one outermost operation
};

/// A function that hears each change of a store. It may add and remove observers, itself included,
/// and call any function of the store.
///
/// @see ConfStorage::addObserver
/// @since 0.1
using ConfObserver = std::function<void(const ConfChange &change)>;
