#pragma once

#include <QObject>

class QComboBox;
class QWidget;

namespace MtConf {

/// Gives the list of a combo box the rounded corners of its style sheet: the window of the list is
/// otherwise a rectangle behind them.
class RoundedPopup : public QObject
{
    Q_OBJECT
public:
    /// Rounds the list of `box`, which owns the object.
    explicit RoundedPopup(QComboBox *box);

    /// Gives `box` a list with rounded corners, whose rows a style sheet can style.
    static void addList(QComboBox *box);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *const mPopup;
};

} // namespace MtConf
