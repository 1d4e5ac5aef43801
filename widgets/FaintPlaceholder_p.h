#pragma once

#include <QObject>

class QWidget;

/// Keeps the placeholder text of a text field fainter than its text. A style sheet that sets the
/// colour of the text also sets it for the placeholder.
class FaintPlaceholder : public QObject
{
public:
    /// Watches `edit`, which becomes the owner.
    explicit FaintPlaceholder(QWidget *edit);
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fade();

    QWidget *const mEdit;
};
