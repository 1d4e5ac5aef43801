#include "TextEditorFixture.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/widgets/ConfWidgetPassword.h>

#include <QAccessible>
#include <QClipboard>
#include <QLineEdit>

using MtConf::ConfItem;
using MtConf::ConfWidgetPassword;

class tst_ConfWidgetPassword : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        mFixture = std::make_unique<TextEditorFixture<ConfWidgetPassword>>();
        mValue = "secret";
        mItem = mFixture->manager.addConfPassword("Token", &mValue, "User", "Token");
    }
    void cleanup() { mFixture.reset(); }

    void itemIsSecret();
    void passwordIsHidden();
    void buttonRevealsAndHides();
    void buttonWorksByKeyboard();
    void passwordIsHiddenWhenTheFocusLeaves_data();
    void passwordIsHiddenWhenTheFocusLeaves();
    void passwordIsHiddenWhenTheWindowIsDeactivated();
    void contextMenuDoesNotHide();
    void buttonWithoutFocusGivesItToTheField();
    void inputMethodsDoNotLearn();
    void hiddenPasswordIsNotCopied();
    void hiddenPasswordIsNotBroughtBackByUndo();
    void screenReadersDoNotGetThePassword();
    void typedPasswordIsStoredAndNotLogged();
    void refreshNeverStores();
    void callbackMayDeleteTheEditor();
    void textsFollowTheLanguage();
    void rightToLeftMirrorsTheRow();
    void factoryNeedsAnItem();

private:
    QLineEdit *open()
    {
        if (!mFixture->openPage(mItem))
            return nullptr;
        mButton = mFixture->button("Show");
        auto *field = mFixture->child<QLineEdit>();
        field->setFocus();
        field->setCursorPosition(static_cast<int>(field->text().size()));
        return field;
    }
    bool isRevealed() const
    {
        const auto *field = mFixture->child<QLineEdit>();
        return field->echoMode() == QLineEdit::Normal && field->displayText() == field->text();
    }

    std::unique_ptr<TextEditorFixture<ConfWidgetPassword>> mFixture;
    ConfItem *mItem = nullptr;
    QPushButton *mButton = nullptr;
    QString mValue;
};

void tst_ConfWidgetPassword::itemIsSecret()
{
    QVERIFY(mFixture->store()->mConfMetas["User.Token"].flags & ConfStorage::FlagSecret);
}

void tst_ConfWidgetPassword::passwordIsHidden()
{
    const QLineEdit *field = open();
    QVERIFY(field);
    QCOMPARE(field->text(), QString("secret"));
    QCOMPARE(field->echoMode(), QLineEdit::Password);
    QVERIFY(!field->displayText().contains('s'));
    QVERIFY(mButton->isCheckable());
    QVERIFY(!mButton->isChecked());
    QCOMPARE(field->accessibleName(), QString("Token"));
    QCOMPARE(mButton->accessibleName(), QString("Show"));
}

void tst_ConfWidgetPassword::buttonRevealsAndHides()
{
    QVERIFY(open());
    QTest::mouseClick(mButton, Qt::LeftButton);
    QVERIFY(isRevealed());
    QTest::mouseClick(mButton, Qt::LeftButton);
    QVERIFY(!isRevealed());
}

void tst_ConfWidgetPassword::buttonWorksByKeyboard()
{
    QLineEdit *field = open();
    QTest::keyClick(field, Qt::Key_Tab);
    QVERIFY(mButton->hasFocus());
    QTest::keyClick(mButton, Qt::Key_Space);
    QVERIFY(isRevealed());
    QTest::keyClick(mButton, Qt::Key_Backtab);
    QVERIFY(field->hasFocus());
    QVERIFY(isRevealed());
}

void tst_ConfWidgetPassword::passwordIsHiddenWhenTheFocusLeaves_data()
{
    QTest::addColumn<bool>("fromButton");
    QTest::newRow("from the field") << false;
    QTest::newRow("from the button") << true;
}

void tst_ConfWidgetPassword::passwordIsHiddenWhenTheFocusLeaves()
{
    QFETCH(bool, fromButton);
    QLineEdit *field = open();
    QTest::mouseClick(mButton, Qt::LeftButton);
    QVERIFY(mButton->hasFocus());
    if (!fromButton)
        QTest::mouseClick(field, Qt::LeftButton);
    QVERIFY(isRevealed());
    mFixture->other->setFocus();
    QVERIFY(!isRevealed());
    QVERIFY(!mButton->isChecked());
}

void tst_ConfWidgetPassword::passwordIsHiddenWhenTheWindowIsDeactivated()
{
    QVERIFY(open());
    QTest::mouseClick(mButton, Qt::LeftButton);
    QVERIFY(isRevealed());
    QWidget another;
    another.show();
    another.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&another));
    QVERIFY(!isRevealed());
}

void tst_ConfWidgetPassword::contextMenuDoesNotHide()
{
    QLineEdit *field = open();
    QTest::mouseClick(mButton, Qt::LeftButton);
    field->setFocus();
    QFocusEvent menuOpens(QEvent::FocusOut, Qt::PopupFocusReason);
    QApplication::sendEvent(field, &menuOpens);
    QVERIFY(isRevealed());
}

void tst_ConfWidgetPassword::buttonWithoutFocusGivesItToTheField()
{
    const QLineEdit *field = open();
    mFixture->other->setFocus();
    mButton->setFocusPolicy(Qt::TabFocus); // as on macOS
    QTest::mouseClick(mButton, Qt::LeftButton);
    QVERIFY(isRevealed());
    QVERIFY(field->hasFocus());
    mFixture->other->setFocus();
    QVERIFY(!isRevealed());
}

void tst_ConfWidgetPassword::inputMethodsDoNotLearn()
{
    const QLineEdit *field = open();
    const Qt::InputMethodHints needed = Qt::ImhSensitiveData | Qt::ImhNoPredictiveText
                                        | Qt::ImhNoAutoUppercase;
    QCOMPARE(field->inputMethodHints() & needed, needed);
    QVERIFY(field->inputMethodHints() & Qt::ImhHiddenText);
    QTest::mouseClick(mButton, Qt::LeftButton);
    QVERIFY(isRevealed());
    QCOMPARE(field->inputMethodHints() & needed, needed);
}

void tst_ConfWidgetPassword::hiddenPasswordIsNotCopied()
{
    QLineEdit *field = open();
    QGuiApplication::clipboard()->setText("before");
    field->selectAll();
    QTest::keySequence(field, QKeySequence::Copy);
    QTest::keySequence(field, QKeySequence::Cut);
    QCOMPARE(QGuiApplication::clipboard()->text(), QString("before"));
}

void tst_ConfWidgetPassword::hiddenPasswordIsNotBroughtBackByUndo()
{
    QLineEdit *field = open();
    field->selectAll();
    QTest::keyClicks(field, "new");
    mFixture->other->setFocus();
    QCOMPARE(mValue, QString("new"));
    QTest::mouseClick(mButton, Qt::LeftButton);
    QVERIFY(isRevealed());
    QVERIFY(!field->isUndoAvailable());
    QTest::keySequence(field, QKeySequence::Undo);
    QCOMPARE(field->text(), QString("new"));
}

void tst_ConfWidgetPassword::screenReadersDoNotGetThePassword()
{
    QLineEdit *field = open();
    QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(field);
    QVERIFY(spoken->state().passwordEdit);
    for (const auto text :
         {QAccessible::Name, QAccessible::Description, QAccessible::Value, QAccessible::Help})
        QVERIFY2(!spoken->text(text).contains("secret"), qPrintable(spoken->text(text)));
    QVERIFY(!spoken->textInterface()->text(0, 6).contains("secret"));
}

void tst_ConfWidgetPassword::typedPasswordIsStoredAndNotLogged()
{
    QLineEdit *field = open();
    const LogCapture log;
    QTest::keyClicks(field, "X");
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(mValue, QString("secretX"));
    for (const LoggedMessage &message : log.messages())
        QVERIFY(!message.text.contains("secret"));
}

void tst_ConfWidgetPassword::refreshNeverStores()
{
    QVERIFY(open());
    mFixture->editor->loadConf();
    mFixture->editor->retranslateUi();
    QTest::mouseClick(mButton, Qt::LeftButton);
    mFixture->other->setFocus();
    mFixture->editor->commit();
    QCOMPARE(mFixture->changes, 0);
    QVERIFY(mFixture->lastChangeTime().isNull());
}

void tst_ConfWidgetPassword::callbackMayDeleteTheEditor()
{
    QLineEdit *field = open();
    mFixture->deleteEditorInCallback();
    QTest::mouseClick(mButton, Qt::LeftButton);
    QTest::keyClicks(field, "X");
    mFixture->other->setFocus();
    QTRY_VERIFY(!mItem->editor);
    QCOMPARE(mValue, QString("secretX"));
}

void tst_ConfWidgetPassword::textsFollowTheLanguage()
{
    QVERIFY(open());
    const Prefixer german;
    mFixture->editor->retranslateUi();
    QCOMPARE(mButton->text(), QString("de Show"));
    QCOMPARE(mButton->accessibleName(), QString("de Show"));
}

void tst_ConfWidgetPassword::rightToLeftMirrorsTheRow()
{
    const QLineEdit *field = open();
    QVERIFY(mButton->x() > field->x());
    mFixture->parent.setLayoutDirection(Qt::RightToLeft);
    QTRY_VERIFY(mButton->x() < field->x());
}

void tst_ConfWidgetPassword::factoryNeedsAnItem()
{
    QTest::ignoreMessage(QtCriticalMsg, "ConfigItemWidget without an item");
    QVERIFY(!ConfWidgetPassword::CreatConfWidget(nullptr, &mFixture->parent));
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfWidgetPassword>(argc, argv);
}

#include "tst_ConfWidgetPassword.moc"
