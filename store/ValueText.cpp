#include "ValueText_p.h"

#include "EntryLog_p.h"
#include "Limits_p.h"

#include "QtCompat_p.h"

#include <QDebug>
#include <QStringList>
#include <QVector>

#include <algorithm>
#include <array>
#include <iterator>

namespace {

// Fields of a font's text.
constexpr int sWeightField = 4;
constexpr int sQt5Fields = 10;
constexpr int sQt6Fields = 16;

constexpr int sMostChords = 4; // of a QKeySequence

constexpr int sHueSteps = 36000;   // of a QColor
constexpr double sSteps = 65535.0; // of its other components

struct WeightRow
{
    int qt5;
    int openType;
};

/// The named weights, from thin to black, and the greatest ones. Between them both scales are
/// straight.
constexpr WeightRow sWeights[] = {{0, 100},  {12, 200}, {25, 300}, {50, 400}, {57, 500},
                                  {63, 600}, {75, 700}, {81, 800}, {87, 900}, {99, 1000}};

/// Converts `value` from the scale `from` to the scale `to`.
int converted(int value, int WeightRow::*from, int WeightRow::*to)
{
    const WeightRow *const last = std::end(sWeights) - 1;
    value = qBound(sWeights[0].*from, value, last->*from);
    const WeightRow *upper = std::find_if(std::begin(sWeights) + 1, last,
                                          [&](const WeightRow &row) { return value <= row.*from; });
    const WeightRow *lower = upper - 1;
    const double share = double(value - lower->*from) / (upper->*from - lower->*from);
    return qRound(lower->*to + share * (upper->*to - lower->*to));
}

/// Qt 3 wrote nine fields, without the size in pixels, and italic instead of the style.
QStringList withPixelSize(QStringList fields)
{
    fields.insert(2, QStringLiteral("-1"));
    fields[5] = QString::number(fields.at(5).toInt() != 0 ? 1 : 0);
    return fields;
}

QStringList withoutQt6Fields(const QStringList &fields)
{
    QStringList kept = fields.mid(0, sQt5Fields) + fields.mid(sQt6Fields);
    kept[sWeightField] = QString::number(qt5Weight(kept.at(sWeightField).toInt()));
    return kept;
}

QVector<int> chordsOf(const QKeySequence &keys)
{
    QVector<int> chords;
    for (int i = 0; i < keys.count(); ++i)
        chords.append(QtCompat::chordAt(keys, i));
    return chords;
}

int keyOf(int chord)
{
    return chord & ~static_cast<int>(Qt::KeyboardModifierMask);
}

/// Returns whether the key of the chord is a modifier. Qt 6 knows the names of these keys, Qt 5
/// does not.
bool isModifierAlone(int chord)
{
    const int key = keyOf(chord);
    return key >= Qt::Key_Shift && key <= Qt::Key_Alt;
}

bool hasModifierAlone(const QKeySequence &keys)
{
    bool isFound = false;
    for (int i = 0; i < keys.count() && !isFound; ++i)
        isFound = isModifierAlone(QtCompat::chordAt(keys, i));
    return isFound;
}

QString chordText(int chord)
{
    if (!isModifierAlone(chord))
        return QKeySequence(chord).toString(QKeySequence::PortableText);
    const int key = keyOf(chord);
    QString text = QKeySequence(chord - key + Qt::Key_A).toString(QKeySequence::PortableText);
    text.chop(1);
    // Qt 5 takes the number of a key without a name for that of a character.
    const auto number = static_cast<uint>(key);
    return text + QChar(QChar::highSurrogate(number)) + QChar(QChar::lowSurrogate(number));
}

using Rgb = std::array<double, 3>;

/// The hue goes from 0 to 6, the others go from 0 to 1.
Rgb rgbOfHsv(double hue, double saturation, double value)
{
    const int sector = static_cast<int>(hue);
    const double part = hue - sector;
    const double least = value * (1 - saturation);
    const double falling = value * (1 - saturation * part);
    const double rising = value * (1 - saturation * (1 - part));
    switch (sector) {
    case 0: return {value, rising, least};
    case 1: return {falling, value, least};
    case 2: return {least, value, rising};
    case 3: return {least, falling, value};
    case 4: return {rising, least, value};
    default: return {value, least, falling};
    }
}

/// All go from 0 to 1.
Rgb rgbOfHsl(double hue, double saturation, double lightness)
{
    const double upper = lightness < 0.5 ? lightness * (1 + saturation)
                                         : lightness + saturation - lightness * saturation;
    const double lower = 2 * lightness - upper;
    const auto component = [&](double place) {
        place += place < 0 ? 1 : place > 1 ? -1 : 0;
        if (place * 6 < 1)
            return lower + (upper - lower) * (place * 6);
        if (place * 2 < 1)
            return upper;
        if (place * 3 < 2)
            return lower + (upper - lower) * (2 / 3.0 - place) * 6;
        return lower;
    };
    return {component(hue + 1 / 3.0), component(hue), component(hue - 1 / 3.0)};
}

/// QColor keeps its components in steps of 16 bits.
int toSteps(double share)
{
    return qRound(share * sSteps);
}

} // namespace

int openTypeWeight(int qt5Weight)
{
    return converted(qt5Weight, &WeightRow::qt5, &WeightRow::openType);
}

int qt5Weight(int openTypeWeight)
{
    return converted(openTypeWeight, &WeightRow::openType, &WeightRow::qt5);
}

QString toQt5FontText(const QString &text)
{
    constexpr QLatin1Char sComma(',');
    const QString fields = text.trimmed();
    if (fields.isEmpty() || fields.startsWith(sComma))
        return QString();
    switch (fields.count(sComma) + 1) {
    case 1:
    case 2:
    case 10:
    case 11: return text;
    case 9: return withPixelSize(fields.split(sComma)).join(sComma);
    case 16:
    case 17: return withoutQt6Fields(fields.split(sComma)).join(sComma);
    default: return QString();
    }
}

QString toFontText(const QFont &font)
{
    // Not from the text of Qt 6: the family may contain commas.
    QStringList fields{font.family(), QString::number(font.pointSizeF())};
    for (const int number :
         {font.pixelSize(), int(font.styleHint()), QtCompat::qt5Weight(font, &qt5Weight),
          int(font.style()), int(font.underline()), int(font.strikeOut()), int(font.fixedPitch()),
          0})
        fields.append(QString::number(number));
    if (!font.styleName().isEmpty())
        fields.append(font.styleName());
    return fields.join(QLatin1Char(','));
}

bool parseFontText(const QString &text, QFont *font)
{
    const QString qt5Text = toQt5FontText(text);
    if (qt5Text.isNull() || !font->fromString(qt5Text))
        return false;
    if (qt5Text.count(QLatin1Char(',')) + 1 >= sQt5Fields) {
        const QString field = qt5Text.section(QLatin1Char(','), sWeightField, sWeightField);
        const int weight = qBound(0, field.toInt(), 99);
        QtCompat::setWeight(font, weight, openTypeWeight(weight));
    }
    return true;
}

bool readFontText(const QString &text, QFont *font)
{
    if (parseFontText(text, font))
        return true;
    if (EntryLog::permits())
        qWarning().nospace().noquote()
            << "QFont::fromString: Invalid description '"
            << (text.isEmpty() ? QStringLiteral("(empty)")
                               : EntryLog::printable(text, Limits::sMaxLoggedLength))
            << '\'';
    return false;
}

bool hasUsableSize(const QFont &font)
{
    // In points or pixels: just visible, and far larger than any screen.
    constexpr qreal sMinFontSize = 0.1;
    constexpr qreal sMaxFontSize = 4096;
    const qreal size = font.pixelSize() > 0 ? font.pixelSize() : font.pointSizeF();
    // Without a QGuiApplication there is no default size, so a text without a size leaves none.
    const bool isUnset = size <= 0;
    return isUnset || (size >= sMinFontSize && size <= sMaxFontSize);
}

QString toKeysText(const QKeySequence &keys)
{
    if (!hasModifierAlone(keys))
        return keys.toString(QKeySequence::PortableText);
    QStringList texts;
    for (const int chord : chordsOf(keys))
        texts.append(chordText(chord));
    return texts.join(QLatin1String(", "));
}

QKeySequence readKeysText(const QString &text)
{
    const QKeySequence keys = QKeySequence::fromString(text, QKeySequence::PortableText);
    if (!hasModifierAlone(keys))
        return keys;
    QVector<int> chords = chordsOf(keys);
    std::replace_if(chords.begin(), chords.end(), isModifierAlone, int(Qt::Key_unknown));
    chords.resize(sMostChords); // the others are 0, which is no chord
    return QKeySequence(chords[0], chords[1], chords[2], chords[3]);
}

bool isColorText(const QString &text)
{
    constexpr int sMostDigits = 8;
    if (text == QLatin1String("None"))
        return true;
    const auto isHexDigit = [](QChar character) {
        return (character >= QLatin1Char('0') && character <= QLatin1Char('9'))
               || (character >= QLatin1Char('a') && character <= QLatin1Char('f'))
               || (character >= QLatin1Char('A') && character <= QLatin1Char('F'));
    };
    return !text.isEmpty() && text.size() <= sMostDigits
           && std::all_of(text.begin(), text.end(), isHexDigit);
}

QColor readColorText(const QString &text)
{
    return text == QLatin1String("None") ? QColor() : QColor::fromRgba(text.toUInt(nullptr, 16));
}

QRgb toRgba(const QColor &color)
{
    const bool isHsv = color.spec() == QColor::Hsv;
    if (!isHsv && color.spec() != QColor::Hsl)
        return color.rgba();
    const double hue = isHsv ? color.hsvHueF() : color.hslHueF();
    const double saturation = isHsv ? color.hsvSaturationF() : color.hslSaturationF();
    const double brightness = isHsv ? color.valueF() : color.lightnessF();
    // Through the steps, because Qt 6 returns the shares with less precision.
    const double s = toSteps(saturation) / sSteps;
    const double b = toSteps(brightness) / sSteps;
    Rgb rgb{b, b, b};
    if (hue >= 0 && s > 0) {
        const int hueSteps = qRound(hue * sHueSteps) % sHueSteps;
        rgb = isHsv ? rgbOfHsv(hueSteps * 6.0 / sHueSteps, s, b)
                    : rgbOfHsl(hueSteps / double(sHueSteps), s, b);
    }
    const auto byte = [](double share) { return qRound(toSteps(share) / 257.0); };
    return qRgba(byte(rgb[0]), byte(rgb[1]), byte(rgb[2]), color.alpha());
}
