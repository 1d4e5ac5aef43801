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

/// A combo box whose entries are check boxes. Any number of them can be checked. The closed box
/// shows the texts of the checked entries. The list stays open while the user clicks in it, and
/// closes when the box is hidden or disabled.
///
/// Some functions hide functions of QComboBox with the same name, so use the box through this
/// class. Entries that are added through a `QComboBox` pointer count as entries, but have no check
/// box and cannot be checked. A function does nothing if it gets the index of such an entry or an
/// index that does not exist.
///
/// @see ComboboxDisableWheel
/// @since 0.1
class MALTO_EXPORT MultiSelectComboBox : public QComboBox
{
    Q_OBJECT
public:
    /// Creates a box without entries as a child of `parent`, which may be null.
    explicit MultiSelectComboBox(QWidget *parent = nullptr);
    ~MultiSelectComboBox() override;

    /// Appends an unchecked entry. `userData` becomes the property "UserData" of its check box.
    void addItem(const QString &text, const QVariant &userData = QVariant());
    /// Appends an unchecked entry without user data for each text.
    void addItems(const QStringList &texts);
    /// Sets `checked` to whether entry `index` is checked and `userData` to its user data; false
    /// and an invalid QVariant if there is no such entry.
    void getItemData(int index, bool &checked, QVariant &userData) const;
    /// Returns the index of the first entry whose user data equal `userData`, or -1.
    int findItemByUserData(const QVariant &userData) const;
    /// Checks or unchecks entry `index`.
    void setItemChecked(int index, bool checked);
    /// Checks or unchecks each entry according to its index in `checked`. Entries beyond its size
    /// do not change. Rebuilds the text and emits `selectionChanged` once, if anything has changed.
    void setItemsChecked(const QVector<bool> &checked);
    /// Sets the text of entry `index`, in the list and in the closed box. Does not emit
    /// `selectionChanged`.
    void setItemText(int index, const QString &text);
    /// Sets the texts of the first entries as `setItemText` does. Entries whose text in `texts` is
    /// null do not change.
    void setItemTexts(const QStringList &texts);

    /// Sets the text between the checked entries in the closed box; ";" by default.
    void setSeparator(const QString &separator);
    /// Returns the text that the closed box shows, split at the separator; empty if it shows no
    /// text. The last part of an elided text ends with "...".
    QStringList currentText() const;
    /// Checks all entries whose text is in `texts`. Other entries do not change.
    void setCurrentText(const QStringList &texts);
    /// Does nothing.
    void setCurrentText(const QString &text);
    /// Unchecks all entries.
    void ResetSelection();
    /// Sets the text that the closed box shows while nothing is checked.
    void SetPlaceHolderText(const QString &text);
    /// Returns the number of entries.
    int count() const;
    /// Removes all entries. Does not emit `selectionChanged`.
    void clear();

    /// Returns the size hint, in pixels. It is computed from the entries at the first call and does
    /// not change afterwards.
    QSize sizeHint() const override;
    /// Returns the minimum size hint, in pixels. It is computed from the entries at the first call
    /// and does not change afterwards.
    QSize minimumSizeHint() const override;
    /// Closes the list, unless the mouse cursor is over it.
    void hidePopup() override;
    /// Opens the list when a mouse button is released over the text.
    bool eventFilter(QObject *watched, QEvent *event) override;

    /// Whether Alt+Down, F4 and Space open the list, as they do in other combo boxes. In the list
    /// Up and Down move between the entries, and Return toggles an entry and closes the list.
    bool opensByKeyboard = false;

public Q_SLOTS:
    /// Toggles entry `index`.
    void itemClicked(int index);
    /// Shows the texts of the checked entries, joined with the separator and elided after 32
    /// characters, sets the whole text as the tool tip and emits `selectionChanged`. `state` is not
    /// used.
    void stateChanged(int state);

Q_SIGNALS:
    /// Emitted after an entry was checked or unchecked, by the user or by code. A receiver must
    /// delete the box with `deleteLater()` only, because the box still handles the click.
    void selectionChanged();

protected:
    /// Closes the list when the box is disabled, and aligns the text with the layout direction.
    void changeEvent(QEvent *event) override;
    /// Closes the list.
    void hideEvent(QHideEvent *event) override;
    /// Accepts and discards the event, so that neither the box nor the page reacts to it.
    void wheelEvent(QWheelEvent *event) override;
    /// Opens the list if `opensByKeyboard` is true and the key is one that opens it. Discards all
    /// other keys.
    void keyPressEvent(QKeyEvent *event) override;

private:
    friend class MultiSelectComboBoxPrivate;

    QCheckBox *checkBox(int index) const;
    void showSelection();
    void showText();
    void alignText();

    int mMaxDisplayLength = 32;
    QString mSeparator{QLatin1Char(';')};
    std::unique_ptr<MultiSelectComboBoxPrivate> d;
    QListWidget *mListWidget = nullptr;
    QLineEdit *mLineEdit = nullptr;
    QDateTime mLastHideTime;
    QString mShownText;
};
