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

/// Returns whether a load calls `strictJson`: with `StrictTypes`, and always for types with a
/// `MtConf::JsonForm`, which refuses what it cannot read.
constexpr bool isStrictType(bool strictTypes, ConfValue::ConfType type)
{
    return strictTypes || type > ConfValue::TyQJsonArray;
}

/// Logs the warning "ConfStorage::loadConf() value of another type refused: " with the key.
void logOtherType(const QString &key);
