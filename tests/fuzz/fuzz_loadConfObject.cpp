// The bytes select the declarations of the host, the document to load, and the behaviour of the
// callbacks.
#include "ByteReader.h"
#include "FuzzTarget.h"
#include "StoreHost.h"

namespace {

QString randomKey(ByteReader &bytes)
{
    static const QStringList sKeys{"a",     "b",   "Group.c", "p", "p.1", "p.2",
                                   "p.1.x", "q.1", "q.2",     "",  "p.#", "a#s.mac"};
    return bytes.flag() ? bytes.oneOf(sKeys) : bytes.text(6);
}

StoreDeclarations randomDeclarations(ByteReader &bytes)
{
    StoreDeclarations all;
    QStringList keys;
    for (int i = bytes.below(6); i > 0; --i) {
        const QString key = randomKey(bytes);
        const auto type = static_cast<ConfValue::ConfType>(1 + bytes.below(9));
        const auto flags = static_cast<quint32>(bytes.below(4)) << 1;
        if (!keys.contains(key))
            all.settings.push_back({key, type, flags});
        keys.append(key);
    }
    for (int i = bytes.below(4); i > 0; --i) {
        const QString prefix = bytes.oneOf({"p", "p.", "q.", "", "p.1", "a"});
        const auto flags = static_cast<quint32>(bytes.below(4)) << 1;
        all.families.push_back({prefix, flags, bytes.below(4) != 1});
    }
    for (int i = bytes.below(3); i > 0; --i) {
        const QString key = randomKey(bytes);
        all.presets.insert(key, bytes.json(1));
    }
    return all;
}

QJsonValue randomTime(ByteReader &bytes)
{
    switch (bytes.below(7)) {
    case 0: return 1700000000 + bytes.byte();
    case 1: return 0;
    case 2: return -bytes.byte();
    case 3: return 2147483647;
    case 4: return 5e12;
    case 5: return 1.5;
    default: return bytes.json(0);
    }
}

QJsonObject randomDocument(ByteReader &bytes)
{
    QJsonObject document;
    for (int i = bytes.below(8); i > 0; --i) {
        QString name = randomKey(bytes);
        name += bytes.oneOf({"", "", "#s.mac", "#s.win", "#"});
        const int members = bytes.byte();
        QJsonObject entry;
        if (members & 1)
            entry.insert("t", randomTime(bytes));
        if (members & 2)
            entry.insert("v", bytes.json(3));
        if ((members & 12) == 12)
            entry.insert("d", randomTime(bytes));
        document.insert(name, members & 16 ? bytes.json(2) : QJsonValue(entry));
    }
    return document;
}

/// A re-entrant callback: it calls a random function of the store during a load.
void meddle(StoreHost &host, ByteReader &bytes, const QJsonObject &document, const QString &key)
{
    ConfStorage &store = host.store;
    if (bytes.atEnd())
        return;
    const QString other = bytes.flag() ? key : randomKey(bytes);
    switch (bytes.below(9)) {
    case 0: store.set<int>(key, bytes.byte()); return;
    case 1: store.setToDefault(other, bytes.flag()); return;
    case 2: store.removeDynamicConf(other); return;
    case 3: store.createDynamicConf(other, bytes.json(1), nullptr); return;
    case 4: store.restoreDynamicConf(bytes.text(2)); return;
    case 5: store.loadConf(document, ConfStorage::LoadLocal); return;
    case 6: store.loadPresetDynamicConf(); return;
    case 7: store.loadValueFromJson(other, bytes.json(1)); return;
    default: store.setConfChangedCallback(key, nullptr); return;
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    startFuzzing();
    ByteReader bytes(bytesOf(data, size));
    const auto type = bytes.flag() ? ConfStorage::LoadShared : ConfStorage::LoadLocal;
    const StoreDeclarations declarations = randomDeclarations(bytes);
    const QJsonObject document = randomDocument(bytes);
    if (bytes.flag()) {
        StoreHost host(declarations);
        host.onChange = [&](const QString &key) { meddle(host, bytes, document, key); };
        host.store.loadConf(document, type);
        host.dump();
        return 0;
    }
    checkLoading(declarations, document, type);
    return 0;
}
