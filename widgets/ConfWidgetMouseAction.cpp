#include <MaltoConfiguration/widgets/ConfWidgetMouseAction.h>

#include "CheckedFlags_p.h"
#include "EditorTexts_p.h"
#include "Glyphs_p.h"
#include "RoundedPopup_p.h"

#include <MaltoConfiguration/widgets/ComboboxDisableWheel.h>
#include <MaltoConfiguration/widgets/MultiSelectComboBox.h>

#include <QIconfont/QIconfont.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
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
    Qt::KeyboardModifier flag;
};

constexpr Modifier sModifiers[] = {{"⇧", Qt::ShiftModifier},
                                   {"⌘", Qt::ControlModifier},
                                   {"⌥", Qt::AltModifier},
                                   {"⌃", Qt::MetaModifier}};

/// Returns `value` with both bits of a click and its double click if it has one of them: a double
/// click starts with a click, so the two are in conflict.
int conflictKey(int value)
{
    for (const int clickAndDoubleClick : {3, 12, 48}) {
        if (value & clickAndDoubleClick)
            value |= clickAndDoubleClick;
    }
    return value;
}

} // namespace

QString mouseActionText(int value)
{
    const auto action = std::find_if(
        std::begin(sActions), std::end(sActions),
        [value](const MouseAction &listed) { return listed.value == (value & sActionBits); });
    if (action == std::end(sActions))
        return QString();
    QString symbols;
    for (const Modifier &modifier : sModifiers) {
        if (value & modifier.flag)
            symbols += QString::fromUtf8(modifier.symbol);
    }
    const QString text = ConfWidgetMouseAction::tr(action->text);
    return symbols.isEmpty() ? text : symbols + QLatin1String(" + ") + text;
}

QList<ConfWidgetMouseAction *> ConfWidgetMouseAction::sConflictList;

ConfWidgetMouseAction::ConfWidgetMouseAction(ConfItem *item, QWidget *parent, int kind)
    : ConfigItemWidget(item, parent), mModifierBox(new MultiSelectComboBox(this)),
      mActionBox(new ComboboxDisableWheel(this)), mStateLabel(new QLabel(this))
{
    for (const Modifier &modifier : sModifiers)
        mModifierBox->addItem(QString::fromUtf8(modifier.symbol), static_cast<int>(modifier.flag));
    // Style sheets apply to the rows of this view, not to those of the default view.
    mActionBox->setView(new QListView(mActionBox));
    new RoundedPopup(mActionBox);
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
    if (self)
        refreshLabelState();
}

void ConfWidgetMouseAction::onCurrentIndexChanged()
{
    const int value = mActionBox->currentData().toInt() | checkedFlags(mModifierBox);
    mCurrentValue = value;
    // A left click without modifiers would intercept every click in the host. It is shown as an
    // error and the stored value is kept.
    if (value == sLeftClick || storeValue(value))
        refreshLabelState();
    // Update the other editors even if a callback has deleted this one.
    refreshAllConflictState();
}

void ConfWidgetMouseAction::refreshConflictState()
{
    // The context "QObject" is that of the items' labels, one of which the conflict text contains.
    if (mCurrentValue == sLeftClick) {
        showState(QStringLiteral("ErrorIcon"), sErrorGlyph,
                  QObject::tr("Cannot set left-click separately"));
    } else if ((mCurrentValue & sActionBits) == 0) {
        showState(QStringLiteral("NoneIcon"), sDisabledGlyph, QObject::tr("No set"));
    } else if (const ConfWidgetMouseAction *other = firstConflict()) {
        showState(QStringLiteral("WarningIcon"), sWarningGlyph,
                  QObject::tr("Conflict with %1").arg(other->translatedText()));
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
    else if (const ConfWidgetMouseAction *other = firstConflict())
        status.text = QObject::tr("Conflict with %1").arg(other->translatedText());
    return status;
}

const ConfWidgetMouseAction *ConfWidgetMouseAction::firstConflict() const
{
    const int key = conflictKey(mCurrentValue);
    for (const ConfWidgetMouseAction *other : std::as_const(sConflictList)) {
        if (other == this)
            continue;
        // The stored value counts: the controls may show a left click that is not stored.
        const int otherKey = conflictKey(other->readValue<int>());
        if ((otherKey & sActionBits) != 0 && otherKey == key)
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
    if (mStateLabel->text() == glyph)
        return;
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
        for (const MouseAction &action : sActions) {
            const int index = mActionBox->findData(action.value, Qt::UserRole);
            if (index >= 0)
                mActionBox->setItemText(index, tr(action.text));
        }
    }
    ConfigItemWidget::changeEvent(event);
}

} // namespace MtConf
