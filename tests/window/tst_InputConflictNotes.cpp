#include "InputConflictsFixture.h"
#include "support/TableTranslator.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/inputs/InputRegistry.h>

#include <QJsonObject>

#include <functional>

Q_DECLARE_METATYPE(std::function<void()>)

namespace {

int combined(Qt::KeyboardModifiers modifiers, Qt::Key key)
{
    return static_cast<int>(modifiers) | static_cast<int>(key);
}

} // namespace

/// What rows and the question say about keys and gestures that are used twice.
class tst_InputConflictNotes : public QObject, public InputConflictsFixture
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase_data() { addLooks(); }
    void init() { create(); }
    void cleanup() { destroy(); }

    void bothRowsTellTheConflict();
    void rowsFollowTheStore_data();
    void rowsFollowTheStore();
    void rowsFollowTheActions();
    void typedKeysAreAdvisedAgainst_data();
    void typedKeysAreAdvisedAgainst();
    void questionFollowsTheLanguage();
    void questionIsToldToScreenReaders();
    void narrowWindowHasTheButtonsBelowEachOther();
};

void tst_InputConflictNotes::bothRowsTellTheConflict()
{
    mSaveKeys = QKeySequence("Ctrl+K");
    mFarKeys = QKeySequence("Ctrl+L");
    mZoomValue = 8;
    open();
    QCOMPARE(notes(),
             (QStringList{"Also used by: Area", "Also used by: Far", "Also used by: Save"}));
    WindowFixture::window()->switchToView("Mouse");
    QVERIFY(notes().isEmpty());
    QCOMPARE(mPan->editor->status().text, QString("Conflict with Zoom"));
    QCOMPARE(mZoom->editor->status().text, QString("Conflict with Pan"));
    QCOMPARE(mPan->editor->status().icon->toolTip(), QString("Conflict with Zoom"));
}

void tst_InputConflictNotes::rowsFollowTheStore_data()
{
    QTest::addColumn<std::function<void()>>("change");
    QTest::addColumn<bool>("isConflict");
    ConfStorage *const store = ConfStorage::instance();
    QTest::newRow("set") << std::function<void()>([store] {
        store->set("Keys.Save", QKeySequence("Ctrl+K"));
    }) << true;
    QTest::newRow("load") << std::function<void()>([store] {
        const QJsonObject entry{{"v", "Ctrl+K"}, {"t", QDateTime::currentSecsSinceEpoch() + 5}};
        store->loadConf(QJsonObject{{"Keys.Save", entry}}, ConfStorage::LoadShared);
    }) << true;
    QTest::newRow("restored") << std::function<void()>([store] {
        store->set("Keys.Save", QKeySequence("Ctrl+K"));
        store->setToDefault("Keys.Save", true);
    }) << false;
}

void tst_InputConflictNotes::rowsFollowTheStore()
{
    QFETCH(const std::function<void()>, change);
    QFETCH(const bool, isConflict);
    open();
    QVERIFY(notes().isEmpty());
    change();
    const QStringList both{"Also used by: Area", "Also used by: Save"};
    QTRY_COMPARE(notes(), isConflict ? both : QStringList());
    mFixture->store()->set("Keys.Area", QKeySequence("Ctrl+M"));
    QTRY_COMPARE(notes(), QStringList());
}

void tst_InputConflictNotes::rowsFollowTheActions()
{
    auto *const action = new QAction("Open", mHost.get());
    mHost->addAction(action);
    (new MtConf::InputRegistry(mFixture->manager.get()))->addActions(mHost.get());
    open();
    action->setShortcut(QKeySequence("Ctrl+K"));
    QTRY_COMPARE(notes(), QStringList{"Also used by: Open"});
    delete action;
    QTRY_COMPARE(notes(), QStringList());
}

void tst_InputConflictNotes::typedKeysAreAdvisedAgainst_data()
{
    QTest::addColumn<bool>("isGlobal");
    QTest::addColumn<int>("keys");
    QTest::addColumn<bool>("isAdvisedAgainst");
    QTest::newRow("Shift and a letter") << true << combined(Qt::ShiftModifier, Qt::Key_E) << true;
    QTest::newRow("a letter") << true << int(Qt::Key_E) << true;
    QTest::newRow("a letter of another script") << true << 0x0436 << true;
    QTest::newRow("copy") << true << combined(Qt::ControlModifier, Qt::Key_C) << true;
    QTest::newRow("paste") << true << combined(Qt::ControlModifier, Qt::Key_V) << true;
    QTest::newRow("Shift and copy")
        << true << combined(Qt::ControlModifier | Qt::ShiftModifier, Qt::Key_C) << false;
    QTest::newRow("other letter") << true << combined(Qt::ControlModifier, Qt::Key_E) << false;
    QTest::newRow("function key") << true << int(Qt::Key_F5) << false;
    QTest::newRow("Shift and a function key")
        << true << combined(Qt::ShiftModifier, Qt::Key_F5) << false;
    QTest::newRow("quit in the program")
        << false << combined(Qt::ControlModifier, Qt::Key_Q) << false;
    QTest::newRow("Shift and a letter in the program")
        << false << combined(Qt::ShiftModifier, Qt::Key_E) << true;
}

void tst_InputConflictNotes::typedKeysAreAdvisedAgainst()
{
    QFETCH(const bool, isGlobal);
    QFETCH(const int, keys);
    QFETCH(const bool, isAdvisedAgainst);
    open();
    KeySequenceEdit *const field = recorder(isGlobal ? mArea : mSave);
    field->setFocus();
    field->setKeySequence(QKeySequence(keys));
    const QString text = QKeySequence(keys).toString() + " is needed for typing and editing.";
    QCoreApplication::processEvents();
    QCOMPARE(notes(), isAdvisedAgainst ? QStringList{text} : QStringList());
    QCOMPARE(isGlobal ? mAreaKeys : mSaveKeys, QKeySequence(keys)); // not refused
}

void tst_InputConflictNotes::questionFollowsTheLanguage()
{
    mSaveKeys = QKeySequence("Ctrl+L");
    open();
    record(mWindow, Qt::Key_K);
    const TableTranslator german({{"%1 is used by: %2", "%1 wird verwendet von: %2"},
                                  {"Also used by: %1", "Auch verwendet von: %1"},
                                  {"Replace", "Ersetzen"},
                                  {"Area", "Bereich"},
                                  {"Save", "Sichern"},
                                  {"Window", "Fenster"}});
    Q_EMIT mFixture->manager->sigLanguageChange();
    QCOMPARE(question(), QString("Ctrl+K wird verwendet von: Bereich"));
    QVERIFY(button("Ersetzen"));
    QCOMPARE(notes(), (QStringList{"Auch verwendet von: Fenster", "Auch verwendet von: Sichern"}));
}

void tst_InputConflictNotes::questionIsToldToScreenReaders()
{
    open();
    record(mWindow, Qt::Key_K);
    QCOMPARE(offer()->accessibleName(), QString("Ctrl+K is used by: Area"));
    QCOMPARE(button(sReplace)->accessibleDescription(), QString("Ctrl+K is used by: Area"));
}

void tst_InputConflictNotes::narrowWindowHasTheButtonsBelowEachOther()
{
    open();
    record(mWindow, Qt::Key_K);
    QCoreApplication::processEvents();
    QTRY_COMPARE(button(sReplace)->y(), button(sCancel)->y());
    for (QPushButton *button : offer()->findChildren<QPushButton *>())
        button->setText(button->text().repeated(12));
    offer()->resize(offer()->width() - 1, offer()->height());
    const QString cancel = QString(sCancel).repeated(12);
    QTRY_VERIFY(button(cancel)->y() > button(QString(sReplace).repeated(12))->y());
    QCOMPARE(button(cancel)->x(), button(QString(sReplace).repeated(12))->x());
}

int main(int argc, char **argv)
{
    return runTest<tst_InputConflictNotes>(argc, argv);
}

#include "tst_InputConflictNotes.moc"
