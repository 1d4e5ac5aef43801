#include <MaltoConfiguration/widgets/ConfDefWidgetQColor.h>

#include <OrvUtils/ColorSelectButton.h>

#include <QHBoxLayout>

namespace MtConf {

ConfDefWidgetQColor::ConfDefWidgetQColor(ConfItem *item, QWidget *parent)
    : ConfigItemWidget(item, parent), mButton(new ColorSelectButton(this))
{
    mButton->setProperty("class", QStringLiteral("ColorSelectButton"));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setAlignment(Qt::AlignLeft);
    layout->addWidget(mButton);
    connect(mButton, &ColorSelectButton::sigColorChanged, this, &ConfDefWidgetQColor::setColor);
    loadConf();
}

ConfigItemWidget *ConfDefWidgetQColor::CreatConfWidget(ConfItem *item, QWidget *parent)
{
    return create<ConfDefWidgetQColor>(item, parent);
}

void ConfDefWidgetQColor::loadConf()
{
    mButton->setColor(readValue<QColor>());
    refreshLabelState();
}

void ConfDefWidgetQColor::setColor(QColor color)
{
    if (writeValue(color))
        loadConf();
}

} // namespace MtConf
