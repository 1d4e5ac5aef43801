#pragma once

#include <QWheelEvent>

namespace MtConf {

/// A scroll area `Area` that the mouse wheel scrolls only while it has the keyboard focus. Without
/// the focus, and at the end of the area, the wheel scrolls the page.
template<class Area> class FocusedWheel : public Area
{
public:
    explicit FocusedWheel(QWidget *parent) : Area(parent)
    {
        // With Qt's default policy the wheel would give the focus to a text area.
        this->setFocusPolicy(Qt::StrongFocus);
    }

protected:
    void wheelEvent(QWheelEvent *event) override
    {
        if (this->hasFocus())
            Area::wheelEvent(event);
        else
            event->ignore();
    }
};

} // namespace MtConf
