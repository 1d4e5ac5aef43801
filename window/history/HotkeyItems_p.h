#pragma once

#include <QStringList>

namespace MtConf {

class MtConfManage;

/// Registers the stored hotkeys of `keys` with the system: the global shortcut of each such item,
/// its property "Shortcut", gets the stored keys, unless it has them. To be called when the store
/// has changed hotkeys without their editor. A callback may destroy the manager meanwhile.
void registerHotkeys(const MtConfManage *manager, const QStringList &keys);

} // namespace MtConf
