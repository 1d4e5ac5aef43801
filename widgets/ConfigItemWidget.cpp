#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

#include "HostCode_p.h"

#include <QAbstractButton>
#include <QDebug>
#include <QLabel>
#include <QStyle>

#include <utility>

namespace MtConf {

namespace {

/// Properties that mark accessible texts set by describeControls(), which may set them again.
const char sNamedByPage[] = "NamedByPage";
const char sDescribedByPage[] = "DescribedByPage";

/// Sets the accessible name, unless the editor has set one.
void setNameUnlessOwn(QWidget *widget, const QString &name)
{
    if (!widget->property(sNamedByPage).toBool() && !widget->accessibleName().isEmpty())
        return;
    widget->setProperty(sNamedByPage, true);
    widget->setAccessibleName(name);
}

void setDescriptionUnlessOwn(QWidget *widget, const QString &description)
{
    if (!widget->property(sDescribedByPage).toBool() && !widget->accessibleDescription().isEmpty())
        return;
    widget->setProperty(sDescribedByPage, true);
    widget->setAccessibleDescription(description);
}

/// Returns the descendants of `widget` that take the keyboard focus, without their own descendants.
QList<QWidget *> controlsIn(const QWidget *widget)
{
    QList<QWidget *> controls;
    const QList<QWidget *> children = widget->findChildren<QWidget *>(QString(),
                                                                      Qt::FindDirectChildrenOnly);
    for (QWidget *child : children) {
        if (child->isWindow())
            continue;
        if (child->focusPolicy() != Qt::NoFocus)
            controls.append(child);
        else
            controls.append(controlsIn(child));
    }
    return controls;
}

} // namespace

bool ConfigItemWidget::sFullKeyboardAccess = false;

void ConfigItemWidget::logNoItem()
{
    qCritical() << "ConfigItemWidget without an item";
}

ConfigItemWidget::Writing::Writing(ConfigItemWidget *editor)
    : mEditor(editor), mScope(std::make_unique<HostCodeScope>(editor->mHostCode))
{
    ++editor->mWrites;
}

ConfigItemWidget::Writing::~Writing()
{
    if (mEditor)
        --mEditor->mWrites;
}

ConfigItemWidget::ConfigItemWidget(ConfItem *item, QWidget *parent)
    : QFrame(parent), mItem(item), mHostCode(HostCode::of(this))
{
    mItem->editor = this;
    if (mItem->auxCallback)
        mInitialValue = mItem->toJsonValue();
    setProperty("ConfigItemQFrame", QStringLiteral("1"));
}

ConfigItemWidget::~ConfigItemWidget()
{
    if (mItem->auxCallback) {
        // Both values are null, so the callback is not called until items have a JSON value.
        if (mItem->toJsonValue() != mInitialValue)
            mItem->auxCallback(mInitialValue, mItem);
    }
    // A rebuilt page may already show the item in another editor.
    if (mItem->editor == this)
        mItem->editor = nullptr;
    // The host may delete the editor in a callback.
    if (isWriting())
        leaveControls();
}

void ConfigItemWidget::leaveControls()
{
    QList<QWidget *> controls = findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    // A control that is the caption may have another parent.
    if (mLabel && mLabel->parent() != this)
        controls.append(mLabel);
    for (QWidget *control : std::as_const(controls)) {
        control->disconnect(this);
        control->setParent(nullptr);
        mHostCode->deleteWidget(control);
    }
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

void ConfigItemWidget::describeControls(const QString &group)
{
    QList<QWidget *> controls = controlsIn(this);
    // A control that is the caption has its name as its text.
    if (mLabel && !isAncestorOf(mLabel) && mLabel->focusPolicy() != Qt::NoFocus)
        controls.prepend(mLabel);
    // The frame too, because on some systems combo boxes report their value instead of their name.
    setNameUnlessOwn(this, translatedText());
    for (QWidget *control : std::as_const(controls)) {
        if (control != mLabel)
            setNameUnlessOwn(control, translatedText());
        setDescriptionUnlessOwn(control, group);
    }
    if (auto *caption = qobject_cast<QLabel *>(mLabel)) {
        // A caption with a buddy would interpret an ampersand as the mark of a shortcut key.
        const bool canHaveBuddy = !controls.isEmpty()
                                  && !caption->text().contains(QLatin1Char('&'));
        caption->setBuddy(canHaveBuddy ? controls.first() : nullptr);
    }
}

void ConfigItemWidget::refreshLabelState()
{
    if (!mLabel)
        return;
    mLabel->setProperty("changed",
                        mItem->isDefaultValue() ? QStringLiteral("0") : QStringLiteral("1"));
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
    // The context in which hosts mark labels for translation.
    return QObject::tr(mItem->displayText);
}

} // namespace MtConf
