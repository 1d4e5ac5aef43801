#include "WindowGeometryFile_p.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSettings>

#include <algorithm>
#include <cctype>

namespace {

constexpr qint64 sMaxFileSize = 64 * 1024;

QString geometryKey()
{
    return QStringLiteral("Geometry");
}

/// Also for DEL, which Qt 5 escapes, too.
bool isBeyondAscii(char byte)
{
    return static_cast<uchar>(byte) >= 0x7f;
}

bool isHexadecimalDigit(QChar character)
{
    return character.unicode() < 0x80 && std::isxdigit(character.unicode());
}

/// Escapes characters as the QSettings of Qt 5 does in values. An escape ends at the first
/// character that is no digit, so digits behind it are escaped, too.
QByteArray escaped(const QString &text)
{
    QByteArray result;
    bool isBehindEscape = false;
    for (const QChar character : text) {
        isBehindEscape = character.unicode() >= 0x7f
                         || (isBehindEscape && isHexadecimalDigit(character));
        if (isBehindEscape)
            result += "\\x" + QByteArray::number(character.unicode(), 16);
        else
            result += static_cast<char>(character.unicode());
    }
    return result;
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
    escapeOtherValues();
}

void WindowGeometryFile::escapeOtherValues() const
{
    QFile file(mPath);
    if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        return;
    const QByteArray text = file.readAll();
    if (std::none_of(text.begin(), text.end(), isBeyondAscii))
        return;
    file.resize(0);
    file.seek(0);
    file.write(escaped(QString::fromUtf8(text)));
}

bool WindowGeometryFile::isHarmless(const QByteArray &text)
{
    // QSettings parses every value of the file, whichever key is read. For "@Variant(" and
    // "@DateTime(" it deserializes a stream of any type: eight bytes that announce a list of four
    // thousand million entries end the process. Before that it removes quotes and decodes escapes.
    // So the at sign and the letter may be plain or escaped, with quotes, blanks, byte order marks,
    // unknown escapes and continued lines between them.
    static const QRegularExpression danger(QStringLiteral(
        R"((?:@|\\x(?:[0-9a-fA-F]*00|0?)40(?![0-9a-fA-F])|\\[0-7]*100))"
        R"((?:["\t ]|\xef\xbb\xbf|\\(?:\r\n|\n\r|[^x0-7abfnrtv"?'\\]))*+)"
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
