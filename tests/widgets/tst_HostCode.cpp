#include "MaltoConfiguration/widgets/HostCode_p.h"
#include "support/TestMain.h"

#include <QEventLoop>
#include <QPushButton>
#include <QTimer>

#include <functional>
#include <memory>

using MtConf::HostCode;
using MtConf::HostCodeScope;

/// The counter of running host code, and the deletions that wait for it.
class tst_HostCode : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        mWindow = new QWidget;
        mCounter = HostCode::of(mWindow);
        mPage = new QWidget(mWindow);
    }
    void cleanup()
    {
        delete mWindow;
        mCounter.reset();
    }

    void widgetsOfAWindowShareItsCounter();
    void counterOfAWindowStaysWhenTheWindowGetsAParent();
    void widgetIsDeletedAtOnceWithoutHostCode();
    void widgetWaitsForTheOutermostScope();
    void widgetWaitsForTheEventThatLedToTheScope();
    void widgetWaitsForTheEventThatLedToTheOutermostScope();
    void deferredDeletionsInsideAScopeDeleteNothing();
    void waitingWidgetsMayBeDeletedByOthers();
    void windowMayBeDeletedWithItsPage();
    void destructorOfAWidgetIsHostCode();
    void widgetWithoutAWindowWaitsForTheScope();
    void scopeWithoutACounterHasNoEffect();

private:
    static void processDeferredDeletions()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    /// Runs an event loop, and `function` in its second turn, at the end.
    static void runLoop(const std::function<void()> &function)
    {
        QEventLoop loop;
        QTimer::singleShot(0, &loop, [&] {
            QTimer::singleShot(0, &loop, [&] {
                function();
                loop.quit();
            });
        });
        loop.exec();
    }
    /// Calls `function` from the handler of a click, inside an event loop, as in a program.
    static void runInAnEvent(const std::function<void()> &function)
    {
        QPushButton button;
        connect(&button, &QPushButton::clicked, &button, function);
        runLoop([&] { QTest::mouseClick(&button, Qt::LeftButton); });
    }

    QPointer<QWidget> mWindow;
    std::shared_ptr<HostCode> mCounter;
    QPointer<QWidget> mPage;
};

void tst_HostCode::widgetsOfAWindowShareItsCounter()
{
    QVERIFY(mCounter);
    QCOMPARE(HostCode::of(mWindow), mCounter);
    QCOMPARE(HostCode::of(new QWidget(mPage)), mCounter);
    auto *dialog = new QWidget(mPage, Qt::Dialog);
    QCOMPARE(HostCode::of(new QWidget(dialog)), mCounter);
    QWidget other;
    QVERIFY(HostCode::of(&other) != mCounter);
}

void tst_HostCode::counterOfAWindowStaysWhenTheWindowGetsAParent()
{
    QWidget host;
    const auto hosts = HostCode::of(&host);
    mWindow->setParent(&host);
    QCOMPARE(HostCode::of(mPage), mCounter);
    QVERIFY(hosts != mCounter);
}

void tst_HostCode::widgetIsDeletedAtOnceWithoutHostCode()
{
    QVERIFY(!mCounter->isRunning());
    mCounter->deleteWidget(nullptr);
    mCounter->deleteWidget(mPage);
    QVERIFY(!mPage);
    QVERIFY(!mCounter->isRunning());
}

void tst_HostCode::widgetWaitsForTheOutermostScope()
{
    mPage->show();
    {
        const HostCodeScope outer(mCounter);
        {
            const HostCodeScope inner(mCounter);
            mCounter->deleteWidget(mPage);
        }
        QVERIFY(mCounter->isRunning());
        processDeferredDeletions();
        QVERIFY(mPage);
        QVERIFY(mPage->isHidden());
    }
    QVERIFY(!mCounter->isRunning());
    QVERIFY(mPage);
    processDeferredDeletions();
    QVERIFY(!mPage);
}

void tst_HostCode::widgetWaitsForTheEventThatLedToTheScope()
{
    bool isPageThere = false;
    runInAnEvent([&] {
        {
            const HostCodeScope scope(mCounter);
            mCounter->deleteWidget(mPage);
        }
        // An event loop of the control that called the host, with other host code in it.
        runLoop([&] { const HostCodeScope another(mCounter); });
        runLoop([&] { isPageThere = mPage; });
    });
    QVERIFY(isPageThere);
    QTRY_VERIFY(!mPage);
}

void tst_HostCode::widgetWaitsForTheEventThatLedToTheOutermostScope()
{
    bool isPageThere = false;
    runInAnEvent([&] {
        {
            const HostCodeScope outer(mCounter);
            mCounter->deleteWidget(mPage);
            // A dialog of the host, in which more host code runs.
            runLoop([&] { const HostCodeScope inner(mCounter); });
        }
        runLoop([&] { isPageThere = mPage; });
    });
    QVERIFY(isPageThere);
    QTRY_VERIFY(!mPage);
}

void tst_HostCode::deferredDeletionsInsideAScopeDeleteNothing()
{
    {
        const HostCodeScope first(mCounter);
        mCounter->deleteWidget(mPage);
    }
    {
        const HostCodeScope second(mCounter);
        processDeferredDeletions();
        QVERIFY(mPage);
    }
    processDeferredDeletions();
    QVERIFY(!mPage);
}

void tst_HostCode::waitingWidgetsMayBeDeletedByOthers()
{
    {
        const HostCodeScope scope(mCounter);
        mCounter->deleteWidget(mPage);
        mCounter->deleteWidget(mPage);
        mCounter->deleteWidget(new QWidget(mPage));
    }
    delete mPage;
    processDeferredDeletions();
    QVERIFY(mWindow);
}

void tst_HostCode::windowMayBeDeletedWithItsPage()
{
    {
        const HostCodeScope scope(mCounter);
        mCounter->deleteWidget(mWindow);
        mCounter->deleteWidget(mPage);
    }
    QVERIFY(mWindow);
    processDeferredDeletions();
    QVERIFY(!mWindow);
    QVERIFY(!mPage);
}

void tst_HostCode::destructorOfAWidgetIsHostCode()
{
    // A page of the host that has the whole window deleted when it is itself deleted.
    connect(mPage, &QObject::destroyed, this, [this] { mCounter->deleteWidget(mWindow); });
    mCounter->deleteWidget(mPage);
    QVERIFY(!mPage);
    QVERIFY(mWindow);
    processDeferredDeletions();
    QVERIFY(!mWindow);
}

void tst_HostCode::widgetWithoutAWindowWaitsForTheScope()
{
    mPage->setParent(nullptr);
    {
        const HostCodeScope scope(mCounter);
        mCounter->deleteWidget(mPage);
        // The scope alone keeps the counter alive.
        delete mWindow;
        mCounter.reset();
        processDeferredDeletions();
        QVERIFY(mPage);
    }
    processDeferredDeletions();
    QVERIFY(!mPage);
}

void tst_HostCode::scopeWithoutACounterHasNoEffect()
{
    const HostCodeScope scope(nullptr);
    QVERIFY(!mCounter->isRunning());
}

int main(int argc, char **argv)
{
    return runTest<tst_HostCode>(argc, argv);
}

#include "tst_HostCode.moc"
