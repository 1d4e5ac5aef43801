#pragma once

#include <MaltoConfiguration/store/ConfValue.h>

#include <QJsonValue>

#include <optional>

// The rule of `ConfStorage::StrictTypes`.

/// Returns the JSON from which `ConfValue::loadFromJsonValue` reads `json` as a value of `type`
/// without losing anything, or nothing if `json` is of another type. The texts "nan", "inf" and
/// "-inf" become numbers. JSON null and undefined fit every type, and every JSON fits an empty
/// value.
std::optional<QJsonValue> strictJson(const QJsonValue &json, ConfValue::ConfType type);

/// Logs the warning "ConfStorage::loadConf() value of another type refused: " with the key.
void logOtherType(const QString &key);
