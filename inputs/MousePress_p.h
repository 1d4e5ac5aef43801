#pragma once

#include <QMouseEvent>
#include <QPointF>
#include <QPointer>

namespace MtConf {

/// The gestures of one mouse button.
struct ButtonGestures
{
    Qt::MouseButton button;
    int click;
    int doubleClick;
    int drag;
};

/// One press of a button.
struct MousePress
{
    QPointer<QObject> receiver;
    const ButtonGestures *gestures = nullptr; // null: the button has none
    Qt::MouseButton button = Qt::NoButton;
    int modifiers = 0;
    QPointF position;
    QPointF globalPosition;
    quint64 time = 0;           // in milliseconds; 0 if the event has none
    bool isDoubleClick = false; // for Qt, which compares the times
    bool isTouch = false;
};

/// Returns the press of an event that `receiver` gets; null is allowed.
MousePress mousePressOf(QObject *receiver, const QMouseEvent &event);

/// Returns the modifiers that gestures have, as the bits of a gesture's value.
int gestureModifiers(Qt::KeyboardModifiers modifiers);

/// Returns whether the platform takes two presses for a double click. The times are not compared if
/// one of the presses has none, or if Qt has compared them.
bool isDoubleClick(const MousePress &first, const MousePress &second);

} // namespace MtConf
