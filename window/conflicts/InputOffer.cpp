#include "InputOffer_p.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace MtConf {

InputOffer::InputOffer(int gap, QWidget *parent)
    : QFrame(parent), mText(new QLabel(this)), mFoot(new QWidget(this)),
      mFootLayout(new QBoxLayout(QBoxLayout::LeftToRight, mFoot))
{
    setProperty("class", QStringLiteral("InputOffer"));
    mText->setTextFormat(Qt::PlainText);
    mText->setWordWrap(true);
    // Side by side the buttons would set the least width of the page.
    mFoot->setMinimumWidth(1);
    mFootLayout->setContentsMargins(0, 0, 0, 0);
    mFootLayout->setSpacing(gap);
    for (const Answer answer : {Answer::Replace, Answer::Swap, Answer::KeepBoth, Answer::Cancel}) {
        auto *button = new QPushButton(mFoot);
        button->setAutoDefault(true); // Return presses it, too
        button->installEventFilter(this);
        connect(button, &QAbstractButton::clicked, this,
                [this, answer] { Q_EMIT answered(answer); });
        mFootLayout->addWidget(button, 0, Qt::AlignLeft);
        mButtons.append(button);
    }
    mFootLayout->addStretch(1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(gap);
    layout->addWidget(mText);
    layout->addWidget(mFoot);
    retranslate();
}

void InputOffer::setText(const QString &text)
{
    if (mText->text() == text)
        return;
    mText->setText(text);
    setAccessibleName(text);
    for (QPushButton *button : std::as_const(mButtons))
        button->setAccessibleDescription(text);
    QAccessibleEvent event(mText, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void InputOffer::setOffered(Answer answer, bool isOffered)
{
    button(answer)->setVisible(isOffered);
    arrange();
}

void InputOffer::retranslate()
{
    button(Answer::Replace)->setText(tr("Replace"));
    button(Answer::Swap)->setText(tr("Swap"));
    button(Answer::KeepBoth)->setText(tr("Keep both"));
    button(Answer::Cancel)->setText(tr("Cancel"));
    arrange();
}

void InputOffer::followInTabOrder(QWidget *widget)
{
    for (QPushButton *button : std::as_const(mButtons)) {
        setTabOrder(widget, button);
        widget = button;
    }
}

bool InputOffer::eventFilter(QObject *watched, QEvent *event)
{
    Q_UNUSED(watched)
    // Otherwise Escape is a shortcut of the window, which closes it.
    if (event->type() != QEvent::ShortcutOverride
        || static_cast<QKeyEvent *>(event)->key() != Qt::Key_Escape)
        return false;
    event->accept();
    return true;
}

void InputOffer::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT answered(Answer::Cancel);
    else
        QFrame::keyPressEvent(event);
}

void InputOffer::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    arrange();
}

/// Places the buttons side by side, or below each other if there is no room.
void InputOffer::arrange()
{
    int width = -mFootLayout->spacing();
    for (const QPushButton *button : std::as_const(mButtons)) {
        if (!button->isHidden())
            width += button->sizeHint().width() + mFootLayout->spacing();
    }
    mFootLayout->setDirection(width > contentsRect().width() ? QBoxLayout::TopToBottom
                                                             : QBoxLayout::LeftToRight);
}

} // namespace MtConf
