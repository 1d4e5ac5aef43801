#include <MaltoConfiguration/store/ConfStorage.h>

#include "ConfDump_p.h"
#include "ConfLoad_p.h"
#include "PosixFile_p.h"
#include "SafeFile_p.h"

#include <QDebug>
#include <QFile>
#include <QJsonDocument>

namespace {

void logOpenFailed(const QString &path)
{
    qCritical() << "ConfStorage::saveToLocalConfFile() open file failed: " << path;
}

void logRecovery(SafeFile::Recovery recovery, const SafeFile &file)
{
    switch (recovery) {
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
                   << file.journal().path();
        break;
    case SafeFile::Recovery::KeptAside:
        qWarning() << "ConfStorage::loadLocalConfFile() journal of another content kept aside: "
                   << file.journal().path();
        break;
    }
}

} // namespace

void ConfStorage::saveToLocalConfFile()
{
    if (mLocalSaveFile.isEmpty()) {
        qCritical() << "ConfStorage::saveToLocalConfFile() mLocalSaveFile.isEmpty()";
        return;
    }
    if (!mChanged)
        return;
    if (!(mSafeSave ? saveSafely() : saveInPlace()))
        return;
    qDebug() << "ConfStorage::saveToLocalConfFile() save to file: " << mLocalSaveFile;
    mChanged = false;
}

/// Rewrites the file in place, so that links and permissions set by the user are kept.
bool ConfStorage::saveInPlace() const
{
    QFile file;
    const int descriptor = PosixFile::openForWriting(mLocalSaveFile);
    if (descriptor == -1
        || !file.open(descriptor, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle)) {
        logOpenFailed(mLocalSaveFile);
        return false;
    }
    // Composes the text before truncating the file: composing may run out of memory, and may log
    // messages, whose handler may read the file. A device cannot be truncated.
    const QByteArray text = ConfDump(*this, DumpLocal).toText();
    if (!file.isSequential() && !file.resize(0)) {
        logOpenFailed(mLocalSaveFile);
        return false;
    }
    file.write(text);
    return true;
}

bool ConfStorage::saveSafely() const
{
    SafeFile file(mLocalSaveFile);
    if (!file.open()) {
        logOpenFailed(mLocalSaveFile);
        return false;
    }
    const QByteArray text = ConfDump(*this, DumpLocal).toText();
    // QJsonDocument writes values that are nested too deeply to be parsed again, and loading
    // rejects files that are too large.
    if (text.size() > PosixFile::sMaxSize || !QJsonDocument::fromJson(text).isObject()) {
        qCritical() << "ConfStorage::saveToLocalConfFile() content could not be read back: "
                    << mLocalSaveFile;
        return false;
    }
    switch (file.save(text)) {
    case SafeFile::Saved::Whole: return true;
    case SafeFile::Saved::JournalFailed:
        qCritical() << "ConfStorage::saveToLocalConfFile() write journal failed: "
                    << file.journal().path();
        return false;
    case SafeFile::Saved::FileFailed:
        qCritical() << "ConfStorage::saveToLocalConfFile() write file failed: " << mLocalSaveFile;
        return false;
    }
    return false;
}

void ConfStorage::loadLocalConfFile()
{
    if (mLocalSaveFile.isEmpty()) {
        qCritical() << "ConfStorage::loadLocalConfFile() mLocalSaveFile.isEmpty()";
        return;
    }
    QByteArray text;
    {
        SafeFile file(mLocalSaveFile);
        if (file.isTooLarge())
            qCritical() << "ConfStorage::loadLocalConfFile() file too large: " << mLocalSaveFile;
        SafeFile::Recovery recovery = SafeFile::Recovery::None;
        text = file.load(&recovery);
        logRecovery(recovery, file);
    }
    ConfLoad(*this, LoadLocal).loadText(text);
    loadPresetDynamicConf();
    mChanged = false;
    mLocalLoaded = true;
}
