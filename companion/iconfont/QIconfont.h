#pragma once

#include <QIconfont/qiconfont_export.h>

#include <QIcon>
#include <QMargins>
#include <QPixmap>

class QChar;
class QColor;
class QString;

/// Draws the glyphs of the icon font "QuorviIconfont" as icons and pixmaps.
///
/// The font is a resource of the library. The first call of any of these functions adds it to the
/// application. Call `load` before texts or style sheets use the font (`font: 23pt
/// QuorviIconfont`).
///
/// Call the functions on the GUI thread. Without a `QGuiApplication` they return null values.
/// Nothing is logged.
///
/// @see QuorviGlyphs
/// @since 0.1
class QICONFONT_EXPORT QIconfont
{
public:
    /// The largest size in logical pixels. It limits the memory of an icon to 56 MiB.
    static constexpr int MaximumSize = 1024;

    /// Returns an icon of `glyph` in a square of `size` logical pixels, with pixmaps for the device
    /// pixel ratios 1, 2 and 3, so that no pixmap is scaled up for smaller sizes. The caller may
    /// add pixmaps for other modes to the icon.
    ///
    /// The glyph is scaled to fit the rectangle inside `margins` (logical pixels; negative ones
    /// count as zero) and centred in it. The icon is transparent if the rectangle is empty or the
    /// font lacks the glyph. Returns a null icon if the colour is invalid or the size is not
    /// between 1 and `MaximumSize`.
    static QIcon Icon(const QChar &glyph, const QColor &color, int size,
                      QMargins margins = QMargins());

    /// Returns a pixmap of `glyph`, like Icon(), with the highest device pixel ratio of the
    /// application's screens, rounded up and at most 3.
    static QPixmap Pixmap(const QChar &glyph, const QColor &color, int size,
                          QMargins margins = QMargins());

    /// Adds the font to the application, if that was not done yet. Returns whether it is available.
    static bool load();

    /// Adds the font like load() and returns its family name, "QuorviIconfont"; empty if it is not
    /// available.
    static QString fontFamily();
};
