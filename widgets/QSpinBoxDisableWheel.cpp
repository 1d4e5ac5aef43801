#include <MaltoConfiguration/widgets/QSpinBoxDisableWheel.h>

#include <QWheelEvent>

void QSpinBoxDisableWheel::wheelEvent(QWheelEvent *event)
{
    if (hasFocus())
        QSpinBox::wheelEvent(event);
    else
        event->ignore();
}
