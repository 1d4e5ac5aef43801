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
    // The name of the button, for screen readers, is that of the setting.
    mButton->setAccessibleDescription(mButton->text());
    refreshLabelState();
}

void ConfDefWidgetQFont::onFontClicked()
{
    // The dialog knows points only: it is shown the pixels as if they were points, and back.
    QFont font = readValue<QFont>();
    if (font.pixelSize() > 0)
        font.setPointSizeF(font.pixelSize());
    const QPointer<ConfDefWidgetQFont> self(this);
    QFont chosen = getFontrByDialog(font, this, QStringLiteral("Select font"));
    // The page may have gone while the dialog was open. A font that was not touched stays as it is
    // even if its size is in points.
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
