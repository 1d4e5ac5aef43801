#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QJsonObject>

/// Reserving, reading, writing, defaults and callbacks of a store.
class tst_ConfStorage : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { mStore = std::make_unique<ConfStorage>(); }

    void instanceIsASingletonThatStartsEmpty();
    void clearForgetsEverything();
    void recordStartsAtItsDefault();
    void reservingBindsTheVariable();
    void reservingCallsNoCallbackAndDoesNotMarkTheStore();
    void reservingAgainRebindsTheKeyAndResetsItsRecord();
    void reservingNullIsLogged();
    void eachTypeIsReserved();
    void getOfAnUnknownKeyIsLogged();
    void getOfAnotherTypeIsLogged();
    void setStampsTheTimeCallsBackAndMarksTheStore();
    void settingTheSameValueIsAChange();
    void settingAnUnknownKeyLeavesARecord();
    void settingAnotherTypeStillCountsAsAChange();
    void isEqualToDefaultTrustsTheFlagAndComparesWithoutIt();
    void setToDefaultRestoresOnce();
    void setToDefaultMayKeepTheTime();
    void setToDefaultOfAnUnknownKeyIsLogged();
    void setToDefaultCreatesAPreset();
    void unknownKeyCountsAsDefault();
    void presetIsTheDefaultOfItsKey();
    void presetOfAnObjectThatEqualsItIsAtDefault();
    void dynamicKeyWithoutPresetIsNeverAtDefault();
    void callbackIsReplacedNotCalled();
    void callbackOfAnUnknownKeyIsLogged();
    void loadValueFromJsonActsLikeAUser();
    void loadValueFromJsonOfNullUnbinds();
    void anyTextIsAValidKey_data();
    void anyTextIsAValidKey();
    void thousandsOfKeys();

private:
    QString key() const { return "General.Size"; }
    ConfStorage::ConfMeta record() const { return mStore->mConfMetas.value(key()); }
    /// Counts the calls of the key's callback.
    void countCalls()
    {
        mCalls = 0;
        mStore->setConfChangedCallback(key(),
                                       [this](const QString &, const ConfValue *) { ++mCalls; });
    }

    std::unique_ptr<ConfStorage> mStore;
    int mCalls = 0;
};

void tst_ConfStorage::instanceIsASingletonThatStartsEmpty()
{
    const ConfStorage *store = ConfStorage::instance();
    QCOMPARE(ConfStorage::instance(), store);
    QVERIFY(!store->mChanged);
    QVERIFY(!store->mLocalLoaded);
    QVERIFY(store->mConfValues.isEmpty());
    QVERIFY(store->mConfMetas.isEmpty());
    QVERIFY(store->mLocalSaveFile.isEmpty());
    QVERIFY(store->mDynamicConfClasses.isEmpty());
}

void tst_ConfStorage::clearForgetsEverything()
{
    int size = 7;
    ConfStorage::DynamicConfClass profiles;
    mStore->reserveConf(key(), &size);
    mStore->set<int>(key(), 8);
    mStore->mDynamicConfClasses.append(&profiles);
    mStore->mPresetDynamicConfs["Profile.Web"] = QJsonObject();
    mStore->mRemovedDynamicConfs["Profile.Mail"] = QDateTime::currentDateTimeUtc();
    mStore->mLocalSaveFile = "settings.json";
    mStore->mLocalLoaded = true;
    mStore->mFileOptions = ConfStorage::SafeSave;
    countCalls();
    mStore->clear();
    QCOMPARE(mCalls, 0);
    QCOMPARE(size, 8);
    QVERIFY(mStore->mConfValues.isEmpty());
    QVERIFY(mStore->mConfMetas.isEmpty());
    QVERIFY(mStore->mDynamicConfClasses.isEmpty());
    QVERIFY(mStore->mPresetDynamicConfs.isEmpty());
    QVERIFY(mStore->mRemovedDynamicConfs.isEmpty());
    QVERIFY(mStore->mLocalSaveFile.isEmpty());
    QVERIFY(!mStore->mChanged);
    QVERIFY(!mStore->mLocalLoaded);
    QCOMPARE(mStore->mFileOptions, 0U);
}

void tst_ConfStorage::recordStartsAtItsDefault()
{
    const ConfStorage::ConfMeta meta;
    QVERIFY(meta.lastChangeTime.isNull());
    QCOMPARE(meta.flags, 1u);
    QCOMPARE(meta.defaultValue.mType, ConfValue::TyNone);
    QVERIFY(!meta.changedCallback);
}

void tst_ConfStorage::reservingBindsTheVariable()
{
    int size = 7;
    mStore->reserveConf(key(), &size);
    QCOMPARE(mStore->get<int>(key()), 7);
    size = 9;
    QCOMPARE(mStore->get<int>(key()), 9);
    QCOMPARE(record().flags, 1u);
    QVERIFY(record().lastChangeTime.isNull());
    QCOMPARE(record().defaultValue.get<int>(), 7);
    QVERIFY(!record().defaultValue.mIsPtr);
}

void tst_ConfStorage::reservingCallsNoCallbackAndDoesNotMarkTheStore()
{
    int size = 7, other = 8;
    mStore->reserveConf(key(), &size);
    countCalls();
    mStore->reserveConf(key(), &other);
    QCOMPARE(mCalls, 0);
    QVERIFY(!mStore->mChanged);
}

void tst_ConfStorage::reservingAgainRebindsTheKeyAndResetsItsRecord()
{
    int first = 1, second = 2;
    mStore->reserveConf(key(), &first);
    countCalls();
    mStore->set<int>(key(), 10);
    mStore->reserveConf(key(), &second);
    QVERIFY(record().lastChangeTime.isNull());
    QCOMPARE(record().flags, 1u);
    mStore->set<int>(key(), 20);
    QCOMPARE(first, 10);
    QCOMPARE(second, 20);
    QCOMPARE(mCalls, 1);
    QCOMPARE(record().defaultValue.get<int>(), 2);
}

void tst_ConfStorage::reservingNullIsLogged()
{
    const LogCapture log;
    mStore->reserveConf(key(), static_cast<int *>(nullptr));
    QCOMPARE(log.texts(QtCriticalMsg),
             QStringList("ConfStorage::reserveConf null pointer:  \"General.Size\""));
    QVERIFY(mStore->mConfValues.isEmpty());
    QVERIFY(mStore->mConfMetas.isEmpty());
}

void tst_ConfStorage::eachTypeIsReserved()
{
    int number = 1;
    bool flag = true;
    QString text("t");
    QColor color(Qt::red);
    QFont font("Sans", 8);
    QKeySequence sequence(Qt::Key_F1);
    mStore->reserveConf("i", &number);
    mStore->reserveConf("b", &flag);
    mStore->reserveConf("s", &text);
    mStore->reserveConf("c", &color);
    mStore->reserveConf("f", &font);
    mStore->reserveConf("k", &sequence);
    mStore->set<int>("i", 2);
    mStore->set<bool>("b", false);
    mStore->set<QString>("s", "u");
    mStore->set<QColor>("c", QColor());
    mStore->set<QFont>("f", QFont("Serif", 9));
    mStore->set<QKeySequence>("k", QKeySequence());
    QCOMPARE(number, 2);
    QVERIFY(!flag);
    QCOMPARE(text, QString("u"));
    QVERIFY(!color.isValid());
    QCOMPARE(font, QFont("Serif", 9));
    QVERIFY(sequence.isEmpty());
    QCOMPARE(mStore->get<QFont>("f"), font);
    for (const char *name : {"i", "b", "s", "c", "f", "k"})
        mStore->setToDefault(name, true);
    QCOMPARE(number, 1);
    QVERIFY(flag);
    QCOMPARE(text, QString("t"));
    QCOMPARE(color, QColor(Qt::red));
    QCOMPARE(font, QFont("Sans", 8));
    QCOMPARE(sequence, QKeySequence(Qt::Key_F1));
}

void tst_ConfStorage::getOfAnUnknownKeyIsLogged()
{
    const LogCapture log;
    QCOMPARE(mStore->get<int>("nowhere"), 0);
    QCOMPARE(mStore->get<QString>("nowhere"), QString());
    QCOMPARE(log.texts(QtCriticalMsg),
             (QStringList{"ConfStorage::get key not found:  \"nowhere\"",
                          "ConfStorage::get key not found:  \"nowhere\""}));
    QVERIFY(mStore->mConfMetas.isEmpty());
}

void tst_ConfStorage::getOfAnotherTypeIsLogged()
{
    int size = 7;
    mStore->reserveConf(key(), &size);
    const LogCapture log;
    QVERIFY(!mStore->get<bool>(key()));
    QCOMPARE(log.texts(QtWarningMsg), QStringList("ConfValue::get() type mismatch"));
}

void tst_ConfStorage::setStampsTheTimeCallsBackAndMarksTheStore()
{
    int size = 7;
    mStore->reserveConf(key(), &size);
    QString calledKey;
    int seen = 0;
    QDateTime timeSeen;
    quint32 flagsSeen = 1;
    bool changedSeen = true;
    mStore->setConfChangedCallback(key(), [&](const QString &changed, const ConfValue *value) {
        calledKey = changed;
        seen = value->get<int>();
        timeSeen = record().lastChangeTime;
        flagsSeen = record().flags;
        changedSeen = mStore->mChanged;
        QCOMPARE(value, &mStore->mConfValues[changed]);
    });
    const QDateTime before = QDateTime::currentDateTimeUtc();
    mStore->set<int>(key(), 8);
    QCOMPARE(calledKey, key());
    QCOMPARE(seen, 8);
    QVERIFY(timeSeen >= before);
    QCOMPARE(flagsSeen, 0u);
    QVERIFY(!changedSeen); // the store is marked after the callback
    QVERIFY(mStore->mChanged);
}

void tst_ConfStorage::settingTheSameValueIsAChange()
{
    int size = 7;
    mStore->reserveConf(key(), &size);
    countCalls();
    mStore->set<int>(key(), 7);
    QCOMPARE(mCalls, 1);
    QCOMPARE(record().flags, 0u);
    QVERIFY(!record().lastChangeTime.isNull());
    QVERIFY(mStore->isEqualToDefault(key()));
}

void tst_ConfStorage::settingAnUnknownKeyLeavesARecord()
{
    const LogCapture log;
    mStore->set<int>("nowhere", 3);
    QCOMPARE(log.texts(QtWarningMsg), QStringList("ConfStorage::set key not found:  \"nowhere\""));
    QVERIFY(!mStore->mConfValues.contains("nowhere"));
    QVERIFY(!mStore->mConfMetas.value("nowhere").lastChangeTime.isNull());
    QCOMPARE(mStore->mConfMetas.value("nowhere").flags, 0u);
    QVERIFY(mStore->mChanged);
    QVERIFY(!mStore->calcLastConfTime().isNull());
}

void tst_ConfStorage::settingAnotherTypeStillCountsAsAChange()
{
    int size = 7;
    mStore->reserveConf(key(), &size);
    countCalls();
    const LogCapture log;
    mStore->set<bool>(key(), true);
    QCOMPARE(log.texts(QtWarningMsg), QStringList("ConfValue::get() type mismatch"));
    QCOMPARE(size, 7);
    QCOMPARE(mCalls, 1);
    QVERIFY(mStore->mChanged);
}

void tst_ConfStorage::isEqualToDefaultTrustsTheFlagAndComparesWithoutIt()
{
    int size = 7;
    mStore->reserveConf(key(), &size);
    size = 9;
    QVERIFY(mStore->isEqualToDefault(key()));
    mStore->set<int>(key(), 9);
    QVERIFY(!mStore->isEqualToDefault(key()));
    mStore->set<int>(key(), 7);
    QVERIFY(mStore->isEqualToDefault(key()));
    QCOMPARE(record().flags, 0u);
}

void tst_ConfStorage::setToDefaultRestoresOnce()
{
    int size = 7;
    mStore->reserveConf(key(), &size);
    mStore->set<int>(key(), 9);
    countCalls();
    mStore->mChanged = false;
    mStore->setToDefault(key(), true);
    QCOMPARE(size, 7);
    QCOMPARE(mCalls, 1);
    QCOMPARE(record().flags, 1u);
    QVERIFY(mStore->mChanged);
    const QDateTime time = record().lastChangeTime;
    mStore->mChanged = false;
    mStore->setToDefault(key(), true);
    QCOMPARE(mCalls, 1);
    QVERIFY(!mStore->mChanged);
    QCOMPARE(record().lastChangeTime, time);
}

void tst_ConfStorage::setToDefaultMayKeepTheTime()
{
    int size = 7;
    mStore->reserveConf(key(), &size);
    mStore->set<int>(key(), 9);
    const QDateTime time = QDateTime::fromSecsSinceEpoch(1000, Qt::UTC);
    mStore->mConfMetas[key()].lastChangeTime = time;
    mStore->setToDefault(key(), false);
    QCOMPARE(record().lastChangeTime, time);
    mStore->set<int>(key(), 9);
    mStore->mConfMetas[key()].lastChangeTime = time;
    mStore->setToDefault(key(), true);
    QVERIFY(record().lastChangeTime > time);
}

void tst_ConfStorage::setToDefaultOfAnUnknownKeyIsLogged()
{
    const LogCapture log;
    mStore->setToDefault("nowhere", true);
    QCOMPARE(log.texts(QtCriticalMsg), QStringList("ConfStorage::set key not found:  \"nowhere\""));
    QVERIFY(mStore->mConfMetas.isEmpty());
    QVERIFY(!mStore->mChanged);
}

void tst_ConfStorage::setToDefaultCreatesAPreset()
{
    QJsonObject entry;
    ConfStorage::DynamicConfClass cls;
    cls.prefix = "P.";
    cls.creator = [&](QString created, const QJsonValue *value) {
        entry = value->toObject();
        mStore->reserveConf(created, &entry);
    };
    mStore->mDynamicConfClasses = {&cls};
    mStore->mPresetDynamicConfs["P.a"] = QJsonObject{{"x", 1}};
    mStore->setToDefault("P.a", true);
    QCOMPARE(entry, (QJsonObject{{"x", 1}}));
    QCOMPARE(mStore->mConfMetas.value("P.a").flags, 1u);
    QVERIFY(mStore->mChanged);
}

void tst_ConfStorage::unknownKeyCountsAsDefault()
{
    const LogCapture log;
    QVERIFY(mStore->isEqualToDefault("nowhere"));
    QVERIFY(log.messages().isEmpty());
}

void tst_ConfStorage::presetIsTheDefaultOfItsKey()
{
    int number = 3;
    mStore->mPresetDynamicConfs["P.a"] = QJsonObject{{"x", 1}};
    mStore->reserveConf("P.a", &number);
    const ConfStorage::ConfMeta meta = mStore->mConfMetas.value("P.a");
    QCOMPARE(meta.defaultValue.mType, ConfValue::TyQJsonObject);
    QCOMPARE(meta.defaultValue.get<QJsonObject>(), (QJsonObject{{"x", 1}}));
    QCOMPARE(meta.flags, 0u); // the preset's type differs from the variable's
    const LogCapture log;
    mStore->setToDefault("P.a", true);
    QCOMPARE(log.texts(QtWarningMsg), QStringList("ConfValue::set() type mismatch"));
    QCOMPARE(number, 3);
}

void tst_ConfStorage::presetOfAnObjectThatEqualsItIsAtDefault()
{
    QJsonObject same{{"x", 1}}, other{{"x", 2}};
    mStore->mPresetDynamicConfs["P.same"] = QJsonObject{{"x", 1}};
    mStore->mPresetDynamicConfs["P.other"] = QJsonObject{{"x", 1}};
    mStore->reserveConf("P.same", &same);
    mStore->reserveConf("P.other", &other);
    QCOMPARE(mStore->mConfMetas.value("P.same").flags, 1u);
    QCOMPARE(mStore->mConfMetas.value("P.other").flags, 0u);
}

void tst_ConfStorage::dynamicKeyWithoutPresetIsNeverAtDefault()
{
    ConfStorage::DynamicConfClass cls;
    cls.prefix = "P.";
    mStore->mDynamicConfClasses = {&cls};
    int number = 3;
    mStore->reserveConf("P.a", &number);
    QCOMPARE(mStore->mConfMetas.value("P.a").flags, 0u);
    QVERIFY(!mStore->isEqualToDefault("P.a"));
    mStore->set<int>("P.a", 3);
    QVERIFY(!mStore->isEqualToDefault("P.a"));
}

void tst_ConfStorage::callbackIsReplacedNotCalled()
{
    int size = 7, first = 0;
    mStore->reserveConf(key(), &size);
    mStore->setConfChangedCallback(key(), [&](const QString &, const ConfValue *) { ++first; });
    countCalls();
    QCOMPARE(mCalls, 0);
    mStore->set<int>(key(), 8);
    QCOMPARE(first, 0);
    QCOMPARE(mCalls, 1);
    mStore->setConfChangedCallback(key(), nullptr);
    mStore->set<int>(key(), 9);
    QCOMPARE(mCalls, 1);
}

void tst_ConfStorage::callbackOfAnUnknownKeyIsLogged()
{
    const LogCapture log;
    mStore->setConfChangedCallback("nowhere", nullptr);
    QCOMPARE(log.texts(QtDebugMsg),
             QStringList("ConfStorage::setConfChangedCallback key not found:  \"nowhere\""));
    QVERIFY(mStore->mConfMetas.isEmpty());
}

void tst_ConfStorage::loadValueFromJsonActsLikeAUser()
{
    int size = 7;
    mStore->reserveConf(key(), &size);
    countCalls();
    mStore->loadValueFromJson(key(), 12);
    QCOMPARE(size, 12);
    QCOMPARE(mCalls, 1);
    QCOMPARE(record().flags, 0u);
    QVERIFY(!record().lastChangeTime.isNull());
    QVERIFY(mStore->mChanged);
    const LogCapture log;
    mStore->loadValueFromJson("nowhere", 12);
    QVERIFY(log.messages().isEmpty());
    QVERIFY(!mStore->mConfMetas.contains("nowhere"));
}

void tst_ConfStorage::loadValueFromJsonOfNullUnbinds()
{
    int size = 7;
    mStore->reserveConf(key(), &size);
    countCalls();
    mStore->loadValueFromJson(key(), QJsonValue());
    QCOMPARE(mCalls, 1);
    QCOMPARE(size, 7);
    QCOMPARE(mStore->mConfValues.value(key()).mType, ConfValue::TyNone);
    const LogCapture log;
    mStore->set<int>(key(), 8);
    QCOMPARE(size, 7);
    QCOMPARE(log.texts(QtWarningMsg), QStringList("ConfValue::get() type mismatch"));
}

void tst_ConfStorage::anyTextIsAValidKey_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << QString();
    QTest::newRow("blank") << " ";
    QTest::newRow("full stops") << "...";
    QTest::newRow("another script") << QString::fromUtf8("设置.热键");
    QTest::newRow("beyond the basic plane") << QString::fromUtf8("\xf0\x9f\x98\x80");
    QTest::newRow("half of a surrogate pair") << QString(QChar(0xd83d));
    QTest::newRow("zero character") << QString::fromLatin1("a\0b", 3);
    QTest::newRow("quotes and line ends") << "\"\\\n\r\t";
    QTest::newRow("very long") << QString(1000000, 'k');
}

void tst_ConfStorage::anyTextIsAValidKey()
{
    QFETCH(QString, name);
    int size = 7;
    mStore->reserveConf(name, &size);
    mStore->set<int>(name, 8);
    QCOMPARE(mStore->get<int>(name), 8);
    QCOMPARE(mStore->mConfValues.size(), 1);
    mStore->setToDefault(name, true);
    QCOMPARE(size, 7);
}

void tst_ConfStorage::thousandsOfKeys()
{
    std::vector<int> variables(20000);
    for (int i = 0; i < 20000; ++i)
        mStore->reserveConf(QString::number(i), &variables[size_t(i)]);
    for (int i = 0; i < 20000; ++i)
        mStore->set<int>(QString::number(i), i);
    QCOMPARE(variables.at(19999), 19999);
    QCOMPARE(mStore->dumpConf(ConfStorage::DumpLocal).size(), 20000);
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfStorage>(argc, argv);
}

#include "tst_ConfStorage.moc"
