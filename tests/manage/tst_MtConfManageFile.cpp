#include "support/CleanStore.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/manage/MtConfManage.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>

#include <utility>

using MtConf::ConfItem;
using MtConf::ItemList;
using MtConf::MtConfManage;

class tst_MtConfManageFile : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        clearStore();
        mManager = std::make_unique<MtConfManage>();
    }
    void cleanup()
    {
        mManager.reset();
        clearStore();
        QFile::remove(path());
    }

    void keysFindItemsByTheirParts_data();
    void keysFindItemsByTheirParts();
    void fileWithoutAJsonObjectLoadsNothing_data();
    void fileWithoutAJsonObjectLoadsNothing();
    void missingFileLoadsNothingAndIsRemembered();
    void languageIsInstalledAfterEveryLoad();
    void unreadableFileIsLogged();
    void loadedKeyCountsAsAChange();
    void itemsMissingFromTheFileKeepTheirValues();
    void keysAreLoadedInSortedOrder();
    void firstOfTwoItemsWithTheSameNamesIsLoaded();
    void formerNamesFindItems_data();
    void formerNamesFindItems();
    void currentNameWinsAgainstFormerNames_data();
    void currentNameWinsAgainstFormerNames();
    void formerNameThatWasRemovedFindsNoItem();
    void itemDeclaredByACallbackIsFoundInTheSameFile();
    void itemsRemovedByACallbackAreNoLongerFound();
    void itemsReplacedByACallbackAreFoundByTheirNewNames();
    void replacedItemIsFoundWithoutAnEarlierLookup();
    void itemAssignedByACallbackIsFound();
    void itemsReorderedByACallbackAreFound();
    void itemsRenamedByACallbackAreFoundByTheirNewNames();
    void itemRenamedByACallbackToContainAFullStopIsNotFound();
    void listSwappedByACallbackIsReadAgain();
    void managerMayBeDestroyedByACallbackDuringALoad();
    void managerMayBeDestroyedByTheRestoreHook();
    void saveToFile_writesTheStoresLocalFile();
    void restoreAllDefault_callsTheHookFirstThenEveryItemInOrder();
    void restoreAllDefault_needsNoHook();
    void restoreAllDefault_survivesAHookThatReplacesItself();
    void restoreAllDefault_survivesACallbackThatEmptiesTheList();
    void lockedMemberFixesTheValue_data();
    void lockedMemberFixesTheValue();
    void lockedValueIsNotSavedAndSurvivesRestoringAll();
    void lockedMemberOfASubItemFixesItsValue();

private:
    static QString path() { return QStringLiteral("config.json"); }
    static void writeFile(const QByteArray &content)
    {
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    static void writeFile(const QJsonObject &object) { writeFile(QJsonDocument(object).toJson()); }
    ConfItem *declare(int *value, const char *name, const char *subName = "")
    {
        return mManager->addConfInt32("n", value, "General", name, subName);
    }

    std::unique_ptr<MtConfManage> mManager;
};

void tst_MtConfManageFile::keysFindItemsByTheirParts_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("reached");
    QTest::newRow("two parts") << "General.Hotkey"
                               << "General.Hotkey";
    QTest::newRow("three parts") << "General.Hotkey.Left"
                                 << "General.Hotkey.Left";
    QTest::newRow("four parts are skipped") << "General.A.B.C"
                                            << "";
    QTest::newRow("name with a full stop is not found") << "General.D.E"
                                                        << "";
    QTest::newRow("name ending with a full stop is not found") << "General.F."
                                                               << "";
    QTest::newRow("one part is skipped") << "General"
                                         << "";
    QTest::newRow("full stop at the end is an empty name") << "General."
                                                           << "General.";
    QTest::newRow("empty third part is no sub-name") << "General.Hotkey."
                                                     << "General.Hotkey";
    QTest::newRow("unknown item") << "General.Nothing"
                                  << "";
    QTest::newRow("other case") << "general.hotkey"
                                << "";
    QTest::newRow("no key at all") << ""
                                   << "";
    QTest::newRow("only full stops") << ".."
                                     << "";
}

void tst_MtConfManageFile::keysFindItemsByTheirParts()
{
    int two = 0, three = 0, four = 0, dotted = 0, dots = 0, empty = 0;
    declare(&two, "Hotkey");
    declare(&three, "Hotkey", "Left");
    declare(&four, "A.B", "C");
    declare(&dotted, "D.E");
    declare(&dots, "F.");
    declare(&empty, "");
    QFETCH(QString, key);
    writeFile(QJsonObject{{key, 7}});
    const LogCapture log;
    mManager->_loadFromFile(path());
    const QMap<QString, int> values{{"General.Hotkey", two}, {"General.Hotkey.Left", three},
                                    {"General.A.B.C", four}, {"General.D.E", dotted},
                                    {"General.F.", dots},    {"General.", empty}};
    QTEST(values.key(7), "reached");
    QVERIFY(log.messages().isEmpty());
}

void tst_MtConfManageFile::fileWithoutAJsonObjectLoadsNothing_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("array") << QByteArray("[{\"General.Size\": 1}]");
    QTest::newRow("empty object") << QByteArray("{}");
    QTest::newRow("empty file") << QByteArray();
    QTest::newRow("cut off") << QByteArray("{\"General.Size\": 1");
    QTest::newRow("binary data") << QByteArray("\x00\xff\xfe", 3);
}

void tst_MtConfManageFile::fileWithoutAJsonObjectLoadsNothing()
{
    QFETCH(QByteArray, content);
    int value = 5;
    declare(&value, "Size");
    writeFile(content);
    const LogCapture log;
    mManager->loadFromFile(path());
    QCOMPARE(value, 5);
    QVERIFY(!ConfStorage::instance()->mChanged);
    QVERIFY(log.messages().isEmpty());
}

void tst_MtConfManageFile::missingFileLoadsNothingAndIsRemembered()
{
    const LogCapture log;
    QSignalSpy languageChanges(mManager.get(), &MtConfManage::sigLanguageChange);
    mManager->loadFromFile("missing.json");
    QCOMPARE(mManager->confFilePath, QString("missing.json"));
    QVERIFY(log.messages().isEmpty());
    QCOMPARE(languageChanges.count(), 0);
}

void tst_MtConfManageFile::languageIsInstalledAfterEveryLoad()
{
    QString code("xx-after-a-missing-file");
    mManager->addConfLanguage("Language", &code, "General", "Language");
    QSignalSpy languageChanges(mManager.get(), &MtConfManage::sigLanguageChange);
    const LogCapture log;
    mManager->loadFromFile("missing.json");
    // No translations are installed, so every language code selects the built-in English.
    QCOMPARE(log.texts(QtDebugMsg), QStringList("installTranslator:  \"en-us\""));
    QCOMPARE(languageChanges.count(), 0);
    mManager->loadFromFile("missing.json"); // the same language again
    QCOMPARE(log.texts(QtDebugMsg).size(), 1);
    writeFile(QJsonObject{{"General.Language", "xx-from-the-file"}});
    mManager->loadFromFile(path());
    QCOMPARE(code, QString("xx-from-the-file"));
    QCOMPARE(languageChanges.count(), 1);
    QCOMPARE(log.texts(QtDebugMsg).size(), 2);
}

void tst_MtConfManageFile::unreadableFileIsLogged()
{
    const LogCapture log;
    mManager->loadFromFile("/");
    QCOMPARE(log.texts(QtCriticalMsg), QStringList("can't open config file \"/\""));
}

void tst_MtConfManageFile::loadedKeyCountsAsAChange()
{
    int value = 5, calls = 0;
    declare(&value, "Size")->setConfChangedCallback([&](const QString &, const ConfValue *) {
        ++calls;
    });
    writeFile(QJsonObject{{"General.Size", 5}});
    mManager->_loadFromFile(path());
    QCOMPARE(calls, 1);
    QVERIFY(ConfStorage::instance()->mChanged);
    QVERIFY(!ConfStorage::instance()->mConfMetas.value("General.Size").lastChangeTime.isNull());
}

void tst_MtConfManageFile::itemsMissingFromTheFileKeepTheirValues()
{
    int named = 1, left = 2;
    declare(&named, "Named");
    declare(&left, "Left");
    writeFile(QJsonObject{{"General.Named", 10}});
    mManager->_loadFromFile(path());
    QCOMPARE(named, 10);
    QCOMPARE(left, 2);
    QVERIFY(ConfStorage::instance()->mConfMetas.value("General.Left").lastChangeTime.isNull());
}

void tst_MtConfManageFile::keysAreLoadedInSortedOrder()
{
    int a = 0, b = 0, c = 0;
    QStringList order;
    const auto note = [&](const QString &key, const ConfValue *) { order << key; };
    declare(&c, "c")->setConfChangedCallback(note);
    declare(&a, "a")->setConfChangedCallback(note);
    declare(&b, "b")->setConfChangedCallback(note);
    writeFile("{\"General.c\": 1, \"General.a\": 1, \"General.b\": 1}");
    mManager->_loadFromFile(path());
    QCOMPARE(order, (QStringList{"General.a", "General.b", "General.c"}));
}

void tst_MtConfManageFile::formerNamesFindItems_data()
{
    QTest::addColumn<QString>("formerName");
    QTest::newRow("two names") << "Main.Size";
    QTest::newRow("three names") << "Main.Window.Size";
    QTest::newRow("one name") << "size";
    QTest::newRow("four names") << "Main.Window.Size.Width";
}

void tst_MtConfManageFile::formerNamesFindItems()
{
    QFETCH(QString, formerName);
    int size = 0, other = 0;
    declare(&other, "Other");
    ConfItem *item = declare(&size, "Size");
    item->addFormerName(formerName);
    item->setConverter([](const QJsonValue &value) {
        return value.isString() ? QJsonValue(value.toString().toInt()) : value;
    });
    writeFile(QJsonObject{{formerName, "3"}});
    mManager->_loadFromFile(path());
    QCOMPARE(size, 3);
    QCOMPARE(other, 0);
    ConfStorage::instance()->loadSingleConf(
        formerName, QJsonObject{{"t", 253370764800.0}, {"v", "4"}}, ConfStorage::LoadLocal);
    QCOMPARE(size, 3);
    ConfStorage::instance()->mFileOptions = ConfStorage::LongTimes;
    ConfStorage::instance()->loadSingleConf(
        formerName, QJsonObject{{"t", 253370764800.0}, {"v", "4"}}, ConfStorage::LoadLocal);
    QCOMPARE(size, 4);
}

void tst_MtConfManageFile::currentNameWinsAgainstFormerNames_data()
{
    QTest::addColumn<QString>("formerName");
    QTest::newRow("before") << "A.Size";
    QTest::newRow("behind") << "Z.Size";
}

void tst_MtConfManageFile::currentNameWinsAgainstFormerNames()
{
    QFETCH(QString, formerName);
    int size = 0, other = 0;
    declare(&size, "Size")->addFormerName(formerName);
    declare(&other, "Other")->addFormerName("General.Size");
    writeFile(QJsonObject{{formerName, 3}, {"General.Size", 4}});
    mManager->_loadFromFile(path());
    QCOMPARE(size, 4);
    QCOMPARE(other, 0);
}

void tst_MtConfManageFile::formerNameThatWasRemovedFindsNoItem()
{
    int first = 0, size = 0;
    ConfItem *firstItem = declare(&first, "First");
    ConfItem *item = declare(&size, "Size");
    item->addFormerName("Old.Size");
    firstItem->setConfChangedCallback(
        [item](const QString &, const ConfValue *) { item->formerNames.clear(); });
    writeFile(QJsonObject{{"General.First", 1}, {"Old.Size", 3}});
    mManager->_loadFromFile(path());
    QCOMPARE(first, 1);
    QCOMPARE(size, 0);
}

void tst_MtConfManageFile::firstOfTwoItemsWithTheSameNamesIsLoaded()
{
    int first = 0, second = 0, sub = 0;
    ConfItem *item = declare(&first, "Twice");
    item->subConfs.insert("sub", ConfItem(&sub, "General", "Sub", ""));
    declare(&second, "Twice");
    writeFile(QJsonObject{
        {"General.Twice", QJsonObject{{"value", 3}, {"subConf", QJsonObject{{"sub", 4}}}}}});
    mManager->_loadFromFile(path());
    QCOMPARE(sub, 4);    // only the first one has a sub-item
    QCOMPARE(second, 3); // the key is bound to the variable that was declared last
}

void tst_MtConfManageFile::itemDeclaredByACallbackIsFoundInTheSameFile()
{
    int early = 0, late = 0;
    declare(&early, "a")->setConfChangedCallback([&](const QString &, const ConfValue *) {
        declare(&late, "z");
    });
    writeFile(QJsonObject{{"General.a", 1}, {"General.z", 2}});
    mManager->_loadFromFile(path());
    QCOMPARE(late, 2);
}

void tst_MtConfManageFile::itemsRemovedByACallbackAreNoLongerFound()
{
    int a = 0, z = 0;
    declare(&a, "a")->setConfChangedCallback(
        [&](const QString &, const ConfValue *) { mManager->items.clear(); });
    declare(&z, "z");
    writeFile(QJsonObject{{"General.a", 1}, {"General.z", 2}});
    mManager->_loadFromFile(path());
    QCOMPARE(a, 1);
    QCOMPARE(z, 0);
}

void tst_MtConfManageFile::itemsReplacedByACallbackAreFoundByTheirNewNames()
{
    int a = 0, y = 0, z = 0;
    declare(&a, "a")->setConfChangedCallback([&](const QString &, const ConfValue *) {
        mManager->items.replace(1, ConfItem(&z, "General", "z", ""));
    });
    declare(&y, "y");
    writeFile(QJsonObject{{"General.a", 1}, {"General.y", 2}, {"General.z", 3}});
    mManager->_loadFromFile(path());
    QCOMPARE(y, 0);
    QCOMPARE(z, 3);
}

void tst_MtConfManageFile::replacedItemIsFoundWithoutAnEarlierLookup()
{
    int a = 0, y = 0, z = 0;
    declare(&a, "a")->setConfChangedCallback([&](const QString &, const ConfValue *) {
        mManager->items.replace(1, ConfItem(&z, "General", "z", ""));
    });
    declare(&y, "y");
    writeFile(QJsonObject{{"General.a", 1}, {"General.z", 3}});
    mManager->_loadFromFile(path());
    QCOMPARE(z, 3);
}

void tst_MtConfManageFile::itemAssignedByACallbackIsFound()
{
    int a = 0, y = 0, z = 0;
    // Lives longer than the load: nothing but the assignment happens to an item meanwhile.
    const ConfItem other(&z, "General", "z", "");
    declare(&a, "a")->setConfChangedCallback(
        [&](const QString &, const ConfValue *) { mManager->items[1] = other; });
    declare(&y, "y");
    writeFile(QJsonObject{{"General.a", 1}, {"General.z", 3}});
    mManager->_loadFromFile(path());
    QCOMPARE(z, 3);
}

void tst_MtConfManageFile::itemsReorderedByACallbackAreFound()
{
    int a = 0, y = 0, z = 0;
    declare(&a, "a")->setConfChangedCallback(
        [&](const QString &, const ConfValue *) { mManager->items.swapItemsAt(1, 2); });
    declare(&y, "y");
    declare(&z, "z");
    writeFile(QJsonObject{{"General.a", 1}, {"General.y", 2}, {"General.z", 3}});
    mManager->_loadFromFile(path());
    QCOMPARE(y, 2);
    QCOMPARE(z, 3);
}

void tst_MtConfManageFile::itemsRenamedByACallbackAreFoundByTheirNewNames()
{
    int a = 0, y = 0, z = 0;
    declare(&z, "z");
    declare(&a, "a")->setConfChangedCallback([&](const QString &, const ConfValue *) {
        std::swap(mManager->items[0].name, mManager->items[2].name);
    });
    declare(&y, "y");
    writeFile(QJsonObject{{"General.a", 1}, {"General.z", 3}});
    mManager->_loadFromFile(path());
    QCOMPARE(y, 0);
    QCOMPARE(z, 3);
}

void tst_MtConfManageFile::itemRenamedByACallbackToContainAFullStopIsNotFound()
{
    int a = 0, z = 0;
    declare(&a, "a")->setConfChangedCallback([&](const QString &, const ConfValue *) {
        mManager->items[1].name = "y.z";
        mManager->items[1].subName.clear();
    });
    declare(&z, "y", "z");
    writeFile(QJsonObject{{"General.a", 1}, {"General.y.z", 3}});
    mManager->_loadFromFile(path());
    QCOMPARE(a, 1);
    QCOMPARE(z, 0);
}

void tst_MtConfManageFile::listSwappedByACallbackIsReadAgain()
{
    int a = 0, y = 0, z = 0;
    ItemList<ConfItem> others{ConfItem(&a, "General", "x", ""), ConfItem(&z, "General", "z", "")};
    declare(&a, "a")->setConfChangedCallback(
        [&](const QString &, const ConfValue *) { mManager->items.swap(others); });
    declare(&y, "y");
    writeFile(QJsonObject{{"General.a", 1}, {"General.y", 2}, {"General.z", 3}});
    mManager->_loadFromFile(path());
    QCOMPARE(y, 0);
    QCOMPARE(z, 3);
}

void tst_MtConfManageFile::managerMayBeDestroyedByACallbackDuringALoad()
{
    int a = 0, z = 0;
    declare(&a, "a")->setConfChangedCallback(
        [&](const QString &, const ConfValue *) { mManager.reset(); });
    declare(&z, "z");
    writeFile(QJsonObject{{"General.a", 1}, {"General.z", 2}});
    mManager->loadFromFile(path());
    QVERIFY(!mManager);
    QCOMPARE(a, 1);
    QCOMPARE(z, 0);
}

void tst_MtConfManageFile::managerMayBeDestroyedByTheRestoreHook()
{
    int a = 0;
    declare(&a, "a");
    mManager->restoreAllHook = [&] { mManager.reset(); };
    mManager->restoreAllDefault();
    QVERIFY(!mManager);
}

void tst_MtConfManageFile::saveToFile_writesTheStoresLocalFile()
{
    int value = 0;
    declare(&value, "Size");
    ConfStorage *store = ConfStorage::instance();
    store->mLocalSaveFile = "local.json";
    mManager->loadFromFile(path());
    mManager->saveToFile();
    QVERIFY(!QFile::exists("local.json"));
    store->set<int>("General.Size", 3);
    mManager->saveToFile();
    QVERIFY(QFile::exists("local.json"));
    QVERIFY(!QFile::exists(path()));
    QVERIFY(!store->mChanged);
    QFile::remove("local.json");
}

void tst_MtConfManageFile::restoreAllDefault_callsTheHookFirstThenEveryItemInOrder()
{
    int b = 2, a = 1;
    QStringList order;
    const auto note = [&](const QString &key, const ConfValue *) { order << key; };
    declare(&b, "b")->setConfChangedCallback(note);
    declare(&a, "a")->setConfChangedCallback(note);
    ConfStorage::instance()->set<int>("General.a", 10);
    ConfStorage::instance()->set<int>("General.b", 20);
    order.clear();
    mManager->restoreAllHook = [&] { order << "hook"; };
    mManager->restoreAllDefault();
    QCOMPARE(order, (QStringList{"hook", "General.b", "General.a"}));
    QCOMPARE(a, 1);
    QCOMPARE(b, 2);
}

void tst_MtConfManageFile::restoreAllDefault_needsNoHook()
{
    int value = 1;
    declare(&value, "a");
    ConfStorage::instance()->set<int>("General.a", 10);
    mManager->restoreAllDefault();
    QCOMPARE(value, 1);
}

void tst_MtConfManageFile::restoreAllDefault_survivesAHookThatReplacesItself()
{
    QString seen;
    const QString text("captured text, long enough to be kept on the heap");
    mManager->restoreAllHook = [this, text, &seen] {
        mManager->restoreAllHook = nullptr;
        seen = text;
    };
    mManager->restoreAllDefault();
    QCOMPARE(seen, text);
}

void tst_MtConfManageFile::restoreAllDefault_survivesACallbackThatEmptiesTheList()
{
    int a = 1, b = 2;
    declare(&a, "a")->setConfChangedCallback(
        [&](const QString &, const ConfValue *) { mManager->items.clear(); });
    declare(&b, "b");
    ConfStorage::instance()->mConfMetas["General.a"].flags = 0;
    ConfStorage::instance()->set<int>("General.b", 20);
    mManager->restoreAllDefault();
    QVERIFY(mManager->items.isEmpty());
    QCOMPARE(b, 20);
}

void tst_MtConfManageFile::lockedMemberFixesTheValue_data()
{
    QTest::addColumn<bool>("isSwitchedOn");
    QTest::addColumn<QJsonObject>("member");
    QTest::addColumn<bool>("isLocked");
    const QJsonObject locked{{"value", 7}, {"locked", true}};
    QTest::newRow("locked") << true << locked << true;
    QTest::newRow("without the option") << false << locked << false;
    QTest::newRow("not locked") << true << QJsonObject{{"value", 7}, {"locked", false}} << false;
    QTest::newRow("text") << true << QJsonObject{{"value", 7}, {"locked", "true"}} << false;
    QTest::newRow("number") << true << QJsonObject{{"value", 7}, {"locked", 1}} << false;
    QTest::newRow("no member") << true << QJsonObject{{"value", 7}} << false;
}

void tst_MtConfManageFile::lockedMemberFixesTheValue()
{
    QFETCH(bool, isSwitchedOn);
    QFETCH(QJsonObject, member);
    QFETCH(bool, isLocked);
    const LogCapture log;
    ConfStorage *store = ConfStorage::instance();
    if (isSwitchedOn)
        store->mFileOptions = ConfStorage::LockedValues;
    int number = 1;
    declare(&number, "N");
    writeFile(QJsonObject{{"General.N", member}});
    mManager->_loadFromFile(path());
    QCOMPARE(number, 7);
    QCOMPARE(store->isLocked("General.N"), isLocked);
    store->set("General.N", 8);
    QCOMPARE(number, isLocked ? 7 : 8);
    mManager->_loadFromFile(path());
    QCOMPARE(number, 7);
}

void tst_MtConfManageFile::lockedValueIsNotSavedAndSurvivesRestoringAll()
{
    const LogCapture log;
    ConfStorage *store = ConfStorage::instance();
    store->mFileOptions = ConfStorage::LockedValues;
    int number = 1, other = 1;
    declare(&number, "N");
    declare(&other, "Other");
    store->set("General.N", 5);
    store->set("General.Other", 5);
    writeFile(QJsonObject{{"General.N", QJsonObject{{"value", 7}, {"locked", true}}}});
    mManager->_loadFromFile(path());
    mManager->restoreAllDefault();
    QCOMPARE(number, 7);
    QCOMPARE(other, 1);
    const QJsonObject dump = store->dumpConf(ConfStorage::DumpChangedOnly);
    QCOMPARE(dump, (QJsonObject{{"General.N", QJsonObject{{"v", 5}}}}));
}

void tst_MtConfManageFile::lockedMemberOfASubItemFixesItsValue()
{
    const LogCapture log;
    ConfStorage *store = ConfStorage::instance();
    store->mFileOptions = ConfStorage::LockedValues;
    int number = 1, width = 1;
    ConfItem *item = declare(&number, "N");
    item->subConfs.insert("Width", ConfItem(&width, "General", "N", "Width"));
    writeFile(QJsonObject{
        {"General.N",
         QJsonObject{
             {"value", 7},
             {"subConf", QJsonObject{{"Width", QJsonObject{{"value", 3}, {"locked", true}}}}}}}});
    mManager->_loadFromFile(path());
    QCOMPARE(number, 7);
    QCOMPARE(width, 3);
    QVERIFY(!store->isLocked("General.N"));
    QVERIFY(store->isLocked("General.N.Width"));
}

int main(int argc, char **argv)
{
    return runTest<tst_MtConfManageFile>(argc, argv);
}

#include "tst_MtConfManageFile.moc"
