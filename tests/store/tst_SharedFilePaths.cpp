#include "support/Entries.h"
#include "support/LogCapture.h"
#include "support/SavedFile.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QJsonDocument>
#include <QJsonObject>

#include <functional>
#include <sys/stat.h>
#include <utility>

namespace {

using Action = std::function<void()>;

constexpr char sOther[] = "other.json";

/// A program that shares the file and has two settings.
struct Program
{
    Program()
    {
        store.mFileOptions = ConfStorage::SharedFile | ConfStorage::KeepUnknownEntries;
        store.mLocalSaveFile = sPath;
        store.reserveConf("a", &a);
        store.reserveConf("b", &b);
    }
    Q_DISABLE_COPY(Program)

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

QJsonObject entriesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object()
                                          : QJsonObject();
}

bool writeTo(const QString &path, const QByteArray &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

/// Calls a function once, for the message about a removed key without a class, which the store logs
/// while it composes the text of a save.
class DuringASave
{
public:
    explicit DuringASave(Action action)
    {
        sAction = std::move(action);
        mPrevious = qInstallMessageHandler(&DuringASave::handle);
    }
    ~DuringASave() { qInstallMessageHandler(mPrevious); }
    Q_DISABLE_COPY(DuringASave)

    static bool isDone() { return !sAction; }

private:
    static void handle(QtMsgType, const QMessageLogContext &, const QString &text)
    {
        if (sAction && text.contains(QLatin1String("findDynamicConfClass error")))
            std::exchange(sAction, nullptr)();
    }

    static inline Action sAction;
    QtMessageHandler mPrevious;
};

} // namespace

Q_DECLARE_METATYPE(Action)

/// What is at the path of a shared file, and paths that change.
class tst_SharedFilePaths : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup()
    {
        for (const char *name : {sPath, sOther, "local.json.lock", "other.json.lock"}) {
            QFile::remove(name);
            QDir().rmdir(name);
        }
    }

    void fileThatCannotBeWrittenKeepsTheChangePending_data();
    void fileThatCannotBeWrittenKeepsTheChangePending();
    void fileThatIsReplacedIsMerged_data();
    void fileThatIsReplacedIsMerged();
    void pathThatChangesBeforeASaveMergesBothFiles();
    void pipeInPlaceOfTheLockIsNotRead();
    void logHandlerMayChangeThePathDuringASave();
    void logHandlerMayClearTheStoreDuringASave();
};

void tst_SharedFilePaths::fileThatCannotBeWrittenKeepsTheChangePending_data()
{
    QTest::addColumn<Action>("replace");
    QTest::newRow("folder") << Action([] { QVERIFY(QDir().mkdir(sPath)); });
    QTest::newRow("pipe") << Action([] { QCOMPARE(::mkfifo(sPath, 0600), 0); });
    QTest::newRow("link to itself") << Action([] { QVERIFY(QFile::link(sPath, sPath)); });
    QTest::newRow("link into a missing folder")
        << Action([] { QVERIFY(QFile::link("missing/local.json", sPath)); });
}

void tst_SharedFilePaths::fileThatCannotBeWrittenKeepsTheChangePending()
{
    QFETCH(Action, replace);
    const QByteArray text = R"({"a":{"t":100,"v":10},"z":{"t":100,"v":0}})";
    write(text);
    Program program;
    program.store.loadLocalConfFile();
    program.store.set("b", 20);
    QVERIFY(QFile::remove(sPath));
    replace();
    {
        const LogCapture log;
        QVERIFY(!program.save());
        program.store.loadLocalConfFile();
        QVERIFY(!program.save());
        QCOMPARE(log.texts(QtCriticalMsg).size(), 2);
        QVERIFY(log.texts(QtCriticalMsg).first().startsWith("ConfStorage::saveToLocalConfFile() "));
    }
    QCOMPARE(program.a, 10);
    QVERIFY(QFile::remove(sPath) || QDir().rmdir(sPath));
    write(text);
    QVERIFY(program.save());
    QCOMPARE(entriesOf(sPath).keys(), (QStringList{"a", "b", "z"}));
    QCOMPARE(program.a, 10);
}

void tst_SharedFilePaths::fileThatIsReplacedIsMerged_data()
{
    QTest::addColumn<Action>("replace");
    QTest::addColumn<int>("a");
    const QByteArray newer = R"({"a":{"t":200,"v":11}})";
    QTest::newRow("missing") << Action([] {}) << 10;
    QTest::newRow("other file") << Action([newer] { QVERIFY(writeTo(sPath, newer)); }) << 11;
    QTest::newRow("link") << Action([newer] {
        QVERIFY(writeTo(sOther, newer));
        QVERIFY(QFile::link(sOther, sPath));
    }) << 11;
    QTest::newRow("link to a missing file")
        << Action([] { QVERIFY(QFile::link(sOther, sPath)); }) << 10;
}

void tst_SharedFilePaths::fileThatIsReplacedIsMerged()
{
    QFETCH(Action, replace);
    QFETCH(int, a);
    write(R"({"a":{"t":100,"v":10},"z":{"t":100,"v":0}})");
    Program program;
    program.store.loadLocalConfFile();
    program.store.set("b", 20);
    QVERIFY(QFile::remove(sPath));
    replace();
    const bool isLink = QFileInfo(sPath).isSymLink();
    QVERIFY(program.save());
    QCOMPARE(program.a, a);
    QCOMPARE(entriesOf(sPath).keys(), (QStringList{"a", "b", "z"}));
    QCOMPARE(entriesOf(sPath).value("a").toObject().value("v").toInt(), a);
    QCOMPARE(QFileInfo(sPath).isSymLink(), isLink);
}

void tst_SharedFilePaths::pathThatChangesBeforeASaveMergesBothFiles()
{
    write(R"({"a":{"t":100,"v":10},"y":{"t":200,"v":1},"z":{"t":100,"v":1}})");
    QVERIFY(writeTo(sOther, R"({"a":{"t":200,"v":11},"b":{"t":100,"v":21},"c":{"t":1,"v":0},)"
                            R"("y":{"t":100,"v":2},"z":{"t":200,"v":2}})"));
    Program program;
    program.store.loadLocalConfFile();
    program.store.set("b", 20);
    program.store.mLocalSaveFile = sOther;
    QVERIFY(program.save());
    const QJsonObject other = entriesOf(sOther);
    QCOMPARE(other.keys(), (QStringList{"a", "b", "c", "y", "z"}));
    QCOMPARE(other.value("a").toObject(), entry(200, 11));
    QCOMPARE(other.value("b").toObject().value("v").toInt(), 20);
    QCOMPARE(other.value("y").toObject(), entry(200, 1)); // unknown here, and newer
    QCOMPARE(other.value("z").toObject(), entry(200, 2));
    QCOMPARE(program.a, 11);
    QVERIFY(!entriesOf(sPath).contains("b"));
}

void tst_SharedFilePaths::pipeInPlaceOfTheLockIsNotRead()
{
    write(R"({"a":{"t":100,"v":10}})");
    QCOMPARE(::mkfifo("local.json.lock", 0600), 0);
    Program program;
    program.store.loadLocalConfFile();
    QCOMPARE(program.a, 10);
    program.store.set("b", 20);
    const LogCapture log;
    QVERIFY(!program.save());
    const QString message = "ConfStorage::saveToLocalConfFile() lock file could not be created: ";
    QVERIFY(log.texts(QtCriticalMsg).value(0).startsWith(message));
    QCOMPARE(log.texts(QtCriticalMsg).size(), 1);
}

void tst_SharedFilePaths::logHandlerMayChangeThePathDuringASave()
{
    write(R"({"a":{"t":100,"v":10},"z":{"t":100,"v":0}})");
    QVERIFY(writeTo(sOther, R"({"a":{"t":50,"v":11},"y":{"t":100,"v":0}})"));
    Program program;
    program.store.loadLocalConfFile();
    program.store.mRemovedDynamicConfs["removed"] = second(100);
    program.store.set("b", 20);
    const DuringASave change([&] {
        program.store.mLocalSaveFile = sOther;
        program.store.saveToLocalConfFile();
    });
    program.store.saveToLocalConfFile();
    QVERIFY(change.isDone());
    QCOMPARE(entriesOf(sPath).keys().mid(0, 1), QStringList("a"));
    QVERIFY(entriesOf(sPath).contains("z"));
    QVERIFY(!entriesOf(sPath).contains("y"));
    QVERIFY(program.save());
    QCOMPARE(entriesOf(sOther).value("b").toObject().value("v").toInt(), 20);
    QVERIFY(entriesOf(sOther).contains("y"));
}

void tst_SharedFilePaths::logHandlerMayClearTheStoreDuringASave()
{
    write(R"({"a":{"t":100,"v":10}})");
    Program program;
    program.store.loadLocalConfFile();
    program.store.mRemovedDynamicConfs["removed"] = second(100);
    program.store.set("a", 11);
    program.store.mConfMetas["a"].lastChangeTime = second(100);
    const DuringASave clear([&] { program.store.clear(); });
    program.store.saveToLocalConfFile();
    QVERIFY(clear.isDone());
    QVERIFY(program.store.mConfMetas.isEmpty());
    QVERIFY(program.store.mRemovedDynamicConfs.isEmpty());
    QCOMPARE(entriesOf(sPath).value("a").toObject(), entry(101, 11));
}

int main(int argc, char **argv)
{
    return runTest<tst_SharedFilePaths>(argc, argv);
}

#include "tst_SharedFilePaths.moc"
