#include "InputConflicts_p.h"

#include "MaltoConfiguration/widgets/HostCode_p.h"
#include "MaltoConfiguration/window/PageBuilder_p.h"
#include "MaltoConfiguration/window/history/HotkeyItems_p.h"

#include <MaltoConfiguration/manage/MtConfManage.h>
#include <MaltoConfiguration/store/ConfOperation.h>
#include <MaltoConfiguration/widgets/ConfDefWidgetQKeySequence.h>
#include <MaltoConfiguration/widgets/ConfWidgetMouseAction.h>
#include <MaltoConfiguration/widgets/KeySequenceEdit.h>
#include <MaltoConfiguration/window/ConfigurationWindow.h>

#include <QComboBox>
#include <QScrollArea>
#include <QSet>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace MtConf {

namespace {

constexpr double sGap = 6; // pixels at 96 dots per inch

using Answer = InputOffer::Answer;

/// Returns the registry that the host has created, or else one for `owner`.
InputRegistry *registryOf(MtConfManage *manager, QObject *owner)
{
    auto *registry = manager->findChild<InputRegistry *>(QString(), Qt::FindDirectChildrenOnly);
    if (!registry) {
        registry = new InputRegistry(manager);
        registry->setParent(owner);
    }
    return registry;
}

/// Returns the control of a row that gets the focus back.
QWidget *controlOf(const PageRow &row)
{
    if (!row.editor)
        return nullptr;
    if (auto *const edit = row.editor->findChild<KeySequenceEdit *>())
        return edit;
    const QList<QComboBox *> boxes = row.editor->findChildren<QComboBox *>();
    return boxes.isEmpty() ? nullptr : boxes.last(); // the actions, behind the modifiers
}

/// Gives the settings of `uses` the value `value`. Returns their keys. Callbacks may destroy the
/// window.
QStringList changeInputs(const QList<InputUse> &uses, const InputValue &value)
{
    QStringList keys;
    for (const InputUse &use : uses) {
        const bool isRemoved = !ConfStorage::instance()->mConfValues.contains(use.key);
        if (isRemoved || storedInput(use.key, value) == value)
            continue;
        storeInput(use.key, value);
        keys.append(use.key);
    }
    return keys;
}

} // namespace

InputConflicts::InputConflicts(ConfigurationWindow *window)
    : WindowFeature(window), mRegistry(registryOf(manager(), this))
{
    connect(mRegistry, &InputRegistry::usesChanged, this, &InputConflicts::onUsesChanged);
}

void InputConflicts::rowAdded(const PageRow &row)
{
    if (!row.editor)
        return;
    if (auto *const gestures = qobject_cast<ConfWidgetMouseAction *>(row.editor)) {
        watchGestures(gestures, row.key);
    } else if (auto *const edit = row.editor->findChild<KeySequenceEdit *>()) {
        watchKeys(edit, row.key);
        showNote(row);
    }
}

void InputConflicts::watchKeys(KeySequenceEdit *edit, const QString &key)
{
    const auto former = edit->keySequenceFilter; // the host's, or the editor's
    const QPointer<InputConflicts> self(this);
    edit->keySequenceFilter = [former, self, key](KeySequenceEdit *field,
                                                  const QKeySequence &keys) {
        const QPointer<KeySequenceEdit> alive(field);
        const bool isAccepted = !former || former(field, keys);
        if (!isAccepted && self)
            self->withdrawOffer();
        if (!isAccepted || !alive)
            return false;
        // The field refuses simple keys itself, and says so.
        return !self || !alive->accepts(keys) || self->mayTake(key, keys);
    };
    connect(edit, &KeySequenceEdit::sigKeySequenceChanged, this, [this, key] {
        if (mOffer && mQuestion.key == key && !mIsTaking)
            closeOffer();
    });
}

void InputConflicts::watchGestures(ConfWidgetMouseAction *editor, const QString &key)
{
    const QPointer<InputConflicts> self(this);
    const auto former = editor->gestureFilter;
    editor->gestureFilter = [former, self, key](int gesture) {
        if (former && !former(gesture))
            return false;
        return !self || self->mIsTaking || self->mayTake(key, gesture);
    };
    editor->conflictName = [self, key](int gesture) {
        return self ? self->conflictName(key, gesture) : QString();
    };
    editor->refreshConflictState();
}

QString InputConflicts::conflictName(const QString &key, int gesture) const
{
    // The question says it already. Only in the modern look no icon would say that all is well.
    const bool isAsked = isModern() && mOffer && mQuestion.key == key;
    return mRegistry && !isAsked ? namesOfUses(mRegistry->conflictsOf(key, gesture)) : QString();
}

/// Returns whether `wanted` is free. If it is not, asks what to do.
bool InputConflicts::mayTake(const QString &key, const InputValue &wanted)
{
    if (!mRegistry)
        return true;
    if (mOffer && mQuestion.key == key)
        closeOffer(); // the controls show the new choice
    else
        withdrawOffer();
    const QList<InputUse> uses = conflictsWith(*mRegistry, key, wanted);
    const PageRow row = rowWith(key);
    if (uses.isEmpty() || !row.editor || !row.frame)
        return true;
    mQuestion = {key, wanted, storedInput(key, wanted), uses};
    ask(row);
    return false;
}

void InputConflicts::ask(const PageRow &row)
{
    mOffer = new InputOffer(scaled(sGap), row.frame);
    dress(mOffer->label());
    connect(mOffer, &InputOffer::answered, this, &InputConflicts::onAnswered);
    builder()->addBelow(row, mOffer);
    if (QWidget *const control = controlOf(row))
        mOffer->followInTabOrder(control);
    const QPointer<InputConflicts> self(this);
    showQuestion();
    if (!self || !mOffer) // a validator has shown another page, or destroyed the window
        return;
    mOffer->show();
    // Its place is known after the next layout.
    QTimer::singleShot(0, mOffer, [this] { scrollArea()->ensureWidgetVisible(mOffer); });
}

/// Shows who uses the value now, and what can be done about it.
void InputConflicts::showQuestion()
{
    const QPointer<InputConflicts> self(this);
    const HostCodeScope scope(hostCode());
    const bool canReplace = canChangeOthers(emptyInput(mQuestion.wanted));
    const bool canSwap = self && isWorthASwap() && canChangeOthers(mQuestion.former);
    if (!self || !mOffer)
        return;
    mOffer->setOffered(Answer::Replace, canReplace);
    mOffer->setOffered(Answer::Swap, canSwap);
    mOffer->setText(
        tr("%1 is used by: %2").arg(inputInWords(mQuestion.wanted), namesOfUses(mQuestion.uses)));
}

/// Returns whether the only other one could use the former value, and the swap would leave no
/// conflict.
bool InputConflicts::isWorthASwap() const
{
    if (!mRegistry || mQuestion.uses.size() != 1)
        return false;
    const QString other = mQuestion.uses.first().key;
    const InputSetting given{mQuestion.former, mRegistry->isGlobal(other)};
    const InputSetting taken{mQuestion.wanted, mRegistry->isGlobal(mQuestion.key)};
    const QList<InputUse> uses = conflictsWith(*mRegistry, other, mQuestion.former);
    const auto isThisRow = [this](const InputUse &use) { return use.key == mQuestion.key; };
    return hasEffect(given) && !doConflict(given, taken)
           && std::all_of(uses.cbegin(), uses.cend(), isThisRow);
}

/// Returns whether all who use the value are settings that accept `value`.
bool InputConflicts::canChangeOthers(const InputValue &value) const
{
    const QPointer<MtConfManage> host(manager());
    const QList<InputUse> uses = mQuestion.uses;
    return std::all_of(uses.cbegin(), uses.cend(), [&](const InputUse &use) {
        if (use.key.isEmpty() || ConfStorage::instance()->isLocked(use.key) || !host)
            return false;
        const auto &items = host->items;
        const auto item = std::find_if(items.cbegin(), items.cend(), [&](const ConfItem &declared) {
            return declared.getFullName() == use.key;
        });
        if (item == items.cend())
            return false;
        const auto validator = item->validator; // a copy: the host may replace it in the call
        return !validator || validator(inputToJson(value)).isEmpty();
    });
}

void InputConflicts::closeOffer()
{
    if (!mOffer)
        return;
    mOffer->hide();
    mOffer->deleteLater(); // one of its buttons may be handling a click
    mOffer = nullptr;
}

/// Closes the offer without an answer: the row shows what is stored.
void InputConflicts::withdrawOffer()
{
    if (!mOffer)
        return;
    const PageRow row = rowWith(mQuestion.key);
    closeOffer();
    if (!row.editor)
        return;
    row.editor->refresh();
    if (auto *const gestures = qobject_cast<ConfWidgetMouseAction *>(row.editor))
        gestures->refreshConflictState();
}

void InputConflicts::onAnswered(Answer answer)
{
    const HostCodeScope scope(hostCode());
    const QPointer<InputConflicts> self(this);
    const Question question = mQuestion;
    const PageRow row = rowWith(question.key);
    if (QWidget *const control = controlOf(row))
        control->setFocus();
    if (answer == Answer::Cancel || !row.editor) {
        withdrawOffer();
        return;
    }
    const QPointer<MtConfManage> host(manager());
    QStringList changed;
    {
        // One step of the history.
        const ConfOperation operation(ConfStorage::instance(), ConfChange::Cause::Edited);
        const bool isTaken = take(row);
        if (isTaken && answer != Answer::KeepBoth)
            changed = changeInputs(question.uses, answer == Answer::Swap
                                                      ? question.former
                                                      : emptyInput(question.wanted));
    }
    registerHotkeys(host, changed);
    if (!self)
        return;
    closeOffer();
    refreshRows(changed);
}

/// Stores the chosen value through its editor. Returns whether the store has it now.
bool InputConflicts::take(const PageRow &row)
{
    const QPointer<InputConflicts> self(this);
    const Question question = mQuestion;
    mIsTaking = true;
    if (auto *const gestures = qobject_cast<ConfWidgetMouseAction *>(row.editor))
        gestures->onCurrentIndexChanged(); // stores what the controls show
    else if (auto *const edit = row.editor->findChild<KeySequenceEdit *>())
        edit->setKeySequence(std::get<QKeySequence>(question.wanted));
    if (self)
        mIsTaking = false;
    return storedInput(question.key, question.wanted) == question.wanted;
}

void InputConflicts::refreshRows(const QStringList &keys)
{
    const QPointer<InputConflicts> self(this);
    const QList<PageRow> shown = rows();
    for (const PageRow &row : shown) {
        if (!self || !row.editor || !keys.contains(row.key))
            continue;
        row.editor->refresh();
        if (auto *const hotkey = qobject_cast<ConfDefWidgetQKeySequence *>(row.editor))
            hotkey->refreshState(); // its hotkey is registered already
    }
}

void InputConflicts::onUsesChanged(const QStringList &keys)
{
    const HostCodeScope scope(hostCode());
    const QPointer<InputConflicts> self(this);
    reconsider();
    const QSet<QString> changed(keys.cbegin(), keys.cend());
    const QList<PageRow> shown = self ? rows() : QList<PageRow>();
    for (const PageRow &row : shown) {
        if (!self || !row.editor || !changed.contains(row.key))
            continue;
        if (auto *const gestures = qobject_cast<ConfWidgetMouseAction *>(row.editor))
            gestures->refreshConflictState();
        else
            showNote(row);
    }
}

/// Asks again if others use the chosen value now. Withdraws the question if nobody does, or if the
/// setting has another value than before.
void InputConflicts::reconsider()
{
    if (!mOffer || !mRegistry || mIsTaking)
        return;
    mQuestion.uses = conflictsWith(*mRegistry, mQuestion.key, mQuestion.wanted);
    if (mQuestion.uses.isEmpty()
        || storedInput(mQuestion.key, mQuestion.wanted) != mQuestion.former)
        withdrawOffer();
    else
        showQuestion();
}

/// Gives a text the look of a warning. The classic sheet has one for messages under a row.
void InputConflicts::dress(QLabel *text) const
{
    if (isModern())
        text->setProperty("class", QStringLiteral("RowWarning"));
    else
        text->setProperty("ConfigItemMessage", QStringLiteral("1"));
}

void InputConflicts::showNote(const PageRow &row)
{
    QPointer<QLabel> &note = mNotes[row.key];
    const QString text = noteText(row.key);
    if (!note && !text.isEmpty() && row.frame) {
        note = new QLabel(row.frame);
        dress(note);
        note->setObjectName(QStringLiteral("InputNote"));
        note->setTextFormat(Qt::PlainText);
        note->setWordWrap(true);
        builder()->addUnderCaption(row, note);
    }
    if (!note || note->text() == text)
        return;
    note->setText(text);
    note->setVisible(!text.isEmpty());
}

/// Returns what is to be said about the stored keys of a row; empty if all is well.
QString InputConflicts::noteText(const QString &key) const
{
    if (!mRegistry)
        return QString();
    QStringList lines;
    const QList<InputUse> uses = mRegistry->conflictsOf(key);
    if (!uses.isEmpty())
        lines.append(tr("Also used by: %1").arg(namesOfUses(uses)));
    const InputValue keys = storedInput(key, QKeySequence());
    if (isNeededForTyping(std::get<QKeySequence>(keys), mRegistry->isGlobal(key)))
        lines.append(tr("%1 is needed for typing and editing.").arg(inputInWords(keys)));
    return lines.join(QLatin1Char('\n'));
}

PageRow InputConflicts::rowWith(const QString &key) const
{
    const auto found = std::find_if(rows().cbegin(), rows().cend(),
                                    [&key](const PageRow &row) { return row.key == key; });
    return found != rows().cend() ? *found : PageRow();
}

void InputConflicts::pageCleared()
{
    mNotes.clear();
    mOffer = nullptr; // the page deletes it
}

void InputConflicts::retranslate()
{
    for (const PageRow &row : rows()) {
        if (auto *const gestures = qobject_cast<ConfWidgetMouseAction *>(row.editor))
            gestures->refreshConflictState();
        else if (mNotes.contains(row.key))
            showNote(row);
    }
    if (!mOffer)
        return;
    mOffer->retranslate();
    reconsider(); // the names, too
}

} // namespace MtConf
