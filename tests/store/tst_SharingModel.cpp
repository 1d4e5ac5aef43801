#include "SharingProgram.h"

#include "support/TestMain.h"

#include <QDir>
#include <QTemporaryDir>

#include <rapidcheck.h>

#include <vector>

// Each test runs many random histories. A failure prints the shortest failing history found and a
// value of the environment variable RC_PARAMS that reproduces it.

namespace {

constexpr size_t sPrograms = 3;

/// One step of a history.
struct Step
{
    enum Kind {
        Set,
        Restore,
        CreateOrRemove,
        Assign,
        Presets,
        Export,
        Import,
        Save,
        Load,
        Restart,
        Delete
    };

    Kind kind = Set;
    size_t program = 0;
    size_t key = 0;  // index into `sSharingKeys`
    int value = 0;   // value to set; for an import, the index of an earlier export
    qint64 time = 0; // of the program's clock, in seconds
};

std::ostream &operator<<(std::ostream &out, const Step &step)
{
    static const char *const sNames[] = {"set",     "restore", "create or remove", "assign",
                                         "presets", "export",  "import",           "save",
                                         "load",    "restart", "delete file"};
    return out << sNames[step.kind] << " in program " << step.program << ' '
               << sSharingKeys[step.key].name << " value " << step.value << " at " << step.time;
}

rc::Gen<Step> anyStep()
{
    const auto kind = rc::gen::weightedElement<Step::Kind>({{8, Step::Set},
                                                            {3, Step::Restore},
                                                            {5, Step::CreateOrRemove},
                                                            {1, Step::Assign},
                                                            {1, Step::Presets},
                                                            {1, Step::Export},
                                                            {2, Step::Import},
                                                            {8, Step::Save},
                                                            {4, Step::Load},
                                                            {1, Step::Restart},
                                                            {1, Step::Delete}});
    // Few seconds, so that many are equal.
    const auto time = rc::gen::weightedOneOf<qint64>(
        {{6, rc::gen::inRange<qint64>(1, 5)},
         {1, rc::gen::inRange<qint64>(sSharingFuture, sSharingFuture + 3)}});
    return rc::gen::build<Step>(
        rc::gen::set(&Step::kind, kind),
        rc::gen::set(&Step::program, rc::gen::inRange<size_t>(0, sPrograms)),
        rc::gen::set(&Step::key, rc::gen::inRange<size_t>(0, sSharingKeys.size())),
        rc::gen::set(&Step::value, rc::gen::inRange(0, 5)), rc::gen::set(&Step::time, time));
}

/// Programs that share a file, each with the model whose state it must match.
class World
{
public:
    World()
    {
        for (size_t i = 0; i < sPrograms; ++i)
            mPrograms.push_back(std::make_unique<SharingProgram>(mPath));
    }

    void apply(const Step &step)
    {
        SharingProgram &program = *mPrograms[step.program];
        SharingModel &model = mModels[step.program];
        const SharingKey &key = sSharingKeys[step.key];
        const bool isPresent = model.isPresent(step.key);
        switch (step.kind) {
        case Step::Set:
            if (isPresent) {
                program.set(step.key, step.value, step.time);
                model.set(step.key, step.value, step.time);
            }
            break;
        case Step::Restore:
            if (key.defaultValue) {
                program.restore(step.key, step.time);
                model.restore(step.key, step.time);
            }
            break;
        case Step::CreateOrRemove:
            if (key.dynamic && isPresent) {
                program.remove(step.key, step.time);
                model.remove(step.key, step.time);
            } else if (key.dynamic) {
                program.create(step.key, step.value, step.time);
                model.set(step.key, step.value, step.time);
            }
            break;
        case Step::Assign:
            if (isPresent) {
                program.assign(step.key, step.value);
                model.assign(step.key, step.value);
            }
            break;
        case Step::Presets:
            program.loadPresets();
            model.loadPresets();
            break;
        case Step::Export: mExports.push_back({program.dump(), model.entries()}); break;
        case Step::Import:
            if (!mExports.empty()) {
                const Exported &exported = mExports[size_t(step.value) % mExports.size()];
                program.import(exported.dump);
                model.import(exported.entries);
            }
            break;
        case Step::Save: save(step.program); break;
        case Step::Load: load(step.program); break;
        case Step::Restart:
            program.start();
            model = SharingModel();
            if (step.value > 0)
                load(step.program); // otherwise the next save is the first access of the file
            break;
        case Step::Delete:
            QFile::remove(mPath);
            mFile = {};
            mNewest = {};
            mIsDeleted = true;
            break;
        }
        check(step.program);
    }

    void save(size_t index)
    {
        mPrograms[index]->save();
        mModels[index].save(&mFile);
        RC_ASSERT(!mPrograms[index]->hasChanges());
    }
    void load(size_t index)
    {
        mPrograms[index]->load();
        mModels[index].load(mFile);
        RC_ASSERT(mPrograms[index]->hasChanges() == mModels[index].hasChanges());
    }

    void check(size_t index)
    {
        RC_ASSERT(mPrograms[index]->state() == mModels[index].state());
        const SharingEntries entries = SharingProgram::entriesOf(mPath);
        for (size_t key = 0; key < sSharingKeys.size(); ++key) {
            RC_ASSERT(entries[key] == mFile[key]);
            // The model must not say so, either.
            RC_ASSERT(!mNewest[key] || (entries[key] && entries[key]->time >= *mNewest[key]));
            if (entries[key])
                mNewest[key] = entries[key]->time;
        }
    }

    /// Checks that all programs have the state of the file, except for assigned variables.
    void checkEquality()
    {
        const SharingEntries file = SharingProgram::entriesOf(mPath);
        for (size_t index = 0; index < sPrograms; ++index) {
            const SharingState state = mPrograms[index]->state();
            for (size_t key = 0; key < sSharingKeys.size(); ++key) {
                if (!file[key] && mIsDeleted)
                    continue; // whoever saves a change next writes the entry again
                const SharingCell expected = cellOf(key, file[key]);
                RC_ASSERT(state[key].present == expected.present);
                RC_ASSERT(state[key].time == expected.time);
                RC_ASSERT(state[key].value == expected.value || mModels[index].isAssigned(key));
            }
        }
    }

private:
    struct Exported
    {
        QJsonObject dump;
        SharingEntries entries;
    };

    static SharingCell cellOf(size_t key, const std::optional<SharingEntry> &entry)
    {
        const int defaultValue = sSharingKeys[key].defaultValue.value_or(0);
        if (!entry)
            return {sSharingKeys[key].defaultValue.has_value(), defaultValue, {}};
        switch (entry->kind) {
        case SharingEntry::Value: return {true, entry->value, entry->time};
        case SharingEntry::Default: return {true, defaultValue, entry->time};
        case SharingEntry::Removal: break;
        }
        return {false, 0, entry->time};
    }

    // In memory where that is possible: each save waits for the disk several times.
    const QTemporaryDir mFolder{QDir("/dev/shm").exists() ? QString("/dev/shm/malto-XXXXXX")
                                                          : QDir::tempPath() + "/malto-XXXXXX"};
    const QString mPath = mFolder.filePath("settings.json");
    std::vector<std::unique_ptr<SharingProgram>> mPrograms;
    std::array<SharingModel, sPrograms> mModels;
    SharingEntries mFile{};
    bool mIsDeleted = false;
    std::array<std::optional<qint64>, sSharingKeys.size()> mNewest{};
    std::vector<Exported> mExports;
};

} // namespace

/// Programs that share a file, and change, save and load it at random.
class tst_SharingModel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void fileAndProgramsMatchTheModel();
};

void tst_SharingModel::fileAndProgramsMatchTheModel()
{
    QVERIFY(rc::check([] {
        World world;
        for (const Step &step : *rc::gen::container<std::vector<Step>>(anyStep()))
            world.apply(step);
        for (size_t index = 0; index < sPrograms; ++index)
            world.save(index);
        for (size_t index = 0; index < sPrograms; ++index) {
            world.load(index);
            world.check(index);
        }
        world.checkEquality();
    }));
}

int main(int argc, char **argv)
{
    const QByteArray parameters = qgetenv("RC_PARAMS");
    if (!parameters.contains("max_success"))
        qputenv("RC_PARAMS", "max_success=1000 " + parameters);
    return runTest<tst_SharingModel>(argc, argv);
}

#include "tst_SharingModel.moc"
