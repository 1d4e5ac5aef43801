#include "ConfAutosave_p.h"

#include "ConfObservers_p.h"

#include <QGuiApplication>
#include <QTimer>

#include <algorithm>

namespace {

// Milliseconds until a failed save is tried again. Each try logs a message.
constexpr int sShortestRetry = 100;
constexpr int sLongestRetry = 60 * 1000;

/// Changes without a pause postpone a save by so many quiet times.
constexpr int sMostQuietTimes = 10;

} // namespace

ConfAutosave::ConfAutosave(ConfStorage *store, int quietTime)
    : mStore(store), mQuietTime(quietTime), mContext(std::make_unique<QObject>()),
      mApplicationStart([this] { start(); })
{
    mObserver = ConfObservers::of(*mStore)->addSimple([this](const ConfChange &) { noteChange(); });
}

ConfAutosave::~ConfAutosave()
{
    mStore->removeObserver(mObserver);
    // The timer may be what calls this.
    if (mTimer)
        mTimer->deleteLater();
}

void ConfAutosave::start()
{
    QCoreApplication *const application = QCoreApplication::instance();
    mTimer = new QTimer(application);
    mTimer->setSingleShot(true);
    QObject::connect(mTimer, &QTimer::timeout, mContext.get(), [this] { saveIfQuiet(); });
    QObject::connect(application, &QCoreApplication::aboutToQuit, mContext.get(),
                     [this] { saveAtTheEnd(); });
    if (const auto *const gui = qobject_cast<QGuiApplication *>(application))
        QObject::connect(gui, &QGuiApplication::commitDataRequest, mContext.get(),
                         [this] { saveAtTheEnd(); });
    if (mStore->mChanged)
        noteChange();
}

void ConfAutosave::noteChange()
{
    mHasHeard = true;
    mLastChange.start();
    // The timer is not started again for each change, which costs more.
    if (!mTimer || mTimer->isActive())
        return;
    mFirstChange.start();
    mTimer->start(mQuietTime);
}

void ConfAutosave::saveIfQuiet()
{
    const qint64 longest = sMostQuietTimes * qint64(mQuietTime) - mFirstChange.elapsed();
    const qint64 rest = std::min(mQuietTime - mLastChange.elapsed(), longest);
    if (rest > 0)
        mTimer->start(static_cast<int>(rest));
    else
        save();
}

void ConfAutosave::save()
{
    // Sharing knows of more changes than the flag tells.
    const bool mayHaveChanged = mStore->mChanged
                                || (mStore->mFileOptions & ConfStorage::SharedFile);
    if (!mayHaveChanged || !mStore->mLocalLoaded || mStore->mLocalSaveFile.isEmpty())
        return;
    // In an event loop of a callback. The rest of the loaded entries would be lost.
    const bool isLoading = ConfObservers::isLoading(*mStore);
    if (!isLoading) {
        const QPointer<QObject> context(mContext.get());
        mStore->saveToLocalConfFile();
        if (!context)
            return; // a message handler or a callback has cleared the store
    }
    if (!mStore->mChanged) {
        mRetryDelay = 0;
        return;
    }
    if (mRetryDelay == 0)
        mRetryDelay = std::max(mQuietTime, sShortestRetry);
    else if (mRetryDelay < sLongestRetry)
        mRetryDelay = std::min(2 * mRetryDelay, sLongestRetry);
    if (mTimer)
        mTimer->start(mRetryDelay);
}

/// Saves twice if callbacks, which are called for what others have saved, change something in
/// answer.
void ConfAutosave::saveAtTheEnd()
{
    mHasHeard = false;
    const QPointer<QObject> context(mContext.get());
    save();
    if (context && mHasHeard)
        save();
}

void ConfStorage::setAutosave(int quietTime)
{
    mAutosave.reset();
    if (quietTime >= 0)
        mAutosave = std::make_unique<ConfAutosave>(this, quietTime);
}
