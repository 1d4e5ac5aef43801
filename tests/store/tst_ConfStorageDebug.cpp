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
    void lockedKeysAreMarked();
    void keysWithoutValueOrRecordAreShown();
    void hostileKeysAndLongValuesStayOnOneLine();
    void longKeysAreTruncated();
    void controlCharactersAreEscaped_data();
    void controlCharactersAreEscaped();
    void tenThousandRowsAreShownAndTheRestIsCounted();
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

void tst_ConfStorageDebug::lockedKeysAreMarked()
{
    ConfStorage store;
    int delay = 3, size = 4;
    store.reserveConf("Delay", &delay);
    store.reserveConf("Size", &size);
    store.lockConf("Delay", 5);
    store.lockConf("Size", QJsonValue());
    QCOMPARE(store.debugTable(),
             QStringLiteral("KEY    VALUE  DEFAULT  STATE    CHANGED AT  FLAGS\n"
                            "Delay  5      3        changed  -           locked\n"
                            "Size   4      4        -        -           default,locked\n"));
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

void tst_ConfStorageDebug::longKeysAreTruncated()
{
    // Every row is as wide as the widest key.
    ConfStorage store;
    for (int i = 0; i < 5000; ++i)
        store.mConfMetas[QString::number(i)];
    store.mConfMetas[QString(4000000, 'x')];
    const QString table = store.debugTable();
    QVERIFY(table.contains('\n' + QString(199, 'x') + QChar(0x2026) + "  -"));
    QVERIFY(table.size() < 5010 * 300);
}

void tst_ConfStorageDebug::controlCharactersAreEscaped_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    QTest::newRow("escape") << "a\x1b[2Jb"
                            << "a\\u001b[2Jb";
    QTest::newRow("sequence introducer of one byte") << QString("a") + QChar(0x9b) << "a\\u009b";
    QTest::newRow("carriage return") << "a\rb"
                                     << "a\\u000db";
    QTest::newRow("line separator") << QString("a") + QChar(0x2028) << "a\\u2028";
    QTest::newRow("reversed direction") << QString("a") + QChar(0x202e) << "a\\u202e";
    QTest::newRow("half of a pair") << QString("a") + QChar(0xd83d) << "a\\ud83d";
    QTest::newRow("invisible character of a pair")
        << QString::fromUtf8("a\xf3\xa0\x81\x81") << "a\\ue0041";
    QTest::newRow("emoji") << QString::fromUtf8("a\xf0\x9f\x98\x80z")
                           << QString::fromUtf8("a\xf0\x9f\x98\x80z");
    QTest::newRow("pair at the limit") << QString(198, 'x') + QString::fromUtf8("\xf0\x9f\x98\x80")
                                       << QString(198, 'x') + QString::fromUtf8("\xf0\x9f\x98\x80");
    QTest::newRow("pair beyond the limit")
        << QString(199, 'x') + QString::fromUtf8("\xf0\x9f\x98\x80")
        << QString(199, 'x') + QChar(0x2026);
}

void tst_ConfStorageDebug::controlCharactersAreEscaped()
{
    QFETCH(QString, text);
    QFETCH(QString, shown);
    ConfStorage store;
    store.mConfMetas[text];
    QVERIFY2(store.debugTable().split('\n')[1].startsWith(shown + "  -"),
             qPrintable(store.debugTable()));
}

void tst_ConfStorageDebug::tenThousandRowsAreShownAndTheRestIsCounted()
{
    ConfStorage store;
    const QDateTime time = QDateTime::fromSecsSinceEpoch(1700000001, Qt::UTC);
    for (int i = 0; i < 9000; ++i)
        store.mConfMetas[QString::number(i)];
    for (int i = 0; i < 1000; ++i)
        store.mRemovedDynamicConfs[QString::number(i)] = time;
    QVERIFY(!store.debugTable().contains("more"));
    store.mRemovedDynamicConfs["x"] = time;
    store.mRemovedDynamicConfs["y"] = time;
    const QStringList lines = store.debugTable().split('\n');
    QCOMPARE(lines.size(), 1 + 10000 + 2);
    QCOMPARE(lines[10001], QString("2 more"));
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
