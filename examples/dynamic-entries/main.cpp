// Entries that the user adds and deletes at run time: bookmarks, one of them a preset.
#include <MaltoConfiguration/store/ConfStorage.h>

#include <QCoreApplication>
#include <QJsonObject>
#include <QTextStream>

#include <map>

namespace {

std::map<QString, QJsonObject> bookmarks; // the program's variables, one for each entry

void print(const char *heading)
{
    QTextStream out(stdout);
    out << heading << ":";
    for (const auto &entry : bookmarks)
        out << ' ' << entry.second["title"].toString();
    out << '\n';
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    ConfStorage *store = ConfStorage::instance();

    // The store calls these functions to create and remove the variable of an entry.
    ConfStorage::DynamicConfClass bookmark;
    bookmark.prefix = "Bookmarks.";
    bookmark.creator = [store](const QString &key, const QJsonValue *value) {
        bookmarks[key] = value->toObject();
        store->reserveConf(key, &bookmarks[key]);
    };
    bookmark.remover = [](const QString &key) { bookmarks.erase(key); };
    store->mDynamicConfClasses.append(&bookmark);

    // A preset exists from the first start until the user deletes it.
    store->mPresetDynamicConfs["Bookmarks.home"] = QJsonObject{{"title", "Home"}};
    store->useRobustFiles();
    store->mLocalSaveFile = QCoreApplication::arguments().value(1, "bookmarks.json");
    store->loadLocalConfFile();
    print("At the start");

    const QString key = "Bookmarks." + QString::number(bookmarks.size());
    store->createDynamicConf(key, QJsonObject{{"title", "Number " + key.mid(10)}}, &bookmark);
    store->removeDynamicConf("Bookmarks.home");
    print("One added, one deleted");
    store->saveToLocalConfFile();

    // Restore the presets: entries that the user added are removed, and deleted presets are created
    // again.
    store->restoreDynamicConf(bookmark.prefix);
    print("Restored");
    return 0;
}
