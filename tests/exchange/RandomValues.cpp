#include "RandomValues.h"

#include "MaltoConfiguration/store/JsonText_p.h"

#include <QStringList>

#include <cmath>
#include <cstring>
#include <limits>

namespace {

double randomDouble(Random &random)
{
    switch (random.below(7)) {
    case 0: return random.between(-1000, 1000) / 8.0;
    case 1: return random.between(-100000, 100000) / 1e5;
    case 2: return std::ldexp(1.0, random.between(-40, 70)); // around 2^53 and 2^64
    case 3: return static_cast<double>(random.next() >> random.below(40));
    case 4: {
        const QByteArray digits = QByteArray::number(random.between(1, 9999));
        return (digits + 'e' + QByteArray::number(random.between(-9, 18))).toDouble();
    }
    case 5:
        return random.oneOf<double>(
            {0.0, -0.0, 1e300, -1e-300, 5e-324, 1e21, 1e17, 0.0001, 0.1, 9007199254740991.0,
             9007199254740993.0, std::numeric_limits<double>::max(),
             std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()});
    default: break;
    }
    const quint64 bits = random.next();
    double number = 0;
    std::memcpy(&number, &bits, sizeof number);
    return number;
}

void appendCharacter(QString &text, Random &random)
{
    const auto append = [&](int first, int last) {
        text += QChar(static_cast<ushort>(random.between(first, last)));
    };
    switch (random.below(12)) {
    case 0: append(0, 0x1f); break;
    case 1: text += QLatin1Char(random.oneOf<char>({'"', '\\', '/', '#', '.', ',', 0x7f})); break;
    case 2: append(0x80, 0xff); break;
    case 3: append(0x400, 0x5ff); break;
    case 4: append(0x4e00, 0x9fff); break;
    case 5: append(0x2028, 0x2029); break;
    case 6: append(0xfff0, 0xffff); break;
    case 7:
        append(0xd800, 0xdbff);
        append(0xdc00, 0xdfff);
        break;
    case 8: append(0xd800, 0xdfff); break; // may be alone
    default: append('a', 'z'); break;
    }
}

int randomChord(Random &random)
{
    int key = 0;
    switch (random.below(6)) {
    case 0: key = random.between(Qt::Key_A, Qt::Key_Z); break;
    case 1: key = random.between(Qt::Key_Space, Qt::Key_ydiaeresis); break;
    case 2: key = random.between(Qt::Key_Escape, Qt::Key_F35); break;  // modifiers, too
    case 3: key = random.between(Qt::Key_Back, Qt::Key_Select); break; // of media keyboards
    case 4: key = random.between(0x400, 0x4ff); break;
    default: key = random.oneOf<int>({Qt::Key_Backtab, Qt::Key_Enter, Qt::Key_unknown, 0x1f600});
    }
    for (const int modifier : {int(Qt::SHIFT), int(Qt::CTRL), int(Qt::ALT), int(Qt::META),
                               int(Qt::KeypadModifier), int(Qt::GroupSwitchModifier)}) {
        if (random.oneIn(4))
            key |= modifier;
    }
    return key;
}

QJsonArray randomArray(Random &random, int levels)
{
    QJsonArray array;
    for (int i = random.below(4); i > 0; --i)
        array.append(randomJson(random, levels));
    return array;
}

QJsonObject randomObject(Random &random, int levels)
{
    QJsonObject object;
    for (int i = random.below(5); i > 0; --i) {
        const QString name = randomName(random);
        object.insert(name, randomJson(random, levels));
    }
    return object;
}

/// Returns the text of a font as either Qt writes it, or almost.
QString randomFontText(Random &random)
{
    const int count = random.oneOf<int>({1, 2, 9, 10, 10, 10, 11, 16, 16, 16, 17, 17, 12, 18});
    QStringList fields{
        random.oneOf<QString>({"Sans", "A B", "\"Q\"", QString(QChar(0x65e5)), QString()})};
    fields.append(random.oneOf<QString>({"9", "10.25", "-1", "0.05", "1e9", "x"}));
    while (fields.size() < count)
        fields.append(QString::number(random.below(4)));
    const bool isOfQt6 = count >= 16;
    const int weightField = count == 9 ? 3 : 4;
    if (count >= 9) {
        fields[2] = QString::number(random.oneOf<int>({-1, -1, 0, 5, 17, 5000}));
        fields[weightField] = QString::number(random.between(isOfQt6 ? 1 : 0, isOfQt6 ? 1000 : 99));
    }
    if (count == 11 || count == 17)
        fields.last() = "Bold Italic";
    return fields.mid(0, count).join(QLatin1Char(','));
}

QString randomKeysText(Random &random)
{
    QString text;
    for (int i = random.below(6); i > 0; --i) {
        text += QLatin1String(random.oneOf<const char *>(
            {"Ctrl",  "Shift",     "Alt",        "Meta", "Num",  "+",   "+",   "+",
             ",",     ", ",        " ",          "A",    "1",    "F5",  "Tab", "Backtab",
             "Enter", "Volume Up", "Media Play", "x",    "PgUp", "Esc", "?"}));
        if (random.oneIn(2))
            text += QLatin1Char('+');
    }
    return text;
}

} // namespace

template<> int randomValue(Random &random)
{
    if (random.oneIn(4))
        return random.oneOf<int>(
            {0, -1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()});
    return static_cast<int>(random.next() >> random.between(32, 63));
}

template<> qreal randomValue(Random &random)
{
    return randomDouble(random);
}

template<> bool randomValue(Random &random)
{
    return random.oneIn(2);
}

template<> QString randomValue(Random &random)
{
    if (random.oneIn(8))
        return random.oneIn(2) ? QString() : QString::fromLatin1("");
    QString text;
    for (int length = random.below(12); length > 0; --length)
        appendCharacter(text, random);
    return text;
}

template<> QColor randomValue(Random &random)
{
    const auto byte = [&] { return random.below(256); };
    // Both Qts store these numbers without rounding.
    const auto eighth = [&] { return static_cast<float>(random.between(-4, 16)) / 8; };
    const auto steps = [&] { return static_cast<ushort>(random.next()); };
    // In an order that every compiler keeps.
    const int first = byte(), second = byte(), third = byte(), fourth = byte();
    switch (random.below(7)) {
    case 0: return QColor();
    case 1: return QColor::fromHsv(random.between(-1, 359), second, third, fourth);
    case 2: return QColor::fromHsl(random.between(-1, 359), second, third, fourth);
    case 3: return QColor::fromCmyk(first, second, third, fourth, byte());
    case 4: {
        const float red = eighth(), green = eighth();
        return QColor::fromRgbF(red, green, 1.5F, 0.5F);
    }
    case 5: {
        const ushort red = steps(), green = steps(), blue = steps();
        return QColor::fromRgba64(red, green, blue, steps());
    }
    default: return QColor(first, second, third, random.oneIn(2) ? 255 : fourth);
    }
}

template<> QFont randomValue(Random &random)
{
    QFont font;
    font.setFamily(random.oneOf<QString>(
        {"Sans", "Noto Sans CJK", "A,B", "\"Q\" 'R'", QString(QChar(0x65e5)), QString()}));
    if (random.oneIn(2))
        font.setPixelSize(random.between(1, 300));
    else
        font.setPointSizeF(random.between(1, 30000) / 100.0);
    font.setWeight(random.oneOf<QFont::Weight>({QFont::Thin, QFont::ExtraLight, QFont::Light,
                                                QFont::Normal, QFont::Medium, QFont::DemiBold,
                                                QFont::Bold, QFont::ExtraBold, QFont::Black}));
    font.setStyleHint(static_cast<QFont::StyleHint>(random.below(9)));
    font.setStyle(static_cast<QFont::Style>(random.below(3)));
    font.setUnderline(random.oneIn(2));
    font.setStrikeOut(random.oneIn(2));
    font.setFixedPitch(random.oneIn(2));
    // These are lost.
    font.setOverline(random.oneIn(2));
    font.setKerning(random.oneIn(2));
    font.setStretch(random.oneIn(2) ? QFont::Condensed : QFont::Unstretched);
    font.setLetterSpacing(QFont::AbsoluteSpacing, random.below(3));
    font.setCapitalization(static_cast<QFont::Capitalization>(random.below(5)));
    if (random.oneIn(3))
        font.setStyleName("Condensed Light");
    return font;
}

template<> QKeySequence randomValue(Random &random)
{
    int chords[4] = {};
    for (int i = random.below(5); i > 0; --i)
        chords[i - 1] = randomChord(random);
    return QKeySequence(chords[0], chords[1], chords[2], chords[3]);
}

template<> QJsonArray randomValue(Random &random)
{
    return randomArray(random, 3);
}

template<> QJsonObject randomValue(Random &random)
{
    return randomObject(random, 3);
}

QString randomName(Random &random)
{
    QString name;
    const QVector<uint> characters = randomValue<QString>(random).toUcs4();
    for (const uint character : characters) {
        if (QChar::requiresSurrogates(character))
            name.append(QChar(QChar::highSurrogate(character)))
                .append(QChar(QChar::lowSurrogate(character)));
        else if (character < 0xd800)
            name.append(QChar(static_cast<ushort>(character)));
    }
    return name;
}

QJsonValue randomJson(Random &random, int levels)
{
    switch (random.below(levels > 0 ? 8 : 6)) {
    case 0: return QJsonValue();
    case 1: return random.oneIn(2);
    case 2: return randomDouble(random);
    case 3: return static_cast<qint64>(random.next() >> random.below(64)); // beyond 2^53, too
    case 4:
    case 5: return randomValue<QString>(random);
    case 6: return randomArray(random, levels - 1);
    default: return randomObject(random, levels - 1);
    }
}

QByteArray randomInput(Random &random, ConfValue::ConfType type)
{
    QString string;
    switch (random.oneIn(8) ? ConfValue::TyNone : type) {
    case ConfValue::TyInt32:
    case ConfValue::TyQreal:
        return random.oneOf<QByteArray>({"0", "-0", "1.0", "1e2", "12.5", "2147483647",
                                         "2147483648", "-2147483649", "9007199254740993",
                                         "18446744073709551616", "1.7976931348623157e308"});
    case ConfValue::TyBool: return random.oneIn(2) ? "true" : "false";
    case ConfValue::TyQColor:
        string = QLatin1String(random.oneOf<const char *>(
            {"ff0000", "80FF0000", "None", "none", "", "0xff", "-1", "zz", "1ffffffff", " ff"}));
        break;
    case ConfValue::TyQFont: string = randomFontText(random); break;
    case ConfValue::TyQKeySequence: string = randomKeysText(random); break;
    case ConfValue::TyQString: string = randomValue<QString>(random); break;
    default:
        return random.oneOf<QByteArray>({"null", "[]", "{}", "[1]", "\"5\"", "\"\\u00e9\\ud83d\"",
                                         "7", "true", "{\"a\":1,\"a\":2}"});
    }
    QByteArray text;
    appendJsonString(text, string);
    return text;
}
