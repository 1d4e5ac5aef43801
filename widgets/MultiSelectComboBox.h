#pragma once

#include <MaltoConfiguration/malto_export.h>

#include <QComboBox>
#include <QDateTime>
#include <QStringList>
#include <QVariant>
#include <QVector>

#include <memory>

class MultiSelectComboBoxPrivate;
class QCheckBox;
class QLineEdit;
class QListWidget;

/// A combo box whose rows are check boxes. Any number of them can be checked; the closed box shows
/// the checked texts, and its list stays open while one clicks inside it. Hiding or disabling the
/// box closes its list.
///
/// Several functions of QComboBox have others of the same name here that work on check boxes, so
/// use the box through this class: rows that are added through a `QComboBox` pointer are plain
/// ones, which count as entries but have no check box and cannot be checked. An index that does
/// not exist, or that of a plain row, is never an error: nothing happens then.
class MALTO_EXPORT MultiSelectComboBox : public QComboBox
{
    Q_OBJECT
public:
    /// A box without entries inside `parent`, which may be null and owns it.
    explicit MultiSelectComboBox(QWidget *parent = nullptr);
    ~MultiSelectComboBox() override;

    /// Appends an unchecked entry. `userData` is kept as the property "UserData" of its check box.
    void addItem(const QString &text, const QVariant &userData = QVariant());
    /// Appends an unchecked entry without user data for each text.
    void addItems(const QStringList &texts);
    /// Tells whether entry `index` is checked, and its user data; false and an invalid datum when
    /// there is no such entry.
    void getItemData(int index, bool &checked, QVariant &userData) const;
    /// The first entry whose user data equal `userData`, or -1.
    int findItemByUserData(const QVariant &userData) const;
    /// Checks or unchecks entry `index`.
    void setItemChecked(int index, bool checked);
    /// Checks or unchecks each entry as `checked` says for its index; entries beyond it stay as
    /// they are. Fast for many: the text is rebuilt and `selectionChanged` emitted once, if
    /// anything has changed.
    void setItemsChecked(const QVector<bool> &checked);
    /// Gives entry `index` another text, also in the closed box. The selection is the same after
    /// it: `selectionChanged` is not emitted.
    void setItemText(int index, const QString &text);
    /// `setItemText` for the entries from the first on; an entry whose text is null keeps its own.
    void setItemTexts(const QStringList &texts);

    /// The parts between the ";" of the text that the closed box shows; empty when it shows none.
    /// A text that is too long to be shown whole is cut here too: its last part ends with "...".
    QStringList currentText() const;
    /// Checks every entry whose text is in `texts`; the others stay as they are.
    void setCurrentText(const QStringList &texts);
    /// Does nothing: one text does not tell which entries to check.
    void setCurrentText(const QString &text);
    /// Unchecks every entry.
    void ResetSelection();
    /// The text that the closed box shows while nothing is checked.
    void SetPlaceHolderText(const QString &text);
    /// The number of entries.
    int count() const;
    /// Removes all entries. `selectionChanged` is not emitted.
    void clear();

    /// Computed at the first call, from the entries of that moment, and the same ever after.
    QSize sizeHint() const override;
    /// Computed at the first call, from the entries of that moment, and the same ever after.
    QSize minimumSizeHint() const override;
    /// Closes the list, unless the mouse cursor is on it.
    void hidePopup() override;
    /// Opens the list when a mouse button is released on the text.
    bool eventFilter(QObject *watched, QEvent *event) override;

    /// When true, Alt+Down, F4 and Space open the list, as in other combo boxes; Up and Down walk
    /// through it, Return checks or unchecks an entry and closes it.
    bool opensByKeyboard = false;

public Q_SLOTS:
    /// Checks entry `index` if it is unchecked, and the other way round.
    void itemClicked(int index);
    /// Shows the texts of the checked entries, joined by ";" and cut after 32 characters, with all
    /// of them in the tool tip, and emits `selectionChanged`.
    void stateChanged(int state);

Q_SIGNALS:
    /// Emitted whenever an entry has been checked or unchecked, by a person or by code. A receiver
    /// that deletes the box does so by `deleteLater()`: the click is still on its way.
    void selectionChanged();

protected:
    /// Closes the list of a box that is disabled, and follows the direction of the layout.
    void changeEvent(QEvent *event) override;
    /// Closes the list.
    void hideEvent(QHideEvent *event) override;
    /// Does nothing with the wheel, and keeps it from the page.
    void wheelEvent(QWheelEvent *event) override;
    /// Opens the list, where that is wanted. Does nothing else with keys: they would step through
    /// the rows of the closed box.
    void keyPressEvent(QKeyEvent *event) override;

private:
    friend class MultiSelectComboBoxPrivate;

    QCheckBox *checkBox(int index) const;
    void showSelection();
    void showText();
    void alignText();

    int mMaxDisplayLength = 32;
    std::unique_ptr<MultiSelectComboBoxPrivate> d;
    QListWidget *mListWidget = nullptr;
    QLineEdit *mLineEdit = nullptr;
    QDateTime mLastHideTime;
    QString mShownText;
};
