#include <MaltoConfiguration/widgets/ConfWidgetMouseAction.h>

#include "CheckedFlags_p.h"
#include "EditorTexts_p.h"
#include "GestureConflict_p.h"
#include "Glyphs_p.h"
#include "RoundedPopup_p.h"

#include <MaltoConfiguration/widgets/ComboboxDisableWheel.h>
#include <MaltoConfiguration/widgets/MultiSelectComboBox.h>

#include <QIconfont/QIconfont.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QOperatingSystemVersion>
#include <QStyle>

#include <algorithm>
#include <iterator>
#include <utility>

namespace MtConf {

namespace {

constexpr int sActionBits = 0xffff;
constexpr int sLeftClick = 1;

struct MouseAction
{
    int kind;
    int value;
    const char *text;
};

constexpr int sAnyKind = -1;
constexpr int sNoKind = -1; // offers no action but "None"

constexpr MouseAction sActions[] = {
    {sAnyKind, 0, QT_TRANSLATE_NOOP("MtConf::ConfWidgetMouseAction", "None")},
    {1, sLeftClick, QT_TRANSLATE_NOOP("MtConf::ConfWidgetMouseAction", "Left Click")},
    {1, 2, QT_TRANSLATE_NOOP("MtConf::ConfWidgetMouseAction", "Left Double Click")},
    {1, 4, QT_TRANSLATE_NOOP("MtConf::ConfWidgetMouseAction", "Right Click")},
    {1, 8, QT_TRANSLATE_NOOP("MtConf::ConfWidgetMouseAction", "Right Double Click")},
    {1, 16, QT_TRANSLATE_NOOP("MtConf::ConfWidgetMouseAction", "Middle Click")},
    {1, 32, QT_TRANSLATE_NOOP("MtConf::ConfWidgetMouseAction", "Middle Double Click")},
    {0, 64, QT_TRANSLATE_NOOP("MtConf::ConfWidgetMouseAction", "Wheel")},
    {2, 128, QT_TRANSLATE_NOOP("MtConf::ConfWidgetMouseAction", "Left Drag")},
    {2, 256, QT_TRANSLATE_NOOP("MtConf::ConfWidgetMouseAction", "Right Drag")},
    {2, 512, QT_TRANSLATE_NOOP("MtConf::ConfWidgetMouseAction", "Middle Drag")},
};

struct Modifier
{
    const char *symbol;
    const char *name; // outside of macOS
    Qt::KeyboardModifier flag;
};

constexpr Modifier sModifiers[] = {
    {"⇧", QT_TRANSLATE_NOOP("MtConf::ConfWidgetMouseAction", "Shift"), Qt::ShiftModifier},
    {"⌘", QT_TRANSLATE_NOOP("MtConf::ConfWidgetMouseAction", "Ctrl"), Qt::ControlModifier},
    {"⌥", QT_TRANSLATE_NOOP("MtConf::ConfWidgetMouseAction", "Alt"), Qt::AltModifier},
    {"⌃", QT_TRANSLATE_NOOP("MtConf::ConfWidgetMouseAction", "Super"), Qt::MetaModifier}};

bool areModifiersNamed()
{
    return ConfWidgetMouseAction::sNamesModifiers
           && QOperatingSystemVersion::currentType() != QOperatingSystemVersion::MacOS;
}

QString modifierText(const Modifier &modifier)
{
    return areModifiersNamed() ? ConfWidgetMouseAction::tr(modifier.name)
                               : QString::fromUtf8(modifier.symbol);
}

} // namespace

int gestureConflictKey(int gesture)
{
    for (const int clickAndDoubleClick : {3, 12, 48}) {
        if (gesture & clickAndDoubleClick)
            gesture |= clickAndDoubleClick;
    }
    return gesture & sActionBits ? gesture : 0;
}

QString mouseActionText(int value)
{
    const auto action = std::find_if(
        std::begin(sActions), std::end(sActions),
        [value](const MouseAction &listed) { return listed.value == (value & sActionBits); });
    if (action == std::end(sActions))
        return QString();
    const QString plus = QStringLiteral(" + ");
    QStringList modifiers;
    for (const Modifier &modifier : sModifiers) {
        if (value & static_cast<int>(modifier.flag))
            modifiers.append(modifierText(modifier));
    }
    const QString text = ConfWidgetMouseAction::tr(action->text);
    return modifiers.isEmpty()
               ? text
               : modifiers.join(areModifiersNamed() ? plus : QString()) + plus + text;
}

QList<ConfWidgetMouseAction *> ConfWidgetMouseAction::sConflictList;
bool ConfWidgetMouseAction::sTellsBothSides = false;
bool ConfWidgetMouseAction::sNamesModifiers = false;

ConfWidgetMouseAction::ConfWidgetMouseAction(ConfItem *item, QWidget *parent, int kind)
    : ConfigItemWidget(item, parent), mModifierBox(new MultiSelectComboBox(this)),
      mActionBox(new ComboboxDisableWheel(this)), mStateLabel(new QLabel(this))
{
    for (const Modifier &modifier : sModifiers)
        mModifierBox->addItem(modifierText(modifier), static_cast<int>(modifier.flag));
    RoundedPopup::addList(mActionBox);
    addActions(kind);
    auto *plus = new QLabel(QStringLiteral("+"), this);
    plus->setAlignment(Qt::AlignCenter);
    mStateLabel->setProperty("class", QStringLiteral("CorrectIcon"));
    mStateLabel->setText(sCorrectGlyph);
    // The style sheet of the label uses the icon font, which the first call of QIconfont loads.
    QIconfont::Icon(sCorrectGlyph, Qt::black, 1, QMargins());

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget *widget : {static_cast<QWidget *>(mModifierBox), static_cast<QWidget *>(plus),
                            static_cast<QWidget *>(mActionBox)}) {
        widget->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
        layout->addWidget(widget);
    }
    layout->addWidget(mStateLabel);
    mModifierBox->opensByKeyboard = sFullKeyboardAccess;
    mModifierBox->setAccessibleName(translatedText());
    mActionBox->setAccessibleName(translatedText());

    // Connect after the first load, so that it does not store the value again.
    loadConf();
    connect(mActionBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &ConfWidgetMouseAction::onCurrentIndexChanged);
    connect(mModifierBox, &MultiSelectComboBox::selectionChanged, this,
            &ConfWidgetMouseAction::onCurrentIndexChanged);
    sConflictList.append(this);
    if (sTellsBothSides)
        refreshAllConflictState();
    else
        refreshConflictState();
}

ConfWidgetMouseAction::ConfWidgetMouseAction(ConfItem *item, QWidget *parent)
    : ConfWidgetMouseAction(item, parent,
                            item->properties.value(QStringLiteral("Kind"), sNoKind).toInt())
{
}

ConfWidgetMouseAction::~ConfWidgetMouseAction()
{
    sConflictList.removeAll(this);
    if (sTellsBothSides)
        refreshAllConflictState();
}

ConfigItemWidget *ConfWidgetMouseAction::CreatConfWidget(ConfItem *item, QWidget *parent)
{
    return create<ConfWidgetMouseAction>(item, parent);
}

void ConfWidgetMouseAction::addActions(int kind)
{
    for (const MouseAction &action : sActions) {
        if (action.kind == sAnyKind || action.kind == kind)
            mActionBox->addItem(tr(action.text), action.value);
    }
}

void ConfWidgetMouseAction::loadConf()
{
    const int stored = readValue<int>();
    const bool wasLoading = std::exchange(mIsLoading, true);
    // Each change of a control stores what the controls show at that moment; the last one stores
    // the value read here. Each of them may run a callback that deletes the editor.
    const QPointer<ConfWidgetMouseAction> self(this);
    const QVector<bool> checks = containedFlags(mModifierBox, stored);
    for (int i = 0; self && i < checks.size(); ++i)
        mModifierBox->setItemChecked(i, checks.at(i));
    if (!self)
        return;
    mCurrentValue = stored;
    mActionBox->setCurrentIndex(mActionBox->findData(stored & sActionBits, Qt::UserRole));
    if (!self)
        return;
    mIsLoading = wasLoading;
    refreshLabelState();
}

void ConfWidgetMouseAction::onCurrentIndexChanged()
{
    const int value = mActionBox->currentData().toInt() | checkedFlags(mModifierBox);
    mCurrentValue = value;
    // A left click without modifiers would intercept every click in the host. It is shown as an
    // error and the stored value is kept.
    if (value == sLeftClick || (isAcceptedByFilter(value) && storeValue(value)))
        refreshLabelState();
    // Update the other editors even if a callback has deleted this one.
    refreshAllConflictState();
}

/// Returns false also if the filter has deleted the editor.
bool ConfWidgetMouseAction::isAcceptedByFilter(int gesture)
{
    // What is loaded was not chosen by the user.
    if (!gestureFilter || mIsLoading || gesture == readValue<int>())
        return true;
    const auto filter = gestureFilter; // a copy: the host may replace it in the call
    const Writing writing(this);
    return filter(gesture) && writing.hasEditor();
}

void ConfWidgetMouseAction::refreshConflictState()
{
    // The context "QObject" is that of the items' labels, one of which the conflict text contains.
    if (mCurrentValue == sLeftClick) {
        showState(QStringLiteral("ErrorIcon"), sErrorGlyph,
                  QObject::tr("Cannot set left-click separately"));
    } else if ((mCurrentValue & sActionBits) == 0) {
        showState(QStringLiteral("NoneIcon"), sDisabledGlyph, QObject::tr("No set"));
    } else if (const QString other = conflict(); !other.isEmpty()) {
        showState(QStringLiteral("WarningIcon"), sWarningGlyph,
                  QObject::tr("Conflict with %1").arg(other));
    } else {
        showState(QStringLiteral("CorrectIcon"), sCorrectGlyph, QString());
    }
    if (onStatusChanged)
        onStatusChanged();
}

ConfigItemWidget::Status ConfWidgetMouseAction::status()
{
    Status status;
    status.icon = mStateLabel;
    if (mCurrentValue == sLeftClick)
        status.text = QObject::tr("Cannot set left-click separately");
    else if ((mCurrentValue & sActionBits) == 0)
        return status;
    else if (const QString other = conflict(); !other.isEmpty())
        status.text = QObject::tr("Conflict with %1").arg(other);
    return status;
}

/// Returns the name of what is in conflict with the shown gesture; empty if nothing is.
QString ConfWidgetMouseAction::conflict() const
{
    if (conflictName)
        return conflictName(mCurrentValue);
    const ConfWidgetMouseAction *const other = firstConflict();
    return other ? other->translatedText() : QString();
}

const ConfWidgetMouseAction *ConfWidgetMouseAction::firstConflict() const
{
    const int key = gestureConflictKey(mCurrentValue);
    for (const ConfWidgetMouseAction *other : std::as_const(sConflictList)) {
        if (other == this)
            continue;
        // The stored value counts: the controls may show a left click that is not stored.
        if (key != 0 && gestureConflictKey(other->readValue<int>()) == key)
            return other;
    }
    return nullptr;
}

void ConfWidgetMouseAction::refreshAllConflictState()
{
    for (ConfWidgetMouseAction *widget : std::as_const(sConflictList))
        widget->refreshConflictState();
}

void ConfWidgetMouseAction::showState(const QString &styleClass, const QChar &glyph,
                                      const QString &toolTip)
{
    // Each state has its own glyph, so a label with the right glyph is not updated. If a conflict
    // changes to another item, the tool tip therefore still names the first one.
    if (mStateLabel->text() == glyph) {
        if (sTellsBothSides || conflictName)
            mStateLabel->setToolTip(toolTip);
        return;
    }
    mStateLabel->setProperty("class", styleClass);
    mStateLabel->setText(glyph);
    mStateLabel->setToolTip(toolTip);
    mStateLabel->style()->unpolish(mStateLabel);
    mStateLabel->style()->polish(mStateLabel);
}

void ConfWidgetMouseAction::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        mModifierBox->setAccessibleName(translatedText());
        mActionBox->setAccessibleName(translatedText());
        for (int i = 0; areModifiersNamed() && i < mModifierBox->count(); ++i)
            mModifierBox->setItemText(i, modifierText(sModifiers[i]));
        for (const MouseAction &action : sActions) {
            const int index = mActionBox->findData(action.value, Qt::UserRole);
            if (index >= 0)
                mActionBox->setItemText(index, tr(action.text));
        }
    }
    ConfigItemWidget::changeEvent(event);
}

} // namespace MtConf
