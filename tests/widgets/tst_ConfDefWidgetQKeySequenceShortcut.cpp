#include "HotkeyEditorFixture.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <QToolButton>

using MtConf::ConfDefWidgetQKeySequence;

class tst_ConfDefWidgetQKeySequenceShortcut : public HotkeyEditorFixture
{
    Q_OBJECT
private Q_SLOTS:
    void init() { reset(); }
    void cleanup() { clear(); }

    void missingShortcutPropertyIsCreated();
    void withoutShortcutNothingIsStored_data();
    void withoutShortcutNothingIsStored();
    void withoutShortcutAStoredHotkeyShowsNoState();
    void removingTheShortcutPropertyKeepsTheState();

    void shortcutIsNotOwned();
    void shortcutMayBeDeletedWhileItIsShown();
    void deletedShortcutShowsNoState();
    void shortcutMayBeAChildOfTheEditor();
    void shortcutMayBeDeletedAndReplacedWhileItIsShown();
    void shortcutMayBeReplacedWhileItIsShown();

    void callbackMayDeleteTheEditor_data();
    void callbackMayDeleteTheEditor();
    void enabledChangedMayDeleteTheEditor();
    void enabledChangedMayDeleteTheShortcut();
    void registrationMayDeleteTheShortcut();
    void callbackMayDeleteTheShortcut();

    void keyMayBeRemovedFromTheStoreWhileItIsShown();
    void textThatIsNotAKeyIsShownAsFailed_data();
    void textThatIsNotAKeyIsShownAsFailed();
};

void tst_ConfDefWidgetQKeySequenceShortcut::missingShortcutPropertyIsCreated()
{
    makeItem(false);
    {
        const LogCapture log;
        const ConfDefWidgetQKeySequence editor(mItem.get(), nullptr);
        QCOMPARE(log.messages().size(), 0);
    }
    makeEditor();
    QVERIFY(mItem->properties.contains("Shortcut"));
    QVERIFY(!mItem->properties.value("Shortcut").isValid());
    QCOMPARE(mButton->text(), QString(QChar(0xe71b)));
    QCOMPARE(mButton->toolTip(), QString("Not set"));
    QCOMPARE(mButton->styleSheet(),
             QString("QPushButton{  \nmargin:2px;\nborder:0px; font: 23pt QuorviIconfont;\n"
                     "color: rgb(245, 108, 108);  \n}"));
    QVERIFY(!mButton->isEnabled());
}

void tst_ConfDefWidgetQKeySequenceShortcut::withoutShortcutNothingIsStored_data()
{
    QTest::addColumn<QVariant>("entry");
    QTest::newRow("created by the editor") << QVariant();
    QTest::newRow("null") << QVariant::fromValue<QxtGlobalShortcut *>(nullptr);
    QTest::newRow("text") << QVariant("Ctrl+K");
    QTest::newRow("another object") << QVariant::fromValue<QObject *>(this);
}

void tst_ConfDefWidgetQKeySequenceShortcut::withoutShortcutNothingIsStored()
{
    QFETCH(QVariant, entry);
    makeItem(false);
    if (entry.isValid())
        mItem->properties.insert("Shortcut", entry);
    int calls = 0;
    mItem->setConfChangedCallback([&calls](const QString &, const ConfValue *) { ++calls; });
    makeEditor();
    press(Qt::Key_K);
    QCOMPARE(mField->text(), QString("Ctrl+Alt+K"));
    QCOMPARE(mValue, QKeySequence());
    QCOMPARE(calls, 0);
    QCOMPARE(mButton->toolTip(), QString("Not set"));
    mEditor->setHotKeyAgain();
    QCOMPARE(mField->text(), QString("Ctrl+Alt+K"));
    QCOMPARE(changedMark(mEditor), QString("0"));
}

void tst_ConfDefWidgetQKeySequenceShortcut::withoutShortcutAStoredHotkeyShowsNoState()
{
    makeItem(false);
    mValue = QKeySequence("Ctrl+Alt+A");
    makeEditor();
    QCOMPARE(mButton->text(), QString());
    QCOMPARE(mButton->styleSheet(), QString());
    QCOMPARE(mButton->toolTip(), QString());
    QVERIFY(!mButton->isEnabled());
    QTest::mouseClick(mButton, Qt::LeftButton);
    press(Qt::Key_K);
    QCOMPARE(mValue, QKeySequence("Ctrl+Alt+A"));
    mEditor->refreshState();
    QCOMPARE(mButton->text(), QString());
}

void tst_ConfDefWidgetQKeySequenceShortcut::removingTheShortcutPropertyKeepsTheState()
{
    makeItem(true);
    mValue = neverValid();
    makeEditor();
    QCOMPARE(mButton->toolTip(), failedToolTip());
    mItem->properties.remove("Shortcut");
    store(QKeySequence());
    mEditor->refreshState();
    QCOMPARE(mButton->toolTip(), failedToolTip());
    mEditor->onKeySequenceChanged(QKeySequence("F9"));
    mEditor->setHotKeyAgain();
    QCOMPARE(mValue, QKeySequence());
    QVERIFY(!mItem->properties.contains("Shortcut"));
}

void tst_ConfDefWidgetQKeySequenceShortcut::shortcutIsNotOwned()
{
    makeItem(true);
    const QPointer<QxtGlobalShortcut> shortcut = mShortcut.get();
    makeEditor();
    delete mEditor;
    QVERIFY(shortcut);
    shortcut->setEnabled(false);
    QCOMPARE(mItem->properties.value("Shortcut").value<QxtGlobalShortcut *>(), shortcut.data());
}

void tst_ConfDefWidgetQKeySequenceShortcut::shortcutMayBeDeletedWhileItIsShown()
{
    makeItem(true);
    mValue = neverValid();
    makeEditor();
    mShortcut.reset();
    QVERIFY(mItem->properties.contains("Shortcut"));
    QVERIFY(!mItem->properties.value("Shortcut").isValid());
    QTest::mouseClick(mButton, Qt::LeftButton);
    press(Qt::Key_K);
    mEditor->refreshState();
    mEditor->loadConf();
    QCOMPARE(mValue, neverValid());
    // The page is opened again.
    delete mEditor;
    makeEditor();
    QCOMPARE(mField->text(), QString("Ctrl+K, Ctrl+L"));
}

void tst_ConfDefWidgetQKeySequenceShortcut::deletedShortcutShowsNoState()
{
    makeItem(true);
    mValue = neverValid();
    makeEditor();
    QCOMPARE(mButton->toolTip(), failedToolTip());
    mShortcut.reset();
    QCOMPARE(mButton->text(), QString());
    QCOMPARE(mButton->toolTip(), QString());
    QCOMPARE(mButton->accessibleName(), QString());
    QVERIFY(!mButton->isEnabled());
    // Without a stored hotkey the state is shown again.
    store(QKeySequence());
    mEditor->refreshState();
    QCOMPARE(mButton->toolTip(), QString("Not set"));
}

void tst_ConfDefWidgetQKeySequenceShortcut::shortcutMayBeAChildOfTheEditor()
{
    makeItem(false);
    mValue = neverValid();
    for (int visit = 0; visit < 2; ++visit) {
        makeEditor();
        auto *shortcut = new QxtGlobalShortcut(neverValid(), mEditor);
        mItem->properties.insert("Shortcut", QVariant::fromValue(shortcut));
        mEditor->refreshState();
        QCOMPARE(mButton->toolTip(), failedToolTip());
        delete mEditor;
        QVERIFY(!mItem->properties.value("Shortcut").isValid());
    }
}

void tst_ConfDefWidgetQKeySequenceShortcut::shortcutMayBeDeletedAndReplacedWhileItIsShown()
{
    makeItem(true);
    makeEditor();
    mShortcut = std::make_unique<QxtGlobalShortcut>();
    mItem->properties.insert("Shortcut", QVariant::fromValue(mShortcut.get()));
    press(Qt::Key_K);
    QCOMPARE(mValue, QKeySequence("Ctrl+Alt+K"));
    mShortcut->setEnabled(false);
    QCOMPARE(mButton->toolTip(), QString("Disabled."));
    mShortcut.reset();
    press(Qt::Key_L);
    QCOMPARE(mValue, QKeySequence("Ctrl+Alt+K"));
}

void tst_ConfDefWidgetQKeySequenceShortcut::shortcutMayBeReplacedWhileItIsShown()
{
    makeItem(true);
    makeEditor();
    auto other = std::make_unique<QxtGlobalShortcut>();
    mItem->properties.insert("Shortcut", QVariant::fromValue(other.get()));
    other->setEnabled(false);
    press(Qt::Key_K);
    QCOMPARE(other->shortcut(), QKeySequence("Ctrl+Alt+K"));
    QCOMPARE(mShortcut->shortcut(), QKeySequence());
    mShortcut.reset();
    QCOMPARE(mItem->properties.value("Shortcut").value<QxtGlobalShortcut *>(), other.get());
    other.reset();
    QVERIFY(!mItem->properties.value("Shortcut").isValid());
}

void tst_ConfDefWidgetQKeySequenceShortcut::callbackMayDeleteTheEditor_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("a key is pressed") << "press";
    QTest::newRow("the clear button is clicked") << "clear";
    QTest::newRow("the state button is clicked") << "state";
    QTest::newRow("the value is loaded") << "load";
}

void tst_ConfDefWidgetQKeySequenceShortcut::callbackMayDeleteTheEditor()
{
    QFETCH(QString, way);
    makeItem(true);
    mValue = neverValid();
    mShortcut->setShortcut(neverValid());
    makeEditor();
    store(QKeySequence("Ctrl+M, Ctrl+N"));
    mItem->setConfChangedCallback([this](const QString &, const ConfValue *) { delete mEditor; });
    if (way == "press") {
        press(Qt::Key_K);
    } else if (way == "clear") {
        auto *clear = mField->findChild<QToolButton *>();
        QTRY_VERIFY(clear->isVisible());
        QTest::mouseClick(clear, Qt::LeftButton);
    } else if (way == "state") {
        QTest::mouseClick(mButton, Qt::LeftButton);
    } else {
        mEditor->loadConf();
    }
    QVERIFY(!mEditor);
    QVERIFY(!mItem->editor);
    QCoreApplication::processEvents();
}

void tst_ConfDefWidgetQKeySequenceShortcut::enabledChangedMayDeleteTheEditor()
{
    if (!QxtGlobalShortcut::isSupported())
        QSKIP("hotkeys are not registered on this platform");
    makeItem(true);
    connect(mShortcut.get(), &QxtGlobalShortcut::enabledChanged, this, [this] { delete mEditor; });
    makeEditor();
    press(Qt::Key_F9);
    QVERIFY(!mEditor);
    QCOMPARE(mValue, QKeySequence());
}

void tst_ConfDefWidgetQKeySequenceShortcut::enabledChangedMayDeleteTheShortcut()
{
    for (const bool first : {true, false}) {
        reset();
        makeItem(true);
        mValue = neverValid();
        QxtGlobalShortcut *shortcut = mShortcut.release();
        const auto remove = [shortcut] { delete shortcut; };
        if (first)
            connect(shortcut, &QxtGlobalShortcut::enabledChanged, this, remove);
        makeEditor();
        if (!first)
            connect(shortcut, &QxtGlobalShortcut::enabledChanged, this, remove);
        shortcut->setEnabled(false);
        QVERIFY(!mItem->properties.value("Shortcut").isValid());
        QCOMPARE(mButton->toolTip(), QString());
        press(Qt::Key_K);
        QCOMPARE(mValue, neverValid());
        clear();
    }
}

void tst_ConfDefWidgetQKeySequenceShortcut::registrationMayDeleteTheShortcut()
{
    if (!QxtGlobalShortcut::isSupported())
        QSKIP("hotkeys are not registered on this platform");
    makeItem(true);
    makeEditor();
    QxtGlobalShortcut *shortcut = mShortcut.release();
    connect(shortcut, &QxtGlobalShortcut::enabledChanged, this, [shortcut] { delete shortcut; });
    press(Qt::Key_F9);
    QVERIFY(!mItem->properties.value("Shortcut").isValid());
    QCOMPARE(mValue, QKeySequence("Ctrl+Alt+F9"));
    QCOMPARE(mButton->toolTip(), QString());
    QVERIFY(!mButton->isEnabled());
}

void tst_ConfDefWidgetQKeySequenceShortcut::callbackMayDeleteTheShortcut()
{
    makeItem(true);
    makeEditor();
    mItem->setConfChangedCallback(
        [this](const QString &, const ConfValue *) { mShortcut.reset(); });
    press(Qt::Key_K);
    QCOMPARE(mValue, QKeySequence("Ctrl+Alt+K"));
    QCOMPARE(changedMark(mEditor), QString("1"));
}

void tst_ConfDefWidgetQKeySequenceShortcut::keyMayBeRemovedFromTheStoreWhileItIsShown()
{
    makeItem(true);
    mValue = neverValid();
    mShortcut->setShortcut(neverValid());
    makeEditor();
    LogCapture log;
    ConfStorage::instance()->mConfValues.clear();
    ConfStorage::instance()->mConfMetas.clear();
    mEditor->refreshState();
    QCOMPARE(mButton->toolTip(), QString("Not set"));
    press(Qt::Key_K);
    QCOMPARE(mShortcut->shortcut(), QKeySequence("Ctrl+Alt+K"));
    mEditor->loadConf();
    QCOMPARE(mField->text(), QString());
    mEditor->setHotKeyAgain();
    QCOMPARE(mValue, neverValid());
    QVERIFY(log.texts(QtWarningMsg).size() + log.texts(QtCriticalMsg).size() > 0);
}

void tst_ConfDefWidgetQKeySequenceShortcut::textThatIsNotAKeyIsShownAsFailed_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("words") << "Ctrl and some key";
    QTest::newRow("no key") << "Ctrl+";
    QTest::newRow("unknown key") << "Ctrl+Nonsense";
    QTest::newRow("blanks") << "   ";
    QTest::newRow("several unknown") << "Foo, Bar";
}

void tst_ConfDefWidgetQKeySequenceShortcut::textThatIsNotAKeyIsShownAsFailed()
{
    QFETCH(QString, text);
    makeItem(true);
    ConfStorage::instance()->loadValueFromJson(mItem->getFullName(), text);
    QVERIFY(!mValue.isEmpty());
    QVERIFY(!mShortcut->setShortcut(mValue));
    makeEditor();
    QVERIFY(mField->text().remove(", ").isEmpty());
    QCOMPARE(mButton->toolTip(), failedToolTip());
    // It can be cleared, and another hotkey set.
    auto *clear = mField->findChild<QToolButton *>();
    QTRY_VERIFY(clear->isVisible());
    QTest::mouseClick(clear, Qt::LeftButton);
    QCOMPARE(mValue, QKeySequence());
    QCOMPARE(mButton->toolTip(), QString("Not set"));
    press(Qt::Key_F9);
    QCOMPARE(mValue, QKeySequence("Ctrl+Alt+F9"));
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfDefWidgetQKeySequenceShortcut>(argc, argv);
}

#include "tst_ConfDefWidgetQKeySequenceShortcut.moc"
