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

public:
    /// Creates an enabled hotkey without a key combination. `parent` may be null.
    explicit QxtGlobalShortcut(QObject *parent = nullptr);
    /// Creates an enabled hotkey and calls `setShortcut(shortcut)`.
    explicit QxtGlobalShortcut(const QKeySequence &shortcut, QObject *parent = nullptr);
    ~QxtGlobalShortcut() override;

    /// Returns whether hotkeys can be registered at all: on an X server (Qt platform "xcb") and on
    /// macOS, unless the library was built with MALTO_GLOBAL_HOTKEYS=OFF. False without an
    /// application object.
    static bool isSupported();

    /// Returns the key combination that was set last, whether it is registered or not.
    QKeySequence shortcut() const;
    /// Releases the old key combination and registers `shortcut` if the hotkey is enabled. Setting
    /// the same combination again retries a failed registration. Returns `isValid()`: false for an
    /// empty sequence, a sequence of several chords, a single modifier key, a key without a name
    /// (such as the unknown key that an invalid text gives), a key that this keyboard lacks or that
    /// another program has registered, and while the hotkey is disabled. Logs nothing. Emits
    /// `enabledChanged` if `isValid()` changes.
    bool setShortcut(const QKeySequence &shortcut);

    /// Returns whether the hotkey is to be registered; true for a new object.
    bool isEnabled() const;
    /// Returns whether the hotkey is registered with the system.
    bool isValid() const;

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

private:
    class Private;
    const std::unique_ptr<Private> d;
};
