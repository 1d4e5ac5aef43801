#include <MaltoConfiguration/widgets/ConfWidgetText.h>

#include "FaintPlaceholder_p.h"

#include <QHBoxLayout>
#include <QLineEdit>

#include <limits>

namespace MtConf {

ConfWidgetText::ConfWidgetText(ConfItem *item, QWidget *parent)
    : ConfWidgetTextBase(item, parent), mField(new QLineEdit(this))
{
    // A longer text would be stored shortened as soon as the user changes it.
    mField->setMaxLength(std::numeric_limits<int>::max());
    mField->setPlaceholderText(mItem->placeholderText());
    new FaintPlaceholder(mField);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mField);
    watchField(mField);
    connect(mField, &QLineEdit::textEdited, this, &ConfWidgetText::onTyped);
    connect(mField, &QLineEdit::returnPressed, this, &ConfWidgetText::commit);
    loadConf();
}

ConfigItemWidget *ConfWidgetText::CreatConfWidget(ConfItem *item, QWidget *parent)
{
    return create<ConfWidgetText>(item, parent);
}

void ConfWidgetText::retranslateUi()
{
    ConfWidgetTextBase::retranslateUi();
    mField->setPlaceholderText(mItem->placeholderText());
}

QString ConfWidgetText::fieldText() const
{
    return mField->text();
}

void ConfWidgetText::setFieldText(const QString &text)
{
    const int position = mField->cursorPosition();
    mField->setText(text);
    mField->setCursorPosition(position);
}

} // namespace MtConf
