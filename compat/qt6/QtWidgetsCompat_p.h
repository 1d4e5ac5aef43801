#pragma once

#include <QApplication>
#include <QSize>

// What QtCompat_p.h holds, for what needs Qt Widgets.
namespace QtCompat {

/// The least size of everything that is clicked. Qt 6 knows none: none it is, as Qt 5 has it by
/// default.
inline QSize globalStrut()
{
    return QSize(0, 0);
}

} // namespace QtCompat
