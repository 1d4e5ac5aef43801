#pragma once

#include <OrvUtils/orvutils_export.h>

#include <QColor>
#include <QPointer>
#include <QPushButton>

class QColorDialog;

/// A button that shows a colour and, when clicked or on Space, Enter or Return, lets a person pick
/// another in a colour dialog. A translucent colour stands on chequers, an invalid one is a red
/// stroke through an empty ground. The tool tip and the accessible description say the colour in
/// words:
/// "#rrggbb", "#aarrggbb" for a translucent one, tr("None") for an invalid one.
///
/// The dialog is the native one of the system, except in a window that stays on top: there it is
/// Qt's own, because a native one may open behind that window.
///
/// In a style sheet the swatch fills the content rectangle, inside border and padding.
class ORVUTILS_EXPORT ColorSelectButton : public QPushButton
{
    Q_OBJECT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY sigColorChanged)

public:
    /// A button without a colour inside `parent`, which may be null and owns it.
    explicit ColorSelectButton(QWidget *parent = nullptr);

    /// The colour, exactly as it was set or picked; invalid at first.
    QColor color() const;
    /// Shows `color`, which may be invalid. Emits nothing.
    void setColor(const QColor &color);

    /// Room for a swatch of 3.5 by 1.1 em, in pixels, with what the style puts around it.
    QSize sizeHint() const override;
    /// The same as `sizeHint()`.
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// A person picked a colour that looks different from the one shown; color() is it already.
    void sigColorChanged(const QColor &color);

protected:
    /// Describes the colour in the new language.
    void changeEvent(QEvent *event) override;
    /// Opens the dialog on Return and Enter as on Space.
    void keyPressEvent(QKeyEvent *event) override;
    /// Draws the button of the style with the swatch inside.
    void paintEvent(QPaintEvent *event) override;

private:
    void openDialog();
    void onColorPicked(const QColor &color);
    void describeColor();
    void drawSwatch(QPainter *painter, const QRectF &rect) const;

    QColor mColor;
    QPointer<QColorDialog> mDialog;
};
