#pragma once

#include <QKeySequence>
#include <QProcess>

/// A second program that registers a hotkey, so that this one cannot register it. It ends when this
/// object is destroyed or when the program that started it ends, even by a crash.
class KeyHolder
{
public:
    /// Returns the command line option that makes the demo call `run`.
    static QString option();

    /// Starts `program`, the path of the demo, and waits until it has tried to register `sequence`.
    KeyHolder(const QString &program, const QKeySequence &sequence);
    ~KeyHolder();
    Q_DISABLE_COPY(KeyHolder)

    /// Returns whether the other program has registered the key. False on platforms without
    /// global hotkeys.
    bool holds() const { return mHolds; }

    /// Acts as the second program: holds the key `sequence`, in portable text, until the standard
    /// input ends. Needs an application object. Returns the exit code of the program.
    static int run(const QString &sequence);

private:
    QProcess mProgram;
    bool mHolds = false;
};
