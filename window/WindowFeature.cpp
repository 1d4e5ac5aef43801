#include "WindowFeature_p.h"

#include "MaltoConfiguration/widgets/HostCode_p.h"
#include "ui_ConfigurationWindow.h"

#include <MaltoConfiguration/manage/MtConfManage.h>
#include <MaltoConfiguration/window/ConfigurationWindow.h>

namespace MtConf {

WindowFeature::WindowFeature(ConfigurationWindow *window) : QObject(window), mWindow(window) {}

void WindowFeature::rowAdded(const PageRow &row)
{
    Q_UNUSED(row)
}

void WindowFeature::pageShown() {}

void WindowFeature::pageCleared() {}

void WindowFeature::sheetApplied() {}

void WindowFeature::retranslate() {}

void WindowFeature::windowClosed() {}

MtConfManage *WindowFeature::manager() const
{
    return mWindow->mManager;
}

const ValueOrigins *WindowFeature::origins() const
{
    return mWindow->mManager ? mWindow->mManager->mOrigins.get() : nullptr;
}

std::shared_ptr<HostCode> WindowFeature::hostCode() const
{
    return mWindow->mHostCode;
}

QListView *WindowFeature::classList() const
{
    return mWindow->mUi->configList;
}

QVBoxLayout *WindowFeature::classColumn() const
{
    return mWindow->mUi->verticalLayout_3;
}

bool WindowFeature::isModern() const
{
    return mWindow->mIsModern;
}

QScrollArea *WindowFeature::scrollArea() const
{
    return mWindow->mUi->scrollArea;
}

bool WindowFeature::commitEditors()
{
    const HostCodeScope scope(hostCode());
    const QPointer<WindowFeature> self(this);
    const QList<PageRow> shown = rows();
    for (const PageRow &row : shown) {
        if (row.editor)
            row.editor->commit();
    }
    return self;
}

const QList<PageRow> &WindowFeature::rows() const
{
    return mWindow->mRows;
}

PageBuilder *WindowFeature::builder() const
{
    return mWindow->mBuilder.get();
}

double WindowFeature::scale() const
{
    return mWindow->mScale;
}

int WindowFeature::scaled(double pixels) const
{
    constexpr double sPointsPerInch = 72;
    constexpr double sDesignDotsPerInch = 96;
    return qRound(pixels * mWindow->mScale * sPointsPerInch / sDesignDotsPerInch);
}

void WindowFeature::showItems(const PageGroups &groups)
{
    mWindow->showItems(groups);
}

bool WindowFeature::showsItems() const
{
    return mWindow->mShowsItems;
}

void WindowFeature::rebuildPage()
{
    mWindow->rebuildPage();
}

QString WindowFeature::translatedName(const QString &name)
{
    return ConfigurationWindow::translatedName(name);
}

} // namespace MtConf
