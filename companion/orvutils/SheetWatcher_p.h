#pragma once

#include <QByteArray>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QVector>

class QFileSystemWatcher;
class QWidget;

/// Returns the content of a style sheet, a regular file of at most 4 MiB or a resource; null if it
/// cannot be read. Pipes and devices are not read, because reading could block forever.
QByteArray readSheet(const QString &file);

/// Watches the disk files of the style sheets that live widgets use.
class SheetWatcher : public QObject
{
    Q_OBJECT

public:
    explicit SheetWatcher(QObject *parent);

    /// Sets the sheets that `widget` uses, by absolute path with their content.
    void watch(QWidget *widget, const QHash<QString, QByteArray> &sheets);

Q_SIGNALS:
    /// Emitted after the content of one or more used sheets has changed and then not changed again
    /// for 100 ms.
    void sheetsChanged();

private:
    struct Use
    {
        QPointer<QWidget> widget;
        QHash<QString, QByteArray> sheets;
    };

    void watchFiles();
    void compareContents();

    QVector<Use> mUses;
    QPointer<QFileSystemWatcher> mFiles;
    QTimer mStill;
};
