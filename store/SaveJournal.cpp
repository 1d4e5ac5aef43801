#include "SaveJournal_p.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QList>

#include <sys/stat.h>

namespace {

constexpr char sMagic[] = "malto save journal 1\n";
constexpr int sHeaderLines = 3;
constexpr int sMaxHeaderSize = 1024;

/// Returns the part that the checksum covers: length of the new text, hash of the old text, hash of
/// the new text, and the new text.
QByteArray toBody(const SaveJournal::Entry &entry)
{
    return QByteArray::number(entry.newText.size()) + '\n' + entry.oldHash + '\n' + entry.newHash
           + '\n' + entry.newText;
}

bool fromBody(const QByteArray &body, SaveJournal::Entry *entry)
{
    QList<QByteArray> lines;
    QByteArray::size_type start = 0;
    for (int i = 0; i < sHeaderLines; ++i) {
        const auto end = body.indexOf('\n', start);
        if (end == -1)
            return false;
        lines.append(body.mid(start, end - start));
        start = end + 1;
    }
    const QByteArray text = body.mid(start);
    if (lines.at(0) != QByteArray::number(text.size()) || lines.at(2) != SaveJournal::hash(text))
        return false;
    *entry = {lines.at(1), lines.at(2), text};
    return true;
}

} // namespace

SaveJournal::SaveJournal(const QString &filePath)
    : mFilePath(filePath), mPath(filePath + QLatin1String(".save-journal"))
{
}

bool SaveJournal::write(const QByteArray &oldText, const QByteArray &newText, const PosixFile &file,
                        PosixFile::Access access)
{
    const QByteArray body = toBody({hash(oldText), hash(newText), newText});
    const QByteArray content = sMagic + hash(body) + '\n' + body;

    // Written under another name: if an earlier save failed halfway, its journal may be the only
    // intact copy of the settings.
    PosixFile journal;
    const QString unfinished = journal.create(mPath + QLatin1String(".new"));
    if (unfinished.isEmpty())
        return false;
    const bool whole = journal.copyAccess(file, access) && journal.write(content) && journal.sync();
    journal.close();
    if (!whole || !moveInPlace(unfinished)) {
        QFile::remove(unfinished);
        return false;
    }
    return PosixFile::syncFolderOf(mPath);
}

bool SaveJournal::moveInPlace(const QString &unfinished)
{
    if (PosixFile::rename(unfinished, mPath))
        return true;
    // In a folder where every user may create files, another user may have taken the name.
    const QString other = PosixFile::uniquePath(mPath);
    if (!PosixFile::rename(unfinished, other))
        return false;
    mPath = other;
    return true;
}

SaveJournal::State SaveJournal::read(Entry *entry, qint64 limit, bool isFileDamaged)
{
    const State state = readAt(mPath, entry, limit);
    if (state != State::None || !isFileDamaged)
        return state;
    const QDir folder = QFileInfo(mPath).dir();
    const QStringList names = folder.entryList(QDir::Files | QDir::Hidden, QDir::Name);
    for (const QString &name : names) {
        const QString path = folder.filePath(name);
        if (PosixFile::isUniquePath(path, mPath) && readAt(path, entry, limit) == State::Valid) {
            mPath = path;
            return State::Valid;
        }
    }
    return State::None;
}

SaveJournal::State SaveJournal::readAt(const QString &path, Entry *entry, qint64 limit) const
{
    PosixFile file;
    struct stat status = {};
    switch (file.open(path, PosixFile::Mode::ReadNoLink)) {
    case PosixFile::Status::Done: break;
    case PosixFile::Status::Failed:
        return ::lstat(QFile::encodeName(path).constData(), &status) == 0
                       && !PosixFile::isOwnedFor(mFilePath, status)
                   ? State::None
                   : State::Unreadable;
    default: return State::None;
    }
    if (!file.status(&status))
        return State::Unreadable;
    if (!PosixFile::isOwnedFor(mFilePath, status))
        return State::None;
    const PosixFile::Content content = file.read(limit + sMaxHeaderSize);
    if (content.status != PosixFile::Status::Done)
        return State::Unreadable;
    if (!content.bytes.startsWith(sMagic))
        return State::None;
    const int magicSize = int(sizeof(sMagic)) - 1;
    const auto checksumEnd = content.bytes.indexOf('\n', magicSize);
    const QByteArray checksum = content.bytes.mid(magicSize, checksumEnd - magicSize);
    const QByteArray body = content.bytes.mid(checksumEnd + 1);
    Entry found;
    if (checksumEnd == -1 || checksum != hash(body) || !fromBody(body, &found))
        return State::Invalid;
    if (found.newText.size() > limit)
        return State::Unreadable;
    *entry = found;
    return State::Valid;
}

void SaveJournal::remove() const
{
    QFile::remove(mPath);
}

void SaveJournal::keepAside() const
{
    const QString kept = mPath + QLatin1String(".kept");
    if (!PosixFile::rename(mPath, kept))
        PosixFile::rename(mPath, PosixFile::uniquePath(kept));
}

QByteArray SaveJournal::hash(const QByteArray &text)
{
    return QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex();
}
