#pragma once

#include <QObject>

class QString;

/// Tells when stored settings have changed, whoever changed them.
///
/// It stands in the change callbacks of the keys, in front of those that are there already.
class SettingsWatcher : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    /// Watches every key that the store holds now.
    void watchAll();
    /// Announces a change that the watched keys do not tell of.
    void announceChange();

Q_SIGNALS:
    /// Something has changed. Emitted once by the event loop for all changes of one turn.
    void settingsChanged();

private:
    void watch(const QString &key);

    bool mPending = false;
};
