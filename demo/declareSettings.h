#pragma once

#include <QStringList>

namespace MtConf {
class MtConfManage;
}
struct ProgramActions;
struct Settings;

/// Declares every setting: its label, its variable in `settings`, its page and name, and the limits
/// and choices of its editor. The window shows the pages in the order of their first mention.
/// `settings` must outlive the use of the store. The shortcuts of `actions` are settings, too.
void declareSettings(MtConf::MtConfManage &manager, Settings &settings,
                     const ProgramActions &actions);

/// Returns the untranslated names of all pages, in the order of the window.
QStringList pageNames();
