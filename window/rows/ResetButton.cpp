#include "ResetButton_p.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace MtConf {

ResetButton::ResetButton(QWidget *parent) : QToolButton(parent)
{
    setObjectName(QStringLiteral("ResetButton"));
    QSizePolicy policy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
    setAutoRaise(true);
}

void ResetButton::paintEvent(QPaintEvent *event)
{
    QToolButton::paintEvent(event);
    // Drawn in a square of 16 units: three quarters of a circle, and the head of the arrow.
    constexpr double sUnits = 16;
    constexpr QRectF sCircle(3, 3, 10, 10);
    constexpr double sStart = -150; // degrees, counter-clockwise from three o'clock
    constexpr double sLength = 285;
    QPainterPath arrow;
    arrow.arcMoveTo(sCircle, sStart);
    arrow.arcTo(sCircle, sStart, sLength);
    QPainterPath mirrored;
    mirrored.moveTo(2.6, 2.6);
    mirrored.lineTo(2.6, 6.6);
    mirrored.lineTo(6.6, 6.6);

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double size = qMin(width(), height()) * 0.7;
    painter.translate(width() / 2.0, height() / 2.0);
    painter.scale(size / sUnits, size / sUnits);
    painter.translate(-sUnits / 2, -sUnits / 2);
    painter.setPen(QPen(palette().color(QPalette::ButtonText), 1.6, Qt::SolidLine, Qt::RoundCap,
                        Qt::RoundJoin));
    painter.drawPath(arrow);
    painter.drawPath(mirrored);
}

} // namespace MtConf
