#pragma once

/// @file

#include <MaltoConfiguration/malto_export.h>

#include <QMetaType>
#include <QObject>
#include <QPoint>
#include <QPointF>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <memory>

class QEvent;

namespace MtConf {

class ConfItem;

/// The actions of mouse gestures: the low 16 bits of the value of a gesture setting. The bits above
/// are `Qt::KeyboardModifier` bits.
///
/// @see MtConfManage::addConfMouseAction
/// @since 0.1
enum GestureAction : int {
    NoGesture = 0,                 ///< the action "None"
    LeftClickGesture = 1,          ///< needs a modifier
    LeftDoubleClickGesture = 2,    ///< a double click of the left button
    RightClickGesture = 4,         ///< a click of the right button
    RightDoubleClickGesture = 8,   ///< a double click of the right button
    MiddleClickGesture = 16,       ///< a click of the middle button
    MiddleDoubleClickGesture = 32, ///< a double click of the middle button
    WheelGesture = 64,             ///< the wheel, or two fingers on a touchpad
    LeftDragGesture = 128,         ///< a drag with the left button
    RightDragGesture = 256,        ///< a drag with the right button
    MiddleDragGesture = 512        ///< a drag with the middle button
};

/// A mouse gesture as a user has made it.
///
/// @see GestureRecognizer
/// @since 0.1
struct MouseGesture
{
    /// A `GestureAction` with `Qt::KeyboardModifier` bits, as a gesture setting stores it.
    int value = NoGesture;
    QPointF begin;              ///< where the button was pressed, in the coordinates of `receiver`
    QPointF position;           ///< where the pointer is now, in the coordinates of `receiver`
    QPointF globalBegin;        ///< where the button was pressed, on the screen
    QPointF globalPosition;     ///< where the pointer is now, on the screen
    QPoint angleDelta;          ///< of the wheel, in eighths of a degree; see QWheelEvent
    QPoint pixelDelta;          ///< of the wheel, in pixels; null where the platform has none
    QPointer<QObject> receiver; ///< received the event; null if it was passed to `feed`
};

/// Recognizes mouse gestures and tells which gesture settings they trigger, so that a host does not
/// decode their values.
///
/// Add the settings with `addItem` or `addKey`, and the widgets with `watch`; `triggered` is
/// emitted for each setting whose current value is the gesture that the user makes. Times and
/// distances are those of the platform (QStyleHints).
///
/// - A click is reported when the button is released. If a setting has the double click of the same
///   button with the same modifiers, a click waits for the platform's double-click interval, and is
///   not reported if it becomes a double click.
/// - A double click is reported at the second press. It is recognized if a setting has it, or if
/// the
///   recognizer has no settings; without settings, its first click is reported, too. Otherwise the
///   second press begins another click.
/// - A drag begins when the pointer has moved by the platform's drag distance. A press that has
///   moved so far is not a click, even if no setting has the drag.
/// - Each event of the wheel is a gesture, except while a button is pressed. It may be a small part
///   of a notch; add up `MouseGesture::angleDelta`. With Alt, for which most platforms of Qt
///   exchange the axes, the larger part of the delta is the vertical one.
///
/// Shift, Control, Alt and Meta count as they are when the button is pressed, or when a touchpad
/// begins to scroll. Other modifiers, such as that of the keypad, do not matter. Mouse events that
/// the system makes from touches count as those of the left button.
///
/// A gesture ends without a result if another button is pressed, or if the receiver loses the focus
/// or the mouse, is left, hidden, disabled or destroyed. A left click without modifiers triggers no
/// setting, because the editor of gestures does not allow it.
///
/// Slots may change settings and watched objects, and delete the recognizer. Use it on the GUI
/// thread.
///
/// @see MtConfManage::addConfMouseAction, InputRegistry
/// @since 0.1
class MALTO_EXPORT GestureRecognizer : public QObject
{
    Q_OBJECT
public:
    /// Creates a recognizer without settings that watches nothing.
    explicit GestureRecognizer(QObject *parent = nullptr);
    ~GestureRecognizer() override;

    /// Adds the setting of `item`. Does nothing if `item` is null or was added already.
    void addItem(const ConfItem *item);
    /// Adds the setting with the key `key` of the store. It triggers nothing as long as the store
    /// does not know the key as an `int`.
    void addKey(const QString &key);
    /// Removes a setting. Does nothing if it was not added.
    void removeKey(const QString &key);
    /// Returns the keys of all settings in the order in which they were added.
    QStringList keys() const;

    /// Recognizes gestures in the events of `object`: a widget, a window, or the application for
    /// all widgets. Consumes no event. Does nothing if `object` is null.
    void watch(QObject *object);
    /// Ends `watch`, and the gesture in progress of the object.
    void unwatch(QObject *object);

    /// Recognizes gestures in events that the host has from elsewhere; the positions on the screen
    /// must be right. Returns whether the event has begun, continued or finished a gesture that was
    /// reported. Does nothing if `event` is null.
    bool feed(QEvent *event);

    /// Handles the events of watched objects. Always returns false.
    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    /// Ends the gesture in progress without a result; drops a click that waits.
    void cancel();

Q_SIGNALS:
    /// Emitted for every gesture, before `triggered`: for a drag when it begins.
    void recognized(const MtConf::MouseGesture &gesture);
    /// Emitted for each setting that has the gesture, in the order in which they were added.
    void triggered(const QString &key, const MtConf::MouseGesture &gesture);
    /// Emitted when the pointer moves after a drag has begun.
    void dragMoved(const MtConf::MouseGesture &gesture);
    /// Emitted when the button of a drag is released.
    void dragFinished(const MtConf::MouseGesture &gesture);
    /// Emitted when a drag ends in any other way; the gesture is the last one reported.
    void dragCancelled(const MtConf::MouseGesture &gesture);

private:
    class Private;
    const std::unique_ptr<Private> mPrivate;
};

} // namespace MtConf

Q_DECLARE_METATYPE(MtConf::MouseGesture)
