#include "SettingInputs_p.h"

#include <algorithm>

namespace MtConf {

namespace {

void insertOrRemove(QHash<int, QSet<QString>> *sets, int number, const QString &key, bool isUsed)
{
    if (isUsed) {
        (*sets)[number].insert(key);
        return;
    }
    const auto set = sets->find(number);
    if (set == sets->end())
        return;
    set->remove(key);
    if (set->isEmpty())
        sets->erase(set);
}

} // namespace

void SettingInputs::set(const QString &key, const Input &input)
{
    const auto known = mInputs.constFind(key);
    if (known != mInputs.constEnd())
        index(key, *known, false);
    mInputs.insert(key, input);
    index(key, input, true);
}

void SettingInputs::clear()
{
    mInputs.clear();
    mByChord.clear();
    mByGesture.clear();
}

void SettingInputs::index(const QString &key, const Input &input, bool isUsed)
{
    for (const int chord : input.keys.chords)
        insertOrRemove(&mByChord, chord, key, isUsed);
    if (input.gesture)
        insertOrRemove(&mByGesture, input.gesture, key, isUsed);
}

QSet<QString> SettingInputs::withChords(const InputChords &chords) const
{
    QSet<QString> keys;
    for (const int chord : chords)
        keys += mByChord.value(chord);
    return keys;
}

QStringList SettingInputs::meeting(const InputKeys &keys) const
{
    QStringList found;
    const QSet<QString> candidates = withChords(keys.chords);
    for (const QString &key : candidates) {
        if (doMeet(keys, mInputs.find(key)->keys))
            found.append(key);
    }
    return sorted(found);
}

QStringList SettingInputs::withGesture(int gesture) const
{
    return gesture ? sorted(mByGesture.value(gesture).values()) : QStringList();
}

QStringList SettingInputs::sorted(QStringList keys) const
{
    std::sort(keys.begin(), keys.end(), [this](const QString &a, const QString &b) {
        return mInputs.find(a)->index < mInputs.find(b)->index;
    });
    return keys;
}

} // namespace MtConf
