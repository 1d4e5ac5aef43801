#pragma once

#include "MaltoConfiguration/widgets/Captions_p.h"

#include <QPointer>

class QCheckBox;

namespace MtConf {

/// Returns the text of a button without the mark of its shortcut key.
QString withoutMark(QString text);

/// The caption of a flag in the modern look, beside its check box, which is drawn as a switch
/// without a text. The caption shows the text, the state and the tool tip of the check box, and a
/// click toggles it. The check box keeps its text for screen readers.
class SwitchCaption : public WrappedLabel
{
public:
    /// Draws `box` as a switch of `size` pixels.
    SwitchCaption(QCheckBox *box, QSize size, QWidget *parent);

    /// Shows the text of the check box.
    void followText();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void followState();
    void drawSwitch() const;

    QCheckBox *box() const;

    // Not of the class: the destructor of the base class sends events, too.
    const QPointer<QWidget> mBox;
};

} // namespace MtConf
