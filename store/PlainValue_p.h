#pragma once

#include <MaltoConfiguration/store/ConfValue.h>

class ParsedMember;
struct PlainMember;

/// Sets `value` to that of the member without a QJsonValue, which costs more than the value itself.
/// Returns false and changes nothing if `ConfValue::loadFromJsonValue` has to do it: if the JSON
/// type is not that of the value, or if something would be logged.
bool setPlainValue(const PlainMember &member, ConfValue *value);

/// Returns false: the value of parsed JSON is a QJsonValue already.
inline bool setPlainValue(const ParsedMember & /*member*/, ConfValue * /*value*/)
{
    return false;
}
