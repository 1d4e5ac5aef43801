#pragma once

#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

#include <QList>
#include <QString>

#include <functional>

class ComboboxDisableWheel;
class MultiSelectComboBox;
class QLabel;

namespace MtConf {

/// Edits a mouse gesture: an `int` with the bit of one mouse action in the low 16 bits and
/// `Qt::KeyboardModifier` bits above.
///
/// An icon beside the controls shows the state of the gesture: correct, not set, in conflict with
/// the gesture of another live editor, or a left click without modifiers, which is not allowed.
///
/// @see MtConfManage::addConfMouseAction
/// @since 0.1
class MALTO_EXPORT ConfWidgetMouseAction : public ConfigItemWidget
{
    Q_OBJECT
public:
    /// Creates an editor of `item`, which must not be null, as a child of `parent` and shows the
    /// stored value. `kind` selects the actions that are offered besides "None": 0 the wheel, 1
    /// clicks, 2 drags, any other number none.
    ConfWidgetMouseAction(ConfItem *item, QWidget *parent, int kind);
    /// Creates an editor whose kind is the item's property "Kind", an `int`. Without the property
    /// only "None" is offered.
    ConfWidgetMouseAction(ConfItem *item, QWidget *parent);
    ~ConfWidgetMouseAction() override;
    /// Creates the editor; the `WidgetCreator` of this class. The kind is the property "Kind" of
    /// `item`, so a host that uses this function sets it, for example
    /// `item->properties["Kind"] = 1` for clicks. `MtConfManage::addConfMouseAction` takes the kind
    /// as an argument instead and does not read the property. Returns null, with the critical
    /// message "ConfigItemWidget without an item", if `item` is null.
    static ConfigItemWidget *CreatConfWidget(ConfItem *item, QWidget *parent);

    /// Shows the stored value. If its action is not offered, no action is selected. Except during
    /// construction, each change of a control calls `onCurrentIndexChanged`, which stores what the
    /// controls show.
    void loadConf() override;

    /// Returns the conflict or the error that the icon shows.
    Status status() override;

    /// Updates the state icon. A conflict is a conflict with the stored value of another live
    /// editor.
    void refreshConflictState();
    /// Updates the state icons of all live editors.
    static void refreshAllConflictState();

    /// Called before a gesture that the user has chosen is stored, if set. If it returns false, the
    /// controls show the gesture and the store keeps its value. The filter may delete the editor.
    std::function<bool(int gesture)> gestureFilter;
    /// Returns what else uses a gesture, in words; empty if nothing does. If it is set, the state
    /// goes by it and not by the other live editors.
    std::function<QString(int gesture)> conflictName;

    /// Whether editors that are created from now on tell conflicts on both sides: the other editors
    /// are updated when one is constructed or destroyed, and the tool tip names the present
    /// conflict. Without it only the editor that was constructed later tells it until one of them
    /// changes. False by default.
    static bool sTellsBothSides;
    /// Whether modifiers have names in editors that are created from now on, such as "Ctrl" and
    /// "Shift", instead of glyphs. Without effect on macOS, where users know the glyphs. False by
    /// default.
    static bool sNamesModifiers;

    /// All live editors in the order of their construction.
    static QList<ConfWidgetMouseAction *> sConflictList;

public Q_SLOTS:
    /// Stores what the controls show, except a left click without modifiers, and updates the state
    /// icons of all live editors.
    void onCurrentIndexChanged();

protected:
    /// Translates the actions when the language changes.
    void changeEvent(QEvent *event) override;

private:
    void addActions(int kind);
    bool isAcceptedByFilter(int gesture);
    QString conflict() const;
    const ConfWidgetMouseAction *firstConflict() const;
    void showState(const QString &styleClass, const QChar &glyph, const QString &toolTip);

    int mCurrentValue = 0;
    bool mIsLoading = false;
    MultiSelectComboBox *mModifierBox = nullptr;
    ComboboxDisableWheel *mActionBox = nullptr;
    QLabel *mStateLabel = nullptr;
};

} // namespace MtConf
