#pragma once

#include "PageSpinBox_p.h"

#include <QDateTimeEdit>

namespace MtConf {

class ConfItem;

/// A field for a point in time in local time, or none. A point in time outside of the range can be
/// entered; the arrows stop at the limits.
class DateTimeBox : public PageSpinBox<QDateTimeEdit>
{
public:
    /// Creates a field with the range of `item`, if it has one.
    DateTimeBox(const ConfItem &item, QWidget *parent);

    /// Returns the point in time in local time; invalid if there is none.
    QDateTime time() const;
    /// Shows `time`, with seconds if it has some. Emits what QDateTimeEdit does.
    void showTime(const QDateTime &time);
    bool isInRange(const QDateTime &time) const { return nearest(time) == time; }
    /// Returns a sentence that says which points in time are accepted.
    QString message() const;

    /// Qt's size and room for the arrow, which Qt does not add with a style sheet.
    QSize sizeHint() const override;
    void stepBy(int steps) override;

protected:
    StepEnabled stepEnabled() const override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool isUnset() const { return dateTime() <= minimumDateTime(); }
    QDateTime nearest(const QDateTime &time) const;
    QDateTime now() const;

    QDateTime mEarliest; // invalid: no limit
    QDateTime mLatest;
};

} // namespace MtConf
