#pragma once

#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

namespace MtConf {

class NumberSpinBox;

/// Edits a `double`, a `float` or another number with a spin box, by its JSON.
///
/// The item's range, step, decimals and suffix are used. Without decimals there are two, or as many
/// as the stored value, the step and the range need, at most ten. Without a range all numbers with
/// up to 53 bits before the decimal point can be entered.
///
/// A number outside of the range can be typed. It is not stored, which a message under the row
/// says; when the box loses the focus, it shows the stored value again. A stored value that is no
/// such number, such as infinity, is shown as a text. Nothing is stored until the user edits the
/// value.
///
/// @see MtConfManage::addConfDouble, ConfItem::setRange
/// @since 0.1
class MALTO_EXPORT ConfDefWidgetDouble : public ConfigItemWidget
{
    Q_OBJECT
public:
    /// Creates an editor of `item`, which must not be null, as a child of `parent` and shows the
    /// stored value.
    ConfDefWidgetDouble(ConfItem *item, QWidget *parent);
    /// Creates the editor; the `WidgetCreator` of this class. Returns null, with the critical
    /// message "ConfigItemWidget without an item", if `item` is null.
    static ConfigItemWidget *CreatConfWidget(ConfItem *item, QWidget *parent);

    /// Translates the caption, the suffix and the message.
    void retranslateUi() override;
    /// Shows the stored value.
    void loadConf() override;

private:
    int decimals() const;
    void applySuffix();
    void onValueChanged(double value);
    void onEditingFinished();

    NumberSpinBox *mSpinBox = nullptr;
    double mShownValue = 0;
};

} // namespace MtConf
