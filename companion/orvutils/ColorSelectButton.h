#pragma once

#include <OrvUtils/orvutils_export.h>

#include <QColor>
#include <QPointer>
#include <QPushButton>

class QColorDialog;

/// A button that shows a colour. A click, Space, Enter or Return opens a colour dialog. A
/// translucent colour is drawn over a chequered background, an invalid colour as a red line through
/// an empty swatch. The tool tip and the accessible description are the colour as text: "#rrggbb",
/// "#aarrggbb" for a translucent colour, tr("None") for an invalid one.
///
/// The dialog is the system's native one where Qt has one, except in a window that stays on top: a
/// native dialog may open behind such a window, so Qt's own dialog is used there.
///
/// With a style sheet the swatch fills the content rectangle, inside the border and padding, and
/// the sheet shows the focus.
///
/// @since 0.1
class ORVUTILS_EXPORT ColorSelectButton : public QPushButton
{
    Q_OBJECT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY sigColorChanged)

public:
    /// Creates a button with an invalid colour as a child of `parent`, which may be null.
    explicit ColorSelectButton(QWidget *parent = nullptr);

    /// Returns the colour exactly as it was set or picked; invalid at first.
    QColor color() const;
    /// Sets and shows `color`, which may be invalid. Emits nothing.
    void setColor(const QColor &color);

    /// Returns the size, in pixels, of a swatch of 3.5 by 1.1 em with the frame of the style.
    QSize sizeHint() const override;
    /// Returns `sizeHint()`.
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// Emitted after the user has picked a colour that looks different from the shown one.
    /// `color()` is the new colour already.
    void sigColorChanged(const QColor &color);

protected:
    /// Translates the tool tip and the accessible description when the language changes.
    void changeEvent(QEvent *event) override;
    /// Opens the dialog on Return and Enter, too.
    void keyPressEvent(QKeyEvent *event) override;
    /// Draws the button of the style with the swatch in it.
    void paintEvent(QPaintEvent *event) override;

private:
    void openDialog();
    void onColorPicked(const QColor &color);
    void describeColor();
    void drawSwatch(QPainter *painter, const QRectF &rect) const;

    QColor mColor;
    QPointer<QColorDialog> mDialog;
};
