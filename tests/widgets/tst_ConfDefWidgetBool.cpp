#include "support/EditorFixture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/widgets/ConfDefWidgetBool.h>

#include <QCheckBox>
#include <QLabel>

using MtConf::ConfDefWidgetBool;
using MtConf::ConfItem;

class tst_ConfDefWidgetBool : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        mFixture = std::make_unique<EditorFixture>();
        mValue = true;
        mItem = mFixture->manager.addConfBool("Show grid", &mValue, "Capture", "Grid");
        mEditor = mFixture->edit<ConfDefWidgetBool>(mItem);
        mBox = qobject_cast<QCheckBox *>(mEditor->label());
        QVERIFY(mFixture->show());
    }
    void cleanup() { mFixture.reset(); }

    void checkBoxIsItsOwnCaption();
    void checkBoxFillsAnEditorOutsideThePage();
    void clickWritesTheValueAndMarksTheCaption();
    void spaceKeyWritesToo();
    void clickOnTheStoredValueWritesNothing();
    void loadConfShowsTheStoredValue();
    void callbackMayRevertTheChange();
    void callbackMayDeleteTheEditor();

private:
    void click() { QTest::mouseClick(mBox, Qt::LeftButton, {}, QPoint(8, mBox->height() / 2)); }

    std::unique_ptr<EditorFixture> mFixture;
    ConfItem *mItem = nullptr;
    ConfDefWidgetBool *mEditor = nullptr;
    QCheckBox *mBox = nullptr;
    bool mValue = false;
};

void tst_ConfDefWidgetBool::checkBoxIsItsOwnCaption()
{
    QVERIFY(mBox);
    QCOMPARE(mBox->text(), QString("Show grid"));
    QVERIFY(mBox->isChecked());
    QCOMPARE(changedMark(mEditor), QString("0"));
    QVERIFY(mFixture->parent.findChildren<QLabel *>().isEmpty());
    QCOMPARE(mEditor->layout()->contentsMargins(), QMargins());
    QCOMPARE(mEditor->layout()->spacing(), 0);
}

void tst_ConfDefWidgetBool::checkBoxFillsAnEditorOutsideThePage()
{
    ConfDefWidgetBool editor(mItem, nullptr);
    editor.resize(300, 50);
    editor.show();
    const QRect box = editor.findChild<QCheckBox *>()->geometry();
    QCOMPARE(box.x(), 0);
    QCOMPARE(box.width(), 300);
}

void tst_ConfDefWidgetBool::clickWritesTheValueAndMarksTheCaption()
{
    click();
    QVERIFY(!mValue);
    QCOMPARE(changedMark(mEditor), QString("1"));
    click();
    QVERIFY(mValue);
    QCOMPARE(changedMark(mEditor), QString("0"));
}

void tst_ConfDefWidgetBool::spaceKeyWritesToo()
{
    mBox->setFocus();
    QTest::keyClick(mBox, Qt::Key_Space);
    QVERIFY(!mValue);
}

void tst_ConfDefWidgetBool::clickOnTheStoredValueWritesNothing()
{
    mFixture->store()->set<bool>("Capture.Grid", false);
    mFixture->store()->mChanged = false;
    click(); // now shows false, which is the stored value
    QVERIFY(!mBox->isChecked());
    QVERIFY(!mFixture->store()->mChanged);
    QCOMPARE(changedMark(mEditor), QString("0"));
}

void tst_ConfDefWidgetBool::loadConfShowsTheStoredValue()
{
    mFixture->store()->set<bool>("Capture.Grid", false);
    mEditor->loadConf();
    QVERIFY(!mBox->isChecked());
    QCOMPARE(changedMark(mEditor), QString("1"));
}

void tst_ConfDefWidgetBool::callbackMayRevertTheChange()
{
    mItem->setConfChangedCallback([this](const QString &key, const ConfValue *value) {
        if (!value->get<bool>())
            mFixture->store()->set<bool>(key, true);
    });
    click();
    QVERIFY(mValue);
    QCOMPARE(changedMark(mEditor), QString("0"));
}

void tst_ConfDefWidgetBool::callbackMayDeleteTheEditor()
{
    mItem->setConfChangedCallback([this](const QString &, const ConfValue *) { delete mEditor; });
    click();
    QVERIFY(!mItem->editor);
    QVERIFY(!mValue);
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfDefWidgetBool>(argc, argv);
}

#include "tst_ConfDefWidgetBool.moc"
