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
    // QWidget::setWindowFlags() would hide the window. Setting its record and telling the window
    // system apart from it leaves the window standing.
    topLevel->overrideWindowFlags(flags);
    if (QWindow *const handle = topLevel->windowHandle())
        handle->setFlag(Qt::WindowStaysOnTopHint, on);
}
