#pragma once

#include <MaltoConfiguration/malto_export.h>

#include <QSpinBox>

/// A spin box that the mouse wheel changes only while it has the keyboard focus; without it the
/// wheel scrolls the page.
class MALTO_EXPORT QSpinBoxDisableWheel : public QSpinBox
{
    Q_OBJECT
public:
    using QSpinBox::QSpinBox;

protected:
    /// Leaves the event to the page unless the box has the keyboard focus.
    void wheelEvent(QWheelEvent *event) override;
};
