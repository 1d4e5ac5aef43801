#include "LogPane.h"

#include <OrvUtils/QThemeCtrl.h>

#include <QEvent>

namespace {

QString levelName(QtMsgType level)
{
    switch (level) {
    case QtDebugMsg: return QStringLiteral("debug");
    case QtInfoMsg: return QStringLiteral("info");
    case QtWarningMsg: return QStringLiteral("warning");
    default: return QStringLiteral("critical");
    }
}

QString levelColor(QtMsgType level)
{
    switch (level) {
    case QtDebugMsg: return QStringLiteral("ColorDisable");
    case QtInfoMsg: return QStringLiteral("ColorFg0");
    case QtWarningMsg: return QStringLiteral("ColorWarning");
    default: return QStringLiteral("ColorFailed");
    }
}

} // namespace

LogPane::LogPane(const MessageLog &log, QWidget *parent) : QPlainTextEdit(parent), mLog(log)
{
    setReadOnly(true);
    setMaximumBlockCount(MessageLog::sCapacity);
    retranslate();
    refresh();
    connect(&log, &MessageLog::messageLogged, this, &LogPane::addLine);
}

void LogPane::changeEvent(QEvent *event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void LogPane::retranslate()
{
    setPlaceholderText(tr("What the library logs appears here."));
}

void LogPane::refresh()
{
    clear();
    for (const MessageLog::Message &message : mLog.messages())
        addLine(message);
}

void LogPane::addLine(const MessageLog::Message &message)
{
    const QString line = QStringLiteral("%1  %2  %3")
                             .arg(message.time.toString(QStringLiteral("HH:mm:ss")),
                                  levelName(message.level), message.text);
    const QString color = QThemeCtrl::instance()->value(levelColor(message.level));
    appendHtml(QStringLiteral("<span style=\"color:%1; white-space:pre-wrap\">%2</span>")
                   .arg(color, line.toHtmlEscaped()));
}
