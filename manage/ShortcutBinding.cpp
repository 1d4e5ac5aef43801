#include "ShortcutBinding_p.h"

#include <MaltoConfiguration/store/ConfChange.h>
#include <MaltoConfiguration/store/ConfStorage.h>

namespace MtConf {

void ShortcutBinding::bind(const QString &key, QObject *target, const Setter &setter)
{
    delete target->findChild<ShortcutBinding *>(QString(), Qt::FindDirectChildrenOnly);
    new ShortcutBinding(key, target, setter);
    setter(ConfStorage::instance()->get<QKeySequence>(key));
}

ShortcutBinding::ShortcutBinding(const QString &key, QObject *target, const Setter &setter)
    : QObject(target)
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
