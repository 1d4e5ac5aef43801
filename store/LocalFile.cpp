#include "LocalFile_p.h"

#include "DamagedFile_p.h"
#include "FileBackup_p.h"
#include "PosixFile_p.h"
#include "SaveJournal_p.h"

#include <QDebug>
#include <QJsonDocument>
#include <QThread>

namespace {

/// Returns the new content in the journal beside `file`, or an empty text if there is none.
QByteArray journalOf(const PosixFile &file, qint64 limit)
{
    SaveJournal::Entry entry;
    SaveJournal(file.resolvedPath()).read(&entry, limit, true);
    return entry.newText;
}

} // namespace

LocalFile::LocalFile(const ConfStorage &store)
    : mPath(store.mLocalSaveFile), mOptions(store.mFileOptions), mLimit(store.mMaxFileSize),
      mAccess(mOptions & ConfStorage::OwnerOnlyFiles ? PosixFile::Access::OwnerOnly
                                                     : PosixFile::Access::AsUsual)
{
}

DumpText LocalFile::read()
{
    const bool keepsDamaged = mOptions & ConfStorage::KeepDamagedFiles;
    bool isKept = true;
    SafeFile::ReplaceHandler mayReplace;
    SafeFile file(mPath, mLimit, mAccess);
    if (keepsDamaged) {
        mayReplace = [this, &file, &isKept](const QByteArray &text, const QByteArray &journal) {
            isKept = DamagedFile::isRestOf(text, journal) || !DamagedFile::isDamaged(text)
                     || keepCopy(text, file.file());
            return isKept;
        };
    }
    const SafeFile::Loaded loaded = file.load(mayReplace);
    mIsComplete = loaded.isComplete() && isKept;
    mContent = loaded.text;
    logLoad(loaded, file);
    const bool isWhole = mIsComplete && loaded.file == PosixFile::Status::Done;
    if (keepsDamaged && isWhole)
        return readRepaired(file.file(), loaded.text);
    return {loaded.text, std::nullopt};
}

DumpText LocalFile::readIfWhole() const
{
    const DumpText dump = parsed(PosixFile::read(mPath, mLimit).bytes);
    return DamagedFile::isDamaged(dump) ? DumpText() : dump;
}

DumpText LocalFile::parsed(const QByteArray &text) const
{
    const bool isLong = mOptions & ConfStorage::LongTimes;
    return {text, readPlainDump(text, isLong ? TimeRange::Long : TimeRange::Until2038)};
}

/// Returns `text`, the content of `file`, or the content of the backup if it is damaged.
DumpText LocalFile::readRepaired(const PosixFile &file, const QByteArray &text)
{
    DumpText dump = parsed(text);
    const bool isDamaged = DamagedFile::isDamaged(dump);
    if (!isDamaged && !text.isEmpty())
        return dump;
    const FileBackup backup(file);
    const QByteArray saved = backup.read(mLimit);
    if (isDamaged)
        mIsComplete = keepCopy(text, file);
    if (saved.isEmpty())
        return dump;
    mIsDamaged = true;
    qWarning() << "ConfStorage::loadLocalConfFile() loaded from backup: " << backup.path();
    return {saved, std::nullopt};
}

/// Copies the damaged `text` of `file` aside. Returns whether the file may be overwritten now.
bool LocalFile::keepCopy(const QByteArray &text, const PosixFile &file)
{
    mIsDamaged = true;
    mDamagedCopy = DamagedFile::keepCopy(text, file, mAccess);
    if (mDamagedCopy.isEmpty())
        qCritical() << "ConfStorage::loadLocalConfFile() damaged file could not be copied: "
                    << mPath;
    else
        qCritical() << "ConfStorage::loadLocalConfFile() damaged file copied: " << mPath
                    << mDamagedCopy;
    return !mDamagedCopy.isEmpty();
}

/// Keeps what a save replaces: good content as the backup, damaged content as a copy. Returns
/// whether the file may be overwritten.
bool LocalFile::prepareOverwriting()
{
    PosixFile file;
    const PosixFile::Status opened = file.open(mPath, PosixFile::Mode::Read);
    if (opened == PosixFile::Status::Missing || opened == PosixFile::Status::Refused)
        return true;
    const PosixFile::Content content = opened == PosixFile::Status::Done
                                           ? file.read(mLimit)
                                           : PosixFile::Content{opened, QByteArray()};
    if (content.status != PosixFile::Status::Done) {
        qCritical() << "ConfStorage::saveToLocalConfFile() file could not be loaded: " << mPath;
        return false;
    }
    const bool isCopied = !mDamagedCopy.isEmpty() && content.bytes == mContent; // by read()
    if (content.bytes.isEmpty() || isCopied)
        return true;
    if (DamagedFile::isDamaged(content.bytes)) {
        return DamagedFile::isRestOf(content.bytes, journalOf(file, mLimit))
               || keepCopy(content.bytes, file);
    }
    const FileBackup backup(file);
    if (!backup.write(content.bytes, file, mAccess))
        qWarning() << "ConfStorage::saveToLocalConfFile() backup could not be written: "
                   << backup.path();
    return true;
}

QByteArray LocalFile::peek()
{
    // While another program rewrites the file, its text is incomplete for an instant.
    constexpr int sTries = 50;
    constexpr int sPause = 20; // milliseconds
    SafeFile file(mPath, mLimit, mAccess);
    SafeFile::Loaded loaded = file.peek();
    for (int i = 1; i < sTries && loaded.file == PosixFile::Status::Done
                    && !QJsonDocument::fromJson(loaded.text).isObject();
         ++i) {
        QThread::msleep(sPause);
        loaded = file.peek();
    }
    mIsComplete = loaded.isComplete();
    mContent = loaded.text;
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

bool LocalFile::write(const std::function<QByteArray()> &compose)
{
    if ((mOptions & ConfStorage::KeepDamagedFiles) && !prepareOverwriting())
        return false;
    constexpr quint32 sSafe = ConfStorage::SafeSave | ConfStorage::SharedFile;
    return mOptions & sSafe ? writeSafely(compose()) : writeInPlace(compose);
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
bool LocalFile::writeInPlace(const std::function<QByteArray()> &compose)
{
    PosixFile file;
    if (file.open(mPath, PosixFile::Mode::WriteOrDevice, mAccess) != PosixFile::Status::Done) {
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
    mContent = text;
    return true;
}

bool LocalFile::writeSafely(const QByteArray &text)
{
    // QJsonDocument writes values that are nested too deeply to be parsed again, and loading
    // rejects files that are too large.
    if (text.size() > mLimit || !QJsonDocument::fromJson(text).isObject()) {
        logNotReadable();
        return false;
    }
    SafeFile file(mPath, mLimit, mAccess);
    switch (file.save(text)) {
    case SafeFile::Saved::Whole: mContent = text; return true;
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
