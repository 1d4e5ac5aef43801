#include <OrvUtils/GetKeySequence.h>

#include "KeyChord_p.h"

#include <QKeyEvent>
#include <QKeySequence>

namespace {

#ifdef Q_OS_MACOS
constexpr KeyboardKind sKeyboard = KeyboardKind::Mac;
#else
constexpr KeyboardKind sKeyboard = KeyboardKind::Pc;
#endif

} // namespace

QKeySequence GetKeySequence(const QKeyEvent *event)
{
    const int chord = event ? keyChord(event->key(), event->modifiers(), sKeyboard) : 0;
    return chord == 0 ? QKeySequence() : QKeySequence(chord);
}
