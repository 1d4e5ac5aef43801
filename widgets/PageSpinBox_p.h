#pragma once

#include "FocusedWheel_p.h"

#include <QEvent>

namespace MtConf {

/// A spin box `Box` that ignores the mouse wheel without the keyboard focus, and whose text is
/// aligned with the layout direction.
template<class Box> class PageSpinBox : public FocusedWheel<Box>
{
public:
    explicit PageSpinBox(QWidget *parent) : FocusedWheel<Box>(parent) { alignText(); }

protected:
    void changeEvent(QEvent *event) override
    {
        Box::changeEvent(event);
        if (event->type() == QEvent::LayoutDirectionChange)
            alignText();
    }

private:
    void alignText()
    {
        // A line edit by itself follows the direction of its text.
        const Qt::Alignment side = this->isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft;
        this->setAlignment(side | Qt::AlignAbsolute | Qt::AlignVCenter);
    }
};

} // namespace MtConf
