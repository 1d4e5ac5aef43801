#include "PeerRun.h"

#include "sharing/SharedMemory.h"
#include "support/LogCapture.h"

#include <QCoreApplication>

#include <sys/wait.h>
#include <unistd.h>

PeerRun runPeer(const PeerKind &kind, const QString &path, const QStringList &keys,
                const std::function<bool(SettingsPeer &peer)> &program)
{
    Q_ASSERT(keys.size() <= PeerRun::sMaxKeys);
    const SharedMemory<PeerRun> run;
    const pid_t child = ::fork();
    if (child != 0) {
        ::waitpid(child, nullptr, 0);
        return *run;
    }
    {
        int argc = 1;
        char name[] = "program";
        char *argv[] = {name, nullptr};
        const QCoreApplication application(argc, argv);
        const LogCapture log;
        const auto peer = kind.create(path, keys);
        run->result = program(*peer);
        int *value = run->values;
        for (const QString &key : keys)
            *value++ = peer->value(key);
        run->warnings = int(LogCapture::texts(QtWarningMsg).size()
                            + LogCapture::texts(QtCriticalMsg).size());
    }
    ::_exit(0);
}

PeerRun runPeerToRead(const PeerKind &kind, const QString &path, const QStringList &keys)
{
    return runPeer(kind, path, keys, [](SettingsPeer &peer) {
        peer.load();
        return true;
    });
}

PeerRun runPeerToChange(const PeerKind &kind, const QString &path, const QStringList &keys,
                        const QString &changedKey, int value)
{
    return runPeer(kind, path, keys, [&](SettingsPeer &peer) {
        peer.load();
        peer.setValue(changedKey, value);
        return peer.save();
    });
}
