#pragma once

#include "PlainDump_p.h"
#include "SafeFile_p.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QByteArray>
#include <QString>

#include <functional>

/// The text of the local file of a store, read and written as its `mFileOptions` say. Logs every
/// failure.
class LocalFile
{
public:
    explicit LocalFile(const ConfStorage &store);

    /// Returns the text of the file, or of its journal if a save was interrupted. Empty if there is
    /// no file, or if it could not be read. It has members if it was parsed, to know whether the
    /// file is damaged.
    DumpText read();

    /// Returns the same while another program may be writing the file. Changes no file.
    QByteArray peek();

    /// Returns the text of the file if it is a JSON object, and otherwise an empty text: another
    /// program may be writing it. Changes and logs nothing.
    DumpText readIfWhole() const;

    /// Returns whether the last call of `read` could read everything that exists. Otherwise a save
    /// could overwrite settings that were not loaded.
    bool isComplete() const { return mIsComplete; }

    /// Returns whether `read` or `write` found a damaged file, with `KeepDamagedFiles`. A damaged
    /// file cannot be parsed, or is empty although it has a backup.
    bool isDamaged() const { return mIsDamaged; }

    /// Returns the path of the copy of the damaged file. Empty if there is none.
    QString damagedCopy() const { return mDamagedCopy; }

    /// Returns what the file contained after the last call of `read` or `write`, as far as that is
    /// known. This is not what `read` returned if the file is damaged.
    QByteArray content() const { return mContent; }

    /// Writes the text that `compose` returns, a JSON object. Returns whether that worked, as far
    /// as the options let it know. `compose` is not called if the file cannot be opened.
    bool write(const std::function<QByteArray()> &compose);

private:
    DumpText parsed(const QByteArray &text) const;
    DumpText readRepaired(const PosixFile &file, const QByteArray &text);
    bool keepCopy(const QByteArray &text, const PosixFile &file);
    bool prepareOverwriting();
    void logLoad(const SafeFile::Loaded &loaded, const SafeFile &file) const;
    void logOpenFailed() const;
    void logNotReadable() const;
    bool writeInPlace(const std::function<QByteArray()> &compose);
    bool writeSafely(const QByteArray &text);

    const QString mPath;
    const quint32 mOptions;
    const qint64 mLimit;
    const PosixFile::Access mAccess;
    bool mIsComplete = false;
    bool mIsDamaged = false;
    QString mDamagedCopy;
    QByteArray mContent;
};
