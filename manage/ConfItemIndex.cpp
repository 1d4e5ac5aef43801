#include <MaltoConfiguration/manage/ConfItemIndex_p.h>

#include <MaltoConfiguration/manage/ConfItem.h>

namespace MtConf {

uint qHash(const ConfItemIndex::Names &names, uint seed)
{
    QtPrivate::QHashCombine combine;
    seed = combine(seed, names.majorName);
    seed = combine(seed, names.name);
    return combine(seed, names.subName);
}

ConfItemIndex::Names ConfItemIndex::namesOf(const ConfItem &item)
{
    return {item.majorName, item.name, item.subName};
}

const ConfItem *ConfItemIndex::find(const QString &majorName, const QString &name,
                                    const QString &subName)
{
    if (isStale())
        rebuild();
    const Names names{majorName, name, subName};
    int index = mFirst.value(names, -1);
    // A swap inside the list makes and destroys no item; it shows only here.
    if (index >= 0 && !(namesOf(mItems.at(index)) == names)) {
        rebuild();
        index = mFirst.value(names, -1);
    }
    return index >= 0 ? &mItems.at(index) : nullptr;
}

bool ConfItemIndex::isStale() const
{
    return mSize != mItems.size() || mRevision != ConfItemRevision::current()
        || (mSize > 0 && mData != &mItems.first());
}

void ConfItemIndex::rebuild()
{
    mFirst.clear();
    mFirst.reserve(mItems.size());
    for (int i = mItems.size() - 1; i >= 0; --i)
        mFirst.insert(namesOf(mItems.at(i)), i);
    mSize = mItems.size();
    mData = mItems.isEmpty() ? nullptr : &mItems.first();
    mRevision = ConfItemRevision::current();
}

} // namespace MtConf
