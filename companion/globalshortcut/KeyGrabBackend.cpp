#include "KeyGrabBackend_p.h"

#include <algorithm>

KeyGrabBackend::KeyGrabBackend(GlobalShortcutBackend::Listener &listener,
                               const MakeGrabber &makeGrabber)
    : mListener(listener), mGrabber(makeGrabber(*this))
{
}

bool KeyGrabBackend::isSupported() const
{
    return mGrabber->isSupported();
}

void KeyGrabBackend::add(const Action &action)
{
    enter(action);
}

void KeyGrabBackend::change(const Action &action)
{
    const Place place = mPlaces.value(action.id);
    if (place.chord == action.chord) {
        Entry &entry = mEntries[place.chord];
        if (entry.failure != Failure::NoFailure)
            settle(place.chord, entry);
        return;
    }
    leave(place);
    enter(action);
}

void KeyGrabBackend::remove(const QString &id)
{
    leave(mPlaces.take(id));
}

void KeyGrabBackend::suspend(bool suspended)
{
    if (mIsSuspended == suspended)
        return;
    mIsSuspended = suspended;
    for (auto &[chord, entry] : mEntries) {
        if (suspended)
            release(entry);
        else if (entry.failure == Failure::NoFailure)
            settle(chord, entry);
    }
}

void KeyGrabBackend::keyPressed(quint32 key, quint32 modifiers)
{
    const auto isPressed = [=](const KeyCombination &held) { return held.matches(key, modifiers); };
    for (const auto &[chord, entry] : mEntries) {
        if (!entry.isHeld
            || !std::any_of(entry.combinations.cbegin(), entry.combinations.cend(), isPressed))
            continue;
        for (const auto &[number, id] : entry.actions)
            mListener.activated(id, QString());
    }
}

void KeyGrabBackend::keyboardChanged()
{
    // First release all outdated combinations: the new ones may overlap them.
    for (auto &[chord, entry] : mEntries) {
        if (entry.failure != Failure::NoFailure
            || entry.combinations == mGrabber->combinations(chord))
            continue;
        release(entry);
        entry.failure = Failure::Pending;
    }
    for (auto &[chord, entry] : mEntries) {
        if (entry.failure != Failure::NoFailure)
            settle(chord, entry);
    }
}

// Puts an action at the end of those with its chord, and registers the chord if it is not.
void KeyGrabBackend::enter(const Action &action)
{
    const Place place{action.chord, mNextNumber++};
    mPlaces.insert(action.id, place);
    Entry &entry = mEntries[place.chord];
    if (entry.failure != Failure::NoFailure)
        settle(place.chord, entry);
    entry.actions.emplace(place.number, action.id);
    mListener.resultChanged(action.id, {entry.failure, QString()});
}

// Releases the chord with its last action.
void KeyGrabBackend::leave(const Place &place)
{
    const auto found = mEntries.find(place.chord);
    if (found == mEntries.end())
        return;
    Entry &entry = found->second;
    entry.actions.erase(place.number);
    if (!entry.actions.empty())
        return;
    release(entry);
    mEntries.erase(found);
}

// Tries to register a chord and tells its actions if the result is another one.
void KeyGrabBackend::settle(int chord, Entry &entry)
{
    entry.failure = take(chord, entry);
    if (entry.failure == entry.told)
        return;
    entry.told = entry.failure;
    for (const auto &[number, id] : entry.actions)
        mListener.resultChanged(id, {entry.failure, QString()});
}

QxtGlobalShortcut::Failure KeyGrabBackend::take(int chord, Entry &entry)
{
    if (!mGrabber->isSupported())
        return Failure::NoBackend;
    entry.combinations = mGrabber->combinations(chord);
    if (entry.combinations.isEmpty())
        return Failure::NotOnKeyboard;
    if (!hold(entry))
        return mGrabber->isSupported() ? Failure::Taken : Failure::NoBackend;
    if (mIsSuspended)
        release(entry);
    return Failure::NoFailure;
}

// Different chords may need the same combination, for example "Ctrl+!" and "Ctrl+Shift+1".
bool KeyGrabBackend::hold(Entry &entry)
{
    for (int i = 0; i < entry.combinations.size(); ++i) {
        const KeyCombination &combination = entry.combinations.at(i);
        if (mUses.count(combination) == 0 && !mGrabber->grab(combination)) {
            releaseFirst(entry.combinations, i);
            return false;
        }
        ++mUses[combination];
    }
    entry.isHeld = true;
    return true;
}

void KeyGrabBackend::release(Entry &entry)
{
    if (!entry.isHeld)
        return;
    entry.isHeld = false;
    releaseFirst(entry.combinations, static_cast<int>(entry.combinations.size()));
}

void KeyGrabBackend::releaseFirst(const QVector<KeyCombination> &combinations, int count)
{
    for (int i = 0; i < count; ++i) {
        const auto uses = mUses.find(combinations.at(i));
        if (--uses->second > 0)
            continue;
        mUses.erase(uses);
        mGrabber->ungrab(combinations.at(i));
    }
}
