#include "DemoFixture.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/widgets/ComboboxDisableWheel.h>
#include <MaltoConfiguration/widgets/KeySequenceEdit.h>

#include <OrvUtils/QThemeCtrl.h>

#include <QxtGlobalShortcut>

#include <QComboBox>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSettings>

namespace {

bool write(const QString &path, const QByteArray &text)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

QJsonObject readJson(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object()
                                          : QJsonObject();
}

QString changedMark(MtConf::ConfigItemWidget *editor)
{
    return editor->label()->property("changed").toString();
}

} // namespace

class tst_DemoSession : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QThemeCtrl::instance()->setTheme(QThemeCtrl::Theme::System); }

    void editedValuesAreRestoredFromTheLocalFile();
    void allDefaultsWriteNoLocalFile();
    void localFileThatCannotBeWrittenIsReported();
    void configurationFileSetsVariablesAndSubItems();
    void closingTheWindowSavesTheConfigurationInTheLocalFile();
    void geometryOfTheWindowIsRestored();
    void styleSheetOnDiskReplacesTheBuiltInOne();
    void expertSettingsAppearWithTheirSwitch();
    void recordedHotkeyIsRestoredAndSetInItsShortcut();
    void mouseActionIsStoredPerOperatingSystem();
    void restoredPageStaysRestoredAfterARestart();
    void themeOfTheWindowIsStored();
    void storedDataPageFollowsTheStore();
    void profilesAreRestoredFromTheLocalFile();
    void endedSessionLeavesNothingInTheStore();
    void everyPageOpensByAClick();
    void declarationsAreSound();
    void shortcutsOfTheProgramAreSettings();
};

void tst_DemoSession::editedValuesAreRestoredFromTheLocalFile()
{
    DemoFixture demo;
    demo.start();
    QVERIFY(demo.open(QStringLiteral("General")));
    demo.click(demo.checkBox("General", "Tips"));
    demo.type(demo.control<QSpinBox>(demo.editor("General", "Recent")), QStringLiteral("33"));
    demo.clickClass(QStringLiteral("Output"));
    auto *watermark = demo.editor("Output", "Image", "Watermark");
    demo.type(demo.control<QLineEdit>(watermark), QStringLiteral("by me"));
    QCOMPARE(changedMark(watermark), QStringLiteral("1"));
    auto *format = demo.control<QComboBox>(demo.editor("Output", "Image", "Format"));
    format->setFocus();
    QTest::keyClick(format, Qt::Key_Down);
    QCOMPARE(demo.settings().showTips, false);
    QCOMPARE(demo.settings().recentCaptures, 33);
    QVERIFY(!QFile::exists(demo.localFile()));
    QVERIFY(demo.close());

    const QJsonObject file = readJson(demo.localFile());
    QCOMPARE(file.keys(), QStringList({"General.Recent", "General.Tips", "Output.Image.Format",
                                       "Output.Image.Watermark"}));
    QCOMPARE(file["General.Recent"].toObject()["v"].toInt(), 33);
    QCOMPARE(file["General.Tips"].toObject()["v"], QJsonValue(false));

    demo.start();
    QCOMPARE(demo.settings().showTips, false);
    QCOMPARE(demo.settings().recentCaptures, 33);
    QCOMPARE(demo.settings().watermark, QStringLiteral("by me"));
    QCOMPARE(demo.settings().format, QStringLiteral("JPEG"));
    QVERIFY(demo.open(QStringLiteral("General")));
    QVERIFY(!demo.checkBox("General", "Tips")->isChecked());
    QCOMPARE(changedMark(demo.editor("General", "Tips")), QStringLiteral("1"));
    QCOMPARE(changedMark(demo.editor("General", "Sound")), QStringLiteral("0"));
    QCOMPARE(demo.control<QSpinBox>(demo.editor("General", "Recent"))->value(), 33);
    demo.clickClass(QStringLiteral("Output"));
    QCOMPARE(demo.control<QLineEdit>(demo.editor("Output", "Image", "Watermark"))->text(),
             QStringLiteral("by me"));
}

void tst_DemoSession::allDefaultsWriteNoLocalFile()
{
    DemoFixture demo;
    demo.start();
    QVERIFY(demo.open(QString()));
    QVERIFY(demo.close());
    QVERIFY(!QFile::exists(demo.localFile()));
}

void tst_DemoSession::localFileThatCannotBeWrittenIsReported()
{
    DemoFixture demo;
    demo.start();
    const QString path = QDir::current().filePath(QStringLiteral("missing/settings.json"));
    ConfStorage::instance()->mLocalSaveFile = path;
    QVERIFY(demo.open(QStringLiteral("General")));
    demo.click(demo.checkBox("General", "Tips"));
    const LogCapture log;
    QVERIFY(!demo.session->save());
    QCOMPARE(log.texts(QtCriticalMsg),
             QStringList("ConfStorage::saveToLocalConfFile() lock file could not be created:  \""
                         + path + ".lock\""));
    ConfStorage::instance()->mLocalSaveFile = demo.localFile();
    QVERIFY(demo.session->save());
    QVERIFY(QFile::exists(demo.localFile()));
}

void tst_DemoSession::configurationFileSetsVariablesAndSubItems()
{
    DemoFixture demo;
    QVERIFY(write("config.json", R"({
        "General.Recent": 7,
        "Appearance.Selection.FrameColor": "ff102030",
        "Output.Image.Watermark": {"value": "draft", "subConf": {"Opacity": 80}},
        "Capture.Unknown": 1,
        "General": 5
    })"));
    demo.start(QStringLiteral("config.json"));
    QCOMPARE(demo.settings().recentCaptures, 7);
    QCOMPARE(demo.settings().frameColor, QColor(0x10, 0x20, 0x30));
    QCOMPARE(demo.settings().watermark, QStringLiteral("draft"));
    QCOMPARE(demo.settings().watermarkOpacity, 80);
    QCOMPARE(demo.settings().delay, 0);

    QVERIFY(demo.open(QStringLiteral("Output")));
    auto *watermark = demo.editor("Output", "Image", "Watermark");
    QCOMPARE(demo.control<QSpinBox>(watermark)->value(), 80);
    QCOMPARE(changedMark(watermark), QStringLiteral("1"));
}

void tst_DemoSession::closingTheWindowSavesTheConfigurationInTheLocalFile()
{
    DemoFixture demo;
    QVERIFY(write("config.json", R"({"General.Recent": 7})"));
    demo.start(QStringLiteral("config.json"));
    QVERIFY(demo.open(QStringLiteral("General")));
    demo.type(demo.control<QSpinBox>(demo.editor("General", "Recent")), QStringLiteral("8"));
    QVERIFY(demo.close());
    demo.start();
    QCOMPARE(demo.settings().recentCaptures, 8);
    // The configuration file is only read, never written.
    QCOMPARE(readJson("config.json"), QJsonObject({{"General.Recent", 7}}));
    demo.start(QStringLiteral("config.json"));
    QCOMPARE(demo.settings().recentCaptures, 7);
}

void tst_DemoSession::geometryOfTheWindowIsRestored()
{
    DemoFixture demo;
    demo.start();
    QVERIFY(demo.open(QString()));
    const QRect place(41, 52, 713, 497);
    demo.window()->setGeometry(place);
    QTRY_COMPARE(demo.window()->geometry(), place);
    QVERIFY(demo.close());
    {
        const QSettings file(QStringLiteral("ConfigurationWindowConfig.ini"), QSettings::IniFormat);
        QCOMPARE(file.value(QStringLiteral("Geometry")).toRect(), place);
    }
    demo.start();
    QVERIFY(demo.open(QString()));
    QTRY_COMPARE(demo.window()->geometry(), place);
}

void tst_DemoSession::styleSheetOnDiskReplacesTheBuiltInOne()
{
    DemoFixture demo;
    demo.start();
    QVERIFY(demo.open(QString()));
    QVERIFY(!demo.window()->styleSheet().contains("#mine"));
    QVERIFY(demo.window()->styleSheet().contains("#configList"));
    QVERIFY(demo.close());

    QVERIFY(write("ThirdParty/MaltoConfiguration/res/ConfigurationWindow.qss",
                  "#mine { border-radius: sca(72)px; color: var(ColorMain); }"));
    demo.start();
    demo.session->chooseTheme(1);
    QVERIFY(demo.open(QString()));
    QVERIFY(!demo.window()->styleSheet().contains("#configList"));
    QVERIFY(demo.window()->styleSheet().contains("#mine { border-radius: 96px; color: #2a67d8; }"));
    QVERIFY(demo.close());
    QVERIFY(QDir("ThirdParty").removeRecursively());
}

void tst_DemoSession::expertSettingsAppearWithTheirSwitch()
{
    DemoFixture demo;
    demo.start();
    QVERIFY(demo.open(QStringLiteral("System")));
    QVERIFY(!demo.editor("System", "CacheSize"));
    demo.click(demo.checkBox("System", "ShowExpert"));
    QTRY_VERIFY(demo.editor("System", "CacheSize"));
    QVERIFY(demo.checkBox("System", "ShowExpert")->isChecked());
    demo.type(demo.control<QSpinBox>(demo.editor("System", "CacheSize")), QStringLiteral("512"));
    QVERIFY(demo.close());

    demo.start();
    QCOMPARE(demo.settings().cacheSize, 512);
    QVERIFY(demo.open(QStringLiteral("System")));
    QVERIFY(demo.editor("System", "CacheSize"));
    QTest::keyClick(demo.checkBox("System", "ShowExpert"), Qt::Key_Space);
    QTRY_VERIFY(!demo.editor("System", "CacheSize"));
    QCOMPARE(demo.settings().cacheSize, 512);
}

void tst_DemoSession::recordedHotkeyIsRestoredAndSetInItsShortcut()
{
    const QKeySequence pressed(Qt::CTRL | Qt::SHIFT | Qt::Key_F8);
    DemoFixture demo;
    demo.start();
    QVERIFY(demo.open(QStringLiteral("Hotkeys")));
    auto *field = demo.control<KeySequenceEdit>(demo.editor("Hotkeys", "Tools", "PickColor"));
    QVERIFY(!field->allowSimpleHotkey);
    field->setFocus();
    QTest::keyClick(field, Qt::Key_F8, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(demo.settings().pickColor, pressed);
    demo.clickClass(QStringLiteral("System"));
    demo.click(demo.checkBox("System", "SimpleHotkeys"));
    demo.clickClass(QStringLiteral("Hotkeys"));
    QVERIFY(demo.control<KeySequenceEdit>(demo.editor("Hotkeys", "Tools", "PickColor"))
                ->allowSimpleHotkey);
    QVERIFY(demo.close());

    demo.start();
    QCOMPARE(demo.settings().pickColor, pressed);
    const auto *shortcut = demo.session->manager()
                               .getItemByName("Hotkeys", "Tools", "PickColor")
                               ->properties.value("Shortcut")
                               .value<QxtGlobalShortcut *>();
    QCOMPARE(shortcut->shortcut(), pressed);
    demo.session->restoreAll();
    QCOMPARE(shortcut->shortcut(), QKeySequence());
}

void tst_DemoSession::mouseActionIsStoredPerOperatingSystem()
{
    DemoFixture demo;
    demo.start();
    QVERIFY(demo.open(QStringLiteral("Mouse")));
    auto *boxes = demo.editor("Mouse", "Pinned pictures", "Draw");
    auto *action = boxes->findChild<ComboboxDisableWheel *>();
    action->setFocus();
    QTest::keyClick(action, Qt::Key_Down); // from the right button to the middle one
    QCOMPARE(demo.settings().drawAction, 512);
    QVERIFY(demo.close());
    QCOMPARE(readJson(demo.localFile()).keys(), QStringList("Mouse.Pinned pictures.Draw#s.mac"));
    demo.start();
    QCOMPARE(demo.settings().drawAction, 512);
}

void tst_DemoSession::restoredPageStaysRestoredAfterARestart()
{
    DemoFixture demo;
    demo.start();
    QVERIFY(demo.open(QStringLiteral("General")));
    demo.click(demo.checkBox("General", "Tips"));
    demo.click(demo.checkBox("General", "Sound"));
    QVERIFY(demo.close());
    demo.start();
    QVERIFY(demo.open(QStringLiteral("General")));
    QTimer::singleShot(0, demo.window(),
                       [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return); });
    QTest::mouseClick(demo.child<QPushButton>("btnRestoreDefault"), Qt::LeftButton);
    QVERIFY(demo.checkBox("General", "Tips")->isChecked());
    QVERIFY(demo.close());
    demo.start();
    QCOMPARE(demo.settings().showTips, true);
    QCOMPARE(demo.settings().playSound, true);
}

void tst_DemoSession::themeOfTheWindowIsStored()
{
    DemoFixture demo;
    demo.start();
    QVERIFY(demo.open(QStringLiteral("Appearance")));
    auto *theme = demo.control<QComboBox>(demo.editor("Appearance", "Theme"));
    theme->setFocus();
    QTest::keyClick(theme, Qt::Key_End);
    QCOMPARE(demo.settings().theme, 2);
    QVERIFY(QThemeCtrl::instance()->isDark());
    QVERIFY(demo.close());
    QThemeCtrl::instance()->setTheme(QThemeCtrl::Theme::Light);
    demo.start();
    QVERIFY(QThemeCtrl::instance()->isDark());
}

void tst_DemoSession::storedDataPageFollowsTheStore()
{
    DemoFixture demo;
    demo.start();
    QVERIFY(demo.open(QStringLiteral("Stored data")));
    auto *text = demo.child<QPlainTextEdit>("storedData");
    QCOMPARE(text->toPlainText(), QString());
    demo.session->chooseTheme(1);
    QTRY_VERIFY(text->toPlainText().contains("\"Appearance.Theme\""));
    demo.session->profiles().setValue("Profiles.Screen", "width", 17);
    QTRY_VERIFY(text->toPlainText().contains("\"width\": 17"));
    demo.session->profiles().remove("Profiles.Window");
    QTRY_VERIFY(text->toPlainText().contains("\"Profiles.Window\""));
}

void tst_DemoSession::profilesAreRestoredFromTheLocalFile()
{
    DemoFixture demo;
    demo.start();
    QCOMPARE(demo.session->profiles().keys(),
             QStringList({"Profiles.Screen", "Profiles.Thumbnail", "Profiles.Window"}));
    demo.session->profiles().remove("Profiles.Thumbnail");
    const QString mine = demo.session->profiles().add();
    demo.session->profiles().rename(mine, " Wide  ");
    QVERIFY(demo.open(QString()));
    QVERIFY(demo.close());

    demo.start();
    QCOMPARE(demo.session->profiles().keys(),
             QStringList({"Profiles.Screen", mine, "Profiles.Window"}));
    QCOMPARE(demo.session->profiles().name(mine), QStringLiteral("Wide"));
    demo.session->restoreAll();
    QCOMPARE(demo.session->profiles().keys(),
             QStringList({"Profiles.Screen", "Profiles.Thumbnail", "Profiles.Window"}));
}

void tst_DemoSession::endedSessionLeavesNothingInTheStore()
{
    DemoFixture demo;
    demo.start();
    QVERIFY(demo.open(QString()));
    demo.session.reset();
    QVERIFY(!demo.window());
    QVERIFY(ConfStorage::instance()->mConfValues.isEmpty());
    QVERIFY(ConfStorage::instance()->mConfMetas.isEmpty());
    QVERIFY(ConfStorage::instance()->mDynamicConfClasses.isEmpty());
    QVERIFY(ConfStorage::instance()->mPresetDynamicConfs.isEmpty());
}

void tst_DemoSession::declarationsAreSound()
{
    DemoFixture demo;
    demo.start();
    QCOMPARE(demo.session->manager().checkDeclarations(), QStringList());
}

void tst_DemoSession::shortcutsOfTheProgramAreSettings()
{
    DemoFixture demo;
    demo.start();
    const QAction *quit = demo.session->actions().quit;
    QCOMPARE(quit->shortcut(), QKeySequence("Ctrl+Q"));
    ConfStorage::instance()->set("Hotkeys.In this program.Quit", QKeySequence("Ctrl+E"));
    QCOMPARE(quit->shortcut(), QKeySequence("Ctrl+E"));
}

void tst_DemoSession::everyPageOpensByAClick()
{
    DemoFixture demo;
    demo.start();
    QVERIFY(demo.open(QString()));
    const LogCapture log;
    const QStringList pages{"General", "Appearance", "Capture", "Hotkeys",
                            "Mouse",   "Output",     "Texts",   "Numbers",
                            "Choices", "Profiles",   "System",  "Stored data"};
    auto *list = demo.child<QListView>("configList");
    QCOMPARE(list->model()->rowCount(), pages.size());
    for (const QString &page : pages) {
        demo.clickClass(page);
        QCOMPARE(list->currentIndex().data().toString(), page);
        const bool isOwn = page == "Profiles" || page == "Stored data";
        QCOMPARE(demo.child<QPushButton>("btnRestoreDefault")->isHidden(), isOwn);
        QVERIFY2(!list->currentIndex().data(Qt::DecorationRole).value<QIcon>().isNull(),
                 qPrintable(page));
    }
    QCOMPARE(log.messages(), QList<LoggedMessage>());
}

int main(int argc, char **argv)
{
    return runTest<tst_DemoSession>(argc, argv);
}
#include "tst_DemoSession.moc"
