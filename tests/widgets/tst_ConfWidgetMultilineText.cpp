#include "TextEditorFixture.h"
#include "support/TestMain.h"
#include "support/WheelTurn.h"

#include <MaltoConfiguration/widgets/ConfWidgetMultilineText.h>

#include <QPlainTextEdit>
#include <QScrollArea>
#include <QScrollBar>

using MtConf::ConfItem;
using MtConf::ConfWidgetMultilineText;

class tst_ConfWidgetMultilineText : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        mFixture = std::make_unique<TextEditorFixture<ConfWidgetMultilineText>>();
        mValue = "one\ntwo";
        mItem = mFixture->manager.addConfMultilineText("Notes", &mValue, "User", "Notes");
    }
    void cleanup() { mFixture.reset(); }

    void storedTextIsShown();
    void heightIsFourLinesOfEachFont_data();
    void heightIsFourLinesOfEachFont();
    void returnAddsALine();
    void shiftReturnAddsALineToo();
    void tabLeavesAndStores();
    void pauseStores();
    void specialSpacesAreKept();
    void refreshKeepsTheCursor();
    void refreshKeepsWhatTheUserIsTyping();
    void refreshNeverStores();
    void refusedTextStaysAndIsExplained();
    void callbackMayDeleteTheEditor_data();
    void callbackMayDeleteTheEditor();
    void deletedEditorStoresNothing();
    void wheelScrollsTheFieldOnlyWithFocus();
    void textsFollowTheLanguage();
    void factoryNeedsAnItem();

private:
    QPlainTextEdit *open()
    {
        if (!mFixture->openPage(mItem))
            return nullptr;
        auto *field = mFixture->child<QPlainTextEdit>();
        field->setFocus();
        field->moveCursor(QTextCursor::End);
        return field;
    }

    std::unique_ptr<TextEditorFixture<ConfWidgetMultilineText>> mFixture;
    ConfItem *mItem = nullptr;
    QString mValue;
};

void tst_ConfWidgetMultilineText::storedTextIsShown()
{
    mItem->setPlaceholder("Nothing");
    const QPlainTextEdit *field = open();
    QVERIFY(field);
    QCOMPARE(field->toPlainText(), QString("one\ntwo"));
    QCOMPARE(field->placeholderText(), QString("Nothing"));
    QCOMPARE(field->accessibleName(), QString("Notes"));
    QCOMPARE(changedMark(mFixture->editor), QString("0"));
}

void tst_ConfWidgetMultilineText::heightIsFourLinesOfEachFont_data()
{
    QTest::addColumn<int>("pixels");
    QTest::addColumn<QString>("sheet");
    QTest::newRow("small") << 10 << QString();
    QTest::newRow("large") << 40 << QString();
    QTest::newRow("with a style sheet")
        << 20 << QString("QPlainTextEdit { padding: 9px; border: 3px solid red; }");
}

void tst_ConfWidgetMultilineText::heightIsFourLinesOfEachFont()
{
    QFETCH(int, pixels);
    QFETCH(QString, sheet);
    QPlainTextEdit *field = open();
    QFont font = field->font();
    font.setPixelSize(pixels);
    field->setFont(font);
    mFixture->parent.setStyleSheet(sheet);
    mFixture->parent.adjustSize();
    field->setPlainText("1\n2\n3\n4");
    QTRY_COMPARE(field->verticalScrollBar()->maximum(), 0);
    field->setPlainText("1\n2\n3\n4\n5");
    QTRY_COMPARE(field->verticalScrollBar()->maximum(), 1);
}

void tst_ConfWidgetMultilineText::returnAddsALine()
{
    QPlainTextEdit *field = open();
    QTest::keyClick(field, Qt::Key_Return);
    QTest::keyClicks(field, "three");
    QCOMPARE(mValue, QString("one\ntwo"));
    mFixture->editor->commit();
    QCOMPARE(mValue, QString("one\ntwo\nthree"));
    QCOMPARE(changedMark(mFixture->editor), QString("1"));
}

void tst_ConfWidgetMultilineText::shiftReturnAddsALineToo()
{
    QPlainTextEdit *field = open();
    QTest::keyClick(field, Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClicks(field, "3");
    mFixture->editor->commit();
    QCOMPARE(mValue, QString("one\ntwo\n3"));
}

void tst_ConfWidgetMultilineText::tabLeavesAndStores()
{
    QPlainTextEdit *field = open();
    QTest::keyClicks(field, "!");
    QTest::keyClick(field, Qt::Key_Tab);
    QVERIFY(!field->hasFocus());
    QCOMPARE(mValue, QString("one\ntwo!"));
}

void tst_ConfWidgetMultilineText::pauseStores()
{
    QPlainTextEdit *field = open();
    QTest::keyClicks(field, "!");
    QCOMPARE(mValue, QString("one\ntwo"));
    QTRY_COMPARE(mValue, QString("one\ntwo!"));
    QVERIFY(field->hasFocus());
}

void tst_ConfWidgetMultilineText::specialSpacesAreKept()
{
    mValue = QString("10") + QChar(QChar::Nbsp) + "km";
    QPlainTextEdit *field = open();
    QTest::keyClicks(field, "!");
    mFixture->editor->commit();
    QCOMPARE(mValue, QString("10") + QChar(QChar::Nbsp) + "km!");
}

void tst_ConfWidgetMultilineText::refreshKeepsTheCursor()
{
    QPlainTextEdit *field = open();
    mFixture->store()->set<QString>("User.Notes", "1");
    mFixture->editor->loadConf();
    QCOMPARE(field->toPlainText(), QString("1"));
    QCOMPARE(field->textCursor().position(), 1);
    mFixture->store()->set<QString>("User.Notes", "123");
    mFixture->editor->loadConf();
    QCOMPARE(field->textCursor().position(), 1);
    QCOMPARE(changedMark(mFixture->editor), QString("1"));
}

void tst_ConfWidgetMultilineText::refreshKeepsWhatTheUserIsTyping()
{
    QPlainTextEdit *field = open();
    QTest::keyClicks(field, "!");
    mFixture->store()->set<QString>("User.Notes", "other");
    mFixture->editor->loadConf();
    QCOMPARE(field->toPlainText(), QString("one\ntwo!"));
    mFixture->other->setFocus();
    QCOMPARE(mValue, QString("one\ntwo!"));
}

void tst_ConfWidgetMultilineText::refreshNeverStores()
{
    QVERIFY(open());
    mFixture->store()->set<QString>("User.Notes", "a\r\nb");
    mFixture->store()->mChanged = false;
    mFixture->changes = 0;
    mFixture->editor->loadConf();
    mFixture->editor->retranslateUi();
    mFixture->editor->commit();
    mFixture->other->setFocus();
    QCOMPARE(mValue, QString("a\r\nb"));
    QVERIFY(!mFixture->store()->mChanged);
    QCOMPARE(mFixture->changes, 0);
}

void tst_ConfWidgetMultilineText::refusedTextStaysAndIsExplained()
{
    mItem->setValidator([](const QJsonValue &) { return QString("No."); });
    QPlainTextEdit *field = open();
    QTest::keyClicks(field, "!");
    mFixture->other->setFocus();
    QCOMPARE(mFixture->shownMessage(), QString("No."));
    QCOMPARE(field->toPlainText(), QString("one\ntwo!"));
    QCOMPARE(mValue, QString("one\ntwo"));
    mFixture->editor->loadConf();
    QCOMPARE(mFixture->shownMessage(), QString());
    QCOMPARE(field->toPlainText(), QString("one\ntwo"));
}

void tst_ConfWidgetMultilineText::callbackMayDeleteTheEditor_data()
{
    QTest::addColumn<bool>("byFocus");
    QTest::newRow("focus") << true;
    QTest::newRow("pause") << false;
}

void tst_ConfWidgetMultilineText::callbackMayDeleteTheEditor()
{
    QFETCH(bool, byFocus);
    QPlainTextEdit *field = open();
    mFixture->deleteEditorInCallback();
    QTest::keyClicks(field, "!");
    if (byFocus)
        QTest::keyClick(field, Qt::Key_Tab);
    QTRY_VERIFY(!mItem->editor);
    QCOMPARE(mValue, QString("one\ntwo!"));
}

void tst_ConfWidgetMultilineText::deletedEditorStoresNothing()
{
    QTest::keyClicks(open(), "!");
    delete mFixture->editor.data(); // the field loses the focus
    QCOMPARE(mValue, QString("one\ntwo"));
}

void tst_ConfWidgetMultilineText::wheelScrollsTheFieldOnlyWithFocus()
{
    mValue = "1\n2\n3\n4\n5\n6";
    QPlainTextEdit *field = open();
    QScrollArea area;
    QWidget *page = mFixture->editor.data();
    page->setMinimumHeight(2000);
    area.setWidget(page);
    area.resize(300, 200);
    area.show();
    area.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&area));
    area.setFocus();
    QScrollBar *bar = field->verticalScrollBar();
    bar->setValue(0);
    turnWheelOver(field->viewport());
    QCOMPARE(bar->value(), 0);
    QVERIFY(!field->hasFocus());
    QVERIFY(area.verticalScrollBar()->value() > 0);
    area.verticalScrollBar()->setValue(0);
    field->setFocus();
    turnWheelOver(field->viewport());
    QVERIFY(bar->value() > 0);
    QCOMPARE(area.verticalScrollBar()->value(), 0);
    bar->setValue(bar->maximum());
    turnWheelOver(field->viewport()); // the field is at its end
    QVERIFY(area.verticalScrollBar()->value() > 0);
}

void tst_ConfWidgetMultilineText::textsFollowTheLanguage()
{
    mItem->setPlaceholder("Nothing");
    const QPlainTextEdit *field = open();
    const Prefixer german;
    mFixture->editor->retranslateUi();
    QCOMPARE(field->placeholderText(), QString("de Nothing"));
    QCOMPARE(qobject_cast<QLabel *>(mFixture->editor->label())->text(), QString("de Notes"));
}

void tst_ConfWidgetMultilineText::factoryNeedsAnItem()
{
    QTest::ignoreMessage(QtCriticalMsg, "ConfigItemWidget without an item");
    QVERIFY(!ConfWidgetMultilineText::CreatConfWidget(nullptr, &mFixture->parent));
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfWidgetMultilineText>(argc, argv);
}

#include "tst_ConfWidgetMultilineText.moc"
