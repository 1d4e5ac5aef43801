#pragma once

#include <QString>

namespace MtConf {

class MtConfManage;
class ValueOrigins;
struct PageRow;

/// What there is to know of the value of a row, in the current language. Empty texts for rows
/// without that knowledge.
/// @{

/// Returns "Default: " and the default value.
QString defaultInWords(const PageRow &row);
/// Returns since when the value differs from its default.
QString changeInWords(const PageRow &row);
/// Returns where the value comes from.
QString originInWords(const PageRow &row, const ValueOrigins &origins, const MtConfManage &manager);
/// Returns that an administrator has locked the value.
QString lockInWords();
/// @}

} // namespace MtConf
