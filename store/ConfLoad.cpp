#include "ConfLoad_p.h"

#include "DumpMember_p.h"
#include "PlainDump_p.h"

#include <QDebug>
#include <QJsonDocument>
#include <QJsonObject>

#include <iterator>

namespace {

constexpr QLatin1Char sMarkSeparator('#');

/// The merge rule, for two times in the same unit: the newer change wins, and a tie keeps the
/// stored one, so that loading a dump twice changes nothing.
bool storedWins(qint64 stored, qint64 incoming)
{
    return stored >= incoming;
}

/// The same for a change that may not exist.
bool storedWins(const QDateTime &stored, const QDateTime &incoming)
{
    return stored.isValid() && storedWins(stored.toMSecsSinceEpoch(), incoming.toMSecsSinceEpoch());
}

/// The time of a change in UTC. One without a time is made now.
QDateTime timeOfChange(std::optional<int> seconds)
{
    return seconds ? QDateTime::fromSecsSinceEpoch(*seconds, Qt::UTC)
                   : QDateTime::currentDateTimeUtc();
}

/// Returns whether loading `value` logs nothing.
bool isSilent(const ConfValue &value)
{
    return value.mType >= ConfValue::TyQColor && value.mType <= ConfValue::TyQJsonArray
           && value.mType != ConfValue::TyQFont;
}

/// Returns the entry of `key`, probably the one at `next`, and moves `next` behind it.
template<class Map> typename Map::iterator findFrom(Map &map,
                                                    std::optional<typename Map::iterator> &next,
                                                    const QString &key)
{
    const bool isNext = next && *next != map.end() && next->key() == key;
    const auto found = isNext ? *next : map.find(key);
    if (found != map.end())
        next = std::next(found);
    return found;
}

} // namespace

ConfLoad::ConfLoad(ConfStorage &store, ConfStorage::LoadConfType type)
    : mStore(store), mIsLocal(type == ConfStorage::LoadLocal), mSystemMark(addSysMark(QString()))
{
}

QMap<QString, ConfValue>::iterator ConfLoad::valueOf(const QString &key)
{
    return findFrom(mStore.mConfValues, mNextValue, key);
}

QMap<QString, ConfStorage::ConfMeta>::iterator ConfLoad::metaOf(const QString &key)
{
    return findFrom(mStore.mConfMetas, mNextMeta, key);
}

void ConfLoad::forgetPosition()
{
    mNextValue.reset();
    mNextMeta.reset();
}

bool ConfLoad::loadText(const QByteArray &text)
{
    if (const auto members = readPlainDump(text)) {
        for (const PlainMember &member : *members)
            load(member.key(), member);
        return true;
    }
    const QJsonDocument document = QJsonDocument::fromJson(text);
    if (!document.isObject())
        return false;
    loadObject(document.object());
    return true;
}

void ConfLoad::loadObject(const QJsonObject &object)
{
    // The copy shares the data and keeps it alive if a callback changes the caller's object.
    const QJsonObject members = object;
    for (auto member = members.constBegin(); member != members.constEnd(); ++member)
        load(member.key(), ParsedMember(member.value()));
}

void ConfLoad::loadMember(const QString &key, const QJsonValue &entry)
{
    load(key, ParsedMember(entry));
}

bool ConfLoad::loadMemberOfClass(const QString &key, const QJsonValue &entry,
                                 const ConfStorage::DynamicConfClass *cls)
{
    return mergeDynamic(key, ParsedMember(entry), cls);
}

template<class Member> void ConfLoad::load(QString key, const Member &member)
{
    if (key.endsWith(mSystemMark))
        key.chop(mSystemMark.size());
    else if (key.contains(sMarkSeparator))
        return;
    if (!member.isObject() || !loadDynamic(key, member))
        loadStatic(key, member);
}

/// Returns whether nothing is left to do for the key.
template<class Member> bool ConfLoad::loadDynamic(const QString &key, const Member &member)
{
    const ConfStorage::DynamicConfClass *cls = mStore.findDynamicConfClass(key);
    if (!cls)
        return false;
    if (!mIsLocal && (cls->flags & ConfStorage::FlagLocalOnly))
        return true;
    forgetPosition();
    return mergeDynamic(key, member, cls);
}

template<class Member> bool ConfLoad::mergeDynamic(const QString &key, const Member &member,
                                                   const ConfStorage::DynamicConfClass *cls)
{
    const std::optional<int> removalTime = member.removalTime();
    const std::optional<int> time = member.time();
    const QDateTime incoming = timeOfChange(removalTime ? removalTime : time);

    const auto record = mStore.mConfMetas.constFind(key);
    const QDateTime stored = record != mStore.mConfMetas.constEnd()
                                 ? record->lastChangeTime
                                 : mStore.mRemovedDynamicConfs.value(key);
    if (storedWins(stored, incoming))
        return true;

    if (removalTime) {
        mergeRemoval(key, incoming);
        return true;
    }
    const QJsonValue value = member.value();
    if (value.isUndefined()) {
        mStore.setToDefault(key, true);
        const auto meta = mStore.mConfMetas.find(key);
        if (meta != mStore.mConfMetas.end() && time)
            meta->lastChangeTime = incoming;
        return true;
    }
    mStore.mRemovedDynamicConfs.remove(key);
    if (mStore.mConfValues.contains(key))
        return false;
    mStore.createDynamicConf(key, value, cls);
    const auto meta = mStore.mConfMetas.find(key);
    if (meta != mStore.mConfMetas.end())
        meta->lastChangeTime = incoming;
    else
        qCritical() << "createDynamicConf Not create conf: " << key;
    return true;
}

void ConfLoad::mergeRemoval(const QString &key, const QDateTime &incoming)
{
    const bool isPresent = mStore.mConfValues.contains(key);
    if (isPresent)
        mStore.removeDynamicConf(key);
    const QDateTime removed = mStore.mRemovedDynamicConfs.value(key);
    if (isPresent || !storedWins(removed, incoming))
        mStore.mRemovedDynamicConfs[key] = incoming;
}

template<class Member> void ConfLoad::loadStatic(const QString &key, const Member &member)
{
    const std::optional<int> time = member.time();

    // Most entries of a copy are no newer than the store: their values need not be read.
    const auto known = metaOf(key);
    if (known != mStore.mConfMetas.end() && time && !known->lastChangeTime.isNull()
        && storedWins(known->lastChangeTime.toSecsSinceEpoch(), *time))
        return;
    const auto stored = valueOf(key);
    if (stored == mStore.mConfValues.end())
        return;
    const auto meta = known != mStore.mConfMetas.end()
                          ? known
                          : mStore.mConfMetas.insert(key, ConfStorage::ConfMeta());
    if (!mIsLocal && (meta->flags & ConfStorage::FlagLocalOnly))
        return;
    meta->lastChangeTime = timeOfChange(time);

    const QJsonValue value = member.value();
    if (!value.isUndefined() && !meta->changedCallback && isSilent(*stored)) {
        stored->loadFromJsonValue(value);
        meta->flags &= ~ConfStorage::FlagIsDefault;
        return;
    }
    forgetPosition();
    if (value.isUndefined()) {
        mStore.setToDefault(key, false);
        return;
    }
    if (!mStore.loadValue(key, value))
        return;
    mStore.callChangedCallback(key, mStore.mConfMetas[key]);
    // Looked up again: the callback may have removed the key.
    const auto record = mStore.mConfMetas.find(key);
    if (record != mStore.mConfMetas.end())
        record->flags &= ~ConfStorage::FlagIsDefault;
}
