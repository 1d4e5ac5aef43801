#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <sys/stat.h>
#include <unistd.h>

/// The local file of a store.
class tst_ConfStorageFile : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        mSize = 7;
        mStore = makeStore();
    }
    void cleanup()
    {
        QFile::remove(path());
        QFile::remove("target.json");
    }

    void emptyPathIsLogged();
    void savedFileIsCompactAndSorted();
    void fileContainsTheBytesOfTheDump_data();
    void fileContainsTheBytesOfTheDump();
    void unchangedStoreWritesNothing();
    void saveStaysPendingIfTheFileCannotBeOpened_data();
    void saveStaysPendingIfTheFileCannotBeOpened();
    void fileIsRewrittenInPlace();
    void shorterContentTruncatesTheFile();
    void newFileHasThePermissionsThatTheUmaskAllows();
    void fileIsNotTruncatedBeforeTheTextIsComposed();
    void failedOpeningIsLoggedBeforeTheDump();
    void unreadableButWritableFileIsSaved();
    void loadedFileRestoresEverything();
    void fileWithoutAJsonObjectCountsAsEmpty_data();
    void fileWithoutAJsonObjectCountsAsEmpty();
    void hugeFileCountsAsEmptyAndIsLogged();
    void hostChoosesTheLargestFile_data();
    void hostChoosesTheLargestFile();
    void valueThatCouldNotBeSavedIsRefused_data();
    void valueThatCouldNotBeSavedIsRefused();
    void createdEntryThatCouldNotBeSavedIsRefused();
    void firstStartCreatesPresetsWithoutSaving();
    void loadingWithoutAPathCreatesNoPresets();
    void newerChangesOfTheStoreAreKept();

private:
    static QString path() { return "local.json"; }
    std::unique_ptr<ConfStorage> makeStore()
    {
        auto store = std::make_unique<ConfStorage>();
        store->mLocalSaveFile = path();
        store->reserveConf("size", &mSize);
        return store;
    }
    static QByteArray content(const QString &name = path())
    {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static void write(const QByteArray &text)
    {
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(text), qint64(text.size()));
    }
    void change(int value, qint64 seconds)
    {
        mStore->set<int>("size", value);
        mStore->mConfMetas["size"].lastChangeTime = QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
    }

    std::unique_ptr<ConfStorage> mStore;
    int mSize = 0;
};

void tst_ConfStorageFile::emptyPathIsLogged()
{
    mStore->mLocalSaveFile.clear();
    const LogCapture log;
    mStore->saveToLocalConfFile();
    mStore->loadLocalConfFile();
    QCOMPARE(log.texts(QtCriticalMsg),
             (QStringList{"ConfStorage::saveToLocalConfFile() mLocalSaveFile.isEmpty()",
                          "ConfStorage::loadLocalConfFile() mLocalSaveFile.isEmpty()"}));
    QVERIFY(!mStore->mLocalLoaded);
}

void tst_ConfStorageFile::savedFileIsCompactAndSorted()
{
    QString text = QString::fromUtf8("é");
    mStore->reserveConf("a text", &text);
    change(8, 100);
    mStore->set<QString>("a text", text);
    mStore->mConfMetas["a text"].lastChangeTime = QDateTime::fromSecsSinceEpoch(200, Qt::UTC);
    const LogCapture log;
    mStore->saveToLocalConfFile();
    QCOMPARE(content(), QByteArray("{\"a text\":{\"t\":200,\"v\":\"\xc3\xa9\"},"
                                   "\"size\":{\"t\":100,\"v\":8}}"));
    QCOMPARE(log.texts(QtDebugMsg),
             QStringList("ConfStorage::saveToLocalConfFile() save to file:  \"local.json\""));
    QCOMPARE(log.messages().size(), 1);
    QVERIFY(!mStore->mChanged);
}

void tst_ConfStorageFile::fileContainsTheBytesOfTheDump_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QByteArray>("text");
    const auto row = [](const char *name, const QJsonValue &value, const char *text) {
        QTest::newRow(name) << "k" << value << QByteArray(text);
    };
    row("plain text", "Size 1", "\"Size 1\"");
    row("empty text", "", "\"\"");
    row("quote", "a\"b", R"("a\"b")");
    row("backslash", "a\\b", R"("a\\b")");
    row("line break", "a\nb", R"("a\nb")");
    row("control character", QString(QChar(0x1f)), R"("\u001f")");
    row("delete character", QString(QChar(0x7f)), "\"\x7f\"");
    row("two-byte character", QString::fromUtf8("ß"), "\"ß\"");
    row("surrogate pair", QString::fromUtf8("😀"), "\"😀\"");
    row("half a surrogate pair", QString(QChar(0xd83d)), R"("\ud83d")");
    row("zero", 0, "0");
    row("negative zero", -0.0, "0");
    row("negative", -12, "-12");
    row("fraction", 0.1, "0.1");
    row("largest exact integer", 9007199254740991.0, "9007199254740991");
    row("large number", 1e300, "1e+300");
    row("flag", true, "true");
    row("array", QJsonArray{1, "a", QJsonArray()}, R"([1,"a",[]])");
    row("object", QJsonObject{{"b", 1}, {"a", QJsonValue()}}, R"({"a":null,"b":1})");
    QTest::newRow("key with a quote") << "k\"" << QJsonValue(1) << QByteArray("1");
    QTest::newRow("key with a two-byte character")
        << QString::fromUtf8("ключ") << QJsonValue(1) << QByteArray("1");
}

void tst_ConfStorageFile::fileContainsTheBytesOfTheDump()
{
    QFETCH(QString, key);
    QFETCH(QJsonValue, value);
    QFETCH(QByteArray, text);
    const auto hold = [&](const auto &initial) {
        mStore->mConfValues[key] = ConfValue::owned(initial);
        mStore->loadValueFromJson(key, value);
    };
    switch (value.type()) {
    case QJsonValue::Bool: hold(false); break;
    case QJsonValue::Double: hold(0.0); break;
    case QJsonValue::String: hold(QString()); break;
    case QJsonValue::Array: hold(QJsonArray()); break;
    default: hold(QJsonObject()); break;
    }
    mStore->saveToLocalConfFile();
    QFile file(path());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray written = file.readAll();
    QVERIFY2(written.endsWith(",\"v\":" + text + "}}"), written);
    QCOMPARE(
        written,
        QJsonDocument(mStore->dumpConf(ConfStorage::DumpLocal)).toJson(QJsonDocument::Compact));
}

void tst_ConfStorageFile::unchangedStoreWritesNothing()
{
    mStore->saveToLocalConfFile();
    QVERIFY(!QFile::exists(path()));
    change(8, 100);
    mStore->saveToLocalConfFile();
    QVERIFY(QFile::remove(path()));
    mStore->saveToLocalConfFile();
    QVERIFY(!QFile::exists(path()));
}

void tst_ConfStorageFile::saveStaysPendingIfTheFileCannotBeOpened_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("folder") << ".";
    QTest::newRow("missing folder") << "missing/local.json";
    QTest::newRow("file as folder") << "/dev/null/local.json";
}

void tst_ConfStorageFile::saveStaysPendingIfTheFileCannotBeOpened()
{
    QFETCH(QString, file);
    mStore->mLocalSaveFile = file;
    change(8, 100);
    const LogCapture log;
    mStore->saveToLocalConfFile();
    QCOMPARE(
        log.texts(QtCriticalMsg),
        QStringList(
            QString("ConfStorage::saveToLocalConfFile() open file failed:  \"%1\"").arg(file)));
    QVERIFY(mStore->mChanged);
    mStore->mLocalSaveFile = path();
    mStore->saveToLocalConfFile();
    QVERIFY(QFile::exists(path()));
}

void tst_ConfStorageFile::fileIsRewrittenInPlace()
{
    QFile target("target.json");
    QVERIFY(target.open(QIODevice::WriteOnly));
    target.close();
    QVERIFY(target.setPermissions(QFile::ReadOwner | QFile::WriteOwner));
    QCOMPARE(::symlink("target.json", qPrintable(path())), 0);
    change(8, 100);
    mStore->saveToLocalConfFile();
    QVERIFY(QFileInfo(path()).isSymLink());
    QCOMPARE(content("target.json"), QByteArray("{\"size\":{\"t\":100,\"v\":8}}"));
    QCOMPARE(QFile::permissions("target.json") & (QFile::ReadGroup | QFile::ReadOther),
             QFile::Permissions());
}

void tst_ConfStorageFile::shorterContentTruncatesTheFile()
{
    write(QByteArray(100000, ' '));
    change(8, 100);
    mStore->saveToLocalConfFile();
    QCOMPARE(content(), QByteArray("{\"size\":{\"t\":100,\"v\":8}}"));
}

void tst_ConfStorageFile::newFileHasThePermissionsThatTheUmaskAllows()
{
    for (const mode_t mask : {0000u, 0027u}) {
        QFile::remove(path());
        change(8, 100);
        const mode_t previous = ::umask(mask);
        mStore->saveToLocalConfFile();
        ::umask(previous);
        struct stat status = {};
        QCOMPARE(::stat(qPrintable(path()), &status), 0);
        QCOMPARE(status.st_mode & 0777u, 0666u & ~mask);
    }
}

namespace {

QByteArray sContentAtTheMessage;

void readFileAtTheMessage(QtMsgType level, const QMessageLogContext &, const QString &)
{
    QFile file("local.json");
    if (level == QtCriticalMsg && file.open(QIODevice::ReadOnly))
        sContentAtTheMessage = file.readAll();
}

} // namespace

void tst_ConfStorageFile::fileIsNotTruncatedBeforeTheTextIsComposed()
{
    const QByteArray before = "{\"size\":{\"t\":50,\"v\":3}}";
    write(before);
    change(8, 100);
    // A removed key without a class is logged while the text is composed.
    mStore->mRemovedDynamicConfs["P.x"] = QDateTime::fromSecsSinceEpoch(300, Qt::UTC);
    const QtMessageHandler previous = qInstallMessageHandler(readFileAtTheMessage);
    mStore->saveToLocalConfFile();
    qInstallMessageHandler(previous);
    QCOMPARE(sContentAtTheMessage, before);
    QCOMPARE(content(), QByteArray("{\"P.x\":{\"d\":300},\"size\":{\"t\":100,\"v\":8}}"));
}

void tst_ConfStorageFile::failedOpeningIsLoggedBeforeTheDump()
{
    mStore->mRemovedDynamicConfs["P.x"] = QDateTime::fromSecsSinceEpoch(300, Qt::UTC);
    mStore->mLocalSaveFile = ".";
    change(8, 100);
    const LogCapture log;
    mStore->saveToLocalConfFile();
    QCOMPARE(log.messages(),
             (QList<LoggedMessage>{
                 {QtCriticalMsg, "ConfStorage::saveToLocalConfFile() open file failed:  \".\""}}));
    LogCapture::messages().clear();
    mStore->mLocalSaveFile = path();
    mStore->saveToLocalConfFile();
    QCOMPARE(
        log.messages(),
        (QList<LoggedMessage>{
            {QtCriticalMsg, "dumpConf findDynamicConfClass error :  \"P.x\""},
            {QtDebugMsg, "ConfStorage::saveToLocalConfFile() save to file:  \"local.json\""}}));
}

void tst_ConfStorageFile::unreadableButWritableFileIsSaved()
{
    constexpr uid_t somebody = 65534;
    const bool isRoot = ::geteuid() == 0; // root can read every file
    write("older and longer than what is saved, which leaves nothing of it");
    QVERIFY(QFile::setPermissions(path(), QFile::WriteOwner));
    if (isRoot) {
        QCOMPARE(::chown(qPrintable(path()), somebody, somebody), 0);
        QCOMPARE(::chmod(".", 0755), 0);
    }
    change(8, 100);
    if (isRoot)
        QCOMPARE(::seteuid(somebody), 0);
    mStore->saveToLocalConfFile();
    if (isRoot)
        QCOMPARE(::seteuid(0), 0);
    QVERIFY(!mStore->mChanged);
    QVERIFY(QFile::setPermissions(path(), QFile::ReadOwner | QFile::WriteOwner));
    QCOMPARE(content(), QByteArray("{\"size\":{\"t\":100,\"v\":8}}"));
}

void tst_ConfStorageFile::loadedFileRestoresEverything()
{
    ConfStorage::DynamicConfClass cls;
    cls.prefix = "P.";
    mStore->mDynamicConfClasses = {&cls};
    bool local = false;
    mStore->reserveConf("local", &local);
    mStore->mConfMetas["local"].flags |= ConfStorage::FlagLocalOnly;
    change(8, 100);
    mStore->set<bool>("local", true);
    mStore->mRemovedDynamicConfs["P.x"] = QDateTime::fromSecsSinceEpoch(300, Qt::UTC);
    const QJsonObject before = mStore->dumpConf(ConfStorage::DumpLocal);
    mStore->saveToLocalConfFile();

    mSize = 7;
    local = false;
    mStore = makeStore();
    mStore->mDynamicConfClasses = {&cls};
    mStore->reserveConf("local", &local);
    mStore->mConfMetas["local"].flags |= ConfStorage::FlagLocalOnly;
    mStore->loadLocalConfFile();
    QCOMPARE(mSize, 8);
    QVERIFY(local);
    QCOMPARE(mStore->mConfMetas["size"].lastChangeTime,
             QDateTime::fromSecsSinceEpoch(100, Qt::UTC));
    QCOMPARE(mStore->dumpConf(ConfStorage::DumpLocal), before);
    QVERIFY(!mStore->mChanged);
    QVERIFY(mStore->mLocalLoaded);
}

void tst_ConfStorageFile::fileWithoutAJsonObjectCountsAsEmpty_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("array") << QByteArray("[{\"size\":{\"t\":1,\"v\":3}}]");
    QTest::newRow("rubbish") << QByteArray("\xff\xfe\x00rubbish", 10);
    QTest::newRow("cut off") << QByteArray("{\"size\":{\"t\":1,\"v\":3}");
    QTest::newRow("stale tail") << QByteArray("{\"size\":{\"t\":1,\"v\":3}}}");
    QTest::newRow("trailing zeros") << QByteArray("{\"size\":{\"t\":1,\"v\":3}}\0\0", 25);
}

void tst_ConfStorageFile::fileWithoutAJsonObjectCountsAsEmpty()
{
    QFETCH(QByteArray, text);
    write(text);
    const LogCapture log;
    mStore->loadLocalConfFile();
    QCOMPARE(mSize, 7);
    QVERIFY(mStore->mLocalLoaded);
    QVERIFY(log.messages().isEmpty());
    QCOMPARE(content(), text); // not written until something changes
}

void tst_ConfStorageFile::hugeFileCountsAsEmptyAndIsLogged()
{
    write("{\"size\":{\"t\":100,\"v\":9}}");
    QVERIFY(QFile::resize(path(), qint64(1) << 36)); // a sparse file takes no disk space
    const LogCapture log;
    mStore->loadLocalConfFile();
    QVERIFY(mStore->mLocalLoaded);
    QCOMPARE(mSize, 7);
    QCOMPARE(
        log.messages(),
        (QList<LoggedMessage>{{QtCriticalMsg, "ConfStorage::loadLocalConfFile() file too large:  "
                                              "\"local.json\""}}));
    // Saving replaces it with a valid file.
    change(9, 100);
    mStore->saveToLocalConfFile();
    QCOMPARE(content(), QByteArray("{\"size\":{\"t\":100,\"v\":9}}"));
}

void tst_ConfStorageFile::hostChoosesTheLargestFile_data()
{
    QTest::addColumn<bool>("safely");
    QTest::newRow("plain") << false;
    QTest::newRow("safe") << true;
}

void tst_ConfStorageFile::hostChoosesTheLargestFile()
{
    QFETCH(bool, safely);
    const QByteArray text = "{\"size\":{\"t\":100,\"v\":9}}";
    mStore->mFileOptions = safely ? ConfStorage::SafeSave : 0U;
    write(text);
    mStore->mMaxFileSize = text.size();
    mStore->loadLocalConfFile();
    QCOMPARE(mSize, 9);
    change(10, 200); // one byte more
    const LogCapture log;
    mStore->saveToLocalConfFile();
    QCOMPARE(log.texts(QtCriticalMsg),
             QStringList("ConfStorage::saveToLocalConfFile() content could not be read back:  "
                         "\"local.json\""));
    QVERIFY(mStore->mChanged);
    QCOMPARE(content(), text);
    mStore->mMaxFileSize = text.size() + 1;
    mStore->saveToLocalConfFile();
    QVERIFY(!mStore->mChanged);
    QCOMPARE(content(), QByteArray("{\"size\":{\"t\":200,\"v\":10}}"));
}

void tst_ConfStorageFile::valueThatCouldNotBeSavedIsRefused_data()
{
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<bool>("accepted");
    const auto nested = [](int levels) {
        QJsonArray array;
        for (int i = 1; i < levels; ++i)
            array = QJsonArray{array};
        return array;
    };
    const auto row = [](const char *name, const QJsonValue &value, bool accepted) {
        QTest::newRow(name) << value << accepted;
    };
    row("text of the limit", QString(9998, 'a'), true);
    row("longer text", QString(9999, 'a'), false);
    row("escapes below the limit", QString(1666, QChar(1)), true);
    row("escapes beyond the limit", QString(1667, QChar(1)), false);
    row("object", QJsonObject{{"a", QString(5000, 'a')}, {"b", QString(4985, 'b')}}, true);
    row("larger object", QJsonObject{{"a", QString(5000, 'a')}, {"b", QString(4988, 'b')}}, false);
    row("as deep as Qt reads", nested(1022), true);
    row("deeper", nested(1023), false);
}

void tst_ConfStorageFile::valueThatCouldNotBeSavedIsRefused()
{
    QFETCH(QJsonValue, value);
    QFETCH(bool, accepted);
    QString text;
    QJsonObject object;
    QJsonArray array;
    mStore->reserveConf("text", &text);
    mStore->reserveConf("object", &object);
    mStore->reserveConf("array", &array);
    const QString key = value.isString() ? "text" : value.isObject() ? "object" : "array";
    mStore->mMaxFileSize = 10000;
    const LogCapture log;
    mStore->loadConf(QJsonObject{{key, QJsonObject{{"t", 100}, {"v", value}}}},
                     ConfStorage::LoadLocal);
    const QString message = "ConfStorage::loadConf() value could not be saved:  \"%1\"";
    QCOMPARE(log.texts(QtCriticalMsg), accepted ? QStringList() : QStringList(message.arg(key)));
    QCOMPARE(mStore->mConfMetas[key].lastChangeTime.isValid(), accepted);
    QCOMPARE(mStore->isEqualToDefault(key), !accepted);

    mStore->mMaxFileSize = 20000;
    mStore->mChanged = true;
    mStore->saveToLocalConfFile();
    text.clear();
    object = {};
    array = {};
    mStore->mConfMetas[key].lastChangeTime = QDateTime();
    mStore->loadLocalConfFile();
    QCOMPARE(mStore->isEqualToDefault(key), !accepted);
}

void tst_ConfStorageFile::createdEntryThatCouldNotBeSavedIsRefused()
{
    QStringList created;
    ConfStorage::DynamicConfClass cls;
    cls.prefix = "P.";
    cls.creator = [&](QString key, const QJsonValue *) { created << key; };
    mStore->mDynamicConfClasses = {&cls};
    mStore->mMaxFileSize = 100;
    const LogCapture log;
    const QJsonObject large{{"x", QString(100, 'a')}};
    mStore->loadConf(QJsonObject{{"P.a", QJsonObject{{"t", 100}, {"v", large}}}},
                     ConfStorage::LoadLocal);
    QVERIFY(created.isEmpty());
    QCOMPARE(log.texts(QtCriticalMsg),
             QStringList("ConfStorage::loadConf() value could not be saved:  \"P.a\""));
}

void tst_ConfStorageFile::firstStartCreatesPresetsWithoutSaving()
{
    QJsonObject variable;
    ConfStorage::DynamicConfClass cls;
    cls.prefix = "P.";
    cls.creator = [&](QString key, const QJsonValue *value) {
        variable = value->toObject();
        mStore->reserveConf(key, &variable);
    };
    mStore->mDynamicConfClasses = {&cls};
    mStore->mPresetDynamicConfs["P.a"] = QJsonObject{{"x", 1}};
    mStore->loadLocalConfFile();
    QVERIFY(mStore->mConfValues.contains("P.a"));
    QVERIFY(!mStore->mChanged);
    mStore->saveToLocalConfFile();
    QVERIFY(!QFile::exists(path()));
}

void tst_ConfStorageFile::loadingWithoutAPathCreatesNoPresets()
{
    ConfStorage::DynamicConfClass cls;
    cls.prefix = "P.";
    mStore->mDynamicConfClasses = {&cls};
    mStore->mPresetDynamicConfs["P.a"] = QJsonObject();
    mStore->mLocalSaveFile.clear();
    const LogCapture log;
    mStore->loadLocalConfFile();
    QVERIFY(!mStore->mConfMetas.contains("P.a"));
}

void tst_ConfStorageFile::newerChangesOfTheStoreAreKept()
{
    write("{\"size\":{\"t\":100,\"v\":3}}");
    change(9, 200);
    mStore->loadLocalConfFile();
    QCOMPARE(mSize, 9);
    QVERIFY(!mStore->mChanged);
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfStorageFile>(argc, argv);
}

#include "tst_ConfStorageFile.moc"
