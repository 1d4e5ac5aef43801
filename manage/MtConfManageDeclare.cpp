#include <MaltoConfiguration/manage/MtConfManage.h>

#include <MaltoConfiguration/manage/helpers.h>
#include <MaltoConfiguration/widgets/ConfDefWidgetBool.h>
#include <MaltoConfiguration/widgets/ConfDefWidgetInt32.h>
#include <MaltoConfiguration/widgets/ConfDefWidgetQColor.h>
#include <MaltoConfiguration/widgets/ConfDefWidgetQFont.h>

namespace MtConf {

template<class T>
ConfItem *MtConfManage::addConf(const char *text, T *value, const QString &majorName,
                                const QString &name, const QString &subName,
                                WidgetCreator creator, WidgetCreator defaultCreator)
{
    ConfItem item(value, majorName, name, subName);
    item.displayText = text;
    item.widgetCreator = creator ? std::move(creator) : std::move(defaultCreator);
    return addConfItem(item);
}

ConfItem *MtConfManage::addConfInt32(const char *text, int *value, const QString &majorName,
                                     const QString &name, const QString &subName,
                                     WidgetCreator creator)
{
    return addConf(text, value, majorName, name, subName, std::move(creator),
                   ConfDefWidgetInt32::CreatConfWidget);
}

ConfItem *MtConfManage::addConfBool(const char *text, bool *value, const QString &majorName,
                                    const QString &name, const QString &subName,
                                    WidgetCreator creator)
{
    return addConf(text, value, majorName, name, subName, std::move(creator),
                   ConfDefWidgetBool::CreatConfWidget);
}

ConfItem *MtConfManage::addConfQString(const char *text, QString *value, const QString &majorName,
                                       const QString &name, const QString &subName,
                                       WidgetCreator creator)
{
    return addConf(text, value, majorName, name, subName, std::move(creator), WidgetCreator());
}

ConfItem *MtConfManage::addConfQColor(const char *text, QColor *value, const QString &majorName,
                                      const QString &name, const QString &subName,
                                      WidgetCreator creator)
{
    return addConf(text, value, majorName, name, subName, std::move(creator),
                   ConfDefWidgetQColor::CreatConfWidget);
}

ConfItem *MtConfManage::addConfQFont(const char *text, QFont *value, const QString &majorName,
                                     const QString &name, const QString &subName,
                                     WidgetCreator creator)
{
    return addConf(text, value, majorName, name, subName, std::move(creator),
                   ConfDefWidgetQFont::CreatConfWidget);
}

void MtConfManage::addConfAutoRun(const char *text, bool *value, const QString &majorName,
                                  const QString &name, const QString &subName)
{
    const ConfItem *item = addConfBool(text, value, majorName, name, subName);
    item->setConfChangedCallback([](const QString &, const ConfValue *changed) {
        setAppAutoRun(changed->get<bool>());
    });
}

void MtConfManage::runAfterLoadFromFile() {}

} // namespace MtConf
