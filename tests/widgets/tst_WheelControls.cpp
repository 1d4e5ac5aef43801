#include "support/TestMain.h"
#include "support/WheelTurn.h"

#include <MaltoConfiguration/widgets/ComboboxDisableWheel.h>
#include <MaltoConfiguration/widgets/QSpinBoxDisableWheel.h>

#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QWheelEvent>

/// The mouse wheel over the two controls inside a page that scrolls.
class tst_WheelControls : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        mArea = std::make_unique<QScrollArea>();
        auto *page = new QWidget;
        auto *layout = new QVBoxLayout(page);
        mSpinBox = new QSpinBoxDisableWheel(page);
        mSpinBox->setValue(50);
        // The policy that the editor sets. With the default policy the wheel would focus the spin
        // box.
        mSpinBox->setFocusPolicy(Qt::StrongFocus);
        mComboBox = new ComboboxDisableWheel(page);
        mComboBox->addItems({"one", "two", "three"});
        mComboBox->setCurrentIndex(1);
        layout->addWidget(mSpinBox);
        layout->addWidget(mComboBox);
        page->setMinimumHeight(2000);
        mArea->setWidget(page);
        mArea->resize(300, 200);
        mArea->show();
        mArea->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(mArea.get()));
    }
    void cleanup() { mArea.reset(); }

    void spinBoxWithoutFocusScrollsThePage();
    void spinBoxWithFocusChanges();
    void comboBoxAlwaysScrollsThePage_data();
    void comboBoxAlwaysScrollsThePage();
    void wheelEventSentDirectlyIsIgnored();

private:
    int scrolled() const { return mArea->verticalScrollBar()->value(); }

    std::unique_ptr<QScrollArea> mArea;
    QSpinBoxDisableWheel *mSpinBox = nullptr;
    ComboboxDisableWheel *mComboBox = nullptr;
};

void tst_WheelControls::spinBoxWithoutFocusScrollsThePage()
{
    mComboBox->setFocus();
    turnWheelOver(mSpinBox);
    QCOMPARE(mSpinBox->value(), 50);
    QVERIFY(scrolled() > 0);
}

void tst_WheelControls::spinBoxWithFocusChanges()
{
    mSpinBox->setFocus();
    QVERIFY(mSpinBox->hasFocus());
    turnWheelOver(mSpinBox);
    QCOMPARE(mSpinBox->value(), 49);
    QCOMPARE(scrolled(), 0);
}

void tst_WheelControls::comboBoxAlwaysScrollsThePage_data()
{
    QTest::addColumn<bool>("focused");
    QTest::newRow("without focus") << false;
    QTest::newRow("with focus") << true;
}

void tst_WheelControls::comboBoxAlwaysScrollsThePage()
{
    QFETCH(bool, focused);
    (focused ? static_cast<QWidget *>(mComboBox) : mSpinBox)->setFocus();
    QCOMPARE(mComboBox->hasFocus(), focused);
    turnWheelOver(mComboBox);
    QCOMPARE(mComboBox->currentIndex(), 1);
    QVERIFY(scrolled() > 0);
}

void tst_WheelControls::wheelEventSentDirectlyIsIgnored()
{
    mComboBox->setFocus();
    for (QWidget *widget : {static_cast<QWidget *>(mComboBox), static_cast<QWidget *>(mSpinBox)}) {
        const QPointF position(widget->rect().center());
        QWheelEvent event(position, widget->mapToGlobal(position.toPoint()), QPoint(),
                          QPoint(0, -120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        event.accept(); // an event filter may send an event that is already accepted
        static_cast<QObject *>(widget)->event(&event);
        QVERIFY(!event.isAccepted());
    }
}

int main(int argc, char **argv)
{
    return runTest<tst_WheelControls>(argc, argv);
}

#include "tst_WheelControls.moc"
