#include "ConfLoad_p.h"

#include "ConfFileSharing_p.h"
#include "ConfKeptEntries_p.h"
#include "ConfVersions_p.h"

#include <QScopedValueRollback>

#include <algorithm>

// What older versions of the program wrote, and what was kept for keys that did not exist.

void ConfLoad::loadKept(const QString &key)
{
    mIsKept = true;
    const QStringList names = keptNamesOf(key);
    for (const QString &name : names) {
        if (!mStore.mKeptEntries || !mStore.mConfValues.contains(key))
            return; // an observer has changed the store
        const QJsonValue entry = mStore.mKeptEntries->entries().value(name);
        const bool isRemoval = ParsedMember(entry, mTimes).removalTime().has_value();
        if (isRemoval || !ConfKeptEntries::timeOf(entry))
            continue;
        const ConfFileSharing::UnchangedEntry unchanged(mStore.mFileSharing, name);
        mIsFormer = isFormerName(withoutMark(name));
        const int taken = mReport.taken;
        merge(key, entry);
        if (!isMerged(key, entry) || !mStore.mKeptEntries)
            continue; // refused, for example
        if (mReport.taken > taken)
            mStore.mKeptEntries->setApplied(key, entry);
        if (!isFormerName(withoutMark(name)) || !mStore.mVersions->isKept(withoutMark(name)))
            mStore.mKeptEntries->remove(name);
    }
}

/// Returns whether the store has the change of `entry` or a newer one.
bool ConfLoad::isMerged(const QString &key, const QJsonValue &entry) const
{
    const auto record = mStore.mConfMetas.constFind(key);
    const bool isPresent = mStore.mConfValues.contains(key);
    const QDateTime time = isPresent && record != mStore.mConfMetas.constEnd()
                               ? record->lastChangeTime
                               : mStore.mRemovedDynamicConfs.value(key);
    return time.isValid() && time.toSecsSinceEpoch() >= ConfKeptEntries::timeOf(entry);
}

/// Returns the names of the entries of `key`. The current name is the first one, as it wins ties.
QStringList ConfLoad::keptNamesOf(const QString &key) const
{
    QStringList keys{key};
    if (mStore.mVersions) {
        const QList<QString> formerNames = mStore.mVersions->mFormerNames.keys();
        std::vector<std::pair<int, QString>> former;
        for (const QString &formerName : formerNames) {
            int steps = 0;
            if (formerName != key && currentNameOf(formerName, &steps) == key)
                former.emplace_back(steps, formerName);
        }
        std::sort(former.begin(), former.end());
        for (const auto &[steps, formerName] : former)
            keys.append(formerName);
    }
    QStringList names;
    for (const QString &name : std::as_const(keys))
        names << name << addSysMark(name);
    const auto isMissing = [this](const QString &name) {
        return !mStore.mKeptEntries->entries().contains(name);
    };
    names.erase(std::remove_if(names.begin(), names.end(), isMissing), names.end());
    return names;
}

QDateTime ConfLoad::timeAfterKept(const QString &key) const
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    qint64 newest = now.toSecsSinceEpoch();
    const QStringList names = keptNamesOf(key);
    for (const QString &name : names) {
        const QJsonValue entry = mStore.mKeptEntries->entries().value(name);
        const ParsedMember member(entry, mTimes);
        newest = std::max(newest, member.removalTime().value_or(member.time().value_or(0)));
    }
    return newest > now.toSecsSinceEpoch() ? timeOfChange(newest + 1) : now;
}

void ConfLoad::loadKeptOfClasses(ConfStorage &store)
{
    if (!store.mKeptEntries)
        return;
    ConfLoad load(store, ConfStorage::LoadLocal);
    load.mIsKept = true;
    load.mIsRetry = true;
    const QList<QString> names = store.mKeptEntries->entries().keys();
    for (const QString &name : names) {
        const QString key = load.withoutMark(name);
        const bool isRefused = store.mConfMetas.contains(key) && !store.mConfValues.contains(key);
        if (isRefused || !store.findDynamicConfClass(key) || !store.mKeptEntries)
            continue;
        const QJsonValue entry = store.mKeptEntries->entries().value(name);
        if (!ConfKeptEntries::timeOf(entry))
            continue;
        const ConfFileSharing::UnchangedEntry unchanged(store.mFileSharing, name);
        load.merge(key, entry);
        if (load.isMerged(key, entry) && store.mKeptEntries)
            store.mKeptEntries->remove(name);
    }
}

void ConfLoad::convertApplied(const QString &key)
{
    const QJsonValue entry = mStore.mKeptEntries->applied(key);
    const auto record = mStore.mConfMetas.find(key);
    if (record == mStore.mConfMetas.end() || !entry.isObject()
        || record->lastChangeTime.toSecsSinceEpoch() != ConfKeptEntries::timeOf(entry))
        return;
    record->lastChangeTime = QDateTime(); // or the entry would lose against itself
    merge(key, entry);
}

void ConfLoad::loadFormer()
{
    const auto isNearer = [](const Former &a, const Former &b) { return a.steps < b.steps; };
    std::vector<Former> entries;
    entries.swap(mFormer); // a callback may load something
    std::stable_sort(entries.begin(), entries.end(), isNearer);
    const QScopedValueRollback<bool> isFormer(mIsFormer, true);
    for (const Former &former : entries) {
        // Anything else would restore the default now, whenever the file is loaded.
        const ParsedMember member(former.entry, mTimes);
        const bool isEntry = member.removalTime()
                                 ? mStore.findDynamicConfClass(former.key) != nullptr
                                 : member.time() || !member.value().isUndefined();
        if (isEntry && isDeclared(former.key))
            merge(former.key, former.entry);
    }
}

/// Returns the key that an entry of `key` belongs to: its own if it is declared, or else the one
/// that has it as a former name, directly or by other former names. `steps` counts them.
QString ConfLoad::currentNameOf(const QString &key, int *steps) const
{
    QString name = key;
    const QMap<QString, ConfVersions::FormerName> &formerNames = mStore.mVersions->mFormerNames;
    int count = 0;
    for (auto former = formerNames.constFind(name);
         former != formerNames.constEnd() && count < formerNames.size() && !isDeclared(name);
         former = formerNames.constFind(name)) {
        name = former->key;
        ++count;
    }
    if (steps)
        *steps = count;
    return name;
}

bool ConfLoad::isFormerName(const QString &key) const
{
    return mStore.mVersions && mStore.mVersions->mFormerNames.contains(key) && !isDeclared(key);
}

bool ConfLoad::isLocalOnly(const QString &key) const
{
    const ConfStorage::DynamicConfClass *cls = mStore.findDynamicConfClass(key);
    const quint32 flags = mStore.mConfMetas.value(key).flags | (cls ? cls->flags : 0);
    return flags & ConfStorage::FlagLocalOnly;
}

QString ConfLoad::withoutMark(const QString &name) const
{
    return name.endsWith(mSystemMark) ? name.chopped(mSystemMark.size()) : name;
}

/// Returns `entry` with the current form of its value.
QJsonValue ConfLoad::converted(const QString &key, const QJsonValue &entry)
{
    QJsonObject object = entry.toObject();
    const auto value = object.find(sValueKey.name());
    if (!mStore.mVersions || value == object.end())
        return entry;
    forgetPosition();
    *value = mStore.mVersions->convert(key, *value);
    return object;
}
