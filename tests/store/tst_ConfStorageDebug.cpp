#include "support/CleanStore.h"
#include "support/TestMain.h"

#include <QJsonObject>

/// The table of all keys that a host prints for debugging.
class tst_ConfStorageDebug : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { clearStore(); }
    void cleanup() { clearStore(); }
    void emptyStorePrintsOnlyTheHeading();
    void everyKeyHasARow();
    void keysWithoutValueOrRecordAreShown();
    void hostileKeysAndLongValuesStayOnOneLine();
    void printingChangesNothing();
};

void tst_ConfStorageDebug::emptyStorePrintsOnlyTheHeading()
{
    QCOMPARE(ConfStorage::instance()->debugTable(),
             QStringLiteral("KEY  VALUE  DEFAULT  STATE  CHANGED AT  FLAGS\n"));
}

void tst_ConfStorageDebug::everyKeyHasARow()
{
    ConfStorage store;
    bool sound = true;
    int delay = 3;
    QString format = QStringLiteral("PNG");
    store.reserveConf("Sound", &sound);
    store.reserveConf("Delay", &delay);
    store.reserveConf("Format", &format);
    store.mConfMetas["Delay"].flags |= ConfStorage::FlagSystemIndependent
                                       | ConfStorage::FlagLocalOnly;
    store.loadConf(QJsonObject{{"Format", QJsonObject{{"v", "BMP"}, {"t", 1700000000}}}},
                   ConfStorage::LoadShared);
    store.mRemovedDynamicConfs["Tool.7"] = QDateTime::fromSecsSinceEpoch(1700000001, Qt::UTC);
    QCOMPARE(store.debugTable(),
             QStringLiteral(
                 "KEY     VALUE  DEFAULT  STATE    CHANGED AT            FLAGS\n"
                 "Delay   3      3        -        -                     default,system,local\n"
                 "Format  \"BMP\"  \"PNG\"    changed  2023-11-14T22:13:20Z  -\n"
                 "Sound   true   true     -        -                     default\n"
                 "Tool.7  -      -        removed  2023-11-14T22:13:21Z  -\n"));
}

void tst_ConfStorageDebug::keysWithoutValueOrRecordAreShown()
{
    ConfStorage store;
    store.mConfMetas["record"];
    int number = 1;
    store.reserveConf("value", &number);
    store.mConfMetas.remove("value");
    QCOMPARE(store.debugTable(),
             QStringLiteral("KEY     VALUE  DEFAULT  STATE  CHANGED AT  FLAGS\n"
                            "record  -      -        -      -           default\n"
                            "value   1      -        -      -           default\n"));
}

void tst_ConfStorageDebug::hostileKeysAndLongValuesStayOnOneLine()
{
    ConfStorage store;
    QString text = QString(1000, 'x') + '\n';
    store.reserveConf("a\nb", &text);
    const QStringList lines = store.debugTable().split('\n');
    QCOMPARE(lines.size(), 3);
    QVERIFY(lines[1].startsWith("a\\nb  \"" + QString(38, 'x') + QChar(0x2026) + "  "));
}

void tst_ConfStorageDebug::printingChangesNothing()
{
    ConfStorage store;
    int number = 1;
    store.reserveConf("key", &number);
    store.mConfMetas["lonely"];
    store.debugTable();
    QCOMPARE(store.mConfValues.keys(), QStringList{"key"});
    QCOMPARE(store.mConfMetas.keys(), QStringList({"key", "lonely"}));
    QVERIFY(!store.mChanged);
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfStorageDebug>(argc, argv);
}
#include "tst_ConfStorageDebug.moc"
