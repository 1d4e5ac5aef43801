#pragma once

#include <QtGlobal>

class QByteArray;
class QJsonValue;
class QString;

// Serializes JSON value by value. The bytes are those of the QJsonDocument of Qt 5 in its compact
// form, whichever Qt is used: that of Qt 6 writes some numbers differently. There are two
// exceptions, which Qt would write so that they are lost: U+FEFF at the start of a string is an
// escape, and the numbers that JSON does not have are the texts "nan", "inf" and "-inf" instead of
// null.

/// Appends `string` in quotes.
void appendJsonString(QByteArray &text, const QString &string);

/// Replaces the escapes of a JSON string in place. Returns false, with any content, for invalid
/// escapes and for those of surrogates, which are left to Qt's parser.
bool unescape(QString *text);

/// Appends a value of any type.
void appendJsonValue(QByteArray &text, const QJsonValue &value);

/// Returns whether a file with at most `limit` bytes can hold `value` and can be parsed again.
bool isSavable(const QJsonValue &value, qint64 limit);
