#pragma once

/// @file

#include <MaltoConfiguration/malto_export.h>
#include <MaltoConfiguration/store/JsonForm.h>

#include <QColor>
#include <QFont>
#include <QJsonArray>
#include <QJsonObject>
#include <QKeySequence>
#include <QString>
#include <QVariant>

#include <type_traits>
#include <utility>

class QJsonValue;

// Pointers to variables of the host, by the names that Qt's meta-type system knows them by.
using TyQColorPtr = QColor *;             ///< to a colour
using TyInt32Ptr = int *;                 ///< to an integer
using TyQrealPtr = qreal *;               ///< to a floating-point number
using TyBoolPtr = bool *;                 ///< to a boolean
using TyQStringPtr = QString *;           ///< to a string
using TyQFontPtr = QFont *;               ///< to a font
using TyQKeySequencePtr = QKeySequence *; ///< to a key sequence
using TyQJsonObjectPtr = QJsonObject *;   ///< to a JSON object
using TyQJsonArrayPtr = QJsonArray *;     ///< to a JSON array

Q_DECLARE_METATYPE(TyQColorPtr)
Q_DECLARE_METATYPE(TyInt32Ptr)
Q_DECLARE_METATYPE(TyQrealPtr)
Q_DECLARE_METATYPE(TyBoolPtr)
Q_DECLARE_METATYPE(TyQStringPtr)
Q_DECLARE_METATYPE(TyQFontPtr)
Q_DECLARE_METATYPE(TyQKeySequencePtr)
Q_DECLARE_METATYPE(TyQJsonObjectPtr)
Q_DECLARE_METATYPE(TyQJsonArrayPtr)

/// A typed value of the store. It is either bound to a variable of the host, which it reads and
/// writes in place, or it owns its content.
///
/// Nine types are built in: `int`, `double`, `bool`, `QString`, `QColor`, `QFont`, `QKeySequence`,
/// `QJsonObject` and `QJsonArray`. Any other type needs a `MtConf::JsonForm`, which JsonForm.h
/// supplies for many. A bound value does not own the variable: the host keeps the variable alive as
/// long as the value is in use.
///
/// No function throws or returns an error. Each failure is one message on Qt's log.
///
/// @see ConfStorage
/// @since 0.1
class MALTO_EXPORT ConfValue
{
public:
    /// The type of a value. The numbers are fixed, because log messages print them. Those of other
    /// types are 10 and more; see `MtConf::JsonTypeUse`.
    enum ConfType : quint32 {
        TyNone = 0,
        TyQColor = 1,
        TyInt32 = 2,
        TyQreal = 3,
        TyBool = 4,
        TyQString = 5,
        TyQFont = 6,
        TyQKeySequence = 7,
        TyQJsonObject = 8,
        TyQJsonArray = 9
    };

    /// Constructs an empty value: null, not bound, of type `TyNone`.
    ConfValue() = default;

    /// Returns a value bound to `*variable`, which must outlive the value. With a null pointer,
    /// `get` returns a default-constructed `T` and `set` does nothing.
    template<class T> static ConfValue bound(T *variable);

    /// Returns a value that owns a copy of `value`.
    template<class T> static ConfValue owned(const T &value);

    /// Returns the type code of `T`, a constant for the nine types. Does not compile for a type
    /// without a `MtConf::JsonForm`.
    template<class T> static constexpr ConfType typeOf();

    /// Whether `T` is one of the nine types.
    template<class T>
    static constexpr bool isBuiltIn = MtConf::isAnyOf<T, QColor, int, qreal, bool, QString, QFont,
                                                      QKeySequence, QJsonObject, QJsonArray>;

    /// Returns the current value. Logs the warning "ConfValue::get() type mismatch" and returns a
    /// default-constructed `T` if the value is not of type `T`.
    template<class T> T get() const;

    /// Sets the value; a bound value writes the variable. Logs the warning
    /// "ConfValue::get() type mismatch" and changes nothing if the value is not of type `T`.
    template<class T> void set(T value);

    /// Copies the content of `other`; a bound value writes its variable and stays bound to it. Logs
    /// the warning "ConfValue::set() type mismatch" and changes nothing if the types differ. Logs
    /// the critical message "restoreDefault: unknow type: " with the type and changes nothing if
    /// both are of the same unknown type.
    void set(const ConfValue &other);

    /// Returns whether both values are of the same type and have equal content, bound or owned.
    /// Two values of the same unknown type, empty ones included, are never equal; this logs the
    /// critical message "restoreDefault: unknow type: " with the type.
    bool operator==(const ConfValue &other) const;
    /// Returns the opposite of `==` and logs the same.
    bool operator!=(const ConfValue &other) const { return !(*this == other); }

    /// Returns the value as JSON: a colour as the hexadecimal digits of its ARGB value, or "None"
    /// if it is invalid; a font as the `QFont::toString` of Qt 5 and a key sequence as the portable
    /// text of Qt 5, also with Qt 6; an empty value as null; the value of a type with a
    /// `MtConf::JsonForm` in this form; other values as they are. Logs the critical message
    /// "restoreDefault: unknow type: " with the type if the type is unknown.
    QJsonValue toJsonValue() const;

    /// Sets the value from JSON as `toJsonValue` returns it. JSON of another type is converted by
    /// Qt's lenient rules. JSON null or undefined empties the value and unbinds it from its
    /// variable, which keeps its content. Logs the critical message "restoreDefault: unknow type: "
    /// with the type if the type is unknown.
    ///
    /// Text that does not describe a font sets the default font. A font of less than 0.1 or more
    /// than 4096 points or pixels does so too, and logs the warning
    /// "ConfValue::loadFromJsonValue() font size out of range: " with the text. A font without a
    /// size gets the size of the default font, or none if no `QGuiApplication` exists.
    ///
    /// JSON that the `MtConf::JsonForm` of the type refuses changes nothing. Logs the warning
    /// "ConfValue::loadFromJsonValue() value refused: " with the type.
    void loadFromJsonValue(const QJsonValue &value);

    /// The content, or a pointer `T *` to the host's variable. For a type with a
    /// `MtConf::JsonForm` the JSON, or a `void *`.
    QVariant mValue;
    bool mIsPtr = false;     ///< whether `mValue` contains a pointer
    ConfType mType = TyNone; ///< the type of the value

private:
    ConfValue(QVariant &&value, bool isPtr, ConfType type)
        : mValue(std::move(value)), mIsPtr(isPtr), mType(type)
    {
    }

    /// Returns what `mValue` contains if it owns `value`.
    template<class T> static decltype(auto) contentOf(const T &value);
    /// Returns the variable of a bound value of type `T`.
    template<class T> T *variable() const;
    bool setJson(const QJsonValue &json);
    static void logGetMismatch();
};

template<class T> constexpr ConfValue::ConfType ConfValue::typeOf()
{
    if constexpr (std::is_same_v<T, QColor>)
        return TyQColor;
    else if constexpr (std::is_same_v<T, int>)
        return TyInt32;
    else if constexpr (std::is_same_v<T, qreal>)
        return TyQreal;
    else if constexpr (std::is_same_v<T, bool>)
        return TyBool;
    else if constexpr (std::is_same_v<T, QString>)
        return TyQString;
    else if constexpr (std::is_same_v<T, QFont>)
        return TyQFont;
    else if constexpr (std::is_same_v<T, QKeySequence>)
        return TyQKeySequence;
    else if constexpr (std::is_same_v<T, QJsonObject>)
        return TyQJsonObject;
    else if constexpr (std::is_same_v<T, QJsonArray>)
        return TyQJsonArray;
    else {
        static_assert(MtConf::hasJsonForm<T>,
                      "a setting of this type needs a MtConf::JsonForm with toJson and fromJson");
        if constexpr (MtConf::hasJsonForm<T>)
            return static_cast<ConfType>(MtConf::jsonTypeId<T>());
        else
            return TyNone;
    }
}

template<class T> ConfValue ConfValue::bound(T *variable)
{
    if constexpr (isBuiltIn<T>) {
        // Registers the name of the pointer type, which Qt 6 does not do by itself.
        qMetaTypeId<T *>();
        return ConfValue(QVariant::fromValue(variable), true, typeOf<T>());
    } else {
        return ConfValue(QVariant::fromValue<void *>(variable), true, typeOf<T>());
    }
}

template<class T> ConfValue ConfValue::owned(const T &value)
{
    return ConfValue(QVariant::fromValue(contentOf(value)), false, typeOf<T>());
}

template<class T> decltype(auto) ConfValue::contentOf(const T &value)
{
    if constexpr (isBuiltIn<T>)
        return (value);
    else
        return MtConf::toJsonForm(value);
}

template<class T> T *ConfValue::variable() const
{
    if constexpr (isBuiltIn<T>)
        return mValue.value<T *>();
    else
        return static_cast<T *>(mValue.value<void *>());
}

template<class T> T ConfValue::get() const
{
    if (mType != typeOf<T>()) {
        logGetMismatch();
        return T();
    }
    if (mIsPtr) {
        const T *bound = variable<T>();
        return bound ? *bound : T();
    }
    if constexpr (isBuiltIn<T>)
        return mValue.value<T>();
    else
        return MtConf::fromJsonForm<T>(mValue.value<QJsonValue>()).value_or(T());
}

template<class T> void ConfValue::set(T value)
{
    if (mType != typeOf<T>()) {
        // The setters share the message of the getter deliberately: log filters match that text.
        logGetMismatch();
        return;
    }
    if (!mIsPtr)
        mValue.setValue(contentOf(value));
    else if (T *bound = variable<T>())
        *bound = std::move(value);
}
