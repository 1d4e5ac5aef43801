#include "MacLayouts.h"

#include <QString>

#include <iterator>

namespace {

/// The key codes of the four rows of the main block, from left to right.
constexpr size_t sCodes[] = {
    0x32, 0x12, 0x13, 0x14, 0x15, 0x17, 0x16, 0x1a, 0x1c, 0x19, 0x1d, 0x1b, 0x18, // digits
    0x0c, 0x0d, 0x0e, 0x0f, 0x11, 0x10, 0x20, 0x22, 0x1f, 0x23, 0x21, 0x1e, 0x2a, // Q
    0x00, 0x01, 0x02, 0x03, 0x05, 0x04, 0x26, 0x28, 0x25, 0x29, 0x27,             // A
    0x06, 0x07, 0x08, 0x09, 0x0b, 0x2d, 0x2e, 0x2b, 0x2f, 0x2c};                  // Z

/// Sets the characters of these levels; a blank is a key without a character.
void setLevel(MacLayout *layout, size_t level, const QString &characters)
{
    for (size_t i = 0; i < std::size(sCodes); ++i) {
        const QChar character = characters.at(static_cast<int>(i));
        layout->keys.at(sCodes[i]).at(level) = character == QLatin1Char(' ') ? 0
                                                                             : character.unicode();
    }
}

void copyToCommand(MacLayout *layout, const MacLayout &other)
{
    for (size_t code = 0; code < layout->keys.size(); ++code) {
        for (size_t level = 0; level < MacLayout::sCommand; ++level)
            layout->keys[code][level | MacLayout::sCommand] = other.keys[code][level];
    }
}

MacLayout layoutOf(const QString &plain, const QString &shifted, const QString &option)
{
    MacLayout layout;
    setLevel(&layout, 0, plain);
    setLevel(&layout, MacLayout::sShift, shifted);
    setLevel(&layout, MacLayout::sOption, option);
    copyToCommand(&layout, layout);
    return layout;
}

const QString sNothing(static_cast<int>(std::size(sCodes)), QLatin1Char(' '));

} // namespace

MacLayout azertyLayout()
{
    MacLayout layout = layoutOf(QStringLiteral("<&é\"'(§è!çà)-azertyuiop^$`qsdfghjklmùwxcvbn,;:="),
                                QStringLiteral(">1234567890°_AZERTYUIOP¨*£QSDFGHJKLM%WXCVBN?./+"),
                                QStringLiteral("     {     }                              ~    "));
    // The key beside the 1 of European keyboards.
    layout.keys[0x0a][0] = '@';
    layout.keys[0x0a][MacLayout::sShift] = '#';
    return layout;
}

MacLayout qwertzLayout()
{
    MacLayout layout = layoutOf(QStringLiteral("<1234567890ß´qwertzuiopü+#asdfghjklöäyxcvbnm,.-"),
                                QStringLiteral(">!\"§$%&/()=?`QWERTZUIOPÜ*'ASDFGHJKLÖÄYXCVBNM;:_"),
                                QStringLiteral("     []|{}  '«∑€®†Ω¨⁄øπ•±‘å‚∂ƒ©ªº∆@œæ¥≈ç√∫~µ∞…–"));
    layout.keys[0x1a][MacLayout::sShift | MacLayout::sOption] = '\\';
    return layout;
}

MacLayout dvorakLayout()
{
    return layoutOf(QStringLiteral("`1234567890[]',.pyfgcrl/=\\aoeuidhtns-;qjkxbmwvz"),
                    QStringLiteral("~!@#$%^&*(){}\"<>PYFGCRL?+|AOEUIDHTNS_:QJKXBMWVZ"), sNothing);
}

MacLayout dvorakQwertyLayout()
{
    MacLayout layout = dvorakLayout();
    copyToCommand(&layout, macAnsiLayout());
    return layout;
}

MacLayout russianLayout()
{
    MacLayout layout = russianOnlyLayout();
    copyToCommand(&layout, macAnsiLayout());
    return layout;
}

MacLayout russianOnlyLayout()
{
    return layoutOf(QStringLiteral("]1234567890-=йцукенгшщзхъёфывапролджэячсмитьбю/"),
                    QStringLiteral("[!\"№%:,.;()_+ЙЦУКЕНГШЩЗХЪЁФЫВАПРОЛДЖЭЯЧСМИТЬБЮ?"), sNothing);
}
