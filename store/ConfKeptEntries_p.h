#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <QMap>
#include <QSet>
#include <QString>

#include <optional>

/// Which of two entries with the same timestamp is kept.
enum class KeptTie {
    Stored,  ///< the one that is there
    Resolved ///< see `ConfStorage::ResolveTies`
};

/// The entries of a store whose keys are not declared, or whose values were refused. They are
/// written back to the local file as they are.
///
/// An entry is the member of a dump, usually an object with "t", "v" or "d". Its name is that in
/// the dump, with the system mark.
class ConfKeptEntries
{
public:
    /// Keeps `entry` if it is newer than the kept one. A value without a timestamp always wins, and
    /// gets the current time; anything else without one is kept only if there is no entry of this
    /// name. Returns whether it was kept.
    bool keep(const QString &name, const QJsonValue &entry, KeptTie tie = KeptTie::Stored);
    /// Keeps the entry of a setting of this program, which also wins a tie.
    void keepReleased(const QString &name, const QJsonValue &entry);
    void remove(const QString &name);
    /// Sets the timestamp of the entry `name` and returns the JSON text of the entry.
    QByteArray stamp(const QString &name, qint64 seconds);

    /// Notes that the entry of `key` has set the value. The converter of the key may be set later.
    void setApplied(const QString &key, const QJsonValue &entry) { mApplied[key] = entry; }
    /// Returns the entry of the last call of `setApplied`; undefined if there was none.
    QJsonValue applied(const QString &key) const
    {
        return mApplied.value(key, QJsonValue(QJsonValue::Undefined));
    }

    /// Notes that the entry of the released key `key` is secret.
    void setSecret(const QString &key) { mSecrets.insert(key); }
    /// Returns whether `setSecret` was called for `key`.
    bool isSecret(const QString &key) const { return mSecrets.contains(key); }

    /// The entries by name.
    const QMap<QString, QJsonValue> &entries() const { return mEntries; }
    /// Bytes of the entries in the local file.
    qint64 size() const { return mSize; }

    /// Returns the timestamp of a change or a removal in seconds, or null if there is none.
    static std::optional<qint64> timeOf(const QJsonValue &entry);
    /// Returns how many bytes the local file needs for an entry.
    static qint64 sizeOf(const QString &name, const QJsonValue &entry);

private:
    QMap<QString, QJsonValue> mEntries;
    QMap<QString, QJsonValue> mApplied; // by key
    QSet<QString> mSecrets;             // keys
    qint64 mSize = 0;
};
