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
    // operator[] makes the entry where there is none: with it an item without a global shortcut
    // shows on its button that no hotkey is set.
    watchShortcut(mItem->properties[shortcutKey()].value<QxtGlobalShortcut *>());
    layout->addWidget(mKeySequenceEdit);
    layout->addWidget(mStateButton);
    // A style sheet's min-height lets buttons shrink, which here would cut the glyph.
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    mKeySequenceEdit->clearByDeleteKeys = sFullKeyboardAccess;
    mKeySequenceEdit->setAccessibleName(translatedText());
    refreshState();
}

ConfDefWidgetQKeySequence::~ConfDefWidgetQKeySequence()
{
    // A child of this widget goes with it, but later, when nothing of the editor is left.
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
    // A hotkey without a global shortcut would never work, so it is not stored either. And what the
    // global shortcut holds already came from the host, which then stores it where it wants to.
    if (!hotkey || hotkey->shortcut() == sequence)
        return;
    const QPointer<ConfDefWidgetQKeySequence> self(this);
    hotkey->setShortcut(sequence);
    // The host hears of both and may delete the editor.
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
    // The glyph says nothing to a screen reader.
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

void ConfDefWidgetQKeySequence::forgetShortcut(const QObject *gone)
{
    // Reading the entry later would touch the deleted object. Only a pointer to an object that is
    // still there may be looked at: here this one is, as far as a QObject.
    const auto entry = mItem->properties.find(shortcutKey());
    if (entry != mItem->properties.end() && entry->value<QObject *>() == gone)
        *entry = QVariant();
    refreshState();
}

} // namespace MtConf
