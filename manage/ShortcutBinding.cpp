#include "ShortcutBinding_p.h"

#include <MaltoConfiguration/store/ConfChange.h>
#include <MaltoConfiguration/store/ConfStorage.h>

namespace MtConf {

namespace {

ShortcutBinding *bindingOf(const QObject *target)
{
    return target->findChild<ShortcutBinding *>(QString(), Qt::FindDirectChildrenOnly);
}

} // namespace

QString ShortcutBinding::keyOf(const QObject *target)
{
    const ShortcutBinding *const binding = bindingOf(target);
    return binding ? binding->mKey : QString();
}

void ShortcutBinding::bind(const QString &key, QObject *target, const Setter &setter)
{
    delete bindingOf(target);
    new ShortcutBinding(key, target, setter);
    setter(ConfStorage::instance()->get<QKeySequence>(key));
}

ShortcutBinding::ShortcutBinding(const QString &key, QObject *target, const Setter &setter)
    : QObject(target), mKey(key)
{
    mObserver = ConfStorage::instance()->addObserver([key, setter](const ConfChange &change) {
        if (change.key == key)
            setter(ConfStorage::instance()->get<QKeySequence>(key));
    });
}

ShortcutBinding::~ShortcutBinding()
{
    ConfStorage::instance()->removeObserver(mObserver);
}

} // namespace MtConf
