#pragma once

#include <QWidget>

class QLabel;
class QPlainTextEdit;
class SettingsWatcher;

/// A page that shows the future content of the local file.
class StoredDataPage : public QWidget
{
    Q_OBJECT
public:
    /// Updates the text whenever `watcher` reports a change.
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
