#pragma once

#include <QWidget>

class QLabel;
class QPlainTextEdit;
class SettingsWatcher;

/// A page that shows what the local file will hold, as it changes.
class StoredDataPage : public QWidget
{
    Q_OBJECT
public:
    /// Shows the data again whenever `watcher` tells of a change.
    StoredDataPage(const SettingsWatcher &watcher, QWidget *parent);

protected:
    void changeEvent(QEvent *event) override;

private:
    void refresh();
    void retranslate();

    QLabel *const mTitle;
    QLabel *const mPath;
    QPlainTextEdit *const mText;
};
