#include "EntryLog_p.h"

#include "Limits_p.h"

#include <QDebug>

#include <utility>

namespace {

constexpr QChar sEllipsis(0x2026);

thread_local int sDepth = 0;
thread_local int sMessages = 0;

/// Returns whether `character` changes how a terminal shows the text around it, or breaks the line.
bool isControl(uint character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph: return true;
    default: return false;
    }
}

QString escaped(uint character)
{
    if (character == '\n')
        return QStringLiteral("\\n");
    return QStringLiteral("\\u%1").arg(character, 4, 16, QLatin1Char('0'));
}

} // namespace

EntryLog::EntryLog()
{
    ++sDepth;
}

EntryLog::~EntryLog()
{
    if (--sDepth > 0)
        return;
    const int more = std::exchange(sMessages, 0) - Limits::sMaxLoggedEntries;
    if (more > 0)
        qWarning() << "ConfStorage: further messages about entries: " << more;
}

bool EntryLog::permits()
{
    return sDepth == 0 || ++sMessages <= Limits::sMaxLoggedEntries;
}

QString EntryLog::printable(const QString &text, int length)
{
    QString result;
    QString::size_type fitting = 0;
    for (QString::size_type i = 0; i < text.size(); ++i) {
        uint character = text.at(i).unicode();
        const bool isPair = text.at(i).isHighSurrogate() && i + 1 < text.size()
                            && text.at(i + 1).isLowSurrogate();
        if (isPair)
            character = QChar::surrogateToUcs4(text.at(i), text.at(i + 1));
        if (isControl(character))
            result += escaped(character);
        else
            result += text.mid(i, isPair ? 2 : 1);
        if (isPair)
            ++i;
        if (result.size() > length)
            return result.left(fitting) + sEllipsis;
        if (result.size() < length)
            fitting = result.size();
    }
    return result;
}

QString EntryLog::truncated(const QString &text)
{
    return text.size() > Limits::sMaxLoggedLength
               ? text.left(Limits::sMaxLoggedLength - 1) + sEllipsis
               : text;
}
