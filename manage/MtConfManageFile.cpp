#include <MaltoConfiguration/manage/MtConfManage.h>

#include "ConfItemIndex_p.h"
#include "ValueOrigins_p.h"
#include <MaltoConfiguration/manage/helpers.h>

#include <QJsonObject>
#include <QPointer>

namespace MtConf {

namespace {

/// Returns whether `members` has the current name of the item besides its former name `memberName`.
bool isOutdated(const ConfItem &item, const QString &memberName, const QJsonObject &members)
{
    return item.formerNames.contains(memberName) && members.contains(item.getFullName());
}

} // namespace

void MtConfManage::_loadFromFile(QString path)
{
    confFilePath = path;
    const QJsonObject members = readJsonFromFile(path).object();
    ConfItemIndex index(items);
    const QPointer<MtConfManage> self(this); // a callback may destroy the manager
    const ValueOrigins::Scope scope(mOrigins.get(), ValueOrigins::Origin::ConfigurationFile);
    for (auto member = members.constBegin(); member != members.constEnd(); ++member) {
        const QString key = member.key();
        const ConfItem *item = index.find(key);
        if (item && !isOutdated(*item, key, members))
            item->loadFromJsonValue(member.value());
        if (!self)
            return;
    }
}

void MtConfManage::loadFromFile(QString path)
{
    const QPointer<MtConfManage> self(this);
    _loadFromFile(path);
    if (self)
        runAfterLoadFromFile();
}

void MtConfManage::saveToFile()
{
    commitEditors();
    ConfStorage::instance()->saveToLocalConfFile();
}

void MtConfManage::restoreAllDefault()
{
    // The hook may replace itself, a callback may change the list, and both may destroy the
    // manager.
    const QPointer<MtConfManage> self(this);
    const std::function<void()> hook = restoreAllHook;
    if (hook)
        hook();
    for (int i = 0; self && i < items.size(); ++i)
        items.at(i).restoreDefault();
}

} // namespace MtConf
