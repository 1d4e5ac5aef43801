#include "InputFixture.h"

#include "support/TestMain.h"

#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>
#include <QSignalSpy>

using MtConf::InputRegistry;
using MtConf::InputScope;
using MtConf::InputUse;

/// The menus, actions and shortcuts of a host in the registry.
class tst_InputRegistryActions : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        mFixture = std::make_unique<InputFixture>();
        mWindow = std::make_unique<QMainWindow>();
        mFixture->addHotkey("Hotkey");
        mFixture->addShortcut("Shortcut");
    }
    void cleanup()
    {
        mFixture.reset();
        mWindow.reset();
    }

    void everythingInAWindowIsFound_data();
    void everythingInAWindowIsFound();
    void useTellsTheActionAndItsWindow();
    void nameIsTheTextWithoutMarks_data();
    void nameIsTheTextWithoutMarks();
    void whatIsAddedLaterIsFound_data();
    void whatIsAddedLaterIsFound();
    void changedKeysAreTold();
    void otherChangesAreNotTold();
    void deletedActionUsesNothing();
    void deletedWindowUsesNothing();
    void hotkeyMeetsEveryWindow();
    void placesMeet_data();
    void placesMeet();
    void shortcutSettingCountsOnce();
    void shortcutSettingWorksInTheWindowOfItsAction();
    void shortcutSettingOfTheProgramWorksEverywhere();
    void actionThatIsBoundLaterCountsOnce();
    void actionInTwoWindowsWorksInBoth();
    void nullWidgetIsIgnored();
    void alternativeShortcutsCount();

private:
    QAction *addAction(const QString &text, const QString &keys, QWidget *widget = nullptr)
    {
        auto *action = new QAction(text, mWindow.get());
        action->setShortcut(QKeySequence(keys));
        (widget ? widget : mWindow.get())->addAction(action);
        return action;
    }
    QStringList uses(const QString &keys = "Ctrl+K") const
    {
        return InputFixture::names(mFixture->registry->usesOf(QKeySequence(keys)));
    }

    std::unique_ptr<InputFixture> mFixture;
    std::unique_ptr<QMainWindow> mWindow;
};

void tst_InputRegistryActions::everythingInAWindowIsFound_data()
{
    QTest::addColumn<QString>("place");
    for (const char *place : {"window", "child", "menu", "submenu", "menu without a parent",
                              "shortcut", "shortcut of a child"})
        QTest::newRow(place) << place;
}

void tst_InputRegistryActions::everythingInAWindowIsFound()
{
    QFETCH(const QString, place);
    auto *child = new QWidget(mWindow.get());
    QMenu orphan("Orphan");
    QMenu *const menu = mWindow->menuBar()->addMenu("Menu");
    if (place == "window") {
        addAction("Found", "Ctrl+K");
    } else if (place == "child") {
        addAction("Found", "Ctrl+K", child);
    } else if (place == "menu") {
        addAction("Found", "Ctrl+K", menu);
    } else if (place == "submenu") {
        addAction("Found", "Ctrl+K", menu->addMenu("Submenu"));
    } else if (place == "menu without a parent") {
        mWindow->menuBar()->addMenu(&orphan);
        addAction("Found", "Ctrl+K", &orphan);
    } else {
        auto *shortcut = new QShortcut(QKeySequence("Ctrl+K"),
                                       place == "shortcut" ? mWindow.get() : child);
        shortcut->setWhatsThis("Found");
    }
    mFixture->registry->addActions(mWindow.get());
    const QList<InputUse> found = mFixture->registry->usesOf(QKeySequence("Ctrl+K"));
    QCOMPARE(InputFixture::names(found), QStringList{"Found"});
    QCOMPARE(found.first().scope, InputScope::Window);
    QCOMPARE(found.first().widget.data(), mWindow.get());
}

void tst_InputRegistryActions::useTellsTheActionAndItsWindow()
{
    QAction *const inWindow = addAction("Window", "Ctrl+K");
    QAction *const inProgram = addAction("Program", "Ctrl+L");
    inProgram->setShortcutContext(Qt::ApplicationShortcut);
    auto *child = new QWidget(mWindow.get());
    QAction *const inChild = addAction("Child", "Ctrl+M", child);
    inChild->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    mFixture->registry->addActions(mWindow.get());
    const InputUse window = mFixture->registry->usesOf(QKeySequence("Ctrl+K")).value(0);
    QCOMPARE(window.object.data(), inWindow);
    QCOMPARE(window.widget.data(), mWindow.get());
    QCOMPARE(window.scope, InputScope::Window);
    QVERIFY(window.key.isEmpty());
    const InputUse program = mFixture->registry->usesOf(QKeySequence("Ctrl+L")).value(0);
    QCOMPARE(program.object.data(), inProgram);
    QCOMPARE(program.scope, InputScope::Program);
    QVERIFY(!program.widget);
    const InputUse widget = mFixture->registry->usesOf(QKeySequence("Ctrl+M")).value(0);
    QCOMPARE(widget.scope, InputScope::Window);
    QCOMPARE(widget.widget.data(), child);
}

void tst_InputRegistryActions::nameIsTheTextWithoutMarks_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << "Save"
                           << "Save";
    QTest::newRow("mnemonic") << "&Save"
                              << "Save";
    QTest::newRow("ampersand") << "Cut && paste"
                               << "Cut & paste";
    QTest::newRow("dots") << "Open..."
                          << "Open";
    QTest::newRow("ellipsis") << QString::fromUtf8("&Open…") << "Open";
    QTest::newRow("none") << ""
                          << "another shortcut of this program";
}

void tst_InputRegistryActions::nameIsTheTextWithoutMarks()
{
    QFETCH(const QString, text);
    QFETCH(const QString, name);
    addAction(text, "Ctrl+K");
    mFixture->registry->addActions(mWindow.get());
    QCOMPARE(uses(), QStringList{name});
}

void tst_InputRegistryActions::whatIsAddedLaterIsFound_data()
{
    QTest::addColumn<QString>("what");
    for (const char *what : {"action", "menu", "menu of an action", "widget", "shortcut", "keys"})
        QTest::newRow(what) << what;
}

void tst_InputRegistryActions::whatIsAddedLaterIsFound()
{
    QFETCH(const QString, what);
    QMenu menu; // not a child of the window
    QAction *const known = addAction("Found", "");
    mFixture->registry->addActions(mWindow.get());
    QVERIFY(uses().isEmpty());
    InputFixture::setKeys("Hotkey", "Ctrl+K");
    QCoreApplication::processEvents();
    QSignalSpy spy(mFixture->registry, &InputRegistry::usesChanged);
    if (what == "action") {
        addAction("Found", "Ctrl+K");
    } else if (what == "menu") {
        mWindow->menuBar()->addMenu("Menu")->addAction("Found")->setShortcut(
            QKeySequence("Ctrl+K"));
    } else if (what == "menu of an action") {
        menu.addAction("Found")->setShortcut(QKeySequence("Ctrl+K"));
        known->setMenu(&menu);
    } else if (what == "widget") {
        addAction("Found", "Ctrl+K", new QWidget(mWindow.get()));
    } else if (what == "shortcut") {
        (new QShortcut(QKeySequence("Ctrl+K"), mWindow.get()))->setWhatsThis("Found");
    } else {
        known->setShortcut(QKeySequence("Ctrl+K"));
    }
    QTRY_COMPARE(spy.size(), 1);
    QVERIFY(spy.first().at(0).toStringList().contains("Keys.Hotkey"));
    QCOMPARE(mFixture->conflicts("Keys.Hotkey"), QStringList{"Found"});
}

void tst_InputRegistryActions::changedKeysAreTold()
{
    QAction *const action = addAction("Action", "Ctrl+K");
    auto *const shortcut = new QShortcut(QKeySequence("Ctrl+L"), mWindow.get());
    shortcut->setWhatsThis("Shortcut");
    mFixture->registry->addActions(mWindow.get());
    InputFixture::setKeys("Hotkey", "Ctrl+K");
    QCOMPARE(mFixture->conflicts("Keys.Hotkey"), QStringList{"Action"});
    QCoreApplication::processEvents();
    QSignalSpy spy(mFixture->registry, &InputRegistry::usesChanged);
    action->setShortcut(QKeySequence("Ctrl+M"));
    QVERIFY(mFixture->conflicts("Keys.Hotkey").isEmpty()); // at once
    QTRY_COMPARE(spy.size(), 1);
    shortcut->setKey(QKeySequence("Ctrl+K")); // tells nothing, but is known
    QCOMPARE(mFixture->conflicts("Keys.Hotkey"), QStringList{"Shortcut"});
}

void tst_InputRegistryActions::otherChangesAreNotTold()
{
    QAction *const action = addAction("Action", "Ctrl+K");
    mFixture->registry->addActions(mWindow.get());
    InputFixture::setKeys("Hotkey", "Ctrl+K");
    uses();
    QCoreApplication::processEvents();
    QSignalSpy spy(mFixture->registry, &InputRegistry::usesChanged);
    action->setText("Other");
    action->setEnabled(false);
    new QWidget(mWindow.get());
    QCoreApplication::processEvents();
    QCOMPARE(spy.size(), 0);
    QCOMPARE(uses(), (QStringList{"Hotkey", "Other"}));
}

void tst_InputRegistryActions::deletedActionUsesNothing()
{
    const QAction *const action = addAction("Action", "Ctrl+K");
    const auto *const shortcut = new QShortcut(QKeySequence("Ctrl+K"), mWindow.get());
    mFixture->registry->addActions(mWindow.get());
    InputFixture::setKeys("Hotkey", "Ctrl+K");
    QCOMPARE(mFixture->conflicts("Keys.Hotkey").size(), 2);
    QCoreApplication::processEvents();
    QSignalSpy spy(mFixture->registry, &InputRegistry::usesChanged);
    delete action;
    delete shortcut;
    QVERIFY(mFixture->conflicts("Keys.Hotkey").isEmpty());
    QTRY_COMPARE(spy.size(), 1);
}

void tst_InputRegistryActions::deletedWindowUsesNothing()
{
    QObject owner;
    QAction action("Action", &owner); // which outlives the window
    action.setShortcut(QKeySequence("Ctrl+K"));
    mWindow->addAction(&action);
    mFixture->registry->addActions(mWindow.get());
    InputFixture::setKeys("Hotkey", "Ctrl+K");
    QCOMPARE(mFixture->conflicts("Keys.Hotkey"), QStringList{"Action"});
    QCoreApplication::processEvents();
    QSignalSpy spy(mFixture->registry, &InputRegistry::usesChanged);
    mWindow.reset();
    QTRY_COMPARE(spy.size(), 1);
    QVERIFY(mFixture->conflicts("Keys.Hotkey").isEmpty());
}

void tst_InputRegistryActions::hotkeyMeetsEveryWindow()
{
    QMainWindow other;
    addAction("First", "Ctrl+K");
    auto *second = new QAction("Second", &other);
    second->setShortcut(QKeySequence("Ctrl+K, Ctrl+C"));
    other.addAction(second);
    mFixture->registry->addActions(mWindow.get());
    mFixture->registry->addActions(&other);
    InputFixture::setKeys("Hotkey", "Ctrl+K");
    QCOMPARE(mFixture->conflicts("Keys.Hotkey"), (QStringList{"First", "Second"}));
}

void tst_InputRegistryActions::placesMeet_data()
{
    QTest::addColumn<QString>("place");
    QTest::addColumn<Qt::ShortcutContext>("context");
    QTest::addColumn<Qt::ShortcutContext>("settingContext");
    QTest::addColumn<bool>("doMeet");
    // The action of the setting is in a child of the window.
    QTest::newRow("same window") << "window" << Qt::WindowShortcut << Qt::WindowShortcut << true;
    QTest::newRow("other window") << "other" << Qt::WindowShortcut << Qt::WindowShortcut << false;
    QTest::newRow("a dialog of the window")
        << "dialog" << Qt::WindowShortcut << Qt::WindowShortcut << false;
    QTest::newRow("all windows") << "other" << Qt::ApplicationShortcut << Qt::WindowShortcut
                                 << true;
    QTest::newRow("setting in all windows")
        << "other" << Qt::WindowShortcut << Qt::ApplicationShortcut << true;
    QTest::newRow("widget in the window")
        << "window" << Qt::WindowShortcut << Qt::WidgetWithChildrenShortcut << true;
    QTest::newRow("same widget") << "child" << Qt::WidgetShortcut << Qt::WidgetWithChildrenShortcut
                                 << true;
    QTest::newRow("sibling") << "sibling" << Qt::WidgetShortcut << Qt::WidgetShortcut << false;
}

void tst_InputRegistryActions::placesMeet()
{
    QFETCH(const QString, place);
    QFETCH(const Qt::ShortcutContext, context);
    QFETCH(const Qt::ShortcutContext, settingContext);
    QFETCH(const bool, doMeet);
    QMainWindow other;
    auto *const child = new QWidget(mWindow.get());
    auto *const sibling = new QWidget(mWindow.get());
    auto *const dialog = new QWidget(mWindow.get(), Qt::Dialog);
    const QMap<QString, QWidget *> places{{"window", mWindow.get()},
                                          {"child", child},
                                          {"sibling", sibling},
                                          {"dialog", dialog},
                                          {"other", &other}};
    addAction("Action", "Ctrl+K", places.value(place))->setShortcutContext(context);
    QAction *const bound = addAction("Bound", "", child);
    bound->setShortcutContext(settingContext);
    mFixture->addShortcut("Setting", "Ctrl+K", bound);
    mFixture->registry->addActions(mWindow.get());
    mFixture->registry->addActions(&other);
    QCOMPARE(mFixture->conflicts("Keys.Setting"), doMeet ? QStringList{"Action"} : QStringList());
}

void tst_InputRegistryActions::shortcutSettingCountsOnce()
{
    QAction *const action = addAction("Action", "");
    mFixture->addShortcut("Setting", "Ctrl+K", action);
    QShortcut shortcut(mWindow.get());
    QKeySequence keys("Ctrl+L");
    mFixture->manager->addConfShortcut("Other", &keys, &shortcut, "Keys", "Other");
    mFixture->registry->addActions(mWindow.get());
    QCOMPARE(uses("Ctrl+K"), QStringList{"Setting"});
    QCOMPARE(uses("Ctrl+L"), QStringList{"Other"});
    InputFixture::store()->set("Keys.Other", QKeySequence("Ctrl+K"));
    QCOMPARE(mFixture->conflicts("Keys.Setting"), QStringList{"Other"});
    QVERIFY(uses("Ctrl+L").isEmpty());
    mFixture->manager.reset(); // before the keys
}

void tst_InputRegistryActions::shortcutSettingWorksInTheWindowOfItsAction()
{
    QMainWindow other;
    QAction *const here = addAction("Here", "");
    QAction there("There");
    other.addAction(&there);
    mFixture->addShortcut("A", "Ctrl+K", here);
    mFixture->addShortcut("B", "Ctrl+K", &there);
    QCOMPARE(mFixture->conflicts("Keys.A"), QStringList{"B"}); // nobody knows their windows
    mFixture->registry->addActions(mWindow.get());
    QCOMPARE(mFixture->conflicts("Keys.A"), QStringList{"B"});
    mFixture->registry->addActions(&other);
    QVERIFY(mFixture->conflicts("Keys.A").isEmpty());
    const InputUse use = mFixture->registry->usesOf(QKeySequence("Ctrl+K")).value(1);
    QCOMPARE(use.key, QString("Keys.B"));
    QCOMPARE(use.scope, InputScope::Window);
    QCOMPARE(use.widget.data(), &other);
}

void tst_InputRegistryActions::shortcutSettingOfTheProgramWorksEverywhere()
{
    QAction *const action = addAction("Action", "");
    action->setShortcutContext(Qt::ApplicationShortcut);
    mFixture->addShortcut("Setting", "Ctrl+K", action);
    mFixture->registry->addActions(mWindow.get());
    QCOMPARE(mFixture->registry->usesOf(QKeySequence("Ctrl+K")).value(0).scope,
             InputScope::Program);
}

void tst_InputRegistryActions::actionThatIsBoundLaterCountsOnce()
{
    QAction *const action = addAction("Action", "Ctrl+K");
    mFixture->registry->addActions(mWindow.get());
    QCOMPARE(uses(), QStringList{"Action"});
    mFixture->addShortcut("Setting", "Ctrl+K", action); // does not change the action
    QCOMPARE(uses(), QStringList{"Setting"});
    QVERIFY(mFixture->conflicts("Keys.Setting").isEmpty());
}

void tst_InputRegistryActions::actionInTwoWindowsWorksInBoth()
{
    QMainWindow other;
    QAction *const action = addAction("Action", "Ctrl+K");
    other.addAction(action);
    QAction *const bound = new QAction(&other);
    other.addAction(bound);
    mFixture->addShortcut("Setting", "Ctrl+K", bound);
    mFixture->registry->addActions(mWindow.get());
    mFixture->registry->addActions(&other);
    QCOMPARE(mFixture->conflicts("Keys.Setting"), QStringList{"Action"});
    QCOMPARE(uses(), (QStringList{"Setting", "Action"}));
}

void tst_InputRegistryActions::nullWidgetIsIgnored()
{
    mFixture->registry->addActions(nullptr);
    QVERIFY(uses().isEmpty());
}

void tst_InputRegistryActions::alternativeShortcutsCount()
{
    QAction *const action = addAction("Action", "");
    action->setShortcuts({QKeySequence("Ctrl+K"), QKeySequence("Ctrl+L")});
    mFixture->registry->addActions(mWindow.get());
    QCOMPARE(uses("Ctrl+L"), QStringList{"Action"});
    QCOMPARE(uses("Ctrl+K"), QStringList{"Action"});
}

int main(int argc, char **argv)
{
    return runTest<tst_InputRegistryActions>(argc, argv);
}

#include "tst_InputRegistryActions.moc"
