#pragma once

#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

#include <QLabel>
#include <QPointer>

namespace MtConf {

/// Says under the caption what is wrong with a setting, and what the user can do about it, instead
/// of the icon of the editor. Hidden while nothing is wrong.
class StatusNote : public QLabel
{
    Q_OBJECT
public:
    StatusNote(ConfigItemWidget *editor, QWidget *parent);
    ~StatusNote() override;

    /// Shows the present state, in the present language and theme.
    void refresh();

private:
    void act();

    const QPointer<ConfigItemWidget> mEditor;
};

} // namespace MtConf
