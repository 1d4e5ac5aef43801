// The store without a settings window: a service that counts its starts.
#include <MaltoConfiguration/store/ConfStorage.h>

#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    QTextStream out(stdout);

    int starts = 0;
    QString greeting = "Hello";

    ConfStorage *store = ConfStorage::instance();
    store->reserveConf("Service.Starts", &starts);
    store->reserveConf("Service.Greeting", &greeting);
    store->setConfChangedCallback("Service.Starts",
                                  [&out](const QString &key, const ConfValue *value) {
                                      out << key << " is now " << value->get<int>() << '\n';
                                  });

    store->useRobustFiles();
    store->mLocalSaveFile = QCoreApplication::arguments().value(1, "service.json");
    store->loadLocalConfFile();

    store->set("Service.Starts", starts + 1);
    out << greeting << '\n' << store->debugTable();
    store->saveToLocalConfFile();
    return 0;
}
