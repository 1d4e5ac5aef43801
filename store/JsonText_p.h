#pragma once

class QByteArray;
class QJsonValue;
class QString;

// JSON text, appended piece by piece. The bytes are those of QJsonDocument in its compact form.

/// Appends `string` in quotes.
void appendJsonString(QByteArray &text, const QString &string);

/// Appends any value.
void appendJsonValue(QByteArray &text, const QJsonValue &value);
