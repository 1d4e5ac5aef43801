#pragma once

#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

class QSpinBox;

namespace MtConf {

/// Edits an `int` with a spin box. The item's properties "MinValue" and "MaxValue" set the range;
/// without them it is 0 to 99. The item's step and suffix are used.
///
/// A stored value outside the range is shown clamped. The clamped value is stored too, unless the
/// new spin box already shows that number.
///
/// If `ConfItem::setRange` has set the range, a stored value outside of it is shown as it is and
/// not changed. A number outside of the range can be typed. It is not stored, which a message under
/// the row says; when the box loses the focus, it shows the stored value again.
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

    /// Translates the caption, the suffix and the message.
    void retranslateUi() override;
    /// Shows the stored value. Refreshes the state of the caption only if `ConfItem::setRange` has
    /// set the range.
    void loadConf() override;

private:
    bool checksRange() const;
    void applyRange();
    void applySuffix();
    void onValueChanged(int value);
    void onEditingFinished();

    QSpinBox *mSpinBox = nullptr;
};

} // namespace MtConf
