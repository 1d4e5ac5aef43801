#include <OrvUtils/QMsgeBox.h>

QMsgeBox::QMsgeBox(QWidget *parent) : QMessageBox(parent)
{
    setWindowModality(parent ? Qt::WindowModal : Qt::ApplicationModal);
    // Texts contain names that users have entered, so they are not markup.
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    setStandardButtons(QMessageBox::Ok);
}
