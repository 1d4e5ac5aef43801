#pragma once

#include <QFrame>

class QBoxLayout;
class QLabel;
class QPushButton;

namespace MtConf {

/// Says under a row who already uses the keys or the gesture that the user has chosen, and offers
/// what to do. Escape in it cancels.
class InputOffer : public QFrame
{
    Q_OBJECT
public:
    enum class Answer {
        Replace,  ///< take the value, and empty that of the others
        Swap,     ///< take the value, and give the other one the former value
        KeepBoth, ///< take the value
        Cancel    ///< change nothing
    };
    Q_ENUM(Answer)

    /// `gap` is the space between the text and the buttons in pixels.
    InputOffer(int gap, QWidget *parent);

    /// Shows `text`, which is also told to screen readers.
    void setText(const QString &text);
    QLabel *label() const { return mText; }
    void setOffered(Answer answer, bool isOffered);
    void retranslate();
    /// Inserts the buttons into the tab order after `widget`.
    void followInTabOrder(QWidget *widget);

Q_SIGNALS:
    /// Emitted when the user has chosen. A receiver deletes the offer with `deleteLater()` only.
    void answered(MtConf::InputOffer::Answer answer);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void arrange();
    QPushButton *button(Answer answer) const { return mButtons.at(static_cast<int>(answer)); }

    QLabel *const mText;
    QWidget *const mFoot;
    QBoxLayout *const mFootLayout;
    QList<QPushButton *> mButtons; // in the order of the answers
};

} // namespace MtConf
