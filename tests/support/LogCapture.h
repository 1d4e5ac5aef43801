#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <utility>

/// One message of Qt's log.
struct LoggedMessage
{
    QtMsgType level;
    QString text;
    bool operator==(const LoggedMessage &other) const
    {
        return level == other.level && text == other.text;
    }
};

/// Collects all messages of Qt's log during its lifetime instead of printing them.
class LogCapture
{
public:
    LogCapture() : mPrevious(qInstallMessageHandler(&LogCapture::handle)) { messages().clear(); }
    ~LogCapture() { qInstallMessageHandler(mPrevious); }
    Q_DISABLE_COPY(LogCapture)

    /// Returns all messages logged since construction, oldest first.
    static QList<LoggedMessage> &messages()
    {
        static QList<LoggedMessage> sMessages;
        return sMessages;
    }

    /// Returns the texts of the messages of one level.
    static QStringList texts(QtMsgType level)
    {
        QStringList result;
        for (const LoggedMessage &message : std::as_const(messages())) {
            if (message.level == level)
                result.append(message.text);
        }
        return result;
    }

private:
    static void handle(QtMsgType level, const QMessageLogContext &, const QString &text)
    {
        messages().append({level, text});
    }

    QtMessageHandler mPrevious;
};
