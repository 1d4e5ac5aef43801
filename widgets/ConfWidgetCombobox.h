#pragma once

#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

#include <QList>
#include <QStringList>

class QComboBox;

namespace MtConf {

/// Edits a QString or an `int` with a combo box: the user selects one of several texts, or one of
/// several labels with an `int` each.
///
/// If the item has the property "MultiSelect", with any value, the user can check any number of
/// labels. The `int` of each label is a flag, and the value is the bitwise OR of the checked ones.
/// Texts are not supported in such an item: they have no check boxes.
///
/// The list is empty until one of the `setSelectItem` functions is called.
///
/// @see MtConfManage::addConfStrWithCombobox, MtConfManage::addConfInt32WithCombobox
/// @since 0.1
class MALTO_EXPORT ConfWidgetCombobox : public ConfigItemWidget
{
    Q_OBJECT
public:
    /// Creates an editor of `item`, which must not be null, with an empty list as a child of
    /// `parent`.
    ConfWidgetCombobox(ConfItem *item, QWidget *parent);
    /// Creates the editor with an empty list. Returns null, with the critical message
    /// "ConfigItemWidget without an item", if `item` is null.
    static ConfigItemWidget *CreatConfWidget(ConfItem *item, QWidget *parent);

    /// Appends `texts` and shows the stored value. The texts are values and are not translated.
    void setSelectItem(QStringList texts);
    /// Appends the labels `texts` and shows the stored value. The labels are translated in the
    /// context "QObject", again after each language change, so they must outlive the editor, as
    /// literals do. A null label is shown as an empty text. `values` are the values of the labels;
    /// a label without one has its index in `texts` as its value.
    void setSelectItem(QList<const char *> texts, QList<int> values);

    /// Translates the caption and the labels.
    void retranslateUi() override;
    /// Selects the entry of the stored value. An unknown text selects the first entry, an unknown
    /// `int` none. With "MultiSelect" checks the labels whose flags the stored value contains.
    void loadConf() override;

public Q_SLOTS:
    /// Selects entry `index` of a list without check boxes and stores its value if it differs from
    /// the stored one. Does nothing if there is no such entry.
    void setValueInt32(int index);
    /// Stores the bitwise OR of the flags of all checked entries.
    void onMultiSelectionChanged();

private:
    void loadChecks();
    void loadSelection();

    QComboBox *mComboBox = nullptr;
    QList<const char *> mItemTexts; // by entry; null for a text that is not translated
    bool mMultiSelect = false;
};

} // namespace MtConf
