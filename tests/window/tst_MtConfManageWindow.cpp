#include "support/LogCapture.h"
#include "support/TestMain.h"
#include "support/WindowFixture.h"

using MtConf::ConfigurationWindow;
using MtConf::MtConfManage;

/// How the manager shows and closes the window, and that there is only one.
class tst_MtConfManageWindow : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        mFixture = std::make_unique<WindowFixture>();
        mFixture->manager->addConfBool("First", &mFlag, "General", "First");
        mFixture->manager->addConfBool("Second", &mFlag, "Other", "Second");
    }
    void cleanup() { mFixture.reset(); }

    void showingTwiceShowsOneWindow();
    void minimisedWindowIsRestored();
    void emptyPageNameKeepsThePage();
    void pageNameOpensThePage();
    void closedWindowIsCreatedAgain();
    void windowIsCreatedAgainBeforeTheClosedOneIsDeleted();
    void destroyedManagerDeletesClosedWindowsToo();
    void closingWithoutAWindowDoesNothing();
    void stayOnTopWithoutAWindowDoesNothing();
    void stayOnTopLeavesAClosedWindowClosed();
    void stayOnTopKeepsGeometryAndVisibility();
    void windowOfAnotherManagerIsKept();
    void destroyedManagerDeletesItsWindow();
    void destroyedManagerKeepsTheWindowOfAnother();
    void windowWithoutManagerIsNotShown();
    void windowConstructedWithoutManagerIsEmpty();
    void hostMayDeleteTheWindow();
    void hostMayDeleteTheWindowWhileItsManagerIsDestroyed();

private:
    std::unique_ptr<WindowFixture> mFixture;
    bool mFlag = true;
};

void tst_MtConfManageWindow::showingTwiceShowsOneWindow()
{
    ConfigurationWindow *first = mFixture->manager->ShowWindow();
    QVERIFY(first->isVisible());
    QCOMPARE(mFixture->manager->ShowWindow(), first);
    QCOMPARE(MtConf::ShowConfigurationWindow(nullptr), first);
    QCOMPARE(ConfigurationWindow::instance(), first);
}

void tst_MtConfManageWindow::minimisedWindowIsRestored()
{
    ConfigurationWindow *window = mFixture->open();
    window->showMinimized();
    QVERIFY(window->isMinimized());
    mFixture->manager->ShowWindow();
    QVERIFY(!window->isMinimized());
    QVERIFY(window->isVisible());
}

void tst_MtConfManageWindow::emptyPageNameKeepsThePage()
{
    mFixture->open("Other");
    mFixture->manager->ShowWindow(QString());
    QCOMPARE(mFixture->captions(), QStringList("Other"));
}

void tst_MtConfManageWindow::pageNameOpensThePage()
{
    mFixture->open("Other");
    QCOMPARE(mFixture->captions(), QStringList("Other"));
    mFixture->manager->ShowWindow("General");
    QCOMPARE(mFixture->captions(), QStringList("General"));
}

void tst_MtConfManageWindow::closedWindowIsCreatedAgain()
{
    mFixture->open("Other");
    QVERIFY(mFixture->close());
    mFixture->open();
    QCOMPARE(mFixture->captions(), QStringList("General"));
}

void tst_MtConfManageWindow::windowIsCreatedAgainBeforeTheClosedOneIsDeleted()
{
    const QRect geometry(60, 70, 640, 480);
    const QPointer<ConfigurationWindow> old = mFixture->open();
    old->setGeometry(geometry);
    QTRY_COMPARE(old->geometry(), geometry);
    mFixture->manager->closeConfigWindow();
    const QPointer<ConfigurationWindow> window = mFixture->manager->ShowWindow();
    QVERIFY(window != old);
    QTRY_VERIFY(!old);
    QVERIFY(window);
    QCOMPARE(ConfigurationWindow::instance(), window.data());
    QTRY_COMPARE(window->geometry(), geometry);
    QVERIFY(mFixture->close());
    QVERIFY(!window);
}

void tst_MtConfManageWindow::destroyedManagerDeletesClosedWindowsToo()
{
    const QPointer<ConfigurationWindow> old = mFixture->open();
    mFixture->manager->closeConfigWindow();
    const QPointer<ConfigurationWindow> window = mFixture->manager->ShowWindow();
    mFixture->manager.reset();
    QVERIFY(!old);
    QVERIFY(!window);
}

void tst_MtConfManageWindow::closingWithoutAWindowDoesNothing()
{
    mFixture->manager->closeConfigWindow();
    QVERIFY(!ConfigurationWindow::instance());
}

void tst_MtConfManageWindow::stayOnTopWithoutAWindowDoesNothing()
{
    mFixture->manager->setWindowStayOnTop(true);
    MtConf::setStaysOnTopHint(false);
    QVERIFY(!ConfigurationWindow::instance());
}

void tst_MtConfManageWindow::stayOnTopLeavesAClosedWindowClosed()
{
    const QPointer<ConfigurationWindow> window = mFixture->open();
    mFixture->manager->closeConfigWindow();
    mFixture->manager->setWindowStayOnTop(false);
    QVERIFY(!window->isVisible());
    QTRY_VERIFY(!window);
}

void tst_MtConfManageWindow::stayOnTopKeepsGeometryAndVisibility()
{
    ConfigurationWindow *window = mFixture->open();
    const QRect geometry = window->geometry();
    mFixture->manager->setWindowStayOnTop(false);
    QVERIFY(!(window->windowFlags() & Qt::WindowStaysOnTopHint));
    QVERIFY(window->isVisible());
    QTRY_COMPARE(window->geometry(), geometry);
    mFixture->manager->setWindowStayOnTop(true);
    QVERIFY(window->windowFlags() & Qt::WindowStaysOnTopHint);
    QVERIFY(window->isVisible());
    QTRY_COMPARE(window->geometry(), geometry);
}

void tst_MtConfManageWindow::windowOfAnotherManagerIsKept()
{
    ConfigurationWindow *window = mFixture->open();
    MtConfManage another;
    QCOMPARE(another.ShowWindow(), window);
    QCOMPARE(window->manager(), mFixture->manager.get());
}

void tst_MtConfManageWindow::destroyedManagerDeletesItsWindow()
{
    mFixture->open();
    mFixture->store()->set<bool>("General.First", false);
    mFixture->manager.reset();
    QVERIFY(!ConfigurationWindow::instance());
    QVERIFY(QFile::exists(mFixture->localFile()));
    QVERIFY(QFile::exists(mFixture->geometryFile()));
}

void tst_MtConfManageWindow::destroyedManagerKeepsTheWindowOfAnother()
{
    ConfigurationWindow *window = mFixture->open();
    {
        MtConfManage another;
    }
    QCOMPARE(ConfigurationWindow::instance(), window);
}

void tst_MtConfManageWindow::windowWithoutManagerIsNotShown()
{
    const LogCapture log;
    QVERIFY(!MtConf::ShowConfigurationWindow(nullptr));
    QCOMPARE(log.texts(QtCriticalMsg), QStringList("ShowConfigurationWindow without a manager"));
}

void tst_MtConfManageWindow::windowConstructedWithoutManagerIsEmpty()
{
    const LogCapture log;
    ConfigurationWindow window(nullptr);
    window.setAttribute(Qt::WA_DeleteOnClose, false);
    window.show();
    window.switchToView("General");
    QTimer::singleShot(0, [] {
        auto *question = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        QTest::mouseClick(question->button(QMessageBox::Yes), Qt::LeftButton);
    });
    window.restoreAllDefault();
    window.close();
    QCOMPARE(log.texts(QtCriticalMsg), QStringList("ConfigurationWindow without a manager"));
}

void tst_MtConfManageWindow::hostMayDeleteTheWindow()
{
    delete mFixture->open();
    QVERIFY(!ConfigurationWindow::instance());
    QVERIFY(mFixture->open());
}

void tst_MtConfManageWindow::hostMayDeleteTheWindowWhileItsManagerIsDestroyed()
{
    /// Deletes the watched window when it receives its close event.
    class Deleter : public QObject
    {
        bool eventFilter(QObject *watched, QEvent *event) override
        {
            if (event->type() != QEvent::Close)
                return false;
            delete watched;
            return true;
        }
    } deleter;
    mFixture->open()->installEventFilter(&deleter);
    mFixture->manager.reset();
    QVERIFY(!ConfigurationWindow::instance());
}

int main(int argc, char **argv)
{
    return runTest<tst_MtConfManageWindow>(argc, argv);
}

#include "tst_MtConfManageWindow.moc"
