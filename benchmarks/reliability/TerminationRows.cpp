#include "PeerRow.h"
#include "PeerRun.h"

#include <QCoreApplication>
#include <QTimer>

#include <csignal>

namespace {

enum class SignalHandling { Default, QuitEventLoop };

volatile std::sig_atomic_t sIsTerminated = 0;

void handleSignal(int)
{
    sIsTerminated = 1;
}

/// Changes a setting in the event loop, does not save it, and is terminated after `delay`
/// milliseconds.
bool changeAndTerminate(SettingsPeer &peer, int delay, SignalHandling handling)
{
    QTimer poll;
    if (handling == SignalHandling::QuitEventLoop) {
        std::signal(SIGTERM, handleSignal);
        QObject::connect(&poll, &QTimer::timeout, [] {
            if (sIsTerminated)
                QCoreApplication::quit();
        });
        poll.start(10);
    }
    peer.load();
    QTimer::singleShot(0, [&] {
        peer.setValue(QStringLiteral("delay"), 7);
        QTimer::singleShot(delay, [] { std::raise(SIGTERM); });
    });
    return QCoreApplication::exec() == 0;
}

PeerCell measureTermination(const PeerKind &kind, const QString &path, int delay,
                            SignalHandling handling)
{
    const QStringList keys = {QStringLiteral("delay")};
    runPeer(kind, path, keys,
            [&](SettingsPeer &peer) { return changeAndTerminate(peer, delay, handling); });
    const PeerRun run = runPeerToRead(kind, path, keys);
    const bool isSaved = run.values[0] == 7;
    return {isSaved ? QStringLiteral("saved") : QStringLiteral("lost"), !isSaved};
}

PeerRow terminationRow(const QString &title, int delay, SignalHandling handling)
{
    PeerRow row;
    row.title = title;
    row.measure = [delay, handling](const PeerKind &kind, const QString &path) {
        return measureTermination(kind, path, delay, handling);
    };
    return row;
}

} // namespace

std::vector<PeerRow> terminationRows()
{
    std::vector<PeerRow> rows = {
        terminationRow(QStringLiteral("SIGTERM two seconds after a change"), 2000,
                       SignalHandling::Default),
        terminationRow(
            QStringLiteral("SIGTERM 0.1 s after a change, the program quits its event loop"), 100,
            SignalHandling::QuitEventLoop),
        terminationRow(QStringLiteral("SIGTERM 0.1 s after a change, not handled"), 100,
                       SignalHandling::Default),
    };
    rows.back().isPromised = false; // shorter than the quiet time
    return rows;
}
