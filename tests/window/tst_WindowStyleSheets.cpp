#include "support/TestMain.h"
#include "support/WindowFixture.h"

#include <OrvUtils/QThemeCtrl.h>

/// Where the window's style sheets come from, and what they contain.
class tst_WindowStyleSheets : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    // The program registers its resource at startup.
    void initTestCase() { removeHostSheet(); }
    void init()
    {
        mFixture = std::make_unique<WindowFixture>();
        mFlag = true;
        mItem = mFixture->manager->addConfBool("Flag", &mFlag, "General", "Flag");
        QThemeCtrl::instance()->setTheme(QThemeCtrl::Theme::Light);
    }
    void cleanup()
    {
        mFixture.reset();
        MtConf::ConfigurationWindow::sSheetsOfWorkingDirectory = true;
        removeHostSheet();
        QDir("res").removeRecursively();
        QDir("ThirdParty").removeRecursively();
    }

    void sheetIsExpanded();
    void sheetOnDiskReplacesTheBuiltInOne_data();
    void sheetOnDiskReplacesTheBuiltInOne();
    void sheetOnDiskIsSkippedIfTheHostForbidsIt_data();
    void sheetOnDiskIsSkippedIfTheHostForbidsIt();
    void commonSheetOfTheHostReplacesTheBuiltInOne();
    void commonSheetOnDiskReplacesThatOfTheHost();
    void windowsSheetNamesEverySelectorThatTheCodeSets();
    void windowsSheetUsesEveryNameOfTheTheme_data();
    void windowsSheetUsesEveryNameOfTheTheme();
    void everyTextHasTheMainFontIfTheCommonSheetSetsNone();

private:
    static void addHostSheet() { Q_INIT_RESOURCE(HostSheet); }
    static void removeHostSheet() { Q_CLEANUP_RESOURCE(HostSheet); }
    static void writeSheet(const QString &path, const QByteArray &sheet)
    {
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(sheet);
    }
    /// Returns the built-in style sheet of the window, with unexpanded macros.
    static QString windowsSheet()
    {
        QFile file(":/qss/ConfigurationWindow");
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    std::unique_ptr<WindowFixture> mFixture;
    MtConf::ConfItem *mItem = nullptr;
    bool mFlag = true;
};

void tst_WindowStyleSheets::sheetIsExpanded()
{
    const QString sheet = mFixture->open()->styleSheet();
    QVERIFY(!sheet.contains("sca("));
    QVERIFY(!sheet.contains("var("));
    QVERIFY(sheet.contains("border-radius: 8px")); // 6 units at 96 dots per inch
    QVERIFY(sheet.contains(QThemeCtrl::instance()->value("ColorMain")));
}

void tst_WindowStyleSheets::sheetOnDiskReplacesTheBuiltInOne_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("isCommon");
    QTest::newRow("common sheet") << "res/qss/CommonWindow.qss" << true;
    QTest::newRow("the window's sheet")
        << "ThirdParty/MaltoConfiguration/res/ConfigurationWindow.qss" << false;
}

void tst_WindowStyleSheets::sheetOnDiskReplacesTheBuiltInOne()
{
    QFETCH(QString, path);
    QFETCH(bool, isCommon);
    writeSheet(path, "#onDisk { width: sca(3)px; }");
    const QString sheet = mFixture->open()->styleSheet();
    QVERIFY(sheet.contains("#onDisk { width: 4px; }"));
    QCOMPARE(sheet.contains("QToolTip"), !isCommon);
    QCOMPARE(sheet.contains("#configList"), isCommon);
    if (isCommon)
        QVERIFY(sheet.indexOf("#onDisk") < sheet.indexOf("#configList"));
    else
        QVERIFY(sheet.indexOf("QToolTip") < sheet.indexOf("#onDisk"));
}

void tst_WindowStyleSheets::sheetOnDiskIsSkippedIfTheHostForbidsIt_data()
{
    sheetOnDiskReplacesTheBuiltInOne_data();
}

void tst_WindowStyleSheets::sheetOnDiskIsSkippedIfTheHostForbidsIt()
{
    QFETCH(QString, path);
    MtConf::ConfigurationWindow::sSheetsOfWorkingDirectory = false;
    addHostSheet();
    writeSheet(path, "#onDisk { width: sca(3)px; }");
    const QString sheet = mFixture->open()->styleSheet();
    QVERIFY(!sheet.contains("#onDisk"));
    QVERIFY(sheet.contains("#inHostResource { width: 4px; }"));
    QVERIFY(sheet.contains("#configList"));
}

void tst_WindowStyleSheets::commonSheetOfTheHostReplacesTheBuiltInOne()
{
    addHostSheet();
    const QString sheet = mFixture->open()->styleSheet();
    QVERIFY(sheet.contains("#inHostResource { width: 4px; }"));
    QVERIFY(!sheet.contains("QToolTip"));
    QVERIFY(sheet.indexOf("#inHostResource") < sheet.indexOf("#configList"));
}

void tst_WindowStyleSheets::commonSheetOnDiskReplacesThatOfTheHost()
{
    addHostSheet();
    writeSheet("res/qss/CommonWindow.qss", "#onDisk { width: sca(3)px; }");
    const QString sheet = mFixture->open()->styleSheet();
    QVERIFY(sheet.contains("#onDisk { width: 4px; }"));
    QVERIFY(!sheet.contains("#inHostResource"));
}

void tst_WindowStyleSheets::windowsSheetNamesEverySelectorThatTheCodeSets()
{
    const QString sheet = windowsSheet();
    for (const char *selector : {"#configList",
                                 "#configList::item",
                                 "#configList::item:selected",
                                 "#configList::item::hover:!selected",
                                 "QLabel[ClassLabel=\"normal\"]",
                                 "QCheckBox[ClassLabel=\"normal\"]",
                                 "#ConfigGroupBox",
                                 "#ConfigGroupBox[NoGroupBox=\"1\"]",
                                 "QLabel[ConfigItemWidgetLabel=\"1\"]",
                                 "QLabel[changed=\"1\"]",
                                 "QCheckBox[changed=\"1\"]",
                                 "QRadioButton[changed=\"1\"]",
                                 ".ColorSelectButton",
                                 ".KeySequenceEdit",
                                 "QLineEdit:focus[class=\"KeySequenceEdit\"]",
                                 "QMainWindow",
                                 "QDialog",
                                 "QScrollArea",
                                 "QGroupBox",
                                 "QTextEdit",
                                 "QTabBar",
                                 "QTabWidget::pane",
                                 "QMessageBox"}) {
        QVERIFY2(sheet.contains(QLatin1String(selector)), selector);
    }
}

void tst_WindowStyleSheets::windowsSheetUsesEveryNameOfTheTheme_data()
{
    QTest::addColumn<QString>("macro");
    for (const char *name : {"ColorBg0", "ColorBg1", "ColorBg1Border", "ColorBg2", "ColorBg3",
                             "ColorBg3Border", "ColorFg0", "ColorMain", "ColorSuccess",
                             "ColorWarning", "ColorFailed", "ColorDisable", "FontMain"})
        QTest::newRow(name) << QString("var(%1)").arg(name);
}

void tst_WindowStyleSheets::windowsSheetUsesEveryNameOfTheTheme()
{
    QFETCH(QString, macro);
    QVERIFY(windowsSheet().contains(macro));
}

void tst_WindowStyleSheets::everyTextHasTheMainFontIfTheCommonSheetSetsNone()
{
    QThemeCtrl *themes = QThemeCtrl::instance();
    const QString before = themes->value("FontMain");
    themes->setValue(QThemeCtrl::Theme::Light, "FontMain", "\"Test Font\", serif");
    writeSheet("res/qss/CommonWindow.qss", "QToolTip { color: red; }");
    mFixture->open();
    const QList<QWidget *> shown{mFixture->classList(), mFixture->restoreAllButton(),
                                 mFixture->restorePageButton(), mFixture->checkBox(mItem),
                                 mFixture->page()->itemAt(0)->widget()};
    themes->setValue(QThemeCtrl::Theme::Light, "FontMain", before);
    for (const QWidget *widget : shown)
        QCOMPARE(widget->font().family(), QString("Test Font"));
}

int main(int argc, char **argv)
{
    return runTest<tst_WindowStyleSheets>(argc, argv);
}

#include "tst_WindowStyleSheets.moc"
