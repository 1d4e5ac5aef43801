#include "RandomFiles.h"

#include "RandomForms.h"
#include "RandomValues.h"

#include "MaltoConfiguration/store/JsonText_p.h"
#include "MaltoConfiguration/window/WindowGeometryFile_p.h"
#include "fuzz/StoreHost.h"
#include "support/FileText.h"
#include "support/LogCapture.h"

#include <MaltoConfiguration/manage/MtConfManage.h>

#include <QApplication>
#include <QCryptographicHash>
#include <QRect>

namespace {

constexpr qint64 sFirstTime = 1700000000;
constexpr quint32 sFlags[] = {ConfStorage::FlagSystemIndependent, ConfStorage::FlagLocalOnly, 0};
constexpr quint64 sGeometryPeriod = 20; // not each time, because QSettings waits for the disk
constexpr int sRoundLength = 100;       // in seconds; short, so that hosts change settings at once

const char sLocal[] = "local.json";
const char sShared[] = "shared.json";
const char sChanged[] = "changed.json";
const char sTable[] = "table.txt";
const char sConfiguration[] = "configuration.json";
const char sConfigured[] = "configured.json";
const char sGeometry[] = "geometry.ini";
const char sLog[] = "log.txt";

/// Collects the log of one run.
class Run
{
public:
    // The default fonts of Qt 5 and Qt 6 differ. A text without a size gets that of the default.
    Run() { QApplication::setFont(QFont("Sans", 11)); }

    QByteArray log() const;

private:
    const LogCapture mLog;
};

QByteArray Run::log() const
{
    QByteArray text;
    for (const LoggedMessage &message : qAsConst(LogCapture::messages()))
        text += QByteArray::number(message.level) + ' ' + message.text.toUtf8() + '\n';
    return text;
}

/// Two settings of each type. The flags differ, and some keys are beyond ASCII.
StoreDeclarations declarations()
{
    StoreDeclarations result;
    for (quint32 type = ConfValue::TyQColor; type <= ConfValue::TyQJsonArray; ++type) {
        const QString name = QString::number(type);
        const quint32 flags = sFlags[type % 3];
        result.settings.push_back({"Page." + name, static_cast<ConfValue::ConfType>(type), 0});
        result.settings.push_back({QChar(static_cast<ushort>(0xe0 + 0x1234 * type)) + name,
                                   static_cast<ConfValue::ConfType>(type), flags});
    }
    result.families = {{"Entry.", ConfStorage::FlagSystemIndependent, true},
                       {"Host.", ConfStorage::FlagLocalOnly, true}};
    result.presets = {{"Entry.preset", QJsonObject{{"a", 1e17}}}};
    return result;
}

void setRandomly(ConfStorage &store, const QString &key, Random &random)
{
    switch (store.mConfValues[key].mType) {
    case ConfValue::TyQColor: store.set(key, randomValue<QColor>(random)); return;
    case ConfValue::TyInt32: store.set(key, randomValue<int>(random)); return;
    case ConfValue::TyQreal: store.set(key, randomValue<qreal>(random)); return;
    case ConfValue::TyBool: store.set(key, randomValue<bool>(random)); return;
    case ConfValue::TyQString: store.set(key, randomValue<QString>(random)); return;
    case ConfValue::TyQFont: store.set(key, randomValue<QFont>(random)); return;
    case ConfValue::TyQKeySequence: store.set(key, randomValue<QKeySequence>(random)); return;
    case ConfValue::TyQJsonObject: store.set(key, randomValue<QJsonObject>(random)); return;
    case ConfValue::TyQJsonArray: store.set(key, randomValue<QJsonArray>(random)); return;
    case ConfValue::TyNone: return; // unbound by a null
    }
}

QDateTime randomTime(Random &random, int round)
{
    return QDateTime::fromSecsSinceEpoch(
        sFirstTime + round * sRoundLength + random.below(sRoundLength), Qt::UTC);
}

void changeEntries(ConfStorage &store, Random &random, int round)
{
    for (const char *name : {"Entry.1", "Entry.2", "Entry.preset", "Host.1"}) {
        const QString key = QString::fromLatin1(name);
        const QDateTime time = randomTime(random, round);
        if (!store.mConfValues.contains(key) && random.oneIn(2))
            store.createDynamicConf(key, randomValue<QJsonObject>(random), nullptr);
        else if (store.mConfValues.contains(key) && random.oneIn(3))
            store.removeDynamicConf(key);
        else
            continue;
        if (store.mConfMetas.contains(key))
            store.mConfMetas[key].lastChangeTime = time;
        else
            store.mRemovedDynamicConfs[key] = time;
    }
}

void changeRandomly(ConfStorage &store, Random &random, int round)
{
    const QList<QString> keys = store.mConfValues.keys();
    for (const QString &key : keys) {
        const QDateTime time = randomTime(random, round);
        const int what = random.below(6);
        if (what == 0)
            store.setToDefault(key, false);
        else if (what < 4)
            setRandomly(store, key, random);
        else
            continue;
        store.mConfMetas[key].lastChangeTime = time;
    }
    changeEntries(store, random, round);
}

QByteArray dumpText(const ConfStorage &store, ConfStorage::DumpConfType type)
{
    QByteArray text;
    appendJsonValue(text, store.dumpConf(type));
    return text;
}

QByteArray localText(ConfStorage &store)
{
    store.mLocalSaveFile = sLocal;
    store.mChanged = true;
    store.saveToLocalConfFile();
    return fileText(sLocal);
}

void loadLocal(ConfStorage &store, const QByteArray &text)
{
    writeFile(sLocal, text);
    store.mLocalSaveFile = sLocal;
    store.loadLocalConfFile();
}

/// Returns a path that was not used before: QSettings keeps the content of a file, and may not see
/// that it was changed at once.
QString newGeometryPath()
{
    static int sPaths = 0;
    return QString::number(++sPaths) + sGeometry;
}

QByteArray geometryText(const QRect &geometry)
{
    const QString path = newGeometryPath();
    WindowGeometryFile(path).write(geometry);
    return fileText(path);
}

QRect geometryIn(const QByteArray &text)
{
    const QString path = newGeometryPath();
    writeFile(path, text);
    return WindowGeometryFile(path).read().geometry;
}

struct ConfiguredType
{
    const char *name;
    ConfValue::ConfType type;
};
constexpr ConfiguredType sConfiguredTypes[] = {
    {"Color", ConfValue::TyQColor}, {"Int", ConfValue::TyInt32},
    {"Bool", ConfValue::TyBool},    {"Text", ConfValue::TyQString},
    {"Font", ConfValue::TyQFont},   {"Keys", ConfValue::TyQKeySequence},
};

QByteArray randomConfiguration(Random &random)
{
    QByteArray text = random.oneIn(4) ? "\xef\xbb\xbf{" : "{";
    const auto space = [&] { return random.oneOf<QByteArray>({"", "", " ", "\n", "\t", "\r\n"}); };
    for (const ConfiguredType &member : sConfiguredTypes) {
        if (text.endsWith('}'))
            text += ',';
        // One call in each statement, so that every compiler keeps their order.
        text += space();
        text += QByteArray("\"Page.") + member.name + ".Sub\":";
        text += space();
        text += randomInput(random, member.type);
        text += QByteArray(",\"Page.") + member.name + "\":{\"value\":";
        text += randomInput(random, member.type);
        text += space();
        text += '}';
    }
    text += space();
    return text + '}';
}

/// Returns the local file of a host that has loaded a configuration file.
QByteArray configuredText(const QByteArray &configuration)
{
    writeFile(sConfiguration, configuration);
    ConfStorage *store = ConfStorage::instance();
    struct Variables
    {
        QColor color;
        int number = 0;
        bool flag = false;
        QString text;
        QFont font;
        QKeySequence keys;
    } values, ofSub;
    QByteArray result;
    {
        MtConf::MtConfManage manager;
        const auto declare = [&](Variables &variables, const QString &sub) {
            const QString page = "Page";
            manager.addConfQColor("", &variables.color, page, "Color", sub);
            manager.addConfInt32("", &variables.number, page, "Int", sub);
            manager.addConfBool("", &variables.flag, page, "Bool", sub);
            manager.addConfQString("", &variables.text, page, "Text", sub);
            manager.addConfQFont("", &variables.font, page, "Font", sub);
            manager.addConfQKeySequence("", &variables.keys, page, "Keys", sub);
        };
        declare(values, QString());
        declare(ofSub, "Sub");
        manager.loadFromFile(sConfiguration);
        for (ConfStorage::ConfMeta &meta : store->mConfMetas) {
            if (meta.lastChangeTime.isValid())
                meta.lastChangeTime = QDateTime::fromSecsSinceEpoch(sFirstTime, Qt::UTC);
        }
        result = localText(*store);
    }
    store->clear();
    return result;
}

} // namespace

Files writtenFiles(quint64 seed)
{
    const Run run;
    Random random(seed);
    StoreHost host(declarations());
    changeRandomly(host.store, random, 0);
    Files files;
    files[sLocal] = localText(host.store);
    files[sShared] = dumpText(host.store, ConfStorage::DumpShared);
    files[sChanged] = dumpText(host.store, ConfStorage::DumpChangedOnly);
    files[sTable] = host.store.debugTable().toUtf8();
    files[sConfiguration] = randomConfiguration(random);
    files[sConfigured] = configuredText(files[sConfiguration]);
    const int x = random.between(-4000, 4000), y = random.between(-4000, 4000);
    if (seed % sGeometryPeriod == 0)
        files[sGeometry] = geometryText(QRect(x, y, random.below(4000), 700));
    files[sLog] = run.log();
    return files;
}

Files rewrittenFiles(const Files &files)
{
    const Run run;
    Files rewritten;
    {
        StoreHost host(declarations());
        loadLocal(host.store, files.at(sLocal));
        rewritten[sLocal] = localText(host.store);
        rewritten[sTable] = host.store.debugTable().toUtf8();
    }
    {
        StoreHost host(declarations());
        host.store.loadConf(QString::fromUtf8(files.at(sShared)), ConfStorage::LoadShared);
        rewritten[sShared] = dumpText(host.store, ConfStorage::DumpShared);
    }
    {
        StoreHost host(declarations());
        host.store.loadConf(QString::fromUtf8(files.at(sChanged)), ConfStorage::LoadShared);
        rewritten[sChanged] = dumpText(host.store, ConfStorage::DumpChangedOnly);
    }
    rewritten[sConfigured] = configuredText(files.at(sConfiguration));
    if (files.count(sGeometry))
        rewritten[sGeometry] = geometryText(geometryIn(files.at(sGeometry)));
    rewritten[sLog] = run.log();
    return rewritten;
}

Files mergedFiles(const Files &own, const Files &other, quint64 seed, int round)
{
    const Run run;
    Random random((seed << 32) + static_cast<quint64>(round));
    StoreHost host(declarations());
    loadLocal(host.store, own.count(sLocal) ? own.at(sLocal) : QByteArray());
    if (other.count(sShared))
        host.store.loadConf(QString::fromUtf8(other.at(sShared)), ConfStorage::LoadShared);
    changeRandomly(host.store, random, round);
    Files files;
    files[sLocal] = localText(host.store);
    files[sShared] = dumpText(host.store, ConfStorage::DumpShared);
    files[sTable] = host.store.debugTable().toUtf8();
    files[sLog] = run.log();
    return files;
}

std::vector<Files> exchangedFiles(quint64 seed)
{
    const Files written = writtenFiles(seed);
    const Files first = mergedFiles({}, {}, seed, 1);
    const Files second = mergedFiles({}, first, seed, 2);
    const Files forms = writtenForms(seed);
    return {written, rewrittenFiles(written), first, second, mergedFiles(first, second, seed, 3),
            forms,   rewrittenForms(forms)};
}

QByteArray digestLine(quint64 seed)
{
    QByteArray line = QByteArray::number(seed);
    for (const Files &files : exchangedFiles(seed)) {
        QCryptographicHash hash(QCryptographicHash::Sha1);
        for (const auto &[name, text] : files) {
            hash.addData(name.toUtf8());
            hash.addData(text);
        }
        line += ' ' + hash.result().toHex().left(8);
    }
    return line;
}
