#include <MaltoConfiguration/widgets/ConfDefWidgetInt32.h>

#include <MaltoConfiguration/widgets/QSpinBoxDisableWheel.h>

#include <OrvUtils/OrvScreenManager.h>

#include <QHBoxLayout>

namespace MtConf {

ConfDefWidgetInt32::ConfDefWidgetInt32(ConfItem *item, QWidget *parent)
    : ConfigItemWidget(item, parent), mSpinBox(new QSpinBoxDisableWheel(this))
{
    mSpinBox->setFocusPolicy(Qt::StrongFocus);
    applyRange();
    mSpinBox->setFixedWidth(widthOfMaximum());
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mSpinBox);
    layout->setSpacing(0);
    layout->setAlignment(Qt::AlignLeft);
    connect(mSpinBox, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &ConfDefWidgetInt32::onValueChanged);
    loadConf();
}

ConfigItemWidget *ConfDefWidgetInt32::CreatConfWidget(ConfItem *item, QWidget *parent)
{
    return create<ConfDefWidgetInt32>(item, parent);
}

void ConfDefWidgetInt32::applyRange()
{
    // Set the maximum first: a greater minimum then raises it instead of being lowered by it.
    const auto maximum = mItem->properties.constFind(QStringLiteral("MaxValue"));
    if (maximum != mItem->properties.constEnd())
        mSpinBox->setMaximum(maximum->toInt());
    const auto minimum = mItem->properties.constFind(QStringLiteral("MinValue"));
    if (minimum != mItem->properties.constEnd())
        mSpinBox->setMinimum(minimum->toInt());
}

int ConfDefWidgetInt32::widthOfMaximum() const
{
    constexpr int pointsPerDigit = 12;
    constexpr int pointsBeside = 60;
    const auto digits = static_cast<int>(QString::number(mSpinBox->maximum()).size());
    const double dpi = OrvScreenManager::instance()->widgetScreen(window()).dpi;
    return static_cast<int>((digits * pointsPerDigit + pointsBeside) * dpi / 72);
}

void ConfDefWidgetInt32::loadConf()
{
    // onValueChanged refreshes the caption when it writes a value.
    mSpinBox->setValue(readValue<int>());
}

void ConfDefWidgetInt32::onValueChanged(int value)
{
    if (writeValue(value))
        refreshLabelState();
}

} // namespace MtConf
