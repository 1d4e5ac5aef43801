#include "ApplicationStart_p.h"

#include <QCoreApplication>
#include <QVector>

#include <utility>

namespace {

QVector<const ApplicationStart *> &waiting()
{
    // Never destroyed: a store may be destroyed when the program ends.
    static auto *const sWaiting = new QVector<const ApplicationStart *>;
    return *sWaiting;
}

} // namespace

ApplicationStart::ApplicationStart(std::function<void()> start) : mStart(std::move(start))
{
    // Qt calls the function for every application object, also if it was added long before.
    static const bool sIsAdded = [] {
        qAddPreRoutine(&ApplicationStart::callAll);
        return true;
    }();
    Q_UNUSED(sIsAdded)
    waiting().append(this);
    if (QCoreApplication::instance())
        mStart();
}

ApplicationStart::~ApplicationStart()
{
    waiting().removeOne(this);
}

void ApplicationStart::callAll()
{
    const QVector<const ApplicationStart *> objects = waiting();
    for (const ApplicationStart *object : objects)
        object->mStart();
}
