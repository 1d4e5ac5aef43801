#include "RowDependency_p.h"

#include <MaltoConfiguration/store/ConfChange.h>
#include <MaltoConfiguration/store/ConfStorage.h>
#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

namespace MtConf {

RowDependency::RowDependency(const QMap<QString, QJsonValue> &dependencies,
                             ConfigItemWidget *editor)
    : QObject(editor), mDependencies(dependencies), mEditor(editor),
      mObserver(ConfStorage::instance(), [this](const ConfChange &change) {
          if (mDependencies.contains(change.key))
              update();
      })
{
    update();
}

bool RowDependency::isFulfilled() const
{
    const ConfStorage *store = ConfStorage::instance();
    for (auto other = mDependencies.cbegin(); other != mDependencies.cend(); ++other) {
        if (store->mConfValues.value(other.key()).toJsonValue() != *other)
            return false;
    }
    return true;
}

void RowDependency::update()
{
    mEditor->setRowEnabled(isFulfilled());
}

} // namespace MtConf
