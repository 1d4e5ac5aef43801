#include <OrvUtils/getFontrByDialog.h>

#include <QFontDialog>
#include <QFontInfo>
#include <QPointer>

QFont getFontrByDialog(const QFont &initial, QWidget *parent, const QString &title)
{
    // Without a style name the dialog selects the style "Normal", or an arbitrary one if the family
    // has another name for it, such as "Book" or "Roman".
    QFont offered = initial;
    if (offered.styleName().isEmpty())
        offered.setStyleName(QFontInfo(initial).styleName());
    const QPointer<QFontDialog> dialog = new QFontDialog(offered, parent);
    dialog->setOption(QFontDialog::DontUseNativeDialog);
    dialog->setWindowTitle(title);
    if (dialog->currentFont().family() != offered.family()) {
        // The family is not installed. The dialog selects any other one; texts are drawn in this.
        offered.setFamily(QFontInfo(initial).family());
        dialog->setCurrentFont(offered);
    }
    // The dialog rounds the size, so compare with the font that it shows.
    const QFont shown = dialog->currentFont();
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!dialog)
        return initial;
    const QFont selected = dialog->selectedFont();
    delete dialog;
    return accepted && selected != shown ? selected : initial;
}
