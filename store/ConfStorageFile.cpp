#include <MaltoConfiguration/store/ConfStorage.h>

#include "ConfDump_p.h"
#include "ConfLoad_p.h"
#include "EntryLog_p.h"
#include "PosixFile_p.h"
#include "SafeFile_p.h"

#include <QDebug>
#include <QJsonDocument>

namespace {

void logOpenFailed(const QString &path)
{
    qCritical() << "ConfStorage::saveToLocalConfFile() open file failed: " << path;
}

void logNotReadable(const QString &path)
{
    qCritical() << "ConfStorage::saveToLocalConfFile() content could not be read back: " << path;
}

void logLoad(const SafeFile::Loaded &loaded, const SafeFile &file)
{
    if (loaded.file == PosixFile::Status::TooLarge)
        qCritical() << "ConfStorage::loadLocalConfFile() file too large: " << file.path();
    switch (loaded.recovery) {
    case SafeFile::Recovery::None: break;
    case SafeFile::Recovery::Replayed:
        qWarning() << "ConfStorage::loadLocalConfFile() recovered from journal: " << file.path();
        break;
    case SafeFile::Recovery::ReplayedInMemory:
        qCritical() << "ConfStorage::loadLocalConfFile() recovered from journal, write failed: "
                    << file.path();
        break;
    case SafeFile::Recovery::Dropped:
        qWarning() << "ConfStorage::loadLocalConfFile() damaged journal dropped: "
                   << file.journalPath();
        break;
    case SafeFile::Recovery::KeptAside:
        qWarning() << "ConfStorage::loadLocalConfFile() journal of another content kept aside: "
                   << file.journalPath();
        break;
    case SafeFile::Recovery::JournalUnreadable:
        qCritical() << "ConfStorage::loadLocalConfFile() journal could not be read: "
                    << file.journalPath();
        break;
    }
}

} // namespace

void ConfStorage::useRobustFiles()
{
    mFileOptions |= SafeSave | LongTimes | NullIsDefault | RefuseFutureTimes;
}

void ConfStorage::saveToLocalConfFile()
{
    const EntryLog log;
    if (mLocalSaveFile.isEmpty()) {
        qCritical() << "ConfStorage::saveToLocalConfFile() mLocalSaveFile.isEmpty()";
        return;
    }
    if (!mChanged)
        return;
    if (!(mFileOptions & SafeSave ? saveSafely() : saveInPlace()))
        return;
    qDebug() << "ConfStorage::saveToLocalConfFile() save to file: " << mLocalSaveFile;
    mChanged = false;
}

/// Rewrites the file in place, so that links and permissions set by the user are kept.
bool ConfStorage::saveInPlace() const
{
    PosixFile file;
    if (file.open(mLocalSaveFile, PosixFile::Mode::WriteOrDevice) != PosixFile::Status::Done) {
        logOpenFailed(mLocalSaveFile);
        return false;
    }
    // Composes the text before truncating the file: composing may run out of memory, and may log
    // messages, whose handler may read the file.
    const QByteArray text = ConfDump(*this, DumpLocal).toText();
    if (text.size() > mMaxFileSize) {
        logNotReadable(mLocalSaveFile);
        return false;
    }
    if (!file.clear()) {
        logOpenFailed(mLocalSaveFile);
        return false;
    }
    file.write(text); // a failure is not checked
    return true;
}

bool ConfStorage::saveSafely() const
{
    if (mUnloadedFile == mLocalSaveFile) {
        qCritical() << "ConfStorage::saveToLocalConfFile() file could not be loaded: "
                    << mLocalSaveFile;
        return false;
    }
    const QByteArray text = ConfDump(*this, DumpLocal).toText();
    // QJsonDocument writes values that are nested too deeply to be parsed again, and loading
    // rejects files that are too large.
    if (text.size() > mMaxFileSize || !QJsonDocument::fromJson(text).isObject()) {
        logNotReadable(mLocalSaveFile);
        return false;
    }
    SafeFile file(mLocalSaveFile, mMaxFileSize);
    switch (file.save(text)) {
    case SafeFile::Saved::Whole: return true;
    case SafeFile::Saved::OpenFailed: logOpenFailed(mLocalSaveFile); return false;
    case SafeFile::Saved::SeveralNames:
        qCritical() << "ConfStorage::saveToLocalConfFile() file has several names: "
                    << mLocalSaveFile;
        return false;
    case SafeFile::Saved::JournalFailed:
        qCritical() << "ConfStorage::saveToLocalConfFile() write journal failed: "
                    << file.journalPath();
        return false;
    case SafeFile::Saved::FileFailed:
        qCritical() << "ConfStorage::saveToLocalConfFile() write file failed: " << mLocalSaveFile;
        return false;
    }
    return false;
}

void ConfStorage::loadLocalConfFile()
{
    const EntryLog log;
    if (mLocalSaveFile.isEmpty()) {
        qCritical() << "ConfStorage::loadLocalConfFile() mLocalSaveFile.isEmpty()";
        return;
    }
    SafeFile file(mLocalSaveFile, mMaxFileSize);
    const SafeFile::Loaded loaded = file.load();
    mUnloadedFile = loaded.isComplete() ? QString() : mLocalSaveFile;
    logLoad(loaded, file);
    ConfLoad(*this, LoadLocal).loadText(loaded.text);
    loadPresetDynamicConf();
    mChanged = false;
    mLocalLoaded = true;
}
