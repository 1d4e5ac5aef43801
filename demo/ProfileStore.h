#pragma once

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QJsonObject>
#include <QObject>
#include <QStringList>

#include <map>

/// The capture profiles: settings that a person adds and deletes while the program runs, each one a
/// key of the store, "Profiles.<id>", with a JSON object as its value.
///
/// It owns the variables of these keys and tells the store how they come and go. Three presets
/// exist from the start, can be deleted, and come back with `restorePresets`.
class ProfileStore : public QObject
{
    Q_OBJECT
public:
    /// Declares the profiles to the store; loading the local file then creates them.
    explicit ProfileStore(QObject *parent = nullptr);
    ~ProfileStore() override;

    /// What the keys of all profiles begin with.
    static QString prefix();
    /// The keys of all profiles, by name.
    QStringList keys() const;
    /// The values of a profile: "name", "width", "height" (pixels), "color", "pointer". Empty for
    /// an unknown key.
    QJsonObject profile(const QString &key) const;
    /// The name of a profile.
    QString name(const QString &key) const;
    /// Whether a profile is as the program came with it. One that a person added never is.
    bool isUntouchedPreset(const QString &key) const;

    /// Why `name` cannot be that of the profile `key`, in the person's language; empty when it can.
    QString nameError(const QString &key, const QString &name) const;

    /// Adds a profile with a name of its own and returns its key.
    QString add();
    /// Renames a profile unless `nameError` has something to say.
    void rename(const QString &key, const QString &name);
    /// Changes one value of a profile; nothing for an unknown key.
    void setValue(const QString &key, const QString &member, const QJsonValue &value);
    /// Deletes a profile; nothing for an unknown key.
    void remove(const QString &key);
    /// Brings the presets back and deletes all others.
    void restorePresets();

Q_SIGNALS:
    /// A profile came, went or changed. Emitted by the event loop, after the store's work.
    void profilesChanged();

private:
    void create(const QString &key, const QJsonValue &value);
    void announceChange();

    ConfStorage::DynamicConfClass mClass;
    std::map<QString, QJsonObject> mProfiles; // a map: its elements stay where they are
};
