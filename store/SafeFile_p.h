#pragma once

#include "PosixFile_p.h"
#include "SaveJournal_p.h"

#include <QFile>
#include <QString>

/// A JSON file that is rewritten in place, so that links and permissions stay, and still holds the
/// previous or the new text after a crash, a full disk or a loss of power at any instant: what does
/// not stand in the file stands in the journal beside it, and loading puts it back.
class SafeFile
{
public:
    enum class Saved {
        Whole,
        JournalFailed, ///< the file is untouched
        FileFailed     ///< the file is damaged, and the journal holds the new text
    };

    enum class Recovery {
        None,             ///< the file's own text was loaded, and no journal stood beside it
        Replayed,         ///< the journal's text was loaded, and written into the file
        ReplayedInMemory, ///< the journal's text was loaded; the file could not be written
        Dropped,          ///< the file's own text was loaded, and a damaged journal removed
        KeptAside         ///< the same; the journal was of another text, and was renamed
    };

    /// The file that `path` leads to through any links; the journal lies beside that file.
    explicit SafeFile(const QString &path);

    /// Opens the file for `save`, and creates it when it is missing. Returns false when that
    /// failed, or when it is no regular file.
    bool open();

    /// Replaces the content of the opened file by `text`, a JSON object.
    Saved save(const QByteArray &text);

    /// Whether the file has more bytes than are ever read.
    bool isTooLarge() const { return mFile.size() > PosixFile::sMaxSize; }

    /// The text of the file, or of the journal when a save was interrupted. A file that cannot be
    /// read, or is too large, counts as empty.
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
