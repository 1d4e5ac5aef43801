#include "MagnifiedWidget_p.h"

#include "QtWidgetsCompat_p.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QMouseEvent>
#include <QPainter>

#include <memory>

namespace MtConf {

MagnifiedWidget::MagnifiedWidget(QWidget *original, double factor)
    : QWidget(original->parentWidget()), mOriginal(original), mFactor(factor)
{
    setFixedSize(sizeHint());
    setFocusPolicy(original->focusPolicy());
    setTabOrder(original, this);
    const QList<QLabel *> labels = parentWidget()->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (label->buddy() == original)
            label->setBuddy(this);
    }
    const std::unique_ptr<QLayoutItem> item(
        parentWidget()->layout()->replaceWidget(original, this));
    original->hide();
    original->resize(original->sizeHint());
}

QSize MagnifiedWidget::sizeHint() const
{
    return mOriginal->sizeHint() * mFactor;
}

void MagnifiedWidget::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    const double ratio = mFactor * devicePixelRatioF();
    QPixmap picture(mOriginal->size() * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    mOriginal->render(&picture, QPoint(), QRegion(), RenderFlags());
    QPainter(this).drawPixmap(rect(), picture);
}

void MagnifiedWidget::mousePressEvent(QMouseEvent *event)
{
    forward(*event);
}

void MagnifiedWidget::mouseReleaseEvent(QMouseEvent *event)
{
    forward(*event);
}

void MagnifiedWidget::keyPressEvent(QKeyEvent *event)
{
    QCoreApplication::sendEvent(mOriginal, event);
    update();
}

void MagnifiedWidget::forward(const QMouseEvent &event)
{
    const QPointF position = QtCompat::positionOf(event) / mFactor;
    QMouseEvent scaled(event.type(), position, mOriginal->mapToGlobal(position.toPoint()),
                       event.button(), event.buttons(), event.modifiers());
    QCoreApplication::sendEvent(mOriginal, &scaled);
    update();
}

} // namespace MtConf
