#pragma once

/// @file

#include <MaltoConfiguration/malto_export.h>

#include <QJsonArray>
#include <QJsonValue>

#include <chrono>
#include <memory>
#include <optional>
#include <type_traits>
#include <typeinfo>
#include <utility>

namespace MtConf {

/// Whether `T` is one of `Types`.
/// @since 0.1
template<class T, class... Types> inline constexpr bool isAnyOf = (std::is_same_v<T, Types> || ...);

/// Whether the values of `T` are whole numbers, or durations in whole units.
/// @since 0.1
template<class T> inline constexpr bool isWhole = std::is_integral_v<T> && !std::is_same_v<T, bool>;

/// @cond
template<class Count, class Unit>
inline constexpr bool isWhole<std::chrono::duration<Count, Unit>> = isWhole<Count>;
/// @endcond

/// The forms that the library supplies, in JsonForm.h. They are apart from `JsonForm`, so that a
/// form of the host is never ambiguous with them.
/// @since 0.1
template<class T, class Enable = void> struct DefaultForm
{
};

/// How values of a type become JSON and how they are read from it.
///
/// A host specializes it for a type of its own, in the header that declares the type, with two
/// functions:
///
/// @code
/// template<> struct MtConf::JsonForm<Margins> {
///     static QJsonValue toJson(const Margins &m) { return QJsonArray{m.left, m.right}; }
///     static std::optional<Margins> fromJson(const QJsonValue &json);
/// };
/// @endcode
///
/// `toJson` returns the same JSON for equal values. It must not return null, which sets no value in
/// a file. If it does, the store writes an empty array. `fromJson` returns what `toJson` was called
/// with, or nothing if the JSON does not describe a value; it is then refused. Neither may change
/// the store. The type must have a default constructor and be copyable.
///
/// @see ConfStorage::reserveConf
/// @since 0.1
template<class T, class Enable = void> struct JsonForm : DefaultForm<T>
{
};

/// Whether `T` has a `JsonForm`.
/// @since 0.1
template<class T, class = void> inline constexpr bool hasJsonForm = false;

template<class T> inline constexpr bool
    hasJsonForm<T, std::void_t<decltype(JsonForm<T>::toJson(std::declval<const T &>()))>> = true;

/// Returns the JSON of `value` in its form; an empty array instead of null.
/// @since 0.1
template<class T> QJsonValue toJsonForm(const T &value)
{
    QJsonValue json;
    if constexpr (hasJsonForm<T>)
        json = JsonForm<T>::toJson(value);
    return json.isNull() || json.isUndefined() ? QJsonValue(QJsonArray()) : json;
}

/// Returns the value of `json` in the form of `T`, or nothing if it is refused.
/// @since 0.1
template<class T> std::optional<T> fromJsonForm(const QJsonValue &json)
{
    if constexpr (hasJsonForm<T>)
        return JsonForm<T>::fromJson(json);
    else
        return std::nullopt;
}

/// The operations of a type that has a `JsonForm`. They get pointers to variables of the type.
struct JsonOperations
{
    /// Returns the JSON of the variable.
    QJsonValue (*toJson)(const void *variable);
    /// Returns false and leaves the variable unchanged if the JSON is refused.
    bool (*fromJson)(const QJsonValue &json, void *variable);
    /// Returns whether the JSON describes a value.
    bool (*accepts)(const QJsonValue &json);
    /// Returns a copy of the variable.
    std::shared_ptr<void> (*copy)(const void *variable);
};

/// The use of a type with a `JsonForm` by one library of the process. It ends when the library is
/// unloaded; the store then calls the operations of another library that uses the type.
class MALTO_EXPORT JsonTypeUse
{
public:
    /// Begins the use. Types are equal if `type` is, in whatever library.
    JsonTypeUse(const std::type_info &type, const JsonOperations &operations);
    /// Ends the use. The operations of the last one are kept: a program may save its settings when
    /// its global variables are destroyed.
    ~JsonTypeUse();
    Q_DISABLE_COPY(JsonTypeUse)

    /// Returns the number of the type, 10 or more, the same in all libraries.
    quint32 id() const { return mId; }

private:
    const quint32 mId;
};

/// Returns the operations of the type with the number `type`; null if no type has it.
MALTO_EXPORT const JsonOperations *jsonOperations(quint32 type);

/// Returns the number of the type `T`, which has a `JsonForm`.
template<class T> quint32 jsonTypeId()
{
    static const JsonTypeUse sUse(
        typeid(T),
        {[](const void *variable) { return toJsonForm(*static_cast<const T *>(variable)); },
         [](const QJsonValue &json, void *variable) {
             std::optional<T> value = fromJsonForm<T>(json);
             if (value)
                 *static_cast<T *>(variable) = std::move(*value);
             return value.has_value();
         },
         [](const QJsonValue &json) { return fromJsonForm<T>(json).has_value(); },
         [](const void *variable) -> std::shared_ptr<void> {
             return std::make_shared<T>(*static_cast<const T *>(variable));
         }});
    return sUse.id();
}

} // namespace MtConf
