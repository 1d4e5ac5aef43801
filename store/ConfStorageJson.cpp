#include <MaltoConfiguration/store/ConfStorage.h>

#include "ConfDump_p.h"
#include "ConfLoad_p.h"
#include "ConfMisuse_p.h"
#include "ConfObservers_p.h"
#include "ConfVersions_p.h"
#include "EntryLog_p.h"
#include "PlainDump_p.h"
#include "StrictTypes_p.h"

#include <QDebug>
#include <QJsonObject>

QString addSysMark(const QString &key)
{
    return key + QLatin1String("#s.mac");
}

QJsonObject ConfStorage::dumpConf(DumpConfType type) const
{
    if (mMisuse)
        checkUse("dumpConf");
    const EntryLog log;
    return ConfDump(*this, type).toObject();
}

int ConfStorage::loadConf(const QJsonObject &conf, LoadConfType type)
{
    const EntryLog log;
    const auto count = static_cast<int>(conf.size()); // a callback may change it
    ConfLoad(*this, type).loadObject(conf);
    return count;
}

bool ConfStorage::loadConf(const QString &json, LoadConfType type)
{
    const EntryLog log;
    const bool isObject = ConfLoad(*this, type).loadText({json.toUtf8(), std::nullopt});
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

void ConfStorage::loadValueFromJson(QString key, QJsonValue value)
{
    if (mMisuse)
        checkUse("loadValueFromJson");
    if (isLocked(key))
        return;
    if (mVersions)
        value = mVersions->convert(key, value);
    const bool isDefault = (mFileOptions & NullIsDefault)
                           && (value.isNull() || value.isUndefined());
    if (isDefault && mConfValues.contains(key)) {
        setToDefault(key, true);
        return;
    }
    const ConfValue::ConfType valueType = mConfValues.value(key).mType;
    if (isStrictType(mFileOptions & StrictTypes, valueType)) {
        const auto fitting = strictJson(value, valueType);
        if (!fitting) {
            logOtherType(key);
            return;
        }
        value = *fitting;
    }
    const std::optional<QJsonValue> accepted = constrained(key, value);
    if (!accepted)
        return;
    value = *accepted;
    const ChangePtr change = ConfObservers::beginChange(*this, key, ConfChange::Cause::Set);
    if (loadValue(key, value))
        markUserChange(key, nullptr, change);
}

/// Returns whether the key exists, before and after its value is loaded.
bool ConfStorage::loadValue(const QString &key, const QJsonValue &json)
{
    auto stored = mConfValues.find(key);
    if (stored == mConfValues.end())
        return false;
    if (stored->mType != ConfValue::TyQFont || json.isNull() || json.isUndefined()) {
        stored->loadFromJsonValue(json);
        return true;
    }
    // Text that does not describe a font is logged, and a log handler may change the store.
    ConfValue font = ConfValue::owned(QFont());
    font.loadFromJsonValue(json);
    stored = mConfValues.find(key);
    if (stored == mConfValues.end())
        return false;
    stored->set(font);
    return true;
}
