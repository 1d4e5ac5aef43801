#pragma once

#include <QString>

/// Limits the log lines about single entries of a file. While an object exists in this thread,
/// `permits` returns true `Limits::sMaxLoggedEntries` times; the outermost one logs how many
/// messages were left out. Without an object every message is permitted.
class EntryLog
{
public:
    EntryLog();
    /// Logs the warning "ConfStorage: further messages about entries: " with their number.
    ~EntryLog();
    Q_DISABLE_COPY(EntryLog)

    /// Returns whether a message about an entry may be logged, and counts it.
    static bool permits();

    /// Returns `text` in one line of at most `length` characters without control characters, which
    /// a terminal would obey. Longer texts end with an ellipsis.
    static QString printable(const QString &text, int length);

    /// Returns `text`, truncated to `Limits::sMaxLoggedLength` characters. For QDebug, which
    /// escapes the rest itself.
    static QString truncated(const QString &text);
};
