#pragma once

class QByteArray;
class QJsonValue;
class QString;

// Serializes JSON value by value. The bytes are those of the QJsonDocument of Qt 5 in its compact
// form, whichever Qt is used: that of Qt 6 writes some numbers differently.

/// Appends `string` in quotes.
void appendJsonString(QByteArray &text, const QString &string);

/// Appends a value of any type.
void appendJsonValue(QByteArray &text, const QJsonValue &value);
