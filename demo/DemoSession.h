#pragma once

#include "ProfileStore.h"
#include "Settings.h"
#include "SettingsWatcher.h"

#include <QObject>
#include <QString>

#include <memory>

namespace MtConf {
class ConfItem;
class MtConfManage;
} // namespace MtConf

/// The program's settings at work: the variables, their declaration, and what follows when one of
/// them changes. One session exists at a time; its end forgets everything but the files.
class DemoSession : public QObject
{
    Q_OBJECT
public:
    /// Declares everything; the settings are kept in `localFile`.
    explicit DemoSession(const QString &localFile);
    ~DemoSession() override;

    /// Loads the local file and then `configFile`, which may be empty, and applies what they say.
    void load(const QString &configFile);
    /// Saves what has changed. False when the local file could not be written: the log tells why.
    bool save();
    /// Restores the default of every setting and all profiles.
    void restoreAll();

    /// Stores a theme (a `QThemeCtrl::Theme`) as if it had been chosen in the window.
    void chooseTheme(int theme);
    /// Stores a language by its code as if it had been chosen in the window.
    void chooseLanguage(const QString &code);

    MtConf::MtConfManage &manager() { return *mManager; }
    const Settings &settings() const { return mSettings; }
    ProfileStore &profiles() { return mProfiles; }
    SettingsWatcher &watcher() { return mWatcher; }

    /// Shows a theme without storing it: the windows' sheets and the palette of all the rest.
    static void showTheme(int theme);

Q_SIGNALS:
    /// The hotkey of the setting `key` was pressed, in whatever program; `label` is the setting's
    /// label, not translated.
    void hotkeyPressed(const QString &key, const char *label);

private:
    MtConf::ConfItem *item(const char *page, const char *name);
    void addPages();
    void addCallbacks();
    void addHotkeyCallbacks();
    void registerHotkeys();
    /// Builds the page of the setting again, if it is shown.
    void rebuildPageOf(const MtConf::ConfItem *changed);
    void reloadEditors();

    Settings mSettings;
    ProfileStore mProfiles;
    SettingsWatcher mWatcher;
    std::unique_ptr<MtConf::MtConfManage> mManager;
};
