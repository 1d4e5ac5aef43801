#include "OneFault.h"
#include "support/CleanStore.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/manage/MtConfManage.h>

#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

using namespace Faults;

/// Loading the configuration file with errors of the operating system.
class tst_ConfigFileFaults : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        clearStore();
        QDir("box").removeRecursively();
        QVERIFY(QDir().mkdir("box"));
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.write("{\"Capture.Delay\":5,\"Capture.Sound\":true}") > 0);
    }
    void cleanup() { clearStore(); }

    void failedLoadChangesNothing_data();
    void failedLoadChangesNothing();
    void specialFilesCannotBeOpened_data();
    void specialFilesCannotBeOpened();
    void fileOf16MebibytesIsLoaded_data();
    void fileOf16MebibytesIsLoaded();

private:
    static QString path() { return "box/conf.json"; }
    static QString openFailed() { return "can't open config file \"box/conf.json\""; }
};

void tst_ConfigFileFaults::failedLoadChangesNothing_data()
{
    QTest::addColumn<OneFault>("fault");
    QTest::addColumn<bool>("loaded");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *name, const OneFault &fault, bool loaded,
                        const QString &message = QString()) {
        QTest::newRow(name) << fault << loaded << message;
    };
    row("no permission", {Kind::Open, "conf.json", 0, fail(EACCES)}, false, openFailed());
    row("missing", {Kind::Open, "conf.json", 0, fail(ENOENT)}, false);
    row("disk error at opening", {Kind::Open, "conf.json", 0, fail(EIO)}, false, openFailed());
    row("interrupted opening", {Kind::Open, "conf.json", 0, fail(EINTR), false}, true);
    row("disk error at reading", {Kind::Read, "conf.json", 0, fail(EIO)}, false, openFailed());
    row("disk error in the middle", {Kind::Read, "conf.json", 1, fail(EIO)}, false, openFailed());
    row("interrupted reading", {Kind::Read, "conf.json", 0, fail(EINTR), false}, true);
    row("one byte at a time", {Kind::Read, "conf.json", 0, partly(1)}, true);
    row("disk error at closing", {Kind::Close, "conf.json", 0, fail(EIO)}, true);
}

void tst_ConfigFileFaults::failedLoadChangesNothing()
{
    QFETCH(OneFault, fault);
    QFETCH(bool, loaded);
    QFETCH(QString, message);
    MtConf::MtConfManage manage;
    int delay = 3;
    bool sound = false;
    manage.addConfInt32("Delay", &delay, "Capture", "Delay");
    manage.addConfBool("Sound", &sound, "Capture", "Sound");
    const LogCapture log;
    const Scope faults(QFile::encodeName(QDir::currentPath() + "/box"), fault.hook());
    manage.loadFromFile(path());
    QCOMPARE(delay, loaded ? 5 : 3);
    QCOMPARE(sound, loaded);
    QCOMPARE(log.texts(QtCriticalMsg), message.isEmpty() ? QStringList() : QStringList(message));
    QCOMPARE(ConfStorage::instance()->mChanged, loaded);
}

void tst_ConfigFileFaults::specialFilesCannotBeOpened_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("pipe") << "pipe";
    QTest::newRow("endless device") << "/dev/zero";
    QTest::newRow("folder") << ".";
}

void tst_ConfigFileFaults::specialFilesCannotBeOpened()
{
    QFETCH(QString, target);
    QVERIFY(QFile::remove(path()));
    QCOMPARE(::mkfifo("box/pipe", 0600), 0);
    QCOMPARE(::symlink(qPrintable(target), qPrintable(path())), 0);
    MtConf::MtConfManage manage;
    int delay = 3;
    manage.addConfInt32("Delay", &delay, "Capture", "Delay");
    const LogCapture log;
    manage.loadFromFile(path());
    QCOMPARE(log.texts(QtCriticalMsg), QStringList(openFailed()));
    QCOMPARE(delay, 3);
}

void tst_ConfigFileFaults::fileOf16MebibytesIsLoaded_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<bool>("isLoaded");
    QTest::newRow("one byte less") << 16777215 << true;
    QTest::newRow("exactly") << 16777216 << true;
    QTest::newRow("one byte more") << 16777217 << false;
}

void tst_ConfigFileFaults::fileOf16MebibytesIsLoaded()
{
    QFETCH(int, size);
    QFETCH(bool, isLoaded);
    const QByteArray text = R"({"Capture.Delay":5})";
    QFile file(path());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text + QByteArray(size - static_cast<int>(text.size()), ' '));
    file.close();
    MtConf::MtConfManage manage;
    int delay = 3;
    manage.addConfInt32("Delay", &delay, "Capture", "Delay");
    const LogCapture log;
    manage.loadFromFile(path());
    QCOMPARE(delay, isLoaded ? 5 : 3);
    QCOMPARE(log.texts(QtCriticalMsg), isLoaded ? QStringList() : QStringList(openFailed()));
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfigFileFaults>(argc, argv);
}

#include "tst_ConfigFileFaults.moc"
