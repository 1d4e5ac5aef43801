#include "DemoSession.h"

#include "ProfilesPage.h"
#include "StoredDataPage.h"
#include "declareSettings.h"

#include <MaltoConfiguration/manage/MtConfManage.h>
#include <MaltoConfiguration/widgets/ConfDefWidgetQKeySequence.h>
#include <MaltoConfiguration/widgets/ConfWidgetMouseAction.h>
#include <MaltoConfiguration/widgets/ConfigItemWidget.h>
#include <MaltoConfiguration/window/ConfigurationWindow.h>

#include <OrvUtils/QThemeCtrl.h>

#include <QIconfont/QuorviGlyphs.h>

#include <QxtGlobalShortcut>

#include <QApplication>
#include <QPalette>
#include <QTimer>

#include <utility>

namespace {

/// Returns the hotkey of `item`, or null if it has none.
QxtGlobalShortcut *shortcutOf(const MtConf::ConfItem &item)
{
    return item.properties.value(QStringLiteral("Shortcut")).value<QxtGlobalShortcut *>();
}

} // namespace

DemoSession::DemoSession(const QString &localFile, Look look)
    : mManager(std::make_unique<MtConf::MtConfManage>())
{
    ConfStorage::instance()->useRobustFiles();
    ConfStorage::instance()->mLocalSaveFile = localFile;
    if (look == Look::Modern) {
        mManager->windowFeatures = MtConf::AllWindowFeatures;
        mManager->windowLook = MtConf::ModernLook;
    }
    MtConf::ConfDefWidgetQKeySequence::sTellsReasons = look == Look::Modern;
    MtConf::ConfWidgetMouseAction::sNamesModifiers = look == Look::Modern;
    MtConf::ConfWidgetMouseAction::sTellsBothSides = look == Look::Modern;
    declareSettings(*mManager, mSettings, mActions);
    addPages();
    addCallbacks();
    addHotkeyCallbacks();
    mManager->restoreAllHook = [this] { mProfiles.restorePresets(); };
    mWatcher.watchAll();
    connect(&mProfiles, &ProfileStore::profilesChanged, &mWatcher,
            &SettingsWatcher::announceChange);
}

DemoSession::~DemoSession()
{
    // Destroy the window first. The store lives on and must not use our variables any more.
    mManager.reset();
    ConfStorage::instance()->clear();
}

MtConf::ConfItem *DemoSession::item(const char *page, const char *name)
{
    return mManager->getItemByName(QLatin1String(page), QLatin1String(name), QString());
}

void DemoSession::addPages()
{
    addProfilesPage();
    mManager->setMajorWidget(QStringLiteral("Stored data"), [this](QWidget *parent) {
        return new StoredDataPage(mWatcher, parent);
    });
    QMap<QString, QChar> icons{
        {QStringLiteral("General"), QuorviGlyphs::General},
        {QStringLiteral("Appearance"), QuorviGlyphs::Appearance},
        {QStringLiteral("Capture"), QuorviGlyphs::Capture},
        {QStringLiteral("Hotkeys"), QuorviGlyphs::Hotkeys},
        {QStringLiteral("Mouse"), QuorviGlyphs::Mouse},
        {QStringLiteral("Output"), QuorviGlyphs::Output},
        {QStringLiteral("Texts"), QuorviGlyphs::Profiles},
        {QStringLiteral("Numbers"), QuorviGlyphs::General},
        {QStringLiteral("Choices"), QuorviGlyphs::Correct},
        {QStringLiteral("Profiles"), QuorviGlyphs::Profiles},
        {QStringLiteral("System"), QuorviGlyphs::Advanced},
        {QStringLiteral("Stored data"), QuorviGlyphs::Correct},
    };
    mManager->setIconMap(icons);
}

void DemoSession::addProfilesPage()
{
    const QString name = QStringLiteral("Profiles");
    mManager->setMajorWidget(name, [this](QWidget *parent) {
        mProfilesPage = new ProfilesPage(mProfiles, parent);
        return mProfilesPage;
    });
    MtConf::MajorConfItem *const page = mManager->getMajorConfItemByName(name);
    page->searchTexts = [this] {
        QStringList names;
        const QStringList keys = mProfiles.keys();
        for (const QString &key : keys)
            names.append(mProfiles.name(key));
        return names;
    };
    page->showSearchText = [this](const QString &profile) {
        if (mProfilesPage)
            mProfilesPage->select(profile);
    };
    page->isChanged = [this] { return !mProfiles.isUntouched(); };
}

void DemoSession::addCallbacks()
{
    item("Appearance", "Theme")->setConfChangedCallback([this](const QString &, const ConfValue *) {
        showTheme(mSettings.theme);
    });
    const MtConf::ConfItem *const showExpert = item("System", "ShowExpert");
    showExpert->setConfChangedCallback([this, showExpert](const QString &, const ConfValue *) {
        // Delayed, because the switch that was clicked is on the page that is rebuilt.
        QTimer::singleShot(0, this, [this, showExpert] { rebuildPageOf(showExpert); });
    });
}

void DemoSession::addHotkeyCallbacks()
{
    for (MtConf::ConfItem &declared : mManager->items) {
        QxtGlobalShortcut *shortcut = shortcutOf(declared);
        if (!shortcut)
            continue;
        const QString key = declared.getFullName();
        const char *const label = declared.displayText;
        shortcut->setId(key);
        declared.setConfChangedCallback([shortcut](const QString &, const ConfValue *value) {
            shortcut->setShortcut(value->get<QKeySequence>());
        });
        connect(shortcut, &QxtGlobalShortcut::activated, this,
                [this, key, label] { Q_EMIT hotkeyPressed(key, label); });
    }
}

void DemoSession::registerHotkeys()
{
    for (const MtConf::ConfItem &declared : std::as_const(mManager->items)) {
        QxtGlobalShortcut *shortcut = shortcutOf(declared);
        if (!shortcut)
            continue;
        shortcut->setDescription(QCoreApplication::translate("QObject", declared.displayText));
        shortcut->setShortcut(ConfStorage::instance()->get<QKeySequence>(declared.getFullName()));
    }
}

void DemoSession::load(const QString &configFile)
{
    ConfStorage::instance()->loadLocalConfFile();
    if (configFile.isEmpty())
        mManager->runAfterLoadFromFile();
    else
        mManager->loadFromFile(configFile);
    showTheme(mSettings.theme);
    registerHotkeys(); // also the defaults, which cause no change callback
}

bool DemoSession::save()
{
    mManager->saveToFile();
    return !ConfStorage::instance()->mChanged;
}

void DemoSession::restoreAll()
{
    mManager->restoreAllDefault();
    reloadEditors();
}

void DemoSession::chooseTheme(int theme)
{
    ConfStorage::instance()->set(item("Appearance", "Theme")->getFullName(), theme);
    reloadEditors();
}

void DemoSession::chooseLanguage(const QString &code)
{
    ConfStorage::instance()->set(item("General", "Language")->getFullName(), code);
    reloadEditors();
}

void DemoSession::showTheme(int theme)
{
    QThemeCtrl *themes = QThemeCtrl::instance();
    const auto chosen = static_cast<QThemeCtrl::Theme>(qBound(0, theme, 2));
    themes->setTheme(chosen);
    // With its default palette the application follows the system.
    QApplication::setPalette(chosen == QThemeCtrl::Theme::System ? QPalette() : themes->palette());
}

void DemoSession::rebuildPageOf(const MtConf::ConfItem *changed)
{
    MtConf::ConfigurationWindow *window = MtConf::ConfigurationWindow::instance();
    if (!window || window->currentClass() != changed->majorName)
        return;
    window->switchToView(changed->majorName);
    // Keyboard users continue at the switch.
    if (changed->editor)
        changed->editor->label()->setFocus();
}

void DemoSession::reloadEditors()
{
    for (const MtConf::ConfItem &declared : std::as_const(mManager->items)) {
        if (!declared.editor)
            continue;
        declared.editor->loadConf();
        declared.editor->refreshLabelState();
    }
}
