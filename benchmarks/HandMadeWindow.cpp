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
    auto *title = new QLabel(caption, mUi->gboxConfigBoard);
    title->setProperty("ClassLabel", QStringLiteral("normal"));
    mUi->layoutConfigItem->addWidget(title);

    auto *box = new QGroupBox(mUi->gboxConfigBoard);
    box->setObjectName(QStringLiteral("ConfigGroupBox"));
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
    mUi->layoutConfigItem->addWidget(box);
    mUi->layoutConfigItem->addStretch();
}

void HandMadeWindow::addRow(QGroupBox *box, QGridLayout *grid, int i)
{
    const int row = grid->rowCount();
    if (i % 3 == 0) {
        auto *check = new QCheckBox(QObject::tr("Show border"), box);
        check->setProperty("changed", QStringLiteral("0"));
        mTexts.push_back([check] { check->setText(QObject::tr("Show border")); });
        grid->addWidget(new QFrame(box), row, 1);
        grid->addWidget(check, row, 0);
    } else if (i % 3 == 1) {
        QFrame *editor = makeEditor(box);
        auto *spin = new QSpinBoxDisableWheel(editor);
        spin->setFixedWidth(sSpinBoxWidth);
        editor->layout()->addWidget(spin);
        editor->layout()->setAlignment(Qt::AlignLeft);
        grid->addWidget(editor, row, 1);
        addCaption(box, grid, row, "Width of the border");
    } else {
        QFrame *editor = makeEditor(box);
        auto *combo = new ComboboxDisableWheel(editor);
        combo->setView(new QListView(combo));
        combo->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
        for (const char *text : {"Small", "Medium", "Large"})
            combo->addItem(QObject::tr(text));
        mTexts.push_back([combo] {
            combo->setItemText(0, QObject::tr("Small"));
            combo->setItemText(1, QObject::tr("Medium"));
            combo->setItemText(2, QObject::tr("Large"));
        });
        editor->layout()->addWidget(combo);
        grid->addWidget(editor, row, 1);
        addCaption(box, grid, row, "Size of the magnifier");
    }
}

void HandMadeWindow::addCaption(QGroupBox *box, QGridLayout *grid, int row, const char *text)
{
    auto *label = new QLabel(QObject::tr(text), box);
    label->setProperty("ConfigItemWidgetLabel", QStringLiteral("1"));
    label->setProperty("changed", QStringLiteral("0"));
    mTexts.push_back([label, text] { label->setText(QObject::tr(text)); });
    grid->addWidget(label, row, 0);
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
