#pragma once

#include <QFile>
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
        None,    ///< no journal, or a file of that name from another program or user
        Invalid, ///< a damaged journal
        Valid
    };

    /// The journal is beside the file `filePath`, which must not be a link.
    explicit SaveJournal(const QString &filePath);

    QString path() const { return mPath; }

    /// Writes the journal with `permissions` and waits until it is on the disk. Returns false if
    /// that fails. An existing journal is replaced by a complete one or not at all.
    bool write(const QByteArray &oldText, const QByteArray &newText,
               QFile::Permissions permissions) const;

    /// Reads the journal into `entry`, which stays unchanged if the journal is not valid.
    State read(Entry *entry) const;

    void remove() const;

    /// Renames the journal, so that it is no longer read, but the user still has it.
    void keepAside() const;

    static QByteArray hash(const QByteArray &text);

private:
    bool isOurs() const;

    QString mFilePath;
    QString mPath;
};
