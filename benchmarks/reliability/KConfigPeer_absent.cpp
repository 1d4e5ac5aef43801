#include "SettingsPeer.h"

std::optional<PeerKind> kConfigPeer()
{
    return std::nullopt;
}
