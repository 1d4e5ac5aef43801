// Merges two copies of a configuration that were changed independently. Each computer dumps its
// configuration, sends the dump to the other one, and loads the dump that it receives.
#include <MaltoConfiguration/store/ConfStorage.h>

#include <QCoreApplication>
#include <QJsonObject>
#include <QTextStream>

namespace {

/// One computer with its variables and its store. A real program uses `ConfStorage::instance()`.
struct Machine
{
    ConfStorage store;
    QString name;
    int delay = 3;
    bool sound = true;

    explicit Machine(const QString &machine) : name(machine)
    {
        store.reserveConf("Capture.Delay", &delay);
        store.reserveConf("General.Sound", &sound);
    }

    /// Changes a setting as if the user had changed it at that time (in seconds since 1970).
    void change(const QString &key, const QJsonValue &value, qint64 second)
    {
        store.loadSingleConf(key, QJsonObject{{"t", second}, {"v", value}},
                             ConfStorage::LoadShared);
    }

    void print() const
    {
        QTextStream(stdout) << name << ": delay " << delay << ", sound " << (sound ? "on" : "off")
                            << '\n';
    }
};

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    Machine desktop("desktop");
    Machine laptop("laptop");

    desktop.change("Capture.Delay", 5, 1700000100);
    laptop.change("Capture.Delay", 9, 1700000200); // newer, so this change wins
    laptop.change("General.Sound", false, 1700000050);

    // Send the objects in any way and in any order: with a shared folder, a server or a USB stick.
    const QJsonObject fromDesktop = desktop.store.dumpConf(ConfStorage::DumpShared);
    const QJsonObject fromLaptop = laptop.store.dumpConf(ConfStorage::DumpShared);
    laptop.store.loadConf(fromDesktop, ConfStorage::LoadShared);
    desktop.store.loadConf(fromLaptop, ConfStorage::LoadShared);

    desktop.print();
    laptop.print();
    return 0;
}
