#pragma once

#include <QEvent>
#include <QWheelEvent>

namespace MtConf {

/// A spin box `Box` on a page. The mouse wheel changes its value only while it has the keyboard
/// focus; otherwise it scrolls the page. The text is aligned with the layout direction.
template<class Box> class PageSpinBox : public Box
{
public:
    explicit PageSpinBox(QWidget *parent) : Box(parent)
    {
        this->setFocusPolicy(Qt::StrongFocus);
        alignText();
    }

protected:
    void changeEvent(QEvent *event) override
    {
        Box::changeEvent(event);
        if (event->type() == QEvent::LayoutDirectionChange)
            alignText();
    }
    void wheelEvent(QWheelEvent *event) override
    {
        if (this->hasFocus())
            Box::wheelEvent(event);
        else
            event->ignore();
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
