#pragma once

#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

class QSpinBox;

namespace MtConf {

/// Edits an integer in a spin box. The item's properties "MaxValue" and "MinValue" set its range,
/// 0 to 99 without them. A stored value outside the range is brought into it, and stored so, when
/// the editor is shown.
class MALTO_EXPORT ConfDefWidgetInt32 : public ConfigItemWidget
{
public:
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
