#include <MaltoConfiguration/store/JsonForm.h>

#include "StrictTypes_p.h"

#include <QColor>
#include <QDateTime>
#include <QFont>
#include <QKeySequence>
#include <QRect>
#include <QRegularExpression>
#include <QUrl>
#include <QUuid>
#include <QVariant>

#include <cmath>
#include <limits>

namespace MtConf {

namespace {

constexpr qint64 sLargestExact = 9007199254740992; // 2^53; a double has every smaller number

// The types of ConfValue

template<class T> QJsonValue jsonOf(const T &value)
{
    return ConfValue::owned(value).toJsonValue();
}
template<class T> bool read(const QJsonValue &json, T *value)
{
    ConfValue read = ConfValue::owned(T());
    const std::optional<QJsonValue> accepted = strictJson(json, read.mType);
    if (!accepted || accepted->isNull() || accepted->isUndefined())
        return false;
    read.loadFromJsonValue(*accepted);
    *value = read.get<T>();
    return true;
}

QJsonValue jsonOf(const QString &text)
{
    return text.isNull() ? QLatin1String("") : text; // null is no form
}

// Numbers

QJsonValue jsonOf(double number)
{
    if (std::isfinite(number))
        return number;
    return QLatin1String(std::isnan(number) ? "nan" : number > 0 ? "inf" : "-inf");
}
bool read(const QJsonValue &json, double *number)
{
    const std::optional<QJsonValue> accepted = strictJson(json, ConfValue::TyQreal);
    if (accepted && accepted->isDouble())
        *number = accepted->toDouble();
    return accepted && accepted->isDouble();
}

QJsonValue jsonOf(float number)
{
    constexpr int sDigits = std::numeric_limits<float>::max_digits10;
    if (!std::isfinite(number))
        return jsonOf(double(number));
    // The nearest double of the shortest text, or 0.1 would have seventeen digits.
    for (int digits = sDigits - 3; digits < sDigits; ++digits) {
        const double rounded = QByteArray::number(double(number), 'g', digits).toDouble();
        if (float(rounded) == number)
            return rounded;
    }
    return double(number);
}
bool read(const QJsonValue &json, float *number)
{
    double value = 0;
    if (!read(json, &value) || (std::isfinite(value) && !std::isfinite(float(value))))
        return false;
    *number = float(value);
    return true;
}

// Texts

QJsonValue jsonOf(const std::string &text)
{
    return jsonOf(QString::fromStdString("\xef\xbb\xbf" + text)); // Qt drops one byte order mark
}
bool read(const QJsonValue &json, std::string *text)
{
    *text = json.toString().toStdString();
    return json.isString();
}

QJsonValue jsonOf(const QByteArray &bytes)
{
    return QString::fromLatin1(bytes.toBase64());
}
bool read(const QJsonValue &json, QByteArray *bytes)
{
    const auto decoded = QByteArray::fromBase64Encoding(json.toString().toLatin1(),
                                                        QByteArray::AbortOnBase64DecodingErrors);
    *bytes = decoded.decoded;
    return json.isString() && decoded.decodingStatus == QByteArray::Base64DecodingStatus::Ok;
}

/// Whether `json` is a text, and a value that is described by it is valid.
template<class T> bool isText(const QJsonValue &json, bool isValid)
{
    return json.isString() && (isValid || json.toString().isEmpty());
}

QJsonValue jsonOf(const QUrl &url)
{
    return jsonOf(QString::fromLatin1(url.toEncoded()));
}
bool read(const QJsonValue &json, QUrl *url)
{
    const QUrl read(json.toString(), QUrl::StrictMode);
    *url = QUrl::fromEncoded(read.toEncoded()); // a second "#" is encoded when it is written
    return isText<QUrl>(json, url->isValid());
}

QJsonValue jsonOf(const QUuid &id)
{
    return id.isNull() ? QLatin1String("") : id.toString(QUuid::WithoutBraces);
}
bool read(const QJsonValue &json, QUuid *id)
{
    *id = QUuid(json.toString());
    return isText<QUuid>(json, !id->isNull());
}

// Dates

// Qt 5 ignores what follows the seconds, and reads signs as digits.
constexpr char sDate[] = "\\d{4}-\\d\\d-\\d\\d";
constexpr char sTime[] = "\\d\\d:\\d\\d(:\\d\\d([.,]\\d{1,9})?)?";
constexpr char sZone[] = "(Z|[+-]\\d\\d(:?\\d\\d)?)?";

/// Returns the text of `json`, or an empty one if it does not have the form of a date or time.
QString isoText(const QJsonValue &json, const QByteArray &pattern)
{
    const QString text = json.toString();
    const QRegularExpression form(
        QRegularExpression::anchoredPattern(QString::fromLatin1(pattern)));
    return form.match(text).hasMatch() ? text : QString();
}

QJsonValue jsonOf(const QDate &date)
{
    return jsonOf(date.toString(Qt::ISODate));
}
bool read(const QJsonValue &json, QDate *date)
{
    *date = QDate::fromString(isoText(json, sDate), Qt::ISODate);
    return isText<QDate>(json, date->isValid());
}

QJsonValue jsonOf(const QTime &time)
{
    return jsonOf(time.toString(Qt::ISODateWithMs));
}
bool read(const QJsonValue &json, QTime *time)
{
    *time = QTime::fromString(isoText(json, sTime), Qt::ISODateWithMs);
    return isText<QTime>(json, time->isValid());
}

QJsonValue jsonOf(const QDateTime &time)
{
    // The text of an offset has whole minutes.
    if (time.timeSpec() == Qt::UTC || time.offsetFromUtc() % 60 != 0)
        return jsonOf(time.toUTC().toString(Qt::ISODateWithMs));
    return jsonOf(time.toOffsetFromUtc(time.offsetFromUtc()).toString(Qt::ISODateWithMs));
}
bool read(const QJsonValue &json, QDateTime *time)
{
    const QByteArray pattern = QByteArray(sDate) + "([T ]" + sTime + sZone + ")?";
    *time = QDateTime::fromString(isoText(json, pattern), Qt::ISODateWithMs);
    // The same text is written again wherever the file is read.
    const QDateTime local = time->toLocalTime();
    if (time->timeSpec() == Qt::OffsetFromUTC && local.offsetFromUtc() == time->offsetFromUtc())
        *time = local;
    // The end of the year 9999 may be read as the year 10000, which has no text.
    const bool isWritable = !time->toString(Qt::ISODateWithMs).isEmpty();
    return isText<QDateTime>(json, time->isValid() && isWritable);
}

// Geometry

/// Reads an array of two whole numbers.
bool readPair(const QJsonValue &json, int *first, int *second)
{
    const QJsonArray array = json.toArray();
    return array.size() == 2 && read(array.at(0), first) && read(array.at(1), second);
}

QJsonValue jsonOf(const QSize &size)
{
    return QJsonArray{size.width(), size.height()};
}
bool read(const QJsonValue &json, QSize *size)
{
    return readPair(json, &size->rwidth(), &size->rheight());
}

QJsonValue jsonOf(const QPoint &point)
{
    return QJsonArray{point.x(), point.y()};
}
bool read(const QJsonValue &json, QPoint *point)
{
    return readPair(json, &point->rx(), &point->ry());
}

/// Reads the first and the last coordinate of a rectangle's side, which `QRect` itself would add
/// in 32 bits.
bool readSide(const QJsonValue &start, const QJsonValue &length, int *first, int *last)
{
    constexpr qint64 sLowest = std::numeric_limits<int>::min();
    constexpr qint64 sHighest = std::numeric_limits<int>::max();
    const auto from = integerOf(start, sLowest, sHighest);
    const auto count = integerOf(length, 2 * sLowest, 2 * sHighest);
    if (!from || !count || !start.isDouble() || !length.isDouble())
        return false;
    const qint64 to = *from + *count - 1;
    *first = static_cast<int>(*from);
    *last = static_cast<int>(to);
    return to >= sLowest && to <= sHighest;
}

QJsonValue jsonOf(const QRect &rect)
{
    const qint64 width = qint64(rect.right()) - rect.left() + 1;
    const qint64 height = qint64(rect.bottom()) - rect.top() + 1;
    return QJsonArray{rect.left(), rect.top(), width, height};
}
bool read(const QJsonValue &json, QRect *rect)
{
    const QJsonArray array = json.toArray();
    int left = 0, top = 0, right = 0, bottom = 0;
    const bool isRead = array.size() == 4 && readSide(array.at(0), array.at(2), &left, &right)
                        && readSide(array.at(1), array.at(3), &top, &bottom);
    rect->setCoords(left, top, right, bottom);
    return isRead;
}

// Anything

QJsonValue jsonOf(const QVariantMap &values)
{
    return QJsonObject::fromVariantMap(values);
}
bool read(const QJsonValue &json, QVariantMap *values)
{
    *values = json.toObject().toVariantMap();
    return json.isObject();
}

} // namespace

template<class T> QJsonValue SuppliedForm<T>::toJson(const T &value)
{
    return jsonOf(value);
}

template<class T> std::optional<T> SuppliedForm<T>::fromJson(const QJsonValue &json)
{
    T value{};
    return read(json, &value) ? std::optional<T>(std::move(value)) : std::nullopt;
}

template struct SuppliedForm<bool>;
template struct SuppliedForm<double>;
template struct SuppliedForm<float>;
template struct SuppliedForm<std::string>;
template struct SuppliedForm<QByteArray>;
template struct SuppliedForm<QColor>;
template struct SuppliedForm<QDate>;
template struct SuppliedForm<QDateTime>;
template struct SuppliedForm<QFont>;
template struct SuppliedForm<QJsonArray>;
template struct SuppliedForm<QJsonObject>;
template struct SuppliedForm<QKeySequence>;
template struct SuppliedForm<QPoint>;
template struct SuppliedForm<QRect>;
template struct SuppliedForm<QSize>;
template struct SuppliedForm<QString>;
template struct SuppliedForm<QTime>;
template struct SuppliedForm<QUrl>;
template struct SuppliedForm<QUuid>;
template struct SuppliedForm<QVariantMap>;

QJsonValue jsonOfInteger(qint64 number)
{
    const bool isExact = number > -sLargestExact && number < sLargestExact;
    return isExact ? QJsonValue(static_cast<double>(number)) : QJsonValue(QString::number(number));
}

QJsonValue jsonOfInteger(quint64 number)
{
    const bool isExact = number < quint64(sLargestExact);
    return isExact ? QJsonValue(static_cast<double>(number)) : QJsonValue(QString::number(number));
}

std::optional<qint64> integerOf(const QJsonValue &json, qint64 lowest, qint64 highest)
{
    bool isNumber = false;
    qint64 number = 0;
    if (json.isString()) {
        number = json.toString().toLongLong(&isNumber);
    } else {
        const double value = json.toDouble(0.5);
        isNumber = std::trunc(value) == value && std::abs(value) < double(sLargestExact);
        number = isNumber ? static_cast<qint64>(value) : 0;
    }
    const bool isAccepted = isNumber && number >= lowest && number <= highest;
    return isAccepted ? std::optional<qint64>(number) : std::nullopt;
}

std::optional<quint64> integerOf(const QJsonValue &json, quint64 lowest, quint64 highest)
{
    bool isNumber = json.isString();
    quint64 number = 0;
    if (isNumber) {
        number = json.toString().toULongLong(&isNumber);
    } else if (const auto exact = integerOf(json, 0, sLargestExact)) {
        isNumber = true;
        number = static_cast<quint64>(*exact);
    }
    const bool isAccepted = isNumber && number >= lowest && number <= highest;
    return isAccepted ? std::optional<quint64>(number) : std::nullopt;
}

} // namespace MtConf
