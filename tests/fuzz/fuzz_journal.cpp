// A local file and the journal of an interrupted save beside it. The first bytes of the input
// choose what the journal is, how the file was left, and how many bytes may be read; the rest is a
// text.
#include "ByteReader.h"
#include "FuzzTarget.h"
#include "support/FileText.h"

#include "MaltoConfiguration/store/SafeFile_p.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>

namespace {

const QByteArray sOldText = "{\"a\":{\"t\":1}}";

/// Returns the journal of a save from `oldText` to `newText`.
QByteArray journalOf(const QByteArray &oldText, const QByteArray &newText)
{
    const QByteArray body = QByteArray::number(newText.size()) + '\n' + SaveJournal::hash(oldText)
                            + '\n' + SaveJournal::hash(newText) + '\n' + newText;
    return "malto save journal 1\n" + SaveJournal::hash(body) + '\n' + body;
}

/// Returns a part of `text`, or all of it with a byte order mark or other bytes before it.
QByteArray damaged(const QByteArray &text, ByteReader &choices)
{
    switch (choices.below(6)) {
    case 0: return QByteArray();
    case 1: return text.left(choices.byte());
    case 2: return "\xef\xbb\xbf" + text;
    case 3: return QByteArray(choices.below(32), '\0') + text;
    case 4: return text + text;
    default: return text;
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    startFuzzing();
    ByteReader choices(bytesOf(data, size));
    const bool isWhole = choices.flag();
    const bool hasOtherName = choices.flag();
    const bool isShortRead = choices.below(8) == 0;
    const bool isOfOldText = choices.flag();
    const int fileChoice = choices.below(3);
    ByteReader damage(bytesOf(data, size));
    const QByteArray newText = choices.rest();

    const QString path = scratchFolder() + "/local.json";
    const QString usual = path + ".save-journal";
    const QString journalPath = hasOtherName ? usual + "-0123abc" : usual;
    const QByteArray whole = journalOf(isOfOldText ? sOldText : "{}", newText);
    const QByteArray journal = isWhole ? whole : damaged(whole, damage);
    const QByteArray text = fileChoice == 0   ? sOldText
                            : fileChoice == 1 ? newText
                                              : damaged(newText, damage);
    writeScratchFile(path, text);
    writeScratchFile(journalPath, journal);

    const qint64 limit = isShortRead ? newText.size() / 2 : 1024 * 1024;
    const SafeFile::Loaded loaded = SafeFile(path, limit).load();
    expect(loaded.text.isEmpty() || loaded.text == text || loaded.text == newText,
           "a load returns the text of the file or of the journal", loaded.text, newText);
    using Recovery = SafeFile::Recovery;
    if (loaded.recovery == Recovery::JournalUnreadable)
        expect(fileText(journalPath) == journal, "a journal that was not read is kept");
    if (!loaded.isComplete())
        expect(fileText(path) == text, "a file that was not read is kept");
    const bool isFound = isWhole && !isShortRead && !(hasOtherName && text.endsWith('}'));
    const bool isOther = text != sOldText && QJsonDocument::fromJson(text).isObject();
    if (isFound && !isOther && (isOfOldText || text != sOldText) && !text.trimmed().endsWith('}'))
        expect(loaded.text == newText, "an interrupted save is completed", loaded.text, newText);

    const SafeFile::Loaded again = SafeFile(path, limit).load();
    expect(again.text == loaded.text, "another load returns the same", again.text, loaded.text);
    const QStringList names = QDir(scratchFolder()).entryList(QDir::Files);
    for (const QString &name : names)
        QFile::remove(scratchFolder() + '/' + name);
    return 0;
}
