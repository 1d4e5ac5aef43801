#include <MaltoConfiguration/manage/MtConfManage.h>

#include "DeclarationCheck_p.h"
#include "ValueOrigins_p.h"
#include "WindowMemory_p.h"

#include <QDebug>

#include <algorithm>

namespace MtConf {

namespace {

/// Returns the address of an element without detaching the list, which would move every element.
template<class T> T *addressAt(const ItemList<T> &list, typename ItemList<T>::size_type index)
{
    return const_cast<T *>(&list.at(index));
}

/// Returns the first element that `matches`, or null.
template<class T, class Predicate> T *findFirst(const ItemList<T> &list, Predicate matches)
{
    const auto found = std::find_if(list.cbegin(), list.cend(), matches);
    return found != list.cend() ? const_cast<T *>(&*found) : nullptr;
}

/// Appends an element and keeps the addresses of the others valid.
template<class T>
T *appendKeepingAddresses(ItemList<T> &list, const T &element, QList<ItemList<T>> &shared)
{
    if (!list.isDetached())
        shared.append(list);
    list.append(element);
    return addressAt(list, list.size() - 1);
}

} // namespace

MtConfManage::MtConfManage(QObject *parent) : QObject(parent)
{
    liveManagers().append(this);
}

ConfItem *MtConfManage::addConfItem(ConfItem &item)
{
    addMajorConfItemIfNotExist(item.majorName);
    return addItem(item);
}

/// Adds a copy of an item whose class need not exist.
ConfItem *MtConfManage::addItem(const ConfItem &item)
{
    if (windowFeatures)
        prepareFeatures();
    return appendKeepingAddresses(items, item, mSharedItems);
}

/// Creates what the features of the window need before the files are loaded.
void MtConfManage::prepareFeatures()
{
    if ((windowFeatures & DetailsFeature) && !mOrigins)
        mOrigins = std::make_unique<ValueOrigins>();
    if (windowFeatures & (HostNameFeature | NavigationFeature))
        WindowMemory::instance();
}

ConfItem *MtConfManage::getItemByName(const QString &majorName, const QString &name,
                                      const QString &subName)
{
    return findFirst(items, [&](const ConfItem &item) {
        return item.majorName == majorName && item.name == name && item.subName == subName;
    });
}

QList<ConfItem *> MtConfManage::getConfItemList(const QString &majorName)
{
    QList<ConfItem *> found;
    if (!getMajorConfItemByName(majorName)) {
        qWarning() << "major class not exist: " << majorName;
        return found;
    }
    for (int i = 0; i < items.size(); ++i) {
        if (items.at(i).majorName == majorName)
            found.append(addressAt(items, i));
    }
    return found;
}

MajorConfItem *MtConfManage::addMajorConfItemIfNotExist(const QString &name)
{
    if (MajorConfItem *existing = getMajorConfItemByName(name))
        return existing;
    if (windowFeatures)
        prepareFeatures();
    MajorConfItem major;
    major.name = name;
    return appendKeepingAddresses(majorItems, major, mSharedMajorItems);
}

MajorConfItem *MtConfManage::getMajorConfItemByName(const QString &name)
{
    return findFirst(majorItems, [&](const MajorConfItem &major) { return major.name == name; });
}

void MtConfManage::setMajorWidget(const QString &name, std::function<QWidget *(QWidget *)> factory)
{
    addMajorConfItemIfNotExist(name)->majorWidget = std::move(factory);
}

void MtConfManage::setConfigClassFlag(const QString &name, int flag)
{
    addMajorConfItemIfNotExist(name)->classFlag = flag;
}

} // namespace MtConf
