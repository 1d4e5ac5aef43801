#include "LookValues_p.h"

#include <QFile>

namespace MtConf {

namespace {

constexpr double sPixelsPerPoint = 96. / 72;

/// The host's sheet, if it has one.
QString modernSheet()
{
    const QString ofHost = QStringLiteral(":/qss/ModernWindow");
    return QFile::exists(ofHost) ? ofHost : QStringLiteral(":/malto/qss/ModernWindow");
}

} // namespace

LookValues lookValues(WindowLook look)
{
    if (look != ModernLook)
        return {{768, 500}, 24, QStringLiteral("ColorFg0"), QString(), {}, 1};
    return {QSizeF(980, 690) / sPixelsPerPoint, 18 / sPixelsPerPoint, QStringLiteral("ModernText"),
            QStringLiteral("ModernOnAccent"),   {modernSheet()},      sPixelsPerPoint};
}

} // namespace MtConf
