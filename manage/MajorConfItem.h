#pragma once

/// @file

#include <QString>

#include <functional>

class QWidget;

namespace MtConf {

/// Bits of `MajorConfItem::classFlag` that the settings window reads. The host may use the other
/// bits.
///
/// @since 0.1
enum MajorConfFlag : int {
    ClassWithoutGroupBoxes = 0x1,   ///< the page has no captions, panels and margins
    ClassWithoutRestoreButton = 0x4 ///< the page has no button that restores its default values
};

/// A class of settings: one page of the settings window.
///
/// @see MtConfManage::addMajorConfItemIfNotExist
/// @since 0.1
struct MajorConfItem
{
    QString name; ///< the `ConfItem::majorName` of its items
    /// Creates a custom page as a child of the given parent; empty: the page shows the editors.
    std::function<QWidget *(QWidget *)> majorWidget;
    int classFlag = 0; ///< `MajorConfFlag` bits and bits of the host
};

} // namespace MtConf
