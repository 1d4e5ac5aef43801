#pragma once

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QJsonObject>
#include <QObject>
#include <QStringList>

#include <map>

/// The capture profiles: dynamic entries that the user adds and deletes at run time. Each profile
/// is a key of the store, "Profiles.<id>", whose value is a JSON object.
///
/// This class owns the variables of these keys, and creates and removes them for the store. Three
/// presets exist by default. The user can delete them, and `restorePresets` restores them.
class ProfileStore : public QObject
{
    Q_OBJECT
public:
    /// Declares the profiles to the store. Loading the local file creates them.
    explicit ProfileStore(QObject *parent = nullptr);
    ~ProfileStore() override;

    /// Returns the prefix of the keys of all profiles.
    static QString prefix();
    /// Returns the keys of all profiles, sorted by the names of the profiles.
    QStringList keys() const;
    /// Returns the values of a profile: "name", "width" and "height" (in pixels), "color",
    /// "pointer". Empty for an unknown key.
    QJsonObject profile(const QString &key) const;
    /// Returns the name of a profile. Empty for an unknown key.
    QString name(const QString &key) const;
    /// Returns whether a profile is an unchanged preset.
    bool isUntouchedPreset(const QString &key) const;
    /// Returns whether the profiles are the presets, unchanged.
    bool isUntouched() const;

    /// Returns why the profile `key` cannot have the name `name`, translated, or an empty text.
    QString nameError(const QString &key, const QString &name) const;

    /// Adds a profile with an unused name and returns its key.
    QString add();
    /// Renames a profile. Does nothing if `nameError` returns an error.
    void rename(const QString &key, const QString &name);
    /// Changes one value of a profile. Does nothing for an unknown key.
    void setValue(const QString &key, const QString &member, const QJsonValue &value);
    /// Deletes a profile. Does nothing for an unknown key.
    void remove(const QString &key);
    /// Restores the presets and deletes all other profiles.
    void restorePresets();

Q_SIGNALS:
    /// Emitted from the event loop after a profile was added, removed or changed.
    void profilesChanged();

private:
    void create(const QString &key, const QJsonValue &value);
    void announceChange();

    ConfStorage::DynamicConfClass mClass;
    std::map<QString, QJsonObject> mProfiles; // a map, because its elements keep their addresses
};
