#include "QssMacros_p.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

// Longer than any name or number. The limit prevents nested arguments of a malicious sheet from
// being read repeatedly.
constexpr int sMaxArgumentLength = 256;
constexpr int sMaxValueLength = 4096;
constexpr int sMaxValueDepth = 64;
constexpr QLatin1String sScale("sca(", 4);
constexpr QLatin1String sVariable("var(", 4);

bool isWordPart(QChar c)
{
    return c.isLetterOrNumber() || c == QLatin1Char('_');
}

bool isAt(const QString &text, QString::size_type position, QLatin1String expected)
{
    return QStringView(text).mid(position).startsWith(expected);
}

bool beginsWord(const QString &text, QString::size_type position)
{
    if (position == 0)
        return true;
    const QChar before = text.at(position - 1);
    if (isWordPart(before))
        return false;
    if (before != QLatin1Char('-') || position == 1)
        return true;
    // A single hyphen before a macro is the sign of a length; any other is part of a word.
    const QChar beforeHyphen = text.at(position - 2);
    return !isWordPart(beforeHyphen) && beforeHyphen != QLatin1Char('-');
}

bool isDecimal(const QString &text)
{
    int digits = 0;
    int points = 0;
    for (int i = 0; i < text.size(); ++i) {
        const char16_t c = text.at(i).unicode();
        if (c >= u'0' && c <= u'9')
            ++digits;
        else if (c == u'.')
            ++points;
        else if (i != 0 || (c != u'-' && c != u'+'))
            return false;
    }
    return digits > 0 && points <= 1;
}

bool endsMacros(QChar c)
{
    return c == QLatin1Char(';') || c == QLatin1Char('{') || c == QLatin1Char('}')
           || c == QLatin1Char('"') || c == QLatin1Char('\'');
}

// Returns the end of the comment that starts at `start`: the index after its last character.
QString::size_type commentEnd(const QString &text, QString::size_type start)
{
    const auto end = text.indexOf(QLatin1String("*/"), start + 2);
    return end < 0 ? text.size() : end + 2;
}

// Returns the open quote after `c`, if `quote` is the open quote before it; null for none.
QChar quoteAfter(QChar quote, QChar c)
{
    if (c == QLatin1Char('\n') || c == quote)
        return QChar();
    const bool opens = quote.isNull() && (c == QLatin1Char('"') || c == QLatin1Char('\''));
    return opens ? c : quote;
}

} // namespace

QssMacros::QssMacros(const QMap<QString, QString> &values, double scale, const Report &report)
    : mValues(values), mScale(std::isfinite(scale) && scale > 0 ? scale : 1.0), mReport(report)
{
}

QString QssMacros::expand(const QString &text)
{
    QString out;
    out.reserve(text.size());
    QVector<Open> open;
    QChar quote;
    for (QString::size_type i = 0; i < text.size();) {
        const QChar c = text.at(i);
        QString::size_type length = 1;
        if (quote.isNull() && c == QLatin1Char('/') && isAt(text, i, QLatin1String("/*"))) {
            length = commentEnd(text, i) - i;
        } else if (c == QLatin1Char('\\')) {
            length = std::min(length + 1, text.size() - i);
        } else if ((c == QLatin1Char('s') || c == QLatin1Char('v')) && beginsWord(text, i)) {
            const bool scales = isAt(text, i, sScale);
            if (scales || isAt(text, i, sVariable)) {
                length = sScale.size();
                open.append(
                    {scales ? Kind::Scale : Kind::Variable, out.size(), out.size() + length});
            }
        } else if (c == QLatin1Char('(') && !open.isEmpty()) {
            open.append({Kind::PlainParenthesis, out.size(), out.size() + 1});
        } else if (c == QLatin1Char(')') && !open.isEmpty()) {
            if (expandClosed(open.takeLast(), &out))
                length = 0;
        } else {
            if (endsMacros(c))
                open.clear();
            quote = quoteAfter(quote, c);
        }
        out.append(text.constData() + i, length);
        i += std::max(length, QString::size_type(1));
    }
    return out;
}

// Replaces the macro at the end of `out`, which lacks its closing parenthesis, by its expansion.
// Returns false and does not change `out` if it is not expanded.
bool QssMacros::expandClosed(const Open &open, QString *out)
{
    if (open.kind == Kind::PlainParenthesis || out->size() - open.argument > sMaxArgumentLength)
        return false;
    const QString argument = out->mid(open.argument).trimmed();
    bool ok = false;
    const QString text = open.kind == Kind::Scale ? scaled(argument, &ok) : resolved(argument, &ok);
    if (ok)
        out->replace(open.start, out->size() - open.start, text);
    return ok;
}

QString QssMacros::scaled(const QString &argument, bool *ok) const
{
    *ok = isDecimal(argument);
    if (!*ok) {
        // Empty after an unknown name, which was reported already.
        if (!argument.isEmpty())
            mReport(QStringLiteral("not a number: ") + argument);
        return QString();
    }
    const double rounded = std::floor(argument.toDouble() * mScale + 0.5);
    const double most = std::numeric_limits<int>::max();
    return QString::number(static_cast<int>(qBound(-most, rounded, most)));
}

QString QssMacros::resolved(const QString &name, bool *ok)
{
    *ok = true;
    const auto known = mResolved.constFind(name);
    if (known != mResolved.constEnd())
        return *known;
    const auto value = mValues.constFind(name);
    if (value == mValues.constEnd()) {
        mReport(QStringLiteral("unknown name: ") + name);
        return QString();
    }
    *ok = false;
    if (mInProgress.contains(name)) {
        mReport(QStringLiteral("name refers to itself: ") + name);
        return QString();
    }
    QString text;
    if (mInProgress.size() < sMaxValueDepth && value->size() <= sMaxValueLength) {
        mInProgress.insert(name);
        text = expand(*value);
        mInProgress.remove(name);
        *ok = text.size() <= sMaxValueLength;
    }
    if (!*ok) {
        mReport(QStringLiteral("value too long or too deep: ") + name);
        return QString();
    }
    mResolved.insert(name, text);
    return text;
}
