// Style sheets with macros. The first byte selects the scale, the rest is the text.
#include "FuzzTarget.h"

#include <MaltoConfiguration/window/replaceSCAWithScaledValue.h>
#include <OrvUtils/QThemeCtrl.h>

#include <cmath>
#include <limits>

namespace {

constexpr double sScales[] = {1, 1.5, 2,    0.75,
                              0, -3,  1e30, std::numeric_limits<double>::quiet_NaN()};

/// Returns the length of the macro "SCA(n)" at `start`, or 0 if there is none.
int macroLength(const QString &text, int start)
{
    if (text.mid(start, 4) != "SCA(")
        return 0;
    int end = start + 4;
    while (end < text.size() && text.at(end).isDigit())
        ++end;
    return end > start + 4 && end < text.size() && text.at(end) == ')' ? end + 1 - start : 0;
}

QString scaledText(const QString &macro, float scale)
{
    const float product = static_cast<float>(macro.mid(4, macro.size() - 5).toInt()) * scale;
    if (!(std::fabs(product) < 2147483000.f))
        return "0";
    // Round like qRound().
    return QString::number(product >= 0 ? static_cast<int>(product + 0.5f)
                                        : -static_cast<int>(-product + 0.5f));
}

/// A model of replaceSCAWithScaledValue(), character by character: after a replacement it continues
/// at the start of the macro plus the macro's length.
QString replacedModel(QString text, float scale)
{
    for (int at = 0; at < text.size();) {
        const int length = macroLength(text, at);
        if (length == 0) {
            ++at;
            continue;
        }
        const QString value = scaledText(text.mid(at, length), scale);
        text = text.left(at) + value + text.mid(at + length);
        at += length;
    }
    return text;
}

void checkTheme(const QString &sheet, double scale)
{
    const QThemeCtrl *theme = QThemeCtrl::instance();
    const QString expanded = theme->expandMacros(sheet, scale);
    if (!sheet.contains("sca(") && !sheet.contains("var("))
        expect(expanded == sheet, "a sheet without macros is unchanged", expanded.toUtf8());
    // A name expands to at most 4096 characters, and its macro has at least six.
    expect(expanded.size() <= sheet.size() * 700, "the size of a sheet is limited");

    const QString plain = "a { width: 7px; } /* sca(9) var(ColorMain) */ \"x\"";
    expect(theme->expandMacros(plain + "}\n" + sheet, scale).startsWith(plain),
           "text without macros before a sheet is unchanged");
    const bool usable = std::isfinite(scale) && scale > 0;
    if (!usable)
        expect(expanded == theme->expandMacros(sheet, 1), "an impossible scale counts as 1");
    const QString rule = "\n}b { width: sca(8)px; color: var(ColorMain); }";
    if (usable && scale < 10 && !sheet.contains("/*") && !sheet.contains('\\')) {
        const QString value = QString::number(static_cast<int>(std::floor(8 * scale + 0.5)));
        expect(theme->expandMacros(sheet + rule, scale)
                   .endsWith("\n}b { width: " + value + "px; color: " + theme->value("ColorMain")
                             + "; }"),
               "a rule after any sheet is expanded",
               theme->expandMacros(sheet + rule, scale).toUtf8());
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    startFuzzing();
    if (size == 0)
        return 0;
    const double scale = sScales[data[0] % 8];
    const QString text = textOf(data + 1, size - 1);
    const auto single = static_cast<float>(scale);
    const QString replaced = replaceSCAWithScaledValue(text, single);
    expect(replaced == replacedModel(text, single), "macros are replaced", replaced.toUtf8(),
           replacedModel(text, single).toUtf8());
    checkTheme(text, scale);
    return 0;
}
