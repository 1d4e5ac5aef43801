#pragma once

#include <MaltoConfiguration/malto_export.h>

#include <QComboBox>

/// A combo box that ignores the mouse wheel, so that scrolling a page does not change its value.
///
/// @see QSpinBoxDisableWheel
/// @since 0.1
class MALTO_EXPORT ComboboxDisableWheel : public QComboBox
{
    Q_OBJECT
public:
    using QComboBox::QComboBox;

protected:
    /// Ignores the event, so that the page scrolls.
    void wheelEvent(QWheelEvent *event) override;
};
