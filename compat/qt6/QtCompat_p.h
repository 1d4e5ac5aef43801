#pragma once

#include <QFont>
#include <QGuiApplication>
#include <QKeySequence>
#include <QScreen>
#include <QTextStream>

/// What is called otherwise in Qt 6 than in Qt 5. CMake chooses this header or the one of the same
/// name for Qt 5; both have the same functions.
namespace QtCompat {

/// The key and the modifiers of the chord at `index`, in one number.
inline int chordAt(const QKeySequence &keys, int index)
{
    return keys[static_cast<uint>(index)].toCombined();
}

/// Gives the font a weight, which is passed in the scale of Qt 5 and in that of Qt 6.
inline void setWeight(QFont *font, int, int qt6Weight)
{
    font->setWeight(static_cast<QFont::Weight>(qt6Weight));
}

/// Returns the weight of the font in the scale of Qt 5; `toQt5` converts one from the scale of
/// Qt 6.
inline int qt5Weight(const QFont &font, int (*toQt5)(int))
{
    return toQt5(font.weight());
}

/// Lets the stream read and write UTF-8; a byte order mark of another encoding still counts.
inline void setUtf8(QTextStream &stream)
{
    stream.setEncoding(QStringConverter::Utf8);
}

/// Calls `slot` of `receiver` with each new palette of the application.
template<class Receiver, class Slot>
void connectPaletteChanged(QGuiApplication *application, Receiver *receiver, Slot slot)
{
    // The event that Qt offers instead is only seen by a filter of all events of all objects.
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    QObject::connect(application, &QGuiApplication::paletteChanged, receiver, slot);
    QT_WARNING_POP
}

/// Returns the number of pixels of the geometry file for each pixel that Qt counts on the screen.
/// The file has the pixels that Qt 5 counts: those of the screen, where Qt 6 always scales and Qt 5
/// does so only if the host asks for it with Qt::AA_EnableHighDpiScaling. macOS and Wayland scale
/// by themselves, for both.
inline qreal savedPixelRatio(const QScreen *screen)
{
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    const bool scalesInQt5 = QCoreApplication::testAttribute(Qt::AA_EnableHighDpiScaling);
    QT_WARNING_POP
    const QString platform = QGuiApplication::platformName();
    if (scalesInQt5 || platform == QLatin1String("cocoa")
        || platform.startsWith(QLatin1String("wayland")))
        return 1;
    return screen->devicePixelRatio();
}

} // namespace QtCompat
