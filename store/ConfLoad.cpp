#include "ConfLoad_p.h"

#include "PlainDump_p.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <iterator>

namespace {

constexpr QLatin1String sTimeKey("t", 1);
constexpr QLatin1String sValueKey("v", 1);
constexpr QLatin1Char sMarkSeparator('#');

/// A member of a parsed object, to be loaded like a `PlainMember`.
class ParsedMember
{
public:
    explicit ParsedMember(const QJsonValue &member)
        : mIsObject(member.isObject()), mObject(member.toObject())
    {
    }

    bool isObject() const { return mIsObject; }
    std::optional<int> time() const
    {
        const auto time = mObject.constFind(sTimeKey);
        return time != mObject.constEnd() ? std::make_optional(time->toInt()) : std::nullopt;
    }
    QJsonValue value() const { return mObject.value(sValueKey); }
    QJsonObject toObject() const { return mObject; }

private:
    const bool mIsObject;
    const QJsonObject mObject;
};

/// Whether loading `value` writes nothing on the log.
bool isSilent(const ConfValue &value)
{
    return value.mType >= ConfValue::TyQColor && value.mType <= ConfValue::TyQJsonArray
           && value.mType != ConfValue::TyQFont;
}

/// The entry of `key`, which mostly is the one at `next`; `next` goes on behind it.
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
            loadEntry(member.key(), member);
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
    // A copy shares the data and keeps them alive if a callback changes the caller's object.
    const QJsonObject members = object;
    for (auto member = members.constBegin(); member != members.constEnd(); ++member)
        loadEntry(member.key(), ParsedMember(member.value()));
}

void ConfLoad::loadMember(const QString &key, const QJsonValue &value)
{
    loadEntry(key, ParsedMember(value));
}

template<class Member> void ConfLoad::loadEntry(QString key, const Member &member)
{
    if (key.endsWith(mSystemMark))
        key.chop(mSystemMark.size());
    else if (key.contains(sMarkSeparator))
        return;
    if (!member.isObject() || !loadDynamic(key, member))
        loadStatic(key, member);
}

/// Whether nothing is left to do for the key.
template<class Member> bool ConfLoad::loadDynamic(const QString &key, const Member &member)
{
    const ConfStorage::DynamicConfClass *cls = mStore.findDynamicConfClass(key);
    if (!cls)
        return false;
    if (!mIsLocal && (cls->flags & ConfStorage::FlagLocalOnly))
        return true;
    forgetPosition();
    return mStore.loadLoadDynamicConf(key, member.toObject(), cls);
}

template<class Member> void ConfLoad::loadStatic(const QString &key, const Member &member)
{
    const std::optional<int> time = member.time();

    // Most entries of a copy are no newer than the store: their values need no look.
    const auto known = metaOf(key);
    if (known != mStore.mConfMetas.end() && time && !known->lastChangeTime.isNull()
        && known->lastChangeTime.toSecsSinceEpoch() >= *time)
        return;
    const auto stored = valueOf(key);
    if (stored == mStore.mConfValues.end())
        return;
    const auto meta = known != mStore.mConfMetas.end()
                          ? known
                          : mStore.mConfMetas.insert(key, ConfStorage::ConfMeta());
    if (!mIsLocal && (meta->flags & ConfStorage::FlagLocalOnly))
        return;
    meta->lastChangeTime = time ? QDateTime::fromSecsSinceEpoch(*time, Qt::UTC)
                                : QDateTime::currentDateTimeUtc();

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
