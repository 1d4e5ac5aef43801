#pragma once

#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

class QSpinBox;

namespace MtConf {

/// Edits an integer in a spin box. The item's properties "MaxValue" and "MinValue" set its range,
/// 0 to 99 without them. A stored value outside the range shows as the nearest one inside, which is
/// stored as soon as the box's number changes by it; one that shows as the number that the box
/// starts with stays stored as it was.
class MALTO_EXPORT ConfDefWidgetInt32 : public ConfigItemWidget
{
public:
    /// An editor of `item` inside `parent` that shows the stored value.
    ConfDefWidgetInt32(ConfItem *item, QWidget *parent);
    /// Makes the editor: the `WidgetCreator` of this class.
    static ConfigItemWidget *CreatConfWidget(ConfItem *item, QWidget *parent);

    void loadConf() override;

private:
    void applyRange();
    int widthOfMaximum() const;
    void onValueChanged(int value);

    QSpinBox *mSpinBox = nullptr;
};

} // namespace MtConf
