#include "DemoFixture.h"
#include "support/TestMain.h"

#include <QGroupBox>
#include <QLabel>
#include <QListWidget>

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
    void restoringPresetsRemovesTheProfilesOfTheUser();
    void changeFromOutsideKeepsTheNameBeingTyped();
    void invalidProfileFromAFileCanBeRenamedOrDeleted();

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
    for (int i = 0; i < 3; ++i)
        click("removeProfile");
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
    QCOMPARE(names(), QStringList({"New profile", "Thumbnail", "Window"}));
    click("restoreProfiles");
    QCOMPARE(names(), QStringList({"Screen", "Thumbnail", "Window"}));
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
    QCOMPARE(names(), QStringList({"Mended", "Screen", "Thumbnail", "Window"}));
}

int main(int argc, char **argv)
{
    return runTest<tst_ProfilesPage>(argc, argv);
}
#include "tst_ProfilesPage.moc"
