#include "DemoFixture.h"
#include "demo/MainWindow.h"
#include "demo/MessageLog.h"
#include "support/TestMain.h"

#include <QMessageBox>
#include <QPlainTextEdit>
#include <QTableView>
#include <QThread>
#include <QTimer>

class tst_MainWindow : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void variablesChangeInTheTableWhileTheyAreEdited();
    void profilesAppearInAndDisappearFromTheTable();
    void logShowsMessagesOfEveryThread();
    void destroyedLogRestoresThePreviousHandler();
    void destroyedLogKeepsAHandlerInstalledLater();
    void newLogWorksIfTheHandlerOfAnEarlierLogIsReinstalled();
    void restoringAllUpdatesTheOpenSettingsWindow();
    void closingTheWindowClosesTheSettingsAndSaves();

private:
    static QString cell(const MainWindow &window, const QString &key, int column)
    {
        const QAbstractItemModel *model = window.findChild<QTableView *>("boundValues")->model();
        for (int row = 0; row < model->rowCount(); ++row) {
            if (model->index(row, 0).data().toString() == key)
                return model->index(row, column).data().toString();
        }
        return QStringLiteral("no such row");
    }
};

void tst_MainWindow::variablesChangeInTheTableWhileTheyAreEdited()
{
    DemoFixture demo;
    demo.start();
    const MessageLog log;
    MainWindow window(*demo.session, log);
    window.show();
    QCOMPARE(cell(window, "General.Tips", 1), QStringLiteral("true"));
    QCOMPARE(cell(window, "General.Tips", 2), QString());
    QTest::mouseClick(window.findChild<QPushButton *>("showSettings"), Qt::LeftButton);
    QVERIFY(QTest::qWaitForWindowExposed(demo.window()));
    demo.click(demo.checkBox("General", "Tips"));
    QTRY_COMPARE(cell(window, "General.Tips", 1), QStringLiteral("false"));
    QCOMPARE(cell(window, "General.Tips", 2), QStringLiteral("changed"));
    demo.click(demo.checkBox("General", "Tips"));
    QTRY_COMPARE(cell(window, "General.Tips", 1), QStringLiteral("true"));
    QCOMPARE(cell(window, "General.Tips", 2), QString());
}

void tst_MainWindow::profilesAppearInAndDisappearFromTheTable()
{
    DemoFixture demo;
    demo.start();
    const MessageLog log;
    MainWindow window(*demo.session, log);
    QVERIFY(cell(window, "Profiles.Screen", 1).contains("\"width\":1920"));
    const QString key = demo.session->profiles().add();
    QTRY_COMPARE(cell(window, key, 2), QStringLiteral("changed"));
    demo.session->profiles().remove(key);
    QTRY_COMPARE(cell(window, key, 2), QStringLiteral("no such row"));
}

void tst_MainWindow::logShowsMessagesOfEveryThread()
{
    DemoFixture demo;
    demo.start();
    const MessageLog log;
    MainWindow window(*demo.session, log);
    auto *pane = window.findChild<QPlainTextEdit *>("log");
    const std::unique_ptr<QThread> thread(
        QThread::create([] { qWarning("from a thread <b>&amp;"); }));
    thread->start();
    QVERIFY(thread->wait());
    qInfo("from the program");
    QTRY_VERIFY(pane->toPlainText().contains("warning  from a thread <b>&amp;"));
    QTRY_VERIFY(pane->toPlainText().contains("info  from the program"));
}

void tst_MainWindow::destroyedLogRestoresThePreviousHandler()
{
    const QtMessageHandler earlier = [](QtMsgType, const QMessageLogContext &, const QString &) {};
    const QtMessageHandler before = qInstallMessageHandler(earlier);
    {
        const MessageLog log;
    }
    QCOMPARE(reinterpret_cast<quintptr>(qInstallMessageHandler(before)),
             reinterpret_cast<quintptr>(earlier));
}

void tst_MainWindow::destroyedLogKeepsAHandlerInstalledLater()
{
    const QtMessageHandler later = [](QtMsgType, const QMessageLogContext &, const QString &) {};
    QtMessageHandler before = nullptr;
    {
        before = qInstallMessageHandler(later);
        qInstallMessageHandler(before);
        const MessageLog log;
        qInstallMessageHandler(later);
    }
    QCOMPARE(reinterpret_cast<quintptr>(qInstallMessageHandler(before)),
             reinterpret_cast<quintptr>(later));
}

void tst_MainWindow::newLogWorksIfTheHandlerOfAnEarlierLogIsReinstalled()
{
    const QtMessageHandler later = [](QtMsgType, const QMessageLogContext &, const QString &) {};
    const QtMessageHandler before = qInstallMessageHandler(later);
    qInstallMessageHandler(before);
    auto first = std::make_unique<MessageLog>();
    const QtMessageHandler ofTheLog = qInstallMessageHandler(later);
    first.reset();
    qInstallMessageHandler(ofTheLog);
    {
        const MessageLog second;
        qInfo("once");
        QTRY_COMPARE(second.messages().size(), 1);
    }
    qInstallMessageHandler(before);
}

void tst_MainWindow::restoringAllUpdatesTheOpenSettingsWindow()
{
    DemoFixture demo;
    demo.start();
    const MessageLog log;
    MainWindow window(*demo.session, log);
    window.show();
    window.showSettings(QStringLiteral("General"));
    demo.click(demo.checkBox("General", "Tips"));
    QVERIFY(!demo.checkBox("General", "Tips")->isChecked());
    QTimer::singleShot(0, &window, [] {
        auto *question = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        QTest::mouseClick(question->button(QMessageBox::Yes), Qt::LeftButton);
    });
    QTest::mouseClick(window.findChild<QPushButton *>("restoreAll"), Qt::LeftButton);
    QCOMPARE(demo.settings().showTips, true);
    QVERIFY(demo.checkBox("General", "Tips")->isChecked());
    QCOMPARE(demo.checkBox("General", "Tips")->property("changed").toString(), QStringLiteral("0"));
}

void tst_MainWindow::closingTheWindowClosesTheSettingsAndSaves()
{
    DemoFixture demo;
    demo.start();
    const MessageLog log;
    MainWindow window(*demo.session, log);
    window.show();
    window.showSettings(QStringLiteral("General"));
    demo.click(demo.checkBox("General", "Tips"));
    window.close();
    QTRY_VERIFY(!demo.window());
    QVERIFY(QFile::exists(demo.localFile()));
}

int main(int argc, char **argv)
{
    return runTest<tst_MainWindow>(argc, argv);
}
#include "tst_MainWindow.moc"
