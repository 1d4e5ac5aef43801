#pragma once

#include <QString>
#include <Qt>

#include <atomic>

/// Warns once of each kind of wrong use of a store.
class ConfMisuse
{
public:
    /// Remembers the current thread as the only one that may use the store.
    ConfMisuse();

    /// Warns if the current thread is another one. `function` is the one that was called.
    void checkThread(const char *function);
    /// Warns if the next load would ignore the entry of `key`, which is being created.
    void checkDynamicKey(const QString &key);

private:
    const Qt::HANDLE mThread;
    std::atomic<bool> mHasWarnedOfThread{false};
    bool mHasWarnedOfKey = false;
};
