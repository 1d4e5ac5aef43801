#include "Captions_p.h"

#include <QStyleOptionButton>
#include <QStylePainter>
#include <QTextDocument>
#include <QTextLayout>

namespace MtConf {

namespace {

constexpr int sUnlimited = QWIDGETSIZE_MAX;

/// Returns the metrics of the caption while its value differs from the default value. Captions
/// reserve this width, so that the fields beside them keep their place.
QFontMetrics boldMetrics(const QWidget *caption)
{
    QFont font = caption->font();
    font.setBold(true);
    return QFontMetrics(font);
}

int widthOfLine(const QFontMetrics &metrics, const QString &text)
{
    return metrics.boundingRect(0, 0, sUnlimited, sUnlimited, Qt::TextExpandTabs, text).width();
}

int longestWord(const QFontMetrics &metrics, const QString &text)
{
    int longest = 0;
    const QStringList words = text.split(QLatin1Char(' '));
    for (const QString &word : words)
        longest = qMax(longest, metrics.horizontalAdvance(word));
    return longest;
}

} // namespace

CaptionLabel::CaptionLabel(const QString &text, QWidget *parent) : QLabel(text, parent)
{
    setWordWrap(true);
}

QSize CaptionLabel::sizeHint() const
{
    // The size hint of a text that can be wrapped has several lines.
    const QSize hint = QLabel::sizeHint();
    if (Qt::mightBeRichText(text()))
        return hint;
    const QMargins margins = contentsMargins();
    const int width = qMax(widthOfLine(fontMetrics(), text()),
                           widthOfLine(boldMetrics(this), text()));
    return {width + margins.left() + margins.right(), heightForWidth(sUnlimited)};
}

QSize CaptionLabel::minimumSizeHint() const
{
    const int normal = longestWord(fontMetrics(), text());
    const int bold = longestWord(boldMetrics(this), text());
    return QLabel::minimumSizeHint() + QSize(qMax(0, bold - normal), 0);
}

CaptionCheckBox::CaptionCheckBox(const QString &text, QWidget *parent) : QCheckBox(text, parent)
{
    QSizePolicy policy = sizePolicy();
    policy.setHorizontalPolicy(QSizePolicy::Preferred);
    policy.setVerticalPolicy(QSizePolicy::Minimum); // as high as its lines
    setSizePolicy(policy);
}

QSize CaptionCheckBox::sizeHint() const
{
    const int normal = widthOfLine(fontMetrics(), text());
    const int bold = widthOfLine(boldMetrics(this), text());
    return QCheckBox::sizeHint() + QSize(qMax(0, bold - normal), 0);
}

QSize CaptionCheckBox::minimumSizeHint() const
{
    const int word = qMax(longestWord(fontMetrics(), text()),
                          longestWord(boldMetrics(this), text()));
    const QSize hint = sizeHint();
    return {qMin(hint.width(), widthBesideText() + word), hint.height()};
}

bool CaptionCheckBox::hasHeightForWidth() const
{
    return true;
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
