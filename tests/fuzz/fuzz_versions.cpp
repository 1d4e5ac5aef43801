// A file that an older version of the program wrote, read by the current version, by the older one
// and by the current one again, and so on. The first byte of the input chooses the options, the
// rest is the text of the file.
#include "FuzzTarget.h"
#include "StoreHost.h"
#include "support/FileText.h"

#include <QJsonDocument>

namespace {

StoreDeclarations currentDeclarations()
{
    StoreDeclarations all;
    all.settings.push_back({"Bool", ConfValue::TyBool, 0});
    all.settings.push_back({"Int", ConfValue::TyInt32, 0});
    all.settings.push_back({"Marked", ConfValue::TyInt32, ConfStorage::FlagSystemIndependent});
    all.settings.push_back({"Text", ConfValue::TyQString, 0});
    all.families.push_back({"p.", 0, true});
    return all;
}

StoreDeclarations olderDeclarations()
{
    StoreDeclarations all;
    all.settings.push_back({"Bool", ConfValue::TyQString, 0});
    all.settings.push_back({"OldInt", ConfValue::TyInt32, 0});
    all.settings.push_back({"OldMarked", ConfValue::TyInt32, ConfStorage::FlagSystemIndependent});
    all.settings.push_back({"Removed", ConfValue::TyQString, 0});
    all.settings.push_back({"Text", ConfValue::TyInt32, 0});
    return all;
}

constexpr quint32 sOptions = ConfStorage::LongTimes | ConfStorage::NullIsDefault
                             | ConfStorage::StrictTypes | ConfStorage::KeepUnknownEntries;

QString scratchFile()
{
    static const QString sPath = scratchFolder() + "/versions.json";
    return sPath;
}

/// A version of the program that has loaded its local file.
class VersionHost : public StoreHost
{
public:
    VersionHost(const StoreDeclarations &declarations, quint32 options) : StoreHost(declarations)
    {
        store.mLocalSaveFile = scratchFile();
        store.mFileOptions = options;
    }

    /// Saves the local file and returns its text.
    QByteArray save()
    {
        store.mChanged = true;
        store.saveToLocalConfFile();
        return fileText(scratchFile());
    }
};

class CurrentHost : public VersionHost
{
public:
    explicit CurrentHost(quint32 options) : VersionHost(currentDeclarations(), options)
    {
        store.addFormerName("Int", "OldInt");
        store.addFormerName("OldInt", "OlderInt", false);
        store.addFormerName("Marked", "OldMarked");
        store.setConfConverter("Bool", [](const QJsonValue &value) {
            return value.isString() ? QJsonValue(value.toString() == "on") : value;
        });
        store.setConfConverter("Text", [](const QJsonValue &value) {
            return value.isDouble() ? QJsonValue(QString::number(value.toDouble())) : value;
        });
        store.loadLocalConfFile();
    }
};

class OlderHost : public VersionHost
{
public:
    explicit OlderHost(quint32 options) : VersionHost(olderDeclarations(), options)
    {
        store.loadLocalConfFile();
    }
};

QByteArray jsonText(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

/// Returns whether loading the file again changes nothing: each entry has its timestamp, and no two
/// have names that differ in the system mark only, as the second of them may win.
bool isRepeatable(const QJsonObject &file)
{
    for (auto it = file.begin(); it != file.end(); ++it) {
        if (!it->toObject().contains("t") || file.contains(addSysMark(it.key())))
            return false;
    }
    return true;
}

/// Returns whether a version of the program writes such entries: a change or a removal, not both,
/// with a time that counts, and removals of dynamic keys only.
bool isWellFormed(const QJsonObject &file)
{
    for (auto it = file.begin(); it != file.end(); ++it) {
        const QJsonObject entry = it->toObject();
        const bool isRemoval = entry.contains("d");
        const double time = entry.value(isRemoval ? "d" : "t").toDouble();
        if (time < 1 || time > 9007199254740991.0) // of LongTimes
            return false;
        if (isRemoval && (entry.size() > 1 || !it.key().startsWith("p.")))
            return false;
    }
    return true;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    startFuzzing();
    if (size == 0)
        return 0;
    const quint32 options = data[0] & 1 ? sOptions | ConfStorage::ResolveTies : sOptions;
    const QByteArray text = bytesOf(data + 1, size - 1);
    const QJsonDocument document = QJsonDocument::fromJson(text);
    if (!document.isObject())
        return 0;

    writeScratchFile(scratchFile(), text);
    CurrentHost first(options);
    const QByteArray saved = first.save();
    if (isRepeatable(document.object())) {
        writeScratchFile(scratchFile(), text);
        first.calls.clear();
        first.store.loadLocalConfFile();
        const QByteArray again = first.save();
        expect(again == saved, "loading again changes nothing", again, saved);
        expect(first.calls.isEmpty(), "loading again calls no callback");
    }
    if (!isWellFormed(QJsonDocument::fromJson(saved).object()))
        return 0;
    const QJsonObject values = CurrentHost(options).values();
    OlderHost(options).save();
    CurrentHost second(options);
    expect(second.values() == values, "an older version loses no value", jsonText(second.values()),
           jsonText(values));

    // From the second time on, every entry has its final form.
    const QByteArray savedAgain = second.save();
    OlderHost(options).save();
    CurrentHost third(options);
    const QByteArray last = third.save();
    expect(last == savedAgain, "an older version loses no entry", last, savedAgain);
    return 0;
}
