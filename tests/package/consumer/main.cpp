// The program of a host. It uses every library of the project, with the documented includes, and
// exits by itself.
#include <MaltoConfiguration/MaltoConfiguration.h>
#include <MaltoConfiguration/store/ConfStorage.h>
#include <OrvUtils/QThemeCtrl.h>
#include <QIconfont/QIconfont.h>
#include <QIconfont/QuorviGlyphs.h>
#include <QxtGlobalShortcut>

#include <QApplication>
#include <QCheckBox>
#include <QTextStream>

int main(int argc, char **argv)
{
    const QApplication app(argc, argv);
    bool playSound = true;
    QKeySequence hotkey(Qt::CTRL | Qt::Key_F8);

    MtConf::MtConfManage settings;
    settings.addConfBool("Play a sound", &playSound, "General", "Sound");
    QxtGlobalShortcut shortcut;
    settings.addConfQKeySequence("Capture", &hotkey, "General", "Hotkey")
        ->properties.insert("Shortcut", QVariant::fromValue(&shortcut));
    QMap<QString, QChar> icons{{"General", QuorviGlyphs::General}};
    settings.setIconMap(icons);
    QThemeCtrl::instance()->setTheme(QThemeCtrl::Theme::Dark);

    MtConf::ConfigurationWindow *window = settings.ShowWindow();
    window->findChild<QCheckBox *>()->click();
    const bool works = !playSound && !window->grab().isNull()
                       && !QIconfont::Icon(QuorviGlyphs::General, Qt::white, 16, QMargins())
                               .isNull();
    QTextStream(stdout) << (works ? "It works.\n" : "It does not work.\n");
    return works ? 0 : 1;
}
