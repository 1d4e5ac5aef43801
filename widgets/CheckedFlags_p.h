#pragma once

#include <QVector>

class MultiSelectComboBox;

namespace MtConf {

/// Returns the flags of all checked entries of `box`, combined with OR. The flag of an entry is its
/// user data, an `int`.
int checkedFlags(const MultiSelectComboBox *box);

/// Returns for each entry of `box` whether `value` contains all bits of the entry's flag. A flag of
/// several bits needs all of them; the flag 0 is contained in every value.
QVector<bool> containedFlags(const MultiSelectComboBox *box, int value);

} // namespace MtConf
