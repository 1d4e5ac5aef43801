#include <MaltoConfiguration/widgets/ConfWidgetShortcut.h>

#include <MaltoConfiguration/widgets/KeySequenceEdit.h>

#include <QHBoxLayout>
#include <QSignalBlocker>

namespace MtConf {

namespace {

/// Handles the keys that are not recorded. Returns whether `sequence` is.
bool isRecorded(KeySequenceEdit *edit, const QKeySequence &sequence)
{
    if (sequence == QKeySequence(Qt::Key_Backspace))
        edit->cleanSetting();
    return sequence != QKeySequence(Qt::Key_Backspace) && sequence != QKeySequence(Qt::Key_Escape);
}

} // namespace

ConfWidgetShortcut::ConfWidgetShortcut(ConfItem *item, QWidget *parent)
    : ConfigItemWidget(item, parent),
      mKeySequenceEdit(new KeySequenceEdit(readValue<QKeySequence>(), this))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mKeySequenceEdit);
    mKeySequenceEdit->keySequenceFilter = isRecorded;
    connect(mKeySequenceEdit, &KeySequenceEdit::sigKeySequenceChanged, this,
            &ConfWidgetShortcut::onKeySequenceChanged);
    loadConf();
}

ConfigItemWidget *ConfWidgetShortcut::CreatConfWidget(ConfItem *item, QWidget *parent)
{
    return create<ConfWidgetShortcut>(item, parent);
}

void ConfWidgetShortcut::loadConf()
{
    const QSignalBlocker blocker(mKeySequenceEdit);
    mKeySequenceEdit->setKeySequence(readValue<QKeySequence>());
    showMessage(QString());
    refreshLabelState();
}

void ConfWidgetShortcut::onKeySequenceChanged(const QKeySequence &sequence)
{
    if (!writeValue(sequence))
        return;
    showMessage(QString());
    refreshLabelState();
}

} // namespace MtConf
