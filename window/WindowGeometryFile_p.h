#pragma once

#include <QByteArray>
#include <QRect>
#include <QString>

/// The INI file in which the settings window keeps its place. Whatever stands there is looked at
/// before QSettings reads it.
class WindowGeometryFile
{
public:
    /// What a file says about the place of the window.
    struct Saved
    {
        bool found = false; ///< a geometry was saved, be it usable or not
        QRect geometry;     ///< invalid when what was saved is no rectangle
    };

    explicit WindowGeometryFile(const QString &path) : mPath(path) {}

    /// What was saved. Anything but a regular file counts as a missing one, and a file that is
    /// dangerous to read as one with an unusable geometry; both log the warning
    /// "ConfigurationWindow geometry file is not usable: " and the path.
    Saved read() const;

    /// Saves `geometry` and keeps what else stands in the file, unless that is dangerous to read.
    /// Anything but a regular file is left alone, with the same warning.
    void write(const QRect &geometry) const;

    /// Whether QSettings can read `text` without taking the process down.
    static bool isHarmless(const QByteArray &text);

private:
    enum class Content { Missing, Foreign, Dangerous, Harmless };
    Content content() const;
    void warn() const;

    QString mPath;
};
