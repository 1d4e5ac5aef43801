#include "support/Entries.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/store/ConfLoadReport.h>
#include <MaltoConfiguration/store/ConfStorage.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

const char sPath[] = "local.json";

QJsonObject dumpOf(const QString &key, const QJsonValue &value, qint64 time = 200)
{
    return {{key, QJsonObject{{"t", time}, {"v", value}}}};
}

/// A store with a setting of each type, which changed in second 100.
class Host
{
public:
    explicit Host(quint32 options = ConfStorage::StrictTypes)
    {
        store.mLocalSaveFile = sPath;
        store.mFileOptions = options;
        reserve("number", &number);
        reserve("real", &real);
        reserve("flag", &flag);
        reserve("text", &text);
        reserve("color", &color);
        reserve("font", &font);
        reserve("keys", &keys);
        reserve("object", &object);
        reserve("array", &array);
        mClass.prefix = "Entry.";
        mClass.creator = [this](const QString &key, const QJsonValue *value) {
            entry = value->toObject();
            store.reserveConf(key, &entry);
        };
        store.mDynamicConfClasses = {&mClass};
        store.createDynamicConf("Entry.a", object, nullptr);
        change("Entry.a");
    }
    Q_DISABLE_COPY(Host)

    QJsonValue value(const QString &key) const { return store.mConfValues[key].toJsonValue(); }

    int number = 7;
    double real = 2.5;
    bool flag = true;
    QString text = "text";
    QColor color{Qt::red};
    QFont font{"Sans", 12};
    QKeySequence keys{"Ctrl+S"};
    QJsonObject object{{"n", 1}};
    QJsonArray array{1, 2};
    QJsonObject entry;
    int calls = 0;
    ConfStorage store;

private:
    template<class T> void reserve(const QString &key, T *variable)
    {
        store.reserveConf(key, variable);
        change(key);
    }
    void change(const QString &key)
    {
        store.mConfMetas[key].lastChangeTime = second(100);
        store.mConfMetas[key].flags &= ~ConfStorage::FlagIsDefault;
        store.setConfChangedCallback(key, [this](const QString &, const ConfValue *) { ++calls; });
    }

    ConfStorage::DynamicConfClass mClass;
};

void writeFile(const QJsonObject &object)
{
    QFile file(sPath);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QJsonDocument(object).toJson());
}

QJsonObject savedObject(ConfStorage &store)
{
    store.mChanged = true;
    store.saveToLocalConfFile();
    QFile file(sPath);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object()
                                          : QJsonObject();
}

QString refusalOf(const QString &key)
{
    return "ConfStorage::loadConf() value of another type refused:  \"" + key + '"';
}

} // namespace

/// Values whose JSON type is not that of their setting, with `ConfStorage::StrictTypes`.
class tst_StrictTypes : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QFile::remove(sPath); }

    void valueOfTheTypeIsLoaded_data();
    void valueOfTheTypeIsLoaded();
    void valueOfAnotherTypeIsRefused_data();
    void valueOfAnotherTypeIsRefused();
    void valueOfAnotherTypeIsConvertedWithoutTheOption();
    void textOfANumberThatJsonDoesNotHaveIsLoaded();
    void nullIsWhatTheOtherOptionSays();
    void olderValueOfAnotherTypeIsSilent();
    void newDynamicEntryMayHaveAnyType();
    void laterValueOfTheTypeIsLoaded();
    void floodOfRefusedValuesIsCounted();
    void valueThatIsSetFromJsonIsRefused();
    void unboundKeyAcceptsNoTypeAndRefusesNone();
    void refusedEntryOfTheLocalFileIsKept_data();
    void refusedEntryOfTheLocalFileIsKept();
    void laterChangeReplacesTheRefusedEntry();
    void laterChangeReplacesARefusedEntryOfTheFuture_data();
    void laterChangeReplacesARefusedEntryOfTheFuture();
    void refusedEntryOfADumpIsNotKept();
    void refusedEntryIsKeptInItsOldForm();
    void keptEntryOfAnotherTypeIsRefusedWhenItsKeyIsReserved();
};

void tst_StrictTypes::valueOfTheTypeIsLoaded_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("json");
    QTest::addColumn<QJsonValue>("loaded");
    const auto row = [](const char *name, const char *key, const QJsonValue &json,
                        const QJsonValue &loaded = QJsonValue(QJsonValue::Undefined)) {
        QTest::newRow(name) << key << json << (loaded.isUndefined() ? json : loaded);
    };
    row("whole number", "number", -5);
    row("whole number with a fraction of zero", "number", 5.0);
    row("largest number", "number", 2147483647);
    row("smallest number", "number", -2147483647 - 1);
    row("fraction for a real", "real", 0.25);
    row("whole number for a real", "real", 3);
    row("true", "flag", true);
    row("false", "flag", false);
    row("text", "text", "12");
    row("empty text", "text", "");
    row("colour", "color", "80ff0000");
    row("colour in capitals", "color", "80FF0000", "80ff0000");
    row("colour of one digit", "color", "0");
    row("no colour", "color", "None");
    row("font of Qt 5", "font", "Serif,9,-1,5,50,0,0,0,0,0");
    row("font of Qt 6", "font", "Serif,9,-1,5,400,0,0,0,0,0,0,0,0,0,0,1",
        "Serif,9,-1,5,50,0,0,0,0,0");
    row("keys", "keys", "Ctrl+F");
    row("no keys", "keys", "");
    row("object", "object", QJsonObject{{"n", 2}});
    row("array", "array", QJsonArray{3});
    row("dynamic entry", "Entry.a", QJsonObject{{"n", 2}});
}

void tst_StrictTypes::valueOfTheTypeIsLoaded()
{
    QFETCH(QString, key);
    QFETCH(QJsonValue, json);
    QFETCH(QJsonValue, loaded);
    const LogCapture log;
    Host host, other;
    host.store.loadConf(dumpOf(key, json), ConfStorage::LoadShared);
    QCOMPARE(host.value(key), loaded);
    QCOMPARE(host.store.mConfMetas[key].lastChangeTime, second(200));
    QCOMPARE(host.store.lastLoad().taken, 1);
    QCOMPARE(host.calls, 1);
    other.store.loadValueFromJson(key, json);
    QCOMPARE(other.value(key), loaded);
    QCOMPARE(other.calls, 1);
    QCOMPARE(log.texts(QtWarningMsg), QStringList());
}

void tst_StrictTypes::valueOfAnotherTypeIsRefused_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("json");
    const auto row = [](const char *name, const char *key, const QJsonValue &json) {
        QTest::newRow(name) << key << json;
    };
    row("text for a number", "number", "12");
    row("fraction for a number", "number", 1.5);
    row("number beyond 32 bits", "number", 2147483648.0);
    row("negative number beyond 32 bits", "number", -2147483649.0);
    row("flag for a number", "number", true);
    row("text for a real", "real", "2.5");
    row("infinity spelled differently", "real", "Infinity");
    row("flag for a real", "real", false);
    row("number for a flag", "flag", 1);
    row("text for a flag", "flag", "true");
    row("number for text", "text", 12);
    row("array for text", "text", QJsonArray{"text"});
    row("colour with a hash", "color", "#ff0000");
    row("name of a colour", "color", "red");
    row("colour of nine digits", "color", "0ff000000");
    row("colour with a prefix", "color", "0xff");
    row("colour with a space", "color", " ff");
    row("empty colour", "color", "");
    row("number for a colour", "color", 255);
    row("text that is no font", "font", "a,b,c");
    row("empty font", "font", "");
    row("number for a font", "font", 12);
    row("font of no usable size", "font", "Sans,inf,-1,5,50,0,0,0,0,0");
    row("font of too many points", "font", "Sans,1000000,-1,5,50,0,0,0,0,0");
    row("number for keys", "keys", 83);
    row("array for an object", "object", QJsonArray{1});
    row("text for an object", "object", "{}");
    row("object for an array", "array", QJsonObject{{"n", 1}});
    row("text for a dynamic entry", "Entry.a", "text");
}

void tst_StrictTypes::valueOfAnotherTypeIsRefused()
{
    QFETCH(QString, key);
    QFETCH(QJsonValue, json);
    for (const bool isText : {false, true}) {
        const LogCapture log;
        Host host;
        const QJsonValue before = host.value(key);
        const QJsonObject dump = dumpOf(key, json);
        if (isText)
            host.store.loadConf(QString::fromUtf8(QJsonDocument(dump).toJson()),
                                ConfStorage::LoadLocal);
        else
            host.store.loadConf(dump, ConfStorage::LoadShared);
        QCOMPARE(log.messages(), (QList<LoggedMessage>{{QtWarningMsg, refusalOf(key)}}));
        QCOMPARE(host.value(key), before);
        QCOMPARE(host.store.mConfMetas[key].lastChangeTime, second(100));
        QCOMPARE(host.store.mConfMetas[key].flags & ConfStorage::FlagIsDefault, 0U);
        QCOMPARE(host.calls, 0);
        const ConfLoadReport report = host.store.lastLoad();
        QCOMPARE(report.taken, 0);
        QCOMPARE(report.refusedCount, 1);
        QCOMPARE(report.refused.first().key, key);
        QCOMPARE(report.refused.first().reason, ConfLoadReport::Reason::WrongType);
    }
}

void tst_StrictTypes::valueOfAnotherTypeIsConvertedWithoutTheOption()
{
    Host host(0);
    host.store.loadConf(dumpOf("number", "12"), ConfStorage::LoadShared);
    QCOMPARE(host.number, 0);
    host.store.loadConf(dumpOf("real", "inf"), ConfStorage::LoadShared);
    QCOMPARE(host.real, 0.0);
    host.store.loadValueFromJson("flag", 1);
    QCOMPARE(host.flag, false);
    QCOMPARE(host.store.lastLoad().refusedCount, 0);
}

void tst_StrictTypes::textOfANumberThatJsonDoesNotHaveIsLoaded()
{
    Host host;
    host.store.loadConf(dumpOf("real", "inf", 200), ConfStorage::LoadShared);
    QCOMPARE(host.real, qInf());
    host.store.loadConf(dumpOf("real", "nan", 201), ConfStorage::LoadShared);
    QVERIFY(qIsNaN(host.real));
    host.store.loadValueFromJson("real", "-inf");
    QCOMPARE(host.real, -qInf());
}

void tst_StrictTypes::nullIsWhatTheOtherOptionSays()
{
    Host unbinding;
    unbinding.store.loadConf(dumpOf("number", QJsonValue()), ConfStorage::LoadShared);
    QCOMPARE(unbinding.value("number"), QJsonValue());
    Host restoring(ConfStorage::StrictTypes | ConfStorage::NullIsDefault);
    restoring.number = 9;
    restoring.store.loadConf(dumpOf("number", QJsonValue()), ConfStorage::LoadShared);
    QCOMPARE(restoring.number, 7);
    QCOMPARE(restoring.store.lastLoad().refusedCount, 0);
}

void tst_StrictTypes::olderValueOfAnotherTypeIsSilent()
{
    const LogCapture log;
    Host host;
    host.store.loadConf(dumpOf("number", "12", 100), ConfStorage::LoadShared);
    QCOMPARE(host.store.lastLoad().newerHere, 1);
    QVERIFY(log.messages().isEmpty());
}

void tst_StrictTypes::newDynamicEntryMayHaveAnyType()
{
    const LogCapture log;
    Host host;
    host.store.loadConf(dumpOf("Entry.b", "text"), ConfStorage::LoadShared);
    QVERIFY(host.store.mConfValues.contains("Entry.b"));
    QCOMPARE(host.store.lastLoad().taken, 1);
    QVERIFY(log.messages().isEmpty());
}

void tst_StrictTypes::laterValueOfTheTypeIsLoaded()
{
    const LogCapture log;
    Host host;
    host.store.loadConf(dumpOf("number", "12", 200), ConfStorage::LoadShared);
    host.store.loadConf(dumpOf("number", 12, 150), ConfStorage::LoadShared);
    QCOMPARE(host.number, 12);
}

void tst_StrictTypes::floodOfRefusedValuesIsCounted()
{
    const LogCapture log;
    ConfStorage store;
    store.mFileOptions = ConfStorage::StrictTypes;
    std::vector<int> numbers(30);
    QJsonObject dump;
    for (int i = 0; i < 30; ++i) {
        store.reserveConf(QString::number(i), &numbers[size_t(i)]);
        dump.insert(QString::number(i), dumpOf("", "x").value(""));
    }
    store.loadConf(dump, ConfStorage::LoadShared);
    QCOMPARE(log.messages().size(), 21);
    QCOMPARE(log.messages().last().text,
             QString("ConfStorage: further messages about entries:  10"));
    QCOMPARE(store.lastLoad().refusedCount, 30);
    QCOMPARE(store.lastLoad().refused.size(), 20);
}

void tst_StrictTypes::valueThatIsSetFromJsonIsRefused()
{
    const LogCapture log;
    Host host;
    host.store.mChanged = false;
    host.store.loadValueFromJson("number", "12");
    QCOMPARE(host.number, 7);
    QCOMPARE(host.store.mConfMetas["number"].lastChangeTime, second(100));
    QVERIFY(!host.store.mChanged);
    QCOMPARE(host.calls, 0);
    QCOMPARE(log.messages(), (QList<LoggedMessage>{{QtWarningMsg, refusalOf("number")}}));
    host.store.loadValueFromJson("unknown", "12");
    QCOMPARE(log.messages().size(), 1);
}

void tst_StrictTypes::unboundKeyAcceptsNoTypeAndRefusesNone()
{
    const LogCapture log;
    Host host;
    host.store.loadConf(dumpOf("number", QJsonValue()), ConfStorage::LoadShared);
    host.store.loadConf(dumpOf("number", "12", 201), ConfStorage::LoadShared);
    QCOMPARE(host.number, 7);
    QCOMPARE(log.messages(),
             (QList<LoggedMessage>{{QtCriticalMsg, "restoreDefault: unknow type:  0"}}));
}

void tst_StrictTypes::refusedEntryOfTheLocalFileIsKept_data()
{
    QTest::addColumn<quint32>("option");
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("isKept");
    const quint32 unknown = ConfStorage::KeepUnknownEntries;
    QTest::newRow("setting") << unknown << "number" << true;
    QTest::newRow("setting of this system") << unknown << "number#s.mac" << true;
    QTest::newRow("dynamic entry") << unknown << "Entry.a" << true;
    QTest::newRow("neither option") << 0U << "number" << false;
}

void tst_StrictTypes::refusedEntryOfTheLocalFileIsKept()
{
    QFETCH(quint32, option);
    QFETCH(QString, key);
    const LogCapture log;
    const QString name = key.section('#', 0, 0);
    const QJsonObject file = dumpOf(key, "12");
    writeFile(file);
    for (int start = 0; start < 2; ++start) {
        Host host(ConfStorage::StrictTypes | option);
        if (key != name)
            host.store.mConfMetas[name].flags |= ConfStorage::FlagSystemIndependent;
        host.store.loadLocalConfFile();
        QCOMPARE(log.texts(QtWarningMsg).count(refusalOf(name)), start + 1);
        const bool isKept = savedObject(host.store).value(key) == file.value(key);
        QTEST(isKept, "isKept");
        if (!isKept)
            return;
    }
}

void tst_StrictTypes::laterChangeReplacesTheRefusedEntry()
{
    const LogCapture log;
    writeFile(dumpOf("number", "12"));
    Host host(ConfStorage::StrictTypes | ConfStorage::KeepUnknownEntries);
    host.store.loadLocalConfFile();
    host.store.set("number", 5);
    QCOMPARE(savedObject(host.store).value("number").toObject().value("v"), QJsonValue(5));
}

void tst_StrictTypes::laterChangeReplacesARefusedEntryOfTheFuture_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<quint32>("option");
    for (const char *key : {"number", "number#s.mac", "Entry.a"}) {
        QTest::addRow("%s", key) << QString(key) << quint32(ConfStorage::KeepUnknownEntries);
        QTest::addRow("%s of a shared file", key)
            << QString(key) << quint32(ConfStorage::SharedFile | ConfStorage::KeepUnknownEntries);
    }
}

void tst_StrictTypes::laterChangeReplacesARefusedEntryOfTheFuture()
{
    QFETCH(QString, key);
    QFETCH(quint32, option);
    const LogCapture log;
    const QString name = key.section('#', 0, 0);
    const qint64 later = QDateTime::currentSecsSinceEpoch() + 5000;
    writeFile(dumpOf(key, "12", later));
    Host host(ConfStorage::StrictTypes | option);
    if (key != name)
        host.store.mConfMetas[name].flags |= ConfStorage::FlagSystemIndependent;
    host.store.loadLocalConfFile();
    if (name == "Entry.a")
        host.store.removeDynamicConf(name);
    else
        host.store.set("number", 5);
    const QJsonObject saved = savedObject(host.store).value(key).toObject();
    QCOMPARE(saved.value("v"),
             name == "Entry.a" ? QJsonValue(QJsonValue::Undefined) : QJsonValue(5));
    QVERIFY(saved.contains("d") == (name == "Entry.a"));
}

void tst_StrictTypes::refusedEntryOfADumpIsNotKept()
{
    const LogCapture log;
    Host host(ConfStorage::StrictTypes | ConfStorage::KeepUnknownEntries);
    host.store.loadConf(dumpOf("number", "12"), ConfStorage::LoadShared);
    QCOMPARE(savedObject(host.store).value("number"), dumpOf("number", 7, 100).value("number"));
}

void tst_StrictTypes::refusedEntryIsKeptInItsOldForm()
{
    const LogCapture log;
    const QJsonObject file = dumpOf("number", "many");
    writeFile(file);
    Host host(ConfStorage::StrictTypes | ConfStorage::KeepUnknownEntries);
    host.store.setConfConverter(
        "number", [](const QJsonValue &value) { return QJsonValue(value.toString() + "?"); });
    host.store.loadLocalConfFile();
    QCOMPARE(host.number, 7);
    QCOMPARE(savedObject(host.store).value("number"), file.value("number"));
}

void tst_StrictTypes::keptEntryOfAnotherTypeIsRefusedWhenItsKeyIsReserved()
{
    const LogCapture log;
    const QJsonObject file = dumpOf("plugin", "12");
    writeFile(file);
    Host host(ConfStorage::StrictTypes | ConfStorage::KeepUnknownEntries);
    host.store.loadLocalConfFile();
    int plugin = 3;
    host.store.reserveConf("plugin", &plugin);
    QCOMPARE(plugin, 3);
    QCOMPARE(log.texts(QtWarningMsg), QStringList(refusalOf("plugin")));
    QCOMPARE(savedObject(host.store).value("plugin"), file.value("plugin"));
}

int main(int argc, char **argv)
{
    return runTest<tst_StrictTypes>(argc, argv);
}

#include "tst_StrictTypes.moc"
