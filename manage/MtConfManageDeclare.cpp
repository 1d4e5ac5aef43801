#include "MtConfManageDeclare_p.h"

#include <MaltoConfiguration/manage/helpers.h>
#include <MaltoConfiguration/widgets/ConfDefWidgetBool.h>
#include <MaltoConfiguration/widgets/ConfDefWidgetInt32.h>
#include <MaltoConfiguration/widgets/ConfDefWidgetQColor.h>
#include <MaltoConfiguration/widgets/ConfDefWidgetQFont.h>
#include <MaltoConfiguration/widgets/ConfDefWidgetQKeySequence.h>
#include <MaltoConfiguration/widgets/ConfWidgetCombobox.h>
#include <MaltoConfiguration/widgets/ConfWidgetLanguage.h>
#include <MaltoConfiguration/widgets/ConfWidgetMouseAction.h>

#include <QPointer>

namespace MtConf {

ConfItem *MtConfManage::addConfInt32(const char *text, int *value, const QString &majorName,
                                     const QString &name, const QString &subName,
                                     WidgetCreator creator)
{
    return addConf(text, value, majorName, name, subName, std::move(creator),
                   ConfDefWidgetInt32::CreatConfWidget);
}

bool hasSpinBox(const ConfItem &item)
{
    using Factory = ConfigItemWidget *(*)(ConfItem *, QWidget *);
    const Factory *const factory = item.widgetCreator.target<Factory>();
    return factory && *factory == ConfDefWidgetInt32::CreatConfWidget;
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

ConfItem *MtConfManage::addConfQKeySequence(const char *text, QKeySequence *value,
                                            const QString &majorName, const QString &name,
                                            const QString &subName, WidgetCreator creator)
{
    return addConf(text, value, majorName, name, subName, std::move(creator),
                   ConfDefWidgetQKeySequence::CreatConfWidget);
}

void MtConfManage::addConfMouseAction(const char *text, int *value, int mode,
                                      const QString &majorName, const QString &name,
                                      const QString &subName)
{
    ConfItem *item = addConfInt32(text, value, majorName, name, subName,
                                  [mode](ConfItem *edited, QWidget *parent) {
                                      return new ConfWidgetMouseAction(edited, parent, mode);
                                  });
    item->properties[QStringLiteral("Kind")] = mode;
    item->setFlagSystemIndependent();
}

void MtConfManage::addConfLanguage(const char *text, QString *value, const QString &majorName,
                                   const QString &name, const QString &subName)
{
    languageItem = addConfQString(text, value, majorName, name, subName,
                                  ConfWidgetLanguage::CreatConfWidget);
    // The callback may outlive the manager, because the key does.
    const QPointer<MtConfManage> self(this);
    languageItem->setConfChangedCallback([self](const QString &, const ConfValue *changed) {
        ConfWidgetLanguage::installTranslator(changed->get<QString>());
        if (self)
            Q_EMIT self->sigLanguageChange();
    });
}

ConfItem *MtConfManage::addConfStrWithCombobox(const char *text, QStringList choices,
                                               QString *value, const QString &majorName,
                                               const QString &name, const QString &subName)
{
    ConfItem *added = addConfQString(text, value, majorName, name, subName,
                                     [choices](ConfItem *item, QWidget *parent) {
                                         auto *editor = new ConfWidgetCombobox(item, parent);
                                         editor->setSelectItem(choices);
                                         return editor;
                                     });
    for (const QString &choice : std::as_const(choices))
        added->choices.append({choice, choice, false});
    return added;
}

ConfItem *MtConfManage::addConfInt32WithCombobox(const char *text, QList<const char *> labels,
                                                 int *value, const QString &majorName,
                                                 const QString &name, const QString &subName)
{
    return addConfInt32WithCombobox(text, labels, QList<int>(), value, majorName, name, subName);
}

ConfItem *MtConfManage::addConfInt32WithCombobox(const char *text, QList<const char *> labels,
                                                 QList<int> values, int *value,
                                                 const QString &majorName, const QString &name,
                                                 const QString &subName)
{
    ConfItem *added = addConfInt32(text, value, majorName, name, subName,
                                   [labels, values](ConfItem *item, QWidget *parent) {
                                       auto *editor = new ConfWidgetCombobox(item, parent);
                                       editor->setSelectItem(labels, values);
                                       return editor;
                                   });
    for (int i = 0; i < labels.size(); ++i)
        added->choices.append({QString::fromUtf8(labels.at(i)), values.value(i, i)});
    if (!values.isEmpty() && values.size() != labels.size())
        added->properties[QStringLiteral("Malto.ValueCount")] = static_cast<int>(values.size());
    return added;
}

void MtConfManage::addConfAutoRun(const char *text, bool *value, const QString &majorName,
                                  const QString &name, const QString &subName)
{
    const ConfItem *item = addConfBool(text, value, majorName, name, subName);
    item->setConfChangedCallback(
        [](const QString &, const ConfValue *changed) { setAppAutoRun(changed->get<bool>()); });
}

void MtConfManage::runAfterLoadFromFile()
{
    if (!languageItem)
        return;
    const QString code = ConfStorage::instance()->get<QString>(languageItem->getFullName());
    ConfWidgetLanguage::installTranslator(code);
}

} // namespace MtConf
