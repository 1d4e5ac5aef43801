#include <MaltoConfiguration/widgets/ConfDefWidgetDouble.h>

#include "NumberSpinBox_p.h"

#include <QHBoxLayout>
#include <QSignalBlocker>

namespace MtConf {

namespace {

constexpr int sDefaultDecimals = 2;
constexpr int sDefaultDigits = 6; // of the width without a range
constexpr int sMaxDigits = 20;

RangeCheck rangeOf(const ConfItem &item)
{
    return RangeCheck(item, -NumberSpinBox::sLargest, NumberSpinBox::sLargest);
}

} // namespace

ConfDefWidgetDouble::ConfDefWidgetDouble(ConfItem *item, QWidget *parent)
    : ConfigItemWidget(item, parent), mSpinBox(new NumberSpinBox(rangeOf(*item), this))
{
    setHasMessage();
    const double step = mItem->properties.value(QStringLiteral("Malto.Step"), 1.0).toDouble();
    mSpinBox->setSingleStep(step > 0 ? step : 1.0);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mSpinBox);
    layout->setSpacing(0);
    layout->setAlignment(Qt::AlignLeft);
    connect(mSpinBox, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            &ConfDefWidgetDouble::onValueChanged);
    connect(mSpinBox, &QDoubleSpinBox::editingFinished, this,
            &ConfDefWidgetDouble::onEditingFinished);
    loadConf();
    applySuffix();
}

ConfigItemWidget *ConfDefWidgetDouble::CreatConfWidget(ConfItem *item, QWidget *parent)
{
    return create<ConfDefWidgetDouble>(item, parent);
}

int ConfDefWidgetDouble::decimals() const
{
    if (mItem->isWholeNumber)
        return 0;
    const auto own = mItem->properties.constFind(QStringLiteral("Malto.Decimals"));
    if (own != mItem->properties.constEnd())
        return qMax(own->toInt(), 0);
    int needed = qMax(sDefaultDecimals, decimalsOf(mSpinBox->singleStep()));
    for (const double shown :
         {readJson().toDouble(), mSpinBox->range().lowest(), mSpinBox->range().highest()}) {
        if (shown >= -NumberSpinBox::sLargest && shown <= NumberSpinBox::sLargest)
            needed = qMax(needed, decimalsOf(shown));
    }
    return needed;
}

void ConfDefWidgetDouble::applySuffix()
{
    const QString suffix = mItem->suffixText();
    const auto text = [this](double number) {
        return QString::number(number, 'f', mSpinBox->decimals());
    };
    QStringList numbers{QString(sDefaultDigits, QLatin1Char('0')), mSpinBox->cleanText()};
    if (mItem->properties.contains(QStringLiteral("Malto.RangeRule")))
        numbers = QStringList{text(mSpinBox->range().lowest()), text(mSpinBox->range().highest()),
                              mSpinBox->cleanText()};
    for (QString &number : numbers)
        number.truncate(sMaxDigits);
    mSpinBox->setSuffix(suffix);
    mSpinBox->setFixedWidth(spinBoxWidth(this, numbers, suffix));
}

void ConfDefWidgetDouble::retranslateUi()
{
    ConfigItemWidget::retranslateUi();
    loadConf(); // removes a message in the former language
    applySuffix();
}

void ConfDefWidgetDouble::loadConf()
{
    const QSignalBlocker blocker(mSpinBox);
    mSpinBox->setDecimals(decimals());
    mSpinBox->showJson(readJson());
    mShownValue = mSpinBox->value();
    showMessage(QString());
    refreshLabelState();
}

void ConfDefWidgetDouble::onValueChanged(double value)
{
    // Return emits the number that the box has shown, which may be rounded, once more.
    if (value == mShownValue)
        return;
    mShownValue = value;
    if (!mSpinBox->range().contains(value)) {
        showMessage(mSpinBox->range().message(locale(), mSpinBox->suffix()));
        return;
    }
    if (!writeJson(value))
        return;
    showMessage(QString());
    refreshLabelState();
}

void ConfDefWidgetDouble::onEditingFinished()
{
    // Return leaves a number that is not accepted in the box, with the message.
    if (!mSpinBox->hasFocus())
        loadConf();
}

} // namespace MtConf
