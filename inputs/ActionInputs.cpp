#include "ActionInputs_p.h"

#include "MaltoConfiguration/manage/ShortcutBinding_p.h"
#include "QtWidgetsCompat_p.h"

#include <QAction>
#include <QChildEvent>
#include <QShortcut>

#include <algorithm>
#include <utility>

namespace MtConf {

namespace {

/// Returns the widget in whose window the actions of `widget` work. A menu is a window of its own,
/// but its actions belong to the window that opens it.
QWidget *placeOf(QWidget *widget)
{
    while (qobject_cast<QMenu *>(widget) && widget->parentWidget())
        widget = widget->parentWidget();
    return widget;
}

QVector<InputChords> sequencesOf(const QList<QKeySequence> &shortcuts)
{
    QVector<InputChords> sequences;
    for (const QKeySequence &keys : shortcuts) {
        const InputChords chords = chordsOf(keys);
        if (!chords.isEmpty())
            sequences.append(chords);
    }
    return sequences;
}

} // namespace

bool operator==(const ActionInputs::Input &a, const ActionInputs::Input &b)
{
    return a.object == b.object && a.setting == b.setting && a.sequences == b.sequences
           && a.context == b.context && a.places == b.places && a.menu == b.menu;
}

void ActionInputs::watch(QWidget *root)
{
    if (!root || mRoots.contains(root))
        return;
    mRoots.append(root);
    connect(root, &QObject::destroyed, this, &ActionInputs::markStale);
    markStale();
}

const QVector<ActionInputs::Input> &ActionInputs::inputs()
{
    if (mIsStale || hasChangedShortcut())
        read();
    return mInputs;
}

bool ActionInputs::doOverlap(const QVector<QPointer<QWidget>> &a,
                             const QVector<QPointer<QWidget>> &b)
{
    const auto doMeetIn = [](const QWidget *one, const QWidget *other) {
        return one && other
               && (one == other || one->isAncestorOf(other) || other->isAncestorOf(one));
    };
    return std::any_of(a.cbegin(), a.cend(), [&](const QPointer<QWidget> &one) {
        return std::any_of(b.cbegin(), b.cend(),
                           [&](const QPointer<QWidget> &other) { return doMeetIn(one, other); });
    });
}

bool ActionInputs::eventFilter(QObject *watched, QEvent *event)
{
    Q_UNUSED(watched)
    switch (event->type()) {
    case QEvent::ActionAdded:
    case QEvent::ActionRemoved:
    case QEvent::ChildAdded:
    case QEvent::ChildRemoved:
    case QEvent::ParentChange: markStale(); break;
    default: break;
    }
    return false;
}

/// Reads the widgets at the next call of inputs(). Not now: an added child is not constructed yet.
void ActionInputs::markStale()
{
    if (!std::exchange(mIsStale, true))
        QMetaObject::invokeMethod(this, &ActionInputs::changed, Qt::QueuedConnection);
}

/// Ignores the changes of actions that have nothing to do with keys, such as their texts.
void ActionInputs::onActionChanged()
{
    const auto *const action = qobject_cast<QAction *>(sender());
    const auto index = mIndexes.constFind(action);
    if (mIsStale || !action || index == mIndexes.constEnd())
        return;
    const Input &known = mInputs.at(*index);
    if (sequencesOf(action->shortcuts()) != known.sequences
        || action->shortcutContext() != known.context || action->menu() != known.menu
        || ShortcutBinding::keyOf(action) != known.setting)
        markStale();
}

/// A QShortcut does not tell that its keys have changed.
bool ActionInputs::hasChangedShortcut() const
{
    return std::any_of(mInputs.cbegin(), mInputs.cend(), [](const Input &input) {
        const auto *const shortcut = qobject_cast<QShortcut *>(input.object);
        return shortcut && sequencesOf(QtCompat::keysOf(*shortcut)) != input.sequences;
    });
}

void ActionInputs::read()
{
    mIsStale = false;
    mInputs.clear();
    mIndexes.clear();
    mRoots.removeAll(QPointer<QWidget>());
    for (const QPointer<QWidget> &root : std::as_const(mRoots)) {
        readWidget(root, placeOf(root));
        const QList<QWidget *> children = root->findChildren<QWidget *>();
        for (QWidget *child : children)
            readWidget(child, placeOf(child));
    }
    mRead.clear();
}

void ActionInputs::readWidget(QWidget *widget, QWidget *place)
{
    if (mRead.contains(widget))
        return;
    mRead.insert(widget);
    widget->installEventFilter(this);
    const QList<QAction *> actions = widget->actions();
    for (QAction *action : actions) {
        connect(action, &QAction::changed, this, &ActionInputs::onActionChanged,
                Qt::UniqueConnection);
        add(action, sequencesOf(action->shortcuts()), action->shortcutContext(), place);
        if (QMenu *const menu = action->menu()) // which need not be a child of the window
            readWidget(menu, place);
    }
    const QList<QShortcut *> shortcuts = widget->findChildren<QShortcut *>(
        QString(), Qt::FindDirectChildrenOnly);
    for (QShortcut *shortcut : shortcuts)
        add(shortcut, sequencesOf(QtCompat::keysOf(*shortcut)), shortcut->context(), place);
}

/// Adds an input, or the place if it is in several widgets. Inputs without keys may get some.
void ActionInputs::add(QObject *object, const QVector<InputChords> &sequences,
                       Qt::ShortcutContext context, QWidget *place)
{
    if (!mIndexes.contains(object)) {
        mIndexes.insert(object, static_cast<int>(mInputs.size()));
        const auto *const action = qobject_cast<QAction *>(object);
        mInputs.append({object,
                        ShortcutBinding::keyOf(object),
                        sequences,
                        context,
                        {},
                        action ? action->menu() : nullptr});
    }
    const bool isInWidget = context == Qt::WidgetShortcut
                            || context == Qt::WidgetWithChildrenShortcut;
    const QPointer<QWidget> where = isInWidget ? place : place->window();
    QVector<QPointer<QWidget>> &places = mInputs[mIndexes.value(object)].places;
    if (!places.contains(where))
        places.append(where);
}

} // namespace MtConf
