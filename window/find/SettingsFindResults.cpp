#include "SettingsFind_p.h"

#include "FindField_p.h"
#include "HitMark_p.h"
#include "MaltoConfiguration/widgets/HostCode_p.h"

#include <MaltoConfiguration/manage/MtConfManage.h>
#include <MaltoConfiguration/window/ConfigurationWindow.h>

#include <QCoreApplication>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QScrollArea>
#include <QSet>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

// The results of Find: the rows in place of the page, and the way from them to the page of a class.

namespace MtConf {

namespace {

constexpr char sLink[] = "FindLink"; // a text of a custom page
constexpr char sMore[] = "FindMore";

/// Returns the first widget of the row that takes the focus, or null.
QWidget *controlOf(const PageRow &row)
{
    if (!row.editor)
        return nullptr;
    QList<QWidget *> candidates = row.editor->findChildren<QWidget *>();
    candidates.prepend(row.editor->label()); // such as a check box
    for (QWidget *candidate : std::as_const(candidates)) {
        if (candidate && (candidate->focusPolicy() & Qt::TabFocus) && candidate->isEnabled()
            && candidate->isVisible())
            return candidate;
    }
    return nullptr;
}

QList<QLabel *> labelsIn(const QWidget *frame)
{
    return frame->findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
}

bool isGroupCaption(const QLabel *label)
{
    return label->property("ClassLabel").isValid();
}

} // namespace

/// Groups the first hits by class and group.
SettingsFind::Results SettingsFind::resultsOf(const QList<int> &hits) const
{
    Results results;
    QList<ConfItem *> items;
    const int shown = std::min(mLimit, static_cast<int>(hits.size()));
    results.more = static_cast<int>(hits.size()) - shown;
    for (int i = 0; i < shown; ++i) {
        const SettingsIndex::Entry &entry = mIndex->at(hits.at(i));
        if (!entry.item) {
            results.isTextFirst = results.isTextFirst || i == 0;
            results.texts.append(entry);
            continue;
        }
        items.append(entry.item);
    }
    results.groups = pageGroups(items);
    return results;
}

/// Adds to the rows what is no setting, and marks the hits.
void SettingsFind::decorate()
{
    if (mHits.isEmpty())
        addNothing();
    addTexts();
    addMore();
    mMarks.clear();
    QSet<QWidget *> texts; // rows may share a frame
    const QList<QLabel *> labels = mPage->parentWidget()->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (isGroupCaption(label))
            texts.insert(label);
    }
    for (QPushButton *link : buttons(sLink))
        texts.insert(link);
    for (const PageRow &row : rows()) {
        const QList<QLabel *> inRow = row.frame ? labelsIn(row.frame) : QList<QLabel *>();
        for (QLabel *label : inRow)
            texts.insert(label);
        if (row.caption) {
            texts.insert(row.caption);
            // A click on the caption of a flag switches it.
            if (row.editor && !qobject_cast<QAbstractButton *>(row.editor->label()))
                row.caption->installEventFilter(this);
        }
    }
    for (QWidget *text : std::as_const(texts))
        mMarks.append(new HitMark(text, mQuery.words));
}

QList<QPushButton *> SettingsFind::buttons(const char *name) const
{
    return mPage->parentWidget()->findChildren<QPushButton *>(QLatin1String(name));
}

void SettingsFind::markWords()
{
    for (const QPointer<HitMark> &mark : std::as_const(mMarks)) {
        if (mark)
            mark->setWords(mQuery.words);
    }
}

/// Adds a line for each text of a custom page, which opens the page.
void SettingsFind::addTexts()
{
    QString className;
    QVBoxLayout *links = nullptr;
    int index = mResults.isTextFirst ? 0 : std::max(0, mPage->count() - 1); // before the spacer
    QWidget *const board = mPage->parentWidget();
    for (const SettingsIndex::Entry &entry : std::as_const(mResults.texts)) {
        const QString shownClass = translatedName(entry.className);
        if (!links || entry.className != className) {
            className = entry.className;
            auto *caption = new QLabel(shownClass, board);
            caption->setIndent(0);
            caption->setProperty("ClassLabel", QStringLiteral("normal"));
            auto *box = new QGroupBox(board);
            box->setObjectName(QStringLiteral("ConfigGroupBox"));
            box->setAccessibleName(shownClass);
            links = new QVBoxLayout(box);
            mPage->insertWidget(index++, caption);
            mPage->insertWidget(index++, box);
        }
        const QString text = entry.text.isEmpty() ? shownClass : entry.text;
        QPushButton *const button = addButton(sLink, text, links);
        connect(button, &QPushButton::clicked, this,
                [this, entry] { openText(entry.className, entry.text); });
    }
}

QPushButton *SettingsFind::addButton(const char *name, const QString &text, QBoxLayout *layout)
{
    QString shown = text;
    shown.replace(QLatin1Char('&'), QLatin1String("&&"));
    auto *button = new QPushButton(shown, layout->parentWidget());
    button->setObjectName(QLatin1String(name));
    button->setFlat(true);
    button->setCursor(Qt::PointingHandCursor);
    layout->addWidget(button, 0, Qt::AlignLeading);
    return button;
}

void SettingsFind::addMore()
{
    if (mResults.more == 0)
        return;
    const QString text = tr("Show more (%1)").arg(mField->locale().toString(mResults.more));
    QPushButton *const button = addButton(sMore, text, mPage);
    connect(button, &QPushButton::clicked, this, [this] {
        mLimit += sRowLimit;
        showResults();
    });
}

void SettingsFind::addNothing()
{
    auto *label = new QLabel(mPage->parentWidget());
    label->setObjectName(QStringLiteral("FindNothing"));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setText(tr("No setting matches “%1”").arg(mField->text().trimmed()));
    mPage->insertWidget(0, label);
}

/// Shows the captions of the groups in the language that has just been set.
void SettingsFind::renameGroups()
{
    const QList<QLabel *> labels = mPage->parentWidget()->findChildren<QLabel *>();
    for (auto &[caption, items] : mResults.groups) {
        const QString renamed = pageGroups(items).value(0).first;
        for (QLabel *label : labels) {
            if (isGroupCaption(label) && label->text() == caption)
                label->setText(renamed);
        }
        caption = renamed;
    }
}

/// Shows the title of the results where the look has one.
void SettingsFind::showTitle()
{
    const QString title = tr("Results");
    scrollArea()->setAccessibleName(title);
    if (auto *label = window()->findChild<QLabel *>(QStringLiteral("ModernPageTitle")))
        label->setText(title);
    if (mHelp) {
        mHelp->setText(tr("Enter opens the page"));
        mHelp->setVisible(!mHits.isEmpty());
    }
}

/// Opens the page of the row that has the focus, unless Enter has just confirmed a typed value.
void SettingsFind::openFocused()
{
    QWidget *const focused = window()->focusWidget();
    if (auto *button = qobject_cast<QPushButton *>(focused)) {
        button->click();
        return;
    }
    const PageRow *const row = rowOf(focused);
    if (row && !row->editor->isBeingEdited())
        openItem(row->item);
}

void SettingsFind::openFirst()
{
    const QPointer<SettingsFind> self(this);
    search(); // what has just been typed
    if (!self || mHits.isEmpty())
        return;
    const SettingsIndex::Entry first = mIndex->at(mHits.first());
    if (first.item)
        openItem(first.item);
    else
        openText(first.className, first.text);
}

/// Returns false if host code has closed the window.
bool SettingsFind::openPage(const QString &className)
{
    const QPointer<SettingsFind> self(this);
    endSearch();
    mField->clear();
    window()->switchToView(className);
    return self && manager();
}

void SettingsFind::openItem(ConfItem *item)
{
    // The widgets of a new page are not shown yet.
    if (openPage(item->majorName))
        QTimer::singleShot(0, this, [this, item] { reveal(item); });
}

void SettingsFind::openText(const QString &className, const QString &text)
{
    const HostCodeScope scope(hostCode());
    if (!openPage(className) || text.isEmpty())
        return;
    const MajorConfItem *const page = manager()->getMajorConfItemByName(className);
    const auto show = page ? page->showSearchText : nullptr;
    if (show)
        show(text);
}

/// Scrolls to the row of `item`, marks it and gives it the focus.
void SettingsFind::reveal(const ConfItem *item)
{
    const auto isRow = [item](const PageRow &row) { return row.item == item; };
    const auto row = std::find_if(rows().cbegin(), rows().cend(), isRow);
    if (row == rows().cend() || !row->editor || !row->frame)
        return;
    if (QWidget *const control = controlOf(*row))
        control->setFocus(Qt::OtherFocusReason);
    scrollTo(new RowMark(*row));
}

void SettingsFind::scrollTo(QWidget *widget)
{
    // A new page is not laid out yet.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    scrollArea()->ensureWidgetVisible(widget);
}

void SettingsFind::focusResult(bool isFirst)
{
    const QPointer<SettingsFind> self(this);
    search(); // what has just been typed
    if (!self)
        return;
    if (mPause.isActive()) {
        showResults();
        if (self)
            QTimer::singleShot(0, this, [this, isFirst] { focusResult(isFirst); });
        return;
    }
    if (!mHasResults)
        return;
    QList<QWidget *> controls;
    for (const PageRow &row : rows())
        controls.append(controlOf(row));
    for (QPushButton *link : buttons(sLink))
        controls.insert(mResults.isTextFirst ? 0 : controls.size(), link);
    controls.removeAll(nullptr);
    if (controls.isEmpty())
        return;
    QWidget *const control = isFirst ? controls.first() : controls.last();
    control->setFocus(isFirst ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    scrollTo(control);
}

} // namespace MtConf
