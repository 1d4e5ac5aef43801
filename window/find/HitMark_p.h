#pragma once

#include <QPointer>
#include <QStringList>
#include <QWidget>

namespace MtConf {

struct PageRow;

/// Marks words in the text of a label or a check box: lies over it and colours the ground of what
/// matches, whatever the text is when it is painted. The text itself stays as it is, also for
/// screen readers.
class HitMark : public QWidget
{
    Q_OBJECT
public:
    /// Marks `words`, which are folded, in `owner`, a QLabel with plain text or a QAbstractButton.
    HitMark(QWidget *owner, const QStringList &words);

    void setWords(const QStringList &words);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QStringList mWords;
};

/// Marks a row with a coloured ground until the next key or click.
class RowMark : public QWidget
{
    Q_OBJECT
public:
    /// Marks `row`, which must have a frame and an editor.
    explicit RowMark(const PageRow &row);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void cover();

    const QPointer<QWidget> mCaption;
    const QPointer<QWidget> mEditor;
};

} // namespace MtConf
