#include "support/TestMain.h"

#include <QIconfont/QIconfont.h>
#include <QIconfont/QuorviGlyphs.h>

/// QIconfont in an application whose screens have a device pixel ratio of 2.
class tst_QIconfontScaled : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void screenScalesByTwo();
    void pixmapHasTwiceThePixels();
    void marginsAreLogicalPixels();
    void iconReturnsPixmapsInTheResolutionOfTheScreen();
    void iconForTheSelectedModeIsSharp();
};

void tst_QIconfontScaled::screenScalesByTwo()
{
    QCOMPARE(qGuiApp->devicePixelRatio(), 2.0);
}

void tst_QIconfontScaled::pixmapHasTwiceThePixels()
{
    const QPixmap pixmap = QIconfont::Pixmap(QuorviGlyphs::Correct, Qt::black, 24);
    QCOMPARE(pixmap.devicePixelRatio(), 2.0);
    QCOMPARE(pixmap.size(), QSize(48, 48));
    // The circle reaches the outermost pixels.
    const QImage image = pixmap.toImage();
    QVERIFY(image.pixelColor(0, 24).alpha() > 0);
    QVERIFY(image.pixelColor(47, 24).alpha() > 0);
    QVERIFY(image.pixelColor(24, 0).alpha() > 0);
    QVERIFY(image.pixelColor(24, 47).alpha() > 0);
}

void tst_QIconfontScaled::marginsAreLogicalPixels()
{
    const QImage image =
        QIconfont::Pixmap(QuorviGlyphs::Correct, Qt::black, 24, QMargins(4, 4, 4, 4)).toImage();
    QCOMPARE(image.pixelColor(7, 24).alpha(), 0);
    QVERIFY(image.pixelColor(8, 24).alpha() > 0);
    QVERIFY(image.pixelColor(39, 24).alpha() > 0);
    QCOMPARE(image.pixelColor(40, 24).alpha(), 0);
}

void tst_QIconfontScaled::iconReturnsPixmapsInTheResolutionOfTheScreen()
{
    const QIcon icon = QIconfont::Icon(QuorviGlyphs::Correct, Qt::black, 24);
    const QPixmap pixmap = icon.pixmap(QSize(24, 24));
    QCOMPARE(pixmap.devicePixelRatio(), 2.0);
    QCOMPARE(pixmap.size(), QSize(48, 48));
    QCOMPARE(pixmap.toImage(), QIconfont::Pixmap(QuorviGlyphs::Correct, Qt::black, 24).toImage());
}

void tst_QIconfontScaled::iconForTheSelectedModeIsSharp()
{
    QIcon icon = QIconfont::Icon(QuorviGlyphs::Correct, Qt::black, 24);
    icon.addPixmap(QIconfont::Pixmap(QuorviGlyphs::Correct, Qt::white, 24), QIcon::Selected);
    const QPixmap pixmap = icon.pixmap(QSize(24, 24), QIcon::Selected);
    QCOMPARE(pixmap.size(), QSize(48, 48));
    QCOMPARE(pixmap.toImage().pixelColor(5, 24), QColor(Qt::white));
}

int main(int argc, char **argv)
{
    qputenv("QT_SCALE_FACTOR", "2");
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED // Qt 6 always has them
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QT_WARNING_POP
    return runTest<tst_QIconfontScaled>(argc, argv);
}

#include "tst_QIconfontScaled.moc"
