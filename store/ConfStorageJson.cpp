#include <MaltoConfiguration/store/ConfStorage.h>

#include "ConfDump_p.h"
#include "ConfLoad_p.h"

#include <QDebug>
#include <QJsonObject>

#include <algorithm>

QString addSysMark(const QString &key)
{
    return key + QLatin1String("#s.mac");
}

QJsonObject ConfStorage::dumpConf(DumpConfType type) const
{
    return ConfDump(*this, type).toObject();
}

int ConfStorage::loadConf(const QJsonObject &conf, LoadConfType type)
{
    const auto count = static_cast<int>(conf.size()); // a callback may change it
    ConfLoad(*this, type).loadObject(conf);
    return count;
}

bool ConfStorage::loadConf(const QString &json, LoadConfType type)
{
    const bool isObject = ConfLoad(*this, type).loadText(json.toUtf8());
    if (!isObject)
        qCritical() << "ConfStorage::importConf() parse json failed";
    return isObject;
}

void ConfStorage::loadSingleConf(QString key, const QJsonValue &value, LoadConfType type)
{
    ConfLoad(*this, type).loadMember(key, value);
}

bool ConfStorage::loadLoadDynamicConf(QString key, QJsonValue value, const DynamicConfClass *cls)
{
    return ConfLoad(*this, LoadLocal).loadMemberOfClass(key, value, cls);
}

QDateTime ConfStorage::calcLastConfTime() const
{
    QDateTime newest;
    for (const ConfMeta &meta : mConfMetas) {
        if (!meta.lastChangeTime.isNull() && !(meta.flags & FlagLocalOnly))
            newest = std::max(newest, meta.lastChangeTime);
    }
    for (const QDateTime &removed : mRemovedDynamicConfs)
        newest = std::max(newest, removed);
    return newest.toLocalTime();
}
