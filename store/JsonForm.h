#pragma once

/// @file

#include <MaltoConfiguration/malto_export.h>
#include <MaltoConfiguration/store/JsonTypes.h>

#include <QFlags>
#include <QJsonArray>
#include <QJsonObject>
#include <QMap>
#include <QMetaEnum>
#include <QString>

#include <chrono>
#include <limits>
#include <string>
#include <type_traits>

class QByteArray;
class QColor;
class QDate;
class QDateTime;
class QFont;
class QKeySequence;
class QPoint;
class QRect;
class QSize;
class QTime;
class QUrl;
class QUuid;
class QVariant;

namespace MtConf {

/// The forms of types that are not templates.
///
/// | Type | JSON |
/// | --- | --- |
/// | `bool`, `QString`, `QJsonObject`, `QJsonArray` | as they are |
/// | `double`, `float` | a number, or the text "nan", "inf" or "-inf" |
/// | `QColor`, `QFont`, `QKeySequence` | the text of `ConfValue::toJsonValue` |
/// | `QByteArray` | a text in base64 |
/// | `std::string` | a text, from UTF-8 |
/// | `QUrl`, `QUuid` | a text; the empty text if it is empty or null |
/// | `QDate`, `QTime` | a text as in ISO 8601; the empty text if it is invalid |
/// | `QDateTime` | the same with milliseconds and the offset from UTC |
/// | `QSize`, `QPoint`, `QRect` | an array of 2 or 4 whole numbers |
/// | `QVariantMap` | an object, by `QJsonObject::fromVariantMap` |
///
/// A `QDateTime` in UTC is read in UTC, and one with the offset of this computer in local time.
///
/// @see JsonForm
/// @since 0.1
template<class T> struct SuppliedForm
{
    /// Returns the JSON of `value`.
    static QJsonValue toJson(const T &value);
    /// Returns the value of `json`, or nothing if it is refused.
    static std::optional<T> fromJson(const QJsonValue &json);
};

/// Whether `T` has a `SuppliedForm`.
/// @since 0.1
template<class T> inline constexpr bool isSupplied =
    isAnyOf<T, bool, double, float, std::string, QByteArray, QColor, QDate, QDateTime, QFont,
            QJsonArray, QJsonObject, QKeySequence, QPoint, QRect, QSize, QString, QTime, QUrl,
            QUuid, QMap<QString, QVariant>>;

/// @cond
extern template struct MALTO_EXPORT SuppliedForm<bool>;
extern template struct MALTO_EXPORT SuppliedForm<double>;
extern template struct MALTO_EXPORT SuppliedForm<float>;
extern template struct MALTO_EXPORT SuppliedForm<std::string>;
extern template struct MALTO_EXPORT SuppliedForm<QByteArray>;
extern template struct MALTO_EXPORT SuppliedForm<QColor>;
extern template struct MALTO_EXPORT SuppliedForm<QDate>;
extern template struct MALTO_EXPORT SuppliedForm<QDateTime>;
extern template struct MALTO_EXPORT SuppliedForm<QFont>;
extern template struct MALTO_EXPORT SuppliedForm<QJsonArray>;
extern template struct MALTO_EXPORT SuppliedForm<QJsonObject>;
extern template struct MALTO_EXPORT SuppliedForm<QKeySequence>;
extern template struct MALTO_EXPORT SuppliedForm<QPoint>;
extern template struct MALTO_EXPORT SuppliedForm<QRect>;
extern template struct MALTO_EXPORT SuppliedForm<QSize>;
extern template struct MALTO_EXPORT SuppliedForm<QString>;
extern template struct MALTO_EXPORT SuppliedForm<QTime>;
extern template struct MALTO_EXPORT SuppliedForm<QUrl>;
extern template struct MALTO_EXPORT SuppliedForm<QUuid>;
extern template struct MALTO_EXPORT SuppliedForm<QMap<QString, QVariant>>;

template<class T> struct DefaultForm<T, std::enable_if_t<isSupplied<T>>> : SuppliedForm<T>
{
};
/// @endcond

/// Returns the JSON of a whole number: a number below 2^53, or a text beyond. Qt 5 and
/// many other programs read numbers as `double`, which has no more.
/// @since 0.1
MALTO_EXPORT QJsonValue jsonOfInteger(qint64 number);
/// Returns the JSON of a whole number as the other function does.
/// @since 0.1
MALTO_EXPORT QJsonValue jsonOfInteger(quint64 number);

/// Returns the whole number of `json`, a number of at most 53 bits or a text of digits; nothing if
/// it is something else, less than `lowest` or greater than `highest`.
/// @since 0.1
MALTO_EXPORT std::optional<qint64> integerOf(const QJsonValue &json, qint64 lowest, qint64 highest);
/// Returns the whole number of `json` as the other function does.
/// @since 0.1
MALTO_EXPORT std::optional<quint64> integerOf(const QJsonValue &json, quint64 lowest,
                                              quint64 highest);

/// Whole numbers of all sizes; a text if they have more than 53 bits.
/// @since 0.1
template<class T> struct DefaultForm<T, std::enable_if_t<std::is_integral_v<T> && !isSupplied<T>>>
{
    /// The largest type with the same sign.
    using Largest = std::conditional_t<std::is_signed_v<T>, qint64, quint64>;

    /// Returns the JSON of `value`.
    static QJsonValue toJson(const T &value) { return jsonOfInteger(Largest(value)); }
    /// Returns the value of `json`; nothing if `T` does not have it.
    static std::optional<T> fromJson(const QJsonValue &json)
    {
        using Limits = std::numeric_limits<T>;
        const auto number = integerOf(json, Largest(Limits::min()), Largest(Limits::max()));
        return number ? std::optional<T>(static_cast<T>(*number)) : std::nullopt;
    }
};

/// An enum as its number. Does not check that the enum has a name for it.
/// @see JsonByName
/// @since 0.1
template<class T> struct DefaultForm<T, std::enable_if_t<std::is_enum_v<T>>>
{
    /// The type of the numbers.
    using Number = std::underlying_type_t<T>;

    /// Returns the JSON of `value`.
    static QJsonValue toJson(const T &value)
    {
        return JsonForm<Number>::toJson(static_cast<Number>(value));
    }
    /// Returns the value of `json`, a number.
    static std::optional<T> fromJson(const QJsonValue &json)
    {
        const std::optional<Number> number = JsonForm<Number>::fromJson(json);
        return number ? std::optional<T>(static_cast<T>(*number)) : std::nullopt;
    }
};

/// Flags as their number.
/// @see JsonByName
/// @since 0.1
template<class E> struct DefaultForm<QFlags<E>>
{
    /// The type of the numbers.
    using Int = typename QFlags<E>::Int;

    /// Returns the JSON of `flags`.
    static QJsonValue toJson(const QFlags<E> &flags)
    {
        return JsonForm<Int>::toJson(static_cast<Int>(flags));
    }
    /// Returns the flags of `json`, a number.
    static std::optional<QFlags<E>> fromJson(const QJsonValue &json)
    {
        const std::optional<Int> number = JsonForm<Int>::fromJson(json);
        if (!number)
            return std::nullopt;
        if constexpr (sizeof(Int) > sizeof(int))
            return QFlags<E>::fromInt(*number);
        else
            return QFlags<E>(QFlag(*number));
    }
};

/// An enum by its name, or flags by their names, separated by "|". Numbers are read, too, and
/// written for values without a name. `T` is declared with `Q_ENUM`, `Q_ENUM_NS`, `Q_FLAG` or
/// `Q_FLAG_NS`. To be written beside the declaration, so that every use of the type sees it:
///
/// @code
/// template<> struct MtConf::JsonForm<WrapMode> : MtConf::JsonByName<WrapMode> {};
/// @endcode
///
/// @since 0.1
template<class T> struct JsonByName
{
    /// Returns the JSON of `value`.
    static QJsonValue toJson(const T &value)
    {
        const QMetaEnum names = QMetaEnum::fromType<T>();
        const int number = static_cast<int>(value);
        if (!names.isFlag()) {
            const char *const name = names.valueToKey(number);
            return name ? QJsonValue(QString::fromLatin1(name)) : QJsonValue(number);
        }
        const QByteArray name = names.valueToKeys(number);
        if (!name.isEmpty() && names.keysToValue(name) == number)
            return QString::fromLatin1(name);
        return number;
    }
    /// Returns the value of `json`, a text or a number.
    static std::optional<T> fromJson(const QJsonValue &json)
    {
        const QMetaEnum names = QMetaEnum::fromType<T>();
        std::optional<int> number;
        if (json.isString()) {
            const QByteArray text = json.toString().toLatin1();
            bool isName = false;
            const int named = names.isFlag() ? names.keysToValue(text.constData(), &isName)
                                             : names.keyToValue(text.constData(), &isName);
            if (isName)
                number = named;
        } else {
            number = JsonForm<int>::fromJson(json);
        }
        // The type may have fewer bits.
        if (!number || static_cast<int>(static_cast<T>(*number)) != *number)
            return std::nullopt;
        return static_cast<T>(*number);
    }
};

/// A duration as the number of its units.
/// @since 0.1
template<class Count, class Unit>
struct DefaultForm<std::chrono::duration<Count, Unit>, std::enable_if_t<hasJsonForm<Count>>>
{
    /// Returns the JSON of `value`.
    static QJsonValue toJson(const std::chrono::duration<Count, Unit> &value)
    {
        return JsonForm<Count>::toJson(value.count());
    }
    /// Returns the value of `json`, a number.
    static std::optional<std::chrono::duration<Count, Unit>> fromJson(const QJsonValue &json)
    {
        const std::optional<Count> count = JsonForm<Count>::fromJson(json);
        return count ? std::make_optional(std::chrono::duration<Count, Unit>(*count))
                     : std::nullopt;
    }
};

/// An array with the value, or an empty array.
/// @since 0.1
template<class T> struct DefaultForm<std::optional<T>, std::enable_if_t<hasJsonForm<T>>>
{
    /// Returns the JSON of `value`.
    static QJsonValue toJson(const std::optional<T> &value)
    {
        return value ? QJsonArray{JsonForm<T>::toJson(*value)} : QJsonArray();
    }
    /// Returns the value of `json`, an array of at most one element.
    static std::optional<std::optional<T>> fromJson(const QJsonValue &json)
    {
        const QJsonArray array = json.toArray();
        if (!json.isArray() || array.size() > 1)
            return std::nullopt;
        if (array.isEmpty())
            return std::optional<T>();
        std::optional<T> value = JsonForm<T>::fromJson(array.first());
        return value ? std::make_optional(std::move(value)) : std::nullopt;
    }
};

/// Whether `T` is a list of values with a `JsonForm`: a `QList`, `QVector`, `std::vector` or
/// another container with `push_back`. A `std::wstring` is not one.
/// @since 0.1
template<class T, class = void> inline constexpr bool isJsonList = false;

/// @cond
template<class T> using ElementOf = typename T::value_type;
template<class T>
using PushBackOf = decltype(std::declval<T &>().push_back(std::declval<ElementOf<T>>()));
template<class T>
inline constexpr bool isWideText = std::is_same_v<T, std::basic_string<ElementOf<T>>>;

template<class T> inline constexpr bool isJsonList<T, std::void_t<PushBackOf<T>>> =
    hasJsonForm<ElementOf<T>> && !isSupplied<T> && !isWideText<T>;
/// @endcond

/// An array.
/// @since 0.1
template<class T> struct DefaultForm<T, std::enable_if_t<isJsonList<T>>>
{
    /// Returns the JSON of `values`.
    static QJsonValue toJson(const T &values)
    {
        QJsonArray array;
        for (const typename T::value_type &value : values)
            array.append(JsonForm<typename T::value_type>::toJson(value));
        return array;
    }
    /// Returns the values of `json`, an array; nothing if one of its elements is refused.
    static std::optional<T> fromJson(const QJsonValue &json)
    {
        if (!json.isArray())
            return std::nullopt;
        std::optional<T> values(T{});
        const QJsonArray array = json.toArray();
        for (const QJsonValue &element : array) {
            auto value = JsonForm<typename T::value_type>::fromJson(element);
            if (!value)
                return std::nullopt;
            values->push_back(std::move(*value));
        }
        return values;
    }
};

/// An object.
/// @since 0.1
template<class T> struct DefaultForm<QMap<QString, T>, std::enable_if_t<hasJsonForm<T>>>
{
    /// Returns the JSON of `values`.
    static QJsonValue toJson(const QMap<QString, T> &values)
    {
        QJsonObject object;
        for (auto value = values.cbegin(); value != values.cend(); ++value)
            object.insert(value.key(), JsonForm<T>::toJson(*value));
        return object;
    }
    /// Returns the values of `json`, an object; nothing if one of its members is refused.
    static std::optional<QMap<QString, T>> fromJson(const QJsonValue &json)
    {
        if (!json.isObject())
            return std::nullopt;
        QMap<QString, T> values;
        const QJsonObject object = json.toObject();
        for (auto member = object.constBegin(); member != object.constEnd(); ++member) {
            std::optional<T> value = JsonForm<T>::fromJson(member.value());
            if (!value)
                return std::nullopt;
            values.insert(member.key(), std::move(*value));
        }
        return values;
    }
};

} // namespace MtConf
