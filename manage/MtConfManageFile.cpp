#include <MaltoConfiguration/manage/MtConfManage.h>

#include <MaltoConfiguration/manage/ConfItemIndex_p.h>
#include <MaltoConfiguration/manage/helpers.h>

#include <QJsonObject>
#include <QStringList>

namespace MtConf {

void MtConfManage::_loadFromFile(QString path)
{
    confFilePath = path;
    const QJsonObject members = readJsonFromFile(path).object();
    ConfItemIndex index(items);
    for (auto member = members.constBegin(); member != members.constEnd(); ++member) {
        const QStringList parts = member.key().split(QLatin1Char('.'));
        if (parts.size() != 2 && parts.size() != 3)
            continue;
        if (const ConfItem *item = index.find(parts.at(0), parts.at(1), parts.value(2)))
            item->loadFromJsonValue(member.value());
    }
}

void MtConfManage::loadFromFile(QString path)
{
    _loadFromFile(path);
    runAfterLoadFromFile();
}

void MtConfManage::saveToFile()
{
    ConfStorage::instance()->saveToLocalConfFile();
}

void MtConfManage::restoreAllDefault()
{
    // Both are the host's code: the hook may replace itself, a callback may change the list.
    const std::function<void()> hook = restoreAllHook;
    if (hook)
        hook();
    for (int i = 0; i < items.size(); ++i)
        items.at(i).restoreDefault();
}

} // namespace MtConf
