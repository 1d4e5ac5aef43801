#include "MessageLog.h"

#include <QMutex>
#include <QMutexLocker>

namespace {

// Held while the handler uses the log, so that the log does not go meanwhile in another thread.
QBasicMutex sMutex;
MessageLog *sLog = nullptr;
QtMessageHandler sPrevious = nullptr;

} // namespace

MessageLog::MessageLog(QObject *parent) : QObject(parent)
{
    const QtMessageHandler previous = qInstallMessageHandler(&MessageLog::handle);
    const QMutexLocker lock(&sMutex);
    sLog = this;
    // Somebody who put a handler on top of an earlier log may have brought ours back since.
    if (previous != &MessageLog::handle)
        sPrevious = previous;
}

MessageLog::~MessageLog()
{
    {
        const QMutexLocker lock(&sMutex);
        sLog = nullptr;
    }
    // Somebody may have put a handler on top of ours, which stays.
    const QtMessageHandler current = qInstallMessageHandler(sPrevious);
    if (current != &MessageLog::handle)
        qInstallMessageHandler(current);
}

void MessageLog::handle(QtMsgType level, const QMessageLogContext &context, const QString &text)
{
    QtMessageHandler previous = nullptr;
    {
        const QMutexLocker lock(&sMutex);
        previous = sPrevious;
        if (MessageLog *log = sLog) {
            const Message message{QDateTime::currentDateTime(), level, text};
            QMetaObject::invokeMethod(
                log, [log, message] { log->append(message); }, Qt::QueuedConnection);
        }
    }
    if (previous)
        previous(level, context, text);
}

void MessageLog::append(const Message &message)
{
    mMessages.append(message);
    if (mMessages.size() > Capacity)
        mMessages.removeFirst();
    Q_EMIT messageLogged(message);
}
