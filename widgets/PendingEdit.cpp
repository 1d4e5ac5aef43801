#include "PendingEdit_p.h"

#include <QFocusEvent>
#include <QWidget>

#include <utility>

namespace MtConf {

namespace {

constexpr int sPauseBeforeStoring = 600; // milliseconds

} // namespace

PendingEdit::PendingEdit(QWidget *field) : QObject(field), mField(field)
{
    mPause.setSingleShot(true);
    mPause.setInterval(sPauseBeforeStoring);
    connect(&mPause, &QTimer::timeout, this, &PendingEdit::paused);
    field->installEventFilter(this);
}

void PendingEdit::begin()
{
    mIsPending = true;
    mPause.start();
}

bool PendingEdit::take()
{
    mPause.stop();
    return std::exchange(mIsPending, false);
}

bool PendingEdit::isTyping() const
{
    return mIsPending && mField->hasFocus();
}

bool PendingEdit::eventFilter(QObject *watched, QEvent *event)
{
    // The context menu of the field takes the focus only for a while.
    if (event->type() == QEvent::FocusOut
        && static_cast<QFocusEvent *>(event)->reason() != Qt::PopupFocusReason)
        Q_EMIT left();
    return QObject::eventFilter(watched, event);
}

} // namespace MtConf
