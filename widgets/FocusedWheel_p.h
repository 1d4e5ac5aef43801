#pragma once

#include <QWheelEvent>

namespace MtConf {

/// A `Control`, such as a scroll area or a spin box, that the mouse wheel scrolls or changes only
/// while it has the keyboard focus. Without the focus, and at the end of a scroll area, the wheel
/// scrolls the page.
template<class Control> class FocusedWheel : public Control
{
public:
    explicit FocusedWheel(QWidget *parent) : Control(parent)
    {
        // With Qt's default policy the wheel would give the focus to a text area.
        this->setFocusPolicy(Qt::StrongFocus);
    }

protected:
    void wheelEvent(QWheelEvent *event) override
    {
        if (this->hasFocus())
            Control::wheelEvent(event);
        else
            event->ignore();
    }
};

} // namespace MtConf
