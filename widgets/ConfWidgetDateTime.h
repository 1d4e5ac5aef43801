#pragma once

#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

#include <QDateTime>

class QPushButton;

namespace MtConf {

class DateTimeBox;
class PendingEdit;

/// Edits a QDateTime in local time, with a calendar. Seconds are shown if the stored value has
/// some. The offset from UTC of the stored value, or that it is in UTC, is kept. A button clears
/// the value; an invalid QDateTime is shown as "Not set".
///
/// A point in time outside of the item's range can be entered. It is not stored, which a message
/// under the row says; when the field loses the focus, it shows the stored value again.
///
/// What is typed is stored after a pause, on Return and when the field loses the focus.
///
/// @see MtConfManage::addConfDateTime, ConfItem::setRange
/// @since 0.1
class MALTO_EXPORT ConfWidgetDateTime : public ConfigItemWidget
{
    Q_OBJECT
public:
    /// Creates an editor of `item`, which must not be null, as a child of `parent` and shows the
    /// stored value.
    ConfWidgetDateTime(ConfItem *item, QWidget *parent);
    /// Creates the editor; the `WidgetCreator` of this class. Returns null, with the critical
    /// message "ConfigItemWidget without an item", if `item` is null.
    static ConfigItemWidget *CreatConfWidget(ConfItem *item, QWidget *parent);

    /// Translates the texts.
    void retranslateUi() override;
    /// Shows the stored value.
    void loadConf() override;
    /// Stores what the user has typed.
    void commit() override;

private:
    void onTimeChanged(const QDateTime &time);
    void onEditingFinished();
    void clear();
    void write(const QDateTime &value);
    void showTexts();

    DateTimeBox *mEdit = nullptr;
    QPushButton *mClearButton = nullptr;
    PendingEdit *mPending = nullptr;
    QDateTime mShownTime;
};

} // namespace MtConf
