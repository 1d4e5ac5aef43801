#pragma once

#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

class QPushButton;

namespace MtConf {

/// Edits a font by a button that names it and opens the font dialog. Sizes are pixels: the size
/// number of the dialog is taken as pixels, a fraction cut off.
class MALTO_EXPORT ConfDefWidgetQFont : public ConfigItemWidget
{
    Q_OBJECT
public:
    /// An editor of `item` inside `parent` that shows the stored value.
    ConfDefWidgetQFont(ConfItem *item, QWidget *parent);
    /// Makes the editor: the `WidgetCreator` of this class.
    static ConfigItemWidget *CreatConfWidget(ConfItem *item, QWidget *parent);

    void loadConf() override;

public Q_SLOTS:
    /// Stores `font`, if it is another one, and shows it.
    void setFont(QFont font);

private:
    void onFontClicked();

    QPushButton *mButton = nullptr;
};

} // namespace MtConf
