#include "Captions_p.h"

#include <QStyleOptionButton>
#include <QStylePainter>
#include <QTextDocument>
#include <QTextLayout>
#include <QtMath>

namespace MtConf {

namespace {

constexpr int sUnlimited = QWIDGETSIZE_MAX;

} // namespace

WrappedLabel::WrappedLabel(const QString &text, QWidget *parent) : QLabel(text, parent)
{
    setWordWrap(true);
}

int WrappedLabel::heightForWidth(int width) const
{
    Unwrapped &known = mUnwrapped;
    if (known.leastWidth < 0 || known.text != text() || known.font != font()
        || known.margins != contentsMargins()) {
        known = {text(), font(), contentsMargins(), sUnlimited, QLabel::heightForWidth(sUnlimited)};
    }
    if (width >= known.leastWidth)
        return known.height;
    const int height = QLabel::heightForWidth(width);
    // A label that is wider is not higher.
    if (height == known.height)
        known.leastWidth = width;
    return height;
}

CaptionWidths::Widths::Widths(const QFont &font, const QString &text)
{
    QString lines = text;
    lines.replace(QLatin1Char('\n'), QChar::LineSeparator);
    QTextLayout layout(lines, font);
    layout.beginLayout();
    for (QTextLine next = layout.createLine(); next.isValid();)
        next = layout.createLine();
    layout.endLayout();
    line = qCeil(layout.maximumWidth());
    word = qCeil(layout.minimumWidth());
}

void CaptionWidths::measure(const QWidget *caption, const QString &text)
{
    if (mText == text && mFont == caption->font())
        return;
    mText = text;
    mFont = caption->font();
    mNormal = Widths(mFont, text);
    QFont bold = mFont;
    bold.setBold(true);
    mBold = Widths(bold, text);
}

const CaptionWidths &CaptionLabel::widths() const
{
    ensurePolished();
    mWidths.measure(this, text());
    return mWidths;
}

QSize CaptionLabel::sizeForText(int width) const
{
    const QMargins margins = contentsMargins();
    return {width + margins.left() + margins.right(), heightForWidth(sUnlimited)};
}

QSize CaptionLabel::sizeHint() const
{
    // The size hint of a text that can be wrapped has several lines.
    return Qt::mightBeRichText(text()) ? QLabel::sizeHint() : sizeForText(widths().line());
}

QSize CaptionLabel::minimumSizeHint() const
{
    return Qt::mightBeRichText(text()) ? QLabel::minimumSizeHint() : sizeForText(widths().word());
}

CaptionCheckBox::CaptionCheckBox(const QString &text, QWidget *parent) : QCheckBox(text, parent)
{
    QSizePolicy policy = sizePolicy();
    policy.setHorizontalPolicy(QSizePolicy::Preferred);
    policy.setVerticalPolicy(QSizePolicy::Minimum); // as high as its lines
    setSizePolicy(policy);
}

const CaptionWidths &CaptionCheckBox::widths() const
{
    mWidths.measure(this, text());
    return mWidths;
}

QSize CaptionCheckBox::sizeHint() const
{
    const QSize hint = QCheckBox::sizeHint(); // before the font is used: it polishes
    return hint + QSize(widths().moreInBold(), 0);
}

QSize CaptionCheckBox::minimumSizeHint() const
{
    const QSize hint = sizeHint();
    return {qMin(hint.width(), widthBesideText() + widths().word()), hint.height()};
}

bool CaptionCheckBox::hasHeightForWidth() const
{
    return minimumSize() != maximumSize();
}

int CaptionCheckBox::heightForWidth(int width) const
{
    const auto moreLines = static_cast<int>(wrappedText(width).count(QLatin1Char('\n')));
    return sizeHint().height() + moreLines * fontMetrics().lineSpacing();
}

/// Returns the width in pixels of the indicator and of all margins.
int CaptionCheckBox::widthBesideText() const
{
    return QCheckBox::sizeHint().width() - fontMetrics().size(Qt::TextShowMnemonic, text()).width();
}

/// Returns the text with line breaks, so that it fits into a check box of that width in pixels.
QString CaptionCheckBox::wrappedText(int width) const
{
    if (width >= QCheckBox::sizeHint().width())
        return text();
    QStringList lines;
    QTextLayout layout(text(), font());
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width - widthBesideText());
        lines.append(text().mid(line.textStart(), line.textLength()).trimmed());
    }
    layout.endLayout();
    return lines.join(QLatin1Char('\n'));
}

void CaptionCheckBox::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text = wrappedText(width());
    QStylePainter(this).drawControl(QStyle::CE_CheckBox, option);
}

} // namespace MtConf
