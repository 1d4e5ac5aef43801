#include "WindowGeometryFile_p.h"

#include "MaltoConfiguration/store/Limits_p.h"
#include "MaltoConfiguration/store/PosixFile_p.h"

#include <QDebug>
#include <QFile>
#include <QLockFile>
#include <QRegularExpression>

namespace {

using Status = PosixFile::Status;

constexpr int sLockMilliseconds = 500;

const QByteArray &sectionLine()
{
    static const QByteArray sLine = "[General]";
    return sLine;
}

/// The lines of a file, with the line of the geometry.
class Lines
{
public:
    explicit Lines(const QByteArray &text)
    {
        if (!text.isEmpty())
            mLines = text.split('\n');
        bool isGeneral = true; // values before the first section
        for (int i = 0; i < mLines.size(); ++i) {
            const QByteArray line = mLines.at(i).trimmed();
            if (line.startsWith('['))
                isGeneral = line.toLower() == sectionLine().toLower();
            if (isGeneral && line.startsWith('['))
                mSection = i;
            const auto equals = line.indexOf('=');
            if (isGeneral && equals != -1 && line.left(equals).trimmed() == "Geometry")
                mGeometry = i;
        }
    }

    bool hasGeometry() const { return mGeometry != -1; }

    QRect geometry() const
    {
        static const QRegularExpression sRectangle(
            QStringLiteral("=\\s*\"?@Rect\\((-?\\d+) (-?\\d+) (-?\\d+) (-?\\d+)\\)\"?\\s*$"));
        const auto found = sRectangle.match(QString::fromLatin1(mLines.at(mGeometry)));
        int numbers[4] = {};
        for (int i = 0; i < 4; ++i) {
            bool isInRange = false;
            numbers[i] = found.captured(i + 1).toInt(&isInRange);
            if (!isInRange)
                return QRect();
        }
        // Not given as a size, which QRect adds to the position without a check.
        const qint64 right = qint64(numbers[0]) + numbers[2] - 1;
        const qint64 bottom = qint64(numbers[1]) + numbers[3] - 1;
        const QPoint end(static_cast<int>(right), static_cast<int>(bottom));
        if (end.x() != right || end.y() != bottom)
            return QRect();
        return QRect(QPoint(numbers[0], numbers[1]), end);
    }

    QByteArray with(const QRect &geometry)
    {
        const QByteArray line = "Geometry=@Rect(" + QByteArray::number(geometry.x()) + ' '
                                + QByteArray::number(geometry.y()) + ' '
                                + QByteArray::number(geometry.width()) + ' '
                                + QByteArray::number(geometry.height()) + ')';
        if (hasGeometry()) {
            mLines[mGeometry] = line;
        } else if (mSection != -1) {
            mLines.insert(mSection + 1, line);
        } else {
            if (!mLines.isEmpty())
                mLines.prepend(QByteArray()); // between two sections
            mLines.prepend(line);
            mLines.prepend(sectionLine());
        }
        QByteArray text = mLines.join('\n');
        return text.endsWith('\n') ? text : text + '\n';
    }

private:
    QList<QByteArray> mLines;
    int mSection = -1;
    int mGeometry = -1;
};

} // namespace

WindowGeometryFile::Saved WindowGeometryFile::read() const
{
    const PosixFile::Content content = PosixFile::read(mPath, Limits::sMaxGeometryFileSize);
    if (content.status == Status::Missing)
        return {};
    if (content.status != Status::Done) {
        warn();
        return {content.status == Status::TooLarge, QRect()};
    }
    const Lines lines(content.bytes);
    return {lines.hasGeometry(), lines.hasGeometry() ? lines.geometry() : QRect()};
}

void WindowGeometryFile::write(const QRect &geometry) const
{
    if (!replace(geometry))
        warn();
}

bool WindowGeometryFile::replace(const QRect &geometry) const
{
    PosixFile file;
    const Status opened = file.open(mPath, PosixFile::Mode::EditNoLink);
    // The QSettings of other programs uses the same lock, and would wait for ever.
    QLockFile lock(mPath + QLatin1String(".lock"));
    if ((opened != Status::Done && opened != Status::Missing) || !lock.tryLock(sLockMilliseconds))
        return false;
    const bool exists = opened == Status::Done;
    const PosixFile::Content content = exists ? file.read(Limits::sMaxGeometryFileSize)
                                              : PosixFile::Content();
    if (content.status == Status::Failed)
        return false;
    // Renamed into place, so that a crash leaves the old or the new file.
    PosixFile next;
    const QString path = next.create(mPath + QLatin1String(".new"));
    if (path.isEmpty())
        return false;
    const bool written = (!exists || next.copyAccess(file))
                         && next.write(Lines(content.bytes).with(geometry))
                         && PosixFile::rename(path, mPath);
    if (!written)
        QFile::remove(path);
    return written;
}

void WindowGeometryFile::warn() const
{
    qWarning() << "ConfigurationWindow geometry file is not usable: " << mPath;
}
