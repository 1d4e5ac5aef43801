#include <MaltoConfiguration/MaltoConfiguration.h>

#include <QApplication>
#include <QDebug>
#include <QDir>
#include <QStandardPaths>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    app.setApplicationName("your-program");

    // Your variables. Their initial values are the defaults.
    bool playSound = true;
    QString author;
    int delay = 3;
    QString format = "PNG";

    // One line for each setting: label, variable, page, name.
    MtConf::MtConfManage settings;
    settings.addConfBool("Play a sound", &playSound, "General", "Sound");
    settings.addConfText("Author", &author, "General", "Author")->setPlaceholder("Your name");
    settings.addConfInt32("Delay", &delay, "Capture", "Delay")->setRange(0, 60)->setSuffix(" s");
    settings.addConfStrWithCombobox("Format", {"PNG", "JPEG"}, &format, "Capture", "Format")
        ->setConfChangedCallback([&format](const QString &, const ConfValue *) {
            qInfo() << "The format is now" << format;
        });

    // Load what earlier runs saved into the variables. Changes are saved after a second.
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
    QDir().mkpath(folder);
    ConfStorage::instance()->useRobustFiles();
    ConfStorage::instance()->mLocalSaveFile = folder + "/settings.json";
    ConfStorage::instance()->loadLocalConfFile();

    // An edit changes the variable at once.
    settings.ShowWindow();
    return app.exec();
}
