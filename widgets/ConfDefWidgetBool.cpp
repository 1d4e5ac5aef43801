#include <MaltoConfiguration/widgets/ConfDefWidgetBool.h>

#include "Captions_p.h"

#include <QHBoxLayout>

namespace MtConf {

ConfDefWidgetBool::ConfDefWidgetBool(ConfItem *item, QWidget *parent)
    : ConfigItemWidget(item, parent), mCheckBox(new CaptionCheckBox(translatedText(), this))
{
    mLabel = mCheckBox;
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(mCheckBox);
    connect(mCheckBox, &QAbstractButton::clicked, this, &ConfDefWidgetBool::onCheck);
    loadConf();
}

ConfigItemWidget *ConfDefWidgetBool::CreatConfWidget(ConfItem *item, QWidget *parent)
{
    return create<ConfDefWidgetBool>(item, parent);
}

void ConfDefWidgetBool::retranslateUi()
{
    mCheckBox->setText(translatedText());
}

void ConfDefWidgetBool::loadConf()
{
    mCheckBox->setChecked(readValue<bool>());
    refreshLabelState();
}

void ConfDefWidgetBool::onCheck(bool checked)
{
    if (writeValue(checked))
        refreshLabelState();
}

} // namespace MtConf
