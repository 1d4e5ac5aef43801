#include "LocalFile_p.h"

#include "PosixFile_p.h"

#include <QDebug>
#include <QJsonDocument>

LocalFile::LocalFile(const ConfStorage &store)
    : mPath(store.mLocalSaveFile), mOptions(store.mFileOptions), mLimit(store.mMaxFileSize)
{
}

QByteArray LocalFile::read()
{
    SafeFile file(mPath, mLimit);
    const SafeFile::Loaded loaded = file.load();
    mIsComplete = loaded.isComplete();
    logLoad(loaded, file);
    return loaded.text;
}

void LocalFile::logLoad(const SafeFile::Loaded &loaded, const SafeFile &file) const
{
    if (loaded.file == PosixFile::Status::TooLarge)
        qCritical() << "ConfStorage::loadLocalConfFile() file too large: " << mPath;
    switch (loaded.recovery) {
    case SafeFile::Recovery::None: break;
    case SafeFile::Recovery::Replayed:
        qWarning() << "ConfStorage::loadLocalConfFile() recovered from journal: " << mPath;
        break;
    case SafeFile::Recovery::ReplayedInMemory:
        qCritical() << "ConfStorage::loadLocalConfFile() recovered from journal, write failed: "
                    << mPath;
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

bool LocalFile::write(const std::function<QByteArray()> &compose) const
{
    return mOptions & ConfStorage::SafeSave ? writeSafely(compose()) : writeInPlace(compose);
}

void LocalFile::logOpenFailed() const
{
    qCritical() << "ConfStorage::saveToLocalConfFile() open file failed: " << mPath;
}

void LocalFile::logNotReadable() const
{
    qCritical() << "ConfStorage::saveToLocalConfFile() content could not be read back: " << mPath;
}

/// Rewrites the file in place, so that links and permissions set by the user are kept.
bool LocalFile::writeInPlace(const std::function<QByteArray()> &compose) const
{
    PosixFile file;
    if (file.open(mPath, PosixFile::Mode::WriteOrDevice) != PosixFile::Status::Done) {
        logOpenFailed();
        return false;
    }
    // Composes the text before truncating the file: composing may run out of memory, and may log
    // messages, whose handler may read the file.
    const QByteArray text = compose();
    if (text.size() > mLimit) {
        logNotReadable();
        return false;
    }
    if (!file.clear()) {
        logOpenFailed();
        return false;
    }
    file.write(text); // a failure is not checked
    return true;
}

bool LocalFile::writeSafely(const QByteArray &text) const
{
    // QJsonDocument writes values that are nested too deeply to be parsed again, and loading
    // rejects files that are too large.
    if (text.size() > mLimit || !QJsonDocument::fromJson(text).isObject()) {
        logNotReadable();
        return false;
    }
    SafeFile file(mPath, mLimit);
    switch (file.save(text)) {
    case SafeFile::Saved::Whole: return true;
    case SafeFile::Saved::OpenFailed: logOpenFailed(); return false;
    case SafeFile::Saved::SeveralNames:
        qCritical() << "ConfStorage::saveToLocalConfFile() file has several names: " << mPath;
        return false;
    case SafeFile::Saved::JournalFailed:
        qCritical() << "ConfStorage::saveToLocalConfFile() write journal failed: "
                    << file.journalPath();
        return false;
    case SafeFile::Saved::FileFailed:
        qCritical() << "ConfStorage::saveToLocalConfFile() write file failed: " << mPath;
        return false;
    }
    return false;
}
