#include <MaltoConfiguration/widgets/ConfWidgetMultilineText.h>

#include "FaintPlaceholder_p.h"
#include "FocusedWheel_p.h"

#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTextDocument>
#include <QtMath>

#include <algorithm>

namespace MtConf {

namespace {

constexpr int sLines = 4;

/// A text area whose height shows the same number of lines with each font.
class LinesEdit : public FocusedWheel<QPlainTextEdit>
{
public:
    explicit LinesEdit(QWidget *parent) : FocusedWheel(parent)
    {
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        setTabChangesFocus(true);
    }

    QSize sizeHint() const override
    {
        const QFontMetricsF metrics(font());
        const int line = qCeil(std::max(metrics.lineSpacing(), metrics.height()));
        const int around = 2 * (qRound(document()->documentMargin()) + frameWidth());
        // Qt scrolls unless there is one pixel more than the lines need.
        return {QPlainTextEdit::sizeHint().width(), sLines * line + 1 + around};
    }
};

} // namespace

ConfWidgetMultilineText::ConfWidgetMultilineText(ConfItem *item, QWidget *parent)
    : ConfWidgetTextBase(item, parent), mField(new LinesEdit(this))
{
    mField->setPlaceholderText(mItem->placeholderText());
    new FaintPlaceholder(mField);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mField);
    watchField(mField);
    connect(mField, &QPlainTextEdit::textChanged, this, &ConfWidgetMultilineText::onTyped);
    loadConf();
}

ConfigItemWidget *ConfWidgetMultilineText::CreatConfWidget(ConfItem *item, QWidget *parent)
{
    return create<ConfWidgetMultilineText>(item, parent);
}

void ConfWidgetMultilineText::retranslateUi()
{
    ConfWidgetTextBase::retranslateUi();
    mField->setPlaceholderText(mItem->placeholderText());
}

QString ConfWidgetMultilineText::fieldText() const
{
    // Not toPlainText(), which replaces non-breaking spaces, too.
    return mField->document()
        ->toRawText()
        .replace(QChar::ParagraphSeparator, QLatin1Char('\n'))
        .replace(QChar::LineSeparator, QLatin1Char('\n')); // Shift+Return
}

void ConfWidgetMultilineText::setFieldText(const QString &text)
{
    const QSignalBlocker blocker(mField);
    const int position = mField->textCursor().position();
    const int scrolled = mField->verticalScrollBar()->value();
    mField->setPlainText(text);
    QTextCursor cursor = mField->textCursor();
    cursor.setPosition(std::min(position, mField->document()->characterCount() - 1));
    mField->setTextCursor(cursor);
    mField->verticalScrollBar()->setValue(scrolled);
}

} // namespace MtConf
