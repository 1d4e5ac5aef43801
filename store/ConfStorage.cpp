#include <MaltoConfiguration/store/ConfStorage.h>

#include "EntryLog_p.h"

#include <QDebug>
#include <QJsonObject>
#include <QScopedValueRollback>

#include <algorithm>
#include <new>

namespace {

/// How many callbacks may be nested. Far more than a host needs, and far fewer than the stack can
/// contain: a callback that keeps setting its own key is stopped instead of overflowing the stack.
constexpr int sMaxCallbackDepth = 200;

} // namespace

ConfStorage *ConfStorage::instance()
{
    static ConfStorage *sInstance = new ConfStorage;
    return sInstance;
}

void ConfStorage::clear()
{
    // Constructed again in place, because a list of the members would miss the next one.
    this->~ConfStorage();
    new (this) ConfStorage;
}

void ConfStorage::reserveValue(const QString &key, const ConfValue &bound, const ConfValue &current)
{
    // A concatenated string has spare capacity, which the store would keep as long as the key.
    const QString exactKey = key.capacity() > key.size() ? QString(key.constData(), key.size())
                                                         : key;
    mConfValues[exactKey] = bound;

    ConfMeta meta;
    if (isDynamicWithoutPreset(key))
        meta.flags &= ~FlagIsDefault;
    const auto preset = mPresetDynamicConfs.constFind(key);
    if (preset == mPresetDynamicConfs.constEnd()) {
        meta.defaultValue = current;
    } else {
        meta.defaultValue = ConfValue::owned(preset->toObject());
        if (meta.defaultValue != bound)
            meta.flags &= ~FlagIsDefault;
    }
    mConfMetas[exactKey] = meta;
}

void ConfStorage::setToDefault(const QString &key, bool updateTime)
{
    const auto value = mConfValues.find(key);
    if (value != mConfValues.end()) {
        const auto meta = mConfMetas.find(key);
        if (meta == mConfMetas.end() || (meta->flags & FlagIsDefault))
            return;
        value->set(meta->defaultValue);
        if (updateTime)
            meta->lastChangeTime = QDateTime::currentDateTimeUtc();
        meta->flags |= FlagIsDefault;
        callChangedCallback(key, *meta);
        mChanged = true;
        return;
    }

    const auto preset = mPresetDynamicConfs.constFind(key);
    if (preset == mPresetDynamicConfs.constEnd()) {
        // Deliberately the message of `set`: both mean that the key is not reserved.
        if (EntryLog::permits())
            qCritical() << "ConfStorage::set key not found: " << EntryLog::truncated(key);
        return;
    }
    // Copies, because the creator may change the presets.
    const QString name = key;
    const QJsonValue presetValue = *preset;
    createDynamicConf(name, presetValue, nullptr);
    const auto meta = mConfMetas.find(name);
    if (meta != mConfMetas.end())
        meta->flags |= FlagIsDefault;
    mChanged = true;
}

bool ConfStorage::isEqualToDefault(const QString &key) const
{
    const auto meta = mConfMetas.constFind(key);
    if (meta == mConfMetas.constEnd() || (meta->flags & FlagIsDefault))
        return true;
    // The record of such a key contains its initial value, but the key has no default value.
    if (isDynamicWithoutPreset(key))
        return false;
    return meta->defaultValue == mConfValues.value(key);
}

void ConfStorage::setConfChangedCallback(const QString &key, ConfChangedCallback cb)
{
    if (mConfValues.contains(key))
        mConfMetas[key].changedCallback = std::move(cb);
    else
        qDebug() << "ConfStorage::setConfChangedCallback key not found: " << key;
}

/// `value` is the entry of the key if the caller knows that it is still valid, or else null.
void ConfStorage::markUserChange(const QString &key, ConfValue *value)
{
    ConfMeta &meta = mConfMetas[key];
    meta.lastChangeTime = QDateTime::currentDateTimeUtc();
    meta.flags &= ~FlagIsDefault;
    callChangedCallback(key, meta, value);
    mChanged = true;
}

void ConfStorage::callChangedCallback(const QString &key, const ConfMeta &meta, ConfValue *value)
{
    if (!meta.changedCallback)
        return;
    if (mCallbackDepth == 0)
        mCallbacksStopped = false;
    if (mCallbacksStopped)
        return;
    if (mCallbackDepth >= sMaxCallbackDepth) {
        // No callback is called until the outermost one returns: callbacks that cause two others
        // each would otherwise run almost forever below the limit.
        mCallbacksStopped = true;
        if (EntryLog::permits())
            qCritical() << "ConfStorage::callChangedCallback nested too deeply: "
                        << EntryLog::truncated(key);
        return;
    }
    // Copies, because the callback may remove or reserve its key again, and so destroy its record.
    const QString name = key;
    const ConfChangedCallback callback = meta.changedCallback;
    const QScopedValueRollback<int> depth(mCallbackDepth, mCallbackDepth + 1);
    callback(name, value ? value : &mConfValues[name]);
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

bool ConfStorage::isDynamicWithoutPreset(const QString &key) const
{
    return !mPresetDynamicConfs.contains(key) && findDynamicConfClass(key);
}

void ConfStorage::logNullPointer(const QString &key)
{
    qCritical() << "ConfStorage::reserveConf null pointer: " << key;
}

void ConfStorage::logGetNotFound(const QString &key)
{
    qCritical() << "ConfStorage::get key not found: " << key;
}

void ConfStorage::logSetNotFound(const QString &key)
{
    qWarning() << "ConfStorage::set key not found: " << key;
}
