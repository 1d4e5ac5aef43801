#pragma once

#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

class QPushButton;

namespace MtConf {

/// Edits a QFont with a button that shows the font's family and pixel size and opens a font dialog.
///
/// The number that the dialog shows as the size is in pixels; fractions are truncated. A font that
/// the user does not change keeps its size in points.
///
/// @see MtConfManage::addConfQFont
/// @since 0.1
class MALTO_EXPORT ConfDefWidgetQFont : public ConfigItemWidget
{
    Q_OBJECT
public:
    /// Creates an editor of `item`, which must not be null, as a child of `parent` and shows the
    /// stored value.
    ConfDefWidgetQFont(ConfItem *item, QWidget *parent);
    /// Creates the editor; the `WidgetCreator` of this class. Returns null, with the critical
    /// message "ConfigItemWidget without an item", if `item` is null.
    static ConfigItemWidget *CreatConfWidget(ConfItem *item, QWidget *parent);

    /// Shows the stored font.
    void loadConf() override;

public Q_SLOTS:
    /// Stores and shows `font` if it differs from the stored font.
    void setFont(QFont font);

private:
    void onFontClicked();

    QPushButton *mButton = nullptr;
};

} // namespace MtConf
