#pragma once

#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

#include <QList>

class ComboboxDisableWheel;
class MultiSelectComboBox;
class QLabel;

namespace MtConf {

/// Edits a mouse gesture: an `int` with the bit of one mouse action in its low 16 bits and the
/// `Qt::KeyboardModifier` bits of the held keys above.
///
/// An icon beside the controls shows whether the gesture is in conflict with that of another editor
/// that is shown, is the left click alone, which is not allowed, or is not set.
class MALTO_EXPORT ConfWidgetMouseAction : public ConfigItemWidget
{
    Q_OBJECT
public:
    /// `kind` tells which actions are offered beside "None": 0 the wheel, 1 the clicks, 2 the
    /// drags; any other number none.
    ConfWidgetMouseAction(ConfItem *item, QWidget *parent, int kind);
    /// Takes the kind from the item's property "Kind", an `int`; without it only "None" is offered.
    ConfWidgetMouseAction(ConfItem *item, QWidget *parent);
    ~ConfWidgetMouseAction() override;
    /// Creates the editor: the `WidgetCreator` of this class. The property "Kind" of `item` is the
    /// kind, as in `item->properties["Kind"] = 1` for clicks. `MtConfManage::addConfMouseAction`
    /// takes the kind as an argument instead and does not read the property.
    static ConfigItemWidget *CreatConfWidget(ConfItem *item, QWidget *parent);

    /// Shows the stored value; an action that is not offered as no choice. Once the editor is made
    /// every control that this changes calls `onCurrentIndexChanged`, which stores the value again.
    void loadConf() override;

    /// Shows the state of this gesture among those that the other editors have stored.
    void refreshConflictState();
    /// The same for every editor that there is.
    static void refreshAllConflictState();

    /// Every editor that there is, in the order in which they were made.
    static QList<ConfWidgetMouseAction *> sConflictList;

public Q_SLOTS:
    /// Stores what the controls show, unless it is the left click alone, and shows the state of all
    /// editors again.
    void onCurrentIndexChanged();

protected:
    /// Shows the actions in the new language.
    void changeEvent(QEvent *event) override;

private:
    void addActions(int kind);
    const ConfWidgetMouseAction *firstConflict() const;
    void showState(const QString &styleClass, const QChar &glyph, const QString &toolTip);

    int mCurrentValue = 0;
    MultiSelectComboBox *mModifierBox = nullptr;
    ComboboxDisableWheel *mActionBox = nullptr;
    QLabel *mStateLabel = nullptr;
};

} // namespace MtConf
