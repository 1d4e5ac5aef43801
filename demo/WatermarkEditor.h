#pragma once

#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

class QLineEdit;
class QSpinBox;

/// An editor of the program's own: a text, and beside it a sub-item of the same setting, the
/// opacity in percent. Both count when the caption tells whether the setting was changed.
class WatermarkEditor : public MtConf::ConfigItemWidget
{
    Q_OBJECT
public:
    WatermarkEditor(MtConf::ConfItem *item, QWidget *parent);

    /// Makes the editor: what `addConfQString` is given.
    static MtConf::ConfigItemWidget *create(MtConf::ConfItem *item, QWidget *parent);
    /// The name of the sub-item that holds the opacity.
    static QString opacityName();

    void loadConf() override;
    void retranslateUi() override;

private:
    void storeText(const QString &text);
    void storeOpacity(int percent);
    QString opacityKey() const;

    QLineEdit *const mText;
    QSpinBox *const mOpacity;
};
