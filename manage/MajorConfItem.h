#pragma once

/// @file

#include <QString>
#include <QStringList>

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

    // Custom pages take part in the features of the window with these functions. Each may be empty.

    /// Returns the texts that Find offers of the page, in the current language. `FindFeature`.
    std::function<QStringList()> searchTexts;
    /// Shows what the text of `searchTexts` names on the page that is shown. `FindFeature`.
    std::function<void(const QString &text)> showSearchText;
    /// Returns whether something on the page differs from its default. `ResetFeature`.
    std::function<bool()> isChanged;
    /// Restores the defaults of the page: called when the user restores all settings and, in the
    /// modern look, when the user resets the page.
    std::function<void()> restoreDefault;
};

} // namespace MtConf
