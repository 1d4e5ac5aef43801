#pragma once

#include "MessageLog.h"

#include <QPlainTextEdit>

/// Shows a message log: time, level and text of each message, the newest at the bottom.
class LogPane : public QPlainTextEdit
{
    Q_OBJECT
public:
    /// Shows `log`, which must outlive the pane.
    explicit LogPane(const MessageLog &log, QWidget *parent = nullptr);

public Q_SLOTS:
    /// Rewrites all lines in the colours of the current theme.
    void refresh();

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();
    void addLine(const MessageLog::Message &message);

    const MessageLog &mLog;
};
