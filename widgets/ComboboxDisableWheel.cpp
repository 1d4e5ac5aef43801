#include <MaltoConfiguration/widgets/ComboboxDisableWheel.h>

#include <QWheelEvent>

void ComboboxDisableWheel::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}
