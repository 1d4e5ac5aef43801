// Loads one value from JSON. The first byte selects the type, the rest is the JSON text.
#include "FuzzTarget.h"

#include <MaltoConfiguration/store/ConfValue.h>

#include <QJsonDocument>

#include <cmath>

namespace {

QByteArray text(const QJsonValue &value)
{
    return QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
}

/// Returns the value after writing it to JSON text and parsing it.
QJsonValue throughText(const QJsonValue &value)
{
    return QJsonDocument::fromJson(text(value)).array().at(0);
}

/// Checks the result for a plain type: the value itself, or the default value of the type.
void expectPlainValue(const QJsonValue &json, int loaded)
{
    const double number = json.toDouble();
    const bool fits = number == std::trunc(number) && number >= -2147483648.0
                      && number <= 2147483647.0;
    expect(loaded == (fits ? static_cast<int>(number) : 0), "an integer is read exactly");
}
void expectPlainValue(const QJsonValue &json, qreal loaded)
{
    expect(loaded == json.toDouble(), "a number is read exactly");
}
void expectPlainValue(const QJsonValue &json, bool loaded)
{
    expect(loaded == json.toBool(), "a boolean is read exactly");
}
void expectPlainValue(const QJsonValue &json, const QString &loaded)
{
    expect(loaded == json.toString(), "a text is read exactly");
}
void expectPlainValue(const QJsonValue &json, const QColor &loaded)
{
    expect(loaded.isValid() == (json.toString() != "None"), "only None is an invalid colour");
}
void expectPlainValue(const QJsonValue &, const QFont &loaded)
{
    const double size = qMax<double>(loaded.pixelSize(), loaded.pointSizeF());
    expect(size >= 0.1 && size <= 4096, "a font size is in range", loaded.toString().toUtf8());
}
void expectPlainValue(const QJsonValue &, const QKeySequence &loaded)
{
    expect(loaded.count() <= 4, "a hotkey has at most four chords");
}
void expectPlainValue(const QJsonValue &json, const QJsonObject &loaded)
{
    expect(loaded == json.toObject(), "an object is read exactly");
}
void expectPlainValue(const QJsonValue &json, const QJsonArray &loaded)
{
    expect(loaded == json.toArray(), "an array is read exactly");
}

template<class T> void check(const QJsonValue &json)
{
    T variable{};
    ConfValue bound = ConfValue::bound(&variable);
    ConfValue owned = ConfValue::owned(T());
    bound.loadFromJsonValue(json);
    owned.loadFromJsonValue(json);
    if (json.isNull() || json.isUndefined()) {
        expect(bound.mType == ConfValue::TyNone && variable == T(),
               "null unbinds and writes nothing");
        return;
    }
    expect(bound.mIsPtr && bound.mType == ConfValue::typeOf<T>(), "a bound value stays bound");
    expect(owned == bound, "bound and owned values are equal", text(owned.toJsonValue()),
           text(bound.toJsonValue()));
    expectPlainValue(json, variable);

    if constexpr (std::is_same_v<T, QKeySequence>) {
        if (!isReadBack(variable))
            return;
    }
    const QByteArray written = text(throughText(bound.toJsonValue()));
    ConfValue again = ConfValue::owned(T());
    again.loadFromJsonValue(throughText(bound.toJsonValue()));
    const QByteArray rewritten = text(throughText(again.toJsonValue()));
    expect(rewritten == written, "a value is the same after writing and reading", rewritten,
           written);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    startFuzzing();
    if (size == 0)
        return 0;
    const QByteArray json = bytesOf(data + 1, size - 1);
    const QJsonDocument document = QJsonDocument::fromJson('[' + json + ']');
    // Most inputs are not JSON. They are then loaded as strings, like fonts, colours and keys.
    const QJsonValue value = document.array().size() == 1 ? document.array().at(0)
                                                          : QJsonValue(textOf(data + 1, size - 1));
    switch (data[0] % 9) {
    case 0: check<QFont>(value); break;
    case 1: check<QColor>(value); break;
    case 2: check<int>(value); break;
    case 3: check<qreal>(value); break;
    case 4: check<bool>(value); break;
    case 5: check<QString>(value); break;
    case 6: check<QKeySequence>(value); break;
    case 7: check<QJsonObject>(value); break;
    default: check<QJsonArray>(value); break;
    }
    return 0;
}
