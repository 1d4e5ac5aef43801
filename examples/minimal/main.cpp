#include <MaltoConfiguration/MaltoConfiguration.h>

#include <QApplication>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);

    // Your variables, at their defaults. The program reads them like any others.
    bool playSound = true;
    int delay = 3;

    // One line for each: its label, its variable, its page and its name.
    MtConf::MtConfManage settings;
    settings.addConfBool("Play a sound", &playSound, "General", "Sound");
    settings.addConfInt32("Delay in seconds", &delay, "Capture", "Delay");

    // What was changed in earlier runs goes into the variables, before anybody reads them.
    ConfStorage::instance()->mLocalSaveFile = "settings.json";
    ConfStorage::instance()->loadLocalConfFile();

    // From here on an edit changes the variable at once, and closing the window saves it.
    settings.ShowWindow();
    return app.exec();
}
