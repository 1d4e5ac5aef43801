#include <MaltoConfiguration/window/replaceSCAWithScaledValue.h>

#include <QtMath>

#include <cmath>

namespace {

constexpr QLatin1String sMacro("SCA(", 4);

/// Returns the position behind the digits that begin at `start`.
QString::size_type digitsEnd(const QString &text, QString::size_type start)
{
    auto end = start;
    while (end < text.size() && text.at(end).isDigit())
        ++end;
    return end;
}

/// Returns the nearest integer, half rounded up, or 0 if `value` is out of range.
int rounded(float value)
{
    return std::fabs(value) < 2147483000.f ? qRound(value) : 0;
}

} // namespace

QString replaceSCAWithScaledValue(const QString &text, float scale)
{
    QString result = text;
    QString::size_type from = 0;
    for (;;) {
        const auto start = result.indexOf(sMacro, from);
        if (start < 0)
            return result;
        const auto number = start + sMacro.size();
        const auto numberEnd = digitsEnd(result, number);
        from = numberEnd;
        if (numberEnd == number || result.mid(numberEnd, 1) != QLatin1String(")"))
            continue;
        const auto length = numberEnd + 1 - start;
        const int factor = result.mid(number, numberEnd - number).toInt();
        const int value = rounded(static_cast<float>(factor) * scale);
        result.replace(start, length, QString::number(value));
        // By the length of the macro, not of the number: existing texts rely on it that a macro
        // close behind stays unchanged.
        from = start + length;
    }
}
