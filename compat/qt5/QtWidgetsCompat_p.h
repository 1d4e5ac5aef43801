#pragma once

#include <QApplication>
#include <QMouseEvent>
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

} // namespace QtCompat
