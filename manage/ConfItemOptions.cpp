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

ConfConstraint numbersBetween(double lowest, double highest, bool clamps)
{
    return [=](const QJsonValue &value) -> std::optional<QJsonValue> {
        bool isNumber = value.isDouble();
        const double number = isNumber ? value.toDouble() : value.toString().toDouble(&isNumber);
        if (!isNumber || std::isnan(number))
            return std::nullopt;
        if (number >= lowest && number <= highest)
            return value;
        return clamps ? std::optional<QJsonValue>(std::clamp(number, lowest, highest))
                      : std::nullopt;
    };
}

ConfConstraint timesBetween(const QDateTime &earliest, const QDateTime &latest, bool clamps)
{
    return [=](const QJsonValue &value) -> std::optional<QJsonValue> {
        const auto time = fromJsonForm<QDateTime>(value);
        if (!time || !time->isValid())
            return std::nullopt;
        if (*time >= earliest && *time <= latest)
            return value;
        return clamps ? std::optional<QJsonValue>(toJsonForm(std::clamp(*time, earliest, latest)))
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
    // The nearest value in the range is a whole number, too.
    if (valueType == ConfValue::TyInt32 || properties.value(QStringLiteral("IsWhole")).toBool()) {
        lowest = std::ceil(lowest);
        highest = std::floor(highest);
    }
    properties[QStringLiteral("MinValue")] = lowest;
    properties[QStringLiteral("MaxValue")] = highest;
    properties[QStringLiteral("RangeRule")] = rule;
    ConfStorage::instance()->setConfConstraint(
        getFullName(),
        rule == EditorRange ? ConfConstraint() : numbersBetween(lowest, highest, rule == Clamped));
    return this;
}

ConfItem *ConfItem::setRange(const QDateTime &earliest, const QDateTime &latest, RangeRule rule)
{
    properties[QStringLiteral("MinValue")] = earliest;
    properties[QStringLiteral("MaxValue")] = latest;
    properties[QStringLiteral("RangeRule")] = rule;
    ConfStorage::instance()->setConfConstraint(
        getFullName(),
        rule == EditorRange ? ConfConstraint() : timesBetween(earliest, latest, rule == Clamped));
    return this;
}

ConfItem *ConfItem::setStep(double step)
{
    properties[QStringLiteral("Step")] = step;
    return this;
}

ConfItem *ConfItem::setDecimals(int decimals)
{
    properties[QStringLiteral("Decimals")] = decimals;
    return this;
}

ConfItem *ConfItem::setSuffix(const char *suffix)
{
    properties[QStringLiteral("Suffix")] = QString::fromUtf8(suffix);
    return this;
}

ConfItem *ConfItem::setPlaceholder(const char *text)
{
    properties[QStringLiteral("Placeholder")] = QString::fromUtf8(text);
    return this;
}

ConfItem *ConfItem::setHelp(const char *text)
{
    properties[QStringLiteral("Help")] = QString::fromUtf8(text);
    return this;
}

ConfItem *ConfItem::setExpert()
{
    properties[QStringLiteral("Expert")] = true;
    return this;
}

ConfItem *ConfItem::setMultiSelect()
{
    properties[QStringLiteral("MultiSelect")] = true;
    return this;
}

ConfItem *ConfItem::dependsOn(const ConfItem *other, const QJsonValue &value)
{
    dependencies[other->getFullName()] = value;
    return this;
}

ConfItem *ConfItem::setValidator(std::function<QString(const QJsonValue &)> check)
{
    validator = std::move(check);
    return this;
}

ConfItem *ConfItem::setSecret()
{
    ConfStorage::instance()->mConfMetas[getFullName()].flags |= ConfStorage::FlagSecret
                                                                | ConfStorage::FlagLocalOnly;
    return this;
}

double ConfItem::secondsPerUnit() const
{
    return properties.value(QStringLiteral("SecondsPerUnit"), 1.0).toDouble();
}

QString ConfItem::helpText() const
{
    return translated(properties.value(QStringLiteral("Help")).toString());
}

QString ConfItem::suffixText() const
{
    return translated(properties.value(QStringLiteral("Suffix")).toString());
}

QString ConfItem::placeholderText() const
{
    return translated(properties.value(QStringLiteral("Placeholder")).toString());
}

} // namespace MtConf
