#include "ConfLoad_p.h"

#include "ConfConstraints_p.h"
#include "ConfKeptEntries_p.h"
#include "ConfObservers_p.h"
#include "ConfVersions_p.h"
#include "DumpMember_p.h"
#include "EntryLog_p.h"
#include "JsonText_p.h"
#include "Limits_p.h"
#include "LockedConfs_p.h"
#include "MergeTies_p.h"
#include "PlainDump_p.h"
#include "PlainValue_p.h"
#include "StrictTypes_p.h"

#include <QDebug>
#include <QJsonDocument>
#include <QJsonObject>
#include <QScopedValueRollback>

#include <iterator>

namespace {

constexpr QLatin1Char sMarkSeparator('#');
constexpr qint64 sSecondsOfADay = 24 * 60 * 60; // clocks and time zones differ by less

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

ConfLoad::ConfLoad(ConfStorage &store, ConfStorage::LoadConfType type, Merge merge)
    : mStore(store), mOperation(&store, ConfChange::Cause::Loaded),
      mReplaces(merge == Merge::Replace), mIsLocal(type == ConfStorage::LoadLocal),
      mNullIsDefault(store.mFileOptions & ConfStorage::NullIsDefault),
      mKeepsUnknown(store.mFileOptions & ConfStorage::KeepUnknownEntries),
      mIsStrict(store.mFileOptions & ConfStorage::StrictTypes),
      mResolvesTies(store.mFileOptions & ConfStorage::ResolveTies),
      mTimes(store.mFileOptions & ConfStorage::LongTimes ? TimeRange::Long : TimeRange::Until2038),
      mSystemMark(addSysMark(QString()))
{
    if (store.mMisuse)
        store.checkUse("loadConf");
    if (store.mFileOptions & ConfStorage::RefuseFutureTimes)
        mLastTime = QDateTime::currentSecsSinceEpoch() + sSecondsOfADay;
}

ConfLoad::~ConfLoad()
{
    if (mIsReported) {
        if (!mStore.mLastLoad)
            mStore.mLastLoad = std::make_unique<ConfLoadReport>();
        *mStore.mLastLoad = std::move(mReport);
    }
    if (mAheadCount == 0)
        return;
    const QString first = mFirstAhead.left(Limits::sMaxLoggedLength);
    if (mIsLocal)
        qWarning() << "ConfStorage::loadConf() timestamps too far ahead: " << mAheadCount << first;
    else
        qWarning() << "ConfStorage::loadConf() timestamps too far ahead refused: " << mAheadCount
                   << first;
}

/// The time of a change in UTC. One without a time is made now.
QDateTime ConfLoad::timeOfChange(std::optional<qint64> seconds)
{
    return seconds ? QDateTime::fromSecsSinceEpoch(*seconds, Qt::UTC)
                   : QDateTime::currentDateTimeUtc();
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

/// Returns the key of the member. It is probably that of the next value, which needs no new text.
QString ConfLoad::keyOf(const PlainMember &member) const
{
    const bool isNext = mNextValue && *mNextValue != mStore.mConfValues.end()
                        && mNextValue->key() == member.nameText();
    return isNext ? mNextValue->key() : member.key();
}

bool ConfLoad::loadText(const DumpText &dump)
{
    constexpr qint64 sMostGrowth = 6; // of a control character, which becomes an escape
    mIsReported = true;
    mIsSavable = sMostGrowth * dump.text.size() <= mStore.mMaxFileSize;
    if (dump.members) {
        loadMembers(*dump.members);
        return true;
    }
    if (const auto members = readPlainDump(dump.text, mTimes)) {
        loadMembers(*members);
        return true;
    }
    const QJsonDocument document = QJsonDocument::fromJson(dump.text);
    if (!document.isObject()) {
        mReport.isDamaged = !dump.text.isEmpty();
        return false;
    }
    loadObject(document.object());
    return true;
}

void ConfLoad::setFile(const QString &path)
{
    mIsReported = true;
    mReport.file = path;
}

void ConfLoad::loadFile(const QString &path, const DumpText &dump)
{
    setFile(path);
    loadText(dump);
}

void ConfLoad::loadMembers(const std::vector<PlainMember> &members)
{
    loadKeptOfClasses(mStore);
    for (const PlainMember &member : members)
        load(keyOf(member), member);
    loadFormer();
}

void ConfLoad::loadObject(const QJsonObject &object)
{
    mIsReported = true;
    loadKeptOfClasses(mStore);
    // The copy shares the data and keeps it alive if a callback changes the caller's object.
    const QJsonObject members = object;
    for (auto member = members.constBegin(); member != members.constEnd(); ++member)
        load(member.key(), ParsedMember(member.value(), mTimes));
    loadFormer();
}

void ConfLoad::loadMember(const QString &key, const QJsonValue &entry)
{
    load(key, ParsedMember(entry, mTimes));
    loadFormer();
}

bool ConfLoad::loadMemberOfClass(const QString &key, const QJsonValue &entry,
                                 const ConfStorage::DynamicConfClass *cls)
{
    if (mStore.isLocked(key)) {
        loadMember(key, entry);
        return true;
    }
    return mergeDynamic(key, ParsedMember(converted(key, entry), mTimes), cls);
}

template<class Member> void ConfLoad::load(QString key, const Member &member)
{
    const bool hasMark = key.contains(sMarkSeparator);
    const bool isMarked = hasMark && key.endsWith(mSystemMark);
    if (isMarked)
        key.chop(mSystemMark.size());
    const bool isForeign = hasMark && !isMarked;
    if (isForeign && !mKeepsUnknown)
        return;
    if (mLastTime && isFromFuture(key, member) && !mIsLocal) {
        refuse(key, ConfLoadReport::Reason::FutureTime);
        return;
    }
    if (mStore.mVersions && !isForeign
        && deferFormer(key, isMarked ? addSysMark(key) : key, member))
        return;
    if ((mKeepsUnknown || mStore.mKeptEntries) && (isForeign || !isDeclared(key))) {
        const QString name = isMarked ? addSysMark(key) : key;
        if (keeps(name)) {
            mReport.unknown += isForeign ? 0 : 1;
            keep(name, member.entry());
            return;
        }
    }
    loadCurrent(key, member);
}

/// Notes an entry of a former name for `loadFormer`. `name` is that of the member, with the system
/// mark. Returns false for any other entry.
template<class Member>
bool ConfLoad::deferFormer(const QString &key, const QString &name, const Member &member)
{
    int steps = 0;
    const QString currentName = currentNameOf(key, &steps);
    if (steps == 0)
        return false;
    if (!mIsLocal && isLocalOnly(currentName))
        return true;
    const bool isCurrentDeclared = isDeclared(currentName);
    if (mStore.mVersions->isKept(key) || (mKeepsUnknown && !isCurrentDeclared))
        keep(name, member.entry());
    if (isCurrentDeclared)
        mFormer.push_back({steps, currentName, member.entry()});
    else
        ++mReport.unknown;
    return true;
}

/// Loads an entry that may have an older form.
template<class Member> void ConfLoad::loadCurrent(const QString &key, const Member &member)
{
    if (!mStore.mVersions || !mStore.mVersions->mConverters.contains(key)) {
        loadDeclared(key, member);
        return;
    }
    const QJsonValue entry = member.entry();
    const QScopedValueRollback<const QJsonValue *> unconverted(mUnconverted, &entry);
    loadDeclared(key, ParsedMember(converted(key, entry), mTimes));
}

void ConfLoad::merge(const QString &key, const QJsonValue &entry)
{
    loadCurrent(key, ParsedMember(entry, mTimes));
}

/// Merges an entry into the value of the user, which the locked value hides.
template<class Member> void ConfLoad::loadLocked(const QString &key, const Member &member)
{
    forgetPosition();
    const auto change = ConfObservers::beginChange(mStore, key, ConfChange::Cause::Loaded);
    const std::shared_ptr<ShadowStore> shadow = mStore.mLockedConfs->ownStore(mStore, key);
    ConfStorage &own = shadow->store();
    const int taken = mReport.taken;
    {
        ConfLoad load(own, mIsLocal ? ConfStorage::LoadLocal : ConfStorage::LoadShared,
                      mReplaces ? Merge::Replace : Merge::NewerWins);
        load.mIsSavable = mIsSavable;
        load.mIsFormer = mIsFormer;
        load.mIsKept = mIsKept;
        load.mIsRetry = mIsRetry;
        load.mUnconverted = mUnconverted;
        load.mReport = std::move(mReport);
        load.loadDeclared(key, member);
        mReport = std::move(load.mReport);
    }
    mStore.mChanged = mStore.mChanged || std::exchange(own.mChanged, false);
    const auto meta = mStore.mConfMetas.find(key);
    const auto ownMeta = own.mConfMetas.constFind(key);
    if (meta != mStore.mConfMetas.end())
        meta->lastChangeTime = ownMeta != own.mConfMetas.constEnd()
                                   ? ownMeta->lastChangeTime
                                   : own.mRemovedDynamicConfs.value(key);
    if (const auto refused = std::exchange(own.mKeptEntries, nullptr)) {
        for (auto entry = refused->entries().cbegin(); entry != refused->entries().cend(); ++entry)
            keep(entry.key(), *entry);
    }
    // The variable stays the same, but the entry has changed: it is to be saved.
    if (mReport.taken > taken)
        ConfObservers::finishChange(mStore, change);
}

template<class Member> void ConfLoad::loadDeclared(const QString &key, const Member &member)
{
    if (mStore.mLockedConfs && mStore.isLocked(key) && mStore.mConfValues.contains(key)) {
        loadLocked(key, member);
        return;
    }
    if (!member.isObject() || !loadDynamic(key, member))
        loadStatic(key, member);
}

/// Counts entries of the future for the message.
template<class Member> bool ConfLoad::isFromFuture(const QString &key, const Member &member)
{
    const std::optional<qint64> removalTime = member.removalTime();
    const std::optional<qint64> time = removalTime ? removalTime : member.time();
    if (!time || *time <= *mLastTime)
        return false;
    if (!mKeepsUnknown && !isDeclared(key) && !isFormerName(key))
        return false;
    if (mAheadCount++ == 0)
        mFirstAhead = key;
    return true;
}

/// Returns whether the key exists or belongs to a class.
bool ConfLoad::isDeclared(const QString &key) const
{
    const bool isNext = mNextValue && *mNextValue != mStore.mConfValues.end()
                        && mNextValue->key() == key;
    return isNext || mStore.mConfValues.contains(key) || mStore.findDynamicConfClass(key);
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

/// Returns whether nothing looks at a new value of the key before it is set and when it is set.
bool ConfLoad::isUnwatched(const QString &key) const
{
    return mIsSavable && !ConfObservers::areStatesNeeded(mStore)
           && !(mStore.mConstraints && mStore.mConstraints->contains(key));
}

template<class Member> void ConfLoad::loadStatic(const QString &key, const Member &member)
{
    const std::optional<qint64> time = member.time();

    // Most entries of a copy are no newer than the store: their values need not be read.
    auto known = metaOf(key);
    if (known != mStore.mConfMetas.end() && time && !known->lastChangeTime.isNull()) {
        const qint64 storedTime = known->lastChangeTime.toSecsSinceEpoch();
        const bool isTie = resolvesTies() && storedTime == *time;
        if (isTie && !isSilent(mStore.mConfValues.value(key)))
            forgetPosition();
        if (isTie ? !incomingWinsTie(mStore, key, false, newValue(member))
                  : storedWins(storedTime, *time)) {
            ++mReport.newerHere;
            return;
        }
        if (isTie) {
            forgetPosition();
            known = metaOf(key);
        }
    }
    const auto stored = valueOf(key);
    if (stored == mStore.mConfValues.end()) {
        ++mReport.unknown;
        return;
    }
    const auto meta = known != mStore.mConfMetas.end()
                          ? known
                          : mStore.mConfMetas.insert(key, ConfStorage::ConfMeta());
    if (!mIsLocal && (meta->flags & ConfStorage::FlagLocalOnly))
        return;
    if (!meta->changedCallback && isUnwatched(key) && setPlainValue(member, &*stored)) {
        ++mReport.taken;
        meta->lastChangeTime = timeOfChange(time);
        meta->flags &= ~ConfStorage::FlagIsDefault;
        ConfObservers::tellLoaded(mStore, key, meta->lastChangeTime);
        return;
    }
    QJsonValue value = newValue(member);
    if (!mIsSavable && isRefused(key, value, mStore.mMaxFileSize))
        return;
    if (isStrictType(mIsStrict, stored->mType)) {
        const auto fitting = strictJson(value, stored->mType);
        if (!fitting) {
            const bool isMarked = meta->flags & ConfStorage::FlagSystemIndependent;
            refuseType(key, isMarked, mUnconverted ? *mUnconverted : member.entry());
            return;
        }
        value = *fitting;
    }
    if (mStore.mConstraints && mStore.mConstraints->contains(key)) {
        loadConstrained(key, value, member.entry(), time);
        return;
    }
    ++mReport.taken;
    meta->lastChangeTime = timeOfChange(time);
    applyValue(key, value, stored, meta);
}

/// Sets the value and calls the callback, if anything changes.
void ConfLoad::applyValue(const QString &key, const QJsonValue &value,
                          QMap<QString, ConfValue>::iterator stored,
                          QMap<QString, ConfStorage::ConfMeta>::iterator meta)
{
    const auto change = ConfObservers::beginChange(mStore, key, ConfChange::Cause::Loaded);
    if (!value.isUndefined() && !meta->changedCallback && !change && isSilent(*stored)) {
        stored->loadFromJsonValue(value);
        meta->flags &= ~ConfStorage::FlagIsDefault;
        return;
    }
    forgetPosition();
    if (mReplaces && !(meta->flags & ConfStorage::FlagIsDefault)
        && stored->toJsonValue() == value) {
        ConfObservers::finishChange(mStore, change); // only the timestamp has changed
        return;
    }
    if (value.isUndefined()) {
        if (meta->flags & ConfStorage::FlagIsDefault)
            ConfObservers::finishChange(mStore, change);
        else
            mStore.restore(key, QDateTime());
        return;
    }
    if (!mStore.loadValue(key, value))
        return;
    if (change) {
        mStore.mConfMetas[key].flags &= ~ConfStorage::FlagIsDefault;
        mStore.finishChange(change);
        return;
    }
    mStore.callChangedCallback(key, mStore.mConfMetas[key]);
    // Looked up again: the callback may have removed the key.
    const auto record = mStore.mConfMetas.find(key);
    if (record != mStore.mConfMetas.end())
        record->flags &= ~ConfStorage::FlagIsDefault;
}
