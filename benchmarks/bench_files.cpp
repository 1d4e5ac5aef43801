#include "BenchmarkSupport.h"
#include "benchmarks.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QDateTime>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

struct Numbers
{
    static int valueOf(int i) { return i; }
};

/// Texts beyond ASCII.
struct Texts
{
    static QString valueOf(int i) { return QStringLiteral("B\u00fccher %1").arg(i); }
};

/// A store in which every value has been changed, as by a user over the years, and its local file.
template<class Values> class StoredFile
{
public:
    StoredFile(const QVector<SettingName> &names, const QString &path)
        : mKeys(keysOf(names)), mValues(mKeys.size())
    {
        mStore.mLocalSaveFile = path;
        for (size_t i = 0; i < mKeys.size(); ++i) {
            mStore.reserveConf(mKeys[i], &mValues[i]);
            mStore.set(mKeys[i], Values::valueOf(static_cast<int>(i) + 1));
        }
        mStore.saveToLocalConfFile();
    }

    /// Resets all values and timestamps, so that the file is newer.
    void forget()
    {
        for (ConfStorage::ConfMeta &meta : mStore.mConfMetas) {
            meta.lastChangeTime = QDateTime();
            meta.flags |= ConfStorage::FlagIsDefault;
        }
        std::fill(mValues.begin(), mValues.end(), Values::valueOf(0));
    }
    void load(const QString &path)
    {
        mStore.mLocalSaveFile = path;
        mStore.loadLocalConfFile();
    }
    bool isLoaded() const
    {
        return mValues.back() == Values::valueOf(static_cast<int>(mValues.size()));
    }

    void save(int value)
    {
        mStore.set(mKeys.front(), Values::valueOf(value));
        mStore.saveToLocalConfFile();
    }

    ConfStorage &store() { return mStore; }
    const std::vector<QString> &keys() const { return mKeys; }

private:
    std::vector<QString> mKeys;
    std::vector<decltype(Values::valueOf(0))> mValues;
    ConfStorage mStore;
};

using LocalFile = StoredFile<Numbers>;

/// The same with `SafeSave`.
class SafeLocalFile : public LocalFile
{
public:
    SafeLocalFile(const QVector<SettingName> &names, const QString &path) : LocalFile(names, path)
    {
        store().mFileOptions = ConfStorage::SafeSave;
    }
};

/// The same with a file that other programs may change.
class SharedLocalFile : public LocalFile
{
public:
    SharedLocalFile(const QVector<SettingName> &names, const QString &path) : LocalFile(names, path)
    {
        store().mFileOptions = ConfStorage::SafeSave | ConfStorage::SharedFile;
        store().loadLocalConfFile();
        save(1);
    }
};

/// The same after another program has indented the file, so that Qt's parser must be used.
class IndentedFile : public LocalFile
{
public:
    IndentedFile(const QVector<SettingName> &names, const QString &path) : LocalFile(names, path)
    {
        const QByteArray text = QJsonDocument::fromJson(contentOf(path)).toJson();
        QFile file(path);
        if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            file.write(text);
    }
};

/// The bare cost of loading and saving the same file.
template<class File> class BareFile
{
public:
    BareFile(const QVector<SettingName> &names, const QString &path) : mPath(path)
    {
        const File file(names, path);
        mText = contentOf(path);
        mObject = QJsonDocument::fromJson(mText).object();
    }

    void forget() {}
    void load(const QString &) { mDocument = QJsonDocument::fromJson(mText); }
    bool isLoaded() const { return mDocument.object().size() == mObject.size(); }

    void save(int)
    {
        QFile file(mPath);
        if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            file.write(QJsonDocument(mObject).toJson(QJsonDocument::Compact));
    }

private:
    QString mPath;
    QByteArray mText;
    QJsonObject mObject;
    QJsonDocument mDocument;
};

constexpr int sNewerEvery = 100; // one in a hundred entries is newer in the second copy

/// Returns a second copy of the configuration, in which every hundredth entry is newer.
QString secondCopy(const QString &path)
{
    QJsonObject members = QJsonDocument::fromJson(contentOf(path)).object();
    int i = 0;
    for (auto member = members.begin(); member != members.end(); ++member, ++i) {
        if (i % sNewerEvery == 0) {
            QJsonObject entry = member->toObject();
            entry.insert(QLatin1String("t"), entry.value(QLatin1String("t")).toInt() + 60);
            *member = entry;
        }
    }
    return QString::fromUtf8(QJsonDocument(members).toJson(QJsonDocument::Compact));
}

void mergeCopy(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("local.json"));
    LocalFile file(settingNames(sizeOf(state)), path);
    const QString copy = secondCopy(path);
    const QDateTime saved = file.store().calcLastConfTime();
    for (auto _ : state) {
        file.store().loadConf(copy, ConfStorage::LoadShared);
        state.PauseTiming();
        if (file.store().calcLastConfTime() == saved)
            state.SkipWithError("nothing was merged");
        for (ConfStorage::ConfMeta &meta : file.store().mConfMetas)
            meta.lastChangeTime = std::min(meta.lastChangeTime, saved);
        state.ResumeTiming();
    }
    countEntries(state);
}

void parseCopy(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("local.json"));
    const LocalFile file(settingNames(sizeOf(state)), path);
    const QString copy = secondCopy(path);
    for (auto _ : state)
        benchmark::DoNotOptimize(QJsonDocument::fromJson(copy.toUtf8()));
    countEntries(state);
}

/// Loads a file in which another program has changed one entry.
void loadChangeOfAnother(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("local.json"));
    const QVector<SettingName> names = settingNames(sizeOf(state));
    SharedLocalFile other(names, path);
    SharedLocalFile file(names, path);
    other.store().loadLocalConfFile();
    file.store().loadLocalConfFile(); // the first load compares every entry
    const QString key = other.keys().front();
    int value = 0;
    for (auto _ : state) {
        state.PauseTiming();
        other.save(++value);
        state.ResumeTiming();
        file.store().loadLocalConfFile();
        if (file.store().get<int>(key) != value)
            state.SkipWithError("nothing was loaded");
    }
    countEntries(state);
}

} // namespace

void addFileBenchmarks()
{
    addBenchmark("loadLocalFile", "library", benchLoad<LocalFile>);
    addBenchmark("loadLocalFile", "bare", benchLoad<BareFile<LocalFile>>);
    addBenchmark("loadTexts", "library", benchLoad<StoredFile<Texts>>);
    addBenchmark("loadTexts", "bare", benchLoad<BareFile<StoredFile<Texts>>>);
    addBenchmark("loadIndented", "library", benchLoad<IndentedFile>);
    addBenchmark("loadIndented", "bare", benchLoad<BareFile<IndentedFile>>);
    addBenchmark("saveLocalFile", "library", benchSave<LocalFile>);
    addBenchmark("saveLocalFile", "bare", benchSave<BareFile<LocalFile>>);
    // Compared with a plain save, in wall-clock time, because a safe save waits for the disk.
    addBenchmark("saveSafely", "library", benchSave<SafeLocalFile>)->UseRealTime();
    addBenchmark("saveSafely", "bare", benchSave<LocalFile>)->UseRealTime();
    // Compared with a safe save, and with a load of the whole file.
    addBenchmark("saveShared", "library", benchSave<SharedLocalFile>)->UseRealTime();
    addBenchmark("saveShared", "bare", benchSave<SafeLocalFile>)->UseRealTime();
    addBenchmark("loadChange", "library", loadChangeOfAnother)->UseRealTime();
    addBenchmark("loadChange", "bare", benchLoad<LocalFile>)->UseRealTime();
    addBenchmark("mergeCopy", "library", mergeCopy);
    addBenchmark("mergeCopy", "bare", parseCopy);
}
