#include <MaltoConfiguration/store/ConfStorage.h>

#include "ConfLoad_p.h"
#include "ConfVersions_p.h"

void ConfStorage::addFormerName(const QString &key, const QString &formerName, bool keepEntry)
{
    if (key == formerName)
        return;
    if (!mVersions)
        mVersions = std::make_unique<ConfVersions>();
    mVersions->mFormerNames[formerName] = {key, keepEntry};
    if (mKeptEntries && mConfValues.contains(key))
        ConfLoad(*this, LoadLocal).loadKept(key);
}

void ConfStorage::setConfConverter(const QString &key,
                                   std::function<QJsonValue(const QJsonValue &)> converter)
{
    if (!mVersions)
        mVersions = std::make_unique<ConfVersions>();
    mVersions->mConverters[key] = std::move(converter);
    if (mKeptEntries && mConfValues.contains(key))
        ConfLoad(*this, LoadLocal).convertApplied(key);
    if (mKeptEntries && mConfValues.contains(key))
        ConfLoad(*this, LoadLocal).loadKept(key);
}
