#include "MessageLog.h"

#include <QMutex>
#include <QMutexLocker>

namespace {

// Locked while the handler uses the log, so that another thread cannot destroy it meanwhile.
QBasicMutex sMutex;
MessageLog *sLog = nullptr;
QtMessageHandler sPrevious = nullptr;

} // namespace

MessageLog::MessageLog(QObject *parent) : QObject(parent)
{
    const QtMessageHandler previous = qInstallMessageHandler(&MessageLog::handle);
    const QMutexLocker lock(&sMutex);
    sLog = this;
    // A handler that was installed after an earlier log may have restored ours since.
    if (previous != &MessageLog::handle)
        sPrevious = previous;
}

MessageLog::~MessageLog()
{
    {
        const QMutexLocker lock(&sMutex);
        sLog = nullptr;
    }
    // Keep a handler that was installed after ours.
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
    if (mMessages.size() > sCapacity)
        mMessages.removeFirst();
    Q_EMIT messageLogged(message);
}
