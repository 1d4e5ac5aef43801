#include "support/TestMain.h"
#include "support/WindowFixture.h"

#include <QSpinBox>

using MtConf::ConfigItemWidget;
using MtConf::ConfItem;

/// What host code may do while the window builds a page or an editor stores a value.
class tst_PageReentrancy : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { mFixture = std::make_unique<WindowFixture>(); }
    void cleanup() { mFixture.reset(); }

    void callbackMayOpenAnotherPage_fromACheckBox();
    void callbackMayOpenAnotherPage_fromASpinBox();
    void editorLivesUntilTheCallbackThatReplacesItsPageReturns();
    void callbackMayCloseTheWindow();
    void factoryMayOpenAnotherPage();
    void factoryMayDeleteTheWindow_data();
    void factoryMayDeleteTheWindow();
    void filterAndFactoryMayReplaceThemselves();
    void hostMayDeleteAnEditorItself();

private:
    std::unique_ptr<WindowFixture> mFixture;
    int mNumber = 0;
};

void tst_PageReentrancy::callbackMayOpenAnotherPage_fromACheckBox()
{
    const ConfItem *item = mFixture->addBool("a");
    const ConfItem *other = mFixture->addBool("b", "", "Other");
    item->setConfChangedCallback(
        [&](const QString &, const ConfValue *) { mFixture->manager->ShowWindow("Other"); });
    mFixture->open();
    mFixture->clickBox(mFixture->checkBox(item));
    QVERIFY(!*mFixture->flags.at(0));
    QVERIFY(other->editor);
    QCOMPARE(mFixture->captions(), QStringList("Other"));
    QTRY_VERIFY(!item->editor);
}

void tst_PageReentrancy::callbackMayOpenAnotherPage_fromASpinBox()
{
    mNumber = 3;
    const ConfItem *item = mFixture->manager->addConfInt32("n", &mNumber, "General", "n");
    mFixture->addBool("b", "", "Other");
    item->setConfChangedCallback([&](const QString &, const ConfValue *) {
        mFixture->manager->ShowWindow("General"); // rebuilds the page during the key press
    });
    mFixture->open();
    auto *box = item->editor->findChild<QSpinBox *>();
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Up);
    QCOMPARE(mNumber, 4);
    QVERIFY(item->editor);
    QCOMPARE(item->editor->findChild<QSpinBox *>()->value(), 4);
    QTRY_COMPARE(mFixture->window()->findChildren<QSpinBox *>().size(), 1);
}

void tst_PageReentrancy::editorLivesUntilTheCallbackThatReplacesItsPageReturns()
{
    const ConfItem *item = mFixture->addBool("a");
    mFixture->addBool("b", "", "Other");
    QPointer<QWidget> editor;
    bool isHidden = false;
    item->setConfChangedCallback([&](const QString &, const ConfValue *) {
        editor = item->editor;
        mFixture->manager->ShowWindow("Other");
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        isHidden = editor && !editor->isVisible();
    });
    mFixture->open();
    mFixture->clickBox(mFixture->checkBox(item));
    QVERIFY(isHidden);
    QTRY_VERIFY(!editor);
}

void tst_PageReentrancy::callbackMayCloseTheWindow()
{
    const ConfItem *item = mFixture->addBool("a");
    bool isWindowThere = false;
    item->setConfChangedCallback([&](const QString &, const ConfValue *) {
        mFixture->manager->closeConfigWindow();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        isWindowThere = mFixture->window();
    });
    mFixture->open();
    mFixture->clickBox(mFixture->checkBox(item));
    QVERIFY(isWindowThere);
    QTRY_VERIFY(!mFixture->window());
    QVERIFY(!*mFixture->flags.at(0));
}

void tst_PageReentrancy::factoryMayOpenAnotherPage()
{
    int asked = 0;
    mFixture->manager->setMajorWidget("Custom", [&](QWidget *parent) {
        if (++asked == 1)
            mFixture->manager->ShowWindow("Other");
        return new QLabel("custom", parent);
    });
    const ConfItem *other = mFixture->addBool("b", "", "Other");
    QVERIFY(mFixture->open());
    QTRY_VERIFY(other->editor);
    QCOMPARE(mFixture->captions(), QStringList("Other"));
}

void tst_PageReentrancy::factoryMayDeleteTheWindow_data()
{
    QTest::addColumn<QString>("where");
    QTest::newRow("custom page") << "page";
    QTest::newRow("filter") << "filter";
    QTest::newRow("editor") << "editor";
}

void tst_PageReentrancy::factoryMayDeleteTheWindow()
{
    QFETCH(QString, where);
    mFixture->addBool("first", "", "First");
    ConfItem *item = mFixture->addBool("a");
    mFixture->addBool("b");
    mFixture->addBool("c", "Group");
    if (where == "page") {
        mFixture->manager->setMajorWidget("General", [](QWidget *) -> QWidget * {
            delete WindowFixture::window();
            return nullptr;
        });
    } else if (where == "filter") {
        item->flags = 0x1;
        mFixture->manager->itemFilter = [](ConfItem &) {
            delete WindowFixture::window();
            return true;
        };
    } else {
        item->widgetCreator = [](ConfItem *, QWidget *) -> ConfigItemWidget * {
            delete WindowFixture::window();
            return nullptr;
        };
    }
    mFixture->open();
    QVERIFY(!mFixture->manager->ShowWindow("General"));
    QVERIFY(!mFixture->window());
    // The same for the first page, which the constructor builds.
    mFixture->manager->majorItems.move(1, 0);
    QVERIFY(!mFixture->manager->ShowWindow());
}

void tst_PageReentrancy::filterAndFactoryMayReplaceThemselves()
{
    ConfItem *item = mFixture->addBool("a");
    item->flags = 0x1;
    const QString captured(1000, 'c');
    QStringList seen;
    mFixture->manager->itemFilter = [&, captured](ConfItem &) {
        mFixture->manager->itemFilter = nullptr;
        seen << captured;
        return true;
    };
    item->widgetCreator = [&, captured](ConfItem *edited, QWidget *) -> ConfigItemWidget * {
        edited->widgetCreator = nullptr;
        seen << captured;
        return nullptr;
    };
    mFixture->open();
    QCOMPARE(seen.count(captured), 2);
}

void tst_PageReentrancy::hostMayDeleteAnEditorItself()
{
    const ConfItem *item = mFixture->addBool("a");
    mFixture->open();
    delete item->editor;
    mFixture->window()->retranslateUi();
    QVERIFY(mFixture->clickAndAnswer(mFixture->restorePageButton(), QMessageBox::Yes));
    QVERIFY(item->editor);
}

int main(int argc, char **argv)
{
    return runTest<tst_PageReentrancy>(argc, argv);
}

#include "tst_PageReentrancy.moc"
