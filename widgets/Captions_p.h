#pragma once

#include <QCheckBox>
#include <QLabel>

namespace MtConf {

/// The caption of a row: one line as long as there is room for it, more lines otherwise. So a page
/// needs no more width than the longest words of its captions.
class CaptionLabel : public QLabel
{
public:
    CaptionLabel(const QString &text, QWidget *parent);

    /// Returns the size of the text in one line, which may become bold.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
};

/// A check box that is the caption of its row, with the same rule for its text.
class CaptionCheckBox : public QCheckBox
{
public:
    CaptionCheckBox(const QString &text, QWidget *parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int widthBesideText() const;
    QString wrappedText(int width) const;
};

} // namespace MtConf
