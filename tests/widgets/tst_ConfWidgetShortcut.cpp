#include "TypedEditorFixture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/widgets/ConfWidgetShortcut.h>
#include <MaltoConfiguration/widgets/KeySequenceEdit.h>

#include <QAction>
#include <QShortcut>
#include <QToolButton>

using MtConf::ConfItem;
using MtConf::ConfWidgetShortcut;

class tst_ConfWidgetShortcut : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        mFixture = std::make_unique<TypedEditorFixture>();
        mAction = std::make_unique<QAction>("Find");
        mValue = QKeySequence("Ctrl+F");
        mItem = mFixture->manager.addConfShortcut("Find", &mValue, mAction.get(), "Keys", "Find");
        mFixture->store()->mChanged = false;
    }
    void cleanup()
    {
        mAction.reset();
        mFixture.reset();
    }

    void actionHasTheShortcut();
    void shortcutObjectHasTheShortcut();
    void actionMayBeDestroyed();
    void managerMayBeDestroyed();
    void actionMayBeDestroyedByItsChange();
    void secondDeclarationReplacesTheFirst();
    void nullActionIsAccepted();
    void hostsCallbackIsFree();

    void pressedKeysAreStored_data();
    void pressedKeysAreStored();
    void keysThatAreNotRecorded();
    void buttonClears();
    void tabLeavesTheField();
    void refreshingStoresNothing();
    void refusedShortcutIsNotStored();
    void callbackMayDeleteTheEditor();

private:
    KeySequenceEdit *edit()
    {
        mEditor = mFixture->open<ConfWidgetShortcut>(mItem);
        auto *field = mEditor->findChild<KeySequenceEdit *>();
        if (!mFixture->show())
            return nullptr;
        field->setFocus();
        return field;
    }

    std::unique_ptr<TypedEditorFixture> mFixture;
    std::unique_ptr<QAction> mAction;
    ConfItem *mItem = nullptr;
    ConfWidgetShortcut *mEditor = nullptr;
    QKeySequence mValue;
};

void tst_ConfWidgetShortcut::actionHasTheShortcut()
{
    QCOMPARE(mAction->shortcut(), QKeySequence("Ctrl+F"));
    mFixture->store()->set("Keys.Find", QKeySequence("F3"));
    QCOMPARE(mAction->shortcut(), QKeySequence("F3"));
    mItem->restoreDefault();
    QCOMPARE(mAction->shortcut(), QKeySequence("Ctrl+F"));
    mItem->loadFromJsonValue("Ctrl+G");
    QCOMPARE(mAction->shortcut(), QKeySequence("Ctrl+G"));
}

void tst_ConfWidgetShortcut::shortcutObjectHasTheShortcut()
{
    QKeySequence value("Ctrl+K");
    QShortcut shortcut(&mFixture->parent);
    mFixture->manager.addConfShortcut("Kill", &value, &shortcut, "Keys", "Kill");
    QCOMPARE(shortcut.key(), QKeySequence("Ctrl+K"));
    mFixture->store()->set("Keys.Kill", QKeySequence("F4"));
    QCOMPARE(shortcut.key(), QKeySequence("F4"));
    QCOMPARE(mAction->shortcut(), QKeySequence("Ctrl+F"));
}

void tst_ConfWidgetShortcut::actionMayBeDestroyed()
{
    mAction.reset();
    mFixture->store()->set("Keys.Find", QKeySequence("F3"));
    QCOMPARE(mValue, QKeySequence("F3"));
}

void tst_ConfWidgetShortcut::managerMayBeDestroyed()
{
    QKeySequence value("F5");
    QAction action;
    {
        MtConf::MtConfManage manager;
        manager.addConfShortcut("Reload", &value, &action, "Keys", "Reload");
    }
    mFixture->store()->set("Keys.Reload", QKeySequence("F6"));
    QCOMPARE(action.shortcut(), QKeySequence("F6"));
}

void tst_ConfWidgetShortcut::actionMayBeDestroyedByItsChange()
{
    connect(mAction.get(), &QAction::changed, this, [this] { mAction.reset(); });
    mFixture->store()->set("Keys.Find", QKeySequence("F3"));
    QVERIFY(!mAction);
    mFixture->store()->set("Keys.Find", QKeySequence("F4"));
    QCOMPARE(mValue, QKeySequence("F4"));
}

void tst_ConfWidgetShortcut::secondDeclarationReplacesTheFirst()
{
    QKeySequence other("F7");
    mFixture->manager.addConfShortcut("Other", &other, mAction.get(), "Keys", "Other");
    mFixture->store()->set("Keys.Find", QKeySequence("F3"));
    QCOMPARE(mAction->shortcut(), QKeySequence("F7"));
}

void tst_ConfWidgetShortcut::nullActionIsAccepted()
{
    QKeySequence value("F7");
    auto &manager = mFixture->manager;
    QVERIFY(manager.addConfShortcut("A", &value, static_cast<QAction *>(nullptr), "Keys", "A"));
    QVERIFY(manager.addConfShortcut("B", &value, static_cast<QShortcut *>(nullptr), "Keys", "B"));
    mFixture->store()->set("Keys.A", QKeySequence("F8"));
    QCOMPARE(value, QKeySequence("F8"));
    mFixture.reset();
}

void tst_ConfWidgetShortcut::hostsCallbackIsFree()
{
    QKeySequence heard;
    mItem->setConfChangedCallback(
        [&](const QString &, const ConfValue *value) { heard = value->get<QKeySequence>(); });
    mFixture->store()->set("Keys.Find", QKeySequence("F3"));
    QCOMPARE(heard, QKeySequence("F3"));
    QCOMPARE(mAction->shortcut(), QKeySequence("F3"));
}

void tst_ConfWidgetShortcut::pressedKeysAreStored_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("stored");
    QTest::newRow("with modifiers")
        << int(Qt::Key_G) << int(Qt::ControlModifier | Qt::ShiftModifier) << "Ctrl+Shift+G";
    QTest::newRow("a function key") << int(Qt::Key_F3) << 0 << "F3";
    QTest::newRow("Delete") << int(Qt::Key_Delete) << 0 << "Del";
    QTest::newRow("Backspace with a modifier")
        << int(Qt::Key_Backspace) << int(Qt::ControlModifier) << "Ctrl+Backspace";
}

void tst_ConfWidgetShortcut::pressedKeysAreStored()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QString, stored);
    KeySequenceEdit *field = edit();
    QTest::keyClick(field, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(mValue, QKeySequence(stored));
    QCOMPARE(mAction->shortcut(), QKeySequence(stored));
    QCOMPARE(changedMark(mEditor), QString("1"));
    QTest::keyClick(field, Qt::Key_F9); // one chord: the next one replaces it
    QCOMPARE(mValue, QKeySequence("F9"));
}

void tst_ConfWidgetShortcut::keysThatAreNotRecorded()
{
    KeySequenceEdit *field = edit();
    QTest::keyClick(field, Qt::Key_Escape);
    QVERIFY(mFixture->isUntouched());
    QCOMPARE(field->keySequence(), QKeySequence("Ctrl+F"));
    QTest::keyClick(field, Qt::Key_Backspace);
    QCOMPARE(mValue, QKeySequence());
    QVERIFY(field->text().isEmpty());
    QTest::keyClick(field, Qt::Key_Backspace);
    QCOMPARE(mFixture->changes, 1);
}

void tst_ConfWidgetShortcut::buttonClears()
{
    KeySequenceEdit *field = edit();
    QTest::mouseClick(field->findChild<QToolButton *>(), Qt::LeftButton);
    QCOMPARE(mValue, QKeySequence());
    QCOMPARE(mAction->shortcut(), QKeySequence());
}

void tst_ConfWidgetShortcut::tabLeavesTheField()
{
    KeySequenceEdit *field = edit();
    (new QLineEdit(&mFixture->parent))->show();
    QTest::keyClick(field, Qt::Key_Tab);
    QVERIFY(!field->hasFocus());
    QVERIFY(mFixture->isUntouched());
}

void tst_ConfWidgetShortcut::refreshingStoresNothing()
{
    const KeySequenceEdit *field = edit();
    mFixture->store()->set("Keys.Find", QKeySequence("F3"));
    mFixture->changes = 0;
    mFixture->store()->mChanged = false;
    mEditor->loadConf();
    mEditor->retranslateUi();
    mEditor->commit();
    QCOMPARE(field->keySequence(), QKeySequence("F3"));
    QVERIFY(mFixture->isUntouched());
}

void tst_ConfWidgetShortcut::refusedShortcutIsNotStored()
{
    mItem->setValidator([](const QJsonValue &value) {
        return value == QJsonValue("F1") ? QString("F1 is for help") : QString();
    });
    KeySequenceEdit *field = edit();
    QTest::keyClick(field, Qt::Key_F1);
    QCOMPARE(mFixture->shownMessage(), QString("F1 is for help"));
    QCOMPARE(mValue, QKeySequence("Ctrl+F"));
    QTest::keyClick(field, Qt::Key_F2);
    QCOMPARE(mFixture->shownMessage(), QString());
    QCOMPARE(mValue, QKeySequence("F2"));
}

void tst_ConfWidgetShortcut::callbackMayDeleteTheEditor()
{
    KeySequenceEdit *field = edit();
    mItem->setConfChangedCallback([this](const QString &, const ConfValue *) { delete mEditor; });
    QTest::keyClick(field, Qt::Key_Backspace);
    QCOMPARE(mValue, QKeySequence());
    QVERIFY(!mItem->editor);
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfWidgetShortcut>(argc, argv);
}

#include "tst_ConfWidgetShortcut.moc"
