#include "WindowKeys_p.h"

#include "MaltoConfiguration/manage/WindowMemory_p.h"
#include "MaltoConfiguration/widgets/HostCode_p.h"

#include <MaltoConfiguration/manage/MtConfManage.h>
#include <MaltoConfiguration/window/ConfigurationWindow.h>

#include <QApplication>
#include <QListView>
#include <QShortcut>

namespace MtConf {

WindowKeys::WindowKeys(ConfigurationWindow *window) : WindowFeature(window)
{
    // Fields that record hotkeys, popups and fields that are edited in place take these keys first.
    addKey(QKeySequence(Qt::Key_Escape), &WindowKeys::leave);
    addKey(QKeySequence(Qt::CTRL | Qt::Key_W), &WindowKeys::close);
    addKey(QKeySequence(Qt::CTRL | Qt::Key_Tab), &WindowKeys::showNextPage);
    addKey(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab), &WindowKeys::showPreviousPage);
    addKey(QKeySequence(Qt::Key_F1), &WindowKeys::showHelp);
    qApp->installEventFilter(this);
}

void WindowKeys::addKey(const QKeySequence &key, void (WindowKeys::*action)())
{
    auto *shortcut = new QShortcut(key, window());
    connect(shortcut, &QShortcut::activated, this, action);
}

bool WindowKeys::eventFilter(QObject *watched, QEvent *event)
{
    Q_UNUSED(watched)
    // The list of a combo box is hidden by this event already. Parents get it, too.
    if (event->type() == QEvent::ShortcutOverride && QApplication::activePopupWidget())
        mHadPopup = true;
    else if (event->type() == QEvent::KeyRelease || event->type() == QEvent::WindowActivate)
        mHadPopup = false; // the release may go to another program
    return false;
}

/// Leaves the results of a search, or else closes.
void WindowKeys::leave()
{
    if (showsItems() && !QApplication::activePopupWidget() && !mHadPopup)
        rebuildPage();
    else
        close();
}

void WindowKeys::close()
{
    if (QWidget *const popup = QApplication::activePopupWidget())
        popup->close();
    else if (!mHadPopup)
        window()->close();
}

void WindowKeys::showPageAfter(int step)
{
    const int count = classList()->model()->rowCount();
    const int current = classList()->currentIndex().row();
    int row = current;
    for (int i = 0; i < count; ++i) {
        row = (row + step + count) % count;
        if (classList()->isRowHidden(row))
            continue;
        if (row == current && showsItems()) // all results are on the current page
            rebuildPage();
        else
            classList()->setCurrentIndex(classList()->model()->index(row, 0));
        return;
    }
}

void WindowKeys::showHelp()
{
    if (!manager() || !manager()->helpHook)
        return;
    const PageRow *const row = focusedRow();
    const QString key = row ? row->key : window()->currentClass();
    const auto hook = manager()->helpHook; // a copy: the host may replace it in the call
    const HostCodeScope scope(hostCode());
    hook(key);
}

void WindowKeys::windowClosed()
{
    if (manager())
        WindowMemory::instance()->setPage(window()->currentClass());
}

} // namespace MtConf
