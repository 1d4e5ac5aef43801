#include <MaltoConfiguration/inputs/GestureRecognizer.h>

#include "MousePress_p.h"
#include "QtWidgetsCompat_p.h"

#include <MaltoConfiguration/manage/ConfItem.h>
#include <MaltoConfiguration/store/ConfStorage.h>

#include <QGuiApplication>
#include <QStyleHints>
#include <QTimer>
#include <QVector>
#include <QWheelEvent>
#include <QWidget>

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <optional>
#include <utility>

namespace MtConf {

namespace {

constexpr int sLeftClickAlone = LeftClickGesture;

/// Returns the value of a gesture setting; none if the store does not know it.
int valueOf(const QString &key)
{
    const auto &values = ConfStorage::instance()->mConfValues;
    const auto value = values.constFind(key);
    return value != values.constEnd() && value->mType == ConfValue::TyInt32 ? value->get<int>()
                                                                            : int(NoGesture);
}

/// Returns whether `ancestor` gets the events that `object` does not accept.
bool isAncestor(const QObject *ancestor, const QObject *object)
{
    const auto *widget = qobject_cast<const QWidget *>(ancestor);
    const auto *child = qobject_cast<const QWidget *>(object);
    return widget && child && widget != child && widget->isAncestorOf(child);
}

/// Returns whether the wheel was turned up or down but has a delta to the side: most platforms of
/// Qt exchange the axes while Alt is pressed.
bool isTransposed(const QWheelEvent &event)
{
    const QPoint delta = event.angleDelta().isNull() ? event.pixelDelta() : event.angleDelta();
    return event.modifiers() & Qt::AltModifier && std::abs(delta.x()) > std::abs(delta.y());
}

} // namespace

/// What the recognizer has seen so far. Each function that handles an event changes the state
/// before it emits signals, because a slot may delete the recognizer.
class GestureRecognizer::Private
{
public:
    explicit Private(GestureRecognizer *recognizer);

    bool handle(QObject *receiver, QEvent *event);
    void cancel();
    void unwatch(QObject *object);

    QStringList keys;
    QVector<QPointer<QObject>> watched;

private:
    enum class State {
        Idle,     ///< no button is pressed, or the gesture has ended
        Pressed,  ///< a click, or the begin of a drag
        Dragging, ///< a drag that was reported
        Ignored   ///< several buttons, or the second press of a double click
    };

    bool press(const MousePress &press, Qt::MouseButtons buttons);
    bool release(QObject *receiver, const QMouseEvent &event);
    bool move(QObject *receiver, const QMouseEvent &event);
    bool wheel(QObject *receiver, const QWheelEvent &event);
    bool interrupt();
    bool reportWaitingClick();
    bool report(const MouseGesture &gesture);
    bool reportDrag(void (GestureRecognizer::*signal)(const MouseGesture &),
                    const MouseGesture &gesture);

    bool endsGesture(QObject *receiver, QEvent::Type type) const;
    bool isPropagated(const MousePress &press) const;
    bool isSet(int value) const;
    bool isDoubleClickWanted(const MousePress &press) const;
    MouseGesture gestureOf(const MousePress &press, int action) const;
    MouseGesture gestureAt(const QMouseEvent &event, int action) const;

    GestureRecognizer *const mRecognizer;
    QTimer *const mDoubleClickTimer; // runs while a second press makes a double click
    QMetaObject::Connection mReceiverDestroyed;
    State mState = State::Idle;
    MousePress mPress;  // the last one
    MouseGesture mDrag; // the last report of a drag
    std::optional<MouseGesture> mWaitingClick;
    QPointer<QObject> mWheelReceiver;
    quint64 mWheelTime = 0;
    std::optional<int> mScrollModifiers; // from the begin of a scroll on
};

GestureRecognizer::Private::Private(GestureRecognizer *recognizer)
    : mRecognizer(recognizer), mDoubleClickTimer(new QTimer(recognizer))
{
    mDoubleClickTimer->setSingleShot(true);
    QObject::connect(mDoubleClickTimer, &QTimer::timeout, recognizer,
                     [this] { reportWaitingClick(); });
}

bool GestureRecognizer::Private::handle(QObject *receiver, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        return press(mousePressOf(receiver, *mouse), mouse->buttons());
    }
    case QEvent::MouseButtonRelease: return release(receiver, *static_cast<QMouseEvent *>(event));
    case QEvent::MouseMove: return move(receiver, *static_cast<QMouseEvent *>(event));
    case QEvent::Wheel: return wheel(receiver, *static_cast<QWheelEvent *>(event));
    default:
        if (endsGesture(receiver, event->type()))
            interrupt();
        return false;
    }
}

bool GestureRecognizer::Private::endsGesture(QObject *receiver, QEvent::Type type) const
{
    if (receiver != mPress.receiver)
        return false;
    switch (type) {
    case QEvent::FocusOut:
    case QEvent::WindowDeactivate:
    case QEvent::UngrabMouse:
    case QEvent::Hide:
    case QEvent::EnabledChange: return true;
    case QEvent::Leave:
        // While a button is pressed, its receiver gets the moves outside of it, too.
        return !(QGuiApplication::mouseButtons() & mPress.button);
    default: return false;
    }
}

bool GestureRecognizer::Private::press(const MousePress &press, Qt::MouseButtons buttons)
{
    if (isPropagated(press))
        return false;
    const MousePress previous = std::exchange(mPress, press);
    const bool isSecond = mState == State::Idle && mDoubleClickTimer->isActive()
                          && isDoubleClick(previous, press);
    // If no other button is pressed, the release of the last one was lost.
    if (!interrupt())
        return false;
    mDoubleClickTimer->stop();
    if (buttons & ~Qt::MouseButtons(press.button) || !press.gestures) {
        mState = State::Ignored;
        reportWaitingClick();
        return false;
    }
    QObject::disconnect(mReceiverDestroyed);
    if (press.receiver)
        mReceiverDestroyed = QObject::connect(press.receiver, &QObject::destroyed, mRecognizer,
                                              [this] { cancel(); });
    if (isSecond && isDoubleClickWanted(press)) {
        mWaitingClick.reset();
        mState = State::Ignored;
        return report(gestureOf(press, press.gestures->doubleClick));
    }
    mState = State::Pressed;
    mDoubleClickTimer->start(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    reportWaitingClick();
    return false;
}

bool GestureRecognizer::Private::release(QObject *receiver, const QMouseEvent &event)
{
    if (mState == State::Ignored) {
        if (event.buttons() == Qt::NoButton)
            mState = State::Idle;
        return false;
    }
    if (mState == State::Idle || receiver != mPress.receiver || event.button() != mPress.button)
        return false;
    const bool wasDragging = mState == State::Dragging;
    mState = State::Idle;
    if (wasDragging)
        return reportDrag(&GestureRecognizer::dragFinished,
                          gestureAt(event, mPress.gestures->drag));
    const MouseGesture click = gestureAt(event, mPress.gestures->click);
    if (isSet(mPress.gestures->doubleClick | mPress.modifiers) && mDoubleClickTimer->isActive()) {
        mWaitingClick = click;
        return false;
    }
    return report(click);
}

bool GestureRecognizer::Private::move(QObject *receiver, const QMouseEvent &event)
{
    if ((mState != State::Pressed && mState != State::Dragging) || receiver != mPress.receiver)
        return false;
    if (!(event.buttons() & mPress.button)) {
        interrupt(); // the release was lost
        return false;
    }
    const QPointF moved = QtCompat::globalPositionOf(event) - mPress.globalPosition;
    if (mState == State::Pressed
        && moved.manhattanLength() < QGuiApplication::styleHints()->startDragDistance())
        return false;
    const MouseGesture drag = gestureAt(event, mPress.gestures->drag);
    if (std::exchange(mState, State::Dragging) == State::Dragging)
        return reportDrag(&GestureRecognizer::dragMoved, drag);
    mDoubleClickTimer->stop();
    mDrag = drag;
    return report(drag);
}

bool GestureRecognizer::Private::wheel(QObject *receiver, const QWheelEvent &event)
{
    const bool isPropagatedEvent = event.timestamp() == mWheelTime
                                   && isAncestor(receiver, mWheelReceiver);
    // A finger that still scrolls when a modifier is pressed must not begin another gesture.
    if (event.phase() == Qt::ScrollBegin)
        mScrollModifiers = gestureModifiers(event.modifiers());
    else if (event.phase() == Qt::NoScrollPhase)
        mScrollModifiers.reset();
    const int modifiers = mScrollModifiers.value_or(gestureModifiers(event.modifiers()));
    if (isPropagatedEvent || event.buttons() != Qt::NoButton
        || (event.angleDelta().isNull() && event.pixelDelta().isNull()))
        return false;
    mWheelReceiver = receiver;
    mWheelTime = event.timestamp();
    MouseGesture gesture;
    gesture.value = WheelGesture | modifiers;
    gesture.begin = gesture.position = event.position();
    gesture.globalBegin = gesture.globalPosition = event.globalPosition();
    const bool isUpright = !isTransposed(event);
    gesture.angleDelta = isUpright ? event.angleDelta() : event.angleDelta().transposed();
    gesture.pixelDelta = isUpright ? event.pixelDelta() : event.pixelDelta().transposed();
    gesture.receiver = receiver;
    return !reportWaitingClick() || report(gesture);
}

// Ends the gesture in progress. Returns false if a slot has deleted the recognizer.
bool GestureRecognizer::Private::interrupt()
{
    const QPointer<GestureRecognizer> self(mRecognizer);
    if (mState != State::Idle)
        mDoubleClickTimer->stop();
    if (std::exchange(mState, State::Idle) == State::Dragging)
        reportDrag(&GestureRecognizer::dragCancelled, mDrag);
    return self;
}

void GestureRecognizer::Private::cancel()
{
    mWaitingClick.reset();
    mDoubleClickTimer->stop();
    interrupt();
}

void GestureRecognizer::Private::unwatch(QObject *object)
{
    watched.removeAll(object);
    if (object == mPress.receiver || object == QCoreApplication::instance())
        cancel();
}

// Returns false if a slot has deleted the recognizer.
bool GestureRecognizer::Private::reportWaitingClick()
{
    const QPointer<GestureRecognizer> self(mRecognizer);
    if (const auto click = std::exchange(mWaitingClick, std::nullopt))
        report(*click);
    return self;
}

// Returns true: the event has led to a report.
bool GestureRecognizer::Private::report(const MouseGesture &gesture)
{
    const QPointer<GestureRecognizer> self(mRecognizer);
    QStringList triggered;
    if (gesture.value != sLeftClickAlone)
        std::copy_if(keys.cbegin(), keys.cend(), std::back_inserter(triggered),
                     [&gesture](const QString &key) { return valueOf(key) == gesture.value; });
    Q_EMIT self->recognized(gesture);
    for (const QString &key : std::as_const(triggered)) {
        if (self && self->mPrivate->keys.contains(key))
            Q_EMIT self->triggered(key, gesture);
    }
    return true;
}

bool GestureRecognizer::Private::reportDrag(void (GestureRecognizer::*signal)(const MouseGesture &),
                                            const MouseGesture &gesture)
{
    const MouseGesture drag = mDrag = gesture;
    Q_EMIT(mRecognizer->*signal)(drag);
    return true;
}

// Returns whether a parent gets the press that its child has not accepted.
bool GestureRecognizer::Private::isPropagated(const MousePress &press) const
{
    return mState != State::Idle && press.button == mPress.button && press.time == mPress.time
           && isAncestor(press.receiver, mPress.receiver);
}

bool GestureRecognizer::Private::isSet(int value) const
{
    return std::any_of(keys.cbegin(), keys.cend(),
                       [value](const QString &key) { return valueOf(key) == value; });
}

bool GestureRecognizer::Private::isDoubleClickWanted(const MousePress &press) const
{
    return keys.isEmpty() || isSet(press.gestures->doubleClick | press.modifiers);
}

MouseGesture GestureRecognizer::Private::gestureOf(const MousePress &press, int action) const
{
    MouseGesture gesture;
    gesture.value = action | press.modifiers;
    gesture.begin = gesture.position = press.position;
    gesture.globalBegin = gesture.globalPosition = press.globalPosition;
    gesture.receiver = press.receiver;
    return gesture;
}

MouseGesture GestureRecognizer::Private::gestureAt(const QMouseEvent &event, int action) const
{
    MouseGesture gesture = gestureOf(mPress, action);
    gesture.position = QtCompat::positionOf(event);
    gesture.globalPosition = QtCompat::globalPositionOf(event);
    return gesture;
}

GestureRecognizer::GestureRecognizer(QObject *parent)
    : QObject(parent), mPrivate(std::make_unique<Private>(this))
{
}

GestureRecognizer::~GestureRecognizer() = default;

void GestureRecognizer::addItem(const ConfItem *item)
{
    if (item)
        addKey(item->getFullName());
}

void GestureRecognizer::addKey(const QString &key)
{
    if (!mPrivate->keys.contains(key))
        mPrivate->keys.append(key);
}

void GestureRecognizer::removeKey(const QString &key)
{
    mPrivate->keys.removeAll(key);
}

QStringList GestureRecognizer::keys() const
{
    return mPrivate->keys;
}

void GestureRecognizer::watch(QObject *object)
{
    if (!object)
        return;
    object->installEventFilter(this);
    mPrivate->watched.removeAll(nullptr); // destroyed
    if (!mPrivate->watched.contains(object))
        mPrivate->watched.append(object);
}

void GestureRecognizer::unwatch(QObject *object)
{
    if (!object)
        return;
    object->removeEventFilter(this);
    mPrivate->unwatch(object);
}

bool GestureRecognizer::feed(QEvent *event)
{
    return event && mPrivate->handle(nullptr, event);
}

bool GestureRecognizer::eventFilter(QObject *watched, QEvent *event)
{
    // A filter of the application gets the events of a window, too, which the window passes on to
    // its widgets.
    if (!watched->isWindowType() || !watched->inherits("QWidgetWindow")
        || mPrivate->watched.contains(watched))
        mPrivate->handle(watched, event);
    return false;
}

void GestureRecognizer::cancel()
{
    mPrivate->cancel();
}

} // namespace MtConf
