#include "MtConfManageDeclare_p.h"
#include "ShortcutBinding_p.h"

#include <MaltoConfiguration/widgets/ConfDefWidgetDouble.h>
#include <MaltoConfiguration/widgets/ConfWidgetChoice.h>
#include <MaltoConfiguration/widgets/ConfWidgetDateTime.h>
#include <MaltoConfiguration/widgets/ConfWidgetDuration.h>
#include <MaltoConfiguration/widgets/ConfWidgetMultilineText.h>
#include <MaltoConfiguration/widgets/ConfWidgetPassword.h>
#include <MaltoConfiguration/widgets/ConfWidgetPath.h>
#include <MaltoConfiguration/widgets/ConfWidgetShortcut.h>
#include <MaltoConfiguration/widgets/ConfWidgetStringList.h>
#include <MaltoConfiguration/widgets/ConfWidgetText.h>
#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

#include <QAction>
#include <QPointer>
#include <QShortcut>

// The addConf functions of the types that ConfValue does not have built in, and of new editors.

namespace MtConf {

ConfItem *MtConfManage::addConfDouble(const char *text, double *value, const QString &majorName,
                                      const QString &name, const QString &subName,
                                      WidgetCreator creator)
{
    return addConf(text, value, majorName, name, subName, std::move(creator),
                   ConfDefWidgetDouble::CreatConfWidget);
}

ConfItem *MtConfManage::addConfText(const char *text, QString *value, const QString &majorName,
                                    const QString &name, const QString &subName,
                                    WidgetCreator creator)
{
    return addConf(text, value, majorName, name, subName, std::move(creator),
                   ConfWidgetText::CreatConfWidget);
}

ConfItem *MtConfManage::addConfMultilineText(const char *text, QString *value,
                                             const QString &majorName, const QString &name,
                                             const QString &subName, WidgetCreator creator)
{
    return addConf(text, value, majorName, name, subName, std::move(creator),
                   ConfWidgetMultilineText::CreatConfWidget);
}

ConfItem *MtConfManage::addConfPassword(const char *text, QString *value, const QString &majorName,
                                        const QString &name, const QString &subName,
                                        WidgetCreator creator)
{
    return addConf(text, value, majorName, name, subName, std::move(creator),
                   ConfWidgetPassword::CreatConfWidget)
        ->setSecret();
}

ConfItem *MtConfManage::addConfPath(const char *text, QString *value, PathKind kind,
                                    const QString &majorName, const QString &name,
                                    const QString &subName, const char *filters)
{
    ConfItem *item = addConf(text, value, majorName, name, subName, WidgetCreator(),
                             ConfWidgetPath::CreatConfWidget);
    item->properties[QStringLiteral("Malto.PathKind")] = static_cast<int>(kind);
    if (filters)
        item->properties[QStringLiteral("Malto.Filters")] = QString::fromUtf8(filters);
    return item;
}

ConfItem *MtConfManage::addConfStringList(const char *text, QStringList *value,
                                          const QString &majorName, const QString &name,
                                          const QString &subName, WidgetCreator creator)
{
    return addConf(text, value, majorName, name, subName, std::move(creator),
                   ConfWidgetStringList::CreatConfWidget);
}

ConfItem *MtConfManage::addConfDateTime(const char *text, QDateTime *value,
                                        const QString &majorName, const QString &name,
                                        const QString &subName, WidgetCreator creator)
{
    return addConf(text, value, majorName, name, subName, std::move(creator),
                   ConfWidgetDateTime::CreatConfWidget);
}

ConfItem *MtConfManage::addConfShortcut(const char *text, QKeySequence *value, QAction *action,
                                        const QString &majorName, const QString &name,
                                        const QString &subName)
{
    ConfItem *item = addConf(text, value, majorName, name, subName, WidgetCreator(),
                             ConfWidgetShortcut::CreatConfWidget);
    item->properties[QStringLiteral("Malto.InProgram")] = true;
    if (action)
        ShortcutBinding::bind(item->getFullName(), action,
                              [action](const QKeySequence &keys) { action->setShortcut(keys); });
    return item;
}

ConfItem *MtConfManage::addConfShortcut(const char *text, QKeySequence *value, QShortcut *shortcut,
                                        const QString &majorName, const QString &name,
                                        const QString &subName)
{
    ConfItem *item = addConf(text, value, majorName, name, subName, WidgetCreator(),
                             ConfWidgetShortcut::CreatConfWidget);
    item->properties[QStringLiteral("Malto.InProgram")] = true;
    if (shortcut)
        ShortcutBinding::bind(item->getFullName(), shortcut,
                              [shortcut](const QKeySequence &keys) { shortcut->setKey(keys); });
    return item;
}

ConfItem *MtConfManage::addChoiceItem(ConfItem &item, const char *text, QList<ConfChoice> choices)
{
    item.displayText = text;
    item.choices = std::move(choices);
    item.widgetCreator = ConfWidgetChoice::CreatConfWidget;
    return addConfItem(item);
}

ConfItem *MtConfManage::addDurationItem(ConfItem &item, const char *text, double secondsPerUnit)
{
    item.displayText = text;
    item.properties[QStringLiteral("Malto.SecondsPerUnit")] = secondsPerUnit;
    item.widgetCreator = ConfWidgetDuration::CreatConfWidget;
    return addConfItem(item);
}

void MtConfManage::commitEditors()
{
    QList<QPointer<ConfigItemWidget>> editors;
    for (const ConfItem &item : std::as_const(items)) {
        if (item.editor)
            editors.append(item.editor);
    }
    // A callback may delete editors, and this object.
    for (const QPointer<ConfigItemWidget> &editor : std::as_const(editors)) {
        if (editor)
            editor->commit();
    }
}

} // namespace MtConf
