#pragma once

/// @file

#include <MaltoConfiguration/malto_export.h>

#include <QKeySequence>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <memory>

namespace MtConf {

class MtConfManage;

/// Where an input works.
///
/// @see InputUse
/// @since 0.1
enum class InputScope {
    Global,  ///< in every program of the desktop: a hotkey
    Program, ///< in every window of the program
    Window   ///< in one window, or in one widget
};

/// Something that uses a key combination or a gesture.
///
/// @see InputRegistry
/// @since 0.1
struct InputUse
{
    InputScope scope = InputScope::Program; ///< where it works
    QString name;             ///< what the user calls it, in the current language; may be empty
    QString key;              ///< the key of the setting; empty if it is not a setting
    QPointer<QWidget> widget; ///< the window or the widget in which it works; null if it is not one
    QPointer<QObject> object; ///< the QAction or QShortcut; null if it is a setting
};

/// The key combinations and gestures of a program: who uses them, where, and who is in conflict.
///
/// The registry knows the settings of a manager: hotkeys (`addConfQKeySequence`), gestures
/// (`addConfMouseAction`) and shortcuts (`addConfShortcut`). A host adds its own menus and
/// shortcuts with `addActions`. Everything is followed: settings as their values change in the
/// store, by the user, the program or a load; widgets as actions are added, removed and changed.
///
/// These are in conflict:
/// - a hotkey, which the system takes from every program, with everything that contains its chord;
/// - two shortcuts that can work in the same window, if both have the same keys, or one begins with
///   the other: "Ctrl+K" keeps "Ctrl+K, Ctrl+C" from working;
/// - two gestures with the same modifiers and the same action. A click and a double click of one
///   button count as the same.
///
/// Empty values conflict with nothing, and neither do hotkeys of several chords, which the system
/// does not register. A shortcut setting works in the windows of its action or QShortcut, if
/// `addActions` was called with a widget that contains it, and otherwise counts as one that works
/// in all windows. Disabled and hidden actions count.
///
/// A registry is independent of the settings window. With `InputConflictsFeature` the window uses
/// the registry that is a child of its manager, or else creates one. Use it on the GUI thread.
///
/// @see InputConflictsFeature
/// @since 0.1
class MALTO_EXPORT InputRegistry : public QObject
{
    Q_OBJECT
public:
    /// Creates a registry of the settings of `manager`, present and later ones, as a child of it.
    /// `manager` must not be null.
    explicit InputRegistry(MtConfManage *manager);
    ~InputRegistry() override;

    /// Adds the actions, menus and QShortcuts of `widget` and of everything in it, including what
    /// is added later. An action whose shortcut is a setting counts once, as the setting. Does
    /// nothing if `widget` is null.
    void addActions(QWidget *widget);

    /// Returns who uses `keys`: the hotkeys of one of their chords, and the shortcuts that begin
    /// with them or with which they begin. Settings come first, in the order of their declaration.
    QList<InputUse> usesOf(const QKeySequence &keys) const;
    /// Returns the settings that use `gesture`, a value of `addConfMouseAction`, or one that is in
    /// conflict with it.
    QList<InputUse> usesOfGesture(int gesture) const;

    /// Returns whatever is in conflict with the stored value of the setting `key`. Empty if the
    /// setting is not known.
    QList<InputUse> conflictsOf(const QString &key) const;
    /// Returns whatever would be in conflict with the hotkey or shortcut `key` if it had the value
    /// `keys`.
    QList<InputUse> conflictsOf(const QString &key, const QKeySequence &keys) const;
    /// Returns whatever would be in conflict with the gesture `key` if it had the value `gesture`.
    QList<InputUse> conflictsOf(const QString &key, int gesture) const;

    /// Returns whether the setting `key` is a hotkey, which works in every program.
    bool isGlobal(const QString &key) const;

Q_SIGNALS:
    /// Emitted when control is back in the event loop after inputs have changed: `keys` are the
    /// settings that have changed and those whose conflicts may have changed, in any order. The
    /// functions of the registry return the new state at once. Nothing tells the registry about
    /// new and removed declarations and `ConfStorage::clear`; they are noticed at its next call.
    void usesChanged(const QStringList &keys);

private:
    class Private;
    const std::unique_ptr<Private> mPrivate;
};

} // namespace MtConf
