#include "SafeFile_p.h"

#include "PosixFile_p.h"

#include <QFileInfo>
#include <QJsonDocument>

namespace {

constexpr int sMaxLinks = 40; // links may form a circle; the system has the same limit

/// Returns the target of the link `path`, which need not exist.
QString followLinks(QString path)
{
    for (int i = 0; i < sMaxLinks && QFileInfo(path).isSymLink(); ++i) {
        const QString existing = QFileInfo(path).canonicalFilePath();
        if (!existing.isEmpty())
            return existing;
        path = QFileInfo(path).symLinkTarget();
    }
    return path;
}

} // namespace

SafeFile::SafeFile(const QString &path) : mFile(followLinks(path)), mJournal(mFile.fileName()) {}

bool SafeFile::open()
{
    const QFileInfo info(mFile);
    if (info.exists() && !info.isFile())
        return false;
    return mFile.open(QIODevice::ReadWrite | QIODevice::Unbuffered);
}

SafeFile::Saved SafeFile::save(const QByteArray &text)
{
    const QByteArray oldText = isTooLarge() ? QByteArray() : mFile.readAll();
    if (!mJournal.write(oldText, text, mFile.permissions()))
        return Saved::JournalFailed;
    if (!rewrite(text))
        return Saved::FileFailed;
    mJournal.remove();
    return Saved::Whole;
}

QByteArray SafeFile::load(Recovery *recovery)
{
    *recovery = Recovery::None;
    const QByteArray text = readFile();
    SaveJournal::Entry entry;
    const SaveJournal::State state = mJournal.read(&entry);
    if (state == SaveJournal::State::None)
        return text;
    if (state == SaveJournal::State::Invalid) {
        mJournal.remove();
        *recovery = Recovery::Dropped;
        return text;
    }
    const QByteArray found = SaveJournal::hash(text);
    if (found == entry.newHash) {
        // The program may have ended before the text that it wrote was on the disk.
        if (syncFile())
            mJournal.remove();
        return text;
    }
    if (found != entry.oldHash && QJsonDocument::fromJson(text).isObject()) {
        mJournal.keepAside();
        *recovery = Recovery::KeptAside;
        return text;
    }
    *recovery = Recovery::ReplayedInMemory;
    // The journal must be on the disk before the file is changed. A program that ended while it
    // wrote the journal may not have synced it.
    if (open() && PosixFile::syncFolderOf(path()) && rewrite(entry.newText)) {
        mJournal.remove();
        *recovery = Recovery::Replayed;
    }
    return entry.newText;
}

bool SafeFile::rewrite(const QByteArray &text)
{
    // Syncs the truncation before the text is written: a mix of both texts on the disk could be
    // valid JSON with settings that never existed.
    return mFile.resize(0) && PosixFile::sync(mFile.handle()) && mFile.seek(0)
           && mFile.write(text) == text.size() && PosixFile::sync(mFile.handle());
}

QByteArray SafeFile::readFile()
{
    QFile file(path());
    // Reading a pipe or a device could block or never end.
    if (!QFileInfo(file).isFile() || isTooLarge() || !file.open(QIODevice::ReadOnly))
        return QByteArray();
    return file.readAll();
}

bool SafeFile::syncFile()
{
    QFile file(path());
    return file.open(QIODevice::ReadOnly) && PosixFile::sync(file.handle());
}
