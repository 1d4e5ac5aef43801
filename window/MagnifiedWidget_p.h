#pragma once

#include <QWidget>

namespace MtConf {

/// Shows a widget that has a fixed size in pixels larger, in its place. The mouse and the keyboard
/// work as in the widget, which is hidden. Dragging does not.
class MagnifiedWidget : public QWidget
{
    Q_OBJECT
public:
    /// Takes the place of `original` in the layout of its parent.
    MagnifiedWidget(QWidget *original, double factor);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void forward(const QMouseEvent &event);

    QWidget *const mOriginal;
    const double mFactor;
};

} // namespace MtConf
