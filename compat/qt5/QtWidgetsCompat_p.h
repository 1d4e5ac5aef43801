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

/// The least size of everything that is clicked, which a host may set.
inline QSize globalStrut()
{
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    return QApplication::globalStrut();
    QT_WARNING_POP
}

/// Returns whether the values are equal after one is converted to the type of the other, as an enum
/// to an int.
inline bool isEqual(const QVariant &a, const QVariant &b)
{
    return a == b;
}

/// Returns the position of the mouse in the widget.
inline QPointF positionOf(const QMouseEvent &event)
{
    return event.localPos();
}

/// Returns the position of the mouse on the screen.
inline QPointF globalPositionOf(const QMouseEvent &event)
{
    return event.screenPos();
}

/// Returns all key sequences of the shortcut. In Qt 5 it has one.
inline QList<QKeySequence> keysOf(const QShortcut &shortcut)
{
    return {shortcut.key()};
}

} // namespace QtCompat
