#pragma once

#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

namespace MtConf {

class PendingEdit;

/// The base class of editors with a field in which the user types a text.
///
/// What is typed is stored when editing ends (the field loses the focus or `commit` is called) or
/// after a pause of 600 milliseconds. A text that the validator of the item does not accept stays
/// in the field, and the validator is asked again when editing ends.
///
/// @see ConfWidgetText, ConfWidgetMultilineText
/// @since 0.1
class MALTO_EXPORT ConfWidgetTextBase : public ConfigItemWidget
{
    Q_OBJECT
public:
    /// Creates an editor of `item`, which must not be null, as a child of `parent`.
    ConfWidgetTextBase(ConfItem *item, QWidget *parent);
    /// Does not store what the user has typed; see `commit`.
    ~ConfWidgetTextBase() override;

    /// Shows the stored text and keeps the position of the cursor. Does not replace a text that the
    /// user is typing.
    void loadConf() override;
    /// Stores what the user has typed, and then shows the stored text.
    void commit() override;

protected:
    /// Returns the text in the field.
    virtual QString fieldText() const = 0;
    /// Replaces the text in the field, and keeps the position of the cursor.
    virtual void setFieldText(const QString &text) = 0;
    /// Returns `stored` as the field shows it. By default both are the same.
    virtual QString toField(const QString &stored) const;
    /// Returns `typed` as it is stored. By default both are the same.
    virtual QString toStored(const QString &typed) const;
    /// Shows what the user should know about the stored text `text`. By default hides the message.
    virtual void describeText(const QString &text);

    /// Watches the focus of `field`. To be called once, by the constructor that creates the field.
    void watchField(QWidget *field);
    /// To be called when the user has changed the text in the field.
    void onTyped();

private:
    enum class Moment { Pause, End };
    void storeTyped(Moment moment);

    QPointer<PendingEdit> mPending;
};

} // namespace MtConf
