#include <OrvUtils/getFontrByDialog.h>

#include <QFontDialog>
#include <QFontInfo>
#include <QPointer>

QFont getFontrByDialog(const QFont &initial, QWidget *parent, const QString &title)
{
    // Without a style's name the dialog looks for "Normal", and takes any style where a family
    // calls its upright regular one "Book" or "Roman".
    QFont offered = initial;
    if (offered.styleName().isEmpty())
        offered.setStyleName(QFontInfo(initial).styleName());
    const QPointer<QFontDialog> dialog = new QFontDialog(offered, parent);
    dialog->setOption(QFontDialog::DontUseNativeDialog);
    dialog->setWindowTitle(title);
    // What the dialog makes of the font: it rounds the size.
    const QFont shown = dialog->currentFont();
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!dialog)
        return initial;
    const QFont selected = dialog->selectedFont();
    delete dialog;
    return accepted && selected != shown ? selected : initial;
}
