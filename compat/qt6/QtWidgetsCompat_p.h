#pragma once

#include <QApplication>
#include <QKeySequence>
#include <QList>
#include <QMouseEvent>
#include <QShortcut>
#include <QSize>
#include <QVariant>

// What QtCompat_p.h holds, for what needs Qt Widgets.
namespace QtCompat {

/// The least size of everything that is clicked. Qt 6 knows none: none it is, as Qt 5 has it by
/// default.
inline QSize globalStrut()
{
    return QSize(0, 0);
}

/// Returns whether the values are equal after one is converted to the type of the other, as an enum
/// to an int. Qt 6 itself does that for numbers and texts only.
inline bool isEqual(const QVariant &a, QVariant b)
{
    return a == b || (b.convert(a.metaType()) && a == b);
}

/// Returns the position of the mouse in the widget.
inline QPointF positionOf(const QMouseEvent &event)
{
    return event.position();
}

/// Returns the position of the mouse on the screen.
inline QPointF globalPositionOf(const QMouseEvent &event)
{
    return event.globalPosition();
}

/// Returns all key sequences of the shortcut.
inline QList<QKeySequence> keysOf(const QShortcut &shortcut)
{
    return shortcut.keys();
}

} // namespace QtCompat
