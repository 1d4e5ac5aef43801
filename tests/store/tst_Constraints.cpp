#include <MaltoConfiguration/store/ConfChange.h>
#include <MaltoConfiguration/store/ConfLoadReport.h>
#include <MaltoConfiguration/store/ConfStorage.h>

#include "support/LogCapture.h"

#include <QTest>

#include <memory>
#include <thread>

namespace {

const char sRefused[] = "ConfStorage::setConfConstraint() value refused:  \"key\"";
const char sChanged[] = "ConfStorage::setConfConstraint() value changed:  \"key\"";

/// Refuses numbers below 1, and changes those above 10 to 10.
std::optional<QJsonValue> oneToTen(const QJsonValue &value)
{
    if (value.toInt() < 1)
        return std::nullopt;
    return value.toInt() > 10 ? QJsonValue(10) : value;
}

QJsonObject dump(const QJsonValue &value, int time = 2000000000)
{
    return {{"key", QJsonObject{{"t", time}, {"v", value}}}};
}

} // namespace

/// Keys that do not accept every value, secret values, and warnings of wrong use.
class tst_Constraints : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();

    void everyWayToSetAValueIsChecked_data();
    void everyWayToSetAValueIsChecked();
    void refusedSetChangesNothing();
    void defaultValueIsNotChecked();
    void valueThatWasLoadedBeforeIsChecked();
    void entryThatWasLoadedBeforeStaysInTheFile();
    void constraintEndsWithItsKey();
    void valueOfAnotherTypeIsRefused();
    void sameChangedValueIsLoadedOnce();
    void lockedValueStays();
    void logHandlerMayRemoveTheKeyThatIsSet();
    void refusedEntryStaysInTheFile();
    void emptyConstraintAcceptsEverything();
    void previewAndLockedValuesAreChecked();
    void constraintMayRemoveItsKey();

    void secretIsMasked();
    void secretThatIsKeptIsMasked();
    void secretOfADynamicClassIsMasked();
    void presetOfATypeWithAFormIsRestored();
    void misuseIsWarnedOfOnce();

private:
    void check(int value, const QStringList &messages);

    std::unique_ptr<ConfStorage> mStore;
    int mValue = 0;
    int mCalls = 0;
};

void tst_Constraints::init()
{
    mValue = 5;
    mCalls = 0;
    mStore = std::make_unique<ConfStorage>();
    mStore->reserveConf("key", &mValue);
    mStore->setConfChangedCallback("key", [this](const QString &, const ConfValue *) { ++mCalls; });
    mStore->setConfConstraint("key", oneToTen);
}

void tst_Constraints::check(int value, const QStringList &messages)
{
    QCOMPARE(mValue, value);
    QCOMPARE(LogCapture::texts(QtWarningMsg), messages);
}

void tst_Constraints::everyWayToSetAValueIsChecked_data()
{
    QTest::addColumn<int>("given");
    QTest::addColumn<int>("stored");
    QTest::addColumn<QString>("message");
    QTest::newRow("accepted") << 7 << 7 << QString();
    QTest::newRow("changed") << 11 << 10 << QString(sChanged);
    QTest::newRow("refused") << 0 << 5 << QString(sRefused);
}

void tst_Constraints::everyWayToSetAValueIsChecked()
{
    QFETCH(const int, given);
    QFETCH(const int, stored);
    QFETCH(const QString, message);
    const QStringList messages = message.isEmpty() ? QStringList() : QStringList{message};
    const std::vector<std::function<void()>> ways{
        [&] { mStore->set("key", given); },
        [&] { mStore->loadValueFromJson("key", given); },
        [&] { mStore->loadConf(dump(given), ConfStorage::LoadLocal); },
        [&] { mStore->loadConf(dump(given), ConfStorage::LoadShared); },
        [&] { mStore->loadSingleConf("key", dump(given).value("key"), ConfStorage::LoadLocal); },
        [&] {
            mStore->loadConf(QStringLiteral("{\"key\":{\"t\":9,\"v\":%1}}").arg(given),
                             ConfStorage::LoadLocal);
        },
    };
    for (const auto &way : ways) {
        init();
        const LogCapture log;
        way();
        check(stored, messages);
        QCOMPARE(mCalls, stored == 5 ? 0 : 1);
        init();
        int events = 0;
        mStore->addObserver([&](const ConfChange &) { ++events; });
        way();
        QCOMPARE(mValue, stored);
        QCOMPARE(events, stored == 5 ? 0 : 1);
    }
}

void tst_Constraints::refusedSetChangesNothing()
{
    const LogCapture log;
    mStore->set("key", 0);
    QVERIFY(!mStore->mChanged);
    QVERIFY(mStore->isEqualToDefault("key"));
    QVERIFY(mStore->mConfMetas["key"].lastChangeTime.isNull());
    mStore->set("key", QStringLiteral("text")); // of another type, as without a constraint
    QCOMPARE(LogCapture::texts(QtWarningMsg),
             (QStringList{sRefused, "ConfValue::get() type mismatch"}));
}

void tst_Constraints::defaultValueIsNotChecked()
{
    mValue = -1;
    mStore->reserveConf("key", &mValue);
    mStore->setConfConstraint("key", oneToTen);
    QCOMPARE(mValue, -1);
    mStore->set("key", 3);
    mStore->setToDefault("key", true);
    QCOMPARE(mValue, -1);
    mStore->mFileOptions = ConfStorage::NullIsDefault;
    mStore->set("key", 3);
    mStore->loadConf(dump(QJsonValue()), ConfStorage::LoadLocal);
    QCOMPARE(mValue, -1);
}

void tst_Constraints::valueThatWasLoadedBeforeIsChecked()
{
    const LogCapture log;
    mStore->setConfConstraint("key", nullptr);
    mStore->loadConf(dump(11), ConfStorage::LoadLocal);
    const QDateTime time = mStore->mConfMetas["key"].lastChangeTime;
    mStore->setConfConstraint("key", oneToTen);
    QCOMPARE(mValue, 10);
    QCOMPARE(mStore->mConfMetas["key"].lastChangeTime, time);
    mStore->setConfConstraint("key", [](const QJsonValue &) { return std::nullopt; });
    QCOMPARE(mValue, 5);
    QVERIFY(mStore->mConfMetas["key"].flags & ConfStorage::FlagIsDefault);
    QVERIFY(mStore->mConfMetas["key"].lastChangeTime.isNull());
}

void tst_Constraints::entryThatWasLoadedBeforeStaysInTheFile()
{
    const LogCapture log;
    mStore->mFileOptions = ConfStorage::KeepUnknownEntries;
    mStore->setConfConstraint("key", nullptr);
    mStore->loadConf(dump(500, 1700000000), ConfStorage::LoadLocal);
    mStore->mChanged = false;
    mStore->setConfConstraint("key", [](const QJsonValue &) { return std::nullopt; });
    QCOMPARE(mValue, 5);
    QVERIFY(!mStore->mChanged);
    QCOMPARE(mStore->dumpConf(ConfStorage::DumpLocal), dump(500, 1700000000));
}

void tst_Constraints::constraintEndsWithItsKey()
{
    mStore->releaseConf("key");
    QString text;
    mStore->reserveConf("key", &text);
    mStore->set("key", QStringLiteral("text"));
    QCOMPARE(text, QStringLiteral("text"));
    init();
    mStore->reserveConf("key", &mValue);
    QVERIFY(!mStore->hasConfConstraint("key"));
    mStore->set("key", 0);
    QCOMPARE(mValue, 0);
}

void tst_Constraints::valueOfAnotherTypeIsRefused()
{
    const LogCapture log;
    for (const QJsonValue &other : {QJsonValue("text"), QJsonValue(), QJsonValue(1.5)}) {
        mStore->setConfConstraint("key", [other](const QJsonValue &) { return other; });
        mStore->set("key", 7);
        QCOMPARE(mValue, 5);
        QVERIFY(!mStore->mChanged);
    }
}

void tst_Constraints::sameChangedValueIsLoadedOnce()
{
    const LogCapture log;
    for (int i = 0; i < 3; ++i)
        mStore->loadConf(dump(990), ConfStorage::LoadLocal);
    QCOMPARE(mValue, 10);
    QCOMPARE(mCalls, 1);
    mStore->mFileOptions = ConfStorage::ResolveTies;
    mStore->loadConf(dump(990), ConfStorage::LoadLocal);
    QCOMPARE(mCalls, 1);
}

void tst_Constraints::lockedValueStays()
{
    const LogCapture log;
    mStore->setConfConstraint("key", nullptr);
    mStore->lockConf("key", 500);
    mStore->setConfConstraint("key", oneToTen);
    QCOMPARE(mValue, 500);
}

void tst_Constraints::logHandlerMayRemoveTheKeyThatIsSet()
{
    static ConfStorage *sStore = nullptr;
    sStore = mStore.get();
    const QtMessageHandler previous = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &) { sStore->releaseConf("key"); });
    mStore->set(mStore->mConfValues.firstKey(), 500);
    qInstallMessageHandler(previous);
    QCOMPARE(mValue, 5);
}

void tst_Constraints::refusedEntryStaysInTheFile()
{
    mStore->mFileOptions = ConfStorage::KeepUnknownEntries;
    const LogCapture log;
    mStore->loadConf(dump(0), ConfStorage::LoadLocal);
    QCOMPARE(mStore->lastLoad().refusedCount, 1);
    QCOMPARE(mStore->lastLoad().refused.first().reason, ConfLoadReport::Reason::OutOfRange);
    QCOMPARE(mStore->dumpConf(ConfStorage::DumpLocal), dump(0));
    mStore->set("key", 4); // wins against the entry that is kept
    QCOMPARE(mStore->dumpConf(ConfStorage::DumpLocal).value("key").toObject().value("v"),
             QJsonValue(4));
}

void tst_Constraints::emptyConstraintAcceptsEverything()
{
    mStore->setConfConstraint("key", nullptr);
    mStore->set("key", 0);
    QCOMPARE(mValue, 0);
    mStore->setConfConstraint("unknown", oneToTen);
    mStore->set("unknown", 0);
    mStore->clear();
    mStore->reserveConf("key", &mValue);
    mStore->set("key", -3);
    QCOMPARE(mValue, -3);
}

void tst_Constraints::previewAndLockedValuesAreChecked()
{
    const LogCapture log;
    QCOMPARE(mStore->previewLoad(dump(0), ConfStorage::LoadLocal).size(), 0);
    const QVector<ConfChange> changes = mStore->previewLoad(dump(11), ConfStorage::LoadLocal);
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes.first().after.value, QJsonValue(10));
    QCOMPARE(mValue, 5);
    mStore->lockConf("key", 0);
    QVERIFY(!mStore->isLocked("key"));
    mStore->lockConf("key", 12);
    QVERIFY(mStore->isLocked("key"));
    QCOMPARE(mValue, 10);
}

void tst_Constraints::constraintMayRemoveItsKey()
{
    const LogCapture log;
    const auto remove = [this](const QJsonValue &value) {
        mStore->releaseConf("key");
        return std::optional<QJsonValue>(value);
    };
    for (const auto &way : std::vector<std::function<void()>>{
             [&] { mStore->set("key", 7); }, [&] { mStore->loadValueFromJson("key", 7); },
             [&] { mStore->loadConf(dump(7), ConfStorage::LoadLocal); },
             [&] { mStore->lockConf("key", 7); }}) {
        init();
        mStore->setConfConstraint("key", remove);
        way();
        QCOMPARE(mValue, 5);
    }
}

void tst_Constraints::secretIsMasked()
{
    QString token("default-token");
    mStore->reserveConf("token", &token);
    mStore->mConfMetas["token"].flags |= ConfStorage::FlagSecret;
    mStore->set("token", QStringLiteral("hunter2"));
    const QString table = mStore->debugTable();
    QVERIFY(!table.contains("hunter2"));
    QVERIFY(!table.contains("default-token"));
    QVERIFY(table.contains("***"));
    QVERIFY(table.contains("secret"));
    const auto changes = mStore->previewLoad(
        QJsonObject{{"token", QJsonObject{{"t", 2000000000}, {"v", "hunter3"}}}},
        ConfStorage::LoadLocal);
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes.first().before.value, QJsonValue("***"));
    QCOMPARE(changes.first().after.value, QJsonValue("***"));
    QCOMPARE(token, QStringLiteral("hunter2"));
}

void tst_Constraints::secretThatIsKeptIsMasked()
{
    QString token;
    mStore->mFileOptions = ConfStorage::KeepUnknownEntries;
    mStore->reserveConf("token", &token);
    mStore->mConfMetas["token"].flags |= ConfStorage::FlagSecret;
    mStore->addFormerName("token", "older", true);
    mStore->addFormerName("older", "oldest", true);
    mStore->loadConf(QJsonObject{{"oldest", QJsonObject{{"t", 2000000000}, {"v", "hunter2"}}}},
                     ConfStorage::LoadLocal);
    QCOMPARE(token, QStringLiteral("hunter2"));
    QVERIFY(mStore->debugTable().contains("oldest"));
    QVERIFY(!mStore->debugTable().contains("hunter2"));
    mStore->releaseConf("token");
    QVERIFY(mStore->debugTable().contains("token"));
    QVERIFY(!mStore->debugTable().contains("hunter2"));
    QVERIFY(mStore->dumpConf(ConfStorage::DumpLocal).contains("token"));
}

void tst_Constraints::secretOfADynamicClassIsMasked()
{
    ConfStorage::DynamicConfClass cls{"D.", nullptr, nullptr, ConfStorage::FlagSecret};
    cls.creator = [](const QString &, const QJsonValue *) {};
    mStore->mDynamicConfClasses.append(&cls);
    const auto changes = mStore->previewLoad(
        QJsonObject{{"D.x", QJsonObject{{"t", 2000000000}, {"v", "hunter2"}}}},
        ConfStorage::LoadLocal);
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes.first().after.value, QJsonValue("***"));
}

void tst_Constraints::presetOfATypeWithAFormIsRestored()
{
    ConfStorage::DynamicConfClass cls{"D.", nullptr, nullptr, 0};
    QMap<QString, int> numbers;
    cls.creator = [&](const QString &key, const QJsonValue *value) {
        numbers = MtConf::fromJsonForm<QMap<QString, int>>(*value).value();
        mStore->reserveConf(key, &numbers);
    };
    mStore->mDynamicConfClasses.append(&cls);
    mStore->mPresetDynamicConfs["D.x"] = QJsonObject{{"one", 1}};
    mStore->loadPresetDynamicConf();
    const QMap<QString, int> preset{{"one", 1}};
    QCOMPARE(numbers, preset);
    QVERIFY(mStore->isEqualToDefault("D.x"));
    mStore->set("D.x", QMap<QString, int>{{"two", 2}});
    const LogCapture log;
    mStore->setToDefault("D.x", true);
    QCOMPARE(numbers, preset);
    QVERIFY(LogCapture::messages().isEmpty());
}

void tst_Constraints::misuseIsWarnedOfOnce()
{
    ConfStorage::DynamicConfClass cls{"D.", nullptr, nullptr, 0};
    cls.creator = [](const QString &, const QJsonValue *) {};
    mStore->mDynamicConfClasses.append(&cls);
    const auto misuse = [&] {
        std::thread([&] { mStore->get<int>("key"); }).join();
        std::thread([&] { mStore->set("key", 6); }).join();
        mStore->createDynamicConf("D.#1", 1, nullptr);
        mStore->createDynamicConf("D.#2", 1, nullptr);
    };
    const LogCapture log;
    misuse();
    QCOMPARE(LogCapture::texts(QtWarningMsg), QStringList());
    mStore->warnOfMisuse();
    misuse();
    mStore->set("key", 7);
    const QStringList expected{
        "ConfStorage used on another thread:  get",
        "ConfStorage::createDynamicConf() key with # will not be loaded:  \"D.#1\""};
    QCOMPARE(LogCapture::texts(QtWarningMsg), expected);
}

QTEST_GUILESS_MAIN(tst_Constraints)
#include "tst_Constraints.moc"
