#include "SettingsPeer.h"

#include <KConfig>
#include <KConfigGroup>

namespace {

class KConfigPeer : public SettingsPeer
{
public:
    explicit KConfigPeer(const QString &path)
        : mConfig(path, KConfig::SimpleConfig), mGroup(&mConfig, QStringLiteral("Settings"))
    {
    }

    void load() override { mConfig.reparseConfiguration(); }
    bool save() override { return mConfig.sync(); }
    int value(const QString &key) const override { return mGroup.readEntry(key, sDefaultNumber); }
    void setValue(const QString &key, int value) override { mGroup.writeEntry(key, value); }

private:
    KConfig mConfig;
    KConfigGroup mGroup;
};

} // namespace

std::optional<PeerKind> kConfigPeer()
{
    PeerKind kind;
    kind.title = QStringLiteral("KConfig");
    kind.create = [](const QString &path, const QStringList &) {
        return std::make_unique<KConfigPeer>(path);
    };
    return kind;
}
