#pragma once

#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

class QCheckBox;

namespace MtConf {

/// Edits a `bool` with a check box. The check box is also the caption of the item.
///
/// @see MtConfManage::addConfBool
/// @since 0.1
class MALTO_EXPORT ConfDefWidgetBool : public ConfigItemWidget
{
public:
    /// Creates an editor of `item`, which must not be null, as a child of `parent` and shows the
    /// stored value.
    ConfDefWidgetBool(ConfItem *item, QWidget *parent);
    /// Creates the editor; the `WidgetCreator` of this class. Returns null, with the critical
    /// message "ConfigItemWidget without an item", if `item` is null.
    static ConfigItemWidget *CreatConfWidget(ConfItem *item, QWidget *parent);

    /// Translates the text of the check box.
    void retranslateUi() override;
    /// Checks the box if the stored value is true.
    void loadConf() override;

private:
    void onCheck(bool checked);

    QCheckBox *mCheckBox = nullptr;
};

} // namespace MtConf
