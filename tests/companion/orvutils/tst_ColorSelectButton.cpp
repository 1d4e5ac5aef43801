#include <OrvUtils/ColorSelectButton.h>
#include <OrvUtils/SetWindowTopmost.h>

#include "support/TestMain.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTranslator>
#include <QVBoxLayout>

#include <memory>

namespace {

QColorDialog *dialogOf(const ColorSelectButton &button)
{
    return button.findChild<QColorDialog *>();
}

void finish(QColorDialog *dialog, QDialogButtonBox::StandardButton with)
{
    auto *const box = dialog->findChild<QDialogButtonBox *>();
    QVERIFY(box);
    QTest::mouseClick(box->button(with), Qt::LeftButton);
}

/// Translates every text to "Nichts".
class Nothing : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *, const char *, int) const override
    {
        return QStringLiteral("Nichts");
    }
};

} // namespace

class tst_ColorSelectButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void firstColorIsInvalid();
    void setColorKeepsTheExactColorAndEmitsNothing();
    void pickedColorIsEmitted();
    void alphaCanBePicked();
    void cancelledDialogChangesNothing();
    void acceptingTheSameColorEmitsNothing_data();
    void acceptingTheSameColorEmitsNothing();
    void blackCanBePickedInsteadOfNone();
    void keyOpensTheDialog_data();
    void keyOpensTheDialog();
    void dialogOfATopmostWindowIsNotNative_data();
    void dialogOfATopmostWindowIsNotNative();
    void secondClickDoesNotOpenASecondDialog();
    void disabledButtonOpensNothing();
    void buttonCanBeDestroyedWhileItsDialogIsOpen();
    void slotMayDeleteTheButton();
    void toolTipAndDescriptionNameTheColor_data();
    void toolTipAndDescriptionNameTheColor();
    void textsFollowTheLanguage();
    void sizeFollowsTheFont();
    void swatchIsDrawn_data();
    void swatchIsDrawn();
    void translucentColorIsDrawnOnACheckerboard();
    void swatchStaysInsideTheContentsRectOfAStyleSheet();
    void focusAndDisabledLookDiffer();
    void everySizeCanBeDrawn();

private:
    QImage picture() { return mButton->grab().toImage(); }
    QColor centre()
    {
        const QImage image = picture();
        return image.pixelColor(image.width() / 2, image.height() / 2);
    }

    std::unique_ptr<QWidget> mWindow;
    QPointer<ColorSelectButton> mButton;
};

void tst_ColorSelectButton::init()
{
    QApplication::setStyle(QStringLiteral("fusion"));
    mWindow = std::make_unique<QWidget>();
    mButton = new ColorSelectButton(mWindow.get());
    auto *const layout = new QVBoxLayout(mWindow.get());
    layout->addWidget(mButton);
    mWindow->show();
    mWindow->activateWindow();
    QVERIFY(QTest::qWaitForWindowExposed(mWindow.get()));
}

void tst_ColorSelectButton::cleanup()
{
    mWindow.reset();
}

void tst_ColorSelectButton::firstColorIsInvalid()
{
    QVERIFY(!mButton->color().isValid());
}

void tst_ColorSelectButton::setColorKeepsTheExactColorAndEmitsNothing()
{
    QSignalSpy spy(mButton, &ColorSelectButton::sigColorChanged);
    const QColor hue = QColor::fromHsv(120, 200, 100, 50);
    mButton->setColor(hue);
    QCOMPARE(mButton->color(), hue);
    QCOMPARE(mButton->color().spec(), QColor::Hsv);
    mButton->setColor(QColor());
    QVERIFY(!mButton->color().isValid());
    QCOMPARE(spy.count(), 0);
}

void tst_ColorSelectButton::pickedColorIsEmitted()
{
    mButton->setColor(Qt::red);
    QSignalSpy spy(mButton, &ColorSelectButton::sigColorChanged);
    QTest::mouseClick(mButton, Qt::LeftButton);
    QPointer<QColorDialog> dialog = dialogOf(*mButton);
    QVERIFY(dialog && dialog->isVisible());
    QCOMPARE(dialog->currentColor(), QColor(Qt::red));
    dialog->setCurrentColor(QColor(1, 2, 3));
    QCOMPARE(spy.count(), 0);
    finish(dialog, QDialogButtonBox::Ok);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().first().value<QColor>(), QColor(1, 2, 3));
    QCOMPARE(mButton->color(), QColor(1, 2, 3));
    QTRY_VERIFY(!dialog);
}

void tst_ColorSelectButton::alphaCanBePicked()
{
    mButton->setColor(QColor(10, 20, 30, 40));
    QTest::mouseClick(mButton, Qt::LeftButton);
    QColorDialog *const dialog = dialogOf(*mButton);
    QVERIFY(dialog->testOption(QColorDialog::ShowAlphaChannel));
    QCOMPARE(dialog->currentColor(), QColor(10, 20, 30, 40));
    dialog->setCurrentColor(QColor(10, 20, 30, 50));
    finish(dialog, QDialogButtonBox::Ok);
    QCOMPARE(mButton->color(), QColor(10, 20, 30, 50));
}

void tst_ColorSelectButton::cancelledDialogChangesNothing()
{
    mButton->setColor(Qt::red);
    QSignalSpy spy(mButton, &ColorSelectButton::sigColorChanged);
    QTest::mouseClick(mButton, Qt::LeftButton);
    dialogOf(*mButton)->setCurrentColor(Qt::blue);
    finish(dialogOf(*mButton), QDialogButtonBox::Cancel);
    QCOMPARE(spy.count(), 0);
    QCOMPARE(mButton->color(), QColor(Qt::red));
}

void tst_ColorSelectButton::acceptingTheSameColorEmitsNothing_data()
{
    QTest::addColumn<QColor>("color");
    QTest::newRow("rgb") << QColor(1, 2, 3);
    QTest::newRow("translucent") << QColor(1, 2, 3, 4);
    QTest::newRow("hsv") << QColor::fromHsv(300, 100, 50);
    QTest::newRow("cmyk") << QColor::fromCmyk(10, 20, 30, 40);
}

void tst_ColorSelectButton::acceptingTheSameColorEmitsNothing()
{
    QFETCH(QColor, color);
    mButton->setColor(color);
    QSignalSpy spy(mButton, &ColorSelectButton::sigColorChanged);
    QTest::mouseClick(mButton, Qt::LeftButton);
    finish(dialogOf(*mButton), QDialogButtonBox::Ok);
    QCOMPARE(spy.count(), 0);
    QCOMPARE(mButton->color(), color);
}

void tst_ColorSelectButton::blackCanBePickedInsteadOfNone()
{
    // QColor::rgba() returns black for an invalid colour, too.
    QSignalSpy spy(mButton, &ColorSelectButton::sigColorChanged);
    QTest::mouseClick(mButton, Qt::LeftButton);
    dialogOf(*mButton)->setCurrentColor(Qt::black);
    finish(dialogOf(*mButton), QDialogButtonBox::Ok);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(mButton->color(), QColor(Qt::black));
}

void tst_ColorSelectButton::keyOpensTheDialog_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("space") << int(Qt::Key_Space);
    QTest::newRow("return") << int(Qt::Key_Return);
    QTest::newRow("enter") << int(Qt::Key_Enter);
}

void tst_ColorSelectButton::keyOpensTheDialog()
{
    QFETCH(int, key);
    mButton->setFocus();
    QTest::keyClick(mButton, Qt::Key(key));
    QVERIFY(dialogOf(*mButton));
}

void tst_ColorSelectButton::dialogOfATopmostWindowIsNotNative_data()
{
    QTest::addColumn<bool>("topmost");
    QTest::addColumn<bool>("inOwnedWindow");
    QTest::newRow("ordinaryWindow") << false << false;
    QTest::newRow("windowOfAnOrdinaryWindow") << false << true;
    QTest::newRow("topmostWindow") << true << false;
    QTest::newRow("windowOfATopmostWindow") << true << true;
}

void tst_ColorSelectButton::dialogOfATopmostWindowIsNotNative()
{
    QFETCH(bool, topmost);
    QFETCH(bool, inOwnedWindow);
    QPointer<ColorSelectButton> button = mButton;
    if (inOwnedWindow)
        button = new ColorSelectButton(new QDialog(mWindow.get()));
    SetWindowTopmost(mWindow.get(), topmost, OrvWindowTypeSettings);
    button->click();
    QCOMPARE(dialogOf(*button)->testOption(QColorDialog::DontUseNativeDialog), topmost);

    // The next dialog depends on the window's current flags.
    delete dialogOf(*button);
    SetWindowTopmost(mWindow.get(), !topmost, OrvWindowTypeSettings);
    button->click();
    QCOMPARE(dialogOf(*button)->testOption(QColorDialog::DontUseNativeDialog), !topmost);
}

void tst_ColorSelectButton::secondClickDoesNotOpenASecondDialog()
{
    mButton->click();
    mButton->click();
    QCOMPARE(mButton->findChildren<QColorDialog *>().size(), 1);
}

void tst_ColorSelectButton::disabledButtonOpensNothing()
{
    mButton->setEnabled(false);
    QTest::mouseClick(mButton, Qt::LeftButton);
    QTest::keyClick(mButton, Qt::Key_Return);
    QVERIFY(!dialogOf(*mButton));
}

void tst_ColorSelectButton::buttonCanBeDestroyedWhileItsDialogIsOpen()
{
    QTest::mouseClick(mButton, Qt::LeftButton);
    const QPointer<QColorDialog> dialog = dialogOf(*mButton);
    QVERIFY(dialog);
    delete mButton;
    QVERIFY(!dialog);
    QCoreApplication::processEvents();
}

void tst_ColorSelectButton::slotMayDeleteTheButton()
{
    connect(mButton, &ColorSelectButton::sigColorChanged, mWindow.get(),
            [this] { mButton->deleteLater(); });
    QTest::mouseClick(mButton, Qt::LeftButton);
    dialogOf(*mButton)->setCurrentColor(Qt::green);
    finish(dialogOf(*mButton), QDialogButtonBox::Ok);
    QTRY_VERIFY(!mButton);
}

void tst_ColorSelectButton::toolTipAndDescriptionNameTheColor_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QString>("words");
    QTest::newRow("opaque") << QColor(255, 128, 0) << QStringLiteral("#ff8000");
    QTest::newRow("translucent") << QColor(255, 128, 0, 64) << QStringLiteral("#40ff8000");
    QTest::newRow("invalid") << QColor() << QStringLiteral("None");
}

void tst_ColorSelectButton::toolTipAndDescriptionNameTheColor()
{
    QFETCH(QColor, color);
    QFETCH(QString, words);
    mButton->setColor(Qt::white);
    mButton->setColor(color);
    QCOMPARE(mButton->toolTip(), words);
    QCOMPARE(mButton->accessibleDescription(), words);
}

void tst_ColorSelectButton::textsFollowTheLanguage()
{
    Nothing translator;
    QCoreApplication::installTranslator(&translator);
    QCoreApplication::processEvents();
    QCOMPARE(mButton->toolTip(), QStringLiteral("Nichts"));
    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::processEvents();
    QCOMPARE(mButton->toolTip(), QStringLiteral("None"));
}

void tst_ColorSelectButton::sizeFollowsTheFont()
{
    QFont font = mButton->font();
    for (const int pixels : {10, 20, 60}) {
        font.setPixelSize(pixels);
        mButton->setFont(font);
        const QSize size = mButton->sizeHint();
        QVERIFY2(qAbs(size.width() - 4 * pixels) <= pixels,
                 qPrintable(QString::number(size.width())));
        QVERIFY2(qAbs(size.height() * 10 - 16 * pixels) <= 5 * pixels,
                 qPrintable(QString::number(size.height())));
    }
}

void tst_ColorSelectButton::swatchIsDrawn_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QColor>("seen");
    QTest::newRow("opaque") << QColor(10, 200, 30) << QColor(10, 200, 30);
    QTest::newRow("hsv") << QColor::fromHsv(240, 255, 255) << QColor(0, 0, 255);
    QTest::newRow("strokeForNone") << QColor() << QColor(220, 50, 47);
}

void tst_ColorSelectButton::swatchIsDrawn()
{
    QFETCH(QColor, color);
    QFETCH(QColor, seen);
    mButton->setColor(color);
    mButton->setFixedSize(80, 40);
    // The stroke passes the centre at a distance of at most one pixel.
    const QImage image = picture();
    bool found = false;
    for (int y = 19; y <= 21; ++y)
        found = found || image.pixelColor(40, y) == seen;
    QVERIFY(found);
}

void tst_ColorSelectButton::translucentColorIsDrawnOnACheckerboard()
{
    mButton->setColor(QColor(0, 0, 0, 0));
    mButton->setFixedSize(80, 40);
    const QImage image = picture();
    QSet<QRgb> seen;
    for (int x = 30; x < 50; ++x)
        seen.insert(image.pixel(x, 20));
    const QSet<QRgb> expected{qRgb(255, 255, 255), qRgb(204, 204, 204)};
    QCOMPARE(seen, expected);
}

void tst_ColorSelectButton::swatchStaysInsideTheContentsRectOfAStyleSheet()
{
    mButton->setProperty("class", QStringLiteral("ColorSelectButton"));
    mWindow->setStyleSheet(QStringLiteral(".ColorSelectButton { min-width: 90px; padding: 5px; "
                                          "border: 3px solid #00ff00; background: #0000ff }"));
    QVERIFY(mButton->sizeHint().width() >= 90);
    mButton->setColor(Qt::red);
    mButton->setFixedSize(120, 60);
    mButton->clearFocus();
    const QImage image = picture();
    QCOMPARE(image.pixelColor(1, 30), QColor(0, 255, 0));
    QCOMPARE(image.pixelColor(7, 30), QColor(0, 0, 255));
    QCOMPARE(image.pixelColor(9, 30), QColor(255, 0, 0));
    QCOMPARE(image.pixelColor(110, 30), QColor(255, 0, 0));
    QCOMPARE(image.pixelColor(112, 30), QColor(0, 0, 255));
}

void tst_ColorSelectButton::focusAndDisabledLookDiffer()
{
    mButton->setColor(QColor(200, 100, 0));
    mButton->clearFocus();
    const QImage plain = picture();
    mButton->setFocus();
    QTRY_VERIFY(mButton->hasFocus());
    QVERIFY(picture() != plain);
    mButton->clearFocus();
    mButton->setEnabled(false);
    QVERIFY(centre() != QColor(200, 100, 0));
}

void tst_ColorSelectButton::everySizeCanBeDrawn()
{
    for (const QSize &size :
         {QSize(0, 0), QSize(1, 1), QSize(3, 30), QSize(5, 5), QSize(4000, 4000)}) {
        mButton->setFixedSize(size);
        for (const QColor &color : {QColor(), QColor(1, 2, 3, 4), QColor(Qt::red)}) {
            mButton->setColor(color);
            mButton->grab();
        }
    }
}

int main(int argc, char **argv)
{
    return runTest<tst_ColorSelectButton>(argc, argv);
}

#include "tst_ColorSelectButton.moc"
