#include <OrvUtils/ColorSelectButton.h>

#include <QColorDialog>
#include <QEvent>
#include <QFontInfo>
#include <QKeyEvent>
#include <QPainterPath>
#include <QStyleOptionButton>
#include <QStylePainter>

#include <cmath>

namespace {

constexpr qreal sSwatchRadius = 3;

// As a texture, the cells are sharp at every device pixel ratio.
QBrush chequers()
{
    constexpr int cell = 4;
    QImage cells(2 * cell, 2 * cell, QImage::Format_RGB32);
    cells.fill(Qt::white);
    QPainter painter(&cells);
    painter.fillRect(cell, 0, cell, cell, QColor(204, 204, 204));
    painter.fillRect(0, cell, cell, cell, QColor(204, 204, 204));
    return QBrush(cells);
}

/// Returns whether `widget` is in a window that stays on top, or in a window with such a parent.
bool staysOnTop(const QWidget *widget)
{
    for (; widget; widget = widget->parentWidget()) {
        if (widget->windowFlags().testFlag(Qt::WindowStaysOnTopHint))
            return true;
    }
    return false;
}

} // namespace

ColorSelectButton::ColorSelectButton(QWidget *parent) : QPushButton(parent)
{
    // Some styles draw a default button larger. Enter works without it, see keyPressEvent().
    setAutoDefault(false);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &QPushButton::clicked, this, &ColorSelectButton::openDialog);
    describeColor();
}

QColor ColorSelectButton::color() const
{
    return mColor;
}

void ColorSelectButton::setColor(const QColor &color)
{
    mColor = color;
    describeColor();
    update();
}

void ColorSelectButton::describeColor()
{
    QString text = tr("None");
    if (mColor.isValid())
        text = mColor.name(mColor.alpha() < 255 ? QColor::HexArgb : QColor::HexRgb);
    setToolTip(text);
    setAccessibleDescription(text);
}

QSize ColorSelectButton::sizeHint() const
{
    ensurePolished();
    QStyleOptionButton option;
    initStyleOption(&option);
    const double em = QFontInfo(font()).pixelSize();
    const QSize swatch(static_cast<int>(std::lround(em * 3.5)),
                       static_cast<int>(std::lround(em * 1.1)));
    return style()->sizeFromContents(QStyle::CT_PushButton, &option, swatch, this);
}

QSize ColorSelectButton::minimumSizeHint() const
{
    return sizeHint();
}

void ColorSelectButton::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        describeColor();
    QPushButton::changeEvent(event);
}

void ColorSelectButton::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QPushButton::keyPressEvent(event);
}

void ColorSelectButton::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text.clear();
    option.icon = QIcon();
    painter.drawControl(QStyle::CE_PushButtonBevel, option);

    // With a style sheet the padding of the button sets the place of the swatch, and there is no
    // margin.
    const int inset = style()->pixelMetric(QStyle::PM_ButtonMargin, &option, this) / 3;
    const QRect content = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this);
    drawSwatch(&painter, content.adjusted(inset, inset, -inset, -inset));
}

void ColorSelectButton::drawSwatch(QPainter *painter, const QRectF &rect) const
{
    if (rect.isEmpty())
        return;
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setOpacity(isEnabled() ? 1 : 0.35);

    QPainterPath outline;
    outline.addRoundedRect(rect, sSwatchRadius, sSwatchRadius);
    painter->save();
    painter->setClipPath(outline, Qt::IntersectClip);
    if (!mColor.isValid()) {
        painter->fillRect(rect, palette().color(QPalette::Base));
        painter->setPen(QPen(QColor(220, 50, 47), 2));
        painter->drawLine(rect.bottomLeft(), rect.topRight());
    } else {
        if (mColor.alpha() < 255) {
            painter->setBrushOrigin(rect.topLeft());
            painter->fillRect(rect, chequers());
        }
        painter->fillRect(rect, mColor);
    }
    painter->restore();

    // A border in the colour of texts is visible on every background, whatever the colour of the
    // swatch.
    QColor border = palette().color(QPalette::WindowText);
    border.setAlphaF(0.35F);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(border, 1));
    painter->drawRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), sSwatchRadius, sSwatchRadius);
    if (hasFocus() && !testAttribute(Qt::WA_StyleSheetTarget)) {
        painter->setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter->drawRoundedRect(rect.adjusted(1, 1, -1, -1), sSwatchRadius, sSwatchRadius);
        painter->setPen(QPen(palette().color(QPalette::Base), 1));
        painter->drawRoundedRect(rect.adjusted(2.5, 2.5, -2.5, -2.5), sSwatchRadius - 1,
                                 sSwatchRadius - 1);
    }
}

void ColorSelectButton::openDialog()
{
    if (mDialog) {
        mDialog->raise();
        mDialog->activateWindow();
        return;
    }
    // No exec(): without a nested event loop the button may be deleted with the dialog, its child.
    mDialog = new QColorDialog(this);
    mDialog->setAttribute(Qt::WA_DeleteOnClose);
    // Set the option before the colour; otherwise the dialog drops the alpha channel.
    mDialog->setOption(QColorDialog::ShowAlphaChannel);
    // The colour panel of macOS has a fixed level, below that of windows that stay on top. A Qt
    // dialog takes the level of its parent.
    mDialog->setOption(QColorDialog::DontUseNativeDialog, staysOnTop(this));
    mDialog->setCurrentColor(mColor.isValid() ? mColor : QColor(Qt::white));
    connect(mDialog, &QColorDialog::colorSelected, this, &ColorSelectButton::onColorPicked);
    mDialog->open();
}

void ColorSelectButton::onColorPicked(const QColor &color)
{
    // Compare the RGBA values, because the dialog converts every colour model to its own.
    if (!color.isValid() || (mColor.isValid() && color.rgba() == mColor.rgba()))
        return;
    setColor(color);
    Q_EMIT sigColorChanged(color);
}
