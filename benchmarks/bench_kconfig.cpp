#include "BenchmarkSupport.h"
#include "ProgramSettings.h"
#include "benchmarks.h"

#include <KConfig>
#include <KConfigGroup>

#include <memory>

namespace {

/// The groups and the names within them. The groups are looked up once, as in an efficient host.
class Entries
{
public:
    Entries(const QVector<SettingName> &names, KConfig *config)
    {
        for (const SettingName &name : names) {
            mGroups.push_back(KConfigGroup(config, name.className));
            mNames.push_back(name.inner());
        }
    }

    template<class T> T read(int i) const
    {
        return mGroups[static_cast<size_t>(i)].readEntry(mNames[static_cast<size_t>(i)], T());
    }
    template<class T> void write(int i, const T &value)
    {
        mGroups[static_cast<size_t>(i)].writeEntry(mNames[static_cast<size_t>(i)], value);
    }
    int size() const { return static_cast<int>(mNames.size()); }

private:
    std::vector<KConfigGroup> mGroups;
    std::vector<QString> mNames;
};

/// Writes the values of all names to `path`.
template<class T> void writeFile(const QVector<SettingName> &names, const QString &path)
{
    KConfig config(path, KConfig::SimpleConfig);
    Entries entries(names, &config);
    for (int i = 0; i < names.size(); ++i)
        entries.write(i, valueOf<T>(i));
    config.sync();
}

/// A configuration as after a program start: read from a file.
template<class T> class ConfigStore
{
public:
    explicit ConfigStore(const QVector<SettingName> &names)
    {
        const QString path = mFolder.filePath(QStringLiteral("config"));
        writeFile<T>(names, path);
        mConfig = std::make_unique<KConfig>(path, KConfig::SimpleConfig);
        mEntries = std::make_unique<Entries>(names, mConfig.get());
    }

    T read(int i) const { return mEntries->template read<T>(i); }
    void write(int i, const T &value) { mEntries->write(i, value); }

private:
    QTemporaryDir mFolder;
    std::unique_ptr<KConfig> mConfig;
    std::unique_ptr<Entries> mEntries;
};

class ConfigFile
{
public:
    ConfigFile(const QVector<SettingName> &names, const QString &path)
        : mNames(names), mValues(static_cast<size_t>(names.size()))
    {
        mConfig = std::make_unique<KConfig>(path, KConfig::SimpleConfig);
        mEntries = std::make_unique<Entries>(names, mConfig.get());
        for (int i = 0; i < mEntries->size(); ++i)
            mEntries->write(i, i + 1);
        mConfig->sync();
    }

    void forget()
    {
        mEntries.reset();
        mConfig.reset();
    }
    void load(const QString &path)
    {
        mConfig = std::make_unique<KConfig>(path, KConfig::SimpleConfig);
        KConfigGroup group;
        for (int i = 0; i < mNames.size(); ++i) {
            const SettingName &name = mNames.at(i);
            if (i == 0 || name.className != mNames.at(i - 1).className)
                group = mConfig->group(name.className);
            mValues[static_cast<size_t>(i)] = group.readEntry(name.inner(), 0);
        }
    }
    bool isLoaded() const { return mValues.back() == static_cast<int>(mValues.size()); }

    void save(int value)
    {
        mEntries->write(0, value);
        mConfig->sync();
    }

private:
    QVector<SettingName> mNames;
    std::vector<int> mValues;
    std::unique_ptr<KConfig> mConfig;
    std::unique_ptr<Entries> mEntries;
};

/// Hotkeys are usual as texts: the library has no form of its own for them.
template<class T> T readEntry(const KConfigGroup &group, const QString &name, const T &current)
{
    return group.readEntry(name, current);
}
QKeySequence readEntry(const KConfigGroup &group, const QString &name, const QKeySequence &current)
{
    const QString text = group.readEntry(name, QString());
    return text.isNull() ? current : QKeySequence(text, QKeySequence::PortableText);
}

template<class T> void writeEntry(KConfigGroup &group, const QString &name, const T &value)
{
    group.writeEntry(name, value);
}
void writeEntry(KConfigGroup &group, const QString &name, const QKeySequence &value)
{
    group.writeEntry(name, value.toString(QKeySequence::PortableText));
}

/// A program with KConfig.
class ConfigProgram
{
public:
    static void write(const ProgramSettings &settings, const QString &path)
    {
        ConfigProgram program(settings, path);
        program.start();
        for (int i = 0; i < settings.names.size(); ++i)
            program.edit(i, settings.saved);
        program.save();
    }

    ConfigProgram(const ProgramSettings &settings, QString path)
        : mSettings(settings), mVariables(settings.defaults), mPath(std::move(path))
    {
        for (const SettingName &name : settings.names)
            mNames.push_back(name.inner());
    }

    void start()
    {
        mConfig = std::make_unique<KConfig>(mPath, KConfig::SimpleConfig);
        for (size_t i = 0; i < mNames.size(); ++i) {
            const QString &className = mSettings.names.at(static_cast<int>(i)).className;
            if (i == 0 || mGroups.back().name() != className)
                mGroups.push_back(mConfig->group(className));
            mGroupOf.push_back(mGroups.size() - 1);
            const auto readInto = [&](auto &variable) {
                variable = readEntry(mGroups.back(), mNames[i], variable);
            };
            std::visit(readInto, mVariables[i]);
        }
    }
    const std::vector<Variable> &variables() const { return mVariables; }

    Variable read(int i) const
    {
        const auto index = static_cast<size_t>(i);
        return std::visit(
            [&](const auto &variable) -> Variable {
                return readEntry(mGroups[mGroupOf[index]], mNames[index], variable);
            },
            mVariables[index]);
    }
    void edit(int i, const std::vector<Variable> &values)
    {
        const auto index = static_cast<size_t>(i);
        const auto write = [&](const auto &value) {
            writeEntry(mGroups[mGroupOf[index]], mNames[index], value);
        };
        std::visit(write, values[index]);
    }
    void save() { mConfig->sync(); }
    bool isSaved() const { return !mConfig->isDirty(); }

private:
    const ProgramSettings &mSettings;
    std::vector<QString> mNames; // within the groups
    std::vector<Variable> mVariables;
    const QString mPath;
    std::unique_ptr<KConfig> mConfig;
    std::vector<KConfigGroup> mGroups;
    std::vector<size_t> mGroupOf;
};

void configMemory(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("config"));
    writeFile<int>(settingNames(sizeOf(state)), path);
    qint64 bytes = 0;
    for (auto _ : state) {
        const qint64 before = heapBytes();
        const KConfig config(path, KConfig::SimpleConfig);
        bytes = heapBytes() - before;
    }
    countBytes(state, bytes);
}

} // namespace

void addKConfigBenchmarks()
{
    addBenchmark("getInt", "KConfig", benchRead<ConfigStore<int>>);
    addBenchmark("getBool", "KConfig", benchRead<ConfigStore<bool>>);
    addBenchmark("getQString", "KConfig", benchRead<ConfigStore<QString>>);
    addBenchmark("setInt", "KConfig", benchWrite<ConfigStore<int>>);
    addBenchmark("loadLocalFile", "KConfig", benchLoad<ConfigFile>);
    addBenchmark("saveLocalFile", "KConfig", benchSave<ConfigFile>);
    addBenchmark("memory", "KConfig", configMemory);
    addProgramBenchmarks<ConfigProgram>("KConfig");
}
