#pragma once

#include "PageSpinBox_p.h"

#include <QAbstractSpinBox>
#include <QLocale>
#include <QString>
#include <QStringList>

namespace MtConf {

class ConfItem;

/// Returns `number` as users write it, without an exponent if it has at most sixteen digits.
QString numberText(const QLocale &locale, double number);

/// The numbers that an editor accepts.
class RangeCheck
{
public:
    /// The range of `item` if it has the property "Malto.RangeRule", within the limits `lowest` and
    /// `highest`; otherwise these limits.
    RangeCheck(const ConfItem &item, double lowest, double highest);

    double lowest() const { return mLowest; }
    double highest() const { return mHighest; }
    bool contains(double number) const { return number >= mLowest && number <= mHighest; }
    /// Returns the number of the range that is nearest to `number`.
    double nearest(double number) const { return qMax(mLowest, qMin(number, mHighest)); }
    /// Returns a sentence that says which numbers are accepted.
    QString message(const QLocale &locale, const QString &suffix) const;

private:
    double mLowest;
    double mHighest;
};

/// Returns the width in pixels of a spin box that is a child of `editor` and shows one of `numbers`
/// with `suffix`.
int spinBoxWidth(const QWidget *editor, const QStringList &numbers, const QString &suffix);

/// A spin box in which a number outside of the range can be typed. Its own range is wider; the
/// arrows stop at the limits of the RangeCheck.
template<class Box> class RangeSpinBox : public PageSpinBox<Box>
{
public:
    RangeSpinBox(const RangeCheck &range, QWidget *parent) : PageSpinBox<Box>(parent), mRange(range)
    {
    }

    const RangeCheck &range() const { return mRange; }

    void stepBy(int steps) override
    {
        const double next = double(this->value()) + steps * double(this->singleStep());
        this->setValue(static_cast<decltype(this->value())>(mRange.nearest(next)));
        this->selectAll();
    }

protected:
    QAbstractSpinBox::StepEnabled stepEnabled() const override
    {
        QAbstractSpinBox::StepEnabled enabled = Box::stepEnabled();
        if (this->value() <= mRange.lowest())
            enabled &= ~QAbstractSpinBox::StepEnabled(QAbstractSpinBox::StepDownEnabled);
        if (this->value() >= mRange.highest())
            enabled &= ~QAbstractSpinBox::StepEnabled(QAbstractSpinBox::StepUpEnabled);
        return enabled;
    }

private:
    const RangeCheck mRange;
};

} // namespace MtConf
