#pragma once

/// @file

#include <MaltoConfiguration/malto_export.h>

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

// The names under which Qt's meta-type system knows a pointer to a variable of the host.
using TyQColorPtr = QColor *;             ///< to a colour
using TyInt32Ptr = int *;                 ///< to an integer
using TyQrealPtr = qreal *;               ///< to a number
using TyBoolPtr = bool *;                 ///< to a switch
using TyQStringPtr = QString *;           ///< to a text
using TyQFontPtr = QFont *;               ///< to a font
using TyQKeySequencePtr = QKeySequence *; ///< to a hotkey
using TyQJsonObjectPtr = QJsonObject *;   ///< to an object
using TyQJsonArrayPtr = QJsonArray *;     ///< to an array

Q_DECLARE_METATYPE(TyQColorPtr)
Q_DECLARE_METATYPE(TyInt32Ptr)
Q_DECLARE_METATYPE(TyQrealPtr)
Q_DECLARE_METATYPE(TyBoolPtr)
Q_DECLARE_METATYPE(TyQStringPtr)
Q_DECLARE_METATYPE(TyQFontPtr)
Q_DECLARE_METATYPE(TyQKeySequencePtr)
Q_DECLARE_METATYPE(TyQJsonObjectPtr)
Q_DECLARE_METATYPE(TyQJsonArrayPtr)

/// One typed value of the store: either bound to a variable that the host owns, which is then read
/// and written in place, or owned.
///
/// The nine types are `int`, `double`, `bool`, `QString`, `QColor`, `QFont`, `QKeySequence`,
/// `QJsonObject` and `QJsonArray`; every template below exists for exactly these. A bound value
/// never owns the variable: the host keeps it alive while the value is in use.
///
/// Nothing is thrown and nothing returned to report a failure; it is one line on Qt's log.
class MALTO_EXPORT ConfValue
{
public:
    /// Which of the nine types a value is. The numbers are fixed: log messages print them.
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

    /// An empty value: null, not bound, of type `TyNone`.
    ConfValue() = default;

    /// A value bound to `*variable`, which must outlive it. With a null pointer reads give a
    /// default-constructed `T` and writes do nothing.
    template<class T> static ConfValue bound(T *variable);

    /// A value that holds a copy of `value` itself.
    template<class T> static ConfValue owned(const T &value);

    /// The type code of `T`; another type than the nine does not compile.
    template<class T> static constexpr ConfType typeOf();

    /// The current value. When the value is not of type `T`, logs the warning
    /// "ConfValue::get() type mismatch" and returns a default-constructed `T`.
    template<class T> T get() const;

    /// Changes the value, through the pointer when it is bound. When the value is not of type `T`,
    /// logs the warning "ConfValue::get() type mismatch" and changes nothing.
    template<class T> void set(T value);

    /// Copies the value of `other`, through the pointer when this one is bound; never re-binds.
    /// Logs the warning "ConfValue::set() type mismatch" when the types differ, or the critical
    /// message "restoreDefault: unknow type: " and the type when both are of no known type; nothing
    /// changes then.
    void set(const ConfValue &other);

    /// Whether both are of the same type and hold equal values, bound or owned alike. Two values of
    /// no known type, empty ones included, are never equal, which logs the critical message
    /// "restoreDefault: unknow type: " and the type.
    bool operator==(const ConfValue &other) const;
    /// The opposite of `==`, with the same message.
    bool operator!=(const ConfValue &other) const { return !(*this == other); }

    /// The value as JSON: a colour as the hexadecimal digits of its ARGB value or "None" when it is
    /// invalid, a font as `QFont::toString`, a key sequence as its portable text, the others as
    /// they are, an empty value as null. Logs the critical message "restoreDefault: unknow type: "
    /// and the type for an unknown one.
    QJsonValue toJsonValue() const;

    /// Sets the value from JSON written by `toJsonValue`, with Qt's lenient conversions when the
    /// JSON is of another type. A font of less than 0.1 or more than 4096 points or pixels counts
    /// as a text that is no font, which gives the default font; it logs the warning
    /// "ConfValue::loadFromJsonValue() font size out of range: " and the text. A font without a
    /// size has the default font's, or none where no `QGuiApplication` exists. JSON null or
    /// undefined empties the value and unbinds it from its variable, which keeps its content. Logs
    /// the critical message "restoreDefault: unknow type: " and the type for an unknown one.
    void loadFromJsonValue(const QJsonValue &value);

    QVariant mValue;         ///< the value itself, or a pointer `T *` to the host's variable
    bool mIsPtr = false;     ///< whether `mValue` holds a pointer
    ConfType mType = TyNone; ///< which type the value is

private:
    ConfValue(const QVariant &value, bool isPtr, ConfType type)
        : mValue(value), mIsPtr(isPtr), mType(type)
    {
    }

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
    else {
        static_assert(std::is_same_v<T, QJsonArray>, "not a type that a ConfValue can hold");
        return TyQJsonArray;
    }
}

template<class T> ConfValue ConfValue::bound(T *variable)
{
    return ConfValue(QVariant::fromValue(variable), true, typeOf<T>());
}

template<class T> ConfValue ConfValue::owned(const T &value)
{
    return ConfValue(QVariant::fromValue(value), false, typeOf<T>());
}

template<class T> T ConfValue::get() const
{
    if (mType != typeOf<T>()) {
        logGetMismatch();
        return T();
    }
    if (!mIsPtr)
        return mValue.value<T>();
    const T *variable = mValue.value<T *>();
    return variable ? *variable : T();
}

template<class T> void ConfValue::set(T value)
{
    if (mType != typeOf<T>()) {
        // The typed setters share the getter's message on purpose: log filters know that one text.
        logGetMismatch();
        return;
    }
    if (!mIsPtr)
        mValue.setValue(value);
    else if (T *variable = mValue.value<T *>())
        *variable = std::move(value);
}
