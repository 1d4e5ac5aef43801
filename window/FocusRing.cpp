#include "FocusRing_p.h"

#include <OrvUtils/OrvScreenManager.h>
#include <OrvUtils/QThemeCtrl.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QEvent>
#include <QFocusFrame>
#include <QItemSelectionModel>
#include <QPainter>
#include <QProxyStyle>
#include <QRadioButton>
#include <QStyleOption>
#include <QVariant>

namespace MtConf {

namespace {

// Pixels at 96 dots per inch.
constexpr double sWidth = 2;
constexpr double sGap = 1; // between the ring and the widget, so that their colours do not touch
constexpr double sRadius = 7;

double scaleOf(const QWidget *widget)
{
    return OrvScreenManager::instance()->widgetScreen(widget).dpi / 96;
}

int scaled(double pixels, double scale)
{
    return qMax(1, qRound(pixels * scale));
}

/// Returns the part of `widget` that users see as the widget. `margin` is the width of the ring
/// with its gap.
QRect visiblePart(const QWidget *widget, int margin)
{
    // The window would cut a ring around it.
    if (widget->property("RingInside").toBool())
        return widget->rect().adjusted(margin, margin, -margin, -margin);
    // These are as wide as their column, and empty behind the text.
    if (qobject_cast<const QCheckBox *>(widget) || qobject_cast<const QRadioButton *>(widget)) {
        QSize size = widget->sizeHint();
        if (widget->hasHeightForWidth()) // the text may have several lines
            size.setHeight(widget->heightForWidth(widget->width()));
        return QStyle::alignedRect(widget->layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter,
                                   size.boundedTo(widget->size()), widget->rect());
    }
    // The row that the keys of the user act on.
    const auto *view = qobject_cast<const QAbstractItemView *>(widget);
    if (view && view->property("RingAroundRow").toBool() && view->currentIndex().isValid()) {
        const QRect row = view->visualRect(view->currentIndex());
        return row.translated(view->viewport()->pos()).intersected(widget->rect());
    }
    return widget->rect();
}

/// Draws the frame around the widget, and over what is beside it.
class RingStyle : public QProxyStyle
{
public:
    explicit RingStyle(const QString &color) : mColor(color) {}

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returned) const override
    {
        // A frame below the widget is cut by the parent of the widget.
        if (hint == SH_FocusFrame_AboveWidget)
            return 1;
        return hint == SH_FocusFrame_Mask ? 0
                                          : QProxyStyle::styleHint(hint, option, widget, returned);
    }

    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        if (metric != PM_FocusFrameHMargin && metric != PM_FocusFrameVMargin)
            return QProxyStyle::pixelMetric(metric, option, widget);
        const double scale = scaleOf(widget);
        return scaled(sGap, scale) + scaled(sWidth, scale);
    }

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        const auto *frame = qobject_cast<const QFocusFrame *>(widget);
        if (element != CE_FocusFrame || !frame || !frame->widget()) {
            QProxyStyle::drawControl(element, option, painter, widget);
            return;
        }
        const double scale = scaleOf(frame);
        const int margin = pixelMetric(PM_FocusFrameHMargin, option, frame);
        const int width = scaled(sWidth, scale);
        const QRectF outer = visiblePart(frame->widget(), margin).translated(margin, margin);
        const double beyond = margin - width / 2.0;
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QPen(QThemeCtrl::instance()->color(mColor), width));
        // The ring of a switch is as round as the switch.
        const bool isRound = frame->widget()->property("Switch").isValid();
        const double radius = isRound ? outer.height() / 2 + beyond : sRadius * scale;
        painter->drawRoundedRect(outer.adjusted(-beyond, -beyond, beyond, beyond), radius, radius);
    }

private:
    const QString mColor;
};

class RingFrame : public QFocusFrame
{
public:
    using QFocusFrame::QFocusFrame;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const bool isConsumed = QFocusFrame::eventFilter(watched, event);
        // Qt hides the frame of a widget that is scrolled out of view or gets another style sheet,
        // and does not show it again.
        if (widget() && widget()->isVisible() && !isVisible())
            show();
        return isConsumed;
    }
};

} // namespace

void FocusRing::follow(QWidget *root, const QString &color)
{
    if (!root->findChild<FocusRing *>(QString(), Qt::FindDirectChildrenOnly))
        new FocusRing(root, color);
}

FocusRing::FocusRing(QWidget *root, const QString &color)
    : QObject(root), mStyle(std::make_unique<RingStyle>(color))
{
    connect(qApp, &QApplication::focusChanged, this, &FocusRing::onFocusChanged);
    onFocusChanged(nullptr, QApplication::focusWidget());
}

FocusRing::~FocusRing()
{
    delete mFrame; // it uses the style
}

/// Returns whether the nearest widget above `widget` that has a ring is the root of this one.
bool FocusRing::isResponsibleFor(const QWidget *widget) const
{
    for (; widget; widget = widget->parentWidget()) {
        const auto *ring = widget->findChild<const FocusRing *>(QString(),
                                                                Qt::FindDirectChildrenOnly);
        if (ring)
            return ring == this;
    }
    return false;
}

void FocusRing::onFocusChanged(QWidget *former, QWidget *now)
{
    Q_UNUSED(former)
    // The open list of a combo box: the ring stays around the box.
    if (now && now->window()->windowType() == Qt::Popup)
        return;
    surround(isResponsibleFor(now) ? now : nullptr);
}

void FocusRing::surround(QWidget *widget)
{
    if (!mFrame) {
        if (!widget)
            return;
        mFrame = new RingFrame(widget->window());
        mFrame->setStyle(mStyle.get());
    }
    mFrame->setWidget(widget);
    disconnect(mRowConnection);
    if (const auto *view = qobject_cast<QAbstractItemView *>(widget)) {
        mRowConnection = connect(view->selectionModel(), &QItemSelectionModel::currentChanged,
                                 mFrame, QOverload<>::of(&QWidget::update));
    }
    if (widget && mFrame->widget())
        mFrame->show(); // even if Tab scrolls to the widget only later
}

} // namespace MtConf
