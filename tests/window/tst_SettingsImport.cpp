#include "MaltoConfiguration/window/transfer/SettingsFile_p.h"
#include "MaltoConfiguration/window/transfer/SettingsImport_p.h"
#include "support/CleanStore.h"
#include "support/Entries.h"
#include "support/FileText.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QJsonDocument>
#include <QJsonObject>

#include <map>
#include <memory>

using MtConf::SettingsFile;
using MtConf::SettingsImport;

namespace {

/// A machine with the settings of one program: its store and its variables.
struct Machine
{
    explicit Machine(ConfStorage *machineStore) : store(machineStore)
    {
        store->reserveConf("Capture.Delay", &delay);
        store->reserveConf("General.Sound", &sound);
        store->reserveConf("Output.Folder", &folder);
        store->mConfMetas["Output.Folder"].flags |= ConfStorage::FlagSystemIndependent;
        profiles.prefix = "Profile.";
        profiles.creator = [this](const QString &key, const QJsonValue *value) {
            profileTexts[key] = value->toString();
            store->reserveConf(key, &profileTexts[key]);
        };
        profiles.remover = [this](const QString &key) { profileTexts.erase(key); };
        store->mDynamicConfClasses.append(&profiles);
    }

    ConfStorage *store;
    int delay = 3;
    bool sound = true;
    QString folder;
    ConfStorage::DynamicConfClass profiles;
    std::map<QString, QString> profileTexts;
};

/// A store apart from that of the process.
struct OtherMachine
{
    ConfStorage store;
    Machine machine{&store};
};

QStringList keysOf(const SettingsImport &import)
{
    QStringList keys;
    for (const ConfChange &change : import.changes())
        keys.append(change.key);
    return keys;
}

QDateTime secondsAgo(int seconds)
{
    return QDateTime::currentDateTimeUtc().addSecs(-seconds);
}

qint64 timeOf(const ConfStorage &store, const QString &key)
{
    return store.mConfMetas.value(key).lastChangeTime.toSecsSinceEpoch();
}

} // namespace

class tst_SettingsImport : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        clearStore();
        mHere = std::make_unique<Machine>(store());
    }
    void cleanup()
    {
        clearStore();
        mHere.reset();
        QFile::remove("exported.json");
    }

    void settingsGoToASecondMachine();
    void onlyRealDifferencesAreOffered();
    void fileWinsWhateverItsTimes_data();
    void fileWinsWhateverItsTimes();
    void importWinsWhenCopiesAreMerged();
    void uncheckedSettingsStay();
    void settingsThatTheFileLacksStay();
    void restoredDefaultIsTheDefaultState();
    void nullMeansTheDefault();
    void removalRemovesADynamicEntry();
    void removedEntryComesBack();
    void removalOfAMissingEntryChangesNothing();
    void whatIsLeftOutIsCounted_data();
    void whatIsLeftOutIsCounted();
    void entryOfAnotherSystemBelongsToNoClass();
    void formerNameChangesTheCurrentKey();
    void refusedValuesAreNamed();
    void clampedValueIsShownAsItWillBe();
    void importIsOneOperation();
    void importIsSaved_data();
    void importIsSaved();
    void previewChangesNothing();

private:
    static ConfStorage *store() { return ConfStorage::instance(); }
    static ConfLoadReport applyAll(const SettingsImport &import)
    {
        return import.apply(store(), keysOf(import));
    }

    std::unique_ptr<Machine> mHere;
};

void tst_SettingsImport::settingsGoToASecondMachine()
{
    OtherMachine other;
    other.store.set("Capture.Delay", 8);
    other.store.set("Output.Folder", QString("/b"));
    other.store.set("General.Sound", false);
    other.store.setToDefault("General.Sound", true);
    other.store.createDynamicConf("Profile.Web", "news", nullptr);
    other.store.mConfMetas["Profile.Web"].lastChangeTime = secondsAgo(10);
    store()->set("General.Sound", false);

    QCOMPARE(SettingsFile("exported.json").write(other.store), QString());
    const SettingsFile::Content content = SettingsFile("exported.json").read(10000);
    const SettingsImport import(*store(), content.dump);
    QCOMPARE(keysOf(import),
             QStringList({"Capture.Delay", "General.Sound", "Output.Folder", "Profile.Web"}));
    QCOMPARE(import.changes().first().before.value, QJsonValue(3));
    QCOMPARE(import.changes().first().after.value, QJsonValue(8));
    QCOMPARE(applyAll(import).taken, 4);
    QCOMPARE(mHere->delay, 8);
    QCOMPARE(mHere->sound, true);
    QVERIFY(store()->mConfMetas["General.Sound"].flags & ConfStorage::FlagIsDefault);
    QCOMPARE(mHere->folder, QString("/b"));
    QCOMPARE(mHere->profileTexts.at("Profile.Web"), QString("news"));
    QVERIFY(SettingsImport(*store(), content.dump).changes().isEmpty());
}

void tst_SettingsImport::onlyRealDifferencesAreOffered()
{
    store()->set("Capture.Delay", 8);
    const QJsonObject dump{{"Capture.Delay", entry(4000000000, 8)}, // newer, and the same value
                           {"General.Sound", entry(100, true)},     // the value of the default
                           {"Output.Folder", entry(100, "/b")}};
    QCOMPARE(keysOf(SettingsImport(*store(), dump)), QStringList("Output.Folder"));
}

void tst_SettingsImport::fileWinsWhateverItsTimes_data()
{
    QTest::addColumn<QJsonObject>("inFile");
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    QTest::newRow("older") << entry(100, 8);
    QTest::newRow("of this second") << entry(now, 8);
    QTest::newRow("newer") << entry(now + 500, 8);
    QTest::newRow("far ahead") << entry(now + 500000000, 8);
    QTest::newRow("without a time") << QJsonObject{{"v", 8}};
    QTest::newRow("with a time that is none") << QJsonObject{{"t", "yesterday"}, {"v", 8}};
}

void tst_SettingsImport::fileWinsWhateverItsTimes()
{
    QFETCH(QJsonObject, inFile);
    store()->mFileOptions = ConfStorage::RefuseFutureTimes | ConfStorage::LongTimes;
    store()->set("Capture.Delay", 5);
    const QDateTime changed = secondsAgo(-100); // its clock was ahead
    store()->mConfMetas["Capture.Delay"].lastChangeTime = changed;
    const LogCapture log;
    applyAll(SettingsImport(*store(), {{"Capture.Delay", inFile}}));
    QCOMPARE(mHere->delay, 8);
    QCOMPARE(timeOf(*store(), "Capture.Delay"), changed.toSecsSinceEpoch() + 1);
    QVERIFY(log.messages().isEmpty());
}

void tst_SettingsImport::importWinsWhenCopiesAreMerged()
{
    OtherMachine other;
    other.store.set("Capture.Delay", 5);
    other.store.mConfMetas["Capture.Delay"].lastChangeTime = secondsAgo(10);
    applyAll(SettingsImport(*store(), {{"Capture.Delay", entry(100, 8)}}));
    other.store.loadConf(store()->dumpConf(ConfStorage::DumpShared), ConfStorage::LoadShared);
    store()->loadConf(other.store.dumpConf(ConfStorage::DumpShared), ConfStorage::LoadShared);
    QCOMPARE(mHere->delay, 8);
    QCOMPARE(other.machine.delay, 8);
}

void tst_SettingsImport::uncheckedSettingsStay()
{
    const SettingsImport import(
        *store(), {{"Capture.Delay", entry(100, 8)}, {"General.Sound", entry(100, false)}});
    import.apply(store(), {"General.Sound", "Unknown.Key"});
    QCOMPARE(mHere->delay, 3);
    QCOMPARE(mHere->sound, false);
    QVERIFY(store()->mConfMetas["Capture.Delay"].lastChangeTime.isNull());
}

void tst_SettingsImport::settingsThatTheFileLacksStay()
{
    store()->set("Capture.Delay", 5);
    store()->createDynamicConf("Profile.Web", "news", nullptr);
    applyAll(SettingsImport(*store(), {{"General.Sound", entry(100, false)}}));
    QCOMPARE(mHere->delay, 5);
    QCOMPARE(mHere->profileTexts.size(), size_t(1));
}

void tst_SettingsImport::restoredDefaultIsTheDefaultState()
{
    store()->set("Capture.Delay", 5);
    const SettingsImport import(*store(), {{"Capture.Delay", QJsonObject{{"t", 100}}}});
    QCOMPARE(import.changes().first().after.value, QJsonValue(3));
    applyAll(import);
    QCOMPARE(mHere->delay, 3);
    QVERIFY(store()->mConfMetas["Capture.Delay"].flags & ConfStorage::FlagIsDefault);
}

void tst_SettingsImport::nullMeansTheDefault()
{
    store()->set("Capture.Delay", 5);
    const SettingsImport import(*store(), {{"Capture.Delay", entry(100, QJsonValue())}});
    QCOMPARE(import.changes().first().after.value, QJsonValue(3));
    applyAll(import);
    QCOMPARE(mHere->delay, 3);
    store()->set("Capture.Delay", 6);
    QCOMPARE(mHere->delay, 6); // the key is bound
}

void tst_SettingsImport::removalRemovesADynamicEntry()
{
    store()->createDynamicConf("Profile.Web", "news", nullptr);
    store()->mConfMetas["Profile.Web"].lastChangeTime = secondsAgo(0);
    const SettingsImport import(*store(), {{"Profile.Web", QJsonObject{{"d", 100}}}});
    QCOMPARE(keysOf(import), QStringList("Profile.Web"));
    QVERIFY(!import.changes().first().after.isPresent);
    applyAll(import);
    QVERIFY(mHere->profileTexts.empty());
    QVERIFY(store()->mRemovedDynamicConfs.contains("Profile.Web"));
}

void tst_SettingsImport::removedEntryComesBack()
{
    store()->mRemovedDynamicConfs.insert("Profile.Web", secondsAgo(-50));
    applyAll(SettingsImport(*store(), {{"Profile.Web", entry(100, "news")}}));
    QCOMPARE(mHere->profileTexts.at("Profile.Web"), QString("news"));
    QVERIFY(!store()->mRemovedDynamicConfs.contains("Profile.Web"));
}

void tst_SettingsImport::removalOfAMissingEntryChangesNothing()
{
    const SettingsImport import(*store(), {{"Profile.Web", QJsonObject{{"d", 100}}}});
    QVERIFY(import.changes().isEmpty());
    QVERIFY(import.leftOut().refused.isEmpty());
}

void tst_SettingsImport::whatIsLeftOutIsCounted_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QJsonValue>("inFile");
    QTest::addColumn<QString>("counted");
    const QJsonValue value = entry(100, 1);
    QTest::newRow("a key of another version") << "Old.Key" << value << "unknown";
    QTest::newRow("a key of another system") << "Capture.Delay#s.win" << value << "unknown";
    QTest::newRow("a key without a name") << "#s.mac" << value << "unknown";
    QTest::newRow("a local-only key") << "Local.Key" << value << "local";
    QTest::newRow("a secret key") << "Secret.Key" << value << "local";
    QTest::newRow("a key of the library") << "Malto.Geometry" << value << "local";
    QTest::newRow("a locked key") << "Locked.Key" << value << "locked";
    QTest::newRow("no entry") << "Capture.Delay" << QJsonValue(8) << "unreadable";
    QTest::newRow("an object that is no entry")
        << "Capture.Delay" << QJsonValue(QJsonObject{{"x", 1}}) << "unreadable";
    QTest::newRow("the removal of a key that cannot be removed")
        << "Capture.Delay" << QJsonValue(QJsonObject{{"d", 100}}) << "unreadable";
}

void tst_SettingsImport::whatIsLeftOutIsCounted()
{
    QFETCH(QString, name);
    QFETCH(QJsonValue, inFile);
    QFETCH(QString, counted);
    int values[4] = {};
    store()->reserveConf("Local.Key", &values[0]);
    store()->reserveConf("Secret.Key", &values[1]);
    store()->reserveConf("Malto.Geometry", &values[2]);
    store()->reserveConf("Locked.Key", &values[3]);
    store()->mConfMetas["Local.Key"].flags |= ConfStorage::FlagLocalOnly;
    store()->mConfMetas["Secret.Key"].flags |= ConfStorage::FlagSecret;
    const LogCapture log;
    store()->lockConf("Locked.Key", 7);
    const SettingsImport import(*store(), {{name, inFile}});
    QVERIFY(import.changes().isEmpty());
    const SettingsImport::LeftOut leftOut = import.leftOut();
    QCOMPARE(leftOut.unknown, counted == "unknown" ? 1 : 0);
    QCOMPARE(leftOut.local, counted == "local" ? 1 : 0);
    QCOMPARE(leftOut.locked, counted == "locked" ? 1 : 0);
    QCOMPARE(leftOut.unreadable, counted == "unreadable" ? 1 : 0);
    QVERIFY(leftOut.refused.isEmpty());
}

void tst_SettingsImport::entryOfAnotherSystemBelongsToNoClass()
{
    ConfStorage::DynamicConfClass everything; // with an empty prefix
    store()->mDynamicConfClasses.append(&everything);
    const SettingsImport import(*store(), {{"Capture.Delay#s.win", entry(100, 1)}});
    QCOMPARE(keysOf(import), QStringList());
    QCOMPARE(import.leftOut().unknown, 1);
}

void tst_SettingsImport::formerNameChangesTheCurrentKey()
{
    store()->addFormerName("Capture.Delay", "Shot.Wait");
    store()->addFormerName("Local.Key", "Open.Key");
    int local = 0;
    store()->reserveConf("Local.Key", &local);
    store()->mConfMetas["Local.Key"].flags |= ConfStorage::FlagLocalOnly;
    const SettingsImport import(*store(),
                                {{"Shot.Wait", entry(100, 8)}, {"Open.Key", entry(100, 1)}},
                                {"Shot.Wait", "Open.Key"});
    QCOMPARE(keysOf(import), QStringList("Capture.Delay"));
    QCOMPARE(import.leftOut().unknown, 0);
    applyAll(import);
    QCOMPARE(mHere->delay, 8);
    QCOMPARE(local, 0);
}

void tst_SettingsImport::refusedValuesAreNamed()
{
    store()->mFileOptions = ConfStorage::StrictTypes;
    store()->setConfConstraint("Capture.Delay", [](const QJsonValue &value) {
        return value.toInt() < 10 ? std::optional<QJsonValue>(value) : std::nullopt;
    });
    const LogCapture log;
    const SettingsImport import(*store(), {{"Capture.Delay", entry(100, 20)},
                                           {"General.Sound", entry(100, "loud")},
                                           {"Output.Folder", entry(100, "/b")}});
    QCOMPARE(keysOf(import), QStringList("Output.Folder"));
    QCOMPARE(import.leftOut().refused, QStringList({"Capture.Delay", "General.Sound"}));
}

void tst_SettingsImport::clampedValueIsShownAsItWillBe()
{
    store()->setConfConstraint("Capture.Delay", [](const QJsonValue &value) {
        return std::optional<QJsonValue>(qMin(10, value.toInt()));
    });
    const LogCapture log;
    const SettingsImport import(*store(), {{"Capture.Delay", entry(100, 20)}});
    QCOMPARE(import.changes().first().after.value, QJsonValue(10));
    applyAll(import);
    QCOMPARE(mHere->delay, 10);
}

void tst_SettingsImport::importIsOneOperation()
{
    QVector<ConfChange> heard;
    const int observer = store()->addObserver(
        [&](const ConfChange &change) { heard.append(change); });
    store()->setConfChangedCallback("Capture.Delay", [](const QString &, const ConfValue *) {
        store()->set("Output.Folder", QString("/of-the-callback"));
    });
    applyAll(SettingsImport(
        *store(), {{"Capture.Delay", entry(100, 8)}, {"General.Sound", entry(100, false)}}));
    store()->removeObserver(observer);
    QCOMPARE(heard.size(), 3);
    QCOMPARE(heard.at(0).key, QString("Capture.Delay"));
    QCOMPARE(heard.at(0).cause, ConfChange::Cause::Loaded);
    QCOMPARE(heard.at(1).key, QString("Output.Folder"));
    QCOMPARE(heard.at(2).key, QString("General.Sound"));
    QCOMPARE(heard.at(1).operation, heard.at(0).operation);
    QCOMPARE(heard.at(2).operation, heard.at(0).operation);
}

void tst_SettingsImport::importIsSaved_data()
{
    QTest::addColumn<quint32>("options");
    QTest::newRow("plainly") << quint32(0);
    QTest::newRow("safely") << quint32(ConfStorage::SafeSave);
    QTest::newRow("into a shared file") << quint32(ConfStorage::SharedFile);
}

void tst_SettingsImport::importIsSaved()
{
    QFETCH(quint32, options);
    store()->mFileOptions = options;
    store()->mLocalSaveFile = "local.json";
    const QByteArray saved = R"({"Capture.Delay":{"t":100,"v":5}})";
    writeFile("local.json", saved);
    const LogCapture log;
    store()->loadLocalConfFile();
    QCOMPARE(mHere->delay, 5);
    applyAll(SettingsImport(*store(), {{"Capture.Delay", entry(100, 8)}}));
    store()->saveToLocalConfFile();
    QCOMPARE(mHere->delay, 8);
    const QJsonObject file = QJsonDocument::fromJson(fileText("local.json")).object();
    QCOMPARE(file.value("Capture.Delay").toObject().value("v"), QJsonValue(8));
    QFile::remove("local.json");
}

void tst_SettingsImport::previewChangesNothing()
{
    store()->createDynamicConf("Profile.Web", "news", nullptr);
    store()->mChanged = false;
    const QJsonObject before = store()->dumpConf(ConfStorage::DumpLocal);
    const SettingsImport import(*store(), {{"Capture.Delay", entry(100, 8)},
                                           {"Profile.New", entry(100, "x")},
                                           {"Profile.Web", QJsonObject{{"d", 100}}}});
    QCOMPARE(import.changes().size(), 3);
    QCOMPARE(store()->dumpConf(ConfStorage::DumpLocal), before);
    QCOMPARE(mHere->delay, 3);
    QCOMPARE(mHere->profileTexts.size(), size_t(1));
    QVERIFY(!store()->mChanged);
}

int main(int argc, char **argv)
{
    return runTest<tst_SettingsImport>(argc, argv);
}

#include "tst_SettingsImport.moc"
