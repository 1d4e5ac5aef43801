#include "UndoKeys_p.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

#include <optional>
#include <utility>

namespace MtConf {

namespace {

struct FieldState
{
    QString text;
    bool canUndo = false;
    bool canRedo = false;
};

const QLineEdit *lineEditOf(const QWidget *widget)
{
    if (const auto *line = qobject_cast<const QLineEdit *>(widget))
        return line;
    const bool hasLine = qobject_cast<const QAbstractSpinBox *>(widget)
                         || qobject_cast<const QComboBox *>(widget);
    return hasLine ? widget->findChild<QLineEdit *>() : nullptr;
}

template<class Edit> FieldState stateOf(const Edit &edit)
{
    const QTextDocument *const document = edit.document();
    return {edit.toPlainText(), document->isUndoAvailable(), document->isRedoAvailable()};
}

/// Returns nothing for a widget that takes no text, such as a recorder of hotkeys.
std::optional<FieldState> fieldState(const QWidget *widget)
{
    if (const QLineEdit *line = lineEditOf(widget)) {
        if (!line->isReadOnly())
            return FieldState{line->text(), line->isUndoAvailable(), line->isRedoAvailable()};
    } else if (const auto *plain = qobject_cast<const QPlainTextEdit *>(widget)) {
        if (!plain->isReadOnly())
            return stateOf(*plain);
    } else if (const auto *rich = qobject_cast<const QTextEdit *>(widget)) {
        if (!rich->isReadOnly())
            return stateOf(*rich);
    }
    return std::nullopt;
}

} // namespace

UndoKeys::UndoKeys(std::function<bool()> canRedo, QObject *parent)
    : QObject(parent), mCanRedo(std::move(canRedo))
{
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget *, QWidget *now) { onFocusChanged(now); });
    onFocusChanged(QApplication::focusWidget());
}

void UndoKeys::onFocusChanged(QWidget *now)
{
    if (mField)
        mField->removeEventFilter(this);
    mField = now;
    noteText();
    if (mField)
        mField->installEventFilter(this);
    Q_EMIT focusMoved();
}

void UndoKeys::noteText()
{
    const std::optional<FieldState> state = fieldState(mField);
    mTextAtFocus = state ? state->text : QString();
}

bool UndoKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride && watched == mField) {
        auto *const keys = static_cast<QKeyEvent *>(event);
        for (const auto key : {QKeySequence::Undo, QKeySequence::Redo}) {
            if (keys->matches(key) && isForWindow(mField, key)) {
                keys->ignore();
                return true; // so that the field does not take it
            }
        }
    }
    return QObject::eventFilter(watched, event);
}

bool UndoKeys::isForWindow(const QWidget *field, QKeySequence::StandardKey key) const
{
    const std::optional<FieldState> state = fieldState(field);
    if (!state)
        return false; // Qt decides
    if (key == QKeySequence::Redo)
        return mCanRedo() || !state->canRedo;
    return !state->canUndo || state->text == mTextAtFocus;
}

} // namespace MtConf
