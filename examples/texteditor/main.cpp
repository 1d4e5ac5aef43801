// A small text editor with the settings that such programs have.

#include <MaltoConfiguration/MaltoConfiguration.h>

#include <OrvUtils/QThemeCtrl.h>

#include <QtWidgets>

namespace Text {
Q_NAMESPACE
enum class Wrap { None, AtWords, Anywhere };
Q_ENUM_NS(Wrap)
} // namespace Text

using Text::Wrap;

template<> struct MtConf::JsonForm<Wrap> : MtConf::JsonByName<Wrap>
{
};

struct Settings
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    int tabWidth = 4; // spaces
    int theme = 0;    // a QThemeCtrl::Theme
    bool lineNumbers = true;
    Wrap wrap = Wrap::AtWords;
    QStringList recentFiles;
    QString lastFolder = QDir::homePath();
    double autosave = 30; // seconds
    QString userName;
    QString token;
    QByteArray geometry;
    QKeySequence settingsKey{"Ctrl+,"};
    QString language = "auto";
    QMap<QString, QString> languageOfType{{"cpp", "C++"}, {"py", "Python"}};
};

/// The program: it just reads the settings, and writes them through the store.
class Editor : public QMainWindow
{
public:
    explicit Editor(const Settings &settings) : mSettings(settings)
    {
        setCentralWidget(mText);
        statusBar()->addPermanentWidget(mPosition);
        QMenu *menu = menuBar()->addMenu("File");
        menu->addAction("Open…", this, [this] { open(); });
        showSettings = menu->addAction("Settings…", this, [this] { manager.ShowWindow(); });
        connect(mText, &QPlainTextEdit::cursorPositionChanged, this, [this] { apply(); });
    }

    void apply()
    {
        mText->setFont(mSettings.font);
        mText->setTabStopDistance(mText->fontMetrics().horizontalAdvance(' ') * mSettings.tabWidth);
        mText->setWordWrapMode(mSettings.wrap == Wrap::None      ? QTextOption::NoWrap
                               : mSettings.wrap == Wrap::AtWords ? QTextOption::WordWrap
                                                                 : QTextOption::WrapAnywhere);
        mPosition->setVisible(mSettings.lineNumbers);
        mPosition->setText(QString("Line %1").arg(mText->textCursor().blockNumber() + 1));
        setWindowTitle(mSettings.userName);
        QThemeCtrl::instance()->setTheme(static_cast<QThemeCtrl::Theme>(mSettings.theme));
    }

    QAction *showSettings;

protected:
    void closeEvent(QCloseEvent *event) override
    {
        ConfStorage::instance()->set("Window.Geometry", saveGeometry());
        manager.closeConfigWindow();
        QMainWindow::closeEvent(event);
    }

private:
    void open()
    {
        const QString path = QFileDialog::getOpenFileName(this, QString(), mSettings.lastFolder);
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return;
        mText->setPlainText(QString::fromUtf8(file.readAll()));
        const QFileInfo info(path);
        statusBar()->showMessage(mSettings.languageOfType.value(info.suffix(), "Plain text"));
        ConfStorage::instance()->set("Files.LastFolder", info.path());
        ConfStorage::instance()->set("Files.Recent", QStringList{path} + mSettings.recentFiles);
    }

    const Settings &mSettings;
    QPlainTextEdit *mText = new QPlainTextEdit(this);
    QLabel *mPosition = new QLabel(this);

public:
    MtConf::MtConfManage manager; // destroyed first: its window uses the rest
};

void declare(MtConf::MtConfManage &m, Settings &s, QAction *showSettings)
{
    const QList<std::pair<Wrap, const char *>> wraps{
        {Wrap::None, "Never"}, {Wrap::AtWords, "Between words"}, {Wrap::Anywhere, "Anywhere"}};
    m.addConfQFont("Font", &s.font, "Text", "Font");
    m.addConfInt32("Tab width", &s.tabWidth, "Text", "TabWidth")
        ->setRange(1, 16, MtConf::Clamped)
        ->setSuffix(" spaces");
    m.addConfBool("Line numbers", &s.lineNumbers, "Text", "LineNumbers");
    m.addConfEnum("Wrap lines", wraps, &s.wrap, "Text", "Wrap");
    m.addConfInt32WithCombobox("Theme", {"Like the system", "Light", "Dark"}, &s.theme, "General",
                               "Theme");
    m.addConfLanguage("Language", &s.language, "General", "Language");
    m.addConfShortcut("Open the settings", &s.settingsKey, showSettings, "General", "SettingsKey");
    m.addConfDouble("Save every", &s.autosave, "Files", "Autosave")
        ->setRange(0, 3600)
        ->setSuffix(" s")
        ->setHelp("0 switches automatic saving off.");
    m.addConfPath("Folder", &s.lastFolder, MtConf::PathKind::Folder, "Files", "LastFolder");
    m.addConfStringList("Recent files", &s.recentFiles, "Files", "Recent");
    m.addConfText("User name", &s.userName, "Account", "User")->setPlaceholder("Your name");
    m.addConfPassword("Token", &s.token, "Account", "Token");
    m.addConfValue(&s.geometry, "Window", "Geometry"); // kept, but on no page
    m.addConfValue(&s.languageOfType, "Files", "LanguageOfType");
}

void load()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
    QDir().mkpath(folder);
    ConfStorage::instance()->useRobustFiles();
    ConfStorage::instance()->mLocalSaveFile = folder + "/settings.json";
    ConfStorage::instance()->loadLocalConfFile();
}

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    app.setApplicationName("malto-texteditor");

    Settings settings;
    Editor editor(settings);
    declare(editor.manager, settings, editor.showSettings);
    load();
    ConfStorage::instance()->addObserver([&editor](const ConfChange &) { editor.apply(); });
    editor.apply();
    editor.restoreGeometry(settings.geometry);
    editor.show();
    return app.exec();
}

#include "main.moc"
