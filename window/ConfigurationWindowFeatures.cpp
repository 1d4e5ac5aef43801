#include <MaltoConfiguration/window/ConfigurationWindow.h>

#include "WindowFeature_p.h"

#include <MaltoConfiguration/manage/MtConfManage.h>

namespace MtConf {

void ConfigurationWindow::addFeatures()
{
    const quint32 features = mManager ? mManager->windowFeatures : 0;
    if (!features)
        return;
    mManager->prepareFeatures();
    tellFeatures(&WindowFeature::sheetApplied);
}

void ConfigurationWindow::tellFeatures(void (WindowFeature::*happened)())
{
    // Host code that a feature runs may delete the window with its features.
    const QList<QPointer<WindowFeature>> features = mFeatures;
    for (const QPointer<WindowFeature> &feature : features) {
        if (feature)
            (feature->*happened)();
    }
}

} // namespace MtConf
