#pragma once

#include <MaltoConfiguration/widgets/ConfWidgetText.h>

class QPushButton;

namespace MtConf {

/// Edits a QString that is a password or a token. The field shows dots instead of the text, and a
/// button shows the text until the focus leaves both or the window is deactivated.
///
/// @see MtConfManage::addConfPassword
/// @since 0.1
class MALTO_EXPORT ConfWidgetPassword : public ConfWidgetText
{
    Q_OBJECT
public:
    /// Creates an editor of `item`, which must not be null, as a child of `parent`.
    ConfWidgetPassword(ConfItem *item, QWidget *parent);
    /// Creates the editor; the `WidgetCreator` of this class. Returns null, with the critical
    /// message "ConfigItemWidget without an item", if `item` is null.
    static ConfigItemWidget *CreatConfWidget(ConfItem *item, QWidget *parent);

    void retranslateUi() override;
    /// Hides the password when the focus leaves the field and the button.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setRevealed(bool isRevealed);

    QPushButton *mShowButton = nullptr;
};

} // namespace MtConf
