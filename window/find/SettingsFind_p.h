#pragma once

#include "MaltoConfiguration/window/WindowFeature_p.h"
#include "SettingsIndex_p.h"

#include <QPointer>
#include <QTimer>

#include <memory>

class QBoxLayout;
class QLabel;
class QPushButton;
class QShortcut;
class QToolButton;

namespace MtConf {

class FindField;
class HitMark;

/// Finds settings on all pages: a field above the classes, and the results in place of the page.
class SettingsFind : public WindowFeature
{
    Q_OBJECT
public:
    explicit SettingsFind(ConfigurationWindow *window);

    /// Puts `query` into the field and shows what it finds.
    void show(const QString &query);
    /// Returns what the field contains.
    QString query() const;

    void pageShown() override;
    void pageCleared() override;
    void sheetApplied() override;
    void retranslate() override;
    void windowClosed() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    static constexpr int sRowLimit = 50; // rows that are built at a time

    /// The results that are shown, or are to be shown.
    struct Results
    {
        PageGroups groups;
        QList<SettingsIndex::Entry> texts; ///< of custom pages
        bool isTextFirst = false;          ///< whether the best hit is one of the texts
        int more = 0;                      ///< how many hits are left out
    };

    void addField();
    void connectField();
    void focusField();
    void showNarrow();
    void prepare();
    bool updateIndex();
    void search();
    void showHint();
    void showClasses();
    void showResults();
    void endSearch();
    void leaveResults();

    Results resultsOf(const QList<int> &hits) const;
    void decorate();
    void addTexts();
    static QPushButton *addButton(const char *name, const QString &text, QBoxLayout *layout);
    QList<QPushButton *> buttons(const char *name) const;
    void addMore();
    void addNothing();
    void markWords();
    void renameGroups();
    void showTitle();

    void openFirst();
    void openFocused();
    void openItem(ConfItem *item);
    void openText(const QString &className, const QString &text);
    bool openPage(const QString &className);
    void reveal(const ConfItem *item);
    void scrollTo(QWidget *widget);
    void focusResult(bool isFirst);

    const std::shared_ptr<SettingsIndex> mIndex;
    FindField *mField = nullptr;
    QToolButton *mButton = nullptr; // in place of the field in a narrow column
    QShortcut *mShortcut = nullptr;
    QLabel *mHelp = nullptr; // beside the title; null if the look has none
    QVBoxLayout *const mPage;
    QTimer mPause;
    SettingsQuery mQuery;
    QList<int> mHits;
    Results mResults;
    QList<QPointer<HitMark>> mMarks;
    int mLimit = sRowLimit;
    bool mIsBuilding = false;
    bool mHasResults = false; // in place of the page
};

} // namespace MtConf
