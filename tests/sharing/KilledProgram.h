#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <atomic>
#include <functional>
#include <memory>
#include <random>

/// What the programs tell each other, in shared memory.
struct ProgramBoard
{
    static constexpr int sMaxPrograms = 16;
    static constexpr int sOwnKeys = 4;

    std::atomic<bool> isDone;                              ///< tells the programs to end
    std::atomic<int> saves;                                ///< acknowledged ones
    std::atomic<int> acknowledged[sMaxPrograms][sOwnKeys]; ///< the newest saved values
    std::atomic<int> lost;     ///< acknowledged changes that a program or verify() misses
    std::atomic<int> failures; ///< of other checks
};

/// One of several programs that change one file at the same time and may be killed. Each program
/// has settings of its own, which only it changes and which only grow. So an acknowledged change
/// is lost if a smaller value is found. The default values are not negative.
class KilledProgram
{
public:
    KilledProgram(int number, ProgramBoard *board, unsigned seed);
    virtual ~KilledProgram() = default;
    Q_DISABLE_COPY(KilledProgram)

    /// Loads the file, then changes and saves settings until the board says that it is done.
    void run();

    /// Loads the file and checks the acknowledged changes of all programs.
    void verify();

protected:
    /// Loads what is in the file. Changes that are not saved yet should stay.
    virtual void load() = 0;
    /// Saves the changes. Returns whether they are acknowledged.
    virtual bool save() = 0;
    virtual int ownValue(int program, int key) const = 0;
    virtual void setOwnValue(int program, int key, int value) = 0;

    /// Changes further settings before a save.
    virtual void changeOthers() {}
    /// Checks more than the own settings, after each load and save.
    virtual void checkOthers() {}

    /// Returns a number from 0 to `count` - 1.
    int random(int count);
    /// Prints the message and counts it on the board.
    void fail(const QByteArray &message);

private:
    void check();
    void checkOwnValues(int program);

    const int mNumber;
    ProgramBoard *const mBoard;
    std::mt19937 mRandom;
};

/// How many programs run, and for how long.
struct KilledProgramsOptions
{
    int programs;
    int saves; ///< so many acknowledged saves, at least
    /// So many programs are killed and started again, at least, at random instants until the end.
    /// None is killed if it is 0.
    int kills;
    unsigned seed;
};

using ProgramFactory = std::function<std::unique_ptr<KilledProgram>(int number, unsigned seed)>;

/// Runs each program in a process of its own. Returns how many were killed. Counts it on the board
/// if a program ends otherwise than with 0.
int runKilledPrograms(const KilledProgramsOptions &options, ProgramBoard *board,
                      const ProgramFactory &create);
