/// Lets several processes change one local file at random, kills some of them at random instants,
/// and checks that no acknowledged change is lost and no old value comes back.
///
///     malto-sharing PROCESSES SAVES [kill] [SEED]
///
/// The file is in the current folder. Exits with 1 if a check fails.

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QDebug>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <memory>
#include <random>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr int sMaxProcesses = 16;
constexpr int sCommonKeys = 4;
constexpr int sDynamicKeys = 4;

/// What the processes tell each other, in shared memory: it survives a process that is killed.
struct Board
{
    std::atomic<int> saves;                       // acknowledged ones
    std::atomic<int> acknowledged[sMaxProcesses]; // the newest saved value of each own key
    std::atomic<int> failures;
};

QString path()
{
    return QStringLiteral("shared.json");
}

/// One of the programs.
class Program
{
public:
    Program(int number, Board *board, unsigned seed) : mNumber(number), mBoard(board), mRandom(seed)
    {
        mStore.useRobustFiles();
        mStore.mLocalSaveFile = path();
        for (int i = 0; i < sMaxProcesses; ++i)
            mStore.reserveConf(ownKey(i), &mOwn[i]);
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

    void run(int saves)
    {
        mStore.loadLocalConfFile();
        check();
        while (mBoard->saves < saves) {
            change();
            const int own = mOwn[mNumber];
            mStore.saveToLocalConfFile();
            if (mStore.mChanged)
                continue; // not acknowledged: the lock could not be taken
            if (own != mOwn[mNumber])
                fail("own setting changed by others");
            mBoard->acknowledged[mNumber] = own;
            ++mBoard->saves;
            check();
        }
    }

    /// Returns everything that a user of this program sees.
    QByteArray state()
    {
        mStore.loadLocalConfFile();
        check();
        for (int i = 0; i < sMaxProcesses; ++i) {
            if (mOwn[i] < mBoard->acknowledged[i])
                fail("acknowledged change lost");
        }
        return QJsonDocument(mStore.dumpConf(ConfStorage::DumpLocal)).toJson();
    }

private:
    static QString ownKey(int number) { return QStringLiteral("own.%1").arg(number); }
    static QString commonKey(int number) { return QStringLiteral("common.%1").arg(number); }

    int random(int count) { return std::uniform_int_distribution<int>(0, count - 1)(mRandom); }

    void change()
    {
        mStore.set(ownKey(mNumber), mOwn[mNumber] + 1);
        for (int i = random(3); i > 0; --i)
            mStore.set(commonKey(random(sCommonKeys)), random(1000000));
        if (random(3) == 0)
            changeDynamic(QStringLiteral("list.%1").arg(random(sDynamicKeys)));
        if (random(10) == 0)
            mStore.setToDefault(commonKey(random(sCommonKeys)), true);
        if (random(10) == 0)
            mStore.loadLocalConfFile();
    }

    void changeDynamic(const QString &key)
    {
        if (!mEntries.count(key))
            mStore.createDynamicConf(key, random(1000), nullptr);
        else if (random(2) == 0)
            mStore.removeDynamicConf(key);
        else
            mStore.set(key, random(1000));
    }

    /// Checks that no timestamp goes back.
    void check()
    {
        if (mOwn[mNumber] < mBoard->acknowledged[mNumber])
            fail("acknowledged change lost");
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

    void fail(const QByteArray &message)
    {
        std::fprintf(stderr, "program %d: %s\n", mNumber, message.constData());
        ++mBoard->failures;
    }

    const int mNumber;
    Board *const mBoard;
    std::mt19937 mRandom;
    int mOwn[sMaxProcesses] = {};
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

pid_t start(int number, Board *board, int saves, unsigned seed)
{
    const pid_t child = ::fork();
    if (child != 0)
        return child;
    Program(number, board, seed).run(saves);
    ::_exit(0);
}

/// Runs all processes until `saves` saves are acknowledged. Returns how many were killed.
int runAll(Board *board, int processes, int saves, bool kills, std::mt19937 &random)
{
    std::vector<pid_t> children;
    for (int i = 0; i < processes; ++i)
        children.push_back(start(i, board, saves, unsigned(random())));
    int killed = 0;
    while (kills && board->saves < saves) {
        ::usleep(std::uniform_int_distribution<useconds_t>(1, 60000)(random));
        const auto victim = std::uniform_int_distribution<size_t>(0, children.size() - 1)(random);
        int status = 0;
        if (::kill(children[victim], SIGKILL) != 0 || ::waitpid(children[victim], &status, 0) < 0)
            break;
        killed += WIFSIGNALED(status) ? 1 : 0;
        children[victim] = start(int(victim), board, saves, unsigned(random()));
    }
    for (const pid_t child : children) {
        int status = 0;
        ::waitpid(child, &status, 0);
        if (status != 0) {
            std::fprintf(stderr, "a program ended with status %d\n", status);
            ++board->failures;
        }
    }
    return killed;
}

} // namespace

int main(int argc, char **argv)
{
    const std::vector<QByteArray> arguments(argv + 1, argv + argc);
    if (arguments.size() < 2) {
        std::fprintf(stderr, "usage: malto-sharing PROCESSES SAVES [kill] [SEED]\n");
        return 2;
    }
    const int processes = std::clamp(arguments[0].toInt(), 1, sMaxProcesses);
    const int saves = arguments[1].toInt();
    const bool kills = arguments.size() > 2 && arguments[2] == "kill";
    const unsigned seed = arguments.size() > 3 ? arguments[3].toUInt() : std::random_device()();

    void *memory = ::mmap(nullptr, sizeof(Board), PROT_READ | PROT_WRITE,
                          MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED)
        return 2;
    Board *board = new (memory) Board{};
    qInstallMessageHandler(quiet);
    QFile::remove(path());

    std::mt19937 random(seed);
    const int killed = runAll(board, processes, saves, kills, random);
    Program first(0, board, 0);
    Program second(1, board, 0);
    if (first.state() != second.state())
        ++board->failures;
    std::printf("%d processes, %d acknowledged saves, %d killed, %d failures, seed %u\n", processes,
                int(board->saves), killed, int(board->failures), seed);
    return board->failures == 0 ? 0 : 1;
}
