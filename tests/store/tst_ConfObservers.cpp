#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/store/ConfChange.h>
#include <MaltoConfiguration/store/ConfOperation.h>
#include <MaltoConfiguration/store/ConfStorage.h>

#include <QJsonObject>

#include <memory>

using Cause = ConfChange::Cause;

Q_DECLARE_METATYPE(Cause)

/// Observers of a store: what they hear, and what they may do.
class tst_ConfObservers : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();

    void eachOperationIsOneEvent_data();
    void eachOperationIsOneEvent();
    void operationsWithoutEffectAreNoEvents_data();
    void operationsWithoutEffectAreNoEvents();
    void variableIsReadJustBeforeTheOperation();
    void observersAreCalledBeforeTheCallback();
    void changesInAnswerBelongToTheSameOperation();
    void operationsHaveDifferentIds();
    void scopeMakesOneOperation();
    void causeOfTheScopeIsNotThatOfTheCallback();
    void wholeLoadIsOneOperation();
    void creatorMaySetItsKey();
    void observersAreCalledInTheirOrder();
    void observerMayRemoveItself();
    void observerMayRemoveTheNextOne();
    void observerThatIsAddedDuringAnEventHearsTheNextOne();
    void observerMayChangeTheStore();
    void observerMayRemoveTheKey();
    void observerMayClearTheStore();
    void endlessObserversAreStopped();
    void removingAnUnknownObserverDoesNothing();
    void releasedKeyIsUnknownAndItsVariableFree();

private:
    void observe()
    {
        mId = mStore->addObserver([this](const ConfChange &change) { mEvents.append(change); });
    }

    std::unique_ptr<ConfStorage> mStore;
    ConfStorage::DynamicConfClass mClass;
    QMap<QString, std::shared_ptr<int>> mDynamic;
    int mSize = 0;
    int mOther = 0;
    int mId = 0;
    QVector<ConfChange> mEvents;
};

void tst_ConfObservers::init()
{
    mEvents.clear();
    mDynamic.clear();
    mSize = 7;
    mOther = 1;
    mStore = std::make_unique<ConfStorage>();
    mStore->reserveConf("size", &mSize);
    mStore->reserveConf("other", &mOther);
    mClass.prefix = "list.";
    mClass.creator = [this](const QString &key, const QJsonValue *value) {
        mDynamic[key] = std::make_shared<int>(value->toInt());
        mStore->reserveConf(key, mDynamic[key].get());
    };
    mClass.remover = [this](const QString &key) { mDynamic.remove(key); };
    mStore->mDynamicConfClasses = {&mClass};
}

namespace {

using Act = std::function<void(ConfStorage &)>;

QString text(const ConfChange::State &state)
{
    if (!state.isPresent)
        return "absent";
    return QString::number(state.value.toInt(-1)) + (state.isDefault ? " default" : "");
}

} // namespace

Q_DECLARE_METATYPE(Act)

void tst_ConfObservers::eachOperationIsOneEvent_data()
{
    QTest::addColumn<Act>("prepare");
    QTest::addColumn<Act>("act");
    QTest::addColumn<QString>("key");
    QTest::addColumn<Cause>("cause");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");

    const Act nothing = [](ConfStorage &) {};
    const Act changed = [](ConfStorage &store) { store.set("size", 9); };
    const Act created = [](ConfStorage &store) { store.createDynamicConf("list.a", 3, nullptr); };
    const auto loaded = [](const QString &key, const QJsonObject &entry) -> Act {
        return [key, entry](ConfStorage &store) {
            store.loadSingleConf(key, entry, ConfStorage::LoadLocal);
        };
    };
    const qint64 later = 2000000000;

    QTest::newRow("set") << nothing << changed << "size" << Cause::Set << "7 default"
                         << "9";
    QTest::newRow("set to the same value") << changed << changed << "size" << Cause::Set << "9"
                                           << "9";
    QTest::newRow("set an unknown key")
        << nothing << Act([](ConfStorage &store) { store.set("unknown", 1); }) << "unknown"
        << Cause::Set << "absent"
        << "absent";
    QTest::newRow("restore") << changed
                             << Act([](ConfStorage &store) { store.setToDefault("size", true); })
                             << "size" << Cause::Restored << "9"
                             << "7 default";
    QTest::newRow("set from JSON")
        << nothing << Act([](ConfStorage &store) { store.loadValueFromJson("size", 8); }) << "size"
        << Cause::Set << "7 default"
        << "8";
    QTest::newRow("null from JSON is the default") << changed << Act([](ConfStorage &store) {
        store.mFileOptions |= ConfStorage::NullIsDefault;
        store.loadValueFromJson("size", QJsonValue());
    }) << "size" << Cause::Restored << "9"
                                                   << "7 default";
    QTest::newRow("load") << nothing << loaded("size", {{"t", 5}, {"v", 6}}) << "size"
                          << Cause::Loaded << "7 default"
                          << "6";
    QTest::newRow("load a default")
        << changed << loaded("size", {{"t", later}}) << "size" << Cause::Loaded << "9"
        << "7 default";
    QTest::newRow("load a default over the default")
        << nothing << loaded("size", {{"t", 5}}) << "size" << Cause::Loaded << "7 default"
        << "7 default";
    QTest::newRow("create") << nothing << created << "list.a" << Cause::Created << "absent"
                            << "3";
    QTest::newRow("remove") << created
                            << Act([](ConfStorage &store) { store.removeDynamicConf("list.a"); })
                            << "list.a" << Cause::Removed << "3"
                            << "absent";
    QTest::newRow("load a new dynamic key") << nothing << loaded("list.a", {{"t", 5}, {"v", 4}})
                                            << "list.a" << Cause::Loaded << "absent"
                                            << "4";
    QTest::newRow("load a removal")
        << created << loaded("list.a", {{"d", later}}) << "list.a" << Cause::Loaded << "3"
        << "absent";
    QTest::newRow("load a removal of an absent key")
        << nothing << loaded("list.a", {{"d", later}}) << "list.a" << Cause::Loaded << "absent"
        << "absent";
    const Act createdAndChanged = [](ConfStorage &store) {
        store.createDynamicConf("list.a", 3, nullptr);
        store.set("list.a", 4);
    };
    QTest::newRow("load the default of a dynamic key")
        << createdAndChanged << loaded("list.a", {{"t", later}}) << "list.a" << Cause::Loaded << "4"
        << "3 default";
    QTest::newRow("restore a missing preset") << nothing << Act([](ConfStorage &store) {
        store.mPresetDynamicConfs.insert("list.p", 2);
        store.setToDefault("list.p", true);
    }) << "list.p" << Cause::Restored << "absent"
                                              << "2 default";
}

void tst_ConfObservers::eachOperationIsOneEvent()
{
    QFETCH(Act, prepare);
    QFETCH(Act, act);
    QFETCH(QString, key);
    QFETCH(Cause, cause);
    QFETCH(QString, before);
    QFETCH(QString, after);

    const LogCapture log;
    prepare(*mStore);
    observe();
    act(*mStore);
    QCOMPARE(mEvents.size(), 1);
    const ConfChange event = mEvents.first();
    QCOMPARE(event.key, key);
    QCOMPARE(event.cause, cause);
    QCOMPARE(text(event.before), before);
    QCOMPARE(text(event.after), after);
    const QDateTime stored = mStore->mConfMetas.contains(key)
                                 ? mStore->mConfMetas.value(key).lastChangeTime
                                 : mStore->mRemovedDynamicConfs.value(key);
    QCOMPARE(event.time, stored);
    QVERIFY(event.time.isValid());
}

void tst_ConfObservers::operationsWithoutEffectAreNoEvents_data()
{
    QTest::addColumn<Act>("act");
    QTest::newRow("restore a default")
        << Act([](ConfStorage &store) { store.setToDefault("size", true); });
    QTest::newRow("restore an unknown key")
        << Act([](ConfStorage &store) { store.setToDefault("unknown", true); });
    QTest::newRow("create a key without a class")
        << Act([](ConfStorage &store) { store.createDynamicConf("x", 1, nullptr); });
    QTest::newRow("remove an unknown key")
        << Act([](ConfStorage &store) { store.removeDynamicConf("list.x"); });
    QTest::newRow("load an unknown key") << Act([](ConfStorage &store) {
        store.loadConf(QJsonObject{{"x", QJsonObject{{"t", 1}, {"v", 1}}}}, ConfStorage::LoadLocal);
    });
    QTest::newRow("load the default of a dynamic key that has it") << Act([](ConfStorage &store) {
        static int sEntry = 0;
        store.reserveConf("list.a", &sEntry);
        store.mConfMetas["list.a"].flags |= ConfStorage::FlagIsDefault;
        store.loadConf(QJsonObject{{"list.a", QJsonObject()}}, ConfStorage::LoadLocal);
        store.mConfValues.remove("list.a");
    });
    QTest::newRow("set an unknown key from JSON")
        << Act([](ConfStorage &store) { store.loadValueFromJson("x", 1); });
    QTest::newRow("release") << Act([](ConfStorage &store) { store.releaseConf("size"); });
}

void tst_ConfObservers::operationsWithoutEffectAreNoEvents()
{
    QFETCH(Act, act);
    const LogCapture log;
    observe();
    act(*mStore);
    QCOMPARE(mEvents.size(), 0);
}

void tst_ConfObservers::variableIsReadJustBeforeTheOperation()
{
    observe();
    mSize = 40; // no event
    QCOMPARE(mEvents.size(), 0);
    mStore->set("size", 41);
    QCOMPARE(mEvents.size(), 1);
    QCOMPARE(mEvents.first().before.value, QJsonValue(40));
    QCOMPARE(mEvents.first().after.value, QJsonValue(41));
}

void tst_ConfObservers::observersAreCalledBeforeTheCallback()
{
    QStringList calls;
    mStore->setConfChangedCallback("size", [&](const QString &, const ConfValue *value) {
        calls.append("callback " + QString::number(value->get<int>()));
    });
    mStore->addObserver([&](const ConfChange &) { calls.append("observer"); });
    mStore->set("size", 9);
    mStore->setToDefault("size", true);
    mStore->loadSingleConf("size", QJsonObject{{"t", 4000000}, {"v", 3}}, ConfStorage::LoadLocal);
    mStore->mConfMetas["size"].lastChangeTime = QDateTime();
    mStore->loadSingleConf("size", QJsonObject{{"t", 4000000}, {"v", 3}}, ConfStorage::LoadLocal);
    QCOMPARE(calls, (QStringList{"observer", "callback 9", "observer", "callback 7", "observer",
                                 "callback 3"}));
}

void tst_ConfObservers::changesInAnswerBelongToTheSameOperation()
{
    mStore->setConfChangedCallback(
        "size", [&](const QString &, const ConfValue *) { mStore->set("other", 5); });
    observe();
    mStore->set("size", 9);
    QCOMPARE(mEvents.size(), 2);
    QCOMPARE(mEvents.at(1).key, QString("other"));
    QCOMPARE(mEvents.at(1).operation, mEvents.at(0).operation);
}

void tst_ConfObservers::operationsHaveDifferentIds()
{
    observe();
    mStore->set("size", 9);
    mStore->set("size", 10);
    QVERIFY(mEvents.at(0).operation != mEvents.at(1).operation);
}

void tst_ConfObservers::scopeMakesOneOperation()
{
    observe();
    {
        const ConfOperation outer(mStore.get());
        mStore->set("size", 9);
        const ConfOperation inner(mStore.get());
        mStore->setToDefault("size", true);
    }
    QCOMPARE(mEvents.size(), 2);
    QCOMPARE(mEvents.at(0).operation, mEvents.at(1).operation);
    QCOMPARE(mEvents.at(0).cause, Cause::Set);
    QCOMPARE(mEvents.at(1).cause, Cause::Restored);
}

void tst_ConfObservers::causeOfTheScopeIsNotThatOfTheCallback()
{
    mStore->setConfChangedCallback(
        "size", [&](const QString &, const ConfValue *) { mStore->set("other", 5); });
    observe();
    const ConfOperation edit(mStore.get(), Cause::Edited);
    mStore->set("size", 9);
    QCOMPARE(mEvents.size(), 2);
    QCOMPARE(mEvents.at(0).cause, Cause::Edited);
    QCOMPARE(mEvents.at(1).cause, Cause::Set);
}

void tst_ConfObservers::wholeLoadIsOneOperation()
{
    observe();
    const QJsonObject entry{{"t", 5}, {"v", 3}};
    mStore->loadConf(QJsonObject{{"size", entry}, {"other", entry}, {"list.a", entry}},
                     ConfStorage::LoadShared);
    QCOMPARE(mEvents.size(), 3);
    for (const ConfChange &event : std::as_const(mEvents)) {
        QCOMPARE(event.operation, mEvents.first().operation);
        QCOMPARE(event.cause, Cause::Loaded);
    }
}

void tst_ConfObservers::creatorMaySetItsKey()
{
    mClass.creator = [this](const QString &key, const QJsonValue *) {
        mStore->reserveConf(key, &mOther);
        mStore->set(key, 5);
    };
    observe();
    mStore->createDynamicConf("list.a", 3, nullptr);
    QCOMPARE(mEvents.size(), 2);
    QCOMPARE(mEvents.at(0).cause, Cause::Set);
    QCOMPARE(mEvents.at(1).cause, Cause::Created);
    QCOMPARE(mEvents.at(1).operation, mEvents.at(0).operation);
}

void tst_ConfObservers::observersAreCalledInTheirOrder()
{
    QString calls;
    mStore->addObserver([&](const ConfChange &) { calls += 'a'; });
    mStore->addObserver([&](const ConfChange &) { calls += 'b'; });
    mStore->addObserver(nullptr);
    mStore->addObserver([&](const ConfChange &) { calls += 'c'; });
    mStore->set("size", 9);
    QCOMPARE(calls, QString("abc"));
}

void tst_ConfObservers::observerMayRemoveItself()
{
    int calls = 0;
    mId = mStore->addObserver([&](const ConfChange &) {
        ++calls;
        mStore->removeObserver(mId);
    });
    mStore->set("size", 9);
    mStore->set("size", 10);
    QCOMPARE(calls, 1);
}

void tst_ConfObservers::observerMayRemoveTheNextOne()
{
    mStore->addObserver([&](const ConfChange &) { mStore->removeObserver(mId); });
    observe();
    mStore->set("size", 9);
    QCOMPARE(mEvents.size(), 0);
}

void tst_ConfObservers::observerThatIsAddedDuringAnEventHearsTheNextOne()
{
    mStore->addObserver([&](const ConfChange &) {
        if (mId == 0)
            observe();
    });
    mId = 0;
    mStore->set("size", 9);
    QCOMPARE(mEvents.size(), 0);
    mStore->set("size", 10);
    QCOMPARE(mEvents.size(), 1);
}

void tst_ConfObservers::observerMayChangeTheStore()
{
    mStore->addObserver([&](const ConfChange &change) {
        if (change.key == "size")
            mStore->set("other", change.after.value.toInt() + 1);
    });
    mStore->set("size", 9);
    QCOMPARE(mOther, 10);
}

void tst_ConfObservers::observerMayRemoveTheKey()
{
    bool called = false;
    mStore->createDynamicConf("list.a", 3, nullptr);
    mStore->setConfChangedCallback("list.a",
                                   [&](const QString &, const ConfValue *) { called = true; });
    mStore->addObserver([&](const ConfChange &change) {
        if (change.after.isPresent)
            mStore->removeDynamicConf(change.key);
    });
    mStore->set("list.a", 4);
    mStore->createDynamicConf("list.b", 3, nullptr);
    mStore->loadSingleConf("list.c", QJsonObject{{"t", 5}, {"v", 1}}, ConfStorage::LoadLocal);
    QVERIFY(!called);
    QVERIFY(mDynamic.isEmpty());
}

void tst_ConfObservers::observerMayClearTheStore()
{
    mStore->addObserver([&](const ConfChange &) { mStore->clear(); });
    observe();
    mStore->set("size", 9);
    QVERIFY(mStore->mConfValues.isEmpty());
    QCOMPARE(mEvents.size(), 0);
}

void tst_ConfObservers::endlessObserversAreStopped()
{
    int calls = 0;
    mStore->addObserver([&](const ConfChange &) {
        ++calls;
        mStore->set("size", calls);
        mStore->set("other", calls);
    });
    const LogCapture log;
    mStore->set("size", 9);
    QCOMPARE(log.texts(QtCriticalMsg),
             QStringList("ConfStorage::addObserver nested too deeply:  \"size\""));
    QCOMPARE(calls, 200);
    mStore->set("size", 9);
    QCOMPARE(calls, 400);
}

void tst_ConfObservers::removingAnUnknownObserverDoesNothing()
{
    mStore->removeObserver(3);
    observe();
    mStore->removeObserver(mId + 1);
    mStore->set("size", 9);
    QCOMPARE(mEvents.size(), 1);
}

void tst_ConfObservers::releasedKeyIsUnknownAndItsVariableFree()
{
    auto variable = std::make_unique<int>(1);
    mStore->reserveConf("plugin", variable.get());
    mStore->set("plugin", 2);
    mStore->releaseConf("plugin");
    variable.reset();
    const LogCapture log;
    mStore->set("plugin", 3);
    QCOMPARE(log.texts(QtWarningMsg), QStringList("ConfStorage::set key not found:  \"plugin\""));
    mStore->releaseConf("unknown");
    QVERIFY(!mStore->dumpConf(ConfStorage::DumpLocal).contains("plugin"));
    QVERIFY(mStore->mRemovedDynamicConfs.isEmpty());
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfObservers>(argc, argv);
}

#include "tst_ConfObservers.moc"
