#pragma once

#include "ProfileStore.h"
#include "ProgramActions.h"
#include "Settings.h"
#include "SettingsWatcher.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <memory>

class ProfilesPage;

namespace MtConf {
class ConfItem;
class MtConfManage;
} // namespace MtConf

/// The variables of the program, their declaration, and the reactions to their changes. One session
/// exists at a time. Its destructor clears the store; the files stay.
class DemoSession : public QObject
{
    Q_OBJECT
public:
    /// How the settings window looks.
    enum class Look {
        Classic, ///< as in hosts that ask for nothing
        Modern   ///< the modern look with all features
    };

    /// Declares all settings. They are saved in `localFile`.
    DemoSession(const QString &localFile, Look look);
    ~DemoSession() override;

    /// Loads the local file and then `configFile`, which may be empty, and applies the theme, the
    /// language and the hotkeys.
    void load(const QString &configFile);
    /// Saves the changes. Returns false if the local file could not be written, which is logged.
    bool save();
    /// Restores every setting to its default, and the presets of the profiles.
    void restoreAll();

    /// Sets the theme (a `QThemeCtrl::Theme`), like a choice in the settings window.
    void chooseTheme(int theme);
    /// Sets the language by its code, like a choice in the settings window.
    void chooseLanguage(const QString &code);

    MtConf::MtConfManage &manager() { return *mManager; }
    const Settings &settings() const { return mSettings; }
    ProfileStore &profiles() { return mProfiles; }
    SettingsWatcher &watcher() { return mWatcher; }
    const ProgramActions &actions() const { return mActions; }

    /// Shows a theme without storing it: in the sheets of the windows and in the palette.
    static void showTheme(int theme);

Q_SIGNALS:
    /// Emitted when the hotkey of the setting `key` is pressed in any program. `label` is the
    /// setting's untranslated label.
    void hotkeyPressed(const QString &key, const char *label);

private:
    MtConf::ConfItem *item(const char *page, const char *name);
    void addPages();
    void addProfilesPage();
    void addCallbacks();
    void addHotkeyCallbacks();
    void registerHotkeys();
    /// Rebuilds the page of the setting if it is shown.
    void rebuildPageOf(const MtConf::ConfItem *changed);
    void reloadEditors();

    Settings mSettings;
    const ProgramActions mActions{this};
    ProfileStore mProfiles;
    QPointer<ProfilesPage> mProfilesPage; // while it is shown
    SettingsWatcher mWatcher;
    std::unique_ptr<MtConf::MtConfManage> mManager;
};
