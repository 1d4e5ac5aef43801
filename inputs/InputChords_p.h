#pragma once

#include <QKeySequence>
#include <QVector>

namespace MtConf {

/// The chords of a key sequence, each a key with its modifiers in one number.
using InputChords = QVector<int>;

/// Returns the chords of `keys`; none if they are empty, or if one of them has no key.
InputChords chordsOf(const QKeySequence &keys);

/// Which keys a shortcut takes.
struct InputKeys
{
    InputChords chords;
    bool isGlobal = false; ///< whether the system takes them from every program
};

/// Returns whether one of the two keeps the other from working, if both work in the same window.
///
/// The system takes the chord of a global hotkey from every sequence that contains it. In a
/// program a sequence keeps all longer ones that begin with it from working. A global hotkey of
/// several chords cannot be registered and takes nothing.
bool doMeet(const InputKeys &a, const InputKeys &b);

} // namespace MtConf
