#pragma once

#include <QObject>

class QString;

/// Emits a signal when stored settings change, whatever changes them.
///
/// It wraps the change callbacks of the keys: the existing callback of a key is called first.
class SettingsWatcher : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    /// Watches every key that is in the store now.
    void watchAll();
    /// Reports a change of something that is not watched.
    void announceChange();

Q_SIGNALS:
    /// Emitted from the event loop, once for all changes of one turn.
    void settingsChanged();

private:
    void watch(const QString &key);

    bool mPending = false;
};
