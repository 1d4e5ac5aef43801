#include <MaltoConfiguration/widgets/ConfDefWidgetInt32.h>

#include "RangeCheck_p.h"

#include <MaltoConfiguration/widgets/QSpinBoxDisableWheel.h>

#include <QHBoxLayout>
#include <QSignalBlocker>

#include <limits>

namespace MtConf {

namespace {

RangeCheck rangeOf(const ConfItem &item)
{
    using Limits = std::numeric_limits<int>;
    return RangeCheck(item, Limits::min(), Limits::max());
}

} // namespace

ConfDefWidgetInt32::ConfDefWidgetInt32(ConfItem *item, QWidget *parent)
    : ConfigItemWidget(item, parent)
{
    if (checksRange())
        mSpinBox = new RangeSpinBox<QSpinBoxDisableWheel>(rangeOf(*item), this);
    else
        mSpinBox = new QSpinBoxDisableWheel(this);
    mSpinBox->setFocusPolicy(Qt::StrongFocus);
    applyRange();
    applySuffix();
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mSpinBox);
    layout->setSpacing(0);
    layout->setAlignment(Qt::AlignLeft);
    connect(mSpinBox, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &ConfDefWidgetInt32::onValueChanged);
    connect(mSpinBox, &QSpinBox::editingFinished, this, &ConfDefWidgetInt32::onEditingFinished);
    loadConf();
}

ConfigItemWidget *ConfDefWidgetInt32::CreatConfWidget(ConfItem *item, QWidget *parent)
{
    return create<ConfDefWidgetInt32>(item, parent);
}

bool ConfDefWidgetInt32::checksRange() const
{
    return mItem->properties.contains(QStringLiteral("Malto.RangeRule"));
}

void ConfDefWidgetInt32::applyRange()
{
    const int step = mItem->properties.value(QStringLiteral("Malto.Step"), 1).toInt();
    mSpinBox->setSingleStep(qMax(step, 1));
    if (checksRange()) {
        mSpinBox->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
        return;
    }
    // Set the maximum first: a greater minimum then raises it instead of being lowered by it.
    const auto maximum = mItem->properties.constFind(QStringLiteral("MaxValue"));
    if (maximum != mItem->properties.constEnd())
        mSpinBox->setMaximum(maximum->toInt());
    const auto minimum = mItem->properties.constFind(QStringLiteral("MinValue"));
    if (minimum != mItem->properties.constEnd())
        mSpinBox->setMinimum(minimum->toInt());
}

void ConfDefWidgetInt32::applySuffix()
{
    const QString suffix = mItem->suffixText();
    QStringList numbers{QString::number(mSpinBox->maximum())};
    if (checksRange()) {
        const RangeCheck range = rangeOf(*mItem);
        numbers = QStringList{QString::number(range.lowest(), 'f', 0),
                              QString::number(range.highest(), 'f', 0),
                              QString::number(readValue<int>())};
    }
    mSpinBox->setSuffix(suffix);
    mSpinBox->setFixedWidth(spinBoxWidth(this, numbers, suffix));
}

void ConfDefWidgetInt32::retranslateUi()
{
    ConfigItemWidget::retranslateUi();
    applySuffix();
    if (checksRange())
        loadConf(); // removes a message in the former language
}

void ConfDefWidgetInt32::loadConf()
{
    if (!checksRange()) {
        // onValueChanged refreshes the caption when it writes a value.
        mSpinBox->setValue(readValue<int>());
        return;
    }
    const QSignalBlocker blocker(mSpinBox);
    mSpinBox->setValue(readValue<int>());
    showMessage(QString());
    refreshLabelState();
}

void ConfDefWidgetInt32::onValueChanged(int value)
{
    const RangeCheck range = rangeOf(*mItem);
    if (checksRange() && !range.contains(value)) {
        showMessage(range.message(locale(), mSpinBox->suffix()));
        return;
    }
    if (!writeValue(value))
        return;
    showMessage(QString());
    refreshLabelState();
}

void ConfDefWidgetInt32::onEditingFinished()
{
    // Return leaves a number that is not accepted in the box, with the message.
    if ((checksRange() || mItem->validator) && !mSpinBox->hasFocus())
        loadConf();
}

} // namespace MtConf
