#include "ProgramSettings.h"
#include "benchmarks.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>

namespace {

/// A program with this library.
class StoreProgram
{
public:
    static void write(const ProgramSettings &settings, const QString &path)
    {
        StoreProgram program(settings, path);
        program.start();
        for (int i = 0; i < settings.names.size(); ++i)
            program.edit(i, settings.saved);
        program.save();
    }

    StoreProgram(const ProgramSettings &settings, const QString &path)
        : mKeys(keysOf(settings.names)), mVariables(settings.defaults)
    {
        mStore.mLocalSaveFile = path;
    }

    void start()
    {
        for (size_t i = 0; i < mKeys.size(); ++i) {
            const auto reserve = [&](auto &variable) { mStore.reserveConf(mKeys[i], &variable); };
            std::visit(reserve, mVariables[i]);
        }
        mStore.loadLocalConfFile();
    }
    const std::vector<Variable> &variables() const { return mVariables; }

    Variable read(int i) const
    {
        const auto index = static_cast<size_t>(i);
        return std::visit(
            [&](const auto &variable) -> Variable {
                return mStore.get<std::decay_t<decltype(variable)>>(mKeys[index]);
            },
            mVariables[index]);
    }
    void edit(int i, const std::vector<Variable> &values)
    {
        const auto index = static_cast<size_t>(i);
        std::visit([&](const auto &value) { mStore.set(mKeys[index], value); }, values[index]);
    }
    void save() { mStore.saveToLocalConfFile(); }
    bool isSaved() const { return !mStore.mChanged; }

private:
    const std::vector<QString> mKeys;
    std::vector<Variable> mVariables;
    ConfStorage mStore;
};

/// The least that the same work costs: an entry in each map, and the file read and its values
/// parsed, with nothing searched in the file and nothing checked.
class BareProgram
{
public:
    static void write(const ProgramSettings &settings, const QString &path)
    {
        StoreProgram::write(settings, path);
    }

    BareProgram(const ProgramSettings &settings, const QString &path)
        : mKeys(keysOf(settings.names)), mVariables(settings.defaults), mFile(path)
    {
        for (const Variable &value : settings.saved) {
            const auto jsonOf = [](const auto &saved) {
                return ConfValue::owned(saved).toJsonValue();
            };
            mJson.push_back(std::visit(jsonOf, value));
        }
        if (mFile.open(QIODevice::ReadWrite))
            mObject = QJsonDocument::fromJson(mFile.readAll()).object();
    }

    void start()
    {
        mFile.seek(0);
        mText = mFile.readAll();
        for (size_t i = 0; i < mKeys.size(); ++i) {
            const auto insert = [&](auto &variable) {
                mValues.insert(mKeys[i], ConfValue::bound(&variable));
                ConfStorage::ConfMeta meta;
                meta.defaultValue = ConfValue::owned(variable);
                mMetas.insert(mKeys[i], meta);
                parse(mJson[i], &variable);
            };
            std::visit(insert, mVariables[i]);
        }
    }
    const std::vector<Variable> &variables() const { return mVariables; }

    Variable read(int i) const
    {
        const auto index = static_cast<size_t>(i);
        return std::visit(
            [&](const auto &variable) -> Variable {
                return mValues.constFind(mKeys[index])->get<std::decay_t<decltype(variable)>>();
            },
            mVariables[index]);
    }
    void edit(int i, const std::vector<Variable> &values)
    {
        const auto index = static_cast<size_t>(i);
        std::visit([&](const auto &value) { mValues.find(mKeys[index])->set(value); },
                   values[index]);
        mMetas.find(mKeys[index])->lastChangeTime = QDateTime::currentDateTimeUtc();
    }
    void save()
    {
        mFile.resize(0);
        mFile.seek(0);
        mFile.write(QJsonDocument(mObject).toJson(QJsonDocument::Compact));
        mFile.flush();
    }
    bool isSaved() const { return mFile.size() > 0; }

private:
    static void parse(const QJsonValue &json, int *number) { *number = json.toInt(); }
    static void parse(const QJsonValue &json, bool *flag) { *flag = json.toBool(); }
    static void parse(const QJsonValue &json, QString *text) { *text = json.toString(); }
    static void parse(const QJsonValue &json, QColor *color)
    {
        *color = QColor::fromRgba(json.toString().toUInt(nullptr, 16));
    }
    static void parse(const QJsonValue &json, QFont *font) { font->fromString(json.toString()); }
    static void parse(const QJsonValue &json, QKeySequence *keys)
    {
        *keys = QKeySequence::fromString(json.toString(), QKeySequence::PortableText);
    }

    const std::vector<QString> mKeys;
    std::vector<QJsonValue> mJson; // the values in the file
    std::vector<Variable> mVariables;
    QFile mFile;
    QByteArray mText;
    QJsonObject mObject;
    QMap<QString, ConfValue> mValues;
    QMap<QString, ConfStorage::ConfMeta> mMetas;
};

} // namespace

void addProgramBenchmarks()
{
    addProgramBenchmarks<StoreProgram>("library");
    addProgramBenchmarks<BareProgram>("bare");
}
