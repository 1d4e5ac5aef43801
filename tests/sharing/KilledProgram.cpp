#include "KilledProgram.h"

#include <csignal>
#include <cstdio>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

KilledProgram::KilledProgram(int number, ProgramBoard *board, unsigned seed)
    : mNumber(number), mBoard(board), mRandom(seed)
{
}

void KilledProgram::run()
{
    load();
    check();
    while (!mBoard->isDone) {
        const int key = random(ProgramBoard::sOwnKeys);
        const int value = ownValue(mNumber, key) + 1;
        setOwnValue(mNumber, key, value);
        changeOthers();
        if (random(10) == 0)
            load();
        if (!save())
            continue;
        mBoard->acknowledged[mNumber][key] = value;
        ++mBoard->saves;
        check();
    }
}

void KilledProgram::verify()
{
    load();
    for (int program = 0; program < ProgramBoard::sMaxPrograms; ++program)
        checkOwnValues(program);
    checkOthers();
}

int KilledProgram::random(int count)
{
    return std::uniform_int_distribution<int>(0, count - 1)(mRandom);
}

void KilledProgram::fail(const QByteArray &message)
{
    std::fprintf(stderr, "program %d: %s\n", mNumber, message.constData());
    ++mBoard->failures;
}

void KilledProgram::check()
{
    checkOwnValues(mNumber);
    checkOthers();
}

void KilledProgram::checkOwnValues(int program)
{
    for (int key = 0; key < ProgramBoard::sOwnKeys; ++key) {
        const int value = ownValue(program, key);
        if (value >= mBoard->acknowledged[program][key])
            continue;
        ++mBoard->lost;
        mBoard->acknowledged[program][key] = value; // each loss counts once
    }
}

namespace {

pid_t start(int number, unsigned seed, const ProgramFactory &create)
{
    const pid_t child = ::fork();
    if (child != 0)
        return child;
    create(number, seed)->run();
    ::_exit(0);
}

void countFailure(int status, ProgramBoard *board)
{
    std::fprintf(stderr, "a program ended with status %d\n", status);
    ++board->failures;
}

} // namespace

int runKilledPrograms(const KilledProgramsOptions &options, ProgramBoard *board,
                      const ProgramFactory &create)
{
    std::mt19937 random(options.seed);
    std::vector<pid_t> children;
    for (int i = 0; i < options.programs; ++i)
        children.push_back(start(i, unsigned(random()), create));
    int killed = 0;
    while (board->saves < options.saves || killed < options.kills) {
        ::usleep(std::uniform_int_distribution<useconds_t>(1, 60000)(random));
        if (options.kills == 0)
            continue;
        const auto victim = std::uniform_int_distribution<size_t>(0, children.size() - 1)(random);
        int status = 0;
        if (::kill(children[victim], SIGKILL) != 0 || ::waitpid(children[victim], &status, 0) < 0)
            break;
        if (WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL)
            ++killed;
        else
            countFailure(status, board);
        children[victim] = start(int(victim), unsigned(random()), create);
    }
    board->isDone = true;
    for (const pid_t child : children) {
        int status = 0;
        ::waitpid(child, &status, 0);
        if (status != 0)
            countFailure(status, board);
    }
    return killed;
}
