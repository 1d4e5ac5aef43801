#pragma once

#include <QColor>
#include <QToolButton>

namespace MtConf {

/// The button at the end of a row that restores the default value. It keeps its place while it is
/// hidden, so that the columns of the page do not move.
class ResetButton : public QToolButton
{
    Q_OBJECT
public:
    explicit ResetButton(QWidget *parent);

protected:
    /// Draws an arrow that turns back, in the colour of the button's text.
    void paintEvent(QPaintEvent *event) override;
};

} // namespace MtConf
