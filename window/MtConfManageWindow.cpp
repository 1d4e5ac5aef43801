#include <MaltoConfiguration/manage/MtConfManage.h>

#include <MaltoConfiguration/window/ConfigurationWindow.h>

#include <QApplication>

namespace MtConf {

MtConfManage::~MtConfManage()
{
    // The window and its editors reach into this object. Without an application there is no window
    // system left to take it from.
    ConfigurationWindow *window = ConfigurationWindow::instance();
    if (!qApp || !window || window->manager() != this)
        return;
    window->close();
    delete window;
}

ConfigurationWindow *MtConfManage::ShowWindow(QString majorName)
{
    ConfigurationWindow *window = ShowConfigurationWindow(this);
    if (!majorName.isEmpty())
        window->switchToView(majorName);
    return window;
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
