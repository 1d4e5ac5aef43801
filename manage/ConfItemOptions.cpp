#include <MaltoConfiguration/manage/ConfItem.h>

#include <QDateTime>
#include <QObject>

#include <algorithm>
#include <cmath>

// The options of an item. Items are copied, so no function that is stored here refers to `this`.

namespace MtConf {

namespace {

QString translated(const QString &text)
{
    // The context in which hosts mark their texts for translation.
    return text.isEmpty() ? QString() : QObject::tr(text.toUtf8().constData());
}

/// Returns the JSON of a limit of whole numbers.
QJsonValue wholeJson(double number)
{
    constexpr double sPastLast = 18446744073709551616.0; // 2^64
    if (number < 0)
        return jsonOfInteger(static_cast<qint64>(std::max(number, -sPastLast / 2)));
    return number < sPastLast ? jsonOfInteger(static_cast<quint64>(number)) : QJsonValue(number);
}

ConfConstraint numbersBetween(double lowest, double highest, bool clamps, bool isWhole)
{
    return [=](const QJsonValue &value) -> std::optional<QJsonValue> {
        bool isNumber = value.isDouble();
        const double number = isNumber ? value.toDouble() : value.toString().toDouble(&isNumber);
        if (!isNumber || std::isnan(number))
            return std::nullopt;
        if (number >= lowest && number <= highest)
            return value;
        if (!clamps)
            return std::nullopt;
        const double nearest = std::clamp(number, lowest, highest);
        return isWhole ? wholeJson(nearest) : QJsonValue(nearest);
    };
}

ConfConstraint timesBetween(const QDateTime &earliest, const QDateTime &latest, bool clamps)
{
    return [=](const QJsonValue &value) -> std::optional<QJsonValue> {
        const auto time = fromJsonForm<QDateTime>(value);
        if (!time)
            return std::nullopt;
        const bool isEarly = earliest.isValid() && *time < earliest;
        const bool isLate = latest.isValid() && *time > latest;
        if (!time->isValid() || (!isEarly && !isLate))
            return value;
        return clamps ? std::optional<QJsonValue>(toJsonForm(isEarly ? earliest : latest))
                      : std::nullopt;
    };
}

} // namespace

QString ConfChoice::text() const
{
    return isTranslated ? translated(label) : label;
}

ConfItem *ConfItem::setRange(double lowest, double highest, RangeRule rule)
{
    if (isWholeNumber) {
        lowest = std::ceil(lowest);
        highest = std::floor(highest);
    }
    setLimits(lowest, highest, rule);
    const bool isEnforced = rule != EditorRange && lowest <= highest;
    ConfStorage::instance()->setConfConstraint(
        getFullName(), isEnforced ? numbersBetween(lowest, highest, rule == Clamped, isWholeNumber)
                                  : ConfConstraint());
    return this;
}

ConfItem *ConfItem::setRange(const QDateTime &earliest, const QDateTime &latest, RangeRule rule)
{
    setLimits(earliest, latest, rule);
    const bool isEmpty = earliest.isValid() && latest.isValid() && latest < earliest;
    ConfStorage::instance()->setConfConstraint(getFullName(),
                                               rule != EditorRange && !isEmpty
                                                   ? timesBetween(earliest, latest, rule == Clamped)
                                                   : ConfConstraint());
    return this;
}

void ConfItem::setLimits(const QVariant &lowest, const QVariant &highest, RangeRule rule)
{
    properties[QStringLiteral("MinValue")] = lowest;
    properties[QStringLiteral("MaxValue")] = highest;
    properties[QStringLiteral("Malto.RangeRule")] = rule;
}

ConfItem *ConfItem::setStep(double step)
{
    properties[QStringLiteral("Malto.Step")] = step;
    return this;
}

ConfItem *ConfItem::setDecimals(int decimals)
{
    properties[QStringLiteral("Malto.Decimals")] = decimals;
    return this;
}

ConfItem *ConfItem::setSuffix(const char *suffix)
{
    properties[QStringLiteral("Malto.Suffix")] = QString::fromUtf8(suffix);
    return this;
}

ConfItem *ConfItem::setPlaceholder(const char *text)
{
    properties[QStringLiteral("Malto.Placeholder")] = QString::fromUtf8(text);
    return this;
}

ConfItem *ConfItem::setHelp(const char *text)
{
    properties[QStringLiteral("Malto.Help")] = QString::fromUtf8(text);
    return this;
}

ConfItem *ConfItem::setExpert()
{
    properties[QStringLiteral("Malto.Expert")] = true;
    return this;
}

ConfItem *ConfItem::setMultiSelect()
{
    properties[QStringLiteral("MultiSelect")] = true;
    return this;
}

ConfItem *ConfItem::setValidator(std::function<QString(const QJsonValue &)> check)
{
    validator = std::move(check);
    return this;
}

ConfItem *ConfItem::setSecret()
{
    const auto meta = ConfStorage::instance()->mConfMetas.find(getFullName());
    if (meta != ConfStorage::instance()->mConfMetas.end())
        meta->flags |= ConfStorage::FlagSecret | ConfStorage::FlagLocalOnly;
    return this;
}

double ConfItem::secondsPerUnit() const
{
    return properties.value(QStringLiteral("Malto.SecondsPerUnit"), 1.0).toDouble();
}

QString ConfItem::helpText() const
{
    return translated(properties.value(QStringLiteral("Malto.Help")).toString());
}

QString ConfItem::suffixText() const
{
    return translated(properties.value(QStringLiteral("Malto.Suffix")).toString());
}

QString ConfItem::placeholderText() const
{
    return translated(properties.value(QStringLiteral("Malto.Placeholder")).toString());
}

} // namespace MtConf
