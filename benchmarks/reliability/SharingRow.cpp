#include "PeerRow.h"

#include "sharing/KilledProgram.h"
#include "sharing/SharedMemory.h"

namespace {

constexpr int sCommonKeys = 4;

QString ownKey(int program, int key)
{
    return QStringLiteral("own%1_%2").arg(program).arg(key);
}

QString commonKey(int number)
{
    return QStringLiteral("common%1").arg(number);
}

QStringList allKeys()
{
    QStringList keys;
    for (int program = 0; program < ProgramBoard::sMaxPrograms; ++program) {
        for (int key = 0; key < ProgramBoard::sOwnKeys; ++key)
            keys.append(ownKey(program, key));
    }
    for (int i = 0; i < sCommonKeys; ++i)
        keys.append(commonKey(i));
    return keys;
}

class PeerProgram : public KilledProgram
{
public:
    PeerProgram(const PeerKind &kind, const QString &path, int number, ProgramBoard *board,
                unsigned seed)
        : KilledProgram(number, board, seed), mPeer(kind.create(path, allKeys()))
    {
    }

protected:
    void load() override { mPeer->load(); }
    bool save() override { return mPeer->save(); }
    int ownValue(int program, int key) const override { return mPeer->value(ownKey(program, key)); }
    void setOwnValue(int program, int key, int value) override
    {
        mPeer->setValue(ownKey(program, key), value);
    }
    void changeOthers() override
    {
        for (int i = random(3); i > 0; --i)
            mPeer->setValue(commonKey(random(sCommonKeys)), random(1000000));
    }

private:
    const std::unique_ptr<SettingsPeer> mPeer;
};

PeerCell measureSharing(const PeerKind &kind, const QString &path, int programs, int saves)
{
    KilledProgramsOptions options;
    options.programs = programs;
    options.saves = saves;
    options.kills = saves / 10;
    options.seed = 1;
    const SharedMemory<ProgramBoard> board;
    const int killed = runKilledPrograms(options, board.get(), [&](int number, unsigned seed) {
        return std::make_unique<PeerProgram>(kind, path, number, board.get(), seed);
    });
    PeerProgram(kind, path, 0, board.get(), 0).verify();

    PeerCell cell;
    cell.text = QStringLiteral("%1 of %2 changes lost, %3 kills")
                    .arg(int(board->lost))
                    .arg(int(board->saves))
                    .arg(killed);
    cell.isLoss = board->lost > 0 || board->failures > 0;
    return cell;
}

} // namespace

PeerRow sharingRow(int programs, int saves)
{
    PeerRow row;
    row.title = QStringLiteral("%1 programs change one file, some are killed").arg(programs);
    row.measure = [programs, saves](const PeerKind &kind, const QString &path) {
        return measureSharing(kind, path, programs, saves);
    };
    return row;
}
