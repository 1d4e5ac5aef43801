#include "ProfileStore.h"

#include <MaltoConfiguration/store/ConfOperation.h>

#include <QUuid>

#include <algorithm>

namespace {

constexpr int sLongestName = 40;
constexpr QLatin1String sNameMember("name", 4);

QJsonObject makeProfile(const QString &name, int width, int height, const QString &color)
{
    return {{sNameMember, name},
            {QStringLiteral("width"), width},
            {QStringLiteral("height"), height},
            {QStringLiteral("color"), color},
            {QStringLiteral("pointer"), false}};
}

} // namespace

ProfileStore::ProfileStore(QObject *parent) : QObject(parent)
{
    mClass.prefix = prefix();
    mClass.creator = [this](const QString &key, const QJsonValue *value) { create(key, *value); };
    mClass.remover = [this](const QString &key) {
        mProfiles.erase(key);
        announceChange();
    };
    ConfStorage *store = ConfStorage::instance();
    store->mDynamicConfClasses.append(&mClass);
    auto &presets = store->mPresetDynamicConfs;
    presets.insert(prefix() + QStringLiteral("Screen"),
                   makeProfile(tr("Screen"), 1920, 1080, QStringLiteral("#2a67d8")));
    presets.insert(prefix() + QStringLiteral("Window"),
                   makeProfile(tr("Window"), 1280, 800, QStringLiteral("#2e8b45")));
    presets.insert(prefix() + QStringLiteral("Thumbnail"),
                   makeProfile(tr("Thumbnail"), 320, 240, QStringLiteral("#b96e00")));
}

ProfileStore::~ProfileStore()
{
    // The store lives on and must not use the variables any more.
    ConfStorage *store = ConfStorage::instance();
    store->mDynamicConfClasses.removeAll(&mClass);
    for (const auto &entry : mProfiles) {
        store->mConfValues.remove(entry.first);
        store->mConfMetas.remove(entry.first);
    }
}

QString ProfileStore::prefix()
{
    return QStringLiteral("Profiles.");
}

void ProfileStore::create(const QString &key, const QJsonValue &value)
{
    QJsonObject &profile = mProfiles[key];
    profile = value.toObject();
    ConfStorage *store = ConfStorage::instance();
    store->reserveConf(key, &profile);
    store->setConfChangedCallback(key,
                                  [this](const QString &, const ConfValue *) { announceChange(); });
    announceChange();
}

void ProfileStore::announceChange()
{
    // Delayed: the store calls in the middle of an operation, and still has the key of a variable
    // that was just destroyed.
    QMetaObject::invokeMethod(this, &ProfileStore::profilesChanged, Qt::QueuedConnection);
}

QStringList ProfileStore::keys() const
{
    QStringList keys;
    for (const auto &entry : mProfiles)
        keys.append(entry.first);
    std::stable_sort(keys.begin(), keys.end(), [this](const QString &a, const QString &b) {
        return name(a).compare(name(b), Qt::CaseInsensitive) < 0;
    });
    return keys;
}

QJsonObject ProfileStore::profile(const QString &key) const
{
    const auto found = mProfiles.find(key);
    return found != mProfiles.end() ? found->second : QJsonObject();
}

QString ProfileStore::name(const QString &key) const
{
    return profile(key).value(sNameMember).toString();
}

bool ProfileStore::isUntouchedPreset(const QString &key) const
{
    return ConfStorage::instance()->isEqualToDefault(key);
}

bool ProfileStore::isUntouched() const
{
    const auto &presets = ConfStorage::instance()->mPresetDynamicConfs;
    for (auto preset = presets.cbegin(); preset != presets.cend(); ++preset) {
        if (preset.key().startsWith(prefix()) && !mProfiles.count(preset.key()))
            return false;
    }
    return std::all_of(mProfiles.cbegin(), mProfiles.cend(),
                       [this](const auto &entry) { return isUntouchedPreset(entry.first); });
}

QString ProfileStore::nameError(const QString &key, const QString &name) const
{
    const QString wanted = name.trimmed();
    if (wanted.isEmpty())
        return tr("A profile needs a name.");
    if (wanted.size() > sLongestName)
        return tr("A name can have at most %1 characters.").arg(sLongestName);
    const bool taken = std::any_of(mProfiles.cbegin(), mProfiles.cend(), [&](const auto &entry) {
        return entry.first != key
               && this->name(entry.first).compare(wanted, Qt::CaseInsensitive) == 0;
    });
    return taken ? tr("Another profile has this name.") : QString();
}

QString ProfileStore::add()
{
    QString newName = tr("New profile");
    for (int number = 2; !nameError(QString(), newName).isEmpty(); ++number)
        newName = tr("New profile %1").arg(number);
    // Not derived from the name: two computers that share a configuration may add the same name.
    const QString key = prefix() + QUuid::createUuid().toString(QUuid::Id128);
    ConfStorage::instance()->createDynamicConf(
        key, makeProfile(newName, 1280, 720, QStringLiteral("#d13438")), &mClass);
    return key;
}

void ProfileStore::rename(const QString &key, const QString &name)
{
    if (nameError(key, name).isEmpty())
        setValue(key, sNameMember, name.trimmed());
}

void ProfileStore::setValue(const QString &key, const QString &member, const QJsonValue &value)
{
    QJsonObject changed = profile(key);
    if (!mProfiles.count(key) || changed.value(member) == value)
        return;
    changed.insert(member, value);
    // So that the settings window can undo it.
    const ConfOperation edit(ConfStorage::instance(), ConfChange::Cause::Edited);
    ConfStorage::instance()->set(key, changed);
}

void ProfileStore::remove(const QString &key)
{
    if (mProfiles.count(key))
        ConfStorage::instance()->removeDynamicConf(key);
}

void ProfileStore::restorePresets()
{
    const ConfOperation restoring(ConfStorage::instance(), ConfChange::Cause::Restored);
    ConfStorage::instance()->restoreDynamicConf(prefix());
}
