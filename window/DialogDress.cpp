#include "DialogDress_p.h"

#include "MagnifiedWidget_p.h"

#include <OrvUtils/OrvScreenManager.h>

#include <QIconfont/QIconfont.h>

#include <QAbstractButton>
#include <QAbstractItemModel>
#include <QApplication>
#include <QColorDialog>
#include <QDialog>
#include <QEvent>
#include <QFontDialog>
#include <QGroupBox>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>

#include <algorithm>

namespace MtConf {

namespace {

constexpr int sRowsOfList = 8;
constexpr int sLettersOfList = 20; // of the widest list

/// Returns whether the letters of `text` join, as those of Arabic do.
bool hasJoiningLetters(const QString &text)
{
    return std::any_of(text.cbegin(), text.cend(),
                       [](QChar c) { return c.joiningType() == QChar::Joining_Dual; });
}

QString withoutMnemonic(QString text)
{
    static const QRegularExpression sMark(QStringLiteral("(?<!&)&(?!&)"));
    return text.remove(sMark);
}

/// Removes the underlines that mark shortcut keys from texts whose letters they would separate, and
/// whose measured width is that of joined letters.
void joinLetters(const QDialog *dialog)
{
    const QList<QLabel *> labels = dialog->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (hasJoiningLetters(label->text()) && label->buddy())
            label->setText(withoutMnemonic(label->text()));
    }
    const QList<QAbstractButton *> buttons = dialog->findChildren<QAbstractButton *>();
    for (QAbstractButton *button : buttons) {
        const QString text = button->text();
        if (!hasJoiningLetters(text))
            continue;
        button->setText(withoutMnemonic(text));
        button->setShortcut(QKeySequence::mnemonic(text));
    }
    const QList<QGroupBox *> groups = dialog->findChildren<QGroupBox *>();
    for (QGroupBox *group : groups) {
        if (hasJoiningLetters(group->title()))
            group->setTitle(withoutMnemonic(group->title()));
    }
}

/// The icon font has no letters.
void removeIconFont(QAbstractItemModel *families)
{
    const QModelIndexList found = families->match(families->index(0, 0), Qt::DisplayRole,
                                                  QIconfont::fontFamily(), 1, Qt::MatchExactly);
    for (const QModelIndex &index : found)
        families->removeRow(index.row());
}

/// Makes the lists show whole rows and texts.
void fitLists(QFontDialog *dialog)
{
    const QList<QListView *> lists = dialog->findChildren<QListView *>();
    for (QListView *list : lists) {
        if (list->window() != dialog) // of a combo box
            continue;
        list->ensurePolished();
        const int frame = 2 * list->frameWidth();
        const int rowHeight = qMax(1, list->sizeHintForRow(0));
        // At least as many as Qt shows.
        const int rows = qMax(sRowsOfList, (list->sizeHint().height() + rowHeight - 1) / rowHeight);
        list->setMinimumHeight(rows * rowHeight + frame);
        const int letter = list->fontMetrics().horizontalAdvance(QLatin1Char('m'));
        const int text = qMin(list->sizeHintForColumn(0), sLettersOfList * letter);
        list->setMinimumWidth(text + 2 * letter + list->verticalScrollBar()->sizeHint().width());
    }
    dialog->resize(dialog->size().expandedTo(dialog->sizeHint()));
}

void dressFontDialog(QFontDialog *dialog)
{
    // The list of families is the first.
    if (const auto *list = dialog->findChild<QListView *>()) {
        QAbstractItemModel *const families = list->model();
        removeIconFont(families);
        QObject::connect(families, &QAbstractItemModel::modelReset, dialog,
                         [families] { removeIconFont(families); });
    }
    fitLists(dialog);
}

/// Enlarges the parts that have a fixed size in pixels, if fonts are larger than at 96 dots per
/// inch.
void dressColorDialog(QColorDialog *dialog)
{
    const double scale = OrvScreenManager::instance()->widgetScreen(dialog).dpi / 96;
    const bool isDressed = dialog->findChild<MagnifiedWidget *>();
    if (scale <= 1 || isDressed)
        return;
    const QList<QWidget *> parts = dialog->findChildren<QWidget *>();
    for (QWidget *part : parts) {
        // Names of private classes. Without them the parts stay small.
        if (part->inherits("QWellArray")) {
            auto *const large = new MagnifiedWidget(part, scale);
            const QList<QPushButton *> buttons = dialog->findChildren<QPushButton *>();
            for (const QPushButton *button : buttons) // one adds a colour
                QObject::connect(button, &QAbstractButton::clicked, large,
                                 QOverload<>::of(&QWidget::update));
        } else if (part->inherits("QColorPicker")) {
            part->setFixedSize(part->sizeHint() * scale);
        } else if (part->inherits("QColorLuminancePicker")) {
            part->setFixedWidth(qRound(part->minimumWidth() * scale));
        }
    }
}

} // namespace

DialogDress::DialogDress(QWidget *window) : QObject(window)
{
    window->installEventFilter(this);
}

bool DialogDress::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parent() && event->type() == QEvent::WindowBlocked) {
        auto *const dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        const QWidget *owner = dialog;
        while (owner && owner != parent())
            owner = owner->parentWidget();
        if (owner)
            dress(dialog);
    }
    return QObject::eventFilter(watched, event);
}

void DialogDress::dress(QDialog *dialog) const
{
    // Window managers show the name of the program instead of an empty title.
    if (dialog->windowTitle().isEmpty())
        dialog->setWindowTitle(static_cast<const QWidget *>(parent())->windowTitle());
    joinLetters(dialog);
    if (auto *fonts = qobject_cast<QFontDialog *>(dialog))
        dressFontDialog(fonts);
    else if (auto *colors = qobject_cast<QColorDialog *>(dialog))
        dressColorDialog(colors);
}

} // namespace MtConf
