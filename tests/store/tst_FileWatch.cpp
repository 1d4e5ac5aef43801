#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/store/ConfLoadReport.h>
#include <MaltoConfiguration/store/ConfStorage.h>

#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <unistd.h>

namespace {

using Action = std::function<void()>;

constexpr int sBeforeThePoll = 3000; // milliseconds; the first poll is after five seconds

/// Returns the text of a file with this value; a larger one is newer.
QByteArray textOf(int value)
{
    const QByteArray n = QByteArray::number(value);
    return "{\"size\":{\"t\":" + n + "00,\"v\":" + n + "}}";
}

bool write(const QByteArray &text, const QString &name = "box/local.json")
{
    QFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

/// Replaces the file by another one of the same name.
bool replace(const QByteArray &text, const QString &name = "box/local.json")
{
    return write(text, "box/new") && std::rename("box/new", qPrintable(name)) == 0;
}

/// A host with two settings that watches its file.
struct Host
{
    explicit Host(quint32 options = ConfStorage::WatchFile)
    {
        store.mFileOptions = options;
        store.mLocalSaveFile = "box/local.json";
        store.reserveConf("size", &size);
        store.reserveConf("width", &width);
        store.setConfChangedCallback("size",
                                     [this](const QString &, const ConfValue *) { ++callbacks; });
        store.loadLocalConfFile();
        callbacks = 0;
    }

    /// Waits until the look at the file that follows the load is over: later changes are found by
    /// reports of the system or by the poll only.
    bool settle()
    {
        return write("{\"size\":{\"t\":100,\"v\":1},\"width\":{\"t\":100,\"v\":1}}")
               && QTest::qWaitFor([this] { return width == 1; });
    }

    int size = 0;
    int width = 0;
    int callbacks = 0;
    ConfStorage store;
};

} // namespace

Q_DECLARE_METATYPE(Action)

/// Changes that other programs make to the local file.
class tst_FileWatch : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        QVERIFY(QDir().mkdir("box"));
        QVERIFY(write(textOf(1)));
    }
    void cleanup() { QVERIFY(QDir("box").removeRecursively()); }

    void isOffByDefault();
    void changesOfOthersAreLoaded_data();
    void changesOfOthersAreLoaded();
    void everyFurtherChangeIsLoaded();
    void targetsOfLinksAreWatched_data();
    void targetsOfLinksAreWatched();
    void targetThatIsCreatedAgainIsFound();
    void fileThatReplacesAnOpenOneIsWatched();
    void folderThatIsCreatedLaterIsFound();
    void processRarelyWakesUpWithoutAChange();
    void ownSavesAreNotLoaded();
    void sameContentCallsNoCallback();
    void olderEntryIsNotTaken();
    void unfinishedFileIsIgnored_data();
    void unfinishedFileIsIgnored();
    void pendingChangeStaysPending();
    void loadedChangesAreNotPending();
    void whatCallbacksSetIsPending();
    void storeMayBeClearedInACallback();
    void watchMayBeSwitchedOffInACallback();
    void storeMayBeDestroyedBeforeTheChangeIsHandled();
    void otherFileIsWatchedAfterItWasLoaded();
    void otherFileIsNotLoadedWhenTheWatchedOneChanges();
    void storesThatShareAFileFollowEachOther();
};

void tst_FileWatch::isOffByDefault()
{
    Host host(0);
    Host watching;
    QVERIFY(write(textOf(2)));
    QTRY_COMPARE(watching.size, 2);
    QCOMPARE(host.size, 1);
}

void tst_FileWatch::changesOfOthersAreLoaded_data()
{
    QTest::addColumn<Action>("change");
    QTest::newRow("rewritten in place") << Action([] { QVERIFY(write(textOf(2))); });
    QTest::newRow("replaced") << Action([] { QVERIFY(replace(textOf(2))); });
    QTest::newRow("removed and created") << Action([] {
        QVERIFY(QFile::remove("box/local.json"));
        QVERIFY(write(textOf(2)));
    });
    QTest::newRow("rewritten with the same length and modification time") << Action([] {
        const auto time = std::filesystem::last_write_time("box/local.json");
        QVERIFY(write("{\"size\":{\"t\":200,\"v\":2},\"width\":{\"t\":100,\"v\":1}}"));
        std::filesystem::last_write_time("box/local.json", time);
    });
    QTest::newRow("formatted by an editor")
        << Action([] { QVERIFY(write("{\n  \"size\": { \"t\": 200, \"v\": 2 }\n}\n")); });
}

void tst_FileWatch::changesOfOthersAreLoaded()
{
    QFETCH(Action, change);
    const LogCapture log;
    Host host;
    QVERIFY(host.settle());
    change();
    QTRY_COMPARE_WITH_TIMEOUT(host.size, 2, sBeforeThePoll);
    QCOMPARE(host.callbacks, 1);
    QCOMPARE(host.store.lastLoad().file, host.store.mLocalSaveFile);
    QCOMPARE(host.store.lastLoad().taken, 1);
    QVERIFY(log.messages().isEmpty());
}

void tst_FileWatch::everyFurtherChangeIsLoaded()
{
    Host host;
    for (int i = 2; i < 12; i += 3) {
        QVERIFY(write(textOf(i)));
        QTRY_COMPARE(host.size, i);
        QVERIFY(replace(textOf(i + 1)));
        QTRY_COMPARE(host.size, i + 1);
        QVERIFY(QFile::remove("box/local.json"));
        QCoreApplication::processEvents();
        QVERIFY(write(textOf(i + 2)));
        QTRY_COMPARE(host.size, i + 2);
    }
}

void tst_FileWatch::targetsOfLinksAreWatched_data()
{
    QTest::addColumn<Action>("change");
    QTest::newRow("target rewritten")
        << Action([] { QVERIFY(write(textOf(2), "box/a/one.json")); });
    QTest::newRow("target replaced")
        << Action([] { QVERIFY(replace(textOf(2), "box/a/one.json")); });
    QTest::newRow("link replaced") << Action([] {
        QVERIFY(write(textOf(2), "box/b/two.json"));
        QCOMPARE(::symlink("b/two.json", "box/new"), 0);
        QCOMPARE(std::rename("box/new", "box/local.json"), 0);
    });
    QTest::newRow("link replaced by a file") << Action([] { QVERIFY(replace(textOf(2))); });
}

void tst_FileWatch::targetsOfLinksAreWatched()
{
    QFETCH(Action, change);
    QVERIFY(QFile::remove("box/local.json"));
    QVERIFY(QDir("box").mkdir("a") && QDir("box").mkdir("b"));
    QVERIFY(write(textOf(1), "box/a/one.json"));
    QCOMPARE(::symlink("a/one.json", "box/local.json"), 0);
    Host host;
    QCOMPARE(host.size, 1);
    QVERIFY(host.settle());
    change();
    QTRY_COMPARE_WITH_TIMEOUT(host.size, 2, sBeforeThePoll);
    QVERIFY(write(textOf(3)));
    QTRY_COMPARE(host.size, 3);
    QVERIFY(replace(textOf(4), QFileInfo("box/local.json").canonicalFilePath()));
    QTRY_COMPARE(host.size, 4);
}

void tst_FileWatch::targetThatIsCreatedAgainIsFound()
{
    QVERIFY(QDir("box").mkdir("a"));
    QVERIFY(write(textOf(1), "box/a/one.json"));
    QVERIFY(QFile::remove("box/local.json"));
    QCOMPARE(::symlink("a/one.json", "box/local.json"), 0);
    Host host;
    QVERIFY(host.settle());
    QVERIFY(QFile::remove("box/a/one.json"));
    Host other; // whose first look is later than that at the removal
    QVERIFY(write(textOf(2), "box/two.json"));
    other.store.mLocalSaveFile = "box/two.json";
    other.store.loadLocalConfFile();
    QVERIFY(write(textOf(3), "box/two.json"));
    QTRY_COMPARE(other.size, 3);
    QVERIFY(write(textOf(2), "box/a/one.json"));
    QTRY_COMPARE_WITH_TIMEOUT(host.size, 2, sBeforeThePoll);
}

void tst_FileWatch::fileThatReplacesAnOpenOneIsWatched()
{
    Host host;
    QVERIFY(host.settle());
    QFile old("box/local.json");
    QVERIFY(old.open(QIODevice::ReadOnly)); // so the old file stays, and its watch
    QVERIFY(replace(textOf(2)));
    QTRY_COMPARE_WITH_TIMEOUT(host.size, 2, sBeforeThePoll);
    QVERIFY(write(textOf(3)));
    QTRY_COMPARE_WITH_TIMEOUT(host.size, 3, sBeforeThePoll);
}

void tst_FileWatch::folderThatIsCreatedLaterIsFound()
{
    Host host;
    host.store.mLocalSaveFile = "box/later/local.json";
    host.store.loadLocalConfFile();
    Host other; // whose first look is later
    QVERIFY(other.settle());
    QVERIFY(QDir("box").mkdir("later"));
    QVERIFY(write(textOf(2), "box/later/local.json"));
    QTRY_COMPARE_WITH_TIMEOUT(host.size, 2, 30000); // found by the slow poll
}

void tst_FileWatch::processRarelyWakesUpWithoutAChange()
{
    Host host;
    QVERIFY(host.settle());
    const auto wakesUpOften = [] {
        const QList<QTimer *> timers = qApp->findChildren<QTimer *>();
        return std::any_of(timers.cbegin(), timers.cend(), [](const QTimer *timer) {
            return timer->isActive()
                   && (timer->interval() < 1000 || timer->timerType() != Qt::VeryCoarseTimer);
        });
    };
    QTRY_VERIFY(!wakesUpOften());
}

void tst_FileWatch::ownSavesAreNotLoaded()
{
    const LogCapture log;
    Host host;
    Host other;
    host.store.loadConf(QString("{}"), ConfStorage::LoadShared);
    host.store.set("size", 5);
    host.store.saveToLocalConfFile();
    QTRY_COMPARE(other.size, 5);
    QCOMPARE(other.callbacks, 1);
    QCOMPARE(host.store.lastLoad().file, QString());
    QCOMPARE(host.callbacks, 1); // of `set`
    QVERIFY(!host.store.mChanged && !other.store.mChanged);
    // In the other direction.
    other.store.set("width", 6);
    other.store.saveToLocalConfFile();
    QTRY_COMPARE(host.width, 6);
    QCOMPARE(host.callbacks, 1);
}

void tst_FileWatch::sameContentCallsNoCallback()
{
    Host host;
    Host other;
    QVERIFY(write("{\"size\":{\"t\":100,\"v\":1},\"width\":{\"t\":200,\"v\":2}}"));
    QTRY_COMPARE(host.width, 2);
    QTRY_COMPARE(other.width, 2);
    QCOMPARE(host.callbacks, 0);
}

void tst_FileWatch::olderEntryIsNotTaken()
{
    QVERIFY(write(textOf(5)));
    Host host;
    QVERIFY(write("{\"size\":{\"t\":100,\"v\":1},\"width\":{\"t\":200,\"v\":2}}"));
    QTRY_COMPARE(host.width, 2);
    QCOMPARE(host.size, 5);
}

void tst_FileWatch::unfinishedFileIsIgnored_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<quint32>("option");
    const quint32 shared = ConfStorage::SharedFile;
    QTest::newRow("empty") << QByteArray() << 0U;
    QTest::newRow("cut") << textOf(2).left(12) << 0U;
    QTest::newRow("empty, shared") << QByteArray() << shared;
    QTest::newRow("cut, shared") << textOf(2).left(12) << shared;
}

void tst_FileWatch::unfinishedFileIsIgnored()
{
    QFETCH(QByteArray, text);
    QFETCH(quint32, option);
    const LogCapture log;
    Host host(ConfStorage::WatchFile | ConfStorage::KeepDamagedFiles | option);
    Host other;
    other.store.mLocalSaveFile = "box/other.json";
    other.store.loadLocalConfFile();
    QVERIFY(write(text));
    QVERIFY(write(textOf(9), "box/other.json"));
    QTRY_COMPARE(other.size, 9); // so the change of the first file is handled, too
    QCOMPARE(host.size, 1);
    QVERIFY(QDir("box").entryList(QStringList("*.damaged-*")).isEmpty());
    QVERIFY(write(textOf(2)));
    QTRY_COMPARE(host.size, 2);
    QVERIFY(log.messages().isEmpty());
}

void tst_FileWatch::pendingChangeStaysPending()
{
    const LogCapture log;
    Host host;
    host.store.set("width", 3);
    QVERIFY(write(textOf(2)));
    QTRY_COMPARE(host.size, 2);
    QVERIFY(host.store.mChanged);
    host.store.saveToLocalConfFile();
    Host next;
    QCOMPARE(next.width, 3);
    QCOMPARE(next.size, 2);
}

void tst_FileWatch::loadedChangesAreNotPending()
{
    Host host;
    QVERIFY(write(textOf(2)));
    QTRY_COMPARE(host.size, 2);
    QVERIFY(!host.store.mChanged);
    QVERIFY(write("{\"size\":{\"t\":300}}"));
    QTRY_COMPARE(host.size, 0); // the default value
    QVERIFY(!host.store.mChanged);
}

void tst_FileWatch::whatCallbacksSetIsPending()
{
    Host host;
    host.store.setConfChangedCallback(
        "size", [&](const QString &, const ConfValue *) { host.store.set("width", 4); });
    QVERIFY(write(textOf(2)));
    QTRY_COMPARE(host.width, 4);
    QVERIFY(host.store.mChanged);
}

void tst_FileWatch::storeMayBeClearedInACallback()
{
    Host host;
    bool isCleared = false;
    host.store.setConfChangedCallback("size", [&](const QString &, const ConfValue *) {
        host.store.clear();
        isCleared = true;
    });
    QVERIFY(write(textOf(2)));
    QTRY_VERIFY(isCleared);
    Host other;
    QVERIFY(write(textOf(3)));
    QTRY_COMPARE(other.size, 3);
    QCOMPARE(host.size, 2);
}

void tst_FileWatch::watchMayBeSwitchedOffInACallback()
{
    const LogCapture log;
    Host host;
    host.store.setConfChangedCallback("size", [&](const QString &, const ConfValue *) {
        host.store.mFileOptions = 0;
        host.store.loadLocalConfFile();
    });
    QVERIFY(write(textOf(2)));
    QTRY_COMPARE(host.size, 2);
    Host other;
    QVERIFY(write(textOf(3)));
    QTRY_COMPARE(other.size, 3);
    QCOMPARE(host.size, 2);
}

void tst_FileWatch::storeMayBeDestroyedBeforeTheChangeIsHandled()
{
    auto host = std::make_unique<Host>();
    QVERIFY(write(textOf(2)));
    QCoreApplication::processEvents();
    host.reset();
    Host other;
    QVERIFY(write(textOf(3)));
    QTRY_COMPARE(other.size, 3);
}

void tst_FileWatch::otherFileIsWatchedAfterItWasLoaded()
{
    QVERIFY(write(textOf(2), "box/other.json"));
    Host first;
    Host host;
    host.store.mLocalSaveFile = "box/other.json";
    host.store.loadLocalConfFile();
    QCOMPARE(host.size, 2);
    QVERIFY(write(textOf(5)));
    QTRY_COMPARE(first.size, 5);
    QCOMPARE(host.size, 2);
    QVERIFY(write(textOf(3), "box/other.json"));
    QTRY_COMPARE(host.size, 3);
}

void tst_FileWatch::otherFileIsNotLoadedWhenTheWatchedOneChanges()
{
    QVERIFY(write(textOf(5), "box/other.json"));
    Host host;
    QVERIFY(host.settle());
    host.store.mLocalSaveFile = "box/other.json"; // which the host will load later
    Host other;
    QVERIFY(other.settle());
    QVERIFY(write(textOf(3)));
    QTRY_COMPARE(other.size, 3); // so the change is handled in the other store, too
    QCOMPARE(host.size, 1);
}

void tst_FileWatch::storesThatShareAFileFollowEachOther()
{
    const LogCapture log;
    Host one(ConfStorage::WatchFile | ConfStorage::SharedFile);
    Host two(ConfStorage::WatchFile | ConfStorage::SharedFile);
    for (int i = 2; i < 6; i += 2) {
        two.store.set("width", i);
        one.store.set("size", i);
        one.store.saveToLocalConfFile();
        QTRY_COMPARE(two.size, i);
        QVERIFY(two.store.mChanged);
        two.store.saveToLocalConfFile();
        QTRY_COMPARE(one.width, i);
        QVERIFY(!one.store.mChanged && !two.store.mChanged);
    }
    QCOMPARE(two.callbacks, 2);
    QVERIFY(log.texts(QtCriticalMsg).isEmpty());
}

int main(int argc, char **argv)
{
    return runTest<tst_FileWatch>(argc, argv);
}

#include "tst_FileWatch.moc"
