#pragma once

#include <QWidget>

#include <functional>

class ColorSelectButton;
class ProfileStore;
class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QSpinBox;

/// The page of the capture profiles: the list with buttons to add and delete profiles and to
/// restore the presets, and beside it the values of the selected profile. In the list Delete
/// deletes and F2 renames.
///
/// A name that is typed is stored when the user confirms it, leaves the field, the profile or the
/// page, or closes the window. A name that the profile cannot have is not stored, and the page says
/// why.
class ProfilesPage : public QWidget
{
    Q_OBJECT
public:
    /// Edits `profiles`, which must outlive the page.
    ProfilesPage(ProfileStore &profiles, QWidget *parent);
    ~ProfilesPage() override;

    /// Selects the profile of that name, if there is one, and gives the list the focus.
    void select(const QString &name);

    /// Stores the typed name when the window is about to close, which saves.
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void changeEvent(QEvent *event) override;

private:
    QWidget *makeListSide();
    QWidget *makeValueSide();
    void connectAll();
    void retranslate();
    void applySheet();

    void refresh();
    void showProfile();
    void checkName();
    void storeName();
    void leaveName();
    void addProfile();
    void editName();
    void askToRemove();
    void askToRestore();
    void ask(const QString &question, const QString &action, const std::function<void()> &onYes);
    QString currentKey() const;
    void selectKey(const QString &key);

    ProfileStore &mProfiles;
    QLabel *const mTitle;
    QListWidget *const mList;
    QPushButton *const mAdd;
    QPushButton *const mRemove;
    QPushButton *const mRestore;
    QLabel *const mHint;
    QGroupBox *const mValues;
    QLabel *const mNameLabel;
    QLineEdit *const mName;
    QPushButton *const mRename;
    QLabel *const mNameError;
    QLabel *const mWidthLabel;
    QSpinBox *const mWidth;
    QLabel *const mHeightLabel;
    QSpinBox *const mHeight;
    QLabel *const mColorLabel;
    ColorSelectButton *const mColor;
    QCheckBox *const mPointer;
    QLabel *const mState;
    QLabel *const mNotice;
    QString mShownKey;
};
