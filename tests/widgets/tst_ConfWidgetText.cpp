#include "TextEditorFixture.h"
#include "support/TestMain.h"
#include "support/WindowFixture.h"

#include <MaltoConfiguration/widgets/ConfWidgetText.h>

#include <QLineEdit>

using MtConf::ConfItem;
using MtConf::ConfWidgetText;

class tst_ConfWidgetText : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        mFixture = std::make_unique<TextEditorFixture<ConfWidgetText>>();
        mValue = "Ada";
        mItem = mFixture->manager.addConfText("Name", &mValue, "User", "Name");
    }
    void cleanup() { mFixture.reset(); }

    void storedTextIsShown();
    void returnStores();
    void leavingTheFieldStores();
    void pauseStores();
    void commitStoresAndShowsTheStoredText();
    void commitWithoutTypingStoresNothing();
    void typingTheStoredTextStoresNothing();
    void contextMenuDoesNotEndEditing();
    void pauseKeepsTheTextThatTheUserTypes();
    void refreshShowsTheStoredTextAndKeepsTheCursor();
    void refreshKeepsWhatTheUserIsTyping();
    void refreshNeverStores();
    void longTextIsNotShortened();
    void refusedTextStaysAndIsExplained();
    void refusedTextIsTriedAgain();
    void callbackMayStoreAnotherText();
    void callbackMayCommit();
    void callbackMayDeleteTheEditor_data();
    void callbackMayDeleteTheEditor();
    void callbackMayRebuildThePageOrCloseTheWindow_data();
    void callbackMayRebuildThePageOrCloseTheWindow();
    void validatorMayDeleteTheEditor();
    void deletedEditorStoresNothing();
    void closingTheWindowStores();
    void openingAnotherPageStores();
    void restoringDefaultsForgetsWhatWasTyped();
    void dependencyDisablesTheField();
    void textsFollowTheLanguage();
    void controlIsNamed();
    void factoryNeedsAnItem();

private:
    QLineEdit *open()
    {
        if (!mFixture->openPage(mItem))
            return nullptr;
        auto *field = mFixture->child<QLineEdit>();
        field->setFocus();
        field->setCursorPosition(static_cast<int>(field->text().size()));
        return field;
    }

    std::unique_ptr<TextEditorFixture<ConfWidgetText>> mFixture;
    ConfItem *mItem = nullptr;
    QString mValue;
    bool mIsNamed = true;
};

void tst_ConfWidgetText::storedTextIsShown()
{
    mItem->setPlaceholder("Unknown");
    const QLineEdit *field = open();
    QVERIFY(field);
    QCOMPARE(field->text(), QString("Ada"));
    QCOMPARE(field->placeholderText(), QString("Unknown"));
    QCOMPARE(changedMark(mFixture->editor), QString("0"));
    QCOMPARE(mFixture->editor->layout()->contentsMargins(), QMargins());
}

void tst_ConfWidgetText::returnStores()
{
    QLineEdit *field = open();
    QTest::keyClicks(field, "m");
    QCOMPARE(mValue, QString("Ada"));
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(mValue, QString("Adam"));
    QCOMPARE(changedMark(mFixture->editor), QString("1"));
    QCOMPARE(mFixture->changes, 1);
    QCOMPARE(mFixture->lastChange.cause, ConfChange::Cause::Edited);
}

void tst_ConfWidgetText::leavingTheFieldStores()
{
    QLineEdit *field = open();
    QTest::keyClicks(field, "m");
    QTest::keyClick(field, Qt::Key_Tab);
    QVERIFY(!field->hasFocus());
    QCOMPARE(mValue, QString("Adam"));
}

void tst_ConfWidgetText::pauseStores()
{
    QLineEdit *field = open();
    QTest::keyClicks(field, "m");
    QCOMPARE(mValue, QString("Ada"));
    QTRY_COMPARE(mValue, QString("Adam"));
    QVERIFY(field->hasFocus());
    QCOMPARE(changedMark(mFixture->editor), QString("1"));
}

void tst_ConfWidgetText::commitStoresAndShowsTheStoredText()
{
    QLineEdit *field = open();
    QTest::keyClicks(field, "m");
    mFixture->editor->commit();
    QCOMPARE(mValue, QString("Adam"));
    mFixture->editor->commit();
    QCOMPARE(mFixture->changes, 1);
}

void tst_ConfWidgetText::commitWithoutTypingStoresNothing()
{
    QVERIFY(open());
    mValue = "Bob"; // not set through the store, so the field shows another text
    mFixture->editor->commit();
    QCOMPARE(mValue, QString("Bob"));
    QCOMPARE(mFixture->changes, 0);
}

void tst_ConfWidgetText::typingTheStoredTextStoresNothing()
{
    QLineEdit *field = open();
    QTest::keyClicks(field, "m");
    QTest::keyClick(field, Qt::Key_Backspace);
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(mFixture->changes, 0);
    QVERIFY(mFixture->lastChangeTime().isNull());
}

void tst_ConfWidgetText::contextMenuDoesNotEndEditing()
{
    QLineEdit *field = open();
    QTest::keyClicks(field, "m");
    QFocusEvent menuOpens(QEvent::FocusOut, Qt::PopupFocusReason);
    QApplication::sendEvent(field, &menuOpens);
    QCOMPARE(mValue, QString("Ada"));
}

void tst_ConfWidgetText::pauseKeepsTheTextThatTheUserTypes()
{
    mItem->setConfChangedCallback([](const QString &key, const ConfValue *value) {
        const QString trimmed = value->get<QString>().trimmed();
        if (trimmed != value->get<QString>())
            ConfStorage::instance()->set(key, trimmed);
    });
    QLineEdit *field = open();
    QTest::keyClicks(field, " L ");
    QTRY_COMPARE(mValue, QString("Ada L"));
    QCOMPARE(field->text(), QString("Ada L "));
    QTest::keyClicks(field, "x ");
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(mValue, QString("Ada L x"));
    QCOMPARE(field->text(), QString("Ada L x"));
}

void tst_ConfWidgetText::refreshShowsTheStoredTextAndKeepsTheCursor()
{
    QLineEdit *field = open();
    field->setCursorPosition(1);
    mFixture->store()->set<QString>("User.Name", "Grace");
    mFixture->editor->loadConf();
    QCOMPARE(field->text(), QString("Grace"));
    QCOMPARE(field->cursorPosition(), 1);
    QCOMPARE(changedMark(mFixture->editor), QString("1"));
}

void tst_ConfWidgetText::refreshKeepsWhatTheUserIsTyping()
{
    QLineEdit *field = open();
    QTest::keyClicks(field, "m");
    mFixture->store()->set<QString>("User.Name", "Grace");
    mFixture->editor->loadConf();
    QCOMPARE(field->text(), QString("Adam"));
    mFixture->other->setFocus();
    QCOMPARE(mValue, QString("Adam"));
    mFixture->store()->set<QString>("User.Name", "Grace");
    mFixture->editor->loadConf();
    QCOMPARE(field->text(), QString("Grace"));
}

void tst_ConfWidgetText::refreshNeverStores()
{
    const QLineEdit *field = open();
    mFixture->store()->set<QString>("User.Name", "two\nlines");
    mFixture->store()->mChanged = false;
    mFixture->changes = 0;
    const QDateTime time = mFixture->lastChangeTime();
    mFixture->editor->loadConf();
    mFixture->editor->retranslateUi();
    mFixture->editor->commit();
    QTest::keyClick(mFixture->child<QLineEdit>(), Qt::Key_Return);
    mFixture->other->setFocus();
    QVERIFY(!field->hasFocus());
    QCOMPARE(mValue, QString("two\nlines"));
    QVERIFY(!mFixture->store()->mChanged);
    QCOMPARE(mFixture->changes, 0);
    QCOMPARE(mFixture->lastChangeTime(), time);
}

void tst_ConfWidgetText::longTextIsNotShortened()
{
    mValue = QString(40000, 'a');
    QLineEdit *field = open();
    QTest::keyClicks(field, "b");
    mFixture->editor->commit();
    QCOMPARE(mValue, QString(40000, 'a') + 'b');
}

void tst_ConfWidgetText::refusedTextStaysAndIsExplained()
{
    mItem->setValidator([](const QJsonValue &value) {
        return value.toString().contains('!') ? QString("No exclamation mark.") : QString();
    });
    QLineEdit *field = open();
    QTest::keyClicks(field, "!");
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(mFixture->shownMessage(), QString("No exclamation mark."));
    QCOMPARE(field->text(), QString("Ada!"));
    QCOMPARE(mValue, QString("Ada"));
    mFixture->editor->loadConf(); // the user is still typing
    QCOMPARE(field->text(), QString("Ada!"));
    QTest::keyClick(field, Qt::Key_Backspace);
    QTest::keyClicks(field, "m");
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(mFixture->shownMessage(), QString());
    QCOMPARE(mValue, QString("Adam"));
}

void tst_ConfWidgetText::refusedTextIsTriedAgain()
{
    QString reason = "Not now.";
    mItem->setValidator([&](const QJsonValue &) { return reason; });
    QLineEdit *field = open();
    QTest::keyClicks(field, "m");
    mFixture->other->setFocus();
    QCOMPARE(mValue, QString("Ada"));
    QCOMPARE(mFixture->shownMessage(), reason);
    reason.clear();
    mFixture->editor->commit();
    QCOMPARE(mValue, QString("Adam"));
    QCOMPARE(mFixture->shownMessage(), QString());
}

void tst_ConfWidgetText::callbackMayStoreAnotherText()
{
    QLineEdit *field = open();
    mItem->setConfChangedCallback([](const QString &key, const ConfValue *value) {
        if (value->get<QString>() != "Grace")
            ConfStorage::instance()->set<QString>(key, "Grace");
    });
    QTest::keyClicks(field, "m");
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(mValue, QString("Grace"));
    QCOMPARE(field->text(), QString("Grace"));
}

void tst_ConfWidgetText::callbackMayCommit()
{
    QLineEdit *field = open();
    int calls = 0;
    mItem->setValidator([&](const QJsonValue &) {
        ++calls;
        mFixture->editor->commit();
        return QString();
    });
    QTest::keyClicks(field, "m");
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(calls, 1);
    QCOMPARE(mFixture->changes, 1);
}

void tst_ConfWidgetText::callbackMayDeleteTheEditor_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("Return") << 0;
    QTest::newRow("focus") << 1;
    QTest::newRow("pause") << 2;
    QTest::newRow("commit") << 3;
}

void tst_ConfWidgetText::callbackMayDeleteTheEditor()
{
    QFETCH(int, way);
    QLineEdit *field = open();
    mFixture->deleteEditorInCallback();
    QTest::keyClicks(field, "m");
    if (way == 0)
        QTest::keyClick(field, Qt::Key_Return);
    else if (way == 1)
        QTest::keyClick(field, Qt::Key_Tab);
    else if (way == 3)
        mFixture->editor->commit();
    QTRY_VERIFY(!mItem->editor);
    QCOMPARE(mValue, QString("Adam"));
}

void tst_ConfWidgetText::callbackMayRebuildThePageOrCloseTheWindow_data()
{
    QTest::addColumn<bool>("closes");
    QTest::newRow("rebuild") << false;
    QTest::newRow("close") << true;
}

void tst_ConfWidgetText::callbackMayRebuildThePageOrCloseTheWindow()
{
    QFETCH(bool, closes);
    mFixture.reset();
    WindowFixture fixture;
    mValue = "Ada";
    mItem = fixture.manager->addConfText("Name", &mValue, "User", "Name");
    QVERIFY(fixture.open());
    int calls = 0;
    mItem->setConfChangedCallback([&](const QString &, const ConfValue *) {
        ++calls;
        if (closes)
            fixture.manager->closeConfigWindow();
        else
            fixture.window()->switchToView("User");
    });
    const QPointer<QLineEdit> field = mItem->editor->findChild<QLineEdit *>();
    field->setText(QString());
    QTest::keyClicks(field, "x");
    QTest::keyClick(field, Qt::Key_Return);
    QTRY_VERIFY(!field);
    QCOMPARE(calls, 1);
    QCOMPARE(mValue, QString("x"));
    QCOMPARE(mItem->editor == nullptr, closes);
}

void tst_ConfWidgetText::validatorMayDeleteTheEditor()
{
    mItem->setValidator([this](const QJsonValue &) {
        delete mFixture->editor.data();
        return QString("Too late.");
    });
    QLineEdit *field = open();
    QTest::keyClicks(field, "m");
    QTest::keyClick(field, Qt::Key_Return);
    QVERIFY(!mItem->editor);
    QCOMPARE(mValue, QString("Ada"));
}

void tst_ConfWidgetText::deletedEditorStoresNothing()
{
    QLineEdit *field = open();
    QTest::keyClicks(field, "m");
    delete mFixture->editor.data(); // the field loses the focus
    QCOMPARE(mValue, QString("Ada"));
}

void tst_ConfWidgetText::closingTheWindowStores()
{
    mFixture.reset();
    WindowFixture fixture;
    mValue = "Ada";
    mItem = fixture.manager->addConfText("Name", &mValue, "User", "Name");
    QVERIFY(fixture.open());
    auto *field = mItem->editor->findChild<QLineEdit *>();
    QTest::keyClicks(field, "x");
    QVERIFY(fixture.close());
    QVERIFY(mValue.contains('x'));
    QFile file(fixture.localFile());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains(mValue.toUtf8()));
}

void tst_ConfWidgetText::openingAnotherPageStores()
{
    mFixture.reset();
    WindowFixture fixture;
    mValue = "Ada";
    mItem = fixture.manager->addConfText("Name", &mValue, "User", "Name");
    fixture.addBool("Flag", "", "Other");
    QVERIFY(fixture.open("User"));
    QTest::keyClicks(mItem->editor->findChild<QLineEdit *>(), "x");
    fixture.clickClass(1);
    QVERIFY(!mItem->editor);
    QVERIFY(mValue.contains('x'));
}

void tst_ConfWidgetText::restoringDefaultsForgetsWhatWasTyped()
{
    mFixture.reset();
    WindowFixture fixture;
    mValue = "Ada";
    mItem = fixture.manager->addConfText("Name", &mValue, "User", "Name");
    QVERIFY(fixture.open());
    QTest::keyClicks(mItem->editor->findChild<QLineEdit *>(), "x");
    QVERIFY(fixture.clickAndAnswer(fixture.restorePageButton(), QMessageBox::Yes));
    QCOMPARE(mValue, QString("Ada"));
    QCOMPARE(mItem->editor->findChild<QLineEdit *>()->text(), QString("Ada"));
}

void tst_ConfWidgetText::dependencyDisablesTheField()
{
    const ConfItem *other = mFixture->manager.addConfBool("Named", &mIsNamed, "User", "Named");
    mItem->dependsOn(other, true);
    QLineEdit *field = open();
    QTest::keyClicks(field, "m");
    mFixture->store()->set("User.Named", false);
    QVERIFY(!field->isEnabled());
    QVERIFY(!mFixture->editor->label()->isEnabled());
    QCOMPARE(mValue, QString("Adam")); // the field has lost the focus
    mFixture->store()->set("User.Named", true);
    QVERIFY(field->isEnabled());
}

void tst_ConfWidgetText::textsFollowTheLanguage()
{
    mItem->setPlaceholder("Unknown");
    const QLineEdit *field = open();
    const Prefixer german;
    mFixture->editor->retranslateUi();
    QCOMPARE(field->placeholderText(), QString("de Unknown"));
    QCOMPARE(qobject_cast<QLabel *>(mFixture->editor->label())->text(), QString("de Name"));
}

void tst_ConfWidgetText::controlIsNamed()
{
    mItem->setHelp("As others see it");
    const QLineEdit *field = open();
    QCOMPARE(field->accessibleName(), QString("Name"));
    QCOMPARE(field->accessibleDescription(), QString("As others see it"));
    QCOMPARE(qobject_cast<QLabel *>(mFixture->editor->label())->buddy(), field);
}

void tst_ConfWidgetText::factoryNeedsAnItem()
{
    QTest::ignoreMessage(QtCriticalMsg, "ConfigItemWidget without an item");
    QVERIFY(!ConfWidgetText::CreatConfWidget(nullptr, &mFixture->parent));
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfWidgetText>(argc, argv);
}

#include "tst_ConfWidgetText.moc"
