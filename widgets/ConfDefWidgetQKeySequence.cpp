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

} // namespace

ConfDefWidgetQKeySequence::ConfDefWidgetQKeySequence(ConfItem *item, QWidget *parent)
    : ConfigItemWidget(item, parent),
      mKeySequenceEdit(new KeySequenceEdit(readValue<QKeySequence>(), this)),
      mStateButton(new QPushButton(this))
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
    QxtGlobalShortcut *const hotkey = shortcut();
    // A hotkey without a global shortcut has no effect, so it is not stored. A sequence that the
    // global shortcut already has was set by the host, which decides whether to store it.
    if (!hotkey || hotkey->shortcut() == sequence)
        return;
    const QPointer<ConfDefWidgetQKeySequence> self(this);
    hotkey->setShortcut(sequence);
    // Both calls run code of the host, which may delete the editor.
    if (!self || !storeValue(sequence))
        return;
    refreshState();
    refreshLabelState();
}

void ConfDefWidgetQKeySequence::refreshState()
{
    if (!mItem->properties.contains(shortcutKey()))
        return;
    const QString red = QStringLiteral("245, 108, 108");
    const QxtGlobalShortcut *const hotkey = shortcut();
    bool canTryAgain = false;
    if (readValue<QKeySequence>().isEmpty()) {
        showState(sWarningGlyph, red, tr("Not set"));
    } else if (!hotkey) {
        showNoState();
    } else if (!hotkey->isEnabled()) {
        showState(sDisabledGlyph, QStringLiteral("120, 129, 130"), tr("Disabled."));
    } else if (hotkey->isValid()) {
        showState(sCorrectGlyph, QStringLiteral("103, 194, 58"), tr("Setup success."));
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
        status.text = tr("Another program may use this hotkey.");
        status.actionText = tr("Try again");
        status.action = [this] { registerAgain(); };
    }
    return status;
}

void ConfDefWidgetQKeySequence::registerAgain()
{
    const QPointer<ConfDefWidgetQKeySequence> self(this);
    if (QxtGlobalShortcut *const hotkey = shortcut())
        hotkey->setShortcut(readValue<QKeySequence>());
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
    if (hotkey && !hotkey->isValid())
        loadConf();
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
