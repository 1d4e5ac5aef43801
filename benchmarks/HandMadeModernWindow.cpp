#include "HandMadeModernWindow.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVariant>

namespace {

// Pixels, as on a screen of 96 dots per inch.
constexpr int sRowHeight = 46;
constexpr int sMargin = 16;
constexpr int sAboveAndBelow = 6;
constexpr int sGap = 12;
constexpr int sButton = 24;
constexpr int sField = 220;
constexpr int sNumber = 104;
constexpr QSize sSwitch(38, 22);

} // namespace

void HandMadeModernWindow::addTitle(const QString &caption)
{
    setWindowTitle(caption); // the page begins with its rows
}

void HandMadeModernWindow::addRows(QGroupBox *box, int count)
{
    auto *rows = new QVBoxLayout(box);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    for (int i = 0; i < count; ++i)
        rows->addWidget(makeRow(box, i));
}

QFrame *HandMadeModernWindow::makeRow(QGroupBox *box, int i)
{
    auto *row = new QFrame(box);
    row->setProperty("class", QStringLiteral("ModernRow"));
    row->setProperty("first", i == 0 ? QStringLiteral("1") : QStringLiteral("0"));
    row->setMinimumHeight(sRowHeight);
    auto *grid = new QGridLayout(row);
    grid->setContentsMargins(sMargin, sAboveAndBelow, sMargin, sAboveAndBelow);
    grid->setHorizontalSpacing(sGap);
    grid->setColumnStretch(0, 1);
    grid->setColumnMinimumWidth(2, sButton);

    QLabel *caption = makeCaption(row, i);
    caption->setWordWrap(true);
    auto *texts = new QVBoxLayout; // with room for a help text
    texts->addStretch();
    texts->addWidget(caption);
    texts->addStretch();
    grid->addLayout(texts, 0, 0);

    auto *editor = new QFrame(row);
    auto *layout = new QHBoxLayout(editor);
    layout->setContentsMargins(0, 0, 0, 0);
    if (i % 3 == 0) {
        QCheckBox *check = makeCheckBox(editor);
        check->setProperty("Switch", QStringLiteral("1"));
        check->setFixedSize(sSwitch);
        layout->addWidget(check);
    } else {
        QWidget *field = makeField(editor, i);
        if (i % 3 == 1)
            field->setFixedWidth(sNumber);
        else
            field->setMinimumWidth(sField);
        layout->addWidget(field);
    }
    grid->addWidget(editor, 0, 1, Qt::AlignRight | Qt::AlignVCenter);
    return row;
}
