#pragma once

#include <QFrame>

class QGridLayout;
class QVBoxLayout;

namespace MtConf {

/// One row of a page in the modern look: a column of texts at the left, which wrap, then the
/// editor, and at the end a place for a button, which all rows keep free.
class ModernRow : public QFrame
{
public:
    /// Where the editor is.
    enum class Place {
        Beside, ///< at the right of the texts, as wide as it wants to be
        Below   ///< below the texts, as wide as the row
    };

    /// Creates a row in `panel`. `pixel` is the size of a pixel at 96 dots per inch.
    ModernRow(QWidget *panel, double pixel);

    void setEditor(QWidget *editor, Place place);
    /// Adds a text below the others in the column of texts.
    void addText(QWidget *text);
    /// Adds a widget below the texts and the editor, as wide as the row.
    void addBelow(QWidget *widget);
    void setButton(QWidget *button);

private:
    int px(double pixels) const { return qRound(pixels * mPixel); }

    const double mPixel;
    QGridLayout *mGrid;
    QVBoxLayout *mTexts;
};

} // namespace MtConf
