#include "RangeCheck_p.h"

#include <MaltoConfiguration/manage/ConfItem.h>

#include <OrvUtils/OrvScreenManager.h>

#include <QCoreApplication>

#include <cmath>

namespace MtConf {

QString numberText(const QLocale &locale, double number)
{
    const char format = std::abs(number) < 1e16 ? 'f' : 'g';
    return locale.toString(number, format, QLocale::FloatingPointShortest);
}

RangeCheck::RangeCheck(const ConfItem &item, double lowest, double highest)
    : mLowest(lowest), mHighest(highest)
{
    if (!item.properties.contains(QStringLiteral("Malto.RangeRule")))
        return;
    mLowest = qMax(lowest, item.properties.value(QStringLiteral("MinValue"), lowest).toDouble());
    mHighest = qMin(highest, item.properties.value(QStringLiteral("MaxValue"), highest).toDouble());
}

QString RangeCheck::message(const QLocale &locale, const QString &suffix) const
{
    return QCoreApplication::translate("MtConf::ConfigItemWidget", "Enter a number from %1 to %2")
        .arg(numberText(locale, mLowest), numberText(locale, mHighest) + suffix);
}

int spinBoxWidth(const QWidget *editor, const QStringList &numbers, const QString &suffix)
{
    constexpr int pointsPerDigit = 12;
    constexpr int pointsPerLetter = 8;
    constexpr int pointsBeside = 60;
    int digits = 0;
    for (const QString &number : numbers)
        digits = qMax(digits, static_cast<int>(number.size()));
    const int points = digits * pointsPerDigit + static_cast<int>(suffix.size()) * pointsPerLetter
                       + pointsBeside;
    const double dpi = OrvScreenManager::instance()->widgetScreen(editor->window()).dpi;
    return static_cast<int>(points * dpi / 72);
}

} // namespace MtConf
