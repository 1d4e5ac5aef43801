#pragma once

#include <QColor>
#include <QJsonValue>
#include <QString>

namespace MtConf {

class ConfItem;

/// Returns `value`, in JSON as `ConfValue::toJsonValue` returns it, as users read it: choices by
/// their labels, numbers with their unit, hotkeys and fonts by name. The text is in the current
/// language and has one line of any length. It is "***" for the value of a secret setting, and
/// empty if `value` is undefined.
QString valueInWords(const ConfItem &item, const QJsonValue &value);

/// Returns the same for a key without a declaration.
QString valueInWords(const QJsonValue &value);

/// Returns what separates the entries of a list in the current language.
QString listSeparator();

/// Returns `text` so that it keeps its own direction if the layout is from right to left: "#ff0000"
/// would be "ff0000#" otherwise.
QString isolated(const QString &text);

/// Returns the colour that `value` is; an invalid one if the item is no colour, or secret.
QColor colorOfValue(const ConfItem &item, const QJsonValue &value);

} // namespace MtConf
