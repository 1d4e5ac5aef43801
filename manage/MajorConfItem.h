#pragma once

/// @file

#include <QString>

#include <functional>

class QWidget;

namespace MtConf {

/// Bits of `MajorConfItem::classFlag` that the settings window reads; other bits are the host's.
enum MajorConfFlag : int {
    ClassWithoutGroupBoxes = 0x1,   ///< no captions, no panels, no margins on the page
    ClassWithoutRestoreButton = 0x4 ///< the page has no button that restores its defaults
};

/// One class of settings: a page of the settings window.
struct MajorConfItem
{
    QString name;                                    ///< matches `ConfItem::majorName`
    std::function<QWidget *(QWidget *)> majorWidget; ///< makes a custom page, given the parent
    int classFlag = 0;                               ///< `MajorConfFlag` bits and the host's
};

} // namespace MtConf
