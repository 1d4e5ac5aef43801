#pragma once

#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

class QLineEdit;
class QSpinBox;

/// A custom editor for a text and, beside it, the opacity in percent, which is a sub-item of the
/// same setting. The caption shows the setting as changed if either differs from its default.
class WatermarkEditor : public MtConf::ConfigItemWidget
{
    Q_OBJECT
public:
    WatermarkEditor(MtConf::ConfItem *item, QWidget *parent);

    /// Creates an editor. This is the factory for `addConfQString`.
    static MtConf::ConfigItemWidget *create(MtConf::ConfItem *item, QWidget *parent);
    /// Returns the name of the sub-item with the opacity.
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
