#pragma once

#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

#include <QList>
#include <QStringList>

class QComboBox;

namespace MtConf {

/// Chooses the value of an item from a list: a text from a list of texts, or an `int` from a list
/// of labels.
///
/// If the item's `properties` have the key "MultiSelect", whatever its value, any number of labels
/// can be checked, and the item holds the bits of all of them; the ints of the labels are flags
/// then. A list of texts in such an item has no check boxes and cannot be used.
///
/// The editor shows nothing until one of the two `setSelectItem` has filled its list.
class MALTO_EXPORT ConfWidgetCombobox : public ConfigItemWidget
{
    Q_OBJECT
public:
    /// An editor of `item` inside `parent`, with an empty list.
    ConfWidgetCombobox(ConfItem *item, QWidget *parent);
    /// Makes the editor, with an empty list.
    static ConfigItemWidget *CreatConfWidget(ConfItem *item, QWidget *parent);

    /// Appends `texts`, which are values and are not translated, and shows the stored value.
    void setSelectItem(QStringList texts);
    /// Appends labels, which are translated in the context "QObject", and shows the stored value.
    /// The i-th label stands for the i-th of `values`, or for i where there is none. `texts` are
    /// literals of the host, used again at every change of language; a null one shows as an empty
    /// text.
    void setSelectItem(QList<const char *> texts, QList<int> values);

    void retranslateUi() override;
    void loadConf() override;

public Q_SLOTS:
    /// Selects entry `index` of a list without check boxes and stores its value, if it is another
    /// one. Nothing happens when there is no such entry.
    void setValueInt32(int index);
    /// Stores the bits of all checked entries.
    void onMultiSelectionChanged();

private:
    void loadChecks();
    void loadSelection();

    QComboBox *mComboBox = nullptr;
    QList<const char *> mItemTexts; // by entry; null for a plain text
    bool mMultiSelect = false;
};

} // namespace MtConf
