#include "HostCode_p.h"

#include <QVariant>

#include <utility>

namespace MtConf {

namespace {

/// The property in which a widget has its counter.
constexpr char sCounter[] = "HostCode";

} // namespace

std::shared_ptr<HostCode> HostCode::of(QWidget *widget)
{
    for (;; widget = widget->parentWidget()) {
        if (auto counter = widget->property(sCounter).value<std::shared_ptr<HostCode>>())
            return counter;
        if (!widget->parentWidget())
            break;
    }
    const auto counter = std::make_shared<HostCode>();
    widget->setProperty(sCounter, QVariant::fromValue(counter));
    return counter;
}

void HostCode::deleteWidget(QWidget *widget)
{
    if (!widget)
        return;
    if (isRunning()) {
        widget->hide();
        mWaiting.append(widget);
        return;
    }
    // The destructor of a host's page is host code, too.
    const HostCodeScope scope(shared_from_this());
    delete widget;
}

void HostCode::leave()
{
    --mScopes;
    if (mScopes > 0 || mWaiting.isEmpty() || mIsQueued)
        return;
    mIsQueued = true;
    // A deferred deletion waits until control is back in the current event loop, even if nested
    // event loops run before; a timer or a queued call would not. It is the deletion of another
    // object, because Qt may drop a second deleteLater() of a window that has ignored the first.
    auto *const queued = new QObject;
    QObject::connect(queued, &QObject::destroyed,
                     [counter = shared_from_this()] { counter->deleteWaiting(); });
    queued->deleteLater();
}

void HostCode::deleteWaiting()
{
    mIsQueued = false;
    // Host code may have processed the deferred deletions itself. The end of its scope queues them
    // again.
    if (isRunning())
        return;
    const HostCodeScope scope(shared_from_this());
    const QList<QPointer<QWidget>> widgets = std::exchange(mWaiting, {});
    for (const QPointer<QWidget> &widget : widgets)
        delete widget;
}

HostCodeScope::HostCodeScope(std::shared_ptr<HostCode> counter) : mCounter(std::move(counter))
{
    if (mCounter)
        ++mCounter->mScopes;
}

HostCodeScope::~HostCodeScope()
{
    if (mCounter)
        mCounter->leave();
}

} // namespace MtConf
