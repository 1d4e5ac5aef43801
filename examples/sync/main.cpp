// Two copies of a configuration, changed apart and brought together: on each machine dump, put the
// dump where the other one finds it, and load what the other one has put there.
#include <MaltoConfiguration/store/ConfStorage.h>

#include <QCoreApplication>
#include <QJsonObject>
#include <QTextStream>

namespace {

/// One machine: its variables and its store. A program has one of each, and its store is
/// `ConfStorage::instance()`.
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

    /// As if a person had changed it at that second.
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
    laptop.change("Capture.Delay", 9, 1700000200); // later: this one wins
    laptop.change("General.Sound", false, 1700000050);

    // A shared folder, a server, a stick: any way to bring the objects across, in any order.
    const QJsonObject fromDesktop = desktop.store.dumpConf(ConfStorage::DumpShared);
    const QJsonObject fromLaptop = laptop.store.dumpConf(ConfStorage::DumpShared);
    laptop.store.loadConf(fromDesktop, ConfStorage::LoadShared);
    desktop.store.loadConf(fromLaptop, ConfStorage::LoadShared);

    desktop.print();
    laptop.print();
    return 0;
}
