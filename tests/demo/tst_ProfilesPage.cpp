#include "DemoFixture.h"
#include "support/TestMain.h"

#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QScrollBar>

#include <algorithm>

class tst_ProfilesPage : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { mDemo.reset(); }

    void presetsAreListedByName();
    void addedProfileIsSelectedAndCanBeNamedAtOnce();
    void invalidNamesAreRejectedWithAMessage_data();
    void invalidNamesAreRejectedWithAMessage();
    void caseOfTheOwnNameCanBeChanged();
    void editedValueIsStoredInTheProfile();
    void deletingTheLastProfileShowsAHint();
    void deletingAsksFirst_data();
    void deletingAsksFirst();
    void restoringPresetsRemovesTheProfilesOfTheUser();
    void restoringPresetsAsksWhatItWouldDelete_data();
    void restoringPresetsAsksWhatItWouldDelete();
    void restoringDeletedPresetsNeedsNoQuestion();
    void keyF2EditsTheName();
    void typedNameIsStored_data();
    void typedNameIsStored();
    void typedNameThatCannotBeUsedIsSaidInWords_data();
    void typedNameThatCannotBeUsedIsSaidInWords();
    void longNameIsElidedWithAToolTip();
    void changeFromOutsideKeepsTheNameBeingTyped();
    void invalidProfileFromAFileCanBeRenamedOrDeleted();
    void profileIsFoundByItsName();
    void changedProfilesAreListedAsChanged();

private:
    template<class Widget> Widget *child(const char *name) const
    {
        return mDemo->child<Widget>(name);
    }
    void click(const char *button) const
    {
        QTest::mouseClick(child<QPushButton>(button), Qt::LeftButton);
        QCoreApplication::processEvents(); // the page updates in the next event loop iteration
    }
    void clickRow(int row) const
    {
        auto *list = child<QListWidget>("profileList");
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualItemRect(list->item(row)).center());
    }
    QStringList names() const
    {
        QStringList result;
        auto *list = child<QListWidget>("profileList");
        for (int row = 0; row < list->count(); ++row)
            result << list->item(row)->text();
        return result;
    }
    static QMessageBox *question()
    {
        return qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    }
    /// Clicks the button of the question that does what was asked.
    static void confirm()
    {
        const QMessageBox *box = question();
        QVERIFY(box);
        const QList<QAbstractButton *> buttons = box->buttons();
        const auto yes = std::find_if(buttons.cbegin(), buttons.cend(), [box](auto *button) {
            return box->buttonRole(button) == QMessageBox::AcceptRole;
        });
        QVERIFY(yes != buttons.cend());
        QTest::mouseClick(*yes, Qt::LeftButton);
        QCoreApplication::processEvents();
    }
    void typeName(const QString &name) const
    {
        auto *line = child<QLineEdit>("profileName");
        line->setFocus();
        line->selectAll();
        QTest::keyClick(line, Qt::Key_Delete);
        QTest::keyClicks(line, name);
    }

    std::unique_ptr<DemoFixture> mDemo;
};

void tst_ProfilesPage::init()
{
    mDemo = std::make_unique<DemoFixture>();
    mDemo->start();
    QVERIFY(mDemo->open(QStringLiteral("Profiles")));
    QCoreApplication::processEvents();
}

void tst_ProfilesPage::presetsAreListedByName()
{
    QCOMPARE(names(), QStringList({"Screen", "Thumbnail", "Window"}));
    QCOMPARE(child<QLineEdit>("profileName")->text(), QStringLiteral("Screen"));
    QCOMPARE(child<QSpinBox>("profileWidth")->value(), 1920);
    clickRow(2);
    QCOMPARE(child<QLineEdit>("profileName")->text(), QStringLiteral("Window"));
    QCOMPARE(child<QSpinBox>("profileHeight")->value(), 800);
    QCOMPARE(child<QLabel>("profileState")->text(), QStringLiteral("A preset, unchanged."));
    QVERIFY(!child<QPushButton>("renameProfile")->isEnabled());
}

void tst_ProfilesPage::addedProfileIsSelectedAndCanBeNamedAtOnce()
{
    click("addProfile");
    QCOMPARE(names(), QStringList({"New profile", "Screen", "Thumbnail", "Window"}));
    QCOMPARE(child<QLineEdit>("profileName")->selectedText(), QStringLiteral("New profile"));
    QTest::keyClicks(child<QLineEdit>("profileName"), QStringLiteral("Tall"));
    QTest::keyClick(child<QLineEdit>("profileName"), Qt::Key_Return);
    QCoreApplication::processEvents();
    QCOMPARE(names(), QStringList({"Screen", "Tall", "Thumbnail", "Window"}));
    QCOMPARE(child<QListWidget>("profileList")->currentRow(), 1);
    click("addProfile");
    click("addProfile");
    QCOMPARE(names(), QStringList({"New profile", "New profile 2", "Screen", "Tall", "Thumbnail",
                                   "Window"}));
}

void tst_ProfilesPage::invalidNamesAreRejectedWithAMessage_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("error");
    QTest::newRow("empty") << QString() << "A profile needs a name.";
    QTest::newRow("blanks") << "   "
                            << "A profile needs a name.";
    QTest::newRow("name of another profile") << "Window"
                                             << "Another profile has this name.";
    QTest::newRow("name of another profile in lower case") << " window "
                                                           << "Another profile has this name.";
    QTest::newRow("41 characters") << QString(41, 'x') << "A name can have at most 40 characters.";
}

void tst_ProfilesPage::invalidNamesAreRejectedWithAMessage()
{
    QFETCH(QString, name);
    QFETCH(QString, error);
    typeName(name);
    QVERIFY(child<QLabel>("profileNameError")->isVisible());
    QCOMPARE(child<QLabel>("profileNameError")->text(), error);
    QVERIFY(!child<QPushButton>("renameProfile")->isEnabled());
    QTest::keyClick(child<QLineEdit>("profileName"), Qt::Key_Return);
    QCoreApplication::processEvents();
    QCOMPARE(names(), QStringList({"Screen", "Thumbnail", "Window"}));
}

void tst_ProfilesPage::caseOfTheOwnNameCanBeChanged()
{
    typeName(QStringLiteral("SCREEN"));
    QVERIFY(child<QLabel>("profileNameError")->isHidden());
    click("renameProfile");
    QCOMPARE(names(), QStringList({"SCREEN", "Thumbnail", "Window"}));
}

void tst_ProfilesPage::editedValueIsStoredInTheProfile()
{
    auto *width = child<QSpinBox>("profileWidth");
    width->selectAll();
    QTest::keyClicks(width, QStringLiteral("640"));
    QTest::keyClick(width, Qt::Key_Tab);
    QCOMPARE(mDemo->session->profiles().profile("Profiles.Screen")["width"].toInt(), 640);
    QTRY_COMPARE(child<QLabel>("profileState")->text(),
                 QStringLiteral("Yours, or a changed preset."));
    QVERIFY(mDemo->close());
    mDemo->start();
    QCOMPARE(mDemo->session->profiles().profile("Profiles.Screen")["width"].toInt(), 640);
}

void tst_ProfilesPage::deletingTheLastProfileShowsAHint()
{
    for (int i = 0; i < 3; ++i) {
        click("removeProfile");
        confirm();
    }
    QCOMPARE(names(), QStringList());
    QVERIFY(!child<QPushButton>("removeProfile")->isEnabled());
    QVERIFY(child<QGroupBox>("ConfigGroupBox")->isHidden());
    QVERIFY(mDemo->close());
    mDemo->start();
    QCOMPARE(mDemo->session->profiles().keys(), QStringList());
}

void tst_ProfilesPage::restoringPresetsRemovesTheProfilesOfTheUser()
{
    click("addProfile");
    clickRow(1);
    click("removeProfile");
    confirm();
    QCOMPARE(names(), QStringList({"New profile", "Thumbnail", "Window"}));
    click("restoreProfiles");
    confirm();
    QCOMPARE(names(), QStringList({"Screen", "Thumbnail", "Window"}));
}

void tst_ProfilesPage::restoringPresetsAsksWhatItWouldDelete_data()
{
    QTest::addColumn<bool>("isChangedPreset");
    QTest::newRow("a profile of the user") << false;
    QTest::newRow("a changed preset") << true;
}

void tst_ProfilesPage::restoringPresetsAsksWhatItWouldDelete()
{
    QFETCH(bool, isChangedPreset);
    if (isChangedPreset)
        mDemo->session->profiles().setValue("Profiles.Screen", "width", 99);
    else
        click("addProfile");
    const QStringList before = names();
    click("restoreProfiles");
    QVERIFY(question());
    QCOMPARE(question()->text(), QString("Restore the presets? This deletes your own profiles and "
                                         "undoes your changes of the presets."));
    QTest::keyClick(question(), Qt::Key_Return); // the default is the safe answer
    QTRY_VERIFY(!question());
    QCoreApplication::processEvents(); // the list follows a deletion here
    QCOMPARE(names(), before);
    QCOMPARE(mDemo->session->profiles().profile("Profiles.Screen")["width"].toInt(),
             isChangedPreset ? 99 : 1920);
}

void tst_ProfilesPage::restoringDeletedPresetsNeedsNoQuestion()
{
    click("removeProfile");
    confirm();
    QCOMPARE(names(), QStringList({"Thumbnail", "Window"}));
    click("restoreProfiles");
    QVERIFY(!question());
    QCOMPARE(names(), QStringList({"Screen", "Thumbnail", "Window"}));
}

void tst_ProfilesPage::deletingAsksFirst_data()
{
    QTest::addColumn<bool>("isKey");
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("isDeleted");
    QTest::newRow("button, confirmed") << false << 0 << true;
    QTest::newRow("key, confirmed") << true << 0 << true;
    QTest::newRow("button, Return") << false << int(Qt::Key_Return) << false;
    QTest::newRow("key, Return") << true << int(Qt::Key_Return) << false;
    QTest::newRow("key, Escape") << true << int(Qt::Key_Escape) << false;
}

void tst_ProfilesPage::deletingAsksFirst()
{
    QFETCH(bool, isKey);
    QFETCH(int, answer);
    QFETCH(bool, isDeleted);
    QVERIFY(QTest::qWaitForWindowActive(mDemo->window()));
    clickRow(2);
    if (isKey)
        QTest::keyClick(child<QListWidget>("profileList"), Qt::Key_Delete);
    else
        click("removeProfile");
    QVERIFY(question());
    QCOMPARE(question()->text(), QString("Delete the profile “Window”?"));
    QCOMPARE(question()->windowTitle(), mDemo->window()->windowTitle());
    if (answer)
        QTest::keyClick(question(), Qt::Key(answer));
    else
        confirm();
    QTRY_VERIFY(!question());
    QCoreApplication::processEvents(); // the list follows a deletion here
    QCOMPARE(names().contains("Window"), !isDeleted);
}

void tst_ProfilesPage::keyF2EditsTheName()
{
    QVERIFY(QTest::qWaitForWindowActive(mDemo->window()));
    clickRow(1);
    QTest::keyClick(child<QListWidget>("profileList"), Qt::Key_F2);
    QVERIFY(child<QLineEdit>("profileName")->hasFocus());
    QCOMPARE(child<QLineEdit>("profileName")->selectedText(), QString("Thumbnail"));
    QTest::keyClicks(child<QLineEdit>("profileName"), "Small");
    QTest::keyClick(child<QLineEdit>("profileName"), Qt::Key_Return);
    QTRY_COMPARE(names(), QStringList({"Screen", "Small", "Window"}));
}

void tst_ProfilesPage::typedNameIsStored_data()
{
    QTest::addColumn<QString>("next");
    for (const char *next : {"other profile", "other field", "Delete and Escape", "Add",
                             "other page", "page by the program", "closed window"})
        QTest::newRow(next) << QString(next);
}

void tst_ProfilesPage::typedNameIsStored()
{
    QFETCH(QString, next);
    QVERIFY(QTest::qWaitForWindowActive(mDemo->window()));
    typeName(" Monitor ");
    if (next == "other profile") {
        clickRow(2);
    } else if (next == "other field") {
        QTest::keyClick(child<QLineEdit>("profileName"), Qt::Key_Tab);
    } else if (next == "Delete and Escape") {
        click("removeProfile");
        QCOMPARE(question()->text(), QString("Delete the profile “Monitor”?"));
        QTest::keyClick(question(), Qt::Key_Escape);
    } else if (next == "Add") {
        click("addProfile");
    } else if (next == "other page") {
        mDemo->clickClass("Mouse");
    } else if (next == "page by the program") {
        mDemo->window()->switchToView("Mouse");
    } else {
        QVERIFY(mDemo->close());
        mDemo->start(); // reads the file that the closing window has written
    }
    QCOMPARE(mDemo->session->profiles().name("Profiles.Screen"), QString("Monitor"));
}

void tst_ProfilesPage::typedNameThatCannotBeUsedIsSaidInWords_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("notice");
    QTest::newRow("empty") << QString() << "“Screen” keeps its name. A profile needs a name.";
    QTest::newRow("name of another profile")
        << "Window"
        << "“Screen” keeps its name. Another profile has this name.";
}

void tst_ProfilesPage::typedNameThatCannotBeUsedIsSaidInWords()
{
    QFETCH(QString, name);
    QFETCH(QString, notice);
    QVERIFY(QTest::qWaitForWindowActive(mDemo->window()));
    typeName(name);
    QTest::keyClick(child<QLineEdit>("profileName"), Qt::Key_Tab);
    QCOMPARE(child<QLineEdit>("profileName")->text(), name); // still there to be mended
    QVERIFY(child<QLabel>("profileNameError")->isVisible());
    clickRow(1);
    QVERIFY(child<QLabel>("profileNotice")->isVisible());
    QCOMPARE(child<QLabel>("profileNotice")->text(), notice);
    QCOMPARE(names(), QStringList({"Screen", "Thumbnail", "Window"}));
    QCOMPARE(child<QLineEdit>("profileName")->text(), QString("Thumbnail"));
    clickRow(0);
    QVERIFY(child<QLabel>("profileNotice")->isHidden());
    QCOMPARE(child<QLineEdit>("profileName")->text(), QString("Screen"));
}

void tst_ProfilesPage::longNameIsElidedWithAToolTip()
{
    const QString longest(40, 'M');
    auto *list = child<QListWidget>("profileList");
    mDemo->session->profiles().rename("Profiles.Screen", longest);
    QTRY_COMPARE(names().first(), longest);
    QCOMPARE(list->item(0)->toolTip(), longest);
    QCoreApplication::processEvents();
    QCOMPARE(list->horizontalScrollBar()->maximum(), 0);
    QCOMPARE(list->visualItemRect(list->item(0)).width(), list->viewport()->width());
    QCOMPARE(list->textElideMode(), Qt::ElideRight);
}

void tst_ProfilesPage::changeFromOutsideKeepsTheNameBeingTyped()
{
    QVERIFY(QTest::qWaitForWindowActive(mDemo->window()));
    typeName(QStringLiteral("Scr"));
    mDemo->session->profiles().setValue("Profiles.Screen", "width", 99);
    QTRY_COMPARE(child<QSpinBox>("profileWidth")->value(), 99);
    QCOMPARE(child<QLineEdit>("profileName")->text(), QStringLiteral("Scr"));
    mDemo->session->profiles().remove("Profiles.Screen");
    QTRY_COMPARE(child<QLineEdit>("profileName")->text(), QStringLiteral("Thumbnail"));
}

void tst_ProfilesPage::invalidProfileFromAFileCanBeRenamedOrDeleted()
{
    QVERIFY(mDemo->close());
    QFile file(mDemo->localFile());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(R"({"Profiles.a":{"t":5,"v":"text"},"Profiles.b":{"t":5,"v":[1]}})");
    file.close();
    mDemo->start();
    QVERIFY(mDemo->open(QStringLiteral("Profiles")));
    QCOMPARE(names(), QStringList({"", "", "Screen", "Thumbnail", "Window"}));
    typeName(QStringLiteral("Mended"));
    click("renameProfile");
    QCOMPARE(names(), QStringList({"", "Mended", "Screen", "Thumbnail", "Window"}));
    clickRow(0);
    click("removeProfile");
    confirm();
    QCOMPARE(names(), QStringList({"Mended", "Screen", "Thumbnail", "Window"}));
}

void tst_ProfilesPage::profileIsFoundByItsName()
{
    mDemo->start(QString(), DemoSession::Look::Modern);
    mDemo->session->profiles().rename("Profiles.Thumbnail", QStringLiteral(u"Größe S"));
    QVERIFY(mDemo->open("General"));
    auto *field = child<QLineEdit>("FindField");
    QTest::keyClicks(field, "grosse");
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(mDemo->window()->currentClass(), QString("Profiles"));
    QCOMPARE(child<QListWidget>("profileList")->currentItem()->text(), QStringLiteral(u"Größe S"));
}

void tst_ProfilesPage::changedProfilesAreListedAsChanged()
{
    mDemo->start(QString(), DemoSession::Look::Modern);
    ProfileStore &profiles = mDemo->session->profiles();
    const auto isChanged = mDemo->session->manager().getMajorConfItemByName("Profiles")->isChanged;
    QVERIFY(!isChanged());
    const QString added = profiles.add();
    QVERIFY(isChanged());
    profiles.remove(added);
    QVERIFY(!isChanged());
    profiles.setValue("Profiles.Screen", "width", 800);
    QVERIFY(isChanged());
    profiles.restorePresets();
    QVERIFY(!isChanged());
    profiles.remove("Profiles.Screen");
    QVERIFY(isChanged());
}

int main(int argc, char **argv)
{
    return runTest<tst_ProfilesPage>(argc, argv);
}
#include "tst_ProfilesPage.moc"
