#include "OneFault.h"
#include "SavedSettings.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Faults;

/// Saving and loading the local file with errors of the operating system.
class tst_ConfStorageFaults : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        SavedSettings::makeFolder();
        QVERIFY(SavedSettings::write(SavedSettings::fileText(1)));
    }

    void callsOfASave_data();
    void callsOfASave();
    void plainSaveReportsOnlyErrorsOfOpening_data();
    void plainSaveReportsOnlyErrorsOfOpening();
    void plainSaveOnAFullDiskTruncatesTheFile();
    void readOnlyFolder_data();
    void readOnlyFolder();
    void fileSizeLimit_data();
    void fileSizeLimit();
    void failedLoadIsAnEmptyConfiguration_data();
    void failedLoadIsAnEmptyConfiguration();
    void endlessFileCountsAsTooLarge();
    void fileThatBecomesAPipeDoesNotBlock();
    void specialFiles_data();
    void specialFiles();
    void saveCreatesTheTargetOfADanglingLink_data();
    void saveCreatesTheTargetOfADanglingLink();
};

void tst_ConfStorageFaults::callsOfASave_data()
{
    QTest::addColumn<bool>("safe");
    QTest::addColumn<QStringList>("calls");
    QTest::newRow("plain") << false
                           << QStringList{"open json", "truncate json", "write json", "close json"};
    QTest::newRow("safe") << true
                          << QStringList{"open json",  "read json",     "open new",
                                         "write new",  "sync new",      "close new",
                                         "rename new", "open box",      "sync box",
                                         "close box",  "truncate json", "sync json",
                                         "write json", "sync json",     "unlink save-journal",
                                         "close json"};
}

void tst_ConfStorageFaults::callsOfASave()
{
    QFETCH(bool, safe);
    QFETCH(QStringList, calls);
    const QMap<Kind, QString> names{{Kind::Open, "open"},     {Kind::Read, "read"},
                                    {Kind::Write, "write"},   {Kind::Truncate, "truncate"},
                                    {Kind::Sync, "sync"},     {Kind::Rename, "rename"},
                                    {Kind::Unlink, "unlink"}, {Kind::Close, "close"}};
    SavedSettings settings(safe);
    settings.change(2);
    QStringList made;
    {
        const LogCapture log;
        const Scope faults(SavedSettings::folder(), [&](const Call &call) {
            const QString name = QString::fromUtf8(call.path);
            const auto last = qMax(name.lastIndexOf('.'), name.lastIndexOf('/'));
            const QString text = names.value(call.kind) + " " + name.mid(last + 1);
            // The save tries to remove an unfinished journal, and Qt may read to the end of the
            // file in any number of calls.
            if (text != "unlink new" && (made.isEmpty() || made.last() != text))
                made.append(text);
            return proceed();
        });
        settings.store.saveToLocalConfFile();
    }
    QCOMPARE(made, calls);
    QCOMPARE(SavedSettings::content(), SavedSettings::fileText(2));
}

void tst_ConfStorageFaults::plainSaveReportsOnlyErrorsOfOpening_data()
{
    QTest::addColumn<OneFault>("fault");
    QTest::addColumn<QString>("message");
    QTest::addColumn<bool>("pending");
    QTest::addColumn<QByteArray>("content");
    const QByteArray before = SavedSettings::fileText(1);
    const QByteArray after = SavedSettings::fileText(2);
    QTest::newRow("no permission")
        << failing(Kind::Open, ".json", 0, EACCES) << SavedSettings::openFailed() << true << before;
    QTest::newRow("read-only file system")
        << failing(Kind::Open, ".json", 0, EROFS) << SavedSettings::openFailed() << true << before;
    QTest::newRow("no file descriptor left")
        << failing(Kind::Open, ".json", 0, EMFILE) << SavedSettings::openFailed() << true << before;
    QTest::newRow("disk error at opening")
        << failing(Kind::Open, ".json", 0, EIO) << SavedSettings::openFailed() << true << before;
    QTest::newRow("interrupted opening")
        << interrupted(Kind::Open, ".json") << SavedSettings::saved() << false << after;
    QTest::newRow("disk error at truncating") << failing(Kind::Truncate, ".json", 0, EIO)
                                              << SavedSettings::openFailed() << true << before;
    QTest::newRow("disk error at writing")
        << failing(Kind::Write, ".json", 0, EIO) << SavedSettings::saved() << false << QByteArray();
    QTest::newRow("interrupted writing")
        << interrupted(Kind::Write, ".json") << SavedSettings::saved() << false << after;
    QTest::newRow("one byte at a time")
        << OneFault{Kind::Write, ".json", 0, partly(1)} << SavedSettings::saved() << false << after;
    QTest::newRow("disk error at closing")
        << failing(Kind::Close, ".json", 0, EIO) << SavedSettings::saved() << false << after;
}

void tst_ConfStorageFaults::plainSaveReportsOnlyErrorsOfOpening()
{
    QFETCH(OneFault, fault);
    QFETCH(QString, message);
    QFETCH(bool, pending);
    SavedSettings settings(false);
    settings.change(2);
    const LogCapture log;
    settings.saveUnder(fault.hook());
    QCOMPARE(log.messages(),
             (QList<LoggedMessage>{{pending ? QtCriticalMsg : QtDebugMsg, message}}));
    QCOMPARE(settings.store.mChanged, pending);
    QCOMPARE(settings.number(), 2);
    QTEST(SavedSettings::content(), "content");
    // The next change saves everything again.
    settings.change(3);
    settings.store.saveToLocalConfFile();
    QCOMPARE(SavedSettings::content(), SavedSettings::fileText(3));
}

void tst_ConfStorageFaults::plainSaveOnAFullDiskTruncatesTheFile()
{
    const QByteArray whole = SavedSettings::fileText(2);
    for (int space = 0; space <= whole.size(); ++space) {
        SavedSettings settings(false);
        settings.change(2);
        const LogCapture log;
        settings.saveUnder(fullDisk(space));
        QCOMPARE(log.messages(), (QList<LoggedMessage>{{QtDebugMsg, SavedSettings::saved()}}));
        QVERIFY(!settings.store.mChanged);
        QCOMPARE(settings.number(), 2);
        QCOMPARE(SavedSettings::content(), whole.left(space));

        SavedSettings next(false);
        LogCapture::messages().clear();
        next.store.loadLocalConfFile();
        QCOMPARE(next.number(), space == whole.size() ? 2 : 0);
        QVERIFY(log.messages().isEmpty());
    }
    qInfo("disk space tried: 0 to %d bytes", static_cast<int>(whole.size()));
}

void tst_ConfStorageFaults::readOnlyFolder_data()
{
    QTest::addColumn<bool>("safe");
    QTest::addColumn<QString>("message");
    QTest::addColumn<int>("saved");
    QTest::newRow("plain") << false << SavedSettings::saved() << 2;
    QTest::newRow("safe") << true << SavedSettings::journalFailed() << 1;
}

void tst_ConfStorageFaults::readOnlyFolder()
{
    if (::geteuid() != 0)
        QSKIP("only root can switch to another user and back");
    QFETCH(bool, safe);
    QFETCH(QString, message);
    QFETCH(int, saved);
    const uid_t somebody = 65534;
    QCOMPARE(::chown(qPrintable(SavedSettings::path()), somebody, somebody), 0);
    QCOMPARE(::chmod(".", 0755), 0);
    SavedSettings settings(safe);
    settings.change(2);
    const LogCapture log;
    QCOMPARE(::seteuid(somebody), 0);
    settings.store.saveToLocalConfFile();
    QCOMPARE(::seteuid(0), 0);
    QCOMPARE(log.messages(), (QList<LoggedMessage>{{safe ? QtCriticalMsg : QtDebugMsg, message}}));
    QCOMPARE(settings.store.mChanged, safe);
    QCOMPARE(SavedSettings::content(), SavedSettings::fileText(saved));
}

void tst_ConfStorageFaults::fileSizeLimit_data()
{
    QTest::addColumn<bool>("safe");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("plain") << false << SavedSettings::saved()
                           << SavedSettings::fileText(2).left(40);
    QTest::newRow("safe") << true << SavedSettings::journalFailed() << SavedSettings::fileText(1);
}

void tst_ConfStorageFaults::fileSizeLimit()
{
    QFETCH(bool, safe);
    QFETCH(QString, message);
    SavedSettings settings(safe);
    settings.change(2);
    const LogCapture log;
    rlimit before = {};
    QCOMPARE(::getrlimit(RLIMIT_FSIZE, &before), 0);
    rlimit limit = before;
    limit.rlim_cur = 40;
    const auto previous = std::signal(SIGXFSZ, SIG_IGN);
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &limit), 0);
    settings.store.saveToLocalConfFile();
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &before), 0);
    std::signal(SIGXFSZ, previous);
    QCOMPARE(log.messages(), (QList<LoggedMessage>{{safe ? QtCriticalMsg : QtDebugMsg, message}}));
    QTEST(SavedSettings::content(), "content");
}

void tst_ConfStorageFaults::failedLoadIsAnEmptyConfiguration_data()
{
    QTest::addColumn<OneFault>("fault");
    QTest::addColumn<int>("loaded");
    const auto row = [](const char *name, const OneFault &fault, int loaded) {
        QTest::newRow(name) << fault << loaded;
    };
    row("no permission", failing(Kind::Open, ".json", 0, EACCES), 0);
    row("removed before opening", failing(Kind::Open, ".json", 0, ENOENT), 0);
    row("interrupted opening", interrupted(Kind::Open, ".json"), 1);
    row("disk error", failing(Kind::Read, ".json", 0, EIO), 0);
    row("disk error halfway", {Kind::Read, ".json", 0, partly(30), false}, 1);
    row("interrupted reading", interrupted(Kind::Read, ".json"), 1);
    row("one byte at a time", {Kind::Read, ".json", 0, partly(1)}, 1);
    row("disk error at closing", failing(Kind::Close, ".json", 0, EIO), 1);
}

void tst_ConfStorageFaults::failedLoadIsAnEmptyConfiguration()
{
    QFETCH(OneFault, fault);
    for (const bool safe : {false, true}) {
        SavedSettings settings(safe);
        const LogCapture log;
        {
            const Scope faults(SavedSettings::folder(), fault.hook());
            settings.store.loadLocalConfFile();
        }
        QTEST(settings.number(), "loaded");
        QVERIFY(log.messages().isEmpty());
        QVERIFY(settings.store.mLocalLoaded);
        QVERIFY(!settings.store.mChanged);
        QCOMPARE(SavedSettings::content(), SavedSettings::fileText(1));
    }
    // A file that is removed after it was opened is still read.
    SavedSettings settings(false);
    const Scope faults(SavedSettings::folder(), [](const Call &call) {
        if (call.kind == Kind::Read)
            QFile::remove(SavedSettings::path());
        return proceed();
    });
    settings.store.loadLocalConfFile();
    QCOMPARE(settings.number(), 1);
    QVERIFY(!QFile::exists(SavedSettings::path()));
}

void tst_ConfStorageFaults::endlessFileCountsAsTooLarge()
{
    // As some files of the system, whose size is 0.
    SavedSettings settings(false);
    qint64 bytes = 0;
    const LogCapture log;
    const Scope faults(SavedSettings::folder(), [&bytes](const Call &call) {
        bytes += call.kind == Kind::Read ? call.size : 0;
        return call.kind == Kind::Read ? fill() : proceed();
    });
    settings.store.loadLocalConfFile();
    QCOMPARE(log.messages(),
             (QList<LoggedMessage>{{QtCriticalMsg, "ConfStorage::loadLocalConfFile() file too "
                                                   "large:  \"box/local.json\""}}));
    QCOMPARE(settings.number(), 0);
    QCOMPARE(bytes, settings.store.mMaxFileSize + 1);
}

void tst_ConfStorageFaults::fileThatBecomesAPipeDoesNotBlock()
{
    SavedSettings settings(false);
    const LogCapture log;
    const Scope faults(SavedSettings::folder(), [](const Call &call) {
        if (call.kind == Kind::Open && call.path.endsWith(".json")) {
            QFile::remove(SavedSettings::path());
            ::mkfifo(qPrintable(SavedSettings::path()), 0600);
        }
        return proceed();
    });
    settings.store.loadLocalConfFile();
    QCOMPARE(settings.number(), 0);
    settings.change(2);
    settings.store.saveToLocalConfFile();
    QCOMPARE(log.messages(), (QList<LoggedMessage>{{QtCriticalMsg, SavedSettings::openFailed()}}));
    QVERIFY(settings.store.mChanged);
}

void tst_ConfStorageFaults::specialFiles_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<bool>("safe");
    QTest::addColumn<bool>("saved");
    QTest::newRow("pipe") << "pipe" << false << false;
    QTest::newRow("pipe, safe") << "pipe" << true << false;
    QTest::newRow("endless device") << "/dev/zero" << false << true;
    QTest::newRow("endless device, safe") << "/dev/zero" << true << false;
    // A plain save does not notice that a device rejects the data.
    QTest::newRow("full device") << "/dev/full" << false << true;
    QTest::newRow("full device, safe") << "/dev/full" << true << false;
    QTest::newRow("folder") << "." << false << false;
    QTest::newRow("folder, safe") << "." << true << false;
    QTest::newRow("cyclic link") << "local.json" << false << false;
    QTest::newRow("cyclic link, safe") << "local.json" << true << false;
}

void tst_ConfStorageFaults::specialFiles()
{
    QFETCH(QString, target);
    QFETCH(bool, safe);
    QFETCH(bool, saved);
    QVERIFY(QFile::remove(SavedSettings::path()));
    QCOMPARE(::mkfifo("box/pipe", 0600), 0);
    QCOMPARE(::symlink(qPrintable(target), qPrintable(SavedSettings::path())), 0);
    SavedSettings settings(safe);
    const LogCapture log;
    settings.store.loadLocalConfFile();
    QVERIFY(log.messages().isEmpty());
    QVERIFY(settings.store.mLocalLoaded);
    QCOMPARE(settings.number(), 0);

    settings.change(2);
    settings.store.saveToLocalConfFile();
    const LoggedMessage message = saved ? LoggedMessage{QtDebugMsg, SavedSettings::saved()}
                                        : LoggedMessage{QtCriticalMsg, SavedSettings::openFailed()};
    QCOMPARE(log.messages(), QList<LoggedMessage>{message});
    QCOMPARE(settings.store.mChanged, !saved);
    QCOMPARE(settings.number(), 2);
    QVERIFY(QFileInfo(SavedSettings::path()).isSymLink());
}

void tst_ConfStorageFaults::saveCreatesTheTargetOfADanglingLink_data()
{
    QTest::addColumn<bool>("safe");
    QTest::newRow("plain") << false;
    QTest::newRow("safe") << true;
}

void tst_ConfStorageFaults::saveCreatesTheTargetOfADanglingLink()
{
    QFETCH(bool, safe);
    QVERIFY(QFile::remove(SavedSettings::path()));
    QVERIFY(QDir("box").mkdir("far"));
    QCOMPARE(::symlink("far/target.json", qPrintable(SavedSettings::path())), 0);
    SavedSettings settings(safe);
    const LogCapture log;
    settings.store.loadLocalConfFile();
    settings.change(2);
    settings.store.saveToLocalConfFile();
    QCOMPARE(log.messages(), (QList<LoggedMessage>{{QtDebugMsg, SavedSettings::saved()}}));
    QVERIFY(QFileInfo(SavedSettings::path()).isSymLink());
    QCOMPARE(SavedSettings::content("box/far/target.json"), SavedSettings::fileText(2));
    QCOMPARE(QDir("box/far").entryList(QDir::Files), QStringList("target.json"));
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfStorageFaults>(argc, argv);
}

#include "tst_ConfStorageFaults.moc"
