#include "JsonText_p.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonValue>
#include <QString>

#include <cmath>

namespace {

constexpr double sLargestExactInteger = 9007199254740992.0; // 2^53

/// Serializes `value` as the only element of an array: QJsonDocument accepts no other values.
void appendByDocument(QByteArray &text, const QJsonValue &value)
{
    const QByteArray array = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    text.append(array.constData() + 1, array.size() - 2);
}

/// Returns whether the character is written as itself in JSON, as one byte.
bool isPlain(ushort character)
{
    return character >= 0x20 && character < 0x7f && character != '"' && character != '\\';
}

} // namespace

void appendJsonString(QByteArray &text, const QString &string)
{
    const auto start = text.size();
    text.resize(start + string.size() + 2);
    char *out = text.data() + start;
    *out++ = '"';
    for (const QChar character : string) {
        if (!isPlain(character.unicode())) {
            text.truncate(start);
            appendByDocument(text, string);
            return;
        }
        *out++ = static_cast<char>(character.unicode());
    }
    *out = '"';
}

void appendJsonValue(QByteArray &text, const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Bool: text += value.toBool() ? "true" : "false"; return;
    case QJsonValue::String: appendJsonString(text, value.toString()); return;
    case QJsonValue::Double: {
        const double number = value.toDouble();
        // QJsonDocument decides about zero, which may be negative.
        if (number != 0 && std::abs(number) < sLargestExactInteger
            && std::trunc(number) == number) {
            text += QByteArray::number(static_cast<qint64>(number));
            return;
        }
        break;
    }
    default: break;
    }
    appendByDocument(text, value);
}
