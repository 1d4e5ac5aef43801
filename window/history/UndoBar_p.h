#pragma once

#include <QFrame>
#include <QPointer>
#include <QString>

class QLabel;
class QPushButton;
class QTimer;

namespace MtConf {

/// The bar at the bottom of a window that says what has just happened and offers to undo it. It
/// hides after 10 seconds without the mouse and the keyboard focus on it.
class UndoBar : public QFrame
{
    Q_OBJECT
public:
    /// Creates the hidden bar above the other children of `window`.
    explicit UndoBar(QWidget *window);

    /// Places the button behind `widget` in the tab order when the bar is shown. Without a widget
    /// it becomes the last.
    void setPredecessor(QWidget *widget) { mPredecessor = widget; }
    /// Shows `text`, and tells it to screen readers.
    void showText(const QString &text);
    /// Applies the sheet of the current theme. `scale` is in pixels per point.
    void applySheet(double scale);
    /// Translates the button.
    void retranslate();

Q_SIGNALS:
    /// Emitted when the user presses the button. The bar is hidden then.
    void undoRequested();

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void accept();
    void hideIfUnused();
    void setMargins();
    void place();
    void announce();

    QLabel *const mLabel;
    QPushButton *const mButton;
    QTimer *const mTimer;
    QString mText;
    double mScale = 1;
    QPointer<QWidget> mPreviousFocus;
    QPointer<QWidget> mPredecessor;
};

} // namespace MtConf
