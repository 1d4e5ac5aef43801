#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

#include "Captions_p.h"
#include "HostCode_p.h"
#include "RangeCheck_p.h"
#include "RowDependency_p.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QCoreApplication>
#include <QDateTime>
#include <QDebug>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPlainTextEdit>
#include <QStyle>
#include <QTextDocument>

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
    if (!mItem->dependencies.isEmpty())
        new RowDependency(mItem->dependencies, this);
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
    mLabel = new CaptionLabel(translatedText(), parentWidget());
    mLabel->setProperty("ConfigItemWidgetLabel", QStringLiteral("1"));
    refreshLabelState();
    updateToolTips();
    if (!mIsRowEnabled)
        mLabel->setEnabled(false);
    return mLabel;
}

void ConfigItemWidget::retranslateUi()
{
    if (auto *text = qobject_cast<QLabel *>(mLabel))
        text->setText(translatedText());
    else if (auto *button = qobject_cast<QAbstractButton *>(mLabel))
        button->setText(translatedText());
    updateToolTips();
}

void ConfigItemWidget::commit() {}

void ConfigItemWidget::refresh()
{
    const QPointer<ConfigItemWidget> self(this);
    const bool wasRefreshing = std::exchange(mIsRefreshing, true);
    loadConf();
    if (!self)
        return;
    mIsRefreshing = wasRefreshing;
    refreshLabelState();
}

bool ConfigItemWidget::isBeingEdited() const
{
    const QWidget *focused = window()->focusWidget();
    if (!focused || !isAncestorOf(focused))
        return false;
    if (const auto *box = qobject_cast<const QAbstractSpinBox *>(focused))
        focused = box->findChild<QLineEdit *>();
    if (const auto *field = qobject_cast<const QLineEdit *>(focused))
        return field->isModified();
    const auto *text = qobject_cast<const QPlainTextEdit *>(focused);
    return text && text->document()->isModified();
}

ConfigItemWidget::Status ConfigItemWidget::status()
{
    return {};
}

QLabel *ConfigItemWidget::messageLabel()
{
    const bool hasMessage = mHasMessage || mItem->validator
                            || mItem->properties.contains(QStringLiteral("Malto.RangeRule"));
    if (!mMessage && hasMessage) {
        mMessage = new QLabel(parentWidget());
        mMessage->setProperty("ConfigItemMessage", QStringLiteral("1"));
        mMessage->setTextFormat(Qt::PlainText);
        mMessage->setWordWrap(true);
        mMessage->hide();
    }
    return mMessage;
}

void ConfigItemWidget::showMessage(const QString &text)
{
    if (!mMessage || mMessage->text() == text)
        return;
    mMessage->setText(text);
    mMessage->setVisible(!text.isEmpty());
    if (!text.isEmpty()) {
        QAccessibleEvent event(mMessage, QAccessible::Alert);
        QAccessible::updateAccessibility(&event);
    }
}

bool ConfigItemWidget::isAccepted(const QJsonValue &value)
{
    const auto validator = mItem->validator; // a copy: the host may replace it in the call
    if (!validator || mIsRefreshing)
        return true;
    const Writing writing(this);
    const QString reason = validator(value);
    if (writing.hasEditor())
        showMessage(reason);
    return writing.hasEditor() && reason.isEmpty();
}

QJsonValue ConfigItemWidget::readJson() const
{
    return ConfStorage::instance()->mConfValues.value(mItem->getFullName()).toJsonValue();
}

bool ConfigItemWidget::writeJson(const QJsonValue &value)
{
    if (mIsRefreshing)
        return false;
    if (readJson() == value) {
        showMessage(QString());
        return false;
    }
    if (!isAccepted(value))
        return false;
    const Writing writing(this);
    const ConfOperation edit(ConfStorage::instance(), ConfChange::Cause::Edited);
    ConfStorage::instance()->loadValueFromJson(mItem->getFullName(), value);
    return writing.hasEditor() && isStored(value);
}

/// Returns whether the store has taken the value. If the constraint of the key has refused or
/// changed it, shows the stored value.
bool ConfigItemWidget::isStored(const QJsonValue &value)
{
    if (!hasConstraint() || readJson() == value)
        return true;
    loadConf();
    refreshLabelState();
    return false;
}

bool ConfigItemWidget::hasConstraint() const
{
    return ConfStorage::instance()->hasConfConstraint(mItem->getFullName());
}

/// Enables or disables the editor and its caption, which may not exist yet.
void ConfigItemWidget::setRowEnabled(bool isEnabled)
{
    // A control that is disabled loses the focus, and would store its text while Qt disables it.
    const Writing writing(this);
    mIsRowEnabled = isEnabled;
    if (!isEnabled)
        commit();
    if (!writing.hasEditor()) // a callback has deleted it
        return;
    applyEnabled();
}

void ConfigItemWidget::setRowLocked(bool isLocked)
{
    mIsRowLocked = isLocked;
    applyEnabled();
}

void ConfigItemWidget::applyEnabled()
{
    const bool isEnabled = mIsRowEnabled && !mIsRowLocked;
    setEnabled(isEnabled);
    if (mLabel)
        mLabel->setEnabled(isEnabled);
}

void ConfigItemWidget::describeControls(const QString &group)
{
    const QPointer<ConfigItemWidget> self(this);
    if (!mIsRowEnabled)
        setRowEnabled(false); // the caption of a derived class, too
    if (!self)
        return;
    updateToolTips();
    const QString help = mItem->helpText();
    QList<QWidget *> controls = controlsIn(this);
    // A control that is the caption has its name as its text.
    if (mLabel && !isAncestorOf(mLabel) && mLabel->focusPolicy() != Qt::NoFocus)
        controls.prepend(mLabel);
    // The frame too, because on some systems combo boxes report their value instead of their name.
    setNameUnlessOwn(this, translatedText());
    for (QWidget *control : std::as_const(controls)) {
        if (control != mLabel)
            setNameUnlessOwn(control, translatedText());
        setDescriptionUnlessOwn(control, help.isEmpty() ? group : help);
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

/// Sets the tool tips of the row, if the item has a text for them.
void ConfigItemWidget::updateToolTips()
{
    QStringList lines{mItem->helpText(), rangeText()};
    lines.removeAll(QString());
    if (lines.isEmpty())
        return;
    // Rich text, so that long lines are wrapped.
    const QString text = QStringLiteral("<p>%1</p>")
                             .arg(lines.join(QLatin1Char('\n'))
                                      .toHtmlEscaped()
                                      .replace(QLatin1Char('\n'), QStringLiteral("<br>")));
    setToolTip(text);
    if (mLabel)
        mLabel->setToolTip(text);
}

QString ConfigItemWidget::rangeText() const
{
    const QVariant lowest = mItem->properties.value(QStringLiteral("MinValue"));
    const QVariant highest = mItem->properties.value(QStringLiteral("MaxValue"));
    if (!mItem->properties.contains(QStringLiteral("Malto.RangeRule")))
        return QString();
    const bool isTime = lowest.userType() == QMetaType::QDateTime;
    if (isTime && !(lowest.toDateTime().isValid() && highest.toDateTime().isValid()))
        return QString(); // an open range
    const QLocale locale = this->locale();
    const auto text = [&](const QVariant &limit) {
        return isTime ? locale.toString(limit.toDateTime().toLocalTime(), QLocale::ShortFormat)
                      : numberText(locale, limit.toDouble());
    };
    return QCoreApplication::translate("MtConf::ConfigItemWidget", "From %1 to %2")
        .arg(text(lowest), text(highest) + mItem->suffixText());
}

QString ConfigItemWidget::translatedText() const
{
    // The context in which hosts mark labels for translation.
    return QObject::tr(mItem->displayText);
}

} // namespace MtConf
