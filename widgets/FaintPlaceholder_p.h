#pragma once

#include <QObject>

class QColor;
class QWidget;

/// Keeps the placeholder text of a text field fainter than its text. A style sheet that sets the
/// colour of the text also sets it for the placeholder.
///
/// The colour is that of the text at half its opacity, or the value of the theme that the property
/// "PlaceholderColor" of the window names.
class FaintPlaceholder : public QObject
{
    Q_OBJECT

public:
    /// Watches `edit`, which becomes the owner.
    explicit FaintPlaceholder(QWidget *edit);
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fade();
    QColor faintColor(const QColor &text) const;

    QWidget *const mEdit;
};
