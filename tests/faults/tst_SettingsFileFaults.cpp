#include "FaultInjection.h"
#include "MaltoConfiguration/window/transfer/SettingsFile_p.h"
#include "support/CleanStore.h"
#include "support/FileText.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QDir>
#include <QJsonObject>

#include <cerrno>

using Faults::Call;
using Faults::Kind;
using Faults::Scope;
using MtConf::SettingsFile;

Q_DECLARE_METATYPE(Faults::Kind)

namespace {

const char sFile[] = "exported.json";
const QByteArray sOldText = "{\"Old\": {\"t\": 1}}";

/// Fails every call of one kind; a full disk takes some bytes first.
Faults::Hook failing(Kind kind, int error, int *failures)
{
    return [=](const Call &call) {
        if (call.kind != kind)
            return Faults::proceed();
        return ++*failures == 1 && kind == Kind::Write ? Faults::partly(3) : Faults::fail(error);
    };
}

} // namespace

class tst_SettingsFileFaults : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        clearStore();
        ConfStorage::instance()->reserveConf("Capture.Delay", &mDelay);
        ConfStorage::instance()->set("Capture.Delay", 8);
        ConfStorage::instance()->reserveConf("Text", &mText);
        writeFile(sFile, sOldText);
    }
    void cleanup()
    {
        QFile::remove(sFile);
        clearStore();
    }

    void failedExportKeepsTheOldFile_data();
    void failedExportKeepsTheOldFile();
    void shortWritesAreCompleted();
    void unreadableFileIsSaid_data();
    void unreadableFileIsSaid();

private:
    int mDelay = 3;
    QString mText;
};

void tst_SettingsFileFaults::failedExportKeepsTheOldFile_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<int>("error");
    QTest::addColumn<QString>("reason");
    QTest::addColumn<int>("length");
    QTest::newRow("full disk") << Kind::Write << ENOSPC << "No space left on device" << 0;
    QTest::newRow("full disk and a large file")
        << Kind::Write << ENOSPC << "No space left on device" << 100000;
    QTest::newRow("broken disk") << Kind::Write << EIO << "Input/output error" << 0;
    QTest::newRow("folder without permission") << Kind::Open << EACCES << "Permission denied" << 0;
    QTest::newRow("read-only disk") << Kind::Open << EROFS << "Read-only file system" << 0;
    QTest::newRow("file that cannot be replaced")
        << Kind::Rename << EPERM << "Operation not permitted" << 0;
}

void tst_SettingsFileFaults::failedExportKeepsTheOldFile()
{
    QFETCH(Kind, kind);
    QFETCH(int, error);
    QFETCH(int, length);
    ConfStorage::instance()->set("Text", QString(length, 'x'));
    int failures = 0;
    QString words;
    {
        const LogCapture log;
        const Scope scope(QDir::currentPath().toLocal8Bit(), failing(kind, error, &failures));
        words = SettingsFile(sFile).write(*ConfStorage::instance());
        QCOMPARE(LogCapture::texts(QtWarningMsg).size(), 1);
    }
    QVERIFY(failures > 0);
    QFETCH(QString, reason);
    QCOMPARE(words, "The settings could not be saved in \"exported.json\".\n" + reason);
    QCOMPARE(fileText(sFile), sOldText);
    QCOMPARE(QDir().entryList(QDir::Files | QDir::Hidden), QStringList(sFile));
}

void tst_SettingsFileFaults::shortWritesAreCompleted()
{
    int writes = 0;
    const Scope scope(QDir::currentPath().toLocal8Bit(), [&writes](const Call &call) {
        const bool isFirst = call.kind == Kind::Write && ++writes == 1;
        return isFirst ? Faults::partly(3) : Faults::proceed();
    });
    QCOMPARE(SettingsFile(sFile).write(*ConfStorage::instance()), QString());
    const QJsonObject dump = SettingsFile(sFile).read(1000).dump;
    QCOMPARE(dump.value("Capture.Delay").toObject().value("v"), QJsonValue(8));
    QVERIFY(writes > 1);
}

void tst_SettingsFileFaults::unreadableFileIsSaid_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<int>("error");
    QTest::newRow("no permission") << Kind::Open << EACCES;
    QTest::newRow("broken disk") << Kind::Read << EIO;
}

void tst_SettingsFileFaults::unreadableFileIsSaid()
{
    QFETCH(Kind, kind);
    QFETCH(int, error);
    int failures = 0;
    const LogCapture log;
    const Scope scope(QDir::currentPath().toLocal8Bit(), failing(kind, error, &failures));
    const SettingsFile::Content content = SettingsFile(sFile).read(1000);
    QCOMPARE(content.error, QString("The file \"exported.json\" could not be read."));
    QVERIFY(content.dump.isEmpty());
    QVERIFY(failures > 0);
}

int main(int argc, char **argv)
{
    return runTest<tst_SettingsFileFaults>(argc, argv);
}

#include "tst_SettingsFileFaults.moc"
