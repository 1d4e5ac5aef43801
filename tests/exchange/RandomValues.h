#pragma once

#include "Random.h"

#include <MaltoConfiguration/store/ConfValue.h>

#include <QJsonValue>

/// Returns a value of one of the types of `ConfValue`. It is the same with both Qts, which also
/// means that a colour or a font has nothing that one of them rounds.
template<class T> T randomValue(Random &random);
template<> int randomValue(Random &random);
template<> qreal randomValue(Random &random);
template<> bool randomValue(Random &random);
template<> QString randomValue(Random &random);
template<> QColor randomValue(Random &random);
template<> QFont randomValue(Random &random);
template<> QKeySequence randomValue(Random &random);
template<> QJsonArray randomValue(Random &random);
template<> QJsonObject randomValue(Random &random);

/// Returns text without the characters that Qt 5 and Qt 6 may sort differently in names: single
/// surrogates and U+E000 to U+FFFF.
QString randomName(Random &random);

/// Returns a JSON value of any type, of at most `levels` levels.
QJsonValue randomJson(Random &random, int levels);

/// Returns JSON text as a user may write it for a setting of `type`, not always a usable one.
QByteArray randomInput(Random &random, ConfValue::ConfType type);
