#pragma once

#include <QString>

namespace MtConf {

/// The display names of the languages.
class LangCodeTable
{
public:
    /// Returns the name of the language `code`, a lower-case code such as "fr-fr", in that
    /// language; null if the code is not in the table.
    static QString displayName(const QString &code);
};

} // namespace MtConf
