#include "ThemeValues_p.h"

#include <QColor>

#include <cmath>

namespace {

constexpr double sHighContrast = 20; // black on white is 21
constexpr double sTextContrast = 4.5;

/// Returns the relative luminance, as the Web Content Accessibility Guidelines define it.
double luminance(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
           + 0.0722 * linear(color.blueF());
}

double contrastRatio(const QColor &one, const QColor &other)
{
    const double first = luminance(one);
    const double second = luminance(other);
    return (qMax(first, second) + 0.05) / (qMin(first, second) + 0.05);
}

/// Returns `ground` with `percent` of `text`.
QColor mixed(const QColor &ground, const QColor &text, int percent)
{
    const auto part = [percent](int from, int to) { return from + (to - from) * percent / 100; };
    return {part(ground.red(), text.red()), part(ground.green(), text.green()),
            part(ground.blue(), text.blue())};
}

} // namespace

bool isOfHighContrast(const QPalette &palette)
{
    return contrastRatio(palette.color(QPalette::Window), palette.color(QPalette::WindowText))
               >= sHighContrast
           && contrastRatio(palette.color(QPalette::Base), palette.color(QPalette::Text))
                  >= sHighContrast;
}

QPalette contrastPalette(bool isDark)
{
    const QColor ground = isDark ? Qt::black : Qt::white;
    const QColor text = isDark ? Qt::white : Qt::black;
    QPalette palette(text, ground, text, text, text, text, text, ground, ground);
    palette.setColor(QPalette::Highlight, isDark ? QColor(255, 255, 0) : QColor(0, 0, 160));
    palette.setColor(QPalette::HighlightedText, ground);
    palette.setColor(QPalette::Disabled, QPalette::WindowText,
                     isDark ? QColor(160, 160, 160) : QColor(96, 96, 96));
    return palette;
}

QMap<QString, QString> contrastThemeValues(const QPalette &palette)
{
    const QColor window = palette.color(QPalette::Active, QPalette::Window);
    const QColor windowText = palette.color(QPalette::Active, QPalette::WindowText);
    QColor highlight = palette.color(QPalette::Active, QPalette::Highlight);
    QColor highlighted = palette.color(QPalette::Active, QPalette::HighlightedText);
    // The accent is also the colour of links and of the ring around the focus.
    if (contrastRatio(highlight, window) < sTextContrast
        || contrastRatio(highlight, highlighted) < sTextContrast) {
        highlight = windowText;
        highlighted = window;
    }
    const bool isDark = luminance(window) < luminance(windowText);
    const QString ground = window.name();
    const QString text = windowText.name();
    const QString faint = palette.color(QPalette::Disabled, QPalette::WindowText).name();
    const bool hasDarkMarks = luminance(highlighted) < luminance(highlight);
    return {
        {QStringLiteral("ModernGround"), ground},
        {QStringLiteral("ModernPanel"), ground},
        {QStringLiteral("ModernLine"), text},
        {QStringLiteral("ModernHover"), mixed(window, windowText, 20).name()},
        {QStringLiteral("ModernText"), text},
        {QStringLiteral("ModernSecondary"), text},
        // Not that of a value, but readable: 7 to 1 on white.
        {QStringLiteral("ModernPlaceholder"), mixed(window, windowText, 65).name()},
        {QStringLiteral("ModernFaint"), faint},
        {QStringLiteral("ModernField"), ground},
        {QStringLiteral("ModernFieldLine"), text},
        {QStringLiteral("ModernDisabledLine"), faint},
        {QStringLiteral("ModernArrows"), isDark ? QStringLiteral("light") : QStringLiteral("dark")},
        {QStringLiteral("ModernAccent"), highlight.name()},
        {QStringLiteral("ModernOnAccent"), highlighted.name()},
        {QStringLiteral("ModernKnob"), ground},
        {QStringLiteral("ModernWarning"), text},
        {QStringLiteral("ModernError"), text},
        {QStringLiteral("ModernOnError"), ground},
        {QStringLiteral("ModernGood"), text},
        {QStringLiteral("ModernHit"),
         isDark ? QStringLiteral("#505000") : QStringLiteral("#ffff00")},
        {QStringLiteral("ModernMarks"),
         hasDarkMarks ? QStringLiteral("dark") : QStringLiteral("light")},
    };
}
