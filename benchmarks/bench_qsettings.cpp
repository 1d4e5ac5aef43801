#include "BenchmarkSupport.h"
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

} // namespace

void addQSettingsBenchmarks()
{
    addBenchmark("getInt", "QSettings", benchRead<SettingsStore<int>>);
    addBenchmark("getBool", "QSettings", benchRead<SettingsStore<bool>>);
    addBenchmark("getQString", "QSettings", benchRead<SettingsStore<QString>>);
    addBenchmark("setInt", "QSettings", benchWrite<SettingsStore<int>>);
    addBenchmark("loadLocalFile", "QSettings", benchLoad<SettingsFile>);
    addBenchmark("saveLocalFile", "QSettings", benchSave<SettingsFile>);
}
