#include <MaltoConfiguration/window/replaceSCAWithScaledValue.h>

#include <QRegExp>
#include <QtMath>

#include <cmath>

namespace {

/// The nearest integer, half rounded up; what no integer holds becomes zero.
int rounded(float value)
{
    return std::fabs(value) < 2147483000.f ? qRound(value) : 0;
}

} // namespace

QString replaceSCAWithScaledValue(const QString &text, float scale)
{
    QString result = text;
    QRegExp macro(QStringLiteral("SCA\\((\\d+)\\)"));
    int from = 0;
    for (;;) {
        const int start = macro.indexIn(result, from);
        if (start < 0)
            return result;
        const int length = macro.matchedLength();
        const int value = rounded(static_cast<float>(macro.cap(1).toInt()) * scale);
        result.replace(start, length, QString::number(value));
        // Counted by the macro, not by what replaced it: sheets in use rely on a second macro close
        // behind the first one staying as it is.
        from = start + length;
    }
}
