#include "FindField_p.h"

#include "MaltoConfiguration/widgets/Glyphs_p.h"

#include <QIconfont/QIconfont.h>

#include <QAccessible>
#include <QAction>
#include <QKeyEvent>
#include <QLabel>
#include <QStyle>
#include <QToolButton>

namespace MtConf {

FindField::FindField(QWidget *parent)
    : QLineEdit(parent), mHint(new QLabel(this)), mClear(new QAction(this))
{
    setObjectName(QStringLiteral("FindField"));
    mHint->setObjectName(QStringLiteral("FindHint"));
    mHint->setTextFormat(Qt::PlainText);
    mHint->setAttribute(Qt::WA_TransparentForMouseEvents);
    mClear->setVisible(false);
    addAction(mClear, TrailingPosition);
    connect(mClear, &QAction::triggered, this, &QLineEdit::clear);
    connect(this, &QLineEdit::textChanged, this, [this](const QString &typed) {
        mClear->setVisible(!typed.isEmpty());
        placeHint();
    });
}

void FindField::setHint(const QString &hint)
{
    mHint->setText(hint);
    placeHint();
}

void FindField::announceHint()
{
    QAccessibleEvent event(mHint, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void FindField::setIconColor(const QColor &color)
{
    constexpr int sSize = 24;
    mClear->setIcon(QIconfont::Icon(sErrorGlyph, color, sSize, QMargins()));
}

void FindField::setClearText(const QString &text)
{
    mClear->setText(text);
    mClear->setToolTip(text);
}

/// Places the hint at the end of the field, before the button. The text of the user has priority.
void FindField::placeHint()
{
    const QString shown = text().isEmpty() ? placeholderText() : text();
    // Qt draws each text in its own direction, so the hint and the button change sides with it.
    setLayoutDirection(shown.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    const int gap = fontMetrics().horizontalAdvance(QLatin1Char('x'));
    int end = width() - gap;
    if (mClear->isVisible()) {
        const auto *button = findChild<QToolButton *>();
        end -= button ? button->width() : 0;
    }
    const QSize size = mHint->sizeHint();
    const QRect place(end - size.width(), (height() - size.height()) / 2, size.width(),
                      size.height());
    const bool hasRoom = fontMetrics().horizontalAdvance(shown) + 3 * gap < place.left();
    mHint->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
    mHint->setVisible(hasRoom && !mHint->text().isEmpty());
}

bool FindField::event(QEvent *event)
{
    // The first Esc empties the field, the next one belongs to the window.
    if (event->type() == QEvent::ShortcutOverride && !text().isEmpty()
        && static_cast<QKeyEvent *>(event)->matches(QKeySequence::Cancel)) {
        event->accept();
        return true;
    }
    return QLineEdit::event(event);
}

void FindField::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Cancel) && !text().isEmpty())
        clear();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        Q_EMIT openRequested();
    else if (event->key() == Qt::Key_Down || event->key() == Qt::Key_Up)
        Q_EMIT resultRequested(event->key() == Qt::Key_Down);
    else
        QLineEdit::keyPressEvent(event);
}

void FindField::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    Q_EMIT focusEntered();
}

void FindField::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    Q_EMIT focusLeft();
}

void FindField::resizeEvent(QResizeEvent *event)
{
    QLineEdit::resizeEvent(event);
    placeHint();
}

void FindField::changeEvent(QEvent *event)
{
    QLineEdit::changeEvent(event);
    placeHint();
}

} // namespace MtConf
