#include "WindowGeometryFile_p.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSettings>

namespace {

constexpr qint64 sMaxFileSize = 64 * 1024;

QString geometryKey()
{
    return QStringLiteral("Geometry");
}

} // namespace

WindowGeometryFile::Saved WindowGeometryFile::read() const
{
    switch (content()) {
    case Content::Missing: return {};
    case Content::Foreign: warn(); return {};
    case Content::Dangerous: warn(); return {true, QRect()};
    case Content::Harmless: break;
    }
    const QSettings settings(mPath, QSettings::IniFormat);
    return {settings.contains(geometryKey()), settings.value(geometryKey()).toRect()};
}

void WindowGeometryFile::write(const QRect &geometry) const
{
    const Content present = content();
    if (present == Content::Foreign) {
        warn();
        return;
    }
    if (present == Content::Dangerous)
        QFile::remove(mPath);
    QSettings(mPath, QSettings::IniFormat).setValue(geometryKey(), geometry);
}

bool WindowGeometryFile::isHarmless(const QByteArray &text)
{
    // QSettings parses every value of the file, whichever key is read. For "@Variant(" and
    // "@DateTime(" it deserializes a stream of any type: eight bytes that announce a list of four
    // thousand million entries end the process. Before that it removes quotes and decodes escapes.
    // So the at sign and the letter may be plain or escaped, with quotes, blanks, unknown escapes
    // and continued lines between them.
    static const QRegularExpression danger(QStringLiteral(
        R"((?:@|\\x(?:[0-9a-fA-F]*00|0?)40(?![0-9a-fA-F])|\\[0-7]*100))"
        R"((?:["\t ]|\\(?:\r\n|\n\r|[^x0-7abfnrtv"?'\\]))*+)"
        R"((?:[VD]|\\x(?:[0-9a-fA-F]*00|0?)(?:56|44)(?![0-9a-fA-F])|\\[0-7]*(?:126|104)))"));
    // With the size, because a zero byte does not end the text. A search that hits the limits of
    // the regular expression engine proves nothing.
    const auto found = danger.match(QString::fromLatin1(text.constData(), text.size()));
    return found.isValid() && !found.hasMatch();
}

WindowGeometryFile::Content WindowGeometryFile::content() const
{
    const QFileInfo info(mPath);
    if (!info.exists())
        return Content::Missing;
    // Reading a pipe or a device may block forever.
    QFile file(mPath);
    if (!info.isFile() || !file.open(QIODevice::ReadOnly))
        return Content::Foreign;
    const QByteArray text = file.read(sMaxFileSize + 1);
    return text.size() <= sMaxFileSize && isHarmless(text) ? Content::Harmless : Content::Dangerous;
}

void WindowGeometryFile::warn() const
{
    qWarning() << "ConfigurationWindow geometry file is not usable: " << mPath;
}
