#include "InputChords_p.h"

#include "QtCompat_p.h"

#include <algorithm>

namespace MtConf {

namespace {

bool takesNothing(const InputKeys &keys)
{
    return keys.chords.isEmpty() || (keys.isGlobal && keys.chords.size() > 1);
}

} // namespace

InputChords chordsOf(const QKeySequence &keys)
{
    InputChords chords;
    for (int i = 0; i < keys.count(); ++i) {
        const int chord = QtCompat::chordAt(keys, i);
        const int key = chord & ~static_cast<int>(Qt::KeyboardModifierMask);
        if (key == 0 || key == Qt::Key_unknown)
            return {};
        chords.append(chord);
    }
    return chords;
}

bool doMeet(const InputKeys &a, const InputKeys &b)
{
    if (takesNothing(a) || takesNothing(b))
        return false;
    if (a.isGlobal)
        return b.chords.contains(a.chords.first());
    if (b.isGlobal)
        return a.chords.contains(b.chords.first());
    const auto common = std::min(a.chords.size(), b.chords.size());
    return a.chords.mid(0, common) == b.chords.mid(0, common);
}

} // namespace MtConf
