#include "SaveJournal_p.h"

#include "PosixFile_p.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QList>

#include <unistd.h>

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

bool SaveJournal::write(const QByteArray &oldText, const QByteArray &newText,
                        QFile::Permissions permissions) const
{
    const QByteArray body = toBody({hash(oldText), hash(newText), newText});
    const QByteArray content = sMagic + hash(body) + '\n' + body;

    // Written under another name: if an earlier save failed halfway, its journal may be the only
    // intact copy of the settings.
    const QString unfinished = mPath + QLatin1String(".new");
    QFile file;
    const int descriptor = PosixFile::createNew(unfinished, permissions);
    if (descriptor == -1
        || !file.open(descriptor, QIODevice::WriteOnly | QIODevice::Unbuffered,
                      QFileDevice::AutoCloseHandle))
        return false;
    const bool whole = file.write(content) == content.size() && PosixFile::sync(descriptor);
    file.close();
    if (!whole || !PosixFile::replace(unfinished, mPath)) {
        QFile::remove(unfinished);
        return false;
    }
    return PosixFile::syncFolderOf(mPath);
}

SaveJournal::State SaveJournal::read(Entry *entry) const
{
    if (!isOurs())
        return State::None;
    QFile file(mPath);
    if (!file.open(QIODevice::ReadOnly))
        return State::None;
    // A longer journal is truncated here, and then invalid.
    const QByteArray content = file.read(qMin(file.size(), PosixFile::sMaxSize + sMaxHeaderSize));
    if (!content.startsWith(sMagic))
        return State::None;
    const int magicSize = int(sizeof(sMagic)) - 1;
    const auto checksumEnd = content.indexOf('\n', magicSize);
    const QByteArray checksum = content.mid(magicSize, checksumEnd - magicSize);
    const QByteArray body = content.mid(checksumEnd + 1);
    if (checksumEnd == -1 || checksum != hash(body) || !fromBody(body, entry))
        return State::Invalid;
    return State::Valid;
}

void SaveJournal::remove() const
{
    QFile::remove(mPath);
}

void SaveJournal::keepAside() const
{
    PosixFile::replace(mPath, mPath + QLatin1String(".kept"));
}

QByteArray SaveJournal::hash(const QByteArray &text)
{
    return QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex();
}

/// In a folder where every user may create files, another user's journal could change the settings.
bool SaveJournal::isOurs() const
{
    const QFileInfo info(mPath);
    return !info.isSymLink() && info.isFile()
           && (info.ownerId() == ::geteuid() || info.ownerId() == QFileInfo(mFilePath).ownerId());
}
