#include "FuzzTarget.h"
#include "StoreHost.h"

#include <QJsonDocument>
#include <QSet>

namespace {

QByteArray jsonText(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

/// Returns the key of a member of a configuration, or null if it belongs to another system.
QString storeKey(const QString &member)
{
    const auto mark = member.lastIndexOf('#');
    if (mark < 0)
        return member;
    return member.mid(mark) == "#s.mac" ? member.left(mark) : QString();
}

QSet<QString> namedKeys(const QJsonObject &document)
{
    QSet<QString> keys;
    for (auto it = document.begin(); it != document.end(); ++it)
        keys.insert(storeKey(it.key()));
    return keys;
}

bool everyEntryHasItsTime(const QJsonObject &document)
{
    for (auto it = document.begin(); it != document.end(); ++it) {
        if (!it->toObject().contains("t"))
            return false;
    }
    return true;
}

void expectDeclaredKeysOnly(const StoreHost &host)
{
    for (auto it = host.store.mConfValues.begin(); it != host.store.mConfValues.end(); ++it)
        expect(host.isDeclared(it.key()), "no unknown key has a value", it.key().toUtf8());
    for (auto it = host.store.mConfMetas.begin(); it != host.store.mConfMetas.end(); ++it)
        expect(host.isDeclared(it.key()), "no unknown key has a record", it.key().toUtf8());
    const auto &removed = host.store.mRemovedDynamicConfs;
    for (auto it = removed.begin(); it != removed.end(); ++it)
        expect(host.isDeclared(it.key()), "no unknown key has a tombstone", it.key().toUtf8());
}

void expectNamedVariablesOnly(const std::map<QString, StoreHost::Variable> &before,
                              const StoreHost &host, const QJsonObject &document,
                              ConfStorage::LoadConfType type)
{
    const QSet<QString> named = namedKeys(document);
    const auto after = host.variables();
    for (const auto &[key, variable] : after) {
        if (variable == before.at(key))
            continue;
        expect(named.contains(key), "a variable changes only if its key is loaded", key.toUtf8());
        // For dynamic keys the class decides whether they are local, not the record.
        const bool local = host.store.mConfMetas.value(key).flags & ConfStorage::FlagLocalOnly;
        expect(!local || host.store.findDynamicConfClass(key) || type == ConfStorage::LoadLocal,
               "a shared load does not change local-only settings", key.toUtf8());
    }
}

/// Ignores values that are null: JSON null creates a missing dynamic key with an empty object, but
/// unbinds an existing one.
void expectSameValues(const QJsonObject &found, const QJsonObject &expected)
{
    for (auto it = found.begin(); it != found.end(); ++it)
        expect(it->isNull() || it.value() == expected.value(it.key()),
               "loading again changes no value", jsonText(found), jsonText(expected));
}

void expectNothingFromLoadingAgain(StoreHost &host, const QJsonObject &document,
                                   ConfStorage::LoadConfType type)
{
    // An entry without a timestamp is a new change each time it is loaded. Then only the values
    // must be the same.
    const bool timed = everyEntryHasItsTime(document);
    // If two members have the same key, the result of the first may depend on the second when they
    // are loaded again. A dump never contains two.
    if (namedKeys(document).size() != document.size())
        return;
    const QByteArray dumped = host.dump();
    const QJsonObject values = host.values();
    host.calls.clear();
    host.store.loadConf(document, type);
    if (!timed) {
        expectSameValues(host.values(), values);
        return;
    }
    expect(host.values() == values, "loading again changes no value", jsonText(host.values()),
           jsonText(values));
    expect(host.dump() == dumped, "loading again changes nothing", host.dump(), dumped);
    expect(host.calls.isEmpty(), "loading again calls no callback");
}

bool isReadBack(const ConfValue &value)
{
    return value.mType != ConfValue::TyQKeySequence || ::isReadBack(value.get<QKeySequence>());
}

/// Returns the part of the dump that `other`, with the same declarations, can load.
QJsonObject portablePart(const StoreHost &host, const StoreHost &other)
{
    // Convert to text and back, as a file does: JSON text has no negative zero.
    QJsonObject dump = QJsonDocument::fromJson(host.dump()).object();
    const ConfStorage &store = host.store;
    for (auto it = store.mConfValues.begin(); it != store.mConfValues.end(); ++it) {
        const bool isDynamic = store.findDynamicConfClass(it.key());
        // Dynamic keys that another store creates differently: a restored one without a preset is
        // dumped without a value, one unbound by JSON null is created with an empty object, and one
        // set to exactly its preset is created as the preset.
        const ConfStorage::ConfMeta meta = store.mConfMetas.value(it.key());
        const bool isDefault = meta.flags & ConfStorage::FlagIsDefault;
        const bool isPreset = store.mPresetDynamicConfs.contains(it.key());
        const bool isLost = isDefault ? !isPreset : isPreset && *it == meta.defaultValue;
        const bool isEmpty = it->mType == ConfValue::TyNone;
        // An ordinary setting with the prefix of a dynamic class, if removed and created again, is
        // an object with the flags of the class.
        const auto declared = other.store.mConfValues.constFind(it.key());
        const quint32 declaredFlags = other.store.mConfMetas.value(it.key()).flags;
        const bool isReplaced = declared != other.store.mConfValues.constEnd()
                                && (declared->mType != it->mType
                                    || ((declaredFlags ^ meta.flags)
                                        & ~ConfStorage::FlagIsDefault));
        if ((isDynamic && (isLost || isEmpty || isReplaced)) || !isReadBack(*it)) {
            dump.remove(it.key());
            dump.remove(addSysMark(it.key()));
        }
    }
    return dump;
}

/// Returns whether a key contains "#", which the store reserves, or text that is not valid Unicode,
/// which a file cannot contain.
bool hasKeysThatFilesCannotName(const StoreHost &host)
{
    const QStringList keys = host.store.mConfValues.keys() + host.store.mRemovedDynamicConfs.keys();
    return std::any_of(keys.begin(), keys.end(), [](const QString &key) {
        return key.contains('#') || QString::fromUtf8(key.toUtf8()) != key;
    });
}

} // namespace

void checkLoading(const StoreDeclarations &declarations, const QJsonObject &document,
                  ConfStorage::LoadConfType type)
{
    StoreHost host(declarations);
    const auto before = host.variables();
    expect(host.store.loadConf(document, type) == document.size(),
           "loading returns the number of members");
    expectDeclaredKeysOnly(host);
    expectNamedVariablesOnly(before, host, document, type);
    expectNothingFromLoadingAgain(host, document, type);

    if (hasKeysThatFilesCannotName(host))
        return;
    StoreHost other(declarations);
    const QJsonObject portable = portablePart(host, other);
    expect(other.store.loadConf(QString::fromUtf8(jsonText(portable)), ConfStorage::LoadLocal),
           "a dump can be loaded", jsonText(portable));
    const QByteArray again = jsonText(QJsonDocument::fromJson(other.dump()).object());
    expect(again == jsonText(portable), "a dump is the same after loading and dumping", again,
           jsonText(portable));
}
