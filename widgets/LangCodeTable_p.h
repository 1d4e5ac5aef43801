#pragma once

#include <QString>

namespace MtConf {

/// The languages that the language editor knows by name.
class LangCodeTable
{
public:
    /// The name of the language `code` ("fr-fr") in that language itself; null for a code that is
    /// not in the table. Codes are lower-case.
    static QString displayName(const QString &code);
};

} // namespace MtConf
