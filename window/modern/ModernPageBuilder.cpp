#include "ModernPageBuilder_p.h"

#include "MaltoConfiguration/widgets/Glyphs_p.h"
#include "MaltoConfiguration/widgets/RangeCheck_p.h"
#include "MaltoConfiguration/window/rows/ValueInWords_p.h"
#include "ModernRow_p.h"
#include "SwitchCaption_p.h"

#include <MaltoConfiguration/manage/MajorConfItem.h>
#include <MaltoConfiguration/widgets/ConfWidgetDateTime.h>
#include <MaltoConfiguration/widgets/ConfWidgetMouseAction.h>
#include <MaltoConfiguration/widgets/ConfWidgetPath.h>
#include <MaltoConfiguration/widgets/KeySequenceEdit.h>
#include <MaltoConfiguration/widgets/MultiSelectComboBox.h>

#include <OrvUtils/QThemeCtrl.h>
#include <QIconfont/QIconfont.h>

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDateTimeEdit>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace MtConf {

namespace {

// Sizes in pixels at 96 dots per inch.
constexpr double sPixelsPerInch = 96;
constexpr double sPointsPerInch = 72;
constexpr QSize sSwitch(38, 22);
constexpr int sField = 220;
constexpr int sSharedField = 80;
constexpr int sClearIcon = 24;
constexpr int sNumber = 104;
constexpr int sLettersOfAction = 17; // of the longest action of a gesture in most languages
constexpr int sBesideNumber = 40;    // the padding and the arrows

QList<QWidget *> childrenOf(const QWidget *widget)
{
    return widget->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
}

/// Areas of several lines and paths use the width of the row.
ModernRow::Place placeOf(ConfigItemWidget *editor)
{
    bool isWide = dynamic_cast<ConfWidgetPath *>(editor);
    const QList<QWidget *> children = childrenOf(editor);
    for (QWidget *child : children)
        isWide = isWide || qobject_cast<QAbstractScrollArea *>(child);
    return isWide ? ModernRow::Place::Below : ModernRow::Place::Beside;
}

bool isNumber(QWidget *field)
{
    return qobject_cast<QAbstractSpinBox *>(field) && !qobject_cast<QDateTimeEdit *>(field);
}

bool isField(QWidget *widget)
{
    return qobject_cast<QAbstractSpinBox *>(widget) || qobject_cast<QComboBox *>(widget)
           || qobject_cast<QLineEdit *>(widget);
}

/// Draws the button that clears a hotkey or a date in the colour of texts that are less important.
void quietClearButton(const ConfigItemWidget *editor)
{
    const QColor color = QThemeCtrl::instance()->color(QStringLiteral("ModernSecondary"));
    const QIcon icon = QIconfont::Icon(sErrorGlyph, color, sClearIcon, QMargins());
    if (const auto *keys = editor->findChild<KeySequenceEdit *>()) {
        const QList<QAction *> actions = keys->actions();
        for (QAction *action : actions)
            action->setIcon(icon);
    }
    if (dynamic_cast<const ConfWidgetDateTime *>(editor))
        editor->findChild<QPushButton *>()->setIcon(icon);
}

/// Returns the width of the field of a number: the usual one, or more if its longest number needs
/// more.
int numberWidth(const PageRow &row, double pixel)
{
    auto *const box = row.editor->findChild<QAbstractSpinBox *>();
    QStringList texts{box->text()};
    for (const char *limit : {"MinValue", "MaxValue"}) {
        const QVariant number = row.item->properties.value(QLatin1String(limit));
        if (number.isValid())
            texts.append(numberText(box->locale(), number.toDouble()) + row.item->suffixText());
    }
    box->ensurePolished();
    int width = 0;
    for (const QString &text : std::as_const(texts))
        width = qMax(width, box->fontMetrics().horizontalAdvance(text));
    return qMax(qRound(sNumber * pixel), width + qRound(sBesideNumber * pixel));
}

/// Says that no modifier is chosen, in a field that has room for it.
void nameNoModifier(MultiSelectComboBox *modifiers, double pixel)
{
    const QString text = QCoreApplication::translate("MtConf::ModernPageBuilder",
                                                     "No modifier key");
    modifiers->SetPlaceHolderText(text);
    modifiers->ensurePolished();
    const int width = modifiers->fontMetrics().horizontalAdvance(text)
                      + qRound(sBesideNumber * pixel);
    modifiers->setMinimumWidth(qBound(modifiers->minimumWidth(), width, qRound(sField * pixel)));
}

} // namespace

ModernPageBuilder::ModernPageBuilder(QWidget *board, QVBoxLayout *layout, double scale,
                                     std::function<QString()> className)
    : mBoard(board), mLayout(layout), mPixel(scale * sPointsPerInch / sPixelsPerInch),
      mClassName(std::move(className))
{
}

void ModernPageBuilder::beginGroup(const QString &caption, const QString &source, int flags)
{
    const bool isClass = mLayout->count() == 0 && source == mClassName();
    mTitle = nullptr;
    if (!isClass && !(flags & ClassWithoutGroupBoxes)) {
        mTitle = new QLabel(caption, mBoard);
        mTitle->setIndent(0);
        mTitle->setProperty("SourceText", source);
        mTitle->setProperty("ClassLabel", QStringLiteral("normal"));
        if (mLayout->count() == 0)
            mTitle->setProperty("first", QStringLiteral("1"));
    }
    mPanel = new QGroupBox(mBoard);
    mPanel->setProperty("GroupName", source);
    mPanel->setObjectName(QStringLiteral("ConfigGroupBox"));
    auto *rows = new QVBoxLayout(mPanel);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    mRowCount = 0;
}

QWidget *ModernPageBuilder::newRowParent()
{
    mRow = mPanel ? new ModernRow(mPanel, mPixel) : nullptr;
    return mRow;
}

void ModernPageBuilder::addRow(PageRow *row, bool isLast)
{
    Q_UNUSED(isLast)                      // the line is above a row
    if (!mPanel || !mRow || !row->editor) // deleted by host code
        return;
    mRow->setProperty("first", mRowCount++ == 0 ? QStringLiteral("1") : QStringLiteral("0"));
    row->frame = mRow;
    row->panel = mPanel;
    if (auto *box = qobject_cast<QCheckBox *>(row->caption))
        row->caption = new SwitchCaption(box, sSwitch * mPixel, mRow);
    if (row->caption)
        mRow->addText(row->caption);
    if (row->message)
        mRow->addText(row->message);
    setFields(*row, mPixel);
    mRow->setEditor(row->editor, placeOf(row->editor));
    mPanel->layout()->addWidget(mRow);
}

void ModernPageBuilder::dropRow()
{
    delete mRow;
}

void ModernPageBuilder::endGroup()
{
    if (mRowCount == 0) {
        delete mTitle;
        delete mPanel;
    }
    // Host code may have deleted them.
    if (mTitle)
        mLayout->addWidget(mTitle);
    if (mPanel)
        mLayout->addWidget(mPanel);
}

void ModernPageBuilder::addAtEnd(const PageRow &row, QWidget *widget)
{
    if (row.frame)
        static_cast<ModernRow *>(row.frame.data())->setButton(widget);
}

void ModernPageBuilder::addUnderCaption(const PageRow &row, QWidget *widget)
{
    if (row.frame)
        static_cast<ModernRow *>(row.frame.data())->addText(widget);
}

void ModernPageBuilder::addBelow(const PageRow &row, QWidget *widget)
{
    if (row.frame)
        static_cast<ModernRow *>(row.frame.data())->addBelow(widget);
}

void ModernPageBuilder::alignActions(const QList<PageRow> &rows)
{
    QList<QComboBox *> actions;
    int letters = sLettersOfAction;
    for (const PageRow &row : rows) {
        if (!dynamic_cast<ConfWidgetMouseAction *>(row.editor.data()))
            continue;
        const QList<QComboBox *> boxes = row.editor->findChildren<QComboBox *>();
        QComboBox *const action = boxes.last(); // behind the modifiers
        action->ensurePolished();
        const QFontMetrics metrics = action->fontMetrics();
        const int letter = qMax(1, metrics.horizontalAdvance(QLatin1Char('X'))); // as Qt counts
        for (int i = 0; i < action->count(); ++i) {
            const QString text = action->itemText(i); // Qt 5 counts its outline, which may be wider
            const int width = qMax(metrics.horizontalAdvance(text),
                                   metrics.boundingRect(text).width());
            letters = qMax(letters, width / letter + 1);
        }
        actions.append(action);
    }
    for (QComboBox *action : std::as_const(actions))
        action->setMinimumContentsLength(letters);
}

void ModernPageBuilder::setFields(const PageRow &row, double pixel)
{
    quietClearButton(row.editor);
    QList<QWidget *> fields;
    const QList<QWidget *> children = childrenOf(row.editor);
    for (QWidget *child : children) {
        if (auto *box = qobject_cast<MultiSelectComboBox *>(child))
            box->setSeparator(listSeparator());
        if (isField(child))
            fields.append(child);
    }
    if (fields.size() > 1) {
        // They share the width, and get narrower in a narrow window.
        for (QWidget *field : std::as_const(fields))
            field->setMinimumWidth(qRound(sSharedField * pixel));
    }
    auto *const modifiers = row.editor->findChild<MultiSelectComboBox *>();
    if (modifiers && qobject_cast<ConfWidgetMouseAction *>(row.editor))
        nameNoModifier(modifiers, pixel);
    if (fields.size() != 1)
        return;
    if (isNumber(fields.first()))
        fields.first()->setFixedWidth(numberWidth(row, pixel));
    else
        fields.first()->setMinimumWidth(qRound(sField * pixel));
}

} // namespace MtConf
