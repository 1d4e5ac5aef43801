#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <utility>

namespace MtConf {

/// A text in the form in which Find compares texts: case folded, without accents and without
/// characters that are not seen. Marks that are letters of their script, such as the vowels of
/// Devanagari, stay.
class FoldedText
{
public:
    using Size = QString::size_type;

    explicit FoldedText(const QString &text);

    const QString &text() const { return mText; }

    /// Returns the parts of the original text that contain `words`, which are folded, as positions
    /// of the first character and behind the last one. They are in order and do not overlap.
    QList<std::pair<Size, Size>> rangesOf(const QStringList &words) const;

private:
    QString mText;
    QList<Size> mOrigins; // by position in mText
    Size mOriginalSize;
};

/// Returns `text` folded.
QString foldedText(const QString &text);

/// Returns whether a word starts at `position` of `text`.
bool isWordStart(const QString &text, QString::size_type position);

/// Returns whether a word ends before `position` of `text`.
bool isWordEnd(const QString &text, QString::size_type position);

} // namespace MtConf
