#pragma once

#include "InputChords_p.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

namespace MtConf {

/// The hotkeys, shortcuts and gestures that are settings, by what they use. Knows keys of settings
/// only.
class SettingInputs
{
public:
    enum class Kind { Hotkey, Shortcut, Gesture };

    struct Input
    {
        Kind kind = Kind::Hotkey;
        int index = 0;   ///< its place among the declarations
        InputKeys keys;  ///< of hotkeys and shortcuts
        int gesture = 0; ///< of gestures, as `gestureConflictKey` returns it; 0 if there is none
    };

    /// Adds the setting `key`, or replaces it.
    void set(const QString &key, const Input &input);
    void clear();

    bool contains(const QString &key) const { return mInputs.contains(key); }
    Input input(const QString &key) const { return mInputs.value(key); }
    QStringList keys() const { return mInputs.keys(); }

    /// Returns the settings that can meet `keys` in one window, in the order of the declarations.
    QStringList meeting(const InputKeys &keys) const;
    /// Returns the settings with one of `chords`, in any order.
    QSet<QString> withChords(const InputChords &chords) const;
    /// Returns the settings that conflict with `gesture`, in the order of the declarations.
    QStringList withGesture(int gesture) const;

private:
    void index(const QString &key, const Input &input, bool isUsed);
    QStringList sorted(QStringList keys) const;

    QHash<QString, Input> mInputs;
    QHash<int, QSet<QString>> mByChord;
    QHash<int, QSet<QString>> mByGesture;
};

} // namespace MtConf
