#include <OrvUtils/QMsgeBox.h>

QMsgeBox::QMsgeBox(QWidget *parent) : QMessageBox(parent)
{
    setWindowModality(parent ? Qt::WindowModal : Qt::ApplicationModal);
    // Texts carry names that a person typed; none of them is markup.
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    setStandardButtons(QMessageBox::Ok);
}
