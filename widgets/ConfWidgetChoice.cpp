#include <MaltoConfiguration/widgets/ConfWidgetChoice.h>

#include "JsonFlags_p.h"
#include "RoundedPopup_p.h"

#include <MaltoConfiguration/widgets/ComboboxDisableWheel.h>
#include <MaltoConfiguration/widgets/MultiSelectComboBox.h>

#include <QHBoxLayout>
#include <QSignalBlocker>

#include <utility>

namespace MtConf {

ConfWidgetChoice::ConfWidgetChoice(ConfItem *item, QWidget *parent)
    : ConfigItemWidget(item, parent),
      mMultiSelect(item->properties.value(QStringLiteral("MultiSelect")).toBool())
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    if (mMultiSelect) {
        auto *box = new MultiSelectComboBox(this);
        box->opensByKeyboard = true;
        mComboBox = box;
        connect(box, &MultiSelectComboBox::selectionChanged, this,
                &ConfWidgetChoice::onChecksChanged);
    } else {
        mComboBox = new ComboboxDisableWheel(this);
        RoundedPopup::addList(mComboBox);
        connect(mComboBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                &ConfWidgetChoice::onSelected);
    }
    mComboBox->setFocusPolicy(Qt::StrongFocus);
    mComboBox->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    layout->addWidget(mComboBox);
    addChoices();
    loadConf();
}

ConfigItemWidget *ConfWidgetChoice::CreatConfWidget(ConfItem *item, QWidget *parent)
{
    return create<ConfWidgetChoice>(item, parent);
}

void ConfWidgetChoice::addChoices()
{
    const QSignalBlocker blocker(mComboBox);
    const JsonFlags form(mItem->getFullName());
    for (const ConfChoice &choice : std::as_const(mItem->choices)) {
        mValues.append(form.normalized(choice.value));
        if (mMultiSelect)
            static_cast<MultiSelectComboBox *>(mComboBox)->addItem(choice.text());
        else
            mComboBox->addItem(choice.text());
    }
}

void ConfWidgetChoice::retranslateUi()
{
    ConfigItemWidget::retranslateUi();
    const auto count = static_cast<int>(qMin(mItem->choices.size(), mValues.size()));
    for (int i = 0; i < count; ++i) {
        const QString text = mItem->choices.at(i).text();
        if (mMultiSelect)
            static_cast<MultiSelectComboBox *>(mComboBox)->setItemText(i, text);
        else
            mComboBox->setItemText(i, text);
    }
}

void ConfWidgetChoice::loadConf()
{
    const QSignalBlocker blocker(mComboBox);
    if (mMultiSelect)
        static_cast<MultiSelectComboBox *>(mComboBox)->setItemsChecked(storedChecks());
    else
        mComboBox->setCurrentIndex(static_cast<int>(mValues.indexOf(readJson())));
    showMessage(QString());
    refreshLabelState();
}

/// Returns for each entry whether the stored value contains its flags.
QVector<bool> ConfWidgetChoice::storedChecks() const
{
    const JsonFlags form(mItem->getFullName());
    const QJsonValue stored = readJson();
    QVector<bool> checks;
    for (const QJsonValue &flag : std::as_const(mValues))
        checks.append(form.contains(stored, flag));
    return checks;
}

void ConfWidgetChoice::onSelected(int index)
{
    // Null is a value that the type of the item refuses.
    if (index < 0 || index >= mValues.size() || mValues.at(index).isNull())
        return;
    if (!writeJson(mValues.at(index)))
        return;
    showMessage(QString());
    refreshLabelState();
}

void ConfWidgetChoice::onChecksChanged()
{
    const QJsonValue flags = checkedFlags();
    if (!flags.isNull() && flags != readJson() && !writeJson(flags))
        return;
    loadConf();
}

/// Returns the stored flags with those that the user has checked or unchecked since.
QJsonValue ConfWidgetChoice::checkedFlags() const
{
    const JsonFlags form(mItem->getFullName());
    const QVector<bool> before = storedChecks();
    QJsonValue flags = readJson();
    QList<QJsonValue> kept;
    QList<QJsonValue> removed;
    for (int i = 0; i < before.size(); ++i) {
        bool isChecked = false;
        QVariant userData;
        static_cast<MultiSelectComboBox *>(mComboBox)->getItemData(i, isChecked, userData);
        if (isChecked && !before.at(i))
            flags = form.with(flags, mValues.at(i));
        else if (before.at(i))
            (isChecked ? kept : removed).append(mValues.at(i));
    }
    for (const QJsonValue &flag : std::as_const(removed)) {
        flags = form.without(flags, flag);
        // A name of several flags was removed as a whole; the others of them are still checked.
        for (const QJsonValue &other : std::as_const(kept)) {
            if (!form.contains(other, flag) && !form.contains(flag, other))
                flags = form.with(flags, other);
        }
    }
    return form.normalized(flags);
}

} // namespace MtConf
