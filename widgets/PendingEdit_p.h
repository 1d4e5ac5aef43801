#pragma once

#include <QObject>
#include <QTimer>

class QWidget;

namespace MtConf {

/// Knows whether a field contains a text that the user has typed and the editor has not stored, and
/// tells the editor when to store it.
///
/// The field owns it: if a callback deletes the editor, the field is deleted later, after its event
/// is handled.
class PendingEdit : public QObject
{
    Q_OBJECT
public:
    /// Watches `field`, which becomes the owner.
    explicit PendingEdit(QWidget *field);

    /// The user has changed the text. Starts the pause.
    void begin();
    /// The text was not accepted: it is kept, and the editor tries again when editing ends.
    void keep() { mIsPending = true; }
    /// Returns whether there is a text to store. It counts as stored from now on.
    bool take();
    /// Returns whether the user is typing a text, which must not be replaced.
    bool isTyping() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// Emitted when the user has not typed for a while.
    void paused();
    /// Emitted when the field loses the focus.
    void left();

private:
    QWidget *const mField;
    QTimer mPause;
    bool mIsPending = false;
};

} // namespace MtConf
