#include "HitMark_p.h"

#include "FoldedText_p.h"
#include "MaltoConfiguration/window/PageRow_p.h"
#include "MaltoConfiguration/window/modern/ModernRow_p.h"
#include "MaltoConfiguration/window/modern/SwitchCaption_p.h"

#include <OrvUtils/QThemeCtrl.h>

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace MtConf {

namespace {

constexpr int sHalf = 127; // of the brightness of a colour

/// Colours `area` below the text that is already painted there.
void paintGround(QPainter *painter, const QRectF &area)
{
    const QColor ground = QThemeCtrl::instance()->color(QStringLiteral("ModernHit"));
    // Of two colours the darker one wins on a bright ground and the brighter one on a dark ground,
    // so that the text keeps its colour.
    const bool isBright = ground.lightness() > sHalf;
    painter->setCompositionMode(isBright ? QPainter::CompositionMode_Darken
                                         : QPainter::CompositionMode_Lighten);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(ground);
    const qreal radius = std::min(area.height() / 8, 4.);
    painter->drawRoundedRect(area, radius, radius);
}

/// A text as a label or a button draws it.
struct DrawnText
{
    QString text;
    QRect rect;
    Qt::Alignment alignment;
    bool isWrapped = false;
};

DrawnText textOfLabel(const QLabel *label)
{
    const bool isRich = label->textFormat() == Qt::RichText
                        || (label->textFormat() == Qt::AutoText
                            && Qt::mightBeRichText(label->text()));
    if (isRich)
        return {};
    const int margin = label->margin();
    QRect rect = label->contentsRect().adjusted(margin, margin, -margin, -margin);
    const Qt::LayoutDirection direction = label->text().isRightToLeft() ? Qt::RightToLeft
                                                                        : Qt::LeftToRight;
    const Qt::Alignment alignment = QStyle::visualAlignment(direction, label->alignment());
    int indent = label->indent();
    if (indent < 0 && label->frameWidth() > 0) // Qt's default
        indent = label->fontMetrics().horizontalAdvance(QLatin1Char('x')) / 2 - margin;
    if (indent > 0 && (alignment & Qt::AlignLeft))
        rect.setLeft(rect.left() + indent);
    else if (indent > 0 && (alignment & Qt::AlignRight))
        rect.setRight(rect.right() - indent);
    return {label->text(), rect, alignment, label->wordWrap()};
}

DrawnText textOfButton(const QAbstractButton *button)
{
    QStyleOptionButton option;
    option.initFrom(button);
    const bool isPushed = qobject_cast<const QPushButton *>(button);
    const auto part = isPushed ? QStyle::SE_PushButtonContents : QStyle::SE_CheckBoxContents;
    const QRect rect = button->style()->subElementRect(part, &option, button);
    const Qt::Alignment alignment = isPushed ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter;
    return {withoutMark(button->text()), rect,
            QStyle::visualAlignment(button->layoutDirection(), alignment)};
}

DrawnText textOf(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return textOfLabel(label);
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        return textOfButton(button);
    return {};
}

/// Breaks the text into lines. Returns their height.
qreal layOut(QTextLayout *layout, const DrawnText &drawn, qreal leading)
{
    QTextOption option;
    option.setTextDirection(drawn.text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    option.setWrapMode(drawn.isWrapped ? QTextOption::WordWrap : QTextOption::ManualWrap);
    layout->setTextOption(option);
    qreal height = -leading;
    layout->beginLayout();
    for (QTextLine line = layout->createLine(); line.isValid(); line = layout->createLine()) {
        line.setLineWidth(drawn.isWrapped ? drawn.rect.width() : QWIDGETSIZE_MAX);
        height += leading;
        line.setPosition(QPointF(0, height));
        height += line.height();
    }
    layout->endLayout();
    return height;
}

QPointF originOf(const QTextLine &line, const DrawnText &drawn, qreal height)
{
    QPointF origin = drawn.rect.topLeft();
    const qreal free = drawn.rect.width() - line.naturalTextWidth();
    if (drawn.alignment & Qt::AlignRight)
        origin.rx() += free;
    else if (drawn.alignment & Qt::AlignHCenter)
        origin.rx() += free / 2;
    if (drawn.alignment & Qt::AlignBottom)
        origin.ry() += drawn.rect.height() - height;
    else if (drawn.alignment & Qt::AlignVCenter)
        origin.ry() += (drawn.rect.height() - height) / 2;
    // A line is as wide as the widest one could be; its text is at the edge of its direction.
    origin.rx() -= line.naturalTextRect().x() - line.x();
    return origin;
}

} // namespace

HitMark::HitMark(QWidget *owner, const QStringList &words) : QWidget(owner), mWords(words)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    owner->installEventFilter(this);
    resize(owner->size());
    show();
}

void HitMark::setWords(const QStringList &words)
{
    mWords = words;
    update();
}

bool HitMark::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parent() && event->type() == QEvent::Resize)
        resize(parentWidget()->size());
    return QWidget::eventFilter(watched, event);
}

void HitMark::paintEvent(QPaintEvent *)
{
    DrawnText drawn = textOf(parentWidget());
    const auto ranges = FoldedText(drawn.text).rangesOf(mWords);
    if (ranges.isEmpty())
        return;
    drawn.text.replace(QLatin1Char('\n'), QChar::LineSeparator);
    QTextLayout layout(drawn.text, parentWidget()->font(), this);
    const qreal height = layOut(&layout, drawn, parentWidget()->fontMetrics().leading());
    QPainter painter(this);
    for (int i = 0; i < layout.lineCount(); ++i) {
        const QTextLine line = layout.lineAt(i);
        const QPointF origin = originOf(line, drawn, height);
        const int past = line.textStart() + line.textLength();
        for (const auto &[first, end] : ranges) {
            const int from = std::max(static_cast<int>(first), line.textStart());
            const int to = std::min(static_cast<int>(end), past);
            if (from >= to)
                continue;
            const qreal x = line.cursorToX(from);
            const qreal other = line.cursorToX(to);
            const QRectF area(std::min(x, other), line.y(), std::abs(other - x), line.height());
            paintGround(&painter, area.translated(origin).toAlignedRect());
        }
    }
}

RowMark::RowMark(const PageRow &row)
    : QWidget(row.frame), mCaption(row.caption), mEditor(row.editor)
{
    setObjectName(QStringLiteral("FindRowMark"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    cover();
    show();
    qApp->installEventFilter(this);
}

/// Covers a row that has the frame to itself, with the notes under its caption, or else the caption
/// and the editor.
void RowMark::cover()
{
    raise();
    if (dynamic_cast<ModernRow *>(parentWidget())) {
        const int margin = fontMetrics().height() / 8;
        setGeometry(parentWidget()->rect().adjusted(margin, margin, -margin, -margin));
        return;
    }
    QRect area;
    for (const QWidget *widget : {mCaption.data(), mEditor.data()}) {
        if (widget)
            area |= QRect(widget->mapTo(parentWidget(), QPoint()), widget->size());
    }
    const int margin = fontMetrics().height() / 4;
    setGeometry(area.adjusted(-margin, -margin, margin, margin) & parentWidget()->rect());
}

bool RowMark::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::MouseButtonPress
        || (type == QEvent::KeyPress && !static_cast<QKeyEvent *>(event)->isAutoRepeat())) {
        qApp->removeEventFilter(this);
        hide();
        deleteLater();
    } else if ((type == QEvent::Resize || type == QEvent::Move)
               && (watched == mCaption || watched == mEditor || watched == parent())) {
        cover();
    }
    return QWidget::eventFilter(watched, event);
}

void RowMark::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintGround(&painter, rect());
}

} // namespace MtConf
