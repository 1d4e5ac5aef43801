#include "FoldedText_p.h"

#include <QHash>

#include <algorithm>
#include <utility>

namespace MtConf {

namespace {

/// Returns the letters for a letter that users also type without its accent, although Unicode does
/// not decompose it. Empty for any other character.
QString plainLetters(uint folded)
{
    switch (folded) {
    case 0x00df: // sharp s
        return QStringLiteral("ss");
    case 0x00e6: return QStringLiteral("ae");
    case 0x00f0: // eth
    case 0x0111: // d with stroke
        return QStringLiteral("d");
    case 0x00f8: // o with stroke
        return QStringLiteral("o");
    case 0x00fe: // thorn
        return QStringLiteral("th");
    case 0x0127: // h with stroke
        return QStringLiteral("h");
    case 0x0131: // dotless i
        return QStringLiteral("i");
    case 0x0142: // l with stroke
        return QStringLiteral("l");
    case 0x0153: return QStringLiteral("oe");
    default: return QString();
    }
}

/// Returns whether users leave the character out when they type a word.
bool isLeftOut(uint character)
{
    constexpr uint sTatweel = 0x0640;
    constexpr uint sVoicedMark = 0x3099; // of Japanese, whose words differ by it
    constexpr uint sSemiVoicedMark = 0x309a;
    switch (QChar::category(character)) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_Enclosing:
        // Accents are shared by scripts. Other marks are letters.
        return QChar::script(character) == QChar::Script_Inherited && character != sVoicedMark
               && character != sSemiVoicedMark;
    case QChar::Other_Format: return true;
    default: return character == sTatweel;
    }
}

QString toText(uint character)
{
    const auto unit = static_cast<char32_t>(character);
    return QString::fromUcs4(&unit, 1);
}

QString computeFolded(uint character)
{
    const QString decomposed =
        toText(character).normalized(QString::NormalizationForm_KD).toCaseFolded();
    QString folded;
    // A letter may have an accent only after it is case folded, as the dotted capital I.
    const auto letters = decomposed.normalized(QString::NormalizationForm_KD).toUcs4();
    for (const uint letter : letters) {
        if (isLeftOut(letter))
            continue;
        const QString plain = plainLetters(letter);
        folded += plain.isEmpty() ? toText(letter) : plain;
    }
    return folded;
}

/// Calls `append` with the folded form of each character of `text` and its position.
template<class Append> void foldEach(const QString &text, Append append)
{
    constexpr ushort sFirstNotAscii = 0x80;
    static QHash<uint, QString> sFolded; // the texts of a program have few different characters
    for (QString::size_type i = 0; i < text.size(); ++i) {
        const QChar unit = text.at(i);
        if (unit.unicode() < sFirstNotAscii) {
            append(QString(unit.toCaseFolded()), i);
            continue;
        }
        const bool isPair = unit.isHighSurrogate() && i + 1 < text.size()
                            && text.at(i + 1).isLowSurrogate();
        const uint character = isPair ? QChar::surrogateToUcs4(unit, text.at(i + 1))
                                      : unit.unicode();
        auto folded = sFolded.constFind(character);
        if (folded == sFolded.constEnd())
            folded = sFolded.insert(character, computeFolded(character));
        append(*folded, i);
        i += isPair ? 1 : 0;
    }
}

} // namespace

FoldedText::FoldedText(const QString &text) : mOriginalSize(text.size())
{
    foldEach(text, [this](const QString &letters, Size position) {
        mText += letters;
        for (Size i = 0; i < letters.size(); ++i)
            mOrigins.append(position);
    });
}

QList<std::pair<FoldedText::Size, FoldedText::Size>> FoldedText::rangesOf(
    const QStringList &words) const
{
    QList<std::pair<Size, Size>> found;
    for (const QString &word : words) {
        for (Size at = mText.indexOf(word); at >= 0 && !word.isEmpty();
             at = mText.indexOf(word, at + word.size())) {
            // Accents of their own and the other letters of a ligature belong to the hit.
            const Size last = mOrigins.at(at + word.size() - 1);
            const auto past = std::upper_bound(mOrigins.cbegin(), mOrigins.cend(), last);
            found.append({mOrigins.at(at), past != mOrigins.cend() ? *past : mOriginalSize});
        }
    }
    std::sort(found.begin(), found.end());
    QList<std::pair<Size, Size>> merged;
    for (const auto &range : std::as_const(found)) {
        if (!merged.isEmpty() && range.first <= merged.last().second)
            merged.last().second = std::max(merged.last().second, range.second);
        else
            merged.append(range);
    }
    return merged;
}

QString foldedText(const QString &text)
{
    QString folded;
    folded.reserve(text.size());
    foldEach(text, [&folded](const QString &letters, QString::size_type) { folded += letters; });
    return folded;
}

bool isWordStart(const QString &text, QString::size_type position)
{
    return position == 0 || !text.at(position - 1).isLetterOrNumber();
}

bool isWordEnd(const QString &text, QString::size_type position)
{
    return position == text.size() || !text.at(position).isLetterOrNumber();
}

} // namespace MtConf
