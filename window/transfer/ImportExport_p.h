#pragma once

#include "MaltoConfiguration/window/WindowFeature_p.h"

#include <QMessageBox>

class QBoxLayout;
class QFileDialog;
class QPushButton;

namespace MtConf {

class SettingsImport;

/// Exports the settings to a file and imports them, with two buttons below the list of classes.
class ImportExport : public WindowFeature
{
    Q_OBJECT
public:
    explicit ImportExport(ConfigurationWindow *window);

    void sheetApplied() override;
    void retranslate() override;

    /// Asks for a file and writes the settings into it.
    void exportSettings();
    /// Asks for a file, shows what it would change, and imports what the user leaves checked.
    void importSettings();

protected:
    /// Follows the width of the list: hides the buttons while it shows only icons.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QString chooseFile(QFileDialog *dialog);
    QStringList chooseChanges(const QString &path, const SettingsImport &import);
    void apply(const SettingsImport &import, const QStringList &keys);
    int load(const SettingsImport &import, const QStringList &keys);
    void tell(QMessageBox::Icon icon, const QString &title, const QString &text);
    void dress(QWidget *widget) const;
    void arrange();

    QWidget *const mFoot;
    QBoxLayout *const mLayout;
    QPushButton *const mImport;
    QPushButton *const mExport;
    QString mFolder; // of the last file
};

} // namespace MtConf
