#pragma once

#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

#include <QVector>

class QComboBox;

namespace MtConf {

/// Edits a value of any type with a combo box of the item's `choices`. A stored value that is none
/// of them selects no entry and is kept until the user selects one.
///
/// If the item's property "MultiSelect" is true, the choices are flags, of which the user can check
/// any number: whole numbers whose bits are combined, or names that are joined by "|", as
/// `JsonByName` does. Stored flags that are none of the choices are kept. A choice without any flag
/// is checked if the value has no flag, and removes all flags.
///
/// @see MtConfManage::addConfEnum, ConfItem::setMultiSelect
/// @since 0.1
class MALTO_EXPORT ConfWidgetChoice : public ConfigItemWidget
{
    Q_OBJECT
public:
    /// Creates an editor of `item`, which must not be null, as a child of `parent` and shows the
    /// stored value.
    ConfWidgetChoice(ConfItem *item, QWidget *parent);
    /// Creates the editor; the `WidgetCreator` of this class. Returns null, with the critical
    /// message "ConfigItemWidget without an item", if `item` is null.
    static ConfigItemWidget *CreatConfWidget(ConfItem *item, QWidget *parent);

    /// Translates the caption and the labels.
    void retranslateUi() override;
    /// Selects the stored value, or checks its flags.
    void loadConf() override;

private:
    void addChoices();
    QVector<bool> storedChecks() const;
    QJsonValue checkedFlags() const;
    void onSelected(int index);
    void onChecksChanged();

    bool mMultiSelect = false;
    QList<QJsonValue> mValues; // by entry, as the store returns them
    QComboBox *mComboBox = nullptr;
};

} // namespace MtConf
