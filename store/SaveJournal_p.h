#pragma once

#include "PosixFile_p.h"

#include <QByteArray>
#include <QString>

/// The redo journal of a file: the new content of the file, kept beside it while it is rewritten.
/// docs/file-formats.md describes the format.
class SaveJournal
{
public:
    struct Entry
    {
        QByteArray oldHash; ///< of the previous content of the file
        QByteArray newHash; ///< of `newText`
        QByteArray newText; ///< the new content of the file
    };

    enum class State {
        None,       ///< no journal, or a file of that name from another program or user
        Unreadable, ///< a journal may exist, but the system could not read it
        Invalid,    ///< a damaged journal
        Valid
    };

    /// The journal is beside the file `filePath`, which must not be a link.
    explicit SaveJournal(const QString &filePath);

    /// Returns the path of the journal that was written or read.
    QString path() const { return mPath; }

    /// Writes the journal of `file`, with the same access or less, and waits until it is on the
    /// disk. Returns false if that fails. An existing journal is replaced by a complete one or not
    /// at all. If the name of the journal is taken by another user, it gets another one.
    bool write(const QByteArray &oldText, const QByteArray &newText, const PosixFile &file,
               PosixFile::Access access);

    /// Reads the journal into `entry`, which stays unchanged if the journal is not valid. Reads at
    /// most `limit` bytes of new text. If `isFileDamaged`, also looks for journals with other
    /// names.
    State read(Entry *entry, qint64 limit, bool isFileDamaged);

    void remove() const;

    /// Renames the journal, so that it is no longer read, but the user still has it.
    void keepAside() const;

    static QByteArray hash(const QByteArray &text);

private:
    bool moveInPlace(const QString &unfinished);
    State readAt(const QString &path, Entry *entry, qint64 limit) const;

    QString mFilePath;
    QString mPath;
};
