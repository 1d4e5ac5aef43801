#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QJsonDocument>
#include <QJsonObject>

#include <functional>

namespace {

/// Returns entries without a value, each of which logs one message.
QJsonObject entriesThatAreLogged(int count)
{
    QJsonObject dump;
    for (int i = 0; i < count; ++i)
        dump[QString("Tool.%1").arg(i, 3, 10, QChar('0'))] = QJsonObject{{"t", 1700000000}};
    return dump;
}

QString setNotFound(int number)
{
    return QString("ConfStorage::set key not found:  \"Tool.%1\"").arg(number, 3, 10, QChar('0'));
}

/// A class whose creator creates nothing.
ConfStorage::DynamicConfClass toolsClass()
{
    ConfStorage::DynamicConfClass tools;
    tools.prefix = "Tool.";
    return tools;
}

} // namespace

Q_DECLARE_METATYPE(std::function<void(ConfStorage &)>)

/// The messages about the entries of a file.
class tst_EntryLog : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void twentyEntriesOfALoadAreLoggedAndTheRestIsCounted();
    void everyCallThatVisitsManyEntriesIsLimited_data();
    void everyCallThatVisitsManyEntriesIsLimited();
    void messagesOfEveryCallAreCountedAlone();
    void messagesOfNestedLoadsAreCountedTogether();
    void longKeysAreTruncated();
    void controlCharactersOfKeysAreEscaped();
    void fontTextsAreEscaped();
};

void tst_EntryLog::twentyEntriesOfALoadAreLoggedAndTheRestIsCounted()
{
    ConfStorage store;
    ConfStorage::DynamicConfClass tools = toolsClass();
    store.mDynamicConfClasses.append(&tools);
    const LogCapture log;
    store.loadConf(entriesThatAreLogged(20), ConfStorage::LoadLocal);
    QCOMPARE(log.messages().size(), 20);
    QCOMPARE(log.texts(QtCriticalMsg).last(), setNotFound(19));
    LogCapture::messages().clear();
    store.loadConf(QJsonDocument(entriesThatAreLogged(500)).toJson(), ConfStorage::LoadLocal);
    QCOMPARE(log.messages().size(), 21);
    QCOMPARE(log.texts(QtCriticalMsg).last(), setNotFound(19));
    QCOMPARE(log.texts(QtWarningMsg),
             QStringList("ConfStorage: further messages about entries:  480"));
}

void tst_EntryLog::everyCallThatVisitsManyEntriesIsLimited_data()
{
    QTest::addColumn<std::function<void(ConfStorage &)>>("call");
    const auto row = [](const char *name, const std::function<void(ConfStorage &)> &call) {
        QTest::newRow(name) << call;
    };
    row("dumpConf", [](ConfStorage &store) { store.dumpConf(ConfStorage::DumpShared); });
    row("saveToLocalConfFile", [](ConfStorage &store) { store.saveToLocalConfFile(); });
    row("restoreDynamicConf", [](ConfStorage &store) { store.restoreDynamicConf("Tool."); });
    row("loadPresetDynamicConf", [](ConfStorage &store) { store.loadPresetDynamicConf(); });
    row("loadLocalConfFile", [](ConfStorage &store) { store.loadLocalConfFile(); });
}

void tst_EntryLog::everyCallThatVisitsManyEntriesIsLimited()
{
    QFETCH(std::function<void(ConfStorage &)>, call);
    ConfStorage store;
    store.mLocalSaveFile = "local.json";
    store.mChanged = true;
    // Without a class neither can a preset be created nor a key be removed.
    int number = 1;
    for (int i = 0; i < 30; ++i) {
        const QString suffix = QString::number(i);
        store.reserveConf("Tool." + suffix, &number);
        store.mRemovedDynamicConfs["Removed." + suffix] = QDateTime::currentDateTimeUtc();
        store.mPresetDynamicConfs["Preset." + suffix] = QJsonObject();
    }
    const LogCapture log;
    call(store);
    QCOMPARE(log.texts(QtCriticalMsg).size(), 20);
    QCOMPARE(log.texts(QtWarningMsg).size(), 1);
    QVERIFY(log.texts(QtWarningMsg)
                .first()
                .startsWith("ConfStorage: further messages about entries: "));
}

void tst_EntryLog::messagesOfEveryCallAreCountedAlone()
{
    ConfStorage store;
    const LogCapture log;
    for (int i = 0; i < 30; ++i)
        store.removeDynamicConf("key");
    QCOMPARE(log.messages().size(), 30);
}

void tst_EntryLog::messagesOfNestedLoadsAreCountedTogether()
{
    ConfStorage store;
    ConfStorage::DynamicConfClass tools = toolsClass();
    store.mDynamicConfClasses.append(&tools);
    int number = 1;
    store.reserveConf("A", &number);
    store.setConfChangedCallback("A", [&store](const QString &, const ConfValue *) {
        store.loadConf(entriesThatAreLogged(15), ConfStorage::LoadLocal);
    });
    QJsonObject dump = entriesThatAreLogged(15);
    dump["A"] = QJsonObject{{"v", 2}, {"t", 1700000000}};
    const LogCapture log;
    store.loadConf(dump, ConfStorage::LoadLocal);
    QCOMPARE(log.texts(QtCriticalMsg).size(), 20);
    QCOMPARE(log.messages().last().text,
             QString("ConfStorage: further messages about entries:  10"));
}

void tst_EntryLog::longKeysAreTruncated()
{
    ConfStorage store;
    const LogCapture log;
    store.removeDynamicConf(QString(200, 'x'));
    store.removeDynamicConf(QString(201, 'x'));
    const QString message = "ConfStorage::createDynamicConf() dynamicConfClass not found:  \"";
    QCOMPARE(log.texts(QtCriticalMsg),
             QStringList({message + QString(200, 'x') + '"',
                          message + QString(199, 'x') + QChar(0x2026) + '"'}));
}

void tst_EntryLog::controlCharactersOfKeysAreEscaped()
{
    ConfStorage store;
    const LogCapture log;
    store.removeDynamicConf(QString("a\x1b[2J\n") + QChar(0x9b) + QChar(0x202e));
    QCOMPARE(log.texts(QtCriticalMsg),
             QStringList("ConfStorage::createDynamicConf() dynamicConfClass not found:  "
                         "\"a\\u001B[2J\\n\\u009B\\u202E\""));
}

void tst_EntryLog::fontTextsAreEscaped()
{
    ConfStorage store;
    QFont font;
    store.reserveConf("Font", &font);
    const LogCapture log;
    store.loadValueFromJson("Font", "\x1b[2J,1,2," + QString(1000, 'x'));
    QCOMPARE(log.texts(QtWarningMsg),
             QStringList("QFont::fromString: Invalid description '\\u001b[2J,1,2,"
                         + QString(185, 'x') + QChar(0x2026) + '\''));
}

int main(int argc, char **argv)
{
    return runTest<tst_EntryLog>(argc, argv);
}

#include "tst_EntryLog.moc"
