#pragma once

#include <qxtglobalshortcut_export.h>

#include <QKeySequence>
#include <QObject>

#include <memory>

/// A hotkey that works while any application has the keyboard.
///
/// While it is enabled and its key combination is not empty the hotkey is registered with the
/// system: `isValid()` tells whether that succeeded. Objects with the same key combination share
/// one registration, and every one of them is activated; it is given back when the last of them is
/// disabled, changed or destroyed.
///
/// GUI thread only: in another thread, and without an application object, nothing is registered.
/// When the application object goes all registrations go with it, without a signal.
class QXTGLOBALSHORTCUT_EXPORT QxtGlobalShortcut : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QKeySequence shortcut READ shortcut WRITE setShortcut)
    Q_PROPERTY(bool enabled READ isEnabled WRITE setEnabled NOTIFY enabledChanged)
    Q_PROPERTY(bool valid READ isValid NOTIFY enabledChanged)

public:
    /// An enabled hotkey without a key combination. `parent` may be null.
    explicit QxtGlobalShortcut(QObject *parent = nullptr);
    /// An enabled hotkey, registered at once as by `setShortcut(shortcut)`.
    explicit QxtGlobalShortcut(const QKeySequence &shortcut, QObject *parent = nullptr);
    ~QxtGlobalShortcut() override;

    /// Whether hotkeys can be registered here at all: on an X server (Qt platform "xcb") and on
    /// macOS. False without an application object.
    static bool isSupported();

    /// The key combination last set, whether or not it is registered.
    QKeySequence shortcut() const;
    /// Gives the old key combination back and, when enabled, registers this one. The same
    /// combination again tries a failed registration once more. Returns `isValid()`: false for an
    /// empty sequence, for one of several chords, for a modifier key alone, for a key without a
    /// name (such as the unknown key that a wrong text gives), for one that this keyboard has not
    /// or that someone else holds, and while disabled; nothing is logged. Emits `enabledChanged`
    /// when `isValid()` changes.
    bool setShortcut(const QKeySequence &shortcut);

    /// Whether the hotkey is to be registered; true for a new object.
    bool isEnabled() const;
    /// Whether the hotkey is registered with the system right now.
    bool isValid() const;

public Q_SLOTS:
    /// Registers the hotkey, or gives it back. Emits `enabledChanged` on a change.
    void setEnabled(bool enabled = true);
    /// The same the other way round.
    void setDisabled(bool disabled = true);

Q_SIGNALS:
    /// The keys were pressed: once for a press, however long they are held. Never emitted while
    /// disabled. The object may be deleted by whoever receives this.
    void activated();
    /// `isEnabled()` or `isValid()` changed; also when that came from outside, as when the
    /// keyboard's map loses the key. The object may be deleted by whoever receives this.
    void enabledChanged();

private:
    class Private;
    const std::unique_ptr<Private> d;
};
