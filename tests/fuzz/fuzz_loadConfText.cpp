// Any text as a dumped configuration, loaded by a host with every kind of setting.
#include "FuzzTarget.h"
#include "StoreHost.h"

#include <QJsonDocument>

namespace {

StoreDeclarations declarations()
{
    StoreDeclarations all;
    const QStringList keys{"None", "Color", "Int",  "Real",   "Bool",
                           "Text", "Font",  "Keys", "Object", "Array"};
    for (int type = 1; type <= 9; ++type)
        all.settings.push_back({keys.at(type), static_cast<ConfValue::ConfType>(type), 0});
    all.settings.push_back({"Marked", ConfValue::TyInt32, ConfStorage::FlagSystemIndependent});
    all.settings.push_back({"Local", ConfValue::TyInt32, ConfStorage::FlagLocalOnly});
    all.families.push_back({"p.", 0, true});
    all.families.push_back({"m.", ConfStorage::FlagSystemIndependent, true});
    all.families.push_back({"l.", ConfStorage::FlagLocalOnly, true});
    all.presets.insert("p.preset", QJsonObject{{"n", 1}});
    return all;
}

constexpr quint32 sLoadOptions = ConfStorage::LongTimes | ConfStorage::NullIsDefault
                                 | ConfStorage::RefuseFutureTimes;

/// A plain dump is loaded from its text without a QJsonDocument; the result must be the same.
void expectSameFromObject(const StoreDeclarations &declared, const QString &text, quint32 options,
                          ConfStorage::LoadConfType type)
{
    StoreHost host(declared);
    host.store.mFileOptions = options;
    host.store.loadConf(text, type);
    StoreHost parsed(declared);
    parsed.store.mFileOptions = options;
    parsed.store.loadConf(QJsonDocument::fromJson(text.toUtf8()).object(), type);
    expect(host.values() == parsed.values() && host.variables() == parsed.variables(),
           "text and object give the same values");
    expect(host.calls == parsed.calls, "text and object call the same callbacks");
    if (options & ConfStorage::NullIsDefault) {
        for (const ConfValue &value : std::as_const(host.store.mConfValues))
            expect(value.mType != ConfValue::TyNone, "null unbinds nothing");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    startFuzzing();
    static const StoreDeclarations sDeclarations = declarations();
    const QString text = textOf(data, size);

    StoreHost host(sDeclarations);
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8());
    const bool loaded = host.store.loadConf(text, ConfStorage::LoadLocal);
    expect(loaded == document.isObject(), "an object is loaded, and nothing else");
    if (!loaded) {
        expect(host.dump() == "{}" && host.calls.isEmpty(), "a failed load changes nothing");
        return 0;
    }
    const auto types = {ConfStorage::LoadLocal, ConfStorage::LoadShared};
    for (const ConfStorage::LoadConfType type : types) {
        expectSameFromObject(sDeclarations, text, 0, type);
        expectSameFromObject(sDeclarations, text, sLoadOptions, type);
    }
    checkLoading(sDeclarations, document.object(), ConfStorage::LoadLocal);
    checkLoading(sDeclarations, document.object(), ConfStorage::LoadShared);
    return 0;
}
