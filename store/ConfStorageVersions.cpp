#include <MaltoConfiguration/store/ConfStorage.h>

#include "ConfVersions_p.h"

void ConfStorage::addFormerName(const QString &key, const QString &formerName, bool keepEntry)
{
    if (!mVersions)
        mVersions = std::make_unique<ConfVersions>();
    mVersions->mFormerNames[formerName] = {key, keepEntry};
}

void ConfStorage::setConfConverter(const QString &key,
                                   std::function<QJsonValue(const QJsonValue &)> converter)
{
    if (!mVersions)
        mVersions = std::make_unique<ConfVersions>();
    mVersions->mConverters[key] = std::move(converter);
}
