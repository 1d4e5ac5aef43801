#include "WatermarkEditor.h"

#include <MaltoConfiguration/widgets/QSpinBoxDisableWheel.h>

#include <QHBoxLayout>
#include <QLineEdit>
#include <QSignalBlocker>

WatermarkEditor::WatermarkEditor(MtConf::ConfItem *item, QWidget *parent)
    : ConfigItemWidget(item, parent), mText(new QLineEdit(this)),
      mOpacity(new QSpinBoxDisableWheel(this))
{
    mOpacity->setFocusPolicy(Qt::StrongFocus);
    mOpacity->setRange(5, 100);
    mOpacity->setSuffix(QStringLiteral(" %"));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mText, 1);
    layout->addWidget(mOpacity);
    retranslateUi();
    loadConf();
    connect(mText, &QLineEdit::textEdited, this, &WatermarkEditor::storeText);
    connect(mOpacity, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &WatermarkEditor::storeOpacity);
}

MtConf::ConfigItemWidget *WatermarkEditor::create(MtConf::ConfItem *item, QWidget *parent)
{
    return new WatermarkEditor(item, parent);
}

QString WatermarkEditor::opacityName()
{
    return QStringLiteral("Opacity");
}

QString WatermarkEditor::opacityKey() const
{
    const auto opacity = mItem->subConfs.constFind(opacityName());
    return opacity != mItem->subConfs.constEnd() ? opacity->getFullName() : QString();
}

void WatermarkEditor::loadConf()
{
    const QSignalBlocker blocker(mOpacity);
    mText->setText(readValue<QString>());
    mOpacity->setValue(ConfStorage::instance()->get<int>(opacityKey()));
    refreshLabelState();
}

void WatermarkEditor::retranslateUi()
{
    ConfigItemWidget::retranslateUi();
    mText->setPlaceholderText(tr("None if empty"));
    mOpacity->setToolTip(tr("Opacity"));
}

void WatermarkEditor::storeText(const QString &text)
{
    if (writeValue(text))
        refreshLabelState();
}

void WatermarkEditor::storeOpacity(int percent)
{
    // A callback of the setting may rebuild the page.
    const QPointer<WatermarkEditor> self(this);
    ConfStorage::instance()->set(opacityKey(), percent);
    if (self)
        refreshLabelState();
}
