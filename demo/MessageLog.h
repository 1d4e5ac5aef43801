#pragma once

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QString>

/// Collects the messages of Qt's log from all threads while this object exists, and passes them on
/// to the previous message handler. The destructor restores that handler.
///
/// One log exists at a time.
class MessageLog : public QObject
{
    Q_OBJECT
public:
    struct Message
    {
        QDateTime time;
        QtMsgType level;
        QString text;
    };

    explicit MessageLog(QObject *parent = nullptr);
    ~MessageLog() override;

    /// Returns the newest messages, at most `sCapacity`, oldest first.
    const QList<Message> &messages() const { return mMessages; }

    static constexpr int sCapacity = 500;

Q_SIGNALS:
    /// Emitted from the event loop of this object's thread.
    void messageLogged(const MessageLog::Message &message);

private:
    static void handle(QtMsgType level, const QMessageLogContext &context, const QString &text);
    void append(const Message &message);

    QList<Message> mMessages;
};
