/// Lets several processes change one local file at random, kills some of them at random instants,
/// and checks that no acknowledged change is lost and no old value comes back.
///
///     malto-sharing PROCESSES SAVES [kill] [SEED]
///
/// The file is in the current folder. Exits with 1 if a check fails.

#include "KilledProgram.h"
#include "SharedMemory.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QDebug>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstdio>
#include <map>
#include <memory>
#include <random>
#include <unistd.h>
#include <vector>

namespace {

constexpr int sCommonKeys = 4;
constexpr int sDynamicKeys = 4;

QString path()
{
    return QStringLiteral("shared.json");
}

/// One of the programs.
class Program : public KilledProgram
{
public:
    Program(int number, ProgramBoard *board, unsigned seed) : KilledProgram(number, board, seed)
    {
        mStore.useRobustFiles();
        mStore.mLocalSaveFile = path();
        for (int program = 0; program < ProgramBoard::sMaxPrograms; ++program) {
            for (int key = 0; key < ProgramBoard::sOwnKeys; ++key)
                mStore.reserveConf(ownKey(program, key), &mOwn[program][key]);
        }
        for (int i = 0; i < sCommonKeys; ++i)
            mStore.reserveConf(commonKey(i), &mCommon[i]);
        mClass.prefix = QStringLiteral("list.");
        mClass.creator = [this](const QString &key, const QJsonValue *value) {
            mEntries[key] = std::make_unique<int>(value->toInt());
            mStore.reserveConf(key, mEntries[key].get());
        };
        mClass.remover = [this](const QString &key) { mEntries.erase(key); };
        mStore.mDynamicConfClasses = {&mClass};
    }

    /// Returns everything that a user of this program sees.
    QByteArray state()
    {
        verify();
        return QJsonDocument(mStore.dumpConf(ConfStorage::DumpLocal)).toJson();
    }

protected:
    void load() override { mStore.loadLocalConfFile(); }
    bool save() override
    {
        mStore.saveToLocalConfFile();
        return !mStore.mChanged;
    }
    int ownValue(int program, int key) const override { return mOwn[program][key]; }
    void setOwnValue(int program, int key, int value) override
    {
        mStore.set(ownKey(program, key), value);
    }

    void changeOthers() override
    {
        for (int i = random(3); i > 0; --i)
            mStore.set(commonKey(random(sCommonKeys)), random(1000000));
        if (random(3) == 0)
            changeDynamic(QStringLiteral("list.%1").arg(random(sDynamicKeys)));
        if (random(10) == 0)
            mStore.setToDefault(commonKey(random(sCommonKeys)), true);
    }

    /// Checks that no timestamp goes back.
    void checkOthers() override
    {
        std::map<QString, qint64> times;
        for (auto meta = mStore.mConfMetas.cbegin(); meta != mStore.mConfMetas.cend(); ++meta) {
            if (meta->lastChangeTime.isValid())
                times[meta.key()] = meta->lastChangeTime.toSecsSinceEpoch();
        }
        const auto &removed = mStore.mRemovedDynamicConfs;
        for (auto it = removed.cbegin(); it != removed.cend(); ++it)
            times[it.key()] = it->toSecsSinceEpoch();
        for (const auto &[key, time] : mTimes) {
            if (times[key] < time)
                fail("old value came back: " + key.toUtf8());
        }
        mTimes = times;
    }

private:
    static QString ownKey(int program, int key)
    {
        return QStringLiteral("own.%1.%2").arg(program).arg(key);
    }
    static QString commonKey(int number) { return QStringLiteral("common.%1").arg(number); }

    void changeDynamic(const QString &key)
    {
        if (!mEntries.count(key))
            mStore.createDynamicConf(key, random(1000), nullptr);
        else if (random(2) == 0)
            mStore.removeDynamicConf(key);
        else
            mStore.set(key, random(1000));
    }

    int mOwn[ProgramBoard::sMaxPrograms][ProgramBoard::sOwnKeys] = {};
    int mCommon[sCommonKeys] = {};
    std::map<QString, std::unique_ptr<int>> mEntries;
    std::map<QString, qint64> mTimes;
    ConfStorage::DynamicConfClass mClass;
    ConfStorage mStore;
};

void quiet(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtCriticalMsg || type == QtFatalMsg)
        std::fprintf(stderr, "%d: %s\n", int(::getpid()), qPrintable(message));
}

} // namespace

int main(int argc, char **argv)
{
    const std::vector<QByteArray> arguments(argv + 1, argv + argc);
    if (arguments.size() < 2) {
        std::fprintf(stderr, "usage: malto-sharing PROCESSES SAVES [kill] [SEED]\n");
        return 2;
    }
    KilledProgramsOptions options;
    options.programs = std::clamp(arguments[0].toInt(), 1, ProgramBoard::sMaxPrograms);
    options.saves = arguments[1].toInt();
    options.kills = arguments.size() > 2 && arguments[2] == "kill" ? 1 : 0;
    options.seed = arguments.size() > 3 ? arguments[3].toUInt() : std::random_device()();
    qInstallMessageHandler(quiet);
    QFile::remove(path());

    const SharedMemory<ProgramBoard> board;
    const int killed = runKilledPrograms(options, board.get(), [&](int number, unsigned seed) {
        return std::make_unique<Program>(number, board.get(), seed);
    });
    Program first(0, board.get(), 0);
    Program second(1, board.get(), 0);
    if (first.state() != second.state())
        ++board->failures;
    std::printf(
        "%d processes, %d acknowledged saves, %d killed, %d lost, %d other failures, seed %u\n",
        options.programs, int(board->saves), killed, int(board->lost), int(board->failures),
        options.seed);
    return board->lost == 0 && board->failures == 0 ? 0 : 1;
}
