#include "LifetimeFixture.h"
#include "support/TestMain.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>
#include <QScreen>
#include <QScrollArea>

/// The structure and the measures of the modern look, in pixels at 96 dots per inch.
class tst_ModernLook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void windowHasTheSizeOfTheLook();
    void classesAreNarrowRows();
    void pageHasALimitedWidthInTheMiddle();
    void titleNamesTheClass();
    void firstGroupHasATitleOnlyIfItIsNotTheClass();
    void rowsAreHigh();
    void editorsEndInOneColumn();
    void fieldsHaveTheUsualWidths();
    void longCaptionsWrap();
    void flagIsASwitchBesideItsCaption();
    void clickOnTheCaptionTogglesTheSwitch();
    void spaceTogglesTheSwitch();
    void captionOfASwitchFollowsItsState();
    void classicLookIsTheDefault();

private:
    void open(const QString &page);
    static int px(double pixels);
    template<class Control> Control *control(const char *name) const
    {
        return mHost->control<Control>(name);
    }
    MtConf::ConfItem *item(const char *name) const
    {
        return mHost->manager->getItemByName("Edit", name, "");
    }
    static QWidget *rowOf(const MtConf::ConfItem *item) { return item->editor->parentWidget(); }
    static QLabel *captionOf(const MtConf::ConfItem *item)
    {
        return rowOf(item)->findChild<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
    }
    static QRect inWindow(const QWidget *widget)
    {
        return {widget->mapTo(widget->window(), QPoint()), widget->size()};
    }

    std::unique_ptr<LifetimeFixture> mHost;
};

void tst_ModernLook::init()
{
    mHost = std::make_unique<LifetimeFixture>();
    mHost->manager->windowLook = MtConf::ModernLook;
    MtConf::ConfigurationWindow::mIconMap.clear();
}

void tst_ModernLook::cleanup()
{
    mHost.reset();
}

void tst_ModernLook::open(const QString &page)
{
    QVERIFY(QTest::qWaitForWindowExposed(mHost->manager->ShowWindow(page)));
    QCoreApplication::processEvents();
}

/// Returns `pixels` at 96 dots per inch in pixels of the test, which also runs at another scale.
int tst_ModernLook::px(double pixels)
{
    return qRound(pixels * qEnvironmentVariableIntValue("QT_FONT_DPI") / 96);
}

void tst_ModernLook::windowHasTheSizeOfTheLook()
{
    open("Edit");
    const QSize room = mHost->window()->screen()->availableSize();
    QCOMPARE(mHost->window()->size(), QSize(px(980), px(690)).boundedTo(room));
    QCOMPARE(mHost->window()->minimumSize(), QSize(px(680), px(400)).boundedTo(room));
}

void tst_ModernLook::classesAreNarrowRows()
{
    open("Edit");
    mHost->window()->resize(px(980), px(690));
    QCoreApplication::processEvents();
    QListView *list = WindowFixture::classList();
    QCOMPARE(inWindow(list).left(), px(12));
    QCOMPARE(list->width(), px(216) - px(1) - 2 * px(12));
    const QModelIndex first = list->model()->index(0, 0);
    const QModelIndex second = list->model()->index(1, 0);
    QCOMPARE(list->visualRect(second).top() - list->visualRect(first).top(), px(36) + px(2));
}

void tst_ModernLook::pageHasALimitedWidthInTheMiddle()
{
    open("Edit");
    mHost->window()->resize(px(1400), px(690));
    const int width = px(720) - 2 * px(24);
    QTRY_COMPARE(WindowFixture::groups().first()->width(), width);
    const QRect panel = inWindow(WindowFixture::groups().first());
    const QRect area = inWindow(WindowFixture::child<QScrollArea>("scrollArea")->viewport());
    QVERIFY(qAbs(panel.center().x() - area.center().x()) <= 1);
}

void tst_ModernLook::titleNamesTheClass()
{
    open("Edit");
    auto *title = WindowFixture::child<QLabel>("ModernPageTitle");
    QCOMPARE(title->text(), QString("Edit"));
    QCOMPARE(title->font().pixelSize(), px(20));
    QCOMPARE(inWindow(title).left(), inWindow(WindowFixture::groups().first()).left());
    mHost->window()->switchToView("Custom");
    QCOMPARE(title->text(), QString("Custom"));
}

void tst_ModernLook::firstGroupHasATitleOnlyIfItIsNotTheClass()
{
    bool flag = false;
    mHost->manager->addConfBool("Grouped", &flag, "Edit", "Group", "Flag");
    open("Edit");
    QCOMPARE(WindowFixture::captions(), QStringList("Group"));
    QCOMPARE(WindowFixture::groups().size(), 2);
}

void tst_ModernLook::rowsAreHigh()
{
    open("Edit");
    for (const char *name : {"Flag", "Number", "Text", "Colour", "Font", "Key", "Language"})
        QVERIFY2(rowOf(item(name))->height() >= px(46), name);
}

void tst_ModernLook::editorsEndInOneColumn()
{
    bool flag = false;
    int number = 0;
    mHost->manager->addConfBool("Grouped", &flag, "Edit", "Group", "Flag");
    mHost->manager->addConfInt32("Other", &number, "Edit", "Group", "Number");
    open("Edit");
    QList<MtConf::ConfItem *> items = mHost->manager->getConfItemList("Edit");
    const int right = inWindow(items.first()->editor).right();
    QCOMPARE(inWindow(WindowFixture::groups().first()).right() - right, px(44) + px(1));
    for (const MtConf::ConfItem *one : std::as_const(items))
        QVERIFY2(inWindow(one->editor).right() == right, one->displayText);
}

void tst_ModernLook::fieldsHaveTheUsualWidths()
{
    open("Edit");
    QCOMPARE(control<QAbstractSpinBox>("Number")->width(), px(104));
    QCOMPARE(control<QAbstractSpinBox>("Number")->height(), px(32));
    QCOMPARE(control<QComboBox>("Text")->width(), px(220));
    QCOMPARE(control<QComboBox>("Text")->height(), px(32));
    QCOMPARE(control<QLineEdit>("Key")->width(), px(220));
    QCOMPARE(control<QCheckBox>("Flag")->size(), QSize(px(38), px(22)));
    mHost->window()->retranslateUi(); // the editor of a number sets its width again
    QCoreApplication::processEvents();
    QCOMPARE(control<QAbstractSpinBox>("Number")->width(), px(104));
}

void tst_ModernLook::longCaptionsWrap()
{
    int number = 0;
    const QByteArray text = QByteArray("many words ").repeated(30).trimmed();
    MtConf::ConfItem *longItem = mHost->manager->addConfInt32(text, &number, "Long", "Number");
    open("Long");
    QVERIFY(captionOf(longItem)->height() > 2 * QFontMetrics(captionOf(longItem)->font()).height());
    QCOMPARE(inWindow(longItem->editor).right(),
             inWindow(WindowFixture::groups().first()).right() - px(44) - px(1));
    auto *area = WindowFixture::child<QScrollArea>("scrollArea");
    QVERIFY(area->widget()->width() <= area->viewport()->width());
}

void tst_ModernLook::flagIsASwitchBesideItsCaption()
{
    open("Edit");
    const MtConf::ConfItem *flag = item("Flag");
    QCheckBox *box = WindowFixture::checkBox(flag);
    QCOMPARE(box->text(), QString("Flag")); // for screen readers
    QCOMPARE(captionOf(flag)->text(), QString("Flag"));
    QVERIFY(inWindow(captionOf(flag)).right() < inWindow(box).left());
}

void tst_ModernLook::clickOnTheCaptionTogglesTheSwitch()
{
    open("Edit");
    QVERIFY(mHost->flag);
    QTest::mouseClick(captionOf(item("Flag")), Qt::LeftButton);
    QVERIFY(!mHost->flag);
    const QSize size = WindowFixture::checkBox(item("Flag"))->size();
    for (const int x : {1, size.width() - 2}) { // the whole switch reacts
        QTest::mouseClick(WindowFixture::checkBox(item("Flag")), Qt::LeftButton, {},
                          QPoint(x, size.height() / 2));
    }
    QVERIFY(!mHost->flag);
    QTest::mouseClick(captionOf(item("Flag")), Qt::RightButton);
    QVERIFY(!mHost->flag);
}

void tst_ModernLook::spaceTogglesTheSwitch()
{
    open("Edit");
    QCheckBox *box = WindowFixture::checkBox(item("Flag"));
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Space);
    QVERIFY(!mHost->flag);
}

void tst_ModernLook::captionOfASwitchFollowsItsState()
{
    open("Edit");
    QCheckBox *box = WindowFixture::checkBox(item("Flag"));
    QLabel *caption = captionOf(item("Flag"));
    for (int i = 0; i < 2; ++i) {
        const bool isChanged = !item("Flag")->isDefaultValue();
        QCOMPARE(caption->property("changed").toString(), QString(isChanged ? "1" : "0"));
        QCOMPARE(caption->font().weight() > QFont::Normal, isChanged);
        box->click();
    }
    box->setToolTip("tip");
    QCOMPARE(caption->toolTip(), QString("tip"));
    box->setEnabled(false);
    QVERIFY(!caption->isEnabled());
}

void tst_ModernLook::classicLookIsTheDefault()
{
    QCOMPARE(MtConf::MtConfManage().windowLook, MtConf::ClassicLook);
    mHost->manager->windowLook = MtConf::ClassicLook;
    open("Edit");
    QVERIFY(!WindowFixture::child<QLabel>("ModernPageTitle"));
    QCOMPARE(mHost->window()->findChildren<QFrame *>("ModernColumnLine").size(), 0);
}

int main(int argc, char **argv)
{
    return runTest<tst_ModernLook>(argc, argv);
}

#include "tst_ModernLook.moc"
