#include "WindowFeature_p.h"

#include "MaltoConfiguration/widgets/HostCode_p.h"
#include "ui_ConfigurationWindow.h"

#include <MaltoConfiguration/manage/MtConfManage.h>
#include <MaltoConfiguration/window/ConfigurationWindow.h>

#include <algorithm>

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

const PageRow *WindowFeature::rowOf(const QObject *widget) const
{
    const auto *const found = qobject_cast<const QWidget *>(widget);
    for (const PageRow &row : rows()) {
        // The control of a caption, such as a switch, may be inside of it.
        if (found && row.editor
            && (row.caption == found || row.editor->label() == found
                || row.editor->isAncestorOf(found)))
            return &row;
    }
    return nullptr;
}

const PageRow *WindowFeature::focusedRow() const
{
    const QWidget *const focused = window()->focusWidget();
    if (const PageRow *const row = rowOf(focused))
        return row;
    const QString key = focused ? focused->property(sRowKey).toString() : QString();
    const auto found = std::find_if(rows().cbegin(), rows().cend(), [&key](const PageRow &row) {
        return !key.isEmpty() && row.key == key;
    });
    return found != rows().cend() ? &*found : nullptr;
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
