#pragma once

#include "GlobalShortcutBackend_p.h"
#include "NullShortcutBackend_p.h"

#include <QObject>

#include <map>
#include <memory>

/// All requested hotkeys of the process, each an action of the system's backend. Shared: the last
/// owner deletes it. GUI thread only.
///
/// While the focus object has the property "recordsHotkeys" with the value true, the
/// backend is suspended.
class GlobalShortcutRegistry final : private GlobalShortcutBackend::Listener,
                                     public std::enable_shared_from_this<GlobalShortcutRegistry>
{
public:
    /// Requests an action. The virtual functions are called from the event loop, never from `add`,
    /// `change` or `remove`.
    class User : public QObject
    {
    public:
        using QObject::QObject;
        /// Called after `chord`, the preferred keys at that time, was pressed.
        virtual void pressed(int chord, const QString &activationToken) = 0;
        /// Called after `result` has changed, unless by a call of this user.
        virtual void resultChanged() = 0;
    };

    /// Returns the registry of the process; creates it if there is none.
    static std::shared_ptr<GlobalShortcutRegistry> instance();

    GlobalShortcutRegistry();
    ~GlobalShortcutRegistry();
    Q_DISABLE_COPY(GlobalShortcutRegistry)

    /// Returns whether actions can be registered at all.
    bool isSupported();
    /// Registers an action of `user` and returns its id: the one in `action`, with a number if
    /// another action has the same.
    QString add(const GlobalShortcutBackend::Action &action, User *user);
    /// Replaces the description and the keys of the action with this id, or tries again to register
    /// it if it has failed.
    void change(const GlobalShortcutBackend::Action &action);
    /// Releases an action.
    void remove(const QString &id);
    /// Returns the state of a registered action.
    GlobalShortcutBackend::Result result(const QString &id) const;

private:
    class RecordingWatch;
    struct Entry
    {
        GlobalShortcutBackend::Action action;
        GlobalShortcutBackend::Result result;
        User *user = nullptr;
    };

    void resultChanged(const QString &id, const GlobalShortcutBackend::Result &result) override;
    void activated(const QString &id, const QString &activationToken) override;
    GlobalShortcutBackend &backend();
    void focusChanged(QObject *focus);
    void windowChanged(bool isVisible);
    void applicationGone();
    void disconnect();

    std::map<QString, Entry> mEntries; // by id
    const User *mCaller = nullptr;     // reads its result itself
    int mDuplicates = 0;               // of ids
    NullShortcutBackend mNoBackend{*this};
    std::unique_ptr<GlobalShortcutBackend> mBackend;
    std::unique_ptr<RecordingWatch> mWatch; // exists with the backend
    QMetaObject::Connection mFocusChanged;
    QMetaObject::Connection mWindowChanged; // of the field that records
    QMetaObject::Connection mApplicationGone;
};
