#include <MaltoConfiguration/widgets/ConfWidgetCombobox.h>

#include "CheckedFlags_p.h"
#include "RoundedPopup_p.h"

#include <MaltoConfiguration/widgets/ComboboxDisableWheel.h>
#include <MaltoConfiguration/widgets/MultiSelectComboBox.h>

#include <QHBoxLayout>
#include <QSignalBlocker>

#include <utility>

namespace MtConf {

ConfWidgetCombobox::ConfWidgetCombobox(ConfItem *item, QWidget *parent)
    : ConfigItemWidget(item, parent),
      mMultiSelect(item->properties.contains(QStringLiteral("MultiSelect")))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    if (mMultiSelect) {
        auto *box = new MultiSelectComboBox(this);
        mComboBox = box;
        connect(box, &MultiSelectComboBox::selectionChanged, this,
                &ConfWidgetCombobox::onMultiSelectionChanged);
        box->opensByKeyboard = sFullKeyboardAccess;
    } else {
        mComboBox = new ComboboxDisableWheel(this);
        RoundedPopup::addList(mComboBox);
        connect(mComboBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                &ConfWidgetCombobox::setValueInt32);
    }
    mComboBox->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    mComboBox->setAccessibleName(translatedText());
    layout->addWidget(mComboBox);
}

ConfigItemWidget *ConfWidgetCombobox::CreatConfWidget(ConfItem *item, QWidget *parent)
{
    return create<ConfWidgetCombobox>(item, parent);
}

void ConfWidgetCombobox::setSelectItem(QStringList texts)
{
    {
        const QSignalBlocker blocker(mComboBox);
        for (const QString &text : std::as_const(texts))
            mComboBox->addItem(text);
    }
    loadConf();
}

void ConfWidgetCombobox::setSelectItem(QList<const char *> texts, QList<int> values)
{
    {
        const QSignalBlocker blocker(mComboBox);
        auto *multi = qobject_cast<MultiSelectComboBox *>(mComboBox);
        // Keep the texts aligned with entries that were added before.
        while (mItemTexts.size() < mComboBox->count())
            mItemTexts.append(nullptr);
        for (int i = 0; i < texts.size(); ++i) {
            const QString text = QObject::tr(texts.at(i));
            const int value = values.value(i, i);
            if (multi)
                multi->addItem(text, value);
            else
                mComboBox->addItem(text, value);
        }
        mItemTexts += texts;
    }
    loadConf();
}

void ConfWidgetCombobox::retranslateUi()
{
    ConfigItemWidget::retranslateUi();
    mComboBox->setAccessibleName(translatedText());
    QStringList texts;
    for (const char *text : std::as_const(mItemTexts))
        texts.append(text ? QObject::tr(text) : QString());
    if (auto *multi = qobject_cast<MultiSelectComboBox *>(mComboBox)) {
        multi->setItemTexts(texts);
        return;
    }
    for (int i = 0; i < texts.size(); ++i) {
        if (mItemTexts.at(i))
            mComboBox->setItemText(i, texts.at(i));
    }
}

void ConfWidgetCombobox::loadConf()
{
    const QSignalBlocker blocker(mComboBox);
    if (mMultiSelect) {
        // onMultiSelectionChanged refreshes the caption when it writes a value.
        loadChecks();
        return;
    }
    loadSelection();
    refreshLabelState();
}

void ConfWidgetCombobox::loadChecks()
{
    auto *multi = static_cast<MultiSelectComboBox *>(mComboBox);
    multi->setItemsChecked(containedFlags(multi, readValue<int>()));
}

void ConfWidgetCombobox::loadSelection()
{
    if (mItem->valueType == ConfValue::TyQString) {
        // A text that is no longer offered selects the first entry.
        const int index = mComboBox->findData(readValue<QString>(), Qt::DisplayRole);
        mComboBox->setCurrentIndex(qMax(index, 0));
    } else if (mItem->valueType == ConfValue::TyInt32) {
        mComboBox->setCurrentIndex(mComboBox->findData(readValue<int>(), Qt::UserRole));
    }
}

void ConfWidgetCombobox::setValueInt32(int index)
{
    if (index < 0 || index >= mComboBox->count())
        return;
    if (mComboBox->currentIndex() != index) {
        // This calls setValueInt32 again, which stores the value. A callback may delete the editor.
        const QPointer<ConfWidgetCombobox> self(this);
        mComboBox->setCurrentIndex(index);
        if (!self)
            return;
    }
    const bool written = mItem->valueType == ConfValue::TyQString
                             ? writeValue(mComboBox->currentText())
                             : writeValue(mComboBox->itemData(index).toInt());
    if (written)
        refreshLabelState();
}

void ConfWidgetCombobox::onMultiSelectionChanged()
{
    const auto *multi = qobject_cast<MultiSelectComboBox *>(mComboBox);
    if (!multi)
        return;
    // Store an unchanged value too: the user has chosen it now, which updates its timestamp.
    if (storeValue(checkedFlags(multi)))
        refreshLabelState();
}

} // namespace MtConf
