#pragma once

#include <MaltoConfiguration/widgets/ConfWidgetTextBase.h>

class QPlainTextEdit;

namespace MtConf {

/// Edits a QString in a field of four lines, which scrolls. What is typed is stored when the field
/// loses the focus, or after a pause of 600 milliseconds. The Tab key moves the focus. The mouse
/// wheel scrolls the field only while it has the focus.
///
/// @see MtConfManage::addConfMultilineText, ConfItem::setPlaceholder
/// @since 0.1
class MALTO_EXPORT ConfWidgetMultilineText : public ConfWidgetTextBase
{
    Q_OBJECT
public:
    /// Creates an editor of `item`, which must not be null, as a child of `parent` and shows the
    /// stored text.
    ConfWidgetMultilineText(ConfItem *item, QWidget *parent);
    /// Creates the editor; the `WidgetCreator` of this class. Returns null, with the critical
    /// message "ConfigItemWidget without an item", if `item` is null.
    static ConfigItemWidget *CreatConfWidget(ConfItem *item, QWidget *parent);

    void retranslateUi() override;

protected:
    QString fieldText() const override;
    void setFieldText(const QString &text) override;

private:
    QPlainTextEdit *mField = nullptr;
};

} // namespace MtConf
