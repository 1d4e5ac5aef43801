#pragma once

#include <QStringList>

namespace MtConf {
class MtConfManage;
}
struct Settings;

/// Tells the library every setting: its label, its variable in `settings`, its page and name, and
/// what its editor may offer. The pages appear in the window in the order of first mention.
/// `settings` must outlive the use of the store.
void declareSettings(MtConf::MtConfManage &manager, Settings &settings);

/// The names of all pages, in the order of the window.
QStringList pageNames();
