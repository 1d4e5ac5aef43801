#pragma once

#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

class KeySequenceEdit;
class QKeySequence;

namespace MtConf {

/// Edits a shortcut of the program: a key with modifiers, recorded from the keyboard. Backspace
/// without a modifier clears it, as the button in the field does, Escape leaves it as it is, and
/// Tab moves the focus.
///
/// @see MtConfManage::addConfShortcut, KeySequenceEdit
/// @since 0.1
class MALTO_EXPORT ConfWidgetShortcut : public ConfigItemWidget
{
    Q_OBJECT
public:
    /// Creates an editor of `item`, which must not be null, as a child of `parent` and shows the
    /// stored shortcut.
    ConfWidgetShortcut(ConfItem *item, QWidget *parent);
    /// Creates the editor; the `WidgetCreator` of this class. Returns null, with the critical
    /// message "ConfigItemWidget without an item", if `item` is null.
    static ConfigItemWidget *CreatConfWidget(ConfItem *item, QWidget *parent);

    /// Shows the stored shortcut.
    void loadConf() override;

private:
    void onKeySequenceChanged(const QKeySequence &sequence);

    KeySequenceEdit *mKeySequenceEdit = nullptr;
};

} // namespace MtConf
