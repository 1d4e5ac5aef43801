#include <MaltoConfiguration/widgets/ConfDefWidgetQFont.h>

#include <OrvUtils/getFontrByDialog.h>

#include <QHBoxLayout>
#include <QPushButton>

namespace MtConf {

ConfDefWidgetQFont::ConfDefWidgetQFont(ConfItem *item, QWidget *parent)
    : ConfigItemWidget(item, parent), mButton(new QPushButton(this))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setAlignment(Qt::AlignLeft);
    layout->addWidget(mButton);
    connect(mButton, &QAbstractButton::clicked, this, &ConfDefWidgetQFont::onFontClicked);
    loadConf();
}

ConfigItemWidget *ConfDefWidgetQFont::CreatConfWidget(ConfItem *item, QWidget *parent)
{
    return create<ConfDefWidgetQFont>(item, parent);
}

void ConfDefWidgetQFont::loadConf()
{
    const QFont font = readValue<QFont>();
    mButton->setText(QStringLiteral("%1, %2").arg(font.family()).arg(font.pixelSize()));
    // The accessible name of the button is the label of the setting.
    mButton->setAccessibleDescription(mButton->text());
    refreshLabelState();
}

void ConfDefWidgetQFont::onFontClicked()
{
    // The dialog supports points only, so pixels are passed as points, in both directions.
    QFont font = readValue<QFont>();
    if (font.pixelSize() > 0)
        font.setPointSizeF(font.pixelSize());
    const QPointer<ConfDefWidgetQFont> self(this);
    QFont chosen = getFontrByDialog(font, this, QStringLiteral("Select font"));
    // The page may have been deleted while the dialog was open. An unchanged font is not converted,
    // so that a size in points is kept.
    if (!self || chosen == font)
        return;
    if (chosen.pointSizeF() >= 1)
        chosen.setPixelSize(static_cast<int>(chosen.pointSizeF()));
    setFont(chosen);
}

void ConfDefWidgetQFont::setFont(QFont font)
{
    if (writeValue(font))
        loadConf();
}

} // namespace MtConf
