#pragma once

#include "ApplicationStart_p.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>

#include <memory>

class ConfStorage;
class QTimer;

/// Saves the local file of a store when nothing has changed for a while, or ten times as long after
/// the first change, when the application ends
/// and when the session manager ends the session. Does nothing without an application object, and
/// nothing before the local file was loaded: a save would remove the settings that are in it.
class ConfAutosave
{
public:
    /// `quietTime` is in milliseconds.
    ConfAutosave(ConfStorage *store, int quietTime);
    ~ConfAutosave();
    Q_DISABLE_COPY(ConfAutosave)

private:
    void start();
    void noteChange();
    void saveIfQuiet();
    void save();
    void saveAtTheEnd();

    ConfStorage *const mStore;
    const int mQuietTime;
    int mRetryDelay = 0; // 0: the last save worked
    int mObserver = 0;
    bool mHasHeard = false;     // of a change since it was set to false
    QElapsedTimer mFirstChange; // of those that are not saved
    QElapsedTimer mLastChange;
    const std::unique_ptr<QObject> mContext; // of all connections
    QPointer<QTimer> mTimer;                 // a child of the application
    const ApplicationStart mApplicationStart;
};
