#include <MaltoConfiguration/window/replaceSCAWithScaledValue.h>

#include <QtMath>

#include <cmath>

namespace {

constexpr QLatin1String sMacro("SCA(", 4);

/// Where the digits that begin at `start` end.
QString::size_type digitsEnd(const QString &text, QString::size_type start)
{
    auto end = start;
    while (end < text.size() && text.at(end).isDigit())
        ++end;
    return end;
}

/// The nearest integer, half rounded up; what no integer holds becomes zero.
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
        // Counted by the macro, not by what replaced it: sheets in use rely on a second macro close
        // behind the first one staying as it is.
        from = start + length;
    }
}
