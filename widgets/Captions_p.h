#pragma once

#include <QCheckBox>
#include <QFont>
#include <QLabel>
#include <QMargins>
#include <QString>

namespace MtConf {

/// A label whose text may have several lines. Layouts ask for the height of many widths, so it
/// measures its text again only if it must.
class WrappedLabel : public QLabel
{
public:
    WrappedLabel(const QString &text, QWidget *parent);

    int heightForWidth(int width) const override;

private:
    /// The widths for which the text has one line, or the lines that it has by itself.
    struct Unwrapped
    {
        QString text;
        QFont font;
        QMargins margins;
        int leastWidth = -1; ///< one of these widths, as narrow as known; negative: none measured
        int height = 0;
    };
    mutable Unwrapped mUnwrapped;
};

/// The widths of the text of a caption, in pixels. A caption is bold while its value differs from
/// the default value, and reserves the width for it, so that the fields beside it keep their place.
class CaptionWidths
{
public:
    /// Measures `text` in the font of `caption`, unless both are the same as the last time.
    void measure(const QWidget *caption, const QString &text);

    int line() const { return qMax(mNormal.line, mBold.line); } ///< all in one line
    int word() const { return qMax(mNormal.word, mBold.word); } ///< the longest word
    /// How much wider the line becomes in bold.
    int moreInBold() const { return qMax(0, mBold.line - mNormal.line); }

private:
    struct Widths
    {
        Widths() = default;
        Widths(const QFont &font, const QString &text);
        int line = 0;
        int word = 0;
    };
    QFont mFont;
    QString mText;
    Widths mNormal;
    Widths mBold;
};

/// The caption of a row: one line as long as there is room for it, more lines otherwise. So a page
/// needs no more width than the longest words of its captions.
class CaptionLabel : public WrappedLabel
{
public:
    using WrappedLabel::WrappedLabel;

    /// Returns the size of the text in one line, which may become bold.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

private:
    QSize sizeForText(int width) const;
    const CaptionWidths &widths() const;

    mutable CaptionWidths mWidths;
};

/// A check box that is the caption of its row, with the same rule for its text.
class CaptionCheckBox : public QCheckBox
{
public:
    CaptionCheckBox(const QString &text, QWidget *parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    /// False for a check box of a fixed size.
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int widthBesideText() const;
    QString wrappedText(int width) const;
    const CaptionWidths &widths() const;

    mutable CaptionWidths mWidths;
};

} // namespace MtConf
