#include "DiskModel.h"
#include "OneFault.h"
#include "SavedSettings.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <algorithm>
#include <optional>

using namespace Faults;

namespace {

using Folder = DiskModel::Folder;

void putOnDisk(const Folder &folder)
{
    SavedSettings::makeFolder();
    for (const auto &[name, content] : folder) {
        if (!SavedSettings::write(content, "box/" + QString::fromUtf8(name)))
            qFatal("the test's folder cannot be written");
    }
}

/// Returns the number of the values that a run loads from `folder`.
int numberIn(const Folder &folder)
{
    putOnDisk(folder);
    SavedSettings settings(true);
    // Syncing the real disk would test nothing and take minutes.
    const Scope healthy(SavedSettings::folder(), withoutWaiting);
    settings.store.loadLocalConfFile();
    return settings.number();
}

/// Returns whether the call can have an effect on the disk.
bool matters(const Call &call)
{
    return call.kind != Kind::Read && call.kind != Kind::Close;
}

/// Runs `work` on the folder of `disk`, which records its calls. Then calls `pause` for the moment
/// before each call and after the last one, with `disk` in its state at that moment. Calls that the
/// hook `fault` skips have no effect on the disk; syncs may also fail.
void watch(
    DiskModel &disk, const std::function<void()> &work, const std::function<void()> &pause,
    Hook fault = [](const Call &) { return proceed(); })
{
    putOnDisk(disk.visible());
    std::vector<DiskModel> moments{disk};
    {
        const Scope faults(SavedSettings::folder(), [&](const Call &call) {
            const Answer answer = matters(call) ? fault(call) : skip();
            if (answer.action == Answer::Skip)
                return withoutWaiting(call);
            if (answer.action == Answer::Fail)
                disk.noteFailedSync(call);
            else
                disk.note(call);
            moments.push_back(disk);
            return answer.action == Answer::Fail ? answer : withoutWaiting(call);
        });
        work();
    }
    const DiskModel after = disk;
    for (const DiskModel &moment : moments) {
        disk = moment;
        pause();
    }
    disk = after;
}

void save(int number)
{
    SavedSettings settings(true);
    settings.change(number);
    settings.store.saveToLocalConfFile();
}

void load()
{
    SavedSettings settings(true);
    settings.store.loadLocalConfFile();
}

/// Returns the number of possible states after a loss of power with neither content 1 nor 2.
int lossesOf(const DiskModel &disk)
{
    int lost = 0;
    disk.eachLoss([&](const Folder &folder) {
        const int found = numberIn(folder);
        lost += found != 1 && found != 2;
    });
    return lost;
}

Hook ignoredSync(const QByteArray &suffix, int nth)
{
    return OneFault{Kind::Sync, suffix, nth, skip(), false}.hook();
}

Folder start(int number)
{
    return number == 0 ? Folder() : Folder{{"local.json", SavedSettings::fileText(number)}};
}

} // namespace

/// Safe saves with a loss of power: any data that was not synced may be lost.
class tst_ConfStoragePowerLoss : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void modelLosesDataThatWasNotSynced();
    void saveSurvivesPowerLoss_data();
    void saveSurvivesPowerLoss();
    void secondSaveSurvivesPowerLoss_data();
    void secondSaveSurvivesPowerLoss();
    void recoverySurvivesPowerLoss_data();
    void recoverySurvivesPowerLoss();
    void damagedTextAndBackupSurvivePowerLoss();
    void failedSyncLosesNothing_data();
    void failedSyncLosesNothing();
    void everySyncOfASaveIsNeeded_data();
    void everySyncOfASaveIsNeeded();
    void everySyncOfARecoveryIsNeeded_data();
    void everySyncOfARecoveryIsNeeded();
};

void tst_ConfStoragePowerLoss::modelLosesDataThatWasNotSynced()
{
    const QByteArray path = "/d";
    DiskModel disk(path, {{"a", "old"}});
    std::vector<Folder> losses;
    const auto look = [&] {
        losses.clear();
        disk.eachLoss([&](const Folder &folder) { losses.push_back(folder); });
        return losses;
    };
    const auto call = [&](Kind kind, const char *name, qint64 offset, const QByteArray &data) {
        disk.note({kind, path + '/' + name, {}, 0, offset, data.constData(), data.size()});
    };
    QCOMPARE(look(), (std::vector<Folder>{{{"a", "old"}}}));
    call(Kind::Truncate, "a", 0, {});
    call(Kind::Write, "a", 0, "ne");
    // Nothing has reached the disk, or the truncation, or the text, or both.
    QCOMPARE(look(),
             (std::vector<Folder>{{{"a", "old"}}, {{"a", ""}}, {{"a", "ned"}}, {{"a", "ne"}}}));
    QCOMPARE(disk.visible(), (Folder{{"a", "ne"}}));
    call(Kind::Sync, "a", 0, {});
    QCOMPARE(look(), (std::vector<Folder>{{{"a", "ne"}}}));
    call(Kind::Unlink, "a", 0, {});
    QCOMPARE(look(), (std::vector<Folder>{{{"a", "ne"}}, {}}));
    disk.note({Kind::Sync, path, {}});
    QCOMPARE(look(), (std::vector<Folder>{{}}));
}

void tst_ConfStoragePowerLoss::saveSurvivesPowerLoss_data()
{
    QTest::addColumn<int>("before");
    QTest::newRow("first save") << 0;
    QTest::newRow("later save") << 1;
}

void tst_ConfStoragePowerLoss::saveSurvivesPowerLoss()
{
    QFETCH(int, before);
    std::optional<LogCapture> log(std::in_place);
    int losses = 0;
    DiskModel disk(SavedSettings::folder(), start(before));
    const auto check = [&](const Folder &folder) {
        ++losses;
        const int found = numberIn(folder);
        QVERIFY2(found == before || found == 2, qPrintable(QString::number(found)));
    };
    watch(
        disk, [] { save(2); }, [&] { disk.eachLoss(check); });
    // After the save was reported as successful, nothing is lost.
    disk.eachLoss([&](const Folder &folder) {
        QCOMPARE(numberIn(folder), 2);
        QCOMPARE(SavedSettings::content(), SavedSettings::fileText(2));
    });
    log.reset();
    qInfo("%d states after a loss of power", losses);
    QVERIFY2(losses > 100, qPrintable(QString::number(losses)));
}

void tst_ConfStoragePowerLoss::secondSaveSurvivesPowerLoss_data()
{
    QTest::addColumn<int>("second");
    QTest::newRow("to new content") << 3;
    QTest::newRow("back to the first content") << 1;
}

void tst_ConfStoragePowerLoss::secondSaveSurvivesPowerLoss()
{
    QFETCH(int, second);
    const LogCapture log;
    DiskModel disk(SavedSettings::folder(), start(1));
    watch(
        disk, [] { save(2); }, [] {});
    const auto check = [&](const Folder &folder) {
        const int found = numberIn(folder);
        QVERIFY2(found == 2 || found == second, qPrintable(QString::number(found)));
    };
    watch(
        disk, [=] { save(second); }, [&] { disk.eachLoss(check); });
    disk.eachLoss([&](const Folder &folder) { QCOMPARE(numberIn(folder), second); });
}

void tst_ConfStoragePowerLoss::recoverySurvivesPowerLoss_data()
{
    QTest::addColumn<bool>("powerLost");
    QTest::newRow("after the program was killed") << false;
    QTest::newRow("after a loss of power") << true;
}

void tst_ConfStoragePowerLoss::recoverySurvivesPowerLoss()
{
    QFETCH(bool, powerLost);
    std::optional<LogCapture> log(std::in_place);
    int recoveries = 0;
    int losses = 0;
    DiskModel disk(SavedSettings::folder(), start(1));
    const auto recover = [&](DiskModel recovering) {
        ++recoveries;
        const int expected = numberIn(recovering.visible());
        QVERIFY2(expected == 1 || expected == 2, qPrintable(QString::number(expected)));
        const auto check = [&](const Folder &folder) {
            ++losses;
            const int found = numberIn(folder);
            QVERIFY2(found == 1 || found == 2, qPrintable(QString::number(found)));
        };
        watch(recovering, load, [&] { recovering.eachLoss(check); });
        // Values that a run has loaded are not lost after it.
        if (expected == 2)
            recovering.eachLoss([](const Folder &folder) { QCOMPARE(numberIn(folder), 2); });
    };
    watch(
        disk, [] { save(2); },
        [&] {
            if (powerLost)
                disk.eachLoss(
                    [&](const Folder &f) { recover(DiskModel(SavedSettings::folder(), f)); });
            else
                recover(disk);
        });
    log.reset();
    qInfo("%d recoveries, %d states after a loss of power", recoveries, losses);
    QVERIFY2(recoveries > 5, qPrintable(QString::number(recoveries)));
}

void tst_ConfStoragePowerLoss::damagedTextAndBackupSurvivePowerLoss()
{
    constexpr quint32 sOptions = ConfStorage::SafeSave | ConfStorage::KeepDamagedFiles;
    const QByteArray damaged = SavedSettings::fileText(3).left(30);
    DiskModel disk(SavedSettings::folder(),
                   {{"local.json", damaged}, {"local.json.backup", SavedSettings::fileText(1)}});
    const auto loadAndSave = [] {
        SavedSettings settings(sOptions);
        settings.store.loadLocalConfFile();
        settings.change(2);
        settings.store.saveToLocalConfFile();
    };
    int losses = 0;
    std::optional<LogCapture> log(std::in_place);
    watch(disk, loadAndSave, [&] {
        disk.eachLoss([&](const Folder &folder) {
            ++losses;
            QVERIFY(std::any_of(folder.begin(), folder.end(),
                                [&](const auto &file) { return file.second == damaged; }));
            putOnDisk(folder);
            SavedSettings settings(sOptions);
            const Scope healthy(SavedSettings::folder(), withoutWaiting);
            settings.store.loadLocalConfFile();
            QVERIFY2(settings.number() == 1 || settings.number() == 2,
                     qPrintable(QString::number(settings.number())));
        });
    });
    log.reset();
    qInfo("%d states after a loss of power", losses);
    QVERIFY(losses > 100);
}

void tst_ConfStoragePowerLoss::failedSyncLosesNothing_data()
{
    QTest::addColumn<int>("nth"); // sync of the file
    QTest::newRow("of the truncation") << 0;
    QTest::newRow("of the text") << 1;
}

void tst_ConfStoragePowerLoss::failedSyncLosesNothing()
{
    QFETCH(int, nth);
    const LogCapture log;
    DiskModel disk(SavedSettings::folder(), start(1));
    const auto check = [&](const Folder &folder) {
        const int found = numberIn(folder);
        QVERIFY2(found == 1 || found == 2, qPrintable(QString::number(found)));
    };
    const Hook fault = OneFault{Kind::Sync, ".json", nth, fail(EIO), false}.hook();
    watch(
        disk, [] { save(2); }, [&] { disk.eachLoss(check); }, fault);
    // The next run sees the new text, which may never reach the disk.
    DiskModel loading = disk;
    watch(loading, load, [&] { loading.eachLoss(check); });
    loading.eachLoss([](const Folder &folder) { QCOMPARE(numberIn(folder), 2); });
    // So does the next save of the same run.
    watch(
        disk, [] { save(3); },
        [&] {
            disk.eachLoss([](const Folder &folder) {
                const int found = numberIn(folder);
                QVERIFY2(found >= 1 && found <= 3, qPrintable(QString::number(found)));
            });
        });
    disk.eachLoss([](const Folder &folder) { QCOMPARE(numberIn(folder), 3); });
}

void tst_ConfStoragePowerLoss::everySyncOfASaveIsNeeded_data()
{
    QTest::addColumn<QByteArray>("suffix");
    QTest::addColumn<int>("nth");
    QTest::newRow("of the journal") << QByteArray(".new") << 0;
    QTest::newRow("of the folder") << QByteArray("/box") << 0;
    QTest::newRow("of the truncation") << QByteArray(".json") << 0;
    QTest::newRow("of the text") << QByteArray(".json") << 1;
}

void tst_ConfStoragePowerLoss::everySyncOfASaveIsNeeded()
{
    QFETCH(QByteArray, suffix);
    QFETCH(int, nth);
    const LogCapture log;
    int lost = 0;
    DiskModel disk(SavedSettings::folder(), start(1));
    watch(
        disk, [] { save(2); }, [&] { lost += lossesOf(disk); }, ignoredSync(suffix, nth));
    QVERIFY(lost > 0);
}

void tst_ConfStoragePowerLoss::everySyncOfARecoveryIsNeeded_data()
{
    QTest::addColumn<QByteArray>("suffix");
    QTest::addColumn<int>("nth");
    QTest::newRow("of the folder") << QByteArray("/box") << 0;
    QTest::newRow("of the complete file, or of the truncation") << QByteArray(".json") << 0;
    QTest::newRow("of the text") << QByteArray(".json") << 1;
}

void tst_ConfStoragePowerLoss::everySyncOfARecoveryIsNeeded()
{
    QFETCH(QByteArray, suffix);
    QFETCH(int, nth);
    const LogCapture log;
    int lost = 0;
    DiskModel disk(SavedSettings::folder(), start(1));
    watch(
        disk, [] { save(2); },
        [&] {
            DiskModel recovering = disk;
            watch(
                recovering, load, [&] { lost += lossesOf(recovering); }, ignoredSync(suffix, nth));
        });
    QVERIFY(lost > 0);
}

int main(int argc, char **argv)
{
    // The model replaces the disk, so the files can be in memory, which is faster.
    if (qEnvironmentVariableIsEmpty("TMPDIR") && QFileInfo("/dev/shm").isWritable())
        qputenv("TMPDIR", "/dev/shm");
    return runTest<tst_ConfStoragePowerLoss>(argc, argv);
}

#include "tst_ConfStoragePowerLoss.moc"
