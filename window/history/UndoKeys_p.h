#pragma once

#include <QKeySequence>
#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>

class QWidget;

namespace MtConf {

/// Decides who gets the keys for undo and redo while a text field has the focus: the field, which
/// has an undo of its own, or the window.
///
/// The field gets them for what was typed since it got the focus, as in any text field. For older
/// changes, which the field may remember, too, the window undoes in the order in which they were
/// made. Without this object Qt gives a field every key for undo, even if it has nothing to undo.
class UndoKeys : public QObject
{
    Q_OBJECT
public:
    /// `canRedo` tells whether the window has something to redo.
    explicit UndoKeys(std::function<bool()> canRedo, QObject *parent);

    /// Counts the text of the focused field as that which was there when it got the focus.
    void noteText();

Q_SIGNALS:
    /// Emitted when the keyboard focus has moved.
    void focusMoved();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void onFocusChanged(QWidget *now);
    bool isForWindow(const QWidget *field, QKeySequence::StandardKey key) const;

    const std::function<bool()> mCanRedo;
    QPointer<QWidget> mField;
    QString mTextAtFocus;
};

} // namespace MtConf
