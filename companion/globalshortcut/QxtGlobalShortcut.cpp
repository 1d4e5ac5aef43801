#include <QxtGlobalShortcut>

#include "Chord_p.h"
#include "GlobalShortcutRegistry_p.h"
#include "QtCompat_p.h"

#include <QAtomicInt>
#include <QCoreApplication>
#include <QPointer>
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
    explicit Private(QxtGlobalShortcut *owner) : q(owner)
    {
        // Qt 5 reads the property as a number until the type is registered.
        qRegisterMetaType<Failure>();
        static QAtomicInt sNumber;
        generatedId = QStringLiteral("shortcut-%1").arg(++sNumber);
        id = generatedId;
    }
    ~Private() override { giveBack(); }
    Q_DISABLE_COPY(Private)

    static bool isGuiThread()
    {
        // Not qApp, which casts to QGuiApplication: there may be a QCoreApplication only.
        const auto *application = QCoreApplication::instance();
        return application && QThread::currentThread() == application->thread();
    }

    bool isValid() const { return mRegistry && failure() == NoFailure; }

    Failure failure() const
    {
        return mRegistry ? mRegistry->result(mAction.id).failure : mUnregistered;
    }

    void apply()
    {
        mUnregistered = reasonNotToRegister();
        if (!enabled || mUnregistered != NoFailure) {
            giveBack();
            return;
        }
        mAction.chord = QtCompat::chordAt(shortcut, 0);
        if (mRegistry) {
            mRegistry->change(mAction);
            return;
        }
        mRegistry = GlobalShortcutRegistry::instance();
        mAction.id = id;
        mAction.id = mRegistry->add(mAction, this);
    }

    void setId(const QString &wanted)
    {
        id = wanted;
        if (!mRegistry)
            return;
        // Released afterwards, so that no other program can take the keys in between.
        const QString released = std::exchange(mAction.id, wanted);
        mAction.id = mRegistry->add(mAction, this);
        mRegistry->remove(released);
    }

    void setDescription(const QString &text)
    {
        mAction.description = text;
        // A failed registration is not retried for a text.
        if (isValid() || failure() == Pending)
            mRegistry->change(mAction);
    }

    QString description() const { return mAction.description; }

    QString trigger() const
    {
        const QString granted = mRegistry ? mRegistry->result(mAction.id).trigger : QString();
        return granted.isEmpty() ? shortcut.toString(QKeySequence::NativeText) : granted;
    }

    // Returns the value that isValid() has before the signals, because a receiver may delete this
    // object.
    bool announce()
    {
        const bool valid = isValid();
        const QPointer<Private> self(this);
        // One by one: a receiver may change the hotkey, which announces the rest.
        if (mTold.enabled != enabled || mTold.valid != valid) {
            mTold.enabled = enabled;
            mTold.valid = valid;
            Q_EMIT q->enabledChanged();
        }
        if (self && mTold.failure != failure()) {
            mTold.failure = failure();
            Q_EMIT q->failureChanged();
        }
        if (self && mTold.trigger != trigger()) {
            mTold.trigger = trigger();
            Q_EMIT q->triggerChanged();
        }
        return valid;
    }

    void pressed(int chord, const QString &token) override
    {
        // The hotkey may have been disabled or changed after the key was pressed.
        if (!isValid() || chord != mAction.chord)
            return;
        activationToken = token;
        Q_EMIT q->activated();
    }

    void resultChanged() override { announce(); }

    QKeySequence shortcut;
    bool enabled = true;
    QString generatedId;
    QString id;
    QString activationToken;

private:
    // What the receivers of the signals know.
    struct Told
    {
        bool enabled = true;
        bool valid = false;
        Failure failure = Empty;
        QString trigger;
    };

    void giveBack()
    {
        if (const auto registry = std::exchange(mRegistry, nullptr))
            registry->remove(mAction.id);
    }

    Failure reasonNotToRegister() const
    {
        if (!enabled)
            return NoFailure;
        if (shortcut.isEmpty())
            return Empty;
        if (shortcut.count() != 1 || !namesAKey(QtCompat::chordAt(shortcut, 0)))
            return NotAChord;
        return isGuiThread() ? NoFailure : NoBackend;
    }

    QxtGlobalShortcut *const q;
    std::shared_ptr<GlobalShortcutRegistry> mRegistry;
    GlobalShortcutBackend::Action mAction;
    Failure mUnregistered = Empty; // failure() while there is no registry
    Told mTold;
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

QxtGlobalShortcut::Failure QxtGlobalShortcut::failure() const
{
    return d->failure();
}

QString QxtGlobalShortcut::trigger() const
{
    return d->trigger();
}

QString QxtGlobalShortcut::activationToken() const
{
    return d->activationToken;
}

QString QxtGlobalShortcut::id() const
{
    return d->id;
}

void QxtGlobalShortcut::setId(const QString &id)
{
    const QString wanted = id.isEmpty() ? d->generatedId : id;
    if (d->id == wanted)
        return;
    d->setId(wanted);
    d->announce();
}

QString QxtGlobalShortcut::description() const
{
    return d->description();
}

void QxtGlobalShortcut::setDescription(const QString &description)
{
    if (d->description() == description)
        return;
    d->setDescription(description);
    d->announce();
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
