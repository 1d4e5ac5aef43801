#include "GoldenValues.h"

#include <QtCompat_p.h>

#include <cmath>
#include <functional>
#include <limits>

namespace {

using Rows = std::vector<GoldenValue>;

template<class T> void add(Rows &rows, const char *name, const T &value, const QByteArray &text,
                           const QByteArray &again = QByteArray())
{
    rows.push_back({name, ConfValue::owned(value), text, again});
}

QString units(std::initializer_list<int> units)
{
    QString text;
    for (const int unit : units)
        text += QChar(static_cast<ushort>(unit));
    return text;
}

void addNumbers(Rows &rows)
{
    add(rows, "Int.zero", 0, "0");
    add(rows, "Int.minus", -1, "-1");
    add(rows, "Int.largest", std::numeric_limits<int>::max(), "2147483647");
    add(rows, "Int.smallest", std::numeric_limits<int>::min(), "-2147483648");
    add(rows, "Bool.true", true, "true");
    add(rows, "Bool.false", false, "false");
    add(rows, "Real.zero", 0.0, "0");
    add(rows, "Real.minusZero", -0.0, "0");
    add(rows, "Real.tenth", 0.1, "0.1");
    add(rows, "Real.small", 0.0001, "0.0001");
    add(rows, "Real.smaller", 0.00001, "1e-05");
    add(rows, "Real.smallest", 5e-324, "5e-324");
    add(rows, "Real.third", 1 / 3.0, "0.3333333333333333");
    add(rows, "Real.beyondInteger", 9007199254740992.0, "9007199254740992");
    add(rows, "Real.10^17", 1e17, "100000000000000000");
    add(rows, "Real.2^64", std::ldexp(1.0, 64), "18446744073709552000");
    add(rows, "Real.10^21", 1e21, "1e+21");
    add(rows, "Real.10^300", 1e300, "1e+300");
    add(rows, "Real.largest", std::numeric_limits<double>::max(), "1.7976931348623157e+308");
}

void addTexts(Rows &rows)
{
    add(rows, "Text.null", QString(), "null");
    add(rows, "Text.empty", QString::fromLatin1(""), "\"\"");
    add(rows, "Text.scripts", QString::fromUtf8("Grüße, мир, שלום, ไทย, 日本"),
        "\"Grüße, мир, שלום, ไทย, 日本\"");
    add(rows, "Text.beyond16Bits", units({0xd83d, 0xde00}), "\"😀\"");
    add(rows, "Text.quotes", QString("\"a\" 'b' \\ /"), "\"\\\"a\\\" 'b' \\\\ /\"");
    add(rows, "Text.controls", units({0, 1, 8, 9, 10, 12, 13, 0x1f}),
        "\"\\u0000\\u0001\\b\\t\\n\\f\\r\\u001f\"");
    add(rows, "Text.moreControls", units({0x7f, 0x80, 0x9f}), "\"\x7f\xc2\x80\xc2\x9f\"");
    add(rows, "Text.separators", units({0x2028, 0x2029, 0xfeff}),
        "\"\xe2\x80\xa8\xe2\x80\xa9\xef\xbb\xbf\"");
    add(rows, "Text.noCharacters", units({0xfdd0, 0xfffe, 0xffff, 0xfffd}),
        "\"\xef\xb7\x90\xef\xbf\xbe\xef\xbf\xbf\xef\xbf\xbd\"");
    add(rows, "Text.highSurrogate", units({'a', 0xd83d, 'b'}), "\"a\\ud83db\"");
    add(rows, "Text.lowSurrogate", units({'a', 0xde00}), "\"a\\ude00\"");
}

void addColors(Rows &rows)
{
    add(rows, "Color.none", QColor(), "\"None\"");
    add(rows, "Color.opaque", QColor(1, 2, 3), "\"ff010203\"");
    add(rows, "Color.translucent", QColor(255, 0, 128, 16), "\"10ff0080\"");
    add(rows, "Color.transparent", QColor(0, 0, 0, 0), "\"0\"");
    add(rows, "Color.hsv", QColor::fromHsv(1, 45, 170, 77), "\"4daa8c8c\"");
    add(rows, "Color.hsvGrey", QColor::fromHsv(-1, 0, 170), "\"ffaaaaaa\"");
    add(rows, "Color.hsl", QColor::fromHsl(1, 51, 75, 77), "\"4d5a3d3c\"");
    add(rows, "Color.cmyk", QColor::fromCmyk(10, 20, 30, 40, 50), "\"32cfc6be\"");
    add(rows, "Color.16bits", QColor::fromRgba64(0x12ff, 0x80ff, 0xffff, 0x7fff), "\"7f1380ff\"");
    add(rows, "Color.extended", QColor::fromRgbF(1.5F, -0.5F, 0.25F, 0.5F), "\"80ff0040\"");
}

void addFonts(Rows &rows)
{
    const auto font = [&](const char *name, const QByteArray &text,
                          const std::function<void(QFont &)> &change,
                          const QByteArray &again = QByteArray()) {
        QFont value("Sans", 12);
        change(value);
        add(rows, name, value, '"' + text + '"', again.isEmpty() ? again : '"' + again + '"');
    };
    font("Font.points", "Sans,12,-1,5,50,0,0,0,0,0", [](QFont &) {});
    font("Font.fraction", "Sans,10.25,-1,5,50,0,0,0,0,0",
         [](QFont &value) { value.setPointSizeF(10.25); });
    font(
        "Font.manyDigits", "Sans,10.1235,-1,5,50,0,0,0,0,0",
        [](QFont &value) { value.setPointSizeF(10.123456789); }, "Sans,10.1235,-1,5,50,0,0,0,0,0");
    font("Font.pixels", "Sans,-1,17,5,50,0,0,0,0,0", [](QFont &value) { value.setPixelSize(17); });
    font("Font.bold", "Sans,12,-1,5,75,0,0,0,0,0", [](QFont &value) { value.setBold(true); });
    font("Font.thin", "Sans,12,-1,5,0,0,0,0,0,0",
         [](QFont &value) { value.setWeight(QFont::Thin); });
    font("Font.medium", "Sans,12,-1,5,57,0,0,0,0,0",
         [](QFont &value) { value.setWeight(QFont::Medium); });
    font("Font.black", "Sans,12,-1,5,87,0,0,0,0,0",
         [](QFont &value) { value.setWeight(QFont::Black); });
    font("Font.betweenNames", "Sans,12,-1,5,69,0,0,0,0,0",
         [](QFont &value) { QtCompat::setWeight(&value, 69, 650); });
    font("Font.italic", "Sans,12,-1,5,50,1,0,0,0,0", [](QFont &value) { value.setItalic(true); });
    font("Font.oblique", "Sans,12,-1,5,50,2,0,0,0,0",
         [](QFont &value) { value.setStyle(QFont::StyleOblique); });
    font("Font.lines", "Sans,12,-1,5,50,0,1,1,0,0", [](QFont &value) {
        value.setUnderline(true);
        value.setStrikeOut(true);
    });
    font("Font.fixed", "Sans,12,-1,7,50,0,0,0,1,0", [](QFont &value) {
        value.setFixedPitch(true);
        value.setStyleHint(QFont::Monospace);
    });
    font("Font.styleName", "Sans,12,-1,5,50,0,0,0,0,0,Condensed Light",
         [](QFont &value) { value.setStyleName("Condensed Light"); });
    font("Font.quotes", "\\\"A\\\" 'B',12,-1,5,50,0,0,0,0,0",
         [](QFont &value) { value.setFamily("\"A\" 'B'"); });
    font("Font.script", "日本,12,-1,5,50,0,0,0,0,0",
         [](QFont &value) { value.setFamily(QString::fromUtf8("日本")); });
    // Commas are not quoted: eleven fields are read, one place off.
    font(
        "Font.comma", "A,B,12,-1,5,50,0,0,0,0,0", [](QFont &value) { value.setFamily("A,B"); },
        "A,-1,12,255,5,2,0,0,0,0,0");
    // What the text does not hold.
    font(
        "Font.lost", "Sans,12,-1,5,50,0,0,0,0,0",
        [](QFont &value) {
            value.setOverline(true);
            value.setKerning(false);
            value.setStretch(QFont::Condensed);
            value.setCapitalization(QFont::SmallCaps);
            value.setLetterSpacing(QFont::AbsoluteSpacing, 2);
            value.setWordSpacing(3);
            value.setHintingPreference(QFont::PreferNoHinting);
            value.setStyleStrategy(QFont::NoAntialias);
        },
        "Sans,12,-1,5,50,0,0,0,0,0");
}

void addKeys(Rows &rows)
{
    const auto keys = [&](const char *name, const QByteArray &text,
                          std::initializer_list<int> chords,
                          const QByteArray &again = QByteArray()) {
        int chord[4] = {};
        std::copy(chords.begin(), chords.end(), chord);
        add(rows, name, QKeySequence(chord[0], chord[1], chord[2], chord[3]), '"' + text + '"',
            again);
    };
    constexpr int sCtrl = Qt::CTRL, sShift = Qt::SHIFT, sAlt = Qt::ALT, sMeta = Qt::META;
    constexpr auto sKeypad = static_cast<int>(Qt::KeypadModifier);
    keys("Keys.none", "", {});
    keys("Keys.letter", "Ctrl+S", {sCtrl | Qt::Key_S});
    keys("Keys.modifiers", "Meta+Ctrl+Alt+Shift+F35",
         {sMeta | sCtrl | sAlt | sShift | Qt::Key_F35});
    keys("Keys.chords", "Ctrl+K, Ctrl+B, C, F1",
         {sCtrl | Qt::Key_K, sCtrl | Qt::Key_B, Qt::Key_C, Qt::Key_F1});
    keys("Keys.keypad", "Num+Enter, Ctrl+Num+5, Enter, Return",
         {sKeypad | Qt::Key_Enter, sKeypad | sCtrl | Qt::Key_5, Qt::Key_Enter, Qt::Key_Return});
    keys("Keys.tab", "Shift+Tab, Shift+Backtab, Backtab",
         {sShift | Qt::Key_Tab, sShift | Qt::Key_Backtab, Qt::Key_Backtab});
    keys("Keys.media", "Media Play, Volume Up, Launch (1), Camera Shutter",
         {Qt::Key_MediaPlay, Qt::Key_VolumeUp, Qt::Key_Launch1, Qt::Key_Camera});
    keys("Keys.signs", "+, Ctrl++, Ctrl+,, \\\"", {'+', sCtrl | '+', sCtrl | ',', '"'});
    // A key beyond 16 bits is not read back.
    keys("Keys.unicode", "É, Ctrl+Ж, 日, 😀", {0xc9, sCtrl | 0x416, 0x65e5, 0x1f600},
         "\"É, Ctrl+Ж, 日, \"");
    keys("Keys.unknown", "", {Qt::Key_unknown}, "\"\"");
    // Modifiers alone have no name, and are not read back.
    keys("Keys.shift", "\xe1\x9f\x80\\udc20", {Qt::Key_Shift}, "\"\"");
    keys("Keys.ctrlAlt", "Ctrl+\xe1\x9f\x80\\udc23", {sCtrl | Qt::Key_Alt}, "\"\"");
}

void addJson(Rows &rows)
{
    add(rows, "Object.empty", QJsonObject(), "{}");
    add(rows, "Object.nested",
        QJsonObject{{"b", QJsonArray{QJsonArray(), QJsonObject(), QJsonValue(), true}},
                    {"a", QJsonObject{{"", ""}}}},
        R"({"a":{"":""},"b":[[],{},null,true]})");
    // Sorted by UTF-16.
    add(rows, "Object.order",
        QJsonObject{{units({0xff01}), 1},
                    {units({0xd83d, 0xde00}), 2},
                    {units({0xe9}), 3},
                    {"z", 4},
                    {"B", 5},
                    {"", 6}},
        R"({"":6,"B":5,"z":4,"é":3,"😀":2,"！":1})", R"({"":6,"B":5,"z":4,"é":3,"！":1,"😀":2})");
    add(rows, "Object.undefined", QJsonObject{{"a", QJsonValue(QJsonValue::Undefined)}, {"b", 1}},
        R"({"b":1})");
    add(rows, "Array.empty", QJsonArray(), "[]");
    const QByteArray numbers = "[9007199254740992,9223372036854776000,-9223372036854776000,"
                               "100000000000000000,0.0004,0,3]";
    add(rows, "Array.numbers",
        QJsonArray{qint64(9007199254740993), std::numeric_limits<qint64>::max(),
                   std::numeric_limits<qint64>::min(), 1e17, 0.0004, -0.0, 3.0},
        numbers, numbers);
    add(rows, "Array.texts", QJsonArray{QString(), "\n", units({0xd800}), units({0xe9})},
        "[\"\",\"\\n\",\"\\ud800\",\"é\"]");
}

} // namespace

const std::vector<GoldenValue> &goldenValues()
{
    static const Rows sRows = [] {
        Rows rows;
        addNumbers(rows);
        addTexts(rows);
        addColors(rows);
        addFonts(rows);
        addKeys(rows);
        addJson(rows);
        return rows;
    }();
    return sRows;
}
