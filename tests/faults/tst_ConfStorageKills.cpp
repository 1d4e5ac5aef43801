#include "DeathAtCall.h"
#include "SavedSettings.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

using namespace Faults;

namespace {

void save(bool safe, int number)
{
    SavedSettings settings(safe);
    settings.change(number);
    settings.store.saveToLocalConfFile();
}

void load()
{
    SavedSettings settings(true);
    settings.store.loadLocalConfFile();
}

/// Returns the number of the values that the next run loads.
int nextRun()
{
    const Scope healthy(SavedSettings::folder(), withoutWaiting);
    return SavedSettings::nextRun();
}

/// Leaves a truncated file, and a journal with content 2.
void failToSave()
{
    const LogCapture log;
    const Scope faults(SavedSettings::folder(), [](const Call &call) {
        const bool full = call.kind == Kind::Write && call.path.endsWith(".json");
        return full ? fail(ENOSPC) : withoutWaiting(call);
    });
    save(true, 2);
}

} // namespace

/// Programs that are killed while they save or load the local file.
class tst_ConfStorageKills : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void safeSaveSurvivesDeathAtEveryCall_data();
    void safeSaveSurvivesDeathAtEveryCall();
    void secondSaveSurvivesDeathAtEveryCall();
    void recoverySurvivesDeathAtEveryCall();
    void plainSaveLeavesALoadableFile();
};

void tst_ConfStorageKills::safeSaveSurvivesDeathAtEveryCall_data()
{
    QTest::addColumn<int>("before"); // 0: no file exists yet
    QTest::addColumn<bool>("halfway");
    QTest::newRow("first save") << 0 << false;
    QTest::newRow("first save, halfway through a write") << 0 << true;
    QTest::newRow("later save") << 1 << false;
    QTest::newRow("later save, halfway through a write") << 1 << true;
}

void tst_ConfStorageKills::safeSaveSurvivesDeathAtEveryCall()
{
    QFETCH(int, before);
    QFETCH(bool, halfway);
    int calls = 0;
    for (bool died = true; died; ++calls) {
        SavedSettings::makeFolder();
        if (before != 0)
            QVERIFY(SavedSettings::write(SavedSettings::fileText(before)));
        died = diesAtCall(calls, halfway, [] { save(true, 2); });
        const int found = nextRun();
        QVERIFY2(found == 2 || (died && found == before), qPrintable(QString::number(found)));
        QCOMPARE(SavedSettings::content(),
                 found == 0 ? QByteArray() : SavedSettings::fileText(found));
        QCOMPARE(nextRun(), found);
        QVERIFY(!QFile::exists(SavedSettings::journalPath()));

        const LogCapture log;
        const Scope healthy(SavedSettings::folder(), withoutWaiting);
        save(true, 3);
        QCOMPARE(SavedSettings::content(), SavedSettings::fileText(3));
        QCOMPARE(QDir("box").entryList(QDir::Files), QStringList("local.json"));
    }
    qInfo("killed at each of %d calls", calls - 1); // the last process finished its work
    QVERIFY2(calls > 15, qPrintable(QString::number(calls)));
}

void tst_ConfStorageKills::secondSaveSurvivesDeathAtEveryCall()
{
    for (const bool halfway : {false, true}) {
        int calls = 0;
        for (bool died = true; died; ++calls) {
            SavedSettings::makeFolder();
            QVERIFY(SavedSettings::write(SavedSettings::fileText(1)));
            failToSave();
            QCOMPARE(SavedSettings::content(), QByteArray());
            died = diesAtCall(calls, halfway, [] { save(true, 3); });
            const int found = nextRun();
            QVERIFY2(found == 3 || (died && found == 2), qPrintable(QString::number(found)));
        }
        qInfo("killed at each of %d calls", calls - 1);
    }
}

void tst_ConfStorageKills::recoverySurvivesDeathAtEveryCall()
{
    for (const bool halfway : {false, true}) {
        int calls = 0;
        for (bool died = true; died; ++calls) {
            SavedSettings::makeFolder();
            QVERIFY(SavedSettings::write(SavedSettings::fileText(1)));
            failToSave();
            died = diesAtCall(calls, halfway, load);
            QCOMPARE(nextRun(), 2);
            QCOMPARE(SavedSettings::content(), SavedSettings::fileText(2));
        }
        qInfo("killed at each of %d calls", calls - 1);
        QVERIFY2(calls > 10, qPrintable(QString::number(calls)));
    }
}

void tst_ConfStorageKills::plainSaveLeavesALoadableFile()
{
    for (const bool halfway : {false, true}) {
        int call = 0;
        for (bool died = true; died; ++call) {
            SavedSettings::makeFolder();
            QVERIFY(SavedSettings::write(SavedSettings::fileText(1)));
            died = diesAtCall(call, halfway, [] { save(false, 2); });
            // Without SafeSave a truncated file is lost and loads as an empty configuration.
            const QByteArray content = SavedSettings::content();
            const int found = content == SavedSettings::fileText(1)   ? 1
                              : content == SavedSettings::fileText(2) ? 2
                                                                      : 0;
            QCOMPARE(nextRun(), found);
        }
    }
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfStorageKills>(argc, argv);
}

#include "tst_ConfStorageKills.moc"
