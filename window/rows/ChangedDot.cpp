#include "ChangedDot_p.h"

#include <QPainter>
#include <QWidget>

namespace MtConf {

ChangedDot::ChangedDot(int diameter, const QColor &color, const QColor &selectedColor,
                       QObject *parent)
    : QStyledItemDelegate(parent), mDiameter(diameter), mColor(color), mSelectedColor(selectedColor)
{
}

void ChangedDot::paint(QPainter *painter, const QStyleOptionViewItem &option,
                       const QModelIndex &index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    if (!index.data(sChangedRole).toBool())
        return;
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    QRect dot(0, 0, mDiameter, mDiameter);
    dot.moveCenter(option.rect.center());
    dot.moveRight(option.rect.right() - mDiameter);
    // Beside the icon, which is alone there.
    if (option.widget && option.widget->property("narrow").toString() == QLatin1String("1"))
        dot.moveTopRight(option.rect.topRight() + QPoint(-mDiameter / 2, mDiameter / 2));
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(isSelected ? mSelectedColor : mColor);
    painter->drawEllipse(QStyle::visualRect(option.direction, option.rect, dot));
    painter->restore();
}

} // namespace MtConf
