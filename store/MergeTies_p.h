#pragma once

class ConfStorage;
class QJsonValue;
class QString;

/// The rule of `ConfStorage::ResolveTies` for a change of `key` in `store` and an incoming change
/// with the same timestamp: a removal wins over a value, and a value over a restored default. Of
/// two values the one with the greater JSON text wins, compared byte by byte. So all copies choose
/// the same one, in whichever order they merge.
///
/// Returns whether the incoming change, a removal if `isRemoval` and otherwise `value`, or the
/// default value if `value` is undefined, is merged. Logs what `ConfValue::loadFromJsonValue` logs.
bool incomingWinsTie(const ConfStorage &store, const QString &key, bool isRemoval,
                     const QJsonValue &value);
