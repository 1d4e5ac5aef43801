#include <MaltoConfiguration/store/ConfStorage.h>

#include "ConfDump_p.h"
#include "ConfLoad_p.h"
#include "EntryLog_p.h"
#include "FileSharing_p.h"
#include "LocalFile_p.h"

#include <MaltoConfiguration/store/ConfLoadReport.h>
#include <MaltoConfiguration/store/ConfOperation.h>

#include <QDebug>

void ConfStorage::useRobustFiles()
{
    mFileOptions |= SafeSave | LongTimes | NullIsDefault | RefuseFutureTimes | KeepDamagedFiles
                    | OwnerOnlyFiles;
}

void ConfStorage::saveToLocalConfFile()
{
    const EntryLog log;
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
    if (!LocalFile(*this).write([this] { return ConfDump(*this, DumpLocal).toText(); }))
        return;
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
    const ConfOperation operation(this, ConfChange::Cause::Loaded);
    if (mFileOptions & SharedFile) {
        loadSharedFile();
        return;
    }
    LocalFile file(*this);
    const QByteArray text = file.read();
    mUnloadedFile = file.isComplete() ? QString() : mLocalSaveFile;
    ConfLoad(*this, LoadLocal).loadFile(mLocalSaveFile, text);
    reportDamage(file);
    loadPresetDynamicConf();
    mChanged = file.isDamaged(); // the next save repairs it
    mLocalLoaded = true;
}

void ConfStorage::reportDamage(const LocalFile &file)
{
    if (!mLastLoad || !file.isDamaged())
        return;
    mLastLoad->isDamaged = true;
    mLastLoad->damagedCopy = file.damagedCopy();
}

std::shared_ptr<FileSharing> ConfStorage::fileSharing()
{
    if (!mFileSharing)
        mFileSharing = std::make_shared<FileSharing>(*this);
    return mFileSharing;
}

void ConfStorage::saveSharedFile()
{
    const auto sharing = fileSharing(); // callbacks may clear the store
    if (!mChanged && !sharing->hasChanges())
        return;
    if (!sharing->save()) {
        mChanged = true;
        return;
    }
    qDebug() << "ConfStorage::saveToLocalConfFile() save to file: " << mLocalSaveFile;
    mChanged = sharing->hasChanges();
}

void ConfStorage::loadSharedFile()
{
    const auto sharing = fileSharing();
    sharing->load();
    mLocalLoaded = true;
    mChanged = sharing->hasChanges();
}
