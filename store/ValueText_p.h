#pragma once

#include <QColor>
#include <QFont>
#include <QKeySequence>
#include <QString>

// The texts of values in files. They are those of Qt 5, whichever Qt is used, because programs that
// are built with either exchange their files.

/// Returns the text of `font` as the QFont::toString() of Qt 5 writes it: family, size in points
/// and in pixels, style hint, weight, style, underline, strike-out, fixed pitch, 0 and, if there is
/// one, the name of the style. Qt 6 writes more fields, and Qt 5 refuses such a text.
///
/// A font that is written and read loses what this text cannot hold: all families but
/// `QFont::family()`, capitalization, letter and word spacing, stretch, style strategy, hinting
/// preference, overline and kerning. A size in points keeps six digits. Weights are the 100 of Qt
/// 5, to which the 1000 of Qt 6 are rounded; the named ones are exact. Commas are not quoted: a
/// family or a style name that contains one is read as other fields.
QString toFontText(const QFont &font);

/// Reads the text that QFont::toString() writes with Qt 5 or Qt 6; both versions of Qt read the
/// same from it, which is what `toFontText` keeps. Returns false, logs the warning
/// "QFont::fromString: Invalid description '" with the text and leaves `font` unchanged when it is
/// neither.
bool readFontText(const QString &text, QFont *font);

/// The same without a message.
bool parseFontText(const QString &text, QFont *font);

/// Returns whether text can be drawn in this font. QFont::fromString accepts sizes such as "inf"
/// and a thousand million points, with which a program stalls or draws nothing.
bool hasUsableSize(const QFont &font);

/// Returns the text of a font in the form of Qt 5, given in that of Qt 5 or Qt 6; a null string
/// when it is neither. In the form of Qt 6 it has 16 fields, or 17 with the name of a style.
QString toQt5FontText(const QString &text);

/// Converts a weight of Qt 5, 0 to 99, to that of Qt 6. Values out of range are limited to it.
int openTypeWeight(int qt5Weight);
/// Converts a weight of Qt 6, 1 to 1000, to the nearest of Qt 5. Every weight of Qt 5 that is
/// converted to Qt 6 comes back from here.
int qt5Weight(int openTypeWeight);

/// Returns the portable text of `keys` as Qt 5 writes it. A chord whose key is Shift, Control, Meta
/// or Alt has no name there: instead of the name it gets two characters, from which neither Qt
/// reads the key back.
QString toKeysText(const QKeySequence &keys);

/// Reads a portable text as Qt 5 does: a chord that ends in the name of a modifier becomes
/// `Qt::Key_unknown`.
QKeySequence readKeysText(const QString &text);

/// Returns whether `text` is what `readColorText` reads: "None", or up to eight hexadecimal digits.
bool isColorText(const QString &text);

/// Returns the colour whose ARGB value has these hexadecimal digits, or an invalid one for "None".
/// Any other text is read as 0.
QColor readColorText(const QString &text);

/// Returns the ARGB value of `color` as the QColor::rgba() of Qt 5 computes it. That of Qt 6
/// computes with less precision, and so one in about a thousand colours that are defined by hue and
/// saturation differs by one step.
QRgb toRgba(const QColor &color);
