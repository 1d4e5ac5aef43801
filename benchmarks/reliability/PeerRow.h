#pragma once

#include "SettingsPeer.h"

#include <vector>

/// One cell of the table.
struct PeerCell
{
    QString text;
    bool isLoss; ///< whether something is lost that the user has saved or changed
};

/// One row of the table.
struct PeerRow
{
    QString title;
    /// Measures a settings system. `path` is that of its file, in an empty folder.
    std::function<PeerCell(const PeerKind &kind, const QString &path)> measure;
    bool isPromised = true; ///< whether a loss by a kind with `mustKeepAll` is an error
};

/// Several programs that change one file, some of which are killed.
PeerRow sharingRow(int programs, int saves);
/// Files that were damaged.
std::vector<PeerRow> damageRows();
/// Single entries: another type, unknown or former keys, changes before a load.
std::vector<PeerRow> entryRows();
/// Programs that are terminated with changes that are not saved.
std::vector<PeerRow> terminationRows();
