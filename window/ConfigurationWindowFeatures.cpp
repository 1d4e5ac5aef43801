#include <MaltoConfiguration/window/ConfigurationWindow.h>

#include "MaltoConfiguration/manage/WindowMemory_p.h"
#include "MaltoConfiguration/window/conflicts/InputConflicts_p.h"
#include "MaltoConfiguration/window/find/SettingsFind_p.h"
#include "MaltoConfiguration/window/history/HistoryFeature_p.h"
#include "MaltoConfiguration/window/modern/ModernWindow_p.h"
#include "MaltoConfiguration/window/rows/LivePages_p.h"
#include "MaltoConfiguration/window/rows/RowDetails_p.h"
#include "MaltoConfiguration/window/rows/RowReset_p.h"
#include "MaltoConfiguration/window/transfer/ImportExport_p.h"
#include "WindowFeature_p.h"
#include "WindowIdentity_p.h"
#include "WindowKeys_p.h"

#include <MaltoConfiguration/manage/MtConfManage.h>

#include <QStandardItemModel>

namespace MtConf {

void ConfigurationWindow::addFeatures()
{
    const quint32 features = mManager ? mManager->windowFeatures : 0;
    // First, so that other features can change what it shows.
    if (mIsModern)
        mFeatures.append(new ModernWindow(this));
    if (features)
        mManager->prepareFeatures();
    if (features & HostNameFeature)
        mFeatures.append(new WindowIdentity(this));
    if (features & NavigationFeature)
        mFeatures.append(new WindowKeys(this));
    if (features & DetailsFeature)
        mFeatures.append(new RowDetails(this));
    if (features & FindFeature)
        mFeatures.append(new SettingsFind(this));
    if (features & ResetFeature)
        mFeatures.append(new RowReset(this));
    if (features & ImportExportFeature)
        mFeatures.append(new ImportExport(this));
    if (features & LivePagesFeature)
        mFeatures.append(new LivePages(this));
    if (features & InputConflictsFeature)
        mFeatures.append(new InputConflicts(this));
    if (features & UndoFeature)
        mFeatures.append(new HistoryFeature(this));
    tellFeatures(&WindowFeature::sheetApplied);
}

/// Returns the row of the class whose page is shown first.
int ConfigurationWindow::startRow() const
{
    if (!mManager || !(mManager->windowFeatures & NavigationFeature))
        return 0;
    const QModelIndexList found = mClassModel->match(mClassModel->index(0, 0), sClassNameRole,
                                                     WindowMemory::instance()->page(), 1,
                                                     Qt::MatchExactly | Qt::MatchCaseSensitive);
    return found.isEmpty() ? 0 : found.first().row();
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
