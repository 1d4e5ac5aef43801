#include "support/Entries.h"
#include "support/FileText.h"
#include "support/FormSetting.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/store/ConfChange.h>
#include <MaltoConfiguration/store/ConfLoadReport.h>
#include <MaltoConfiguration/store/ConfStorage.h>

namespace {

const char sPath[] = "local.json";
// Without those that wait for the disk or another program.
constexpr quint32 sAllOptions = 0xffffffff
                                & ~quint32(ConfStorage::SafeSave | ConfStorage::WatchFile
                                           | ConfStorage::KeepDamagedFiles);

/// A store with one setting of the type of a case.
struct Host
{
    explicit Host(const FormCase &form, quint32 options = 0) : variable(form.variable())
    {
        store.mLocalSaveFile = sPath;
        store.mFileOptions = options;
        variable->reserve(store, "key");
    }
    Q_DISABLE_COPY(Host)

    void set(qint64 time)
    {
        variable->setInStore(store, "key");
        store.mConfMetas["key"].lastChangeTime = second(time);
    }
    QJsonValue value() const { return store.mConfValues["key"].toJsonValue(); }
    /// Returns the text of the local file after saving it.
    QByteArray saved()
    {
        store.mChanged = true;
        store.saveToLocalConfFile();
        return fileText(sPath);
    }

    std::unique_ptr<FormCase::Variable> variable;
    ConfStorage store;
};

QByteArray fileOf(const QByteArray &text, int time)
{
    return R"({"key":{"t":)" + QByteArray::number(time) + R"(,"v":)" + text + "}}";
}

QJsonObject throughText(const QJsonObject &object)
{
    return QJsonDocument::fromJson(QJsonDocument(object).toJson()).object();
}

const QString sRefusal = "ConfStorage::loadConf() value of another type refused:  \"key\"";

} // namespace

/// Every type with a `JsonForm` in local files and dumps, with the options of the store.
class tst_JsonFormFiles : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { qputenv("TZ", "EST5"); } // local time is not UTC
    void init();
    void cleanup() { mLog.reset(); }

    void localFileKeepsTheValue_data() { addCasesWithOptions(); }
    void localFileKeepsTheValue();
    void dumpKeepsTheValue_data();
    void dumpKeepsTheValue();
    void nullUnbindsTheVariable_data() { addCases(); }
    void nullUnbindsTheVariable();
    void nullIsTheDefaultWithTheOption_data() { addCases(); }
    void nullIsTheDefaultWithTheOption();
    void otherJsonIsRefused_data() { addCasesWithOptions(); }
    void otherJsonIsRefused();
    void refusedEntryOfTheFileIsKept_data() { addCases(); }
    void refusedEntryOfTheFileIsKept();
    void sharedFileIsMerged_data() { addCases(); }
    void sharedFileIsMerged();
    void releasedKeyGetsItsValueBack_data() { addCases(); }
    void releasedKeyGetsItsValueBack();
    void lockedValueHidesTheOwnOne_data() { addCases(); }
    void lockedValueHidesTheOwnOne();
    void tieIsDecidedByTheText_data() { addCases(); }
    void tieIsDecidedByTheText();
    void formerNameAndFormAreRead_data() { addCases(); }
    void formerNameAndFormAreRead();
    void previewIsWhatTheLoadDoes_data() { addCases(); }
    void previewIsWhatTheLoadDoes();
    void observersHearTheJson_data() { addCases(); }
    void observersHearTheJson();
    void defaultIsRestored_data() { addCases(); }
    void defaultIsRestored();
    void debugTableShowsTheText_data() { addCases(); }
    void debugTableShowsTheText();

private:
    static void addCases();
    static void addCasesWithOptions();
    const FormCase &form() const;

    std::optional<LogCapture> mLog;
};

void tst_JsonFormFiles::init()
{
    QFile::remove(sPath);
    mLog.emplace();
}

void tst_JsonFormFiles::addCases()
{
    QTest::addColumn<int>("row");
    for (size_t i = 0; i < formCases().size(); ++i)
        QTest::newRow(formCases()[i]->name.constData()) << static_cast<int>(i);
}

void tst_JsonFormFiles::addCasesWithOptions()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<quint32>("options");
    for (size_t i = 0; i < formCases().size(); ++i) {
        const char *name = formCases()[i]->name.constData();
        const int row = static_cast<int>(i);
        QTest::addRow("%s, no options", name) << row << quint32(0);
        QTest::addRow("%s, strict", name) << row << quint32(ConfStorage::StrictTypes);
        QTest::addRow("%s, all options", name) << row << sAllOptions;
    }
}

const FormCase &tst_JsonFormFiles::form() const
{
    // QFETCH does not work here.
    const int row = *static_cast<int *>(QTest::qData("row", qMetaTypeId<int>()));
    return *formCases()[static_cast<size_t>(row)];
}

void tst_JsonFormFiles::localFileKeepsTheValue()
{
    QFETCH(quint32, options);
    {
        Host host(form(), options);
        host.store.loadLocalConfFile();
        host.set(100);
        QVERIFY(host.variable->hasValueInStore(host.store, "key"));
        QCOMPARE(host.saved(), fileOf(form().text, 100));
    }
    Host host(form(), options);
    host.store.loadLocalConfFile();
    QVERIFY(host.variable->hasValue());
    QVERIFY(host.variable->hasValueInStore(host.store, "key"));
    QCOMPARE(host.store.lastLoad().taken, 1);
    QCOMPARE(host.saved(), fileOf(form().text, 100));
    QVERIFY(LogCapture::texts(QtWarningMsg).isEmpty());
    QVERIFY(LogCapture::texts(QtCriticalMsg).isEmpty());
}

void tst_JsonFormFiles::dumpKeepsTheValue_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("dump");
    QTest::addColumn<int>("load");
    for (size_t i = 0; i < formCases().size(); ++i) {
        const char *name = formCases()[i]->name.constData();
        const int row = static_cast<int>(i);
        QTest::addRow("%s, local", name)
            << row << int(ConfStorage::DumpLocal) << int(ConfStorage::LoadLocal);
        QTest::addRow("%s, shared", name)
            << row << int(ConfStorage::DumpShared) << int(ConfStorage::LoadShared);
        QTest::addRow("%s, without times", name)
            << row << int(ConfStorage::DumpChangedOnly) << int(ConfStorage::LoadShared);
    }
}

void tst_JsonFormFiles::dumpKeepsTheValue()
{
    QFETCH(int, dump);
    QFETCH(int, load);
    const auto type = static_cast<ConfStorage::LoadConfType>(load);
    Host host(form()), fromObject(form()), fromText(form());
    host.set(100);
    const QJsonObject object = host.store.dumpConf(static_cast<ConfStorage::DumpConfType>(dump));
    QCOMPARE(fromObject.store.loadConf(object, type), 1);
    QVERIFY(fromObject.variable->hasValue());
    const QByteArray text = QJsonDocument(object).toJson();
    QVERIFY(fromText.store.loadConf(QString::fromUtf8(text), type));
    QVERIFY(fromText.variable->hasValue());
    QCOMPARE(fromText.value(), throughText(object)["key"].toObject()["v"]);
    QVERIFY(LogCapture::messages().isEmpty());
}

void tst_JsonFormFiles::nullUnbindsTheVariable()
{
    Host host(form());
    host.set(100);
    host.store.loadConf(QString::fromUtf8(fileOf("null", 200)), ConfStorage::LoadLocal);
    QVERIFY(host.variable->hasValue());
    QCOMPARE(host.store.mConfValues["key"].mType, ConfValue::TyNone);
    QCOMPARE(host.value(), QJsonValue());
}

void tst_JsonFormFiles::nullIsTheDefaultWithTheOption()
{
    Host host(form(), ConfStorage::NullIsDefault);
    host.set(100);
    host.store.loadConf(QString::fromUtf8(fileOf("null", 200)), ConfStorage::LoadLocal);
    QVERIFY(host.variable->isInitial());
    QVERIFY(host.store.isEqualToDefault("key"));
    host.set(300);
    host.store.loadValueFromJson("key", QJsonValue());
    QVERIFY(host.variable->isInitial());
    host.store.loadConf(QString::fromUtf8(fileOf(form().text, 2000000000)), ConfStorage::LoadLocal);
    QVERIFY(host.variable->hasValue()); // is still bound
}

void tst_JsonFormFiles::otherJsonIsRefused()
{
    QFETCH(quint32, options);
    Host host(form(), options);
    host.set(100);
    host.store.loadConf(QString::fromUtf8(fileOf("true", 200)), ConfStorage::LoadShared);
    QVERIFY(host.variable->hasValue());
    QCOMPARE(host.store.lastLoad().refusedCount, 1);
    QCOMPARE(host.saved(), fileOf(form().text, 100));
    const auto onlyOnce = QStringList{sRefusal};
    QCOMPARE(LogCapture::texts(QtWarningMsg), onlyOnce);

    host.store.loadValueFromJson("key", true);
    QVERIFY(host.variable->hasValue());
    QCOMPARE(host.store.mConfMetas["key"].lastChangeTime, second(100));
    QCOMPARE(LogCapture::texts(QtWarningMsg), onlyOnce + onlyOnce);
}

void tst_JsonFormFiles::refusedEntryOfTheFileIsKept()
{
    const QByteArray text = fileOf("true", 200);
    writeFile(sPath, text);
    Host host(form(), ConfStorage::KeepUnknownEntries);
    host.store.loadLocalConfFile();
    QVERIFY(host.variable->isInitial());
    QCOMPARE(host.saved(), text);
    host.set(300);
    QCOMPARE(host.saved(), fileOf(form().text, 300));
}

void tst_JsonFormFiles::sharedFileIsMerged()
{
    Host first(form(), ConfStorage::SharedFile), second(form(), ConfStorage::SharedFile);
    first.store.loadLocalConfFile();
    second.store.loadLocalConfFile();
    first.set(100);
    QCOMPARE(first.saved(), fileOf(form().text, 100));
    second.saved(); // has changed nothing since it has read the file
    QVERIFY(second.variable->hasValue());
    QCOMPARE(fileText(sPath), fileOf(form().text, 100));
    second.store.mConfMetas["key"].flags &= ~quint32(ConfStorage::FlagIsDefault);
    second.store.setToDefault("key", true);
    second.saved();
    first.store.loadLocalConfFile();
    QVERIFY(first.variable->isInitial());
}

void tst_JsonFormFiles::releasedKeyGetsItsValueBack()
{
    Host host(form(), ConfStorage::KeepUnknownEntries);
    host.set(100);
    host.store.releaseConf("key");
    QCOMPARE(host.saved(), fileOf(form().text, 100));
    host.variable = form().variable(); // the old one is destroyed
    QVector<ConfChange> changes;
    host.store.addObserver([&](const ConfChange &change) { changes.append(change); });
    host.variable->reserve(host.store, "key");
    QVERIFY(host.variable->hasValue());
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes[0].cause, ConfChange::Cause::Loaded);
    QCOMPARE(changes[0].after.value, form().json());
    host.store.setToDefault("key", true);
    QVERIFY(host.variable->isInitial());
}

void tst_JsonFormFiles::lockedValueHidesTheOwnOne()
{
    Host host(form(), ConfStorage::LockedValues);
    const QJsonValue own = host.value();
    host.store.mConfMetas["key"].lastChangeTime = second(100);
    host.store.mConfMetas["key"].flags &= ~quint32(ConfStorage::FlagIsDefault);
    host.store.lockConf("key", true); // refused
    QVERIFY(!host.store.isLocked("key"));
    host.store.lockConf("key", form().json());
    QVERIFY(host.store.isLocked("key"));
    QVERIFY(host.variable->hasValue());
    host.store.setToDefault("key", true);
    host.store.loadValueFromJson("key", own);
    QVERIFY(host.variable->hasValue());
    QCOMPARE(host.store.dumpConf(ConfStorage::DumpLocal), throughText({{"key", entry(100, own)}}));

    Host other(form(), ConfStorage::LockedValues);
    other.store.lockConf("key", QJsonValue()); // the default value
    other.set(100);
    other.store.loadConf(QString::fromUtf8(fileOf(form().text, 200)), ConfStorage::LoadLocal);
    QVERIFY(other.variable->isInitial());
    QCOMPARE(other.saved(), fileOf(form().text, 200));
}

void tst_JsonFormFiles::tieIsDecidedByTheText()
{
    Host host(form(), ConfStorage::ResolveTies), other(form(), ConfStorage::ResolveTies);
    host.set(100);
    other.store.mConfMetas["key"].lastChangeTime = second(100);
    other.store.mConfMetas["key"].flags &= ~quint32(ConfStorage::FlagIsDefault);
    const QByteArray initial = jsonText(other.value());
    const QJsonObject dump = host.store.dumpConf(ConfStorage::DumpShared);
    const QJsonObject otherDump = other.store.dumpConf(ConfStorage::DumpShared);
    host.store.loadConf(otherDump, ConfStorage::LoadShared);
    other.store.loadConf(dump, ConfStorage::LoadShared);
    const QByteArray greater = qMax(form().text, initial);
    QCOMPARE(jsonText(host.value()), greater);
    QCOMPARE(jsonText(other.value()), greater);
    QCOMPARE(host.variable->hasValue(), form().isInitial() || greater == form().text);
}

void tst_JsonFormFiles::formerNameAndFormAreRead()
{
    Host host(form());
    host.store.addFormerName("key", "former", false);
    host.store.setConfConverter("key", [](const QJsonValue &value) {
        const QJsonObject older = value.toObject();
        return older.contains("older form") ? older["older form"] : value;
    });
    const QByteArray text = R"({"former":{"t":100,"v":{"older form":)" + form().text + "}}}";
    host.store.loadConf(QString::fromUtf8(text), ConfStorage::LoadLocal);
    QVERIFY(host.variable->hasValue());
    QCOMPARE(host.saved(), fileOf(form().text, 100));
    host.store.loadConf(QString::fromUtf8(fileOf(R"({"older form":true})", 200)),
                        ConfStorage::LoadLocal);
    QVERIFY(host.variable->hasValue());
    QCOMPARE(LogCapture::texts(QtWarningMsg), QStringList{sRefusal});
}

void tst_JsonFormFiles::previewIsWhatTheLoadDoes()
{
    Host host(form());
    int calls = 0;
    host.store.setConfChangedCallback("key", [&](const QString &, const ConfValue *) { ++calls; });
    const QJsonObject dump{{"key", entry(100, form().json())}};
    const QJsonValue initial = host.value();
    const QVector<ConfChange> preview = host.store.previewLoad(dump, ConfStorage::LoadShared);
    QVERIFY(host.variable->isInitial());
    QCOMPARE(calls, 0);
    QVector<ConfChange> changes;
    host.store.addObserver([&](const ConfChange &change) { changes.append(change); });
    host.store.loadConf(dump, ConfStorage::LoadShared);
    QVERIFY(host.variable->hasValue());
    QCOMPARE(calls, 1);
    for (const QVector<ConfChange> &heard : {preview, changes}) {
        QCOMPARE(heard.size(), 1);
        QCOMPARE(heard[0].cause, ConfChange::Cause::Loaded);
        QCOMPARE(heard[0].before.value, initial);
        QCOMPARE(heard[0].after.value, form().json());
    }
    QVERIFY(host.store.previewLoad({{"key", entry(200, true)}}, ConfStorage::LoadShared).isEmpty());
}

void tst_JsonFormFiles::observersHearTheJson()
{
    Host host(form());
    const QJsonValue initial = host.value();
    QVector<ConfChange> changes;
    host.store.addObserver([&](const ConfChange &change) { changes.append(change); });
    host.set(100);
    host.store.setToDefault("key", true);
    host.store.loadValueFromJson("key", form().json());
    host.store.loadValueFromJson("key", true); // refused
    QCOMPARE(changes.size(), 3);
    QCOMPARE(changes[0].before.value, initial);
    QCOMPARE(changes[0].after.value, form().json());
    QCOMPARE(changes[1].before.value, form().json());
    QCOMPARE(changes[1].after.value, initial);
    QCOMPARE(changes[1].cause, ConfChange::Cause::Restored);
    QCOMPARE(changes[2].after.value, form().json());
}

void tst_JsonFormFiles::defaultIsRestored()
{
    Host host(form());
    QVERIFY(host.store.isEqualToDefault("key"));
    host.set(100);
    QCOMPARE(host.store.isEqualToDefault("key"), form().isInitial());
    host.store.setToDefault("key", true);
    QVERIFY(host.variable->isInitial());
    QVERIFY(host.store.isEqualToDefault("key"));
    QVERIFY(!host.store.dumpConf(ConfStorage::DumpLocal)["key"].toObject().contains("v"));
    QVERIFY(host.store.dumpConf(ConfStorage::DumpChangedOnly).isEmpty());
}

void tst_JsonFormFiles::debugTableShowsTheText()
{
    Host host(form());
    host.set(100);
    const QStringList lines = host.store.debugTable().split('\n');
    QVERIFY(lines.size() >= 2);
    const QString line = lines.filter(QRegularExpression("^key ")).value(0);
    QVERIFY2(line.contains(QString::fromUtf8(form().text.left(30))), qPrintable(line));
    QCOMPARE(line.contains(" changed "), !form().isInitial());
}

int main(int argc, char **argv)
{
    return runTest<tst_JsonFormFiles>(argc, argv);
}

#include "tst_JsonFormFiles.moc"
