#include "ThemeValues_p.h"

namespace {

QString mainFontFamilies()
{
    return QStringLiteral("\"Helvetica Neue\", Helvetica, \"PingFang SC\", \"Hiragino Sans GB\", "
                          "\"Microsoft YaHei\", Arial, sans-serif");
}

} // namespace

QMap<QString, QString> lightThemeValues()
{
    return {
        {QStringLiteral("ColorBg0"), QStringLiteral("#f2f3f5")},
        {QStringLiteral("ColorBg1"), QStringLiteral("#ffffff")},
        {QStringLiteral("ColorBg1Border"), QStringLiteral("#dfe1e6")},
        {QStringLiteral("ColorBg2"), QStringLiteral("#e6e9ee")},
        {QStringLiteral("ColorBg3"), QStringLiteral("#f7f8fa")},
        {QStringLiteral("ColorBg3Border"), QStringLiteral("#c8ccd4")},
        {QStringLiteral("ColorFg0"), QStringLiteral("#1f2329")},
        {QStringLiteral("ColorMain"), QStringLiteral("#2a67d8")},
        {QStringLiteral("ColorSuccess"), QStringLiteral("#2e8b45")},
        {QStringLiteral("ColorWarning"), QStringLiteral("#b96e00")},
        {QStringLiteral("ColorFailed"), QStringLiteral("#d13438")},
        {QStringLiteral("ColorDisable"), QStringLiteral("#858b95")},
        {QStringLiteral("FontMain"), mainFontFamilies()},
    };
}

QMap<QString, QString> darkThemeValues()
{
    return {
        {QStringLiteral("ColorBg0"), QStringLiteral("#1e1f22")},
        {QStringLiteral("ColorBg1"), QStringLiteral("#2b2d30")},
        {QStringLiteral("ColorBg1Border"), QStringLiteral("#3d4046")},
        {QStringLiteral("ColorBg2"), QStringLiteral("#383b41")},
        {QStringLiteral("ColorBg3"), QStringLiteral("#232528")},
        {QStringLiteral("ColorBg3Border"), QStringLiteral("#4c5058")},
        {QStringLiteral("ColorFg0"), QStringLiteral("#e4e6ea")},
        {QStringLiteral("ColorMain"), QStringLiteral("#3673dd")},
        {QStringLiteral("ColorSuccess"), QStringLiteral("#62b76b")},
        {QStringLiteral("ColorWarning"), QStringLiteral("#e3a53a")},
        {QStringLiteral("ColorFailed"), QStringLiteral("#f26d6d")},
        {QStringLiteral("ColorDisable"), QStringLiteral("#878c96")},
        {QStringLiteral("FontMain"), mainFontFamilies()},
    };
}
