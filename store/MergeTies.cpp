#include "MergeTies_p.h"

#include "BoundCopy_p.h"
#include "JsonText_p.h"

#include <MaltoConfiguration/store/ConfStorage.h>

namespace {

/// A change of a higher rank wins.
enum class Rank {
    None, // nothing that a dump contains
    Default,
    Value,
    Removal
};

Rank rankOf(const ConfStorage &store, const QString &key)
{
    const auto value = store.mConfValues.constFind(key);
    if (value == store.mConfValues.constEnd())
        return store.mRemovedDynamicConfs.contains(key) ? Rank::Removal : Rank::None;
    const auto meta = store.mConfMetas.constFind(key);
    const bool isDefault = meta == store.mConfMetas.constEnd()
                           || (meta->flags & ConfStorage::FlagIsDefault);
    return isDefault ? Rank::Default : Rank::Value;
}

/// A number that JSON does not have is dumped as the default value. Its text, as "inf" in quotes,
/// is smaller than that of any other number, so it loses as the default value does.
QByteArray textOf(const ConfValue &value)
{
    QByteArray text;
    appendJsonValue(text, value.toJsonValue());
    return text;
}

} // namespace

bool incomingWinsTie(const ConfStorage &store, const QString &key, bool isRemoval,
                     const QJsonValue &value)
{
    const Rank storedRank = rankOf(store, key);
    const Rank rank = isRemoval ? Rank::Removal : value.isUndefined() ? Rank::Default : Rank::Value;
    if (rank != storedRank || rank != Rank::Value)
        return rank > storedRank;
    const ConfValue stored = store.mConfValues.value(key);
    if (stored.mType == ConfValue::TyNone || stored.toJsonValue() == value)
        return false;
    // Before a font is logged: a log handler may destroy the variable.
    const QByteArray storedText = textOf(stored);
    // Several texts can describe one value. Other copies get the one that this store would dump.
    BoundCopy incoming = boundCopy(stored);
    incoming.value.loadFromJsonValue(value);
    return textOf(incoming.value) > storedText;
}
