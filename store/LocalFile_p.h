#pragma once

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
    /// no file, or if it could not be read.
    QByteArray read();

    /// Returns whether the last call of `read` could read everything that exists. Otherwise a save
    /// could overwrite settings that were not loaded.
    bool isComplete() const { return mIsComplete; }

    /// Writes the text that `compose` returns, a JSON object. Returns whether that worked, as far
    /// as the options let it know. `compose` is not called if the file cannot be opened.
    bool write(const std::function<QByteArray()> &compose) const;

private:
    void logLoad(const SafeFile::Loaded &loaded, const SafeFile &file) const;
    void logOpenFailed() const;
    void logNotReadable() const;
    bool writeInPlace(const std::function<QByteArray()> &compose) const;
    bool writeSafely(const QByteArray &text) const;

    const QString mPath;
    const quint32 mOptions;
    const qint64 mLimit;
    bool mIsComplete = false;
};
