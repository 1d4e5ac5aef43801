// Writes dumps of the store with every type and every kind of entry: writeDumps <folder>
#include <MaltoConfiguration/store/ConfStorage.h>

#include <QFile>
#include <QGuiApplication>
#include <QJsonDocument>

namespace {

void write(const QString &path, const QJsonObject &object)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(QJsonDocument(object).toJson()) < 0)
        qFatal("cannot write %s", qPrintable(path));
}

/// Declares `key` and changes it.
template<class T> void change(const QString &key, T &variable, const T &value)
{
    ConfStorage::instance()->reserveConf(key, &variable);
    ConfStorage::instance()->set(key, value);
}

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication app(argc, argv);
    const QString folder = app.arguments().at(1);
    ConfStorage *store = ConfStorage::instance();

    int number = 1, restored = 1, untouched = 1, local = 1, ofSystem = 1;
    double fraction = 1;
    bool on = true;
    QString text;
    QColor color, none(Qt::red);
    QFont font;
    QKeySequence keys;
    QJsonObject object, entry;
    QJsonArray array;
    change("Types.Int", number, 7);
    change("Types.Double", fraction, 2.25);
    change("Types.Bool", on, false);
    change("Types.Text", text, QString("Grüße"));
    change("Types.Color", color, QColor(255, 0, 0, 128));
    change("Types.NoColor", none, QColor());
    change("Types.Font", font, QFont("Liberation Sans", 12));
    change("Types.Keys", keys, QKeySequence("Ctrl+Shift+S"));
    change("Types.Object", object, QJsonObject{{"name", "Web"}});
    change("Types.Array", array, QJsonArray{1, "z"});
    change("Kinds.Restored", restored, 2);
    store->setToDefault("Kinds.Restored", true);
    store->reserveConf("Kinds.Untouched", &untouched);
    change("Kinds.Local", local, 2);
    store->mConfMetas["Kinds.Local"].flags |= ConfStorage::FlagLocalOnly;
    change("Kinds.OfSystem", ofSystem, 2);
    store->mConfMetas["Kinds.OfSystem"].flags |= ConfStorage::FlagSystemIndependent;

    ConfStorage::DynamicConfClass entries;
    entries.prefix = "Entry.";
    entries.creator = [&](const QString &key, const QJsonValue *value) {
        entry = value->toObject();
        store->reserveConf(key, &entry);
    };
    store->mDynamicConfClasses.append(&entries);
    store->createDynamicConf("Entry.1", QJsonObject{{"name", "News"}}, nullptr);
    store->removeDynamicConf("Entry.1");

    store->mLocalSaveFile = folder + "/local.json";
    store->saveToLocalConfFile();
    write(folder + "/shared.json", store->dumpConf(ConfStorage::DumpShared));
    write(folder + "/changed.json", store->dumpConf(ConfStorage::DumpChangedOnly));
    return 0;
}
