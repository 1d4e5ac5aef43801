#include <MaltoConfiguration/inputs/InputRegistry.h>

#include "ActionInputs_p.h"
#include "MaltoConfiguration/store/StoreObserver_p.h"
#include "MaltoConfiguration/widgets/GestureConflict_p.h"
#include "SettingInputs_p.h"

#include <MaltoConfiguration/manage/MtConfManage.h>
#include <MaltoConfiguration/widgets/ConfWidgetShortcut.h>

#include <QAction>
#include <QShortcut>

#include <algorithm>
#include <utility>

namespace MtConf {

namespace {

using Kind = SettingInputs::Kind;

/// Where a shortcut works: in all windows, or in some widgets.
struct Place
{
    bool isEverywhere = true;
    QVector<QPointer<QWidget>> widgets;
};

bool doOverlap(const Place &a, const Place &b)
{
    return a.isEverywhere || b.isEverywhere || ActionInputs::doOverlap(a.widgets, b.widgets);
}

Place placeOf(const ActionInputs::Input &input)
{
    return {input.context == Qt::ApplicationShortcut, input.places};
}

InputUse useAt(const Place &place)
{
    InputUse use;
    use.scope = place.isEverywhere ? InputScope::Program : InputScope::Window;
    if (!place.isEverywhere)
        use.widget = place.widgets.value(0);
    return use;
}

/// Returns what the user calls an action: its text without the marks of menus.
QString nameOf(const QObject *object)
{
    QString name;
    if (const auto *action = qobject_cast<const QAction *>(object))
        name = action->iconText();
    else if (const auto *shortcut = qobject_cast<const QShortcut *>(object))
        name = shortcut->whatsThis();
    while (name.endsWith(QLatin1Char('.')) || name.endsWith(QChar(0x2026)))
        name.chop(1);
    return name.isEmpty() ? InputRegistry::tr("another shortcut of this program") : name;
}

/// The property is that of `addConfShortcut`, also if the host has adjusted the editor.
bool isShortcutOfProgram(const ConfItem &item)
{
    if (item.properties.contains(QStringLiteral("Malto.InProgram")))
        return true;
    using Factory = ConfigItemWidget *(*)(ConfItem *, QWidget *);
    const Factory *const factory = item.widgetCreator.target<Factory>();
    return factory && *factory == ConfWidgetShortcut::CreatConfWidget;
}

bool isGesture(const ConfItem &item)
{
    return item.valueType == ConfValue::TyInt32 && item.properties.contains(QStringLiteral("Kind"));
}

template<class T> T storedValue(const QString &key, ConfValue::ConfType type)
{
    const ConfStorage *const store = ConfStorage::instance();
    const auto value = store->mConfValues.constFind(key);
    return value != store->mConfValues.constEnd() && value->mType == type ? value->get<T>() : T();
}

} // namespace

/// What the registry knows. Its functions read what has changed since they were called last.
class InputRegistry::Private
{
public:
    Private(InputRegistry *registry, MtConfManage *manager) : mRegistry(registry), mManager(manager)
    {
        observe();
        QObject::connect(&mActions, &ActionInputs::changed, registry, [this] { update(); });
    }

    void update();
    const SettingInputs &settings() const { return mSettings; }
    ActionInputs *actions() { return &mActions; }
    QList<InputUse> usesOf(const QStringList &keys) const;
    /// Returns who can meet `keys` at `place`, without the setting `except`.
    QList<InputUse> usesOf(const InputKeys &keys, const Place &place, const QString &except) const;
    Place placeOfSetting(const QString &key) const;

private:
    void observe();
    void onChange(const QString &key);
    bool hasLostItems() const;
    void readItem(const ConfItem &item, int index);
    void readSetting(const QString &key, SettingInputs::Input input);
    void readActions();
    void noteActions();
    void noteSetting(const QString &key);
    void queueSignal();
    void emitSignal();
    const ConfItem *itemOf(const QString &key) const;
    InputUse useOf(const QString &key) const;

    InputRegistry *const mRegistry;
    const QPointer<MtConfManage> mManager;
    std::unique_ptr<StoreObserver> mObserver;
    SettingInputs mSettings;
    int mReadItems = 0; // how many items of the manager have been read
    QString mLastKey;   // of the last one that has been read

    ActionInputs mActions;
    QVector<ActionInputs::Input> mReadActions;
    QHash<int, QVector<int>> mActionsByChord; // indexes of mReadActions
    QHash<QString, int> mBoundActions;        // the same, by the key of the setting

    // What usesChanged() has not told yet.
    QSet<QString> mChangedKeys;
    QSet<int> mChangedChords;
    QSet<int> mChangedGestures;
    bool mIsSignalQueued = false;
};

void InputRegistry::Private::observe()
{
    mObserver = std::make_unique<StoreObserver>(
        ConfStorage::instance(), [this](const ConfChange &change) { onChange(change.key); });
}

void InputRegistry::Private::onChange(const QString &key)
{
    if (mSettings.contains(key))
        readSetting(key, mSettings.input(key));
    else if (mManager && (mManager->items.size() > mReadItems || hasLostItems()))
        queueSignal(); // a new declaration, which update() reads
}

/// Reads what no observer tells: declarations, actions, and that the store was cleared.
void InputRegistry::Private::update()
{
    if (!mManager) { // destroyed, and the registry is a child of another object
        mSettings.clear();
        return;
    }
    const int count = static_cast<int>(mManager->items.size());
    if (!mObserver->isActive() || hasLostItems()) {
        const QStringList keys = mSettings.keys();
        for (const QString &key : keys)
            noteSetting(key);
        mSettings.clear();
        mReadItems = 0;
        mReadActions.clear();
        if (!mObserver->isActive())
            observe();
    }
    if (mReadItems < count) {
        mReadActions.clear();
        mActions.readAgain(); // one of them may belong to a new setting
    }
    for (; mReadItems < count; ++mReadItems) {
        const ConfItem &item = std::as_const(mManager->items).at(mReadItems);
        readItem(item, mReadItems);
        mLastKey = item.getFullName();
    }
    readActions();
}

/// Returns whether the host has removed items, also if it has declared as many others since.
bool InputRegistry::Private::hasLostItems() const
{
    const auto &items = std::as_const(mManager->items);
    return items.size() < mReadItems
           || (mReadItems > 0 && items.at(mReadItems - 1).getFullName() != mLastKey);
}

void InputRegistry::Private::readItem(const ConfItem &item, int index)
{
    SettingInputs::Input input;
    input.index = index;
    if (item.valueType == ConfValue::TyQKeySequence)
        input.kind = isShortcutOfProgram(item) ? Kind::Shortcut : Kind::Hotkey;
    else if (isGesture(item))
        input.kind = Kind::Gesture;
    else
        return;
    const QString key = item.getFullName();
    if (!mSettings.contains(key))
        readSetting(key, input);
}

void InputRegistry::Private::readSetting(const QString &key, SettingInputs::Input input)
{
    noteSetting(key);
    if (input.kind == Kind::Gesture) {
        input.gesture = gestureConflictKey(storedValue<int>(key, ConfValue::TyInt32));
    } else {
        input.keys.isGlobal = input.kind == Kind::Hotkey;
        input.keys.chords = chordsOf(storedValue<QKeySequence>(key, ConfValue::TyQKeySequence));
    }
    mSettings.set(key, input);
    noteSetting(key);
}

void InputRegistry::Private::readActions()
{
    const QVector<ActionInputs::Input> &now = mActions.inputs();
    if (now == mReadActions)
        return;
    noteActions();
    mReadActions = now;
    mActionsByChord.clear();
    mBoundActions.clear();
    for (int i = 0; i < mReadActions.size(); ++i) {
        const ActionInputs::Input &input = mReadActions.at(i);
        if (mSettings.contains(input.setting)) {
            mBoundActions.insert(input.setting, i);
            continue;
        }
        for (const InputChords &chords : input.sequences) {
            for (const int chord : chords) {
                QVector<int> &indexes = mActionsByChord[chord];
                if (!indexes.contains(i))
                    indexes.append(i);
            }
        }
    }
    noteActions();
}

void InputRegistry::Private::noteActions()
{
    for (auto it = mActionsByChord.cbegin(); it != mActionsByChord.cend(); ++it)
        mChangedChords.insert(it.key());
    for (auto it = mBoundActions.cbegin(); it != mBoundActions.cend(); ++it)
        noteSetting(it.key());
    queueSignal();
}

void InputRegistry::Private::noteSetting(const QString &key)
{
    const SettingInputs::Input input = mSettings.input(key);
    mChangedKeys.insert(key);
    for (const int chord : input.keys.chords)
        mChangedChords.insert(chord);
    if (input.gesture)
        mChangedGestures.insert(input.gesture);
    queueSignal();
}

void InputRegistry::Private::queueSignal()
{
    if (!std::exchange(mIsSignalQueued, true))
        QMetaObject::invokeMethod(
            mRegistry, [this] { emitSignal(); }, Qt::QueuedConnection);
}

void InputRegistry::Private::emitSignal()
{
    update();
    mIsSignalQueued = false;
    QSet<QString> keys = std::exchange(mChangedKeys, {});
    const QSet<int> chords = std::exchange(mChangedChords, {});
    keys += mSettings.withChords(InputChords(chords.cbegin(), chords.cend()));
    const QSet<int> gestures = std::exchange(mChangedGestures, {});
    for (const int gesture : gestures) {
        for (const QString &key : mSettings.withGesture(gesture))
            keys.insert(key);
    }
    if (!keys.isEmpty())
        Q_EMIT mRegistry->usesChanged(keys.values()); // host code may delete the registry
}

const ConfItem *InputRegistry::Private::itemOf(const QString &key) const
{
    const int index = mSettings.input(key).index;
    const auto &items = mManager->items;
    if (index < items.size() && items.at(index).getFullName() == key)
        return &items.at(index);
    // The host has changed the list.
    const auto found = std::find_if(items.cbegin(), items.cend(), [&](const ConfItem &item) {
        return item.getFullName() == key;
    });
    return found != items.cend() ? &*found : nullptr;
}

Place InputRegistry::Private::placeOfSetting(const QString &key) const
{
    const auto action = mBoundActions.constFind(key);
    return action != mBoundActions.constEnd() ? placeOf(mReadActions.at(*action)) : Place();
}

InputUse InputRegistry::Private::useOf(const QString &key) const
{
    InputUse use = useAt(placeOfSetting(key));
    if (mSettings.input(key).kind == Kind::Hotkey)
        use.scope = InputScope::Global;
    use.key = key;
    const ConfItem *const item = itemOf(key);
    if (item && item->displayText)
        use.name = QObject::tr(item->displayText); // the context in which hosts mark labels
    return use;
}

QList<InputUse> InputRegistry::Private::usesOf(const QStringList &keys) const
{
    QList<InputUse> uses;
    for (const QString &key : keys)
        uses.append(useOf(key));
    return uses;
}

QList<InputUse> InputRegistry::Private::usesOf(const InputKeys &keys, const Place &place,
                                               const QString &except) const
{
    QStringList settings = mSettings.meeting(keys);
    settings.erase(std::remove_if(settings.begin(), settings.end(),
                                  [&](const QString &key) {
                                      return key == except
                                             || (!keys.isGlobal
                                                 && !mSettings.input(key).keys.isGlobal
                                                 && !doOverlap(place, placeOfSetting(key)));
                                  }),
                   settings.end());
    QList<InputUse> uses = usesOf(settings);

    QSet<int> candidates;
    for (const int chord : keys.chords) {
        for (const int index : mActionsByChord.value(chord))
            candidates.insert(index);
    }
    QVector<int> indexes(candidates.cbegin(), candidates.cend());
    std::sort(indexes.begin(), indexes.end());
    for (const int index : std::as_const(indexes)) {
        const ActionInputs::Input &input = mReadActions.at(index);
        const bool doesMeet = std::any_of(input.sequences.cbegin(), input.sequences.cend(),
                                          [&](const InputChords &chords) {
                                              return doMeet(keys, {chords, false});
                                          });
        if (!input.object || !doesMeet || (!keys.isGlobal && !doOverlap(place, placeOf(input))))
            continue;
        InputUse use = useAt(placeOf(input));
        use.name = nameOf(input.object);
        use.object = input.object;
        uses.append(use);
    }
    return uses;
}

InputRegistry::InputRegistry(MtConfManage *manager)
    : QObject(manager), mPrivate(std::make_unique<Private>(this, manager))
{
}

InputRegistry::~InputRegistry() = default;

void InputRegistry::addActions(QWidget *widget)
{
    mPrivate->actions()->watch(widget);
}

QList<InputUse> InputRegistry::usesOf(const QKeySequence &keys) const
{
    mPrivate->update();
    return mPrivate->usesOf({chordsOf(keys), false}, Place(), QString());
}

QList<InputUse> InputRegistry::usesOfGesture(int gesture) const
{
    mPrivate->update();
    return mPrivate->usesOf(mPrivate->settings().withGesture(gestureConflictKey(gesture)));
}

QList<InputUse> InputRegistry::conflictsOf(const QString &key) const
{
    mPrivate->update();
    const SettingInputs &settings = mPrivate->settings();
    const SettingInputs::Input input = settings.input(key);
    if (!settings.contains(key))
        return {};
    if (input.kind != Kind::Gesture)
        return mPrivate->usesOf(input.keys, mPrivate->placeOfSetting(key), key);
    QStringList others = settings.withGesture(input.gesture);
    others.removeOne(key);
    return mPrivate->usesOf(others);
}

QList<InputUse> InputRegistry::conflictsOf(const QString &key, const QKeySequence &keys) const
{
    mPrivate->update();
    const SettingInputs &settings = mPrivate->settings();
    if (!settings.contains(key) || settings.input(key).kind == Kind::Gesture)
        return {};
    return mPrivate->usesOf({chordsOf(keys), isGlobal(key)}, mPrivate->placeOfSetting(key), key);
}

QList<InputUse> InputRegistry::conflictsOf(const QString &key, int gesture) const
{
    mPrivate->update();
    const SettingInputs &settings = mPrivate->settings();
    if (!settings.contains(key) || settings.input(key).kind != Kind::Gesture)
        return {};
    QStringList others = settings.withGesture(gestureConflictKey(gesture));
    others.removeOne(key);
    return mPrivate->usesOf(others);
}

bool InputRegistry::isGlobal(const QString &key) const
{
    mPrivate->update();
    const SettingInputs &settings = mPrivate->settings();
    return settings.contains(key) && settings.input(key).kind == Kind::Hotkey;
}

} // namespace MtConf
