#include <MaltoConfiguration/manage/MtConfManage.h>

#include "MaltoConfiguration/manage/DeclarationCheck_p.h"
#include "MaltoConfiguration/manage/ValueOrigins_p.h"

#include <MaltoConfiguration/window/ConfigurationWindow.h>

#include <QApplication>

#include <utility>

namespace MtConf {

MtConfManage::~MtConfManage()
{
    liveManagers().removeOne(this);
    // A window and its editors use this object. Without an application there are no windows.
    if (!qobject_cast<QApplication *>(QCoreApplication::instance()))
        return;
    QList<QPointer<ConfigurationWindow>> windows;
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        auto *window = qobject_cast<ConfigurationWindow *>(widget);
        if (window && window->manager() == this)
            windows.append(window);
    }
    for (const QPointer<ConfigurationWindow> &window : std::as_const(windows)) {
        if (window)
            window->close();
    }
    // Moved, not copied, so that the items keep their addresses.
    using Items = std::pair<ItemList<ConfItem>, QList<ItemList<ConfItem>>>;
    const auto kept = std::make_shared<Items>(std::move(items), std::move(mSharedItems));
    for (const QPointer<ConfigurationWindow> &window : std::as_const(windows)) {
        if (window)
            window->detachManager(kept);
    }
}

ConfigurationWindow *MtConfManage::ShowWindow(QString majorName)
{
    const QPointer<ConfigurationWindow> window(ShowConfigurationWindow(this));
    if (window && !majorName.isEmpty())
        window->switchToView(majorName);
    // Host code that built the page may have destroyed this manager.
    return window && window->manager() ? window.data() : nullptr;
}

void MtConfManage::closeConfigWindow()
{
    if (ConfigurationWindow *window = ConfigurationWindow::instance())
        window->close();
}

void MtConfManage::setWindowStayOnTop(bool on)
{
    setStaysOnTopHint(on);
}

void MtConfManage::setIconMap(QMap<QString, QChar> &map)
{
    ConfigurationWindow::mIconMap = map;
}

} // namespace MtConf
