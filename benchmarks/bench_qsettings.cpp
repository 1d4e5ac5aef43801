#include "BenchmarkSupport.h"
#include "ProgramSettings.h"
#include "benchmarks.h"

#include <QSettings>

#include <memory>

namespace {

/// Returns the keys in the form that is usual with QSettings: the class is a group of the file.
std::vector<QString> groupedKeys(const QVector<SettingName> &names)
{
    std::vector<QString> keys;
    for (const SettingName &name : names)
        keys.push_back(name.className + QLatin1Char('/') + name.inner());
    return keys;
}

/// Settings as after a program start: read from a file, so that QSettings has them as strings.
template<class T> class SettingsStore
{
public:
    explicit SettingsStore(const QVector<SettingName> &names) : mKeys(groupedKeys(names))
    {
        const QString written = mFolder.filePath(QStringLiteral("written.ini"));
        {
            QSettings settings(written, QSettings::IniFormat);
            for (int i = 0; i < names.size(); ++i)
                settings.setValue(key(i), valueOf<T>(i));
        }
        const QString path = mFolder.filePath(QStringLiteral("settings.ini"));
        QFile::copy(written, path);
        mSettings = std::make_unique<QSettings>(path, QSettings::IniFormat);
    }

    T read(int i) const { return mSettings->value(key(i)).template value<T>(); }
    void write(int i, const T &value) { mSettings->setValue(key(i), value); }

private:
    const QString &key(int i) const { return mKeys[static_cast<size_t>(i)]; }

    std::vector<QString> mKeys;
    QTemporaryDir mFolder;
    std::unique_ptr<QSettings> mSettings;
};

class SettingsFile
{
public:
    SettingsFile(const QVector<SettingName> &names, const QString &path)
        : mKeys(groupedKeys(names)), mValues(mKeys.size()),
          mSettings(std::make_unique<QSettings>(path, QSettings::IniFormat))
    {
        for (size_t i = 0; i < mKeys.size(); ++i)
            mSettings->setValue(mKeys[i], static_cast<int>(i) + 1);
        mSettings->sync();
    }

    void forget() { mSettings.reset(); }
    void load(const QString &path)
    {
        mSettings = std::make_unique<QSettings>(path, QSettings::IniFormat);
        for (size_t i = 0; i < mKeys.size(); ++i)
            mValues[i] = mSettings->value(mKeys[i]).toInt();
    }
    bool isLoaded() const { return mValues.back() == static_cast<int>(mValues.size()); }

    void save(int value)
    {
        mSettings->setValue(mKeys.front(), value);
        mSettings->sync();
    }

private:
    std::vector<QString> mKeys;
    std::vector<int> mValues;
    std::unique_ptr<QSettings> mSettings;
};

/// A program with QSettings.
class SettingsProgram
{
public:
    static void write(const ProgramSettings &settings, const QString &path)
    {
        SettingsProgram program(settings, path);
        program.start();
        for (int i = 0; i < settings.names.size(); ++i)
            program.edit(i, settings.saved);
        program.save();
    }

    SettingsProgram(const ProgramSettings &settings, QString path)
        : mKeys(groupedKeys(settings.names)), mVariables(settings.defaults), mPath(std::move(path))
    {
    }

    void start()
    {
        mSettings = std::make_unique<QSettings>(mPath, QSettings::IniFormat);
        for (size_t i = 0; i < mKeys.size(); ++i) {
            const auto readInto = [&](auto &variable) { readValue(mKeys[i], &variable); };
            std::visit(readInto, mVariables[i]);
        }
    }
    const std::vector<Variable> &variables() const { return mVariables; }

    Variable read(int i) const
    {
        const auto index = static_cast<size_t>(i);
        Variable value = mVariables[index];
        std::visit([&](auto &variable) { readValue(mKeys[index], &variable); }, value);
        return value;
    }
    void edit(int i, const std::vector<Variable> &values)
    {
        const auto index = static_cast<size_t>(i);
        std::visit([&](const auto &value) { mSettings->setValue(mKeys[index], value); },
                   values[index]);
    }
    void save() { mSettings->sync(); }
    bool isSaved() const { return mSettings->status() == QSettings::NoError; }

private:
    template<class T> void readValue(const QString &key, T *variable) const
    {
        const QVariant value = mSettings->value(key);
        if (value.isValid())
            *variable = value.value<T>();
    }

    const std::vector<QString> mKeys;
    std::vector<Variable> mVariables;
    const QString mPath;
    std::unique_ptr<QSettings> mSettings;
};

} // namespace

void addQSettingsBenchmarks()
{
    addBenchmark("getInt", "QSettings", benchRead<SettingsStore<int>>);
    addBenchmark("getBool", "QSettings", benchRead<SettingsStore<bool>>);
    addBenchmark("getQString", "QSettings", benchRead<SettingsStore<QString>>);
    addBenchmark("setInt", "QSettings", benchWrite<SettingsStore<int>>);
    addBenchmark("loadLocalFile", "QSettings", benchLoad<SettingsFile>);
    addBenchmark("saveLocalFile", "QSettings", benchSave<SettingsFile>);
    addProgramBenchmarks<SettingsProgram>("QSettings");
}
