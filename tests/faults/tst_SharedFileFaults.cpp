#include "DeathAtCall.h"
#include "SavedSettings.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <cerrno>

using namespace Faults;

namespace {

/// A program that shares the local file.
struct Program
{
    Program()
    {
        store.mFileOptions = ConfStorage::SharedFile | ConfStorage::SafeSave;
        store.mLocalSaveFile = SavedSettings::path();
        store.reserveConf("a", &a);
        store.reserveConf("b", &b);
    }

    /// Returns whether the save was acknowledged.
    bool save()
    {
        store.saveToLocalConfFile();
        return !store.mChanged;
    }

    int a = 1;
    int b = 2;
    ConfStorage store;
};

/// Makes a new file with b = 20.
void changeByOthers()
{
    const Scope healthy(SavedSettings::folder(), withoutWaiting);
    const LogCapture log;
    Program other;
    other.store.set("b", 20);
    if (!other.save())
        qFatal("no file was made");
}

/// Removes a lock that could not be removed. The rows with one failure wait two seconds for it.
void removeLock()
{
    QFile::remove(SavedSettings::path() + ".lock");
}

/// Returns a hook that lets the `nth` call (from 0) fail, and with `lasting` all later ones.
/// Increments `count` at each call.
Hook failingCall(int nth, int error, bool lasting, int *count)
{
    return [=](const Call &call) {
        const int index = (*count)++;
        return index == nth || (lasting && index > nth) ? fail(error) : withoutWaiting(call);
    };
}

} // namespace

/// Programs that share a file with errors of the operating system, or are killed.
class tst_SharedFileFaults : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyFailedCallOfASaveKeepsBothChanges_data();
    void everyFailedCallOfASaveKeepsBothChanges();
    void everyFailedCallOfALoadKeepsTheFile_data();
    void everyFailedCallOfALoadKeepsTheFile();
    void deathAtEveryCallOfASaveKeepsTheOthersChange_data();
    void deathAtEveryCallOfASaveKeepsTheOthersChange();
    void deathAtEveryCallOfARecoveryKeepsBothChanges();
};

void tst_SharedFileFaults::everyFailedCallOfASaveKeepsBothChanges_data()
{
    QTest::addColumn<int>("error");
    QTest::addColumn<bool>("lasting");
    QTest::newRow("disk error, once") << EIO << false;
    QTest::newRow("disk error, for ever") << EIO << true;
    QTest::newRow("full disk, once") << ENOSPC << false;
    QTest::newRow("full disk, for ever") << ENOSPC << true;
    QTest::newRow("no rights, for ever") << EACCES << true;
    QTest::newRow("too many open files, once") << EMFILE << false;
}

void tst_SharedFileFaults::everyFailedCallOfASaveKeepsBothChanges()
{
    QFETCH(int, error);
    QFETCH(bool, lasting);
    int nth = 0;
    for (bool failed = true; failed; ++nth) {
        SavedSettings::makeFolder();
        changeByOthers();
        const LogCapture log;
        Program one;
        one.store.set("a", 10);
        bool isSaved = false;
        int calls = 0;
        {
            const Scope faults(SavedSettings::folder(), failingCall(nth, error, lasting, &calls));
            isSaved = one.save();
        }
        failed = calls > nth;
        if (lasting)
            removeLock();
        QVERIFY2(isSaved || !log.texts(QtCriticalMsg).isEmpty(), qPrintable(QString::number(nth)));

        const Scope healthy(SavedSettings::folder(), withoutWaiting);
        Program next;
        next.store.loadLocalConfFile();
        QCOMPARE(next.b, 20);
        QVERIFY(!isSaved || next.a == 10);
        QVERIFY2(one.save(), qPrintable(QString::number(nth)));
        QCOMPARE(one.b, 20);
        next.store.loadLocalConfFile();
        QCOMPARE(next.a, 10);
        QCOMPARE(next.b, 20);
        QCOMPARE(QDir("box").entryList(QDir::Files), QStringList("local.json"));
    }
    QVERIFY2(nth > 15, qPrintable(QString::number(nth)));
}

void tst_SharedFileFaults::everyFailedCallOfALoadKeepsTheFile_data()
{
    everyFailedCallOfASaveKeepsBothChanges_data();
}

void tst_SharedFileFaults::everyFailedCallOfALoadKeepsTheFile()
{
    QFETCH(int, error);
    QFETCH(bool, lasting);
    int nth = 0;
    for (bool failed = true; failed; ++nth) {
        SavedSettings::makeFolder();
        changeByOthers();
        const QByteArray before = SavedSettings::content();
        const LogCapture log;
        Program one;
        int calls = 0;
        {
            const Scope faults(SavedSettings::folder(), failingCall(nth, error, lasting, &calls));
            one.store.loadLocalConfFile();
        }
        failed = calls > nth;
        if (lasting)
            removeLock();
        QCOMPARE(SavedSettings::content(), before);

        const Scope healthy(SavedSettings::folder(), withoutWaiting);
        one.store.set("a", 10);
        QVERIFY(one.save());
        QCOMPARE(one.b, 20);
        Program next;
        next.store.loadLocalConfFile();
        QCOMPARE(next.a, 10);
        QCOMPARE(next.b, 20);
    }
    QVERIFY2(nth > 5, qPrintable(QString::number(nth)));
}

void tst_SharedFileFaults::deathAtEveryCallOfASaveKeepsTheOthersChange_data()
{
    QTest::addColumn<bool>("halfway");
    QTest::newRow("before the call") << false;
    QTest::newRow("halfway through a write") << true;
}

void tst_SharedFileFaults::deathAtEveryCallOfASaveKeepsTheOthersChange()
{
    QFETCH(bool, halfway);
    int calls = 0;
    for (bool died = true; died; ++calls) {
        SavedSettings::makeFolder();
        changeByOthers();
        died = diesAtCall(calls, halfway, [] {
            Program one;
            one.store.set("a", 10);
            one.save();
        });
        const LogCapture log;
        const Scope healthy(SavedSettings::folder(), withoutWaiting);
        Program next;
        next.store.loadLocalConfFile();
        QCOMPARE(next.b, 20);
        QVERIFY2(next.a == 10 || (died && next.a == 1), qPrintable(QString::number(next.a)));
        const int a = next.a;
        next.store.set("b", 21);
        QVERIFY2(next.save(), qPrintable(QString::number(calls)));
        Program last;
        last.store.loadLocalConfFile();
        QCOMPARE(last.a, a);
        QCOMPARE(last.b, 21);
        QCOMPARE(QDir("box").entryList(QDir::Files), QStringList("local.json"));
    }
    qInfo("killed at each of %d calls", calls - 1);
    QVERIFY2(calls > 15, qPrintable(QString::number(calls)));
}

void tst_SharedFileFaults::deathAtEveryCallOfARecoveryKeepsBothChanges()
{
    int calls = 0;
    for (bool died = true; died; ++calls) {
        SavedSettings::makeFolder();
        changeByOthers();
        {
            const LogCapture log;
            const Scope full(SavedSettings::folder(), [](const Call &call) {
                const bool isFull = call.kind == Kind::Write && call.path.endsWith(".json");
                return isFull ? fail(ENOSPC) : withoutWaiting(call);
            });
            Program one;
            one.store.set("a", 10);
            QVERIFY(!one.save()); // the journal has both changes
        }
        died = diesAtCall(calls, false, [] { Program().store.loadLocalConfFile(); });
        const LogCapture log;
        const Scope healthy(SavedSettings::folder(), withoutWaiting);
        Program next;
        next.store.loadLocalConfFile();
        QCOMPARE(next.a, 10);
        QCOMPARE(next.b, 20);
    }
    QVERIFY2(calls > 10, qPrintable(QString::number(calls)));
}

int main(int argc, char **argv)
{
    return runTest<tst_SharedFileFaults>(argc, argv);
}

#include "tst_SharedFileFaults.moc"
