#include <MaltoConfiguration/MaltoConfiguration.h>

#include <QApplication>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);

    // Your variables. Their initial values are the defaults.
    bool playSound = true;
    int delay = 3;

    // One line for each setting: label, variable, page, name.
    MtConf::MtConfManage settings;
    settings.addConfBool("Play a sound", &playSound, "General", "Sound");
    settings.addConfInt32("Delay in seconds", &delay, "Capture", "Delay");

    // Load what earlier runs saved into the variables. Changes are saved after a second.
    ConfStorage::instance()->useRobustFiles();
    ConfStorage::instance()->mLocalSaveFile = "settings.json";
    ConfStorage::instance()->loadLocalConfFile();

    // An edit changes the variable at once.
    settings.ShowWindow();
    return app.exec();
}
