#pragma once

#include "PosixFile_p.h"
#include "SaveJournal_p.h"

#include <QFile>
#include <QString>

/// A JSON file that is rewritten in place, so that links and permissions are kept. After a crash, a
/// full disk or a loss of power at any moment, loading still returns the previous or the new text:
/// while the file is rewritten, a journal beside it contains the new text.
class SafeFile
{
public:
    enum class Saved {
        Whole,
        JournalFailed, ///< the file is untouched
        FileFailed     ///< the file is damaged, and the journal contains the new text
    };

    enum class Recovery {
        None,             ///< the text of the file was loaded; there was no journal
        Replayed,         ///< the text of the journal was loaded and written to the file
        ReplayedInMemory, ///< the text of the journal was loaded; the file could not be written
        Dropped,          ///< the text of the file was loaded, and a damaged journal removed
        KeptAside         ///< the text of the file was loaded; the journal did not belong to it
                          ///< and was renamed
    };

    /// `path` may be a link: the file is the one that it points to, with the journal beside it.
    explicit SafeFile(const QString &path);

    /// Opens the file for `save` and creates it if it is missing. Returns false if that fails or if
    /// the file is not a regular one.
    bool open();

    /// Replaces the content of the open file with `text`, a JSON object.
    Saved save(const QByteArray &text);

    /// Returns whether the file is larger than `PosixFile::sMaxSize`.
    bool isTooLarge() const { return mFile.size() > PosixFile::sMaxSize; }

    /// Returns the text of the file, or of the journal if a save was interrupted. A file that is
    /// unreadable or too large counts as empty.
    QByteArray load(Recovery *recovery);

    QString path() const { return mFile.fileName(); }
    const SaveJournal &journal() const { return mJournal; }

private:
    bool rewrite(const QByteArray &text);
    QByteArray readFile();
    bool syncFile();

    QFile mFile;
    SaveJournal mJournal;
};
