#include "SettingsPeer.h"

#include <QSettings>

namespace {

class QSettingsPeer : public SettingsPeer
{
public:
    explicit QSettingsPeer(const QString &path) : mSettings(path, QSettings::IniFormat) {}

    void load() override { mSettings.sync(); }
    bool save() override
    {
        mSettings.sync();
        return mSettings.status() == QSettings::NoError;
    }
    int value(const QString &key) const override
    {
        return mSettings.value(key, sDefaultNumber).toInt();
    }
    void setValue(const QString &key, int value) override { mSettings.setValue(key, value); }

private:
    QSettings mSettings;
};

} // namespace

PeerKind qSettingsPeer()
{
    PeerKind kind;
    kind.title = QStringLiteral("QSettings");
    kind.create = [](const QString &path, const QStringList &) {
        return std::make_unique<QSettingsPeer>(path);
    };
    return kind;
}
