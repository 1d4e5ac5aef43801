#include "WindowMemory_p.h"

#include <MaltoConfiguration/store/ConfStorage.h>

namespace MtConf {

namespace {

QString geometryKey()
{
    return QStringLiteral("Malto.Window.Geometry");
}

QString pageKey()
{
    return QStringLiteral("Malto.Window.Page");
}

template<class T> void reserve(const QString &key, T *variable)
{
    ConfStorage *const store = ConfStorage::instance();
    if (store->mConfMetas.contains(key))
        return;
    *variable = T();
    store->reserveConf(key, variable);
    store->mConfMetas[key].flags |= ConfStorage::FlagLocalOnly;
}

template<class T> void setIfChanged(const QString &key, const T &stored, const T &value)
{
    if (stored != value)
        ConfStorage::instance()->set(key, value);
}

} // namespace

WindowMemory *WindowMemory::instance()
{
    static auto *const sMemory = new WindowMemory;
    reserve(geometryKey(), &sMemory->mGeometry);
    reserve(pageKey(), &sMemory->mPage);
    return sMemory;
}

void WindowMemory::setGeometry(const QRect &geometry)
{
    setIfChanged(geometryKey(), mGeometry, geometry);
}

void WindowMemory::setPage(const QString &className)
{
    setIfChanged(pageKey(), mPage, className);
}

} // namespace MtConf
