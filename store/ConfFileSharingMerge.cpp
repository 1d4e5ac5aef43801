#include "ConfFileSharing_p.h"

#include "ConfDump_p.h"
#include "ConfKeptEntries_p.h"
#include "EntryTexts_p.h"

#include <algorithm>

// Merges what this store has changed into the text of the file.

namespace {

/// The members of some keys, to be asked for in their order.
class NamesInOrder
{
public:
    explicit NamesInOrder(const QSet<QString> &keys)
    {
        mNames.reserve(2 * static_cast<size_t>(keys.size()));
        for (const QString &key : keys) {
            mNames.push_back(key);
            mNames.push_back(addSysMark(key));
        }
        std::sort(mNames.begin(), mNames.end());
        mNext = mNames.cbegin();
    }

    bool contains(const QString &name)
    {
        while (mNext != mNames.cend() && *mNext < name)
            ++mNext;
        return mNext != mNames.cend() && *mNext == name;
    }

private:
    std::vector<QString> mNames;
    std::vector<QString>::const_iterator mNext;
};

} // namespace

/// Returns the text of the merged file. Takes the entries of others that touched ones yield to.
QByteArray ConfFileSharing::merged(const ConfDump &dump, const QSet<QString> &touched)
{
    const std::vector<NamedText> theirs = sortedByName(*mMembers);
    NamesInOrder touchedNames(touched);
    QByteArray text;
    text.reserve(mText.size() + mText.size() / 8 + 64);
    text += '{';
    auto their = theirs.cbegin();
    for (size_t i = 0; i < dump.size(); ++i) {
        const ConfDump::Entry ours = dump.at(i);
        for (; their != theirs.cend() && their->name < ours.name; ++their)
            EntryTexts::appendMember(&text, their->name, their->value);
        if (their == theirs.cend() || their->name != ours.name) {
            EntryTexts::appendMember(&text, ours.name,
                                     EntryTexts::view(dump.entryText(i, ours.time)));
            continue;
        }
        if (touchedNames.contains(ours.name))
            EntryTexts::appendMember(&text, ours.name,
                                     EntryTexts::view(winner(dump, i, their->value)));
        else if (ours.isKept)
            EntryTexts::appendMember(&text, ours.name,
                                     EntryTexts::view(keptWinner(dump, i, their->value)));
        else
            EntryTexts::appendMember(&text, ours.name, their->value);
        ++their;
    }
    for (; their != theirs.cend(); ++their)
        EntryTexts::appendMember(&text, their->name, their->value);
    text += '}';
    return text;
}

/// Returns the entry of a touched key, or that of the file.
QByteArray ConfFileSharing::winner(const ConfDump &dump, size_t index, std::string_view theirs)
{
    const ConfDump::Entry ours = dump.at(index);
    const QByteArray entry = dump.entryText(index, ours.time);
    if (EntryTexts::view(entry) == theirs)
        return entry;
    const qint64 theirTime = EntryTexts::timeOf(theirs, timeRange());
    if (mContested.contains(ours.name) && yields(ours.time, theirTime)) {
        mForeign[ours.name] = EntryTexts::toBytes(theirs);
        return EntryTexts::toBytes(theirs);
    }
    if (theirTime < ours.time)
        return entry;
    if (ours.isKept)
        return mStore.mKeptEntries ? mStore.mKeptEntries->stamp(ours.name, theirTime + 1) : entry;
    stamp(EntryTexts::keyOf(ours.name), theirTime + 1);
    return dump.entryText(index, theirTime + 1);
}

/// Returns the kept entry of a key that is not touched, or that of the file. They differ if others
/// have changed the entry, or if it got a timestamp when it was loaded.
QByteArray ConfFileSharing::keptWinner(const ConfDump &dump, size_t index,
                                       std::string_view theirs) const
{
    const ConfDump::Entry ours = dump.at(index);
    const bool isNewer = !mForeign.contains(ours.name)
                         && ours.time > EntryTexts::timeOf(theirs, timeRange());
    return isNewer ? dump.entryText(index, ours.time) : EntryTexts::toBytes(theirs);
}

/// Returns whether a change here yields to that of the file.
bool ConfFileSharing::yields(qint64 ourTime, qint64 theirTime)
{
    return theirTime > ourTime && theirTime <= QDateTime::currentSecsSinceEpoch();
}

void ConfFileSharing::stamp(const QString &key, qint64 seconds)
{
    const QDateTime time = QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
    const auto meta = mStore.mConfMetas.find(key);
    const auto removed = mStore.mRemovedDynamicConfs.find(key);
    if (meta != mStore.mConfMetas.end())
        meta->lastChangeTime = time;
    else if (removed != mStore.mRemovedDynamicConfs.end())
        *removed = time;
}
