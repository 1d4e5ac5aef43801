#pragma once

#include <QObject>

class QDialog;
class QWidget;

namespace MtConf {

/// Corrects the modal dialogs of a window before they are shown, its own and those of editors and
/// hosts: Qt makes them for other fonts and styles than those of the window's style sheet.
class DialogDress : public QObject
{
    Q_OBJECT
public:
    /// Dresses the dialogs of `window`, which owns the object.
    explicit DialogDress(QWidget *window);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void dress(QDialog *dialog) const;
};

} // namespace MtConf
