#include <QIconfont/QIconfont.h>

#include <QColor>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHash>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QRawFont>

#include <cmath>

namespace {

// The em square of the font, in which the outlines are exact.
constexpr int sEm = 1024;
constexpr int sLargestScale = 3;

QString fontFile()
{
    return QStringLiteral(":/quorvi/QuorviIconfont.ttf");
}

// qGuiApp would cast a QCoreApplication without a check.
QGuiApplication *application()
{
    return qobject_cast<QGuiApplication *>(QCoreApplication::instance());
}

// The default constructor of QPixmap aborts if there is no application.
QPixmap nullPixmap()
{
    return QPixmap(static_cast<QPlatformPixmap *>(nullptr));
}

bool canDraw(const QColor &color, int size)
{
    return QIconfont::load() && color.isValid() && size > 0 && size <= QIconfont::MaximumSize;
}

/// Returns the outline of a glyph in the square from (0, 0) to (sEm, sEm); empty, as glyph 0 is, if
/// the font lacks it.
QPainterPath outline(const QChar &glyph)
{
    static QHash<QChar, QPainterPath> sOutlines;
    const auto known = sOutlines.constFind(glyph);
    if (known != sOutlines.constEnd())
        return *known;
    const QRawFont font(fontFile(), sEm, QFont::PreferNoHinting);
    const quint32 index = font.glyphIndexesForString(QString(glyph)).value(0);
    const QPainterPath path = font.pathForGlyph(index).translated(0, font.ascent());
    sOutlines.insert(glyph, path);
    return path;
}

/// Returns the rectangle inside the margins of a square of `size` logical pixels, in device pixels
/// at the device pixel ratio `scale`.
QRect inner(int size, const QMargins &margins, int scale)
{
    const int left = qBound(0, margins.left(), size);
    const int top = qBound(0, margins.top(), size);
    const int right = qBound(0, margins.right(), size);
    const int bottom = qBound(0, margins.bottom(), size);
    return QRect(left * scale, top * scale, (size - left - right) * scale,
                 (size - top - bottom) * scale);
}

QPixmap draw(const QChar &glyph, const QColor &color, int size, const QMargins &margins, int scale)
{
    QPixmap pixmap(size * scale, size * scale);
    pixmap.fill(Qt::transparent);
    const QRect rect = inner(size, margins, scale);
    const int side = qMin(rect.width(), rect.height());
    if (side > 0) {
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        // Align with device pixels, so that edges on the grid of the font stay sharp.
        painter.translate(QPoint(rect.left() + (rect.width() - side) / 2,
                                 rect.top() + (rect.height() - side) / 2));
        painter.scale(qreal(side) / sEm, qreal(side) / sEm);
        painter.fillPath(outline(glyph), color);
    }
    return pixmap;
}

} // namespace

QIcon QIconfont::Icon(const QChar &glyph, const QColor &color, int size, QMargins margins)
{
    QIcon icon;
    if (!canDraw(color, size))
        return icon;
    // The pixmaps have no device pixel ratio of their own: for a larger size Qt 6 would choose the
    // one with the ratio of the screen, and not the one of this size.
    for (int scale = 1; scale <= sLargestScale; ++scale)
        icon.addPixmap(draw(glyph, color, size, margins, scale));
    return icon;
}

QPixmap QIconfont::Pixmap(const QChar &glyph, const QColor &color, int size, QMargins margins)
{
    if (!canDraw(color, size))
        return nullPixmap();
    const int scale = qBound(1, static_cast<int>(std::ceil(application()->devicePixelRatio())),
                             sLargestScale);
    QPixmap pixmap = draw(glyph, color, size, margins, scale);
    pixmap.setDevicePixelRatio(scale);
    return pixmap;
}

bool QIconfont::load()
{
    return !fontFamily().isEmpty();
}

QString QIconfont::fontFamily()
{
    // A process may create several applications in succession; each has its own fonts.
    static QPointer<QGuiApplication> sLoadedFor;
    static QString sFamily;
    QGuiApplication *current = application();
    if (!current)
        return QString();
    if (sLoadedFor != current) {
        sLoadedFor = current;
        const int font = QFontDatabase::addApplicationFont(fontFile());
        sFamily = QFontDatabase::applicationFontFamilies(font).value(0);
    }
    return sFamily;
}
