#pragma once

#include <OrvUtils/orvutils_export.h>

#include <QMessageBox>

/// A message box with the application's habits: it blocks the parent's window only (the application
/// without a parent), shows plain text that can be selected and copied, and has an OK button.
class ORVUTILS_EXPORT QMsgeBox : public QMessageBox
{
    Q_OBJECT

public:
    /// `parent` may be null.
    explicit QMsgeBox(QWidget *parent = nullptr);
};
