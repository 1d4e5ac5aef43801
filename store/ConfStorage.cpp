#include <MaltoConfiguration/store/ConfStorage.h>

#include <QDebug>
#include <QJsonObject>
#include <QScopedValueRollback>

#include <algorithm>

namespace {

/// How deep callbacks may set off each other. Far above what a host needs, far below what the
/// stack holds: a callback that sets its own key without end is stopped instead of crashing.
constexpr int sMaxCallbackDepth = 200;

} // namespace

ConfStorage *ConfStorage::instance()
{
    static ConfStorage *sInstance = new ConfStorage;
    return sInstance;
}

void ConfStorage::reserveValue(const QString &key, const ConfValue &bound, const ConfValue &current)
{
    // A text that was put together has room to grow, which the store would keep for good.
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
        // The message of `set` on purpose: both mean that nobody reserved the key.
        qCritical() << "ConfStorage::set key not found: " << key;
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
    // Such a key starts out with a default value in its record, but it is nobody's default.
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

/// `value` is the key's entry where it is known that nothing has moved it, or else null.
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
        // None any more until the outermost one returns: callbacks that set off two others each
        // would otherwise go on almost for ever below the limit.
        mCallbacksStopped = true;
        qCritical() << "ConfStorage::callChangedCallback nested too deeply: " << key;
        return;
    }
    // Copies, because the callback may remove or reserve again the key whose record it stands in.
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
