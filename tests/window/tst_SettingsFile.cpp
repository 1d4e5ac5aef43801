#include "MaltoConfiguration/window/transfer/SettingsFile_p.h"
#include "support/CleanStore.h"
#include "support/Entries.h"
#include "support/FileText.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTranslator>

#include <functional>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

using MtConf::SettingsFile;

namespace {

constexpr qint64 sLimit = 16 * 1024 * 1024;

using Prepare = std::function<void(const QString &path)>;

/// Returns a function that writes `content` into a file.
Prepare text(const QByteArray &content)
{
    return [content](const QString &path) { writeFile(path, content); };
}

} // namespace

Q_DECLARE_METATYPE(Prepare)

class tst_SettingsFile : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        clearStore();
        mFolder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir::setCurrent(mFolder->path()));
    }
    void cleanup()
    {
        QFile::setPermissions("folder", QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QDir::setCurrent(QDir::tempPath());
        mFolder.reset();
        clearStore();
    }

    void changedSettingsAreExported();
    void nothingChangedGivesAnEmptyObject();
    void whatStaysHereIsNotExported();
    void textOfThePageIsKeptExactly();
    void existingFileIsReplaced();
    void failedExportIsSaidAndKeepsTheFile_data();
    void failedExportIsSaidAndKeepsTheFile();
    void proposedNameIsThatOfTheHost_data();
    void proposedNameIsThatOfTheHost();
    void proposedNameIsTranslated();
    void damagedFilesAreSaidInWords_data();
    void damagedFilesAreSaidInWords();
    void readableFilesHaveNoError_data();
    void readableFilesHaveNoError();
    void systemMarkIsRemoved();

private:
    static ConfStorage *store() { return ConfStorage::instance(); }
    static QJsonObject exported()
    {
        const SettingsFile file("exported.json");
        const QString error = file.write(*store());
        return error.isEmpty() ? file.read(sLimit).dump : QJsonObject{{"error", error}};
    }

    std::unique_ptr<QTemporaryDir> mFolder;
};

void tst_SettingsFile::changedSettingsAreExported()
{
    int delay = 3;
    bool sound = true;
    QString folder;
    bool untouched = false;
    store()->reserveConf("Capture.Delay", &delay);
    store()->reserveConf("General.Sound", &sound);
    store()->reserveConf("Output.Folder", &folder);
    store()->reserveConf("General.Untouched", &untouched);
    store()->mConfMetas["Output.Folder"].flags |= ConfStorage::FlagSystemIndependent;
    store()->loadConf(QJsonObject{{"Capture.Delay", entry(100, 5)},
                                  {"Output.Folder", entry(200, "/a")},
                                  {"General.Sound", entry(200, false)}},
                      ConfStorage::LoadLocal);
    store()->setToDefault("General.Sound", false);
    QVERIFY(SettingsFile("exported.json").write(*store()).isEmpty());
    QCOMPARE(fileText("exported.json"), QByteArray("{\n"
                                                   "    \"Capture.Delay\": {\"t\":100,\"v\":5},\n"
                                                   "    \"General.Sound\": {\"t\":200},\n"
                                                   "    \"Output.Folder#s.mac\": "
                                                   "{\"t\":200,\"v\":\"/a\"}\n"
                                                   "}\n"));
}

void tst_SettingsFile::nothingChangedGivesAnEmptyObject()
{
    int delay = 3;
    store()->reserveConf("Capture.Delay", &delay);
    QVERIFY(SettingsFile("exported.json").write(*store()).isEmpty());
    QCOMPARE(fileText("exported.json"), QByteArray("{\n}\n"));
    const SettingsFile::Content content = SettingsFile("exported.json").read(sLimit);
    QCOMPARE(content.error, QString());
    QVERIFY(content.dump.isEmpty());
}

void tst_SettingsFile::whatStaysHereIsNotExported()
{
    const QStringList keys{"Local.A", "Secret.A", "Malto.Geometry", "Shared.A", "Dynamic.A"};
    std::vector<QString> values(keys.size());
    for (int i = 0; i < keys.size(); ++i)
        store()->reserveConf(keys.at(i), &values[size_t(i)]);
    ConfStorage::DynamicConfClass cls;
    cls.prefix = "Dynamic.";
    cls.flags = ConfStorage::FlagSecret;
    store()->mDynamicConfClasses.append(&cls);
    store()->mConfMetas["Local.A"].flags |= ConfStorage::FlagLocalOnly;
    store()->mConfMetas["Secret.A"].flags |= ConfStorage::FlagSecret;
    store()->mRemovedDynamicConfs.insert("Dynamic.B", second(100));
    for (const QString &key : keys)
        store()->set(key, QString("x"));
    QCOMPARE(exported().keys(), QStringList("Shared.A"));
}

void tst_SettingsFile::textOfThePageIsKeptExactly()
{
    const QString text = QString::fromUtf8("\xef\xbb\xbf"
                                           "a\"\\\n\tä😀");
    QString value;
    store()->reserveConf("Text", &value);
    store()->set("Text", text);
    QCOMPARE(exported().value("Text").toObject().value("v").toString(), text);
}

void tst_SettingsFile::existingFileIsReplaced()
{
    text("{\"Old\": {\"t\": 1}}")("exported.json");
    QVERIFY(QFile::setPermissions("exported.json", QFile::ReadOwner | QFile::WriteOwner));
    QVERIFY(SettingsFile("exported.json").write(*store()).isEmpty());
    QCOMPARE(fileText("exported.json"), QByteArray("{\n}\n"));
    QCOMPARE(QDir().entryList(QDir::Files), QStringList("exported.json"));
    QVERIFY(!(QFile::permissions("exported.json") & QFile::ReadOther));
}

void tst_SettingsFile::failedExportIsSaidAndKeepsTheFile_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<Prepare>("prepare");
    QTest::newRow("a folder") << "folder"
                              << Prepare([](const QString &path) { QDir().mkdir(path); });
    QTest::newRow("in a folder that does not exist")
        << "folder/exported.json" << Prepare([](const QString &) {});
    QTest::newRow("in a folder that cannot be written")
        << "folder/exported.json" << Prepare([](const QString &) {
               if (::geteuid() == 0)
                   QSKIP("root can write everywhere");
               QVERIFY(QDir().mkdir("folder"));
               QVERIFY(QFile::setPermissions("folder", QFile::ReadOwner | QFile::ExeOwner));
           });
    QTest::newRow("a pipe") << "pipe" << Prepare([](const QString &path) {
        ::mkfifo(qPrintable(path), 0600);
    });
}

void tst_SettingsFile::failedExportIsSaidAndKeepsTheFile()
{
    QFETCH(QString, path);
    QFETCH(Prepare, prepare);
    prepare(path);
    const QFileInfo before(path);
    const LogCapture log;
    const QString error = SettingsFile(path).write(*store());
    QVERIFY2(error.startsWith("The settings could not be saved in \"" + path + "\".\n"),
             qPrintable(error));
    QVERIFY(error.size() > error.indexOf('\n') + 1);
    QCOMPARE(log.messages(),
             QList<LoggedMessage>({{QtWarningMsg, "ConfigurationWindow settings could not be "
                                                  "exported:  \""
                                                      + path + "\""}}));
    const QFileInfo after(path);
    QCOMPARE(after.exists(), before.exists());
    QCOMPARE(after.isDir(), before.isDir());
    QCOMPARE(after.isFile(), before.isFile());
}

void tst_SettingsFile::proposedNameIsThatOfTheHost_data()
{
    QTest::addColumn<QString>("host");
    QTest::addColumn<QString>("name");
    QTest::newRow("a name") << "Screen Tool"
                            << "Screen Tool settings.json";
    QTest::newRow("a path") << "../a/b\\c"
                            << "a b c settings.json";
    QTest::newRow("what other systems do not accept") << "A: <B>?"
                                                      << "A B settings.json";
    QTest::newRow("a hidden file") << ".tool"
                                   << "tool settings.json";
    QTest::newRow("control characters") << "a\nb\x7f"
                                        << "a b settings.json";
    QTest::newRow("another script")
        << QString::fromUtf8("屏幕工具") << QString::fromUtf8("屏幕工具 settings.json");
    QTest::newRow("a long name") << QString(300, 'x') << QString(60, 'x') + " settings.json";
    QTest::newRow("nothing but dots") << "..."
                                      << "settings.json";
}

void tst_SettingsFile::proposedNameIsThatOfTheHost()
{
    QFETCH(QString, host);
    QGuiApplication::setApplicationDisplayName(host);
    QTEST(SettingsFile::proposedName(), "name");
    QGuiApplication::setApplicationDisplayName(QString());
}

void tst_SettingsFile::proposedNameIsTranslated()
{
    class French : public QTranslator
    {
    public:
        QString translate(const char *context, const char *source, const char *, int) const override
        {
            const bool isName = QLatin1String(context) == QLatin1String("MtConf::SettingsFile")
                                && QLatin1String(source) == QLatin1String("%1 settings");
            return isName ? QStringLiteral("Réglages de %1") : QString();
        }
        bool isEmpty() const override { return false; }
    };
    French french;
    QVERIFY(QCoreApplication::installTranslator(&french));
    QGuiApplication::setApplicationDisplayName("Screen Tool");
    QCOMPARE(SettingsFile::proposedName(), QString::fromUtf8("Réglages de Screen Tool.json"));
    QGuiApplication::setApplicationDisplayName(QString());
}

void tst_SettingsFile::damagedFilesAreSaidInWords_data()
{
    QTest::addColumn<Prepare>("prepare");
    QTest::addColumn<QString>("words");
    const QByteArray deep = "{\"A\": {\"t\": 1, \"v\": " + QByteArray(5000, '[')
                            + QByteArray(5000, ']') + "}}";
    QTest::newRow("missing") << Prepare([](const QString &) {})
                             << "The file \"in.json\" does not exist.";
    QTest::newRow("a folder") << Prepare([](const QString &path) { QDir().mkdir(path); })
                              << "\"in.json\" is not a file.";
    QTest::newRow("a pipe") << Prepare([](const QString &path) {
        ::mkfifo(qPrintable(path), 0600);
    }) << "\"in.json\" is not a file.";
    QTest::newRow("an endless device")
        << Prepare([](const QString &path) { QFile::link("/dev/zero", path); })
        << "\"in.json\" is not a file.";
    QTest::newRow("too large") << text(QByteArray(20001, ' '))
                               << "The file \"in.json\" is larger than 19.53 KiB.";
    QTest::newRow("empty") << text("") << "The file \"in.json\" is empty.";
    QTest::newRow("blank") << text(" \n") << "The file \"in.json\" is empty.";
    QTest::newRow("truncated") << text("{\"A\": {\"t\": 1, \"v\"")
                               << "The file \"in.json\" is damaged or not complete.";
    QTest::newRow("something behind the end")
        << text("{\"A\": {\"t\": 1}} x") << "The file \"in.json\" is damaged or not complete.";
    QTest::newRow("truncated, with a byte order mark")
        << text("\xef\xbb\xbf{\"A\"") << "The file \"in.json\" is damaged or not complete.";
    QTest::newRow("not JSON") << text("GIF89a")
                              << "The file \"in.json\" does not contain settings.";
    QTest::newRow("binary") << text(QByteArray("\0\xff\xfe\1", 4))
                            << "The file \"in.json\" does not contain settings.";
    QTest::newRow("a list") << text("[1, 2]") << "The file \"in.json\" does not contain settings.";
    QTest::newRow("another object") << text("{\"name\": \"x\", \"size\": {\"w\": 1}}")
                                    << "The file \"in.json\" does not contain settings.";
    QTest::newRow("a configuration file")
        << text("{\"General.Sound\": false}") << "The file \"in.json\" does not contain settings.";
    QTest::newRow("nested too deeply")
        << text(deep) << "The file \"in.json\" is damaged: its content is nested too deeply.";
}

void tst_SettingsFile::damagedFilesAreSaidInWords()
{
    QFETCH(Prepare, prepare);
    prepare("in.json");
    const LogCapture log;
    const SettingsFile::Content content = SettingsFile("in.json").read(20000);
    QTEST(content.error, "words");
    QVERIFY(content.dump.isEmpty());
    QCOMPARE(log.messages(),
             QList<LoggedMessage>({{QtWarningMsg, "ConfigurationWindow settings could not be "
                                                  "imported:  \"in.json\""}}));
}

void tst_SettingsFile::readableFilesHaveNoError_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("entries");
    QTest::newRow("an empty object") << QByteArray("{}") << 0;
    QTest::newRow("a value") << QByteArray("{\"A\": {\"t\": 1, \"v\": 2}}") << 1;
    QTest::newRow("a restored default") << QByteArray("{\"A\": {\"t\": 1}}") << 1;
    QTest::newRow("a removal") << QByteArray("{\"A\": {\"d\": 1}}") << 1;
    QTest::newRow("a value without a time") << QByteArray("{\"A\": {\"v\": 1}}") << 1;
    QTest::newRow("with a byte order mark") << QByteArray("\xef\xbb\xbf{\"A\": {\"t\": 1}}") << 1;
    QTest::newRow("other members, too") << QByteArray("{\"A\": {\"t\": 1}, \"B\": 5}") << 2;
}

void tst_SettingsFile::readableFilesHaveNoError()
{
    QFETCH(QByteArray, content);
    text(content)("in.json");
    const LogCapture log;
    const SettingsFile::Content read = SettingsFile("in.json").read(sLimit);
    QCOMPARE(read.error, QString());
    QTEST(int(read.dump.size()), "entries");
    QVERIFY(log.messages().isEmpty());
}

void tst_SettingsFile::systemMarkIsRemoved()
{
    QCOMPARE(MtConf::keyOfEntry("A.B"), QString("A.B"));
    QCOMPARE(MtConf::keyOfEntry("A.B#s.mac"), QString("A.B"));
    QCOMPARE(MtConf::keyOfEntry("A#B#s.mac"), QString("A#B"));
    QCOMPARE(MtConf::keyOfEntry("A.B#s.win"), QString());
}

int main(int argc, char **argv)
{
    return runTest<tst_SettingsFile>(argc, argv);
}

#include "tst_SettingsFile.moc"
