#include "support/TestMain.h"
#include "support/WindowFixture.h"

#include <QGridLayout>
#include <QScrollArea>
#include <QScrollBar>

using MtConf::ConfigItemWidget;
using MtConf::ConfItem;

/// How a page is built from the declared items of its class, and how it is deleted.
class tst_ConfigurationWindowPage : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { mFixture = std::make_unique<WindowFixture>(); }
    void cleanup() { mFixture.reset(); }

    void ungroupedItemsShareOneGroupUnderTheClassName();
    void subNamedItemsAreGroupedByName();
    void classWithOnlySubNamedItemsHasNoGroupOfItsName();
    void separatorsAreBetweenItems_data();
    void separatorsAreBetweenItems();
    void captionsAreLeftOfTheirEditors();
    void editorWithoutCaptionTakesTheWholeRow();
    void gridIsSpacedByTheScale();
    void classFlag1HidesCaptionsAndPanels();
    void classFlag4HidesTheRestoreButton();
    void customPageIsShownAlone();
    void customPageMayBeNull();
    void filteredItems_data();
    void filteredItems();
    void itemWithoutEditorIsNotShown();
    void pageEndsWithASpacerAndIsScrolledToTheTop();
    void pageOfAThousandItemsIsShown();
    void oldEditorsAreDeletedAtOnce();
    void itemDeclaredLaterAppearsWhenThePageIsBuiltAgain();

private:
    static int separators(const QWidget *box)
    {
        int count = 0;
        for (const QFrame *frame : box->findChildren<QFrame *>()) {
            if (frame->property("class") == "SplitLine") {
                ++count;
                if (frame->frameShape() != QFrame::HLine || frame->frameShadow() != QFrame::Sunken)
                    return -1;
            }
        }
        return count;
    }

    std::unique_ptr<WindowFixture> mFixture;
    int mNumber = 0;
    QString mText;
};

void tst_ConfigurationWindowPage::ungroupedItemsShareOneGroupUnderTheClassName()
{
    mFixture->addBool("a");
    mFixture->addBool("b");
    mFixture->open();
    QCOMPARE(mFixture->captions(), QStringList("General"));
    QCOMPARE(mFixture->groups().size(), 1);
    const auto *caption = qobject_cast<QLabel *>(mFixture->page()->itemAt(0)->widget());
    QCOMPARE(caption->property("SourceText"), QVariant("General"));
    QCOMPARE(caption->property("ClassLabel"), QVariant("normal"));
}

void tst_ConfigurationWindowPage::subNamedItemsAreGroupedByName()
{
    mFixture->addBool("Hotkey", "Left");
    mFixture->addBool("Zoom", "In");
    const ConfItem *plain = mFixture->addBool("Plain");
    mFixture->addBool("Hotkey", "Right");
    mFixture->open();
    QCOMPARE(mFixture->captions(), (QStringList{"General", "Hotkey", "Zoom"}));
    const QList<QGroupBox *> groups = mFixture->groups();
    QCOMPARE(groups.size(), 3);
    QVERIFY(groups.at(0)->isAncestorOf(plain->editor));
    QCOMPARE(groups.at(1)->findChildren<QCheckBox *>().size(), 2);
    QCOMPARE(groups.at(2)->findChildren<QCheckBox *>().size(), 1);
}

void tst_ConfigurationWindowPage::classWithOnlySubNamedItemsHasNoGroupOfItsName()
{
    mFixture->addBool("Hotkey", "Left");
    mFixture->open();
    QCOMPARE(mFixture->captions(), QStringList("Hotkey"));
}

void tst_ConfigurationWindowPage::separatorsAreBetweenItems_data()
{
    QTest::addColumn<int>("items");
    QTest::addColumn<int>("lines");
    QTest::newRow("one item") << 1 << 0;
    QTest::newRow("two items") << 2 << 1;
    QTest::newRow("three items") << 3 << 2;
}

void tst_ConfigurationWindowPage::separatorsAreBetweenItems()
{
    QFETCH(int, items);
    const char *const names[] = {"a", "b", "c"};
    for (int i = 0; i < items; ++i)
        mFixture->addBool(names[i]);
    mFixture->open();
    QTEST(separators(mFixture->groups().first()), "lines");
}

void tst_ConfigurationWindowPage::captionsAreLeftOfTheirEditors()
{
    mNumber = 3;
    const ConfItem *item = mFixture->manager->addConfInt32("Number", &mNumber, "General", "n");
    mFixture->open();
    const auto *grid = qobject_cast<QGridLayout *>(mFixture->groups().first()->layout());
    QCOMPARE(grid->objectName(), QString("layoutConfigItem"));
    int row = -1, column = -1, rowSpan = 0, columnSpan = 0;
    grid->getItemPosition(grid->indexOf(item->editor), &row, &column, &rowSpan, &columnSpan);
    QCOMPARE(row, 1);
    QCOMPARE(column, 1);
    QCOMPARE(columnSpan, 1);
    grid->getItemPosition(grid->indexOf(item->editor->label()), &row, &column, &rowSpan,
                          &columnSpan);
    QCOMPARE(row, 1);
    QCOMPARE(column, 0);
    QVERIFY(item->editor->label()->mapToGlobal(QPoint()).x()
            < item->editor->mapToGlobal(QPoint()).x());
}

void tst_ConfigurationWindowPage::editorWithoutCaptionTakesTheWholeRow()
{
    class BareEditor : public ConfigItemWidget
    {
    public:
        using ConfigItemWidget::ConfigItemWidget;
        QWidget *label() override { return nullptr; }
        void loadConf() override {}
    };
    mNumber = 0;
    const ConfItem *item = mFixture->manager->addConfInt32(
        "Bare", &mNumber, "General", "n", "",
        [](ConfItem *edited, QWidget *parent) { return new BareEditor(edited, parent); });
    mFixture->open();
    const auto *grid = qobject_cast<QGridLayout *>(mFixture->groups().first()->layout());
    int row = -1, column = -1, rowSpan = 0, columnSpan = 0;
    grid->getItemPosition(grid->indexOf(item->editor), &row, &column, &rowSpan, &columnSpan);
    QCOMPARE(column, 0);
    QCOMPARE(columnSpan, 2);
    item->editor->refreshLabelState();
    QVERIFY(mFixture->clickAndAnswer(mFixture->restorePageButton(), QMessageBox::Yes));
}

void tst_ConfigurationWindowPage::gridIsSpacedByTheScale()
{
    mFixture->addBool("a");
    mFixture->open();
    const QLayout *grid = mFixture->groups().first()->layout();
    // 12 units at 96 dots per inch.
    QCOMPARE(grid->contentsMargins(), QMargins(16, 16, 16, 16));
    QCOMPARE(grid->spacing(), 16);
    QCOMPARE(grid->property("SourceSpacing"), QVariant(12));
    QVERIFY(!mFixture->groups().first()->property("NoGroupBox").isValid());
}

void tst_ConfigurationWindowPage::classFlag1HidesCaptionsAndPanels()
{
    mFixture->addBool("a");
    mFixture->addBool("Group", "b");
    mFixture->manager->setConfigClassFlag("General", 0x1);
    mFixture->open();
    QCOMPARE(mFixture->captions(), QStringList());
    QCOMPARE(mFixture->groups().size(), 2);
    for (const QGroupBox *box : mFixture->groups()) {
        QCOMPARE(box->property("NoGroupBox"), QVariant("1"));
        QCOMPARE(box->layout()->contentsMargins(), QMargins());
        QCOMPARE(box->layout()->spacing(), 0);
        QVERIFY(!box->layout()->property("SourceSpacing").isValid());
    }
    QVERIFY(mFixture->restorePageButton()->isVisible());
}

void tst_ConfigurationWindowPage::classFlag4HidesTheRestoreButton()
{
    mFixture->addBool("a");
    mFixture->addBool("b", "", "Other");
    mFixture->manager->setConfigClassFlag("General", 0x4 | 0x100);
    mFixture->open();
    QVERIFY(!mFixture->restorePageButton()->isVisible());
    QCOMPARE(mFixture->captions(), QStringList("General"));
    mFixture->clickClass(1);
    QVERIFY(mFixture->restorePageButton()->isVisible());
}

void tst_ConfigurationWindowPage::customPageIsShownAlone()
{
    mFixture->addBool("a");
    QWidget *givenParent = nullptr;
    QPointer<QLabel> page;
    mFixture->manager->setMajorWidget("General", [&](QWidget *parent) {
        givenParent = parent;
        return page = new QLabel("custom", parent);
    });
    mFixture->addBool("b", "", "Other");
    mFixture->open();
    QCOMPARE(givenParent, mFixture->window());
    QCOMPARE(mFixture->page()->count(), 1);
    QCOMPARE(mFixture->page()->itemAt(0)->widget(), page);
    QVERIFY(page->isVisible());
    QVERIFY(mFixture->groups().isEmpty());
    mFixture->clickClass(1);
    QVERIFY(!page);
}

void tst_ConfigurationWindowPage::customPageMayBeNull()
{
    mFixture->manager->setMajorWidget("General", [](QWidget *) { return nullptr; });
    mFixture->open();
    QCOMPARE(mFixture->page()->count(), 0);
}

void tst_ConfigurationWindowPage::filteredItems_data()
{
    QTest::addColumn<QVariant>("answer"); // result of the filter; invalid: no filter is set
    QTest::addColumn<QStringList>("shown");
    QTest::addColumn<int>("lines");
    QTest::newRow("no filter hides them") << QVariant() << QStringList{"a", "d"} << 1;
    QTest::newRow("filter rejects") << QVariant(false) << QStringList{"a", "d"} << 1;
    QTest::newRow("filter accepts") << QVariant(true) << QStringList{"a", "b", "c", "d"} << 3;
}

void tst_ConfigurationWindowPage::filteredItems()
{
    QFETCH(QVariant, answer);
    mFixture->addBool("a");
    mFixture->addBool("b")->flags = 0x1;
    mFixture->addBool("c")->flags = 0x3;
    mFixture->addBool("d")->flags = 0x2;
    QStringList asked;
    if (answer.isValid()) {
        mFixture->manager->itemFilter = [&](ConfItem &item) {
            asked << item.name;
            return answer.toBool();
        };
    }
    mFixture->open();
    QStringList shown;
    for (const QCheckBox *box : mFixture->groups().first()->findChildren<QCheckBox *>())
        shown << box->text();
    shown.sort();
    QTEST(shown, "shown");
    QTEST(separators(mFixture->groups().first()), "lines");
    QVERIFY(!asked.contains("a"));
    QVERIFY(!asked.contains("d"));
}

void tst_ConfigurationWindowPage::itemWithoutEditorIsNotShown()
{
    mFixture->manager->addConfQString("Text", &mText, "General", "t");
    mFixture->addBool("a");
    mFixture->manager->addConfQString("Null", &mText, "General", "n", "",
                                      [](ConfItem *, QWidget *) { return nullptr; });
    mFixture->open();
    QCOMPARE(mFixture->groups().size(), 1);
    QVERIFY(mFixture->groups().first()->findChildren<QLabel *>().isEmpty());
}

void tst_ConfigurationWindowPage::pageEndsWithASpacerAndIsScrolledToTheTop()
{
    for (int i = 0; i < 40; ++i)
        mFixture->addBool("many", QByteArray::number(i).constData());
    mFixture->addBool("few", "", "Other");
    mFixture->open();
    const QLayout *page = mFixture->page();
    const QSpacerItem *spacer = page->itemAt(page->count() - 1)->spacerItem();
    QVERIFY(spacer);
    QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    const QScrollBar *bar = mFixture->child<QScrollArea>("scrollArea")->verticalScrollBar();
    QTRY_VERIFY(bar->maximum() > 0);
    const_cast<QScrollBar *>(bar)->setValue(bar->maximum());
    mFixture->window()->switchToView("General");
    QCOMPARE(bar->value(), 0);
}

void tst_ConfigurationWindowPage::pageOfAThousandItemsIsShown()
{
    for (int i = 0; i < 1000; ++i) {
        mFixture->flags.push_back(std::make_unique<bool>(false));
        mFixture->manager->addConfBool("item", mFixture->flags.back().get(), "General",
                                       QString::number(i));
    }
    mFixture->open();
    QCOMPARE(mFixture->groups().first()->findChildren<QCheckBox *>().size(), 1000);
    QCOMPARE(separators(mFixture->groups().first()), 999);
}

void tst_ConfigurationWindowPage::oldEditorsAreDeletedAtOnce()
{
    const ConfItem *item = mFixture->addBool("a");
    mFixture->addBool("b", "", "Other");
    mFixture->open();
    const QPointer<QWidget> editor = item->editor;
    mFixture->window()->switchToView("Other");
    QVERIFY(!editor);
    QVERIFY(!item->editor);
}

void tst_ConfigurationWindowPage::itemDeclaredLaterAppearsWhenThePageIsBuiltAgain()
{
    mFixture->addBool("a");
    mFixture->open();
    const ConfItem *late = mFixture->addBool("b");
    QVERIFY(!late->editor);
    mFixture->window()->switchToView("General");
    QVERIFY(late->editor);
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfigurationWindowPage>(argc, argv);
}

#include "tst_ConfigurationWindowPage.moc"
