#include "CheckedFlags_p.h"

#include <MaltoConfiguration/widgets/MultiSelectComboBox.h>

namespace MtConf {

int checkedFlags(const MultiSelectComboBox *box)
{
    int flags = 0;
    for (int i = 0; i < box->count(); ++i) {
        bool checked = false;
        QVariant flag;
        box->getItemData(i, checked, flag);
        if (checked)
            flags |= flag.toInt();
    }
    return flags;
}

QVector<bool> containedFlags(const MultiSelectComboBox *box, int value)
{
    QVector<bool> contained;
    for (int i = 0; i < box->count(); ++i) {
        bool checked = false;
        QVariant flag;
        box->getItemData(i, checked, flag);
        contained.append((flag.toInt() & ~value) == 0);
    }
    return contained;
}

} // namespace MtConf
