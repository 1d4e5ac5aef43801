#include "LifetimeFixture.h"
#include "LiveObjects.h"
#include "support/TestMain.h"

#include <QAbstractEventDispatcher>
#include <QClipboard>
#include <QPixmapCache>
#include <QScreen>
#include <QStyle>

namespace {

/// The figures that grow when something leaks.
struct Census
{
    int objects = 0;
    int widgets = 0;
    QVector<int> receivers;
    qint64 bytes = 0;
};

} // namespace

/// Opening the window and switching its pages leaks nothing. With MALTO_FULL_COUNTS set in the
/// environment each test repeats this as often as a user would in years, otherwise a few times.
class tst_WindowMemory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The cache would keep icons of deleted widgets until it is full.
    void initTestCase() { QPixmapCache::setCacheLimit(0); }
    void init() { mFixture = std::make_unique<LifetimeFixture>(); }
    void cleanup() { mFixture.reset(); }

    void openingAndClosingLeaksNothing();
    void theModernWindowWithAllFeaturesLeaksNothing();
    void switchingPagesLeaksNothing();
    void openingThePageOfAHotkeyDoesNotAffectTheHotkey();

private:
    static int times(int few, int many)
    {
        return qEnvironmentVariableIsSet("MALTO_FULL_COUNTS") ? many : few;
    }
    static void finish()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
    void openAndClose(const QString &page) const
    {
        mFixture->manager->ShowWindow(page);
        finish();
        mFixture->manager->closeConfigWindow();
        finish();
    }
    void switchThere() const
    {
        for (const char *page : {"Edit", "Custom", "Other"}) {
            mFixture->window()->switchToView(page);
            finish();
        }
    }
    Census census() const
    {
        Census now;
        now.widgets = int(QApplication::allWidgets().size());
        for (const QObject *object :
             {static_cast<QObject *>(qApp), static_cast<QObject *>(QThemeCtrl::instance()),
              static_cast<QObject *>(mFixture->manager.get()),
              static_cast<QObject *>(&mFixture->shortcut),
              static_cast<QObject *>(QGuiApplication::primaryScreen()),
              static_cast<QObject *>(QGuiApplication::clipboard()),
              static_cast<QObject *>(QApplication::style()),
              static_cast<QObject *>(QAbstractEventDispatcher::instance())})
            now.receivers << Receivers::of(object);
        now.objects = LiveObjects::count(); // last, because the clipboard is created on demand
        now.bytes = allocatedBytes();
        return now;
    }
    /// Runs `once` `count` times after a warm-up that fills caches. Fails if objects, widgets or
    /// receivers are left, or, from 1000 runs, an average of `bytes` bytes per run: the allocator's
    /// own variation is smaller.
    template<class Action> void repeat(const char *what, int count, int bytes, Action once)
    {
        for (int i = 0; i < qMax(10, count / 10); ++i)
            once();
        const Census before = census();
        for (int i = 0; i < count; ++i)
            once();
        const Census after = census();
        qInfo("%d times %s: objects %+d, widgets %+d, bytes %+lld", count, what,
              after.objects - before.objects, after.widgets - before.widgets,
              after.bytes - before.bytes);
        QCOMPARE(after.objects, before.objects);
        QCOMPARE(after.widgets, before.widgets);
        QCOMPARE(after.receivers, before.receivers);
        if (count >= 1000)
            QVERIFY2(after.bytes - before.bytes < qint64(bytes) * count, "memory has grown");
    }

    const LiveObjects mObjects;
    std::unique_ptr<LifetimeFixture> mFixture;
};

void tst_WindowMemory::openingAndClosingLeaksNothing()
{
    repeat("opened and closed", times(10, 1000), 16, [this] { openAndClose("Edit"); });
}

void tst_WindowMemory::theModernWindowWithAllFeaturesLeaksNothing()
{
    mFixture->manager->windowFeatures = MtConf::AllWindowFeatures;
    mFixture->manager->windowLook = MtConf::ModernLook;
    repeat("modern, opened and closed", times(10, 1000), 64, [this] { openAndClose("Edit"); });
}

void tst_WindowMemory::switchingPagesLeaksNothing()
{
    mFixture->manager->ShowWindow();
    // With a style sheet Qt keeps a few hundred bytes per combo box until the window is deleted.
    repeat("three pages", times(10, 3334), 1000, [this] { switchThere(); });
}

void tst_WindowMemory::openingThePageOfAHotkeyDoesNotAffectTheHotkey()
{
    mFixture->shortcut.setShortcut(mFixture->key);
    const int before = Receivers::of(&mFixture->shortcut);
    repeat("page of a hotkey", times(10, 1000), 16, [this] { openAndClose("Edit"); });
    QCOMPARE(Receivers::of(&mFixture->shortcut), before);
    QCOMPARE(mFixture->shortcut.shortcut(), mFixture->key);
}

int main(int argc, char **argv)
{
    return runTest<tst_WindowMemory>(argc, argv);
}

#include "tst_WindowMemory.moc"
