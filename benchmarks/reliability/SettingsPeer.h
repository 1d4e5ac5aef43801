#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

/// The default value of every setting.
constexpr int sDefaultNumber = 1;

/// A settings system as a program uses it: numbers by key, in one file.
class SettingsPeer
{
public:
    SettingsPeer() = default;
    virtual ~SettingsPeer() = default;
    Q_DISABLE_COPY(SettingsPeer)

    /// Reads the file, at the start of the program and at any time later.
    virtual void load() = 0;
    /// Writes what has changed. Returns whether the system says that it is written.
    virtual bool save() = 0;
    virtual int value(const QString &key) const = 0;
    virtual void setValue(const QString &key, int value) = 0;

    /// Makes `load` read the setting `key` under the name that it had in an older version. Returns
    /// false if the system leaves this to the program.
    virtual bool addFormerName(const QString &, const QString &) { return false; }
};

/// How a settings system is measured.
struct PeerKind
{
    QString title;
    /// Creates the system in one program, with the settings that the program declares.
    std::function<std::unique_ptr<SettingsPeer>(const QString &path, const QStringList &keys)>
        create;
    bool mustKeepAll = false; ///< whether a loss is an error
};

PeerKind defaultLibrary();
PeerKind robustLibrary();
PeerKind qSettingsPeer();
/// Empty if KConfig was not found at build time.
std::optional<PeerKind> kConfigPeer();
