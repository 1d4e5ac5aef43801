#pragma once

#include <QJsonValue>
#include <QKeySequence>
#include <QList>
#include <QString>

#include <variant>

namespace MtConf {

class InputRegistry;
struct InputUse;

/// The value of a hotkey or a shortcut, or of a gesture.
using InputValue = std::variant<QKeySequence, int>;

/// Returns the stored value of the setting `key`, of the type of `like`; empty if there is none.
InputValue storedInput(const QString &key, const InputValue &like);
void storeInput(const QString &key, const InputValue &value);
/// Returns the value of that type that means "not set".
InputValue emptyInput(const InputValue &like);
QJsonValue inputToJson(const InputValue &value);

/// Returns `value` as the user reads it, such as "Ctrl+K" or "Ctrl + Left Click".
QString inputInWords(const InputValue &value);
/// Returns the names of the first uses, as a list in one line.
QString namesOfUses(const QList<InputUse> &uses);

/// A value and the kind of setting that has it.
struct InputSetting
{
    InputValue value;
    bool isGlobal = false; ///< whether it is a hotkey
};

/// Returns whether a setting can do something with its value: keys that can be registered, or a
/// gesture with an action.
bool hasEffect(const InputSetting &setting);
/// Returns whether the values of two settings that work in the same window are in conflict.
bool doConflict(const InputSetting &a, const InputSetting &b);
/// Returns what would be in conflict with the setting `key` if it had the value `value`.
QList<InputUse> conflictsWith(const InputRegistry &registry, const QString &key,
                              const InputValue &value);

/// Returns whether users need `keys` to type and to edit texts: characters, also with Shift, and,
/// for hotkeys that work in every program, the usual editing shortcuts such as Ctrl+C.
bool isNeededForTyping(const QKeySequence &keys, bool isGlobal);

} // namespace MtConf
