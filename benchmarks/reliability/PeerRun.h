#pragma once

#include "SettingsPeer.h"

/// What one run of a program saw.
struct PeerRun
{
    static constexpr int sMaxKeys = 12;

    int values[sMaxKeys]; ///< at the end, in the order of the declared keys
    int warnings;         ///< messages on Qt's log, from warnings on
    bool result;          ///< what the program returned; false if a signal has ended it
};

/// Starts a program with at most `sMaxKeys` settings in a process of its own, as peers keep state
/// in their process, and waits until it ends. The program has an application object.
PeerRun runPeer(const PeerKind &kind, const QString &path, const QStringList &keys,
                const std::function<bool(SettingsPeer &peer)> &program);

/// Starts a program that only loads the file.
PeerRun runPeerToRead(const PeerKind &kind, const QString &path, const QStringList &keys);

/// Starts a program that loads the file, changes one setting, and returns whether it is saved.
PeerRun runPeerToChange(const PeerKind &kind, const QString &path, const QStringList &keys,
                        const QString &changedKey, int value);
