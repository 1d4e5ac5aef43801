// A file that another program changes. The first byte of the input chooses the options and the
// changes of this program. The rest is the text of the file when it is loaded, and behind a zero
// byte that of the next save. Without one nobody changes the file.
#include "FuzzTarget.h"
#include "StoreHost.h"
#include "support/FileText.h"

#include <QJsonDocument>

namespace {

StoreDeclarations declarations()
{
    StoreDeclarations all;
    all.settings.push_back({"Int", ConfValue::TyInt32, 0});
    all.settings.push_back({"Text", ConfValue::TyQString, 0});
    all.settings.push_back({"Font", ConfValue::TyQFont, 0});
    all.settings.push_back({"Marked", ConfValue::TyInt32, ConfStorage::FlagSystemIndependent});
    all.settings.push_back({"Local", ConfValue::TyInt32, ConfStorage::FlagLocalOnly});
    all.families.push_back({"p.", 0, true});
    all.families.push_back({"m.", ConfStorage::FlagSystemIndependent, true});
    all.presets.insert("p.preset", QJsonObject{{"n", 1}});
    return all;
}

QByteArray jsonText(const QJsonValue &value)
{
    return QJsonDocument(QJsonObject{{"value", value}}).toJson(QJsonDocument::Compact);
}

/// Changes settings and entries, and returns the names of their members.
QStringList change(StoreHost &host, int choices)
{
    ConfStorage &store = host.store;
    QStringList names;
    if (choices & 1) {
        store.set<int>("Int", 4711);
        names << "Int";
    }
    if (choices & 2) {
        store.set<int>("Marked", 4711);
        names << "Marked#s.mac";
    }
    if (choices & 4) {
        if (store.mConfValues.contains("p.1"))
            store.removeDynamicConf("p.1");
        else
            store.createDynamicConf("p.1", QJsonObject{{"n", 4711}}, nullptr);
        names << "p.1";
    }
    if (choices & 8) {
        if (store.mConfValues.contains("m.1"))
            store.set("m.1", QJsonObject{{"n", 4711}});
        else
            store.createDynamicConf("m.1", QJsonObject{{"n", 4711}}, nullptr);
        names << "m.1#s.mac";
    }
    return names;
}

/// Returns the other name of a key, with or without the system mark.
QString otherName(const QString &name)
{
    const QString mark = addSysMark(QString());
    return name.endsWith(mark) ? name.chopped(mark.size()) : addSysMark(name);
}

/// Returns the time of a change or a removal, or a negative number if there is none.
double timeOf(const QJsonValue &entry)
{
    const QJsonObject object = entry.toObject();
    return object.value(object.contains("d") ? "d" : "t").toDouble(-1);
}

/// Returns `value` as files have it: Qt 6 can also hold whole numbers that no double has.
QJsonValue withDoubles(const QJsonValue &value)
{
    if (value.isDouble())
        return value.toDouble();
    if (value.isArray()) {
        QJsonArray array = value.toArray();
        for (int i = 0; i < array.size(); ++i)
            array.replace(i, withDoubles(array.at(i)));
        return array;
    }
    if (value.isObject()) {
        QJsonObject object = value.toObject();
        for (auto it = object.begin(); it != object.end(); ++it)
            it.value() = withDoubles(it.value());
        return object;
    }
    return value;
}

/// Returns the entry of this program for the member `name` in its local file.
QJsonValue entryOf(const StoreHost &host, const QString &name)
{
    return QJsonDocument::fromJson(host.dump()).object().value(name);
}

/// Returns whether the entry of `saved` is the newer one of an unknown key that was loaded before.
bool isNewerKept(const StoreHost &host, const QString &name, const QJsonValue &saved,
                 const QJsonValue &theirs)
{
    return (host.store.mFileOptions & ConfStorage::KeepUnknownEntries)
           && timeOf(saved) > timeOf(theirs)
           && withDoubles(saved) == withDoubles(entryOf(host, name));
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    startFuzzing();
    static const StoreDeclarations sDeclarations = declarations();
    static const QString sPath = scratchFolder() + "/shared.json";
    if (size == 0)
        return 0;
    const int choices = data[0];
    const QByteArray texts = bytesOf(data + 1, size - 1);
    const auto end = texts.indexOf('\0');
    const QByteArray loaded = end < 0 ? texts : texts.left(end);
    const QByteArray changed = end < 0 ? texts : texts.mid(end + 1);

    StoreHost host(sDeclarations);
    host.store.mLocalSaveFile = sPath;
    host.store.mFileOptions = ConfStorage::SharedFile;
    if (choices & 16)
        host.store.mFileOptions |= ConfStorage::KeepUnknownEntries;
    if (choices & 32)
        host.store.mFileOptions |= ConfStorage::StrictTypes;
    if (choices & 64)
        host.store.mFileOptions |= ConfStorage::LongTimes | ConfStorage::NullIsDefault;
    writeScratchFile(sPath, loaded);
    host.store.loadLocalConfFile();
    expect(fileText(sPath) == loaded, "a load does not change the file");

    const QStringList names = change(host, choices);
    QJsonObject ours;
    for (const QString &name : names)
        ours.insert(name, entryOf(host, name));
    writeScratchFile(sPath, changed);
    host.store.mChanged = true;
    host.store.saveToLocalConfFile();
    expect(!host.store.mChanged, "the save is acknowledged");
    const QByteArray content = fileText(sPath);
    const QJsonDocument document = QJsonDocument::fromJson(content);
    expect(document.isObject(), "the file is an object", content);
    const QJsonObject saved = document.object();
    for (const QString &name : names) {
        const QJsonObject own = ours.value(name).toObject(), entry = saved.value(name).toObject();
        expect(entry.value("v") == own.value("v") && entry.contains("d") == own.contains("d")
                   && timeOf(entry) >= timeOf(own),
               "a changed entry is saved", content, name.toUtf8());
    }
    const QJsonObject theirs = QJsonDocument::fromJson(changed).object();
    for (auto it = theirs.begin(); it != theirs.end(); ++it) {
        const QJsonValue entry = saved.value(it.key());
        expect(names.contains(it.key()) || entry == it.value()
                   || isNewerKept(host, it.key(), entry, it.value()),
               "an entry that was not changed here is kept", content, it.key().toUtf8());
    }

    StoreHost other(sDeclarations);
    other.store.mLocalSaveFile = sPath;
    other.store.mFileOptions = host.store.mFileOptions;
    other.store.loadLocalConfFile();
    expect(!other.store.mChanged && fileText(sPath) == content,
           "another program only reads the file", fileText(sPath), content);
    const double latest = choices & 64 ? 9007199254740991.0 : 2147483647.0;
    for (const QString &name : names) {
        const QJsonValue entry = entryOf(other, name);
        // The second after the last one that is accepted counts as 0. An entry with the other name
        // of the key may be newer.
        expect(entry == saved.value(name) || timeOf(saved.value(name)) > latest
                   || saved.contains(otherName(name)),
               "another program loads what was changed here", jsonText(entry), content);
    }
    return 0;
}
