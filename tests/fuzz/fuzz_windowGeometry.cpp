// The content of the settings window's geometry file: the input itself, or after a "~" the pieces
// of text that its bytes select.
#include "ByteReader.h"
#include "FuzzTarget.h"

#include "MaltoConfiguration/window/WindowGeometryFile_p.h"

#include <QRegularExpression>

#include <iterator>

namespace {

/// Reads the rectangle of a file as the window writes it, with nothing else in it. Returns false
/// for any other content.
bool readPlain(const QByteArray &content, QRect *geometry)
{
    static const QRegularExpression sPlain("\\A\\[General\\]\nGeometry=@Rect\\((-?\\d{1,5}) "
                                           "(-?\\d{1,5}) (-?\\d{1,5}) (-?\\d{1,5})\\)\n\\z");
    const auto match = sPlain.match(QString::fromLatin1(content.constData(), content.size()));
    if (match.hasMatch())
        *geometry = QRect(match.captured(1).toInt(), match.captured(2).toInt(),
                          match.captured(3).toInt(), match.captured(4).toInt());
    return match.hasMatch();
}

/// Composes text around the values that would end the process, which random mutation rarely finds.
QByteArray composed(const QByteArray &choices)
{
    static const QByteArray sPieces[] = {"x=",
                                         "@",
                                         "Variant",
                                         "DateTime",
                                         "(\\0\\0\\0\\v\\x7f\\xff\\xff\\xff)",
                                         "\"",
                                         " ",
                                         "\t",
                                         "\n",
                                         "\r\n",
                                         "\\",
                                         "\\\n",
                                         "\\x40",
                                         "\\x56",
                                         "\\x0056",
                                         "\\x10040",
                                         "\\100",
                                         "\\126",
                                         "\\104",
                                         "\\x44",
                                         "\\a",
                                         "\\8",
                                         "\\\"",
                                         ",",
                                         ";",
                                         "[S]\n",
                                         "ariant",
                                         "V",
                                         "D",
                                         "ateTime",
                                         "@@",
                                         QByteArray(1, '\0'),
                                         "\xe9",
                                         "\\x144",
                                         "Geometry=@Rect(1 2 3 4)",
                                         "%40",
                                         "(",
                                         ")",
                                         "\v",
                                         "\xa0",
                                         "\xef\xbb\xbf",
                                         "[General]\n"};
    ByteReader bytes(choices);
    QByteArray text;
    while (!bytes.atEnd())
        text += sPieces[bytes.below(static_cast<int>(std::size(sPieces)))];
    return text;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    startFuzzing();
    const bool pieces = size > 0 && data[0] == '~';
    const QByteArray content = pieces ? composed(bytesOf(data + 1, size - 1)) : bytesOf(data, size);
    static const QString sPath = scratchFolder() + "/geometry.ini";
    writeScratchFile(sPath, content);
    const WindowGeometryFile file(sPath);

    const WindowGeometryFile::Saved saved = file.read();
    QRect plain;
    if (readPlain(content, &plain))
        expect(saved.found && saved.geometry == plain, "a plain geometry is read exactly");

    const QRect geometry(static_cast<int>(size), 2, 30, 40);
    file.write(geometry);
    const WindowGeometryFile::Saved written = file.read();
    expect(written.found && written.geometry == geometry, "a written geometry is read back");
    return 0;
}
