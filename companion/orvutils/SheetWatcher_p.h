#pragma once

#include <QByteArray>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QVector>

class QFileSystemWatcher;
class QWidget;

/// The content of a style sheet, a regular file or a resource; null when it cannot be read. Pipes
/// and devices are refused: reading one might never end.
QByteArray readSheet(const QString &file);

/// Watches the sheets on disk that living widgets show.
class SheetWatcher : public QObject
{
    Q_OBJECT

public:
    explicit SheetWatcher(QObject *parent);

    /// From now on `widget` shows `sheets` (absolute path and content), and no others.
    void watch(QWidget *widget, const QHash<QString, QByteArray> &sheets);

Q_SIGNALS:
    /// The content of at least one sheet in use has changed, and has been still for a moment.
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
