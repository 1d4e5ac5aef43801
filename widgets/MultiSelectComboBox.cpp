#include <MaltoConfiguration/widgets/MultiSelectComboBox.h>

#include "FaintPlaceholder_p.h"
#include "RoundedPopup_p.h"

#include "QtWidgetsCompat_p.h"

#include <QApplication>
#include <QCheckBox>
#include <QCursor>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPointer>
#include <QSet>
#include <QSignalBlocker>
#include <QStyleOptionComboBox>
#include <QStyledItemDelegate>
#include <QtMath>

namespace {

constexpr char sUserData[] = "UserData";

/// Returns `text`, elided with "..." after `length` characters.
QString elided(const QString &text, int length)
{
    return text.size() > length ? text.left(length) + QLatin1String("...") : text;
}

/// Returns whether this key opens the list of other combo boxes.
bool opensList(const QKeyEvent &event)
{
    const int keys = event.key() | static_cast<int>(event.modifiers() & ~Qt::KeypadModifier);
    return keys == Qt::Key_F4 || keys == Qt::Key_Space
           || keys == (static_cast<int>(Qt::AltModifier) | Qt::Key_Down);
}

/// Gives each row the height of its check box, which a list view does not consider, and a highlight
/// on which the text of the check box is readable.
class CheckBoxRowDelegate : public QStyledItemDelegate
{
public:
    explicit CheckBoxRowDelegate(QListWidget *list) : QStyledItemDelegate(list), mList(list) {}

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const QSize size = QStyledItemDelegate::sizeHint(option, index);
        const QWidget *box = mList->indexWidget(index);
        return box ? size.expandedTo(box->sizeHint()) : size;
    }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        if (!mList->indexWidget(index))
            return;
        // A check box keeps its text colour when its row is highlighted.
        QColor tint = option->palette.color(QPalette::Highlight);
        tint.setAlphaF(0.25);
        option->palette.setColor(QPalette::Highlight, tint);
    }

private:
    QListWidget *mList;
};

} // namespace

/// The cached size hints of the box. They are computed once: a page of settings must not change its
/// layout while the user checks entries.
class MultiSelectComboBoxPrivate
{
public:
    explicit MultiSelectComboBoxPrivate(const MultiSelectComboBox *box) : q(box) {}

    QSize recomputeSizeHint(QSize &cache) const;

    const MultiSelectComboBox *q;
    QSize minimumSizeHint;
    QSize sizeHint;

private:
    QString textToFit() const;
};

QSize MultiSelectComboBoxPrivate::recomputeSizeHint(QSize &cache) const
{
    if (!cache.isValid()) {
        const QFontMetrics metrics = q->fontMetrics();
        // All texts, not only the checked ones, so that checking an entry does not change the
        // width.
        const int width = q->count() == 0
                              ? 7 * metrics.horizontalAdvance(QLatin1Char('x'))
                              : qMax(cache.width(), metrics.boundingRect(textToFit()).width());
        const int height = qMax(qCeil(QFontMetricsF(q->font()).height()), 14) + 2;
        QStyleOptionComboBox option;
        q->initStyleOption(&option);
        cache = q->style()->sizeFromContents(QStyle::CT_ComboBox, &option, QSize(width, height), q);
    }
    return cache.expandedTo(QtCompat::globalStrut());
}

QString MultiSelectComboBoxPrivate::textToFit() const
{
    QString text;
    for (int i = 0; i < q->count() && text.size() <= q->mMaxDisplayLength; ++i) {
        if (const QCheckBox *box = q->checkBox(i))
            text += box->text() + q->mSeparator;
    }
    return elided(text, q->mMaxDisplayLength);
}

MultiSelectComboBox::MultiSelectComboBox(QWidget *parent)
    : QComboBox(parent), d(std::make_unique<MultiSelectComboBoxPrivate>(this)),
      mListWidget(new QListWidget(this)), mLineEdit(new QLineEdit(this))
{
    mLineEdit->setReadOnly(true);
    mLineEdit->installEventFilter(this);
    new FaintPlaceholder(mLineEdit);
    setProperty("class", QStringLiteral("MultiSelectComboBox"));
    setModel(mListWidget->model());
    setView(mListWidget);
    new MtConf::RoundedPopup(this);
    mListWidget->setItemDelegate(new CheckBoxRowDelegate(mListWidget));
    setLineEdit(mLineEdit);
    connect(this, QOverload<int>::of(&QComboBox::activated), this,
            &MultiSelectComboBox::itemClicked);
    // Undo what QComboBox does: it sets the text of its current row.
    connect(mLineEdit, &QLineEdit::textChanged, this, &MultiSelectComboBox::showText);
    alignText();
}

MultiSelectComboBox::~MultiSelectComboBox() = default;

void MultiSelectComboBox::addItem(const QString &text, const QVariant &userData)
{
    auto *box = new QCheckBox(text, this);
    box->setProperty(sUserData, userData);
    // The row itself has no text: it would be painted under the check box, and QComboBox would use
    // it to complete the shown text.
    auto *row = new QListWidgetItem(mListWidget);
    mListWidget->setItemWidget(row, box);
    connect(box, &QCheckBox::stateChanged, this, &MultiSelectComboBox::stateChanged);
}

void MultiSelectComboBox::addItems(const QStringList &texts)
{
    for (const QString &text : texts)
        addItem(text);
}

QCheckBox *MultiSelectComboBox::checkBox(int index) const
{
    return qobject_cast<QCheckBox *>(mListWidget->itemWidget(mListWidget->item(index)));
}

void MultiSelectComboBox::getItemData(int index, bool &checked, QVariant &userData) const
{
    const QCheckBox *box = checkBox(index);
    checked = box && box->isChecked();
    userData = box ? box->property(sUserData) : QVariant();
}

int MultiSelectComboBox::findItemByUserData(const QVariant &userData) const
{
    for (int i = 0; i < count(); ++i) {
        const QCheckBox *box = checkBox(i);
        if (box && QtCompat::isEqual(box->property(sUserData), userData))
            return i;
    }
    return -1;
}

void MultiSelectComboBox::setItemChecked(int index, bool checked)
{
    if (QCheckBox *box = checkBox(index))
        box->setChecked(checked);
}

void MultiSelectComboBox::setItemsChecked(const QVector<bool> &checked)
{
    bool changed = false;
    for (int i = 0; i < count() && i < checked.size(); ++i) {
        QCheckBox *box = checkBox(i);
        if (!box || box->isChecked() == checked.at(i))
            continue;
        const QSignalBlocker blocker(box);
        box->setChecked(checked.at(i));
        changed = true;
    }
    if (changed)
        stateChanged(Qt::Checked);
}

void MultiSelectComboBox::setItemText(int index, const QString &text)
{
    if (QCheckBox *box = checkBox(index)) {
        box->setText(text);
        showSelection();
    }
}

void MultiSelectComboBox::setItemTexts(const QStringList &texts)
{
    for (int i = 0; i < count() && i < texts.size(); ++i) {
        QCheckBox *box = checkBox(i);
        if (box && !texts.at(i).isNull())
            box->setText(texts.at(i));
    }
    showSelection();
}

void MultiSelectComboBox::setSeparator(const QString &separator)
{
    mSeparator = separator;
    showSelection();
}

QStringList MultiSelectComboBox::currentText() const
{
    // The shown text counts, even if it is elided. The whole text is in the tool tip.
    const QString shown = mLineEdit->text();
    return shown.isEmpty() ? QStringList() : shown.split(mSeparator);
}

void MultiSelectComboBox::setCurrentText(const QStringList &texts)
{
    const QSet<QString> wanted(texts.cbegin(), texts.cend());
    const QPointer<MultiSelectComboBox> self(this);
    for (int i = 0; self && i < count(); ++i) {
        QCheckBox *box = checkBox(i);
        if (box && wanted.contains(box->text()))
            box->setChecked(true);
    }
}

void MultiSelectComboBox::setCurrentText(const QString &text)
{
    Q_UNUSED(text)
}

void MultiSelectComboBox::ResetSelection()
{
    const QPointer<MultiSelectComboBox> self(this);
    for (int i = 0; self && i < count(); ++i)
        setItemChecked(i, false);
}

void MultiSelectComboBox::SetPlaceHolderText(const QString &text)
{
    mLineEdit->setPlaceholderText(text);
}

int MultiSelectComboBox::count() const
{
    return mListWidget->count();
}

void MultiSelectComboBox::clear()
{
    mListWidget->clear();
    showSelection();
}

QSize MultiSelectComboBox::sizeHint() const
{
    return d->recomputeSizeHint(d->sizeHint);
}

QSize MultiSelectComboBox::minimumSizeHint() const
{
    return d->recomputeSizeHint(d->minimumSizeHint);
}

void MultiSelectComboBox::hidePopup()
{
    // QComboBox closes the list when a row is selected. Keep it open while the cursor is over it.
    const QPoint cursor = mapFromGlobal(QCursor::pos());
    if (cursor.x() >= 0 && cursor.x() <= width() && cursor.y() >= height()
        && cursor.y() <= height() + mListWidget->height())
        return;
    QComboBox::hidePopup();
    mLastHideTime = QDateTime::currentDateTimeUtc();
}

bool MultiSelectComboBox::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == mLineEdit && event->type() == QEvent::MouseButtonRelease) {
        // The release of the click that closed the list arrives here shortly after and must not
        // open it again. The age is 0 if the list was never hidden.
        const qint64 age = mLastHideTime.msecsTo(QDateTime::currentDateTimeUtc());
        if (age < 1 || age > 499)
            showPopup();
    }
    return false;
}

void MultiSelectComboBox::itemClicked(int index)
{
    if (QCheckBox *box = checkBox(index))
        box->toggle();
}

void MultiSelectComboBox::showSelection()
{
    QStringList checked;
    for (int i = 0; i < count(); ++i) {
        const QCheckBox *box = checkBox(i);
        if (box && box->isChecked())
            checked.append(box->text());
    }
    const QString text = checked.join(mSeparator);
    mShownText = elided(text, mMaxDisplayLength);
    showText();
    mLineEdit->setToolTip(text);
}

void MultiSelectComboBox::showText()
{
    if (mLineEdit->text() != mShownText)
        mLineEdit->setText(mShownText);
    // Show the beginning of a text that is too long for the field, not its end.
    mLineEdit->home(false);
}

void MultiSelectComboBox::alignText()
{
    // A line edit follows the direction of its text, but the text of a combo box is aligned with
    // the layout direction of the window.
    const Qt::Alignment side = isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft;
    mLineEdit->setAlignment(side | Qt::AlignAbsolute | Qt::AlignVCenter);
}

void MultiSelectComboBox::stateChanged(int state)
{
    Q_UNUSED(state)
    showSelection();
    Q_EMIT selectionChanged();
}

void MultiSelectComboBox::changeEvent(QEvent *event)
{
    QComboBox::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        alignText();
    else if (event->type() == QEvent::EnabledChange && !isEnabled())
        QComboBox::hidePopup();
}

void MultiSelectComboBox::hideEvent(QHideEvent *event)
{
    QComboBox::hideEvent(event);
    // Even if the cursor is over the list, unlike this class's hidePopup(): the box is not visible
    // any more.
    QComboBox::hidePopup();
}

void MultiSelectComboBox::wheelEvent(QWheelEvent *event)
{
    // QComboBox would select another row, which toggles it. The event is not ignored as in other
    // combo boxes, because scrolling the page would leave the open list behind.
    Q_UNUSED(event)
}

void MultiSelectComboBox::keyPressEvent(QKeyEvent *event)
{
    // With other keys QComboBox would change the current row or add the shown text as a row.
    if (opensByKeyboard && opensList(*event))
        showPopup();
}
