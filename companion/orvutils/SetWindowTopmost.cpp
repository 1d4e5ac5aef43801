#include <OrvUtils/SetWindowTopmost.h>

#include <QWidget>
#include <QWindow>

void SetWindowTopmost(QWidget *window, bool on, OrvWindowType)
{
    if (!window)
        return;
    QWidget *const topLevel = window->window();
    Qt::WindowFlags flags = topLevel->windowFlags();
    flags.setFlag(Qt::WindowStaysOnTopHint, on);
    if (flags == topLevel->windowFlags())
        return;
    // QWidget::setWindowFlags() would hide the window, so set the flags of the widget and of the
    // native window separately.
    topLevel->overrideWindowFlags(flags);
    if (QWindow *const handle = topLevel->windowHandle())
        handle->setFlag(Qt::WindowStaysOnTopHint, on);
}
