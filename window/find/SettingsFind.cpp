#include "SettingsFind_p.h"

#include "FindField_p.h"
#include "HitMark_p.h"
#include "MaltoConfiguration/widgets/FaintPlaceholder_p.h"
#include "MaltoConfiguration/widgets/HostCode_p.h"

#include <MaltoConfiguration/manage/MtConfManage.h>
#include <MaltoConfiguration/window/ConfigurationWindow.h>

#include <OrvUtils/QThemeCtrl.h>

#include <QBoxLayout>
#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QLocale>
#include <QPainter>
#include <QSet>
#include <QShortcut>
#include <QStandardItemModel>
#include <QToolButton>

#include <memory>

namespace MtConf {

namespace {

// Building rows takes longer than finding them, so they are built when the user stops typing.
constexpr int sPause = 120;      // milliseconds
constexpr int sFieldWidth = 180; // in a narrow column, in pixels at 96 dots per inch
constexpr int sIconSize = 18;

QIcon magnifier(const QColor &color, qreal size)
{
    QPixmap pixmap(QSizeF(size, size).toSize());
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, size / 9, Qt::SolidLine, Qt::RoundCap));
    painter.drawEllipse(QRectF(size * 0.12, size * 0.12, size * 0.52, size * 0.52));
    painter.drawLine(QPointF(size * 0.58, size * 0.58), QPointF(size * 0.86, size * 0.86));
    return pixmap;
}

} // namespace

SettingsFind::SettingsFind(ConfigurationWindow *window)
    : WindowFeature(window), mIndex(std::make_shared<SettingsIndex>(manager())),
      mPage(window->findChild<QVBoxLayout *>(QStringLiteral("layoutConfigItem")))
{
    addField();
    connectField();
    mPause.setSingleShot(true);
    mPause.setInterval(sPause);
    connect(&mPause, &QTimer::timeout, this, &SettingsFind::showResults);
    // A click on the selected class selects no other one.
    connect(classList(), &QListView::clicked, this, [this] {
        if (!mQuery.isEmpty())
            mField->clear();
    });
    classList()->installEventFilter(this);
    window->installEventFilter(this);
}

void SettingsFind::addField()
{
    QWidget *const column = classList()->parentWidget();
    mField = new FindField(column);
    new FaintPlaceholder(mField);
    mButton = new QToolButton(column);
    mButton->setObjectName(QStringLiteral("FindButton"));
    mButton->hide();
    classColumn()->insertWidget(0, mField);
    classColumn()->insertWidget(0, mButton);
    classList()->setFocus(); // not the field, although it is the first widget
    mShortcut = new QShortcut(QKeySequence::Find, window());
    if (auto *titles = window()->findChild<QHBoxLayout *>(QStringLiteral("ModernTitles"))) {
        mHelp = new QLabel(mPage->parentWidget());
        mHelp->setObjectName(QStringLiteral("FindHelp"));
        mHelp->hide();
        titles->addWidget(mHelp, 0, Qt::AlignBottom);
    }
}

void SettingsFind::connectField()
{
    connect(mShortcut, &QShortcut::activated, this, &SettingsFind::focusField);
    connect(mButton, &QToolButton::clicked, this, &SettingsFind::focusField);
    connect(mField, &FindField::focusEntered, this, &SettingsFind::prepare);
    // Host code may delete the window, which a QLineEdit does not expect while it emits a signal.
    connect(mField, &QLineEdit::textChanged, this, &SettingsFind::search, Qt::QueuedConnection);
    connect(mField, &FindField::focusLeft, this, &SettingsFind::showNarrow, Qt::QueuedConnection);
    connect(mField, &QLineEdit::textChanged, this, &SettingsFind::showNarrow);
    connect(mField, &FindField::openRequested, this, &SettingsFind::openFirst);
    connect(mField, &FindField::resultRequested, this, &SettingsFind::focusResult);
}

void SettingsFind::show(const QString &query)
{
    focusField();
    mField->setText(query);
}

QString SettingsFind::query() const
{
    return mField->text();
}

void SettingsFind::focusField()
{
    mButton->hide();
    mField->show();
    mField->setFocus(Qt::ShortcutFocusReason);
    mField->selectAll();
}

/// Shows the field, or the button while the column is narrow and the field is not in use.
void SettingsFind::showNarrow()
{
    const bool isNarrow = classList()->property("narrow").toString() == QLatin1String("1");
    const bool isUsed = mField->hasFocus() || !mField->text().isEmpty();
    mField->setMinimumWidth(isNarrow ? scaled(sFieldWidth) : 0);
    mField->setVisible(!isNarrow || isUsed);
    mButton->setVisible(isNarrow && !isUsed);
}

/// Reads the declarations before a search begins, because the host may have changed them.
void SettingsFind::prepare()
{
    if (!mQuery.isEmpty())
        return;
    mIndex->clear();
    const auto update = [this] {
        if (mQuery.isEmpty()) // mHits are positions in the index
            updateIndex();
    };
    QMetaObject::invokeMethod(this, update, Qt::QueuedConnection); // as in connectField()
}

/// Reads the declarations if that is necessary. Returns false if host code has deleted the window.
bool SettingsFind::updateIndex()
{
    const HostCodeScope scope(hostCode());
    const QPointer<SettingsFind> self(this);
    const std::shared_ptr<SettingsIndex> index = mIndex; // host code may delete the window
    // A class that was declared later has no page in this window.
    QStringList classes;
    const QAbstractItemModel *const rows = classList()->model();
    for (int row = 0; row < rows->rowCount(); ++row)
        classes.append(rows->index(row, 0).data(sClassNameRole).toString());
    index->update(classes);
    return self && manager();
}

void SettingsFind::search()
{
    const SettingsQuery query(mField->text());
    if (query == mQuery)
        return;
    mQuery = query;
    if (query.isEmpty()) {
        leaveResults();
        return;
    }
    const HostCodeScope scope(hostCode());
    const QPointer<SettingsFind> self(this);
    const std::shared_ptr<SettingsIndex> index = mIndex; // host code may delete the window
    const QList<int> hits = updateIndex() ? index->find(query) : QList<int>();
    if (!self || !manager())
        return;
    mHits = hits;
    mLimit = sRowLimit;
    showHint();
    showClasses();
    mPause.start();
}

void SettingsFind::showHint()
{
    const QLocale locale = mField->locale();
    mField->setHint(mQuery.isEmpty() ? mShortcut->key().toString(QKeySequence::NativeText)
                                     : tr("%1 of %2")
                                           .arg(locale.toString(static_cast<int>(mHits.size())),
                                                locale.toString(mIndex->count())));
}

/// Hides the classes without a hit, and shows all of them without a query.
void SettingsFind::showClasses()
{
    QSet<QString> found;
    for (const int hit : std::as_const(mHits))
        found.insert(mIndex->at(hit).className);
    const QAbstractItemModel *const classes = classList()->model();
    for (int row = 0; row < classes->rowCount(); ++row) {
        const QString name = classes->index(row, 0).data(sClassNameRole).toString();
        const bool isHidden = !mQuery.isEmpty() && !found.contains(name);
        if (classList()->isRowHidden(row) != isHidden)
            classList()->setRowHidden(row, isHidden);
    }
}

void SettingsFind::showResults()
{
    mPause.stop();
    if (mQuery.isEmpty() || !manager())
        return;
    const Results results = resultsOf(mHits);
    const bool isSame = mHasResults && results.groups == mResults.groups && results.texts.isEmpty()
                        && mResults.texts.isEmpty() && results.more == mResults.more
                        && !mHits.isEmpty();
    mResults = results;
    if (isSame) {
        // The user may be editing one of the rows.
        markWords();
        mField->announceHint();
        return;
    }
    const QPointer<SettingsFind> self(this);
    mHasResults = false;
    mIsBuilding = true;
    showItems(results.groups);
    if (!self)
        return;
    mIsBuilding = false;
    if (!mHasResults && !mQuery.isEmpty()) // the window is building a page
        mPause.start();
}

/// Ends the search, and leaves the text of the field as it is.
void SettingsFind::endSearch()
{
    mPause.stop();
    if (mHelp)
        mHelp->hide();
    mQuery = SettingsQuery();
    mHits.clear();
    mResults = Results();
    mHasResults = false;
    showHint();
    showClasses();
    const QModelIndex current = classList()->currentIndex();
    if (!classList()->selectionModel()->isSelected(current))
        classList()->selectionModel()->select(current, QItemSelectionModel::ClearAndSelect);
}

/// Ends the search and shows the page of the selected class again.
void SettingsFind::leaveResults()
{
    const bool hadResults = mHasResults;
    endSearch();
    if (!hadResults)
        return;
    const QString className = window()->currentClass();
    if (className.isEmpty())
        rebuildPage();
    else
        window()->switchToView(className);
}

void SettingsFind::pageShown()
{
    if (!mIsBuilding) {
        // Another part of the window has shown a page.
        if (!mQuery.isEmpty() || !SettingsQuery(mField->text()).isEmpty()) {
            endSearch();
            mField->clear();
        }
        return;
    }
    mHasResults = true;
    classList()->selectionModel()->clearSelection(); // the current class stays
    decorate();
    showTitle();
    mField->announceHint();
}

void SettingsFind::pageCleared()
{
    mMarks.clear();
}

void SettingsFind::sheetApplied()
{
    const QColor color = QThemeCtrl::instance()->color(QStringLiteral("ModernSecondary"));
    mField->setIconColor(color);
    const int size = scaled(sIconSize);
    mButton->setIcon(magnifier(color, size * mButton->devicePixelRatioF()));
    mButton->setIconSize(QSize(size, size));
    showNarrow();
}

void SettingsFind::retranslate()
{
    const QString name = tr("Search settings");
    mField->setPlaceholderText(name);
    mField->setAccessibleName(name);
    mField->setClearText(tr("Clear the search"));
    const QString keys = mShortcut->key().toString(QKeySequence::NativeText);
    mButton->setAccessibleName(name);
    mButton->setToolTip(QStringLiteral("%1 (%2)").arg(name, keys));
    const QPointer<SettingsFind> self(this);
    search(); // what has just been typed
    if (!self)
        return;
    mIndex->clear();
    if (mQuery.isEmpty()) {
        showHint();
        return;
    }
    mQuery = SettingsQuery();
    search();
    if (self && mHasResults) {
        renameGroups();
        showTitle();
    }
}

void SettingsFind::windowClosed()
{
    mPause.stop();
}

bool SettingsFind::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::DynamicPropertyChange && watched == classList())
        showNarrow();
    if (event->type() == QEvent::MouseButtonDblClick && mHasResults) {
        if (const PageRow *row = rowOf(watched)) {
            openItem(row->item);
            return true;
        }
    }
    if (event->type() == QEvent::KeyPress && watched == window() && mHasResults) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            openFocused();
            return true;
        }
    }
    return WindowFeature::eventFilter(watched, event);
}

} // namespace MtConf
