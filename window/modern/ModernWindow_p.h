#pragma once

#include "MaltoConfiguration/window/WindowFeature_p.h"

#include <QPointer>

class QFrame;
class QLabel;
class QPushButton;
class QToolButton;

namespace MtConf {

struct MajorConfItem;

/// Turns the form into the frame of the modern look: a narrow list of classes that shrinks to icons
/// in a narrow window, and a page of limited width with a title and quiet buttons.
class ModernWindow : public WindowFeature
{
    Q_OBJECT
public:
    explicit ModernWindow(ConfigurationWindow *window);

    void rowAdded(const PageRow &row) override;
    void pageShown() override;
    void sheetApplied() override;
    void retranslate() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildTitle();
    void placeRestoreButtons();
    void setMargins();
    void setListWidth();
    void addMoreButton();
    void showMore();
    void showTexts();
    void showTitle();
    void refreshNotes();
    void refreshFields();
    ConfItem *findItem(const QString &key) const;
    const MajorConfItem *shownClass() const;
    bool isCustomPage() const;
    bool canReset() const;
    void arrangePage();
    void hideOwnTitle();

    QPushButton *const mResetPage;
    QPushButton *const mResetAll;
    QVBoxLayout *const mPage;
    QVBoxLayout *const mRows;
    QLabel *mTitle = nullptr;
    QLabel *mState = nullptr;
    QFrame *mLine = nullptr;
    QToolButton *mMore = nullptr; // in a narrow window: the buttons that have no room
    bool mIsNarrow = false;
};

} // namespace MtConf
