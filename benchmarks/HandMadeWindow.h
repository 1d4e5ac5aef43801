#pragma once

#include <QMainWindow>

#include <functional>
#include <memory>
#include <vector>

class QGridLayout;
class QGroupBox;
class QStandardItemModel;
class Ui_ConfigurationWindow;

/// A settings window as a host would write it without the library: the same form, the same controls
/// in the same layout with the same style sheet, and nothing else.
class HandMadeWindow : public QMainWindow
{
public:
    /// Creates a window with `classes` in its list.
    HandMadeWindow(const QStringList &classes, const QString &styleSheet);
    ~HandMadeWindow() override;

    /// Replaces the content of the page with `count` controls.
    void showPage(const QString &caption, int count);

protected:
    void changeEvent(QEvent *event) override;

private:
    void addRow(QGroupBox *box, QGridLayout *grid, int i);
    void addCaption(QGroupBox *box, QGridLayout *grid, int row, const char *text);

    const std::unique_ptr<Ui_ConfigurationWindow> mUi;
    QStandardItemModel *mClasses;
    std::vector<std::function<void()>> mTexts; // each retranslates one text of the page
};
