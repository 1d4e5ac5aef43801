#pragma once

#include <QMainWindow>

#include <functional>
#include <memory>
#include <vector>

class QGridLayout;
class QGroupBox;
class QStandardItemModel;
class Ui_ConfigurationWindow;

/// A settings window as a host would make it by hand: the same form, the same controls in the same
/// layout under the same style sheet, and nothing else.
class HandMadeWindow : public QMainWindow
{
public:
    /// A window whose list shows `classes`.
    HandMadeWindow(const QStringList &classes, const QString &styleSheet);
    ~HandMadeWindow() override;

    /// Puts `count` controls on the page, in place of what it held.
    void showPage(const QString &caption, int count);

protected:
    void changeEvent(QEvent *event) override;

private:
    void addRow(QGroupBox *box, QGridLayout *grid, int i);
    void addCaption(QGroupBox *box, QGridLayout *grid, int row, const char *text);

    const std::unique_ptr<Ui_ConfigurationWindow> mUi;
    QStandardItemModel *mClasses;
    std::vector<std::function<void()>> mTexts; // each sets one text of the page
};
