#include "MultiSelectFixture.h"
#include "support/TestMain.h"

#include <QSignalSpy>
#include <QStyleOptionComboBox>

#include <functional>
#include <utility>

Q_DECLARE_METATYPE(std::function<void(QComboBox *)>)

/// The text that the closed box shows, and its size hints.
class tst_MultiSelectComboBoxText : public QObject, private MultiSelectFixture
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QVERIFY(open()); }
    void cleanup() { close(); }

    void shownText_data();
    void shownText();
    void shownTextFollowsTheOrderOfTheEntries();
    void everyRebuildEmitsSelectionChanged();
    void setItemTextUpdatesTheTextWithoutASignal();
    void manyChangedTextsUpdateTheTextWithoutASignal();
    void manyChangedChecksEmitOnce();
    void shownTextIsKeptWhenQComboBoxSetsAText_data();
    void shownTextIsKeptWhenQComboBoxSetsAText();
    void textIsAlignedToTheStartOfTheLine();
    void losingTheFocusChangesNothing();
    void hintOfAnEmptyBox();
    void hintOfAllTexts_data();
    void hintOfAllTexts();
    void hintsNeverChange();

private:
    QSize fromContents(int width) const;
};

void tst_MultiSelectComboBoxText::shownText_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QList<int>>("checked");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("toolTip");
    QTest::addColumn<QStringList>("currentText");

    const QStringList abc{"A", "B", "C"};
    QTest::newRow("nothing checked") << abc << QList<int>() << ""
                                     << "" << QStringList();
    QTest::newRow("one") << abc << QList<int>{1} << "B"
                         << "B" << QStringList{"B"};
    QTest::newRow("all") << abc << QList<int>{0, 1, 2} << "A;B;C"
                         << "A;B;C" << abc;
    QTest::newRow("same text twice") << QStringList{"A", "A"} << QList<int>{0, 1} << "A;A"
                                     << "A;A" << QStringList{"A", "A"};
    QTest::newRow("separator inside a text")
        << QStringList{"A;B", "C"} << QList<int>{0, 1} << "A;B;C"
        << "A;B;C" << abc;
    QTest::newRow("separator at the end of a text") << QStringList{"A;"} << QList<int>{0} << "A;"
                                                    << "A;" << QStringList{"A", ""};
    QTest::newRow("an empty text alone") << QStringList{""} << QList<int>{0} << ""
                                         << "" << QStringList();
    QTest::newRow("an empty text before another")
        << QStringList{"", "B"} << QList<int>{0, 1} << ";B"
        << ";B" << QStringList{"", "B"};
    QTest::newRow("32 characters stay whole")
        << QStringList{"0123456789abcdef", "0123456789abcde"} << QList<int>{0, 1}
        << "0123456789abcdef;0123456789abcde"
        << "0123456789abcdef;0123456789abcde" << QStringList{"0123456789abcdef", "0123456789abcde"};
    QTest::newRow("33 characters are cut after 32")
        << QStringList{"0123456789abcdef", "0123456789abcdef"} << QList<int>{0, 1}
        << "0123456789abcdef;0123456789abcde..."
        << "0123456789abcdef;0123456789abcdef"
        << QStringList{"0123456789abcdef", "0123456789abcde..."};
    QTest::newRow("texts after the cut are missing")
        << QStringList{"0123456789012345678901234567890", "B", "C"} << QList<int>{0, 1, 2}
        << "0123456789012345678901234567890;..."
        << "0123456789012345678901234567890;B;C"
        << QStringList{"0123456789012345678901234567890", "..."};
}

void tst_MultiSelectComboBoxText::shownText()
{
    QFETCH(QStringList, texts);
    QFETCH(QList<int>, checked);
    mBox->addItems(texts);
    QCOMPARE(mBox->count(), texts.size());
    for (int index : std::as_const(checked))
        mBox->setItemChecked(index, true);
    QTEST(mText->text(), "shown");
    QTEST(mText->toolTip(), "toolTip");
    QTEST(mBox->currentText(), "currentText");
    QCOMPARE(mText->cursorPosition(), 0);
}

void tst_MultiSelectComboBoxText::shownTextFollowsTheOrderOfTheEntries()
{
    mBox->addItems({"A", "B", "C"});
    mBox->setItemChecked(2, true);
    mBox->setItemChecked(0, true);
    QCOMPARE(mText->text(), QString("A;C"));
    mBox->itemClicked(1);
    QCOMPARE(mText->text(), QString("A;B;C"));
    mBox->itemClicked(0);
    QCOMPARE(mText->text(), QString("B;C"));
    mBox->addItem("D");
    QCOMPARE(mText->text(), QString("B;C"));
}

void tst_MultiSelectComboBoxText::everyRebuildEmitsSelectionChanged()
{
    mBox->addItems({"A", "B", "C"});
    const QSignalSpy spy(mBox, &MultiSelectComboBox::selectionChanged);
    mBox->setItemChecked(0, true);
    QCOMPARE(spy.count(), 1);
    mBox->setItemChecked(0, true);
    QCOMPARE(spy.count(), 1);
    mBox->stateChanged(0);
    QCOMPARE(spy.count(), 2);
    mBox->setCurrentText(QStringList{"A", "B", "C"});
    QCOMPARE(spy.count(), 4);
    mBox->ResetSelection();
    QCOMPARE(spy.count(), 7);
}

void tst_MultiSelectComboBoxText::setItemTextUpdatesTheTextWithoutASignal()
{
    mBox->addItems({"A", "B"});
    mBox->setItemChecked(0, true);
    const QSignalSpy spy(mBox, &MultiSelectComboBox::selectionChanged);
    mBox->setItemText(0, "Alpha");
    mBox->setItemText(1, "Beta");
    QCOMPARE(checkBox(0)->text(), QString("Alpha"));
    QCOMPARE(checkBox(1)->text(), QString("Beta"));
    QCOMPARE(mText->text(), QString("Alpha"));
    QCOMPARE(mText->toolTip(), QString("Alpha"));
    QCOMPARE(spy.count(), 0);
}

void tst_MultiSelectComboBoxText::manyChangedTextsUpdateTheTextWithoutASignal()
{
    mBox->addItems({"A", "B", "C"});
    mBox->setCurrentText(QStringList{"A", "B", "C"});
    const QSignalSpy spy(mBox, &MultiSelectComboBox::selectionChanged);
    mBox->setItemTexts({"Alpha", QString()});
    QCOMPARE(mText->text(), QString("Alpha;B;C"));
    mBox->setItemTexts({"a", "", "c", "behind the last"});
    QCOMPARE(mText->text(), QString("a;;c"));
    QCOMPARE(mText->toolTip(), QString("a;;c"));
    QCOMPARE(spy.count(), 0);
}

void tst_MultiSelectComboBoxText::manyChangedChecksEmitOnce()
{
    mBox->addItems({"A", "B", "C"});
    const QSignalSpy spy(mBox, &MultiSelectComboBox::selectionChanged);
    mBox->setItemsChecked({true, false, true, true});
    QCOMPARE(mText->text(), QString("A;C"));
    QCOMPARE(spy.count(), 1);
    mBox->setItemsChecked({false});
    QCOMPARE(mText->text(), QString("C"));
    QCOMPARE(spy.count(), 2);
    mBox->setItemsChecked({false, false, true});
    mBox->setItemsChecked({});
    QCOMPARE(spy.count(), 2);
}

void tst_MultiSelectComboBoxText::shownTextIsKeptWhenQComboBoxSetsAText_data()
{
    using Action = std::function<void(QComboBox *)>;
    QTest::addColumn<Action>("action");
    QTest::newRow("another current row") << Action([](QComboBox *box) { box->setCurrentIndex(1); });
    QTest::newRow("no current row") << Action([](QComboBox *box) { box->setCurrentIndex(-1); });
    QTest::newRow("an icon") << Action([](QComboBox *box) {
        QPixmap pixmap(8, 8);
        pixmap.fill(Qt::red);
        box->setItemIcon(0, pixmap);
    });
    QTest::newRow("an edit text") << Action([](QComboBox *box) { box->setEditText("X"); });
    QTest::newRow("its text property")
        << Action([](QComboBox *box) { box->setProperty("currentText", "X"); });
}

void tst_MultiSelectComboBoxText::shownTextIsKeptWhenQComboBoxSetsAText()
{
    QFETCH(std::function<void(QComboBox *)>, action);
    mBox->addItems({"A", "B", "C"});
    mBox->setCurrentText(QStringList{"A", "C"});
    const QSignalSpy spy(mBox, &MultiSelectComboBox::selectionChanged);
    action(mBox);
    QCOMPARE(mText->text(), QString("A;C"));
    QCOMPARE(mBox->currentText(), (QStringList{"A", "C"}));
    QCOMPARE(spy.count(), 0);
}

void tst_MultiSelectComboBoxText::textIsAlignedToTheStartOfTheLine()
{
    const QString hebrew(QChar(0x5d0));
    mBox->addItems({"A", hebrew});
    const auto cursor = [this] {
        mText->grab(); // painting updates the position of the text
        return mText->inputMethodQuery(Qt::ImCursorRectangle).toRect().center().x();
    };
    const int middle = mText->width() / 2;
    for (const int entry : {0, 1}) {
        mBox->ResetSelection();
        mBox->setItemChecked(entry, true);
        mBox->setLayoutDirection(Qt::LeftToRight);
        QVERIFY(cursor() < middle);
        mBox->setLayoutDirection(Qt::RightToLeft);
        QVERIFY(cursor() > middle);
    }
}

void tst_MultiSelectComboBoxText::losingTheFocusChangesNothing()
{
    mBox->addItems({"A", "B"});
    mBox->setItemChecked(1, true);
    mBox->setFocus();
    QVERIFY(mBox->hasFocus());
    mOther->setFocus();
    QVERIFY(mOther->hasFocus());
    QCOMPARE(mText->text(), QString("B"));
    QVERIFY(isChecked(1));
    QCOMPARE(mBox->count(), 2);
}

void tst_MultiSelectComboBoxText::hintOfAnEmptyBox()
{
    const int width = 7 * mBox->fontMetrics().horizontalAdvance("x");
    QCOMPARE(mBox->sizeHint(), fromContents(width));
    QCOMPARE(mBox->minimumSizeHint(), fromContents(width));
}

void tst_MultiSelectComboBoxText::hintOfAllTexts_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QString>("measured");
    QTest::newRow("short") << QStringList{"Alpha", "Beta"} << "Alpha;Beta;";
    QTest::newRow("32 characters")
        << QStringList{"0123456789abcdef0123456789abcde"} << "0123456789abcdef0123456789abcde;";
    QTest::newRow("33 characters")
        << QStringList{"0123456789abcdef0123456789abcdef"} << "0123456789abcdef0123456789abcdef...";
}

void tst_MultiSelectComboBoxText::hintOfAllTexts()
{
    QFETCH(QStringList, texts);
    QFETCH(QString, measured);
    auto *box = new MultiSelectComboBox(mWindow.get());
    box->addItems(texts);
    box->setItemChecked(0, true);
    const QSize expected = fromContents(mBox->fontMetrics().boundingRect(measured).width());
    QCOMPARE(box->sizeHint(), expected);
    QCOMPARE(box->minimumSizeHint(), expected);
}

void tst_MultiSelectComboBoxText::hintsNeverChange()
{
    const QSize empty = mBox->sizeHint();
    mBox->addItems({"A long text that would need far more room", "B"});
    QCOMPARE(mBox->sizeHint(), empty);
    // The minimum size hint is cached separately and has not been computed yet.
    const QSize minimum = mBox->minimumSizeHint();
    QVERIFY(minimum.width() > empty.width());
    mBox->clear();
    QFont large = mBox->font();
    large.setPixelSize(60);
    mBox->setFont(large);
    QCOMPARE(mBox->sizeHint(), empty);
    QCOMPARE(mBox->minimumSizeHint(), minimum);
}

QSize tst_MultiSelectComboBoxText::fromContents(int width) const
{
    QStyleOptionComboBox option;
    option.initFrom(mBox);
    option.editable = true;
    option.frame = true;
    option.subControls = QStyle::SC_All;
    const int height = qMax(qCeil(QFontMetricsF(mBox->font()).height()), 14) + 2;
    return mBox->style()->sizeFromContents(QStyle::CT_ComboBox, &option, QSize(width, height),
                                           mBox);
}

int main(int argc, char **argv)
{
    return runTest<tst_MultiSelectComboBoxText>(argc, argv);
}

#include "tst_MultiSelectComboBoxText.moc"
