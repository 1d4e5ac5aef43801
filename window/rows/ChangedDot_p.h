#pragma once

#include <QColor>
#include <QStyledItemDelegate>

namespace MtConf {

/// Draws the rows of the class list, with a dot beside the classes on whose pages something has
/// changed.
class ChangedDot : public QStyledItemDelegate
{
    Q_OBJECT
public:
    /// The role of the model that tells whether something has changed.
    static constexpr int sChangedRole = Qt::UserRole + 2;

    /// Draws dots of `diameter` pixels, in `selectedColor` in the selected row.
    ChangedDot(int diameter, const QColor &color, const QColor &selectedColor, QObject *parent);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

private:
    const int mDiameter;
    const QColor mColor;
    const QColor mSelectedColor;
};

} // namespace MtConf
