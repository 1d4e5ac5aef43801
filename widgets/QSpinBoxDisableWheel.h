#pragma once

#include <MaltoConfiguration/malto_export.h>

#include <QSpinBox>

/// A spin box whose value the mouse wheel changes only while the box has the keyboard focus.
/// Without the focus the wheel scrolls the page.
///
/// @see ComboboxDisableWheel
/// @since 0.1
class MALTO_EXPORT QSpinBoxDisableWheel : public QSpinBox
{
    Q_OBJECT
public:
    using QSpinBox::QSpinBox;

protected:
    /// Ignores the event unless the box has the keyboard focus.
    void wheelEvent(QWheelEvent *event) override;
};
