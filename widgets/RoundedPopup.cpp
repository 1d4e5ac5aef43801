#include "RoundedPopup_p.h"

#include <OrvUtils/OrvScreenManager.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QEvent>
#include <QListView>
#include <QPainterPath>
#include <QStyle>

namespace MtConf {

namespace {

constexpr double sRadius = 5; // points, as in the style sheet

} // namespace

RoundedPopup::RoundedPopup(QComboBox *box)
    : QObject(box), mPopup(box->view()->parentWidget()) // a QFrame
{
    mPopup->setAttribute(Qt::WA_TranslucentBackground);
    // The window does not exist yet. setWindowFlags() would style the list again.
    mPopup->overrideWindowFlags(mPopup->windowFlags() | Qt::FramelessWindowHint
                                | Qt::NoDropShadowWindowHint);
    mPopup->installEventFilter(this);
}

void RoundedPopup::addList(QComboBox *box)
{
    // Style sheets apply to the rows of this view, not to those of the default view. It has no
    // parent, because a child of the box would be styled again in its window.
    auto *view = new QListView;
    view->resize(box->size());
    box->setView(view);
    // Qt does not ask for a frame then, but the window of the list has one.
    if (auto *frame = qobject_cast<QFrame *>(box->view()->parentWidget()))
        frame->setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    new RoundedPopup(box);
}

bool RoundedPopup::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == mPopup && event->type() == QEvent::Show) {
        // QComboBox has asked the style for the frame when it created the list, maybe before it had
        // the style sheet, whose list has a frame of its own.
        const auto *const box = static_cast<QComboBox *>(parent());
        const int frame = box->style()->styleHint(QStyle::SH_ComboBox_PopupFrameStyle, nullptr,
                                                  box);
        static_cast<QFrame *>(mPopup)->setFrameStyle(frame);
        // Without a compositor, translucent corners are black. Not when the list is resized, which
        // removes the mask again.
        const double radius = sRadius * OrvScreenManager::instance()->widgetScreen(mPopup).dpi / 72;
        QPainterPath path;
        path.addRoundedRect(mPopup->rect(), radius, radius);
        mPopup->setMask(QRegion(path.toFillPolygon().toPolygon()));
    }
    return QObject::eventFilter(watched, event);
}

} // namespace MtConf
