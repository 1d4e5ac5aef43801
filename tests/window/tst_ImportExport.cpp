#include "MaltoConfiguration/window/history/SettingsHistory_p.h"
#include "MaltoConfiguration/window/transfer/ImportDialog_p.h"
#include "support/Entries.h"
#include "support/FileText.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"
#include "support/WindowFixture.h"

#include <QDir>
#include <QFileDialog>
#include <QHelpEvent>
#include <QJsonDocument>
#include <QLineEdit>
#include <QScreen>
#include <QSignalSpy>
#include <QSpinBox>
#include <QToolTip>
#include <QTranslator>
#include <QTreeWidget>
#include <QxtGlobalShortcut>

#include <functional>
#include <sys/stat.h>

using MtConf::ConfigurationWindow;
using MtConf::ImportDialog;
using MtConf::SettingsHistory;

namespace {

const char sFile[] = "in.json";

/// Calls the next of its functions with each dialog that is opened.
class Answers : public QObject
{
public:
    using Answer = std::function<void(QWidget *dialog)>;

    explicit Answers(const QList<Answer> &answers) : mAnswers(answers) { startTimer(5); }
    /// Returns whether all dialogs were opened.
    bool areGiven() const { return mAnswers.isEmpty(); }

protected:
    void timerEvent(QTimerEvent *) override
    {
        QWidget *dialog = QApplication::activeModalWidget();
        if (!dialog || !dialog->isVisible() || mAnswered.contains(dialog))
            return;
        mAnswered.append(dialog);
        if (mAnswers.isEmpty())
            qFatal("unexpected dialog: %s", qPrintable(dialog->windowTitle()));
        // Not from here: the answer may open another dialog, which this timer has to notice.
        QTimer::singleShot(0, dialog, [dialog, answer = mAnswers.takeFirst()] { answer(dialog); });
    }

private:
    QList<Answer> mAnswers;
    QList<QPointer<QWidget>> mAnswered;
};

/// Types a path into a file dialog and confirms it.
Answers::Answer choose(const QString &name)
{
    return [name](QWidget *dialog) {
        auto *edit = dialog->findChild<QLineEdit *>("fileNameEdit");
        edit->setText(QDir::current().filePath(name));
        QTest::keyClick(edit, Qt::Key_Return);
    };
}

/// Stores the text of a message box in `text` and closes it.
Answers::Answer read(QString *text)
{
    return [text](QWidget *dialog) {
        auto *box = qobject_cast<QMessageBox *>(dialog);
        *text = box ? box->text() : dialog->windowTitle();
        dialog->close();
    };
}

void accept(QWidget *dialog)
{
    qobject_cast<QDialog *>(dialog)->accept();
}
void reject(QWidget *dialog)
{
    qobject_cast<QDialog *>(dialog)->reject();
}

} // namespace

class tst_ImportExport : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void init()
    {
        mFixture = std::make_unique<WindowFixture>();
        mFixture->manager->windowFeatures = MtConf::ImportExportFeature;
        mDelay = 3;
        mSound = true;
        mFixture->manager->addConfInt32("Delay", &mDelay, "Capture", "Delay");
        mFixture->manager->addConfBool("Sound", &mSound, "Capture", "Sound");
    }
    void cleanup()
    {
        mFixture.reset();
        for (const QString &file : QDir().entryList(QDir::Files))
            QFile::remove(file);
    }

    void buttonsNeedTheFeature();
    void exportWritesTheChosenFile();
    void exportProposesTheNameOfTheHost();
    void whatEditorsHoldIsExported();
    void existingFileIsReplacedOnlyIfTheUserAgrees();
    void failedExportIsSaid();
    void checkedSettingsAreImported();
    void importByKeyboard();
    void cancelledImportChangesNothing();
    void fileWithoutChangesIsSaid();
    void damagedFileIsSaid();
    void importedHotkeyIsRegistered();
    void importIsOneStepOfTheHistory();
    void whatThePageStoresInAnswerIsUndoneWithTheImport();
    void previewFitsTheScreen();
    void importedValuesCountAsChangedHere();
    void fileOfTheFirstMachineIsImportedOnTheSecond();
    void windowMayBeDeletedInEachDialog_data();
    void windowMayBeDeletedInEachDialog();
    void callbackMayDestroyTheManager();
    void textsFollowTheLanguage();
    void longTextsAreBelowEachOther();
    void narrowListHidesTheButtons();
    void tabLeadsToTheButtons();

private:
    QPushButton *button(const char *name) { return WindowFixture::child<QPushButton>(name); }
    bool click(const char *name, const QList<Answers::Answer> &list)
    {
        const Answers answers(list);
        QTest::mouseClick(button(name), Qt::LeftButton);
        return answers.areGiven();
    }
    static QJsonObject entriesOf(const QString &file)
    {
        return QJsonDocument::fromJson(fileText(file)).object();
    }

    std::unique_ptr<WindowFixture> mFixture;
    int mDelay = 3;
    bool mSound = true;
};

void tst_ImportExport::buttonsNeedTheFeature()
{
    QVERIFY(mFixture->open());
    QVERIFY(button("btnImport")->isVisible());
    QVERIFY(button("btnExport")->isVisible());
    QVERIFY(mFixture->close());
    mFixture->manager->windowFeatures = 0;
    QVERIFY(mFixture->open());
    QVERIFY(!button("btnImport"));
}

void tst_ImportExport::exportWritesTheChosenFile()
{
    QVERIFY(mFixture->open());
    WindowFixture::store()->set("Capture.Delay", 8);
    QVERIFY(click("btnExport", {choose("out")}));
    QCOMPARE(entriesOf("out.json").value("Capture.Delay").toObject().value("v"), QJsonValue(8));
}

void tst_ImportExport::exportProposesTheNameOfTheHost()
{
    QGuiApplication::setApplicationDisplayName("Screen: Tool");
    QVERIFY(mFixture->open());
    QString name;
    QVERIFY(click("btnExport", {[&](QWidget *dialog) {
                      name = dialog->findChild<QLineEdit *>("fileNameEdit")->text();
                      reject(dialog);
                  }}));
    QGuiApplication::setApplicationDisplayName(QString());
    QCOMPARE(name, QString("Screen Tool settings.json"));
    QVERIFY(QDir().entryList({"*.json"}, QDir::Files).isEmpty());
}

void tst_ImportExport::whatEditorsHoldIsExported()
{
    /// Stores its text only when it is told to.
    struct Editor : MtConf::ConfigItemWidget
    {
        using ConfigItemWidget::ConfigItemWidget;
        void loadConf() override {}
        void commit() override
        {
            if (!typed.isEmpty())
                writeValue(typed);
        }
        QString typed;
    };
    QString text;
    mFixture->manager->addConfQString(
        "Text", &text, "Capture", "Text", "",
        [](MtConf::ConfItem *item, QWidget *parent) { return new Editor(item, parent); });
    QVERIFY(mFixture->open());
    auto *editor = mFixture->manager->getItemByName("Capture", "Text", "")->editor;
    static_cast<Editor *>(editor)->typed = "typed";
    QVERIFY(click("btnExport", {choose("out.json")}));
    QCOMPARE(entriesOf("out.json").value("Capture.Text").toObject().value("v"),
             QJsonValue("typed"));
    mFixture.reset(); // while the variable exists
}

void tst_ImportExport::existingFileIsReplacedOnlyIfTheUserAgrees()
{
    writeFile("out.json", "old");
    QVERIFY(mFixture->open());
    const auto answerBox = [](QMessageBox::StandardButton answer) {
        return [answer](QWidget *dialog) {
            QTest::mouseClick(qobject_cast<QMessageBox *>(dialog)->button(answer), Qt::LeftButton);
        };
    };
    {
        QPointer<QWidget> fileDialog;
        const Answers::Answer chooseAndGiveUp = [&](QWidget *dialog) {
            fileDialog = dialog;
            choose("out.json")(dialog);
        };
        const Answers::Answer refuse = [&](QWidget *dialog) {
            answerBox(QMessageBox::No)(dialog);
            QTimer::singleShot(0, fileDialog, [fileDialog] { reject(fileDialog); });
        };
        QVERIFY(click("btnExport", {chooseAndGiveUp, refuse}));
    }
    QCOMPARE(fileText("out.json"), QByteArray("old"));
    QVERIFY(click("btnExport", {choose("out.json"), answerBox(QMessageBox::Yes)}));
    QCOMPARE(fileText("out.json"), QByteArray("{\n}\n"));
}

void tst_ImportExport::failedExportIsSaid()
{
    QVERIFY(mFixture->open());
    QString said;
    const LogCapture log;
    QCOMPARE(::mkfifo("pipe.json", 0600), 0); // which is not replaced
    const auto agree = [](QWidget *dialog) {
        QTest::mouseClick(qobject_cast<QMessageBox *>(dialog)->button(QMessageBox::Yes),
                          Qt::LeftButton);
    };
    QVERIFY(click("btnExport", {choose("pipe.json"), agree, read(&said)}));
    QVERIFY2(said.startsWith("The settings could not be saved in \""), qPrintable(said));
}

void tst_ImportExport::checkedSettingsAreImported()
{
    writeFile(sFile, R"({"Capture.Delay": {"t": 100, "v": 8},
                         "Capture.Sound": {"t": 100, "v": false},
                         "Other.Key": {"t": 100, "v": 1}})");
    QVERIFY(mFixture->open());
    QStringList texts;
    QVERIFY(click("btnImport",
                  {choose(sFile), [&](QWidget *dialog) {
                       auto *tree = dialog->findChild<QTreeWidget *>();
                       texts << dialog->windowTitle() << tree->topLevelItem(0)->text(0)
                             << tree->topLevelItem(0)->child(0)->text(1)
                             << tree->topLevelItem(0)->child(1)->text(2)
                             << dialog->findChild<QLabel *>("ImportNotes")->text();
                       tree->topLevelItem(0)->child(1)->setCheckState(0, Qt::Unchecked);
                       QTest::mouseClick(dialog->findChild<QPushButton *>("btnImportChecked"),
                                         Qt::LeftButton);
                   }}));
    QCOMPARE(texts, QStringList({"Import settings", "Capture", "3 (default)", "No",
                                 "Entries of other versions, which are left out: 1"}));
    QCOMPARE(mDelay, 8);
    QCOMPARE(mSound, true);
    // The page shows it.
    const MtConf::ConfItem *item = mFixture->manager->getItemByName("Capture", "Delay", "");
    QCOMPARE(item->editor->findChild<QSpinBox *>()->value(), 8);
    QVERIFY(mFixture->close());
    QCOMPARE(entriesOf(WindowFixture::localFile()).value("Capture.Delay").toObject().value("v"),
             QJsonValue(8));
}

void tst_ImportExport::importByKeyboard()
{
    writeFile(sFile, R"({"Capture.Delay": {"t": 100, "v": 8},
                         "Capture.Sound": {"t": 100, "v": false}})");
    QVERIFY(mFixture->open());
    WindowFixture::window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(WindowFixture::window()));
    const Answers answers({choose(sFile), [](QWidget *dialog) {
                               QTest::keyClick(dialog->focusWidget(), Qt::Key_Down);
                               QTest::keyClick(dialog->focusWidget(), Qt::Key_Space);
                               QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
                           }});
    button("btnImport")->setFocus();
    QTest::keyClick(button("btnImport"), Qt::Key_Space);
    QVERIFY(answers.areGiven());
    QCOMPARE(mDelay, 3);
    QCOMPARE(mSound, false);
}

void tst_ImportExport::cancelledImportChangesNothing()
{
    writeFile(sFile, R"({"Capture.Delay": {"t": 100, "v": 8}})");
    QVERIFY(mFixture->open());
    WindowFixture::store()->mChanged = false;
    QVERIFY(click("btnImport", {reject}));
    QVERIFY(click("btnImport", {choose(sFile), reject}));
    QCOMPARE(mDelay, 3);
    QVERIFY(!WindowFixture::store()->mChanged);
}

void tst_ImportExport::fileWithoutChangesIsSaid()
{
    writeFile(sFile, R"({"Capture.Delay": {"t": 100, "v": 3}, "Other.Key": {"t": 100}})");
    QVERIFY(mFixture->open());
    QString said;
    QVERIFY(click("btnImport", {choose(sFile), read(&said)}));
    QCOMPARE(said, QString("The file \"in.json\" changes nothing here.\n"
                           "Entries of other versions, which are left out: 1"));
}

void tst_ImportExport::damagedFileIsSaid()
{
    writeFile(sFile, R"({"Capture.Delay": {"t": 100, )");
    QVERIFY(mFixture->open());
    QString said;
    const LogCapture log;
    QVERIFY(click("btnImport", {choose(sFile), read(&said)}));
    QCOMPARE(said,
             "The file \"" + QDir::current().filePath(sFile) + "\" is damaged or not complete.");
    QCOMPARE(LogCapture::texts(QtWarningMsg).filter("could not be imported").size(), 1);
    QCOMPARE(mDelay, 3);
}

void tst_ImportExport::importedHotkeyIsRegistered()
{
    QKeySequence keys;
    QxtGlobalShortcut shortcut;
    mFixture->manager->addConfQKeySequence("Keys", &keys, "Capture", "Keys")
        ->properties.insert("Shortcut", QVariant::fromValue(&shortcut));
    writeFile(sFile, R"({"Capture.Keys": {"t": 100, "v": "Ctrl+K"}})");
    QVERIFY(mFixture->open());
    QVERIFY(click("btnImport", {choose(sFile), accept}));
    QCOMPARE(shortcut.shortcut(), QKeySequence("Ctrl+K"));
    mFixture.reset(); // while the hotkey exists
}

void tst_ImportExport::importIsOneStepOfTheHistory()
{
    writeFile(sFile, R"({"Capture.Delay": {"t": 100, "v": 8},
                         "Capture.Sound": {"t": 100, "v": false}})");
    mFixture->manager->windowFeatures |= MtConf::UndoFeature;
    QVERIFY(mFixture->open());
    auto *history = WindowFixture::window()->findChild<SettingsHistory *>();
    QVERIFY(click("btnImport", {choose(sFile), accept}));
    QCOMPARE(mDelay, 8);
    QVERIFY(history->canUndo());
    history->undo();
    QCOMPARE(mDelay, 3);
    QCOMPARE(mSound, true);
    QVERIFY(WindowFixture::store()->mConfMetas["Capture.Delay"].flags & ConfStorage::FlagIsDefault);
    QVERIFY(!history->canUndo());
    history->redo();
    QCOMPARE(mDelay, 8);
    QCOMPARE(mSound, false);
}

void tst_ImportExport::whatThePageStoresInAnswerIsUndoneWithTheImport()
{
    writeFile(sFile, R"({"Capture.Delay": {"t": 100, "v": 4000},
                         "Capture.Sound": {"t": 100, "v": false}})");
    mFixture->manager->windowFeatures |= MtConf::UndoFeature;
    QVERIFY(mFixture->open());
    auto *history = WindowFixture::window()->findChild<SettingsHistory *>();
    const QSignalSpy recorded(history, &SettingsHistory::recorded);
    QVERIFY(click("btnImport", {choose(sFile), accept}));
    QCOMPARE(mDelay, 99); // the largest number of the field
    QVERIFY(history->canUndo());
    QCOMPARE(recorded.size(), 1);
    QCOMPARE(recorded.at(0).at(1).toStringList(), QStringList({"Capture.Delay", "Capture.Sound"}));
    history->undo();
    QCOMPARE(mDelay, 3);
    QCOMPARE(mSound, true);
    QVERIFY(!history->canUndo());
}

void tst_ImportExport::previewFitsTheScreen()
{
    writeFile(sFile, R"({"Capture.Delay": {"t": 100, "v": 8}})");
    QVERIFY(mFixture->open());
    QRect shown;
    QVERIFY(click("btnImport", {choose(sFile), [&](QWidget *dialog) {
                                    shown = dialog->frameGeometry();
                                    reject(dialog);
                                }}));
    // At double size the screen of the test is narrower than the buttons.
    QVERIFY(shown.height() <= QGuiApplication::primaryScreen()->availableSize().height());
}

void tst_ImportExport::importedValuesCountAsChangedHere()
{
    int seconds = 3;
    writeFile(sFile, R"({"Capture.Seconds": {"t": 100, "v": 21}})");
    mFixture->manager->windowFeatures |= MtConf::DetailsFeature; // before the declaration
    const MtConf::ConfItem *const item = mFixture->manager->addConfInt32("Seconds", &seconds,
                                                                         "Capture", "Seconds");
    WindowFixture::store()->loadLocalConfFile(); // what is loaded from here on is merged
    QVERIFY(mFixture->open());
    QVERIFY(click("btnImport", {choose(sFile), accept}));
    QCOMPARE(seconds, 21);
    QHelpEvent event(QEvent::ToolTip, QPoint(1, 1), QPoint(1, 1));
    QApplication::sendEvent(item->editor, &event);
    QVERIFY2(QToolTip::text().contains("Changed on "), qPrintable(QToolTip::text()));
    QToolTip::hideText();
    mFixture.reset(); // while the variable exists
}

void tst_ImportExport::fileOfTheFirstMachineIsImportedOnTheSecond()
{
    QVERIFY(mFixture->open());
    WindowFixture::store()->set("Capture.Delay", 8);
    WindowFixture::store()->set("Capture.Sound", false);
    QVERIFY(click("btnExport", {choose("out.json")}));
    const QByteArray file = fileText("out.json");

    mFixture.reset();
    mFixture = std::make_unique<WindowFixture>();
    mFixture->manager->windowFeatures = MtConf::ImportExportFeature;
    mDelay = 4; // another default
    mSound = true;
    mFixture->manager->addConfInt32("Delay", &mDelay, "Capture", "Delay");
    mFixture->manager->addConfBool("Sound", &mSound, "Capture", "Sound");
    WindowFixture::store()->set("Capture.Delay", 5); // later than the file
    writeFile(sFile, file);
    QVERIFY(mFixture->open());
    QVERIFY(click("btnImport", {choose(sFile), accept}));
    QCOMPARE(mDelay, 8);
    QCOMPARE(mSound, false);
}

void tst_ImportExport::windowMayBeDeletedInEachDialog_data()
{
    QTest::addColumn<QString>("clicked");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("dialogs"); // before the one in which the window is deleted
    QTest::newRow("the file dialog of the export") << "btnExport" << QByteArray() << 0;
    QTest::newRow("the file dialog of the import") << "btnImport" << QByteArray() << 0;
    QTest::newRow("the message about a damaged file") << "btnImport" << QByteArray("{") << 1;
    QTest::newRow("the message about no changes") << "btnImport" << QByteArray("{}") << 1;
    QTest::newRow("the preview") << "btnImport"
                                 << QByteArray(R"({"Capture.Delay": {"t": 100, "v": 8}})") << 1;
}

void tst_ImportExport::windowMayBeDeletedInEachDialog()
{
    QFETCH(QString, clicked);
    QFETCH(QByteArray, content);
    QFETCH(int, dialogs);
    writeFile(sFile, content);
    for (const bool deletesManager : {false, true}) {
        QVERIFY(mFixture->open());
        QList<Answers::Answer> answers;
        if (dialogs > 0)
            answers.append(choose(sFile));
        answers.append([&](QWidget *) {
            if (deletesManager)
                mFixture->manager.reset();
            else
                delete WindowFixture::window();
        });
        const LogCapture log;
        QVERIFY(click(qPrintable(clicked), answers));
        QCOMPARE(mDelay, 3);
    }
}

void tst_ImportExport::callbackMayDestroyTheManager()
{
    writeFile(sFile, R"({"Capture.Delay": {"t": 100, "v": 8}})");
    QVERIFY(mFixture->open());
    mFixture->manager->getItemByName("Capture", "Delay", "")
        ->setConfChangedCallback(
            [this](const QString &, const ConfValue *) { mFixture->manager.reset(); });
    QVERIFY(click("btnImport", {choose(sFile), accept}));
    QCOMPARE(mDelay, 8);
    QTRY_VERIFY(!WindowFixture::window());
}

void tst_ImportExport::textsFollowTheLanguage()
{
    struct Prefixer : QTranslator
    {
        QString translate(const char *, const char *source, const char *, int) const override
        {
            return QLatin1String("de ") + QString::fromUtf8(source);
        }
        bool isEmpty() const override { return false; }
    };
    QVERIFY(mFixture->open());
    QCOMPARE(button("btnImport")->text(), QString::fromUtf8("Import…"));
    QCOMPARE(button("btnExport")->text(), QString::fromUtf8("Export…"));
    Prefixer prefixer;
    QVERIFY(QCoreApplication::installTranslator(&prefixer));
    Q_EMIT mFixture->manager->sigLanguageChange();
    QCOMPARE(button("btnImport")->text(), QString::fromUtf8("de Import…"));
    QCOMPARE(button("btnExport")->toolTip(), QString("de Export the settings to a file"));
}

void tst_ImportExport::longTextsAreBelowEachOther()
{
    struct Lengthener : QTranslator
    {
        QString translate(const char *, const char *source, const char *, int) const override
        {
            return QString::fromUtf8(source).repeated(4);
        }
        bool isEmpty() const override { return false; }
    };
    mFixture->manager->windowLook = MtConf::ModernLook; // whose list has a fixed width
    QVERIFY(mFixture->open());
    const int width = WindowFixture::classList()->width();
    QCOMPARE(button("btnImport")->y(), button("btnExport")->y());
    Lengthener lengthener;
    QVERIFY(QCoreApplication::installTranslator(&lengthener));
    Q_EMIT mFixture->manager->sigLanguageChange();
    QTRY_VERIFY(button("btnImport")->y() < button("btnExport")->y());
    QCOMPARE(WindowFixture::classList()->width(), width);
    QVERIFY(button("btnExport")->geometry().right() <= width);
}

void tst_ImportExport::narrowListHidesTheButtons()
{
    QVERIFY(mFixture->open());
    WindowFixture::classList()->setProperty("narrow", "1");
    QVERIFY(!button("btnImport")->isVisible());
    WindowFixture::classList()->setProperty("narrow", "0");
    QVERIFY(button("btnImport")->isVisible());
}

void tst_ImportExport::tabLeadsToTheButtons()
{
    QVERIFY(mFixture->open());
    WindowFixture::window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(WindowFixture::window()));
    WindowFixture::classList()->setFocus();
    QTest::keyClick(WindowFixture::classList(), Qt::Key_Tab);
    QVERIFY(button("btnImport")->hasFocus());
    QTest::keyClick(button("btnImport"), Qt::Key_Tab);
    QVERIFY(button("btnExport")->hasFocus());
}

int main(int argc, char **argv)
{
    return runTest<tst_ImportExport>(argc, argv);
}

#include "tst_ImportExport.moc"
