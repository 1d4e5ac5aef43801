#include <MaltoConfiguration/widgets/KeySequenceEdit.h>

#include "FaintPlaceholder_p.h"
#include "Glyphs_p.h"

#include "QtCompat_p.h"

#include <OrvUtils/GetKeySequence.h>
#include <OrvUtils/QMsgeBox.h>
#include <QIconfont/QIconfont.h>

#include <QAction>
#include <QKeyEvent>
#include <QPointer>

namespace {

bool isModifierKey(int key)
{
    // The four keys Shift, Control, Meta and Alt have consecutive codes.
    return (key & ~0x3) == Qt::Key_Shift;
}

/// Returns whether `key` is the Meta key under the name Super, as on most X servers.
bool isSuperKey(int key)
{
    return key == Qt::Key_Super_L || key == Qt::Key_Super_R;
}

int keyOf(const QKeyEvent *event)
{
    return isSuperKey(event->key()) ? static_cast<int>(Qt::Key_Meta) : event->key();
}

/// Returns whether `sequence` has no text form, as AltGr: it could not be parsed from a file.
bool isNameless(const QKeySequence &sequence)
{
    const QString text = sequence.toString(QKeySequence::PortableText);
    const QKeySequence read = QKeySequence::fromString(text, QKeySequence::PortableText);
    return QtCompat::chordAt(read, 0) == Qt::Key_unknown;
}

/// Returns whether `sequence` is a single key that is needed for typing. The code of a chord
/// includes its modifiers, so a key with a modifier is not simple.
bool isSimple(const QKeySequence &sequence)
{
    if (sequence.isEmpty() || sequence.count() > 1)
        return false;
    // Keys of the keypad are as simple as the other keys.
    const int key = QtCompat::chordAt(sequence, 0) & ~static_cast<int>(Qt::KeypadModifier);
    return (key >= Qt::Key_Escape && key <= Qt::Key_Delete)
           || (key >= Qt::Key_Left && key <= Qt::Key_ScrollLock)
           || (key >= Qt::Key_Space && key <= Qt::Key_AsciiTilde);
}

} // namespace

KeySequenceEdit::KeySequenceEdit(QKeySequence sequence, QWidget *parent)
    : QLineEdit(parent), mKeySequence(sequence)
{
    setReadOnly(true);
    setAlignment(Qt::AlignCenter);
    setProperty("class", QStringLiteral("KeySequenceEdit"));
    const QIcon icon = QIconfont::Icon(MtConf::sErrorGlyph, QColor(255, 85, 85), 24, QMargins());
    mClearAction = addAction(icon, QLineEdit::TrailingPosition);
    mClearAction->setText(QString());
    connect(mClearAction, &QAction::triggered, this, &KeySequenceEdit::cleanSetting);
    new FaintPlaceholder(this);
    retranslate();
    showSequence();
}

QString KeySequenceEdit::QKeySeqToStr(const QKeySequence &sequence)
{
    QString text;
    if (sequence == QKeySequence(Qt::Key_Alt))
        text = QStringLiteral("⌥");
    else if (sequence == QKeySequence(Qt::Key_Control))
        text = QStringLiteral("⌘");
    else if (sequence == QKeySequence(Qt::Key_Shift))
        text = QStringLiteral("⇧");
    else if (sequence == QKeySequence(Qt::Key_Meta))
        text = QStringLiteral("⌃");
    else
        text = sequence.toString(QKeySequence::NativeText);
    // Num means the keypad, not a modifier key.
    return text.replace(QLatin1String("Num+"), QLatin1String("Num "));
}

void KeySequenceEdit::setKeySequence(QKeySequence sequence)
{
    if (sequence == mKeySequence)
        return;
    if (!accepts(sequence)) {
        refuse(sequence);
        return;
    }
    mKeySequence = sequence;
    showSequence();
    Q_EMIT sigKeySequenceChanged(sequence);
}

bool KeySequenceEdit::accepts(const QKeySequence &sequence) const
{
    return allowSimpleHotkey || !isSimple(sequence);
}

void KeySequenceEdit::cleanSetting()
{
    setKeySequence(QKeySequence());
}

void KeySequenceEdit::refreshClearButton()
{
    mClearAction->setVisible(!mKeySequence.isEmpty());
}

bool KeySequenceEdit::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        // Record keys that are shortcuts of the window instead of activating the shortcut.
        event->accept();
        return true;
    }
    if (event->type() == QEvent::Hide) {
        // Qt leaves the focus in a hidden field if no other widget can take it, and it would
        // record.
        QMetaObject::invokeMethod(
            this,
            [this] {
                if (hasFocus() && !isVisible() && window()->isVisible())
                    clearFocus();
            },
            Qt::QueuedConnection);
    }
    if (event->type() == QEvent::KeyPress && isEnabled()) {
        // QWidget::event() would move the focus on Tab with Meta, so bypass it.
        auto *key = static_cast<QKeyEvent *>(event);
        if (key->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) {
            keyPressEvent(key);
            return true;
        }
    }
    return QLineEdit::event(event);
}

void KeySequenceEdit::keyPressEvent(QKeyEvent *event)
{
    // QLineEdit does not get any key: typing records a hotkey and does not edit the text.
    mLastKey = keyOf(event);
    if (isModifierKey(mLastKey) || mLastKey == 0 || mLastKey == Qt::Key_unknown)
        return;
    const QKeySequence sequence = GetKeySequence(event);
    if (clearByDeleteKeys && (sequence == Qt::Key_Backspace || sequence == Qt::Key_Delete)) {
        cleanSetting();
        return;
    }
    if (!isNameless(sequence))
        record(sequence);
}

void KeySequenceEdit::keyReleaseEvent(QKeyEvent *event)
{
    // A single modifier is recorded only if no other key was pressed after it and no modifier is
    // pressed now. Qt clears the modifier of the released key, but not for Super.
    const Qt::KeyboardModifiers held = isSuperKey(event->key())
                                           ? event->modifiers() & ~Qt::MetaModifier
                                           : event->modifiers();
    if (held == Qt::NoModifier && keyOf(event) == mLastKey && allowSingleModifier
        && isModifierKey(mLastKey))
        record(QKeySequence(mLastKey));
}

void KeySequenceEdit::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QLineEdit::changeEvent(event);
}

void KeySequenceEdit::record(const QKeySequence &sequence)
{
    if (sequence == mKeySequence)
        return;
    if (keySequenceFilter) {
        // The filter is code of the host and may replace itself or delete the editor.
        const auto filter = keySequenceFilter;
        const QPointer<KeySequenceEdit> self(this);
        if (!filter(this, sequence) || !self)
            return;
    }
    setKeySequence(sequence);
}

void KeySequenceEdit::refuse(const QKeySequence &sequence)
{
    // On the heap, because the editor, the parent of the box, may be deleted while it is open.
    const QPointer<QMsgeBox> box = new QMsgeBox(this);
    box->setText(tr("Shortkey [%1] is too simple.\nTo avoid conflicts with other functions and "
                    "prevent accidental activations, please set a more complex hotkey "
                    "combination.\n\nIf you need to set simple shortcuts, go to the [System] "
                    "Settings page and check [Allow simple global hotkeys].")
                     .arg(QKeySeqToStr(sequence)));
    box->setIcon(QMessageBox::Warning);
    box->exec();
    if (box)
        box->deleteLater();
}

void KeySequenceEdit::retranslate()
{
    setPlaceholderText(tr("Press shortcut key"));
    mClearAction->setToolTip(tr("Clear shortcut key"));
}

void KeySequenceEdit::showSequence()
{
    setText(QKeySeqToStr(mKeySequence));
    refreshClearButton();
}
