#include "MtConfManageDeclare_p.h"

#include <MaltoConfiguration/widgets/ConfDefWidgetDouble.h>
#include <MaltoConfiguration/widgets/ConfWidgetChoice.h>
#include <MaltoConfiguration/widgets/ConfWidgetDateTime.h>
#include <MaltoConfiguration/widgets/ConfWidgetDuration.h>
#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

#include <QPointer>

// Declares settings of the types that the first hosts did not have.

namespace MtConf {

ConfItem *MtConfManage::addConfDouble(const char *text, double *value, const QString &majorName,
                                      const QString &name, const QString &subName,
                                      WidgetCreator creator)
{
    return addConf(text, value, majorName, name, subName, std::move(creator),
                   ConfDefWidgetDouble::CreatConfWidget);
}

ConfItem *MtConfManage::addConfDateTime(const char *text, QDateTime *value,
                                        const QString &majorName, const QString &name,
                                        const QString &subName, WidgetCreator creator)
{
    return addConf(text, value, majorName, name, subName, std::move(creator),
                   ConfWidgetDateTime::CreatConfWidget);
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
    item.properties[QStringLiteral("SecondsPerUnit")] = secondsPerUnit;
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
