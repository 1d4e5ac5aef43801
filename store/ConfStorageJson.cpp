#include <MaltoConfiguration/store/ConfStorage.h>

#include <QDebug>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

constexpr QLatin1String sTimeKey("t", 1);
constexpr QLatin1String sValueKey("v", 1);
constexpr QLatin1String sRemovedKey("d", 1);
constexpr QLatin1Char sMarkSeparator('#');
constexpr QLatin1String sSystemName("s.mac", 5);

using Member = std::pair<QString, QJsonObject>;

/// Inserting in sorted order keeps the building of a large object linear. Of members of one name
/// the last one counts.
QJsonObject toObject(std::vector<Member> members)
{
    std::stable_sort(members.begin(), members.end(),
                     [](const Member &a, const Member &b) { return a.first < b.first; });
    QJsonObject object;
    for (const Member &member : members)
        object.insert(member.first, member.second);
    return object;
}

} // namespace

QString addSysMark(QString const &key)
{
    return key + sMarkSeparator + sSystemName;
}

QJsonObject ConfStorage::dumpConf(DumpConfType type) const
{
    std::vector<Member> members;
    for (auto value = mConfValues.cbegin(); value != mConfValues.cend(); ++value) {
        const auto meta = mConfMetas.constFind(value.key());
        if (meta == mConfMetas.constEnd() || meta->lastChangeTime.isNull())
            continue;
        if (type != DumpLocal && (meta->flags & FlagLocalOnly))
            continue;
        const bool isDefault = meta->flags & FlagIsDefault;

        QJsonObject entry;
        if (type == DumpChangedOnly) {
            if (isDefault)
                continue;
        } else {
            const qint64 time = meta->lastChangeTime.toSecsSinceEpoch();
            if (time == 0)
                continue;
            entry.insert(sTimeKey, time);
        }
        if (!isDefault)
            entry.insert(sValueKey, value->toJsonValue());
        const bool marked = meta->flags & FlagSystemIndependent;
        members.emplace_back(marked ? addSysMark(value.key()) : value.key(), entry);
    }
    if (type != DumpChangedOnly) {
        for (auto it = mRemovedDynamicConfs.cbegin(); it != mRemovedDynamicConfs.cend(); ++it) {
            const DynamicConfClass *cls = findDynamicConfClass(it.key());
            if (!cls)
                qCritical() << "dumpConf findDynamicConfClass error : " << it.key();
            const bool marked = cls && (cls->flags & FlagSystemIndependent);
            members.emplace_back(marked ? addSysMark(it.key()) : it.key(),
                                 QJsonObject{{sRemovedKey, it->toSecsSinceEpoch()}});
        }
    }
    return toObject(std::move(members));
}

int ConfStorage::loadConf(QJsonObject const &conf, LoadConfType type)
{
    // A copy shares the data and keeps them alive if a callback changes the caller's object.
    const QJsonObject members = conf;
    for (auto it = members.constBegin(); it != members.constEnd(); ++it)
        loadSingleConf(it.key(), it.value(), type);
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
            if (loadLoadDynamicConf(key, value, cls))
                return;
        }
    }
    loadEntry(key, value.toObject(), type);
}

void ConfStorage::loadEntry(QString const &key, QJsonObject const &entry, LoadConfType type)
{
    const auto stored = mConfValues.find(key);
    if (stored == mConfValues.end())
        return;
    ConfMeta &meta = mConfMetas[key];
    if (type != LoadLocal && (meta.flags & FlagLocalOnly))
        return;

    const auto time = entry.constFind(sTimeKey);
    const bool hasTime = time != entry.constEnd();
    if (!meta.lastChangeTime.isNull() && hasTime
        && meta.lastChangeTime.toSecsSinceEpoch() >= time.value().toInt())
        return;
    meta.lastChangeTime = hasTime ? QDateTime::fromSecsSinceEpoch(time.value().toInt(), Qt::UTC)
                                  : QDateTime::currentDateTimeUtc();

    const auto value = entry.constFind(sValueKey);
    if (value == entry.constEnd()) {
        setToDefault(key, false);
        return;
    }
    stored->loadFromJsonValue(value.value());
    callChangedCallback(key, meta);
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
