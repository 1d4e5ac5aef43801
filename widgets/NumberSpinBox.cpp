#include "NumberSpinBox_p.h"

#include <cmath>

namespace MtConf {

namespace {

/// The limits of the box. The lower one means that it shows the special text.
constexpr double sLimit = 1e18;

constexpr int sMaxDecimals = 10;

} // namespace

NumberSpinBox::NumberSpinBox(const RangeCheck &range, QWidget *parent) : RangeSpinBox(range, parent)
{
    setRange(-sLimit, sLimit);
}

void NumberSpinBox::showJson(const QJsonValue &json)
{
    const double number = json.isString() ? json.toString().toDouble() : json.toDouble();
    if (std::abs(number) <= sLargest) { // false for "nan"
        setSpecialValueText(QString());
        setValue(number);
        return;
    }
    setSpecialValueText(json.isString() ? json.toString() : numberText(locale(), number));
    setValue(minimum());
}

void NumberSpinBox::stepBy(int steps)
{
    if (showsSpecialText())
        setValue(range().nearest(0));
    else
        RangeSpinBox::stepBy(steps);
}

QValidator::State NumberSpinBox::validate(QString &text, int &position) const
{
    const QString special = specialValueText();
    if (!showsSpecialText() || text == special)
        return RangeSpinBox::validate(text, position);
    if (text.size() < special.size()) { // part of it is being removed
        QString typed = text;
        if (RangeSpinBox::validate(typed, position) == QValidator::Invalid)
            typed.clear();
        text = typed;
    } else {
        text.remove(special);
    }
    position = qMin(position, static_cast<int>(text.size()));
    return RangeSpinBox::validate(text, position);
}

QAbstractSpinBox::StepEnabled NumberSpinBox::stepEnabled() const
{
    return showsSpecialText() ? StepUpEnabled | StepDownEnabled : RangeSpinBox::stepEnabled();
}

int decimalsOf(double number)
{
    int decimals = 0;
    while (decimals < sMaxDecimals && QString::number(number, 'f', decimals).toDouble() != number)
        ++decimals;
    return decimals;
}

} // namespace MtConf
