#include <MaltoConfiguration/widgets/ConfDefWidgetQKeySequence.h>

#include "Glyphs_p.h"

#include <MaltoConfiguration/widgets/KeySequenceEdit.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QxtGlobalShortcut>

namespace MtConf {

namespace {

QString shortcutKey()
{
    return QStringLiteral("Shortcut");
}

/// Why a hotkey is not registered.
struct Reason
{
    const char *failure; ///< name of the value of the hotkey's property "failure"
    const char *words;   ///< for the user, not translated
    bool isWorthARetry;  ///< whether the same keys may be registered later
    bool isError = true;
};

constexpr Reason sUnknownReason = {
    "",
    QT_TRANSLATE_NOOP("MtConf::ConfDefWidgetQKeySequence", "Another program may use this hotkey."),
    true};

constexpr Reason sReasons[] = {
    {"Pending",
     QT_TRANSLATE_NOOP("MtConf::ConfDefWidgetQKeySequence", "The desktop has not answered yet."),
     false, false},
    {"Empty",
     QT_TRANSLATE_NOOP("MtConf::ConfDefWidgetQKeySequence", "The hotkey has not been set up yet."),
     true},
    {"NotAChord",
     QT_TRANSLATE_NOOP("MtConf::ConfDefWidgetQKeySequence",
                       "A global hotkey is one key, alone or with modifiers."),
     false},
    {"NotOnKeyboard",
     QT_TRANSLATE_NOOP("MtConf::ConfDefWidgetQKeySequence", "This keyboard does not have the key."),
     false},
    {"Taken",
     QT_TRANSLATE_NOOP("MtConf::ConfDefWidgetQKeySequence", "Another program uses this hotkey."),
     true},
    {"Refused",
     QT_TRANSLATE_NOOP("MtConf::ConfDefWidgetQKeySequence",
                       "The hotkey was refused by you or by the desktop."),
     true},
    {"NoBackend",
     QT_TRANSLATE_NOOP("MtConf::ConfDefWidgetQKeySequence",
                       "Global hotkeys are not available on this system."),
     false},
};

/// Returns why `hotkey` is not registered. Only the companion library adds the property to the
/// class.
const Reason &reasonOf(const QxtGlobalShortcut *hotkey)
{
    const QString failure = hotkey->property("failure").toString();
    for (const Reason &reason : sReasons) {
        if (failure == QLatin1String(reason.failure))
            return reason;
    }
    return sUnknownReason;
}

} // namespace

bool ConfDefWidgetQKeySequence::sTellsReasons = false;

ConfDefWidgetQKeySequence::ConfDefWidgetQKeySequence(ConfItem *item, QWidget *parent)
    : ConfigItemWidget(item, parent),
      mKeySequenceEdit(new KeySequenceEdit(readValue<QKeySequence>(), this)),
      mStateButton(new QPushButton(this)), mTellsReasons(sTellsReasons)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    connect(mKeySequenceEdit, &KeySequenceEdit::sigKeySequenceChanged, this,
            &ConfDefWidgetQKeySequence::onKeySequenceChanged);
    connect(mStateButton, &QPushButton::clicked, this, &ConfDefWidgetQKeySequence::setHotKeyAgain);
    // operator[] inserts a missing property. refreshState() needs it to show "not set" for an item
    // without a global shortcut.
    watchShortcut(mItem->properties[shortcutKey()].value<QxtGlobalShortcut *>());
    layout->addWidget(mKeySequenceEdit);
    layout->addWidget(mStateButton);
    // With a min-height from a style sheet the button could shrink and cut off the glyph.
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    mKeySequenceEdit->clearByDeleteKeys = sFullKeyboardAccess;
    mKeySequenceEdit->setAccessibleName(translatedText());
    refreshState();
}

ConfDefWidgetQKeySequence::~ConfDefWidgetQKeySequence()
{
    // A shortcut that is a child of this widget is deleted after this destructor, when its signal
    // can no longer call forgetShortcut().
    if (findChildren<QxtGlobalShortcut *>().contains(mShortcut))
        forgetShortcut(mShortcut);
    watchShortcut(nullptr);
}

ConfigItemWidget *ConfDefWidgetQKeySequence::CreatConfWidget(ConfItem *item, QWidget *parent)
{
    return create<ConfDefWidgetQKeySequence>(item, parent);
}

void ConfDefWidgetQKeySequence::loadConf()
{
    const QPointer<ConfDefWidgetQKeySequence> self(this);
    mKeySequenceEdit->setKeySequence(readValue<QKeySequence>());
    if (self)
        refreshLabelState();
}

void ConfDefWidgetQKeySequence::onKeySequenceChanged(QKeySequence sequence)
{
    QxtGlobalShortcut *hotkey = shortcut();
    // A hotkey without a global shortcut has no effect, so it is not stored. A sequence that the
    // global shortcut already has was set by the host, which decides whether to store it.
    if (!hotkey || hotkey->shortcut() == sequence) {
        if (mItem->validator && readValue<QKeySequence>() == sequence)
            showMessage(QString()); // about other keys
        return;
    }
    const QPointer<ConfDefWidgetQKeySequence> self(this);
    // Keys that are refused must not be registered.
    if (mItem->validator && readValue<QKeySequence>() != sequence
        && !isAccepted(ConfValue::owned(sequence).toJsonValue()))
        return;
    hotkey = shortcut(); // the validator may have replaced it
    if (!hotkey)
        return;
    registerKeys(hotkey, sequence);
    // Both calls run code of the host, which may delete the editor.
    if (!self || !storeAccepted(sequence))
        return;
    refreshState();
    refreshLabelState();
}

void ConfDefWidgetQKeySequence::refreshState()
{
    if (!mItem->properties.contains(shortcutKey()))
        return;
    const QString red = QStringLiteral("245, 108, 108");
    const QString grey = QStringLiteral("120, 129, 130");
    const QxtGlobalShortcut *const hotkey = shortcut();
    bool canTryAgain = false;
    if (readValue<QKeySequence>().isEmpty()) {
        if (mTellsReasons) // nothing is wrong
            showState(sDisabledGlyph, grey, tr("Not set"));
        else
            showState(sWarningGlyph, red, tr("Not set"));
    } else if (!hotkey) {
        showNoState();
    } else if (!hotkey->isEnabled()) {
        showState(sDisabledGlyph, grey, tr("Disabled."));
    } else if (hotkey->isValid()) {
        const QString other = mTellsReasons ? otherTriggerText(hotkey) : QString();
        showState(sCorrectGlyph, QStringLiteral("103, 194, 58"),
                  other.isEmpty() ? tr("Setup success.") : other);
    } else if (const Reason &reason = reasonOf(hotkey); mTellsReasons) {
        canTryAgain = reason.isWorthARetry;
        const QString words = tr(reason.words);
        showState(reason.isError ? sWarningGlyph : sDisabledGlyph, reason.isError ? red : grey,
                  canTryAgain ? words + QLatin1Char('\n') + tr("Click to try again.") : words);
    } else {
        showState(sWarningGlyph, red,
                  tr("Setup failed, the hotkey may be occupied. Click to try setup again."));
        canTryAgain = true;
    }
    mStateButton->setEnabled(canTryAgain);
    if (onStatusChanged)
        onStatusChanged();
}

ConfigItemWidget::Status ConfDefWidgetQKeySequence::status()
{
    Status status;
    status.icon = mStateButton;
    const QxtGlobalShortcut *const hotkey = shortcut();
    if (!hotkey || readValue<QKeySequence>().isEmpty())
        return status;
    if (!hotkey->isEnabled()) {
        status.text = tr("Disabled.");
    } else if (!hotkey->isValid()) {
        const Reason &reason = reasonOf(hotkey);
        status.text = tr(reason.words);
        if (reason.isWorthARetry) {
            status.actionText = tr("Try again");
            status.action = [this] { registerAgain(); };
        }
    } else {
        status.text = otherTriggerText(hotkey);
    }
    return status;
}

// Returns which keys the desktop has assigned instead of those of `hotkey`; empty if it has not.
QString ConfDefWidgetQKeySequence::otherTriggerText(const QxtGlobalShortcut *hotkey)
{
    const QString trigger = hotkey->property("trigger").toString();
    const QString keys = hotkey->shortcut().toString(QKeySequence::NativeText);
    // Desktops have their own forms for the same keys, such as "Press Ctrl+Alt+k".
    const bool isSame = (QLatin1Char(' ') + trigger)
                            .endsWith(QLatin1Char(' ') + keys, Qt::CaseInsensitive);
    return trigger.isEmpty() || isSame ? QString() : tr("Assigned by the desktop: %1").arg(trigger);
}

// Sets keys that the user has chosen. On desktops that ask the user, the text says what they do.
void ConfDefWidgetQKeySequence::registerKeys(QxtGlobalShortcut *hotkey,
                                             const QKeySequence &sequence)
{
    const QPointer<QxtGlobalShortcut> target(hotkey);
    constexpr const char *description = "description";
    const QVariant current = hotkey->property(description);
    if (current.isValid() && current.toString().isEmpty())
        hotkey->setProperty(description, translatedText());
    if (target) // its signals call the host
        hotkey->setShortcut(sequence);
}

void ConfDefWidgetQKeySequence::registerAgain()
{
    const QPointer<ConfDefWidgetQKeySequence> self(this);
    if (QxtGlobalShortcut *const hotkey = shortcut())
        registerKeys(hotkey, readValue<QKeySequence>());
    if (self)
        refreshState();
}

void ConfDefWidgetQKeySequence::showState(const QChar &glyph, const QString &color,
                                          const QString &toolTip)
{
    mStateButton->setText(glyph);
    mStateButton->setStyleSheet(
        QStringLiteral("QPushButton{  \nmargin:2px;\nborder:0px; font: 23pt QuorviIconfont;\n"
                       "color: rgb(%1);  \n}")
            .arg(color));
    mStateButton->setToolTip(toolTip);
    // A screen reader cannot read the glyph.
    mStateButton->setAccessibleName(toolTip);
}

void ConfDefWidgetQKeySequence::showNoState()
{
    mStateButton->setText(QString());
    mStateButton->setToolTip(QString());
    mStateButton->setAccessibleName(QString());
}

void ConfDefWidgetQKeySequence::setHotKeyAgain()
{
    const QxtGlobalShortcut *const hotkey = shortcut();
    if (!hotkey || hotkey->isValid())
        return;
    const QPointer<ConfDefWidgetQKeySequence> self(this);
    loadConf(); // sets nothing if the field shows the stored hotkey
    if (self && mTellsReasons && hotkey == shortcut() && !hotkey->isValid())
        registerAgain();
}

void ConfDefWidgetQKeySequence::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        mKeySequenceEdit->setAccessibleName(translatedText());
        refreshState();
    }
    ConfigItemWidget::changeEvent(event);
}

QxtGlobalShortcut *ConfDefWidgetQKeySequence::shortcut()
{
    auto *const current = mItem->properties.value(shortcutKey()).value<QxtGlobalShortcut *>();
    if (current != mShortcut)
        watchShortcut(current);
    return current;
}

void ConfDefWidgetQKeySequence::watchShortcut(QxtGlobalShortcut *shortcut)
{
    if (mShortcut)
        mShortcut->disconnect(this);
    mShortcut = shortcut;
    if (!shortcut)
        return;
    connect(shortcut, &QxtGlobalShortcut::enabledChanged, this,
            &ConfDefWidgetQKeySequence::refreshState);
    // By name: another implementation of the class may lack these signals.
    for (const char *signal : {SIGNAL(failureChanged()), SIGNAL(triggerChanged())}) {
        if (shortcut->metaObject()->indexOfSignal(signal + 1) >= 0)
            connect(shortcut, signal, this, SLOT(refreshState()));
    }
    connect(shortcut, &QObject::destroyed, this, &ConfDefWidgetQKeySequence::forgetShortcut);
}

void ConfDefWidgetQKeySequence::forgetShortcut(const QObject *destroyed)
{
    // Reading the property later would access the deleted object. Here it is still a QObject, so
    // the comparison as QObject * is safe.
    const auto entry = mItem->properties.find(shortcutKey());
    if (entry != mItem->properties.end() && entry->value<QObject *>() == destroyed)
        *entry = QVariant();
    refreshState();
}

} // namespace MtConf
