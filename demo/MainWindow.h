#pragma once

#include <QMainWindow>

class BoundValueModel;
class DemoSession;
class LogPane;
class MessageLog;
class QActionGroup;
class QLabel;
class QPushButton;
class QTableView;

/// The main window: shows the variables and the log, and opens the settings window. Closing it
/// closes the settings window and saves.
class MainWindow : public QMainWindow
{
    Q_OBJECT
public:
    /// Shows `session` and `log`, which must outlive the window.
    MainWindow(DemoSession &session, const MessageLog &log);

    /// Opens the settings window at `page`, or at its first page if that is empty. On the first
    /// start the window is placed beside this one if the screen is large enough for both.
    void showSettings(const QString &page);

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void buildCentre();
    void buildMenu();
    QPushButton *addButton(const char *name);
    void retranslate();
    void applySheet();
    void onSettingsChanged();
    void onHotkeyPressed(const QString &key, const char *label);
    void save();
    void restoreAll();

    DemoSession &mSession;
    BoundValueModel *const mModel;
    QTableView *const mTable;
    LogPane *const mLogPane;
    QLabel *const mValuesCaption;
    QLabel *const mLogCaption;
    QPushButton *mSettingsButton = nullptr;
    QPushButton *mSaveButton = nullptr;
    QPushButton *mRestoreButton = nullptr;
    QMenu *mFileMenu = nullptr;
    QMenu *mThemeMenu = nullptr;
    QAction *mSettingsAction = nullptr;
    QAction *mSaveAction = nullptr;
    QAction *mRestoreAction = nullptr;
    QAction *mQuitAction = nullptr;
    QActionGroup *mThemes = nullptr;
};
