#pragma once

#include <QKeySequence>
#include <QProcess>

/// A second program that holds a hotkey, so that this one cannot have it. It ends with this object,
/// and with the program that started it, however that ends.
class KeyHolder
{
public:
    /// The option with which `program` is started again to hold a key: see `run`.
    static QString option();

    /// Starts `program`, the path of the demo, and waits until it has tried to take `sequence`.
    KeyHolder(const QString &program, const QKeySequence &sequence);
    ~KeyHolder();
    Q_DISABLE_COPY(KeyHolder)

    /// Whether the other program has the key: false where none can be had.
    bool holds() const { return mHolds; }

    /// What the second program does: holds the key whose name in portable text is `sequence` until
    /// its standard input ends. Needs an application object; returns the program's exit code.
    static int run(const QString &sequence);

private:
    QProcess mProgram;
    bool mHolds = false;
};
