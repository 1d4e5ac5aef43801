#pragma once

#include "PosixFile_p.h"
#include "SaveJournal_p.h"

#include <QByteArray>
#include <QString>

#include <functional>

/// A JSON file that is rewritten in place, so that links and permissions are kept. After a crash, a
/// full disk or a loss of power at any moment, loading still returns the previous or the new text:
/// while the file is rewritten, a journal beside it contains the new text.
class SafeFile
{
public:
    enum class Saved {
        Whole,
        OpenFailed,    ///< not a regular file, or an error; the file is untouched
        SeveralNames,  ///< the file has hard links, where its journal would not be found; untouched
        JournalFailed, ///< the file is untouched
        FileFailed     ///< the file is damaged, and the journal contains the new text
    };

    enum class Recovery {
        None,              ///< the text of the file was loaded; there was no journal
        Replayed,          ///< the text of the journal was loaded and written to the file
        ReplayedInMemory,  ///< the text of the journal was loaded; the file could not be written
        Dropped,           ///< the text of the file was loaded, and a damaged journal removed
        KeptAside,         ///< the text of the file was loaded; the journal did not belong to it
                           ///< and was renamed
        JournalUnreadable, ///< the text of the file was loaded, which may be damaged; the journal
                           ///< could not be read and was kept
    };

    /// Called before the text of the file is replaced by that of the journal. Returns whether it
    /// may be.
    using ReplaceHandler = std::function<bool(const QByteArray &text, const QByteArray &journal)>;

    /// What a load found.
    struct Loaded
    {
        QByteArray text;                                     ///< empty without a readable file
        PosixFile::Status file = PosixFile::Status::Missing; ///< of the file itself
        Recovery recovery = Recovery::None;

        /// Whether everything that exists could be read. Otherwise a save could overwrite settings
        /// that were not loaded.
        bool isComplete() const;
    };

    /// `path` may be a link: the operating system follows it, and the journal is beside the file
    /// that it leads to. Files with more than `limit` bytes are not read. `access` is that of a
    /// file or journal that is created.
    SafeFile(const QString &path, qint64 limit,
             PosixFile::Access access = PosixFile::Access::AsUsual);

    /// Replaces the content of the file with `text`, a JSON object, and creates the file if it is
    /// missing.
    Saved save(const QByteArray &text);

    /// Returns the text of the file, or of the journal if a save was interrupted, and completes
    /// that save. `mayReplace` may be empty.
    Loaded load(const ReplaceHandler &mayReplace = ReplaceHandler());

    /// Returns the same text, but changes no file: another program may be saving.
    Loaded peek();

    QString path() const { return mPath; }
    /// The file, open after a load that could read it.
    const PosixFile &file() const { return mFile; }
    /// The path of the journal, after a save or a load.
    QString journalPath() const { return mJournal.path(); }

private:
    bool rewrite(const QByteArray &text) const;
    bool replay(const QByteArray &text);
    Loaded readFile();
    void recover(const SaveJournal::Entry &entry, const ReplaceHandler &mayReplace, Loaded *loaded);

    QString mPath;
    qint64 mLimit;
    PosixFile::Access mAccess;
    PosixFile mFile;
    SaveJournal mJournal;
};
