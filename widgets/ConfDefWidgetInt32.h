#pragma once

#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

class QSpinBox;

namespace MtConf {

/// Edits an `int` with a spin box. The item's properties "MinValue" and "MaxValue" set the range;
/// without them it is 0 to 99.
///
/// A stored value outside the range is shown clamped. The clamped value is stored too, unless the
/// new spin box already shows that number.
///
/// @see MtConfManage::addConfInt32, QSpinBoxDisableWheel
/// @since 0.1
class MALTO_EXPORT ConfDefWidgetInt32 : public ConfigItemWidget
{
public:
    /// Creates an editor of `item`, which must not be null, as a child of `parent` and shows the
    /// stored value.
    ConfDefWidgetInt32(ConfItem *item, QWidget *parent);
    /// Creates the editor; the `WidgetCreator` of this class. Returns null, with the critical
    /// message "ConfigItemWidget without an item", if `item` is null.
    static ConfigItemWidget *CreatConfWidget(ConfItem *item, QWidget *parent);

    /// Shows the stored value. Does not refresh the state of the caption.
    void loadConf() override;

private:
    void applyRange();
    int widthOfMaximum() const;
    void onValueChanged(int value);

    QSpinBox *mSpinBox = nullptr;
};

} // namespace MtConf
