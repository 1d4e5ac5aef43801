#pragma once

#include <QWidget>

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
/// restore the presets, and beside it the values of the selected profile.
class ProfilesPage : public QWidget
{
    Q_OBJECT
public:
    /// Edits `profiles`, which must outlive the page.
    ProfilesPage(ProfileStore &profiles, QWidget *parent);

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
    void renameProfile();
    void addProfile();
    void removeProfile();
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
    QString mShownKey;
};
