#pragma once

#include <QFile>
#include <QString>

/// The redo journal of one file: what the file is about to hold, kept beside it while it is being
/// rewritten. Its format is described in docs/file-formats.md.
class SaveJournal
{
public:
    struct Entry
    {
        QByteArray oldHash; ///< of what the file held
        QByteArray newHash; ///< of `newText`
        QByteArray newText; ///< what the file is to hold
    };

    enum class State {
        None,    ///< no journal, or a file of that name that is none of ours
        Invalid, ///< a journal that was damaged
        Valid
    };

    /// The journal beside the file `filePath`, which is no link.
    explicit SaveJournal(const QString &filePath);

    QString path() const { return mPath; }

    /// Puts a journal in place, on the disk, as readable as `permissions` say. Returns false when
    /// that failed; then no half-written journal has taken the place of another one.
    bool write(const QByteArray &oldText, const QByteArray &newText,
               QFile::Permissions permissions) const;

    /// Reads the journal into `entry`, which stays as it is unless the journal is valid.
    State read(Entry *entry) const;

    void remove() const;

    /// Renames the journal, so that it is looked at no more, but can be by a person.
    void keepAside() const;

    static QByteArray hash(const QByteArray &text);

private:
    bool isOurs() const;

    QString mFilePath;
    QString mPath;
};
