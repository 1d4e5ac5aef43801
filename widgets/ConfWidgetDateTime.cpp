#include <MaltoConfiguration/widgets/ConfWidgetDateTime.h>

#include "DateTimeBox_p.h"
#include "Glyphs_p.h"
#include "PendingEdit_p.h"

#include <QIconfont/QIconfont.h>

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTimeZone>

namespace MtConf {

namespace {

/// Returns `time`, which is in local time, with the time zone of `stored`.
QDateTime inZoneOf(const QDateTime &stored, const QDateTime &time)
{
    switch (stored.isValid() ? stored.timeSpec() : Qt::LocalTime) {
    case Qt::UTC: return time.toUTC();
    case Qt::OffsetFromUTC: return time.toOffsetFromUtc(stored.offsetFromUtc());
    case Qt::TimeZone: return time.toTimeZone(stored.timeZone());
    case Qt::LocalTime: break;
    }
    return time;
}

} // namespace

ConfWidgetDateTime::ConfWidgetDateTime(ConfItem *item, QWidget *parent)
    : ConfigItemWidget(item, parent), mEdit(new DateTimeBox(*item, this)),
      mClearButton(new QPushButton(this)), mPending(new PendingEdit(mEdit))
{
    mClearButton->setIcon(QIconfont::Icon(sErrorGlyph, QColor(255, 85, 85), 24, QMargins()));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mEdit);
    layout->addWidget(mClearButton);
    layout->setAlignment(Qt::AlignLeft);
    connect(mPending, &PendingEdit::paused, this, &ConfWidgetDateTime::commit);
    connect(mEdit, &QDateTimeEdit::dateTimeChanged, this, &ConfWidgetDateTime::onTimeChanged);
    connect(mEdit->findChild<QLineEdit *>(), &QLineEdit::textEdited, mPending, &PendingEdit::begin);
    connect(mEdit, &QDateTimeEdit::editingFinished, this, &ConfWidgetDateTime::onEditingFinished);
    connect(mClearButton, &QPushButton::clicked, this, &ConfWidgetDateTime::clear);
    showTexts();
    loadConf();
}

ConfigItemWidget *ConfWidgetDateTime::CreatConfWidget(ConfItem *item, QWidget *parent)
{
    return create<ConfWidgetDateTime>(item, parent);
}

void ConfWidgetDateTime::showTexts()
{
    mEdit->setSpecialValueText(tr("Not set"));
    mClearButton->setToolTip(tr("Clear"));
    mClearButton->setAccessibleName(tr("Clear"));
}

void ConfWidgetDateTime::retranslateUi()
{
    ConfigItemWidget::retranslateUi();
    showTexts();
    loadConf(); // removes a message in the former language
}

void ConfWidgetDateTime::loadConf()
{
    const QSignalBlocker blocker(mEdit);
    mPending->take();
    const auto stored = readValue<QDateTime>();
    mEdit->showTime(stored);
    mShownTime = mEdit->dateTime();
    mClearButton->setVisible(stored.isValid());
    showMessage(QString());
    refreshLabelState();
}

void ConfWidgetDateTime::onTimeChanged(const QDateTime &time)
{
    // Return emits the time that the field has shown once more.
    if (time == mShownTime)
        return;
    mShownTime = time;
    mPending->begin();
}

void ConfWidgetDateTime::commit()
{
    if (!mPending->take())
        return;
    if (!mEdit->hasAcceptableInput() || !mEdit->time().isValid())
        mPending->keep();
    else if (mEdit->isInRange(mEdit->time()))
        write(inZoneOf(readValue<QDateTime>(), mEdit->time()));
    else
        showMessage(mEdit->message());
}

void ConfWidgetDateTime::write(const QDateTime &value)
{
    if (!writeValue(value))
        return;
    showMessage(QString());
    mClearButton->setVisible(value.isValid());
    refreshLabelState();
}

void ConfWidgetDateTime::onEditingFinished()
{
    const QPointer<ConfWidgetDateTime> self(this);
    commit();
    // Return leaves a time that is not accepted in the field, with the message.
    if (self && !mEdit->hasFocus())
        loadConf();
}

void ConfWidgetDateTime::clear()
{
    mPending->take();
    mEdit->setFocus(); // the button is about to be hidden
    const QPointer<ConfWidgetDateTime> self(this);
    write(QDateTime());
    if (self)
        loadConf();
}

} // namespace MtConf
