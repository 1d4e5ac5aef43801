#include "HandMadeWindow.h"

#include "ui_ConfigurationWindow.h"

#include <MaltoConfiguration/widgets/ComboboxDisableWheel.h>
#include <MaltoConfiguration/widgets/QSpinBoxDisableWheel.h>

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QStandardItemModel>

namespace {

constexpr int sSpacing = 16;
constexpr int sSpinBoxWidth = 128;

QFrame *makeEditor(QWidget *parent)
{
    auto *editor = new QFrame(parent);
    auto *layout = new QHBoxLayout(editor);
    layout->setContentsMargins(0, 0, 0, 0);
    return editor;
}

} // namespace

HandMadeWindow::HandMadeWindow(const QStringList &classes, const QString &styleSheet)
    : mUi(std::make_unique<Ui_ConfigurationWindow>()), mClasses(new QStandardItemModel(this))
{
    mUi->setupUi(this);
    mUi->configList->setModel(mClasses);
    for (const QString &name : classes)
        mClasses->appendRow(new QStandardItem(name));
    setStyleSheet(styleSheet);
}

HandMadeWindow::~HandMadeWindow() = default;

void HandMadeWindow::showPage(const QString &caption, int count)
{
    mTexts.clear();
    while (QLayoutItem *item = mUi->layoutConfigItem->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    addTitle(caption);
    auto *box = new QGroupBox(board());
    box->setObjectName(QStringLiteral("ConfigGroupBox"));
    addRows(box, count);
    addToPage(box);
    mUi->layoutConfigItem->addStretch();
}

QWidget *HandMadeWindow::board() const
{
    return mUi->gboxConfigBoard;
}

void HandMadeWindow::addToPage(QWidget *widget)
{
    mUi->layoutConfigItem->addWidget(widget);
}

void HandMadeWindow::addTitle(const QString &caption)
{
    auto *title = new QLabel(caption, board());
    title->setProperty("ClassLabel", QStringLiteral("normal"));
    addToPage(title);
}

void HandMadeWindow::addRows(QGroupBox *box, int count)
{
    auto *grid = new QGridLayout(box);
    grid->setContentsMargins(sSpacing, sSpacing, sSpacing, sSpacing);
    grid->setSpacing(sSpacing);
    for (int i = 0; i < count; ++i) {
        addRow(box, grid, i);
        if (i + 1 == count)
            break;
        auto *line = new QFrame(box);
        line->setProperty("class", QStringLiteral("SplitLine"));
        line->setFrameShape(QFrame::HLine);
        line->setFrameShadow(QFrame::Sunken);
        grid->addWidget(line, grid->rowCount(), 0, 1, 2);
    }
}

void HandMadeWindow::addRow(QGroupBox *box, QGridLayout *grid, int i)
{
    const int row = grid->rowCount();
    if (i % 3 == 0) {
        QCheckBox *check = makeCheckBox(box);
        grid->addWidget(new QFrame(box), row, 1);
        grid->addWidget(check, row, 0);
        return;
    }
    QFrame *editor = makeEditor(box);
    editor->layout()->addWidget(makeField(editor, i));
    if (i % 3 == 1)
        editor->layout()->setAlignment(Qt::AlignLeft);
    grid->addWidget(editor, row, 1);
    grid->addWidget(makeCaption(box, i), row, 0);
}

QCheckBox *HandMadeWindow::makeCheckBox(QWidget *parent)
{
    auto *check = new QCheckBox(QObject::tr("Show border"), parent);
    check->setProperty("changed", QStringLiteral("0"));
    mTexts.push_back([check] { check->setText(QObject::tr("Show border")); });
    return check;
}

QWidget *HandMadeWindow::makeField(QWidget *parent, int i)
{
    if (i % 3 == 1) {
        auto *spin = new QSpinBoxDisableWheel(parent);
        spin->setFixedWidth(sSpinBoxWidth);
        return spin;
    }
    auto *combo = new ComboboxDisableWheel(parent);
    combo->setView(new QListView(combo));
    combo->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    for (const char *text : {"Small", "Medium", "Large"})
        combo->addItem(QObject::tr(text));
    mTexts.push_back([combo] {
        combo->setItemText(0, QObject::tr("Small"));
        combo->setItemText(1, QObject::tr("Medium"));
        combo->setItemText(2, QObject::tr("Large"));
    });
    return combo;
}

QLabel *HandMadeWindow::makeCaption(QWidget *parent, int i)
{
    static constexpr const char *sCaptions[] = {"Show border", "Width of the border",
                                                "Size of the magnifier"};
    const char *text = sCaptions[i % 3];
    auto *label = new QLabel(QObject::tr(text), parent);
    label->setProperty("ConfigItemWidgetLabel", QStringLiteral("1"));
    label->setProperty("changed", QStringLiteral("0"));
    mTexts.push_back([label, text] { label->setText(QObject::tr(text)); });
    return label;
}

void HandMadeWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        mUi->retranslateUi(this);
        for (const auto &setText : mTexts)
            setText();
    }
}
