#pragma once

#include "MessageLog.h"

#include <QPlainTextEdit>

/// Shows a message log as it grows, newest at the bottom: time, level, text.
class LogPane : public QPlainTextEdit
{
    Q_OBJECT
public:
    /// Shows `log`, which must outlive the pane.
    explicit LogPane(const MessageLog &log, QWidget *parent = nullptr);

public Q_SLOTS:
    /// Writes all lines again, in the colours of the current theme.
    void refresh();

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();
    void addLine(const MessageLog::Message &message);

    const MessageLog &mLog;
};
