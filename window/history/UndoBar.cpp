#include "UndoBar_p.h"

#include <OrvUtils/QThemeCtrl.h>

#include <QAccessible>
#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include <algorithm>

namespace MtConf {

namespace {

constexpr int sShownMilliseconds = 10000;

// Points.
constexpr double sHeight = 30;
constexpr double sMargin = 12;
constexpr double sPadding = 12;

} // namespace

UndoBar::UndoBar(QWidget *window)
    : QFrame(window), mLabel(new QLabel(this)), mButton(new QPushButton(this)),
      mTimer(new QTimer(this))
{
    setObjectName(QStringLiteral("UndoBar"));
    mLabel->setTextFormat(Qt::PlainText);
    mButton->setAutoDefault(false);
    // A click that takes the focus from a field would store what is typed there: a newer step.
    mButton->setFocusPolicy(Qt::TabFocus);
    auto *layout = new QHBoxLayout(this);
    layout->addWidget(mLabel, 1);
    layout->addWidget(mButton);
    mTimer->setSingleShot(true);
    connect(mTimer, &QTimer::timeout, this, &UndoBar::hideIfUnused);
    connect(mButton, &QPushButton::clicked, this, &UndoBar::accept);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *former, QWidget *now) {
        if (now == mButton && former)
            mPreviousFocus = former;
        else if (former == mButton && !isHidden())
            mTimer->start(sShownMilliseconds);
    });
    window->installEventFilter(this);
    retranslate();
    hide();
}

void UndoBar::showText(const QString &text)
{
    mText = text;
    mPreviousFocus = nullptr;
    // Widgets of pages that were built since are behind the button in the chain.
    QWidget *const last = mPredecessor ? mPredecessor.data() : window()->previousInFocusChain();
    if (last != mButton)
        QWidget::setTabOrder(last, mButton);
    show();
    raise();
    place();
    mTimer->start(sShownMilliseconds);
    announce();
}

void UndoBar::announce()
{
    setAccessibleName(mText);
    mLabel->setAccessibleName(mText);
    mButton->setAccessibleDescription(mText);
    QAccessibleEvent event(mLabel, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void UndoBar::applySheet(double scale)
{
    mScale = scale;
    layout()->setSpacing(qRound(sPadding * scale));
    setMargins();
    QThemeCtrl::instance()->handleQssFile(this, {QStringLiteral(":/malto/qss/UndoBar")}, scale);
    place();
}

/// The button has a padding of its own. Margins do not change sides with the direction.
void UndoBar::setMargins()
{
    const int padding = qRound(sPadding * mScale);
    const bool isMirrored = isRightToLeft();
    layout()->setContentsMargins(isMirrored ? padding / 2 : padding, 0,
                                 isMirrored ? padding : padding / 2, 0);
}

void UndoBar::retranslate()
{
    mButton->setText(tr("Undo"));
    place();
}

void UndoBar::place()
{
    if (isHidden())
        return;
    const QWidget *const window = parentWidget();
    const int margin = qRound(sMargin * mScale);
    const int height = qRound(sHeight * mScale);
    mLabel->setText(mText);
    ensurePolished();
    layout()->activate();
    const int width = std::min(sizeHint().width(), window->width() - 2 * margin);
    setGeometry((window->width() - width) / 2, window->height() - height - margin, width, height);
    layout()->activate();
    mLabel->setText(mLabel->fontMetrics().elidedText(mText, Qt::ElideRight, mLabel->width()));
}

void UndoBar::accept()
{
    const QPointer<QWidget> previous = mPreviousFocus;
    hide();
    if (previous)
        previous->setFocus();
    Q_EMIT undoRequested();
}

void UndoBar::hideIfUnused()
{
    if (underMouse() || mButton->hasFocus())
        mTimer->start(sShownMilliseconds);
    else
        hide();
}

bool UndoBar::event(QEvent *event)
{
    if (event->type() == QEvent::Leave && !isHidden())
        mTimer->start(sShownMilliseconds);
    if (event->type() == QEvent::LayoutDirectionChange)
        setMargins();
    return QFrame::event(event);
}

bool UndoBar::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parent() && event->type() == QEvent::Resize)
        place();
    return QFrame::eventFilter(watched, event);
}

} // namespace MtConf
