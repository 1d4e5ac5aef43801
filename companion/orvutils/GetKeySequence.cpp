#include <OrvUtils/GetKeySequence.h>

#include <QKeyEvent>
#include <QKeySequence>

namespace {

// The modifier that a key itself stands for.
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

} // namespace

QKeySequence GetKeySequence(const QKeyEvent *event)
{
    if (!event || event->key() <= 0 || event->key() >= Qt::Key_unknown)
        return QKeySequence();
    Qt::KeyboardModifiers modifiers = event->modifiers();
    modifiers &= Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier
                 | Qt::KeypadModifier;
    // Qt counts a modifier key that goes down as held already.
    modifiers &= ~Qt::KeyboardModifiers(ownModifier(event->key()));
    const bool isShiftTab = event->key() == Qt::Key_Backtab
                            && modifiers.testFlag(Qt::ShiftModifier);
    const int key = isShiftTab ? static_cast<int>(Qt::Key_Tab) : event->key();
    return QKeySequence(key | static_cast<int>(modifiers));
}
