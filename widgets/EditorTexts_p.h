#pragma once

#include <QString>

class QDateTime;
class QLocale;

namespace MtConf {

class ConfItem;

// The texts of values that the editors share with lists of values. Each function is in the source
// of the editor that has the texts.

/// Returns the untranslated suffix of the unit of the duration `item`, such as " min", which the
/// context "QObject" translates. Null if the unit has none.
const char *unitSuffix(const ConfItem &item);

/// Returns the text of a mouse action with its modifiers, such as "⇧ + Left Click", in the current
/// language; empty if there is no such action. `value` is that of
/// `MtConfManage::addConfMouseAction`.
QString mouseActionText(int value);

/// Returns the format in which users read `time`, which is in local time: the short one of `locale`
/// with all digits of the year, and with seconds only if there are some.
QString dateTimeFormat(const QLocale &locale, const QDateTime &time);

} // namespace MtConf
