#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QFont>
#include <QJsonObject>

/// Re-entrant callbacks: they change the store while it calls them, most often their own key.
class tst_ConfStorageReentrancy : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        mStore = std::make_unique<ConfStorage>();
        mSize = 7;
        mStore->reserveConf(key(), &mSize);
    }

    void callbackMaySetItsOwnKey();
    void callbackThatSetsItsKeyEndlesslyIsStopped();
    void callbacksThatSetEachOtherEndlesslyAreStopped();
    void exponentiallyNestedCallbacksAreStopped();
    void callbackMayThrow();
    void callbackMayReplaceItself();
    void callbackMayReserveItsKeyAgain();
    void callbackMayEmptyTheStore_data();
    void callbackMayEmptyTheStore();
    void callbackMayRemoveItsDynamicKey();
    void callbackMayLoadTheSameObjectAgain();
    void callbackMayChangeTheLoadedObject();
    void callbackMayReplaceTheNextKeyToLoad();
    void callbackMayReloadTheLocalFile();
    void callbackMaySaveWhileTheFileIsLoaded();
    void logHandlerMayRemoveTheFontBeingLoaded_data();
    void logHandlerMayRemoveTheFontBeingLoaded();
    void logHandlerMayRemoveTheFontOfATie_data();
    void logHandlerMayRemoveTheFontOfATie();
    void logHandlerMayRemoveKeysWhenAKeyIsTooLong();
    void logHandlerMayReserveAKeyDuringALoad_data();
    void logHandlerMayReserveAKeyDuringALoad();
    void logHandlerMayRemoveTheKeyBeingRestored();
    void creatorMayRemoveItsClass();
    void removerMayRemoveTheClass();
    void removerMayRemoveItsKeyAgain();
    void creatorMayCreateItsKeyAgain();
    void creatorMayLoadItsKey();
    void creatorThatLoadsTheRemovalOfItsKeyCreatesIt_data();
    void creatorThatLoadsTheRemovalOfItsKeyCreatesIt();
    void creatorThatOnlyLoadsTheRemovalCreatesNothing();
    void keyArgumentMayReferToTheMapBeingChanged();
    void callbackMayRemoveOtherKeysWhileAClassIsRestored();
    void keyRemovedByACallbackDuringRestoreIsLogged();

private:
    static QString key() { return "General.Size"; }

    std::unique_ptr<ConfStorage> mStore;
    int mSize = 0;
};

void tst_ConfStorageReentrancy::callbackMaySetItsOwnKey()
{
    QList<int> seen;
    mStore->setConfChangedCallback(key(), [&](const QString &name, const ConfValue *value) {
        seen << value->get<int>();
        if (value->get<int>() > 100)
            mStore->set<int>(name, 100);
    });
    mStore->set<int>(key(), 5000);
    QCOMPARE(mSize, 100);
    QCOMPARE(seen, (QList<int>{5000, 100}));
}

void tst_ConfStorageReentrancy::callbackThatSetsItsKeyEndlesslyIsStopped()
{
    mStore->setConfChangedCallback(key(), [&](const QString &name, const ConfValue *value) {
        mStore->set<int>(name, value->get<int>() + 1);
    });
    {
        const LogCapture log;
        mStore->set<int>(key(), 0);
        QCOMPARE(log.texts(QtCriticalMsg),
                 QStringList("ConfStorage::callChangedCallback nested too deeply:"
                             "  \"General.Size\""));
    }
    QCOMPARE(mSize, 200);
    // Callbacks resume with the next change.
    mStore->setConfChangedCallback(key(), [&](const QString &, const ConfValue *) { mSize = -1; });
    mStore->set<int>(key(), 0);
    QCOMPARE(mSize, -1);
}

void tst_ConfStorageReentrancy::callbacksThatSetEachOtherEndlesslyAreStopped()
{
    int other = 0;
    mStore->reserveConf("other", &other);
    mStore->setConfChangedCallback(
        key(), [&](const QString &, const ConfValue *) { mStore->set<int>("other", 1); });
    mStore->setConfChangedCallback(
        "other", [&](const QString &, const ConfValue *) { mStore->set<int>(key(), 1); });
    const LogCapture log;
    mStore->set<int>(key(), 1);
    QCOMPARE(log.texts(QtCriticalMsg).size(), 1);
}

void tst_ConfStorageReentrancy::exponentiallyNestedCallbacksAreStopped()
{
    mStore->setConfChangedCallback(key(), [&](const QString &name, const ConfValue *) {
        mStore->set<int>(name, 1);
        mStore->set<int>(name, 2); // without the limit this makes 2^200 calls
    });
    const LogCapture log;
    mStore->set<int>(key(), 0);
    QCOMPARE(log.texts(QtCriticalMsg).size(), 1);
    QCOMPARE(mSize, 2);
}

void tst_ConfStorageReentrancy::callbackMayThrow()
{
    mStore->setConfChangedCallback(key(), [](const QString &, const ConfValue *) { throw 1; });
    for (int i = 0; i < 300; ++i)
        QVERIFY_EXCEPTION_THROWN(mStore->set<int>(key(), i), int);
    QCOMPARE(mSize, 299);
}

void tst_ConfStorageReentrancy::callbackMayReplaceItself()
{
    const QString captured(1000, 'c');
    QString after;
    mStore->setConfChangedCallback(key(), [&, captured](const QString &name, const ConfValue *) {
        mStore->setConfChangedCallback(name, nullptr);
        after = captured;
    });
    mStore->set<int>(key(), 8);
    mStore->set<int>(key(), 9);
    QCOMPARE(after, captured);
}

void tst_ConfStorageReentrancy::callbackMayReserveItsKeyAgain()
{
    int second = 50;
    const QString captured(1000, 'c');
    QString after;
    mStore->setConfChangedCallback(key(), [&, captured](const QString &name, const ConfValue *) {
        mStore->reserveConf(name, &second);
        after = captured + name;
    });
    mStore->set<int>(key(), 8);
    QCOMPARE(after, captured + key());
    QCOMPARE(mStore->get<int>(key()), 50);
    mStore->set<int>(key(), 60);
    QCOMPARE(mSize, 8);
    QCOMPARE(second, 60);
}

void tst_ConfStorageReentrancy::callbackMayEmptyTheStore_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<bool>("isCleared");
    for (const char *change : {"set", "setToDefault", "loadValueFromJson", "loadConf"}) {
        QTest::addRow("%s, maps", change) << change << false;
        QTest::addRow("%s, clear", change) << change << true;
    }
}

void tst_ConfStorageReentrancy::callbackMayEmptyTheStore()
{
    QFETCH(QString, change);
    QFETCH(bool, isCleared);
    mStore->set<int>(key(), 8);
    mStore->mConfMetas[key()].lastChangeTime = QDateTime::fromSecsSinceEpoch(5, Qt::UTC);
    int calls = 0;
    mStore->setConfChangedCallback(key(), [&](const QString &, const ConfValue *) {
        ++calls;
        if (isCleared) {
            mStore->clear();
        } else {
            mStore->mConfValues.clear();
            mStore->mConfMetas.clear();
        }
    });
    if (change == "set")
        mStore->set<int>(key(), 9);
    else if (change == "setToDefault")
        mStore->setToDefault(key(), true);
    else if (change == "loadValueFromJson")
        mStore->loadValueFromJson(key(), 9);
    else
        mStore->loadConf(QJsonObject{{key(), QJsonObject{{"t", 10}, {"v", 9}}}},
                         ConfStorage::LoadLocal);
    QCOMPARE(calls, 1);
    QVERIFY(mStore->mConfValues.isEmpty());
    QVERIFY(mStore->mConfMetas.isEmpty());
}

void tst_ConfStorageReentrancy::callbackMayRemoveItsDynamicKey()
{
    ConfStorage::DynamicConfClass cls;
    cls.prefix = "General.";
    mStore->mDynamicConfClasses = {&cls};
    mStore->setConfChangedCallback(
        key(), [&](const QString &name, const ConfValue *) { mStore->removeDynamicConf(name); });
    mStore->loadConf(QJsonObject{{key(), QJsonObject{{"t", 10}, {"v", 9}}}},
                     ConfStorage::LoadLocal);
    QVERIFY(!mStore->mConfValues.contains(key()));
    QVERIFY(!mStore->mConfMetas.contains(key()));
    QVERIFY(mStore->mRemovedDynamicConfs.contains(key()));
}

void tst_ConfStorageReentrancy::callbackMayLoadTheSameObjectAgain()
{
    const QJsonObject conf{{key(), QJsonObject{{"t", 10}, {"v", 9}}}};
    int calls = 0;
    mStore->setConfChangedCallback(key(), [&](const QString &, const ConfValue *) {
        ++calls;
        mStore->loadConf(conf, ConfStorage::LoadLocal);
    });
    mStore->loadConf(conf, ConfStorage::LoadLocal);
    QCOMPARE(calls, 1); // an equal timestamp is not newer
    QCOMPARE(mSize, 9);
}

void tst_ConfStorageReentrancy::callbackMayChangeTheLoadedObject()
{
    int last = 0;
    mStore->reserveConf("Z", &last);
    QJsonObject conf{{key(), QJsonObject{{"t", 10}, {"v", 9}}},
                     {"Z", QJsonObject{{"t", 10}, {"v", 3}}}};
    mStore->setConfChangedCallback(
        key(), [&](const QString &, const ConfValue *) { conf = QJsonObject(); });
    QCOMPARE(mStore->loadConf(conf, ConfStorage::LoadLocal), 2);
    QCOMPARE(last, 3);
}

void tst_ConfStorageReentrancy::callbackMayReplaceTheNextKeyToLoad()
{
    int first = 0, next = 0, last = 0;
    mStore->reserveConf("a", &first);
    mStore->reserveConf("b", &first);
    mStore->reserveConf("c", &last);
    mStore->setConfChangedCallback("a", [&](const QString &, const ConfValue *) {
        mStore->mConfValues.remove("b");
        mStore->mConfMetas.clear();
        mStore->reserveConf("b", &next);
    });
    const QJsonObject newer{{"t", 100}, {"v", 5}};
    mStore->loadConf(QJsonObject{{"a", newer}, {"b", newer}, {"c", newer}}, ConfStorage::LoadLocal);
    QCOMPARE((QList<int>{first, next, last}), (QList<int>{5, 5, 5}));
    QCOMPARE(mStore->mConfMetas.keys(), (QStringList{"b", "c"}));
}

void tst_ConfStorageReentrancy::callbackMayReloadTheLocalFile()
{
    mStore->mLocalSaveFile = "local.json";
    mStore->set<int>(key(), 42);
    mStore->saveToLocalConfFile();
    mStore->mConfMetas[key()].lastChangeTime = QDateTime::fromSecsSinceEpoch(5, Qt::UTC);
    int calls = 0;
    mStore->setConfChangedCallback(key(), [&](const QString &, const ConfValue *) {
        ++calls;
        mStore->loadLocalConfFile();
    });
    mStore->loadLocalConfFile();
    QCOMPARE(calls, 1);
    QCOMPARE(mSize, 42);
    QVERIFY(!mStore->mChanged);
}

void tst_ConfStorageReentrancy::callbackMaySaveWhileTheFileIsLoaded()
{
    int last = 1;
    mStore->reserveConf("Z", &last);
    mStore->mLocalSaveFile = "local.json";
    mStore->set<int>(key(), 42);
    mStore->set<int>("Z", 43);
    mStore->saveToLocalConfFile();
    mSize = last = 0;
    mStore->mConfMetas[key()].lastChangeTime = QDateTime();
    mStore->mConfMetas["Z"].lastChangeTime = QDateTime();
    mStore->setConfChangedCallback(key(), [&](const QString &, const ConfValue *) {
        mStore->mChanged = true;
        mStore->saveToLocalConfFile();
    });
    mStore->loadLocalConfFile();
    QCOMPARE(mSize, 42);
    QCOMPARE(last, 43);
}

namespace {

ConfStorage *sEmptiedStore = nullptr;

void emptyTheStore(QtMsgType, const QMessageLogContext &, const QString &)
{
    sEmptiedStore->mConfValues.clear();
    sEmptiedStore->mConfMetas.clear();
}

} // namespace

void tst_ConfStorageReentrancy::logHandlerMayRemoveTheFontBeingLoaded_data()
{
    QTest::addColumn<QString>("font");
    QTest::addColumn<bool>("hasCallback");
    QTest::newRow("message of Qt") << "Sans,9,-1" << false;
    QTest::newRow("message of the library") << "Sans,inf,-1,5,50,0,0,0,0,0" << false;
    QTest::newRow("message of Qt, with a callback") << "Sans,9,-1" << true;
}

void tst_ConfStorageReentrancy::logHandlerMayRemoveTheFontBeingLoaded()
{
    QFETCH(QString, font);
    QFETCH(bool, hasCallback);
    const QFont initial("Serif", 33);
    const auto declare = [&](QFont *variable) {
        mStore->reserveConf("General.Font", variable);
        mStore->reserveConf("General.Next", &mSize);
        if (hasCallback)
            mStore->setConfChangedCallback("General.Font", [](const QString &, const ConfValue *) {
                QFAIL("called for a removed key");
            });
    };
    const QJsonObject entry{{"t", 5}, {"v", font}};
    const QJsonObject next{{"t", 5}, {"v", 9}};
    QFont loaded = initial, set = initial;
    sEmptiedStore = mStore.get();
    const QtMessageHandler previous = qInstallMessageHandler(emptyTheStore);
    declare(&loaded);
    mStore->loadConf({{"General.Font", entry}, {"General.Next", next}}, ConfStorage::LoadLocal);
    const bool isEmptyAfterLoad = mStore->mConfValues.isEmpty() && mStore->mConfMetas.isEmpty();
    declare(&set);
    mStore->loadValueFromJson("General.Font", font);
    qInstallMessageHandler(previous);

    QVERIFY(isEmptyAfterLoad);
    QVERIFY(mStore->mConfValues.isEmpty() && mStore->mConfMetas.isEmpty());
    QCOMPARE(loaded, initial);
    QCOMPARE(set, initial);
    QCOMPARE(mSize, 7);
}

namespace {

std::unique_ptr<QFont> sFont;

void destroyTheFont(QtMsgType level, const QMessageLogContext &context, const QString &text)
{
    emptyTheStore(level, context, text);
    sFont.reset();
}

} // namespace

void tst_ConfStorageReentrancy::logHandlerMayRemoveTheFontOfATie_data()
{
    QTest::addColumn<QString>("family"); // of the font in the store
    QTest::newRow("loaded font loses") << "zzz";
    QTest::newRow("loaded font wins") << "!";
}

void tst_ConfStorageReentrancy::logHandlerMayRemoveTheFontOfATie()
{
    QFETCH(QString, family);
    mStore->mFileOptions = ConfStorage::ResolveTies;
    sFont = std::make_unique<QFont>(family);
    mStore->reserveConf("General.Font", sFont.get());
    mStore->reserveConf("General.Next", &mSize);
    mStore->mConfMetas["General.Font"].flags &= ~ConfStorage::FlagIsDefault;
    mStore->mConfMetas["General.Font"].lastChangeTime = QDateTime::fromSecsSinceEpoch(5, Qt::UTC);
    sEmptiedStore = mStore.get();
    const QtMessageHandler previous = qInstallMessageHandler(destroyTheFont);
    mStore->loadConf({{"General.Font", QJsonObject{{"t", 5}, {"v", "Sans,9,-1"}}},
                      {"General.Next", QJsonObject{{"t", 5}, {"v", 9}}}},
                     ConfStorage::LoadLocal);
    qInstallMessageHandler(previous);
    QVERIFY(!sFont);
    QVERIFY(mStore->mConfValues.isEmpty());
    QCOMPARE(mSize, 7);
}

void tst_ConfStorageReentrancy::logHandlerMayRemoveKeysWhenAKeyIsTooLong()
{
    mStore->mFileOptions = ConfStorage::KeepUnknownEntries;
    int next = 7;
    mStore->reserveConf("General.T", &next); // after the longer key
    sEmptiedStore = mStore.get();
    const QtMessageHandler previous = qInstallMessageHandler(emptyTheStore);
    mStore->loadConf({{"General.Size", QJsonObject{{"t", 5}, {"v", 8}}},
                      {"General.Size" + QString(70000, 'x'), QJsonObject{{"t", 5}, {"v", 8}}},
                      {"General.T", QJsonObject{{"t", 5}, {"v", 8}}}},
                     ConfStorage::LoadShared);
    qInstallMessageHandler(previous);
    QVERIFY(mStore->mConfValues.isEmpty());
    QCOMPARE(mSize, 8);
    QCOMPARE(next, 7);
}

namespace {

ConfStorage *sChangedStore = nullptr;
QMap<QString, ConfStorage::ConfMeta> sCopiedMetas;

/// Copies the records, so that the store changes another copy of them from now on.
void reserveAKey(QtMsgType, const QMessageLogContext &, const QString &)
{
    static int sNumber = 0;
    sCopiedMetas = sChangedStore->mConfMetas;
    sChangedStore->reserveConf("new", &sNumber);
}

} // namespace

void tst_ConfStorageReentrancy::logHandlerMayReserveAKeyDuringALoad_data()
{
    QTest::addColumn<QString>("key"); // of the entry that is logged
    QTest::addColumn<QJsonValue>("value");
    QTest::newRow("value that cannot be saved")
        << "General.SizeB" << QJsonValue(QString(1001, 'x'));
    QTest::newRow("value of another type") << "General.SizeB" << QJsonValue("text");
    QTest::newRow("unknown entry without room")
        << "General.SizeUnknown" << QJsonValue(QString(501, 'x'));
    QTest::newRow("key that is too long") << "General.Size" + QString(70000, 'x') << QJsonValue(1);
}

void tst_ConfStorageReentrancy::logHandlerMayReserveAKeyDuringALoad()
{
    QFETCH(QString, key);
    QFETCH(QJsonValue, value);
    mStore->mFileOptions = ConfStorage::KeepUnknownEntries | ConfStorage::StrictTypes;
    mStore->mMaxFileSize = 1000;
    int next = 7, last = 7;
    if (key == "General.SizeB")
        mStore->reserveConf(key, &next);
    mStore->reserveConf("General.T", &last);
    const QJsonObject entry{{"t", 5}, {"v", 8}};
    sChangedStore = mStore.get();
    const QtMessageHandler previous = qInstallMessageHandler(reserveAKey);
    mStore->loadConf(
        {{"General.Size", entry}, {key, QJsonObject{{"t", 5}, {"v", value}}}, {"General.T", entry}},
        ConfStorage::LoadShared);
    qInstallMessageHandler(previous);
    sCopiedMetas.clear();
    QVERIFY(mStore->mConfValues.contains("new"));
    QCOMPARE(last, 8);
    QCOMPARE(mStore->mConfMetas["General.T"].lastChangeTime.toSecsSinceEpoch(), qint64(5));
}

void tst_ConfStorageReentrancy::logHandlerMayRemoveTheKeyBeingRestored()
{
    mStore->mPresetDynamicConfs["General.Preset"] = QJsonObject{{"n", 1}}; // of another type
    mStore->reserveConf("General.Preset", &mSize);
    int calls = 0;
    mStore->setConfChangedCallback("General.Preset",
                                   [&](const QString &, const ConfValue *) { ++calls; });
    sEmptiedStore = mStore.get();
    const QtMessageHandler previous = qInstallMessageHandler(emptyTheStore);
    mStore->setToDefault("General.Preset", true);
    qInstallMessageHandler(previous);
    QVERIFY(mStore->mConfValues.isEmpty());
    QVERIFY(mStore->mConfMetas.isEmpty());
    QCOMPARE(calls, 0);
}

void tst_ConfStorageReentrancy::creatorMayRemoveItsClass()
{
    auto cls = std::make_unique<ConfStorage::DynamicConfClass>();
    int made = 0;
    cls->prefix = "P.";
    cls->flags = ConfStorage::FlagLocalOnly;
    cls->creator = [&](QString name, const QJsonValue *) {
        mStore->reserveConf(name, &made);
        mStore->mDynamicConfClasses.clear();
        cls.reset();
    };
    mStore->mDynamicConfClasses = {cls.get()};
    mStore->createDynamicConf("P.a", 1, nullptr);
    QVERIFY(mStore->mConfMetas.value("P.a").flags & ConfStorage::FlagLocalOnly);
}

void tst_ConfStorageReentrancy::removerMayRemoveTheClass()
{
    auto cls = std::make_unique<ConfStorage::DynamicConfClass>();
    cls->prefix = "General.";
    cls->remover = [&](QString) {
        mStore->mDynamicConfClasses.clear();
        cls.reset();
    };
    mStore->mDynamicConfClasses = {cls.get()};
    mStore->removeDynamicConf(key());
    QVERIFY(!mStore->mConfValues.contains(key()));
}

void tst_ConfStorageReentrancy::removerMayRemoveItsKeyAgain()
{
    ConfStorage::DynamicConfClass cls;
    cls.prefix = "General.";
    cls.remover = [&](QString name) { mStore->removeDynamicConf(name); };
    mStore->mDynamicConfClasses = {&cls};
    const LogCapture log;
    mStore->removeDynamicConf(key());
    QCOMPARE(log.texts(QtCriticalMsg),
             QStringList("ConfStorage::removeDynamicConf() key not found:  \"General.Size\""));
    QVERIFY(!mStore->mConfValues.contains(key()));
    QVERIFY(mStore->mRemovedDynamicConfs.contains(key()));
}

void tst_ConfStorageReentrancy::creatorMayCreateItsKeyAgain()
{
    ConfStorage::DynamicConfClass cls;
    cls.prefix = "P.";
    cls.creator = [&](QString name, const QJsonValue *value) {
        mStore->createDynamicConf(name, *value, nullptr);
        mStore->reserveConf(name, &mSize);
    };
    mStore->mDynamicConfClasses = {&cls};
    const LogCapture log;
    mStore->createDynamicConf("P.a", 1, nullptr);
    QCOMPARE(log.texts(QtCriticalMsg),
             QStringList("ConfStorage::createDynamicConf() key already exists:  \"P.a\""));
    QVERIFY(mStore->mConfValues.contains("P.a"));
}

void tst_ConfStorageReentrancy::creatorMayLoadItsKey()
{
    ConfStorage::DynamicConfClass cls;
    cls.prefix = "Dyn.";
    const QJsonObject member{{"Dyn.a", QJsonObject{{"t", 100}, {"v", 7}}}};
    cls.creator = [&](const QString &name, const QJsonValue *) {
        mStore->loadConf(member, ConfStorage::LoadLocal);
        mStore->reserveConf(name, &mSize);
    };
    mStore->mDynamicConfClasses.append(&cls);
    const LogCapture log;
    mStore->loadConf(member, ConfStorage::LoadLocal);
    QCOMPARE(log.texts(QtCriticalMsg),
             (QStringList{"ConfStorage::createDynamicConf() key already exists:  \"Dyn.a\"",
                          "createDynamicConf Not create conf:  \"Dyn.a\""}));
    QVERIFY(mStore->mConfValues.contains("Dyn.a"));
    QCOMPARE(mStore->mConfMetas["Dyn.a"].lastChangeTime.toSecsSinceEpoch(), 100);
}

void tst_ConfStorageReentrancy::creatorThatLoadsTheRemovalOfItsKeyCreatesIt_data()
{
    QTest::addColumn<bool>("isReservedFirst");
    QTest::addColumn<bool>("isMerged"); // created by a loaded entry instead of by the host
    QTest::newRow("loads, then reserves") << false << false;
    QTest::newRow("reserves, then loads") << true << false;
    QTest::newRow("loads, then reserves, in a load") << false << true;
    QTest::newRow("reserves, then loads, in a load") << true << true;
}

void tst_ConfStorageReentrancy::creatorThatLoadsTheRemovalOfItsKeyCreatesIt()
{
    QFETCH(bool, isReservedFirst);
    QFETCH(bool, isMerged);
    ConfStorage::DynamicConfClass cls;
    cls.prefix = "P.";
    cls.creator = [&](QString name, const QJsonValue *) {
        if (isReservedFirst)
            mStore->reserveConf(name, &mSize);
        mStore->loadSingleConf(name, QJsonObject{{"d", 100}}, ConfStorage::LoadLocal);
        if (!isReservedFirst)
            mStore->reserveConf(name, &mSize);
    };
    mStore->mDynamicConfClasses = {&cls};
    const LogCapture log;
    if (isMerged)
        mStore->loadSingleConf("P.a", QJsonObject{{"t", 50}, {"v", 1}}, ConfStorage::LoadLocal);
    else
        mStore->createDynamicConf("P.a", 1, nullptr);
    QVERIFY(mStore->mConfValues.contains("P.a"));
    QVERIFY(!mStore->mRemovedDynamicConfs.contains("P.a"));
    QCOMPARE(mStore->dumpConf(ConfStorage::DumpLocal).value("P.a").toObject().keys(),
             (QStringList{"t", "v"}));
}

void tst_ConfStorageReentrancy::creatorThatOnlyLoadsTheRemovalCreatesNothing()
{
    ConfStorage::DynamicConfClass cls;
    cls.prefix = "P.";
    cls.creator = [&](QString name, const QJsonValue *) {
        mStore->loadSingleConf(name, QJsonObject{{"d", 100}}, ConfStorage::LoadLocal);
    };
    mStore->mDynamicConfClasses = {&cls};
    mStore->createDynamicConf("P.a", 1, nullptr);
    QVERIFY(!mStore->mConfValues.contains("P.a"));
    QCOMPARE(mStore->dumpConf(ConfStorage::DumpLocal),
             (QJsonObject{{"P.a", QJsonObject{{"d", 100}}}}));
}

void tst_ConfStorageReentrancy::keyArgumentMayReferToTheMapBeingChanged()
{
    ConfStorage::DynamicConfClass cls;
    cls.prefix = "General.";
    cls.creator = [&](QString name, const QJsonValue *) { mStore->reserveConf(name, &mSize); };
    mStore->mDynamicConfClasses = {&cls};
    mStore->removeDynamicConf(mStore->mConfValues.firstKey());
    QVERIFY(mStore->mConfValues.isEmpty());
    const auto removed = mStore->mRemovedDynamicConfs.constBegin();
    mStore->createDynamicConf(removed.key(), QJsonValue(1), nullptr);
    QCOMPARE(mStore->mConfValues.firstKey(), key());
    QVERIFY(mStore->mRemovedDynamicConfs.isEmpty());
}

void tst_ConfStorageReentrancy::callbackMayRemoveOtherKeysWhileAClassIsRestored()
{
    ConfStorage::DynamicConfClass cls;
    int b = 0, c = 0;
    cls.prefix = "General.";
    cls.remover = [&](QString) {
        mStore->mConfValues.remove("General.b");
        mStore->mConfMetas.remove("General.b");
    };
    mStore->mDynamicConfClasses = {&cls};
    mStore->reserveConf("General.a", &c);
    mStore->reserveConf("General.b", &b);
    const LogCapture log;
    mStore->restoreDynamicConf("General.");
    QVERIFY(mStore->mConfValues.isEmpty());
    QCOMPARE(
        log.messages(),
        (QList<LoggedMessage>{
            {QtCriticalMsg, "ConfStorage::removeDynamicConf() key not found:  \"General.b\""}}));
}

void tst_ConfStorageReentrancy::keyRemovedByACallbackDuringRestoreIsLogged()
{
    ConfStorage::DynamicConfClass cls;
    int created = 0;
    cls.prefix = "P.";
    cls.creator = [&](QString name, const QJsonValue *) { mStore->reserveConf(name, &created); };
    mStore->mDynamicConfClasses = {&cls};
    mStore->mPresetDynamicConfs["P.a"] = QJsonObject();
    mStore->createDynamicConf("P.a", QJsonObject(), nullptr);
    mStore->createDynamicConf("P.b", QJsonObject(), nullptr);
    mStore->setConfChangedCallback(
        "P.a", [&](const QString &, const ConfValue *) { mStore->removeDynamicConf("P.b"); });
    mStore->mConfMetas["P.a"].defaultValue = ConfValue::owned(0);
    const LogCapture log;
    mStore->restoreDynamicConf("P.");
    QCOMPARE(log.messages(),
             (QList<LoggedMessage>{
                 {QtCriticalMsg, "ConfStorage::removeDynamicConf() key not found:  \"P.b\""}}));
    QCOMPARE(mStore->mConfValues.keys(), (QStringList{"General.Size", "P.a"}));
    QVERIFY(mStore->mRemovedDynamicConfs.contains("P.b"));
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfStorageReentrancy>(argc, argv);
}

#include "tst_ConfStorageReentrancy.moc"
