#include "SettingsWatcher.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QPointer>
#include <QTimer>

void SettingsWatcher::watchAll()
{
    const QStringList keys = ConfStorage::instance()->mConfValues.keys();
    for (const QString &key : keys)
        watch(key);
}

void SettingsWatcher::watch(const QString &key)
{
    ConfStorage *store = ConfStorage::instance();
    const ConfChangedCallback before = store->mConfMetas.value(key).changedCallback;
    const QPointer<SettingsWatcher> self(this);
    store->setConfChangedCallback(key, [before, self](const QString &name, const ConfValue *value) {
        if (before)
            before(name, value);
        if (self)
            self->announceChange();
    });
}

void SettingsWatcher::announceChange()
{
    if (mPending)
        return;
    mPending = true;
    // Delayed, because the store calls in the middle of an operation.
    QTimer::singleShot(0, this, [this] {
        mPending = false;
        Q_EMIT settingsChanged();
    });
}
