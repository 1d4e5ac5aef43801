#include "ConfMisuse_p.h"

#include "EntryLog_p.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QDebug>
#include <QThread>

#include <utility>

ConfMisuse::ConfMisuse() : mThread(QThread::currentThreadId()) {}

void ConfMisuse::checkThread(const char *function)
{
    if (QThread::currentThreadId() != mThread && !mHasWarnedOfThread.exchange(true))
        qWarning() << "ConfStorage used on another thread: " << function;
}

void ConfMisuse::checkDynamicKey(const QString &key)
{
    if (key.contains(QLatin1Char('#')) && !std::exchange(mHasWarnedOfKey, true))
        qWarning() << "ConfStorage::createDynamicConf() key with # will not be loaded: "
                   << EntryLog::truncated(key);
}

void ConfStorage::warnOfMisuse()
{
    mMisuse = std::make_unique<ConfMisuse>();
}

void ConfStorage::checkUse(const char *function) const
{
    mMisuse->checkThread(function);
}
