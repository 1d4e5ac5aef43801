#pragma once

#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

class ColorSelectButton;

namespace MtConf {

/// Edits a colour by a button that shows it and opens the colour dialog.
class MALTO_EXPORT ConfDefWidgetQColor : public ConfigItemWidget
{
    Q_OBJECT
public:
    /// An editor of `item` inside `parent` that shows the stored value.
    ConfDefWidgetQColor(ConfItem *item, QWidget *parent);
    /// Makes the editor: the `WidgetCreator` of this class.
    static ConfigItemWidget *CreatConfWidget(ConfItem *item, QWidget *parent);

    void loadConf() override;

public Q_SLOTS:
    /// Stores `color`, if it is another one, and shows it.
    void setColor(QColor color);

private:
    ColorSelectButton *mButton = nullptr;
};

} // namespace MtConf
