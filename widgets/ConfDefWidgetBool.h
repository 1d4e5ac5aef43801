#pragma once

#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

class QCheckBox;

namespace MtConf {

/// Edits a switch in a check box, which is its own caption.
class MALTO_EXPORT ConfDefWidgetBool : public ConfigItemWidget
{
public:
    /// An editor of `item` inside `parent` that shows the stored value.
    ConfDefWidgetBool(ConfItem *item, QWidget *parent);
    /// Makes the editor: the `WidgetCreator` of this class.
    static ConfigItemWidget *CreatConfWidget(ConfItem *item, QWidget *parent);

    void retranslateUi() override;
    void loadConf() override;

private:
    void onCheck(bool checked);

    QCheckBox *mCheckBox = nullptr;
};

} // namespace MtConf
