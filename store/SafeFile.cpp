#include "SafeFile_p.h"

#include <QJsonDocument>

#include <sys/stat.h>

using Status = PosixFile::Status;

SafeFile::SafeFile(const QString &path, qint64 limit, PosixFile::Access access)
    : mPath(path), mLimit(limit), mAccess(access), mJournal(path)
{
}

bool SafeFile::Loaded::isComplete() const
{
    return file != Status::Failed && file != Status::TooLarge
           && recovery != Recovery::JournalUnreadable;
}

SafeFile::Saved SafeFile::save(const QByteArray &text)
{
    struct stat status = {};
    if (mFile.open(mPath, PosixFile::Mode::ReadWrite, mAccess) != Status::Done
        || !mFile.status(&status))
        return Saved::OpenFailed;
    // A program that opens the file by its other name would look for the journal there.
    if (status.st_nlink != 1)
        return Saved::SeveralNames;
    mJournal = SaveJournal(mFile.resolvedPath());
    const QByteArray oldText = mFile.read(mLimit).bytes;
    if (!mJournal.write(oldText, text, mFile, mAccess))
        return Saved::JournalFailed;
    if (!rewrite(text))
        return Saved::FileFailed;
    mJournal.remove();
    return Saved::Whole;
}

SafeFile::Loaded SafeFile::readFile()
{
    Loaded loaded;
    loaded.file = mFile.open(mPath, PosixFile::Mode::Read);
    if (loaded.file == Status::Done) {
        PosixFile::Content content = mFile.read(mLimit);
        loaded.file = content.status;
        loaded.text = content.bytes;
        mJournal = SaveJournal(mFile.resolvedPath());
    }
    return loaded;
}

SafeFile::Loaded SafeFile::load(const ReplaceHandler &mayReplace)
{
    Loaded loaded = readFile();
    // An interrupted save leaves a truncated text.
    const bool isFileDamaged = !loaded.text.trimmed().endsWith('}');
    SaveJournal::Entry entry;
    switch (mJournal.read(&entry, mLimit, isFileDamaged)) {
    case SaveJournal::State::None: break;
    case SaveJournal::State::Unreadable: loaded.recovery = Recovery::JournalUnreadable; break;
    case SaveJournal::State::Invalid:
        mJournal.remove();
        loaded.recovery = Recovery::Dropped;
        break;
    case SaveJournal::State::Valid: recover(entry, mayReplace, &loaded); break;
    }
    return loaded;
}

SafeFile::Loaded SafeFile::peek()
{
    Loaded loaded = readFile();
    SaveJournal::Entry entry;
    if (!QJsonDocument::fromJson(loaded.text).isObject()
        && mJournal.read(&entry, mLimit, true) == SaveJournal::State::Valid)
        loaded.text = entry.newText;
    return loaded;
}

void SafeFile::recover(const SaveJournal::Entry &entry, const ReplaceHandler &mayReplace,
                       Loaded *loaded)
{
    if (!loaded->isComplete()) {
        // The file may contain something else than a damaged text.
        loaded->recovery = Recovery::ReplayedInMemory;
        loaded->text = entry.newText;
        return;
    }
    const QByteArray found = SaveJournal::hash(loaded->text);
    if (found == entry.newHash) {
        // The program may have ended before the text was on the disk. If a sync failed, the system
        // no longer tries to write the text, so it is written again.
        if (replay(entry.newText))
            mJournal.remove();
        return;
    }
    if (found != entry.oldHash && QJsonDocument::fromJson(loaded->text).isObject()) {
        mJournal.keepAside();
        loaded->recovery = Recovery::KeptAside;
        return;
    }
    const bool mayReplay = !mayReplace || mayReplace(loaded->text, entry.newText);
    loaded->recovery = Recovery::ReplayedInMemory;
    loaded->text = entry.newText;
    if (mayReplay && replay(entry.newText)) {
        mJournal.remove();
        loaded->recovery = Recovery::Replayed;
    }
}

bool SafeFile::replay(const QByteArray &text)
{
    // The journal must be on the disk before the file is changed. A program that ended while it
    // wrote the journal may not have synced it.
    return mFile.open(mPath, PosixFile::Mode::ReadWrite, mAccess) == Status::Done
           && PosixFile::syncFolderOf(mJournal.path()) && rewrite(text);
}

bool SafeFile::rewrite(const QByteArray &text) const
{
    // Syncs the truncation before the text is written: a mix of both texts on the disk could be
    // valid JSON with settings that never existed.
    return mFile.clear() && mFile.sync() && mFile.write(text) && mFile.sync();
}
