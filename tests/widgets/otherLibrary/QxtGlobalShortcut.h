#pragma once

#include <QKeySequence>
#include <QObject>

/// A class with the name of the one in the companion library, and of its members only those that
/// every implementation has.
class Q_DECL_EXPORT QxtGlobalShortcut : public QObject
{
    Q_OBJECT
public:
    QKeySequence shortcut() const;
    bool setShortcut(const QKeySequence &shortcut);
    bool isEnabled() const;
    bool isValid() const;

Q_SIGNALS:
    void enabledChanged();

public:
    bool mIsValid = false; ///< what the system says
    int mCalls = 0;        ///< number of calls of `setShortcut`

private:
    QKeySequence mShortcut;
};
