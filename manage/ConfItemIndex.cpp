#include "ConfItemIndex_p.h"

#include <MaltoConfiguration/manage/ConfItem.h>

namespace MtConf {

namespace {

constexpr QLatin1Char sSeparator('.');

/// Returns whether a file can name the item: a separator within a name would split it.
bool isInFiles(const ConfItem &item)
{
    return !item.majorName.contains(sSeparator) && !item.name.contains(sSeparator)
           && !item.subName.contains(sSeparator);
}

/// Returns the full name of the item of this member, or null if the member is not for an item.
QString fullNameOf(const QString &memberName)
{
    const auto separators = memberName.count(sSeparator);
    if (separators != 1 && separators != 2)
        return QString();
    const bool isLastEmpty = separators == 2 && memberName.endsWith(sSeparator);
    return isLastEmpty ? memberName.chopped(1) : memberName;
}

} // namespace

const ConfItem *ConfItemIndex::find(const QString &memberName)
{
    if (isStale())
        rebuild();
    const QString fullName = fullNameOf(memberName);
    if (fullName.isNull())
        return findFormer(memberName);
    Index index = mFirst.value(fullName, -1);
    // Swapping items within the list copies and assigns none; it is noticed only here.
    if (index >= 0
        && (!isInFiles(mItems.at(index)) || mItems.at(index).getFullName() != fullName)) {
        rebuild();
        index = mFirst.value(fullName, -1);
    }
    return index >= 0 ? &mItems.at(index) : findFormer(memberName);
}

const ConfItem *ConfItemIndex::findFormer(const QString &memberName)
{
    const Index index = mFormer.value(memberName, -1);
    const bool isFound = index >= 0 && mItems.at(index).formerNames.contains(memberName);
    return isFound ? &mItems.at(index) : nullptr;
}

bool ConfItemIndex::isStale() const
{
    return mSize != mItems.size() || mRevision != itemRevision()
           || (mSize > 0 && mData != &mItems.first());
}

void ConfItemIndex::rebuild()
{
    mFirst.clear();
    mFormer.clear();
    mFirst.reserve(mItems.size());
    for (Index i = mItems.size() - 1; i >= 0; --i) {
        if (isInFiles(mItems.at(i)))
            mFirst.insert(mItems.at(i).getFullName(), i);
        for (const QString &formerName : mItems.at(i).formerNames)
            mFormer.insert(formerName, i);
    }
    mSize = mItems.size();
    mData = mItems.isEmpty() ? nullptr : &mItems.first();
    mRevision = itemRevision();
}

} // namespace MtConf
