#pragma once

#include <QStringList>

class QWidget;

namespace MtConf {

/// What a question is about.
enum class ResetScope {
    Page, ///< the settings of the shown page
    All   ///< the settings of all pages
};

/// Asks the user whether to reset the settings that `captions` name. The safe answer is the default
/// one. Returns false also if `window` is deleted meanwhile.
bool askToReset(QWidget *window, ResetScope scope, const QStringList &captions);

} // namespace MtConf
