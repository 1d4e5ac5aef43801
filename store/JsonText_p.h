#pragma once

class QByteArray;
class QJsonValue;
class QString;

// Serializes JSON value by value. The bytes are those of QJsonDocument in its compact form.

/// Appends `string` in quotes.
void appendJsonString(QByteArray &text, const QString &string);

/// Appends a value of any type.
void appendJsonValue(QByteArray &text, const QJsonValue &value);
