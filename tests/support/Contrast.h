#pragma once

#include <QColor>
#include <QtMath>

/// Returns the relative luminance of a colour, from 0 for black to 1 for white, as defined by the
/// Web Content Accessibility Guidelines (WCAG).
inline double luminance(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : qPow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
           + 0.0722 * linear(color.blueF());
}

/// Returns the contrast ratio of two colours, from 1 for equal colours to 21 for black on white.
inline double contrast(const QColor &one, const QColor &other)
{
    const double light = qMax(luminance(one), luminance(other));
    const double dark = qMin(luminance(one), luminance(other));
    return (light + 0.05) / (dark + 0.05);
}
