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
/// The font is built in, and known to the application under its name from the first call of any of
/// these functions on: call `load` before texts or style sheets name the font (`font: 23pt
/// QuorviIconfont`). `QuorviGlyphs.h` names the glyphs.
///
/// Needs a `QGuiApplication`, and its thread: as long as there is none everything returned is null.
/// Nothing is logged.
class QICONFONT_EXPORT QIconfont
{
public:
    /// The largest square that is drawn, in logical pixels; so an icon takes 56 MiB at most.
    static constexpr int MaximumSize = 1024;

    /// The glyph in a square of `size` logical pixels, for screens that scale by one, two and
    /// three: whatever smaller size is asked of the icon, no picture is scaled up. Pixmaps that the
    /// caller adds to the icon for other modes are used for these.
    ///
    /// The glyph is as large as fits into what `margins` (logical pixels, negative ones count as
    /// zero) leave of the square, in the middle of that. Margins that leave nothing, and a glyph
    /// that the font lacks, give a transparent icon. Null for an invalid colour, and for a size
    /// that is not between 1 and `MaximumSize`.
    static QIcon Icon(const QChar &glyph, const QColor &color, int size,
                      QMargins margins = QMargins());

    /// The same as one pixmap, with the device pixel ratio of the application's finest screen
    /// (rounded up, at most three).
    static QPixmap Pixmap(const QChar &glyph, const QColor &color, int size,
                          QMargins margins = QMargins());

    /// Makes the font known to the application, once; true when it is known.
    static bool load();

    /// The name of the font, "QuorviIconfont", which it is made known under; empty when it cannot
    /// be.
    static QString fontFamily();
};
