#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <QIconfont/QIconfont.h>
#include <QIconfont/QuorviGlyphs.h>

#include <QFontDatabase>
#include <QFontInfo>
#include <QLabel>
#include <QPainterPath>
#include <QRawFont>

#include <climits>

Q_DECLARE_METATYPE(QMargins)

class tst_QIconfont : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void fontIsRegisteredByName();
    void fontHasAnOutline_data();
    void fontHasAnOutline();
    void glyphsAreDrawn_data();
    void glyphsAreDrawn();
    void noTwoGlyphsLookAlike();
    void paintsWithATranslucentColour();
    void marginsStayEmpty();
    void glyphIsCentredBetweenTheMargins();
    void negativeMarginsCountAsZero();
    void glyphIsPlacedOnWholePixels();
    void iconIsSharpOnEveryScreen();
    void pixmapAddedForTheSelectedModeIsUsed();
    void impossiblePixmapIsNull_data();
    void impossiblePixmapIsNull();
    void unknownGlyphDrawsNothing_data();
    void unknownGlyphDrawsNothing();
    void largestSizeIsDrawn();
    void marginsAsLargeAsTheSquareLeaveNothingToDraw_data();
    void marginsAsLargeAsTheSquareLeaveNothingToDraw();
    void styleSheetFindsTheFont();

private:
    /// Returns the bounding rectangle of all painted pixels.
    static QRect ink(const QImage &image)
    {
        QRect rect;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y).alpha() > 0)
                    rect |= QRect(x, y, 1, 1);
            }
        }
        return rect;
    }
};

void tst_QIconfont::fontIsRegisteredByName()
{
    QVERIFY(QIconfont::load());
    QSignalSpy spy(qGuiApp, &QGuiApplication::fontDatabaseChanged);
    QVERIFY(QIconfont::load());
    QVERIFY(spy.isEmpty());
    QCOMPARE(QIconfont::fontFamily(), QString("QuorviIconfont"));
    QCOMPARE(QFontDatabase().families().count("QuorviIconfont"), 1);
}

void tst_QIconfont::fontHasAnOutline_data()
{
    glyphsAreDrawn_data();
}

void tst_QIconfont::fontHasAnOutline()
{
    QFETCH(QChar, glyph);
    QIconfont::load();
    QFont font("QuorviIconfont");
    font.setPixelSize(1024);
    const QRawFont raw = QRawFont::fromFont(font);
    QCOMPARE(raw.familyName(), QString("QuorviIconfont"));
    QCOMPARE(raw.unitsPerEm(), qreal(1024));
    QVERIFY(raw.supportsCharacter(glyph));
    const quint32 index = raw.glyphIndexesForString(QString(glyph)).value(0);
    QVERIFY(!raw.pathForGlyph(index).isEmpty());
    QCOMPARE(raw.advancesForGlyphIndexes({index}).value(0).x(), qreal(1024));
}

// The sizes are those of the outlines in their 16 by 16 square, times four.
void tst_QIconfont::glyphsAreDrawn_data()
{
    QTest::addColumn<QChar>("glyph");
    QTest::addColumn<QChar>("codePoint");
    QTest::addColumn<QSize>("inkSize");
    const auto row = [](const char *name, QChar glyph, ushort codePoint, const QSize &inkSize) {
        QTest::newRow(name) << glyph << QChar(codePoint) << inkSize;
    };
    row("disabled", QuorviGlyphs::Disabled, 0xe63a, QSize(64, 64));
    row("error", QuorviGlyphs::Error, 0xe70d, QSize(64, 64));
    row("warning", QuorviGlyphs::Warning, 0xe71b, QSize(64, 56));
    row("correct", QuorviGlyphs::Correct, 0xe725, QSize(64, 64));
    row("General", QuorviGlyphs::General, 0xe800, QSize(64, 64));
    row("Appearance", QuorviGlyphs::Appearance, 0xe801, QSize(64, 64));
    row("Capture", QuorviGlyphs::Capture, 0xe802, QSize(64, 48));
    row("Hotkeys", QuorviGlyphs::Hotkeys, 0xe803, QSize(64, 36));
    row("Mouse", QuorviGlyphs::Mouse, 0xe804, QSize(40, 64));
    row("Output", QuorviGlyphs::Output, 0xe805, QSize(63, 52));
    row("Profiles", QuorviGlyphs::Profiles, 0xe806, QSize(48, 64));
    row("Advanced", QuorviGlyphs::Advanced, 0xe807, QSize(63, 63));
}

void tst_QIconfont::glyphsAreDrawn()
{
    QFETCH(QChar, glyph);
    QFETCH(QSize, inkSize);
    QTEST(glyph, "codePoint");
    const QColor color(200, 30, 60);
    const QImage image = QIconfont::Pixmap(glyph, color, 64).toImage();
    QCOMPARE(image.size(), QSize(64, 64));
    // An edge between two pixels paints both.
    const QRect drawn = ink(image);
    QVERIFY(drawn.width() >= inkSize.width() && drawn.width() <= inkSize.width() + 2);
    QVERIFY(drawn.height() >= inkSize.height() && drawn.height() <= inkSize.height() + 2);
    // Centred to within one pixel.
    QVERIFY(qAbs(drawn.left() + drawn.right() - 63) <= 2);
    QVERIFY(qAbs(drawn.top() + drawn.bottom() - 63) <= 2);
    int solid = 0;
    for (int y = 0; y < 64; ++y) {
        for (int x = 0; x < 64; ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (pixel.alpha() == 255) {
                QCOMPARE(pixel, color);
                ++solid;
            }
        }
    }
    QVERIFY(solid > 1000);
    QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
    QCOMPARE(image.pixelColor(63, 63).alpha(), 0);
}

void tst_QIconfont::noTwoGlyphsLookAlike()
{
    QList<QImage> images;
    for (const int code : {0xe63a, 0xe70d, 0xe71b, 0xe725, 0xe800, 0xe801, 0xe802, 0xe803, 0xe804,
                           0xe805, 0xe806, 0xe807}) {
        const QImage image = QIconfont::Pixmap(QChar(code), Qt::black, 16).toImage();
        QVERIFY2(!images.contains(image), QByteArray::number(code, 16));
        images.append(image);
    }
}

void tst_QIconfont::paintsWithATranslucentColour()
{
    const QImage image = QIconfont::Pixmap(QuorviGlyphs::Correct, QColor(255, 0, 0, 128), 40)
                             .toImage();
    QCOMPARE(image.pixelColor(5, 20), QColor(255, 0, 0, 128));
}

void tst_QIconfont::marginsStayEmpty()
{
    const QImage image =
        QIconfont::Pixmap(QuorviGlyphs::Correct, Qt::black, 40, QMargins(4, 6, 4, 2)).toImage();
    QCOMPARE(ink(image), QRect(4, 6, 32, 32));
}

void tst_QIconfont::glyphIsCentredBetweenTheMargins()
{
    const auto drawn = [](const QMargins &margins) {
        return ink(QIconfont::Pixmap(QuorviGlyphs::Correct, Qt::black, 40, margins).toImage());
    };
    QCOMPARE(drawn(QMargins(0, 15, 0, 5)), QRect(10, 15, 20, 20));
    QCOMPARE(drawn(QMargins(15, 0, 5, 0)), QRect(15, 10, 20, 20));
}

void tst_QIconfont::negativeMarginsCountAsZero()
{
    const QMargins margins(-8, INT_MIN, -10, INT_MIN);
    const QImage image = QIconfont::Pixmap(QuorviGlyphs::Correct, Qt::black, 40, margins).toImage();
    QCOMPARE(ink(image), QRect(0, 0, 40, 40));
    QCOMPARE(image.pixelColor(5, 20), QColor(Qt::black));
}

void tst_QIconfont::glyphIsPlacedOnWholePixels()
{
    // 23 by 24 pixels are left for a circle of 23 pixels: it must not be placed between two rows of
    // pixels.
    const QImage image =
        QIconfont::Pixmap(QuorviGlyphs::Correct, Qt::black, 24, QMargins(1, 0, 0, 0)).toImage();
    QCOMPARE(ink(image), QRect(1, 0, 23, 23));
}

void tst_QIconfont::iconIsSharpOnEveryScreen()
{
    const QIcon icon = QIconfont::Icon(QuorviGlyphs::Correct, Qt::black, 20);
    QCOMPARE(icon.availableSizes(), (QList<QSize>{{20, 20}, {40, 40}, {60, 60}}));
    // The circle fills the pixmap, so it is not a smaller one scaled up.
    QCOMPARE(ink(icon.pixmap(QSize(60, 60)).toImage()).size(), QSize(60, 60));
}

void tst_QIconfont::pixmapAddedForTheSelectedModeIsUsed()
{
    QIcon icon = QIconfont::Icon(QuorviGlyphs::Correct, Qt::black, 20);
    icon.addPixmap(QIconfont::Pixmap(QuorviGlyphs::Correct, Qt::white, 20), QIcon::Selected);
    const auto colorOf = [&](QIcon::Mode mode) {
        return icon.pixmap(QSize(20, 20), mode).toImage().pixelColor(2, 10);
    };
    QCOMPARE(colorOf(QIcon::Selected), QColor(Qt::white));
    QCOMPARE(colorOf(QIcon::Normal), QColor(Qt::black));
}

void tst_QIconfont::impossiblePixmapIsNull_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<int>("size");
    QTest::newRow("no size") << QColor(Qt::black) << 0;
    QTest::newRow("negative size") << QColor(Qt::black) << -5;
    QTest::newRow("smallest int") << QColor(Qt::black) << INT_MIN;
    QTest::newRow("one above the largest size") << QColor(Qt::black) << 1025;
    QTest::newRow("huge size") << QColor(Qt::black) << 100000;
    QTest::newRow("largest int") << QColor(Qt::black) << INT_MAX;
    QTest::newRow("invalid colour") << QColor() << 20;
}

void tst_QIconfont::impossiblePixmapIsNull()
{
    QFETCH(QColor, color);
    QFETCH(int, size);
    const LogCapture log;
    QVERIFY(QIconfont::Icon(QuorviGlyphs::Correct, color, size).isNull());
    QVERIFY(QIconfont::Pixmap(QuorviGlyphs::Correct, color, size).isNull());
    QVERIFY(log.messages().isEmpty());
}

void tst_QIconfont::unknownGlyphDrawsNothing_data()
{
    QTest::addColumn<QChar>("glyph");
    QTest::newRow("null") << QChar();
    QTest::newRow("letter") << QChar('A');
    QTest::newRow("unused code point") << QChar(0xe900);
    QTest::newRow("half of a surrogate pair") << QChar(0xd83d);
}

void tst_QIconfont::unknownGlyphDrawsNothing()
{
    QFETCH(QChar, glyph);
    const LogCapture log;
    QVERIFY(ink(QIconfont::Pixmap(glyph, Qt::black, 20).toImage()).isNull());
    const QIcon icon = QIconfont::Icon(glyph, Qt::black, 20);
    QVERIFY(ink(icon.pixmap(QSize(60, 60)).toImage()).isNull());
    QVERIFY(log.messages().isEmpty());
}

void tst_QIconfont::largestSizeIsDrawn()
{
    const QIcon icon = QIconfont::Icon(QuorviGlyphs::Correct, Qt::black, 1024);
    QCOMPARE(icon.availableSizes(), (QList<QSize>{{1024, 1024}, {2048, 2048}, {3072, 3072}}));
    QVERIFY(!QIconfont::Pixmap(QuorviGlyphs::Correct, Qt::black, 1024).isNull());
}

void tst_QIconfont::marginsAsLargeAsTheSquareLeaveNothingToDraw_data()
{
    QTest::addColumn<QMargins>("margins");
    QTest::newRow("as large as the square") << QMargins(20, 20, 20, 20);
    QTest::newRow("no space left between them") << QMargins(10, 0, 10, 0);
    QTest::newRow("overlapping") << QMargins(15, 15, 15, 15);
    QTest::newRow("one side only") << QMargins(0, 0, 0, 21);
    QTest::newRow("largest int") << QMargins(INT_MAX, INT_MAX, INT_MAX, INT_MAX);
}

void tst_QIconfont::marginsAsLargeAsTheSquareLeaveNothingToDraw()
{
    QFETCH(QMargins, margins);
    const LogCapture log;
    const QPixmap pixmap = QIconfont::Pixmap(QuorviGlyphs::Correct, Qt::black, 20, margins);
    QCOMPARE(pixmap.size(), QSize(20, 20));
    QVERIFY(ink(pixmap.toImage()).isNull());
    const QIcon icon = QIconfont::Icon(QuorviGlyphs::Correct, Qt::black, 20, margins);
    QVERIFY(ink(icon.pixmap(QSize(60, 60)).toImage()).isNull());
    QVERIFY(log.messages().isEmpty());
}

void tst_QIconfont::styleSheetFindsTheFont()
{
    QIconfont::load();
    QLabel label{QString(QuorviGlyphs::Correct)};
    label.setStyleSheet("font: 23pt QuorviIconfont;");
    label.ensurePolished();
    QCOMPARE(QFontInfo(label.font()).family(), QString("QuorviIconfont"));
}

int main(int argc, char **argv)
{
    return runTest<tst_QIconfont>(argc, argv);
}

#include "tst_QIconfont.moc"
