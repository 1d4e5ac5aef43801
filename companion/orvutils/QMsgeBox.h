#pragma once

#include <OrvUtils/orvutils_export.h>

#include <QMessageBox>

/// A message box with the defaults of the application: modal for the window of the parent, or for
/// the application if there is no parent; plain text that can be selected; an OK button.
///
/// @since 0.1
class ORVUTILS_EXPORT QMsgeBox : public QMessageBox
{
    Q_OBJECT

public:
    /// Creates a message box. `parent` may be null.
    explicit QMsgeBox(QWidget *parent = nullptr);
};
