#pragma once

#include <QKeySequence>
#include <QObject>
#include <QString>

#include <functional>

namespace MtConf {

/// Gives an action or a QShortcut the shortcut that is stored under a key, now and after each
/// change.
class ShortcutBinding : public QObject
{
    Q_OBJECT
public:
    using Setter = std::function<void(const QKeySequence &shortcut)>;

    /// Calls `setter` with the shortcut that is stored under `key`, now and after each change,
    /// until `target` is destroyed. Replaces an earlier binding of `target`.
    static void bind(const QString &key, QObject *target, const Setter &setter);

    ~ShortcutBinding() override;

    /// Returns the key that `target` is bound to; empty if there is none.
    static QString keyOf(const QObject *target);

private:
    ShortcutBinding(const QString &key, QObject *target, const Setter &setter);

    const QString mKey;
    int mObserver = 0;
};

} // namespace MtConf
