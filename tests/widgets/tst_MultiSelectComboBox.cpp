#include "MultiSelectFixture.h"
#include "support/TestMain.h"

#include <QSignalSpy>
#include <QWheelEvent>

#include <climits>

/// The entries, and the input that the closed box ignores.
class tst_MultiSelectComboBox : public QObject, private MultiSelectFixture
{
    Q_OBJECT
public:
    enum Mode { FirstMode = 1, SecondMode = 2 };
    Q_ENUM(Mode)

private Q_SLOTS:
    void init() { QVERIFY(open()); }
    void cleanup() { close(); }

    void newBoxIsEmptyAndReadOnly();
    void userDataIsStoredAndFound();
    void userDataOfAnotherTypeAreConvertedToBeFound();
    void addItemsHaveNoUserData();
    void setCurrentTextChecksAndNeverUnchecks();
    void setCurrentTextWithASingleStringDoesNothing();
    void resetSelectionUnchecksAll();
    void wrongIndexDoesNothing_data();
    void wrongIndexDoesNothing();
    void clearedBoxCanBeFilledAgain();
    void plainRowsHaveNoCheckBox();
    void wheelChangesNothing();
    void keysDoNothing_data();
    void keysDoNothing();
    void tabMovesTheFocusOutOfTheBox();
};

void tst_MultiSelectComboBox::newBoxIsEmptyAndReadOnly()
{
    QCOMPARE(mBox->count(), 0);
    QCOMPARE(mBox->currentText(), QStringList());
    QCOMPARE(mBox->findItemByUserData(1), -1);
    QCOMPARE(mBox->findItemByUserData(QVariant()), -1);
    QCOMPARE(mBox->property("class").toString(), QString("MultiSelectComboBox"));
    QVERIFY(mText->isReadOnly());
    QCOMPARE(mText->text(), QString());
    QCOMPARE(mText->toolTip(), QString());
    QVERIFY(qobject_cast<QListWidget *>(mBox->view()));
    mBox->SetPlaceHolderText("None");
    QCOMPARE(mText->placeholderText(), QString("None"));
    mBox->ResetSelection();
    mBox->clear();
    mBox->showPopup();
    QVERIFY(!isOpen());
}

void tst_MultiSelectComboBox::userDataIsStoredAndFound()
{
    mBox->addItem("A", 4);
    mBox->addItem("B", "text");
    mBox->addItem("C", 4);
    mBox->addItem("D");
    QCOMPARE(checkBox(1)->property("UserData").toString(), QString("text"));
    bool checked = true;
    QVariant userData;
    mBox->getItemData(2, checked, userData);
    QVERIFY(!checked);
    QCOMPARE(userData, QVariant(4));
    mBox->setItemChecked(2, true);
    mBox->getItemData(2, checked, userData);
    QVERIFY(checked);

    QCOMPARE(mBox->findItemByUserData(4), 0);
    QCOMPARE(mBox->findItemByUserData("text"), 1);
    QCOMPARE(mBox->findItemByUserData(QVariant()), 3);
    QCOMPARE(mBox->findItemByUserData(5), -1);
}

void tst_MultiSelectComboBox::userDataOfAnotherTypeAreConvertedToBeFound()
{
    mBox->addItem("A", QVariant::fromValue(FirstMode));
    mBox->addItem("B", SecondMode); // an int
    mBox->addItem("C", QByteArray("text"));
    mBox->addItem("D", QVariant::fromValue<void *>(nullptr));
    QCOMPARE(mBox->findItemByUserData(1), 0);
    QCOMPARE(mBox->findItemByUserData(QVariant::fromValue(SecondMode)), 1);
    QCOMPARE(mBox->findItemByUserData("2"), 1);
    QCOMPARE(mBox->findItemByUserData("text"), 2);
    QCOMPARE(mBox->findItemByUserData(0), -1);
    QCOMPARE(mBox->findItemByUserData("other"), -1);
    QCOMPARE(mBox->findItemByUserData(QVariant()), -1);
}

void tst_MultiSelectComboBox::addItemsHaveNoUserData()
{
    mBox->addItems({"A"});
    bool checked = true;
    QVariant userData = 7;
    mBox->getItemData(0, checked, userData);
    QVERIFY(!checked);
    QVERIFY(!userData.isValid());
}

void tst_MultiSelectComboBox::setCurrentTextChecksAndNeverUnchecks()
{
    mBox->addItems({"A", "a", "B", "A"});
    mBox->setItemChecked(2, true);
    mBox->setCurrentText(QStringList{"A", "unknown"});
    QCOMPARE(mBox->currentText(), (QStringList{"A", "B", "A"}));
    mBox->setCurrentText(QStringList());
    QCOMPARE(mBox->currentText(), (QStringList{"A", "B", "A"}));
}

void tst_MultiSelectComboBox::setCurrentTextWithASingleStringDoesNothing()
{
    mBox->addItems({"A", "B"});
    mBox->setItemChecked(0, true);
    mBox->setCurrentText(QString("B"));
    QCOMPARE(mText->text(), QString("A"));
    QVERIFY(!isChecked(1));
}

void tst_MultiSelectComboBox::resetSelectionUnchecksAll()
{
    mBox->addItems({"A", "B", "C"});
    mBox->setCurrentText(QStringList{"A", "C"});
    mBox->ResetSelection();
    QVERIFY(!isChecked(0) && !isChecked(1) && !isChecked(2));
    QCOMPARE(mText->text(), QString());
    QCOMPARE(mText->toolTip(), QString());
    QCOMPARE(mBox->count(), 3);
}

void tst_MultiSelectComboBox::wrongIndexDoesNothing_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("before the first") << -1;
    QTest::newRow("after the last") << 2;
    QTest::newRow("smallest") << INT_MIN;
    QTest::newRow("largest") << INT_MAX;
}

void tst_MultiSelectComboBox::wrongIndexDoesNothing()
{
    QFETCH(int, index);
    mBox->addItem("A", 1);
    mBox->addItem("B", 2);
    mBox->setItemChecked(0, true);
    const QSignalSpy spy(mBox, &MultiSelectComboBox::selectionChanged);
    mBox->setItemChecked(index, true);
    mBox->itemClicked(index);
    mBox->setItemText(index, "X");
    QCOMPARE(spy.count(), 0);
    QCOMPARE(mText->text(), QString("A"));
    bool checked = true;
    QVariant userData = 7;
    mBox->getItemData(index, checked, userData);
    QVERIFY(!checked);
    QVERIFY(!userData.isValid());
}

void tst_MultiSelectComboBox::clearedBoxCanBeFilledAgain()
{
    mBox->addItems({"A", "B"});
    mBox->setItemChecked(1, true);
    const QSignalSpy spy(mBox, &MultiSelectComboBox::selectionChanged);
    mBox->clear();
    QCOMPARE(spy.count(), 0);
    QCOMPARE(mBox->count(), 0);
    QCOMPARE(mText->text(), QString());
    QCOMPARE(mText->toolTip(), QString());

    mBox->addItem("C", 9);
    QCOMPARE(mBox->count(), 1);
    QVERIFY(!isChecked(0));
    mBox->setItemChecked(0, true);
    QCOMPARE(mBox->currentText(), QStringList{"C"});
    QCOMPARE(mBox->findItemByUserData(9), 0);
}

void tst_MultiSelectComboBox::plainRowsHaveNoCheckBox()
{
    QComboBox *plain = mBox;
    plain->addItem("Plain");
    mBox->addItem("A", 1);
    QCOMPARE(mBox->count(), 2);
    QVERIFY(!checkBox(0));
    const QSignalSpy spy(mBox, &MultiSelectComboBox::selectionChanged);
    mBox->setItemChecked(0, true);
    mBox->itemClicked(0);
    mBox->setCurrentText(QStringList{"Plain"});
    mBox->ResetSelection();
    QCOMPARE(spy.count(), 0);
    QCOMPARE(mBox->findItemByUserData(QVariant()), -1);
    mBox->setItemChecked(1, true);
    QCOMPARE(mBox->currentText(), QStringList{"A"});
    QVERIFY(mBox->sizeHint().isValid());
}

void tst_MultiSelectComboBox::wheelChangesNothing()
{
    mBox->addItems({"A", "B", "C"});
    mBox->setItemChecked(0, true);
    mBox->setFocus();
    const int current = mBox->currentIndex();
    const QList<QWidget *> targets{mBox, mText};
    for (QWidget *target : targets) {
        const QPointF position(target->rect().center());
        QWheelEvent event(position, target->mapToGlobal(position.toPoint()), QPoint(),
                          QPoint(0, -120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(target, &event);
    }
    QCOMPARE(mBox->currentIndex(), current);
    QCOMPARE(mText->text(), QString("A"));
}

void tst_MultiSelectComboBox::keysDoNothing_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::newRow("down") << int(Qt::Key_Down) << 0;
    QTest::newRow("page down") << int(Qt::Key_PageDown) << 0;
    QTest::newRow("alt and down") << int(Qt::Key_Down) << int(Qt::AltModifier);
    QTest::newRow("F4") << int(Qt::Key_F4) << 0;
    QTest::newRow("space") << int(Qt::Key_Space) << 0;
    QTest::newRow("return") << int(Qt::Key_Return) << 0;
    QTest::newRow("a letter") << int(Qt::Key_B) << 0;
    QTest::newRow("delete") << int(Qt::Key_Delete) << 0;
    QTest::newRow("cut") << int(Qt::Key_X) << int(Qt::ControlModifier);
}

void tst_MultiSelectComboBox::keysDoNothing()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    mBox->addItems({"A", "B", "C"});
    mBox->setItemChecked(0, true);
    mBox->setFocus();
    QVERIFY(mBox->hasFocus());
    const int current = mBox->currentIndex();
    const QSignalSpy spy(mBox, &MultiSelectComboBox::selectionChanged);
    QTest::keyClick(mWindow->windowHandle(), Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(mBox->count(), 3);
    QCOMPARE(mBox->currentIndex(), current);
    QCOMPARE(mText->text(), QString("A"));
    QCOMPARE(spy.count(), 0);
    QVERIFY(!isOpen());
}

void tst_MultiSelectComboBox::tabMovesTheFocusOutOfTheBox()
{
    mBox->setFocus();
    QTest::keyClick(mWindow->windowHandle(), Qt::Key_Tab);
    QVERIFY(mOther->hasFocus());
}

int main(int argc, char **argv)
{
    return runTest<tst_MultiSelectComboBox>(argc, argv);
}

#include "tst_MultiSelectComboBox.moc"
