#pragma once

#include <QJsonObject>
#include <QJsonValue>

#include <cmath>
#include <optional>

/// The name of a member of an entry. Each is one character.
class EntryKey
{
public:
    constexpr explicit EntryKey(char name) : mText{'"', name, '"', ':', '\0'} {}

    constexpr QLatin1String name() const { return QLatin1String(mText + 1, 1); }
    /// The name as compact JSON has it, with quotes and colon.
    constexpr QLatin1String inText() const { return QLatin1String(mText, sizeof mText - 1); }

private:
    char mText[5]; // terminated, because GCC warns about a QLatin1String that is not
};

inline constexpr EntryKey sTimeKey('t');  ///< when the value changed, in seconds since 1970
inline constexpr EntryKey sValueKey('v'); ///< the value as `ConfValue::toJsonValue` returns it
inline constexpr EntryKey sRemovedKey(
    'd'); ///< when a dynamic key was removed, in seconds since 1970

/// Which timestamps a load accepts. Any other counts as 0.
enum class TimeRange {
    Until2038, ///< whole numbers of 32 bits
    Long       ///< whole numbers that a double has exactly, and a QDateTime in milliseconds
};

inline bool isInRange(double seconds, TimeRange range)
{
    constexpr double sLargestLong = 9007199254740991.0; // 2^53 - 1
    constexpr double sLargestShort = 2147483647.0;
    return range == TimeRange::Long ? std::abs(seconds) <= sLargestLong
                                    : seconds >= -sLargestShort - 1 && seconds <= sLargestShort;
}

/// A member of a dump, from parsed JSON.
///
/// A dump is one JSON object. Each of its members is a key of the store and an entry, an object
/// with "t", "v" or "d". `ConfLoad` merges every type that has the five functions of this one; the
/// other type is `PlainMember`, which needs no parsed JSON. Both return the same for the same text.
class ParsedMember
{
public:
    /// `entry` must outlive the member if `entry()` is called.
    explicit ParsedMember(const QJsonValue &entry, TimeRange times)
        : mWhole(&entry), mIsObject(entry.isObject()), mTimes(times), mEntry(entry.toObject())
    {
    }

    /// Whether the entry is an object. Anything else counts as an empty one.
    bool isObject() const { return mIsObject; }
    /// The member "t". Anything but a whole number in range counts as 0.
    std::optional<qint64> time() const { return secondsOf(sTimeKey); }
    /// The member "d", read like "t".
    std::optional<qint64> removalTime() const { return secondsOf(sRemovedKey); }
    /// The member "v"; undefined if there is none.
    QJsonValue value() const { return mEntry.value(sValueKey.name()); }
    /// The whole entry, whatever it is.
    QJsonValue entry() const { return *mWhole; }

private:
    std::optional<qint64> secondsOf(const EntryKey &key) const
    {
        const auto member = mEntry.constFind(key.name());
        if (member == mEntry.constEnd())
            return std::nullopt;
        if (mTimes == TimeRange::Until2038)
            return member->toInt(); // cheaper than the general case
        const double seconds = member->toDouble();
        const bool isTime = isInRange(seconds, mTimes) && std::trunc(seconds) == seconds;
        return isTime ? static_cast<qint64>(seconds) : 0;
    }

    const QJsonValue *const mWhole; // not a copy, which costs a tenth of loading an object
    const bool mIsObject;
    const TimeRange mTimes;
    const QJsonObject mEntry;
};
