#include "KeyChord_p.h"

namespace {

Qt::KeyboardModifier ownModifier(int key)
{
    switch (key) {
    case Qt::Key_Shift: return Qt::ShiftModifier;
    case Qt::Key_Control: return Qt::ControlModifier;
    case Qt::Key_Alt: return Qt::AltModifier;
    case Qt::Key_Meta: return Qt::MetaModifier;
    default: return Qt::NoModifier;
    }
}

bool isArrow(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Up || key == Qt::Key_Right || key == Qt::Key_Down;
}

} // namespace

int keyChord(int key, Qt::KeyboardModifiers modifiers, KeyboardKind keyboard)
{
    if (key <= 0 || key >= Qt::Key_unknown)
        return 0;
    modifiers &= Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier
                 | Qt::KeypadModifier;
    // The event of a modifier key already reports its own modifier.
    modifiers &= ~Qt::KeyboardModifiers(ownModifier(key));
    if (keyboard == KeyboardKind::Mac && isArrow(key))
        modifiers &= ~Qt::KeyboardModifiers(Qt::KeypadModifier);
    if (key == Qt::Key_Backtab && modifiers.testFlag(Qt::ShiftModifier))
        key = Qt::Key_Tab;
    return key | static_cast<int>(modifiers);
}
