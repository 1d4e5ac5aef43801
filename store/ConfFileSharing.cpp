#include "ConfFileSharing_p.h"

#include "ConfDump_p.h"
#include "ConfKeptEntries_p.h"
#include "ConfLoad_p.h"
#include "ConfObservers_p.h"
#include "DamagedFile_p.h"
#include "EntryTexts_p.h"
#include "FileLock_p.h"
#include "JsonText_p.h"
#include "LocalFile_p.h"
#include "PosixFile_p.h"

#include <QDebug>
#include <QJsonDocument>
#include <QJsonObject>
#include <QScopedValueRollback>

ConfFileSharing::ConfFileSharing(ConfStorage &store) : mStore(store)
{
    mObservers = ConfObservers::of(store);
    mObserver = mObservers->addSimple([this](const ConfChange &change) { observe(change); });
    useFile(store.mLocalSaveFile); // what was loaded before from elsewhere is to be saved
}

ConfFileSharing::~ConfFileSharing()
{
    mObservers->remove(mObserver);
}

void ConfFileSharing::observe(const ConfChange &change)
{
    // Host code that a load of the file calls may load something else.
    constexpr int sObserver = 1; // which this is
    const bool isFromFile = mMergeDepth + sObserver == mObservers->hostDepth()
                            && change.cause == ConfChange::Cause::Loaded;
    const bool isSaved = change.time.isValid(); // a preset that was never changed is not
    if (isFromFile || !isSaved)
        mTouched.remove(change.key);
    else
        mTouched.insert(change.key);
}

void ConfFileSharing::useFile(const QString &path)
{
    if (mPath == path)
        return;
    mPath = path;
    mIsRead = false;
    setText(QByteArray(), std::nullopt);
    mForeign.clear();
    mContested.clear();
    mTouched.clear();
    for (auto meta = mStore.mConfMetas.cbegin(); meta != mStore.mConfMetas.cend(); ++meta) {
        if (!meta->lastChangeTime.isNull())
            mTouched.insert(meta.key());
    }
    const QList<QString> removed = mStore.mRemovedDynamicConfs.keys();
    for (const QString &key : removed)
        mTouched.insert(key);
    const QList<QString> kept = mStore.mKeptEntries ? mStore.mKeptEntries->entries().keys()
                                                    : QList<QString>();
    for (const QString &name : kept)
        touchKept(name);
}

void ConfFileSharing::touchKept(const QString &name)
{
    // Without a timestamp it cannot win against that of another program.
    if (ConfKeptEntries::timeOf(mStore.mKeptEntries->entries().value(name)))
        mTouched.insert(EntryTexts::keyOf(name));
}

ConfFileSharing::UnchangedEntry::UnchangedEntry(const std::shared_ptr<ConfFileSharing> &sharing,
                                                const QString &name)
    : mSharing(sharing)
{
    if (!mSharing)
        return;
    const bool isTouched = mSharing->mTouched.contains(EntryTexts::keyOf(name));
    mOuterDepth = std::exchange(mSharing->mMergeDepth,
                                isTouched ? -1 : mSharing->mObservers->hostDepth());
}

ConfFileSharing::UnchangedEntry::~UnchangedEntry()
{
    if (mSharing)
        mSharing->mMergeDepth = mOuterDepth;
}

/// The members of `text` are found when they are needed.
void ConfFileSharing::setText(const QByteArray &text, std::optional<bool> isObject)
{
    mText = text;
    mIsObject = isObject;
    mMembers.reset();
}

/// Returns the text of the file. If the file is damaged, returns what was last read or written,
/// with the entries of the backup or the journal that are newer: the backup lacks the last save.
DumpText ConfFileSharing::read(LocalFile *file)
{
    DumpText dump = file->read();
    if (!file->isDamaged() || !mIsRead)
        return dump;
    findMembers();
    if (!*mIsObject)
        return dump;
    const bool isObject = QJsonDocument::fromJson(dump.text).isObject();
    const auto members = isObject ? splitMembers(dump.text) : std::nullopt;
    return {members ? EntryTexts::newestOf(*mMembers, *members, timeRange()) : mText, std::nullopt};
}

/// Compares `text` with the text that was last read or written, and keeps its members, or none if
/// it is no JSON object.
void ConfFileSharing::take(const QByteArray &text)
{
    mIsRead = true;
    mContested.clear();
    findMembers();
    if (text == mText)
        return;
    const QByteArray before = mText; // which the known members refer to
    const Members known = std::move(*mMembers);
    mText = text;
    const auto members = splitMembers(mText);
    mMembers = members ? *members : Members();
    mIsObject = members && collectForeign(known);
    if (!*mIsObject)
        mMembers = Members();
}

/// Finds the members of the text that was last read or written: none if it is no JSON object, as
/// nothing of it was loaded then.
void ConfFileSharing::findMembers()
{
    if (!mIsObject)
        mIsObject = QJsonDocument::fromJson(mText).isObject();
    if (!mMembers)
        mMembers = *mIsObject ? splitMembers(mText).value_or(Members()) : Members();
}

/// Notes the entries that others have changed. Returns false if one of them is not JSON.
bool ConfFileSharing::collectForeign(const Members &known)
{
    MemberIndex index(known);
    QMap<QString, QByteArray> foreign = mForeign;
    QMap<QString, QByteArray> contested;
    for (const MemberText &member : *mMembers) {
        const MemberText *old = index.find(member.rawName);
        if (old && old->value == member.value)
            continue;
        const QByteArray value = EntryTexts::toBytes(member.value);
        const QString name = member.name();
        if (EntryTexts::parsed(value).isUndefined())
            return false;
        (mTouched.contains(EntryTexts::keyOf(name)) ? contested : foreign)[name] = value;
    }
    mForeign = foreign;
    mContested = contested;
    return true;
}

/// Notes the entries of keys that were declared, or reserved again, after the file was read.
void ConfFileSharing::collectUnloaded()
{
    MemberIndex index(*mMembers);
    const QSet<QString> reserved = std::exchange(mReserved, {});
    for (const QString &key : reserved) {
        const auto meta = mStore.mConfMetas.constFind(key);
        if (meta == mStore.mConfMetas.cend() || !meta->lastChangeTime.isNull()
            || mTouched.contains(key))
            continue;
        const bool isMarked = meta->flags & ConfStorage::FlagSystemIndependent;
        const QString name = isMarked ? addSysMark(key) : key;
        QByteArray quoted;
        appendJsonString(quoted, name);
        const MemberText *member = index.find(
            EntryTexts::view(quoted).substr(1, EntryTexts::view(quoted).size() - 2));
        const bool isRefused = mStore.mKeptEntries && mStore.mKeptEntries->entries().contains(name);
        if (member && !isRefused && !mForeign.contains(name))
            mForeign[name] = EntryTexts::toBytes(member->value);
    }
}

TimeRange ConfFileSharing::timeRange() const
{
    return mStore.mFileOptions & ConfStorage::LongTimes ? TimeRange::Long : TimeRange::Until2038;
}

bool ConfFileSharing::save()
{
    useFile(mStore.mLocalSaveFile);
    FileLock lock(mPath);
    switch (lock.lock()) {
    case FileLock::Result::Locked: break;
    case FileLock::Result::NotPermitted:
        qCritical() << "ConfStorage::saveToLocalConfFile() lock file could not be created: "
                    << lock.path();
        return false;
    case FileLock::Result::TimedOut:
        qCritical() << "ConfStorage::saveToLocalConfFile() file is locked: " << lock.path();
        return false;
    }
    LocalFile file(mStore);
    const DumpText dump = read(&file);
    bool isSaved = false;
    if (file.isComplete()) {
        take(dump.text);
        isSaved = write(&file);
    } else {
        qCritical() << "ConfStorage::saveToLocalConfFile() file could not be loaded: " << mPath;
    }
    lock.unlock();
    if (!mForeign.isEmpty())
        loadForeign();
    return isSaved;
}

bool ConfFileSharing::write(LocalFile *file)
{
    // Messages may call a log handler of the host, which may change the store and its file.
    const QString path = mPath;
    QSet<QString> touched = std::exchange(mTouched, {});
    const ConfDump dump(mStore, ConfStorage::DumpLocal);
    if (!mIsRead || mPath != path)
        return false;
    const QByteArray text = merged(dump, touched);
    if (text == file->content() || file->write([&text] { return text; })) {
        setText(text, true);
        mNeedsRepair = false;
        return true;
    }
    for (auto it = mForeign.cbegin(); it != mForeign.cend(); ++it)
        touched.remove(EntryTexts::keyOf(it.key())); // yielded
    mTouched.unite(touched);
    return false;
}

void ConfFileSharing::load()
{
    loadFile();
    const QScopedValueRollback<int> depth(mMergeDepth, mObservers->hostDepth());
    mStore.loadPresetDynamicConf();
}

void ConfFileSharing::loadFile()
{
    useFile(mStore.mLocalSaveFile);
    FileLock lock(mPath);
    const FileLock::Result locked = lock.lock();
    if (locked == FileLock::Result::TimedOut) {
        qCritical() << "ConfStorage::loadLocalConfFile() file is locked: " << lock.path();
        return;
    }
    LocalFile file(mStore);
    // Without the right to create the lock, nothing may be written either.
    const DumpText dump = locked == FileLock::Result::Locked ? read(&file)
                                                             : DumpText{file.peek(), std::nullopt};
    const bool isFirst = !mIsRead && mTouched.isEmpty();
    mNeedsRepair = file.isDamaged();
    if (isFirst) {
        setText(dump.text, std::nullopt);
        mIsRead = file.isComplete();
    } else if (file.isComplete()) {
        take(dump.text);
        yieldToNewer();
        collectUnloaded();
    }
    lock.unlock();
    if (isFirst)
        loadWhole(dump);
    else
        loadForeign();
    if (file.isDamaged())
        mStore.reportDamage(file.damagedCopy());
}

/// Loads the text without comparing it with a previous one.
void ConfFileSharing::loadWhole(const DumpText &dump)
{
    const QScopedValueRollback<int> depth(mMergeDepth, mObservers->hostDepth());
    ConfLoad(mStore, ConfStorage::LoadLocal).loadFile(mPath, dump);
}

/// Takes the entries of the file that touched ones yield to.
void ConfFileSharing::yieldToNewer()
{
    if (mContested.isEmpty())
        return;
    const ConfDump dump(mStore, ConfStorage::DumpLocal);
    for (size_t i = 0; i < dump.size(); ++i) {
        const ConfDump::Entry ours = dump.at(i);
        const QByteArray theirs = mContested.value(ours.name);
        if (!theirs.isEmpty()
            && yields(ours.time, EntryTexts::timeOf(EntryTexts::view(theirs), timeRange()))) {
            mForeign[ours.name] = theirs;
            mTouched.remove(EntryTexts::keyOf(ours.name));
        }
    }
}

void ConfFileSharing::update()
{
    if (mPath != mStore.mLocalSaveFile)
        return;
    // A file that is not whole is left alone: a program without the lock may be writing it.
    const QByteArray text = PosixFile::read(mPath, mStore.mMaxFileSize).bytes;
    if (text.isEmpty() || text == mText || DamagedFile::isDamaged(text))
        return;
    loadFile();
}

void ConfFileSharing::loadForeign()
{
    const QScopedValueRollback<int> depth(mMergeDepth, mObservers->hostDepth());
    ConfLoad load(mStore, ConfStorage::LoadLocal, ConfLoad::Merge::Replace);
    load.setFile(mPath);
    // A callback may read the file again, and so change the map.
    while (!mForeign.isEmpty()) {
        const QString name = mForeign.firstKey();
        const QJsonValue entry = EntryTexts::parsed(mForeign.take(name));
        if (!mTouched.contains(EntryTexts::keyOf(name)))
            load.loadMember(name, entry);
    }
}
