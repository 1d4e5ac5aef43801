#include "MultiSelectFixture.h"
#include "support/TestMain.h"

#include <QPointer>
#include <QSignalSpy>

/// The open list.
class tst_MultiSelectComboBoxPopup : public QObject, private MultiSelectFixture
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QVERIFY(open()); }
    void cleanup() { close(); }

    void clickOnTheTextOpens();
    void clickOnACheckBoxTogglesOnceAndStaysOpen();
    void clickBesideTheCheckBoxTogglesOnceAndStaysOpen();
    void clickOnAPlainRowChecksNothing();
    void clickOutsideCloses();
    void clickOnTheTextClosesAndDoesNotReopen();
    void clickOnTheTextShortlyAfterClosingDoesNotReopen();
    void listStaysOpenWhileTheCursorIsInIt_data();
    void listStaysOpenWhileTheCursorIsInIt();
    void escapeClosesWhereverTheCursorIs();
    void eventFilterConsumesNoMouseEvents();
    void rowsAreAsHighAsTheirCheckBoxes();
    void rowUnderTheCursorStaysReadable();
    void clearWhileTheListIsOpen();
    void boxMayBeDeletedWhileTheListIsOpen();
    void receiverMayDeleteTheBoxLater();
    void hiddenOrDisabledBoxClosesItsList_data();
    void hiddenOrDisabledBoxClosesItsList();
    void keyboardTogglesTheRowOfTheOpenList();
    void tenThousandEntries();
};

void tst_MultiSelectComboBoxPopup::clickOnTheTextOpens()
{
    mBox->addItems({"A", "B"});
    press(textPoint());
    QVERIFY(!isOpen());
    release(textPoint());
    QTRY_VERIFY(isOpen());
}

void tst_MultiSelectComboBoxPopup::clickOnACheckBoxTogglesOnceAndStaysOpen()
{
    mBox->addItems({"A", "B", "C"});
    const QSignalSpy spy(mBox, &MultiSelectComboBox::selectionChanged);
    openByClick();
    click(indicatorPoint(1));
    QVERIFY(isChecked(1));
    QCOMPARE(spy.count(), 1);
    QVERIFY(isOpen());
    click(indicatorPoint(2));
    QCOMPARE(mText->text(), QString("B;C"));
    click(indicatorPoint(1));
    QCOMPARE(mText->text(), QString("C"));
    QCOMPARE(spy.count(), 3);
    QVERIFY(isOpen());
}

void tst_MultiSelectComboBoxPopup::clickBesideTheCheckBoxTogglesOnceAndStaysOpen()
{
    mBox->addItems({"A", "B", "C"});
    const QSignalSpy spy(mBox, &MultiSelectComboBox::selectionChanged);
    openByClick();
    const QSignalSpy activated(mBox, QOverload<int>::of(&QComboBox::activated));
    click(rowEndPoint(1));
    QCOMPARE(activated.count(), 1);
    QVERIFY(isChecked(1));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(mText->text(), QString("B"));
    QVERIFY(isOpen());
    click(rowEndPoint(2));
    QCOMPARE(mText->text(), QString("B;C"));
    click(rowEndPoint(2));
    QCOMPARE(mText->text(), QString("B"));
    QCOMPARE(spy.count(), 3);
    QVERIFY(isOpen());
}

void tst_MultiSelectComboBoxPopup::clickOnAPlainRowChecksNothing()
{
    QComboBox *plain = mBox;
    plain->addItems({"P", "Q"});
    openByClick();
    const QSignalSpy spy(mBox, &MultiSelectComboBox::selectionChanged);
    click(rowEndPoint(1));
    QCOMPARE(spy.count(), 0);
    QVERIFY(isOpen());
}

void tst_MultiSelectComboBoxPopup::clickOutsideCloses()
{
    mBox->addItems({"A", "B"});
    openByClick();
    click(indicatorPoint(0));
    click(outsidePoint());
    QTRY_VERIFY(!isOpen());
    QCOMPARE(mText->text(), QString("A"));
}

void tst_MultiSelectComboBoxPopup::clickOnTheTextClosesAndDoesNotReopen()
{
    mBox->addItems({"A", "B"});
    openByClick();
    press(textPoint());
    QTRY_VERIFY(!isOpen());
    awaitNextMillisecond();
    release(textPoint());
    QVERIFY(!isOpen());
}

void tst_MultiSelectComboBoxPopup::clickOnTheTextShortlyAfterClosingDoesNotReopen()
{
    mBox->addItems({"A", "B"});
    QDateTime closed;
    // Repeat the click if the machine was too slow to click within 500 ms.
    for (int attempt = 0; attempt < 10; ++attempt) {
        mBox->showPopup();
        placeCursor(outsidePoint());
        const QDateTime before = QDateTime::currentDateTimeUtc();
        mBox->hidePopup();
        closed = QDateTime::currentDateTimeUtc();
        QVERIFY(!isOpen());
        awaitNextMillisecond();
        click(textPoint());
        if (before.msecsTo(QDateTime::currentDateTimeUtc()) < 499) {
            QVERIFY(!isOpen());
            break;
        }
        QVERIFY(attempt < 9);
    }
    QTRY_VERIFY(closed.msecsTo(QDateTime::currentDateTimeUtc()) > 500);
    click(textPoint());
    QTRY_VERIFY(isOpen());
}

void tst_MultiSelectComboBoxPopup::listStaysOpenWhileTheCursorIsInIt_data()
{
    // The box is 240 x 30 pixels. The right and lower bounds are one pixel outside.
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("y");
    QTest::addColumn<bool>("belowList");
    QTest::addColumn<bool>("stays");
    QTest::newRow("first point") << 0 << 30 << false << true;
    QTest::newRow("left of the first point") << -1 << 30 << false << false;
    QTest::newRow("above the first point") << 0 << 29 << false << false;
    QTest::newRow("right bound") << 240 << 30 << false << true;
    QTest::newRow("right of the bound") << 241 << 30 << false << false;
    QTest::newRow("lower bound") << 120 << 30 << true << true;
    QTest::newRow("below the bound") << 120 << 31 << true << false;
    QTest::newRow("last point") << 240 << 30 << true << true;
}

void tst_MultiSelectComboBoxPopup::listStaysOpenWhileTheCursorIsInIt()
{
    QFETCH(int, x);
    QFETCH(int, y);
    QFETCH(bool, belowList);
    QFETCH(bool, stays);
    mBox->addItems({"A", "B", "C"});
    openByClick();
    QVERIFY(mBox->view()->height() > 30);
    placeCursor(mBox->mapToGlobal(QPoint(x, belowList ? y + mBox->view()->height() : y)));
    mBox->hidePopup();
    QCOMPARE(isOpen(), stays);
}

void tst_MultiSelectComboBoxPopup::escapeClosesWhereverTheCursorIs()
{
    mBox->addItems({"A", "B"});
    openByClick();
    placeCursor(indicatorPoint(0));
    QTest::keyClick(mBox->view(), Qt::Key_Escape);
    QTRY_VERIFY(!isOpen());
}

void tst_MultiSelectComboBoxPopup::eventFilterConsumesNoMouseEvents()
{
    mBox->addItems({"A"});
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, QPointF(1, 1), QPointF(1, 1), Qt::LeftButton, Qt::NoButton,
                          Qt::NoModifier);
        QVERIFY(!mBox->eventFilter(mText, &event));
        QVERIFY(!mBox->eventFilter(mOther, &event));
    }
}

void tst_MultiSelectComboBoxPopup::rowsAreAsHighAsTheirCheckBoxes()
{
    mBox->addItems({"A", "B"});
    mWindow->setStyleSheet("QCheckBox { min-height: 50px; }");
    openByClick();
    QVERIFY(checkBox(0)->height() >= 50);
    QVERIFY(checkBox(1)->mapToGlobal(QPoint()).y() - checkBox(0)->mapToGlobal(QPoint()).y() >= 50);
}

void tst_MultiSelectComboBoxPopup::rowUnderTheCursorStaysReadable()
{
    mBox->addItems({"A", "B"});
    QPalette palette = mBox->view()->palette();
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Highlight, Qt::black);
    mBox->view()->setPalette(palette);
    openByClick();
    placeCursor(rowEndPoint(1));
    QWidget *viewport = mBox->view()->viewport();
    const auto brightness = [this, viewport](int row) {
        const QPoint point = viewport->mapFromGlobal(rowEndPoint(row));
        return viewport->grab().toImage().pixelColor(point).lightness();
    };
    QTRY_COMPARE(mBox->view()->currentIndex().row(), 1);
    QCOMPARE(brightness(0), 255);
    QVERIFY(brightness(1) > 150 && brightness(1) < 255);
}

void tst_MultiSelectComboBoxPopup::clearWhileTheListIsOpen()
{
    mBox->addItems({"A", "B"});
    openByClick();
    connect(mBox, &MultiSelectComboBox::selectionChanged, mBox, [this] { mBox->clear(); });
    click(indicatorPoint(0));
    QCOMPARE(mBox->count(), 0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(mText->text(), QString());
}

void tst_MultiSelectComboBoxPopup::boxMayBeDeletedWhileTheListIsOpen()
{
    mBox->addItems({"A", "B"});
    openByClick();
    placeCursor(indicatorPoint(0));
    const QPointer<QWidget> list = mBox->view()->window();
    delete mBox;
    QVERIFY(!list);
    QVERIFY(!QApplication::activePopupWidget());
    QTest::mouseClick(mOther, Qt::LeftButton);
    QVERIFY(mOther->hasFocus());
}

void tst_MultiSelectComboBoxPopup::receiverMayDeleteTheBoxLater()
{
    mBox->addItems({"A", "B"});
    openByClick();
    const QPointer<MultiSelectComboBox> box = mBox;
    connect(mBox, &MultiSelectComboBox::selectionChanged, mBox, &QObject::deleteLater);
    click(rowEndPoint(0));
    QTRY_VERIFY(!box);
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_MultiSelectComboBoxPopup::hiddenOrDisabledBoxClosesItsList_data()
{
    QTest::addColumn<bool>("hide");
    QTest::newRow("hidden") << true;
    QTest::newRow("disabled") << false;
}

void tst_MultiSelectComboBoxPopup::hiddenOrDisabledBoxClosesItsList()
{
    QFETCH(bool, hide);
    mBox->addItems({"A", "B"});
    openByClick();
    connect(mBox, &MultiSelectComboBox::selectionChanged, mBox,
            [this, hide] { hide ? mBox->hide() : mBox->setEnabled(false); });
    click(indicatorPoint(0));
    QVERIFY(!isOpen());
    QVERIFY(!QApplication::activePopupWidget());
    QVERIFY(isChecked(0));
}

void tst_MultiSelectComboBoxPopup::keyboardTogglesTheRowOfTheOpenList()
{
    mBox->addItems({"A", "B"});
    openByClick();
    placeCursor(rowEndPoint(1));
    QTRY_COMPARE(mBox->view()->currentIndex().row(), 1);
    QTest::keyClick(mBox->view(), Qt::Key_Return);
    QCOMPARE(mText->text(), QString("B"));
    QTest::keyClick(mBox->view(), Qt::Key_Up);
    QTest::keyClick(mBox->view(), Qt::Key_Return);
    QCOMPARE(mText->text(), QString("A;B"));
    QVERIFY(isOpen());
}

void tst_MultiSelectComboBoxPopup::tenThousandEntries()
{
    for (int i = 0; i < 10000; ++i)
        mBox->addItem(QString::number(i), i);
    QCOMPARE(mBox->count(), 10000);
    openByClick();
    click(rowEndPoint(2));
    QCOMPARE(mText->text(), QString("2"));
    mBox->setItemChecked(9999, true);
    QCOMPARE(mText->text(), QString("2;9999"));
    QCOMPARE(mBox->findItemByUserData(9998), 9998);
    mBox->ResetSelection();
    QCOMPARE(mText->text(), QString());
    mBox->clear();
    QCOMPARE(mBox->count(), 0);
}

int main(int argc, char **argv)
{
    return runTest<tst_MultiSelectComboBoxPopup>(argc, argv);
}

#include "tst_MultiSelectComboBoxPopup.moc"
