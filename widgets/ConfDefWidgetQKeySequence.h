#pragma once

#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

#include <QKeySequence>

class KeySequenceEdit;
class QPushButton;
class QxtGlobalShortcut;

namespace MtConf {

/// Edits the hotkey of an item, beside a button that shows whether it is registered with the
/// system.
///
/// The host makes the item's `QxtGlobalShortcut` and puts it into the item's `properties` as
/// "Shortcut" (`QVariant::fromValue(shortcut)`); the editor gives it each new hotkey and stores
/// that. An item whose entry is missing, null or of another type has no global shortcut: what is
/// recorded then is shown, but never stored.
///
/// The host may delete the shortcut while the editor is shown: the entry then becomes an invalid
/// QVariant, so that no one finds the deleted object. It may put another one in its place, too.
class MALTO_EXPORT ConfDefWidgetQKeySequence : public ConfigItemWidget
{
    Q_OBJECT
public:
    /// Makes the entry "Shortcut" of the item, as an invalid QVariant, where there is none.
    ConfDefWidgetQKeySequence(ConfItem *item, QWidget *parent);
    ~ConfDefWidgetQKeySequence() override;
    /// Makes the editor: the `WidgetCreator` of this class.
    static ConfigItemWidget *CreatConfWidget(ConfItem *item, QWidget *parent);

    /// Hands the stored hotkey to the field. One that the global shortcut does not hold yet goes
    /// on to `onKeySequenceChanged`.
    void loadConf() override;

public Q_SLOTS:
    /// Gives `sequence` to the global shortcut and stores it. Nothing happens without a global
    /// shortcut, and when it holds `sequence` already.
    void onKeySequenceChanged(QKeySequence sequence);
    /// Shows on the button whether the stored hotkey is not set, failed, registered or disabled.
    /// Without a global shortcut only an empty hotkey is shown, as not set; any other has no state.
    void refreshState();
    /// Loads the stored hotkey again if the global shortcut is not valid.
    void setHotKeyAgain();

protected:
    /// Shows the state in the new language.
    void changeEvent(QEvent *event) override;

private:
    QxtGlobalShortcut *shortcut();
    void watchShortcut(QxtGlobalShortcut *shortcut);
    void forgetShortcut(const QObject *gone);
    void showState(const QChar &glyph, const QString &color, const QString &toolTip);
    void showNoState();

    KeySequenceEdit *mKeySequenceEdit = nullptr;
    QPushButton *mStateButton = nullptr;
    QPointer<QxtGlobalShortcut> mShortcut;
};

} // namespace MtConf
