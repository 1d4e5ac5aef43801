#include "FindFixture.h"
#include "support/TableTranslator.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/widgets/KeySequenceEdit.h>

#include <OrvUtils/QThemeCtrl.h>

#include <QShortcut>

using MtConf::ConfItem;

/// The field of Find: what it shows, what filters the classes, and what ends the search.
class tst_SettingsFind : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { mFixture.reset(); }

    void windowWithoutTheFeatureHasNoField();
    void keyFocusesTheField();
    void recordingFieldTakesTheKey();
    void classesWithoutAHitAreHidden();
    void emptyFieldShowsThePageAgain_data();
    void emptyFieldShowsThePageAgain();
    void escapeEmptiesTheFieldFirst();
    void clickOnAClassEndsTheSearch_data();
    void clickOnAClassEndsTheSearch();
    void switchToViewEndsTheSearch();
    void incompleteFilterStaysInTheField();
    void typedTextIsStoredWhenTheSearchEnds();
    void languageChangesWhileSearching();
    void themeChangesWhileSearching();
    void callbackMayEndTheWindow_data();
    void callbackMayEndTheWindow();
    void restoringAllEndsTheSearch();
    void narrowColumnShowsAButton();
    void hintFitsIn();
    void partsAreNamedForScreenReaders();
    void hintIsAwayFromTheText_data();
    void hintIsAwayFromTheText();

private:
    std::unique_ptr<FindFixture> mFixture;
    QString mText;
    QKeySequence mKeys;
};

void tst_SettingsFind::init()
{
    mFixture = std::make_unique<FindFixture>();
    mText.clear();
}

void tst_SettingsFind::windowWithoutTheFeatureHasNoField()
{
    mFixture->manager->windowFeatures = MtConf::AllWindowFeatures & ~MtConf::FindFeature;
    QVERIFY(mFixture->openActive());
    QVERIFY(!mFixture->field());
}

void tst_SettingsFind::keyFocusesTheField()
{
    QVERIFY(mFixture->openActive());
    QVERIFY(!mFixture->field()->hasFocus());
    QCOMPARE(mFixture->hint()->text(),
             QKeySequence(QKeySequence::Find).toString(QKeySequence::NativeText));
    mFixture->classList()->setFocus();
    QTest::keyClick(mFixture->classList(), Qt::Key_F, Qt::ControlModifier);
    QVERIFY(mFixture->field()->hasFocus());
    QTest::keyClicks(mFixture->field(), "tips");
    mFixture->classList()->setFocus();
    QTest::keyClick(mFixture->classList(), Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(mFixture->field()->selectedText(), QString("tips"));
}

void tst_SettingsFind::recordingFieldTakesTheKey()
{
    ConfItem *item = mFixture->manager->addConfQKeySequence("Picture", &mKeys, "General",
                                                            "Picture");
    QVERIFY(mFixture->openActive());
    auto *recorder = item->editor->findChild<KeySequenceEdit *>();
    recorder->setFocus();
    QTest::keyClick(recorder, Qt::Key_F, Qt::ControlModifier);
    QVERIFY(recorder->hasFocus());
    QCOMPARE(recorder->keySequence(), QKeySequence("Ctrl+F"));
}

void tst_SettingsFind::classesWithoutAHitAreHidden()
{
    QVERIFY(mFixture->openActive());
    QVERIFY(mFixture->find("window"));
    QCOMPARE(mFixture->shownClasses(), (QStringList{"Capture", "System"}));
    QVERIFY(!mFixture->classList()->selectionModel()->hasSelection());
    mFixture->field()->clear();
    QTRY_COMPARE(mFixture->shownClasses(), (QStringList{"General", "Capture", "System"}));
    QCOMPARE(mFixture->classList()->selectionModel()->selectedIndexes().value(0).data().toString(),
             QString("General"));
}

void tst_SettingsFind::emptyFieldShowsThePageAgain_data()
{
    QTest::addColumn<bool>("usesButton");
    QTest::newRow("by keys") << false;
    QTest::newRow("by the button in the field") << true;
}

void tst_SettingsFind::emptyFieldShowsThePageAgain()
{
    QFETCH(bool, usesButton);
    QVERIFY(mFixture->open("System"));
    QVERIFY(mFixture->find("tips"));
    QCOMPARE(mFixture->shownKeys(), QStringList{"General.Show tips"});
    if (usesButton)
        QTest::mouseClick(mFixture->field()->findChild<QAbstractButton *>(), Qt::LeftButton);
    else
        QTest::keyClick(mFixture->field(), Qt::Key_Backspace, Qt::ControlModifier);
    QCOMPARE(mFixture->field()->text(), QString());
    QTRY_COMPARE(mFixture->shownKeys(), QStringList{"System.Hotkeys work"});
    QCOMPARE(mFixture->captions(), QStringList{"System"});
    QVERIFY(mFixture->restorePageButton()->isVisible());
    QVERIFY(!mFixture->hasResults());
    QTest::qWait(0);
    QCOMPARE(mFixture->shownKeys(), QStringList{"System.Hotkeys work"});
}

void tst_SettingsFind::escapeEmptiesTheFieldFirst()
{
    QVERIFY(mFixture->openActive());
    int closed = 0;
    QShortcut shortcut(Qt::Key_Escape, mFixture->window());
    connect(&shortcut, &QShortcut::activated, this, [&closed] { ++closed; });
    QVERIFY(mFixture->find("tips"));
    QTest::keyClick(mFixture->field(), Qt::Key_Escape);
    QCOMPARE(mFixture->field()->text(), QString());
    QCOMPARE(closed, 0);
    QTRY_VERIFY(!mFixture->hasResults());
    QTest::keyClick(mFixture->field(), Qt::Key_Escape);
    QCOMPARE(closed, 1);
}

void tst_SettingsFind::clickOnAClassEndsTheSearch_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QStringList>("keys");
    QTest::newRow("another class") << 2 << QStringList{"System.Hotkeys work"};
    QTest::newRow("the selected class")
        << 1 << QStringList{"Capture.Capture an area.Area", "Capture.Capture a window.Window"};
}

void tst_SettingsFind::clickOnAClassEndsTheSearch()
{
    QFETCH(int, row);
    QFETCH(QStringList, keys);
    QVERIFY(mFixture->open("Capture"));
    QVERIFY(mFixture->find("window"));
    mFixture->clickClass(row);
    QCOMPARE(mFixture->field()->text(), QString());
    QTRY_COMPARE(mFixture->shownKeys(), keys);
    QCOMPARE(mFixture->shownClasses().size(), 3);
    QVERIFY(!mFixture->hasResults());
}

void tst_SettingsFind::switchToViewEndsTheSearch()
{
    QVERIFY(mFixture->openActive());
    QVERIFY(mFixture->find("window"));
    mFixture->window()->switchToView("General"); // is hidden, and current
    QCOMPARE(mFixture->field()->text(), QString());
    QCOMPARE(mFixture->shownKeys(), QStringList{"General.Show tips"});
    QVERIFY(mFixture->find("tips"));
    mFixture->window()->switchToView("System");
    QCOMPARE(mFixture->window()->currentClass(), QString("System"));
    QCOMPARE(mFixture->shownKeys(), QStringList{"System.Hotkeys work"});

    // Before the results are shown.
    QTest::keyClicks(mFixture->field(), "tips");
    mFixture->window()->switchToView("System");
    QCOMPARE(mFixture->field()->text(), QString());
    QCOMPARE(mFixture->shownClasses().size(), 3);
}

void tst_SettingsFind::incompleteFilterStaysInTheField()
{
    mFixture->store()->set("System.Hotkeys work", false);
    QVERIFY(mFixture->openActive());
    QVERIFY(mFixture->find("tips"));
    mFixture->field()->selectAll();
    QTest::keyClicks(mFixture->field(), "@chang");
    QCOMPARE(mFixture->field()->text(), QString("@chang"));
    QTRY_VERIFY(!mFixture->hasResults());
    QCOMPARE(mFixture->shownKeys(), QStringList{"General.Show tips"}); // the page
    QTest::keyClicks(mFixture->field(), "ed");
    QTRY_VERIFY(mFixture->hasResults());
    QCOMPARE(mFixture->shownKeys(), QStringList{"System.Hotkeys work"});
}

void tst_SettingsFind::typedTextIsStoredWhenTheSearchEnds()
{
    ConfItem *item = mFixture->manager->addConfText("Prefix", &mText, "System", "Prefix");
    QVERIFY(mFixture->openActive());
    QVERIFY(mFixture->find("prefix"));
    auto *line = item->editor->findChild<QLineEdit *>();
    QTest::keyClicks(line, "abc");
    mFixture->field()->clear();
    QCoreApplication::processEvents();
    QCOMPARE(mText, QString("abc"));
}

void tst_SettingsFind::languageChangesWhileSearching()
{
    QVERIFY(mFixture->openActive());
    QVERIFY(mFixture->find("window"));
    const ConfItem *item = mFixture->hotkeysItem();
    const QPointer<QWidget> editor = item->editor;
    const TableTranslator translator({{"Capture", "Bild"},
                                      {"Capture a window", "Fenster"},
                                      {"%1 of %2", "%1 von %2"},
                                      {"Search settings", "Suchen"}});
    Q_EMIT mFixture->manager->sigLanguageChange();
    QCOMPARE(mFixture->captions(), (QStringList{QStringLiteral(u"Bild › Fenster"), "System"}));
    QCOMPARE(mFixture->hint()->text(), QString("2 von 4"));
    QCOMPARE(mFixture->field()->placeholderText(), QString("Suchen"));
    QTest::keyClick(mFixture->field(), Qt::Key_Down); // the results are shown
    QCOMPARE(item->editor, editor.data());
    QVERIFY(mFixture->find("fenster"));
    QCOMPARE(mFixture->shownKeys().size(), 1);
}

void tst_SettingsFind::themeChangesWhileSearching()
{
    QVERIFY(mFixture->openActive());
    QVERIFY(mFixture->find("window"));
    const QStringList keys = mFixture->shownKeys();
    QThemeCtrl::instance()->setTheme(QThemeCtrl::Theme::Dark);
    QThemeCtrl::instance()->setTheme(QThemeCtrl::Theme::Light);
    QVERIFY(mFixture->hasResults());
    QCOMPARE(mFixture->shownKeys(), keys);
    QCOMPARE(mFixture->field()->text(), QString("window"));
}

void tst_SettingsFind::callbackMayEndTheWindow_data()
{
    QTest::addColumn<QString>("where");
    QTest::addColumn<bool>("destroysManager");
    for (const char *where : {"set", "itemFilter", "editor", "searchTexts"}) {
        QTest::addRow("%s closes the window", where) << where << false;
        QTest::addRow("%s destroys the manager", where) << where << true;
    }
}

void tst_SettingsFind::callbackMayEndTheWindow()
{
    QFETCH(QString, where);
    QFETCH(bool, destroysManager);
    bool isArmed = false;
    const auto end = [&](const char *name) {
        if (!isArmed || where != QLatin1String(name))
            return;
        isArmed = false;
        if (destroysManager)
            mFixture->manager.reset();
        else
            mFixture->manager->closeConfigWindow();
    };
    ConfItem *item = mFixture->addBool("Ending", "", "System");
    item->flags = MtConf::ItemIsFiltered;
    item->setConfChangedCallback([&](const QString &, const ConfValue *) { end("set"); });
    const MtConf::WidgetCreator creator = item->widgetCreator;
    item->widgetCreator = [&, creator](ConfItem *edited, QWidget *parent) {
        end("editor");
        return creator(edited, parent);
    };
    mFixture->manager->itemFilter = [&](const ConfItem &) {
        end("itemFilter");
        return true;
    };
    mFixture->manager->setMajorWidget("Page", [](QWidget *) { return nullptr; });
    mFixture->manager->getMajorConfItemByName("Page")->searchTexts = [&] {
        end("searchTexts");
        return QStringList();
    };
    QVERIFY(mFixture->openActive());
    if (where == "set") {
        QVERIFY(mFixture->find("ending"));
        isArmed = true;
        mFixture->clickBox(mFixture->checkBox(item));
    } else {
        isArmed = true;
        mFixture->field()->setFocus();
        if (mFixture->window())
            QTest::keyClicks(mFixture->field(), "ending");
    }
    QTRY_VERIFY(!mFixture->window());
    QVERIFY(!isArmed);
    if (mFixture->manager)
        QVERIFY(mFixture->openActive());
}

void tst_SettingsFind::restoringAllEndsTheSearch()
{
    mFixture->store()->set("System.Hotkeys work", false);
    QVERIFY(mFixture->openActive());
    QVERIFY(mFixture->find("window"));
    QVERIFY(mFixture->clickAndAnswer(mFixture->restoreAllButton(), QMessageBox::Yes));
    QVERIFY(!mFixture->hasResults());
    QCOMPARE(mFixture->field()->text(), QString());
    QCOMPARE(mFixture->shownKeys(), QStringList{"General.Show tips"});
    QCOMPARE(mFixture->shownClasses().size(), 3);
    QVERIFY(mFixture->find("window"));
    QCOMPARE(mFixture->shownKeys().size(), 2);
}

void tst_SettingsFind::narrowColumnShowsAButton()
{
    QVERIFY(mFixture->openActive());
    auto *button = mFixture->child<QAbstractButton>("FindButton");
    QVERIFY(mFixture->field()->isVisible() && !button->isVisible());
    mFixture->classList()->setProperty("narrow", "1"); // as the modern look does
    QVERIFY(!mFixture->field()->isVisible() && button->isVisible());
    QVERIFY(!button->icon().isNull());
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(mFixture->field()->isVisible() && mFixture->field()->hasFocus()
            && !button->isVisible());
    QVERIFY(mFixture->find("window"));
    mFixture->classList()->setFocus();
    QTest::qWait(0);
    QVERIFY(mFixture->field()->isVisible()); // while it has a text
    mFixture->window()->switchToView("System");
    QTRY_VERIFY(!mFixture->field()->isVisible());
    QVERIFY(button->isVisible());
    QTest::keyClick(mFixture->classList(), Qt::Key_F, Qt::ControlModifier);
    QVERIFY(mFixture->field()->hasFocus());
    mFixture->classList()->setProperty("narrow", "0");
    QVERIFY(mFixture->field()->isVisible() && !button->isVisible());
}

void tst_SettingsFind::hintFitsIn()
{
    QVERIFY(mFixture->openActive());
    QVERIFY(mFixture->hint()->isVisible());
    QVERIFY(mFixture->find("window"));
    QVERIFY(mFixture->hint()->isVisible());
    const QWidget *button = mFixture->field()->findChild<QAbstractButton *>();
    QVERIFY(button->isVisible());
    QVERIFY(!button->geometry().intersects(mFixture->hint()->geometry()));
    const QRect cursor = mFixture->field()->inputMethodQuery(Qt::ImCursorRectangle).toRect();
    QVERIFY(cursor.right() < mFixture->hint()->x());
    QTest::keyClicks(mFixture->field(), " and other words that are longer than the field is wide");
    QVERIFY(!mFixture->hint()->isVisible());
}

void tst_SettingsFind::partsAreNamedForScreenReaders()
{
    QVERIFY(mFixture->openActive());
    QCOMPARE(mFixture->field()->accessibleName(), QString("Search settings"));
    QCOMPARE(mFixture->child<QWidget>("FindButton")->accessibleName(), QString("Search settings"));
    QCOMPARE(mFixture->field()->findChild<QAbstractButton *>()->toolTip(),
             QString("Clear the search"));
    QVERIFY(mFixture->find("window"));
    QCOMPARE(mFixture->child<QWidget>("scrollArea")->accessibleName(), QString("Results"));
}

void tst_SettingsFind::hintIsAwayFromTheText_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("isMirrored");
    QTest::newRow("nothing") << QString() << true; // where the placeholder is not
    QTest::newRow("Arabic") << QStringLiteral(u"بحث") << true;
    QTest::newRow("Latin") << "tips" << false;
}

void tst_SettingsFind::hintIsAwayFromTheText()
{
    QFETCH(QString, typed);
    QFETCH(bool, isMirrored);
    const TableTranslator translator({{"Search settings", QStringLiteral(u"بحث")}});
    QVERIFY(mFixture->openActive());
    mFixture->window()->setLayoutDirection(Qt::RightToLeft);
    QTest::keyClicks(mFixture->field(), "a");
    mFixture->field()->setText(typed);
    QVERIFY(mFixture->hint()->isVisible());
    const QRect hint = mFixture->hint()->geometry();
    const QWidget *button = mFixture->field()->findChild<QAbstractButton *>();
    QVERIFY(!button->isVisible() || !button->geometry().intersects(hint));
    QCOMPARE(hint.center().x() < mFixture->field()->width() / 2, isMirrored);
    if (typed.isEmpty())
        return;
    mFixture->field()->grab(); // scrolls to the cursor
    const int cursor = mFixture->field()->inputMethodQuery(Qt::ImCursorRectangle).toRect().x();
    QCOMPARE(cursor > mFixture->field()->width() / 2, isMirrored);
}

int main(int argc, char **argv)
{
    return runTest<tst_SettingsFind>(argc, argv);
}

#include "tst_SettingsFind.moc"
