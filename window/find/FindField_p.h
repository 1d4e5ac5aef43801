#pragma once

#include <QLineEdit>

class QAction;
class QLabel;

namespace MtConf {

/// The field of Find. It shows a hint at its end, the key that leads to it or the number of hits,
/// and a button that empties it.
class FindField : public QLineEdit
{
    Q_OBJECT
public:
    explicit FindField(QWidget *parent);

    /// Shows `hint` while there is enough room for it.
    void setHint(const QString &hint);
    /// Tells screen readers the hint.
    void announceHint();
    /// Draws the icon of the button in `color`.
    void setIconColor(const QColor &color);
    void setClearText(const QString &text);

Q_SIGNALS:
    void focusEntered();
    void focusLeft();
    /// Emitted when the user wants the first hit opened.
    void openRequested();
    /// Emitted when the user moves down to the first result or up to the last one.
    void resultRequested(bool isFirst);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void placeHint();

    QLabel *const mHint;
    QAction *const mClear;
};

} // namespace MtConf
