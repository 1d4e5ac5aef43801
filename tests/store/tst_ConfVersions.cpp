#include "support/LogCapture.h"
#include "support/SavedFile.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>
#include <QVector>

#include <functional>
#include <map>

Q_DECLARE_METATYPE(std::function<void(ConfStorage *)>)

namespace {

QJsonObject parsed(const QByteArray &text)
{
    return QJsonDocument::fromJson(text).object();
}

QByteArray fileOfVersion(int version)
{
    QFile file(QStringLiteral(MALTO_VERSIONS "/%1.json").arg(version));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// "5 s" becomes 5.
QJsonValue secondsOf(const QJsonValue &value)
{
    return value.isString() ? QJsonValue(value.toString().section(' ', 0, 0).toInt()) : value;
}

/// "on" and "off" become true and false.
QJsonValue switchOf(const QJsonValue &value)
{
    return value.isString() ? QJsonValue(value.toString() == "on") : value;
}

/// "#2a67d8" becomes "ff2a67d8".
QJsonValue colorOf(const QJsonValue &value)
{
    return value.toString().startsWith('#') ? QJsonValue("ff" + value.toString().mid(1)) : value;
}

/// A version of the demo, 1 to 4, which has loaded the local file.
class Program
{
public:
    explicit Program(int version, quint32 options = ConfStorage::KeepUnknownEntries)
    {
        store.mFileOptions = options;
        store.mLocalSaveFile = sPath;
        declareSound(version);
        declareDelay(version);
        const char *const folderKey = version < 3 ? "Output.Directory" : "Output.Folder";
        store.reserveConf(folderKey, &folder);
        store.mConfMetas[folderKey].flags |= ConfStorage::FlagSystemIndependent;
        if (version >= 3) {
            store.addFormerName("Output.Folder", "Output.Directory");
            cls.prefix = "Profile.";
            cls.creator = [this](const QString &key, const QJsonValue *value) {
                QJsonObject &profile = profiles[key] = value->toObject();
                store.reserveConf(key, &profile);
            };
            cls.remover = [this](const QString &key) { profiles.erase(key); };
            store.mDynamicConfClasses = {&cls};
        }
        declareFrame(version);
        store.loadLocalConfFile();
    }
    Q_DISABLE_COPY(Program)

    QByteArray save()
    {
        store.mChanged = true;
        store.saveToLocalConfFile();
        return savedText();
    }
    qint64 time(const QString &key) const
    {
        return store.mConfMetas.value(key).lastChangeTime.toSecsSinceEpoch();
    }
    template<class T> void set(const QString &key, const T &value, qint64 time)
    {
        store.set<T>(key, value);
        store.mConfMetas[key].lastChangeTime = QDateTime::fromSecsSinceEpoch(time, Qt::UTC);
    }

    QString sounds = "on"; // version 1
    bool playSound = true; // since version 2
    QString wait = "0 s";  // versions 1 and 2
    int delay = 0;         // since version 3
    QString folder;
    QString frame = "#000000"; // versions 2 and 3
    QColor frameColor;         // version 4
    std::map<QString, QJsonObject> profiles;
    ConfStorage::DynamicConfClass cls;
    ConfStorage store;

private:
    void declareSound(int version)
    {
        if (version == 1) {
            store.reserveConf("General.Sounds", &sounds);
            return;
        }
        const QString key = version < 4 ? "General.PlaySound" : "General.Sound";
        store.reserveConf(key, &playSound);
        store.setConfConverter(key, switchOf);
        store.addFormerName("General.PlaySound", "General.Sounds");
        if (version == 4)
            store.addFormerName("General.Sound", "General.PlaySound");
    }
    void declareDelay(int version)
    {
        if (version < 3) {
            store.reserveConf("Capture.Wait", &wait);
            return;
        }
        store.reserveConf("Capture.Delay", &delay);
        store.addFormerName("Capture.Delay", "Capture.Wait");
        store.setConfConverter("Capture.Delay", secondsOf);
    }
    void declareFrame(int version)
    {
        if (version == 2 || version == 3)
            store.reserveConf("Appearance.Frame", &frame);
        if (version < 4)
            return;
        store.reserveConf("Appearance.FrameColor", &frameColor);
        store.addFormerName("Appearance.FrameColor", "Appearance.Frame");
        store.setConfConverter("Appearance.FrameColor", colorOf);
    }
};

/// Returns what `version` reads from the local file.
QByteArray sharedDump(int version)
{
    return compact(Program(version).store.dumpConf(ConfStorage::DumpShared));
}

/// A store with the setting "new", which may have former names.
class Host
{
public:
    explicit Host(quint32 options = 0)
    {
        store.mFileOptions = options;
        store.mLocalSaveFile = sPath;
        store.reserveConf("new", &number);
    }
    Q_DISABLE_COPY(Host)

    QByteArray save()
    {
        store.mChanged = true;
        store.saveToLocalConfFile();
        return savedText();
    }
    void load(const QByteArray &json, ConfStorage::LoadConfType type = ConfStorage::LoadLocal)
    {
        QVERIFY(store.loadConf(QString::fromUtf8(json), type));
    }

    int number = 1;
    ConfStorage store;
};

} // namespace

/// Settings that were renamed or changed their type, and versions of a program that share a file.
class tst_ConfVersions : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QFile::remove(sPath); }

    void newestVersionReadsTheFilesOfEarlierOnes_data();
    void newestVersionReadsTheFilesOfEarlierOnes();
    void versionsThatTakeTurnsLoseNothing_data();
    void versionsThatTakeTurnsLoseNothing();
    void changesOfBothVersionsAreKept_data();
    void changesOfBothVersionsAreKept();
    void newestOfBothNamesWins_data();
    void newestOfBothNamesWins();
    void tieOfTheLocalFileKeepsTheCurrentName_data();
    void tieOfTheLocalFileKeepsTheCurrentName();
    void olderFormerEntryOfASharedFileReplacesNothing();
    void formerEntryOfALocalOnlySettingIsNotTakenFromDumps();
    void changeWinsAgainstAFormerEntryOfTheFuture_data();
    void changeWinsAgainstAFormerEntryOfTheFuture();
    void formerEntryWithoutAValueChangesNothing_data();
    void formerEntryWithoutAValueChangesNothing();
    void formerEntryIsKeptInTheFileOrDropped_data();
    void formerEntryIsKeptInTheFileOrDropped();
    void formerEntryIsNotShared();
    void formerEntryOfADumpIsMerged();
    void formerEntryMayHaveTheSystemMark();
    void namesOfSeveralVersionsFormAChain_data();
    void namesOfSeveralVersionsFormAChain();
    void nearestNameWinsATieInAnyOrder_data();
    void nearestNameWinsATieInAnyOrder();
    void formerNameThatIsDeclaredKeepsItsEntries();
    void formerNamesInACircleLoadNothing();
    void formerEntryOfAKeyThatIsNotDeclaredIsKept();
    void keyThatIsReservedLaterGetsItsFormerEntry_data();
    void keyThatIsReservedLaterGetsItsFormerEntry();
    void formerEntryOfTheFutureIsRefusedByASharedLoad();
    void callbackIsCalledOnceForAFormerEntry();
    void converterGetsEveryLoadedValue_data();
    void converterGetsEveryLoadedValue();
    void converterGetsNoDefaultValue_data();
    void converterGetsNoDefaultValue();
    void converterOfADynamicKeyIsCalled();
    void converterMayReserveAKey();
    void converterThatIsSetLateConvertsAKeptEntry_data();
    void converterThatIsSetLateConvertsAKeptEntry();
    void converterThatIsSetLateKeepsAChange();
    void converterThatIsSetLateConvertsTheNewestEntry();
};

void tst_ConfVersions::newestVersionReadsTheFilesOfEarlierOnes_data()
{
    QTest::addColumn<int>("version");
    QTest::addColumn<bool>("sound");
    QTest::addColumn<qint64>("soundTime");
    QTest::addColumn<int>("delay");
    QTest::addColumn<qint64>("delayTime");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QColor>("frame");
    QTest::newRow("version 1") << 1 << false << qint64(1001) << 5 << qint64(1000)
                               << QString("/pictures") << QColor();
    QTest::newRow("version 2") << 2 << false << qint64(2002) << 3 << qint64(2001)
                               << QString("/captures") << QColor(0x2a, 0x67, 0xd8);
    QTest::newRow("version 3") << 3 << true << qint64(3002) << 8 << qint64(3001) << QString("/home")
                               << QColor(0xb9, 0x6e, 0);
}

void tst_ConfVersions::newestVersionReadsTheFilesOfEarlierOnes()
{
    QFETCH(int, version);
    write(fileOfVersion(version));
    Program program(4);
    QTEST(program.playSound, "sound");
    QTEST(program.time("General.Sound"), "soundTime");
    QTEST(program.delay, "delay");
    QTEST(program.time("Capture.Delay"), "delayTime");
    QTEST(program.folder, "folder");
    QTEST(program.frameColor, "frame");
}

void tst_ConfVersions::versionsThatTakeTurnsLoseNothing_data()
{
    QTest::addColumn<quint32>("options");
    QTest::addColumn<int>("file");
    QTest::addColumn<int>("older");
    const quint32 kept = ConfStorage::KeepUnknownEntries;
    const quint32 strict = kept | ConfStorage::StrictTypes | ConfStorage::ResolveTies;
    const quint32 shared = kept | ConfStorage::SharedFile;
    for (const int file : {1, 2, 3}) {
        for (const int older : {1, 2, 3}) {
            QTest::addRow("file %d, version %d", file, older) << kept << file << older;
            QTest::addRow("file %d, version %d, strict", file, older) << strict << file << older;
            QTest::addRow("file %d, version %d, shared", file, older) << shared << file << older;
        }
    }
}

void tst_ConfVersions::versionsThatTakeTurnsLoseNothing()
{
    QFETCH(quint32, options);
    QFETCH(int, file);
    QFETCH(int, older);
    write(fileOfVersion(file));
    QByteArray before = fileOfVersion(file);
    const QByteArray olderDump = sharedDump(older);
    const QByteArray newerDump = sharedDump(4);
    for (const int version : {4, older, 4, older, 4}) {
        const QByteArray after = Program(version, options).save();
        const QJsonObject saved = parsed(after);
        const QJsonObject entries = parsed(before);
        for (auto entry = entries.constBegin(); entry != entries.constEnd(); ++entry)
            QVERIFY2(saved.value(entry.key()) == entry.value(), qPrintable(entry.key()));
        before = after;
    }
    QCOMPARE(sharedDump(older), olderDump);
    QCOMPARE(sharedDump(4), newerDump);
    QCOMPARE(Program(older, options).save(), before); // the file has the entries of both
}

void tst_ConfVersions::changesOfBothVersionsAreKept_data()
{
    QTest::addColumn<int>("older");
    QTest::newRow("version 1") << 1;
    QTest::newRow("version 2") << 2;
    QTest::newRow("version 3") << 3;
}

void tst_ConfVersions::changesOfBothVersionsAreKept()
{
    QFETCH(int, older);
    write(fileOfVersion(older));
    {
        Program program(4);
        program.set("Appearance.FrameColor", QColor(1, 2, 3), 10000);
        program.set("General.Sound", false, 10000);
        program.set("Capture.Delay", 60, 10000);
        program.save();
    }
    {
        Program program(older);
        if (older < 3)
            program.set("Capture.Wait", QString("7 s"), 10001);
        else
            program.set("Capture.Delay", 7, 10001);
        if (older == 1)
            program.set("General.Sounds", QString("on"), 9999); // older than the newer version's
        program.save();
    }
    Program program(4);
    QCOMPARE(program.frameColor, QColor(1, 2, 3));
    QCOMPARE(program.playSound, false);
    QCOMPARE(program.delay, 7);
    QCOMPARE(program.time("Capture.Delay"), qint64(10001));
}

void tst_ConfVersions::newestOfBothNamesWins_data()
{
    QTest::addColumn<QString>("formerName");
    QTest::addColumn<int>("formerTime");
    QTest::addColumn<int>("time");
    QTest::addColumn<int>("result");
    for (const char *name : {"a", "z"}) { // loaded before and after "new"
        QTest::addRow("former %s is newer", name) << QString(name) << 101 << 100 << 5;
        QTest::addRow("former %s is older", name) << QString(name) << 99 << 100 << 6;
        QTest::addRow("former %s is equal", name) << QString(name) << 100 << 100 << 6;
    }
}

void tst_ConfVersions::newestOfBothNamesWins()
{
    QFETCH(QString, formerName);
    QFETCH(int, formerTime);
    QFETCH(int, time);
    const QJsonObject file{{formerName, QJsonObject{{"t", formerTime}, {"v", 5}}},
                           {"new", QJsonObject{{"t", time}, {"v", 6}}}};
    const QByteArray indented = QJsonDocument(file).toJson(); // read by another parser
    for (const QByteArray &text : {compact(file), indented}) {
        Host host;
        host.store.addFormerName("new", formerName);
        host.load(text);
        QTEST(host.number, "result");
        const QByteArray saved = host.save();
        host.load(text);
        QTEST(host.number, "result");
        QCOMPARE(host.save(), saved);
    }
    write(indented);
    Host sharing(ConfStorage::SharedFile);
    sharing.store.addFormerName("new", formerName);
    sharing.store.loadLocalConfFile();
    QTEST(sharing.number, "result");
}

void tst_ConfVersions::tieOfTheLocalFileKeepsTheCurrentName_data()
{
    QTest::addColumn<quint32>("options");
    const quint32 resolves = ConfStorage::ResolveTies;
    QTest::newRow("resolved") << resolves;
    QTest::newRow("resolved, unknown entries are kept")
        << (resolves | ConfStorage::KeepUnknownEntries);
    QTest::newRow("resolved in a shared file")
        << (resolves | ConfStorage::KeepUnknownEntries | ConfStorage::SharedFile);
}

void tst_ConfVersions::tieOfTheLocalFileKeepsTheCurrentName()
{
    QFETCH(quint32, options);
    const QByteArray text = R"({"new":{"t":100,"v":6},"old":{"t":100,"v":9}})";
    write(text);
    for (int start = 0; start < 2; ++start) {
        Host host(options);
        host.store.addFormerName("new", "old");
        host.store.loadLocalConfFile();
        QCOMPARE(host.number, 6);
        if (options & ConfStorage::KeepUnknownEntries) {
            host.store.releaseConf("new");
            host.store.reserveConf("new", &host.number);
            QCOMPARE(host.number, 6);
        }
        QCOMPARE(host.save(), text);
    }
}

void tst_ConfVersions::olderFormerEntryOfASharedFileReplacesNothing()
{
    write(R"({"new":{"t":200,"v":6},"old":{"t":100,"v":5}})");
    Host host(ConfStorage::SharedFile | ConfStorage::ResolveTies);
    host.store.addFormerName("new", "old");
    host.store.loadLocalConfFile();
    write(R"({"new":{"t":200,"v":6},"old":{"t":150,"v":9}})"); // by the older version
    host.store.loadLocalConfFile();
    QCOMPARE(host.number, 6);
    host.store.set("new", 7);
    write(R"({"new":{"t":200,"v":6},"old":{"t":160,"v":9}})");
    host.store.loadLocalConfFile();
    QCOMPARE(host.number, 7);
    QVERIFY(host.store.mChanged);
    host.store.saveToLocalConfFile();
    QCOMPARE(parsed(savedText()).value("new").toObject().value("v"), QJsonValue(7));
    QCOMPARE(parsed(savedText()).value("old").toObject().value("t"), QJsonValue(160));
}

void tst_ConfVersions::formerEntryOfALocalOnlySettingIsNotTakenFromDumps()
{
    Host host(ConfStorage::KeepUnknownEntries);
    host.store.addFormerName("new", "old");
    host.store.mConfMetas["new"].flags |= ConfStorage::FlagLocalOnly;
    host.load(R"({"old":{"t":100,"v":5}})", ConfStorage::LoadShared);
    QCOMPARE(host.number, 1);
    QCOMPARE(host.save(), QByteArray("{}"));
    host.load(R"({"old":{"t":100,"v":5}})", ConfStorage::LoadLocal);
    QCOMPARE(host.number, 5);
}

void tst_ConfVersions::changeWinsAgainstAFormerEntryOfTheFuture_data()
{
    QTest::addColumn<bool>("isRestored");
    QTest::newRow("set") << false;
    QTest::newRow("restored") << true;
}

void tst_ConfVersions::changeWinsAgainstAFormerEntryOfTheFuture()
{
    QFETCH(bool, isRestored);
    const qint64 later = QDateTime::currentSecsSinceEpoch() + 5000;
    write(compact({{"old", QJsonObject{{"t", later}, {"v", 5}}}}));
    {
        Host host;
        host.store.addFormerName("new", "old");
        host.store.loadLocalConfFile();
        QCOMPARE(host.number, 5);
        if (isRestored)
            host.store.setToDefault("new", true);
        else
            host.store.set("new", 1);
        QCOMPARE(host.store.mConfMetas["new"].lastChangeTime.toSecsSinceEpoch(), later + 1);
        host.save();
    }
    Host host;
    host.store.addFormerName("new", "old");
    host.store.loadLocalConfFile();
    QCOMPARE(host.number, 1);
}

void tst_ConfVersions::formerEntryWithoutAValueChangesNothing_data()
{
    QTest::addColumn<QByteArray>("old");
    QTest::newRow("not an entry") << QByteArray("5");
    QTest::newRow("empty") << QByteArray("{}");
    QTest::newRow("removal") << QByteArray(R"({"d":100})");
}

void tst_ConfVersions::formerEntryWithoutAValueChangesNothing()
{
    QFETCH(QByteArray, old);
    const QByteArray text = R"({"new":{"t":100,"v":6},"old":)" + old + '}';
    write(text);
    Host host;
    host.store.addFormerName("new", "old");
    host.store.loadLocalConfFile();
    QCOMPARE(host.number, 6);
    QCOMPARE(host.save(), text);
}

void tst_ConfVersions::formerEntryIsKeptInTheFileOrDropped_data()
{
    QTest::addColumn<quint32>("options");
    QTest::addColumn<bool>("keepEntry");
    QTest::addColumn<QByteArray>("file");
    const QByteArray kept = R"({"new":{"t":100,"v":5},"old":{"t":100,"v":5}})";
    const QByteArray dropped = R"({"new":{"t":100,"v":5}})";
    QTest::newRow("kept") << 0U << true << kept;
    QTest::newRow("dropped") << 0U << false << dropped;
    const quint32 option = ConfStorage::KeepUnknownEntries;
    QTest::newRow("kept like unknown entries") << option << true << kept;
    QTest::newRow("dropped unlike unknown entries") << option << false << dropped;
}

void tst_ConfVersions::formerEntryIsKeptInTheFileOrDropped()
{
    QFETCH(quint32, options);
    QFETCH(bool, keepEntry);
    QFETCH(QByteArray, file);
    write(R"({"old":{"t":100,"v":5}})");
    for (int i = 0; i < 2; ++i) {
        Host host(options);
        host.store.addFormerName("new", "old", keepEntry);
        host.store.loadLocalConfFile();
        QCOMPARE(host.number, 5);
        QCOMPARE(host.save(), file);
    }
}

void tst_ConfVersions::formerEntryIsNotShared()
{
    Host host;
    host.store.addFormerName("new", "old");
    host.load(R"({"old":{"t":100,"v":5}})");
    QCOMPARE(compact(host.store.dumpConf(ConfStorage::DumpShared)),
             QByteArray(R"({"new":{"t":100,"v":5}})"));
}

void tst_ConfVersions::formerEntryOfADumpIsMerged()
{
    Host host;
    host.store.addFormerName("new", "old", false);
    host.load(R"({"old":{"t":100,"v":5}})", ConfStorage::LoadShared);
    QCOMPARE(host.number, 5);
    host.store.loadConf(QJsonObject{{"old", QJsonObject{{"t", 101}, {"v", 6}}}},
                        ConfStorage::LoadShared);
    QCOMPARE(host.number, 6);
    host.store.loadSingleConf("old", QJsonObject{{"t", 102}, {"v", 7}}, ConfStorage::LoadShared);
    QCOMPARE(host.number, 7);
    host.load(R"({"old":{"t":103}})", ConfStorage::LoadShared);
    QCOMPARE(host.number, 1);
    QVERIFY(host.store.isEqualToDefault("new"));
}

void tst_ConfVersions::formerEntryMayHaveTheSystemMark()
{
    Host host;
    host.store.addFormerName("new", "old");
    const QByteArray old = R"("old#s.mac":{"t":100,"v":5})";
    host.load('{' + old + R"(,"old#s.win":{"t":200,"v":6}})");
    QCOMPARE(host.number, 5);
    QCOMPARE(host.save(), R"({"new":{"t":100,"v":5},)" + old + '}');
}

void tst_ConfVersions::namesOfSeveralVersionsFormAChain_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<int>("result");
    QTest::newRow("oldest name only") << QByteArray(R"({"z":{"t":100,"v":5}})") << 5;
    QTest::newRow("oldest name is newest")
        << QByteArray(R"({"a":{"t":100,"v":6},"new":{"t":99,"v":7},"z":{"t":101,"v":5}})") << 5;
    QTest::newRow("nearest name wins a tie")
        << QByteArray(R"({"a":{"t":100,"v":6},"z":{"t":100,"v":5}})") << 6;
    QTest::newRow("current name wins a tie")
        << QByteArray(R"({"a":{"t":100,"v":6},"new":{"t":100,"v":7},"z":{"t":100,"v":5}})") << 7;
}

void tst_ConfVersions::namesOfSeveralVersionsFormAChain()
{
    QFETCH(QByteArray, file);
    write(file);
    {
        Host host;
        host.store.addFormerName("a", "z");
        host.store.addFormerName("new", "a");
        host.store.loadLocalConfFile();
        QTEST(host.number, "result");
    }
    Host late(ConfStorage::KeepUnknownEntries);
    late.store.releaseConf("new");
    late.store.loadLocalConfFile();
    late.store.addFormerName("a", "z");
    late.store.addFormerName("new", "a");
    late.store.reserveConf("new", &late.number);
    QTEST(late.number, "result");
}

void tst_ConfVersions::nearestNameWinsATieInAnyOrder_data()
{
    QTest::addColumn<QString>("nearest");
    QTest::addColumn<QString>("oldest");
    QTest::newRow("nearest name first") << "a"
                                        << "z";
    QTest::newRow("oldest name first") << "z"
                                       << "a";
}

void tst_ConfVersions::nearestNameWinsATieInAnyOrder()
{
    QFETCH(QString, nearest);
    QFETCH(QString, oldest);
    const QJsonObject file{{nearest, QJsonObject{{"t", 100}, {"v", 6}}},
                           {oldest, QJsonObject{{"t", 100}, {"v", 5}}}};
    for (const bool isLate : {false, true}) {
        Host host(ConfStorage::KeepUnknownEntries);
        host.store.addFormerName(nearest, oldest);
        host.store.addFormerName("new", nearest);
        if (isLate)
            host.store.releaseConf("new");
        host.load(compact(file));
        if (isLate)
            host.store.reserveConf("new", &host.number);
        QCOMPARE(host.number, 6);
    }
}

void tst_ConfVersions::formerNameThatIsDeclaredKeepsItsEntries()
{
    Host host;
    int old = 2;
    host.store.reserveConf("old", &old);
    host.store.addFormerName("new", "old");
    host.store.addFormerName("new", "new");
    host.load(R"({"old":{"t":100,"v":5}})");
    QCOMPARE(host.number, 1);
    QCOMPARE(old, 5);
}

void tst_ConfVersions::formerNamesInACircleLoadNothing()
{
    Host host(ConfStorage::KeepUnknownEntries);
    host.store.addFormerName("a", "b");
    host.store.addFormerName("b", "a");
    const QByteArray text = R"({"a":{"t":100,"v":5},"b":{"t":100,"v":5}})";
    host.load(text);
    QCOMPARE(host.save(), text);
}

void tst_ConfVersions::formerEntryOfAKeyThatIsNotDeclaredIsKept()
{
    const QByteArray text = R"({"old":{"t":100,"v":5}})";
    for (const quint32 options : {0U, quint32(ConfStorage::KeepUnknownEntries)}) {
        Host host(options);
        host.store.addFormerName("plug-in", "old");
        host.load(text);
        QCOMPARE(host.save(), text);
    }
    Host host(ConfStorage::KeepUnknownEntries);
    host.store.addFormerName("plug-in", "old", false);
    host.load(text);
    QCOMPARE(host.save(), text);
    int number = 1;
    host.store.reserveConf("plug-in", &number);
    QCOMPARE(number, 5);
    QCOMPARE(host.save(), QByteArray(R"({"plug-in":{"t":100,"v":5}})"));
}

void tst_ConfVersions::keyThatIsReservedLaterGetsItsFormerEntry_data()
{
    QTest::addColumn<bool>("isReservedFirst");
    QTest::addColumn<bool>("keepEntry");
    QTest::addColumn<QByteArray>("file");
    const QByteArray kept = R"({"late":{"t":100,"v":5},"old":{"t":100,"v":5}})";
    const QByteArray dropped = R"({"late":{"t":100,"v":5}})";
    QTest::newRow("name before key") << false << true << kept;
    QTest::newRow("name before key, dropped") << false << false << dropped;
    QTest::newRow("key before name") << true << true << kept;
    QTest::newRow("key before name, dropped") << true << false << dropped;
}

void tst_ConfVersions::keyThatIsReservedLaterGetsItsFormerEntry()
{
    QFETCH(bool, isReservedFirst);
    QFETCH(bool, keepEntry);
    QFETCH(QByteArray, file);
    Host host(ConfStorage::KeepUnknownEntries);
    host.load(R"({"old":{"t":100,"v":5}})");
    int late = 1;
    if (isReservedFirst)
        host.store.reserveConf("late", &late);
    host.store.addFormerName("late", "old", keepEntry);
    if (!isReservedFirst)
        host.store.reserveConf("late", &late);
    QCOMPARE(late, 5);
    QCOMPARE(host.save(), file);
}

void tst_ConfVersions::formerEntryOfTheFutureIsRefusedByASharedLoad()
{
    Host host(ConfStorage::RefuseFutureTimes | ConfStorage::LongTimes);
    host.store.addFormerName("new", "old");
    const LogCapture log;
    host.load(R"({"old":{"t":253370764800,"v":5}})", ConfStorage::LoadShared);
    QCOMPARE(LogCapture::texts(QtWarningMsg),
             QStringList("ConfStorage::loadConf() timestamps too far ahead refused:  1 \"old\""));
    QCOMPARE(host.number, 1);
    QCOMPARE(host.save(), QByteArray("{}"));
}

void tst_ConfVersions::callbackIsCalledOnceForAFormerEntry()
{
    Host host;
    QVector<int> values;
    host.store.setConfChangedCallback(
        "new", [&](const QString &, const ConfValue *value) { values.append(value->get<int>()); });
    host.store.addFormerName("new", "old");
    const QByteArray text = R"({"new":{"t":101,"v":6},"old":{"t":100,"v":5}})";
    host.load(text);
    host.load(text);
    QCOMPARE(values, QVector<int>{6});
}

void tst_ConfVersions::converterGetsEveryLoadedValue_data()
{
    QTest::addColumn<std::function<void(ConfStorage *)>>("load");
    const auto row = [](const char *name, std::function<void(ConfStorage *)> load) {
        QTest::newRow(name) << load;
    };
    const QJsonObject entry{{"t", 100}, {"v", "5 s"}};
    row("local file", [entry](ConfStorage *store) {
        write(compact({{"new", entry}}));
        store->loadLocalConfFile();
    });
    row("indented file", [entry](ConfStorage *store) {
        write(QJsonDocument(QJsonObject{{"new", entry}}).toJson());
        store->loadLocalConfFile();
    });
    row("dump", [entry](ConfStorage *store) {
        store->loadConf(QJsonObject{{"new", entry}}, ConfStorage::LoadShared);
    });
    row("member", [entry](ConfStorage *store) {
        store->loadSingleConf("new#s.mac", entry, ConfStorage::LoadShared);
    });
    row("value", [](ConfStorage *store) { store->loadValueFromJson("new", "5 s"); });
}

void tst_ConfVersions::converterGetsEveryLoadedValue()
{
    QFETCH(std::function<void(ConfStorage *)>, load);
    Host host;
    int calls = 0;
    host.store.setConfConverter("new", [&](const QJsonValue &value) {
        ++calls;
        return secondsOf(value);
    });
    host.store.setConfConverter("other", [](const QJsonValue &) { return QJsonValue(9); });
    load(&host.store);
    QCOMPARE(host.number, 5);
    QCOMPARE(calls, 1);
    QVERIFY(!host.store.isEqualToDefault("new"));
}

void tst_ConfVersions::converterGetsNoDefaultValue_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::newRow("no value") << QByteArray(R"({"t":100})");
    QTest::newRow("null") << QByteArray(R"({"t":100,"v":null})");
    QTest::newRow("no entry") << QByteArray("5");
}

void tst_ConfVersions::converterGetsNoDefaultValue()
{
    QFETCH(QByteArray, entry);
    Host host(ConfStorage::NullIsDefault);
    host.store.set("new", 7);
    host.store.mConfMetas["new"].lastChangeTime = QDateTime::fromSecsSinceEpoch(99, Qt::UTC);
    bool isCalled = false;
    host.store.setConfConverter("new", [&](const QJsonValue &value) {
        isCalled = true;
        return value;
    });
    host.load("{\"new\":" + entry + '}');
    QCOMPARE(host.number, 1);
    QVERIFY(!isCalled);
}

void tst_ConfVersions::converterOfADynamicKeyIsCalled()
{
    Host host;
    std::map<QString, QJsonObject> entries;
    ConfStorage::DynamicConfClass cls;
    cls.prefix = "Entry.";
    cls.creator = [&](const QString &key, const QJsonValue *value) {
        QJsonObject &entry = entries[key] = value->toObject();
        host.store.reserveConf(key, &entry);
    };
    host.store.mDynamicConfClasses = {&cls};
    for (const char *key : {"Entry.1", "Entry.2"}) {
        host.store.setConfConverter(key, [](const QJsonValue &value) {
            return value.isObject() ? value : QJsonValue(QJsonObject{{"n", value}});
        });
    }
    host.load(R"({"Entry.1":{"t":100,"v":1}})");
    QCOMPARE(entries["Entry.1"], (QJsonObject{{"n", 1}}));
    host.store.loadLoadDynamicConf("Entry.2", QJsonObject{{"t", 100}, {"v", 2}}, &cls);
    QCOMPARE(entries["Entry.2"], (QJsonObject{{"n", 2}}));
}

void tst_ConfVersions::converterMayReserveAKey()
{
    Host host;
    int a = 1, other = 1;
    host.store.reserveConf("a", &a);
    QMap<QString, ConfStorage::ConfMeta> copy; // the load must not continue in it
    host.store.setConfConverter("new", [&](const QJsonValue &value) {
        copy = host.store.mConfMetas;
        host.store.reserveConf("other", &other);
        return value;
    });
    host.load(R"({"a":{"t":100,"v":5},"new":{"t":101,"v":6}})");
    QCOMPARE(host.number, 6);
    QCOMPARE(host.store.mConfMetas["new"].lastChangeTime.toSecsSinceEpoch(), qint64(101));
}

void tst_ConfVersions::converterThatIsSetLateConvertsAKeptEntry_data()
{
    QTest::addColumn<quint32>("options");
    QTest::newRow("lenient types") << quint32(ConfStorage::KeepUnknownEntries);
    QTest::newRow("strict types") << quint32(ConfStorage::KeepUnknownEntries
                                             | ConfStorage::StrictTypes);
}

void tst_ConfVersions::converterThatIsSetLateConvertsAKeptEntry()
{
    QFETCH(quint32, options);
    Host host(options);
    host.load(R"({"late":{"t":100,"v":"5 s"}})");
    int late = 1;
    host.store.reserveConf("late", &late);
    host.store.setConfConverter("late", secondsOf);
    QCOMPARE(late, 5);
    QCOMPARE(host.save(), QByteArray(R"({"late":{"t":100,"v":5}})"));
    host.store.setConfConverter("new", secondsOf);
    QCOMPARE(host.number, 1);
}

void tst_ConfVersions::converterThatIsSetLateKeepsAChange()
{
    Host host(ConfStorage::KeepUnknownEntries);
    host.load(R"({"late":{"t":100,"v":"5 s"}})");
    int late = 1;
    host.store.reserveConf("late", &late);
    host.store.set("late", 9);
    host.store.setConfConverter("late", secondsOf);
    QCOMPARE(late, 9);
}

void tst_ConfVersions::converterThatIsSetLateConvertsTheNewestEntry()
{
    Host host(ConfStorage::KeepUnknownEntries);
    host.load(R"({"late":{"t":100,"v":"5 s"},"older":{"t":50,"v":"7 s"}})");
    int late = 1;
    host.store.reserveConf("late", &late);
    host.store.addFormerName("late", "older");
    host.store.setConfConverter("late", secondsOf);
    QCOMPARE(late, 5);
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfVersions>(argc, argv);
}

#include "tst_ConfVersions.moc"
