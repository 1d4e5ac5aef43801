#pragma once

#include <QFont>
#include <QGuiApplication>
#include <QKeySequence>
#include <QScreen>
#include <QTextStream>

/// What is called otherwise in Qt 5 than in Qt 6. CMake chooses this header or the one of the same
/// name for Qt 6; both have the same functions.
namespace QtCompat {

/// The key and the modifiers of the chord at `index`, in one number.
inline int chordAt(const QKeySequence &keys, int index)
{
    return keys[static_cast<uint>(index)];
}

/// Gives the font a weight, which is passed in the scale of Qt 5 and in that of Qt 6.
inline void setWeight(QFont *font, int qt5Weight, int)
{
    font->setWeight(qt5Weight);
}

/// Returns the weight of the font in the scale of Qt 5; `toQt5` converts one from the scale of
/// Qt 6.
inline int qt5Weight(const QFont &font, int (*)(int))
{
    return font.weight();
}

/// Lets the stream read and write UTF-8; a byte order mark of another encoding still counts.
inline void setUtf8(QTextStream &stream)
{
    stream.setCodec("UTF-8");
}

/// Calls `slot` of `receiver` with each new palette of the application.
template<class Receiver, class Slot>
void connectPaletteChanged(QGuiApplication *application, Receiver *receiver, Slot slot)
{
    QObject::connect(application, &QGuiApplication::paletteChanged, receiver, slot);
}

/// Returns the number of pixels of the geometry file for each pixel that Qt counts on the screen.
/// The file has the pixels that Qt 5 counts.
inline qreal savedPixelRatio(const QScreen *)
{
    return 1;
}

} // namespace QtCompat
