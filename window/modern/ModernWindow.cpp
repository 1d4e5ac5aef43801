#include "ModernWindow_p.h"

#include "DependencyNote_p.h"
#include "MaltoConfiguration/widgets/FaintPlaceholder_p.h"
#include "ModernPageBuilder_p.h"
#include "StatusNote_p.h"
#include "SwitchCaption_p.h"

#include <MaltoConfiguration/manage/MtConfManage.h>
#include <MaltoConfiguration/window/ConfigurationWindow.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace MtConf {

namespace {

// Sizes in pixels at 96 dots per inch.
constexpr int sListWidth = 216;
constexpr int sListMargin = 12;
constexpr int sRowHeight = 36;
constexpr int sIconWidth = 26; // with the gap to the text
constexpr int sIconHeight = 18;
constexpr int sNarrowWindow = 760;
constexpr int sPageWidth = 720;
constexpr int sPageTop = 20;
constexpr int sPageSide = 24;
constexpr QSize sLeastWindow(680, 400);

} // namespace

ModernWindow::ModernWindow(ConfigurationWindow *window)
    : WindowFeature(window),
      mResetPage(window->findChild<QPushButton *>(QStringLiteral("btnRestoreDefault"))),
      mResetAll(window->findChild<QPushButton *>(QStringLiteral("btnRestoreAllDefault"))),
      mPage(window->findChild<QVBoxLayout *>(QStringLiteral("verticalLayout"))),
      mRows(window->findChild<QVBoxLayout *>(QStringLiteral("layoutConfigItem")))
{
    window->setProperty("PlaceholderColor", QStringLiteral("ModernPlaceholder"));
    for (QPushButton *button : {mResetPage, mResetAll}) {
        button->setStyleSheet(QString()); // the form's
        button->setFlat(true);
        button->setCursor(Qt::PointingHandCursor);
    }
    for (const char *name : {"horizontalLayout", "horizontalLayout_2"}) {
        auto *layout = window->findChild<QHBoxLayout *>(QLatin1String(name));
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
    }
    mLine = new QFrame(window->centralWidget());
    mLine->setObjectName(QStringLiteral("ModernColumnLine"));
    window->findChild<QHBoxLayout *>(QStringLiteral("horizontalLayout"))->insertWidget(1, mLine);
    classList()->setUniformItemSizes(true);
    classList()->setProperty("RingAroundRow", true);
    classList()->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    classList()->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    buildTitle();
    addMoreButton();
    window->installEventFilter(this);
    scrollArea()->viewport()->installEventFilter(this);
    scrollArea()->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    scrollArea()->setProperty("RingInside", true); // it fills the window
}

void ModernWindow::buildTitle()
{
    QWidget *const board = mPage->parentWidget();
    mTitle = new QLabel(board);
    mTitle->setObjectName(QStringLiteral("ModernPageTitle"));
    mTitle->setTextFormat(Qt::PlainText);
    mTitle->setIndent(0);
    mTitle->setWordWrap(true);
    mState = new QLabel(board);
    mState->setObjectName(QStringLiteral("ModernPageState"));
    mState->setIndent(0);
    mState->hide();
    auto *titles = new QHBoxLayout;
    titles->setObjectName(QStringLiteral("ModernTitles"));
    titles->addWidget(mTitle, 1);
    titles->addWidget(mState, 0, Qt::AlignBottom);
    mPage->insertLayout(0, titles);
    mPage->addStretch();
}

void ModernWindow::sheetApplied()
{
    const QSize room = window()->screen()->availableSize();
    window()->setMinimumSize((sLeastWindow * scaled(100) / 100).boundedTo(room));
    classList()->setIconSize(QSize(scaled(sIconWidth), scaled(sIconHeight)));
    const int margin = scaled(sListMargin);
    classColumn()->setContentsMargins(margin, margin, margin, margin);
    classColumn()->setSpacing(scaled(8));
    mPage->setSpacing(0);
    mRows->setSpacing(0);
    mLine->setFixedWidth(qMax(1, scaled(1)));
    setListWidth();
    setMargins();
    // Both have colours of the theme.
    refreshNotes();
    refreshFields();
}

void ModernWindow::setMargins()
{
    const int width = scrollArea()->viewport()->width();
    const int side = scaled(sPageSide) + qMax(0, (width - scaled(sPageWidth)) / 2);
    mPage->setContentsMargins(side, scaled(sPageTop), side, scaled(sPageTop));
}

void ModernWindow::addMoreButton()
{
    mMore = new QToolButton(window()->centralWidget());
    mMore->setObjectName(QStringLiteral("ModernMore"));
    mMore->setText(QStringLiteral("\u22ef"));
    mMore->setAutoRaise(true);
    connect(mMore, &QAbstractButton::clicked, this, &ModernWindow::showMore);
    classColumn()->addWidget(mMore, 0, Qt::AlignLeft);
}

/// Offers the buttons of the column that are hidden, by whatever feature, in a menu.
void ModernWindow::showMore()
{
    auto *menu = new QMenu(window());
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const QList<QPushButton *> buttons = window()->centralWidget()->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->isVisible() || scrollArea()->isAncestorOf(button) || button->text().isEmpty())
            continue;
        const QString name = button->accessibleName();
        QAction *const action = menu->addAction(name.isEmpty() ? button->text() : name);
        action->setEnabled(button->isEnabled());
        connect(action, &QAction::triggered, button, &QAbstractButton::click);
    }
    menu->popup(mMore->mapToGlobal(mMore->rect().topRight()));
}

void ModernWindow::setListWidth()
{
    mIsNarrow = window()->width() < scaled(sNarrowWindow);
    const int full = scaled(sListWidth) - mLine->width() - 2 * scaled(sListMargin);
    classList()->setFixedWidth(mIsNarrow ? scaled(sRowHeight) : full);
    mResetAll->setMaximumWidth(full);
    mResetAll->setVisible(!mIsNarrow);
    mMore->setVisible(mIsNarrow);
    // Beside icons it would cover them.
    classList()->setVerticalScrollBarPolicy(mIsNarrow ? Qt::ScrollBarAlwaysOff
                                                      : Qt::ScrollBarAsNeeded);
    // Of another feature. Its text would widen the column.
    if (auto *changes = window()->findChild<QWidget *>(QStringLiteral("ShowChangesButton")))
        changes->setVisible(!mIsNarrow);
    const QString narrow = mIsNarrow ? QStringLiteral("1") : QStringLiteral("0");
    if (classList()->property("narrow").toString() != narrow) {
        classList()->setProperty("narrow", narrow);
        classList()->style()->unpolish(classList());
        classList()->style()->polish(classList());
    }
    showTexts();
}

/// Shows the texts of the buttons, and the names of the classes as tool tips of a narrow list.
void ModernWindow::showTexts()
{
    mResetPage->setText(tr("Reset this page…"));
    mMore->setToolTip(tr("More"));
    mMore->setAccessibleName(mMore->toolTip());
    const QString all = tr("Reset all settings…");
    mResetAll->ensurePolished();
    const int room = classList()->maximumWidth() - scaled(2 * 10);
    mResetAll->setText(mResetAll->fontMetrics().elidedText(all, Qt::ElideRight, room));
    mResetAll->setAccessibleName(all);
    mResetAll->setToolTip(mResetAll->text() == all ? QString() : all);
    QAbstractItemModel *const classes = classList()->model();
    for (int row = 0; row < classes->rowCount(); ++row) {
        const QModelIndex index = classes->index(row, 0);
        const QVariant tip = mIsNarrow ? index.data() : QVariant();
        if (index.data(Qt::ToolTipRole) != tip)
            classes->setData(index, tip, Qt::ToolTipRole);
    }
}

void ModernWindow::showTitle()
{
    mTitle->setText(classList()->currentIndex().data().toString());
}

const MajorConfItem *ModernWindow::shownClass() const
{
    return manager() ? manager()->getMajorConfItemByName(window()->currentClass()) : nullptr;
}

bool ModernWindow::isCustomPage() const
{
    return shownClass() && shownClass()->majorWidget && rows().isEmpty();
}

/// Returns whether the shown page of the host can be reset.
bool ModernWindow::canReset() const
{
    return shownClass() && shownClass()->restoreDefault;
}

void ModernWindow::rowAdded(const PageRow &row)
{
    if (!row.frame || !row.editor)
        return;
    const QList<QLineEdit *> edits = row.editor->findChildren<QLineEdit *>();
    for (QLineEdit *edit : edits) { // of the host
        if (!edit->findChild<FaintPlaceholder *>())
            new FaintPlaceholder(edit);
    }
    if (row.editor->status().icon)
        builder()->addUnderCaption(row, new StatusNote(row.editor, row.frame));
    if (!row.item->dependencies.isEmpty()) {
        const auto find = [this](const QString &key) { return findItem(key); };
        builder()->addUnderCaption(row, new DependencyNote(row.item, row.editor, find, row.frame));
    }
}

ConfItem *ModernWindow::findItem(const QString &key) const
{
    for (const PageRow &row : rows()) { // in most cases on the same page
        if (row.key == key)
            return row.item;
    }
    if (!manager())
        return nullptr;
    for (ConfItem &item : manager()->items) {
        if (item.getFullName() == key)
            return &item;
    }
    return nullptr;
}

void ModernWindow::refreshNotes()
{
    const QWidget *const board = mPage->parentWidget();
    const QList<StatusNote *> states = board->findChildren<StatusNote *>();
    for (StatusNote *note : states)
        note->refresh();
    const QList<DependencyNote *> reasons = board->findChildren<DependencyNote *>();
    for (DependencyNote *note : reasons)
        note->refresh();
}

void ModernWindow::refreshFields()
{
    for (const PageRow &row : rows()) {
        if (row.editor)
            ModernPageBuilder::setFields(row, scaled(100) / 100.);
    }
    ModernPageBuilder::alignActions(rows());
}

void ModernWindow::pageShown()
{
    refreshNotes();
    ModernPageBuilder::alignActions(rows());
    showTitle();
    hideOwnTitle();
    arrangePage();
}

void ModernWindow::arrangePage()
{
    const bool isCustom = isCustomPage();
    // The button is below the last row, and the rest of the window stays empty. A page of the host
    // fills the window.
    QLayoutItem *const last = mRows->itemAt(mRows->count() - 1);
    if (QSpacerItem *const spacer = last ? last->spacerItem() : nullptr)
        spacer->changeSize(0, 0, QSizePolicy::Minimum, QSizePolicy::Fixed);
    if (isCustom && !canReset())
        mResetPage->hide();
    mPage->setStretch(mPage->indexOf(mRows), isCustom ? 1 : 0);
    mPage->setStretch(mPage->count() - 1, isCustom ? 0 : 1);
    mRows->invalidate();
}

/// Hides the caption of a page of the host that repeats the title.
void ModernWindow::hideOwnTitle()
{
    if (!isCustomPage())
        return;
    const QList<QLabel *> labels = mPage->parentWidget()->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (label->property("ClassLabel").isValid() && label->text() == mTitle->text())
            label->hide();
    }
}

void ModernWindow::retranslate()
{
    showTitle();
    showTexts();
    refreshNotes();
    refreshFields();
    for (const PageRow &row : rows()) {
        if (auto *caption = dynamic_cast<SwitchCaption *>(row.caption.data()))
            caption->followText();
    }
}

bool ModernWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize) {
        if (watched == window())
            setListWidth();
        else
            setMargins();
    }
    return WindowFeature::eventFilter(watched, event);
}

} // namespace MtConf
