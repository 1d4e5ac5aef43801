#include <MaltoConfiguration/store/ConfStorage.h>

#include <MaltoConfiguration/store/ConfDump_p.h>

#include <QDebug>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

namespace {

constexpr QLatin1String sTimeKey("t", 1);
constexpr QLatin1String sValueKey("v", 1);
constexpr QLatin1Char sMarkSeparator('#');
constexpr QLatin1String sSystemName("s.mac", 5);

/// Whether loading `value` writes nothing on the log.
bool isTyped(const ConfValue &value)
{
    return value.mType >= ConfValue::TyQColor && value.mType <= ConfValue::TyQJsonArray;
}

} // namespace

QString addSysMark(QString const &key)
{
    return key + sMarkSeparator + sSystemName;
}

/// Where the next key is likely to stand in both maps: members of an object are in the order of the
/// maps. Forgotten as soon as code of the host may have run, callbacks and log handlers, which may
/// change the maps.
class ConfStorage::LoadPosition
{
public:
    explicit LoadPosition(ConfStorage &store) : mStore(store) {}

    QMap<QString, ConfValue>::iterator valueOf(const QString &key)
    {
        return findFrom(mStore.mConfValues, mNextValue, key);
    }
    QMap<QString, ConfMeta>::iterator metaOf(const QString &key)
    {
        return findFrom(mStore.mConfMetas, mNextMeta, key);
    }
    void forget()
    {
        mNextValue.reset();
        mNextMeta.reset();
    }

private:
    /// The entry of `key`, which mostly is the one at `next`; `next` goes on behind it.
    template<class Map>
    static typename Map::iterator findFrom(Map &map, std::optional<typename Map::iterator> &next,
                                           const QString &key)
    {
        const bool isNext = next && *next != map.end() && next->key() == key;
        const auto found = isNext ? *next : map.find(key);
        if (found != map.end())
            next = std::next(found);
        return found;
    }

    ConfStorage &mStore;
    std::optional<QMap<QString, ConfValue>::iterator> mNextValue;
    std::optional<QMap<QString, ConfMeta>::iterator> mNextMeta;
};

QJsonObject ConfStorage::dumpConf(DumpConfType type) const
{
    return ConfDump(*this, type).toObject();
}

int ConfStorage::loadConf(QJsonObject const &conf, LoadConfType type)
{
    // A copy shares the data and keeps them alive if a callback changes the caller's object.
    const QJsonObject members = conf;
    LoadPosition position(*this);
    for (auto it = members.constBegin(); it != members.constEnd(); ++it)
        loadMember(it.key(), it.value(), type, position);
    return members.size();
}

bool ConfStorage::loadConf(QString const &json, LoadConfType type)
{
    const QJsonDocument document = QJsonDocument::fromJson(json.toUtf8());
    if (document.isNull() || !document.isObject()) {
        qCritical() << "ConfStorage::importConf() parse json failed";
        return false;
    }
    loadConf(document.object(), type);
    return true;
}

void ConfStorage::loadSingleConf(QString key, QJsonValue const &value, LoadConfType type)
{
    LoadPosition position(*this);
    loadMember(std::move(key), value, type, position);
}

void ConfStorage::loadMember(QString key, QJsonValue const &value, LoadConfType type,
                             LoadPosition &position)
{
    const int mark = key.lastIndexOf(sMarkSeparator);
    if (mark >= 0) {
        if (key.midRef(mark + 1) != sSystemName)
            return;
        key.truncate(mark);
    }
    if (value.isObject()) {
        if (const DynamicConfClass *cls = findDynamicConfClass(key)) {
            if (type != LoadLocal && (cls->flags & FlagLocalOnly))
                return;
            position.forget();
            if (loadLoadDynamicConf(key, value, cls))
                return;
        }
    }
    loadEntry(key, value.toObject(), type, position);
}

void ConfStorage::loadEntry(QString const &key, QJsonObject const &entry, LoadConfType type,
                            LoadPosition &position)
{
    const auto time = entry.constFind(sTimeKey);
    const bool hasTime = time != entry.constEnd();
    const int seconds = hasTime ? time.value().toInt() : 0;

    // Most entries of a copy are no newer than the store: their values need no look.
    const auto known = position.metaOf(key);
    if (known != mConfMetas.end() && hasTime && !known->lastChangeTime.isNull()
        && known->lastChangeTime.toSecsSinceEpoch() >= seconds)
        return;
    const auto stored = position.valueOf(key);
    if (stored == mConfValues.end())
        return;
    const auto meta = known != mConfMetas.end() ? known : mConfMetas.insert(key, ConfMeta());
    if (type != LoadLocal && (meta->flags & FlagLocalOnly))
        return;
    meta->lastChangeTime = hasTime ? QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC)
                                   : QDateTime::currentDateTimeUtc();

    const auto value = entry.constFind(sValueKey);
    if (value != entry.constEnd() && !meta->changedCallback && isTyped(*stored)) {
        stored->loadFromJsonValue(value.value());
        meta->flags &= ~FlagIsDefault;
        return;
    }
    position.forget();
    if (value == entry.constEnd()) {
        setToDefault(key, false);
        return;
    }
    stored->loadFromJsonValue(value.value());
    callChangedCallback(key, mConfMetas[key]);
    // Looked up again: the callback may have removed the key.
    const auto record = mConfMetas.find(key);
    if (record != mConfMetas.end())
        record->flags &= ~FlagIsDefault;
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
    return newest;
}
