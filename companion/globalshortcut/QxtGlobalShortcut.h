#pragma once

#include <qxtglobalshortcut_export.h>

#include <QKeySequence>
#include <QObject>

#include <memory>

/// A hotkey that works in every application, whichever has the keyboard focus.
///
/// The hotkey is registered with the system while it is enabled and its key combination is not
/// empty; `isValid()` returns whether this succeeded. Objects with the same key combination share
/// one registration, and all of them are activated. It is released when the last of them is
/// disabled, changed or destroyed.
///
/// While the focus object of the program (`QGuiApplication::focusObject()`) has the dynamic
/// property "recordsHotkeys" with the value true, no hotkey of the program is activated, so that a
/// field that records hotkeys receives all keys. `isValid()` and `failure()` keep their values
/// meanwhile. A hotkey whose keys another program takes in this time fails afterwards, with
/// `enabledChanged` and `failureChanged`. The fields of the settings window set the property; a
/// host sets it on its own fields.
///
/// GUI thread only: nothing is registered in another thread or without an application object. When
/// the application object is destroyed, all registrations are released without a signal.
///
/// @since 0.1
class QXTGLOBALSHORTCUT_EXPORT QxtGlobalShortcut : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QKeySequence shortcut READ shortcut WRITE setShortcut)
    Q_PROPERTY(bool enabled READ isEnabled WRITE setEnabled NOTIFY enabledChanged)
    Q_PROPERTY(bool valid READ isValid NOTIFY enabledChanged)
    Q_PROPERTY(Failure failure READ failure NOTIFY failureChanged)
    Q_PROPERTY(QString id READ id WRITE setId)
    Q_PROPERTY(QString description READ description WRITE setDescription)
    Q_PROPERTY(QString trigger READ trigger NOTIFY triggerChanged)
    Q_PROPERTY(QString activationToken READ activationToken NOTIFY activated)

public:
    /// Creates an enabled hotkey without a key combination. `parent` may be null.
    explicit QxtGlobalShortcut(QObject *parent = nullptr);
    /// Creates an enabled hotkey and calls `setShortcut(shortcut)`.
    explicit QxtGlobalShortcut(const QKeySequence &shortcut, QObject *parent = nullptr);
    ~QxtGlobalShortcut() override;

    /// Returns whether hotkeys can be registered at all: on an X server (Qt platform "xcb") and on
    /// macOS, unless the library was built with MALTO_GLOBAL_HOTKEYS=OFF. On Wayland true until the
    /// desktop answers that it has no hotkeys; it is asked when the first hotkey is set. False
    /// there if the library was built without that backend, and without an application object.
    static bool isSupported();

    /// Why a hotkey is not registered.
    enum Failure {
        NoFailure,     ///< it is registered, or disabled
        Pending,       ///< the system has not answered yet
        Empty,         ///< no keys are set
        NotAChord,     ///< several chords, a modifier key alone, or a key without a name
        NotOnKeyboard, ///< this keyboard cannot type the keys
        Taken,         ///< another program has registered the keys
        Refused,       ///< the user or the desktop has refused it
        NoBackend      ///< the system has no hotkeys, or there is no application object
    };
    Q_ENUM(Failure)

    /// Returns the key combination that was set last, whether it is registered or not.
    QKeySequence shortcut() const;
    /// Releases the old key combination and registers `shortcut` if the hotkey is enabled. Setting
    /// the same combination again retries a failed registration. Returns `isValid()`: false for an
    /// empty sequence, a sequence of several chords, a single modifier key, a key without a name
    /// (such as the unknown key that an invalid text gives), a key that this keyboard lacks or that
    /// another program has registered, and while the hotkey is disabled; `failure()` tells which of
    /// these it is. On an X server and on macOS the result is final; a desktop that asks the user
    /// answers later, with `enabledChanged` and `failureChanged`, and until then `failure()` is
    /// `Pending`. Logs nothing. Emits `enabledChanged` if `isValid()` changes.
    bool setShortcut(const QKeySequence &shortcut);

    /// Returns whether the hotkey is to be registered; true for a new object.
    bool isEnabled() const;
    /// Returns whether the hotkey is registered with the system.
    bool isValid() const;
    /// Returns why the hotkey is not registered; `NoFailure` if it is, or if it is disabled.
    Failure failure() const;
    /// Returns the keys that activate the hotkey, for the user: what the desktop has assigned if it
    /// has assigned other keys or names them itself, and otherwise `shortcut()` in the system's own
    /// form.
    QString trigger() const;
    /// Returns the token of the last activation, with which the program may activate its window on
    /// a Wayland desktop; empty on other systems. Valid while `activated` is emitted.
    QString activationToken() const;

    /// Returns the name by which the desktop knows the hotkey.
    QString id() const;
    /// Sets the name by which the desktop remembers the keys that the user has assigned: unique in
    /// the program, and the same each time it runs. An empty `id` restores the generated one, a
    /// number in the order of creation. If several hotkeys have the same id, the desktop knows the
    /// later ones by the id with a number. Best set before `setShortcut`: a registered hotkey is
    /// registered again, and the desktop may ask the user again. Ignored where the system knows
    /// keys only: on an X server and on macOS.
    void setId(const QString &id);
    /// Returns the text by which the user knows the hotkey; empty by default.
    QString description() const;
    /// Sets the text that the desktop shows to the user for this hotkey, translated.
    void setDescription(const QString &description);

public Q_SLOTS:
    /// Registers the hotkey if `enabled` is true, and releases it otherwise. Emits `enabledChanged`
    /// if `isEnabled()` or `isValid()` changes.
    void setEnabled(bool enabled = true);
    /// Calls `setEnabled(!disabled)`.
    void setDisabled(bool disabled = true);

Q_SIGNALS:
    /// Emitted when the keys were pressed, once for each press, without key repeat. Never emitted
    /// while the hotkey is disabled. A receiver may delete the object.
    void activated();
    /// Emitted after `isEnabled()` or `isValid()` has changed, also if the system caused this, for
    /// example when a new keyboard mapping lacks the key. A receiver may delete the object.
    void enabledChanged();
    /// Emitted after `failure()` has changed, and after `enabledChanged` if both change. A receiver
    /// may delete the object.
    void failureChanged();
    /// Emitted after `trigger()` has changed. A receiver may delete the object.
    void triggerChanged();

private:
    class Private;
    const std::unique_ptr<Private> d;
};
