#pragma once

#include "SettingsImport_p.h"

#include <QColor>
#include <QString>
#include <QStringList>
#include <QVector>

namespace MtConf {

class MtConfManage;

/// A change that an import would make, as the user sees it.
struct ImportRow
{
    QString key;
    QString group;      ///< the page and the group, such as "Capture › Snapping"
    QString caption;    ///< of the setting; the key if it has none
    QString here;       ///< the value now
    QString inFile;     ///< the value after the import
    QColor hereColor;   ///< the value, if it is a colour; otherwise invalid
    QColor inFileColor; ///< the same
};

/// Returns a row for each change, in the order of the pages and of the settings on them. Settings
/// without a page are last.
QVector<ImportRow> importRows(const MtConfManage &manager, const QVector<ConfChange> &changes);

/// Returns sentences that tell what is left out; none if nothing is.
QStringList importNotes(const MtConfManage &manager, const SettingsImport::LeftOut &leftOut);

} // namespace MtConf
