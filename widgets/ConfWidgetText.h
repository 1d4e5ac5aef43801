#pragma once

#include <MaltoConfiguration/widgets/ConfWidgetTextBase.h>

class QLineEdit;

namespace MtConf {

/// Edits a QString in a field of one line. What is typed is stored when the user presses Return,
/// when the field loses the focus, or after a pause of 600 milliseconds.
///
/// @see MtConfManage::addConfText, ConfItem::setPlaceholder
/// @since 0.1
class MALTO_EXPORT ConfWidgetText : public ConfWidgetTextBase
{
    Q_OBJECT
public:
    /// Creates an editor of `item`, which must not be null, as a child of `parent` and shows the
    /// stored text.
    ConfWidgetText(ConfItem *item, QWidget *parent);
    /// Creates the editor; the `WidgetCreator` of this class. Returns null, with the critical
    /// message "ConfigItemWidget without an item", if `item` is null.
    static ConfigItemWidget *CreatConfWidget(ConfItem *item, QWidget *parent);

    void retranslateUi() override;

protected:
    QString fieldText() const override;
    void setFieldText(const QString &text) override;

    /// Returns the field. It is in a horizontal layout, to which derived classes may add buttons.
    QLineEdit *field() const { return mField; }

private:
    QLineEdit *mField = nullptr;
};

} // namespace MtConf
