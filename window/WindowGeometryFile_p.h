#pragma once

#include <QByteArray>
#include <QRect>
#include <QString>

/// The INI file in which the settings window saves its geometry, as `QSettings` writes it.
/// QSettings parses every value of a file, and some values end the process; so the one value is
/// read and written as text, and all else stays as it is.
class WindowGeometryFile
{
public:
    /// The content of a file.
    struct Saved
    {
        bool found = false; ///< whether a geometry was saved, even an unusable one
        QRect geometry;     ///< invalid if the saved value is not a rectangle
    };

    explicit WindowGeometryFile(const QString &path) : mPath(path) {}

    /// Returns what was saved. Anything but a readable regular file counts as missing, and a file
    /// that is too large as one with an unusable geometry. Both log the warning
    /// "ConfigurationWindow geometry file is not usable: " and the path.
    Saved read() const;

    /// Saves `geometry` and keeps the rest of the file. A link or anything but a regular file is
    /// left unchanged, and so is a file that another program keeps locked; the same warning is
    /// logged. A file that is too large is replaced.
    void write(const QRect &geometry) const;

private:
    bool replace(const QRect &geometry) const;
    void warn() const;

    QString mPath;
};
