#include "ConfDump_p.h"

#include "ConfKeptEntries_p.h"
#include "DumpMember_p.h"
#include "EntryLog_p.h"
#include "JsonText_p.h"
#include "LockedConfs_p.h"

#include <QDebug>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace {

void append(QByteArray &text, QLatin1String part)
{
    text.append(part.data(), part.size());
}

/// Returns whether JSON has the value. Infinity and NaN would become null, which unbinds the key
/// when it is loaded; dumped without a value, the setting gets its default value.
bool hasJson(const ConfValue &value)
{
    return value.mType != ConfValue::TyQreal || std::isfinite(value.get<qreal>());
}

} // namespace

ConfDump::ConfDump(const ConfStorage &store, ConfStorage::DumpConfType type)
    : mType(type), mValues(store.mConfValues), mMetas(store.mConfMetas)
{
    if (const LockedConfs *locked = store.mLockedConfs.get())
        locked->restoreOwn(&mValues, &mMetas);
    if (const ConfKeptEntries *kept = store.mKeptEntries.get()) {
        if (type == ConfStorage::DumpLocal)
            collectKept(*kept);
    }
    collectValues();
    if (type != ConfStorage::DumpChangedOnly)
        collectRemoved(store);
    sortMembers();
}

ConfDump::ConfDump(const ConfStorage &store, const QString &key)
    : mType(ConfStorage::DumpLocal), mValues(store.mConfValues), mMetas(store.mConfMetas)
{
    if (const LockedConfs *locked = store.mLockedConfs.get())
        locked->restoreOwn(&mValues, &mMetas);
    const auto value = mValues.constFind(key);
    const auto record = mMetas.constFind(key);
    if (value != mValues.cend() && record != mMetas.cend())
        collectValue(key, *value, *record);
}

void ConfDump::collectKept(const ConfKeptEntries &kept)
{
    mKept = kept.entries();
    constexpr qint64 sNever = std::numeric_limits<qint64>::min();
    for (auto entry = mKept.cbegin(); entry != mKept.cend(); ++entry) {
        const qint64 time = ConfKeptEntries::timeOf(*entry).value_or(sNever);
        mMembers.push_back({entry.key(), time, nullptr, false, &*entry});
    }
}

void ConfDump::collectValues()
{
    auto meta = mMetas.cbegin();
    for (auto value = mValues.cbegin(); value != mValues.cend(); ++value) {
        // Both maps usually have the same keys: the record of the next key is the next record.
        if (meta == mMetas.cend() || meta.key() != value.key())
            meta = mMetas.constFind(value.key());
        if (meta == mMetas.cend())
            continue;
        const auto record = meta++;
        collectValue(value.key(), *value, *record);
    }
}

void ConfDump::collectValue(const QString &key, const ConfValue &value,
                            const ConfStorage::ConfMeta &record)
{
    if (record.lastChangeTime.isNull())
        return;
    if (mType != ConfStorage::DumpLocal && (record.flags & ConfStorage::FlagLocalOnly))
        return;
    const bool isDefault = (record.flags & ConfStorage::FlagIsDefault) || !hasJson(value);
    qint64 time = 0;
    if (mType == ConfStorage::DumpChangedOnly) {
        if (isDefault)
            return;
    } else {
        time = record.lastChangeTime.toSecsSinceEpoch();
        if (time == 0)
            return;
    }
    const bool marked = record.flags & ConfStorage::FlagSystemIndependent;
    mMembers.push_back({marked ? addSysMark(key) : key, time, &value, isDefault});
}

void ConfDump::collectRemoved(const ConfStorage &store)
{
    QMap<QString, QDateTime> removed = store.mRemovedDynamicConfs;
    if (const LockedConfs *locked = store.mLockedConfs.get()) {
        const QMap<QString, QDateTime> &own = locked->tombstones();
        for (auto it = own.cbegin(); it != own.cend(); ++it)
            removed.insert(it.key(), *it);
    }
    for (auto it = removed.cbegin(); it != removed.cend(); ++it) {
        const ConfStorage::DynamicConfClass *cls = store.findDynamicConfClass(it.key());
        const bool marked = cls && (cls->flags & ConfStorage::FlagSystemIndependent);
        if (!cls && EntryLog::permits())
            qCritical() << "dumpConf findDynamicConfClass error : "
                        << EntryLog::truncated(it.key());
        mMembers.push_back(
            {marked ? addSysMark(it.key()) : it.key(), it->toSecsSinceEpoch(), nullptr, false});
    }
}

/// Kept entries, members with a mark and tombstones are not in order. Of members with the same name
/// the last one is used, or the kept entry, which is the first one, if it is newer.
void ConfDump::sortMembers()
{
    const auto precedes = [](const Member &a, const Member &b) { return a.name < b.name; };
    const auto isUnordered = [](const Member &a, const Member &b) { return !(a.name < b.name); };
    if (std::adjacent_find(mMembers.cbegin(), mMembers.cend(), isUnordered) == mMembers.cend())
        return;
    std::stable_sort(mMembers.begin(), mMembers.end(), precedes);
    for (size_t i = 1; !mKept.isEmpty() && i < mMembers.size(); ++i) {
        Member &first = mMembers[i - 1];
        if (first.kept && first.name == mMembers[i].name && first.time > mMembers[i].time)
            std::swap(first, mMembers[i]);
    }
    const auto lastOfEach = std::unique(
        mMembers.rbegin(), mMembers.rend(),
        [](const Member &a, const Member &b) { return a.name == b.name; });
    mMembers.erase(mMembers.begin(), lastOfEach.base());
}

QJsonObject ConfDump::toObject() const
{
    QJsonObject object;
    for (const Member &member : mMembers)
        object.insert(member.name, entryOf(member));
    return object;
}

QJsonValue ConfDump::entryOf(const Member &member) const
{
    if (member.kept)
        return *member.kept;
    if (!member.value)
        return QJsonObject{{sRemovedKey.name(), member.time}};
    QJsonObject entry;
    if (mType != ConfStorage::DumpChangedOnly)
        entry.insert(sTimeKey.name(), member.time);
    if (!member.isDefault)
        entry.insert(sValueKey.name(), member.value->toJsonValue());
    return entry;
}

QByteArray ConfDump::toText() const
{
    constexpr size_t sUsualSize = 64; // of one member
    QByteArray text;
    text.reserve(static_cast<int>(std::min(mMembers.size(), size_t(1) << 20) * sUsualSize));
    text += '{';
    for (const Member &member : mMembers) {
        if (text.size() > 1)
            text += ',';
        appendJsonString(text, member.name);
        text += ':';
        appendEntry(text, member);
    }
    text += '}';
    return text;
}

ConfDump::Entry ConfDump::at(size_t index) const
{
    const Member &member = mMembers[index];
    return {member.name, member.time, member.kept != nullptr};
}

QByteArray ConfDump::entryText(size_t index, qint64 time) const
{
    Member member = mMembers[index];
    member.time = time;
    QByteArray text;
    appendEntry(text, member);
    return text;
}

void ConfDump::appendEntry(QByteArray &text, const Member &member) const
{
    if (member.kept) {
        appendJsonValue(text, *member.kept);
        return;
    }
    text += '{';
    if (!member.value) {
        append(text, sRemovedKey.inText());
        appendJsonValue(text, member.time);
        text += '}';
        return;
    }
    const bool timed = mType != ConfStorage::DumpChangedOnly;
    if (timed) {
        append(text, sTimeKey.inText());
        appendJsonValue(text, member.time);
    }
    if (!member.isDefault) {
        if (timed)
            text += ',';
        append(text, sValueKey.inText());
        appendJsonValue(text, member.value->toJsonValue());
    }
    text += '}';
}
