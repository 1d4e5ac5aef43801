#pragma once

#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

class ColorSelectButton;

namespace MtConf {

/// Edits a QColor with a button that shows the colour and opens a colour dialog.
///
/// @see MtConfManage::addConfQColor
/// @since 0.1
class MALTO_EXPORT ConfDefWidgetQColor : public ConfigItemWidget
{
    Q_OBJECT
public:
    /// Creates an editor of `item`, which must not be null, as a child of `parent` and shows the
    /// stored value.
    ConfDefWidgetQColor(ConfItem *item, QWidget *parent);
    /// Creates the editor; the `WidgetCreator` of this class. Returns null, with the critical
    /// message "ConfigItemWidget without an item", if `item` is null.
    static ConfigItemWidget *CreatConfWidget(ConfItem *item, QWidget *parent);

    /// Shows the stored colour.
    void loadConf() override;

public Q_SLOTS:
    /// Stores and shows `color` if it differs from the stored colour.
    void setColor(QColor color);

private:
    ColorSelectButton *mButton = nullptr;
};

} // namespace MtConf
