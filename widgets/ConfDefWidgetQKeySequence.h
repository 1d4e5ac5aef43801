#pragma once

#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

#include <QKeySequence>

class KeySequenceEdit;
class QPushButton;
class QxtGlobalShortcut;

namespace MtConf {

/// Edits a hotkey. A button beside the field shows whether the hotkey is registered with the
/// system.
///
/// The host creates a `QxtGlobalShortcut` and sets it as the item's property "Shortcut"
/// (`QVariant::fromValue(shortcut)`). The editor passes each new hotkey to this object and stores
/// it, unless the validator of the item refuses it. An item whose property is missing, null or of
/// another type has no global shortcut; the editor then shows a recorded hotkey, but does not store
/// it.
///
/// The host may delete or replace the shortcut while the editor exists. If the shortcut is deleted,
/// the editor sets the property to an invalid QVariant, so that no dangling pointer remains.
///
/// When the user records a hotkey, the caption of the item becomes the description of a global
/// shortcut that has the property "description" and no description yet.
///
/// @see MtConfManage::addConfQKeySequence, KeySequenceEdit
/// @since 0.1
class MALTO_EXPORT ConfDefWidgetQKeySequence : public ConfigItemWidget
{
    Q_OBJECT
public:
    /// Creates an editor of `item`, which must not be null, as a child of `parent` and shows the
    /// stored hotkey. Inserts an invalid QVariant as the property "Shortcut" if there is none.
    ConfDefWidgetQKeySequence(ConfItem *item, QWidget *parent);
    ~ConfDefWidgetQKeySequence() override;
    /// Creates the editor; the `WidgetCreator` of this class. Returns null, with the critical
    /// message "ConfigItemWidget without an item", if `item` is null.
    static ConfigItemWidget *CreatConfWidget(ConfItem *item, QWidget *parent);

    /// Sets the stored hotkey in the field. If the field showed another one, the field emits
    /// `sigKeySequenceChanged`, which calls `onKeySequenceChanged`.
    void loadConf() override;
    /// Returns why the hotkey is not registered, that it is disabled, or which keys the desktop has
    /// assigned instead of it.
    Status status() override;

    /// Whether editors that are created from now on tell more than that the setup failed: the tool
    /// tip of the button tells why, or which keys the desktop has assigned instead, and
    /// `setHotKeyAgain` registers the same keys again. The button is enabled only if that may help.
    /// A hotkey that is not set, or that the desktop has not answered yet, is not shown as an
    /// error. False by default. The reasons come from the properties "failure" and "trigger" of the
    /// global shortcut; one without these properties has no other reason than another program.
    static bool sTellsReasons;

public Q_SLOTS:
    /// Sets `sequence` in the global shortcut and stores it. Does nothing if there is no global
    /// shortcut, if it already has this sequence, or if the validator of the item refuses it.
    void onKeySequenceChanged(QKeySequence sequence);
    /// Shows the state of the stored hotkey on the button: not set, pending, failed, registered or
    /// disabled. Without a global shortcut an empty hotkey is shown as not set, and any other has
    /// no state.
    void refreshState();
    /// Calls `loadConf` if the global shortcut is not valid. That does not change a global shortcut
    /// that has the stored hotkey already; with `sTellsReasons` it is set again.
    void setHotKeyAgain();

protected:
    /// Translates the tool tip and the accessible texts when the language changes.
    void changeEvent(QEvent *event) override;

private:
    QxtGlobalShortcut *shortcut();
    void watchShortcut(QxtGlobalShortcut *shortcut);
    void forgetShortcut(const QObject *destroyed);
    static QString otherTriggerText(const QxtGlobalShortcut *hotkey);
    void registerKeys(QxtGlobalShortcut *hotkey, const QKeySequence &sequence);
    void registerAgain();
    void showState(const QChar &glyph, const QString &color, const QString &toolTip);
    void showNoState();

    KeySequenceEdit *mKeySequenceEdit = nullptr;
    QPushButton *mStateButton = nullptr;
    bool mTellsReasons = false;
    QPointer<QxtGlobalShortcut> mShortcut;
};

} // namespace MtConf
