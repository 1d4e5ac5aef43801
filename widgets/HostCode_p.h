#pragma once

#include <QList>
#include <QPointer>
#include <QWidget>

#include <memory>

namespace MtConf {

/// Counts the calls on the stack that can run host code, for one window and the editors in it, and
/// deletes widgets when no such call is left.
///
/// Host code, such as a change callback, may open another page or close the window while the
/// control whose event led to the callback is still on the stack. That control must live until the
/// outermost call has returned. GUI thread only.
class HostCode : public std::enable_shared_from_this<HostCode>
{
public:
    /// Returns the counter that `widget` or the nearest of its ancestors has. If there is none,
    /// creates one for the topmost ancestor.
    static std::shared_ptr<HostCode> of(QWidget *widget);

    /// Returns whether host code may be on the stack: whether a HostCodeScope exists.
    bool isRunning() const { return mScopes > 0; }

    /// Deletes `widget`, which may be null, at once if isRunning() is false. Otherwise hides it,
    /// and queues the deletion of all such widgets when the last scope ends.
    void deleteWidget(QWidget *widget);

private:
    friend class HostCodeScope;

    void leave();
    void deleteWaiting();

    int mScopes = 0;
    bool mIsQueued = false;
    QList<QPointer<QWidget>> mWaiting;
};

/// Marks that host code may be on the stack while it exists.
class HostCodeScope
{
public:
    /// Enters `counter`, and keeps it alive. Without a counter the scope has no effect.
    explicit HostCodeScope(std::shared_ptr<HostCode> counter);
    ~HostCodeScope();
    Q_DISABLE_COPY(HostCodeScope)

private:
    const std::shared_ptr<HostCode> mCounter;
};

} // namespace MtConf

Q_DECLARE_METATYPE(std::shared_ptr<MtConf::HostCode>)
