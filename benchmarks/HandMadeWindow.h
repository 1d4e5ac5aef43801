#pragma once

#include <QMainWindow>

#include <functional>
#include <memory>
#include <vector>

class QCheckBox;
class QFrame;
class QGridLayout;
class QGroupBox;
class QLabel;
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

    /// Adds what is above the rows.
    virtual void addTitle(const QString &caption);
    /// Adds `count` rows to an empty box.
    virtual void addRows(QGroupBox *box, int count);

    QWidget *board() const;
    void addToPage(QWidget *widget);
    QCheckBox *makeCheckBox(QWidget *parent);
    /// Returns a spin box or, for every third row, a combo box.
    QWidget *makeField(QWidget *parent, int i);
    QLabel *makeCaption(QWidget *parent, int i);

private:
    void addRow(QGroupBox *box, QGridLayout *grid, int i);

    const std::unique_ptr<Ui_ConfigurationWindow> mUi;
    QStandardItemModel *mClasses;
    std::vector<std::function<void()>> mTexts; // each retranslates one text of the page
};
