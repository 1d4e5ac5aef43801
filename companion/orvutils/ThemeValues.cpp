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
        {QStringLiteral("ModernGround"), QStringLiteral("#f3f4f6")},
        {QStringLiteral("ModernPanel"), QStringLiteral("#ffffff")},
        {QStringLiteral("ModernLine"), QStringLiteral("#e6e8ec")},
        {QStringLiteral("ModernHover"), QStringLiteral("#e9ebef")},
        {QStringLiteral("ModernText"), QStringLiteral("#1f2329")},
        {QStringLiteral("ModernSecondary"), QStringLiteral("#5d6571")},
        {QStringLiteral("ModernPlaceholder"), QStringLiteral("#5d6571")},
        {QStringLiteral("ModernFaint"), QStringLiteral("#731f2329")},
        {QStringLiteral("ModernField"), QStringLiteral("#ffffff")},
        {QStringLiteral("ModernFieldLine"), QStringLiteral("#868c96")},
        {QStringLiteral("ModernDisabledLine"), QStringLiteral("#e6e8ec")},
        {QStringLiteral("ModernArrows"), QStringLiteral("dark")},
        {QStringLiteral("ModernAccent"), QStringLiteral("#2a67d8")},
        {QStringLiteral("ModernOnAccent"), QStringLiteral("#ffffff")},
        {QStringLiteral("ModernKnob"), QStringLiteral("#ffffff")},
        {QStringLiteral("ModernWarning"), QStringLiteral("#9a5b00")},
        {QStringLiteral("ModernError"), QStringLiteral("#c0282d")},
        {QStringLiteral("ModernOnError"), QStringLiteral("#ffffff")},
        {QStringLiteral("ModernGood"), QStringLiteral("#2e7d43")},
        {QStringLiteral("ModernHit"), QStringLiteral("#fff1a8")},
        {QStringLiteral("ModernMarks"), QStringLiteral("light")},
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
        {QStringLiteral("ModernGround"), QStringLiteral("#1c1d20")},
        {QStringLiteral("ModernPanel"), QStringLiteral("#26282b")},
        {QStringLiteral("ModernLine"), QStringLiteral("#35383d")},
        {QStringLiteral("ModernHover"), QStringLiteral("#2e3034")},
        {QStringLiteral("ModernText"), QStringLiteral("#e6e8ec")},
        {QStringLiteral("ModernSecondary"), QStringLiteral("#a0a7b2")},
        {QStringLiteral("ModernPlaceholder"), QStringLiteral("#a0a7b2")},
        {QStringLiteral("ModernFaint"), QStringLiteral("#73e6e8ec")},
        {QStringLiteral("ModernField"), QStringLiteral("#1f2124")},
        {QStringLiteral("ModernFieldLine"), QStringLiteral("#70767f")},
        {QStringLiteral("ModernDisabledLine"), QStringLiteral("#35383d")},
        {QStringLiteral("ModernArrows"), QStringLiteral("light")},
        {QStringLiteral("ModernAccent"), QStringLiteral("#5b91f0")},
        {QStringLiteral("ModernOnAccent"), QStringLiteral("#0f1114")},
        {QStringLiteral("ModernKnob"), QStringLiteral("#ffffff")},
        {QStringLiteral("ModernWarning"), QStringLiteral("#e3a53a")},
        {QStringLiteral("ModernError"), QStringLiteral("#f27d7d")},
        {QStringLiteral("ModernOnError"), QStringLiteral("#0f1114")},
        {QStringLiteral("ModernGood"), QStringLiteral("#6cc283")},
        {QStringLiteral("ModernHit"), QStringLiteral("#433a0e")},
        {QStringLiteral("ModernMarks"), QStringLiteral("dark")},
        {QStringLiteral("FontMain"), mainFontFamilies()},
    };
}
