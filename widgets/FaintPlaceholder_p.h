#pragma once

#include <QObject>

class QLineEdit;

/// Keeps the placeholder of a line edit fainter than what is entered into it: a style sheet that
/// sets the colour of the text sets the same one for the placeholder.
class FaintPlaceholder : public QObject
{
public:
    /// Looks after `edit`, which owns it.
    explicit FaintPlaceholder(QLineEdit *edit);
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fade();

    QLineEdit *const mEdit;
};
