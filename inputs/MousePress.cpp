#include "MousePress_p.h"

#include "QtWidgetsCompat_p.h"

#include <MaltoConfiguration/inputs/GestureRecognizer.h>

#include <QGuiApplication>
#include <QStyleHints>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace MtConf {

namespace {

constexpr Qt::KeyboardModifiers sModifiers = Qt::ShiftModifier | Qt::ControlModifier
                                             | Qt::AltModifier | Qt::MetaModifier;

constexpr ButtonGestures sButtons[] = {
    {Qt::LeftButton, LeftClickGesture, LeftDoubleClickGesture, LeftDragGesture},
    {Qt::RightButton, RightClickGesture, RightDoubleClickGesture, RightDragGesture},
    {Qt::MiddleButton, MiddleClickGesture, MiddleDoubleClickGesture, MiddleDragGesture},
};

/// Returns null for buttons without gestures.
const ButtonGestures *gesturesOf(Qt::MouseButton button)
{
    const auto found = std::find_if(
        std::begin(sButtons), std::end(sButtons),
        [button](const ButtonGestures &gestures) { return gestures.button == button; });
    return found == std::end(sButtons) ? nullptr : found;
}

} // namespace

MousePress mousePressOf(QObject *receiver, const QMouseEvent &event)
{
    return {receiver,
            gesturesOf(event.button()),
            event.button(),
            gestureModifiers(event.modifiers()),
            QtCompat::positionOf(event),
            QtCompat::globalPositionOf(event),
            event.timestamp(),
            event.type() == QEvent::MouseButtonDblClick,
            event.source() != Qt::MouseEventNotSynthesized};
}

int gestureModifiers(Qt::KeyboardModifiers modifiers)
{
    return static_cast<int>(modifiers & sModifiers);
}

bool isDoubleClick(const MousePress &first, const MousePress &second)
{
    const QStyleHints *hints = QGuiApplication::styleHints();
    const int distance = second.isTouch ? hints->touchDoubleTapDistance()
                                        : hints->mouseDoubleClickDistance();
    const QPointF moved = second.globalPosition - first.globalPosition;
    const bool isInTime = second.isDoubleClick || first.time == 0 || second.time == 0
                          || second.time - first.time
                                 < static_cast<quint64>(hints->mouseDoubleClickInterval());
    return isInTime && first.receiver == second.receiver && first.button == second.button
           && first.modifiers == second.modifiers && std::abs(moved.x()) <= distance
           && std::abs(moved.y()) <= distance;
}

} // namespace MtConf
