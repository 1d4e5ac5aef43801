#include "TextEditorFixture.h"
#include "support/TestMain.h"
#include "support/WindowFixture.h"

#include <MaltoConfiguration/widgets/ConfWidgetPath.h>

#include <QFileDialog>
#include <QLineEdit>

using MtConf::ConfItem;
using MtConf::ConfWidgetPath;
using MtConf::PathKind;

class tst_ConfWidgetPath : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(QDir().mkpath("folder"));
        QFile file("folder/file.txt");
        QVERIFY(file.open(QIODevice::WriteOnly));
        mHere = QDir::currentPath();
    }
    void init()
    {
        mFixture = std::make_unique<TextEditorFixture<ConfWidgetPath>>();
        mValue.clear();
    }
    void cleanup() { mFixture.reset(); }

    void storedPathIsShown();
    void typedPathIsStored_data();
    void typedPathIsStored();
    void pathsThatCannotBeUsedAreExplained_data();
    void pathsThatCannotBeUsedAreExplained();
    void fileThatAppearsIsFoundWhenThePageIsShownAgain();
    void windowShowsTheMessageAtOnce();
    void refusedPathIsExplainedByTheValidator();
    void dialogSuitsTheKind_data();
    void dialogSuitsTheKind();
    void dialogStartsAtTheStoredPath_data();
    void dialogStartsAtTheStoredPath();
    void chosenPathIsStored();
    void cancelledDialogStoresNothing();
    void typedPathIsStoredBeforeTheDialogOpens();
    void callbackMayDeleteTheEditorWhenAPathIsChosen();
    void editorMayBeDeletedWhileTheDialogIsOpen();
    void callbackMayDeleteTheEditorBeforeTheDialogOpens();
    void refreshNeverStores();
    void textsFollowTheLanguage();
    void pathReadsFromLeftToRightInEveryLanguage();
    void controlsWorkByKeyboard();
    void factoryNeedsAnItem();

private:
    QLineEdit *open(PathKind kind = PathKind::ExistingFile, const char *filters = nullptr)
    {
        mItem = mFixture->manager.addConfPath("Template", &mValue, kind, "User", "Path", "",
                                              filters);
        if (!mFixture->openPage(mItem))
            return nullptr;
        mButton = mFixture->button("Browse...");
        auto *field = mFixture->child<QLineEdit>();
        field->setFocus();
        return field;
    }
    QFileDialog *openDialog()
    {
        QTest::mouseClick(mButton, Qt::LeftButton);
        return mFixture->child<QFileDialog>();
    }
    static void choose(QFileDialog *dialog, const QString &path)
    {
        dialog->selectFile(path);
        dialog->findChild<QLineEdit *>("fileNameEdit")->setText(path);
        QMetaObject::invokeMethod(dialog, "accept", Qt::DirectConnection);
    }

    std::unique_ptr<TextEditorFixture<ConfWidgetPath>> mFixture;
    ConfItem *mItem = nullptr;
    QPushButton *mButton = nullptr;
    QString mValue;
    QString mHere;
};

void tst_ConfWidgetPath::storedPathIsShown()
{
    mValue = "/usr/share";
    const QLineEdit *field = open(PathKind::Folder);
    QVERIFY(field);
    QCOMPARE(field->text(), QDir::toNativeSeparators("/usr/share"));
    QCOMPARE(field->accessibleName(), QString("Template"));
    QCOMPARE(mButton->accessibleName(), QString("Browse..."));
}

void tst_ConfWidgetPath::typedPathIsStored_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("stored");
    QTest::newRow("absolute") << "/usr/share"
                              << "/usr/share";
    QTest::newRow("relative") << "a b/c"
                              << "a b/c";
    QTest::newRow("home") << "~" << QDir::homePath();
    QTest::newRow("in home") << "~/a" << QDir::homePath() + "/a";
    QTest::newRow("home of another user") << "~a"
                                          << "~a";
    QTest::newRow("tilde inside") << "a/~"
                                  << "a/~";
    QTest::newRow("separators of the system") << QDir::toNativeSeparators("a/b") << "a/b";
}

void tst_ConfWidgetPath::typedPathIsStored()
{
    QFETCH(QString, typed);
    QFETCH(QString, stored);
    QLineEdit *field = open(PathKind::NewFile);
    QTest::keyClicks(field, typed);
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(mValue, stored);
    QCOMPARE(field->text(), QDir::toNativeSeparators(stored));
}

void tst_ConfWidgetPath::pathsThatCannotBeUsedAreExplained_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("message");
    const int file = int(PathKind::ExistingFile);
    const int newFile = int(PathKind::NewFile);
    const int folder = int(PathKind::Folder);
    const QString isFolder = "This is a folder, not a file.";
    QTest::newRow("file") << file << "folder/file.txt" << QString();
    QTest::newRow("no file") << file << "folder/none"
                             << "This file does not exist.";
    QTest::newRow("folder as a file") << file << "folder" << isFolder;
    QTest::newRow("no path to a file") << file << QString() << QString();
    QTest::newRow("folder") << folder << "folder" << QString();
    QTest::newRow("no folder") << folder << "none"
                               << "This folder does not exist.";
    QTest::newRow("file as a folder") << folder << "folder/file.txt"
                                      << "This is a file, not a folder.";
    QTest::newRow("no path to a folder") << folder << QString() << QString();
    QTest::newRow("new file that exists") << newFile << "folder/file.txt" << QString();
    QTest::newRow("new file") << newFile << "folder/none" << QString();
    QTest::newRow("new file in no folder") << newFile << "none/file.txt"
                                           << "The folder of this file does not exist.";
    QTest::newRow("folder as a new file") << newFile << "folder" << isFolder;
}

void tst_ConfWidgetPath::pathsThatCannotBeUsedAreExplained()
{
    QFETCH(int, kind);
    QFETCH(QString, path);
    QFETCH(QString, message);
    mValue = path;
    QLineEdit *field = open(static_cast<PathKind>(kind));
    QCOMPARE(mFixture->shownMessage(), message);
    // The same for a path that is typed, which is stored.
    field->selectAll();
    QTest::keyClicks(field, "-");
    QTest::keyClick(field, Qt::Key_Return);
    field->selectAll();
    QTest::keyClick(field, Qt::Key_Delete);
    QTest::keyClicks(field, path);
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(mValue, path);
    QCOMPARE(mFixture->shownMessage(), message);
    // And for one that the program stores.
    mFixture->store()->set<QString>("User.Path", "-");
    mFixture->editor->loadConf();
    mFixture->store()->set<QString>("User.Path", path);
    mFixture->editor->loadConf();
    QCOMPARE(mFixture->shownMessage(), message);
}

void tst_ConfWidgetPath::fileThatAppearsIsFoundWhenThePageIsShownAgain()
{
    mValue = "later.txt";
    QVERIFY(open());
    QCOMPARE(mFixture->shownMessage(), QString("This file does not exist."));
    mFixture->parent.hide();
    QFile file("later.txt");
    QVERIFY(file.open(QIODevice::WriteOnly));
    mFixture->parent.show();
    QCOMPARE(mFixture->shownMessage(), QString());
    QVERIFY(file.remove());
}

void tst_ConfWidgetPath::windowShowsTheMessageAtOnce()
{
    mFixture.reset();
    WindowFixture fixture;
    mValue = "none";
    mItem = fixture.manager->addConfPath("Template", &mValue, PathKind::Folder, "User", "Path");
    QVERIFY(fixture.open());
    const QLabel *message = mItem->editor->messageLabel();
    QVERIFY(message->isVisible());
    QCOMPARE(message->text(), QString("This folder does not exist."));
}

void tst_ConfWidgetPath::refusedPathIsExplainedByTheValidator()
{
    QLineEdit *field = open();
    mItem->setValidator([](const QJsonValue &value) {
        return value.toString().startsWith('/') ? QString() : QString("Not absolute.");
    });
    QTest::keyClicks(field, "none");
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(mFixture->shownMessage(), QString("Not absolute."));
    QCOMPARE(mValue, QString());
    field->setCursorPosition(0);
    QTest::keyClicks(field, "/");
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(mFixture->shownMessage(), QString("This file does not exist."));
    QCOMPARE(mValue, QString("/none"));
}

void tst_ConfWidgetPath::dialogSuitsTheKind_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QFileDialog::FileMode>("fileMode");
    QTest::addColumn<QFileDialog::AcceptMode>("acceptMode");
    QTest::addColumn<QStringList>("filters");
    const QStringList filters{"Pictures (*.png)", "Texts (*.txt)"};
    QTest::newRow("file") << int(PathKind::ExistingFile) << QFileDialog::ExistingFile
                          << QFileDialog::AcceptOpen << filters;
    QTest::newRow("new file") << int(PathKind::NewFile) << QFileDialog::AnyFile
                              << QFileDialog::AcceptSave << filters;
    QTest::newRow("folder") << int(PathKind::Folder) << QFileDialog::Directory
                            << QFileDialog::AcceptOpen << QStringList("All Files (*)");
}

void tst_ConfWidgetPath::dialogSuitsTheKind()
{
    QFETCH(int, kind);
    open(static_cast<PathKind>(kind), "Pictures (*.png);;Texts (*.txt)");
    const QFileDialog *dialog = openDialog();
    QVERIFY(dialog && dialog->isVisible());
    QTEST(dialog->fileMode(), "fileMode");
    QTEST(dialog->acceptMode(), "acceptMode");
    QTEST(dialog->nameFilters(), "filters");
    QCOMPARE(dialog->windowTitle(), QString("Template"));
    QCOMPARE(dialog->testOption(QFileDialog::ShowDirsOnly), kind == int(PathKind::Folder));
    QCOMPARE(dialog->testOption(QFileDialog::DontConfirmOverwrite), kind == int(PathKind::NewFile));
}

void tst_ConfWidgetPath::dialogStartsAtTheStoredPath_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("folder"); // below the current folder
    QTest::addColumn<QString>("name");
    const int file = int(PathKind::ExistingFile);
    const int folder = int(PathKind::Folder);
    QTest::newRow("file") << file << "folder/file.txt"
                          << "/folder"
                          << "file.txt";
    QTest::newRow("folder") << folder << "folder"
                            << "/folder"
                            << "";
    QTest::newRow("folder that does not exist") << folder << "folder/a/b"
                                                << "/folder"
                                                << "";
    QTest::newRow("new file") << int(PathKind::NewFile) << "folder/new"
                              << "/folder"
                              << "new";
}

void tst_ConfWidgetPath::dialogStartsAtTheStoredPath()
{
    QFETCH(int, kind);
    QFETCH(QString, path);
    QFETCH(QString, folder);
    mValue = path;
    open(static_cast<PathKind>(kind));
    const QFileDialog *dialog = openDialog();
    QCOMPARE(dialog->directory().absolutePath(), mHere + folder);
    QTEST(dialog->findChild<QLineEdit *>("fileNameEdit")->text(), "name");
}

void tst_ConfWidgetPath::chosenPathIsStored()
{
    const QLineEdit *field = open();
    choose(openDialog(), mHere + "/folder/file.txt");
    QCOMPARE(mValue, mHere + "/folder/file.txt");
    QCOMPARE(field->text(), QDir::toNativeSeparators(mValue));
    QCOMPARE(mFixture->changes, 1);
    QCOMPARE(changedMark(mFixture->editor), QString("1"));
    QTRY_VERIFY(!mFixture->child<QFileDialog>());
}

void tst_ConfWidgetPath::cancelledDialogStoresNothing()
{
    open();
    QTest::keyClick(openDialog(), Qt::Key_Escape);
    QTRY_VERIFY(!mFixture->child<QFileDialog>());
    QCOMPARE(mFixture->changes, 0);
}

void tst_ConfWidgetPath::typedPathIsStoredBeforeTheDialogOpens()
{
    QLineEdit *field = open();
    mButton->setFocusPolicy(Qt::NoFocus); // as on macOS
    QTest::keyClicks(field, "folder/file.txt");
    const QFileDialog *dialog = openDialog();
    QCOMPARE(mValue, QString("folder/file.txt"));
    QCOMPARE(dialog->directory().absolutePath(), mHere + "/folder");
}

void tst_ConfWidgetPath::callbackMayDeleteTheEditorWhenAPathIsChosen()
{
    open();
    QPointer<QFileDialog> dialog = openDialog();
    mFixture->deleteEditorInCallback();
    choose(dialog, mHere + "/folder/file.txt");
    QVERIFY(!mItem->editor);
    QCOMPARE(mValue, mHere + "/folder/file.txt");
    QTRY_VERIFY(!dialog);
}

void tst_ConfWidgetPath::editorMayBeDeletedWhileTheDialogIsOpen()
{
    open();
    const QPointer<QFileDialog> dialog = openDialog();
    delete mFixture->editor.data();
    QVERIFY(!dialog);
    QCOMPARE(mFixture->changes, 0);
}

void tst_ConfWidgetPath::callbackMayDeleteTheEditorBeforeTheDialogOpens()
{
    QLineEdit *field = open();
    mButton->setFocusPolicy(Qt::NoFocus);
    mFixture->deleteEditorInCallback();
    QTest::keyClicks(field, "x");
    QTest::mouseClick(mButton, Qt::LeftButton);
    QVERIFY(!mItem->editor);
    QCOMPARE(mValue, QString("x"));
    QVERIFY(!QApplication::activeModalWidget());
}

void tst_ConfWidgetPath::refreshNeverStores()
{
    mValue = "~/a\\b";
    open();
    mFixture->editor->loadConf();
    mFixture->editor->retranslateUi();
    mFixture->editor->commit();
    mFixture->other->setFocus();
    QCOMPARE(mValue, QString("~/a\\b"));
    QCOMPARE(mFixture->changes, 0);
    QVERIFY(mFixture->lastChangeTime().isNull());
}

void tst_ConfWidgetPath::textsFollowTheLanguage()
{
    mValue = "none";
    open(PathKind::ExistingFile, "Texts (*.txt)");
    const Prefixer german;
    mFixture->editor->retranslateUi();
    QCOMPARE(mButton->text(), QString("de Browse..."));
    QCOMPARE(mButton->accessibleName(), QString("de Browse..."));
    QCOMPARE(mFixture->shownMessage(), QString("de This file does not exist."));
    const QFileDialog *dialog = openDialog();
    QCOMPARE(dialog->windowTitle(), QString("de Template"));
    QCOMPARE(dialog->nameFilters(), QStringList("de Texts (*.txt)"));
}

void tst_ConfWidgetPath::pathReadsFromLeftToRightInEveryLanguage()
{
    const QLineEdit *field = open();
    mFixture->parent.setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(field->layoutDirection(), Qt::LeftToRight);
    QTRY_VERIFY(mButton->x() < field->x());
}

void tst_ConfWidgetPath::controlsWorkByKeyboard()
{
    QLineEdit *field = open();
    QTest::keyClick(field, Qt::Key_Tab);
    QVERIFY(mButton->hasFocus());
    QTest::keyClick(mButton, Qt::Key_Space);
    QVERIFY(mFixture->child<QFileDialog>());
}

void tst_ConfWidgetPath::factoryNeedsAnItem()
{
    QTest::ignoreMessage(QtCriticalMsg, "ConfigItemWidget without an item");
    QVERIFY(!ConfWidgetPath::CreatConfWidget(nullptr, &mFixture->parent));
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfWidgetPath>(argc, argv);
}

#include "tst_ConfWidgetPath.moc"
