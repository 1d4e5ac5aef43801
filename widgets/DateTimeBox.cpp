#include "DateTimeBox_p.h"

#include "EditorTexts_p.h"

#include <MaltoConfiguration/manage/ConfItem.h>

#include <QCalendarWidget>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLocale>
#include <QSignalBlocker>

namespace MtConf {

QString dateTimeFormat(const QLocale &locale, const QDateTime &time)
{
    QString date = locale.dateFormat(QLocale::ShortFormat);
    if (!date.contains(QLatin1String("yyyy")))
        date.replace(QLatin1String("yy"), QLatin1String("yyyy"));
    QString clock = locale.timeFormat(QLocale::ShortFormat);
    const bool hasSeconds = time.isValid() && time.time().second() != 0;
    if (hasSeconds && !clock.contains(QLatin1String("ss")))
        clock.replace(QLatin1String("mm"), QLatin1String("mm:ss"));
    else if (!hasSeconds)
        clock.remove(QLatin1String(":ss"));
    return date + QLatin1Char(' ') + clock;
}

DateTimeBox::DateTimeBox(const ConfItem &item, QWidget *parent) : PageSpinBox(parent)
{
    if (item.properties.contains(QStringLiteral("Malto.RangeRule"))) {
        mEarliest = item.properties.value(QStringLiteral("MinValue")).toDateTime().toLocalTime();
        mLatest = item.properties.value(QStringLiteral("MaxValue")).toDateTime().toLocalTime();
    }
    // The first minute means that there is no value. Qt's own limits exclude years before 1752.
    setDateTimeRange(QDateTime(QDate(100, 1, 1), QTime(0, 0)),
                     QDateTime(QDate(9999, 12, 31), QTime(23, 59, 59, 999)));
    setCalendarPopup(true);
}

QDateTime DateTimeBox::time() const
{
    return isUnset() ? QDateTime() : dateTime();
}

void DateTimeBox::showTime(const QDateTime &time)
{
    const QDateTime local = time.toLocalTime();
    setDisplayFormat(dateTimeFormat(locale(), local));
    setDateTime(local.isValid() ? local : minimumDateTime());
}

QString DateTimeBox::message() const
{
    const auto text = [this](const QDateTime &limit) {
        return locale().toString(limit, QLocale::ShortFormat);
    };
    return QCoreApplication::translate("MtConf::ConfWidgetDateTime",
                                       "Enter a date and time from %1 to %2")
        .arg(text(mEarliest), text(mLatest));
}

QDateTime DateTimeBox::nearest(const QDateTime &time) const
{
    if (mEarliest.isValid() && time < mEarliest)
        return mEarliest;
    return mLatest.isValid() && time > mLatest ? mLatest : time;
}

QDateTime DateTimeBox::now() const
{
    QDateTime now = QDateTime::currentDateTime();
    now.setTime(QTime(now.time().hour(), now.time().minute()));
    return nearest(now);
}

QSize DateTimeBox::sizeHint() const
{
    const QSize size = QDateTimeEdit::sizeHint();
    return {size.width() + size.height(), size.height()};
}

void DateTimeBox::stepBy(int steps)
{
    if (isUnset()) {
        setDateTime(now());
        return;
    }
    const QDateTime before = dateTime();
    {
        const QSignalBlocker blocker(this);
        QDateTimeEdit::stepBy(steps);
        if (!isInRange(dateTime()))
            setDateTime(nearest(dateTime()));
    }
    if (dateTime() != before)
        Q_EMIT dateTimeChanged(dateTime());
}

QAbstractSpinBox::StepEnabled DateTimeBox::stepEnabled() const
{
    return isUnset() ? StepUpEnabled | StepDownEnabled : QDateTimeEdit::stepEnabled();
}

void DateTimeBox::mousePressEvent(QMouseEvent *event)
{
    QDateTimeEdit::mousePressEvent(event);
    // Without a value the calendar would open at its first year.
    if (isUnset() && calendarWidget() && calendarWidget()->isVisible()) {
        const QSignalBlocker blocker(calendarWidget());
        calendarWidget()->setSelectedDate(now().date());
    }
}

void DateTimeBox::keyPressEvent(QKeyEvent *event)
{
    const QString text = event->text();
    if (isUnset() && !text.isEmpty() && text.at(0).isDigit()) {
        // The digit replaces the first part of the current time.
        const QSignalBlocker blocker(this);
        setDateTime(now());
        setSelectedSection(sectionAt(0));
    }
    QDateTimeEdit::keyPressEvent(event);
}

} // namespace MtConf
