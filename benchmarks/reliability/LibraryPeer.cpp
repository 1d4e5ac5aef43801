#include "SettingsPeer.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <map>

namespace {

class LibraryPeer : public SettingsPeer
{
public:
    LibraryPeer(const QString &path, const QStringList &keys)
    {
        mStore.mLocalSaveFile = path;
        for (const QString &key : keys) {
            const auto variable = mVariables.emplace(key, sDefaultNumber).first;
            mStore.reserveConf(key, &variable->second);
        }
    }

    void load() override { mStore.loadLocalConfFile(); }
    bool save() override
    {
        mStore.saveToLocalConfFile();
        return !mStore.mChanged;
    }
    int value(const QString &key) const override { return mVariables.at(key); }
    void setValue(const QString &key, int value) override { mStore.set(key, value); }
    bool addFormerName(const QString &key, const QString &formerName) override
    {
        mStore.addFormerName(key, formerName);
        return true;
    }

    ConfStorage *store() { return &mStore; }

private:
    std::map<QString, int> mVariables;
    ConfStorage mStore;
};

} // namespace

PeerKind defaultLibrary()
{
    PeerKind kind;
    kind.title = QStringLiteral("By default");
    kind.create = [](const QString &path, const QStringList &keys) {
        return std::make_unique<LibraryPeer>(path, keys);
    };
    return kind;
}

PeerKind robustLibrary()
{
    PeerKind kind;
    kind.title = QStringLiteral("With `useRobustFiles()`");
    kind.create = [](const QString &path, const QStringList &keys) {
        auto peer = std::make_unique<LibraryPeer>(path, keys);
        peer->store()->useRobustFiles();
        return peer;
    };
    kind.mustKeepAll = true;
    return kind;
}
