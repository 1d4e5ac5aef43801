#pragma once

#include <QByteArray>
#include <QRect>
#include <QString>

/// The INI file in which the settings window saves its geometry. Its content is checked before
/// QSettings reads it.
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

    /// Returns what was saved. Anything but a regular file counts as missing, and a file that is
    /// dangerous to read as one with an unusable geometry. Both log the warning
    /// "ConfigurationWindow geometry file is not usable: " and the path.
    Saved read() const;

    /// Saves `geometry` and keeps the other values of the file, unless they are dangerous to read.
    /// The file is written in ASCII: characters of other values are escaped. Anything but a regular
    /// file is left unchanged, and the same warning is logged.
    void write(const QRect &geometry) const;

    /// Returns whether QSettings can parse `text` without ending the process.
    static bool isHarmless(const QByteArray &text);

private:
    enum class Content { Missing, Foreign, Dangerous, Harmless };
    Content content() const;
    /// The QSettings of Qt 6 writes these characters as UTF-8, which that of Qt 5 reads as Latin-1.
    void escapeOtherValues() const;
    void warn() const;

    QString mPath;
};
