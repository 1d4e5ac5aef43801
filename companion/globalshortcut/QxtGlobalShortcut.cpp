#include <QxtGlobalShortcut>

#include "Chord_p.h"
#include "GlobalShortcutRegistry_p.h"
#include "QtCompat_p.h"

#include <QCoreApplication>
#include <QThread>

#include <utility>

namespace {

/// Returns whether the key of `chord` is a known key with a name, and no modifier key, which has a
/// name in Qt 6 only. A text from a file may name no key and give an unknown key, and a key without
/// a name cannot be saved. Neither may reach the system: on an X server key 0 grabs the whole
/// keyboard.
bool namesAKey(int chord)
{
    const QString name = QKeySequence(keyOf(chord)).toString(QKeySequence::PortableText);
    const QKeySequence read = QKeySequence::fromString(name, QKeySequence::PortableText);
    const int key = QtCompat::chordAt(read, 0);
    const bool isModifier = key >= Qt::Key_Shift && key <= Qt::Key_Alt;
    return key != 0 && key != Qt::Key_unknown && !isModifier;
}

} // namespace

// A separate QObject, so that its queued calls are dropped when it is deleted.
class QxtGlobalShortcut::Private : public GlobalShortcutRegistry::User
{
public:
    explicit Private(QxtGlobalShortcut *owner) : q(owner) {}
    ~Private() override { giveBack(); }
    Q_DISABLE_COPY(Private)

    static bool isGuiThread()
    {
        // Not qApp, which casts to QGuiApplication: there may be a QCoreApplication only.
        const auto *application = QCoreApplication::instance();
        return application && QThread::currentThread() == application->thread();
    }

    bool isValid() const { return mRegistry && mRegistry->isRegistered(mChord); }

    void apply()
    {
        if (enabled && isValid() && shortcut == QKeySequence(mChord))
            return;
        // Keep the registry alive: a new one would connect to the system again.
        const auto registry = mRegistry;
        giveBack();
        if (!enabled || shortcut.count() != 1 || !isGuiThread())
            return;
        const int chord = QtCompat::chordAt(shortcut, 0);
        if (!namesAKey(chord))
            return;
        mChord = chord;
        mRegistry = GlobalShortcutRegistry::instance();
        mRegistry->add(mChord, this);
    }

    // Returns the value that isValid() has before the signal, because a receiver may delete this
    // object.
    bool announce()
    {
        const bool valid = isValid();
        if (mAnnouncedEnabled != enabled || mAnnouncedValid != valid) {
            mAnnouncedEnabled = enabled;
            mAnnouncedValid = valid;
            Q_EMIT q->enabledChanged();
        }
        return valid;
    }

    void pressed(int chord) override
    {
        // The hotkey may have been disabled or changed after the key was pressed.
        if (isValid() && chord == mChord)
            Q_EMIT q->activated();
    }

    void registrationChanged() override { announce(); }

    QKeySequence shortcut;
    bool enabled = true;

private:
    void giveBack()
    {
        if (const auto registry = std::exchange(mRegistry, nullptr))
            registry->remove(mChord, this);
    }

    QxtGlobalShortcut *const q;
    std::shared_ptr<GlobalShortcutRegistry> mRegistry;
    int mChord = 0;
    bool mAnnouncedEnabled = true;
    bool mAnnouncedValid = false;
};

QxtGlobalShortcut::QxtGlobalShortcut(QObject *parent)
    : QObject(parent), d(std::make_unique<Private>(this))
{
}

QxtGlobalShortcut::QxtGlobalShortcut(const QKeySequence &shortcut, QObject *parent)
    : QxtGlobalShortcut(parent)
{
    setShortcut(shortcut);
}

QxtGlobalShortcut::~QxtGlobalShortcut() = default;

bool QxtGlobalShortcut::isSupported()
{
    return Private::isGuiThread() && GlobalShortcutRegistry::instance()->isSupported();
}

QKeySequence QxtGlobalShortcut::shortcut() const
{
    return d->shortcut;
}

bool QxtGlobalShortcut::setShortcut(const QKeySequence &shortcut)
{
    d->shortcut = shortcut;
    d->apply();
    return d->announce();
}

bool QxtGlobalShortcut::isEnabled() const
{
    return d->enabled;
}

bool QxtGlobalShortcut::isValid() const
{
    return d->isValid();
}

void QxtGlobalShortcut::setEnabled(bool enabled)
{
    if (d->enabled == enabled)
        return;
    d->enabled = enabled;
    d->apply();
    d->announce();
}

void QxtGlobalShortcut::setDisabled(bool disabled)
{
    setEnabled(!disabled);
}
