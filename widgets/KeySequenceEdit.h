#pragma once

#include <MaltoConfiguration/malto_export.h>

#include <QKeySequence>
#include <QLineEdit>

#include <functional>

/// A field that records a hotkey: whatever keys are pressed while it has the focus are shown in it
/// and told by `sigKeySequenceChanged`. A trailing button, there while a hotkey is set, clears it.
///
/// Every key is recorded, also those that the window knows as shortcuts, Escape, Return and
/// Backspace. Only Tab and Shift+Tab are not: they lead out of the field, as everywhere, unless
/// there is no other place for the focus. With Control, Alt or Meta they are recorded. A key that
/// has no name, such as AltGr, is passed over: no file could hold it. The Super key counts as Meta.
class MALTO_EXPORT KeySequenceEdit : public QLineEdit
{
    Q_OBJECT
public:
    /// Shows `sequence`, however simple it is. Nothing is emitted.
    explicit KeySequenceEdit(QKeySequence sequence, QWidget *parent = nullptr);

    /// The text that shows `sequence`: a modifier key alone as its glyph ("⇧" Shift, "⌘" Control,
    /// "⌥" Alt, "⌃" Meta), anything else as the system writes it, but "Num " for "Num+".
    static QString QKeySeqToStr(const QKeySequence &sequence);

    /// The recorded hotkey; empty when there is none.
    QKeySequence keySequence() const { return mKeySequence; }

    /// When false, a single key that people type with (Escape to Delete, the arrows, the page keys,
    /// modifier and lock keys, printable ASCII) is refused without a modifier.
    bool allowSimpleHotkey = true;
    /// When true, pressing and releasing one modifier key alone records that key.
    bool allowSingleModifier = false;
    /// When true, Backspace and Delete without a modifier clear the hotkey instead of being
    /// recorded.
    bool clearByDeleteKeys = false;
    /// Asked before a hotkey that was pressed is taken; false drops it. It may delete the editor.
    std::function<bool(KeySequenceEdit *, QKeySequence)> keySequenceFilter;

public Q_SLOTS:
    /// Takes `sequence`, if it is another one, and emits `sigKeySequenceChanged`. Where simple
    /// hotkeys are not allowed, a message box says so and nothing changes; this function returns
    /// when the box is closed, and the editor may be deleted by then.
    void setKeySequence(QKeySequence sequence);
    /// Takes the empty sequence.
    void cleanSetting();
    /// Shows the clear button exactly when a hotkey is set.
    void refreshClearButton();

Q_SIGNALS:
    /// The recorded hotkey is another one now. Whoever receives this may delete the editor.
    void sigKeySequenceChanged(QKeySequence sequence);

protected:
    /// Takes keys before the window's shortcuts and the focus do.
    bool event(QEvent *event) override;
    /// Records the key with the modifiers that are held.
    void keyPressEvent(QKeyEvent *event) override;
    /// Records a modifier key that was pressed and released alone, where that is allowed.
    void keyReleaseEvent(QKeyEvent *event) override;
    /// Shows the texts of the field in the new language.
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
