#pragma once

#include <MaltoConfiguration/malto_export.h>

#include <QKeySequence>
#include <QLineEdit>

#include <functional>

/// A read-only line edit that records a hotkey. A key combination that is pressed while the field
/// has the focus is shown in it and emitted with `sigKeySequenceChanged`. A trailing button clears
/// the hotkey; it is visible while a hotkey is set.
///
/// All keys are recorded, including Escape, Return, Backspace and the shortcuts of the window. Tab
/// and Shift+Tab without another modifier move the focus instead, unless no other widget can take
/// it. Keys without a name, such as AltGr, are ignored, because they cannot be saved. The Super key
/// is recorded as Meta.
///
/// The property "recordsHotkeys" suspends the `QxtGlobalShortcut` objects of the program while the
/// field has the focus, so that their hotkeys are recorded too and not activated.
///
/// @see MtConf::ConfDefWidgetQKeySequence
/// @since 0.1
class MALTO_EXPORT KeySequenceEdit : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(bool recordsHotkeys READ recordsHotkeys CONSTANT)
public:
    /// Creates a field that shows `sequence`, even if it is a simple hotkey. Emits nothing.
    explicit KeySequenceEdit(QKeySequence sequence, QWidget *parent = nullptr);

    /// Returns the text that is shown for `sequence`: a single modifier key as its glyph ("⇧"
    /// Shift, "⌘" Control, "⌥" Alt, "⌃" Meta), any other sequence in the system's own form with
    /// "Num " for "Num+".
    static QString QKeySeqToStr(const QKeySequence &sequence);

    /// Returns whether `setKeySequence` accepts `sequence`: false for a simple hotkey that is not
    /// allowed.
    bool accepts(const QKeySequence &sequence) const;

    /// Returns the recorded hotkey; empty if there is none.
    QKeySequence keySequence() const { return mKeySequence; }

    /// Returns true.
    bool recordsHotkeys() const { return true; }

    /// Whether simple hotkeys are accepted: a single key without a modifier that is needed for
    /// typing (Escape to Delete, arrow and page keys, modifier and lock keys, printable ASCII).
    bool allowSimpleHotkey = true;
    /// Whether pressing and releasing a single modifier key records that key.
    bool allowSingleModifier = false;
    /// Whether Backspace and Delete without a modifier clear the hotkey instead of being recorded.
    bool clearByDeleteKeys = false;
    /// Called before a pressed hotkey is accepted, if set. The hotkey is dropped if it returns
    /// false. The filter may delete the editor.
    std::function<bool(KeySequenceEdit *, QKeySequence)> keySequenceFilter;

public Q_SLOTS:
    /// Sets the hotkey and emits `sigKeySequenceChanged`, if `sequence` differs from the current
    /// one. A simple hotkey that is not allowed is refused with a message box and changes nothing;
    /// the function returns when the box is closed. The editor may have been deleted by then.
    void setKeySequence(QKeySequence sequence);
    /// Sets the empty sequence.
    void cleanSetting();
    /// Makes the clear button visible if a hotkey is set, and hides it otherwise.
    void refreshClearButton();

Q_SIGNALS:
    /// Emitted after the hotkey has changed to `sequence`. A receiver may delete the editor.
    void sigKeySequenceChanged(QKeySequence sequence);

protected:
    /// Receives keys before the window's shortcuts and the focus handling do.
    bool event(QEvent *event) override;
    /// Records the key with the pressed modifiers.
    void keyPressEvent(QKeyEvent *event) override;
    /// Records a modifier key that was pressed and released alone, if `allowSingleModifier` is
    /// true.
    void keyReleaseEvent(QKeyEvent *event) override;
    /// Translates the texts when the language changes.
    void changeEvent(QEvent *event) override;

private:
    void record(const QKeySequence &sequence);
    void refuse(const QKeySequence &sequence);
    void retranslate();
    void showSequence();

    QKeySequence mKeySequence;
    QAction *mClearAction = nullptr;
    int mLastKey = 0;
};
