#include "RoundedPopup_p.h"

#include <OrvUtils/OrvScreenManager.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QEvent>
#include <QPainterPath>

namespace MtConf {

namespace {

constexpr double sRadius = 5; // points, as in the style sheet

} // namespace

RoundedPopup::RoundedPopup(QComboBox *box) : QObject(box), mPopup(box->view()->parentWidget())
{
    mPopup->setAttribute(Qt::WA_TranslucentBackground);
    // The window does not exist yet. setWindowFlags() would style the list again.
    mPopup->overrideWindowFlags(mPopup->windowFlags() | Qt::FramelessWindowHint
                                | Qt::NoDropShadowWindowHint);
    mPopup->installEventFilter(this);
}

bool RoundedPopup::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == mPopup && event->type() == QEvent::Show) {
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
