#include "MouseActionFixture.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <QAbstractItemView>

using MtConf::ConfWidgetMouseAction;

class tst_ConfWidgetMouseActionLifetime : public MouseActionFixture
{
    Q_OBJECT
private Q_SLOTS:
    void init() { reset(); }
    void cleanup() { clear(); }

    void deletedEditorCausesNoConflict();
    void listContainsTheExistingEditors();

    void callbackMayDeleteTheEditor_data();
    void callbackMayDeleteTheEditor();
    void callbackMayDeleteAllEditors();
    void keysMayBeRemovedFromTheStoreWhileTheyAreShown();
};

void tst_ConfWidgetMouseActionLifetime::deletedEditorCausesNoConflict()
{
    const Gesture *one = add("One", 4, 1);
    Gesture *two = add("Two", 4, 1);
    one->editor->refreshConflictState();
    QCOMPARE(stateClass(one), QString("WarningIcon"));
    delete two->editor;
    QCOMPARE(stateClass(one), QString("WarningIcon")); // until the next change
    one->editor->onCurrentIndexChanged();
    QCOMPARE(stateClass(one), QString("CorrectIcon"));
}

void tst_ConfWidgetMouseActionLifetime::listContainsTheExistingEditors()
{
    Gesture *one = add("One", 4, 1);
    const Gesture *two = add("Two", 0, 0);
    const Gesture *three = add("Three", 1, 2);
    QCOMPARE(ConfWidgetMouseAction::sConflictList,
             (QList<ConfWidgetMouseAction *>{one->editor, two->editor, three->editor}));
    delete one->editor;
    QCOMPARE(ConfWidgetMouseAction::sConflictList,
             (QList<ConfWidgetMouseAction *>{two->editor, three->editor}));
    // The host may change the public list.
    ConfWidgetMouseAction::sConflictList.append(two->editor);
    delete two->editor;
    QCOMPARE(ConfWidgetMouseAction::sConflictList, QList<ConfWidgetMouseAction *>{three->editor});
}

void tst_ConfWidgetMouseActionLifetime::callbackMayDeleteTheEditor_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("an action is chosen in the list") << "action";
    QTest::newRow("an action is chosen by key") << "key";
    QTest::newRow("a modifier is clicked") << "modifier";
    QTest::newRow("the value is loaded, modifiers change") << "load modifiers";
    QTest::newRow("the value is loaded, the action changes") << "load action";
}

void tst_ConfWidgetMouseActionLifetime::callbackMayDeleteTheEditor()
{
    QFETCH(QString, way);
    Gesture *gesture = add("Zoom", 4, 1);
    const Gesture *other = add("Pan", 16, 1);
    QVERIFY(mFixture->show());
    if (way.startsWith("load"))
        store(gesture, way == "load action" ? 16 : 0x1e000010);
    const QPointer<QComboBox> actions = gesture->actions;
    const QPointer<QComboBox> modifiers = gesture->modifiers.data();
    gesture->item->setConfChangedCallback(
        [gesture](const QString &, const ConfValue *) { delete gesture->editor; });
    if (way == "action") {
        actions->showPopup();
        QTRY_VERIFY(actions->view()->isVisible());
        actions->view()->setCurrentIndex(actions->model()->index(5, 0));
        QTest::keyClick(actions->view(), Qt::Key_Return);
    } else if (way == "key") {
        QTest::keyClick(actions, Qt::Key_Down);
    } else if (way == "modifier") {
        clickModifier(gesture, 0);
    } else {
        gesture->editor->loadConf();
    }
    QVERIFY(!gesture->editor);
    QVERIFY(!gesture->item->editor);
    QTRY_VERIFY(!actions);
    QTRY_VERIFY(!modifiers);
    QVERIFY(!QApplication::activePopupWidget());
    QCOMPARE(ConfWidgetMouseAction::sConflictList, QList<ConfWidgetMouseAction *>{other->editor});
}

void tst_ConfWidgetMouseActionLifetime::callbackMayDeleteAllEditors()
{
    Gesture *one = add("One", 4, 1);
    Gesture *two = add("Two", 16, 1);
    one->item->setConfChangedCallback([one, two](const QString &, const ConfValue *) {
        delete two->editor;
        delete one->editor;
    });
    one->actions->setCurrentIndex(4);
    QCOMPARE(one->value, 8);
    QCOMPARE(ConfWidgetMouseAction::sConflictList.size(), 0);
    QCoreApplication::processEvents();
}

void tst_ConfWidgetMouseActionLifetime::keysMayBeRemovedFromTheStoreWhileTheyAreShown()
{
    Gesture *one = add("One", sShift | 4, 1);
    const Gesture *two = add("Two", sShift | 8, 1);
    ConfWidgetMouseAction::refreshAllConflictState();
    QCOMPARE(stateClass(one), QString("WarningIcon"));
    LogCapture log;
    ConfStorage::instance()->mConfValues.clear();
    ConfStorage::instance()->mConfMetas.clear();
    ConfWidgetMouseAction::refreshAllConflictState();
    QCOMPARE(stateClass(one), QString("CorrectIcon"));
    one->actions->setCurrentText("Middle Click");
    QCOMPARE(one->value, sShift | 4);
    two->editor->loadConf();
    QCOMPARE(action(two), QString("None"));
    QCOMPARE(stateClass(two), QString("NoneIcon"));
    QCOMPARE(two->value, sShift | 8);
    QVERIFY(log.texts(QtWarningMsg).size() + log.texts(QtCriticalMsg).size() > 0);
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfWidgetMouseActionLifetime>(argc, argv);
}

#include "tst_ConfWidgetMouseActionLifetime.moc"
