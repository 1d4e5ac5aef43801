#pragma once

#include <MaltoConfiguration/malto_export.h>

#include <QComboBox>

/// A combo box that never changes by the mouse wheel, so that scrolling a page does not change its
/// values by accident.
class MALTO_EXPORT ComboboxDisableWheel : public QComboBox
{
    Q_OBJECT
public:
    using QComboBox::QComboBox;

protected:
    /// Leaves the event to the page, which scrolls.
    void wheelEvent(QWheelEvent *event) override;
};
