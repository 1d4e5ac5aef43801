#pragma once

#include <QApplication>
#include <QSize>

// What QtCompat_p.h holds, for what needs Qt Widgets.
namespace QtCompat {

/// The least size of everything that is clicked, which a host may set.
inline QSize globalStrut()
{
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    return QApplication::globalStrut();
    QT_WARNING_POP
}

} // namespace QtCompat
