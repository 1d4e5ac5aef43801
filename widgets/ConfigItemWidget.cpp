#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

#include <QAbstractButton>
#include <QLabel>
#include <QStyle>

namespace MtConf {

ConfigItemWidget::Writing::Writing(ConfigItemWidget *editor)
    : mEditor(editor), mOuter(editor->mWriting)
{
    editor->mWriting = this;
}

ConfigItemWidget::Writing::~Writing()
{
    if (mEditor)
        mEditor->mWriting = mOuter;
    for (const QPointer<QWidget> &control : qAsConst(mControls)) {
        if (control)
            control->deleteLater();
    }
}

void ConfigItemWidget::Writing::takeControls(const QList<QWidget *> &controls)
{
    // The outermost returns last.
    if (mOuter) {
        mOuter->takeControls(controls);
        return;
    }
    for (QWidget *control : controls) {
        control->disconnect(mEditor);
        control->hide();
        control->setParent(nullptr);
        mControls.append(control);
    }
}

ConfigItemWidget::ConfigItemWidget(ConfItem *item, QWidget *parent) : QFrame(parent), mItem(item)
{
    mItem->editor = this;
    if (mItem->auxCallback)
        mInitialValue = mItem->toJsonValue();
    setProperty("ConfigItemQFrame", QStringLiteral("1"));
}

ConfigItemWidget::~ConfigItemWidget()
{
    if (mItem->auxCallback) {
        // Both are null today, so the callback stays dormant; it wakes when items get a JSON form.
        if (mItem->toJsonValue() != mInitialValue)
            mItem->auxCallback(mInitialValue, mItem);
    }
    // A page that was rebuilt meanwhile may already show the item in another editor.
    if (mItem->editor == this)
        mItem->editor = nullptr;
    if (!mWriting)
        return;
    QList<QWidget *> controls = findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    // A control that is its own caption lies beside the editor.
    if (mLabel && mLabel->parent() != this)
        controls.append(mLabel);
    mWriting->takeControls(controls);
}

QWidget *ConfigItemWidget::label()
{
    if (mLabel)
        return mLabel;
    mLabel = new QLabel(translatedText(), parentWidget());
    mLabel->setProperty("ConfigItemWidgetLabel", QStringLiteral("1"));
    refreshLabelState();
    return mLabel;
}

void ConfigItemWidget::retranslateUi()
{
    if (auto *text = qobject_cast<QLabel *>(mLabel))
        text->setText(translatedText());
    else if (auto *button = qobject_cast<QAbstractButton *>(mLabel))
        button->setText(translatedText());
}

void ConfigItemWidget::refreshLabelState()
{
    if (!mLabel)
        return;
    mLabel->setProperty("changed", mItem->isDefaultValue() ? QStringLiteral("0")
                                                           : QStringLiteral("1"));
    mLabel->style()->unpolish(mLabel);
    mLabel->style()->polish(mLabel);
    mLabel->update();
}

void ConfigItemWidget::restoreDefault()
{
    mItem->restoreDefault();
}

QString ConfigItemWidget::translatedText() const
{
    // The one context in which hosts mark their labels for translation.
    return QObject::tr(mItem->displayText);
}

} // namespace MtConf
