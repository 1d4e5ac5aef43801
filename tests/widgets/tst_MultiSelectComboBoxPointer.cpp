#include "MultiSelectFixture.h"
#include "support/TestMain.h"
#include "support/XPointer.h"

#include <QSignalSpy>

/// The open list, with the pointer of a real X server.
class tst_MultiSelectComboBoxPointer : public QObject, private MultiSelectFixture
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        if (QGuiApplication::platformName() != QLatin1String("xcb"))
            QSKIP("needs the xcb platform");
        mPointer = std::make_unique<XPointer>();
    }
    void init()
    {
        QVERIFY(open());
        mBox->addItems({"A", "B", "C"});
        mText->installEventFilter(this);
    }
    void cleanup() { close(); }

    void listOpensTogglesRowsAndClosesOutside();
    void arrowOpensAndReleaseOnItDoesNotClose();
    void clickOnTheTextClosesTheList();
    void clickOnTheTextRightAfterClosingDoesNotReopen();
    void rowIsToggledByItsCheckBoxItsTextAndItsFreeSpace();
    void releaseOutsideTheListTogglesNothing();
    void hidingTheBoxHidesItsList();

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::MouseButtonRelease)
            ++mReleases;
        return false;
    }

private:
    void openByPointer()
    {
        mPointer->click(textPoint());
        QTRY_VERIFY(isOpen());
        QVERIFY(QTest::qWaitForWindowExposed(mBox->view()->window()));
    }
    /// Returns a point in the text next to the indicator of a row.
    QPoint labelPoint(int index) const { return indicatorPoint(index) + QPoint(18, 0); }

    std::unique_ptr<XPointer> mPointer;
    int mReleases = 0; // on the text
};

void tst_MultiSelectComboBoxPointer::listOpensTogglesRowsAndClosesOutside()
{
    const QSignalSpy spy(mBox, &MultiSelectComboBox::selectionChanged);
    openByPointer();
    mPointer->click(indicatorPoint(0));
    QTRY_COMPARE(mText->text(), QString("A"));
    mPointer->click(rowEndPoint(2));
    QTRY_COMPARE(mText->text(), QString("A;C"));
    mPointer->click(indicatorPoint(0));
    QTRY_COMPARE(mText->text(), QString("C"));
    QCOMPARE(spy.count(), 3);
    QVERIFY(isOpen());
    mPointer->click(outsidePoint());
    QTRY_VERIFY(!isOpen());
    QCOMPARE(mText->text(), QString("C"));
    QCOMPARE(spy.count(), 3);
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_MultiSelectComboBoxPointer::arrowOpensAndReleaseOnItDoesNotClose()
{
    const QPoint arrow = mBox->mapToGlobal(QPoint(mBox->width() - 8, mBox->height() / 2));
    mPointer->moveTo(arrow);
    mPointer->press();
    QTRY_VERIFY(isOpen());
    QVERIFY(QTest::qWaitForWindowExposed(mBox->view()->window()));
    mPointer->release();
    mPointer->click(rowEndPoint(1));
    QTRY_COMPARE(mText->text(), QString("B"));
    QVERIFY(isOpen());
}

void tst_MultiSelectComboBoxPointer::clickOnTheTextClosesTheList()
{
    openByPointer();
    mPointer->moveTo(textPoint());
    mPointer->press();
    QTRY_VERIFY(!isOpen());
    QCOMPARE(QGuiApplication::mouseButtons(), Qt::LeftButton);
    mPointer->release();
    QTRY_COMPARE(QGuiApplication::mouseButtons(), Qt::NoButton);
    QVERIFY(!isOpen());
}

void tst_MultiSelectComboBoxPointer::clickOnTheTextRightAfterClosingDoesNotReopen()
{
    // Repeat the clicks if the machine was too slow to click within 500 ms.
    for (int attempt = 0; attempt < 10; ++attempt) {
        QTRY_VERIFY(!isOpen());
        mBox->showPopup();
        QVERIFY(QTest::qWaitForWindowExposed(mBox->view()->window()));
        mPointer->moveTo(outsidePoint());
        const QDateTime before = QDateTime::currentDateTimeUtc();
        mPointer->press();
        QTRY_VERIFY(!isOpen());
        mPointer->release();
        awaitNextMillisecond();
        const int releases = mReleases;
        mPointer->click(textPoint());
        QTRY_COMPARE(mReleases, releases + 1);
        const bool reopened = isOpen();
        if (before.msecsTo(QDateTime::currentDateTimeUtc()) < 499) {
            QVERIFY(!reopened);
            break;
        }
        mPointer->click(outsidePoint());
        QVERIFY(attempt < 9);
    }
    const QDateTime closed = QDateTime::currentDateTimeUtc();
    QTRY_VERIFY(closed.msecsTo(QDateTime::currentDateTimeUtc()) > 500);
    openByPointer();
}

void tst_MultiSelectComboBoxPointer::rowIsToggledByItsCheckBoxItsTextAndItsFreeSpace()
{
    openByPointer();
    mPointer->click(indicatorPoint(1));
    QTRY_COMPARE(mText->text(), QString("B"));
    mPointer->click(labelPoint(1));
    QTRY_COMPARE(mText->text(), QString());
    mPointer->click(rowEndPoint(1));
    QTRY_COMPARE(mText->text(), QString("B"));
    QVERIFY(isOpen());
}

void tst_MultiSelectComboBoxPointer::releaseOutsideTheListTogglesNothing()
{
    openByPointer();
    mPointer->moveTo(indicatorPoint(1));
    mPointer->press();
    QTRY_VERIFY(checkBox(1)->isDown());
    mPointer->moveTo(outsidePoint());
    mPointer->release();
    QTRY_VERIFY(!checkBox(1)->isDown());
    QCOMPARE(mText->text(), QString());
}

void tst_MultiSelectComboBoxPointer::hidingTheBoxHidesItsList()
{
    connect(mBox, &MultiSelectComboBox::selectionChanged, mBox, &QWidget::hide);
    openByPointer();
    mPointer->click(indicatorPoint(1));
    QTRY_VERIFY(!isOpen());
    QVERIFY(!QApplication::activePopupWidget());
}

int main(int argc, char **argv)
{
    return runTest<tst_MultiSelectComboBoxPointer>(argc, argv);
}

#include "tst_MultiSelectComboBoxPointer.moc"
