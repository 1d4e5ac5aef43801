#include "ProgramSettings.h"

#include <array>

namespace {

enum class Kind { Number, Flag, Text, Color, Hotkey, Font };

/// The kinds of fifty settings one after the other.
Kind kindOf(int i)
{
    const int place = i * 7 % 50; // mixed within each class
    if (place < 18)
        return Kind::Number;
    if (place < 32)
        return Kind::Flag;
    if (place < 42)
        return Kind::Text;
    if (place < 45)
        return Kind::Color;
    return place < 49 ? Kind::Hotkey : Kind::Font;
}

QString textOf(int number)
{
    const std::array<QString, 8> texts{
        QStringLiteral("Screenshot %1"),
        QStringLiteral("/home/user/Pictures/%1"),
        QString::fromUtf8("Bücher und Straßen %1"),
        QStringLiteral("He said \"%1\" and left"),
        QString::fromUtf8("Снимок экрана %1"),
        QStringLiteral("First line\nSecond line\t%1"),
        QString::fromUtf8("屏幕截图 %1"),
        QStringLiteral("%Y-%m-%d %1"),
    };
    return texts.at(static_cast<size_t>(number) % texts.size()).arg(number);
}

QKeySequence hotkeyOf(int number)
{
    constexpr std::array<int, 4> sModifiers{Qt::CTRL, Qt::CTRL | Qt::SHIFT, Qt::ALT,
                                            Qt::CTRL | Qt::ALT};
    const int modifiers = sModifiers.at(static_cast<size_t>(number) % sModifiers.size());
    return QKeySequence(modifiers | (Qt::Key_A + number % 26));
}

QFont fontOf(int number)
{
    QFont font(QStringLiteral("DejaVu Sans"), 8 + number % 12);
    font.setBold(number % 2 != 0);
    return font;
}

/// Returns value number `version` of setting `i`.
Variable valueOfSetting(int i, int version)
{
    const int number = i + version * 31;
    switch (kindOf(i)) {
    case Kind::Number: return number;
    case Kind::Flag: return (i + version) % 2 == 0;
    case Kind::Text: return textOf(number);
    case Kind::Color: return QColor::fromRgb(0xff000000U | static_cast<QRgb>(number * 4099));
    case Kind::Hotkey: return hotkeyOf(number);
    case Kind::Font: return fontOf(number);
    }
    return {};
}

/// Returns `most` of the numbers below `count` in random order, from place `begin` on.
std::vector<int> someOf(int count, size_t begin, size_t most)
{
    const std::vector<int> order = shuffled(count);
    std::vector<int> some;
    for (size_t i = begin; i < begin + most; ++i)
        some.push_back(order[i % order.size()]);
    return some;
}

} // namespace

ProgramSettings::ProgramSettings(int count)
    : names(settingNames(count)), reads(someOf(count, 0, 200)), edits(someOf(count, 200, 20))
{
    constexpr int sUnchangedEvery = 5;
    for (int i = 0; i < count; ++i) {
        defaults.push_back(valueOfSetting(i, 0));
        saved.push_back(valueOfSetting(i, i % sUnchangedEvery == 0 ? 0 : 1));
        edited.push_back(valueOfSetting(i, 2));
    }
}
