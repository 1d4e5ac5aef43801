#include "ShadowStore_p.h"

#include "BoundCopy_p.h"

#include <QJsonArray>
#include <QJsonObject>

void ShadowStore::copyRules(const ConfStorage &other)
{
    mStore.mFileOptions = other.mFileOptions;
    mStore.mMaxFileSize = other.mMaxFileSize;
    mStore.mConstraints = other.mConstraints;
    mStore.mPresetDynamicConfs = other.mPresetDynamicConfs;
    mStore.mDynamicConfClasses.clear();
    mClasses.clear();
    for (const ConfStorage::DynamicConfClass *cls : other.mDynamicConfClasses) {
        if (cls)
            addClass(cls);
    }
}

void ShadowStore::addClass(const ConfStorage::DynamicConfClass *cls)
{
    auto copy = std::make_unique<ConfStorage::DynamicConfClass>();
    copy->prefix = cls->prefix;
    copy->flags = cls->flags;
    if (cls->creator)
        copy->creator = [this](const QString &key, const QJsonValue *value) {
            create(key, *value);
        };
    mStore.mDynamicConfClasses.append(copy.get());
    mClasses.push_back(std::move(copy));
}

void ShadowStore::create(const QString &key, const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Bool: reserve(key, value.toBool()); return;
    case QJsonValue::Double: reserve(key, value.toDouble()); return;
    case QJsonValue::String: reserve(key, value.toString()); return;
    case QJsonValue::Array: reserve(key, value.toArray()); return;
    case QJsonValue::Object:
    case QJsonValue::Null:
    case QJsonValue::Undefined: reserve(key, value.toObject()); return;
    }
}

template<class T> void ShadowStore::reserve(const QString &key, const T &value)
{
    const auto variable = std::make_shared<T>(value);
    mVariables.push_back(variable);
    mStore.reserveConf(key, variable.get());
}

void ShadowStore::copyKey(const ConfStorage &other, const QString &key)
{
    const auto value = other.mConfValues.constFind(key);
    if (value != other.mConfValues.constEnd()) {
        const BoundCopy copy = boundCopy(*value);
        mVariables.push_back(copy.variable);
        mStore.mConfValues[key] = copy.value;
    }
    const auto meta = other.mConfMetas.constFind(key);
    if (meta != other.mConfMetas.constEnd()) {
        ConfStorage::ConfMeta &copy = mStore.mConfMetas[key];
        copy = *meta;
        copy.changedCallback = nullptr;
    }
}

void ShadowStore::copyContent(const ConfStorage &other)
{
    const QList<QString> keys = other.mConfValues.keys();
    for (const QString &key : keys)
        copyKey(other, key);
    const QList<QString> records = other.mConfMetas.keys();
    for (const QString &key : records) {
        if (!mStore.mConfMetas.contains(key))
            copyKey(other, key);
    }
    mStore.mRemovedDynamicConfs = other.mRemovedDynamicConfs;
}
