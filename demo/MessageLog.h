#pragma once

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QString>

/// Everything that goes to Qt's message log, from any thread, while this object lives; the messages
/// also go where they went before. The handler of before comes back at the end.
///
/// There is one at a time.
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

    /// The newest messages, at most `Capacity`, oldest first.
    const QList<Message> &messages() const { return mMessages; }

    static constexpr int Capacity = 500;

Q_SIGNALS:
    /// Emitted by the event loop of this object's thread.
    void messageLogged(const MessageLog::Message &message);

private:
    static void handle(QtMsgType level, const QMessageLogContext &context, const QString &text);
    void append(const Message &message);

    QList<Message> mMessages;
};
