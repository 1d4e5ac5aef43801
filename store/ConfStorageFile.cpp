#include <MaltoConfiguration/store/ConfStorage.h>

#include "ConfDump_p.h"
#include "ConfFileSharing_p.h"
#include "ConfFileWatch_p.h"
#include "ConfLoad_p.h"
#include "ConfObservers_p.h"
#include "EntryLog_p.h"
#include "LocalFile_p.h"

#include <MaltoConfiguration/store/ConfLoadReport.h>
#include <MaltoConfiguration/store/ConfOperation.h>

#include <QDebug>

void ConfStorage::useRobustFiles()
{
    mFileOptions |= SafeSave | LongTimes | NullIsDefault | RefuseFutureTimes | SharedFile
                    | WatchFile | KeepDamagedFiles | KeepUnknownEntries | StrictTypes | ResolveTies
                    | OwnerOnlyFiles | LockedValues;
    constexpr int sQuietTime = 1000;
    setAutosave(sQuietTime);
}

void ConfStorage::saveToLocalConfFile()
{
    const EntryLog log;
    if (mMisuse)
        checkUse("saveToLocalConfFile");
    if (mLocalSaveFile.isEmpty()) {
        qCritical() << "ConfStorage::saveToLocalConfFile() mLocalSaveFile.isEmpty()";
        return;
    }
    if (mFileOptions & SharedFile) {
        saveSharedFile();
        return;
    }
    if (!mChanged)
        return;
    if ((mFileOptions & (SafeSave | KeepDamagedFiles)) && mUnloadedFile == mLocalSaveFile) {
        qCritical() << "ConfStorage::saveToLocalConfFile() file could not be loaded: "
                    << mLocalSaveFile;
        return;
    }
    LocalFile file(*this);
    if (!file.write([this] { return ConfDump(*this, DumpLocal).toText(); }))
        return;
    watchFile(file.content());
    qDebug() << "ConfStorage::saveToLocalConfFile() save to file: " << mLocalSaveFile;
    mChanged = false;
}

void ConfStorage::loadLocalConfFile()
{
    const EntryLog log;
    if (mLocalSaveFile.isEmpty()) {
        qCritical() << "ConfStorage::loadLocalConfFile() mLocalSaveFile.isEmpty()";
        return;
    }
    if (mFileOptions & SharedFile) {
        loadSharedFile();
        return;
    }
    const ConfOperation operation(this, ConfChange::Cause::Loaded);
    LocalFile file(*this);
    const DumpText dump = file.read();
    mUnloadedFile = file.isComplete() ? QString() : mLocalSaveFile;
    ConfLoad(*this, LoadLocal).loadFile(mLocalSaveFile, dump);
    if (file.isDamaged())
        reportDamage(file.damagedCopy());
    loadPresetDynamicConf();
    mChanged = file.isDamaged(); // the next save repairs it
    mLocalLoaded = true;
    watchFile(file.content());
}

/// Watches the local file, which contains `content`, if the host wants that.
void ConfStorage::watchFile(const QByteArray &content)
{
    if (!(mFileOptions & WatchFile)) {
        mFileWatch.reset();
        return;
    }
    if (!mFileWatch)
        mFileWatch = std::make_unique<ConfFileWatch>([this] { reloadChangedFile(); });
    mFileWatch->watch(mLocalSaveFile, content);
}

/// Merges the local file if another program has changed it. The store does not count as changed by
/// that, but by what callbacks set.
void ConfStorage::reloadChangedFile()
{
    const EntryLog log;
    if (mFileWatch->path() != mLocalSaveFile)
        return; // the host will load another file
    if (mFileOptions & SharedFile) {
        updateSharedFile();
        return;
    }
    const DumpText dump = LocalFile(*this).readIfWhole();
    if (dump.text.isEmpty() || mFileWatch->isNoted(dump.text))
        return;
    mFileWatch->note(dump.text);
    bool isChanged = mChanged;
    const int observer = addObserver([&isChanged](const ConfChange &change) {
        isChanged |= change.cause != ConfChange::Cause::Loaded;
    });
    const std::shared_ptr<ConfObservers> observers = mObservers;
    {
        const ConfOperation operation(this, ConfChange::Cause::Loaded);
        ConfLoad(*this, LoadLocal).loadFile(mLocalSaveFile, dump);
    }
    if (mObservers != observers)
        return; // a callback has cleared the store
    removeObserver(observer);
    mChanged = isChanged;
}

/// Reports that the file was damaged, and where a copy of it is.
void ConfStorage::reportDamage(const QString &copy)
{
    if (!mLastLoad)
        return;
    mLastLoad->isDamaged = true;
    mLastLoad->damagedCopy = copy;
}

std::shared_ptr<ConfFileSharing> ConfStorage::fileSharing()
{
    if (!mFileSharing)
        mFileSharing = std::make_shared<ConfFileSharing>(*this);
    return mFileSharing;
}

void ConfStorage::saveSharedFile()
{
    const auto sharing = fileSharing(); // callbacks may clear the store
    if (!mChanged && !sharing->hasChanges())
        return;
    const bool isSaved = sharing->save();
    if (sharing != mFileSharing)
        return;
    mChanged = !isSaved || sharing->hasChanges();
    if (!isSaved)
        return;
    watchFile(QByteArray()); // sharing knows the content
    qDebug() << "ConfStorage::saveToLocalConfFile() save to file: " << mLocalSaveFile;
}

void ConfStorage::loadSharedFile()
{
    const auto sharing = fileSharing();
    // Not before: the first call of fileSharing() adds the observer that looks at the cause.
    const ConfOperation operation(this, ConfChange::Cause::Loaded);
    sharing->load();
    if (sharing != mFileSharing)
        return;
    mLocalLoaded = true;
    mChanged = sharing->hasChanges();
    watchFile(QByteArray());
}

void ConfStorage::updateSharedFile()
{
    const auto sharing = fileSharing();
    const ConfOperation operation(this, ConfChange::Cause::Loaded);
    sharing->update();
    if (sharing == mFileSharing)
        mChanged = sharing->hasChanges();
}
