#pragma once

#include "RangeCheck_p.h"

#include <QDoubleSpinBox>
#include <QJsonValue>

namespace MtConf {

/// A spin box for the JSON of a number. A number that it cannot show, such as "nan", is its special
/// text, which typing replaces.
class NumberSpinBox : public RangeSpinBox<QDoubleSpinBox>
{
public:
    /// The greatest number that can be entered. All whole numbers up to it are exact.
    static constexpr double sLargest = 9007199254740991.0;

    NumberSpinBox(const RangeCheck &range, QWidget *parent);

    /// Shows `json`, a number or the text of one. Emits what QDoubleSpinBox does.
    void showJson(const QJsonValue &json);

    void stepBy(int steps) override;
    QValidator::State validate(QString &text, int &position) const override;

protected:
    QAbstractSpinBox::StepEnabled stepEnabled() const override;

private:
    bool showsSpecialText() const { return value() <= minimum(); }
};

/// Returns the number of decimals that `number` needs, at most ten.
int decimalsOf(double number);

} // namespace MtConf
